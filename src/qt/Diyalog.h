#pragma once

#include <functional>
#include <memory>

#include <QDialog>

#include "qt/Yerlesimler.h"

class QPushButton;

namespace velora {

class Baglayici;
struct Dugme;

/// The window of a screen that stands over others. Its X and the Esc key press the screen's own cancel button, and do
/// nothing while that one is disabled: what closing means is the screen's to say.
class Diyalog : public QDialog {
  public:
    explicit Diyalog(std::weak_ptr<const void> ekran);

    void reject() override;

  protected:
    Baglayici& Bag() { return *baglayici_; }

    /// A button under the name of its control, bound to it.
    QPushButton* DugmeYap(const char* ad, Dugme& model, const std::function<void()>& tiklandi);
    void IptalDugmesi(QPushButton* dugme) { iptal_ = dugme; }
    /// What Enter presses: `dugme` from any field, `listede` while the list has the focus. Another button that has the
    /// focus comes before both.
    void VarsayilanDugme(QPushButton& dugme, const QWidget& liste, QPushButton& listede);

    /// The buttons of a screen that keeps a list: "Ekle", "Düzenle", "Sil", and "Kapat", which also cancels.
    template <class Ekran>
    QHBoxLayout* ListeDugmeleri(Ekran* ekran) {
        auto* kapat = DugmeYap("Command3", ekran->Command3, [ekran] { ekran->Command3_Click(); });
        IptalDugmesi(kapat);
        return DugmeSeridi({DugmeYap("Command1", ekran->Command1, [ekran] { ekran->Command1_Click(); }),
                            DugmeYap("Command4", ekran->Command4, [ekran] { ekran->Command4_Click(); }),
                            DugmeYap("Command2", ekran->Command2, [ekran] { ekran->Command2_Click(); }),
                            kapat});
    }

    void closeEvent(QCloseEvent* olay) override;

  private:
    Baglayici* baglayici_;
    QPushButton* iptal_ = nullptr;
};

} // namespace velora
