#include "setup/FormSalonTanim.h"

#include <algorithm>

#include "access/Splash.h"
#include "accounts/FormBakiye.h"
#include "setup/SalonTest.h"

namespace velora::test {

namespace {

const BeklenenKutu kAdYok{
    u"Hata", u"Salon adını girmediniz!\nSalon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!."};

} // namespace

class FormSalonTanimTest : public SalonTest {};

TEST_F(FormSalonTanimTest, Captions_stand_as_the_user_reads_them) {
    kullanici.ProgramiAc();
    EXPECT_EQ(Tanim().baslik, u"Salon Tanımları");
    EXPECT_EQ(Tanim().Label8.baslik, u"Salon Tanımları");
    EXPECT_EQ(Tanim().Command1.baslik, u"Ekle");
    EXPECT_EQ(Tanim().Command2.baslik, u"Sil");
    EXPECT_EQ(Tanim().Command3.baslik, u"Kapat");
    EXPECT_EQ(Tanim().Command4.baslik, u"Düzenle");
    EXPECT_EQ(Tanim().Kaydet.baslik, u"Kaydet");
}

TEST_F(FormSalonTanimTest, Blank_lines_and_blank_names_give_no_entry) {
    agac.Koy(u"Salon.dat", "\"B\"\r\n\r\n\"  \"\r\n\"\"\r\n\"A \"\r\n\r\n");
    kullanici.ProgramiAc();
    SalonlarOlmali({u"B", u"A "});
}

TEST_F(FormSalonTanimTest, Absent_and_empty_files_give_an_empty_list_that_close_refuses_and_starts_an_add) {
    for (const bool var : {false, true}) {
        if (var)
            agac.Koy(u"Salon.dat", "");
        kullanici.ProgramiAc();
        Ortam().Bekle(BeklenenKutu{
            u"Hata",
            u"Hiç salon tanımınız yok!\nSalon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!."});
        Ortam().Bekle(BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u" "});
        Tanim();
        VELORA_BAS(kullanici.Prog().FormSalonTanim, Command3);
        EXPECT_TRUE(kullanici.Prog().FormSalonTanim.Yuklu()) << "the screen stays open";
        SalonlarOlmali({});
    }
}

TEST_F(FormSalonTanimTest, Close_unloads_with_a_hall_in_the_list) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    SalonlarAcikken([this] { VELORA_BAS(kullanici.Prog().FormSalonTanim, Command3); });
    EXPECT_FALSE(kullanici.Prog().FormSalonTanim.Yuklu());
    EXPECT_EQ(Ortam().gizlenenler, std::vector<EkranAdi>{EkranAdi::FormSalonTanim});
}

TEST_F(FormSalonTanimTest, Close_publishes_the_table_of_a_published_firm_again) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    kullanici.Prog().Splash->Check1 = kullanici.Prog().Splash->Check2 = 1;
    SalonlarAcikken([this] {
        Ortam().Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla});
        VELORA_BAS(kullanici.Prog().FormSalonTanim, Command3);
    });
    EXPECT_EQ(Ortam().acilanlar.back(), EkranAdi::FormWebteYayinla);
}

TEST_F(FormSalonTanimTest, Empty_answers_ask_again_and_blanks_leave_with_nothing_written) {
    kullanici.ProgramiAc();
    const std::string once = agac.Resim();
    for (const auto* cevap : {u"", u"", u"  "}) {
        Ortam().Bekle(BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", cevap});
        if (Metin(cevap).empty())
            Ortam().Bekle(kAdYok);
    }
    Tanim();
    VELORA_BAS(kullanici.Prog().FormSalonTanim, Command1);
    SalonlarOlmali({});
    EXPECT_EQ(agac.Resim(), once);
}

// A trim takes blanks alone.
TEST_F(FormSalonTanimTest, Tab_is_no_blank_and_makes_a_hall_without_a_folder) {
    kullanici.ProgramiAc();
    SalonEkle(u"\t");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"\t\"\r\n");
    SalonlarOlmali({u"\t"});
}

