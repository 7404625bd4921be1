// A backup whose screen is closed in the middle: the table goes on with it.
#include <fstream>

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "maintenance/FormYedekAl.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora::test {

namespace {

namespace fs = std::filesystem;

/// A firm whose table is shown, and folders beside it, each with files of its own.
class YedegiSurdurmeTest : public ::testing::Test {
  protected:
    YedegiSurdurmeTest() {
        agac.Koy(u"Salon.dat", "\"Lale\"\r\n");
        ortam.yedekKlasoru = agac.Disi() / "yedek";
        program.FormTablo.Goster();
        for (int i = 0; i < kDosya; ++i)
            DosyaKoy("kaynak", i);
    }

    void DosyaKoy(const fs::path& klasor, int no) const {
        fs::create_directories(agac.Disi() / klasor);
        std::ofstream(agac.Disi() / klasor / std::to_string(kIlkAd + no)) << no;
    }
    fs::path Yedek(const fs::path& ad = {}) const { return agac.Disi() / "yedek" / "07_03_2026" / ad; }
    /// How many files of that folder's kind are in the backup.
    int Kopya(const fs::path& klasor = {}) const {
        int adet = 0;
        std::error_code hata;
        for (const auto& oge : fs::directory_iterator(Yedek(klasor), hata))
            adet += oge.is_regular_file() ? 1 : 0;
        return adet;
    }
    /// Begins a backup of a folder and closes its screen behind so many files.
    void YaridaKapat(const fs::path& kaynak, int kacDosyadaSonra) {
        program.FormYedekAl->txtSource.metin = YolMetni(agac.Disi() / kaynak);
        ortam.olayda = [this, kapanis = ortam.olaySayisi + 1 + kacDosyadaSonra](int sira) {
            if (sira == kapanis)
                program.FormYedekAl->Command3_Click();
        };
        program.FormYedekAl->cmdStart_Click();
        ortam.olayda = {};
    }
    Zamanlayici& Saat() { return program.FormTablo->YedekTimer; }
    void BitisBekle(const std::function<void()>& is = {}) {
        ortam.Bekle(BeklenenKutu{
            .baslik = u"Velora", .metin = u"Yedekleme işleminiz başarıyla tamamlandı!", .is = is});
    }
    int SonunaDek() {
        int tik = 0;
        for (; Saat().aralik > 0 && tik < 10'000; ++tik)
            Saat().Calis();
        return tik;
    }

    static constexpr int kDosya = 200;
    static constexpr int kIlkAd = 1000; // names of one length: their order is that of their numbers
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2026}, std::chrono::month{3}, std::chrono::day{7}}};
    Program program{ortam.Ver(), agac.Kok()};
};

} // namespace

TEST_F(YedegiSurdurmeTest, Its_handler_returns_at_once_and_the_table_brings_it_to_its_end_and_its_message) {
    YaridaKapat("kaynak", 3);
    EXPECT_FALSE(program.FormYedekAl.Yuklu());
    EXPECT_EQ(Kopya(), 3);
    Saat().Calis();
    EXPECT_GT(Kopya(), 3);
    EXPECT_LT(Kopya(), kDosya) << "a tick is short";
    BitisBekle();
    EXPECT_GE(SonunaDek(), 2);
    EXPECT_EQ(Kopya(), kDosya);
}

TEST_F(YedegiSurdurmeTest, A_tick_ends_behind_the_file_that_has_taken_long) {
    for (const char* ad : {"1", "2", "3"}) {
        fs::create_directories(agac.Disi() / "uzun");
        std::ofstream(agac.Disi() / "uzun" / ad) << ad;
    }
    fs::resize_file(agac.Disi() / "uzun/2", 64U << 20U); // no disk takes so much in a moment
    YaridaKapat("uzun", 1);
    Saat().Calis();
    EXPECT_TRUE(fs::exists(Yedek("2")));
    EXPECT_FALSE(fs::exists(Yedek("3")));
    BitisBekle();
    SonunaDek();
    EXPECT_TRUE(fs::exists(Yedek("3")));
}

TEST_F(YedegiSurdurmeTest, Closed_before_the_first_file_and_behind_the_last_one_it_is_the_same) {
    for (const int kez : {0, kDosya}) {
        YaridaKapat("kaynak", kez);
        EXPECT_EQ(Kopya(), kez);
        BitisBekle();
        SonunaDek();
        EXPECT_EQ(Kopya(), kDosya);
        EXPECT_EQ(Saat().aralik, 0);
    }
}

