// The way of a contract to paper or into a file: what is asked, and what happens when it doesn't get there.
#include "reservation/SozlesmeTest.h"

namespace velora::test {

using SozlesmeAkisi = SozlesmeTest;

TEST_F(SozlesmeAkisi, Without_clauses_it_is_said_and_the_template_comes_beside_the_reservation) {
    for (const char16_t* maddeler : {u"", u"   "}) {
        MaddeKoy(maddeler);
        DoluKayit([&] {
            SayfaSorusu(u"2");
            MaddeYokKutusu();
            Yazdir();
            EXPECT_EQ(kullanici.ortam.acilanlar.back(), EkranAdi::FormSozlesme);
            EXPECT_TRUE(Prog().yigin.Acik(EkranAdi::FormSozlesme));
            EXPECT_TRUE(Prog().FormKayit.Yuklu());
            EXPECT_FALSE(Prog().FormPrint.Yuklu());
            Prog().FormSozlesme.Bosalt();
        });
    }
}

TEST_F(SozlesmeAkisi, The_template_that_came_up_is_filled_saved_and_printed_from) {
    MaddeKoy(u"");
    DoluKayit([&] {
        SayfaSorusu(u"1");
        MaddeYokKutusu();
        Yazdir();
        SatirlaraYaz(Prog().FormSozlesme->Sozlesme, u"1 - Kaparo yanar.");
        BirKezBas(false);
        EXPECT_EQ(Basilan(0, u"Sozlesme"), u"1 - Kaparo yanar.") << "not saved yet, but on show";
        VELORA_BAS(Prog().FormSozlesme, Command2);
        BirKezBas(false);
        EXPECT_EQ(Basilan(1, u"Sozlesme"), u"1 - Kaparo yanar.");
    });
}

TEST_F(SozlesmeAkisi, The_template_is_read_afresh_for_each_print) {
    DoluKayit([&] {
        BirKezBas(false);
        MaddeKoy(u"Yeni madde");
        BirKezBas(false);
        EXPECT_EQ(Basilan(1, u"Sozlesme"), u"Yeni madde");
    });
}

TEST_F(SozlesmeAkisi, The_template_outlives_the_reservation_and_comes_by_its_menu_then_too) {
    MaddeKoy(u"");
    DoluKayit([&] {
        SayfaSorusu(u"1");
        MaddeYokKutusu();
        Yazdir();
    });
    ASSERT_FALSE(Prog().FormKayit.Yuklu());
    SatirlaraYaz(Prog().FormSozlesme->Sozlesme, u"Yarım madde");
    EkranBekle(EkranAdi::FormSozlesme, [&] {
        EXPECT_EQ(Prog().FormSozlesme->Sozlesme.metin, u"Yarım madde") << "the one that stands there";
        VELORA_BAS(Prog().FormSozlesme, Command2);
    });
    kullanici.KomutSec(Komut::Sozduzenss);
    EXPECT_FALSE(Prog().yigin.Acik(EkranAdi::FormSozlesme));
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), "\"\xDE"
                                          "artlar\",\"Yar\xFDm madde\"\r\n");
}

TEST_F(SozlesmeAkisi, The_pages_start_afresh_before_the_number_behind_it_and_behind_the_note) {
    DoluKayit([&] {
        int yer = 0;
        const auto bosVeKirlet = [&] {
            EXPECT_FALSE(Prog().FormPrint.Yuklu()) << yer;
            EXPECT_FALSE(Prog().FormPrint2.Yuklu()) << yer;
            Prog().FormPrint->Senet = true;
            Prog().FormPrint2->Unvan.baslik = u"kalan";
            ++yer;
        };
        Prog().FormPrint2->Unvan.baslik = u"kalan";
        const auto sor = Prog().ortam.sor;
        Prog().ortam.sor.girdi = [&](const GirdiKutusu& kutu) {
            bosVeKirlet();
            return sor.girdi(kutu);
        };
        Prog().ortam.sor.mesaj = [&](const MesajKutusu& kutu) {
            if (yer == 1)
                bosVeKirlet();
            return sor.mesaj(kutu);
        };
        SayfaSorusu(u"1");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi, true, [&] { EXPECT_FALSE(Prog().FormPrint2.Yuklu()); });
        MenuSorusu(Cevap::Hayir);
        Yazdir();
        Prog().ortam.sor = sor;
        EXPECT_EQ(yer, 2);
        EXPECT_EQ(Basilan(0, u"Senet"), u"-");
    });
}

