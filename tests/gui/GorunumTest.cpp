#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
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

/// How well the left edge of a widget, in the middle of its height, is told from the window.
double KenarKarsitligi(QWidget& parca) {
    const QImage resim = parca.grab().toImage();
    double enCok = 1;
    for (int x = 0; x < 4; ++x) {
        const QColor renk = resim.pixelColor(x, resim.height() / 2);
        enCok = std::max(enCok, velora::Karsitlik(renk, QApplication::palette().color(QPalette::Window)));
    }
    return enCok;
}

} // namespace

class GorunumTest : public QObject {
    Q_OBJECT

  private slots:
    void the_icon_of_the_program_is_drawn_in_every_size() {
        for (const int boy : {16, 24, 48, 256}) {
            const QImage resim = QApplication::windowIcon().pixmap(QSize(boy, boy), 1).toImage();
            QCOMPARE(resim.size(), QSize(boy, boy));
            QVERIFY(resim.pixelColor(boy / 2, boy / 5 + 1).green() > 90); // its head
        }
    }

    void a_label_shows_the_dots_over_its_letters_and_its_last_letter_beside_an_access_key() {
        const auto izler = [](const QSize& ek, const QString& metin) {
            QLabel etiket(metin);
            etiket.ensurePolished();
            etiket.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            etiket.resize(etiket.sizeHint() + ek);
            const QImage resim = etiket.grab().toImage();
            int adet = 0;
            for (int y = 0; y < resim.height(); ++y)
                for (int x = 0; x < resim.width(); ++x)
                    adet += resim.pixelColor(x, y).lightness() < 200 ? 1 : 0;
            return adet;
        };
        for (const auto& metin : {QStringLiteral("Özel İstekler"), QStringLiteral("Sözleşme &Tarihi")})
            QCOMPARE(izler({}, metin), izler({40, 40}, metin));
    }

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

    void texts_and_edges_can_be_told_from_what_lies_under_them() {
        const QPalette palet = QApplication::palette();
        for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            for (const auto zemin : {QPalette::Window, QPalette::Base, QPalette::Button})
                QVERIFY(velora::Karsitlik(palet.color(QPalette::Disabled, rol), palet.color(zemin)) >= 3);
        QLineEdit satir;
        QComboBox liste;
        QComboBox yazilan;
        yazilan.setEditable(true);
        QDateEdit tarih;
        tarih.setCalendarPopup(true);
        QPlainTextEdit metin;
        QListWidget secim;
        QCheckBox onay;
        QRadioButton secenek;
        for (QWidget* parca : std::initializer_list<QWidget*>{&satir, &liste, &yazilan, &tarih, &metin,
                                                              &secim, &onay, &secenek}) {
            parca->resize(parca->sizeHint());
            const QString tur = QString::fromLatin1(parca->metaObject()->className());
            QVERIFY2(KenarKarsitligi(*parca) >= 3, qPrintable(tur));
        }
    }

    void contrast_goes_from_one_to_twenty_one() {
        QCOMPARE(velora::Karsitlik(Qt::black, Qt::white), 21.0);
        QCOMPARE(velora::Karsitlik(QColor(9, 99, 199), QColor(9, 99, 199)), 1.0);
        QVERIFY(qAbs(velora::Karsitlik(QColor(0, 255, 0), Qt::white) - 1.37) < 0.01);
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