TEST_F(FormSalonTanimTest, Name_in_lower_case_is_listed_stored_and_used_as_a_folder_in_proper_case) {
    kullanici.ProgramiAc();
    SalonEkle(u"büyük salon");
    SalonEkle(u"IŞIK-iNCİ  izmir");
    SalonlarOlmali({u"Büyük Salon", u"Işık-inci  İzmir"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"B\xFCy\xFCk Salon\"\r\n\"I\xFE\xFDk-inci  \xDDzmir\"\r\n");
    for (int yil = 2012; yil <= 2022; ++yil) {
        EXPECT_TRUE(agac.KlasorVar(u"Büyük Salon/" + SayiMetni(yil))) << yil;
        EXPECT_TRUE(agac.KlasorVar(u"Işık-inci  İzmir/" + SayiMetni(yil))) << yil;
    }
    EXPECT_FALSE(agac.KlasorVar(u"Büyük Salon/2011"));
    EXPECT_FALSE(agac.KlasorVar(u"Büyük Salon/2023"));
}

TEST_F(FormSalonTanimTest, Year_folders_begin_at_the_selected_year) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2020");
    SalonEkle(u"b");
    EXPECT_TRUE(agac.KlasorVar(u"B/2020"));
    EXPECT_TRUE(agac.KlasorVar(u"B/2030"));
    EXPECT_FALSE(agac.KlasorVar(u"B/2019"));
    EXPECT_FALSE(agac.KlasorVar(u"B/2031"));
}

TEST_F(FormSalonTanimTest, First_hall_is_selected_and_its_table_is_loaded) {
    RezervasyonKoy(u"Salon A");
    kullanici.ProgramiAc();
    EXPECT_EQ(RezervasyonTagi(), u"");
    SalonEkle(u"salon a");
    EXPECT_EQ(Tablo().Salon.Metni(), u"Salon A");
    EXPECT_NE(RezervasyonTagi(), u"");
    SalonEkle(u"salon b");
    EXPECT_EQ(Tablo().Salon.Metni(), u"Salon A") << "only the first hall is selected by its add";
}

TEST_F(FormSalonTanimTest, Add_writes_the_list_then_makes_the_folders_and_then_scans_the_first_hall) {
    kullanici.ProgramiAc();
    const auto isler = IsleriIzle();
    SalonEkle(u"salon a");
    EXPECT_EQ(*isler, (std::vector<DosyaIsi>{DosyaIsi::Yaz, DosyaIsi::KlasorYap, DosyaIsi::Listele}));
}

TEST_F(FormSalonTanimTest, Delete_scans_the_first_hall_and_then_writes_the_list) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n\"B\"\r\n");
    kullanici.ProgramiAc();
    Tablo().Salon.Sec(1);
    Tanim();
    const auto isler = IsleriIzle();
    SalonSil(1, Cevap::Evet);
    EXPECT_EQ(*isler, (std::vector<DosyaIsi>{DosyaIsi::Listele, DosyaIsi::Yaz}));
}

TEST_F(FormSalonTanimTest, Name_entered_twice_gives_two_entries_that_share_one_folder) {
    kullanici.ProgramiAc();
    SalonEkle(u"a");
    agac.Koy(u"A/2012/x", "kept");
    SalonEkle(u"a");
    SalonlarOlmali({u"A", u"A"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"A\"\r\n\"A\"\r\n");
    EXPECT_EQ(agac.Bayt(u"A/2012/x"), "kept");
}

TEST_F(FormSalonTanimTest, Only_a_marked_hall_can_be_deleted_or_renamed) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n\"B\"\r\n");
    kullanici.ProgramiAc();
    SalonlarAcikken([this] {
        EXPECT_FALSE(Tanim().Command2.etkin);
        EXPECT_FALSE(Tanim().Command4.etkin);
        Isaretle(1);
        EXPECT_TRUE(Tanim().Command2.etkin);
        EXPECT_TRUE(Tanim().Command4.etkin);
        Isaretle(-1);
        EXPECT_FALSE(Tanim().Command2.etkin);
        EXPECT_FALSE(Tanim().Command4.etkin);
    });
}

