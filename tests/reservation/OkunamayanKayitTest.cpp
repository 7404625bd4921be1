// A save behind a reading that failed: of the three files of a reservation, of the counter and of the menus.
#include <map>

#include "destek/Ariza.h"
#include "reservation/KayitTest.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

namespace {

constexpr std::string_view kOdemeler =
    "\"01.05.2012\",\"700\",\"kapora\"\r\n\"02.05.2012\",\"300\",\"ek\"\r\n";

} // namespace

class OkunamayanKayitTest : public KayitTest {
  protected:
    /// A pre-reservation, paid in part.
    OkunamayanKayitTest() {
        RezervasyonKoy(Metin(kGun), {.ucret = u"4800", .alinan = u"1000", .kalan = u"3800"}, true);
        agac.Koy(Dosya(u"-Odeme"), kOdemeler);
    }

    static Metin Dosya(MetinBakis ek) { return u"Salon A/2012/" + Metin(kGun) + Metin(ek); }
    void Boz(MetinBakis ek) { BirKezOkunmaz(Prog().dosyalar, Metin(kGun) + Metin(ek)); }
    /// Opens it, changes something of each file, and saves.
    void DegistirVeKaydet() {
        KayitAc([&] {
            Gir(1, u"Başka Biri");
            if (Kayit().Kay[12].metin == kBosSaat) { // nothing came of the main file
                Gir(12, u"18:30");
                Gir(13, u"02.03.2012");
                Gir(8, u"4800");
                Gir(4, u"Nişan");
                Gir(15, u"23:00");
            }
            SatirlaraYaz(Kayit().Aciklamalar, u"Yeni istek");
            OdemeAl(u"250");
            KaydeteBas();
        });
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    }
    /// Each file of the reservation has changed, but for this one.
    void YalnizBuKaldi(MetinBakis kalan, const std::map<Metin, std::string>& eski) {
        for (const MetinBakis ek : kRezervasyonEkleri)
            EXPECT_EQ(agac.Bayt(Dosya(ek)) == eski.at(Metin(ek)), ek == kalan) << KodYaz(ek);
    }
    std::string Sayac() const { return agac.Bayt(u"Count.dat"); }
    void YeniKaydet() {
        YeniKayit(
            [&] {
                EXPECT_EQ(Kayit().Kay[14].metin, u"1");
                Doldur();
                KaydeteBas();
            },
            u"21.06.2012 - Gece");
        EXPECT_TRUE(AnaVar(u"21.06.2012 - Gece"));
    }
};

TEST_F(OkunamayanKayitTest, Each_file_that_could_not_be_read_stays_and_the_others_are_saved) {
    std::map<Metin, std::string> eski;
    for (const MetinBakis ek : kRezervasyonEkleri)
        eski[Metin(ek)] = agac.Bayt(Dosya(ek));
    for (const MetinBakis bozuk : kRezervasyonEkleri) {
        for (const auto& [ek, bayt] : eski)
            agac.Koy(Dosya(ek), bayt);
        Boz(bozuk);
        DegistirVeKaydet();
        YalnizBuKaldi(bozuk, eski);
    }
    for (const auto& [ek, bayt] : eski)
        agac.Koy(Dosya(ek), bayt);
    DegistirVeKaydet();
    YalnizBuKaldi(u"yok", eski);
}

TEST_F(OkunamayanKayitTest, What_is_shown_of_them_is_empty_as_ever) {
    Boz(u"-Detay");
    KayitAc([&] {
        EXPECT_EQ(Kayit().Option1.deger, 1);
        EXPECT_EQ(Kayit().Combo1.Metni(), u"");
        EXPECT_EQ(Kayit().Liste.satirlar.size(), 2U);
    });
    Boz(u"-Odeme");
    KayitAc([&] {
        EXPECT_EQ(Kayit().Option2.deger, 1);
        EXPECT_TRUE(Kayit().Liste.satirlar.empty());
        EXPECT_EQ(Kayit().Kay[9].metin, u"0");
        EXPECT_EQ(Kayit().Kay[10].metin, u"4800");
    });
    Boz(u"");
    KayitAc([&] {
        EXPECT_EQ(Kayit().KayitAc, 1);
        EXPECT_EQ(Kayit().Kay[1].metin, u"");
        EXPECT_EQ(Kayit().Kay[12].metin, kBosSaat);
    });
}

