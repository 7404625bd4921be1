// The halls and menus of a firm: its first day, and the day a hall gets another name.
#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"

namespace velora::test {

class SalonVeMenu : public ::testing::Test {
  protected:
    static constexpr auto kGece = velora::GunduzGece::Gece;

    Program& Prog() { return kullanici.Prog(); }
    /// The screen is expected next; `is` is what the user does on it.
    void EkrandaYap(EkranAdi ekran, std::function<void()> is) {
        kullanici.ortam.Bekle(BeklenenEkran{ekran, std::move(is)});
    }
    void SalonSorusu(const Metin& cevap) {
        kullanici.ortam.Bekle(BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", cevap});
    }
    /// Opens the halls, does `is` and closes them.
    void SalonlarAcikken(const std::function<void(FormSalonTanim&)>& is) {
        EkrandaYap(EkranAdi::FormSalonTanim, [this, is] {
            is(*Prog().FormSalonTanim.Tut());
            VELORA_BAS(Prog().FormSalonTanim, Command3);
        });
        kullanici.KomutSec(Komut::Salontanimss);
        EXPECT_FALSE(Prog().FormSalonTanim.Yuklu());
    }
    void SalonEkle(const Metin& ad) {
        SalonlarAcikken([this, ad](FormSalonTanim&) {
            SalonSorusu(ad);
            VELORA_BAS(Prog().FormSalonTanim, Command1);
        });
    }
    void MenuyuYaz(const Metin& ad, const Metin& icerik) {
        EkrandaYap(EkranAdi::FormMenuEkle, [this, ad, icerik] {
            const auto ekle = Prog().FormMenuEkle.Tut();
            AlanaYaz(ekle->Text1, ad, {.degisti = [&] { ekle->Text1_Change(); }});
            SatirlaraYaz(ekle->Text2, icerik);
            VELORA_BAS(Prog().FormMenuEkle, Command4);
        });
    }
    void RezervasyonKoy(const Metin& salon, int yil) {
        const Metin yol = salon + u"/" + SayiMetni(yil) + u"/20.06." + SayiMetni(yil) + u" - Gece";
        KayitKoy(agac, yol, {.ad = u"Yıl " + SayiMetni(yil)}, false,
                 u"\"01.01.2012\",\"1000\",\"7 - Ali\"\r\n");
    }
    /// The customer that the table shows on 20 June in the evening of a year.
    Metin Musteri(int yil) {
        kullanici.YilSec(SayiMetni(yil));
        const Metin& tag = kullanici.Goz(20, 6, kGece).tag;
        return tag.find(u"Yıl " + SayiMetni(yil)) == Metin::npos ? Metin(tag) : u"Yıl " + SayiMetni(yil);
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_F(SalonVeMenu, First_day_of_a_new_firm_ends_with_its_hall_and_its_menus_on_disk) {
    kullanici.ProgramiAc();
    EXPECT_EQ(agac.Resim(), "") << "no stray folder without a hall";
    kullanici.ortam.Bekle(BeklenenKutu{
        u"Salon Tanımı", u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
        Simge::Soru, Cevap::Evet});
    EkrandaYap(EkranAdi::FormSalonTanim, [this] {
        const auto tanim = Prog().FormSalonTanim.Tut();
        EXPECT_FALSE(tanim->Command3.etkin);
        SalonSorusu(u"");
        kullanici.ortam.Bekle(BeklenenKutu{
            u"Hata", u"Salon adını girmediniz!\nSalon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!."});
        SalonSorusu(u"gül SALONU");
        VELORA_BAS(Prog().FormSalonTanim, Command1);
        EXPECT_TRUE(tanim->Command3.etkin);
        VELORA_BAS(Prog().FormSalonTanim, Command3);
    });
    IlkSalonuSor(Prog());
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Gül Salonu");

    EkrandaYap(EkranAdi::FormMenuAyar, [this] {
        const auto menuler = Prog().FormMenuAyar.Tut();
        MenuyuYaz(u"klasik", u"çorba, et sote");
        VELORA_BAS(Prog().FormMenuAyar, Command1);
        MenuyuYaz(u"altın", u"ıspanak\r\niçli köfte");
        VELORA_BAS(Prog().FormMenuAyar, Command1);
        MenuyuYaz(u"klasik menü", u"çorba");
        SatiraTikla(menuler->Liste, 0, [&] { menuler->Liste_Click(); });
        menuler->Liste_DblClick();
        VELORA_BAS(Prog().FormMenuAyar, Command3);
    });
    kullanici.KomutSec(Komut::MenuAyars);
    kullanici.ProgramiKapat();

    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"G\xFCl Salonu\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"),
              "\"Klasik Men\xFC\",\"\xC7orba\"\r\n\"Alt\xFDn\",\"Ispanak\r\n\xDD\xE7li K\xF6\x66te\"\r\n");
    for (int yil = 2012; yil <= 2022; ++yil)
        EXPECT_TRUE(agac.KlasorVar(u"Gül Salonu/" + SayiMetni(yil)));
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Salon.ogeler, std::vector<Metin>{u"Gül Salonu"});
    EXPECT_EQ(Prog().FormMenuAyar->Liste.satirlar.size(), 2U);
    IlkSalonuSor(Prog()); // asks nothing any more
}

TEST_F(SalonVeMenu, Rename_of_a_hall_with_reservations_in_six_years_takes_four_of_them_to_the_table) {
    agac.Koy(u"Salon.dat", "\"Bah\xE7\x65\"\r\n\"G\xFCl\"\r\n");
    for (int yil = 2010; yil <= 2015; ++yil)
        RezervasyonKoy(u"Bahçe", yil);
    agac.Koy(u"Bahçe/2014/Gider.dat", "2014");
    agac.Koy(u"Bahçe/2015/Gider.dat", "2015");
    kullanici.ProgramiAc();
    for (int yil = 2010; yil <= 2015; ++yil)
        EXPECT_EQ(Musteri(yil), u"Yıl " + SayiMetni(yil));
    kullanici.YilSec(u"2012");

    SalonlarAcikken([this](FormSalonTanim& tanim) {
        SatiraTikla(tanim.List1, 0, [&] { tanim.List1_Click(); });
        EkrandaYap(EkranAdi::FormSalonTanimAd, [this] {
            AlanaYaz(Prog().FormSalonTanimAd->Text1, u"kır bahçesi");
            VELORA_BAS(Prog().FormSalonTanimAd, Command1);
        });
        VELORA_BAS(Prog().FormSalonTanim, Command4);
    });
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Kır Bahçesi");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"K\xFDr Bah\xE7\x65si\"\r\n\"G\xFCl\"\r\n");

