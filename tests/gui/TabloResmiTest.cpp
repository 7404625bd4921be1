#include <QPainter>
#include <QTest>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloCizici.h"
#include "table/HucreRenkleri.h"
#include "table/Yerlesim.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr QColor kZemin(243, 244, 245);
constexpr QColor kKoyu(32, 33, 36); // edges, marks and outlines

/// The table of a firm painted into a picture.
struct Tablo {
    explicit Tablo(GuiFirma& firma, QSize boy = {1280, 640}, double olcek = 1) {
        FormTablo& model = firma.Model();
        model.Resize(TabloIcGenisligi(boy.width() * kTwipPikseli),
                     TabloIcYuksekligi(boy.height() * kTwipPikseli));
        Ciz(firma, boy, olcek);
    }

    void Ciz(GuiFirma& firma, QSize boy = {1280, 640}, double olcek = 1) {
        const TabloGoruntusu goruntu(firma.Model(), *firma.program.FormAyarlar.Tut(), olcek);
        duzen = goruntu.duzen;
        resim = QImage(boy * olcek, QImage::Format_ARGB32_Premultiplied);
        resim.setDevicePixelRatio(olcek);
        resim.fill(Qt::magenta);
        TabloCizici cizici(QGuiApplication::font(), {.zemin = kZemin});
        QPainter boyaci(&resim);
        cizici.Ciz(boyaci, goruntu, resim.rect());
    }

    /// The colour just inside the left edge of a place, where no letter stands.
    QColor Zemin(const QRect& yer) const { return resim.pixelColor(yer.x() + 1, yer.center().y()); }

    /// True when a place holds the colour anywhere, as the core of a letter's stroke does.
    bool Iceriyor(const QRect& yer, const QColor& renk) const {
        for (int y = yer.top(); y <= yer.bottom(); ++y)
            for (int x = yer.left(); x <= yer.right(); ++x)
                if (resim.pixelColor(x, y) == renk)
                    return true;
        return false;
    }

    TabloDuzeni duzen;
    QImage resim;
};

} // namespace

class TabloResmiTest : public QObject {
    Q_OBJECT

