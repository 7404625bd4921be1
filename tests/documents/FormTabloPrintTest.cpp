// Printing the year table, and what its page holds.
#include "documents/FormTabloPrint.h"

#include <algorithm>

#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "destek/Sayfalar.h"
#include "documents/Karsitlik.h"
#include "documents/TabloSayfasi.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

using namespace std::chrono_literals;

constexpr auto kUstteGunduz = GunduzGece::Gunduz;

} // namespace

/// A table in which no two states, rows and heads have the same colour: firm on 20 June by day, provisional
/// on 21 June in the evening.
class FormTabloPrintTest : public ::testing::Test {
  protected:
    FormTabloPrintTest() {
        baski->Unvan.baslik = u"Gül Düğün Salonları";
        baski->Salon.baslik = u"Nergis Salonu - 2013 Yılı Rezervasyon Tablosu";
        baski->Label1.baslik = u"Not : Lütfen Salonumuzu 0282 1 veya 0532 2 nolu numaramızdan arayınız.";
        baski->Tarih.baslik = u"Tarih : 09.07.2012 - Saat : 08:04";
        baski->Label2.baslik = u"Rezervasyon: gul.test";
        baski->isAdi = u"Tablo";
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            baski->ALabel[gun] = {.baslik = SayiMetni(gun), .zemin = 32768, .yazi = 0xFFFFF0};
        for (int ay = 1; ay <= kAySayisi; ++ay) {
            baski->AyAdi[ay] = {.baslik = u"AY" + SayiMetni(ay), .yazi = 0xFFFFF1};
            baski->AyZemin[ay].zemin = 32769;
            baski->gunduzUstte[ay] = true;
            for (const auto dilim : {GunduzGece::Gunduz, GunduzGece::Gece})
                for (int gun = 1; gun <= kGunSayisi; ++gun)
                    baski->Gozu(Satir(ay, dilim), gun) = {gun % 2 == 0 ? u"Cmt" : u"Paz", true,
                                                          dilim == kUstteGunduz ? 8454143 : 15461355,
                                                          dilim == kUstteGunduz ? 1 : 2};
        }
        baski->Gozu(HaziranGunduz, 20) = {u"Per", true, 255, kBeyaz, BaskiIsareti::Kesin};
        baski->Gozu(HaziranGece, 21) = {u"Cum", true, 65280, kBeyaz, BaskiIsareti::On};
        baski->aciklamalar = {{{BaskiIsareti::Kesin, u"Kesin rezervasyon", {255, 192}},
                               {BaskiIsareti::On, u"Ön rezervasyon", {65280, 49152}}}};
    }

    Sayfa Dizilen() const { return baski->Sayfalar(EsitEnli).at(0); }
    std::vector<SayfaParcasi> Parcalar(MetinBakis ad) const {
        std::vector<SayfaParcasi> bulunanlar;
        for (const SayfaParcasi& parca : Dizilen().parcalar)
            if (parca.ad == ad)
                bulunanlar.push_back(parca);
        return bulunanlar;
    }
    Metin Yazisi(MetinBakis ad) const { return BosluksuzMetin({Dizilen()}, ad); }
    void DuzgunOlmali() const { SayfalarDuzgunOlmali({Dizilen()}, kTabloKenari); }
    /// Prints; `baslarken` is what happens while the system takes it.
    void Yazdir(bool basilir, const std::function<void()>& baslarken = {}) {
        ortam.Bekle(BeklenenBaski{.isAdi = u"Tablo", .basilir = basilir, .is = baslarken});
        VELORA_BAS(program.FormTabloPrint, Command1);
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun(2012y / 6 / 15)};
    Program program{ortam.Ver(), agac.Kok()};
    std::shared_ptr<FormTabloPrint> baski = program.FormTabloPrint.Tut();
};

TEST_F(FormTabloPrintTest, Printing_hides_the_commands_lets_events_run_before_and_behind_and_closes_it) {
    std::vector<MetinBakis> sira;
    ortam.olayda = [&](int) {
        EXPECT_FALSE(baski->Command1.gorunur || baski->Command2.gorunur);
        EXPECT_TRUE(program.FormTabloPrint.Yuklu());
        sira.emplace_back(u"olay");
    };
    Yazdir(true, [&] { sira.emplace_back(u"baski"); });
    EXPECT_EQ(sira, (std::vector<MetinBakis>{u"olay", u"baski", u"olay"}));
    EXPECT_FALSE(program.FormTabloPrint.Yuklu());
    ASSERT_EQ(ortam.basilanlar.size(), 1U);
    EXPECT_EQ(SayfalarMetni(ortam.basilanlar[0].sayfalar), SayfalarMetni(baski->Sayfalar(EsitEnli)));
}

