#include "storage/RezervasyonDosyalari.h"

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"
#include "storage/VeriAgaci.h"

// What the writers put on the disk, byte for byte.
namespace velora {
namespace {

using test::DosyaAgaci;

AnaKayit OrnekAna() {
    AnaKayit kayit;
    kayit.kay = {u"Ayşe Yılmaz",
                 u"Rize",
                 u"Gül / İlker",
                 u"Düğün",
                 u"0464 1112233",
                 u"0532 1112233",
                 u"Çay Mah.\r\nNo 5",
                 u"1500",
                 u"500",
                 u"1000",
                 u"",
                 u"11:00",
                 u"02.01.2012",
                 u"17",
                 u"23:30",
                 u"12345678901",
                 u"250",
                 Metin(kBosTarih)};
    return kayit;
}

constexpr const char* kOrnekAnaBayt =
    "\"Ay\xFE"
    "e Y\xFDlmaz\",\"Rize\",\"G\xFCl / \xDDlker\",\"D\xFC\xF0\xFCn\",\"0464 1112233\",\"0532 1112233\","
    "\"\xC7"
    "ay Mah.\r\nNo 5\",\"1500\",\"500\",\"1000\",\"\",\"11:00\",\"02.01.2012\",\"17\",\"23:30\","
    "\"12345678901\",\"250\",\"__.__.____\",1,0\r\n";

DetayKaydi OrnekDetay() {
    DetayKaydi kayit;
    kayit.check[0] = 1;
    kayit.check[16] = 1;
    kayit.tt[0] = u"üç katlı";
    kayit.tt[16] = u"\"DJ\", gece";
    kayit.aciklamalar = u"ilk\r\nikinci, \"son\"";
    kayit.combo1 = u"Menü 1";
    kayit.label20 = u"Çorba,\r\nPilav";
    return kayit;
}

constexpr const char* kOrnekDetayBayt =
    "1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n"
    "\"\xFC\xE7 katl\xFD\"\r\n"
    "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
    "\"\"\r\n"
    "\"\"\r\n\"'DJ'. gece\"\r\n"
    "\"ilk\r\nikinci. 'son'\"\r\n"
    "\"1\",\"0\"\r\n"
    "\"Men\xFC 1\"\r\n"
    "\"\xC7orba,\r\nPilav\"\r\n";

} // namespace

TEST(AnaTemizle, Deletes_quotes_and_turns_commas_into_full_stops) {
    EXPECT_EQ(AnaTemizle(u"a\"b,c"), u"ab.c");
    EXPECT_EQ(AnaTemizle(u"5\""), u"5");
    EXPECT_EQ(AnaTemizle(u"a,b"), u"a.b");
    EXPECT_EQ(AnaTemizle(u"\",\""), u".");
    EXPECT_EQ(AnaTemizle(u"satır\r\nsonu 'x'"), u"satır\r\nsonu 'x'");
}

TEST(DetayTemizle, Turns_quotes_into_apostrophes_unlike_the_main_record_on_purpose) {
    EXPECT_EQ(DetayTemizle(u"a\"b,c"), u"a'b.c");
    EXPECT_EQ(DetayTemizle(u"5\""), u"5'");
}

TEST(AnaYaz, Writes_one_line_of_20_values) {
    const DosyaAgaci kok;
    ASSERT_TRUE(AnaYaz(kok.dosyalar, kok.TamYol(u"a"), OrnekAna()));
    EXPECT_EQ(kok.Oku(u"a"), kOrnekAnaBayt);
}

TEST(AnaYaz, A_fresh_record_holds_the_empty_masks_and_its_two_checks) {
    AnaKayit kayit;
    kayit.kay[14] = u"2_:__";
    kayit.kay[11] = Metin(kBosSaat);
    kayit.kay[17] = Metin(kBosTarih);
    EXPECT_EQ(
        AnaBayt(kayit),
        "\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"__:__\",\"\",\"\",\"2_:__\",\"\",\"\","
        "\"__.__.____\",1,0\r\n");
}

TEST(AnaYaz, Texts_that_were_not_cleaned_go_out_as_they_are) {
    AnaKayit kayit;
    kayit.kay[0] = u"a\"b,c";
    EXPECT_TRUE(AnaBayt(kayit).starts_with("\"a\"b,c\",\"\","));
}

TEST(DetayYaz, Writes_38_lines_with_the_two_states_on_one) {
    const DosyaAgaci kok;
    ASSERT_TRUE(DetayYaz(kok.dosyalar, kok.TamYol(u"a-Detay"), OrnekDetay()));
    EXPECT_EQ(kok.Oku(u"a-Detay"), kOrnekDetayBayt);
}

TEST(DetayYaz, Has_38_line_ends_when_no_text_has_its_own) {
    DetayKaydi kayit;
    kayit.option1 = false;
    kayit.option2 = true;
    kayit.combo1 = u"Menü seçiniz...";
    const std::string bayt = DetayBayt(kayit);
    EXPECT_EQ(std::count(bayt.begin(), bayt.end(), '\n'), 38);
    EXPECT_TRUE(bayt.ends_with("\r\n\"\"\r\n\"0\",\"1\"\r\n\"Men\xFC se\xE7iniz...\"\r\n\"\"\r\n"));
}

TEST(DetayYaz, The_menu_keeps_its_commas_and_quotes_on_purpose) {
    DetayKaydi kayit;
    kayit.combo1 = u"1,\"2\"";
    kayit.label20 = u"a,\"b";
    EXPECT_TRUE(DetayBayt(kayit).ends_with("\"1,\"2\"\"\r\n\"a,\"b\"\r\n"));
}

TEST(OdemeYaz, Writes_three_texts_for_each_payment) {
    const DosyaAgaci kok;
    const std::vector<Odeme> odemeler{{u"02.01.2012", u"500", u"17 - Ayşe"},
                                      {u"03.01.2012", u"250.5", u"a,b"}};
    ASSERT_TRUE(OdemeYaz(kok.dosyalar, kok.TamYol(u"a-Odeme"), odemeler));
    EXPECT_EQ(kok.Oku(u"a-Odeme"), "\"02.01.2012\",\"500\",\"17 - Ay\xFE"
                                   "e\"\r\n\"03.01.2012\",\"250.5\",\"a,b\"\r\n");
}

TEST(OdemeYaz, Saving_the_last_payment_away_leaves_no_file) {
    const DosyaAgaci kok;
    kok.Koy(u"a-Odeme", "\"02.01.2012\",\"500\",\"x\"\r\n");
    EXPECT_TRUE(OdemeYaz(kok.dosyalar, kok.TamYol(u"a-Odeme"), {}));
    EXPECT_FALSE(kok.Var(u"a-Odeme"));
    EXPECT_TRUE(OdemeYaz(kok.dosyalar, kok.TamYol(u"a-Odeme"), {}));
}

TEST(OdemeYaz, A_file_that_cannot_be_removed_is_emptied_so_that_no_payment_comes_back) {
    DosyaAgaci kok;
    kok.Koy(u"a-Odeme", "\"02.01.2012\",\"500\",\"x\"\r\n");
    kok.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Sil; };
    EXPECT_FALSE(OdemeYaz(kok.dosyalar, kok.TamYol(u"a-Odeme"), {}));
    EXPECT_EQ(kok.Oku(u"a-Odeme"), "");
}

