#include "setup/FormMenuAyar.h"

#include "setup/MenuTest.h"

namespace velora::test {

class FormMenuAyarTest : public MenuTest {};

TEST_F(FormMenuAyarTest, Captions_stand_as_the_user_reads_them) {
    EXPECT_EQ(Menuler().baslik, u"Menü Ayarları");
    EXPECT_EQ(Menuler().Liste.basliklar, (std::vector<Metin>{u"Menü Adı", u"Menü İçeriği"}));
    EXPECT_EQ(Menuler().Command1.baslik, u"Ekle");
    EXPECT_EQ(Menuler().Command2.baslik, u"Sil");
    EXPECT_EQ(Menuler().Command3.baslik, u"Kapat");
    EXPECT_EQ(Menuler().Command4.baslik, u"Düzenle");
    EXPECT_EQ(Menuler().Kaydet.baslik, u"Kaydet");
}

TEST_F(FormMenuAyarTest, Absent_file_gives_an_empty_list) {
    EXPECT_TRUE(Liste().empty());
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat"));
}

TEST_F(FormMenuAyarTest, Menus_are_listed_in_the_order_of_the_file) {
    agac.Koy(u"Menuler.dat", "\"\xDEi\xFE\",\"Et\"\r\n\"Alt\xFDn\",\"\xC7orba\r\nTatl\xFD\"\r\n");
    EXPECT_EQ(Liste(), (Satirlar{{u"Şiş", u"Et"}, {u"Altın", u"Çorba\r\nTatlı"}}));
}

TEST_F(FormMenuAyarTest, Record_with_an_empty_name_is_not_listed_and_lost_at_the_next_save_as_is_meant) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n\" \",\"2\"\r\n\"C\",\"3\"\r\n");
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}, {u"C", u"3"}}));
    Menuler().Kaydet_Click();
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n\"C\",\"3\"\r\n");
}

TEST_F(FormMenuAyarTest, Last_name_without_a_content_keeps_the_content_of_the_row_before_as_is_meant) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n\"B\"\r\n");
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}, {u"B", u"1"}}));
}

TEST_F(FormMenuAyarTest,
       Buttons_of_a_row_are_enabled_by_a_click_and_disabled_when_the_screen_comes_to_the_front) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    program.FormMenuAyar.Goster();
    EXPECT_FALSE(Menuler().Command2.etkin);
    EXPECT_FALSE(Menuler().Command4.etkin);
    Isaretle(-1);
    EXPECT_FALSE(Menuler().Command2.etkin) << "a click beside the rows";
    Isaretle(0);
    EXPECT_TRUE(Menuler().Command2.etkin);
    EXPECT_TRUE(Menuler().Command4.etkin);
    MenuAcikken({});
    VELORA_BAS(program.FormMenuAyar, Command4);
    EXPECT_FALSE(Menuler().Command2.etkin) << "the dialogue has closed";
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuAyarTest, Double_click_edits_only_while_the_button_is_enabled) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    program.FormMenuAyar.Goster();
    Menuler().Liste.secili = 0;
    Menuler().Liste_DblClick();
    Isaretle(0);
    MenuAcikken({});
    Menuler().Liste_DblClick();
}

TEST_F(FormMenuAyarTest, Deleted_menu_is_gone_from_list_and_file) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n\"B\",\"2\"\r\n\"C\",\"3\"\r\n");
    MenuSil(1, Cevap::Evet);
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}, {u"C", u"3"}}));
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n\"C\",\"3\"\r\n");
    EXPECT_FALSE(Menuler().Command2.etkin);
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuAyarTest, No_deletes_nothing_and_leaves_both_buttons_disabled_as_is_meant) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    MenuSil(0, Cevap::Hayir);
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}}));
    EXPECT_EQ(Menuler().Liste.secili, 0);
    EXPECT_FALSE(Menuler().Command2.etkin);
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuAyarTest,
       After_a_delete_of_the_last_menu_the_file_is_empty_and_the_list_stays_empty_on_reload) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    MenuSil(0, Cevap::Evet);
    EXPECT_TRUE(agac.DosyaVar(u"Menuler.dat"));
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "");
    VELORA_BAS(program.FormMenuAyar, Command3);
    EXPECT_FALSE(program.FormMenuAyar.Yuklu());
    EXPECT_TRUE(Liste().empty());
}

TEST_F(FormMenuAyarTest, Quotes_and_commas_are_written_raw_and_slide_the_next_reading_as_is_meant) {
    agac.Koy(u"Menuler.dat", "\"B\",\"2\"\r\n");
    MenuEkle(u"a", u"et \"x\", su");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"B\",\"2\"\r\n\"A\",\"Et \"x\", Su\"\r\n");
    program.FormMenuAyar.Bosalt();
    EXPECT_EQ(Liste(), (Satirlar{{u"B", u"2"}, {u"A", u"Et "}, {u"x\"", u"Su\""}}));
}

TEST_F(FormMenuAyarTest, File_that_cannot_be_written_stays_and_nothing_is_said) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    Menuler();
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    MenuSil(0, Cevap::Evet);
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n");
    EXPECT_TRUE(Liste().empty());
}

TEST_F(FormMenuAyarTest, Full_disk_keeps_the_old_menus_whole) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    Menuler();
    program.dosyalar.bosYer = 5;
    MenuEkle(u"b", u"uzun bir içerik");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n");
}

TEST_F(FormMenuAyarTest, Garbage_is_listed_and_crashes_nothing) {
    agac.Koy(u"Menuler.dat", std::string(100'000, '"') + std::string(1000, '\xFF'));
    Liste();
    agac.Koy(u"Menuler.dat", std::string(5000, ','));
    program.FormMenuAyar.Bosalt();
    EXPECT_TRUE(Liste().empty());
}

} // namespace velora::test
