// What the start makes of an action that a death has cut through.
#include <fstream>
#include <iterator>

#include "access/SplashTest.h"
#include "storage/gunluk/Gunluk.h"

namespace velora::test {

class SplashGunlukTest : public SplashTest {
  protected:
    SplashGunlukTest() { ortam.durumKlasoru = agac.Disi() / "durum"; }

    /// The profile was being saved when the power went: the file is gone, its text stands in the journal.
    void ProfilYarida() const {
        const std::string profil = agac.Bayt(u"Firma.dll");
        std::filesystem::remove(agac.Yol(u"Firma.dll"));
        const auto gunluk = Gunluk::Ac(ortam.durumKlasoru, agac.Kok());
        gunluk->Basla(
            {0, u"Firma bilgileri", u"", u"", {{.yol = u"\\Firma.dll", .once = "eski", .sonra = profil}}});
    }
};

TEST_F(SplashGunlukTest, What_was_cut_through_is_completed_before_anything_is_read_and_nothing_is_said) {
    ProfilYarida();
    CevrimdisiBaslat();
    EXPECT_EQ(ortam.acilanlar, std::vector{EkranAdi::Splash}); // no first run
    EXPECT_TRUE(agac.DosyaVar(u"Firma.dll"));
}

TEST_F(SplashGunlukTest, A_second_copy_leaves_the_journal_and_the_tree_of_the_first_alone) {
    ProfilYarida();
    ortam.baskaKopya = true;
    const std::string resim = agac.Resim();
    const auto zaman = std::filesystem::last_write_time(Gunluk::Yol(ortam.durumKlasoru, agac.Kok()));
    ortam.Bekle(BeklenenKutu{u"Hata", u"Velora Programı zaten çalışıyor!", Simge::Kritik});
    Baslat();
    EXPECT_EQ(agac.Resim(), resim);
    EXPECT_EQ(std::filesystem::last_write_time(Gunluk::Yol(ortam.durumKlasoru, agac.Kok())), zaman);
    EXPECT_TRUE(Gunluk::Ac(ortam.durumKlasoru, agac.Kok())); // it hasn't been taken
}

TEST_F(SplashGunlukTest, What_is_written_behind_the_start_stands_in_the_journal) {
    CevrimdisiBaslat();
    ortam.simdi += std::chrono::minutes(7);
    program.oturum.UserNamem = u"zeynep";
    EylemleYap(program.dosyalar, u"Deneme",
               [this] { program.dosyalar.Yaz(program.agac.KokYolu(u"Count.dat"), "\"5\""); });
    EXPECT_TRUE(program.dosyalar.GunluguBekle());
    std::ifstream dosya(Gunluk::Yol(ortam.durumKlasoru, agac.Kok()), std::ios::binary);
    const std::string bayt{std::istreambuf_iterator<char>(dosya), {}};
    EXPECT_NE(bayt.find("6:Deneme,6:zeynep,19:"), std::string::npos);
    EXPECT_NE(bayt.find(":07:00,"), std::string::npos);
}

TEST_F(SplashGunlukTest, The_start_goes_on_where_no_journal_can_be_had) {
    agac.Koy(u"../durum", "bir dosya");
    CevrimdisiBaslat();
    EXPECT_EQ(ortam.acilanlar, std::vector{EkranAdi::Splash});
}

} // namespace velora::test