  private slots:
    void every_shown_cell_has_the_models_colour_and_no_hidden_one_is_painted_data() {
        QTest::addColumn<double>("olcek");
        QTest::addRow("100 %%") << 1.0;
        QTest::addRow("150 %%") << 1.5;
        QTest::addRow("200 %%") << 2.0;
    }
    void every_shown_cell_has_the_models_colour_and_no_hidden_one_is_painted() {
        QFETCH(double, olcek);
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"06.06.2026 - Gündüz", false);
        firma.Rezervasyon(kSalonA, u"07.06.2026 - Gece", true);
        firma.agac.KoyMetin(u"Tatiller.dll", u"\"01.05.2000\",\"İşçi Bayramı\",\"Evet\",\"Genel\"\r\n");
        const Tablo tablo(firma, {1280, 640}, olcek);
        firma.Model().BuGun.gorunur = false;
        for (int no = 0; no < kSatirSayisi; ++no)
            for (int gun = 1; gun <= kGunSayisi; ++gun) {
                const auto satir = static_cast<SatirAdi>(no);
                const Hucre& hucre = firma.Model().Gozu(satir, gun);
                if (SatirAyi(satir) == 5 && gun >= 20 && gun <= 22)
                    continue; // today's frame reaches into these
                const QColor beklenen = hucre.gorunur ? QRenk(hucre.zemin) : kZemin;
                QCOMPARE(tablo.Zemin(tablo.duzen.Hucre(satir, gun)), beklenen);
            }
        QCOMPARE(tablo.Zemin(tablo.duzen.Hucre(HaziranGunduz, 6)), QColor(255, 0, 0));
        QCOMPARE(tablo.Zemin(tablo.duzen.Hucre(HaziranGece, 7)), QColor(0, 192, 0));
        QCOMPARE(tablo.Zemin(tablo.duzen.Hucre(MayisGece, 1)), QColor(255, 192, 255));
        QCOMPARE(tablo.Zemin(tablo.duzen.Hucre(SubatGunduz, 29)), kZemin);
    }

    void captions_are_written_in_the_fore_colour_of_their_cell() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni(4, u"16711680"));
        const Tablo tablo(firma, {1912, 1008}, 2);
        const QRect hucre = tablo.duzen.Hucre(MartGunduz, 4);
        QVERIFY(tablo.Iceriyor(hucre, QColor(0, 0, 255)));
        QVERIFY(!tablo.Iceriyor(tablo.duzen.Hucre(MartGece, 4), QColor(0, 0, 255)));
    }

    void no_caption_is_cut_at_the_smallest_size_of_the_window() {
        GuiFirma firma;
        const Tablo tablo(firma, {992, 490});
        firma.Model().BuGun.gorunur = false;
        for (int no = 0; no < kSatirSayisi; ++no)
            for (int gun = 1; gun <= kGunSayisi; ++gun) {
                const auto satir = static_cast<SatirAdi>(no);
                const Hucre& hucre = firma.Model().Gozu(satir, gun);
                if (!hucre.gorunur || (SatirAyi(satir) == 5 && gun >= 20 && gun <= 22))
                    continue;
                const QRect yer = tablo.duzen.Hucre(satir, gun);
                for (int x = yer.left(); x <= yer.right(); ++x) {
                    QCOMPARE(tablo.resim.pixelColor(x, yer.top()), QRenk(hucre.zemin));
                    QCOMPARE(tablo.resim.pixelColor(x, yer.bottom()), QRenk(hucre.zemin));
                }
                for (int y = yer.top(); y <= yer.bottom(); ++y) {
                    QCOMPARE(tablo.resim.pixelColor(yer.left(), y), QRenk(hucre.zemin));
                    QCOMPARE(tablo.resim.pixelColor(yer.right(), y), QRenk(hucre.zemin));
                }
            }
    }

    void heads_take_their_colours_and_a_picked_one_the_mark() {
        GuiFirma firma;
        Tablo tablo(firma);
        QCOMPARE(tablo.Zemin(tablo.duzen.GunBasligi(7)), QColor(0, 128, 0));
        QCOMPARE(tablo.Zemin(tablo.duzen.AyBasligi(3)), QColor(0, 128, 0));
        firma.Model().ALabel_Click(7);
        firma.Model().AyAdi_Click(3);
        tablo.Ciz(firma);
        QCOMPARE(tablo.Zemin(tablo.duzen.GunBasligi(7)), QColor(255, 128, 0));
        QCOMPARE(tablo.Zemin(tablo.duzen.AyBasligi(3)), QColor(255, 128, 0));
        QCOMPARE(tablo.Zemin(tablo.duzen.GunBasligi(8)), QColor(0, 128, 0));
    }

    void a_month_that_is_off_leaves_an_empty_band() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni());
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,0,1,1,1,1,1,1,1,1,1,1\r\n");
        const Tablo tablo(firma);
        const QRect bant = tablo.duzen.AyBasligi(3).united(tablo.duzen.AyHucreleri(3));
        for (int y = bant.top(); y <= bant.bottom(); ++y)
            for (int x = bant.left(); x <= bant.right(); ++x)
                QCOMPARE(tablo.resim.pixelColor(x, y), kZemin);
        QCOMPARE(tablo.Zemin(tablo.duzen.AyBasligi(4)), QColor(0, 128, 0));
    }

    void the_pictures_show_which_of_the_two_rows_is_which() {
        for (const bool gunduzUstte : {true, false}) {
            GuiFirma firma;
            firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
            firma.agac.KoyMetin(u"Settings.dll",
                                AyarMetni(30, gunduzUstte ? u"\"Gündüz / Gece\"" : u"\"Gece / Gündüz\""));
            const Tablo tablo(firma, {1280, 640}, 2);
            // The sun has its rays above and below, the moon is empty there.
            const auto isin = [&](bool ust) {
                const QRect yer = tablo.duzen.ResimYeri(1, ust);
                return tablo.Iceriyor({yer.center().x() - 2, yer.center().y() - 16, 4, 6},
                                      QColor(255, 255, 255));
            };
            QCOMPARE(isin(true), gunduzUstte);
            QCOMPARE(isin(false), !gunduzUstte);
        }
    }

    void todays_frame_is_painted_about_its_pair_in_the_colour_of_the_settings() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni(17, u"16711680"));
        Tablo tablo(firma);
        const QRect cift = tablo.duzen.HucreCifti(5, 21);
        const QColor mavi(0, 0, 255);
        QCOMPARE(tablo.resim.pixelColor(cift.left() - 1, cift.center().y()), mavi);
        QCOMPARE(tablo.resim.pixelColor(cift.right() + 1, cift.center().y()), mavi);
        QCOMPARE(tablo.resim.pixelColor(cift.center().x(), cift.top() - 1), mavi);
        QCOMPARE(tablo.resim.pixelColor(cift.center().x(), cift.bottom() + 1), mavi);
        for (const int x : {cift.left() - 3, cift.left() + 1, cift.right() - 1, cift.right() + 3})
            QCOMPARE(tablo.resim.pixelColor(x, cift.center().y()), kKoyu);
        for (const int y : {cift.top() - 3, cift.top() + 1, cift.bottom() - 1, cift.bottom() + 3})
            QCOMPARE(tablo.resim.pixelColor(cift.center().x(), y), kKoyu);
        firma.Model().BuGun.gorunur = false;
        tablo.Ciz(firma);
        QVERIFY(!tablo.Iceriyor(cift.adjusted(-4, -4, 4, 4), mavi));
    }

    void the_rulers_frame_is_painted_about_the_crossing() {
        GuiFirma firma;
        firma.Model().AyAdi_Click(10);
        firma.Model().ALabel_Click(17);
        Tablo tablo(firma);
        const QRect cift = tablo.duzen.HucreCifti(10, 17);
        const QColor turuncu(255, 128, 0);
        for (const int x : {cift.left() - 1, cift.right() + 1})
            QCOMPARE(tablo.resim.pixelColor(x, cift.center().y()), turuncu);
        for (const int y : {cift.top() - 1, cift.bottom() + 1})
            QCOMPARE(tablo.resim.pixelColor(cift.center().x(), y), turuncu);
        firma.Model().CetvelTimer_Tick();
        tablo.Ciz(firma);
        QVERIFY(!tablo.Iceriyor(cift.adjusted(-4, -4, 4, 4), turuncu));
    }

    void a_pre_reservation_carries_a_light_mark_with_dark_edges_and_nothing_else_does() {
        for (const double olcek : {1.0, 2.0}) {
            GuiFirma firma;
            firma.Rezervasyon(kSalonA, u"06.06.2026 - Gündüz", true);
            firma.Rezervasyon(kSalonA, u"07.06.2026 - Gece", true);
            firma.Rezervasyon(kSalonA, u"06.06.2026 - Gece", false);
            const Tablo tablo(firma, {1280, 640}, olcek);
            const auto isaretli = [&](SatirAdi satir, int gun) {
                const QRect yer = tablo.duzen.Hucre(satir, gun);
                const int cizgi = tablo.duzen.Cizgi();
                return tablo.resim.pixelColor(yer.right(), yer.top()) == kKoyu &&
                       tablo.resim.pixelColor(yer.right() - cizgi, yer.top() + cizgi) == QColor(Qt::white);
            };
            for (int no = 0; no < kSatirSayisi; ++no)
                for (int gun = 1; gun <= kGunSayisi; ++gun) {
                    const auto satir = static_cast<SatirAdi>(no);
                    const bool beklenen =
                        (satir == HaziranGunduz && gun == 6) || (satir == HaziranGece && gun == 7);
                    QCOMPARE(isaretli(satir, gun), beklenen);
                }
        }
    }

    void the_mark_goes_by_the_colour_that_is_painted() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"06.06.2026 - Gündüz", true);
        FormTablo& model = firma.Model();
        const auto ayarlar = firma.program.FormAyarlar.Tut();
        const auto isaretli = [&](SatirAdi satir, int gun) {
            return TabloGoruntusu(model, *ayarlar, 1).Gozu(satir, gun).on;
        };
        QVERIFY(isaretli(HaziranGunduz, 6));
        model.Gozu(HaziranGunduz, 6).zemin = ayarlar->Renk(RenkNo::GecmisZemini);
        QVERIFY(!isaretli(HaziranGunduz, 6));
        model.Gozu(EkimGece, 9).zemin = ayarlar->Renk(RenkNo::GeceOnZemini);
        QVERIFY(isaretli(EkimGece, 9));
        // One colour for two states tells nothing of either.
        ayarlar->renkler[RenkNo::GeceKesinZemini] = ayarlar->Renk(RenkNo::GeceOnZemini);
        QVERIFY(!isaretli(EkimGece, 9));
    }

    void light_captions_on_a_weak_ground_have_a_dark_outline_and_others_none() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"08.06.2026 - Gündüz", false); // white on red, 4.0
        firma.Rezervasyon(kSalonA, u"08.06.2026 - Gece", false);   // white on dark red, 6.5
        const Tablo tablo(firma, {1912, 1008});
        const auto konturlu = [&](const QRect& yer) {
            return tablo.Iceriyor(yer.adjusted(1, 1, -1, -1), kKoyu);
        };
        QVERIFY(konturlu(tablo.duzen.Hucre(HaziranGunduz, 8)));
        QVERIFY(tablo.Iceriyor(tablo.duzen.Hucre(HaziranGunduz, 8), Qt::white));
        QVERIFY(!konturlu(tablo.duzen.Hucre(HaziranGece, 8)));
        QVERIFY(!konturlu(tablo.duzen.Hucre(HaziranGece, 9))); // black on white
        QVERIFY(!konturlu(tablo.duzen.GunBasligi(28)));        // white on green, 5.1
    }

    void painting_a_part_gives_the_same_pixels_as_painting_all() {
        GuiFirma firma;
        const Tablo tumu(firma);
        const QRect bolge(300, 200, 333, 177);
        QImage parca = tumu.resim;
        QPainter boyaci(&parca);
        boyaci.setClipRect(bolge);
        boyaci.fillRect(bolge, Qt::magenta);
        TabloCizici cizici(QGuiApplication::font(), {.zemin = kZemin});
        cizici.Ciz(boyaci, {firma.Model(), *firma.program.FormAyarlar.Tut(), 1}, bolge);
        boyaci.end();
        QCOMPARE(parca, tumu.resim);
    }
};

VELORA_GUI_TEST(TabloResmiTest)
#include "TabloResmiTest.moc"
