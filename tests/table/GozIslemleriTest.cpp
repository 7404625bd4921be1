// The pointer over a cell and a press on it.
#include "table/TabloTest.h"

namespace velora::test {

class GozIslemleri : public TabloTest {
  protected:
    /// Which of the two entries a right press on the cell offers.
    void MenuBekle(const TabloGozu& goz, bool yeni) {
        EXPECT_TRUE(kullanici.SagTikla(goz));
        EXPECT_EQ(kullanici.Tablo().newkay.etkin, yeni) << goz.gun << '.' << goz.ay;
        EXPECT_EQ(kullanici.Tablo().iptals.etkin, !yeni) << goz.gun << '.' << goz.ay;
        EXPECT_TRUE(kullanici.Tablo().TasimaModuAc.etkin);
    }
};

TEST_F(GozIslemleri, HoverLabelHasTheDateThenABlankTheWeekdayTheSlotAndABlank) {
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, u"05.01.2012\n Perşembe - Gündüz ");
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"05.01.2012 - Gündüz");
    EXPECT_TRUE(kullanici.Tablo().Ekran.gorunur);
    kullanici.Uzerine({31, 12, kGece});
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, u"31.12.2012\n Pazartesi - Gece ");
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"31.12.2012 - Gece");
}

TEST_F(GozIslemleri, EachOfTheTwentyFourRowsNamesItsOwnMonthAndSlot) {
    kullanici.ProgramiAc();
    const std::array<MetinBakis, 12> aylar{u".01.", u".02.", u".03.", u".04.", u".05.", u".06.",
                                           u".07.", u".08.", u".09.", u".10.", u".11.", u".12."};
    for (int satir = 0; satir < kSatirSayisi; ++satir) {
        kullanici.Tablo().Hucre_MouseMove(static_cast<SatirAdi>(satir), 9);
        const Metin beklenen = u"09" + Metin(aylar[static_cast<std::size_t>(satir / 2)]) + u"2012" +
                               (satir % 2 == 0 ? u" - Gündüz" : u" - Gece");
        EXPECT_EQ(kullanici.Tablo().SeciliTarih, beklenen);
    }
}

TEST_F(GozIslemleri, HoverLabelStandsAHundredTwipsWithinTheLowerRightCornerOfItsCell) {
    kullanici.ProgramiAc();
    kullanici.Uzerine({17, 4, kGece});
    const Yer goz = kullanici.Tablo().HucreYeri(NisanGece, 17);
    EXPECT_DOUBLE_EQ(kullanici.Tablo().Ekran.yer.sol, goz.sol + goz.genislik - 100);
    EXPECT_DOUBLE_EQ(kullanici.Tablo().Ekran.yer.ust, goz.ust + goz.yukseklik - 100);
}

TEST_F(GozIslemleri, WithDetailsOffTheHoverLabelIsNeverShownAndTheSelectedDayStillFollows) {
    AyarKoy(32, u"0");
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"05.01.2012 - Gündüz");
    kullanici.Uzerine({6, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"06.01.2012 - Gündüz");
}