TEST_F(FormTabloPrintTest,
       Without_a_printer_it_stays_open_without_its_two_buttons_and_goes_by_its_cross_on_purpose) {
    Yazdir(false);
    EXPECT_EQ(ortam.olaySayisi, 1) << "it ends there";
    ASSERT_TRUE(program.FormTabloPrint.Yuklu());
    EXPECT_FALSE(baski->Command1.gorunur || baski->Command2.gorunur);
    ortam.Bekle(BeklenenKayitYeri{.ad = u"Tablo.pdf", .secilen = "/tmp/t.pdf"});
    VELORA_BAS(program.FormTabloPrint, Pdf);
    EXPECT_EQ(ortam.pdfler.size(), 1U) << "the file needs no printer";
    program.FormTabloPrint->Command2_Click(); // what the cross does
    EXPECT_FALSE(program.FormTabloPrint.Yuklu());
}

TEST_F(FormTabloPrintTest, Closed_before_the_page_goes_out_nothing_is_printed) {
    ortam.olayda = [&](int) { program.FormTabloPrint.Bosalt(); };
    VELORA_BAS(program.FormTabloPrint, Command1);
    EXPECT_FALSE(program.FormTabloPrint.Yuklu());
    EXPECT_TRUE(ortam.basilanlar.empty());
}

TEST_F(FormTabloPrintTest, Closed_while_the_printer_takes_it_nothing_comes_back) {
    Yazdir(true, [&] { program.FormTabloPrint.Bosalt(); });
    EXPECT_FALSE(program.FormTabloPrint.Yuklu());
}

TEST_F(FormTabloPrintTest, Cancel_prints_nothing) {
    VELORA_BAS(program.FormTabloPrint, Command2);
    EXPECT_FALSE(program.FormTabloPrint.Yuklu());
}

TEST_F(FormTabloPrintTest, It_is_one_sheet_on_its_side_that_the_table_fills) {
    DuzgunOlmali();
    EXPECT_EQ(baski->Sayfalar(EsitEnli).size(), 1U);
    const Sayfa sayfa = Dizilen();
    EXPECT_EQ(sayfa.yon, Yon::Yatay);
    double sag = 0;
    double alt = 0;
    for (const SayfaParcasi& parca : sayfa.parcalar) {
        sag = std::max(sag, parca.yer.Sag());
        alt = std::max(alt, parca.yer.Alt());
    }
    EXPECT_NEAR(sag, 297 - kTabloKenari, 0.01);
    EXPECT_NEAR(alt, 210 - kTabloKenari, 0.01);
    EXPECT_GT(Parcalar(u"05.01 - Gündüz").at(0).yer.boy, 5.5);
}

TEST_F(FormTabloPrintTest, Firm_hall_notes_and_the_line_stand_on_it_letter_by_letter) {
    for (const auto& [etiket, ad] : {std::pair{&baski->Unvan, u"Unvan"},
                                     {&baski->Salon, u"Salon"},
                                     {&baski->Label1, u"Label1"},
                                     {&baski->Tarih, u"Tarih"},
                                     {&baski->Label2, u"Label2"}}) {
        ASSERT_EQ(Parcalar(ad).size(), 1U);
        EXPECT_EQ(Parcalar(ad)[0].satirlar, std::vector<Metin>{etiket->baslik});
    }
    baski->Label2.baslik.clear();
    EXPECT_TRUE(Parcalar(u"Label2").empty()) << "no line, nothing at all";
}

TEST_F(FormTabloPrintTest, Heads_and_months_have_their_texts_and_colours) {
    ASSERT_EQ(Parcalar(u"ALabel").size(), 31U);
    EXPECT_EQ(Parcalar(u"ALabel")[30].satirlar, std::vector<Metin>{u"31"});
    EXPECT_EQ(Parcalar(u"ALabel")[30].renk, 0xFFFFF0);
    EXPECT_EQ(Parcalar(u"Gunler")[30].zemin, 32768);
    EXPECT_EQ(Parcalar(u"AyAdi")[11].satirlar, std::vector<Metin>{u"AY12"});
    EXPECT_EQ(Parcalar(u"AyAdi")[11].renk, 0xFFFFF1);
    EXPECT_EQ(Parcalar(u"AyZemin")[11].zemin, 32769);
}

