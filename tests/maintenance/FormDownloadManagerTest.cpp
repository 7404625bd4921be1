#include "maintenance/FormDownloadManager.h"

#include <array>

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "maintenance/FormYedekAl.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

const Metin kSurumAdresi = u"http://site.test/a/update/Velora.exe";
constexpr std::string_view kYeniProgram = "MZ\x90 yeni program";

} // namespace

class FormDownloadManagerTest : public ::testing::Test {
  protected:
    FormDownloadManagerTest() {
        agac.Koy(u"Adresler.dat", "\"\",\"http://site.test/a/\",\"\",\"\"\r\n");
        ortam.yedekKlasoru = agac.Disi() / "yedek";
    }

    FormDownloadManager& Ekran() { return *program.FormDownloadManager.Tut(); }
    void Gelecek(const std::function<void(std::size_t)>& is = {}) {
        ortam.Bekle(
            BeklenenAktarim{kSurumAdresi,
                            u"HTTP/1.1 206 Partial\r\nContent-Length: 16\r\n\r\n",
                            {std::string(kYeniProgram.substr(0, 4)), std::string(kYeniProgram.substr(4))},
                            is});
    }
    void Indir() {
        Gelecek();
        ortam.Bekle(BeklenenKutu{u"Yeni Sürüm", u"Programın yeni sürümü başarıyla indirildi..."});
        program.FormDownloadManager->Activate();
    }
    void HataBekle(const std::function<void()>& is = {}) {
        ortam.Bekle(BeklenenKutu{
            .baslik = u"Hata",
            .metin = u"İndirme sırasında hata oluştu! Lütfen internet bağlantınızı kontrol ediniz.",
            .simge = Simge::Kritik,
            .is = is});
    }
    void YedekBekle(const std::function<void()>& is = {}) {
        ortam.Bekle(BeklenenKutu{
            .baslik = u"Velora", .metin = u"Yedekleme işleminiz başarıyla tamamlandı!", .is = is});
    }
    /// Whether a backup holds this file of the program's folder.
    bool Yedekte(const char* ad) const {
        std::error_code hata;
        for (const auto& gun : std::filesystem::directory_iterator(agac.Disi() / "yedek", hata))
            if (std::filesystem::exists(gun.path() / ad))
                return true;
        return false;
    }
    /// Lets the bar run as far as its timer does.
    int Tikler() {
        int tik = 0;
        for (; program.FormDownloadManager.Yuklu() && Ekran().Timer1.aralik > 0 && tik < 1000; ++tik)
            program.FormDownloadManager->Timer1.Calis();
        return tik;
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(FormDownloadManagerTest, A_new_version_is_fetched_and_the_screen_turns_to_the_backup) {
    Gelecek([&](std::size_t sira) {
        EXPECT_EQ(Ekran().Command.baslik, u"Durdur");
        EXPECT_EQ(Ekran().ProgressBar.deger, (std::array{0, 0, 25, 100}.at(sira)));
    });
    ortam.Bekle(BeklenenKutu{u"Yeni Sürüm", u"Programın yeni sürümü başarıyla indirildi..."});
    program.FormDownloadManager->Activate();
    EXPECT_EQ(agac.Bayt(u"VeloraYeni.exe"), kYeniProgram);
    EXPECT_EQ(Ekran().Command.baslik, u"Tekrar İndir");
    EXPECT_FALSE(Ekran().Command.etkin);
    EXPECT_EQ(Ekran().ProgressBar.deger, 0);
    EXPECT_EQ(Ekran().baslik, u"Backup Yöneticisi");
    EXPECT_EQ(Ekran().Label8.baslik, u"Backup Yöneticisi");
    EXPECT_EQ(Ekran().Label1.baslik, u"Programın Yedeği alınıyor lütfen bekleyin...");
    EXPECT_TRUE(ortam.calisanlar.empty());
}

TEST_F(FormDownloadManagerTest,
       The_bar_runs_to_100_in_less_than_a_second_and_the_updater_starts_behind_the_screen) {
    Indir();
    const int aralik = Ekran().Timer1.aralik;
    YedekBekle();
    ortam.olayda = [&](int) {
        if (!program.FormDownloadManager.Yuklu()) {
            EXPECT_TRUE(ortam.calisanlar.empty()) << "events run before it is started";
        }
    };
    EXPECT_EQ(Tikler(), 100);
    EXPECT_TRUE(Yedekte("Adresler.dat"));
    EXPECT_LE(100 * aralik, 1000);
    EXPECT_FALSE(program.FormDownloadManager.Yuklu());
    EXPECT_EQ(ortam.gizlenenler.back(), EkranAdi::FormDownloadManager);
    EXPECT_EQ(ortam.calisanlar, std::vector{agac.Kok() / "Update.exe"});
    EXPECT_GT(ortam.olaySayisi, 2);
}

TEST_F(FormDownloadManagerTest,
       A_system_that_cannot_start_the_updater_keeps_the_new_version_and_says_nothing) {
    ortam.calisir = false;
    Indir();
    YedekBekle();
    Tikler();
    EXPECT_EQ(ortam.calisanlar.size(), 1U);
    EXPECT_EQ(agac.Bayt(u"VeloraYeni.exe"), kYeniProgram);
    EXPECT_FALSE(program.FormDownloadManager.Yuklu());
}

TEST_F(FormDownloadManagerTest, The_updater_starts_also_when_nothing_could_be_backed_up_on_purpose) {
    ortam.yedekKlasoru = agac.Disi() / "yok" / "yok" / "yedek";
    agac.Koy(u"engel", "");
    Indir();
    YedekBekle();
    program.FormYedekAl->txtDestination.metin = YolMetni(agac.Kok() / "engel");
    Tikler();
    EXPECT_EQ(ortam.calisanlar.size(), 1U);
}

TEST_F(FormDownloadManagerTest, Closed_while_the_backup_is_taken_the_updater_starts_behind_it_on_purpose) {
    Indir();
    YedekBekle([&] { EXPECT_TRUE(ortam.calisanlar.empty()) << "the backup comes to its end before"; });
    int kapanan = 0;
    ortam.olayda = [&](int) {
        if (program.FormYedekAl.Yuklu() && program.FormDownloadManager.Yuklu()) {
            program.FormDownloadManager->Kapat();
            ++kapanan;
        }
    };
    Tikler();
    EXPECT_EQ(kapanan, 1);
    EXPECT_FALSE(program.FormDownloadManager.Yuklu()) << "it doesn't come back";
    EXPECT_FALSE(program.yigin.Acik(EkranAdi::FormDownloadManager));
    EXPECT_TRUE(Yedekte("Adresler.dat"));
    EXPECT_EQ(ortam.calisanlar, std::vector{agac.Kok() / "Update.exe"});
}

TEST_F(FormDownloadManagerTest, A_reply_of_no_length_says_nothing_and_can_be_tried_again_on_purpose) {
    ortam.Bekle(BeklenenAktarim{kSurumAdresi, u"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", {"abc"}});
    program.FormDownloadManager->Activate();
    ASSERT_TRUE(program.FormDownloadManager.Yuklu());
    EXPECT_EQ(Ekran().Command.baslik, u"Yeniden Dene");
    EXPECT_EQ(Ekran().baslik, u"Velora Yeni Sürüm");
    EXPECT_EQ(Ekran().Timer1.aralik, 0);
    EXPECT_FALSE(agac.Var(u"VeloraYeni.exe"));
    Indir();
    EXPECT_EQ(Ekran().Command.baslik, u"Tekrar İndir");
}

TEST_F(FormDownloadManagerTest, The_box_stands_before_the_button_the_bar_and_the_title_change) {
    const auto durur = [this](int yuzde) {
        EXPECT_EQ(Ekran().Command.baslik, u"Durdur");
        EXPECT_TRUE(Ekran().Command.etkin);
        EXPECT_EQ(Ekran().ProgressBar.deger, yuzde);
        EXPECT_EQ(Ekran().baslik, u"Velora Yeni Sürüm");
        EXPECT_EQ(Ekran().Label8.baslik, u"Yeni Sürüm");
        EXPECT_EQ(Ekran().Label1.baslik, u"Programın yeni sürümü indiriliyor lütfen bekleyin...");
        EXPECT_EQ(Ekran().Timer1.aralik, 0);
    };
    ortam.Bekle(BeklenenAktarim{kSurumAdresi, u"HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n", {"abc"}});
    HataBekle([&] { durur(75); });
    program.FormDownloadManager->Activate();
    Gelecek();
    ortam.Bekle(BeklenenKutu{.baslik = u"Yeni Sürüm",
                             .metin = u"Programın yeni sürümü başarıyla indirildi...",
                             .is = [&] { durur(100); }});
    program.FormDownloadManager->Command_Click();
    EXPECT_EQ(Ekran().baslik, u"Backup Yöneticisi");
}

TEST_F(FormDownloadManagerTest, Tekrar_Indir_cannot_be_pressed_while_the_backup_runs_on_purpose) {
    Indir();
    YedekBekle();
    int bakilan = 0;
    ortam.olayda = [&](int) {
        if (!program.FormDownloadManager.Yuklu())
            return;
        EXPECT_EQ(Ekran().Command.baslik, u"Tekrar İndir");
        EXPECT_FALSE(Ekran().Command.etkin);
        ++bakilan;
    };
    Tikler();
    EXPECT_GE(bakilan, 3);
}

TEST_F(FormDownloadManagerTest, A_failure_is_told_and_can_be_tried_again) {
    ortam.Bekle(BeklenenAktarim{kSurumAdresi, u"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n", {"abc"}});
    HataBekle();
    program.FormDownloadManager->Activate();
    EXPECT_EQ(Ekran().Command.baslik, u"Yeniden Dene");
    EXPECT_EQ(Ekran().ProgressBar.deger, 0);
    EXPECT_EQ(Ekran().Timer1.aralik, 0);
    EXPECT_FALSE(agac.Var(u"VeloraYeni.exe"));
    Indir();
    EXPECT_EQ(agac.Bayt(u"VeloraYeni.exe"), kYeniProgram);
}

TEST_F(FormDownloadManagerTest, A_stop_and_a_closed_window_leave_nothing_and_start_nothing) {
    Gelecek([&](std::size_t sira) {
        if (sira == 2)
            program.FormDownloadManager->Command_Click();
    });
    program.FormDownloadManager->Activate();
    EXPECT_EQ(Ekran().Command.baslik, u"Yeniden Dene");
    EXPECT_FALSE(agac.Var(u"VeloraYeni.exe"));
    Gelecek([&](std::size_t sira) {
        if (sira == 1)
            program.FormDownloadManager->Kapat();
    });
    program.FormDownloadManager->Command_Click();
    EXPECT_FALSE(program.FormDownloadManager.Yuklu());
    EXPECT_FALSE(agac.Var(u"VeloraYeni.exe"));
    EXPECT_TRUE(ortam.calisanlar.empty());
}

TEST_F(FormDownloadManagerTest, Closed_while_the_bar_runs_it_takes_no_backup_and_starts_nothing) {
    Indir();
    for (int i = 0; i < 40; ++i)
        program.FormDownloadManager->Timer1.Calis();
    EXPECT_EQ(Ekran().ProgressBar.deger, 40);
    const auto ekran = program.FormDownloadManager.Tut();
    program.FormDownloadManager->Kapat();
    ekran->Timer1.Calis();
    EXPECT_EQ(ekran->ProgressBar.deger, 40);
    EXPECT_TRUE(ortam.calisanlar.empty());
    EXPECT_FALSE(program.FormYedekAl.Yuklu());
    EXPECT_FALSE(Yedekte("Adresler.dat"));
    EXPECT_EQ(agac.Bayt(u"VeloraYeni.exe"), kYeniProgram) << "what was fetched whole stays";
}

} // namespace velora::test