    kullanici.ProgramiKapat();
    kullanici.ProgramiAc();
    for (int yil = 2011; yil <= 2014; ++yil)
        EXPECT_EQ(Musteri(yil), u"Yıl " + SayiMetni(yil));
    EXPECT_EQ(Musteri(2010), u"") << "years outside the five stay behind";
    EXPECT_EQ(Musteri(2015), u"") << "its files lie in the folder of 2014";
    EXPECT_TRUE(agac.DosyaVar(u"Kır Bahçesi/2014/20.06.2015 - Gece-Odeme"));
    EXPECT_EQ(agac.Bayt(u"Kır Bahçesi/2014/Gider.dat"), "2015");
    EXPECT_EQ(agac.Bayt(u"Bahçe/2014/Gider.dat"), "2014");

    // Under its old name the hall still has everything.
    SalonEkle(u"bahçe");
    kullanici.SalonSec(u"Bahçe");
    for (int yil = 2010; yil <= 2015; ++yil)
        EXPECT_EQ(Musteri(yil), u"Yıl " + SayiMetni(yil));
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"K\xFDr Bah\xE7\x65si\"\r\n\"G\xFCl\"\r\n\"Bah\xE7\x65\"\r\n");
}

TEST_F(SalonVeMenu, Deleted_hall_comes_back_with_all_its_bytes) {
    agac.Koy(u"Salon.dat", "\"G\xFCl\"\r\n\"Bah\xE7\x65\"\r\n");
    RezervasyonKoy(u"Gül", 2012);
    kullanici.ProgramiAc();
    const std::string once = agac.Bayt(u"Gül/2012/20.06.2012 - Gece");
    SalonlarAcikken([this](FormSalonTanim& tanim) {
        SatiraTikla(tanim.List1, 0, [&] { tanim.List1_Click(); });
        kullanici.ortam.Bekle(
            BeklenenKutu{u"Velora",
                         u"Seçili salonu silerseniz bu salona ait rezervasyonları göremezsiniz!\nSeçili "
                         u"salonu silmek istediğinize emin misiniz?",
                         Simge::Soru, Cevap::Evet});
        VELORA_BAS(Prog().FormSalonTanim, Command2);
    });
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Bahçe");
    EXPECT_EQ(Musteri(2012), u"");
    SalonEkle(u"GÜL");
    kullanici.SalonSec(u"Gül");
    EXPECT_NE(kullanici.Goz(20, 6, kGece).tag, u"");
    EXPECT_EQ(agac.Bayt(u"Gül/2012/20.06.2012 - Gece"), once);
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"Bah\xE7\x65\"\r\n\"G\xFCl\"\r\n");
}

} // namespace velora::test
