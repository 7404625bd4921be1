// What is done to the list of holidays: sorted, added to, removed from, replaced, kept and dropped.
#include "destek/Ariza.h"
#include "maintenance/TatilTest.h"

namespace velora::test {

class TatilIslemleriTest : public TatilTest {};

TEST_F(TatilIslemleriTest, A_head_sorts_the_rows_as_texts_and_turns_them_round_at_each_click) {
    Tatil().Liste.secili = 1;
    Tatil().Liste.basligaTiklandi(0);
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u"Gençlik", u"Çocuk Bayramı"})) << "as text: 05, 19, 23";
    EXPECT_EQ(Tatil().Liste.secili, 0) << "the mark stays on its row";
    Tatil().Liste.basligaTiklandi(0);
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Gençlik", u"Kuruluş"}));
    Tatil().Liste.basligaTiklandi(0);
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u"Gençlik", u"Çocuk Bayramı"})) << "there is no third order";
    Tatil().Liste.basligaTiklandi(1);
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Gençlik", u"Kuruluş"})) << "in Turkish";
    Tatil().Liste.basligaTiklandi(3);
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Gençlik", u"Kuruluş"})) << "equal rows stay in their order";
}

TEST_F(TatilIslemleriTest, A_sort_begins_ascending_at_each_new_column_and_behind_added_rows_on_purpose) {
    Tatil().Liste.basligaTiklandi(0);
    Tatil().Liste.basligaTiklandi(0);
    EXPECT_TRUE(Tatil().Liste.siralama.azalan);
    Tatil().Liste.basligaTiklandi(1);
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Gençlik", u"Kuruluş"}));
    Tatil().Ekle({u"01.01.2012", u"Açılış", u"Evet", u"Özel"});
    EXPECT_EQ(Adlar().back(), u"Açılış") << "what comes isn't sorted in";
    Tatil().Liste.basligaTiklandi(1);
    EXPECT_EQ(Adlar(), (Liste{u"Açılış", u"Çocuk Bayramı", u"Gençlik", u"Kuruluş"}));
    Tatil().Liste.basligaTiklandi(0);
    EXPECT_FALSE(Tatil().Liste.siralama.azalan);
}

TEST_F(TatilIslemleriTest, The_order_of_the_heads_is_what_is_kept_and_what_is_painted) {
    Tatil().Ekle({u"05.06.2011", u"Bir", u"Evet", u"Özel"});
    Tatil().Ekle({u"05.06.2010", u"İki", u"Evet", u"Özel"});
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(6, 5), u"Kuruluş") << "the rows of one year come behind the yearly ones";
    Tatil().Liste.secili = 1;
    ortam.Bekle(BeklenenKutu{u"Velora", u"Seçili kaydı silmek istediğinizden emin misiniz?", Simge::Soru,
                             Cevap::Evet});
    Tatil().Command5_Click();
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(6, 5), u"İki") << "of two on one day the later row's";
    Tatil().Liste.basligaTiklandi(1);
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(6, 5), u"İki");
    Tatil().Liste.basligaTiklandi(0);
    Tatil().Liste.basligaTiklandi(0);
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(6, 5), u"İki") << "23, 19, 05.06.2011, 05.06.2010";
    Tatil().Liste.basligaTiklandi(0);
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(6, 5), u"Bir");
    program.FormResmiTatil->Command1_Click();
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), "\"05.06.2010\",\"\xDDki\",\"Evet\",\"\xD6zel\"\r\n"
                                          "\"05.06.2011\",\"Bir\",\"Evet\",\"\xD6zel\"\r\n"
                                          "\"19.05.2010\",\"Gen\xE7lik\",\"Evet\",\"Genel\"\r\n"
                                          "\"23.04.2010\",\"\xC7ocuk Bayram\xFD\",\"Evet\",\"Genel\"\r\n");
}

TEST_F(TatilIslemleriTest, Keeping_unloads_the_screen_before_the_table_reads_the_file_again) {
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(4, 23), u"Çocuk Bayramı");
    Tatil().Liste.satirlar.erase(0);
    // A row without a date is written, but the reading leaves it out.
    Tatil().Ekle({u" ", u"Tarihsiz", u"Evet", u"Özel"});
    program.FormResmiTatil->Command1_Click();
    EXPECT_EQ(ortam.gizlenenler, std::vector{EkranAdi::FormResmiTatil});
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u"Gençlik"})) << "the scan has loaded it afresh";
    EXPECT_EQ(Ipucu(4, 23), u"");
    EXPECT_EQ(Ipucu(5, 19), u"Gençlik");
}

TEST_F(TatilIslemleriTest, A_cancel_drops_all_changes) {
    Tatil().Ekle({u"01.01.2012", u"Yılbaşı", u"Evet", u"Özel"});
    Tatil().Liste.satirlar.erase(0);
    Tatil().Liste.basligaTiklandi(2);
    program.FormResmiTatil->Command2_Click();
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Kuruluş", u"Gençlik"}));
}