TEST_F(YedegiSurdurmeTest, Several_go_on_one_behind_the_other_each_to_its_own_message) {
    for (int i = 0; i < 3; ++i)
        DosyaKoy("öteki", 500 + i);
    YaridaKapat("kaynak", 3);
    YaridaKapat("öteki", 1);
    EXPECT_EQ(Kopya(), 4);
    BitisBekle([&] {
        EXPECT_EQ(Kopya(), 1 + kDosya) << "the second one waits for its turn";
        EXPECT_GT(Saat().aralik, 0);
    });
    BitisBekle();
    SonunaDek();
    EXPECT_EQ(Kopya(), 3 + kDosya);
}

TEST_F(YedegiSurdurmeTest, Opened_anew_meanwhile_it_takes_another_backup_to_its_own_end) {
    DosyaKoy("öteki", 500);
    YaridaKapat("kaynak", 3);
    EXPECT_EQ(program.FormYedekAl->cmdStart.baslik, u"Tamam");
    EXPECT_TRUE(program.FormYedekAl->cmdStart.etkin);
    program.FormYedekAl->txtSource.metin = YolMetni(agac.Disi() / "öteki");
    BitisBekle();
    program.FormYedekAl->cmdStart_Click();
    EXPECT_TRUE(fs::exists(Yedek("1500")));
    EXPECT_EQ(Kopya(), 4) << "the rest waits while a handler runs";
    BitisBekle();
    SonunaDek();
    EXPECT_EQ(Kopya(), 1 + kDosya);
}

TEST_F(YedegiSurdurmeTest, Closed_and_opened_anew_at_once_the_new_one_stays_and_the_rest_goes_to_the_table) {
    ortam.olayda = [this, kapanis = ortam.olaySayisi + 3](int sira) {
        if (sira != kapanis)
            return;
        program.FormYedekAl->Command3_Click();
        program.FormYedekAl->txtMins.metin = u"5";
    };
    program.FormYedekAl->txtSource.metin = YolMetni(agac.Disi() / "kaynak");
    program.FormYedekAl->cmdStart_Click();
    EXPECT_EQ(Kopya(), 2);
    BitisBekle();
    SonunaDek();
    ASSERT_TRUE(program.FormYedekAl.Yuklu());
    EXPECT_EQ(program.FormYedekAl->txtMins.metin, u"5");
}

TEST_F(YedegiSurdurmeTest, The_end_of_the_program_ends_it_where_it_is_and_no_message_comes) {
    YaridaKapat("kaynak", 3);
    ortam.bitti = true;
    EXPECT_LE(SonunaDek(), 1);
    EXPECT_EQ(Kopya(), 3);
}

TEST_F(YedegiSurdurmeTest, It_goes_on_while_other_windows_wait_but_its_message_waits_for_them) {
    EXPECT_TRUE(Saat().sakin) << "never within a handler";
    YaridaKapat("kaynak", kDosya - 1);
    EXPECT_TRUE(Saat().beklerken);
    Saat().Calis();
    EXPECT_EQ(Kopya(), kDosya);
    EXPECT_FALSE(Saat().beklerken);
    EXPECT_GT(Saat().aralik, 0);
    BitisBekle();
    Saat().Calis();
    EXPECT_TRUE(Saat().beklerken) << "for the next one";
    EXPECT_EQ(Saat().aralik, 0);
}

TEST_F(YedegiSurdurmeTest, Where_no_table_is_shown_its_handler_goes_on_itself) {
    program.FormTablo.Gizle();
    ASSERT_TRUE(program.FormTablo.Yuklu());
    BitisBekle();
    YaridaKapat("kaynak", 3);
    EXPECT_EQ(Kopya(), kDosya);
    EXPECT_EQ(Saat().aralik, 0);
}

TEST_F(YedegiSurdurmeTest, Pressed_by_a_screen_that_shows_no_window_it_returns_behind_its_end) {
    BitisBekle();
    program.FormYedekAl->txtSource.metin = YolMetni(agac.Disi() / "kaynak");
    program.FormYedekAl->cmdStart_Click();
    EXPECT_EQ(Kopya(), kDosya);
    EXPECT_EQ(Saat().aralik, 0);
}

} // namespace velora::test
