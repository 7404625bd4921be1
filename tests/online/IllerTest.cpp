// The provinces and their districts.
#include "online/Iller.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "storage/Harf.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

namespace {

constexpr MetinBakis kSirasi =
    u"ADANA, ADIYAMAN, AFYON, AGRI, AKSARAY, AMASYA, ANKARA, ANTALYA, ARDAHAN, ARTVIN, AYDIN, BALIKESIR, "
    u"BARTIN, BATMAN, BAYBURT, BILECIK, BINGOL, BITLIS, BOLU, BURDUR, BURSA, CANAKKALE, CANKIRI, CORUM, "
    u"DENIZLI, DIYARBAKIR, DUZCE, EDIRNE, ELAZIG, ERZINCAN, ERZURUM, ESKISEHIR, GAZIANTEP, GIRESUN, "
    u"GUMUSHANE, HAKKARI, HATAY, ICEL, IGDIR, ISPARTA, ISTANBUL, IZMIR, K.MARAS, KARABUK, KARAMAN, KARS, "
    u"KASTAMONU, KAYSERI, KILIS, KIRIKKALE, KIRKLARELI, KIRSEHIR, KOCAELI, KONYA, KUTAHYA, MALATYA, MANISA, "
    u"MARDIN, MUGLA, MUS, NEVSEHIR, NIGDE, ORDU, OSMANIYE, RIZE, S.URFA, SAKARYA, SAMSUN, SIIRT, SINOP, "
    u"SIRNAK, SIVAS, TEKIRDAG, TOKAT, TRABZON, TUNCELI, USAK, VAN, YALOVA, YOZGAT, ZONGULDAK";

/// The place of a letter in the Turkish alphabet, digits before it.
std::size_t Sira(char16_t harf) {
    constexpr MetinBakis kAlfabe = u" 0123456789abcçdefgğhıijklmnoöprsştuüvyz";
    const std::size_t yer = kAlfabe.find(KucukHarf(harf));
    EXPECT_NE(yer, MetinBakis::npos) << ::testing::PrintToString(harf);
    return yer;
}

bool AlfabedeOnce(const Metin& bir, const Metin& iki) {
    return std::lexicographical_compare(bir.begin(), bir.end(), iki.begin(), iki.end(),
                                        [](char16_t a, char16_t b) { return Sira(a) < Sira(b); });
}

} // namespace

TEST(IllerTest, The_provinces_stand_in_their_order) {
    Metin hepsi;
    for (const Il& il : Iller())
        hepsi.append(hepsi.empty() ? u"" : u", ").append(il.ad);
    EXPECT_EQ(hepsi, kSirasi);
    EXPECT_EQ(Iller().size(), 81U);
}

TEST(IllerTest, There_are_958_districts_from_2_to_40_in_a_province) {
    std::size_t hepsi = 0;
    for (const Il& il : Iller()) {
        const std::size_t adet = Ilceleri(il.ad).size();
        EXPECT_TRUE(adet >= 2 && adet <= 40) << KodYaz(il.ad);
        EXPECT_EQ(adet == 2, il.ad == u"BAYBURT") << KodYaz(il.ad);
        EXPECT_EQ(adet == 40, il.ad == u"ISTANBUL") << KodYaz(il.ad);
        hepsi += adet;
    }
    EXPECT_EQ(hepsi, 958U);
}

TEST(IllerTest, Each_list_is_in_Turkish_alphabetical_order_and_names_none_twice) {
    for (const Il& il : Iller()) {
        const std::vector<Metin> ilceler = Ilceleri(il.ad);
        EXPECT_TRUE(std::is_sorted(ilceler.begin(), ilceler.end(), AlfabedeOnce)) << KodYaz(il.ad);
        EXPECT_EQ(std::set(ilceler.begin(), ilceler.end()).size(), ilceler.size()) << KodYaz(il.ad);
    }
}

TEST(IllerTest, A_district_is_the_same_when_it_was_saved_and_read_again) {
    for (const Il& il : Iller())
        for (const Metin& ilce : Ilceleri(il.ad)) {
            EXPECT_EQ(KodaSigdir(BuyukBas(ilce)), ilce) << KodYaz(ilce);
            EXPECT_FALSE(ilce.empty());
        }
}

TEST(IllerTest, Some_lists_as_they_are) {
    EXPECT_EQ(Ilceleri(u"BAYBURT"), (std::vector<Metin>{u"Aydıntepe", u"Demirözü"}));
    EXPECT_EQ(Ilceleri(u"YALOVA"), (std::vector<Metin>{u"Altınova", u"Armutlu", u"Çınarcık", u"Çiftlikköy",
                                                       u"Merkez", u"Termal"}));
    const std::vector<Metin> adana = Ilceleri(u"ADANA");
    EXPECT_EQ(std::vector<Metin>(adana.begin(), adana.begin() + 3),
              (std::vector<Metin>{u"Aladağ", u"Ceyhan", u"Çukurova"}));
    EXPECT_EQ(adana.back(), u"Yüreğir");
    EXPECT_EQ(Ilceleri(u"SIIRT").back(), u"Tillo");
    EXPECT_EQ(Ilceleri(u"ZONGULDAK").back(), u"Merkez");
}

TEST(IllerTest, What_is_no_province_has_no_districts) {
    EXPECT_TRUE(Ilceleri(u"").empty());
    EXPECT_TRUE(Ilceleri(u"Adana").empty());
    EXPECT_TRUE(Ilceleri(u"Şehir Seçiniz").empty());
}

} // namespace velora::test