TEST_F(SozlesmeAkisi, Without_a_printer_there_is_one_box_and_the_rest_is_skipped) {
    DoluKayit([&] {
        SayfaSorusu(u"3");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi, false);
        YaziciYokKutusu();
        Yazdir();
        EXPECT_TRUE(Basilanlar().empty());
    });
}

TEST_F(SozlesmeAkisi, A_printer_that_fails_at_the_second_copy_or_at_the_menu_is_told_once) {
    DoluKayit([&] {
        SayfaSorusu(u"3");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi);
        BaskiBekle(kSozlesmeIsi, false);
        YaziciYokKutusu();
        Yazdir();
        EXPECT_EQ(Basilanlar().size(), 1U);
        SayfaSorusu(u"2");
        SenetSorusu(Cevap::Evet);
        BaskiBekle(kSozlesmeIsi);
        BaskiBekle(kSozlesmeIsi);
        MenuSorusu(Cevap::Evet);
        BaskiBekle(kMenuIsi, false);
        YaziciYokKutusu();
        Yazdir();
        EXPECT_EQ(Basilanlar().size(), 3U);
    });
}

TEST_F(SozlesmeAkisi, A_failed_print_leaves_the_reservation_as_it_was_and_the_next_one_works) {
    DoluKayit([&] {
        SayfaSorusu(u"1");
        SenetSorusu(Cevap::Evet);
        BaskiBekle(kSozlesmeIsi, false);
        YaziciYokKutusu();
        Yazdir();
        EXPECT_EQ(Kayit().Kay[1].metin, u"Ayşe Yılmaz");
        BirKezBas(false);
        EXPECT_EQ(Basilan(0, u"Onaciklama"), u"Masa düzeni U olacak.");
        EXPECT_EQ(Basilan(0, u"Senet"), u"-") << "of the print that failed";
    });
}

TEST_F(SozlesmeAkisi, The_menu_is_left_out_on_a_no_alone_on_purpose) {
    DoluKayit([&] {
        // An answer that is neither, as of a box that has only one button.
        const auto sor = Prog().ortam.sor.mesaj;
        Prog().ortam.sor.mesaj = [](const MesajKutusu&) { return Cevap::Tamam; };
        SayfaSorusu(u"1");
        BaskiBekle(kSozlesmeIsi);
        BaskiBekle(kMenuIsi);
        Yazdir();
        Prog().ortam.sor.mesaj = sor;
    });
}

TEST_F(SozlesmeAkisi, A_reservation_that_goes_while_a_print_waits_ends_it_quietly) {
    for (const bool basilir : {true, false})
        DoluKayit([&] {
            SayfaSorusu(u"3");
            SenetSorusu(Cevap::Hayir);
            BaskiBekle(kSozlesmeIsi, basilir, [&] { Prog().FormKayit.Bosalt(); });
            Yazdir();
            EXPECT_FALSE(Prog().FormKayit.Yuklu()) << "nobody has loaded it anew";
        });
    EXPECT_EQ(Basilanlar().size(), 1U);
}

TEST_F(SozlesmeAkisi, Another_reservation_in_its_place_gets_nothing_of_it) {
    DoluKayit([&] {
        SayfaSorusu(u"2");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi, true, [&] {
            Prog().FormKayit.Bosalt();
            Kayit().Kay[1].metin = u"Başkası";
        });
        Yazdir();
    });
    EXPECT_EQ(Basilanlar().size(), 1U);
}

TEST_F(SozlesmeAkisi, It_bears_that_the_reservation_goes_wherever_events_run) {
    int sonra = 0;
    for (int yer = 1; sonra == 0; ++yer) {
        ASSERT_LT(yer, 9);
        DoluKayit([&] {
            const int once = kullanici.ortam.olaySayisi;
            kullanici.ortam.olayda = [&](int sira) {
                if (sira == once + yer)
                    Prog().FormKayit.Bosalt();
            };
            SayfaSorusu(u"1");
            SenetSorusu(Cevap::Hayir);
            if (yer > 1) { // before the contract's print there is one such place
                BaskiBekle(kSozlesmeIsi);
                MenuSorusu(Cevap::Evet);
            }
            if (yer > 2)
                BaskiBekle(kMenuIsi);
            Yazdir();
            sonra = Prog().FormKayit.Yuklu() ? yer : 0;
            kullanici.ortam.olayda = {};
        });
    }
    EXPECT_EQ(sonra, 3);
}

