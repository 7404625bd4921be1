#pragma once

#include <functional>
#include <memory>

#include <QDialog>
#include <QPushButton>

#include "qt/Yerlesimler.h"

namespace velora {

class Baglayici;
struct Dugme;

/// The window of a screen that stands over others. Its X and the Esc key press the screen's own cancel
/// button, and do nothing while that one is disabled: what closing means is the screen's to say. Its captions
/// get access keys when it is first shown.
class Diyalog : public QDialog {
  public:
    explicit Diyalog(std::weak_ptr<const void> ekran);

    void reject() override;

  protected:
    Baglayici& Bag() { return *baglayici_; }

    /// A button under the name of its control, bound to it.
    QPushButton* DugmeYap(const char* ad, Dugme& model, const std::function<void()>& tiklandi);
    void IptalDugmesi(QPushButton* dugme) { iptal_ = dugme; }
    /// What Enter presses: `dugme` from any field, `listede` while the list has the focus. Another button
    /// that has the focus comes before both.
    void VarsayilanDugme(QPushButton& dugme, const QWidget& liste, QPushButton& listede);

    /// What a button is made from.
    struct DugmeTanimi {
        const char* ad;
        Dugme& model;
        std::function<void()> tiklandi;
    };
    /// The row of a dialog that confirms or cancels: Enter presses the first, Esc the second.
    QHBoxLayout* TamamIptal(const DugmeTanimi& tamam, const DugmeTanimi& iptal);

    /// Where the button can't be pressed any more after its work, the list has the focus again.
    void OdagiListeyeVer(QPushButton& dugme, QWidget& liste);

    /// The buttons of a screen that keeps a list: "Ekle", "Düzenle", "Sil", and "Kapat", which also cancels.
    /// Enter adds.
    template <class Ekran>
    QHBoxLayout* ListeDugmeleri(Ekran* ekran, QWidget& liste) {
        auto* ekle = DugmeYap("Command1", ekran->Command1, [ekran] { ekran->Command1_Click(); });
        auto* duzenle = DugmeYap("Command4", ekran->Command4, [ekran] { ekran->Command4_Click(); });
        auto* sil = DugmeYap("Command2", ekran->Command2, [ekran] { ekran->Command2_Click(); });
        auto* kapat = DugmeYap("Command3", ekran->Command3, [ekran] { ekran->Command3_Click(); });
        ekle->setDefault(true);
        IptalDugmesi(kapat);
        for (QPushButton* dugme : {duzenle, sil})
            OdagiListeyeVer(*dugme, liste);
        return DugmeSeridi({ekle, duzenle, sil, kapat});
    }

    void closeEvent(QCloseEvent* olay) override;
    void showEvent(QShowEvent* olay) override;

  private:
    Baglayici* baglayici_;
    QPushButton* iptal_ = nullptr;
    bool tuslandi_ = false; // the captions have their access keys
};

} // namespace velora
