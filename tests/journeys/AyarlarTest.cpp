// An evening over the settings: colours are tried out, dropped, tried again and kept.
#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "setup/FormAyarlar.h"
#include "setup/FormRenk.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

class Ayarlama : public ::testing::Test {
  protected:
    static constexpr auto kGunduz = velora::GunduzGece::Gunduz;
    static constexpr auto kGece = velora::GunduzGece::Gece;

    Ayarlama() {
        agac.Koy(u"Salon.dat", "\"\xDEi\xFEli\"\r\n");
        KayitKoy(agac, u"Şişli/2012/20.06.2012 - Gece");
        kullanici.ProgramiAc();
    }

    FormAyarlar& Ayarlar() { return *kullanici.Prog().FormAyarlar.Tut(); }
    /// Opens the settings; `is` is done on them while they stand.
    void AyarlarAcikken(std::function<void()> is) {
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormAyarlar, std::move(is)});
        kullanici.KomutSec(Komut::Progrset);
    }
    /// Clicks a colour box, drags over the chart to this colour and presses "Tamam".
    void RenkSec(int no, RenkDegeri renk) {
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk, [this, renk] {
                                                const auto secici = kullanici.Prog().FormRenk.Tut();
                                                secici->Picture1_MouseDown(0x123456);
                                                secici->Picture1_MouseMove(renk);
                                                secici->Picture1_MouseUp();
                                                VELORA_BAS(kullanici.Prog().FormRenk, Command1);
                                            }});
        Ayarlar().Renk_Click(no);
    }
    void SiraMesajiBekle() {
        kullanici.ortam.Bekle(BeklenenKutu{
            u"Velora", u"Yaptığınız yarı gün değişikliği programı yeniden başlattığınızda çalışacaktır!"});
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_F(Ayarlama, Tried_and_dropped_settings_leave_no_trace_but_the_paint_of_the_table) {
    const std::string once = agac.Resim();
    AyarlarAcikken([this] {
        RenkSec(12, 0x332211);
        Tikla(Ayarlar().Check3);
        Tikla(Ayarlar().Aylar[6]);
        EXPECT_EQ(kullanici.Goz(20, 6, kGece).zemin, 192) << "picked, not yet applied";
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command4);
        EXPECT_EQ(kullanici.Goz(20, 6, kGece).zemin, 0x332211);
        EXPECT_FALSE(kullanici.Goz(1, 7, kGece).gorunur);
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command2);
    });
    EXPECT_EQ(kullanici.Goz(20, 6, kGece).zemin, 0x332211);
    EXPECT_FALSE(kullanici.Goz(1, 7, kGece).gorunur);
    kullanici.Tablo().Command1();
    EXPECT_EQ(kullanici.Goz(20, 6, kGece).zemin, 192);
    EXPECT_TRUE(kullanici.Goz(1, 7, kGece).gorunur);
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(Ayarlama, Saved_settings_come_back_at_the_next_start_with_the_new_slot_order) {
    const double ilkUst = kullanici.Tablo().satirlar[Satir(6, kGunduz)].ust;
    AyarlarAcikken([this] {
        RenkSec(2, 0x00FF7F);
        AlanaYaz(Ayarlar().UyariGun, u"x3");
        Tikla(Ayarlar().Check1);
        Tikla(Ayarlar().Aylar[2]);
        SiraMesajiBekle();
        ListedenSec(Ayarlar().GunduzGece, u"Gündüz / Gece");
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    });
    EXPECT_FALSE(kullanici.Prog().FormRenk.Yuklu());
    EXPECT_EQ(
        agac.Bayt(u"Settings.dll"),
        "32768,16777215,65407,0,16777215,0,255,16777215,6086641,0,15461355,0,192,16777215,192,16777215,"
        "255,12632256,16777215,65280,16777215,49152,16777215,16761087,0,\"3\",\"10\",1,1,\"G\xFCnd\xFCz "
        "/ Gece\",1,1,0\r\n");
    EXPECT_EQ(agac.Bayt(u"Visible.dll"), "1,0,1,1,1,1,1,1,1,1,1,1,1\r\n");

    kullanici.ProgramiKapat();
    kullanici.ProgramiAc();
    EXPECT_LT(kullanici.Tablo().satirlar[Satir(6, kGunduz)].ust,
              kullanici.Tablo().satirlar[Satir(6, kGece)].ust);
    EXPECT_LT(kullanici.Tablo().satirlar[Satir(6, kGunduz)].ust, ilkUst);
    EXPECT_EQ(kullanici.Goz(20, 6, kGunduz).zemin, 0x00FF7F);
    EXPECT_EQ(kullanici.Goz(14, 6, kGunduz).zemin, 12632256) << "yesterday, as the past days are shown now";
    EXPECT_FALSE(kullanici.Goz(1, 2, kGece).gorunur);
    EXPECT_EQ(Ayarlar().UyariGun.metin, u"3");
}

TEST_F(Ayarlama, Defaults_are_saved_over_own_settings) {
    AyarlarAcikken([this] {
        RenkSec(0, 1);
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    });
    ASSERT_EQ(agac.Bayt(u"Settings.dll").substr(0, 2), "1,");
    AyarlarAcikken([this] {
        EXPECT_EQ(Ayarlar().Renk(0), 1);
        SiraMesajiBekle(); // of the defaults
        SiraMesajiBekle(); // of the save, which applies once more
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command3);
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    });
    EXPECT_EQ(agac.Bayt(u"Settings.dll"), KodYaz(AyarMetni()));
    EXPECT_EQ(kullanici.Tablo().AyZemin[1].zemin, 32768);
}

} // namespace velora::test
