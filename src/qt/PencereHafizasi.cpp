#include "qt/PencereHafizasi.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QSettings>
#include <QTreeWidget>

#include "qt/Klasorler.h"
#include "qt/PencereYeri.h"

namespace velora {

namespace {

const QString kYer = QStringLiteral("yer");
const QString kBuyuk = QStringLiteral("buyuk");
constexpr int kEnGenisSutun = 4'000; // more was never meant

QString SutunAnahtari(const QTreeWidget& liste) {
    return QStringLiteral("sutunlar-") + liste.objectName();
}

/// What the user sets: no share of what is left.
bool Ayarlanir(const QHeaderView& basliklar, int sutun) {
    return basliklar.sectionResizeMode(sutun) == QHeaderView::Interactive &&
           !(basliklar.stretchLastSection() && basliklar.visualIndex(sutun) == basliklar.count() - 1);
}

void SutunlariVer(const QTreeWidget& liste, const QVariantList& enler) {
    QHeaderView& basliklar = *liste.header();
    if (enler.size() != basliklar.count())
        return;
    for (int sutun = 0; sutun < basliklar.count(); ++sutun) {
        const int en = enler[sutun].toInt();
        if (Ayarlanir(basliklar, sutun) && en >= basliklar.minimumSectionSize() && en <= kEnGenisSutun)
            basliklar.resizeSection(sutun, en);
    }
}

QVariantList SutunEnleri(const QTreeWidget& liste) {
    QVariantList enler;
    for (int sutun = 0; sutun < liste.header()->count(); ++sutun)
        enler << liste.header()->sectionSize(sutun);
    return enler;
}

/// Empty where the system has no such folder.
QString AyarKlasorunde(const QString& ad) {
    const QString klasor = AyarKlasoru();
    return klasor.isEmpty() ? QString() : klasor + ad;
}

} // namespace

QString PencereHafizasi::KullaniciDosyasi() {
    return AyarKlasorunde(QStringLiteral("/pencereler.ini"));
}

void PencereHafizasi::Yerlestir(QWidget& pencere, const QString& ad) const {
    if (dosya_.isEmpty())
        return;
    QSettings dosya(dosya_, QSettings::IniFormat);
    dosya.beginGroup(ad);
    const bool ana = qobject_cast<QMainWindow*>(&pencere) != nullptr;
    const QRect yer = dosya.value(kYer).toRect();
    const bool bilinen = yer.isValid();
    if (bilinen && ana)
        pencere.setGeometry(EkranaAl(yer));
    else if (bilinen)
        pencere.resize(EkranaAl(yer).size()); // it comes over the window that opens it
    if (dosya.value(kBuyuk, ana && !bilinen).toBool())
        pencere.setWindowState(pencere.windowState() | Qt::WindowMaximized);
    for (const auto* liste : pencere.findChildren<QTreeWidget*>())
        SutunlariVer(*liste, dosya.value(SutunAnahtari(*liste)).toList());
}

void PencereHafizasi::Sakla(const QWidget& pencere, const QString& ad) const {
    if (dosya_.isEmpty())
        return;
    QSettings dosya(dosya_, QSettings::IniFormat);
    dosya.beginGroup(ad);
    dosya.setValue(kYer, pencere.normalGeometry());
    dosya.setValue(kBuyuk, pencere.isMaximized());
    for (const auto* liste : pencere.findChildren<QTreeWidget*>())
        dosya.setValue(SutunAnahtari(*liste), SutunEnleri(*liste));
}

QString AyarDosyasi::KullaniciDosyasi() {
    return AyarKlasorunde(QStringLiteral("/ayarlar.ini"));
}

void AyarDosyasi::Yaz(const QString& bolum, const QString& anahtar, const QString& deger) const {
    if (!dosya_.isEmpty())
        QSettings(dosya_, QSettings::IniFormat).setValue(bolum + u'/' + anahtar, deger);
}

} // namespace velora
