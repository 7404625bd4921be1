#include "table/TabloTest.h"

namespace velora::test {

class Tarama : public TabloTest {};

TEST_F(Tarama, FreeWeekdayShowsTheFreeColoursOfItsSlot) {
    kullanici.ProgramiAc();
    RenkBekle(5, 1, kGunduz, 2, 3); // a Thursday
    RenkBekle(5, 1, kGece, 4, 5);
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"");
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).baslik, u"Per");
}

TEST_F(Tarama, SaturdayAndSundayShowTheWeekendColours) {
    kullanici.ProgramiAc();
    for (const int gun : {7, 8}) {
        RenkBekle(gun, 1, kGunduz, 8, 9);
        RenkBekle(gun, 1, kGece, 10, 11);
    }
    RenkBekle(9, 1, kGunduz, 2, 3);
}

TEST_F(Tarama, FirmAndPreReservationShowTheirColoursInBothSlots) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    RezervasyonKoy(u"05.01.2012 - Gece", {}, true);
    RezervasyonKoy(u"06.01.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"06.01.2012 - Gece");
    kullanici.ProgramiAc();
    RenkBekle(5, 1, kGunduz, 6, 7);
    RenkBekle(5, 1, kGece, 21, 22);
    RenkBekle(6, 1, kGunduz, 19, 20);
    RenkBekle(6, 1, kGece, 12, 13);
}

TEST_F(Tarama, TagHoldsTenPartsInOrder) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    RezervasyonKoy(u"05.01.2012 - Gece", {.check18 = 0});
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
    kullanici.Tablo().UserNamem = u"admin";
    kullanici.Tablo().Command1();
    EXPECT_EQ(kullanici.Goz(5, 1, kGece).tag, u"admin|11:00|Düğün|Gece|5000|1000|4000|Ali Veli|7|0");
}

TEST_F(Tarama, BarInACustomersNameStaysInTheTagUnescaped) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ad = u"Ali|Veli"});
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali|Veli|7|1");
    RenkBekle(5, 1, kGunduz, 6, 7);
}

TEST_F(Tarama, ReservationOnASaturdayHidesTheWeekendUntilItsFilesAreGone) {
    RezervasyonKoy(u"07.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    RenkBekle(7, 1, kGunduz, 6, 7);
    std::filesystem::remove(agac.Yol(u"Salon A/2012/07.01.2012 - Gündüz"));
    kullanici.Tablo().Command1();
    RenkBekle(7, 1, kGunduz, 8, 9);
    EXPECT_EQ(kullanici.Goz(7, 1, kGunduz).tag, u"");
}

// Kept over on purpose: the targets of the reading live as long as the scan.
TEST_F(Tarama, MainFileWithoutDetailsKeepsTheStateOfTheSlotBeforeIt) {
    RezervasyonKoy(u"05.01.2012 - Gece", {}, true);
    agac.KoyMetin(u"Salon A/2012/06.01.2012 - Gündüz", AnaMetni());
    kullanici.ProgramiAc();
    RenkBekle(6, 1, kGunduz, 19, 20);
    std::filesystem::remove(agac.Yol(u"Salon A/2012/05.01.2012 - Gece"));
    kullanici.Tablo().Command1();
    RenkBekle(6, 1, kGunduz, 6, 7); // the first slot of a scan counts as firm
}

TEST_F(Tarama, ShortMainFileKeepsTheValuesOfTheSlotBeforeItInTheTag) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ucret = u"900", .no = u"41", .check18 = 0});
    agac.KoyMetin(u"Salon A/2012/06.01.2012 - Gündüz", u"\"Kısa Kayıt\",\"Bolu\",\"x\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|900|1000|4000|Kısa Kayıt|41|0");
}

TEST_F(Tarama, EmptyMainFileTakesTheSlotAndKeepsEverything) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {}, true);
    agac.Koy(u"Salon A/2012/31.12.2012 - Gece", "");
    kullanici.ProgramiAc();
    RenkBekle(31, 12, kGece, 21, 22);
    EXPECT_EQ(kullanici.Goz(31, 12, kGece).tag, u"|11:00|Düğün|Gece|5000|1000|4000|Ali Veli|7|1");
}

