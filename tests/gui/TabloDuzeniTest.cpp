#include <set>

#include <QTest>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/table/TabloDuzeni.h"
#include "table/Yerlesim.h"

using namespace velora;
using namespace velora::test;

namespace {

/// The layout of a table of this size in logical pixels.
TabloDuzeni Duzen(FormTablo& tablo, QSize boy, double olcek) {
    tablo.Resize(TabloIcGenisligi(boy.width() * kTwipPikseli),
                 TabloIcYuksekligi(boy.height() * kTwipPikseli));
    return {tablo, olcek};
}

/// Widths and heights of all cells.
std::pair<std::set<int>, std::set<int>> Boylar(const TabloDuzeni& duzen) {
    std::pair<std::set<int>, std::set<int>> boylar;
    for (int satir = 0; satir < kSatirSayisi; ++satir)
        for (int gun = 1; gun <= kGunSayisi; ++gun) {
            const QRect yer = duzen.Hucre(static_cast<SatirAdi>(satir), gun);
            boylar.first.insert(yer.width());
            boylar.second.insert(yer.height());
        }
    return boylar;
}

void SirayiKur(GuiFirma& firma, bool gunduzUstte) {
    firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
    firma.agac.KoyMetin(u"Settings.dll",
                        AyarMetni(30, gunduzUstte ? u"\"Gündüz / Gece\"" : u"\"Gece / Gündüz\""));
}

/// True when the middle of a place of the model lies on these cells.
bool Ortasi(const QRect& cift, const Yer& yer, double olcek = 1) {
    const QPointF orta(yer.sol + yer.genislik / 2, yer.ust + yer.yukseklik / 2);
    return cift.contains((orta / kTwipPikseli * olcek).toPoint());
}

} // namespace

class TabloDuzeniTest : public QObject {
    Q_OBJECT

  private slots:
    void cells_differ_by_one_device_pixel_at_most_data() { SiralarVeBoylar(); }
    void cells_differ_by_one_device_pixel_at_most() {
        QFETCH(bool, gunduzUstte);
        QFETCH(QSize, boy);
        QFETCH(double, olcek);
        GuiFirma firma;
        SirayiKur(firma, gunduzUstte);
        const auto [genislikler, yukseklikler] = Boylar(Duzen(firma.Model(), boy, olcek));
        QVERIFY(*genislikler.rbegin() - *genislikler.begin() <= 1);
        QVERIFY(*yukseklikler.rbegin() - *yukseklikler.begin() <= 1);
    }

    void cells_stand_side_by_side_with_one_line_between_and_fill_the_table_data() { SiralarVeBoylar(); }
    void cells_stand_side_by_side_with_one_line_between_and_fill_the_table() {
        QFETCH(bool, gunduzUstte);
        QFETCH(QSize, boy);
        QFETCH(double, olcek);
        GuiFirma firma;
        SirayiKur(firma, gunduzUstte);
        const TabloDuzeni duzen = Duzen(firma.Model(), boy, olcek);
        const auto ust = Satir(5, gunduzUstte ? GunduzGece::Gunduz : GunduzGece::Gece);
        const auto alt = Satir(5, gunduzUstte ? GunduzGece::Gece : GunduzGece::Gunduz);
        QCOMPARE(duzen.Hucre(ust, 9).x() - duzen.Hucre(ust, 8).right() - 1, duzen.Cizgi());
        QCOMPARE(duzen.Hucre(alt, 8).y() - duzen.Hucre(ust, 8).bottom() - 1, duzen.Cizgi());
        QVERIFY(duzen.Hucre(Satir(6, GunduzGece::Gece), 1).y() >
                duzen.Hucre(alt, 8).bottom() + 1 + duzen.Cizgi());
        const QSize cihaz = boy * olcek;
        const QRect son = duzen.HucreCifti(12, 31);
        QVERIFY(son.right() < cihaz.width() && son.bottom() < cihaz.height());
        QVERIFY(cihaz.width() - son.right() <= 10 * olcek);
        QVERIFY(cihaz.height() - son.bottom() <= 20 * olcek);
    }