TEST_F(FormSalonTanimTest, After_a_no_both_buttons_stay_disabled_though_a_row_is_marked_as_is_meant) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    SalonSil(0, Cevap::Hayir);
    SalonlarOlmali({u"A"});
    EXPECT_EQ(Tanim().List1.secili, 0);
    EXPECT_FALSE(Tanim().Command2.etkin);
    EXPECT_FALSE(Tanim().Command4.etkin);
}

TEST_F(FormSalonTanimTest, Deleting_the_selected_hall_selects_the_first_and_paints_it) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n\"B\"\r\n\"C\"\r\n");
    RezervasyonKoy(u"B");
    kullanici.ProgramiAc();
    SalonSil(0, Cevap::Evet);
    SalonlarOlmali({u"B", u"C"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"B\"\r\n\"C\"\r\n");
    EXPECT_EQ(Tablo().Salon.Metni(), u"B");
    EXPECT_NE(RezervasyonTagi(), u"");
    EXPECT_TRUE(agac.KlasorVar(u"A/2012"));
}

TEST_F(FormSalonTanimTest, Deleting_another_hall_selects_the_first_too) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n\"B\"\r\n\"C\"\r\n");
    kullanici.ProgramiAc();
    kullanici.SalonSec(u"C");
    SalonSil(1, Cevap::Evet);
    SalonlarOlmali({u"A", u"C"});
    EXPECT_EQ(Tablo().Salon.Metni(), u"A");
}

TEST_F(FormSalonTanimTest, Deleting_the_only_hall_leaves_an_empty_selector_a_painted_table_and_the_folders) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    RezervasyonKoy(u"A");
    kullanici.ProgramiAc();
    SalonSil(0, Cevap::Evet);
    SalonlarOlmali({});
    EXPECT_EQ(Tablo().Salon.secili, -1);
    EXPECT_EQ(Tablo().Salon.Metni(), u"");
    EXPECT_TRUE(agac.DosyaVar(u"Salon.dat"));
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "");
    EXPECT_TRUE(agac.DosyaVar(u"A/2012/20.06.2012 - Gece"));
    EXPECT_NE(RezervasyonTagi(), u"") << "painted until the next scan";
    Tablo().Command1();
    EXPECT_EQ(RezervasyonTagi(), u"");
}

TEST_F(FormSalonTanimTest, Deleting_a_hall_and_adding_it_again_brings_its_reservations_back) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    RezervasyonKoy(u"A");
    kullanici.ProgramiAc();
    const Metin tag = RezervasyonTagi();
    ASSERT_NE(tag, u"");
    SalonSil(0, Cevap::Evet);
    Tablo().Command1();
    SalonEkle(u"a");
    EXPECT_EQ(RezervasyonTagi(), tag);
}

TEST_F(FormSalonTanimTest, Double_quote_in_a_name_is_written_raw_and_slides_the_next_reading_as_is_meant) {
    kullanici.ProgramiAc();
    SalonEkle(u"a \"b\", c");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"A \"b\", C\"\r\n");
    kullanici.ProgramiKapat();
    kullanici.ProgramiAc();
    SalonlarOlmali({u"A ", u"b\"", u"C\""});
}

