#include "access/Splash.h"
#include "screen/Surum.h"
#include "table/TabloTest.h"

namespace velora::test {

class TabloYukleme : public TabloTest {
  protected:
    /// How often the table was scanned: each scan lets events run first with all of its tags still standing.
    int TaramaSayisi() {
        int tarama = 0;
        kullanici.ProgramiAc();
        kullanici.Prog().FormTablo.Bosalt();
        kullanici.Prog().dosyalar.ariza = [&tarama](DosyaIsi is, const Metin&) {
            tarama += is == DosyaIsi::Listele ? 1 : 0;
            return false;
        };
        kullanici.Prog().FormTablo.Tut();
        return tarama;
    }
};

TEST_F(TabloYukleme, TitleIsTheNameAndTheVersion) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().baslik, u"Velora " + Metin(kSurum));
    EXPECT_EQ(kullanici.Tablo().baslik, u"Velora 1.0.0");
}

TEST_F(TabloYukleme, HallsComeInTheOrderOfTheFileAndBlankOnesAreLeftOut) {
    agac.KoyMetin(u"Salon.dat",
                  u"\"Çınar. Bahçesi\"\r\n\"  \"\r\n\"\"\r\n\"Gül Salonu\"\r\n\"Gül Salonu\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Salon.ogeler,
              (std::vector<Metin>{u"Çınar. Bahçesi", u"Gül Salonu", u"Gül Salonu"}));
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Çınar. Bahçesi");
}

TEST_F(TabloYukleme, TrailingBlankLineGivesNoSecondHall) {
    agac.KoyMetin(u"Salon.dat", u"\"A\"\r\n\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Salon.ogeler, std::vector<Metin>{u"A"});
}

TEST_F(TabloYukleme, YearsGoFromTenBeforeToTenAfterTheCurrentOne) {
    kullanici.ProgramiAc();
    const AcilirListe& sene = kullanici.Tablo().Sene;
    ASSERT_EQ(sene.ogeler.size(), 21U);
    EXPECT_EQ(sene.ogeler.front(), u"2002");
    EXPECT_EQ(sene.ogeler.back(), u"2022");
    EXPECT_EQ(sene.Metni(), u"2012");
}

TEST_F(TabloYukleme, YearOutsideTheListCantBeSelected) {
    kullanici.ProgramiAc();
    const int onceki = kullanici.ortam.olaySayisi;
    kullanici.YilSec(u"2030");
    EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2012");
    EXPECT_EQ(kullanici.ortam.olaySayisi, onceki) << "nothing ran";
}

TEST_F(TabloYukleme, EveryHallGetsItsFolderAndTheFolderOfTheCurrentYear) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Çınar. Kır Bahçesi\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_TRUE(agac.KlasorVar(u"Salon A/2012"));
    EXPECT_TRUE(agac.KlasorVar(u"Çınar. Kır Bahçesi/2012"));
    EXPECT_FALSE(agac.KlasorVar(u"Salon A/2013"));
}

TEST_F(TabloYukleme, EmptyHallListMakesNoYearFolderInTheRoot) {
    agac.Koy(u"Salon.dat", "");
    kullanici.ProgramiAc();
    EXPECT_FALSE(agac.KlasorVar(u"2012"));
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"");
    EXPECT_EQ(kullanici.Tablo().Salon.secili, -1);
    RenkBekle(5, 1, kGunduz, 2, 3);
}

// Literal: with no hall the path of the year is a folder directly in the root.
TEST_F(TabloYukleme, YearClickWithoutAHallMakesTheYearFolderInTheRoot) {
    std::filesystem::remove(agac.Yol(u"Salon.dat"));
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    EXPECT_TRUE(agac.KlasorVar(u"2013"));
}

TEST_F(TabloYukleme, YearClickMakesOnlyTheYearFolderOfTheSelectedHall) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    EXPECT_TRUE(agac.KlasorVar(u"Salon A/2013"));
    EXPECT_FALSE(agac.KlasorVar(u"Salon B/2013"));
}

