#include "destek/RastgeleAgac.h"
#include "reservation/KayitTest.h"
#include "storage/YazimBicimi.h"

namespace velora::test {

/// Which contract numbers are taken.
class NumaraTest : public KayitTest {
  protected:
    NumaraTest() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
        AyarKoy(29, u"0");
    }
    /// Tries to save a new record under this number. True when it was taken in.
    bool Kabul(const Metin& no) {
        return Dene(no, [] {});
    }
    bool Red(const Metin& no) {
        return !Dene(no, [this] { NumaraKutusuBekle(); });
    }

  private:
    bool Dene(const Metin& no, const Is& bekle) {
        YeniKayit([&] {
            Doldur();
            Kayit().Kay[AnaNo::SozlesmeNo].metin = no; // also what no key writes there
            bekle();
            KaydeteBas();
        });
        const bool var = AnaVar();
        KayitSil();
        return var;
    }
};

TEST_F(NumaraTest, A_number_of_another_hall_or_another_year_is_free_and_one_of_this_folder_is_taken) {
    agac.KoyMetin(u"Salon B/2012/01.06.2012 - Gece", AnaMetni({.no = u"7"}));
    agac.KoyMetin(u"Salon A/2013/01.06.2013 - Gece", AnaMetni({.no = u"8"}));
    RezervasyonKoy(u"02.06.2012 - Gece", {.no = u"9"});
    EXPECT_TRUE(Kabul(u"7"));
    EXPECT_TRUE(Kabul(u"8"));
    EXPECT_TRUE(Red(u"9"));
}

TEST_F(NumaraTest, The_selected_hall_and_year_decide_and_not_those_of_the_record) {
    agac.KoyMetin(u"Salon B/2012/01.06.2012 - Gece", AnaMetni({.no = u"7"}));
    YeniKayit([&] {
        Doldur();
        Gir(14, u"7");
        kullanici.SalonSec(u"Salon B");
        NumaraKutusuBekle();
        KaydeteBas();
    });
}

TEST_F(NumaraTest, The_amount_of_a_fifth_payment_is_refused_on_purpose) {
    std::string odemeler;
    for (const char* tutar : {"100", "200", "300", "400", "1500"})
        odemeler += "\"01.01.2012\",\"" + std::string(tutar) + "\",\"not\"\r\n";
    agac.Koy(u"Salon A/2012/02.06.2012 - Gece-Odeme", odemeler);
    EXPECT_TRUE(Red(u"1500"));
    EXPECT_TRUE(Kabul(u"400"));
    EXPECT_TRUE(Kabul(u"100"));
}

TEST_F(NumaraTest, The_amount_of_a_fifth_expense_is_refused_on_purpose) {
    std::string giderler;
    for (const char* tutar : {"10", "20", "30", "40", "900"})
        giderler += "#2012-05-03#,\"" + std::string(tutar) + "\",\"kira\"\r\n";
    agac.Koy(u"Salon A/2012/Gider.dat", giderler);
    EXPECT_TRUE(Red(u"900"));
    EXPECT_TRUE(Kabul(u"40"));
}

TEST_F(NumaraTest, Details_are_never_asked) {
    agac.Koy(u"Salon A/2012/02.06.2012 - Gece-Detay",
             "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n5\r\n");
    EXPECT_TRUE(Kabul(u"5"));
}

TEST_F(NumaraTest, Numbers_are_compared_as_exact_text_on_purpose) {
    RezervasyonKoy(u"02.06.2012 - Gece", {.no = u"7"});
    EXPECT_TRUE(Kabul(u"007"));
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"007\"\r\n");
    YeniKayit([&] { EXPECT_EQ(Kayit().Kay[14].metin, u"8"); });
    RezervasyonKoy(u"03.06.2012 - Gece", {.no = u" 7"});
    EXPECT_TRUE(Red(u" 7"));
    EXPECT_TRUE(Red(u"7"));
}

