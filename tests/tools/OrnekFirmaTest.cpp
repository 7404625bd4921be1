#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "tools/FirmaOku.h"

namespace velora::test {
namespace {

using ornek::Durum;
using ornek::Istek;
using ornek::Sonuc;

TEST(OrnekFirma, Has_the_two_halls_this_year_and_the_next) {
    const auto& [agac, sonuc, kayitlar] = VarsayilanFirma::Al();
    EXPECT_EQ(sonuc.durum, Durum::Tamam);
    EXPECT_EQ(sonuc.yillar, (std::vector{2026, 2027}));
    EXPECT_EQ(TumDegerler(agac, u"Salon.dat"), (std::vector<Metin>{u"Gül Salonu", u"Çınar Kır Bahçesi"}));
    for (const Metin salon : {u"Gül Salonu", u"Çınar Kır Bahçesi"})
        for (const Metin yil : {u"2026", u"2027"})
            EXPECT_TRUE(agac.DosyaVar(salon + u"/" + yil + u"/Gider.dat"));
}

TEST(OrnekFirma, Writes_the_hall_list_byte_by_byte_as_the_hall_screen_would) {
    const GeciciAgac& agac = VarsayilanFirma::Al().agac;
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"G\xFCl Salonu\"\r\n\"\xC7\xFDnar K\xFDr Bah\xE7"
                                       "esi\"\r\n");
}

TEST(OrnekFirma, Has_all_that_the_start_and_the_login_ask_for) {
    const GeciciAgac& agac = VarsayilanFirma::Al().agac;
    EXPECT_EQ(TumDegerler(agac, u"Firma.dll").size(), 13U);
    EXPECT_EQ(TumDegerler(agac, u"Firma.dll").at(8), u"Merkez");
    EXPECT_EQ(TumDegerler(agac, u"Sozlesme.dat").size(), 2U);
    EXPECT_EQ(agac.Bayt(u"User.dll"),
              "\"admin\",\"velora\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n"
              "\"zeynep\",\"1234\",\"0\",\"0\",\"1\",\"0\",\"0\",\"0\",\"1\",\"0\",\"0\",\"0\",\"0\"\r\n");
}

TEST(OrnekFirma, Has_so_many_reservations_in_each_hall_and_year_as_asked_for) {
    const GeciciAgac agac;
    Istek istek = SabitIstek();
    istek.salon = 3;
    istek.yil = 4;
    istek.rezervasyon = 17;
    const Sonuc sonuc = FirmaYap(agac, istek);
    EXPECT_EQ(sonuc.yillar, (std::vector{2024, 2025, 2026, 2027}));
    std::map<std::pair<Metin, int>, int> sayi;
    for (const OkunanKayit& kayit : TumKayitlar(agac, sonuc))
        ++sayi[{kayit.salon, kayit.yil}];
    EXPECT_EQ(sayi.size(), 12U);
    for (const auto& [yer, adet] : sayi)
        EXPECT_EQ(adet, 17) << yer.second;
    EXPECT_EQ(sonuc.rezervasyon, 3U * 4U * 17U);
}

TEST(OrnekFirma, Takes_no_slot_twice_and_names_each_reservation_by_a_day_of_its_year) {
    const std::vector<OkunanKayit>& kayitlar = VarsayilanFirma::Al().kayitlar;
    std::set<std::pair<Metin, Metin>> dilimler;
    for (const OkunanKayit& kayit : kayitlar) {
        const Metin tarih = AnahtarTarihi(kayit.ad);
        EXPECT_TRUE(TarihCoz(tarih).has_value());
        EXPECT_EQ(kayit.ad, tarih + Metin(DilimEki(AnahtarDilimi(kayit.ad))));
        EXPECT_EQ(tarih.substr(6), SayiMetni(kayit.yil));
        dilimler.insert({kayit.salon, kayit.ad});
    }
    EXPECT_EQ(kayitlar.size(), 480U);
    EXPECT_EQ(dilimler.size(), 480U);
}

TEST(OrnekFirma, Lies_denser_near_today_and_at_weekends) {
    int yakin = 0;
    int haftaSonu = 0;
    for (const OkunanKayit& kayit : VarsayilanFirma::Al().kayitlar) {
        const std::chrono::sys_days gun = TarihCoz(AnahtarTarihi(kayit.ad)).value();
        yakin += std::chrono::abs(gun - std::chrono::sys_days(SabitIstek().bugun)).count() <= 45 ? 1 : 0;
        haftaSonu += std::chrono::weekday(gun).iso_encoding() >= 6 ? 1 : 0;
    }
    // Spread evenly, 91 of 730 days would hold 60 of the 480, and weekends 137.
    EXPECT_GT(yakin, 100);
    EXPECT_GT(haftaSonu, 240);
}

TEST(OrnekFirma, Fills_every_real_slot_of_a_year_and_no_more_when_more_is_wanted) {
    const GeciciAgac agac;
    Istek istek = SabitIstek();
    istek.salon = 1;
    istek.yil = 1;
    istek.rezervasyon = 744;
    const Sonuc sonuc = FirmaYap(agac, istek);
    EXPECT_EQ(sonuc.rezervasyon, 730U);
    EXPECT_EQ(sonuc.enAzRezervasyon, 730U);
    EXPECT_EQ(TumAdlar(agac, u"Gül Salonu", 2026).size(), 3 * 730 + 1U);
}

TEST(OrnekFirma, Fills_744_slots_with_three_files_each_when_every_month_is_to_have_31_days) {
    const GeciciAgac agac;
    Istek istek = SabitIstek();
    istek.salon = 1;
    istek.yil = 1;
    istek.rezervasyon = 744;
    istek.tumAdlar = true;
    const Sonuc sonuc = FirmaYap(agac, istek);
    EXPECT_EQ(sonuc.rezervasyon, 744U);
    EXPECT_TRUE(agac.DosyaVar(u"Gül Salonu/2026/31.02.2026 - Gündüz"));
    EXPECT_TRUE(agac.DosyaVar(u"Gül Salonu/2026/31.02.2026 - Gündüz-Detay"));
    EXPECT_TRUE(agac.DosyaVar(u"Gül Salonu/2026/31.02.2026 - Gündüz-Odeme"));
    EXPECT_EQ(TumAdlar(agac, u"Gül Salonu", 2026).size(), 2232 + 1U);
}

TEST(OrnekFirma, Refuses_a_folder_that_holds_a_firm_and_changes_nothing_in_it) {
    const GeciciAgac agac;
    EXPECT_EQ(FirmaYap(agac, KucukIstek()).durum, Durum::Tamam);
    const std::string once = agac.Resim();
    Istek istek = KucukIstek();
    istek.tohum = 99;
    EXPECT_EQ(FirmaYap(agac, istek).durum, Durum::AgacVar);
    EXPECT_EQ(agac.Resim(), once);
}

TEST(OrnekFirma, Is_the_same_for_the_same_seed_and_day_and_another_for_another_seed) {
    const GeciciAgac bir;
    const GeciciAgac iki;
    const GeciciAgac uc;
    Istek istek = KucukIstek();
    FirmaYap(bir, istek);
    FirmaYap(iki, istek);
    istek.tohum = 2;
    FirmaYap(uc, istek);
    EXPECT_EQ(bir.Resim(), iki.Resim());
    EXPECT_NE(bir.Resim(), uc.Resim());
}

TEST(OrnekFirma, Says_so_and_leaves_no_hall_list_when_the_disk_is_full) {
    const GeciciAgac agac;
    Dosyalar dosyalar(agac.Kok());
    dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Yaz && yol.ends_with(u"-Detay");
    };
    EXPECT_EQ(ornek::FirmaYap(dosyalar, KucukIstek()).durum, Durum::Yazilamadi);
    EXPECT_FALSE(agac.DosyaVar(u"Salon.dat"));
}

