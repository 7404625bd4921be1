#include "qt/Diyalog.h"

#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/ErisimTuslari.h"
#include "qt/PencereYeri.h"

namespace velora {

namespace {

constexpr double kBaslikOrani = 1.25; // of a heading's letters to the others

} // namespace

Diyalog::Diyalog(std::weak_ptr<const void> ekran) : baglayici_(new Baglayici(std::move(ekran), this)) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* yeni) { OdagiIzle(yeni); });
}

void Diyalog::OdagiIzle(QWidget* odak) {
    if (odak != nullptr && odak->window() == this && qobject_cast<QAbstractButton*>(odak) == nullptr)
        sonAlan_ = odak;
}

void Diyalog::keyPressEvent(QKeyEvent* olay) {
    const bool enter = olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter;
    // The toolkit would press the default button: nobody who looks at a row means that.
    if (enter && focusWidget() != enterListesi_ && qobject_cast<QAbstractItemView*>(focusWidget()) != nullptr)
        return;
    QDialog::keyPressEvent(olay);
}

QPushButton* Diyalog::DugmeYap(const char* ad, Dugme& model, const std::function<void()>& tiklandi) {
    auto* dugme = new QPushButton(this);
    dugme->setObjectName(QString::fromLatin1(ad));
    baglayici_->Bagla(*dugme, model, tiklandi);
    return dugme;
}

void Diyalog::VarsayilanDugme(QPushButton& dugme, const QWidget& liste, QPushButton& listede) {
    dugme.setDefault(true);
    enterListesi_ = &liste;
    const auto sec = [&dugme, &liste, &listede] {
        const QWidget* odak = QApplication::focusWidget();
        // Another window's, or a button's own: the toolkit sees to that.
        if (odak == nullptr || odak->window() != dugme.window() ||
            qobject_cast<const QPushButton*>(odak) != nullptr)
            return;
        QPushButton& istenen = odak == &liste && listede.isEnabled() ? listede : dugme;
        if (!istenen.isDefault())
            istenen.setDefault(true);
    };
    connect(qApp, &QApplication::focusChanged, &dugme, sec);
    baglayici_->Izle(sec);
}

QLabel* Diyalog::DegerYap(const QString& ad, Etiket& model) {
    auto* etiket = new QLabel(this);
    etiket->setObjectName(ad);
    baglayici_->Bagla(*etiket, model);
    // The name stands in for the text where that isn't seen.
    baglayici_->Izle([etiket, &model] {
        const QString tumu = QMetin(model.once + u" " + model.baslik + u" " + model.sonra).simplified();
        Okut(*etiket, QString(tumu).replace(QStringLiteral(" :"), QStringLiteral(":")));
    });
    return etiket;
}

QLabel* Diyalog::YaziYap(const QString& ad, const Etiket& model) {
    auto* etiket = new QLabel(this);
    etiket->setObjectName(ad);
    etiket->setTextFormat(Qt::PlainText);
    baglayici_->Izle([etiket, &model] { etiket->setText(QMetin(model.baslik)); });
    return etiket;
}

QLabel* Diyalog::BaslikYap(const QString& ad, const Etiket& model) {
    QLabel* etiket = YaziYap(ad, model);
    QFont yazi = etiket->font();
    yazi.setBold(true);
    yazi.setPointSizeF(kBaslikOrani * yazi.pointSizeF());
    etiket->setFont(yazi);
    return etiket;
}

QLabel* Diyalog::OzetYap(const Etiket& model) {
    QLabel* etiket = YaziYap(QStringLiteral("Ozet"), model);
    etiket->setForegroundRole(QPalette::PlaceholderText);
    return etiket;
}

QTreeWidget* Diyalog::ListeYap(ListeGorunumu& model, std::span<const int> enler,
                               const Baglayici::Isleyici& secildi, const Baglayici::Isleyici& ciftTiklandi) {
    auto* liste = ParcaYap<QTreeWidget>(QStringLiteral("Liste"), model, secildi, ciftTiklandi);
    SutunEnleriVer(*liste, enler);
    return liste;
}

void Diyalog::IlkOdak(const char* ad) {
    findChild<QWidget*>(QString::fromLatin1(ad))->setFocus();
}

void Diyalog::Ardindan(QPushButton& dugme, const std::function<void()>& is) {
    connect(&dugme, &QPushButton::clicked, this, [this, is] {
        if (baglayici_->Duruyor())
            is();
    });
}

void Diyalog::BulunanaGotur(QPushButton& dugme, QTreeWidget& liste) {
    Ardindan(dugme, [this, &liste] {
        if (liste.topLevelItemCount() > 0)
            liste.setFocus();
        else if (sonAlan_ != nullptr)
            sonAlan_->setFocus();
    });
}

void Diyalog::OdagiListeyeVer(QPushButton& dugme, QWidget& liste) {
    Ardindan(dugme, [&dugme, &liste] {
        if (!dugme.isEnabled())
            liste.setFocus();
    });
}

void Diyalog::reject() {
    if (iptal_ == nullptr || !iptal_->isEnabled())
        return;
    const QPointer<QWidget> odak = focusWidget();
    const QPointer<Diyalog> kendisi = this;
    iptal_->click();
    // Still here, after a "Hayır": Enter goes on where it was, not on the cancel button.
    if (kendisi != nullptr && isVisible() && odak != nullptr)
        odak->setFocus();
}

void Diyalog::showEvent(QShowEvent* olay) {
    // Only now all captions are there, and they may change while the window stands.
    if (!std::exchange(tuslandi_, true))
        baglayici_->Izle([this] { ErisimTuslariVer(*this, iptal_); });
    QDialog::showEvent(olay);
    // The toolkit has put it over another window, which may lie partly outside.
    if (const QRect yer = EkranaAl(geometry()); !olay->spontaneous() && yer != geometry())
        setGeometry(yer);
}

void Diyalog::closeEvent(QCloseEvent* olay) {
    olay->ignore();
    reject();
}

} // namespace velora
