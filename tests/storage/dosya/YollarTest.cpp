#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"
#include "storage/VeriAgaci.h"

// Which paths the file module takes, and that nothing happens outside the root.
namespace velora {
namespace {

using test::DosyaAgaci;

/// Tries every piece of work on the path; true when each of them refused it.
bool HepsiReddetti(const Dosyalar& dosyalar, const Metin& yol) {
    bool okundu = false;
    dosyalar.KlasoruOku(yol, [&](const Dosyalar::OkunanDosya&) { okundu = true; });
    return !okundu && dosyalar.Listele(yol).empty() && !dosyalar.VarMi(yol) && !dosyalar.Oku(yol) &&
           !dosyalar.Yaz(yol, "x") && !dosyalar.Ekle(yol, "x") && !dosyalar.KlasorYap(yol) &&
           dosyalar.Kopyala(dosyalar.Kok() + u"\\kaynak", yol) == Kopyalanis::Olmadi &&
           dosyalar.Kopyala(yol, dosyalar.Kok() + u"\\hedef") == Kopyalanis::Olmadi && !dosyalar.Sil(yol);
}

std::size_t GirisSayisi(const std::filesystem::path& klasor) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(klasor), {}));
}

} // namespace

TEST(Yollar, A_hall_name_that_would_lead_elsewhere_is_refused_and_nothing_is_made_outside_the_root) {
    const DosyaAgaci kok;
    kok.Koy(u"kaynak", "k");
    kok.Koy(u"../komsu", "k");
    for (const MetinBakis salon :
         {u"..", u".", u"C:x", u"C:", u"A/B", u"../komsu", u"..\\komsu", u"A\\..\\..\\komsu", u"/tmp",
          u"komsu/", u". .", u"...", u" ", u"A*", u"A?", u"A|B", u"<A>", u"A\"B"}) {
        const Metin klasor = VeriAgaci(kok.dosyalar).SalonKlasoru(salon);
        EXPECT_TRUE(HepsiReddetti(kok.dosyalar, klasor)) << testing::PrintToString(salon);
        EXPECT_TRUE(HepsiReddetti(kok.dosyalar, klasor + u"\\2012")) << testing::PrintToString(salon);
    }
    EXPECT_EQ(GirisSayisi(kok.Disi()), 2U);
    EXPECT_EQ(GirisSayisi(kok.Kok()), 1U);
}

TEST(Yollar, Control_characters_in_a_name_are_refused) {
    const DosyaAgaci kok;
    kok.Koy(u"kaynak", "k");
    for (char16_t harf = 0; harf < u' '; ++harf)
        EXPECT_TRUE(HepsiReddetti(kok.dosyalar, kok.TamYol(Metin(u"a") + harf + u"b")))
            << static_cast<int>(harf);
    EXPECT_EQ(GirisSayisi(kok.Kok()), 1U);
}

TEST(Yollar, Absolute_and_relative_paths_that_do_not_begin_with_the_root_are_refused) {
    const DosyaAgaci kok;
    kok.Koy(u"kaynak", "k");
    const Metin disi = YolMetni(kok.Disi());
    const Metin baskaKok(kok.dosyalar.Kok().size(), u'a');
    for (const Metin& yol :
         {Metin(), Metin(u"a"), Metin(u"\\a"), Metin(u"/tmp/velora-a"), Metin(u"C:\\a"), disi, disi + u"\\a",
          baskaKok, baskaKok + u"\\a", disi + u"/a", kok.dosyalar.Kok() + u"a", kok.dosyalar.Kok() + u"/a"})
        EXPECT_TRUE(HepsiReddetti(kok.dosyalar, yol)) << testing::PrintToString(yol);
    EXPECT_EQ(GirisSayisi(kok.Disi()), 1U);
    EXPECT_EQ(GirisSayisi(kok.Kok()), 1U);
}

TEST(Yollar, The_root_itself_can_be_listed_and_nothing_else) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    for (const Metin& yol : {kok.dosyalar.Kok(), kok.dosyalar.Kok() + u"\\", kok.dosyalar.Kok() + u"\\\\"}) {
        EXPECT_EQ(kok.dosyalar.Listele(yol), (std::vector<Metin>{u"a"}));
        EXPECT_FALSE(kok.dosyalar.VarMi(yol));
        EXPECT_FALSE(kok.dosyalar.Yaz(yol, "x"));
        EXPECT_FALSE(kok.dosyalar.Sil(yol));
        EXPECT_FALSE(kok.dosyalar.KlasorYap(yol));
    }
}

TEST(Yollar, An_empty_hall_name_is_passed_over_on_purpose) {
    const DosyaAgaci kok;
    VeriAgaci(kok.dosyalar).KlasorHazirla(u"", u"2012");
    EXPECT_TRUE(std::filesystem::is_directory(kok.Yol(u"2012")));
}

TEST(Yollar, Names_with_dots_blanks_and_Turkish_letters_are_taken) {
    const DosyaAgaci kok;
    for (const MetinBakis ad :
         {u"A.B", u".gizli", u"..a", u"a b", u"İĞŞ ığş", u"05.01.2012 - Gündüz", u"a'b", u"%1", u"~"}) {
        EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(ad), "x")) << testing::PrintToString(ad);
        EXPECT_TRUE(kok.Var(ad));
    }
}

TEST(Yollar, The_root_has_no_separator_at_its_end) {
    const DosyaAgaci kok;
    EXPECT_EQ(Dosyalar(kok.Kok() / "").Kok(), kok.dosyalar.Kok());
    EXPECT_FALSE(kok.dosyalar.Kok().ends_with(u'/'));
}

TEST(Yollar, A_relative_root_stays_the_same_folder_when_the_program_goes_elsewhere) {
    const DosyaAgaci kok;
    const auto eski = std::filesystem::current_path();
    std::filesystem::current_path(kok.Kok());
    const Dosyalar dosyalar(".");
    std::filesystem::current_path(eski);
    EXPECT_TRUE(dosyalar.Yaz(dosyalar.Kok() + u"\\a", "x"));
    EXPECT_TRUE(kok.Var(u"a"));
}

TEST(Yollar, A_path_and_its_text_are_the_same) {
    const std::filesystem::path yol(u"Düğün Salonu ığş");
    EXPECT_EQ(YolMetni(yol), u"Düğün Salonu ığş");
    EXPECT_EQ(MetinYolu(u"Düğün Salonu ığş"), yol);
}

TEST(Yollar, A_name_of_any_length_fails_in_silence) {
    const DosyaAgaci kok;
    kok.Koy(u"kaynak", "k");
    EXPECT_TRUE(HepsiReddetti(kok.dosyalar, kok.TamYol(Metin(5000, u'a'))));
    EXPECT_TRUE(HepsiReddetti(kok.dosyalar, kok.TamYol(Metin(300, u'ş'))));
}

} // namespace velora
