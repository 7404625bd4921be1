#include "setup/FormMenuEkle.h"

#include "setup/MenuTest.h"

namespace velora::test {

class FormMenuEkleTest : public MenuTest {
  protected:
    FormMenuEkleTest() { agac.Koy(u"Menuler.dat", "\"A\",\"Bir\"\r\n\"B\",\"\xDDki\"\r\n"); }
};

TEST_F(FormMenuEkleTest, AddOpensAnEmptyDialogueThatCannotBeConfirmed) {
    bool acildi = false;
    MenuAcikken([&] {
        acildi = true;
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
    Menuler().Command1_Click();
    EXPECT_TRUE(acildi);
}

TEST_F(FormMenuEkleTest, EditOpensWithTheMenuUnderItsOwnTitleAndCaption) {
    bool acildi = false;
    MenuAcikken([&] {
        acildi = true;
        EXPECT_EQ(Ekle().baslik, u"Menü Düzenle");
        EXPECT_EQ(Ekle().Command4.baslik, u"Değiştir");
        EXPECT_EQ(Ekle().Tag, u"1");
        EXPECT_EQ(Ekle().Text1.metin, u"B");
        EXPECT_EQ(Ekle().Text2.metin, u"İki");
        EXPECT_TRUE(Ekle().Command4.etkin);
        Ekle().Command3_Click();
    });
    Isaretle(1);
    Menuler().Command4_Click();
    EXPECT_TRUE(acildi);
    EXPECT_FALSE(program.FormMenuEkle.Yuklu());
}

TEST_F(FormMenuEkleTest, AddAfterAnEditHasItsOwnTitleAndNoTag) {
    MenuAcikken([this] { Ekle().Command3_Click(); });
    Isaretle(1);
    Menuler().Command4_Click();
    MenuEkle(u"c", u"üç");
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"Bir"}, {u"B", u"İki"}, {u"C", u"Üç"}}));
}

TEST_F(FormMenuEkleTest, ContentWithoutANameCannotBeConfirmed) {
    Yaz(u"", u"et");
    EXPECT_FALSE(Ekle().Command4.etkin);
    Yaz(u"   ", u"et");
    EXPECT_FALSE(Ekle().Command4.etkin);
    Yaz(u" a", u"et");
    EXPECT_TRUE(Ekle().Command4.etkin);
}

TEST_F(FormMenuEkleTest, NameWithNoContentIsRefusedAndTheFocusGoesToTheContent) {
    const std::string once = agac.Resim();
    ortam.Bekle(BeklenenKutu{u"Velora", u"Lüften içerik giriniz!"});
    MenuEkle(u"yeni menü", u"");
    EXPECT_EQ(ortam.odaklar, std::vector<Metin>{u"Text2"});
    EXPECT_TRUE(program.FormMenuEkle.Yuklu());
    EXPECT_EQ(Ekle().Text1.metin, u"yeni menü") << "not yet in proper case";
    EXPECT_EQ(agac.Resim(), once);
    EXPECT_EQ(Liste().size(), 2U);
}

TEST_F(FormMenuEkleTest, ContentOfBlanksPassesAsIsMeant) {
    MenuEkle(u"c", u"  ");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"Bir\"\r\n\"B\",\"\xDDki\"\r\n\"C\",\"  \"\r\n");
}

TEST_F(FormMenuEkleTest, ContentIsStoredInProperCaseToo) {
    MenuEkle(u"ALTIN menü", u"et sote\r\nİNCİR tatlısı");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"),
              "\"A\",\"Bir\"\r\n\"B\",\"\xDDki\"\r\n\"Alt\xFDn Men\xFC\",\"Et Sote\r\n\xDDncir "
              "Tatl\xFDs\xFD\"\r\n");
    EXPECT_FALSE(program.FormMenuEkle.Yuklu());
}

TEST_F(FormMenuEkleTest, ChangedMenuKeepsItsPlace) {
    MenuAcikken([this] {
        Yaz(u"yeni", u"üç dört");
        Ekle().Command4_Click();
    });
    Isaretle(0);
    Menuler().Command4_Click();
    EXPECT_EQ(Liste(), (Satirlar{{u"Yeni", u"Üç Dört"}, {u"B", u"İki"}}));
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"Yeni\",\"\xDC\xE7 D\xF6rt\"\r\n\"B\",\"\xDDki\"\r\n");
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuEkleTest, CancelAfterTypingChangesNothing) {
    const std::string once = agac.Resim();
    MenuAcikken([this] {
        Yaz(u"yeni", u"üç");
        Ekle().Command3_Click();
    });
    Menuler().Command1_Click();
    EXPECT_EQ(agac.Resim(), once);
    EXPECT_EQ(Liste().size(), 2U);
}

TEST_F(FormMenuEkleTest, ContentOfFiveThousandSignsWithLineBreaksIsReadBackWhole) {
    Metin uzun;
    while (uzun.size() < 5000)
        uzun += u"Ğüşiö çorba,\r\n";
    MenuEkle(u"c", uzun);
    const Metin beklenen = Liste().back()[1];
    EXPECT_EQ(beklenen.size(), uzun.size());
    program.FormMenuAyar.Bosalt();
    EXPECT_EQ(Liste().back()[1], beklenen);
}

TEST_F(FormMenuEkleTest, PlaceThatIsGoneChangesNoMenu) {
    for (const auto* tag : {u"2", u"-1", u"99999999999999999999"}) {
        Ekle().Tag = tag;
        Yaz(u"yeni", u"üç");
        Ekle().Command4_Click();
        EXPECT_EQ(Liste(), (Satirlar{{u"A", u"Bir"}, {u"B", u"İki"}}));
    }
}

} // namespace velora::test
