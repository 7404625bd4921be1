#include "screen/Sayfa.h"

#include "destek/Sayfalar.h"
#include "documents/SayfaAkisi.h"
#include "storage/Sayi.h"

namespace velora::test {

namespace {

using Satirlar = std::vector<Metin>;

/// The size at which a letter of `EsitEnli` is a millimetre wide.
constexpr SayfaYazisi kMilimetrelik{2 * 72 / 25.4, false};

Satirlar Bol(MetinBakis metin, double en) {
    return SatirlaraBol(metin, en, kMilimetrelik, EsitEnli);
}

} // namespace

TEST(SatirlaraBol, Breaks_at_blanks_and_never_leaves_one_at_an_edge) {
    EXPECT_EQ(Bol(u"bir iki üç", 100), (Satirlar{u"bir iki üç"}));
    EXPECT_EQ(Bol(u"bir iki üç", 7), (Satirlar{u"bir iki", u"üç"}));
    EXPECT_EQ(Bol(u"bir iki üç", 6), (Satirlar{u"bir", u"iki üç"}));
    EXPECT_EQ(Bol(u"bir   iki", 4), (Satirlar{u"bir", u"iki"}));
}

TEST(SatirlaraBol, A_word_wider_than_the_line_is_broken_within) {
    EXPECT_EQ(Bol(u"ab 123456789 cd", 4), (Satirlar{u"ab", u"1234", u"5678", u"9 cd"}));
    EXPECT_EQ(Bol(u"abc", 0.5), (Satirlar{u"a", u"b", u"c"})) << "no line is too narrow to go on";
}

TEST(SatirlaraBol, A_line_holds_as_many_letters_as_fit_however_many_these_are) {
    const Metin metin(1000, u'a');
    for (const std::size_t en : {1U, 127U, 128U, 129U, 255U, 256U, 257U, 300U, 999U, 1000U, 1500U}) {
        const Satirlar satirlar = Bol(metin, static_cast<double>(en));
        EXPECT_EQ(satirlar.size(), (metin.size() + en - 1) / en) << en;
        EXPECT_EQ(satirlar.front().size(), std::min(en, metin.size()));
        Metin hepsi;
        for (const Metin& satir : satirlar)
            hepsi += satir;
        EXPECT_EQ(hepsi, metin);
    }
}

TEST(SatirlaraBol, Keeps_its_line_ends_of_any_kind_and_the_blanks_before_a_line) {
    EXPECT_EQ(Bol(u"a\r\n\r\n  b\nc\rd", 9), (Satirlar{u"a", u"", u"  b", u"c", u"d"}));
    EXPECT_EQ(Bol(u"  abcdef", 5), (Satirlar{u"  abc", u"def"}));
    EXPECT_EQ(Bol(u"", 9), Satirlar{});
    EXPECT_EQ(Bol(u"a\r\n", 9), (Satirlar{u"a"}));
}

TEST(SatirlaraBol, Stops_behind_the_first_line_too_many_and_measures_nothing_beyond_it) {
    Metin paragraf;
    Metin satirlar;
    for (int i = 0; i < 5000; ++i) {
        paragraf += u"söz" + SayiMetni(i) + u" ";
        satirlar += u"söz" + SayiMetni(i) + u"\n";
    }
    for (const Metin& metin : {paragraf, satirlar}) {
        int olculen = 0;
        const YaziOlcer say = [&olculen](MetinBakis parca, const SayfaYazisi& yazi) {
            ++olculen;
            return EsitEnli(parca, yazi);
        };
        EXPECT_EQ(SatirlaraBol(metin, 5, kMilimetrelik, say, 3),
                  (Satirlar{u"söz0", u"söz1", u"söz2", u"söz3"}));
        EXPECT_LE(olculen, 4 * 10) << "each line is looked for by halves";
    }
}

TEST(SatirlaraBol, Stops_behind_the_first_line_too_many_also_where_the_others_are_empty) {
    EXPECT_EQ(SatirlaraBol(u"a\n\nb\n\n\n\nc", 5, kMilimetrelik, EsitEnli, 2), (Satirlar{u"a", u"", u"b"}));
    EXPECT_EQ(SatirlaraBol(u"a\n\nb\n\n\n\nc", 5, kMilimetrelik, EsitEnli, 3),
              (Satirlar{u"a", u"", u"b", u""}));
}

TEST(SayfaAkisi, A_size_that_is_too_large_is_known_by_its_first_lines) {
    Metin metin;
    for (int i = 0; i < 2000; ++i)
        metin += u"söz ";
    const auto olculen = [&metin](double enKucuk) {
        int sayi = 0;
        const SayfaAkisi akis([&sayi](MetinBakis parca, const SayfaYazisi& yazi) {
            ++sayi;
            return EsitEnli(parca, yazi);
        });
        akis.Parca(u"a", metin, {0, 0, 50, SatirBoyu({12, false})}, {{12, false}, Hiza::Sol, enKucuk});
        return sayi;
    };
    // Nine sizes, the last of them whole.
    EXPECT_LT(olculen(8), olculen(12) * 2);
}

TEST(SayfaAkisi, A_text_gets_smaller_until_it_fits_and_then_its_place_grows) {
    const SayfaAkisi akis(EsitEnli);
    const AlanBicimi bicim{{12, true}, Hiza::Sag, 8};
    const SayfaYeri yer{3, 4, 40, SatirBoyu(bicim.yazi)};
    EXPECT_EQ(akis.Parca(u"a", Metin(15, u'x'), yer, bicim).yazi, (SayfaYazisi{12, true}));
    const SayfaParcasi kuculen = akis.Parca(u"a", Metin(18, u'x'), yer, bicim);
    EXPECT_EQ(kuculen.yazi, (SayfaYazisi{10, true}));
    EXPECT_EQ(kuculen.yer, yer);
    EXPECT_EQ(kuculen.hiza, Hiza::Sag);
    const SayfaParcasi buyuyen = akis.Parca(u"a", Metin(50, u'x'), yer, bicim);
    EXPECT_EQ(buyuyen.yazi, (SayfaYazisi{8, true}));
    EXPECT_EQ(buyuyen.satirlar, (Satirlar{Metin(23, u'x'), Metin(23, u'x'), Metin(4, u'x')}));
    EXPECT_DOUBLE_EQ(buyuyen.yer.boy, 3 * SatirBoyu({8, true}));
}

TEST(SayfaAkisi, What_does_not_fit_under_the_rest_begins_a_page_and_a_long_text_goes_over_pages) {
    SayfaAkisi akis(EsitEnli);
    const auto kutu = [](double boy) {
        return std::vector<SayfaParcasi>{{ParcaTuru::Cerceve, u"k", {10, 2, 20, boy - 2}}};
    };
    akis.Koy(kutu(200));
    akis.Bosluk(7);
    akis.Koy(kutu(60)); // up to the margin
    akis.Koy(kutu(9));
    Metin yazi;
    for (int satir = 1; satir <= 70; ++satir)
        yazi += SayiMetni(satir) + u"\r\n";
    akis.Akit(u"y", yazi, {10, false});
    const auto& sayfalar = akis.Sayfalar();
    ASSERT_EQ(sayfalar.size(), 3U);
    EXPECT_EQ(sayfalar[0].parcalar.at(0).yer, (SayfaYeri{25, 17, 20, 198}));
    EXPECT_EQ(sayfalar[0].parcalar.at(1).yer, (SayfaYeri{25, 224, 20, 58}));
    EXPECT_EQ(sayfalar[1].parcalar.at(0).yer.ust, 17);
    EXPECT_EQ(sayfalar[1].parcalar.at(1).yer.ust, 24);
    EXPECT_EQ(sayfalar[1].parcalar.at(1).satirlar.size(), 60U) << "258 mm in lines of 4.23 mm";
    EXPECT_EQ(sayfalar[2].parcalar.at(0).satirlar.front(), u"61");
    SayfalarDuzgunOlmali(sayfalar);
}

TEST(SayfaAkisi, A_text_that_flows_has_what_stands_beside_it_on_the_page_of_its_first_line) {
    SayfaAkisi akis(EsitEnli, 0, 40);
    akis.Bosluk(297 - 2 * 40 - 3); // no line fits any more
    const SayfaParcasi baslik{ParcaTuru::Yazi, u"b", {0, 0, 30, 9}, {12, true}, Hiza::Sol, {u"Ad"}};
    SayfaParcasi metin{ParcaTuru::Yazi, u"m", {50, 0, 60, 0}, {10, false}, Hiza::Sol, {}};
    for (int satir = 1; satir <= 60; ++satir)
        metin.satirlar.push_back(SayiMetni(satir));
    akis.Akit(metin, {baslik});
    const auto& sayfalar = akis.Sayfalar();
    ASSERT_EQ(sayfalar.size(), 2U) << "the empty page is filled, not left behind";
    ASSERT_EQ(sayfalar[0].parcalar.size(), 2U);
    EXPECT_EQ(sayfalar[0].parcalar[0].yer, (SayfaYeri{40, 40, 30, 9}));
    EXPECT_EQ(sayfalar[0].parcalar[1].yer.sol, 90);
    EXPECT_EQ(sayfalar[0].parcalar[1].yer.ust, 40);
    EXPECT_EQ(sayfalar[0].parcalar[1].satirlar.size(), 51U) << "217 mm in lines of 4.23 mm";
    ASSERT_EQ(sayfalar[1].parcalar.size(), 1U);
    EXPECT_EQ(sayfalar[1].parcalar[0].satirlar.front(), u"52");
    SayfalarDuzgunOlmali(sayfalar, 40);
}

} // namespace velora::test
