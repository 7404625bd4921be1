// The scripted outside world must itself be able to fail a test.
#include "destek/SahteOrtam.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace velora::test {

namespace {

constexpr Gun kGun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}};

/// Shows a screen over the others, as a program does.
void Goster(const Ortam& ortam, EkranAdi ad) {
    ortam.goster.modal(ad, [] {});
}

} // namespace

TEST(SahteOrtamTest, Unexpected_box_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Ver().sor.mesaj({u"Şu"});
        },
        "nothing was expected, but the box \"Şu\" came");
}

TEST(SahteOrtamTest, Unexpected_input_box_fails_and_is_answered_by_a_blank) {
    Metin cevap;
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            cevap = ortam.Ver().sor.girdi({u"ad", u"Başlık", u""});
        },
        "nothing was expected, but the input box \"ad\" came");
    EXPECT_EQ(cevap, u" ");
}

TEST(SahteOrtamTest, Unexpected_screen_over_the_others_fails_and_closes_at_once) {
    int gorunme = 0;
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Ver().goster.modal(EkranAdi::FormPrint, [&] { ++gorunme; });
        },
        "nothing was expected, but the screen FormPrint came");
    EXPECT_EQ(gorunme, 1);
}

TEST(SahteOrtamTest, Screen_beside_the_others_needs_no_entry) {
    SahteOrtam ortam(kGun);
    ortam.Ver().goster.ac(EkranAdi::FormTablo, [] {});
    EXPECT_EQ(ortam.acilanlar, std::vector<EkranAdi>{EkranAdi::FormTablo});
}

TEST(SahteOrtamTest, Box_that_never_came_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"x"});
        },
        "the box \"x\" was expected and never came");
}

TEST(SahteOrtamTest, Screen_that_never_came_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla});
        },
        "the screen FormWebteYayinla was expected and never came");
}

TEST(SahteOrtamTest, Each_entry_that_never_came_is_told) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk});
            ortam.Bekle(BeklenenGirdi{u"Başlık", u"y", u"z"});
            Goster(ortam.Ver(), EkranAdi::FormRenk);
        },
        "the input box \"y\" was expected and never came");
}

TEST(SahteOrtamTest, Differently_worded_box_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"x"});
            ortam.Ver().sor.mesaj({u"y"});
        },
        "beklenen->metin");
}

TEST(SahteOrtamTest, A_request_gets_its_scripted_reply_and_an_unexpected_one_fails_and_gets_none) {
    SahteOrtam ortam(kGun);
    ortam.Bekle(BeklenenIstek{.adres = u"http://x/ş", .cevap = u"OKEY"});
    EXPECT_EQ(ortam.Ver().ag.getir({.adres = u"http://x/ş"}), u"OKEY");
    Metin cevap = u"?";
    EXPECT_NONFATAL_FAILURE(cevap = ortam.Ver().ag.getir({.adres = u"http://y/ş"}),
                            "nothing was expected, but the request \"http://y/ş\" came");
    EXPECT_EQ(cevap, u"");
}

TEST(SahteOrtamTest, A_request_that_never_came_or_differs_in_a_letter_or_in_its_seconds_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenIstek{.adres = u"http://x/"});
        },
        "the request \"http://x/\" was expected and never came");
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenIstek{.adres = u"http://x/I"});
            ortam.Ver().ag.getir({.adres = u"http://x/ı"});
        },
        "Tirnakli(beklenen->adres)");
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenIstek{.adres = u"http://x/", .sure = 2});
            ortam.Ver().ag.getir({.adres = u"http://x/", .sure = 10});
        },
        "seconds for \"http://x/\"");
}

TEST(SahteOrtamTest, A_request_that_is_given_up_while_it_is_waited_for_gets_no_reply) {
    SahteOrtam ortam(kGun);
    bool birak = false;
    ortam.Bekle(BeklenenIstek{.adres = u"http://x/", .cevap = u"1", .is = [&] { birak = true; }});
    EXPECT_EQ(ortam.Ver().ag.getir({.adres = u"http://x/", .vazgecildi = [&] { return birak; }}), u"");
}

TEST(SahteOrtamTest, Question_answered_like_a_message_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"x", Simge::Soru, Cevap::Tamam});
            ortam.Ver().sor.mesaj({u"x", u"Velora", Simge::Soru, KutuDugmeleri::EvetHayir});
        },
        "other buttons");
}

TEST(SahteOrtamTest, Input_box_gives_its_scripted_answer) {
    SahteOrtam ortam(kGun);
    ortam.Bekle(BeklenenGirdi{u"Başlık", u"Soru", u"cevap", u"eski"});
    EXPECT_EQ(ortam.Ver().sor.girdi({u"Soru", u"Başlık", u"eski"}), u"cevap");
}

