#include "maintenance/FormYedekAl.h"

#include <fstream>

#include <gtest/gtest.h>

#include "destek/Ariza.h"
#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

namespace fs = std::filesystem;

/// Paths as this system writes them.
class FormYedekAlTest : public ::testing::Test {
  protected:
    FormYedekAlTest() {
        agac.Koy(u"Salon.dat", "\"Lale\"\r\n");
        agac.Koy(u"User.dll", "\"admin\",\"velora\"\r\n");
        agac.Koy(u"Lale/2026/07.03.2026 - Gece", "rez");
        ortam.yedekKlasoru = Hedef();
    }

    fs::path Hedef(const char* ad = "") const { return agac.Disi() / "yedek" / ad; }
    static std::string Bayt(const fs::path& yol) {
        std::ifstream dosya(yol, std::ios::binary);
        return {std::istreambuf_iterator<char>(dosya), {}};
    }
    void Kutu(const Metin& metin) { ortam.Bekle(BeklenenKutu{u"Velora", metin}); }
    void Bas() { VELORA_BAS(program.FormYedekAl, cmdStart); }
    std::vector<Metin> Saklananlar(MetinBakis anahtar) const {
        std::vector<Metin> degerler;
        for (const SaklananAyar& ayar : ortam.ayarlar) {
            EXPECT_EQ(ayar.bolum, u"Settings");
            if (ayar.anahtar == anahtar)
                degerler.push_back(ayar.deger);
        }
        return degerler;
    }

    const Metin bitti = u"Yedekleme işleminiz başarıyla tamamlandı!";
    const Metin seciniz = u"Lütfen dizin seçiniz!";
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2026}, std::chrono::month{3}, std::chrono::day{7}}};
    Program program{ortam.Ver(), agac.Kok()};
};

} // namespace

TEST_F(FormYedekAlTest, It_opens_with_the_programs_folder_and_the_default_target) {
    const auto ekran = program.FormYedekAl.Tut();
    EXPECT_EQ(ekran->baslik, u"Yedekleme İşlemleri");
    EXPECT_EQ(ekran->Label8.baslik, u"Yedekleme İşlemleri");
    EXPECT_EQ(ekran->txtSource.baslik, u"Kaynak Dizin");
    EXPECT_EQ(ekran->txtDestination.baslik, u"Hedef Dizin");
    EXPECT_EQ(ekran->cmdStart.baslik, u"Tamam");
    EXPECT_EQ(ekran->Command3.baslik, u"Kapat");
    EXPECT_EQ(ekran->Label9.baslik, u"Yedek alınıyor... Lütfen bekleyiniz...");
    EXPECT_FALSE(ekran->Label9.gorunur);
    EXPECT_EQ(ekran->txtSource.metin, YolMetni(agac.Kok()));
    EXPECT_EQ(ekran->txtDestination.metin, YolMetni(Hedef()));
    EXPECT_EQ(ekran->txtMins.metin, u"1");
    EXPECT_EQ(ekran->chkFolderChange.deger, 0);
    EXPECT_EQ(ekran->chkFolderChange.baslik, u"on Folder Change");
    EXPECT_EQ(ekran->txtMins.baslik + u" " + ekran->txtMins.sonra, u"Back up Every: minute(s)");
    EXPECT_EQ(ekran->txtFileType.baslik, u"File Type");
    EXPECT_EQ(ekran->chkStartwithWindows.baslik, u"Start With Windows?");
    EXPECT_EQ(ekran->Timer1.aralik, 0);
}

TEST_F(FormYedekAlTest, The_target_comes_from_its_file) {
    agac.Koy(u"BackupSetting.dat", "\"/mnt/usb \xFE/VRYedek\"\r\n");
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, u"/mnt/usb ş/VRYedek");
    program.FormYedekAl.Bosalt();
    agac.Koy(u"BackupSetting.dat", "\"\"\r\n");
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, u"");
    program.FormYedekAl.Bosalt();
    agac.Koy(u"BackupSetting.dat", "");
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, YolMetni(Hedef()));
}

TEST_F(FormYedekAlTest, A_kept_target_that_is_another_systems_path_is_passed_over_on_purpose) {
    agac.Koy(u"BackupSetting.dat", "\"C:\\VRYedek\"\r\n");
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, YolMetni(Hedef()));
}

TEST_F(FormYedekAlTest, A_kept_target_that_could_not_be_read_stays_and_the_backup_goes_to_the_one_shown) {
    const std::string kalan = "\"" + Hedef("baska").string() + "\"\r\n";
    agac.Koy(u"BackupSetting.dat", kalan);
    const auto bozuldu = BirKezOkunmaz(program.dosyalar, u"BackupSetting.dat");
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, YolMetni(Hedef()));
    EXPECT_TRUE(*bozuldu);
    Kutu(bitti);
    Bas();
    EXPECT_EQ(agac.Bayt(u"BackupSetting.dat"), kalan);
    EXPECT_EQ(Bayt(Hedef("07_03_2026/BackupSetting.dat")), kalan);
}

