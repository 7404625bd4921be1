// What the contract, its note and its menu show on paper, and how many of them come.
#include "reservation/SozlesmeTest.h"

namespace velora::test {

using SozlesmeBaskisi = SozlesmeTest;

TEST_F(SozlesmeBaskisi, Cancel_an_empty_answer_and_zero_ask_nothing_more_and_leave_no_page) {
    DoluKayit([&] {
        for (const MetinBakis cevap : {u"", u"   ", u"0", u"00.0", u"iki", u",5", u".9"}) {
            Prog().FormPrint->Unvan.baslik = u"kalan";
            Prog().FormPrint2->Unvan.baslik = u"kalan";
            SayfaSorusu(Metin(cevap));
            Yazdir();
            EXPECT_FALSE(Prog().FormPrint.Yuklu());
            EXPECT_FALSE(Prog().FormPrint2.Yuklu());
        }
    });
}

TEST_F(SozlesmeBaskisi, Each_copy_is_a_print_of_its_own_and_the_menus_come_behind_the_contracts) {
    DoluKayit([&] {
        IkiserBekle(u" 2.5x", Cevap::Hayir);
        Yazdir();
        ASSERT_EQ(Basilanlar().size(), 4U);
        EXPECT_EQ(SayfalarMetni(Basilanlar()[0].sayfalar), SayfalarMetni(Basilanlar()[1].sayfalar));
        EXPECT_EQ(SayfalarMetni(Basilanlar()[2].sayfalar), SayfalarMetni(Basilanlar()[3].sayfalar));
        EXPECT_TRUE(kullanici.ortam.hayirdaBaslayanlar.empty()) << "nothing is lost by a yes";
    });
}

TEST_F(SozlesmeBaskisi, A_number_below_one_prints_nothing_on_purpose_but_the_questions_come) {
    DoluKayit([&] {
        for (const MetinBakis cevap : {u"0.5", u"-3", u"0.999"}) {
            SayfaSorusu(Metin(cevap));
            SenetSorusu(Cevap::Evet);
            MenuSorusu(Cevap::Evet);
            Yazdir();
        }
        EXPECT_TRUE(Basilanlar().empty());
    });
}

TEST_F(SozlesmeBaskisi, The_number_of_copies_has_no_upper_end_on_purpose) {
    DoluKayit([&] {
        constexpr int kCok = 140;
        SayfaSorusu(SayiMetni(kCok));
        SenetSorusu(Cevap::Hayir);
        for (int sira = 0; sira < kCok; ++sira)
            BaskiBekle(kSozlesmeIsi);
        MenuSorusu(Cevap::Hayir);
        Yazdir();
        EXPECT_EQ(Basilanlar().size(), 140U);
    });
}

TEST_F(SozlesmeBaskisi, The_contract_shows_the_fields_as_they_stand_saved_or_not) {
    DoluKayit([&] {
        BirKezBas(false);
        for (const auto& [ad, metin] : {std::pair{u"Unvan", u"Gül Düğün"},
                                        std::pair{u"Tarihi", u"Tarih : 03.02.2012"},
                                        std::pair{u"SozNo", u"Sözleşme No : 58"},
                                        std::pair{u"Baslik", u"Şartlar"},
                                        std::pair{u"Sozlesme", u"1 - Kira peşin.|2 - İçki yok."},
                                        std::pair{u"CSalon", u"Salon A"},
                                        std::pair{u"CTuru", u"Nişan"},
                                        std::pair{u"CTarihi", u"20.06.2012"},
                                        std::pair{u"CSaati", u"11:30 - 15:45"},
                                        std::pair{u"Cdavetli", u"350 Kişi"},
                                        std::pair{u"CTutar", u"12500 TL"},
                                        std::pair{u"COdenen", u"2500 TL"},
                                        std::pair{u"CKalan", u"10000 TL"},
                                        std::pair{u"Ctcno", u"12345678901"},
                                        std::pair{u"CAdi", u"Ayşe Yılmaz"},
                                        std::pair{u"CGelin", u"Elif - Can"},
                                        std::pair{u"CYore", u"Tokat"},
                                        std::pair{u"CTel", u"0212 1"},
                                        std::pair{u"CCep", u"0532 2"},
                                        std::pair{u"CAdres", u"Çay Sk. 3|Ergene"}})
            EXPECT_EQ(Basilan(0, ad), metin) << testing::PrintToString(ad);
        EXPECT_FALSE(AnaVar()) << "a print saves nothing";
    });
}

TEST_F(SozlesmeBaskisi, The_menu_shows_its_choice_the_wishes_and_the_remark) {
    DoluKayit([&] {
        SayfaSorusu(u"1");
        SenetSorusu(Cevap::Evet);
        BaskiBekle(kSozlesmeIsi);
        MenuSorusu(Cevap::Evet);
        BaskiBekle(kMenuIsi);
        Yazdir();
        for (const auto& [ad, metin] :
             {std::pair{u"Unvan", u"Gül Düğün"}, std::pair{u"Label4", u"Klasik"},
              std::pair{u"Label20", u"Çorba, Tatlı"}, std::pair{u"OzelIstekler", u"Tuzsuz ekmek"},
              std::pair{u"Onaciklama", u"Masa düzeni U olacak."}})
            EXPECT_EQ(Basilan(1, ad), metin) << testing::PrintToString(ad);
    });
}

TEST_F(SozlesmeBaskisi, A_yes_to_the_note_takes_the_place_of_the_remark_and_a_no_gives_it_back) {
    DoluKayit([&] {
        BirKezBas(true);
        EXPECT_EQ(Basilan(0, u"Label55"), u"-");
        EXPECT_EQ(Basilan(0, u"Onaciklama"), u"-");
        EXPECT_NE(Basilan(0, u"Senet"), u"-");
        EXPECT_EQ(Basilan(0, u"Label38"), u"İş Bu bono vadesinde ödenmediği taktirde, müteakip bonolarında "
                                          u"muacceliyet kesbedeceğini ihtilaf vukuunda");
        EXPECT_EQ(Basilan(0, u"Label50"), u"TEKIRDAG Mahkemelerinin selahiyetinin şimdiden kabul eyleri....");
        BirKezBas(false);
        EXPECT_EQ(Basilan(1, u"Label55"), u"Ön Açıklama :");
        EXPECT_EQ(Basilan(1, u"Onaciklama"), u"Masa düzeni U olacak.");
        EXPECT_EQ(Basilan(1, u"Senet"), u"-");
    });
}

TEST_F(SozlesmeBaskisi, The_hall_is_the_one_that_the_main_screen_shows_when_it_is_printed) {
    DoluKayit([&] {
        kullanici.SalonSec(u"Salon B");
        SayfaSorusu(u"1");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(u"20.06.2012 - Salon B - Ayşe Yılmaz - Sözleşme");
        MenuSorusu(Cevap::Hayir);
        Yazdir();
        EXPECT_EQ(Basilan(0, u"CSalon"), u"Salon B");
    });
}

TEST_F(SozlesmeBaskisi, Long_clauses_a_tall_address_a_long_remark_and_a_long_menu_are_all_on_paper) {
    const Metin maddeler = UzunMetin(5000);
    MaddeKoy(maddeler);
    DoluKayit([&] {
        Kayit().Kay[AnaNo::Adres].metin = u"Çay Sk. 3\r\nGül Apt.\r\nKat 2\r\nDaire 7\r\nErgene Tekirdağ";
        Kayit().Kay[AnaNo::OnAciklama].metin = UzunMetin(1900);
        Kayit().Label20.metin = UzunMetin(4999);
        Kayit().Aciklamalar.metin = UzunMetin(4990);
        for (const Cevap senet : {Cevap::Evet, Cevap::Hayir}) {
            SayfaSorusu(u"1");
            SenetSorusu(senet);
            BaskiBekle(kSozlesmeIsi);
            MenuSorusu(Cevap::Evet);
            BaskiBekle(kMenuIsi);
            Yazdir();
        }
        for (const GidenSayfalar& baski : Basilanlar())
            SayfalarDuzgunOlmali(baski.sayfalar);
        for (const std::size_t sozlesme : {0U, 2U}) {
            const auto& sayfalar = Basilanlar()[sozlesme].sayfalar;
            EXPECT_EQ(BosluksuzMetin(sayfalar, u"Sozlesme"), Bosluksuz(maddeler));
            EXPECT_EQ(BosluksuzMetin(sayfalar, u"CAdres"), Bosluksuz(Kayit().Kay[AnaNo::Adres].metin));
        }
        EXPECT_EQ(BosluksuzMetin(Basilanlar()[2].sayfalar, u"Onaciklama"), Bosluksuz(UzunMetin(1900)));
        EXPECT_EQ(BosluksuzMetin(Basilanlar()[3].sayfalar, u"Label20"), Bosluksuz(UzunMetin(4999)));
        EXPECT_EQ(BosluksuzMetin(Basilanlar()[3].sayfalar, u"OzelIstekler"), Bosluksuz(UzunMetin(4990)));
    });
}

TEST_F(SozlesmeBaskisi, Empty_fields_and_masks_are_printed_as_they_stand) {
    YeniKayit([&] {
        Kayit().Kay[12].metin = Metin(kBosSaat);
        SayfaSorusu(u"1");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(u"20.06.2012 - Salon A - Sözleşme");
        MenuSorusu(Cevap::Evet);
        BaskiBekle(u"20.06.2012 - Salon A - Menü");
        Yazdir();
        EXPECT_EQ(Basilan(0, u"CSaati"), u"__:__ - __:__");
        EXPECT_EQ(Basilan(0, u"CTuru"), u"Lütfen Seçiniz");
        EXPECT_EQ(Basilan(0, u"CTutar"), u" TL");
        EXPECT_EQ(Basilan(0, u"COdenen"), u"0 TL");
        EXPECT_EQ(Basilan(0, u"Cdavetli"), u" Kişi");
        EXPECT_EQ(Basilan(1, u"Label4"), u"Menü seçiniz...");
    });
}

} // namespace velora::test