TEST(SahteOrtamTest, Input_box_that_offers_another_text_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenGirdi{u"Başlık", u"Soru", u"cevap", u"eski"});
            ortam.Ver().sor.girdi({u"Soru", u"Başlık", u""});
        },
        "the text that the box offers");
}

TEST(SahteOrtamTest, Screen_that_comes_before_the_box_expected_first_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"önce"});
            Goster(ortam.Ver(), EkranAdi::FormRenk);
        },
        "the box \"önce\" was expected, but the screen FormRenk came");
}

TEST(SahteOrtamTest, Input_box_that_comes_before_the_screen_expected_first_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk});
            ortam.Ver().sor.girdi({u"ad", u"Başlık", u""});
        },
        "the screen FormRenk was expected, but the input box \"ad\" came");
}

TEST(SahteOrtamTest, Box_that_comes_before_the_input_box_expected_first_fails_and_a_question_is_a_no) {
    Cevap cevap = Cevap::Tamam;
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenGirdi{u"Başlık", u"ad", u"cevap"});
            cevap = ortam.Ver().sor.mesaj({u"x", u"Velora", Simge::Soru, KutuDugmeleri::EvetHayir});
        },
        "the input box \"ad\" was expected, but the box \"x\" came");
    EXPECT_EQ(cevap, Cevap::Hayir);
}

TEST(SahteOrtamTest, Another_screen_than_the_expected_one_fails_and_gets_none_of_its_work) {
    int yapilan = 0;
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk, [&] { ++yapilan; }});
            Goster(ortam.Ver(), EkranAdi::FormBakiye);
        },
        "the screen FormRenk was expected, but the screen FormBakiye came");
    EXPECT_EQ(yapilan, 0);
}

TEST(SahteOrtamTest, Work_on_a_screen_begins_when_it_stands_and_uses_up_the_same_script) {
    SahteOrtam ortam(kGun);
    const Ortam dis = ortam.Ver();
    std::vector<int> sira;
    ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk, [&] {
                                  sira.push_back(2);
                                  dis.sor.mesaj({u"içeride"});
                                  Goster(dis, EkranAdi::FormBakiye);
                              }});
    ortam.Bekle(BeklenenKutu{u"Velora", u"içeride"});
    ortam.Bekle(BeklenenEkran{EkranAdi::FormBakiye, [&] { sira.push_back(3); }});
    ortam.Bekle(BeklenenKutu{u"Velora", u"sonra"});
    dis.goster.modal(EkranAdi::FormRenk, [&] { sira.push_back(1); });
    dis.sor.mesaj({u"sonra"});
    EXPECT_EQ(sira, (std::vector<int>{1, 2, 3}));
}

TEST(SahteOrtamTest, What_is_expected_on_a_screen_comes_before_what_was_expected_behind_it) {
    SahteOrtam ortam(kGun);
    const Ortam dis = ortam.Ver();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk, [&] {
                                  ortam.Bekle(BeklenenEkran{EkranAdi::FormBakiye, [&] {
                                                                ortam.Bekle(BeklenenKutu{u"Velora", u"1"});
                                                                dis.sor.mesaj({u"1"});
                                                            }});
                                  ortam.Bekle(BeklenenKutu{u"Velora", u"2"});
                                  Goster(dis, EkranAdi::FormBakiye);
                                  dis.sor.mesaj({u"2"});
                                  dis.sor.mesaj({u"3"});
                                  ortam.Bekle(BeklenenKutu{u"Velora", u"4"});
                                  dis.sor.mesaj({u"4"});
                              }});
    ortam.Bekle(BeklenenKutu{u"Velora", u"3"});
    ortam.Bekle(BeklenenKutu{u"Velora", u"5"});
    Goster(dis, EkranAdi::FormRenk);
    ortam.Bekle(BeklenenKutu{u"Velora", u"6"});
    dis.sor.mesaj({u"5"});
    dis.sor.mesaj({u"6"});
}

TEST(SahteOrtamTest, Unexpected_and_missing_prints_fail_and_print_nothing) {
    bool basildi = true;
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            basildi = ortam.Ver().kagit.yazdir({Sayfa{}}, u"Sözleşme");
        },
        "nothing was expected, but the print \"Sözleşme\" came");
    EXPECT_FALSE(basildi);
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenBaski{.isAdi = u"Sözleşme"});
        },
        "the print \"Sözleşme\" was expected and never came");
}

TEST(SahteOrtamTest, A_place_to_save_that_nobody_expected_fails_and_is_a_cancel) {
    std::optional<std::filesystem::path> yer = "x";
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            yer = ortam.Ver().sor.kayitYeri({.baslik = u"b", .ad = u"a.pdf", .tur = u"t", .uzanti = u".pdf"});
        },
        "nothing was expected, but the place to save \"a.pdf\" came");
    EXPECT_FALSE(yer);
}

} // namespace velora::test
