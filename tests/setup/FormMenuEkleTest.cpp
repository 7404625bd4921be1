#include "setup/FormMenuEkle.h"

#include "setup/MenuTest.h"

namespace velora::test {

class FormMenuEkleTest : public MenuTest {
  protected:
    FormMenuEkleTest() {
        agac.Koy(u"Menuler.dat", "\"A\",\"Bir\"\r\n\"B\",\"\xDDki\"\r\n");
        Menuler();
    }
};

TEST_F(FormMenuEkleTest, Add_opens_an_empty_dialogue_that_cannot_be_confirmed) {
    MenuAcikken([&] {
        EXPECT_EQ(Ekle().baslik, u"Menü Ekle");
        EXPECT_EQ(Ekle().Label1.baslik, u"Menü Adı");
        EXPECT_EQ(Ekle().Label2.baslik, u"İçerik");
        EXPECT_EQ(Ekle().Command4.baslik, u"Tamam");
        EXPECT_EQ(Ekle().Command3.baslik, u"İptal");
        EXPECT_EQ(Ekle().Tag, u"");
        EXPECT_EQ(Ekle().Text1.metin, u"");
        EXPECT_EQ(Ekle().Text2.metin, u"");
        EXPECT_FALSE(Ekle().Command4.etkin);
    });
    VELORA_BAS(program.FormMenuAyar, Command1);
}

TEST_F(FormMenuEkleTest, Edit_opens_with_the_menu_under_its_own_title_and_caption) {
    MenuAcikken([&] {
        EXPECT_EQ(Ekle().baslik, u"Menü Düzenle");
        EXPECT_EQ(Ekle().Command4.baslik, u"Değiştir");
        EXPECT_EQ(Ekle().Tag, u"1");
        EXPECT_EQ(Ekle().Text1.metin, u"B");
        EXPECT_EQ(Ekle().Text2.metin, u"İki");
        EXPECT_TRUE(Ekle().Command4.etkin);
        VELORA_BAS(program.FormMenuEkle, Command3);
    });
    Isaretle(1);
    VELORA_BAS(program.FormMenuAyar, Command4);
    EXPECT_FALSE(program.FormMenuEkle.Yuklu());
}

TEST_F(FormMenuEkleTest, Add_after_an_edit_has_its_own_title_and_no_tag) {
    MenuAcikken([this] { VELORA_BAS(program.FormMenuEkle, Command3); });
    Isaretle(1);
    VELORA_BAS(program.FormMenuAyar, Command4);
    MenuEkle(u"c", u"üç");
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"Bir"}, {u"B", u"İki"}, {u"C", u"Üç"}}));
}

TEST_F(FormMenuEkleTest, Content_without_a_name_cannot_be_confirmed) {
    MenuyuGir(u"", u"et");
    EXPECT_FALSE(Ekle().Command4.etkin);
    MenuyuGir(u"   ", u"et");
    EXPECT_FALSE(Ekle().Command4.etkin);
    MenuyuGir(u" a", u"et");
    EXPECT_TRUE(Ekle().Command4.etkin);
}

TEST_F(FormMenuEkleTest, Name_with_no_content_is_refused_and_the_focus_goes_to_the_content) {
    const std::string once = agac.Resim();
    MenuAcikken([this] {
        MenuyuGir(u"yeni menü", u"");
        ortam.Bekle(BeklenenKutu{u"Velora", u"Lüften içerik giriniz!"});
        VELORA_BAS(program.FormMenuEkle, Command4);
    });
    VELORA_BAS(program.FormMenuAyar, Command1);
    EXPECT_EQ(ortam.odaklar, std::vector<Metin>{u"Text2"});
    EXPECT_EQ(ortam.odakEkranlari, std::vector{EkranAdi::FormMenuEkle});
    EXPECT_TRUE(program.FormMenuEkle.Yuklu());
    EXPECT_EQ(Ekle().Text1.metin, u"yeni menü") << "not yet in proper case";
    EXPECT_EQ(agac.Resim(), once);
    EXPECT_EQ(Liste().size(), 2U);
}

TEST_F(FormMenuEkleTest, Content_of_blanks_passes_as_is_meant) {
    MenuEkle(u"c", u"  ");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"Bir\"\r\n\"B\",\"\xDDki\"\r\n\"C\",\"  \"\r\n");
}

TEST_F(FormMenuEkleTest, Content_is_stored_in_proper_case_too) {
    MenuEkle(u"ALTIN menü", u"et sote\r\nİNCİR tatlısı");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"),
              "\"A\",\"Bir\"\r\n\"B\",\"\xDDki\"\r\n\"Alt\xFDn Men\xFC\",\"Et Sote\r\n\xDDncir "
              "Tatl\xFDs\xFD\"\r\n");
    EXPECT_FALSE(program.FormMenuEkle.Yuklu());
}

TEST_F(FormMenuEkleTest, Changed_menu_keeps_its_place) {
    MenuAcikken([this] {
        MenuyuGir(u"yeni", u"üç dört");
        VELORA_BAS(program.FormMenuEkle, Command4);
    });
    Isaretle(0);
    VELORA_BAS(program.FormMenuAyar, Command4);
    EXPECT_EQ(Liste(), (Satirlar{{u"Yeni", u"Üç Dört"}, {u"B", u"İki"}}));
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"Yeni\",\"\xDC\xE7 D\xF6rt\"\r\n\"B\",\"\xDDki\"\r\n");
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuEkleTest, Cancel_after_typing_changes_nothing) {
    const std::string once = agac.Resim();
    MenuAcikken([this] {
        MenuyuGir(u"yeni", u"üç");
        VELORA_BAS(program.FormMenuEkle, Command3);
    });
    VELORA_BAS(program.FormMenuAyar, Command1);
    EXPECT_EQ(agac.Resim(), once);
    EXPECT_EQ(Liste().size(), 2U);
}

TEST_F(FormMenuEkleTest, Content_of_five_thousand_signs_with_line_breaks_is_read_back_whole) {
    Metin uzun;
    while (uzun.size() < 5000)
        uzun += u"Ğüşiö çorba,\r\n";
    MenuEkle(u"c", uzun);
    const Metin beklenen = Liste().back()[1];
    EXPECT_EQ(beklenen.size(), uzun.size());
    program.FormMenuAyar.Bosalt();
    EXPECT_EQ(Liste().back()[1], beklenen);
}

TEST_F(FormMenuEkleTest, Place_of_blanks_is_no_place_and_adds) {
    Ekle().Tag = u"  ";
    MenuyuGir(u"yeni", u"üç");
    VELORA_BAS(program.FormMenuEkle, Command4);
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"Bir"}, {u"B", u"İki"}, {u"Yeni", u"Üç"}}));
}

TEST_F(FormMenuEkleTest, Place_that_is_gone_changes_no_menu) {
    for (const auto* tag : {u"2", u"-1", u"99999999999999999999"}) {
        Ekle().Tag = tag;
        MenuyuGir(u"yeni", u"üç");
        VELORA_BAS(program.FormMenuEkle, Command4);
        EXPECT_EQ(Liste(), (Satirlar{{u"A", u"Bir"}, {u"B", u"İki"}}));
    }
}

} // namespace velora::test
