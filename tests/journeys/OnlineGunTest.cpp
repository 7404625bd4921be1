// A day on which the firm is online: its year is published, requests come in, one becomes a reservation.
#include "access/Splash.h"
#include "destek/Servis.h"
#include "online/FormRezervasyonlar.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// The firm of `KayitTest` at its service, which keeps its table published.
class OnlineGun : public KayitTest {
  protected:
    OnlineGun() {
        agac.Koy(u"Adresler.dat", "\"http://servis.test/x\",\"\",\"\",\"\"\r\n");
        RezervasyonKoy(u"16.06.2012 - Gece", {.ad = u"Şule Iğdır", .no = u"9"});
        Firma().yillar[{u"0", u"2012"}] = {{u"Salon A", u"2012-01-01", u"Gece", u"geçen haftadan"}};
    }

    void Baslat() {
        Prog().Splash->Check1 = Prog().Splash->Check2 = 1;
        Prog().ortam.ag.getir = [this](const AgIstegi& istek) { return servis.Getir(istek); };
        kullanici.Tablo().Activate();
    }
    void Iste(const Metin& no, const Metin& ad) {
        Firma().istekler.emplace_back(no,
                                      ad + u"|0212 33|0532 44|x@y.test|Salon A|23.06.2012|19:30|Gece|Nişan");
    }
    void YayinBekle() { EkranBekle(EkranAdi::FormWebteYayinla, {}); }
    /// The list of requests is opened by its blinking mark.
    void IsteklereBak(const Is& is) {
        ASSERT_TRUE(kullanici.Tablo().YeniRezervasyonVar.etkin);
        EkranBekle(EkranAdi::FormRezervasyonlar, is);
        kullanici.Tablo().YeniRezervasyonVar_Click();
    }
    void IlkiniOlustur() {
        const auto istekler = Prog().FormRezervasyonlar.Tut();
        SatiraTikla(istekler->Liste, 0, [&] { istekler->Liste_Click(); });
        VELORA_BAS(Prog().FormRezervasyonlar, Command2);
    }
    Servis::Firma& Firma() { return servis.firmalar[u"00-1B-C4-0D-E0-9F"]; }
    std::vector<Metin> YayindakiGunler() {
        std::vector<Metin> gunler;
        for (const Servis::Goz& goz : Firma().yillar[{u"0", u"2012"}])
            gunler.push_back(goz.tarih + u" " + goz.dilim);
        return gunler;
    }

    Servis servis;
};

TEST_F(OnlineGun, A_published_year_can_be_read_back_and_follows_each_save) {
    Baslat();
    YayinBekle();
    kullanici.Tablo().AracaTikla(u"Yayınla");
    EXPECT_EQ(YayindakiGunler(), std::vector<Metin>{u"2012-06-16 Gece"});
    EXPECT_EQ((Firma().yillar[{u"0", u"2012"}][0].durum), u"|11:00|Düğün|Gece|5000|1000|4000|Şule Iğdır|9|1");
    EXPECT_EQ(Firma().salonlar, std::vector<Metin>{u"Salon A"});
    YeniKayit([this] {
        Doldur();
        YayinBekle();
        KaydeteBas();
    });
    EXPECT_EQ(YayindakiGunler(), (std::vector<Metin>{u"2012-06-16 Gece", u"2012-06-20 Gündüz"}));
}

TEST_F(OnlineGun, A_request_becomes_a_reservation_and_a_second_one_for_its_slot_is_refused) {
    Iste(u"41", u"gül ışık");
    Iste(u"42", u"Can");
    Firma().duyuruVar = true;
    Baslat();
    kullanici.ZamanGecir(3'000);
    EXPECT_TRUE(kullanici.Tablo().YeniDuyuru.etkin);
    IsteklereBak([this] {
        EkranBekle(EkranAdi::FormKayit, [this] {
            Gir(AnaNo::BitisSaati, u"23:30");
            YayinBekle();
            KaydeteBas();
        });
        IlkiniOlustur();
        KutuBekle(u"Bu tarihe online rezervasyon alamazsınız!\nZaten bir rezervasyon kayıtlı.");
        IlkiniOlustur();
        VELORA_BAS(Prog().FormRezervasyonlar, Command1);
    });
    EXPECT_TRUE(AnaBaytlari(u"23.06.2012 - Gece")
                    .starts_with("\"G\xFCl I\xFE\xFDk\",\"\",\"\",\"Ni\xFE"
                                 "an\",\"0212 33\",\"0532 44\","))
        << AnaBaytlari(u"23.06.2012 - Gece");
    EXPECT_EQ(YayindakiGunler(), (std::vector<Metin>{u"2012-06-16 Gece", u"2012-06-23 Gece"}));
    EXPECT_EQ(Firma().devralinanlar, std::vector<Metin>{u"41"});
    EXPECT_EQ(agac.Bayt(u"RezTemp.dat").substr(0, 5), "\"42\",");
    EXPECT_TRUE(kullanici.Tablo().YeniRezervasyonVar.etkin) << "one is left";
    // The next day only what waits is told again.
    ProgramiKapat();
    Baslat();
    kullanici.ZamanGecir(3'000);
    IsteklereBak([this] { EXPECT_EQ(Prog().FormRezervasyonlar->Liste.satirlar.size(), 1U); });
}

TEST_F(OnlineGun, When_the_service_has_no_request_any_more_the_mark_goes_out) {
    Iste(u"41", u"Can");
    Baslat();
    kullanici.ZamanGecir(3'000);
    ASSERT_TRUE(kullanici.Tablo().YeniRezervasyonVar.etkin);
    Firma().istekler.clear();
    kullanici.Tablo().Activate();
    kullanici.ZamanGecir(3'000);
    EXPECT_FALSE(kullanici.Tablo().YeniRezervasyonVar.etkin);
}

} // namespace velora::test
