#include "setup/FormSalonTanimAd.h"

#include "setup/SalonTest.h"

namespace velora::test {

/// A firm with the halls "Salon A" and "Salon B"; the selected year is 2012.
class FormSalonTanimAdTest : public SalonTest {
  protected:
    FormSalonTanimAdTest() { agac.Koy(u"Salon.dat", "\"Salon A\"\r\n\"Salon B\"\r\n"); }
};

TEST_F(FormSalonTanimAdTest, Opens_with_the_old_name_and_its_place_in_the_list) {
    kullanici.ProgramiAc();
    Isaretle(1);
    AdAcikken([this] {
        const auto ad = kullanici.Prog().FormSalonTanimAd.Tut();
        EXPECT_EQ(ad->baslik, u"Salon Düzenle");
        EXPECT_EQ(ad->Label1.baslik, u"Salon Adı");
        EXPECT_EQ(ad->Label2.baslik, u"1");
        EXPECT_FALSE(ad->Label2.gorunur);
        EXPECT_EQ(ad->Tag, u"Salon B");
        EXPECT_EQ(ad->Text1.metin, u"Salon B");
        EXPECT_EQ(ad->Command1.baslik, u"Tamam");
        EXPECT_EQ(ad->Command2.baslik, u"İptal");
    });
    VELORA_BAS(kullanici.Prog().FormSalonTanim, Command4);
}

TEST_F(FormSalonTanimAdTest, Cancel_unloads_and_changes_nothing) {
    kullanici.ProgramiAc();
    const std::string once = agac.Resim();
    Isaretle(0);
    AdAcikken([this] {
        AlanaYaz(kullanici.Prog().FormSalonTanimAd->Text1, u"Yeni");
        VELORA_BAS(kullanici.Prog().FormSalonTanimAd, Command2);
    });
    VELORA_BAS(kullanici.Prog().FormSalonTanim, Command4);
    EXPECT_FALSE(kullanici.Prog().FormSalonTanimAd.Yuklu());
    SalonlarOlmali({u"Salon A", u"Salon B"});
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(FormSalonTanimAdTest, Both_lists_and_the_file_take_the_new_name_in_proper_case) {
    kullanici.ProgramiAc();
    AdDegistir(1, u"ılıca inci");
    SalonlarOlmali({u"Salon A", u"Ilıca İnci"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"Salon A\"\r\n\"Il\xFD\x63\x61 \xDDnci\"\r\n");
    EXPECT_FALSE(kullanici.Prog().FormSalonTanimAd.Yuklu());
    EXPECT_FALSE(Tanim().Command4.etkin);
}

TEST_F(FormSalonTanimAdTest, Renamed_selected_hall_stays_selected_under_its_new_name_without_a_scan) {
    kullanici.ProgramiAc();
    RezervasyonKoy(u"Salon A");
    SalonlarAcikken([this] {
        const int taramalar = Ortam().olaySayisi; // a scan lets events run
        AdDegistir(0, u"yeni");
        EXPECT_EQ(Ortam().olaySayisi, taramalar);
    });
    EXPECT_EQ(Tablo().Salon.secili, 0);
    EXPECT_EQ(Tablo().Salon.Metni(), u"Yeni");
    EXPECT_EQ(RezervasyonTagi(), u"");
    Tablo().Command1();
    EXPECT_NE(RezervasyonTagi(), u"");
}

TEST_F(FormSalonTanimAdTest, Files_of_five_years_go_along_and_the_old_folders_stay) {
    for (int yil = 2010; yil <= 2016; ++yil)
        agac.Koy(u"Salon A/" + SayiMetni(yil) + u"/" + SayiMetni(yil), "f");
    agac.Koy(u"Salon A/2012/alt/x", "a folder in a year folder stays behind");
    kullanici.ProgramiAc();
    AdDegistir(0, u"yeni");
    for (const auto* yol : {u"2011/2011", u"2012/2012", u"2013/2013", u"2014/2014", u"2014/2015"})
        EXPECT_EQ(agac.Bayt(Metin(u"Yeni/") + yol), "f");
    for (const auto* yol : {u"2010", u"2016", u"2015/2015", u"2012/alt"})
        EXPECT_FALSE(std::filesystem::exists(agac.Yol(Metin(u"Yeni/") + yol)));
    for (int yil = 2010; yil <= 2016; ++yil)
        EXPECT_EQ(agac.Bayt(u"Salon A/" + SayiMetni(yil) + u"/" + SayiMetni(yil)), "f");
}

TEST_F(FormSalonTanimAdTest, Files_of_the_third_year_ahead_land_in_the_second_as_is_meant) {
    agac.Koy(u"Salon A/2014/Gider.dat", "of 2014");
    agac.Koy(u"Salon A/2015/Gider.dat", "of 2015");
    kullanici.ProgramiAc();
    AdDegistir(0, u"Yeni");
    EXPECT_EQ(agac.Bayt(u"Yeni/2014/Gider.dat"), "of 2015");
    EXPECT_TRUE(agac.KlasorVar(u"Yeni/2015"));
    EXPECT_TRUE(std::filesystem::is_empty(agac.Yol(u"Yeni/2015")));
    EXPECT_EQ(agac.Bayt(u"Salon A/2014/Gider.dat"), "of 2014");
    EXPECT_EQ(agac.Bayt(u"Salon A/2015/Gider.dat"), "of 2015");
}

TEST_F(FormSalonTanimAdTest, Unchanged_name_overwrites_the_second_year_ahead_with_the_third_as_is_meant) {
    agac.Koy(u"Salon A/2012/Gider.dat", "of 2012");
    agac.Koy(u"Salon A/2014/Gider.dat", "of 2014");
    agac.Koy(u"Salon A/2014/x", "only 2014");
    agac.Koy(u"Salon A/2015/Gider.dat", "of 2015");
    kullanici.ProgramiAc();
    AdDegistir(0, u"Salon A");
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/Gider.dat"), "of 2012");
    EXPECT_EQ(agac.Bayt(u"Salon A/2014/Gider.dat"), "of 2015");
    EXPECT_EQ(agac.Bayt(u"Salon A/2014/x"), "only 2014");
    EXPECT_EQ(agac.Bayt(u"Salon A/2015/Gider.dat"), "of 2015");
    SalonlarOlmali({u"Salon A", u"Salon B"});
}

TEST_F(FormSalonTanimAdTest, No_file_is_copied_onto_itself) {
    for (int yil = 2011; yil <= 2015; ++yil)
        agac.Koy(u"Salon A/" + SayiMetni(yil) + u"/x", "f");
    kullanici.ProgramiAc();
    std::vector<Metin> hedefler;
    kullanici.Prog().dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
        if (is == DosyaIsi::Kopyala)
            hedefler.emplace_back(Son(yol, 6));
        return false;
    };
    AdDegistir(0, u"Salon A");
    EXPECT_EQ(hedefler, std::vector<Metin>{u"2014\\x"});
}

TEST_F(FormSalonTanimAdTest, Name_of_another_hall_overwrites_its_reservations_of_the_same_days_as_is_meant) {
    agac.Koy(u"Salon A/2012/05.01.2012 - Gece", "of A");
    agac.Koy(u"Salon B/2012/05.01.2012 - Gece", "of B");
    agac.Koy(u"Salon B/2012/06.01.2012 - Gece", "of B alone");
    kullanici.ProgramiAc();
    AdDegistir(0, u"salon b");
    SalonlarOlmali({u"Salon B", u"Salon B"});
    EXPECT_EQ(agac.Bayt(u"Salon B/2012/05.01.2012 - Gece"), "of A");
    EXPECT_EQ(agac.Bayt(u"Salon B/2012/06.01.2012 - Gece"), "of B alone");
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/05.01.2012 - Gece"), "of A");
}

TEST_F(FormSalonTanimAdTest, Empty_name_makes_year_folders_in_the_program_folder_as_is_meant) {
    agac.Koy(u"Salon A/2012/x", "f");
    kullanici.ProgramiAc();
    AdDegistir(0, u"");
    SalonlarOlmali({u"", u"Salon B"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"\"\r\n\"Salon B\"\r\n");
    for (int yil = 2011; yil <= 2015; ++yil)
        EXPECT_TRUE(agac.KlasorVar(SayiMetni(yil))) << yil;
    EXPECT_EQ(agac.Bayt(u"2012/x"), "f");
    kullanici.ProgramiKapat();
    kullanici.ProgramiAc();
    SalonlarOlmali({u"Salon B"});
}

TEST_F(FormSalonTanimAdTest, Folders_of_the_old_name_are_made_when_they_are_missing) {
    kullanici.ProgramiAc();
    std::filesystem::remove_all(agac.Yol(u"Salon B"));
    AdDegistir(1, u"Yeni");
    for (int yil = 2011; yil <= 2015; ++yil)
        for (const auto* salon : {u"Salon B/", u"Yeni/"})
            EXPECT_TRUE(agac.KlasorVar(salon + SayiMetni(yil))) << yil;
}

TEST_F(FormSalonTanimAdTest, Path_out_of_the_program_folder_is_listed_and_copies_nothing) {
    agac.Koy(u"Salon A/2012/x", "f");
    kullanici.ProgramiAc();
    AdDegistir(0, u"..\\velora disi");
    SalonlarOlmali({u"..\\velora Disi", u"Salon B"});
    EXPECT_FALSE(std::filesystem::exists(agac.Kok().parent_path() / "velora Disi"));
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/x"), "f");
}

TEST_F(FormSalonTanimAdTest, Failed_copy_is_passed_over_and_the_others_are_made) {
    agac.Koy(u"Salon A/2012/x", "f");
    agac.Koy(u"Salon A/2012/y", "f");
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Kopyala && yol.ends_with(u"x");
    };
    AdDegistir(0, u"Yeni");
    EXPECT_FALSE(agac.DosyaVar(u"Yeni/2012/x"));
    EXPECT_EQ(agac.Bayt(u"Yeni/2012/y"), "f");
    SalonlarOlmali({u"Yeni", u"Salon B"});
}

TEST_F(FormSalonTanimAdTest, Full_disk_leaves_the_old_files_whole_and_renames_the_hall_in_memory_alone) {
    agac.Koy(u"Salon A/2012/x", std::string(100, 'f'));
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.bosYer = 10;
    AdDegistir(0, u"a name that takes more room than the old one has");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"Salon A\"\r\n\"Salon B\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/x"), std::string(100, 'f'));
    EXPECT_FALSE(agac.DosyaVar(u"A Name That Takes More Room Than The Old One Has/2012/x"));
    EXPECT_EQ(Tablo().Salon.Metni(), u"A Name That Takes More Room Than The Old One Has");
}

TEST_F(FormSalonTanimAdTest, Without_a_marked_hall_no_entry_is_replaced) {
    kullanici.ProgramiAc();
    Isaretle(-1);
    AdAcikken([this] { AdiGir(u"Yeni"); });
    Tanim().Command4_Click(); // no user can press it
    SalonlarOlmali({u"Salon A", u"Salon B"});
}

} // namespace velora::test