TEST_F(OkunamayanKayitTest, Payments_that_could_not_be_read_keep_their_sum_in_the_main_file) {
    Boz(u"-Odeme");
    KayitAc([&] {
        Gir(8, u"5100");
        KaydeteBas();
    });
    EXPECT_NE(AnaBaytlari().find("\"5100\",\"1000\",\"4100\""), std::string::npos) << AnaBaytlari();
    EXPECT_EQ(OdemeBaytlari(), kOdemeler);
    KayitAc([&] { KaydeteBas(); });
    EXPECT_NE(AnaBaytlari().find("\"5100\",\"1000\",\"4100\""), std::string::npos) << AnaBaytlari();
}

TEST_F(OkunamayanKayitTest, Payments_that_are_not_there_are_written_and_count) {
    std::filesystem::remove(agac.Yol(Dosya(u"-Odeme")));
    KayitAc([&] {
        OdemeAl(u"250");
        KaydeteBas();
    });
    EXPECT_EQ(OdemeBaytlari(), "\"15.06.2012\",\"250\",\"7 - Ali Veli\"\r\n");
    EXPECT_NE(AnaBaytlari().find("\"4800\",\"250\",\"4550\""), std::string::npos) << AnaBaytlari();
}

TEST_F(OkunamayanKayitTest, A_main_file_that_is_not_there_is_written_as_a_new_record) {
    std::filesystem::remove(agac.Yol(Dosya(u"")));
    KayitAc([&] {
        EXPECT_EQ(Kayit().KayitAc, 0);
        Doldur();
        Gir(12, u"10:00");
        KaydeteBas();
    });
    EXPECT_TRUE(AnaBaytlari().starts_with("\"Ali Usta\"")) << AnaBaytlari();
}

TEST_F(OkunamayanKayitTest, A_main_file_that_cannot_be_asked_about_is_no_new_record) {
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::VarMi && yol.ends_with(kGun);
    };
    KayitAc([&] {
        EXPECT_EQ(Kayit().KayitAc, 1);
        EXPECT_EQ(Kayit().Kay[1].metin, u"Ali Veli");
    });
    const std::string once = AnaBaytlari();
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return (is == DosyaIsi::VarMi || is == DosyaIsi::Oku) && yol.ends_with(kGun);
    };
    KayitAc([&] {
        Prog().dosyalar.ariza = {};
        EXPECT_EQ(Kayit().KayitAc, 0);
        Doldur();
        Gir(12, u"10:00");
        KaydeteBas();
    });
    EXPECT_EQ(AnaBaytlari(), once) << "nor is it written over as one";
}

TEST_F(OkunamayanKayitTest, A_counter_that_could_not_be_read_is_not_set_back) {
    BirKezOkunmaz(Prog().dosyalar, kSayacDosyasi);
    YeniKaydet();
    EXPECT_EQ(Sayac(), "\"57\"\r\n");
}

TEST_F(OkunamayanKayitTest, Menus_that_could_not_be_read_do_not_set_the_counter_back) {
    BirKezOkunmaz(Prog().dosyalar, kMenuDosyasi);
    YeniKaydet();
    EXPECT_EQ(Sayac(), "\"57\"\r\n");
}

TEST_F(OkunamayanKayitTest, A_counter_that_is_not_there_is_made) {
    std::filesystem::remove(agac.Yol(kSayacDosyasi));
    YeniKaydet();
    EXPECT_EQ(Sayac(), "\"1\"\r\n");
}

} // namespace velora::test
