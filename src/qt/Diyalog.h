#pragma once

#include <functional>
#include <memory>

#include <QDialog>
#include <QPushButton>

#include "qt/Yerlesimler.h"

namespace velora {

class Baglayici;
struct Dugme;

/// A window that stands over others. Its X and the Esc key press the screen's own cancel
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
    /// The control of that name has the focus when the window comes.
    void IlkOdak(const char* ad);

    /// Where the button can't be pressed any more after its work, the list has the focus again.
    void OdagiListeyeVer(QPushButton& dugme, QWidget& liste);

    void closeEvent(QCloseEvent* olay) override;
    void showEvent(QShowEvent* olay) override;

  private:
    Baglayici* baglayici_;
    QPushButton* iptal_ = nullptr;
    bool tuslandi_ = false; // the captions have their access keys
};

} // namespace velora
