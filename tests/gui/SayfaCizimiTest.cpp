#include <cmath>
#include <optional>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "gui/GuiProgram.h"
#include "qt/SayfaCizimi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr double kMasaustu = 96 / 25.4; // device pixels of a millimetre
constexpr double kYazici = 600 / 25.4;

/// A strip from the top of a page as it comes out at a scale.
QImage Serit(const SayfaParcasi& parca, double olcek) {
    QImage resim(static_cast<int>(std::ceil(kSayfaEni * olcek)),
                 static_cast<int>(std::ceil((parca.yer.Alt() + 5) * olcek)), QImage::Format_RGB32);
    resim.fill(Qt::white);
    QPainter boyaci(&resim);
    SayfayiCiz(boyaci, {.parcalar = {parca}}, olcek);
    return resim;
}

/// How black a column of a picture is.
double SutunKaralik(const QImage& resim, int x) {
    double kara = 0;
    for (int y = 0; y < resim.height(); ++y)
        kara += 255 - qGray(resim.pixel(x, y));
    return kara;
}

struct Uclar {
    double ilk = 0;
    double son = 0;
};

/// The middles of the leftmost and of the rightmost stroke, in millimetres, finer than a pixel.
Uclar UcCizgiler(const QImage& resim, double olcek) {
    const auto orta = [&](int bas, int adim) {
        int x = bas;
        while (x >= 0 && x < resim.width() && SutunKaralik(resim, x) == 0)
            x += adim;
        double agirlik = 0;
        double toplam = 0;
        for (; x >= 0 && x < resim.width() && SutunKaralik(resim, x) > 0; x += adim) {
            agirlik += SutunKaralik(resim, x) * (x + 0.5);
            toplam += SutunKaralik(resim, x);
        }
        return toplam > 0 ? agirlik / toplam / olcek : -1;
    };
    return {orta(0, 1), orta(resim.width() - 1, -1)};
}

SayfaParcasi TekSatir(MetinBakis metin, const SayfaYazisi& yazi, Hiza hiza = Hiza::Sol) {
    return {.yer = {20, 5, 170, 8}, .yazi = yazi, .hiza = hiza, .satirlar = {Metin(metin)}};
}

// Pairs that stand nearer, letters of the language, punctuation, digits.
constexpr MetinBakis kMetinler[]{u"Gündüz ışığı ŞĞİ öç",
                                 u"AVATAR, Yılmaz. To Va Te P. Wo 1.117 TL",
                                 u"fi fl ffi “tırnak” – ’kesme’ …",
                                 u"4.500,75 TL; İş bu emre muharrer senedim",
                                 u"sekme\tile\x01 araya giren",
                                 u"語 ve Ж başka yazılar"};

} // namespace

class SayfaCizimiTest : public QObject {
    Q_OBJECT

  private slots:
    void a_text_is_painted_as_wide_as_it_was_measured_in_each_size_and_weight_at_each_scale() {
        const YaziOlcer olcer = SayfaOlcer();
        for (const double olcek : {kMasaustu, 2 * kMasaustu, kYazici})
            for (const SayfaYazisi& yazi :
                 {SayfaYazisi{7, false}, SayfaYazisi{10, true}, SayfaYazisi{11.5, false}, {18, true}})
                for (const MetinBakis metin : kMetinler) {
                    const Metin bas = u"| " + Metin(metin) + u" ";
                    const Uclar uclar = UcCizgiler(Serit(TekSatir(bas + u"|", yazi), olcek), olcek);
                    const double fark = std::abs(uclar.son - uclar.ilk - olcer(bas, yazi));
                    QVERIFY2(fark < 0.1, qPrintable(QStringLiteral("%1 at %2 of %3: %4 mm")
                                                        .arg(QString::fromStdU16String(bas))
                                                        .arg(olcek)
                                                        .arg(yazi.punto)
                                                        .arg(fark)));
                }
    }

    void what_was_measured_before_is_measured_alike_and_a_longer_text_is_no_narrower() {
        const YaziOlcer taze = SayfaOlcer();
        const YaziOlcer kullanilmis = SayfaOlcer();
        for (const MetinBakis metin : kMetinler) {
            double onceki = 0;
            for (std::size_t boy = 1; boy <= metin.size(); ++boy) {
                const double en = kullanilmis(metin.substr(0, boy), {9, false});
                QVERIFY(en > onceki - 0.3); // a pair may stand nearer
                onceki = en;
            }
            QCOMPARE(kullanilmis(metin, {9, false}), taze(metin, {9, false}));
        }
        QVERIFY(taze(u"Ağustos", {9, true}) > taze(u"Ağustos", {9, false}));
        QCOMPARE(taze(u"", {9, false}), 0.0);
        QCOMPARE(taze(u"bir\tiki\x07üç\u00ADdört", {9, false}), taze(u"bir iki üç-dört", {9, false}));
        // A long dash is as wide as its letters are high, and 72 points are an inch.
        QVERIFY(std::abs(taze(u"———", {24, false}) - 25.4) < 0.1);
    }

    void a_line_stands_at_its_side_of_its_place() {
        const YaziOlcer olcer = SayfaOlcer();
        const SayfaYazisi yazi{12, false};
        const double en = olcer(u"|", yazi);
        const std::pair<Hiza, double> yerler[]{
            {Hiza::Sol, 20 + en / 2}, {Hiza::Orta, 105}, {Hiza::Sag, 190 - en / 2}};
        for (const auto& [hiza, x] : yerler) {
            const Uclar uclar = UcCizgiler(Serit(TekSatir(u"|", yazi, hiza), kYazici), kYazici);
            QVERIFY2(std::abs(uclar.ilk - x) < 0.1, qPrintable(QString::number(uclar.ilk)));
        }
    }

