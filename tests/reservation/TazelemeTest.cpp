// After the save: whatever stands open shows the saved record.
#include <algorithm>
#include <array>
#include <filesystem>

#include "access/Splash.h"
#include "accounts/FormBakiye.h"
#include "reservation/FormArama.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// A pre-reservation of 20 June, five days ahead, with the report of pre-reservations, the search for its
/// customer and the panel of warnings standing open.
class TazelemeTest : public KayitTest {
  protected:
    TazelemeTest() { RezervasyonKoy(Metin(kGun), {.ad = u"Ali Veli"}, true); }

    void EkranlariAc() {
        ListedenSec(Prog().FormBakiye->Combo1, u"Ön Rezervasyonlar");
        Prog().FormBakiye.Goster();
        Prog().FormBakiye->ListeleGun();
        AlanaYaz(Prog().FormArama->Text[1], u"veli");
        Prog().FormArama.Goster();
        VELORA_BAS(Prog().FormArama, Command3);
        EXPECT_EQ(Prog().FormBakiye->Liste.satirlar.size(), 1U);
        EXPECT_EQ(Prog().FormArama->Liste.satirlar.size(), 1U);
        EXPECT_TRUE(kullanici.Tablo().Picture1.gorunur);
    }
    /// What the save does on the disk and where it lets events run, without repeats.
    void Kaydedilenler(std::vector<std::string>& gunluk) {
        const auto yaz = [&gunluk](const char* is) {
            if (gunluk.empty() || gunluk.back() != is)
                gunluk.emplace_back(is);
        };
        kullanici.ortam.olayda = [yaz](int) { yaz("olay"); };
        Prog().dosyalar.ariza = [yaz](DosyaIsi is, const Metin& yol) {
            if (is == DosyaIsi::Listele && yol.ends_with(u"Salon A\\2012"))
                yaz("tarama");
            if (is == DosyaIsi::VarMi && yol.ends_with(u"15.06.2012 - Gece"))
                yaz("bugün");
            return false;
        };
    }
    auto Yayinlar() { return std::ranges::count(kullanici.ortam.acilanlar, EkranAdi::FormWebteYayinla); }
};