// A hall folder removed by hand comes back at the next start, not at a change of the year.
TEST_F(TabloYukleme, YearClickDoesNotBringBackAHallFolderThatIsGone) {
    kullanici.ProgramiAc();
    std::filesystem::remove_all(agac.Yol(u"Salon A"));
    kullanici.YilSec(u"2013");
    EXPECT_FALSE(agac.KlasorVar(u"Salon A"));
    kullanici.ProgramiAc();
    EXPECT_TRUE(agac.KlasorVar(u"Salon A/2012"));
}

// Selecting the first hall, the scan after it, the reminder look, and the scan that begins the warnings.
TEST_F(TabloYukleme, StartScansTwiceLooksForRemindersAndScansForTheWarnings) {
    EXPECT_EQ(TaramaSayisi(), 4);
}

TEST_F(TabloYukleme, StartWithoutAHallScansOnceLooksForRemindersAndScansForTheWarnings) {
    std::filesystem::remove(agac.Yol(u"Salon.dat"));
    EXPECT_EQ(TaramaSayisi(), 3);
}

TEST_F(TabloYukleme, StartSetsTheSlowClock) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Saatsay.aralik, 50'000);
    EXPECT_EQ(kullanici.Tablo().Dklabel, 0);
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0);
}

TEST_F(TabloYukleme, ShowingATreeThatWasCarriedOverChangesNoByteOfIt) {
    agac.Koy(u"Salon.dat", "\"Salon A\"\r\n\"\xC7\xFDnar. B\xFC\xFC\"\r\n");
    agac.KlasorKoy(u"Çınar. Büü/2012");
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ad = u"Şükrü Ağaoğlu"}, true);
    agac.Koy(u"Tatiller.dll", "\"23.04.2010\",\"Ulusal\",\"Evet\",\"Genel\"\r\n");
    const std::string once = agac.Resim();
    kullanici.ProgramiAc();
    kullanici.SalonSec(u"Çınar. Büü");
    kullanici.SalonSec(u"Salon A");
    kullanici.Tablo().Command1();
    kullanici.ProgramiKapat();
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(TabloYukleme, ActivateSetsTheWarningColoursAndHidesOnlyAnEmptyPanel) {
    AyarKoy(15, u"1234");
    kullanici.ProgramiAc();
    FormTablo& tablo = kullanici.Tablo();
    EXPECT_EQ(tablo.Check1, 1);
    EXPECT_EQ(tablo.Picture1.zemin, 1234);
    EXPECT_EQ(tablo.UyariBaslik.yazi, 16777215);
    tablo.Picture1.gorunur = true;
    tablo.Picture1.zemin = 0;
    tablo.Liste.satirlar.push_back({{u"05.01.2012 - Gece"}, {}, 0});
    tablo.Activate();
    EXPECT_TRUE(tablo.Picture1.gorunur);
    EXPECT_EQ(tablo.Picture1.zemin, 1234);
    tablo.Liste.satirlar.clear();
    tablo.Activate();
    EXPECT_FALSE(tablo.Picture1.gorunur);
}

TEST_F(TabloYukleme, ActivateOnlineSetsTheAnnouncementCheckAndOfflineDoesNot) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0);
    kullanici.Prog().Splash->Check1 = 1;
    kullanici.Tablo().Activate();
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 2'500);
}

TEST_F(TabloYukleme, ChangeOfHallOrYearGivesTheFocusAwayFromTheLists) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    kullanici.ProgramiAc();
    kullanici.ortam.odaklar.clear();
    kullanici.SalonSec(u"Salon B");
    kullanici.YilSec(u"2013");
    EXPECT_EQ(kullanici.ortam.odaklar, (std::vector<Metin>{u"Picture4", u"Picture4"}));
}

} // namespace velora::test
