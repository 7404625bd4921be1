#include "access/Splash.h"
#include "online/FormIpMac.h"
#include "screen/Surum.h"
#include "table/TabloTest.h"

namespace velora::test {

class TabloYukleme : public TabloTest {
  protected:
    /// How often a folder is listed at the start: once by each scan of the table.
    int TaramaSayisi() {
        int tarama = 0;
        kullanici.ProgramiAc();
        kullanici.Prog().FormTablo.Bosalt();
        kullanici.Prog().dosyalar.ariza = [&tarama](DosyaIsi is, const Metin&) {
            tarama += is == DosyaIsi::Listele ? 1 : 0;
            return false;
        };
        kullanici.Prog().FormTablo.Tut();
        return tarama;
    }
};

TEST_F(TabloYukleme, Title_is_the_name_and_the_version) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().baslik, u"Velora " + Metin(kSurum));
    EXPECT_EQ(kullanici.Tablo().baslik, u"Velora 2.0.5");
}

TEST_F(TabloYukleme, The_drop_downs_and_the_bell_have_their_texts) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Salon.baslik, u"Salon");
    EXPECT_EQ(kullanici.Tablo().Sene.baslik, u"Çalışma Yılı");
    EXPECT_EQ(kullanici.Tablo().image3Ipucu, u"Bu Tarihte Hatırlatma Var");
}

TEST_F(TabloYukleme, Halls_come_in_the_order_of_the_file_and_blank_ones_are_left_out) {
    agac.KoyMetin(u"Salon.dat",
                  u"\"Çınar. Bahçesi\"\r\n\"  \"\r\n\"\"\r\n\"Gül Salonu\"\r\n\"Gül Salonu\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Salon.ogeler,
              (std::vector<Metin>{u"Çınar. Bahçesi", u"Gül Salonu", u"Gül Salonu"}));
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Çınar. Bahçesi");
}

TEST_F(TabloYukleme, Trailing_blank_line_gives_no_second_hall) {
    agac.KoyMetin(u"Salon.dat", u"\"A\"\r\n\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Salon.ogeler, std::vector<Metin>{u"A"});
}

TEST_F(TabloYukleme, Years_go_from_ten_before_to_ten_after_the_current_one) {
    kullanici.ProgramiAc();
    const AcilirListe& sene = kullanici.Tablo().Sene;
    ASSERT_EQ(sene.ogeler.size(), 21U);
    EXPECT_EQ(sene.ogeler.front(), u"2002");
    EXPECT_EQ(sene.ogeler.back(), u"2022");
    EXPECT_EQ(sene.Metni(), u"2012");
}

TEST_F(TabloYukleme, Year_outside_the_list_cant_be_selected) {
    kullanici.ProgramiAc();
    const int onceki = kullanici.ortam.olaySayisi;
    kullanici.Tablo().Sene.Sec(MetinBakis(u"2030"));
    EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2012");
    EXPECT_EQ(kullanici.ortam.olaySayisi, onceki) << "nothing ran";
}

TEST_F(TabloYukleme, Every_hall_gets_its_folder_and_the_folder_of_the_current_year) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Çınar. Kır Bahçesi\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_TRUE(agac.KlasorVar(u"Salon A/2012"));
    EXPECT_TRUE(agac.KlasorVar(u"Çınar. Kır Bahçesi/2012"));
    EXPECT_FALSE(agac.KlasorVar(u"Salon A/2013"));
}

TEST_F(TabloYukleme, Empty_hall_list_makes_no_year_folder_in_the_root) {
    agac.Koy(u"Salon.dat", "");
    kullanici.ProgramiAc();
    EXPECT_FALSE(agac.KlasorVar(u"2012"));
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"");
    EXPECT_EQ(kullanici.Tablo().Salon.secili, -1);
    RenkOlmali(5, 1, kGunduz, 2, 3);
}

// Literal: with no hall the path of the year is a folder directly in the root.
TEST_F(TabloYukleme, Year_click_without_a_hall_makes_the_year_folder_in_the_root_on_purpose) {
    std::filesystem::remove(agac.Yol(u"Salon.dat"));
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    EXPECT_TRUE(agac.KlasorVar(u"2013"));
}

TEST_F(TabloYukleme, Year_click_makes_only_the_year_folder_of_the_selected_hall) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    EXPECT_TRUE(agac.KlasorVar(u"Salon A/2013"));
    EXPECT_FALSE(agac.KlasorVar(u"Salon B/2013"));
}

// A hall folder removed by hand comes back at the next start, not at a change of the year.
TEST_F(TabloYukleme, Year_click_does_not_bring_back_a_hall_folder_that_is_gone_on_purpose) {
    kullanici.ProgramiAc();
    std::filesystem::remove_all(agac.Yol(u"Salon A"));
    kullanici.YilSec(u"2013");
    EXPECT_FALSE(agac.KlasorVar(u"Salon A"));
    kullanici.ProgramiAc();
    EXPECT_TRUE(agac.KlasorVar(u"Salon A/2012"));
}

// Selecting the first hall, the scan after it, the reminder look, and the scan that begins the warnings.
TEST_F(TabloYukleme, Start_scans_twice_looks_for_reminders_and_scans_for_the_warnings_on_purpose) {
    constexpr int kYillar = 21; // the warnings then look into each year of the hall
    EXPECT_EQ(TaramaSayisi(), 4 + kYillar);
}

TEST_F(TabloYukleme, Start_without_a_hall_scans_once_looks_for_reminders_and_scans_for_the_warnings) {
    std::filesystem::remove(agac.Yol(u"Salon.dat"));
    EXPECT_EQ(TaramaSayisi(), 3);
}

