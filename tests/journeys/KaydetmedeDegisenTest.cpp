// While a reservation is saved, another copy of the program works on the same tree. What is read only once in
// a save must not show what stood there before.
#include <fstream>

#include "destek/RastgeleAgac.h"
#include "destek/YasliBellek.h"
#include "reservation/KayitTest.h"
#include "table/ReferansTarama.h"

namespace velora::test {

/// Today is 15 June 2012. The panel of warnings stands open, so that a save reads the year for the number,
/// the panel and the table.
class KaydetmedeDegisen : public KayitTest {
  protected:
    static constexpr MetinBakis kBaska = u"25.08.2012 - Gece";

    /// A new record is saved; `bekle` says what comes meanwhile.
    void Kaydet(const Is& once = [] {}) {
        YeniKayit([&] {
            Doldur();
            once();
            KaydeteBas();
        });
    }
    /// Another program writes over a record in its place: neither its name nor its length changes.
    void YerindeYaz(MetinBakis gun, const OrnekKayit& kayit) {
        const GeciciAgac yan;
        yan.KoyMetin(u"x", AnaMetni(kayit));
        std::fstream dosya(agac.Yol(u"Salon A/2012/" + Metin(gun)),
                           std::ios::in | std::ios::out | std::ios::binary);
        dosya << yan.Bayt(u"x");
    }
    int ReferansGibi() { return ReferansGibiOlmali(Prog(), ReferansTara(Prog(), u"Salon A", u"2012", u"")); }
    /// How often events run in a save with the panel open before the last reading of the year.
    int OlaySayisi() {
        int simdi = 0;
        int sonOkumada = 0;
        Prog().dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
            if (is == DosyaIsi::Listele && yol.ends_with(u"Salon A\\2012"))
                sonOkumada = simdi;
            return false;
        };
        Kaydet([&] { kullanici.ortam.olayda = [&](int) { ++simdi; }; });
        kullanici.ortam.olayda = {};
        Prog().dosyalar.ariza = nullptr;
        EXPECT_GT(sonOkumada, 12);
        return sonOkumada;
    }
    /// Saves once for each turn of events of a save, with a change from outside in that turn; the table has
    /// to show what the plain scan shows.
    void HerYerde(const std::function<void(int yer)>& degistir, const Is& geriAl) {
        YiliKoy();
        Prog();
        ASSERT_TRUE(kullanici.Tablo().Picture1.gorunur);
        const int sayi = OlaySayisi();
        for (int yer = 1; yer <= sayi; ++yer) {
            for (const char16_t* ek : {u"", u"-Detay"})
                std::filesystem::remove(agac.Yol(u"Salon A/2012/" + Metin(kGun) + ek));
            int simdi = 0;
            Kaydet([&] {
                kullanici.ortam.olayda = [&](int) {
                    if (++simdi == yer)
                        degistir(yer);
                };
            });
            kullanici.ortam.olayda = {};
            EXPECT_EQ(ReferansGibi(), 20) << "at " << yer << " of " << sayi;
            geriAl();
        }
    }
    void YiliKoy() {
        for (int gun = 10; gun < 28; ++gun)
            RezervasyonKoy(SayiMetni(gun) + u".08.2012 - Gece", {.ad = u"Ada", .no = SayiMetni(gun)});
        RezervasyonKoy(u"17.06.2012 - Gece", {.no = u"500"});
    }
};

TEST_F(KaydetmedeDegisen, A_record_changed_from_outside_at_any_point_of_a_save_is_shown_as_it_is_now) {
    HerYerde([&](int yer) { YerindeYaz(kBaska, {.ad = yer % 2 == 0 ? u"Eda" : u"Oya", .no = u"25"}); },
             [] {});
}

TEST_F(KaydetmedeDegisen, A_record_that_comes_goes_or_is_replaced_at_any_point_of_a_save_is_seen) {
    HerYerde(
        [&](int yer) {
            std::filesystem::remove(agac.Yol(u"Salon A/2012/10.08.2012 - Gece"));
            RezervasyonKoy(u"03.03.2012 - Gündüz", {.ad = u"Yeni " + SayiMetni(yer)}, yer % 2 == 0);
            agac.KoyMetin(u"yan", AnaMetni({.ad = u"Konan " + SayiMetni(yer)}));
            std::filesystem::rename(agac.Yol(u"yan"), agac.Yol(u"Salon A/2012/" + Metin(kBaska)));
        },
        [&] {
            RezervasyonKoy(u"10.08.2012 - Gece");
            std::filesystem::remove(agac.Yol(u"Salon A/2012/03.03.2012 - Gündüz"));
        });
}

