#include "access/Baslangic.h"

#include "reservation/KayitTest.h"

namespace velora::test {

/// A firm on the day of its installation: a hall, and no menu yet.
class BaslangicTest : public KayitTest {
  protected:
    BaslangicTest() {
        std::filesystem::remove(agac.Yol(u"Menuler.dat"));
        std::filesystem::remove(agac.Yol(u"Count.dat"));
    }
};

TEST_F(BaslangicTest, Without_a_menu_the_second_reservation_gets_the_second_number) {
    ProgramiHazirla(Prog());
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "");
    for (const MetinBakis gun : {kGun, MetinBakis(u"21.06.2012 - Gece")})
        YeniKayit(
            [&] {
                Doldur();
                KaydeteBas();
            },
            gun);
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"2\"\r\n");
    EXPECT_TRUE(AnaVar(u"21.06.2012 - Gece"));
}

TEST_F(BaslangicTest, Menus_that_are_there_stay_as_they_are) {
    agac.Koy(u"Menuler.dat", "\"A\",\"b\"\r\n");
    ProgramiHazirla(Prog());
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"A\",\"b\"\r\n");
}

TEST_F(BaslangicTest, A_folder_that_takes_no_file_is_no_hindrance) {
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    ProgramiHazirla(Prog());
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat"));
}

TEST_F(BaslangicTest, Without_a_login_the_price_of_an_existing_record_is_open) {
    RezervasyonKoy(Metin(kGun));
    ProgramiHazirla(Prog());
    KayitAc([&] {
        EXPECT_FALSE(Kayit().Kay[8].kilitli);
        KapataBas();
    });
}

} // namespace velora::test
