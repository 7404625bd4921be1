#include <QApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "gui/GuiProgram.h"
#include "qt/Gorunum.h"

namespace {

QColor Vurgu() {
    return QApplication::palette().color(QPalette::Highlight);
}

/// The ground of a button, beside its text.
QColor Zemin(QPushButton& dugme) {
    return dugme.grab().toImage().pixelColor(6, dugme.height() / 2);
}

/// The colours in the middle of the four edges of a widget, drawn at a scale.
QList<QColor> Kenarlar(QWidget& parca, double olcek) {
    QImage resim(parca.size() * olcek, QImage::Format_RGB32);
    resim.setDevicePixelRatio(olcek);
    parca.render(&resim);
    const int sag = resim.width() - 1;
    const int alt = resim.height() - 1;
    return {resim.pixelColor(0, alt / 2), resim.pixelColor(sag, alt / 2), resim.pixelColor(sag / 2, 0),
            resim.pixelColor(sag / 2, alt)};
}

} // namespace

class GorunumTest : public QObject {
    Q_OBJECT

  private slots:
    void the_button_of_enter_is_filled_with_the_accent_while_it_can_be_pressed() {
        QWidget pencere;
        QPushButton dolu(QStringLiteral("Tamam"), &pencere);
        QPushButton bos(QStringLiteral("İptal"), &pencere);
        dolu.setDefault(true);
        QVERIFY(qAbs(Zemin(dolu).hslHue() - Vurgu().hslHue()) < 10);
        QVERIFY(Zemin(dolu).hslSaturation() > 100);
        QVERIFY(Zemin(bos).hslSaturation() < 50);
        dolu.setEnabled(false);
        QVERIFY(Zemin(dolu).hslSaturation() < 50);
    }

    void a_button_leaves_room_beside_its_text() {
        const QPushButton dugme(QStringLiteral("Varsayılan Ayarlar"));
        const int yazi = dugme.fontMetrics().horizontalAdvance(dugme.text());
        QVERIFY(dugme.sizeHint().width() >= yazi + 2 * velora::kAralik);
    }

    void the_frame_of_a_list_is_whole_at_every_scale_and_shows_the_focus() {
        QWidget pencere;
        auto* satir = new QHBoxLayout(&pencere);
        auto* liste = new QListWidget;
        auto* dugme = new QPushButton;
        satir->addWidget(liste);
        satir->addWidget(dugme);
        dugme->setFocus();
        pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&pencere));
        const QColor cerceve = liste->palette().color(QPalette::Mid);
        for (const double olcek : {1.0, 1.5, 2.0})
            QCOMPARE(Kenarlar(*liste, olcek), QList<QColor>(4, cerceve));
        liste->setFocus();
        for (const double olcek : {1.0, 1.5, 2.0})
            QCOMPARE(Kenarlar(*liste, olcek), QList<QColor>(4, Vurgu()));
    }
};

VELORA_GUI_TEST(GorunumTest)
#include "GorunumTest.moc"