TEST_F(FormYedekAlTest, A_backup_copies_the_tree_into_the_folder_of_the_day) {
    Kutu(bitti);
    program.FormYedekAl.Tut();
    Bas();
    EXPECT_EQ(Bayt(Hedef("07_03_2026/Salon.dat")), "\"Lale\"\r\n");
    EXPECT_EQ(Bayt(Hedef("07_03_2026/User.dll")), "\"admin\",\"velora\"\r\n");
    EXPECT_EQ(Bayt(Hedef("07_03_2026/Lale/2026/07.03.2026 - Gece")), "rez");
    EXPECT_FALSE(program.FormYedekAl.Yuklu());
}

TEST_F(FormYedekAlTest, The_target_is_kept_before_anything_else) {
    const std::string beklenen = "\"" + Hedef("x").string() + "\"\r\n";
    program.FormYedekAl->txtDestination.metin = YolMetni(Hedef("x"));
    ortam.olayda = [&](int sira) {
        if (sira == 1) {
            EXPECT_EQ(agac.Bayt(u"BackupSetting.dat"), beklenen);
            EXPECT_TRUE(fs::is_directory(Hedef("x/07_03_2026")));
            EXPECT_TRUE(fs::is_empty(Hedef("x/07_03_2026")));
        }
    };
    fs::create_directory(Hedef());
    Kutu(bitti);
    Bas();
    EXPECT_EQ(Bayt(Hedef("x/07_03_2026/BackupSetting.dat")), beklenen);
}

TEST_F(FormYedekAlTest, While_it_runs_it_says_so_and_cannot_be_started_again) {
    program.FormYedekAl.Tut();
    int gorulen = 0;
    ortam.olayda = [&](int) {
        if (!program.FormYedekAl.Yuklu())
            return; // behind its end
        const auto ekran = program.FormYedekAl.Tut();
        EXPECT_TRUE(ekran->Label9.gorunur);
        EXPECT_FALSE(ekran->cmdStart.etkin);
        ekran->cmdStart_Click();
        ++gorulen;
    };
    Kutu(bitti);
    Bas();
    EXPECT_GE(gorulen, 5); // three files, the kept target and folders
}

TEST_F(FormYedekAlTest, A_source_that_was_given_up_is_told_and_leaves_the_screen_as_it_is_on_purpose) {
    ortam.Bekle(BeklenenKlasor{u"Select directory..."});
    program.FormYedekAl->Command1_Click();
    EXPECT_EQ(program.FormYedekAl->txtSource.metin, u"");
    Kutu(seciniz);
    Bas();
    ASSERT_TRUE(program.FormYedekAl.Yuklu());
    EXPECT_TRUE(program.FormYedekAl->Label9.gorunur);
    EXPECT_FALSE(program.FormYedekAl->cmdStart.etkin);
    EXPECT_EQ(program.FormYedekAl->cmdStart.baslik, u"Tamam");
}

TEST_F(FormYedekAlTest, Without_a_source_the_target_is_kept_and_the_folder_of_the_day_made_on_purpose) {
    program.FormYedekAl->txtSource.metin.clear();
    Kutu(seciniz);
    Bas();
    EXPECT_EQ(agac.Bayt(u"BackupSetting.dat"), "\"" + Hedef().string() + "\"\r\n");
    EXPECT_TRUE(fs::is_directory(Hedef("07_03_2026")));
    EXPECT_TRUE(fs::is_empty(Hedef("07_03_2026")));
}

TEST_F(FormYedekAlTest, Without_minutes_and_a_source_the_same_is_told_twice_on_purpose) {
    program.FormYedekAl->txtSource.metin.clear();
    program.FormYedekAl->txtMins.metin.clear();
    Kutu(seciniz);
    Kutu(seciniz);
    Bas();
    EXPECT_TRUE(program.FormYedekAl.Yuklu());
}

TEST_F(FormYedekAlTest, A_start_with_the_system_that_is_ticked_changes_nothing_in_a_backup_on_purpose) {
    const auto ekran = program.FormYedekAl.Tut();
    Tikla(ekran->chkStartwithWindows);
    EXPECT_EQ(ekran->chkStartwithWindows.deger, 1);
    const auto saklananlar = ortam.ayarlar;
    Kutu(bitti);
    Bas();
    EXPECT_EQ(Bayt(Hedef("07_03_2026/Lale/2026/07.03.2026 - Gece")), "rez");
    EXPECT_EQ(ortam.ayarlar, saklananlar);
    EXPECT_EQ(ekran->cmdStart.baslik, u"Başla");
    EXPECT_EQ(ekran->Timer1.aralik, 0);
    EXPECT_TRUE(ortam.izlenen.empty());
    EXPECT_TRUE(ortam.calisanlar.empty());
}