TEST_F(FormSalonTanimTest, Signs_that_a_folder_cannot_hold_enter_the_list_without_a_folder) {
    kullanici.ProgramiAc();
    const auto disi = agac.Kok().parent_path();
    for (const auto* ad : {u"..", u"A/b", u"C:x", u"D\\e", u"..\\f", u"..\\..\\velora Disi"})
        SalonEkle(ad);
    EXPECT_EQ(Tanim().List1.ogeler.size(), 6U);
    EXPECT_EQ(agac.Bayt(u"Salon.dat"),
              "\"..\"\r\n\"A/b\"\r\n\"C:x\"\r\n\"D\\e\"\r\n\"..\\f\"\r\n\"..\\..\\velora Disi\"\r\n");
    EXPECT_EQ(agac.Resim(), "Salon.dat\n" + agac.Bayt(u"Salon.dat") + "\n");
    for (const auto* ad : {u"2012", u"f", u"velora Disi"}) {
        EXPECT_FALSE(std::filesystem::exists(disi / std::filesystem::path(Metin(ad))));
        EXPECT_FALSE(std::filesystem::exists(disi.parent_path() / std::filesystem::path(Metin(ad))));
    }
}

TEST_F(FormSalonTanimTest, Name_outside_the_code_page_is_listed_as_the_file_holds_it) {
    kullanici.ProgramiAc();
    SalonEkle(u"salon \u0416\U0001F600");
    SalonlarOlmali({u"Salon ??"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"Salon ??\"\r\n");
}

TEST_F(FormSalonTanimTest, Name_of_five_thousand_signs_is_kept_without_a_folder) {
    kullanici.ProgramiAc();
    SalonEkle(Metin(5000, u'a'));
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"A" + std::string(4999, 'a') + "\"\r\n");
}

TEST_F(FormSalonTanimTest, Folders_that_cannot_be_made_are_no_hindrance) {
    kullanici.ProgramiAc();
    Boz(DosyaIsi::KlasorYap);
    SalonEkle(u"a");
    SalonlarOlmali({u"A"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"A\"\r\n");
    EXPECT_FALSE(agac.KlasorVar(u"A"));
}

TEST_F(FormSalonTanimTest, List_that_cannot_be_written_keeps_the_old_file_and_says_nothing) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    Boz(DosyaIsi::Yaz);
    SalonEkle(u"b");
    SalonlarOlmali({u"A", u"B"});
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"A\"\r\n");
    EXPECT_TRUE(agac.KlasorVar(u"B/2012")) << "the steps behind the failed one still run";
}

TEST_F(FormSalonTanimTest, Full_disk_keeps_the_old_list_whole) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.bosYer = 2;
    SalonEkle(u"b");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"A\"\r\n");
}

class IlkSalon : public SalonTest {
  protected:
    void SoruBekle(Cevap cevap) {
        Ortam().Bekle(BeklenenKutu{
            u"Salon Tanımı", u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
            Simge::Soru, cevap});
    }
};

TEST_F(IlkSalon, First_run_opens_a_list_that_closes_only_after_an_add_was_started) {
    kullanici.ProgramiAc();
    SoruBekle(Cevap::Evet);
    Ortam().Bekle(BeklenenEkran{EkranAdi::FormSalonTanim, [this] {
                                    EXPECT_FALSE(Tanim().Command3.etkin);
                                    SalonEkle(u"  ");
                                    EXPECT_TRUE(Tanim().Command3.etkin);
                                    SalonEkle(u"gül salonu");
                                    VELORA_BAS(kullanici.Prog().FormSalonTanim, Command3);
                                }});
    IlkSalonuSor(kullanici.Prog());
    EXPECT_EQ(Tablo().Salon.Metni(), u"Gül Salonu");
    EXPECT_FALSE(kullanici.Prog().FormSalonTanim.Yuklu());
}

TEST_F(IlkSalon, No_is_answered_by_a_critical_box_and_the_list_all_the_same) {
    kullanici.ProgramiAc();
    SoruBekle(Cevap::Hayir);
    Ortam().Bekle(BeklenenKutu{
        u"Velora",
        u"Salon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!\nLütfen önce salon tanımı yapınız!",
        Simge::Kritik});
    Ortam().Bekle(BeklenenEkran{EkranAdi::FormSalonTanim});
    IlkSalonuSor(kullanici.Prog());
    EXPECT_FALSE(Tanim().Command3.etkin);
}