TEST_F(FormTabloPrintTest, A_free_cell_has_ground_and_weekday_a_taken_one_a_mark_too) {
    const auto bos = Parcalar(u"19.06 - Gündüz");
    ASSERT_EQ(bos.size(), 2U);
    EXPECT_EQ(bos[0].tur, ParcaTuru::Cerceve);
    EXPECT_EQ(bos[0].zemin, 8454143);
    EXPECT_EQ(bos[1].satirlar, std::vector<Metin>{u"Paz"});
    EXPECT_EQ(bos[1].renk, 1);
    const auto kesin = Parcalar(u"20.06 - Gündüz");
    ASSERT_EQ(kesin.size(), 3U);
    EXPECT_EQ(kesin[0].zemin, 255);
    EXPECT_EQ(kesin[1].satirlar, std::vector<Metin>{u"Per"});
    EXPECT_EQ(kesin[1].renk, kBeyaz);
    EXPECT_EQ(kesin[2].satirlar, std::vector<Metin>{u"●"});
    EXPECT_EQ(kesin[2].renk, kBeyaz) << "on red";
    const auto on = Parcalar(u"21.06 - Gece");
    ASSERT_EQ(on.size(), 4U);
    EXPECT_EQ(on[0].zemin, 65280);
    EXPECT_EQ(on[2].satirlar, std::vector<Metin>{u"Cum"});
    EXPECT_EQ(on[3].satirlar, std::vector<Metin>{u"○"});
    EXPECT_EQ(on[3].renk, 0) << "on light green";
}

TEST_F(FormTabloPrintTest, The_legend_tells_both_marks_as_they_stand_in_the_table) {
    EXPECT_EQ(Yazisi(u"Aciklama"), u"●●Kesinrezervasyon○○Önrezervasyon");
    const auto parcalar = Parcalar(u"Aciklama");
    EXPECT_EQ(parcalar[0].zemin, 255);
    EXPECT_EQ(parcalar[2].zemin, 192);
    EXPECT_EQ(parcalar[5].zemin, 65280);
    EXPECT_EQ(parcalar[7].zemin, 49152);
}

TEST_F(FormTabloPrintTest, Each_row_tells_its_slot_and_a_month_may_have_the_evening_on_top) {
    baski->gunduzUstte[5] = false;
    const auto dilimler = Parcalar(u"GunduzGece");
    ASSERT_EQ(dilimler.size(), 24U);
    EXPECT_EQ(dilimler[6].satirlar, std::vector<Metin>{u"Gündüz"});
    EXPECT_EQ(dilimler[8].satirlar, std::vector<Metin>{u"Gece"});
    EXPECT_EQ(dilimler[9].satirlar, std::vector<Metin>{u"Gündüz"});
    const auto ust = [&](MetinBakis ad) { return Parcalar(ad).at(0).yer.ust; };
    EXPECT_LT(ust(u"05.04 - Gündüz"), ust(u"05.04 - Gece"));
    EXPECT_LT(ust(u"05.05 - Gece"), ust(u"05.05 - Gündüz"));
    EXPECT_LT(ust(u"05.05 - Gündüz"), ust(u"05.06 - Gündüz"));
    EXPECT_DOUBLE_EQ(ust(u"05.05 - Gece"), dilimler[8].yer.ust + dilimler[8].yer.boy / 2 -
                                               Parcalar(u"05.05 - Gece").at(0).yer.boy / 2);
    DuzgunOlmali();
}

TEST_F(FormTabloPrintTest, A_hidden_month_leaves_its_place_empty) {
    const auto once = Parcalar(u"09.05 - Gece").at(0).yer;
    baski->AyAdi[4].gorunur = baski->AyZemin[4].gorunur = false;
    for (const auto satir : {NisanGunduz, NisanGece})
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            baski->Gozu(satir, gun).gorunur = false;
    EXPECT_EQ(Parcalar(u"09.05 - Gece").at(0).yer, once);
    EXPECT_TRUE(Parcalar(u"09.04 - Gece").empty());
    EXPECT_EQ(Parcalar(u"AyZemin").size(), 11U);
    EXPECT_EQ(Parcalar(u"AyAdi").size(), 11U);
    EXPECT_EQ(Parcalar(u"GunduzGece").size(), 22U);
}