TEST_F(FormYedekAlTest, Without_minutes_it_is_told_and_the_backup_is_taken_on_purpose) {
    program.FormYedekAl->txtMins.metin.clear();
    Kutu(seciniz);
    Kutu(bitti);
    Bas();
    EXPECT_TRUE(fs::exists(Hedef("07_03_2026/Salon.dat")));
}

TEST_F(FormYedekAlTest, A_chosen_folder_goes_to_its_field) {
    ortam.Bekle(BeklenenKlasor{u"Select directory...", u"/veri/öteki"});
    ortam.Bekle(BeklenenKlasor{u"Select directory...", u"/mnt//usb"});
    program.FormYedekAl->Command1_Click();
    program.FormYedekAl->Command2_Click();
    EXPECT_EQ(program.FormYedekAl->txtSource.metin, u"/veri/öteki");
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, u"/mnt/usb/VRYedek");
}

TEST_F(FormYedekAlTest, A_target_that_was_given_up_becomes_the_bare_name_on_purpose) {
    ortam.Bekle(BeklenenKlasor{u"Select directory..."});
    program.FormYedekAl->Command2_Click();
    EXPECT_EQ(program.FormYedekAl->txtDestination.metin, u"/VRYedek");
}

TEST_F(FormYedekAlTest, A_second_backup_of_the_day_copies_what_has_changed_and_another_day_has_its_own) {
    program.FormYedekAl.Tut();
    Kutu(bitti);
    Bas();
    agac.Koy(u"Lale/2026/08.03.2026 - Gece", "yeni");
    fs::remove(agac.Yol(u"User.dll"));
    const fs::path ayni = Hedef("07_03_2026/Salon.dat");
    const auto zaman = fs::last_write_time(ayni);
    std::ofstream(ayni) << "\"Itir\"\r\n"; // as long as before: a copy would put it right
    fs::last_write_time(ayni, zaman);
    program.FormYedekAl.Tut();
    Kutu(bitti);
    Bas();
    EXPECT_EQ(Bayt(Hedef("07_03_2026/Lale/2026/08.03.2026 - Gece")), "yeni");
    EXPECT_TRUE(fs::exists(Hedef("07_03_2026/User.dll"))) << "nothing is ever deleted";
    EXPECT_EQ(Bayt(ayni), "\"Itir\"\r\n");
    ortam.simdi += std::chrono::days(1);
    program.FormYedekAl.Tut();
    Kutu(bitti);
    Bas();
    EXPECT_EQ(Bayt(Hedef("08_03_2026/Salon.dat")), "\"Lale\"\r\n");
}

TEST_F(FormYedekAlTest, Every_opening_is_named_Tamam_again_and_nothing_starts_by_itself_on_purpose) {
    for (int kez = 0; kez < 2; ++kez) {
        const auto ekran = program.FormYedekAl.Tut();
        EXPECT_EQ(ekran->cmdStart.baslik, u"Tamam");
        Kutu(bitti);
        Bas();
        EXPECT_EQ(ekran->cmdStart.baslik, u"Başla"); // on the screen that has gone
        EXPECT_EQ(ekran->Timer1.aralik, 0);
    }
}

TEST_F(FormYedekAlTest, A_target_within_the_source_ends_and_is_not_copied_into_itself) {
    program.FormYedekAl->txtDestination.metin = YolMetni(agac.Kok() / "VRYedek");
    agac.Koy(u"VRYedek/06_03_2026/Salon.dat", "dün");
    Kutu(bitti);
    Bas();
    EXPECT_EQ(agac.Bayt(u"VRYedek/07_03_2026/Salon.dat"), "\"Lale\"\r\n");
    EXPECT_FALSE(agac.Var(u"VRYedek/07_03_2026/VRYedek"));
}

TEST_F(FormYedekAlTest, Whatever_fails_it_says_that_it_succeeded_on_purpose) {
    std::ofstream(Hedef().parent_path() / "dosya") << "x";
    program.FormYedekAl->txtDestination.metin = YolMetni(Hedef().parent_path() / "dosya" / "alt");
    Kutu(bitti);
    Bas();
    program.FormYedekAl->txtSource.metin = u"/böyle/bir yer yok";
    Kutu(bitti);
    Bas();
    EXPECT_FALSE(fs::exists(Hedef("07_03_2026/Salon.dat")));
}