TEST_F(SozlesmeAkisi, A_sample_print_in_the_middle_changes_nothing_of_the_contract) {
    DoluKayit([&] {
        const auto ornek = [&] {
            BaskiBekle(u"Örnek Sözleşme");
            VELORA_BAS(Prog().FormSozlesme, Command1);
        };
        SayfaSorusu(u"2");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi, true, ornek);
        BaskiBekle(kSozlesmeIsi);
        MenuSorusu(Cevap::Hayir);
        Yazdir();
        ASSERT_EQ(Basilanlar().size(), 3U);
        EXPECT_EQ(Basilan(0, u"CAdi"), u"xxx");
        EXPECT_EQ(Basilan(2, u"CAdi"), u"Ayşe Yılmaz");
        KutuBekle(u"Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                  u"Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?",
                  Cevap::Evet, Simge::Uyari, u"Uyarı");
        KapataBas();
    });
}

TEST_F(SozlesmeAkisi, A_pdf_asks_for_no_copies_and_last_for_its_place_and_has_the_menu_behind) {
    DoluKayit([&] {
        SenetSorusu(Cevap::Evet);
        MenuSorusu(Cevap::Evet);
        kullanici.ortam.Bekle(BeklenenKayitYeri{.ad = kSozlesmeIsi + u".pdf", .secilen = "/yer/bir.pdf"});
        PdfeBas();
        SenetSorusu(Cevap::Hayir);
        MenuSorusu(Cevap::Hayir);
        kullanici.ortam.Bekle(BeklenenKayitYeri{.ad = kSozlesmeIsi + u".pdf", .secilen = "/yer/iki.pdf"});
        PdfeBas();
        const auto& pdfler = kullanici.ortam.pdfler;
        ASSERT_EQ(pdfler.size(), 2U);
        EXPECT_EQ(pdfler[0].isAdi, kSozlesmeIsi);
        EXPECT_EQ(pdfler[0].dosya, "/yer/bir.pdf");
        ASSERT_EQ(pdfler[0].sayfalar.size(), 2U);
        EXPECT_EQ(AlanMetni({pdfler[0].sayfalar[0]}, u"CAdi"), u"Ayşe Yılmaz");
        EXPECT_EQ(AlanMetni({pdfler[0].sayfalar[0]}, u"Onaciklama"), u"-");
        EXPECT_EQ(AlanMetni({pdfler[0].sayfalar[1]}, u"Label4"), u"Klasik");
        ASSERT_EQ(pdfler[1].sayfalar.size(), 1U);
        EXPECT_EQ(AlanMetni(pdfler[1].sayfalar, u"Onaciklama"), u"Masa düzeni U olacak.");
        EXPECT_EQ(AlanMetni(pdfler[1].sayfalar, u"Senet"), u"-");
    });
}

TEST_F(SozlesmeAkisi, A_pdf_without_clauses_says_so_and_shows_the_template) {
    MaddeKoy(u" ");
    DoluKayit([&] {
        MaddeYokKutusu();
        PdfeBas();
        EXPECT_EQ(kullanici.ortam.acilanlar.back(), EkranAdi::FormSozlesme);
    });
}

TEST_F(SozlesmeAkisi, A_pdf_bears_that_the_reservation_goes_while_its_questions_stand) {
    DoluKayit([&] {
        const auto sor = Prog().ortam.sor.mesaj;
        Prog().ortam.sor.mesaj = [&](const MesajKutusu&) {
            Prog().FormKayit.Bosalt();
            return Cevap::Evet;
        };
        PdfeBas();
        Prog().ortam.sor.mesaj = sor;
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
}

TEST_F(SozlesmeAkisi, The_totals_follow_a_payment_also_while_the_template_stands_beside) {
    MaddeKoy(u"");
    DoluKayit([&] {
        SayfaSorusu(u"1");
        MaddeYokKutusu();
        Yazdir();
        ASSERT_TRUE(Prog().yigin.Acik(EkranAdi::FormSozlesme));
        OdemeAl(u"400");
        EXPECT_EQ(Kayit().Kay[AnaNo::AlinanOdeme].metin, u"2900");
        EXPECT_EQ(Kayit().Kay[AnaNo::KalanOdeme].metin, u"9600");
        EXPECT_FALSE(Kayit().Command9.etkin) << "a payment must be clicked again";
    });
}

TEST_F(SozlesmeAkisi, The_template_does_not_come_over_all_while_its_own_sample_is_printed) {
    Prog().FormSozlesme.Goster();
    BaskiBekle(u"Örnek Sözleşme", true, [&] { kullanici.KomutSec(Komut::Sozduzenss); });
    VELORA_BAS(Prog().FormSozlesme, Command1);
    EXPECT_EQ(Basilanlar().size(), 1U);
    EkranBekle(EkranAdi::FormSozlesme, [] {}); // and afterwards it does
    kullanici.KomutSec(Komut::Sozduzenss);
}

} // namespace velora::test