    void lines_stand_one_line_apart_and_within_their_place() {
        SayfaParcasi parca = TekSatir(u"ÂĞj", {14, false});
        parca.satirlar = {u"ÂĞjgp", u"", u"ÂĞjgp"};
        parca.yer.boy = 3 * SatirBoyu(parca.yazi);
        const QImage resim = Serit(parca, kYazici);
        std::vector<int> dolu;
        for (int y = 0; y < resim.height(); ++y)
            for (int x = 0; x < resim.width(); ++x)
                if (qGray(resim.pixel(x, y)) < 128) {
                    dolu.push_back(y);
                    break;
                }
        const auto ikinci = std::ranges::find_if(
            dolu, [&](int y) { return y > dolu.front() + SatirBoyu(parca.yazi) * kYazici; });
        QVERIFY(ikinci != dolu.end());
        QVERIFY(std::abs(*ikinci - dolu.front() - 2 * SatirBoyu(parca.yazi) * kYazici) <= 1);
        QVERIFY(dolu.front() >= parca.yer.ust * kYazici);
        QVERIFY(dolu.back() <= parca.yer.Alt() * kYazici);
    }

    void a_ground_a_frame_and_letters_have_their_colours_with_red_in_the_low_byte() {
        SayfaParcasi parca = TekSatir(u"|||", {18, true});
        parca.renk = 0xC00000;
        parca.zemin = 0x0040F0;
        const QImage resim = Serit(parca, kYazici);
        const auto nokta = [&](double x, double y) {
            return resim.pixel(static_cast<int>(x * kYazici), static_cast<int>(y * kYazici)) & 0xFFFFFFU;
        };
        QCOMPARE(nokta(20.1, 5.1), 0xF04000U);
        QCOMPARE(nokta(189.9, 12.9), 0xF04000U);
        QCOMPARE(nokta(19.8, 9), 0xFFFFFFU);
        QCOMPARE(nokta(190.2, 9), 0xFFFFFFU);
        QCOMPARE(nokta(100, 4.8), 0xFFFFFFU);
        QCOMPARE(nokta(100, 13.2), 0xFFFFFFU);
        bool mavi = false;
        for (int x = 0; x < resim.width(); ++x)
            mavi = mavi || (resim.pixel(x, static_cast<int>(9 * kYazici)) & 0xFFFFFFU) == 0x0000C0U;
        QVERIFY(mavi);

        const SayfaParcasi cerceve{
            .tur = ParcaTuru::Cerceve, .yer = {30, 10, 60, 20}, .renk = 0x0000FF, .zemin = {}};
        const QImage cerceveli = Serit(cerceve, kYazici);
        const auto cizgi = [&](double x, double y) {
            return cerceveli.pixel(static_cast<int>(x * kYazici), static_cast<int>(y * kYazici)) & 0xFFFFFFU;
        };
        for (const auto& [x, y] : {std::pair{30.0, 20.0}, {90.0, 20.0}, {60.0, 10.0}, {60.0, 30.0}})
            QCOMPARE(cizgi(x, y), 0xFF0000U);
        QCOMPARE(cizgi(60, 20), 0xFFFFFFU);
    }

    void grounds_side_by_side_let_no_paper_through() {
        constexpr double kHucre = 7.37;
        Sayfa sayfa;
        for (int i = 0; i < 20; ++i)
            sayfa.parcalar.push_back({.yer = {10 + i * kHucre, 10, kHucre, 9}, .zemin = 0x336699});
        for (const double olcek : {2.63, kMasaustu, 6.1}) {
            QImage resim(static_cast<int>(kSayfaEni * olcek), static_cast<int>(30 * olcek),
                         QImage::Format_RGB32);
            resim.fill(Qt::white);
            {
                QPainter boyaci(&resim);
                SayfayiCiz(boyaci, sayfa, olcek);
            }
            for (double x = 10.5; x < 10 + 20 * kHucre - 0.5; x += 0.1)
                QCOMPARE(resim.pixel(static_cast<int>(x * olcek), static_cast<int>(14 * olcek)) & 0xFFFFFFU,
                         0x996633U);
        }
    }

    void texts_are_read_in_the_order_of_the_page_without_what_is_there_to_write_on() {
        const SayfaParcasi etiket{.yer = {20, 30, 20, 5}, .satirlar = {u"Cep "}};
        const SayfaParcasi iki{.yer = {40, 30, 3, 5}, .satirlar = {u":"}};
        const SayfaParcasi deger{.yer = {43, 30, 20, 5}, .satirlar = {u"0532 2"}};
        const SayfaParcasi cizgi{.yer = {20, 40, 20, 5}, .satirlar = {u"-----"}};
        const SayfaParcasi madde{.yer = {20, 50, 20, 9}, .satirlar = {u"1 - Kira", u"peşin."}};
        QCOMPARE(OkunanMetin({{.parcalar = {etiket, iki, deger, cizgi}}, {.parcalar = {madde}}}),
                 Metin(u"Cep : 0532 2\n1 - Kira peşin."));
    }
};

VELORA_GUI_TEST(SayfaCizimiTest)
#include "SayfaCizimiTest.moc"
