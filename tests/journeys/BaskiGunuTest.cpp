// A day on which things go to paper: a payment's receipt and its copy, an expense's, the year table.
#include <algorithm>

#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "documents/FormMakbuzPrint.h"
#include "documents/FormTabloPrint.h"
#include "reservation/KayitTest.h"

namespace velora::test {

class BaskiGunu : public KayitTest {
  protected:
    BaskiGunu() {
        AyKapat(7);
        agac.KoyMetin(u"Firma.dll",
                      u"\"Nergis Düğün Salonları\",\"Ayşe\",\"0282 651 11 22\",\"0532 333 44 55\","
                      u"\"yok\",\"yok\",\"Çay Sk.\",\"TEKIRDAG\",\"Ergene\",\"v\",\"g\",\"y\",\"3\"\r\n");
        agac.Koy(u"Salon A/2012/Gider.dat", kGiderler);
    }

    /// The receipt that comes next is printed; the printer takes it or doesn't.
    void MakbuzBasilir(const Metin& isAdi, bool basilir = true) {
        EkranBekle(EkranAdi::FormMakbuzPrint, [this, isAdi, basilir] {
            kullanici.ortam.Bekle(BeklenenBaski{.isAdi = isAdi, .basilir = basilir});
            VELORA_BAS(Prog().FormMakbuzPrint, Command1);
            EXPECT_FALSE(Prog().FormMakbuzPrint.Yuklu());
        });
    }
    const std::vector<GidenSayfalar>& Basilanlar() { return kullanici.ortam.basilanlar; }
    /// How many parts of a page show this text.
    static std::ptrdiff_t Sayisi(const Sayfa& sayfa, const Metin& metin) {
        return std::ranges::count_if(sayfa.parcalar, [&](const SayfaParcasi& parca) {
            return parca.satirlar == std::vector<Metin>{metin};
        });
    }

    static constexpr MetinBakis kMakbuzAdi = u"15.06.2012 - Salon A - ali usta - Makbuz";
    static constexpr const char* kGiderler =
        "\"03.05.2012\",\"150\",\"Elektrik\"\r\n#2012-05-04#,\"90\",\"Su\"\r\n";
};

TEST_F(BaskiGunu, A_payment_is_receipted_before_it_is_saved_and_the_same_again_the_day_after) {
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"1500");
        OdemeSec(0);
        MakbuzBasilir(Metin(kMakbuzAdi));
        VELORA_BAS(Prog().FormKayit, Command9);
        EXPECT_FALSE(OdemeVar());
        KaydeteBas();
    });
    ProgramiKapat();
    Prog();
    KayitAc([&] {
        OdemeSec(0);
        EkranBekle(EkranAdi::FormMakbuzPrint, [&] {
            EXPECT_EQ(Prog().FormMakbuzPrint->AdSoyad.baslik, u": Ali Usta") << "the save has written it so";
            kullanici.ortam.Bekle(BeklenenKayitYeri{.ad = u"15.06.2012 - Salon A - Ali Usta - Makbuz.pdf",
                                                    .secilen = "/tmp/kopya.pdf"});
            VELORA_BAS(Prog().FormMakbuzPrint, Pdf);
            VELORA_BAS(Prog().FormMakbuzPrint, Command2);
        });
        VELORA_BAS(Prog().FormKayit, Command9);
    });
    ASSERT_EQ(Basilanlar().size(), 1U);
    ASSERT_EQ(kullanici.ortam.pdfler.size(), 1U);
    for (const Metin& metin : {Metin(u": 1.500 TL"), Metin(u": 58 - ali usta"), Metin(u": 15.06.2012"),
                               Metin(u"Nergis Düğün Salonları")})
        for (const GidenSayfalar& giden : {Basilanlar()[0], kullanici.ortam.pdfler[0]})
            EXPECT_EQ(Sayisi(giden.sayfalar.at(0), metin), 1) << testing::PrintToString(metin);
    EXPECT_EQ(OdemeBaytlari(), "\"15.06.2012\",\"1500\",\"58 - ali usta\"\r\n");
}

TEST_F(BaskiGunu, An_expense_is_receipted_and_nothing_of_it_changes_on_disk_with_or_without_a_printer) {
    Prog();
    kullanici.Tablo().UserNamem = u"zeynep";
    EkranBekle(EkranAdi::FormKasa, [&] {
        EkranBekle(EkranAdi::FormGiderler, [&] {
            for (const bool basilir : {true, false}) {
                const auto giderler = Prog().FormGiderler.Tut();
                SatiraTikla(giderler->Liste, 1, [&] { giderler->Liste_Click(); });
                MakbuzBasilir(u"04.05.2012 - Salon A - Su - Gider Makbuzu", basilir);
                VELORA_BAS(Prog().FormGiderler, Command2);
            }
            VELORA_BAS(Prog().FormGiderler, Command1);
        });
        VELORA_BAS(Prog().FormKasa, Command3);
        VELORA_BAS(Prog().FormKasa, Command1);
    });
    kullanici.KomutSec(Komut::kasarapors);
    ASSERT_EQ(Basilanlar().size(), 1U);
    for (const Metin& metin : {Metin(u"GİDER MAKBUZU"), Metin(u": zeynep"), Metin(u": 90 TL")})
        EXPECT_EQ(Sayisi(Basilanlar()[0].sayfalar.at(0), metin), 1) << testing::PrintToString(metin);
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/Gider.dat"), kGiderler);
}

TEST_F(BaskiGunu, The_year_goes_to_paper_with_its_reservations_and_without_the_month_that_is_switched_off) {
    RezervasyonKoy(u"21.06.2012 - Gece", {}, true);
    RezervasyonKoy(u"14.07.2012 - Gece"); // in the hidden month
    YeniKayit([&] {
        Doldur();
        KaydeteBas();
    });
    EkranBekle(EkranAdi::FormTabloPrint, [&] {
        kullanici.ortam.Bekle(BeklenenBaski{.isAdi = u"2012 - Salon A - Rezervasyon Tablosu"});
        VELORA_BAS(Prog().FormTabloPrint, Command1);
        EXPECT_FALSE(Prog().FormTabloPrint.Yuklu());
    });
    kullanici.KomutSec(Komut::rezrapor);
    ASSERT_EQ(Basilanlar().size(), 1U);
    const Sayfa& sayfa = Basilanlar()[0].sayfalar.at(0);
    EXPECT_EQ(Sayisi(sayfa, u"●"), 1 + 2) << "with those of the legend";
    EXPECT_EQ(Sayisi(sayfa, u"○"), 1 + 2);
    EXPECT_EQ(Sayisi(sayfa, u"TEMMUZ"), 0);
    EXPECT_EQ(Sayisi(sayfa, u"HAZİRAN"), 1);
    EXPECT_EQ(Sayisi(sayfa, u"Cmt"), 2 * (52 - 4)) << "a year of 52 Saturdays, four of them in July";
    for (const SayfaParcasi& parca : sayfa.parcalar)
        for (const Metin& satir : parca.satirlar)
            EXPECT_EQ(satir.find(u"Usta"), Metin::npos) << "no customer's name";
}

} // namespace velora::test
