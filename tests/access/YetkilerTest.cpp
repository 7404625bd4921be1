// The eleven rights: what they are, and what each takes from the main screen.
#include "access/Yetkiler.h"

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "storage/KodSayfasi.h"
#include "table/FormTablo.h"

namespace velora::test {

namespace {

struct BeklenenYetki {
    MetinBakis baslik;
    bool varsayilan;
    bool degisir;
    bool gorunur;
    MetinBakis girdi;
    MetinBakis cizgi;
    std::set<int> araclar;
};

const std::array<BeklenenYetki, kYetkiSayisi> kBeklenenYetkiler{{
    {u"Rezervasyon raporu alabilsin", true, true, true, u"BakiyeRaporss", u"aline1", {3, 4}},
    {u"Rezervasyon iptali yapabilsin", true, true, true, u"iptals", u"aline12", {}},
    {u"Yeni rezervasyon açabilsin", true, false, true, u"newkay", u"aline11", {}},
    {u"Sözleşme ayarlarını değiştirebilsin", true, true, true, u"Sozduzenss", u"aline4", {}},
    {u"Program ayarlarını değiştirebilsin", true, true, true, u"Progrset", u"aline9", {11, 12}},
    {u"Salon tanımı yapabilsin", true, true, true, u"Salontanimss", u"aline4", {13, 14}},
    {u"Resmi tatil veya özel gün ekleyebilsin", true, true, true, u"ResTatilss", u"firmcizgi", {}},
    {u"Rezervasyonları taşıyabilsin", true, true, true, u"TasimaModuAc", u"aline11", {}},
    {u"Rezervasyon ücretlerini değiştirebilsin", true, true, true, u"", u"", {}},
    {u"rezerve", false, true, false, u"", u"", {}},
    {u"Kasa raporu alabilsin", true, true, true, u"kasarapors", u"aline1", {5, 6}},
}};

/// A user who lacks rights, and what of the main screen goes with them.
struct Eksik {
    std::set<int> yetkiler;
    std::set<Metin> girdiler;
    std::set<int> araclar;
};

const std::vector<Eksik> kEksikler{
    {{}, {}, {}},
    {{1}, {u"BakiyeRaporss", u"aline1"}, {3, 4}},
    {{2}, {u"iptals", u"aline12"}, {}},
    {{3}, {u"newkay", u"aline11"}, {}},
    {{4}, {u"Sozduzenss", u"aline4"}, {}},
    {{5}, {u"Progrset", u"aline9"}, {11, 12}},
    {{6}, {u"Salontanimss", u"aline4"}, {13, 14}},
    {{7}, {u"ResTatilss", u"firmcizgi"}, {}},
    {{8}, {u"TasimaModuAc", u"aline11"}, {}},
    {{9}, {}, {}},
    {{10}, {}, {}},
    {{11}, {u"kasarapors", u"aline1"}, {5, 6}},
    {{1, 11}, {u"BakiyeRaporss", u"kasarapors", u"aline1"}, {3, 4, 5, 6}},
    {{3, 8}, {u"newkay", u"TasimaModuAc", u"aline11"}, {}},
    {{4, 6}, {u"Sozduzenss", u"Salontanimss", u"aline4"}, {13, 14}},
    {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11},
     {u"BakiyeRaporss", u"kasarapors", u"aline1", u"iptals", u"aline12", u"newkay", u"TasimaModuAc",
      u"aline11", u"Sozduzenss", u"Salontanimss", u"aline4", u"Progrset", u"aline9", u"ResTatilss",
      u"firmcizgi"},
     {3, 4, 5, 6, 11, 12, 13, 14}},
};

} // namespace