    void todays_frame_belongs_to_todays_pair_and_lies_about_it_on_every_day_of_the_year() {
        for (const bool gunduzUstte : {true, false}) {
            GuiFirma firma;
            SirayiKur(firma, gunduzUstte);
            for (int gun = 0; gun < 365; ++gun) {
                firma.simdi =
                    std::chrono::local_days(std::chrono::year(2026) / 1 / 1) + std::chrono::days(gun);
                const TabloDuzeni duzen = Duzen(firma.Model(), {1280, 640}, 1);
                const Gun bugun = firma.program.Bugun();
                const Cerceve& cerceve = firma.Model().BuGun;
                QCOMPARE(cerceve.ay, int(unsigned(bugun.month())));
                QCOMPARE(cerceve.gun, int(unsigned(bugun.day())));
                QVERIFY(Ortasi(duzen.HucreCifti(cerceve.ay, cerceve.gun), cerceve.yer));
            }
        }
    }

    void the_rulers_frame_belongs_to_the_crossing_and_follows_each_resize_data() { SiralarVeBoylar(); }
    void the_rulers_frame_belongs_to_the_crossing_and_follows_each_resize() {
        QFETCH(bool, gunduzUstte);
        QFETCH(QSize, boy);
        QFETCH(double, olcek);
        GuiFirma firma;
        SirayiKur(firma, gunduzUstte);
        FormTablo& tablo = firma.Model();
        for (int ay = 1; ay <= kAySayisi; ++ay)
            for (const int gun : {1, 2, 17, 30, 31}) {
                Duzen(tablo, {1600, 900}, olcek);
                tablo.AyAdi_Click(ay);
                tablo.ALabel_Click(gun);
                const TabloDuzeni duzen = Duzen(tablo, boy, olcek);
                QCOMPARE(tablo.HizliSecim.ay, ay);
                QCOMPARE(tablo.HizliSecim.gun, gun);
                QVERIFY(Ortasi(duzen.HucreCifti(ay, gun), tablo.HizliSecim.yer, olcek));
            }
    }

    void each_place_is_found_again_under_its_middle() {
        GuiFirma firma;
        const double olcek = 1.5;
        const TabloDuzeni duzen = Duzen(firma.Model(), {1280, 640}, olcek);
        const auto bul = [&](const QRect& yer) { return duzen.Bul(QRectF(yer).center() / olcek); };
        for (int gun = 1; gun <= kGunSayisi; ++gun) {
            QCOMPARE(bul(duzen.GunBasligi(gun)).tur, TabloIsabeti::Tur::GunBasligi);
            QCOMPARE(bul(duzen.GunBasligi(gun)).gun, gun);
            for (int satir = 0; satir < kSatirSayisi; ++satir) {
                const auto ad = static_cast<SatirAdi>(satir);
                const TabloIsabeti beklenen{TabloIsabeti::Tur::Hucre, SatirAyi(ad), gun, ad};
                QVERIFY(bul(duzen.Hucre(ad, gun)) == beklenen);
            }
        }
        for (int ay = 1; ay <= kAySayisi; ++ay) {
            QCOMPARE(bul(duzen.AyBasligi(ay)).tur, TabloIsabeti::Tur::AyBasligi);
            QCOMPARE(bul(duzen.AyBasligi(ay)).ay, ay);
        }
    }

    void the_corner_the_gaps_between_months_and_the_outside_are_bare() {
        GuiFirma firma;
        const TabloDuzeni duzen = Duzen(firma.Model(), {1280, 640}, 1);
        QCOMPARE(duzen.Bul({20, 10}).tur, TabloIsabeti::Tur::Bos);
        QCOMPARE(duzen.Bul({-5, -5}).tur, TabloIsabeti::Tur::Bos);
        QCOMPARE(duzen.Bul({1279, 639}).tur, TabloIsabeti::Tur::Bos);
        const QRect ocak = duzen.HucreCifti(1, 4);
        QCOMPARE(duzen.Bul({ocak.center().x() + 0.5, ocak.bottom() + 2.5}).tur, TabloIsabeti::Tur::Bos);
    }

  private:
    static void SiralarVeBoylar() {
        QTest::addColumn<bool>("gunduzUstte");
        QTest::addColumn<QSize>("boy");
        QTest::addColumn<double>("olcek");
        for (const bool gunduzUstte : {true, false})
            for (const QSize boy : {QSize(992, 490), QSize(1277, 651), QSize(1912, 1008)})
                for (const double olcek : {1.0, 1.5, 2.0})
                    QTest::addRow("%s on top, %dx%d at %.2f", gunduzUstte ? "day" : "evening", boy.width(),
                                  boy.height(), olcek)
                        << gunduzUstte << boy << olcek;
    }
};

VELORA_GUI_TEST(TabloDuzeniTest)
#include "TabloDuzeniTest.moc"
