// The steps of a save, from the first file to the last view, in their order.
#include "access/Splash.h"
#include "accounts/FormBakiye.h"
#include "reservation/FormArama.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// Report, search and the panel of warnings stand open and find nothing: each of them tells of its new list
/// in a box.
class KayitSirasiTest : public KayitTest {
  protected:
    void EkranlariAc() {
        Prog().FormBakiye.Goster();
        ListedenSec(Prog().FormBakiye->Combo1, u"Ön Rezervasyonlar");
        Prog().FormArama.Goster();
        AlanaYaz(Prog().FormArama->Text[1], u"yok");
        kullanici.Tablo().Picture1.gorunur = true;
        Prog().Splash->Check1 = Prog().Splash->Check2 = 1;
    }
    /// Saves what the screen holds. What was written, asked and shown stands in `adimlar` afterwards, with
    /// the points between at which events ran.
    void KaydetVeIzle() {
        Tikla(Kayit().Check18);
        KutuBekle(u"Belirtilen tarihler arasında bir rezervasyon kaydı bulunamadı!");
        KutuBekle(u"Hiç kayıt bulunamadı!");
        KutuBekle(u"Hatırlatmalarda yaklaşan rezervasyon yok.");
        kullanici.ortam.olayda = [this](int) { adimlar.emplace_back("olay"); };
        Prog().dosyalar.ariza = [this](DosyaIsi is, const Metin& yol) {
            DosyaAdimi(is, yol);
            return false;
        };
        Ortam& ortam = Prog().ortam;
        ortam.goster.gizle = [this, eski = ortam.goster.gizle](EkranAdi ekran) {
            if (ekran != EkranAdi::FormIpMac) // the table, which comes to the front, reads the key
                adimlar.emplace_back(ekran == EkranAdi::FormKayit ? "kapanış" : "başka kapanış");
            eski(ekran);
        };
        // What the publish itself does is no step of the save.
        ortam.goster.modal = [this](EkranAdi ekran, const auto&) {
            adimlar.emplace_back(ekran == EkranAdi::FormWebteYayinla ? "yayın" : "başka ekran");
            kullanici.ortam.olayda = {};
        };
        ortam.sor.mesaj = [this, eski = ortam.sor.mesaj](const MesajKutusu& kutu) {
            adimlar.emplace_back("kutu");
            return eski(kutu);
        };
        KaydeteBas();
        kullanici.ortam.olayda = {};
        Prog().dosyalar.ariza = {};
    }
    /// The steps up to the closing of the screen, and those after it: there what repeats counts once.
    std::vector<std::string> Once() const { return {adimlar.begin(), Kapanis()}; }
    std::vector<std::string> Sonra() const {
        std::vector<std::string> son(Kapanis(), adimlar.end());
        son.erase(std::unique(son.begin(), son.end()), son.end());
        return son;
    }

    std::vector<std::string> adimlar;

  private:
    void DosyaAdimi(DosyaIsi is, const Metin& yol) {
        const Metin ana = Yol(kGun);
        if (is == DosyaIsi::Listele && yol.ends_with(u"Salon A\\2012"))
            adimlar.emplace_back("tarama");
        else if (is == DosyaIsi::VarMi && yol.ends_with(u"15.06.2012 - Gece"))
            adimlar.emplace_back("bugün");
        else if (is == DosyaIsi::KlasorYap)
            adimlar.emplace_back("klasör");
        else if (is == DosyaIsi::Yaz || is == DosyaIsi::Ekle)
            adimlar.emplace_back(yol == ana                      ? "ana"
                                 : yol == ana + u"-Detay"        ? "detay"
                                 : yol == ana + u"-Odeme"        ? "ödeme"
                                 : yol.ends_with(u"\\Count.dat") ? "sayaç"
                                                                 : "başka dosya");
        else if (is == DosyaIsi::Sil)
            adimlar.emplace_back("silme");
    }
    std::vector<std::string>::const_iterator Kapanis() const {
        return std::find(adimlar.begin(), adimlar.end(), "kapanış");
    }
};

const std::vector<std::string> kTazeleme{"kapanış", "olay",                             //
                                         "tarama",  "kutu",                             // report
                                         "tarama",  "kutu",                             // search
                                         "olay",    "tarama", "olay", "tarama", "kutu", // warnings
                                         "olay",    "tarama", "olay", "bugün",  "olay", "yayın"};

TEST_F(KayitSirasiTest, A_new_record_is_written_file_by_file_with_events_between_then_closed_then_shown) {
    EkranlariAc();
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"100");
        KaydetVeIzle();
    });
    EXPECT_EQ(Once(), (std::vector<std::string>{"tarama", "klasör", "olay", "ana", "olay", "detay", "olay",
                                                "ödeme", "olay", "sayaç", "olay"}));
    EXPECT_EQ(Sonra(), kTazeleme);
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"58\"\r\n");
}

TEST_F(KayitSirasiTest, An_existing_record_goes_the_same_way_without_the_counter) {
    RezervasyonKoy(Metin(kGun));
    EkranlariAc();
    KayitAc([&] {
        OdemeAl(u"100");
        KaydetVeIzle();
    });
    EXPECT_EQ(Once(), (std::vector<std::string>{"klasör", "olay", "ana", "olay", "detay", "olay", "ödeme",
                                                "olay", "olay"}));
    EXPECT_EQ(Sonra(), kTazeleme);
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"57\"\r\n");
}

TEST_F(KayitSirasiTest, A_record_without_payments_takes_their_file_away_at_the_place_where_it_is_written) {
    RezervasyonKoy(Metin(kGun));
    agac.KoyMetin(u"Salon A/2012/" + Metin(kGun) + u"-Odeme", u"\"01.01.2012\",\"100\",\"x\"\r\n");
    EkranlariAc();
    kullanici.Tablo().TutarDegistir = 1;
    KayitAc([&] {
        SilmeSorusuBekle(Cevap::Evet);
        OdemeSec(0);
        VELORA_BAS(Prog().FormKayit, Command7);
        KaydetVeIzle();
    });
    EXPECT_EQ(Once(), (std::vector<std::string>{"klasör", "olay", "ana", "olay", "detay", "olay", "silme",
                                                "olay", "olay"}));
    EXPECT_FALSE(OdemeVar());
}

} // namespace velora::test
