#include "gui/Kullanim.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
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
    for (const QChar harf : metin)
        for (const QEvent::Type tur : {QEvent::KeyPress, QEvent::KeyRelease})
            if (QWidget* alan = QApplication::focusWidget()) {
                QKeyEvent tus(tur, 0, Qt::NoModifier, QString(harf));
                QApplication::sendEvent(alan, &tus);
            }
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

void Kapanincaya(QDialog& pencere) {
    const QPointer<QDialog> beklenen = &pencere;
    QTRY_VERIFY(beklenen == nullptr || !beklenen->isVisible());
}

Is Mesaj(const QString& metin, const QString& dugme) {
    return [=](QDialog& pencere) {
        auto* kutu = qobject_cast<QMessageBox*>(&pencere);
        QVERIFY(kutu != nullptr);
        QCOMPARE(kutu->text(), metin);
        for (QAbstractButton* aday : kutu->buttons())
            if (aday->text() == dugme)
                return QTest::mouseClick(aday, Qt::LeftButton);
        QFAIL("the box has no such button");
    };
}

Is Girdi(const QString& metin) {
    return [=](QDialog& pencere) {
        QVERIFY(qobject_cast<QInputDialog*>(&pencere) != nullptr);
        Yaz(metin);
        QTest::keyClick(&pencere, Qt::Key_Return);
    };
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

void Tikla(QWidget& pencere, const char* ad) {
    QTest::mouseClick(&Parcasi<QWidget>(pencere, ad), Qt::LeftButton);
}

void SatiraTikla(const QTreeWidget& liste, int sira) {
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.topLevelItem(sira)).center());
}

QString Isaretsiz(QString metin) {
    return metin.remove(u'&');
}

} // namespace velora::test