TEST_F(TatilIslemleriTest, A_row_is_removed_after_a_question_that_starts_on_the_no) {
    const Metin soru = u"Seçili kaydı silmek istediğinizden emin misiniz?";
    Tatil().Command5_Click();
    EXPECT_FALSE(Tatil().Command5.etkin) << "without a marked row nothing is asked";
    Tatil().Liste.secili = 1;
    Tatil().Liste_Click();
    EXPECT_TRUE(Tatil().Command5.etkin);
    ortam.Bekle(BeklenenKutu{u"Velora", soru, Simge::Soru, Cevap::Hayir});
    Tatil().Command5_Click();
    EXPECT_EQ(ortam.hayirdaBaslayanlar, Liste{soru});
    EXPECT_EQ(Adlar().size(), 3U);
    ortam.Bekle(BeklenenKutu{u"Velora", soru, Simge::Soru, Cevap::Evet});
    Tatil().Command5_Click();
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Gençlik"}));
    EXPECT_EQ(Tatil().Liste.secili, -1);
    EXPECT_FALSE(Tatil().Command5.etkin);
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller) << "kept only by \"Kaydet\"";
}

TEST_F(TatilIslemleriTest, The_published_rows_replace_the_general_ones_in_the_list_alone) {
    agac.Koy(u"Tatiller.dat", "\"01.01.2010\",\"Y\xFDlba\xFE\xFD\",\"Evet\",\"Genel\"\r\n"
                              "\"\",\"bo\xFE\",\"Evet\",\"Genel\"\r\n"
                              "\"29.10.2010\",\"Cumhuriyet\",\"Evet\",\"Genel\"\r\n");
    Tatil().Liste.secili = 2;
    Tatil().Temizle_Click();
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u"Yılbaşı", u"Cumhuriyet"}));
    EXPECT_EQ(Tatil().Liste.secili, -1);
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(10, 29), u"Cumhuriyet") << "the next scan paints them before they are kept";
    EXPECT_EQ(Ipucu(4, 23), u"");
}

TEST_F(TatilIslemleriTest, What_the_published_list_says_of_where_a_row_is_from_stays_on_purpose) {
    agac.Koy(u"Tatiller.dat", "\"01.01.2010\",\"a\",\"Evet\",\"\xD6zel\"\r\n"
                              "\"02.01.2010\",\"b\",\"Evet\",\"site\"\r\n"
                              "\"03.01.2010\",\"c\",\"Evet\",\"Genel\"\r\n");
    Tatil().Temizle_Click();
    Tatil().Temizle_Click(); // only what is general goes, and comes again
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u"a", u"b", u"a", u"b", u"c"}));
    EXPECT_EQ(Tatil().Liste.satirlar[1].sutun[3], u"Özel");
    EXPECT_EQ(Tatil().Liste.satirlar[2].sutun[3], u"site");
}

TEST_F(TatilIslemleriTest, Only_rows_that_are_general_to_the_letter_are_replaced_on_purpose) {
    for (const MetinBakis kaynak : {u" Genel", u"Genel ", u"genel", u"GENEL", u"Genel", u""})
        Tatil().Ekle({u"01.01.2012", Metin(kaynak), u"Evet", Metin(kaynak)});
    Tatil().Temizle_Click();
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u" Genel", u"Genel ", u"genel", u"GENEL", u""}));
}

TEST_F(TatilIslemleriTest,
       Without_a_published_list_the_general_rows_are_gone_and_a_cancel_brings_them_back_on_purpose) {
    Tatil().Temizle_Click();
    EXPECT_EQ(Adlar(), Liste{u"Kuruluş"});
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
    program.FormResmiTatil->Command2_Click();
    EXPECT_EQ(Adlar().size(), 3U);
}

TEST_F(TatilIslemleriTest, A_published_list_that_could_not_be_read_gives_up_no_general_row_on_the_disk) {
    agac.Koy(u"Tatiller.dat", "\"01.01.2010\",\"Y\xFDlba\xFE\xFD\",\"Evet\",\"Genel\"\r\n");
    const auto bozuldu = BirKezOkunmaz(program.dosyalar, kGenelTatilDosyasi);
    Tatil().Temizle_Click();
    EXPECT_TRUE(*bozuldu);
    EXPECT_EQ(Adlar(), Liste{u"Kuruluş"}) << "shown as without one";
    program.FormResmiTatil->Command1_Click();
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
    BirKezOkunmaz(program.dosyalar, kGenelTatilDosyasi);
    Tatil().Temizle_Click();
    Tatil().Temizle_Click();
    program.FormResmiTatil->Command1_Click();
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), "\"05.06.2012\",\"Kurulu\xFE\",\"Hay\xFDr\",\"\xD6zel\"\r\n"
                                          "\"01.01.2010\",\"Y\xFDlba\xFE\xFD\",\"Evet\",\"Genel\"\r\n")
        << "the second press has read it";
}

