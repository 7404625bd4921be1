// A reservation is cancelled, and the log keeps one line of it.
#include "table/TabloTest.h"

namespace velora::test {

class Iptal : public TabloTest {
  protected:
    void SoruBekle(Cevap cevap) {
        kullanici.ortam.Bekle(BeklenenKutu{.baslik = u"Velora",
                                           .metin = u"Seçili kaydı silmek istediğinizden emin misiniz?",
                                           .simge = Simge::Soru,
                                           .cevap = cevap});
    }
    void SebepBekle(const Metin& sebep) {
        SoruBekle(Cevap::Evet);
        kullanici.ortam.Bekle(
            BeklenenGirdi{.baslik = u"İptal Sebebi", .metin = u"İptal sebebini yazınız!", .cevap = sebep});
    }
    void IptalEt(const TabloGozu& goz, const Metin& sebep) {
        ASSERT_TRUE(kullanici.SagTikla(goz));
        ASSERT_TRUE(kullanici.Tablo().Girdi(Komut::iptals).etkin);
        SebepBekle(sebep);
        kullanici.KomutSec(Komut::iptals);
    }
};

TEST_F(Iptal, Removes_the_three_files_and_logs_one_line_with_the_reason) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    agac.Koy(u"Salon A/2012/20.06.2012 - Gündüz-Odeme", "\"01.01.2012\",\"1000\",\"7 - Ali\"\r\n");
    agac.Koy(u"Count.dat", "7\r\n");
    kullanici.ProgramiAc();
    kullanici.Tablo().UserNamem = u"admin";
    IptalEt({20, 6, kGunduz}, u"Vazgeçti, \"şimdilik\"");
    for (const MetinBakis ek : {u"", u"-Detay", u"-Odeme"})
        EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/20.06.2012 - Gündüz" + Metin(ek)));
    EXPECT_EQ(agac.Bayt(u"IptalSebep.txt"), "20.06.2012 - G\xFCnd\xFCz - Salon A - Ali Veli - 0212 - 0532 - "
                                            "admin - Vazge\xE7ti, \"\xFEimdilik\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "7\r\n");
    RenkOlmali(20, 6, kGunduz, 2, 3);
    EXPECT_EQ(kullanici.ortam.hayirdaBaslayanlar,
              std::vector<Metin>{u"Seçili kaydı silmek istediğinizden emin misiniz?"});
}

TEST_F(Iptal, A_cancelled_Saturday_shows_the_colours_of_the_weekend_again) {
    RezervasyonKoy(u"23.06.2012 - Gündüz");
    RezervasyonKoy(u"23.06.2012 - Gece", {}, true);
    kullanici.ProgramiAc();
    RenkOlmali(23, 6, kGunduz, 6, 7);
    IptalEt({23, 6, kGunduz}, u"x");
    RenkOlmali(23, 6, kGunduz, 8, 9);
    RenkOlmali(23, 6, kGece, 21, 22);
    IptalEt({23, 6, kGece}, u"y");
    RenkOlmali(23, 6, kGece, 10, 11);
}

TEST_F(Iptal, Cancel_in_the_reason_box_still_cancels_and_the_line_ends_in_the_separator_on_purpose) {
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz", AnaMetni({.ad = u"Ali"}));
    kullanici.ProgramiAc();
    kullanici.Tablo().UserNamem = u"admin";
    IptalEt({5, 1, kGunduz}, u"");
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/05.01.2012 - Gündüz"));
    EXPECT_EQ(agac.Bayt(u"IptalSebep.txt"),
              "05.01.2012 - G\xFCnd\xFCz - Salon A - Ali - 0212 - 0532 - admin - \r\n");
}

TEST_F(Iptal, No_to_the_question_changes_nothing) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    const std::string once = agac.Resim();
    kullanici.SagTikla({20, 6, kGunduz});
    SoruBekle(Cevap::Hayir);
    kullanici.KomutSec(Komut::iptals);
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(Iptal, Log_grows_and_what_stood_in_it_stays) {
    agac.Koy(u"IptalSebep.txt", "eski sat\xFDr\r\n");
    RezervasyonKoy(u"20.06.2012 - Gece");
    kullanici.ProgramiAc();
    IptalEt({20, 6, kGece}, u"x");
    EXPECT_EQ(agac.Bayt(u"IptalSebep.txt"),
              "eski sat\xFDr\r\n20.06.2012 - Gece - Salon A - Ali Veli - 0212 - 0532 -  - x\r\n");
}

TEST_F(Iptal, Free_past_day_offers_it_and_logs_a_line_without_a_customer_on_purpose) {
    AyarKoy(28, u"1");
    kullanici.ProgramiAc();
    IptalEt({5, 1, kGece}, u"");
    EXPECT_EQ(agac.Bayt(u"IptalSebep.txt"), "05.01.2012 - Gece - Salon A -  -  -  -  - \r\n");
}

TEST_F(Iptal, Files_are_those_of_the_pressed_day_and_the_log_names_the_day_under_the_pointer_on_purpose) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"21.06.2012 - Gündüz", {.ad = u"Başka"});
    kullanici.ProgramiAc();
    const int ilk = kullanici.ortam.olaySayisi;
    kullanici.ortam.olayda = [&](int sira) {
        if (sira == ilk + 1)
            kullanici.Uzerine({21, 6, kGunduz});
    };
    IptalEt({20, 6, kGunduz}, u"x");
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/20.06.2012 - Gündüz"));
    EXPECT_TRUE(agac.DosyaVar(u"Salon A/2012/21.06.2012 - Gündüz"));
    EXPECT_EQ(agac.Bayt(u"IptalSebep.txt"),
              "21.06.2012 - G\xFCnd\xFCz - Salon A - Ali Veli - 0212 - 0532 -  - x\r\n");
}

