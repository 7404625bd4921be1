#include <QPainter>
#include <QTest>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloCizici.h"
#include "table/Yerlesim.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr QColor kZemin(243, 244, 245);

/// The table of a firm painted into a picture.
struct Tablo {
    explicit Tablo(GuiFirma& firma, QSize boy = {1280, 640}, double olcek = 1) {
        FormTablo& model = firma.Model();
        model.Resize(TabloIcGenisligi(boy.width() * kTwipPikseli),
                     TabloIcYuksekligi(boy.height() * kTwipPikseli));
        Ciz(firma, boy, olcek);
    }

    void Ciz(GuiFirma& firma, QSize boy = {1280, 640}, double olcek = 1) {
        duzen = TabloDuzeni(firma.Model(), olcek);
        resim = QImage(boy * olcek, QImage::Format_ARGB32_Premultiplied);
        resim.setDevicePixelRatio(olcek);
        resim.fill(Qt::magenta);
        TabloCizici cizici(QGuiApplication::font(), {.zemin = kZemin});
        QPainter boyaci(&resim);
        cizici.Ciz(boyaci, firma.Model(), duzen, resim.rect(), firma.program.FormAyarlar->Renk(16));
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
        QVERIFY(tablo.resim.pixelColor(cift.left() - 3, cift.center().y()) != mavi);
        firma.Model().BuGun.gorunur = false;
        tablo.Ciz(firma);
        QVERIFY(!tablo.Iceriyor(cift.adjusted(-4, -4, 4, 4), mavi));
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
        cizici.Ciz(boyaci, firma.Model(), tumu.duzen, bolge, firma.program.FormAyarlar->Renk(16));
        boyaci.end();
        QCOMPARE(parca, tumu.resim);
    }
};

VELORA_GUI_TEST(TabloResmiTest)
#include "TabloResmiTest.moc"