TEST_F(FormYedekAlTest, Closed_in_the_middle_it_goes_to_its_end_and_its_message) {
    program.FormYedekAl.Tut();
    ortam.olayda = [&](int sira) {
        if (sira == 2)
            program.FormYedekAl->Command3_Click();
        EXPECT_EQ(program.FormYedekAl.Yuklu(), sira < 2);
    };
    Kutu(bitti);
    Bas();
    EXPECT_EQ(Bayt(Hedef("07_03_2026/Lale/2026/07.03.2026 - Gece")), "rez");
    EXPECT_FALSE(program.FormYedekAl.Yuklu());
}

TEST_F(FormYedekAlTest, Closed_and_opened_anew_in_the_middle_the_new_one_stays) {
    program.FormYedekAl.Tut();
    ortam.olayda = [&](int sira) {
        if (sira == 2) {
            program.FormYedekAl->Command3_Click();
            program.FormYedekAl->txtMins.metin = u"5";
        }
    };
    Kutu(bitti);
    Bas();
    ASSERT_TRUE(program.FormYedekAl.Yuklu());
    EXPECT_EQ(program.FormYedekAl->txtMins.metin, u"5");
}

TEST_F(FormYedekAlTest, The_end_of_the_program_ends_it_where_it_is_and_no_message_comes) {
    program.FormYedekAl.Tut();
    ortam.olayda = [&](int sira) { ortam.bitti = sira == 2; }; // behind the first file
    Bas();
    EXPECT_EQ(ortam.olaySayisi, 2);
    EXPECT_FALSE(fs::exists(Hedef("07_03_2026/Lale")));
}

TEST_F(FormYedekAlTest, Pressed_by_another_screen_it_needs_no_window) {
    Kutu(bitti);
    program.FormYedekAl->cmdStart_Click();
    EXPECT_TRUE(ortam.acilanlar.empty());
    EXPECT_FALSE(program.FormYedekAl.Yuklu());
    EXPECT_TRUE(fs::exists(Hedef("07_03_2026/Salon.dat")));
}

TEST_F(FormYedekAlTest, Each_change_of_four_fields_is_kept_in_the_settings) {
    agac.Koy(u"BackupSetting.dat", "\"/bir\"\r\n");
    const auto ekran = program.FormYedekAl.Tut();
    AlanaYaz(ekran->txtSource, u"/iki", {[&] { ekran->txtSource_Change(); }, {}});
    ortam.Bekle(BeklenenKlasor{u"Select directory...", u"/üç"});
    ekran->Command2_Click();
    AlanaYaz(ekran->txtMins, u"7", {[&] { ekran->txtMins_Change(); }, {}});
    Tikla(ekran->chkFolderChange);
    Tikla(ekran->chkStartwithWindows); // nobody reads it
    EXPECT_EQ(Saklananlar(u"txtSource").front(), YolMetni(agac.Kok()));
    EXPECT_EQ(Saklananlar(u"txtSource").back(), u"/iki");
    EXPECT_EQ(Saklananlar(u"txtDestination"), (std::vector<Metin>{u"/bir", u"/üç/VRYedek"}));
    EXPECT_EQ(Saklananlar(u"txtMins").back(), u"7");
    EXPECT_EQ(Saklananlar(u"chkFolderChange"), std::vector<Metin>{u"1"});
    EXPECT_TRUE(Saklananlar(u"chkStartwithWindows").empty());
}

TEST_F(FormYedekAlTest, Named_Basla_it_sets_the_clock_in_seconds_whatever_the_caption_says_on_purpose) {
    const auto ekran = program.FormYedekAl.Tut();
    ekran->cmdStart.baslik = u"Başla";
    ekran->txtMins.metin = u"7";
    Kutu(bitti);
    Bas();
    EXPECT_EQ(ekran->Timer1.aralik, 7000);
    EXPECT_EQ(ekran->cmdStart.baslik, u"Başla");
    ekran->Timer1.Calis();
    EXPECT_EQ(Bayt(Hedef("Salon.dat")), "\"Lale\"\r\n") << "into the target itself";
    EXPECT_FALSE(fs::exists(Hedef("yedek")));
}

TEST_F(FormYedekAlTest, Named_Basla_with_its_box_ticked_it_watches_the_source) {
    const auto ekran = program.FormYedekAl.Tut();
    ekran->cmdStart.baslik = u"Başla";
    ekran->chkFolderChange.Ata(1);
    Kutu(bitti);
    const Metin kok = YolMetni(agac.Kok());
    Kutu(u"Beginning watching of folder " + kok + u" .. press OK");
    Kutu(u"Watching has been terminated for " + kok);
    ortam.izlenir = false;
    Bas();
    EXPECT_EQ(ekran->Timer1.aralik, 0);
}

} // namespace velora::test