TEST_F(Tarama, KeptOverStateFollowsMonthDayAndSlotNotTheListing) {
    // By name 01.02 stands before 02.01; the scan goes month by month.
    RezervasyonKoy(u"01.02.2012 - Gündüz", {}, true);
    agac.KoyMetin(u"Salon A/2012/02.01.2012 - Gündüz", AnaMetni());
    kullanici.ProgramiAc();
    RenkBekle(2, 1, kGunduz, 6, 7);
}

TEST_F(Tarama, NothingIsKeptFromOneScanToTheNext) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {}, true);
    kullanici.ProgramiAc();
    std::filesystem::remove(agac.Yol(u"Salon A/2012/05.01.2012 - Gündüz-Detay"));
    agac.Koy(u"Salon A/2012/05.01.2012 - Gündüz", "");
    kullanici.Tablo().Command1();
    RenkBekle(5, 1, kGunduz, 6, 7);
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|||Gündüz||||||");
}

TEST_F(Tarama, DetailsWithoutAMainFileLeaveTheDayFree) {
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Detay", DetayMetni(true));
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Odeme", u"\"01.01.2012\",\"5\",\"x\"\r\n");
    agac.KoyMetin(u"Salon A/2012/Gider.dat", u"\"x\",5\r\n");
    kullanici.ProgramiAc();
    RenkBekle(5, 1, kGunduz, 2, 3);
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"");
}

TEST_F(Tarama, StateValueMayStandQuotedOrBare) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    Metin detay = DetayMetni(true);
    detay.replace(detay.find(u"\"0\",\"1\""), 7, u"0,1");
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Detay", detay);
    kullanici.ProgramiAc();
    RenkBekle(5, 1, kGunduz, 19, 20);
}

TEST_F(Tarama, FolderInThePlaceOfAFileIsNoReservation) {
    agac.KlasorKoy(u"Salon A/2012/05.01.2012 - Gündüz");
    RezervasyonKoy(u"06.01.2012 - Gündüz");
    std::filesystem::remove(agac.Yol(u"Salon A/2012/06.01.2012 - Gündüz-Detay"));
    agac.KlasorKoy(u"Salon A/2012/06.01.2012 - Gündüz-Detay");
    kullanici.ProgramiAc();
    RenkBekle(5, 1, kGunduz, 2, 3);
    RenkBekle(6, 1, kGunduz, 6, 7);
}

TEST_F(Tarama, FileThatCantBeReadTakesItsSlotWithTheValuesBeforeIt) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"06.01.2012 - Gündüz", {.ad = u"Gizli"});
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.find(u"06.01.2012") != Metin::npos;
    };
    kullanici.Tablo().Command1();
    RenkBekle(6, 1, kGunduz, 19, 20);
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
}

TEST_F(Tarama, GarbageAndHugeFilesAreLivedThrough) {
    std::string cop(3'000'000, '\xFF');
    for (std::size_t i = 0; i < cop.size(); i += 7)
        cop[i] = static_cast<char>(i);
    agac.Koy(u"Salon A/2012/05.01.2012 - Gündüz", cop);
    agac.Koy(u"Salon A/2012/05.01.2012 - Gündüz-Detay", cop);
    agac.Koy(u"Salon A/2012/99.99.9999 - Gündüz", cop);
    agac.Koy(u"Salon A/2012/x", std::string(3, '\0'));
    RezervasyonKoy(u"06.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    RenkBekle(6, 1, kGunduz, 6, 7);
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
}

TEST_F(Tarama, DayThatTheMonthDoesntHaveIsColouredButHidden) {
    RezervasyonKoy(u"31.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Goz(31, 6, kGunduz).gorunur);
    RenkBekle(31, 6, kGunduz, 6, 7);
}

// A hidden month is scanned all the same: publishing reads its tags.
TEST_F(Tarama, MonthThatIsOffIsScannedThoughNothingShows) {
    AyKapat(5);
    RezervasyonKoy(u"05.05.2012 - Gece");
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Goz(5, 5, kGece).gorunur);
    EXPECT_EQ(kullanici.Goz(5, 5, kGece).tag, u"|11:00|Düğün|Gece|5000|1000|4000|Ali Veli|7|1");
    RenkBekle(5, 5, kGece, 12, 13);
}

TEST_F(Tarama, YearFolderWithOnlyExpensesShowsAFreeTable) {
    agac.KoyMetin(u"Salon A/2012/Gider.dat", u"#2012-05-03#,\"Kira\",900\r\n");
    kullanici.ProgramiAc();
    for (const TabloSatiri& satir : kullanici.Tablo().satirlar)
        for (const Hucre& hucre : satir.gun)
            EXPECT_EQ(hucre.tag, u"");
}

TEST_F(Tarama, FileOfAnotherYearInTheFolderIsNotLookedFor) {
    agac.KoyMetin(u"Salon A/2012/05.01.2013 - Gündüz", AnaMetni());
    kullanici.ProgramiAc();
    RenkBekle(5, 1, kGunduz, 2, 3);
}

TEST_F(Tarama, CustomersNameStandsInTheTagOnly) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).baslik, u"Per");
}