TEST_F(TabloYukleme, Start_sets_the_slow_clock) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Saatsay.aralik, 50'000);
    EXPECT_EQ(kullanici.Tablo().Dklabel, 0);
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0);
}

TEST_F(TabloYukleme, Showing_a_tree_that_was_carried_over_changes_no_byte_of_it) {
    agac.Koy(u"Salon.dat", "\"Salon A\"\r\n\"\xC7\xFDnar. B\xFC\xFC\"\r\n");
    agac.KlasorKoy(u"Çınar. Büü/2012");
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ad = u"Şükrü Ağaoğlu"}, true);
    agac.Koy(u"Tatiller.dll", "\"23.04.2010\",\"Ulusal\",\"Evet\",\"Genel\"\r\n");
    const std::string once = agac.Resim();
    kullanici.ProgramiAc();
    kullanici.SalonSec(u"Çınar. Büü");
    kullanici.SalonSec(u"Salon A");
    kullanici.Tablo().Command1();
    kullanici.ProgramiKapat();
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(TabloYukleme, Activate_sets_the_warning_colours_and_hides_only_an_empty_panel) {
    AyarKoy(15, u"1234");
    kullanici.ProgramiAc();
    FormTablo& tablo = kullanici.Tablo();
    EXPECT_EQ(tablo.Check1, 1);
    EXPECT_EQ(tablo.Picture1.zemin, 1234);
    EXPECT_EQ(tablo.UyariBaslik.yazi, 16777215);
    tablo.Picture1.gorunur = true;
    tablo.Picture1.zemin = 0;
    tablo.Liste.satirlar.push_back({{u"05.01.2012 - Gece"}, {}, 0});
    tablo.Activate();
    EXPECT_TRUE(tablo.Picture1.gorunur);
    EXPECT_EQ(tablo.Picture1.zemin, 1234);
    tablo.Liste.satirlar.clear();
    tablo.Activate();
    EXPECT_FALSE(tablo.Picture1.gorunur);
}

TEST_F(TabloYukleme, Activate_online_sets_the_announcement_check_and_offline_does_not) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0);
    kullanici.Prog().Splash->Check1 = 1;
    kullanici.Tablo().Activate();
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 2'500);
}

TEST_F(TabloYukleme, Activate_online_looks_the_key_of_the_computer_up_again_and_offline_does_not) {
    kullanici.ProgramiAc();
    const auto anahtar = [this] { return kullanici.Prog().FormIpMac->Label1.baslik; };
    EXPECT_EQ(anahtar(), u"00-1B-C4-0D-E0-9F");
    kullanici.ortam.donanim = DonanimAdresi{1, 2, 3, 4, 5, 0xF6};
    kullanici.Tablo().Activate();
    EXPECT_EQ(anahtar(), u"00-1B-C4-0D-E0-9F");
    kullanici.Prog().Splash->Check1 = 1;
    kullanici.Tablo().Activate();
    EXPECT_EQ(anahtar(), u"01-02-03-04-05-F6");
}

TEST_F(TabloYukleme, Each_activate_asks_for_the_service_again_as_long_as_it_has_not_answered) {
    const auto sorulur = [this](const Metin& cevap) {
        kullanici.ortam.Bekle(BeklenenIstek{u"http://servis.test/internetkontrol.php?ver=2.0.5", cevap, {}});
    };
    agac.KoyMetin(u"Adresler.dat", u"\"http://servis.test\",\"\",\"\",\"\"\r\n");
    kullanici.ProgramiAc();
    sorulur(u"NO");
    kullanici.ZamanGecir(1'000);
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0);
    EXPECT_EQ(kullanici.Tablo().InternetTimer.aralik, 0) << "one query for one activate";
    kullanici.Tablo().Activate();
    sorulur(u"OKEY");
    kullanici.ortam.Bekle(BeklenenIstek{
        u"http://servis.test/firmakontrol.php?firmaid=00-1B-C4-0D-E0-9F&a1=&a2=&a3=&a4=&a5=&a6=&a7=&"
        u"a8=Şehir Seçiniz&a9=&a10=Velora 2.0.5&a11=15.06.2012&a12=&a13=Salon Sayısı Seçiniz"});
    kullanici.ZamanGecir(200);
    EXPECT_EQ(kullanici.Prog().Splash->Check1, 1);
    EXPECT_EQ(kullanici.Prog().Splash->Check2, 0) << "only the start asks for the calendar";
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 2'500);
    kullanici.Tablo().Activate();
    kullanici.ZamanGecir(1'000);
}

TEST_F(TabloYukleme, Without_a_connection_an_activate_asks_nothing) {
    agac.KoyMetin(u"Adresler.dat", u"\"http://servis.test\",\"\",\"\",\"\"\r\n");
    kullanici.ortam.baglanti = false;
    kullanici.ProgramiAc();
    kullanici.ZamanGecir(1'000);
    EXPECT_EQ(kullanici.Tablo().InternetTimer.aralik, 0);
}

TEST_F(TabloYukleme, Change_of_hall_or_year_gives_the_focus_away_from_the_lists) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    kullanici.ProgramiAc();
    kullanici.ortam.odaklar.clear();
    kullanici.SalonSec(u"Salon B");
    kullanici.YilSec(u"2013");
    EXPECT_EQ(kullanici.ortam.odaklar, (std::vector<Metin>{u"Picture4", u"Picture4"}));
}

} // namespace velora::test