TEST_F(TatilIslemleriTest, The_list_read_afresh_is_not_kept_back_by_a_published_one_that_failed_before) {
    agac.Koy(u"Tatiller.dat", "");
    BirKezOkunmaz(program.dosyalar, kGenelTatilDosyasi);
    Tatil().Temizle_Click();
    Tatil().Load();
    Tatil().Ekle({u"07.08.2012", u"Panayır", u"Hayır", Metin(kOzelTatil)});
    program.FormResmiTatil->Command1_Click();
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"),
              std::string(kTatiller) + "\"07.08.2012\",\"Panay\xFDr\",\"Hay\xFDr\",\"\xD6zel\"\r\n");
}

TEST_F(TatilIslemleriTest, Without_a_published_list_what_is_left_is_written) {
    Tatil().Temizle_Click();
    program.FormResmiTatil->Command1_Click();
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), "\"05.06.2012\",\"Kurulu\xFE\",\"Hay\xFDr\",\"\xD6zel\"\r\n");
}

TEST_F(TatilIslemleriTest, A_published_list_that_is_none_costs_no_row_of_the_firm_and_nothing_on_the_disk) {
    const std::string sayfa =
        "<!DOCTYPE html>\r\n<html lang=\"tr\"><body class=\"a,b\">404 \"Yok\"</body>\r\n";
    for (const std::string& bayt :
         {std::string(), sayfa, std::string("\"30.08.2010\",\"Zaf"), std::string("\0\xFF,\"", 4),
          std::string(200'000, '"'), std::string(200'000, ',')}) {
        agac.Koy(u"Tatiller.dat", bayt);
        Tatil().Temizle_Click();
        EXPECT_EQ(Adlar().front(), u"Kuruluş");
        program.FormTablo->Command1();
        EXPECT_EQ(Ipucu(6, 5), u"Kuruluş");
        Tatil().Liste.basligaTiklandi(2);
        EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
        program.FormResmiTatil->Command2_Click();
        EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Kuruluş", u"Gençlik"}));
    }
}

TEST_F(TatilIslemleriTest, A_day_is_added_to_the_list_with_its_name_cleaned_and_not_kept_yet) {
    ortam.Bekle(BeklenenEkran{EkranAdi::FormResmiTatilEkle, [&] {
                                  const auto ekle = program.FormResmiTatilEkle.Tut();
                                  EXPECT_EQ(TarihMetni(ekle->DTPicker1.deger), u"01.01.2012");
                                  ekle->Text2.metin = u"\"Açılış, \"2\"";
                                  ekle->DTPicker1.deger = *TarihCoz(u"07.09.2013");
                                  program.FormResmiTatilEkle->Command1_Click();
                                  EXPECT_FALSE(program.FormResmiTatilEkle.Yuklu());
                              }});
    Tatil().Command4_Click();
    EXPECT_EQ(Tatil().Liste.satirlar[3].sutun, (Liste{u"07.09.2013", u"Açılış. 2", u"Hayır", u"Özel"}));
    const auto ekle = program.FormResmiTatilEkle.Tut();
    ekle->Text2.metin = u"x";
    ekle->Check1.deger = 1;
    program.FormResmiTatilEkle->Command1_Click();
    EXPECT_EQ(Tatil().Liste.satirlar[4].sutun, (Liste{u"01.01.2012", u"x", u"Evet", u"Özel"}));
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
    program.FormTablo->Command1();
    EXPECT_EQ(Ipucu(1, 1), u"x");
}

TEST_F(TatilIslemleriTest, A_name_of_blanks_and_one_of_quotes_alone_are_taken_on_purpose) {
    for (const MetinBakis ad : {u"  ", u"\"\""}) {
        program.FormResmiTatilEkle->Text2.metin = ad;
        program.FormResmiTatilEkle->Command1_Click();
        EXPECT_FALSE(program.FormResmiTatilEkle.Yuklu());
    }
    EXPECT_EQ(Adlar(), (Liste{u"Çocuk Bayramı", u"Kuruluş", u"Gençlik", u"  ", u""}));
}

TEST_F(TatilIslemleriTest, A_day_without_a_name_is_refused_and_a_cancel_adds_none) {
    ortam.Bekle(BeklenenKutu{u"Velora", u"Lütfen Açıklama yazınız"});
    program.FormResmiTatilEkle->Command1_Click();
    EXPECT_EQ(ortam.odaklar, Liste{u"Text2"});
    EXPECT_TRUE(program.FormResmiTatilEkle.Yuklu());
    program.FormResmiTatilEkle->Text2.metin = u"a";
    program.FormResmiTatilEkle->Command2_Click();
    EXPECT_EQ(Adlar().size(), 3U);
}

} // namespace velora::test
