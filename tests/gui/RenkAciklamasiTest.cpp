#include <QTest>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloPenceresi.h"
#include "setup/FormAyarlar.h"

using namespace velora;
using namespace velora::test;

namespace {

int Sayisi(const QImage& resim, const QColor& renk) {
    int sayi = 0;
    for (int y = 0; y < resim.height(); ++y)
        for (int x = 0; x < resim.width(); ++x)
            sayi += resim.pixelColor(x, y) == renk ? 1 : 0;
    return sayi;
}

QImage Resmi(GuiFirma& firma) {
    Baglayici::HepsiniTazele();
    QCoreApplication::processEvents(); // it may want another width
    return firma.Bul<QWidget>("RenkAciklamasi").grab().toImage();
}

} // namespace

/// What stands over the table about its colours.
class RenkAciklamasiTest : public QObject {
    Q_OBJECT

  private slots:
    void it_says_which_half_is_day_and_which_is_night_as_the_rows_are_laid_out() {
        GuiFirma firma;
        firma.Ac({1600, 800});
        auto& aciklama = firma.Bul<QWidget>("RenkAciklamasi");
        QVERIFY(aciklama.toolTip().startsWith(QStringLiteral("Üst gece, alt gündüz")));
        const QImage once = Resmi(firma);
        firma.program.FormAyarlar->GunduzGece.MetinAta(kGunduzGeceSirasi);
        QVERIFY2(Resmi(firma) == once, "the rows stand as they stood");
        QVERIFY(aciklama.toolTip().startsWith(QStringLiteral("Üst gece, alt gündüz")));
        GuiFirma yeni;
        yeni.program.FormAyarlar->GunduzGece.MetinAta(kGunduzGeceSirasi);
        yeni.Ac({1600, 800});
        auto& yenisi = yeni.Bul<QWidget>("RenkAciklamasi");
        QVERIFY(Resmi(yeni) != once);
        QVERIFY(yenisi.toolTip().startsWith(QStringLiteral("Üst gündüz, alt gece")));
        QCOMPARE(yenisi.accessibleName(), yenisi.toolTip());
    }

    void past_days_stand_there_only_when_they_are_painted() {
        GuiFirma firma;
        firma.Ac({1600, 800});
        const auto ayarlar = firma.program.FormAyarlar.Tut();
        auto& aciklama = firma.Bul<QWidget>("RenkAciklamasi");
        ayarlar->renkler[RenkNo::GecmisZemini] = 0x336699;
        const QColor gecmis = QRenk(0x336699);
        for (const int acik : {1, 0}) {
            ayarlar->Check1.deger = acik;
            QCOMPARE(Sayisi(Resmi(firma), gecmis) > 50, acik == 1);
            QCOMPARE(aciklama.toolTip().contains(QStringLiteral("Geçmiş")), acik == 1);
        }
    }

    void todays_frame_is_there_in_its_colour() {
        GuiFirma firma;
        firma.Ac({1600, 800});
        firma.program.FormAyarlar->renkler[RenkNo::BuGunCercevesi] = 0x336699;
        QVERIFY(Sayisi(Resmi(firma), QRenk(0x336699)) > 50);
        QVERIFY(firma.Bul<QWidget>("RenkAciklamasi").toolTip().endsWith(QStringLiteral("Bugün")));
    }

    void where_it_is_too_narrow_for_all_the_words_go_before_the_colours() {
        GuiFirma firma;
        firma.Ac({1600, 800});
        firma.program.FormAyarlar->renkler[RenkNo::BuGunCercevesi] = 0x336699;
        Resmi(firma);
        auto& aciklama = firma.Bul<QWidget>("RenkAciklamasi");
        aciklama.resize(aciklama.sizeHint().width() - 8, aciklama.height());
        QVERIFY(Sayisi(aciklama.grab().toImage(), QRenk(0x336699)) > 50);
    }

    void both_halves_of_a_pre_reservation_carry_its_mark() {
        GuiFirma firma;
        firma.Ac({1600, 800});
        const auto ayarlar = firma.program.FormAyarlar.Tut();
        ayarlar->renkler[RenkNo::GunduzOnZemini] = 0x336699;
        ayarlar->renkler[RenkNo::GeceOnZemini] = 0x99CC33;
        const QImage resim = Resmi(firma);
        for (const RenkDegeri renk : {0x336699, 0x99CC33}) {
            int sayi = 0; // places where the dark edge of the mark begins beside the colour
            for (int y = 0; y < resim.height(); ++y)
                for (int x = 1; x < resim.width(); ++x)
                    sayi += resim.pixelColor(x - 1, y) == QRenk(renk) &&
                                    resim.pixelColor(x, y) == QColor(32, 33, 36)
                                ? 1
                                : 0;
            QVERIFY(sayi >= 5);
        }
    }
};

VELORA_GUI_TEST(RenkAciklamasiTest)
#include "RenkAciklamasiTest.moc"