TEST(OrnekFirma, Has_the_holidays_of_every_year_and_two_days_of_its_own) {
    const GeciciAgac agac;
    FirmaYap(agac, KucukIstek());
    const std::vector<Metin> degerler = TumDegerler(agac, u"Tatiller.dll");
    ASSERT_EQ(degerler.size(), 9 * 4U);
    const Metin gunler[] = {u"01.01.", u"23.04.", u"01.05.", u"19.05.", u"15.07.", u"30.08.", u"29.10."};
    for (std::size_t i = 0; i < 9; ++i) {
        const bool genel = i < 7;
        EXPECT_TRUE(TarihCoz(degerler[i * 4]).has_value());
        EXPECT_TRUE(!genel || degerler[i * 4].starts_with(gunler[i]));
        EXPECT_TRUE(degerler[i * 4].ends_with(u"2026"));
        EXPECT_FALSE(degerler[i * 4 + 1].empty());
        EXPECT_EQ(degerler[i * 4 + 2], genel ? u"Evet" : u"Hayır");
        EXPECT_EQ(degerler[i * 4 + 3], genel ? u"Genel" : u"Özel");
    }
}

TEST(OrnekFirma, Has_its_own_days_in_this_year_also_at_the_end_of_december) {
    const GeciciAgac agac;
    Istek istek = KucukIstek();
    istek.bugun = std::chrono::year(2026) / 12 / 30;
    FirmaYap(agac, istek);
    EXPECT_EQ(TumDegerler(agac, u"Tatiller.dll").at(7 * 4), u"20.12.2026");
}

TEST(OrnekFirma, Has_three_menus_with_a_name_and_a_content) {
    const GeciciAgac agac;
    FirmaYap(agac, KucukIstek());
    const std::vector<Metin> degerler = TumDegerler(agac, u"Menuler.dat");
    EXPECT_EQ(degerler.size(), 6U);
    EXPECT_TRUE(std::ranges::none_of(degerler, [](const Metin& deger) { return deger.empty(); }));
}

} // namespace
} // namespace velora::test
