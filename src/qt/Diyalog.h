#pragma once

#include <functional>
#include <memory>
#include <type_traits>

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Yerlesimler.h"

namespace velora {

/// A window that stands over others. Its X and the Esc key press the screen's own cancel button, and do
/// nothing while that one is disabled: what closing means is the screen's to say. Its captions get access
/// keys when it is first shown.
class Diyalog : public QDialog {
  public:
    explicit Diyalog(std::weak_ptr<const void> ekran);

    void reject() override;

  protected:
    Baglayici& Bag() { return *baglayici_; }

    /// The widget of a control: under its name, called by its caption, bound to it. Tick boxes show the
    /// caption themselves, for others see `EtiketYap`.
    template <class Parca, class Model, class... Isler>
    Parca* ParcaYap(const QString& ad, Model& model, const Isler&... isler) {
        auto* parca = new Parca(this);
        Adlandir(*parca, ad, QMetin(model.baslik));
        if constexpr (std::is_same_v<Model, OnayKutusu>)
            parca->setText(QMetin(model.baslik));
        Bag().Bagla(*parca, model, isler...);
        return parca;
    }
    /// A row of a form: a control's widget with its caption before it.
    template <class Parca, class Model, class... Isler>
    Parca* SatirEkle(QFormLayout& form, const QString& ad, Model& model, const Isler&... isler) {
        auto* parca = ParcaYap<Parca>(ad, model, isler...);
        form.addRow(EtiketYap(QMetin(model.baslik), *parca), parca);
        return parca;
    }
    /// The text of a label that changes, called by it and what stands before and behind it.
    QLabel* DegerYap(const QString& ad, Etiket& model);

    /// A text on the window's own ground, as it is now.
    QLabel* YaziYap(const QString& ad, const Etiket& model);
    /// The heading within a window.
    QLabel* BaslikYap(const QString& ad, const Etiket& model);
    /// The quiet line that says what a list holds.
    QLabel* OzetYap(const Etiket& model);
    /// The list of a screen, its columns in these widths.
    QTreeWidget* ListeYap(ListeGorunumu& model, std::span<const int> enler,
                          const Baglayici::Isleyici& secildi, const Baglayici::Isleyici& ciftTiklandi);

    /// A button under the name of its control, bound to it.
    QPushButton* DugmeYap(const char* ad, Dugme& model, const std::function<void()>& tiklandi);
    void IptalDugmesi(QPushButton* dugme) { iptal_ = dugme; }
    /// What Enter presses: `dugme` from any field, `listede` while the list has the focus and the button can
    /// be pressed. Another button that has the focus comes before both.
    void VarsayilanDugme(QPushButton& dugme, const QWidget& liste, QPushButton& listede);
    /// The control of that name has the focus when the window comes.
    void IlkOdak(const char* ad);

    /// What the window does when the handler of a button has ended: nothing, when that unloaded the screen
    /// or closed the window. The button has to be bound already.
    void Ardindan(QPushButton& dugme, const std::function<void()>& is);
    /// Behind a button that fills the list: the list has the focus, and the next arrow key marks its first
    /// row. With no row the focus goes back to the field in which it was before the button took it.
    void BulunanaGotur(QPushButton& dugme, QTreeWidget& liste);
    /// Where the button can't be pressed any more after its work, the list has the focus again.
    void OdagiListeyeVer(QPushButton& dugme, QWidget& liste);

    void closeEvent(QCloseEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
    void showEvent(QShowEvent* olay) override;

  private:
    void OdagiIzle(QWidget* odak);

    Baglayici* baglayici_;
    QPushButton* iptal_ = nullptr;
    QPointer<QWidget> sonAlan_;             // what had the focus last and is no button
    const QWidget* enterListesi_ = nullptr; // the list on which Enter presses a button
    bool tuslandi_ = false;                 // the captions have their access keys
};

} // namespace velora