TEST_F(Iptal,
       Events_run_once_before_the_reading_once_after_it_once_after_the_log_and_twice_after_the_deletion) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    std::string sira;
    kullanici.Prog().dosyalar.ariza = [&](DosyaIsi is, const Metin&) {
        sira += is == DosyaIsi::Oku    ? "oku "
                : is == DosyaIsi::Ekle ? "ekle "
                : is == DosyaIsi::Sil  ? "sil "
                                       : "";
        return false;
    };
    kullanici.ortam.olayda = [&](int) { sira += "olay "; };
    IptalEt({20, 6, kGunduz}, u"x");
    EXPECT_TRUE(sira.starts_with("olay oku olay ekle olay sil sil sil olay olay olay ")) << sira;
    kullanici.ortam.olayda = nullptr;
}

TEST_F(Iptal, Line_stays_when_the_record_cannot_be_deleted) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Sil; };
    IptalEt({20, 6, kGunduz}, u"x");
    EXPECT_TRUE(agac.DosyaVar(u"Salon A/2012/20.06.2012 - Gündüz"));
    EXPECT_TRUE(agac.DosyaVar(u"IptalSebep.txt"));
    RenkOlmali(20, 6, kGunduz, 6, 7);
}

TEST_F(Iptal, Log_that_cannot_be_written_does_not_keep_the_record) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Ekle; };
    IptalEt({20, 6, kGunduz}, u"x");
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/20.06.2012 - Gündüz"));
    EXPECT_FALSE(agac.DosyaVar(u"IptalSebep.txt"));
}

TEST_F(Iptal, Text_outside_the_code_page_is_logged_as_a_question_mark) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    IptalEt({20, 6, kGunduz}, u"Я!");
    EXPECT_TRUE(agac.Bayt(u"IptalSebep.txt").ends_with(" - ?!\r\n"));
}

TEST_F(Iptal, The_scan_comes_first_and_then_the_look_at_today) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    EXPECT_EQ(DiskteSirasi([&] { IptalEt({20, 6, kGunduz}, u"x"); }), "dddlbb");
}

TEST_F(Iptal, Todays_frame_is_tested_again) {
    RezervasyonKoy(u"15.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    EXPECT_EQ(kullanici.Tablo().GunTimer.aralik, 300);
    IptalEt({15, 6, kGunduz}, u"");
    EXPECT_EQ(kullanici.Tablo().GunTimer.aralik, 0);
}

TEST_F(Iptal, The_log_is_opened_in_the_users_own_program_there_or_not) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Girdi(Komut::iptalsebepss).baslik, u"İptal Sebepleri");
    ASSERT_FALSE(agac.DosyaVar(u"IptalSebep.txt"));
    kullanici.KomutSec(Komut::iptalsebepss);
    EXPECT_EQ(kullanici.ortam.acilanDosyalar, std::vector{agac.Kok() / "IptalSebep.txt"});
    EXPECT_FALSE(agac.DosyaVar(u"IptalSebep.txt")) << "looking makes no file";
}

TEST_F(Iptal, A_log_that_is_missing_is_told_where_nothing_else_tells_it) {
    kullanici.ProgramiAc();
    kullanici.ortam.dosyaAcilir = false;
    kullanici.ortam.Bekle(BeklenenKutu{.baslik = u"Velora", .metin = u"IptalSebep.txt bulunamadı."});
    kullanici.KomutSec(Komut::iptalsebepss);
    EXPECT_EQ(kullanici.ortam.acilanDosyalar.size(), 1U) << "the user's own program is asked first";
    agac.Koy(u"IptalSebep.txt", "x");
    kullanici.KomutSec(Komut::iptalsebepss);
    EXPECT_EQ(kullanici.ortam.acilanDosyalar.size(), 2U);
}

} // namespace velora::test