TEST_F(KaydetmedeDegisen, What_changes_behind_the_box_of_an_empty_panel_is_shown_when_it_closes) {
    RezervasyonKoy(u"16.06.2012 - Gece", {.no = u"500"});
    RezervasyonKoy(Metin(kBaska), {.ad = u"Ada", .no = u"25"});
    Prog();
    KayitAc(
        [&] {
            Tikla(Kayit().Check18);
            KutuBekle(u"Hatırlatmalarda yaklaşan rezervasyon yok.");
            // As long as the list is empty and the box hasn't been answered.
            kullanici.ortam.olayda = [&](int) {
                if (kullanici.Tablo().Liste.satirlar.empty())
                    YerindeYaz(kBaska, {.ad = u"Eda", .no = u"25"});
            };
            KaydeteBas();
        },
        u"16.06.2012 - Gece");
    kullanici.ortam.olayda = {};
    EXPECT_NE(kullanici.Goz(25, 8, kGece).tag.find(u"Eda"), Metin::npos);
    EXPECT_EQ(ReferansGibi(), 2);
}

TEST_F(KaydetmedeDegisen, A_save_with_the_panel_open_reads_what_it_has_written_and_nothing_else) {
    YiliKoy();
    BellekBeklemesin(Prog().dosyalar);
    const auto oku = [&](const Is& is) {
        const std::size_t once = Prog().dosyalar.Okunan();
        is();
        return Prog().dosyalar.Okunan() - once;
    };
    ASSERT_EQ(oku([&] { kullanici.Tablo().Command1(); }), 38U);
    EXPECT_EQ(oku([&] { Kaydet(); }), 2U) << "the two files of the new record";
    EXPECT_EQ(oku([&] { kullanici.Tablo().Command1(); }), 0U);
}

TEST_F(KaydetmedeDegisen, The_panel_lists_what_a_change_between_its_scan_and_its_list_left) {
    YiliKoy();
    Prog();
    Kaydet([&] {
        // The turn of events behind the scan of the panel: the new record is on the table, the list is old.
        kullanici.ortam.olayda = [&](int) {
            if (!kullanici.Goz(20, 6, kGunduz).tag.empty() && kullanici.Tablo().Liste.satirlar.size() == 1)
                YerindeYaz(u"17.06.2012 - Gece", {.ad = u"Veli Ali", .no = u"500"});
        };
    });
    kullanici.ortam.olayda = {};
    ASSERT_EQ(kullanici.Tablo().Liste.satirlar.size(), 2U);
    EXPECT_EQ(kullanici.Tablo().Liste.satirlar[0].sutun[2], u"Veli Ali");
}

class KaydetmedeRastgele : public KaydetmedeDegisen, public ::testing::WithParamInterface<unsigned> {};

TEST_P(KaydetmedeRastgele, Whatever_changes_meanwhile_the_table_shows_what_the_plain_scan_shows) {
    RastgeleAgac rastgele(agac, GetParam());
    const auto metin = [&](MetinBakis ek) {
        OrnekKayit kayit{.ad = u"Müşteri " + SayiMetni(rastgele.Sec(1000)),
                         .no = u"n" + SayiMetni(rastgele.Sec(1000))};
        kayit.hatirlat = rastgele.Sec(12) == 0 ? u"15.06.2012" : u"__.__.____";
        kayit.check19 = static_cast<int>(rastgele.Sec(2));
        return rastgele.KayitMetni(ek, kayit);
    };
    const RastgeleAgac::Tarif tarif{.adet = 25,
                                    .salonlar = {u"Salon A"},
                                    .yillar = {u"2012"},
                                    .adlar = {u"Gider.dat", u"01.01.2011 - Gece"},
                                    .metin = metin};
    rastgele.Yap(tarif);
    RastgeleAgac::Tarif biri = tarif;
    biri.adet = 1;
    biri.adlar.clear();
    RezervasyonKoy(u"17.06.2012 - Gece", {.no = u"x"});
    Prog();
    ASSERT_TRUE(kullanici.Tablo().Picture1.gorunur);
    BellekBeklemesin(Prog().dosyalar);
    const auto degistir = [&](int) {
        const std::vector<std::filesystem::path> dosyalar(
            std::filesystem::directory_iterator(agac.Yol(u"Salon A/2012")), {});
        const auto& kurban = dosyalar[rastgele.Sec(dosyalar.size())];
        const Metin ad = YolMetni(kurban.filename());
        const unsigned is = rastgele.Sec(5);
        if (is < 3)
            agac.YeniAn();
        if (is == 0)
            rastgele.Yap(biri);
        else if (is == 1 && !ad.starts_with(u"17.06")) // the panel never gets empty
            std::filesystem::remove_all(kurban);
        else if (is == 2 && !ad.starts_with(u"17.06") && std::filesystem::is_regular_file(kurban))
            agac.KoyMetin(u"Salon A/2012/" + ad, metin(EslikDosyasi(ad) ? kDetayEki : MetinBakis()));
    };
    for (int kez = 0; kez < 5; ++kez) {
        YeniKayit(
            [&] {
                Doldur();
                kullanici.ortam.olayda = degistir;
                KaydeteBas();
                kullanici.ortam.olayda = {};
            },
            u"2" + SayiMetni(kez) + u".06.2012 - Gündüz");
        kullanici.Tablo().Command1(); // with what came after the last scan
        EXPECT_GT(ReferansGibi(), 3);
    }
}

INSTANTIATE_TEST_SUITE_P(Agaclar, KaydetmedeRastgele, ::testing::Range(1U, 16U));

} // namespace velora::test