TEST_F(IlkSalon, Firm_with_a_hall_is_asked_nothing) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    IlkSalonuSor(kullanici.Prog());
    EXPECT_FALSE(kullanici.Prog().FormSalonTanim.Yuklu());
}

TEST_F(FormSalonTanimTest, An_empty_firm_says_so_where_halls_are_chosen_and_takes_that_for_no_name) {
    kullanici.ProgramiAc();
    const std::string once = agac.Resim();
    EXPECT_EQ(Tablo().Salon.bosYazi, u"Salon tanımlı değil");
    EXPECT_NE(Tablo().Salon.bosIpucu.find(u"Salon Tanımları"), Metin::npos);
    EXPECT_EQ(Tablo().Salon.Metni(), u"");
    EXPECT_EQ(kullanici.Prog().FormBakiye->Combo2.bosYazi, u"Salon tanımlı değil");
    EXPECT_EQ(kullanici.Prog().FormBakiye->Combo2.Metni(), u"");
    kullanici.SagTikla({20, 6, GunduzGece::Gece});
    Ortam().Bekle(BeklenenKutu{u"Velora", u"Lütfen Önce Salon Tanımı yapınız!", Simge::Kritik});
    Ortam().Bekle(BeklenenEkran{EkranAdi::FormSalonTanim});
    kullanici.KomutSec(Komut::newkay);
    EXPECT_EQ(agac.Resim(), once);
    EXPECT_TRUE(std::ranges::none_of(std::filesystem::directory_iterator(agac.Kok()), [](const auto& giris) {
        return giris.is_directory();
    })) << "no folder of any name";
}

TEST_F(FormSalonTanimTest, Close_without_a_hall_takes_a_real_name_in_and_stays_open) {
    kullanici.ProgramiAc();
    Tanim();
    Ortam().Bekle(BeklenenKutu{
        u"Hata", u"Hiç salon tanımınız yok!\nSalon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!."});
    Ortam().Bekle(BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"çınar bahçe"});
    kullanici.Prog().Splash->Check1 = kullanici.Prog().Splash->Check2 = 1;
    VELORA_BAS(kullanici.Prog().FormSalonTanim, Command3);
    EXPECT_TRUE(kullanici.Prog().FormSalonTanim.Yuklu());
    SalonlarOlmali({u"Çınar Bahçe"});
    EXPECT_TRUE(agac.KlasorVar(u"Çınar Bahçe/2022"));
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"\xC7\xFDnar Bah\xE7"
                                       "e\"\r\n");
    EXPECT_TRUE(Ortam().acilanlar.empty() || Ortam().acilanlar.back() != EkranAdi::FormWebteYayinla)
        << "only a real close publishes";
}

TEST_F(FormSalonTanimTest, Close_publishes_when_the_screen_is_gone_already) {
    agac.Koy(u"Salon.dat", "\"A\"\r\n");
    kullanici.ProgramiAc();
    kullanici.Prog().Splash->Check1 = kullanici.Prog().Splash->Check2 = 1;
    bool yuklu = true;
    kullanici.Prog().ortam.goster.modal =
        [&, eski = kullanici.Prog().ortam.goster.modal](EkranAdi ad, const auto& gorununce) {
            if (ad == EkranAdi::FormWebteYayinla)
                yuklu = kullanici.Prog().FormSalonTanim.Yuklu();
            eski(ad, gorununce);
        };
    SalonlarAcikken([this] {
        Ortam().Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla});
        VELORA_BAS(kullanici.Prog().FormSalonTanim, Command3);
    });
    EXPECT_FALSE(yuklu);
}

} // namespace velora::test