TEST_F(FormTabloPrintTest, Long_names_get_smaller_then_the_rows_lower_and_nothing_is_lost_or_overlaps) {
    for (const int harf : {60, 260, 5000}) {
        for (Etiket* etiket : {&baski->Unvan, &baski->Salon, &baski->Label1})
            etiket->baslik = Metin(static_cast<std::size_t>(harf) / (etiket == &baski->Unvan ? 1 : 5), u'W');
        DuzgunOlmali();
        EXPECT_EQ(Yazisi(u"Unvan"), baski->Unvan.baslik);
        EXPECT_EQ(Yazisi(u"Salon"), baski->Salon.baslik);
        EXPECT_EQ(Yazisi(u"Label1"), baski->Label1.baslik);
        EXPECT_GT(Parcalar(u"31.12 - Gece").at(0).yer.boy, 3.8) << harf;
    }
}

TEST_F(FormTabloPrintTest, A_weekday_that_its_ground_hides_stands_on_a_shade_of_it_unless_that_is_meant) {
    const auto on = Parcalar(u"21.06 - Gece"); // white on light green
    ASSERT_EQ(on.size(), 4U);
    EXPECT_GE(KagittaKarsitlik(kBeyaz, on[1].zemin.value_or(kBeyaz)), 3);
    EXPECT_EQ(on[1].renk, on[1].zemin) << "without a line about it";
    EXPECT_GT(on[1].yer.sol, on[0].yer.sol) << "the ground itself shows around it";
    EXPECT_LT(on[1].yer.Sag(), on[3].yer.sol) << "and under the mark";
    EXPECT_EQ(on[2].renk, kBeyaz) << "its own colour stays";
    EXPECT_EQ(Parcalar(u"20.06 - Gündüz").size(), 3U);
    baski->Gozu(HaziranGunduz, 20).yazi = 255;
    EXPECT_EQ(Parcalar(u"20.06 - Gündüz").size(), 3U);
}

TEST(Karsitlik, Is_the_lower_one_of_colour_and_grey) {
    EXPECT_NEAR(KagittaKarsitlik(0, kBeyaz), 21, 1e-6);
    EXPECT_DOUBLE_EQ(KagittaKarsitlik(255, 255), 1);
    EXPECT_NEAR(KagittaKarsitlik(kBeyaz, 255), 3.998, 0.01) << "red is nearer to white in colour";
    EXPECT_NEAR(KagittaKarsitlik(0, 255), 2.44, 0.02) << "and to black in grey";
    EXPECT_NEAR(KagittaKarsitlik(kBeyaz, 65280), 1.372, 0.01);
}

TEST(Karsitlik, A_mark_takes_what_stands_out_more) {
    EXPECT_EQ(OneCikan(kBeyaz), 0);
    EXPECT_EQ(OneCikan(0), kBeyaz);
    EXPECT_EQ(OneCikan(255), kBeyaz);
    EXPECT_EQ(OneCikan(192), kBeyaz);
    EXPECT_EQ(OneCikan(65280), 0);
    EXPECT_EQ(OneCikan(49152), 0);
    EXPECT_EQ(OneCikan(0xFF0000), kBeyaz) << "blue is the high byte";
}

TEST(Karsitlik, A_shade_of_the_ground_lets_letters_be_read_and_black_or_white_is_the_end) {
    EXPECT_FALSE(OkunurZemin(0, kBeyaz).has_value());
    EXPECT_FALSE(OkunurZemin(77, 77).has_value()) << "invisible on purpose";
    for (const auto& [yazi, zemin] : {std::pair{kBeyaz, 0x00FF00},
                                      {kBeyaz, 0xFFFFFE},
                                      {0, 0x000001},
                                      {0x808080, 0x7F7F7F},
                                      {0x0000FF, 0x0000FE}}) {
        const auto ton = OkunurZemin(yazi, zemin);
        ASSERT_TRUE(ton.has_value());
        EXPECT_GE(KagittaKarsitlik(yazi, ton.value_or(yazi)), 3) << yazi << ' ' << zemin;
    }
}

} // namespace velora::test