TEST_F(GozIslemleri, SwitchingDetailsOffLeavesAShownLabelUntilThePointerLeavesTheCellsOnPurpose) {
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    kullanici.Prog().FormAyarlar->Check6.Ata(0);
    kullanici.Uzerine({6, 1, kGunduz});
    EXPECT_TRUE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, u"06.01.2012\n Cuma - Gündüz ");
    kullanici.ImleciBosaGotur();
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    kullanici.Uzerine({7, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
}

TEST_F(GozIslemleri, ValueOfTheDetailsBoxThatIsNeitherOnNorOffShowsNoLabel) {
    AyarKoy(32, u"2");
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
}

TEST_F(GozIslemleri, RightPressOnAWeekdayOrAWeekendOffersANewReservationAndNoCancellation) {
    kullanici.ProgramiAc();
    for (const auto dilim : {kGunduz, kGece}) {
        MenuBekle({18, 6, dilim}, true);
        MenuBekle({16, 6, dilim}, true); // Saturday
        MenuBekle({17, 6, dilim}, true); // Sunday
    }
}

TEST_F(GozIslemleri, RightPressOnAHolidayOffersANewReservationUntilItHoldsOne) {
    agac.KoyMetin(u"Tatiller.dll", u"\"29.10.2000\",\"Cumhuriyet Bayramı\",\"Evet\",\"Genel\"\r\n");
    RezervasyonKoy(u"29.10.2012 - Gece");
    kullanici.ProgramiAc();
    MenuBekle({29, 10, kGunduz}, true);
    MenuBekle({29, 10, kGece}, false);
    RenkBekle(29, 10, kGece, 12, 13);
}

TEST_F(GozIslemleri, RightPressOnAFirmOrAPreReservationOffersItsCancellation) {
    for (const bool on : {false, true})
        for (const Metin& dilim : {Metin(u"Gündüz"), Metin(u"Gece")})
            RezervasyonKoy((on ? u"20.06.2012 - " : u"21.06.2012 - ") + dilim, {}, on);
    kullanici.ProgramiAc();
    for (const int gun : {20, 21})
        for (const auto dilim : {kGunduz, kGece})
            MenuBekle({gun, 6, dilim}, false);
}

TEST_F(GozIslemleri, PastDaysOfferOnlyTheCancellationEvenAFreePastDay) {
    AyarKoy(28, u"1");
    RezervasyonKoy(u"10.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    MenuBekle({10, 6, kGunduz}, false);
    MenuBekle({11, 6, kGunduz}, false);
    MenuBekle({3, 2, kGece}, false);
    MenuBekle({15, 6, kGunduz}, true);
}

TEST_F(GozIslemleri, TakenDayInTheColourOfAFreeDayCountsAsFreeOnPurpose) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Prog().FormAyarlar->renkler[6] = kullanici.Prog().FormAyarlar->Renk(2);
    kullanici.Tablo().Command1();
    MenuBekle({20, 6, kGunduz}, true);
    // The other row has its own colours.
    MenuBekle({20, 6, kGece}, true);
}

TEST_F(GozIslemleri, FreeColourOfTheOtherRowIsNoFreeColourOnPurpose) {
    kullanici.ProgramiAc();
    kullanici.Goz(20, 6, kGece).zemin = kullanici.Prog().FormAyarlar->Renk(2);
    MenuBekle({20, 6, kGece}, false);
}

TEST_F(GozIslemleri, DroppedColourLeavesItsFreeDaysWithoutANewReservationUntilTheNextScanOnPurpose) {
    kullanici.ProgramiAc();
    kullanici.Prog().FormAyarlar->renkler[2] = 0x123456;
    kullanici.Tablo().Command1();
    MenuBekle({20, 6, kGunduz}, true);
    kullanici.Prog().FormAyarlar.Bosalt();
    MenuBekle({20, 6, kGunduz}, false);
    kullanici.Tablo().Command1();
    MenuBekle({20, 6, kGunduz}, true);
}

TEST_F(GozIslemleri, AnyButtonDecidesOnTheEntriesAndOnlyTheRightOneOpensTheMenu) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Uzerine({20, 6, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Hucre_MouseDown(HaziranGunduz, 20, false));
    EXPECT_FALSE(kullanici.Tablo().newkay.etkin);
    EXPECT_TRUE(kullanici.Tablo().iptals.etkin);
    EXPECT_TRUE(kullanici.Tablo().Hucre_MouseDown(HaziranGunduz, 20, true));
}

TEST_F(GozIslemleri, PressFreezesTheSelectedDayAndMovingOnLeavesItThere) {
    kullanici.ProgramiAc();
    kullanici.SagTikla({20, 6, kGunduz});
    kullanici.Uzerine({21, 6, kGece});
    EXPECT_EQ(kullanici.Tablo().SeciliTarih2, u"20.06.2012 - Gündüz");
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"21.06.2012 - Gece");
}

TEST_F(GozIslemleri, MenuHasItsThreeEntriesUnderTheirCaptions) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().newkay.baslik, u"Yeni Organizasyon Oluştur");
    EXPECT_EQ(kullanici.Tablo().TasimaModuAc.baslik, u"Taşıma Modunu Aç");
    EXPECT_EQ(kullanici.Tablo().iptals.baslik, u"Kayıt İptali");
}

TEST_F(GozIslemleri, ClickOnACellEndsTheRuler) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    kullanici.Goze();
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    EXPECT_EQ(kullanici.Tablo().HizliAy, 0);
}

} // namespace velora::test