TEST(RezervasyonDosyalari, Nothing_is_written_moved_or_taken_away_under_a_path_without_a_day) {
    const DosyaAgaci kok;
    for (const MetinBakis ad : {u"-Detay", u"-Odeme", u" -Odeme", u"gun", u"gun-Detay"})
        kok.Koy(u"Gül/2026/" + Metin(ad), "dursun");
    const std::string once = kok.Resim();
    const Dosyalar& d = kok.dosyalar;
    const Metin gun = kok.TamYol(u"Gül\\2026\\gun");
    for (const MetinBakis bos : {u"", u"  "}) {
        const Metin yol = kok.TamYol(u"Gül\\2026\\" + Metin(bos));
        EXPECT_FALSE(AnaYaz(d, yol, OrnekAna()));
        EXPECT_FALSE(DetayYaz(d, yol + Metin(kDetayEki), {}));
        EXPECT_FALSE(OdemeYaz(d, yol + Metin(kOdemeEki), {{u"01.02.2026", u"5", u""}}));
        EXPECT_FALSE(OdemeYaz(d, yol + Metin(kOdemeEki), {}));
        EXPECT_FALSE(OdemeHazirla(d, yol + Metin(kOdemeEki)));
        EXPECT_FALSE(RezervasyonSil(d, yol));
        EXPECT_FALSE(RezervasyonTasi(d, yol, gun));
        EXPECT_FALSE(RezervasyonTasi(d, gun, yol));
    }
    EXPECT_FALSE(AnaYaz(d, u"", OrnekAna()));
    EXPECT_EQ(kok.Resim(), once);
    EXPECT_TRUE(RezervasyonTasi(d, gun, kok.TamYol(u"Gül\\2026\\baska")));
    EXPECT_EQ(kok.Bayt(u"Gül/2026/baska-Detay"), "dursun");
    EXPECT_FALSE(kok.Var(u"Gül/2026/gun-Detay"));
}

} // namespace velora