TEST_F(NumaraTest, A_number_emptied_by_hand_never_collides_and_empties_the_counter_on_purpose) {
    RezervasyonKoy(u"02.06.2012 - Gece", {.no = u""});
    RezervasyonKoy(u"03.06.2012 - Gece", {.no = u"  "});
    EXPECT_TRUE(Kabul(u""));
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"\"\r\n");
    YeniKayit([&] { EXPECT_EQ(Kayit().Kay[14].metin, u"1"); });
    EXPECT_TRUE(Kabul(u"  ")) << "a number of blanks isn't collected";
}

TEST_F(NumaraTest, With_numbers_off_the_counter_is_not_touched_and_goes_on_from_there_later) {
    AyarKoy(33, u"1");
    EXPECT_TRUE(Kabul(u""));
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"57\"\r\n");
    AyarKoy(33, u"0");
    Prog().FormAyarlar.Bosalt();
    YeniKayit([&] { EXPECT_EQ(Kayit().Kay[14].metin, u"58"); });
}

namespace {

/// The rule as it is told: every name of every hall and year, read under the selected ones.
std::vector<Metin> ReferansNumaralar(const Program& program, const FormTablo& tablo) {
    std::vector<Metin> numaralar;
    AnaDegerler degerler;
    for (const Metin& salon : tablo.Salon.ogeler)
        for (const Metin& sene : tablo.Sene.ogeler)
            for (const Metin& ad : program.dosyalar.Listele(program.agac.YilKlasoru(salon, sene))) {
                const Metin yol = program.agac.GunYolu(tablo.Salon.Metni(), tablo.Sene.Metni(), ad);
                if (Son(yol, 5) == u"Detay")
                    continue;
                AnaOku(program.dosyalar, yol, degerler);
                if (!Kirp(degerler.No(14)).empty())
                    numaralar.push_back(degerler.No(14));
                degerler.deger[13].clear();
            }
    return numaralar;
}

/// A few values between "0" and "9", so that numbers meet often.
Metin BirkacDeger(RastgeleAgac& rastgele) {
    Metin metin;
    for (unsigned i = rastgele.Sec(30); i > 0; --i)
        metin += u"\"" + SayiMetni(rastgele.Sec(10)) + u"\"" + (rastgele.Sec(5) == 0 ? u"\r\n" : u",");
    return metin;
}

} // namespace

TEST_F(NumaraTest, One_pass_over_the_folder_finds_what_the_told_loop_finds) {
    RastgeleAgac rastgele(agac, 20120615);
    int reddedilen = 0;
    Prog();
    for (int agacNo = 0; agacNo < 40; ++agacNo) {
        for (const MetinBakis salon : {u"Salon A", u"Salon B"})
            std::filesystem::remove_all(agac.Yol(salon));
        rastgele.Yap({.salonlar = {u"Salon A", u"Salon B"},
                      .yillar = {u"2012", u"2013"},
                      .adlar = {u"01.06.2012 - Gece", u"Gider.dat", u"x"},
                      .metin = [&](MetinBakis) { return BirkacDeger(rastgele); }});
        const std::vector<Metin> alinan = ReferansNumaralar(Prog(), kullanici.Tablo());
        for (const char16_t* no : {u"0", u"5", u"9"}) {
            const bool dolu = std::find(alinan.begin(), alinan.end(), no) != alinan.end();
            reddedilen += dolu ? 1 : 0;
            EXPECT_TRUE(dolu ? Red(no) : Kabul(no));
        }
    }
    EXPECT_GT(reddedilen, 5);
}

TEST_F(NumaraTest, A_number_at_the_end_of_a_long_record_is_taken) {
    Metin uzun = AnaMetni({.no = u"4711"});
    uzun.insert(uzun.find(u"\"Düğün\"") + 1, 200'000, u'ş');
    agac.KoyMetin(u"Salon A/2012/02.06.2012 - Gece", uzun);
    EXPECT_TRUE(Red(u"4711"));
}

} // namespace velora::test
