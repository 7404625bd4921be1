// How a folder's names are found and told.
#include <fstream>
#include <set>

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

namespace velora {

using test::DosyaAgaci;

TEST(KlasorOkumasi, Tells_of_first_letters_alone_whether_a_name_is_there) {
    const DosyaAgaci kok;
    for (const MetinBakis ad : {u"01.02.2012 - Gündüz", u"kısa", u"Gider.dat"})
        kok.Koy(u"yıl/" + Metin(ad), "a");
    std::set<Metin> gorulen;
    const auto biri = [&](std::size_t boy, MetinBakis aranan) {
        gorulen.clear();
        return kok.dosyalar.KlasorAc(kok.TamYol(u"yıl")).BiriUyar(boy, [&](MetinBakis bas) {
            gorulen.emplace(bas);
            return bas == aranan;
        });
    };
    EXPECT_TRUE(biri(1, u"0"));
    EXPECT_FALSE(biri(1, u"x"));
    EXPECT_EQ(gorulen, (std::set<Metin>{u"0", u"k", u"G"}));
    EXPECT_TRUE(biri(2, u"x")) << "a letter of more bits can't be told";
    kok.dosyalar.Sil(kok.TamYol(u"yıl\\kısa"));
    EXPECT_FALSE(biri(10, u"x"));
    EXPECT_EQ(gorulen, (std::set<Metin>{u"01.02.2012", u"Gider.dat"}));
    EXPECT_FALSE(kok.dosyalar.KlasorAc(kok.TamYol(u"yok")).BiriUyar(1, [](MetinBakis) { return true; }));
}

TEST(KlasorOkumasi, Finds_a_name_as_a_path_does_also_where_it_is_spelled_otherwise) {
    const DosyaAgaci kok;
    for (const MetinBakis ad : {u"05.01.2012 - Gece", u"05.01.2012 - GeceDETAY", u"a", u"A", u"b"})
        kok.KoyMetin(u"k/" + Metin(ad), ad);
    kok.Koy(u"k/u\u0308", "marks apart");
    std::ofstream(kok.Yol(u"k") / "G\xFCnd\xFCz") << "bytes";
    KlasorOkumasi okuma = kok.dosyalar.KlasorAc(kok.TamYol(u"k"));
    for (const MetinBakis ad : {u"05.01.2012 - GeceDetay", u"05.01.2012 - gece", u"a", u"A", u"B", u"ü",
                                u"Gündüz", u"b. ", u"yok", u""}) {
        const auto bayt = okuma.Oku(ad);
        EXPECT_EQ(bayt ? std::optional(std::string(*bayt)) : std::nullopt,
                  kok.dosyalar.Oku(kok.TamYol(u"k\\" + Metin(ad))))
            << std::filesystem::path(Metin(ad));
    }
}

TEST(KlasorOkumasi, Reads_the_companion_of_a_name_however_both_are_spelled) {
    const DosyaAgaci kok;
    for (const MetinBakis ad : {u"1 - Gece", u"1 - Gece-Detay", u"2 - Gece", u"2 - GeceX", u"2 - Gece-DETAY",
                                u"3 - Gündüz", u"4 - Gece", u"4 - Gece-Detay", u"4 - Gece-Odeme"})
        kok.KoyMetin(u"k/" + Metin(ad), ad);
    kok.Koy(u"k/3 - Gu\u0308ndu\u0308z-Detay", "marks apart");
    KlasorOkumasi okuma = kok.dosyalar.KlasorAc(kok.TamYol(u"k"));
    const auto esi = [&](MetinBakis ad, MetinBakis ek) {
        const auto bayt = okuma.EsiniOku(*okuma.Bul(ad), ek);
        return bayt ? std::string(*bayt) : "-";
    };
    EXPECT_EQ(esi(u"1 - Gece", u"-Detay"), "1 - Gece-Detay");
    EXPECT_EQ(esi(u"1 - Gece", u"-Odeme"), "-");
    EXPECT_EQ(esi(u"2 - Gece", u"-Detay"), "2 - Gece-DETAY");
    EXPECT_EQ(esi(u"3 - Gündüz", u"-Detay"), "marks apart");
    EXPECT_EQ(esi(u"4 - Gece", u"-Odeme"), "4 - Gece-Odeme") << "behind another one";
}

} // namespace velora