class YetkilerTest : public ::testing::Test {
  protected:
    static ListeSatiri Eksigi(const std::set<int>& eksikler, const Metin& var = u"1",
                              const Metin& yok = u"0") {
        std::array<Metin, kYetkiSayisi> yetkiler;
        for (int no = 1; no <= kYetkiSayisi; ++no)
            yetkiler[static_cast<std::size_t>(no - 1)] = eksikler.contains(no) ? yok : var;
        return KullaniciSatiri(u"ali", u"a1", yetkiler);
    }
    /// The main screen comes up for this user.
    FormTablo& TabloGelsin(const ListeSatiri& kullanici) {
        YetkileriUygula(program.oturum, kullanici);
        program.FormTablo.Goster();
        return *program.FormTablo.Tut();
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(YetkilerTest, Are_eleven_each_with_its_caption_its_default_and_what_it_takes_away) {
    std::size_t sira = 0;
    for (const Yetki& yetki : Yetkiler()) {
        const BeklenenYetki& beklenen = kBeklenenYetkiler.at(sira++);
        SCOPED_TRACE(KodYaz(yetki.baslik));
        EXPECT_EQ(yetki.baslik, beklenen.baslik);
        EXPECT_EQ(yetki.varsayilan, beklenen.varsayilan);
        EXPECT_EQ(yetki.degisir, beklenen.degisir);
        EXPECT_EQ(yetki.gorunur, beklenen.gorunur);
        EXPECT_EQ(yetki.yol.girdi, beklenen.girdi);
        EXPECT_EQ(yetki.yol.cizgi, beklenen.cizgi);
        EXPECT_EQ(yetki.tutar, sira == 9);
        Oturum oturum;
        oturum.Kapat(yetki.yol);
        EXPECT_EQ(oturum.kapaliAraclar, beklenen.araclar);
    }
}

class EksikYetki : public YetkilerTest, public ::testing::WithParamInterface<Eksik> {};

TEST_P(EksikYetki, Hides_its_entry_its_line_and_its_places_and_nothing_else) {
    const Eksik& eksik = GetParam();
    FormTablo& tablo = TabloGelsin(Eksigi(eksik.yetkiler));
    for (const KomutTanimi& komut : Komutlar())
        EXPECT_EQ(tablo.Girdi(komut.komut).gorunur, !eksik.girdiler.contains(Metin(komut.ad)))
            << KodYaz(komut.ad);
    for (int yer = 1; yer <= kAracSayisi; ++yer)
        EXPECT_EQ(tablo.Toolbar1[yer].gorunur, !eksik.araclar.contains(yer)) << yer;
    EXPECT_EQ(tablo.TutarDegistir, eksik.yetkiler.contains(9) ? 0 : 1);
    EXPECT_EQ(program.oturum.kapaliGirdiler, eksik.girdiler) << "what has no entry yet is closed too";
}

INSTANTIATE_TEST_SUITE_P(Yetkiler, EksikYetki, ::testing::ValuesIn(kEksikler));

TEST_F(YetkilerTest, Without_the_right_to_settings_publish_goes_and_the_settings_button_stays_as_is_meant) {
    FormTablo& tablo = TabloGelsin(Eksigi({5}));
    EXPECT_FALSE(tablo.Toolbar1[11].gorunur) << "\"Yayınla\"";
    EXPECT_TRUE(tablo.Toolbar1[13].gorunur) << "\" Ayarlar \"";
    ortam.Bekle(BeklenenEkran{EkranAdi::FormAyarlar, {}});
    tablo.AracaTikla(u" Ayarlar ");
}

TEST_F(YetkilerTest, Without_the_right_to_halls_the_settings_button_goes_and_their_entry_stays_as_is_meant) {
    FormTablo& tablo = TabloGelsin(Eksigi({6}));
    EXPECT_FALSE(tablo.Toolbar1[13].gorunur);
    EXPECT_TRUE(tablo.Girdi(Komut::Progrset).gorunur);
}

TEST_F(YetkilerTest, Line_that_two_rights_share_goes_with_the_first_and_stands_by_no_entry_as_is_meant) {
    FormTablo& tablo = TabloGelsin(Eksigi({4}));
    EXPECT_TRUE(tablo.Girdi(Komut::Salontanimss).gorunur);
    EXPECT_FALSE(tablo.Girdi(Komut::aline4).gorunur);
}

TEST_F(YetkilerTest, What_is_hidden_once_never_comes_back_as_is_meant) {
    FormTablo& tablo = TabloGelsin(Eksigi({1, 8}));
    YetkileriUygula(program.oturum, Eksigi({}));
    tablo.Activate();
    EXPECT_FALSE(tablo.Girdi(Komut::BakiyeRaporss).gorunur);
    EXPECT_FALSE(tablo.Girdi(Komut::TasimaModuAc).gorunur);
    EXPECT_FALSE(tablo.Toolbar1[4].gorunur);
}

TEST_F(YetkilerTest, Any_number_but_zero_is_a_right_and_a_text_that_is_none_is_missing_as_is_meant) {
    for (const MetinBakis var : {u"2", u"-1", u"0.5", u" 1", u"1x"}) {
        Oturum oturum;
        YetkileriUygula(oturum, Eksigi({}, Metin(var)));
        EXPECT_TRUE(oturum.kapaliGirdiler.empty()) << ::testing::PrintToString(Metin(var));
        EXPECT_EQ(oturum.TutarDegistir, 1);
    }
    for (const MetinBakis yok : {u"x", u"", u"0", u"0.0", u"x1", u"Evet", u" "}) {
        Oturum oturum;
        YetkileriUygula(oturum, Eksigi({2, 9}, u"1", Metin(yok)));
        EXPECT_EQ(oturum.kapaliGirdiler, (std::set<Metin>{u"iptals", u"aline12"}))
            << ::testing::PrintToString(Metin(yok));
        EXPECT_EQ(oturum.TutarDegistir, 0);
    }
}

TEST_F(YetkilerTest, Tenth_right_is_read_by_nobody) {
    Oturum oturum;
    YetkileriUygula(oturum, Eksigi({10}));
    EXPECT_TRUE(oturum.kapaliGirdiler.empty());
    EXPECT_TRUE(oturum.kapaliAraclar.empty());
    EXPECT_EQ(oturum.TutarDegistir, 1);
}

TEST_F(YetkilerTest, Of_two_users_the_hidden_ways_add_up_and_the_later_decides_about_amounts) {
    YetkileriUygula(program.oturum, Eksigi({1, 9}));
    EXPECT_EQ(program.oturum.TutarDegistir, 0);
    FormTablo& tablo = TabloGelsin(Eksigi({2}));
    EXPECT_EQ(tablo.TutarDegistir, 1);
    EXPECT_FALSE(tablo.Girdi(Komut::BakiyeRaporss).gorunur);
    EXPECT_FALSE(tablo.Girdi(Komut::iptals).gorunur);
}

TEST_F(YetkilerTest, Rights_said_after_the_screen_was_loaded_hide_when_it_comes_to_the_front) {
    const auto tablo = program.FormTablo.Tut();
    YetkileriUygula(program.oturum, Eksigi({5}));
    program.FormTablo.Goster();
    EXPECT_FALSE(tablo->Girdi(Komut::Progrset).gorunur);
}

} // namespace velora::test