TEST_F(TazelemeTest, A_save_refreshes_report_search_and_warnings_then_scans_looks_at_today_and_publishes) {
    EkranlariAc();
    Prog().Splash->Check1 = Prog().Splash->Check2 = 1;
    std::vector<std::string> gunluk;
    std::size_t yayindakiler = 0; // what it held when the publish was shown
    KayitAc([&] {
        Gir(1, u"Can Yılmaz");
        Isaretle(Kayit().Option1);
        Tikla(Kayit().Check18);
        // Each box tells of a list that was made anew: in this order, and once.
        KutuBekle(u"Belirtilen tarihler arasında bir rezervasyon kaydı bulunamadı!");
        KutuBekle(u"Hiç kayıt bulunamadı!");
        KutuBekle(u"Hatırlatmalarda yaklaşan rezervasyon yok.");
        EkranBekle(EkranAdi::FormWebteYayinla, [&] { yayindakiler = gunluk.size(); });
        Kaydedilenler(gunluk);
        KaydeteBas();
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
    kullanici.ortam.olayda = {};
    const std::vector<std::string> son{"tarama", "olay", "bugün", "olay"};
    gunluk.resize(yayindakiler);
    ASSERT_GE(gunluk.size(), son.size());
    EXPECT_TRUE(std::equal(son.rbegin(), son.rend(), gunluk.rbegin()));
    EXPECT_EQ(Yayinlar(), 1);
    EXPECT_EQ(kullanici.ortam.acilanlar.back(), EkranAdi::FormWebteYayinla);
}

TEST_F(TazelemeTest, A_search_whose_only_match_was_renamed_says_once_that_it_found_nothing) {
    AlanaYaz(Prog().FormArama->Text[1], u"veli");
    Prog().FormArama.Goster();
    VELORA_BAS(Prog().FormTablo, Command2);
    KayitAc([&] {
        Gir(1, u"Can Yılmaz");
        KutuBekle(u"Hiç kayıt bulunamadı!");
        KaydeteBas();
    });
    EXPECT_TRUE(Prog().FormArama->Liste.satirlar.empty());
}

TEST_F(TazelemeTest, Lists_that_still_find_the_record_show_it_as_it_was_saved_and_say_nothing) {
    EkranlariAc();
    KayitAc([&] {
        Gir(1, u"Ayşe Veli");
        KaydeteBas();
    });
    EXPECT_EQ(Prog().FormBakiye->Liste.satirlar.at(0).sutun[1], u"Ayşe Veli");
    EXPECT_EQ(Prog().FormArama->Liste.satirlar.at(0).sutun[2], u"Ayşe Veli");
    EXPECT_EQ(kullanici.Tablo().Liste.satirlar.at(0).sutun[2], u"Ayşe Veli");
}

TEST_F(TazelemeTest, The_marked_row_is_marked_again_behind_a_save_and_its_buttons_wait_for_another_mark) {
    RezervasyonKoy(u"19.06.2012 - Gece", {.ad = u"Veli Can", .no = u"8"}, true);
    Prog().FormBakiye.Goster();
    Prog().FormBakiye->ListeleGun();
    AlanaYaz(Prog().FormArama->Text[1], u"veli");
    Prog().FormArama.Goster();
    VELORA_BAS(Prog().FormArama, Command3);
    const std::array listeler{&Prog().FormBakiye->Liste, &Prog().FormArama->Liste, &kullanici.Tablo().Liste};
    Prog().FormBakiye->Liste_Click();
    Prog().FormArama->Liste_ItemClick();
    kullanici.Tablo().Liste_Click();
    for (ListeGorunumu* liste : listeler) {
        ASSERT_EQ(liste->satirlar.size(), 2U);
        liste->secili = 1;
    }
    KayitAc([&] {
        // A name that is new, and a row before the marked one that goes.
        Gir(1, u"Ayşe Veli");
        std::filesystem::remove(agac.Yol(u"Salon A/2012/19.06.2012 - Gece"));
        std::filesystem::remove(agac.Yol(u"Salon A/2012/19.06.2012 - Gece-Detay"));
        KaydeteBas();
    });
    for (const ListeGorunumu* liste : listeler) {
        EXPECT_EQ(liste->satirlar.size(), 1U);
        EXPECT_EQ(liste->secili, 0);
        for (const Dugme* dugme : liste->secimDugmeleri.dugmeler)
            EXPECT_FALSE(dugme->etkin);
    }
}

TEST_F(TazelemeTest, A_save_loads_neither_report_nor_search) {
    YeniKayit(
        [&] {
            Doldur();
            KaydeteBas();
        },
        u"21.06.2012 - Gece");
    EXPECT_FALSE(Prog().FormBakiye.Yuklu());
    EXPECT_FALSE(Prog().FormArama.Yuklu());
}

TEST_F(TazelemeTest, A_report_that_stops_at_a_broken_name_stops_nothing_of_the_save_on_purpose) {
    EkranlariAc();
    Prog().Splash->Check1 = Prog().Splash->Check2 = 1;
    agac.Koy(u"Salon A/2012/00.yedek", "");
    const Metin toplam = Prog().FormBakiye->Toplam.baslik;
    KayitAc([&] {
        Gir(1, u"Can Yılmaz");
        Gir(AnaNo::ToplamUcret, u"77");
        Tikla(Kayit().Check18);
        KutuBekle(u"Hiç kayıt bulunamadı!");
        KutuBekle(u"Hatırlatmalarda yaklaşan rezervasyon yok.");
        EkranBekle(EkranAdi::FormWebteYayinla, {});
        KaydeteBas();
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
    EXPECT_TRUE(Prog().FormBakiye->Liste.satirlar.empty());
    EXPECT_EQ(Prog().FormBakiye->Toplam.baslik, toplam) << "the labels keep what they showed";
    EXPECT_EQ(Prog().FormBakiye->Label19.baslik, u": 1");
    EXPECT_EQ(Yayinlar(), 1);
}

} // namespace velora::test
