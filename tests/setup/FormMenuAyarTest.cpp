#include "setup/FormMenuAyar.h"

#include "setup/MenuTest.h"

namespace velora::test {

class FormMenuAyarTest : public MenuTest {};

TEST_F(FormMenuAyarTest, CaptionsStandAsTheUserReadsThem) {
    EXPECT_EQ(Menuler().baslik, u"Menü Ayarları");
    EXPECT_EQ(Menuler().Liste.basliklar, (std::vector<Metin>{u"Menü Adı", u"Menü İçeriği"}));
    EXPECT_EQ(Menuler().Command1.baslik, u"Ekle");
    EXPECT_EQ(Menuler().Command2.baslik, u"Sil");
    EXPECT_EQ(Menuler().Command3.baslik, u"Kapat");
    EXPECT_EQ(Menuler().Command4.baslik, u"Düzenle");
    EXPECT_EQ(Menuler().Kaydet.baslik, u"Kaydet");
}

TEST_F(FormMenuAyarTest, AbsentFileGivesAnEmptyList) {
    EXPECT_TRUE(Liste().empty());
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat"));
}

TEST_F(FormMenuAyarTest, MenusAreListedInTheOrderOfTheFile) {
    agac.Koy(u"Menuler.dat", "\"\xDEi\xFE\",\"Et\"\r\n\"Alt\xFDn\",\"\xC7orba\r\nTatl\xFD\"\r\n");
    EXPECT_EQ(Liste(), (Satirlar{{u"Şiş", u"Et"}, {u"Altın", u"Çorba\r\nTatlı"}}));
}

TEST_F(FormMenuAyarTest, RecordWithAnEmptyNameIsNotListedAndLostAtTheNextSaveAsIsMeant) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n\" \",\"2\"\r\n\"C\",\"3\"\r\n");
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}, {u"C", u"3"}}));
    Menuler().Kaydet_Click();
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n\"C\",\"3\"\r\n");
}

TEST_F(FormMenuAyarTest, LastNameWithoutAContentKeepsTheContentOfTheRowBeforeAsIsMeant) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n\"B\"\r\n");
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}, {u"B", u"1"}}));
}

TEST_F(FormMenuAyarTest, ButtonsOfARowAreEnabledByAClickAndDisabledWhenTheScreenComesToTheFront) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    program.FormMenuAyar.Goster();
    EXPECT_FALSE(Menuler().Command2.etkin);
    EXPECT_FALSE(Menuler().Command4.etkin);
    Isaretle(-1);
    EXPECT_FALSE(Menuler().Command2.etkin) << "a click beside the rows";
    Isaretle(0);
    EXPECT_TRUE(Menuler().Command2.etkin);
    EXPECT_TRUE(Menuler().Command4.etkin);
    Menuler().Command4_Click();
    EXPECT_FALSE(Menuler().Command2.etkin) << "the dialogue has closed";
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuAyarTest, DoubleClickEditsOnlyWhileTheButtonIsEnabled) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    program.FormMenuAyar.Goster();
    Menuler().Liste.secili = 0;
    Menuler().Liste_DblClick();
    EXPECT_EQ(ortam.acilanlar, std::vector<EkranAdi>{EkranAdi::FormMenuAyar});
    Isaretle(0);
    Menuler().Liste_DblClick();
    EXPECT_EQ(ortam.acilanlar.back(), EkranAdi::FormMenuEkle);
}

TEST_F(FormMenuAyarTest, DeletedMenuIsGoneFromListAndFile) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n\"B\",\"2\"\r\n\"C\",\"3\"\r\n");
    MenuSil(1, Cevap::Evet);
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}, {u"C", u"3"}}));
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n\"C\",\"3\"\r\n");
    EXPECT_FALSE(Menuler().Command2.etkin);
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuAyarTest, NoDeletesNothingAndLeavesBothButtonsDisabledAsIsMeant) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    MenuSil(0, Cevap::Hayir);
    EXPECT_EQ(Liste(), (Satirlar{{u"A", u"1"}}));
    EXPECT_EQ(Menuler().Liste.secili, 0);
    EXPECT_FALSE(Menuler().Command2.etkin);
    EXPECT_FALSE(Menuler().Command4.etkin);
}

TEST_F(FormMenuAyarTest, AfterADeleteOfTheLastMenuTheFileIsEmptyAndTheListStaysEmptyOnReload) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    MenuSil(0, Cevap::Evet);
    EXPECT_TRUE(agac.DosyaVar(u"Menuler.dat"));
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "");
    Menuler().Command3_Click();
    EXPECT_FALSE(program.FormMenuAyar.Yuklu());
    EXPECT_TRUE(Liste().empty());
}

TEST_F(FormMenuAyarTest, QuotesAndCommasAreWrittenRawAndSlideTheNextReadingAsIsMeant) {
    agac.Koy(u"Menuler.dat", "\"B\",\"2\"\r\n");
    MenuEkle(u"a", u"et \"x\", su");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"B\",\"2\"\r\n\"A\",\"Et \"x\", Su\"\r\n");
    program.FormMenuAyar.Bosalt();
    EXPECT_EQ(Liste(), (Satirlar{{u"B", u"2"}, {u"A", u"Et "}, {u"x\"", u"Su\""}}));
}

TEST_F(FormMenuAyarTest, FileThatCannotBeWrittenStaysAndNothingIsSaid) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    Menuler();
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    MenuSil(0, Cevap::Evet);
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n");
    EXPECT_TRUE(Liste().empty());
}

TEST_F(FormMenuAyarTest, FullDiskKeepsTheOldMenusWhole) {
    agac.Koy(u"Menuler.dat", "\"A\",\"1\"\r\n");
    Menuler();
    program.dosyalar.bosYer = 5;
    MenuEkle(u"b", u"uzun bir içerik");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"1\"\r\n");
}

TEST_F(FormMenuAyarTest, GarbageIsListedAndCrashesNothing) {
    agac.Koy(u"Menuler.dat", std::string(100'000, '"') + std::string(1000, '\xFF'));
    Liste();
    agac.Koy(u"Menuler.dat", std::string(5000, ','));
    program.FormMenuAyar.Bosalt();
    EXPECT_TRUE(Liste().empty());
}

} // namespace velora::test
