#include "gui/Kullanim.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "qt/table/TabloPenceresi.h"

namespace velora::test {

namespace {

constexpr int kEnCokFazla = 20; // windows that none was prepared for, each the answer to the closing of
                                // another

/// What a window manager does when a window over this one has closed; there may be none.
void Etkinlestir(QWidget* pencere) {
    if (pencere == nullptr || !pencere->isVisible())
        return;
    pencere->activateWindow();
    QVERIFY(QTest::qWaitFor([pencere] { return QApplication::activeWindow() == pencere; }));
}

} // namespace

void Yaz(const QString& metin) {
    for (const char32_t harf : metin.toUcs4()) {
        // As the platforms do: a key is named by its sign, the great one of a letter.
        const auto tus = static_cast<Qt::Key>(QChar::toUpper(harf));
        if (QWidget* alan = QApplication::focusWidget())
            QTest::sendKeyEvent(QTest::Click, alan, tus, QString::fromUcs4(&harf, 1), Qt::NoModifier);
    }
}

void AlanaYaz(QWidget& pencere, const char* ad, const QString& metin) {
    auto& alan = Parcasi<QLineEdit>(pencere, ad);
    alan.setFocus();
    alan.selectAll();
    Yaz(metin);
}

void Pencerede(const std::function<void()>& ac, const std::vector<Is>& isler) {
    const QPointer<QWidget> onceki = QApplication::activeModalWidget();
    const QPointer<QWidget> altta = QApplication::activeWindow();
    std::size_t sira = 0;
    QTimer saat;
    QObject::connect(&saat, &QTimer::timeout, &saat, [&] {
        const QPointer<QWidget> simdi = QApplication::activeModalWidget();
        if (simdi == nullptr || simdi == onceki)
            return;
        saat.stop();
        auto* pencere = qobject_cast<QDialog*>(simdi);
        if (sira < isler.size() && pencere != nullptr &&
            QTest::qWaitFor([&] { return QApplication::activeWindow() == pencere; }))
            isler[sira](*pencere);
        if (++sira > isler.size() + kEnCokFazla)
            qFatal("Windows without end.");
        if (simdi != nullptr)
            simdi->hide();
        saat.start();
    });
    saat.start(0);
    ac();
    saat.stop();
    Etkinlestir(altta);
    QCOMPARE(sira, isler.size());
}

void Siraya(QObject& sahip, const std::function<void()>& is) {
    QMetaObject::invokeMethod(&sahip, is, Qt::QueuedConnection);
}

void Kapanincaya(QDialog& pencere) {
    const QPointer<QDialog> beklenen = &pencere;
    QTRY_VERIFY(beklenen == nullptr || !beklenen->isVisible());
}

Is Mesaj(const QString& metin, const QString& dugme) {
    return Kutuda<QMessageBox>([=](QMessageBox& kutu) {
        QCOMPARE(kutu.text(), metin);
        for (QAbstractButton* aday : kutu.buttons())
            if (Isaretsiz(aday->text()) == dugme)
                return QTest::mouseClick(aday, Qt::LeftButton);
        QFAIL("the box has no such button");
    });
}

Is Girdi(const QString& metin) {
    return Kutuda<QInputDialog>([=](QInputDialog& kutu) {
        Yaz(metin);
        QTest::keyClick(&kutu, Qt::Key_Return);
    });
}

Is TusBas(Qt::Key tus) {
    return [=](QDialog& pencere) { QTest::keyClick(&pencere, tus); };
}

void Tusla(Qt::Key tus, Qt::KeyboardModifiers ek) {
    QTest::keyClick(QApplication::focusWidget(), tus, ek);
}

QString Odaktaki() {
    const QWidget* alan = QApplication::focusWidget();
    return alan == nullptr ? QString() : alan->objectName();
}

void YeniKayitta(GuiFirma& firma, MetinBakis gun, const std::vector<Is>& isler) {
    firma.Ac();
    firma.Model().SeciliTarih = gun;
    Pencerede([&] { firma.Model().newkay_Click(); }, isler);
}

void MenudenSec(GuiFirma& firma, const char* girdi) {
    auto& menu = firma.Bul<QMenu>("ayarsd");
    QMenuBar& serit = *firma.Pencere().menuBar();
    QTest::mouseClick(&serit, Qt::LeftButton, {}, serit.actionGeometry(menu.menuAction()).center());
    QVERIFY(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&firma.Bul<QAction>(girdi)).center());
}

void TekeriCevir(QWidget& parca) {
    constexpr int kDis = -120; // towards the user
    const QPoint orta = parca.rect().center();
    QWheelEvent olay(orta, parca.mapToGlobal(orta), {}, {0, kDis}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&olay);
    QWidget* alt = parca.childAt(orta);
    QCoreApplication::instance()->notify(alt == nullptr ? &parca : alt, &olay);
}

void Tikla(QWidget& pencere, const char* ad) {
    QTest::mouseClick(&Parcasi<QWidget>(pencere, ad), Qt::LeftButton);
}

QPoint SatirYeri(const QAbstractItemView& liste, int sira) {
    return liste.visualRect(liste.model()->index(sira, 0)).center();
}

QStringList SatirYazilari(const QTreeWidget& liste, int sira) {
    QStringList yazilar;
    for (int sutun = 0; sutun < liste.columnCount(); ++sutun)
        yazilar << liste.topLevelItem(sira)->text(sutun);
    return yazilar;
}

void SatiraTikla(const QAbstractItemView& liste, int sira) {
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, SatirYeri(liste, sira));
}

void SatiraCiftTikla(const QAbstractItemView& liste, int sira) {
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, SatirYeri(liste, sira));
}

QString Isaretsiz(QString metin) {
    return metin.remove(u'&');
}

} // namespace velora::test