class Hatirlatma : public TabloTest {};

TEST_F(Hatirlatma, ReminderOfTodayShowsTheBellAndBlinks) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.hatirlat = u"15.06.2012", .check19 = 1});
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Tablo().Image3);
    EXPECT_EQ(kullanici.Tablo().OzelHatirlatTimer.aralik, 500);
    const bool resim = kullanici.Tablo().Image3a;
    kullanici.Bekle(500);
    EXPECT_NE(kullanici.Tablo().Image3a, resim);
    std::filesystem::remove(agac.Yol(u"Salon A/2012/05.01.2012 - Gündüz"));
    kullanici.Tablo().Command1();
    EXPECT_FALSE(kullanici.Tablo().Image3);
    EXPECT_EQ(kullanici.Tablo().OzelHatirlatTimer.aralik, 0);
}

TEST_F(Hatirlatma, DateWithoutItsSwitchOrOfAnotherDayIsSilent) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.hatirlat = u"15.06.2012", .check19 = 0});
    RezervasyonKoy(u"06.01.2012 - Gündüz", {.hatirlat = u"16.06.2012", .check19 = 1});
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Tablo().Image3);
}

// Companions are read as main records, on purpose: value 18 of the details is the note of the first service
// and value 20 that of the third.
TEST_F(Hatirlatma, DetailsFileThatLooksLikeAReminderRaisesIt) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    Metin detay;
    for (int i = 1; i <= 17; ++i)
        detay += u"1\r\n";
    detay += u"\"15.06.2012\"\r\n\"\"\r\n\"1\"\r\n";
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Detay", detay);
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Tablo().Image3);
    EXPECT_EQ(kullanici.Tablo().OzelHatirlatTimer.aralik, 500);
}

TEST_F(Hatirlatma, ShortFileKeepsTheReminderValuesOfTheFileBeforeIt) {
    // The first file brings the date, the second has 19 values and keeps the switch of a third that stands
    // before.
    RezervasyonKoy(u"01.01.2012 - Gece", {.hatirlat = u"14.06.2012", .check19 = 1});
    Metin kisa = AnaMetni({.hatirlat = u"15.06.2012"});
    kisa.erase(kisa.rfind(u','));
    agac.KoyMetin(u"Salon A/2012/x", kisa);
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Tablo().Image3) << "the details before it ended with another value 20";
    std::filesystem::remove(agac.Yol(u"Salon A/2012/01.01.2012 - Gece-Detay"));
    kullanici.Tablo().Command1();
    EXPECT_TRUE(kullanici.Tablo().Image3);
}

TEST_F(Hatirlatma, ScanOfTheReservationsLeavesItsValuesToTheReminderScan) {
    // The folder begins with a file of 19 values; the switch it keeps is the one of the last reservation
    // scanned.
    Metin kisa = AnaMetni({.hatirlat = u"15.06.2012"});
    kisa.erase(kisa.rfind(u','));
    agac.KoyMetin(u"Salon A/2012/00", kisa);
    RezervasyonKoy(u"01.01.2012 - Gece", {.check19 = 1});
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Tablo().Image3);
}

} // namespace velora::test
