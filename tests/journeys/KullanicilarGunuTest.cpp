// The day on which a firm gets its users: the administrator enters them, and each of them comes to the desk.
#include <gtest/gtest.h>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "access/FormSifreDegistir.h"
#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "reservation/FormKayit.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

class KullanicilarGunu : public ::testing::Test {
  protected:
    static constexpr auto kGece = velora::GunduzGece::Gece;

    KullanicilarGunu() {
        agac.KoyMetin(u"Salon.dat", u"\"Gül\"\r\n");
        for (const MetinBakis gun : {u"20.06.2012 - Gece", u"21.06.2012 - Gece"})
            KayitKoy(agac, u"Gül/2012/" + Metin(gun), {}, false, u"\"01.01.2012\",\"1000\",\"x\"\r\n");
        agac.Koy(u"User.dll",
                 "\"admin\",\"\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n");
    }

    Program& Prog() { return kullanici.Prog(); }
    void EkrandaYap(EkranAdi ekran, std::function<void()> is) {
        kullanici.ortam.Bekle(BeklenenEkran{ekran, std::move(is)});
    }
    void KutuBekle(const Metin& metin, Simge simge = Simge::Bilgi, Cevap cevap = Cevap::Tamam) {
        kullanici.ortam.Bekle(BeklenenKutu{u"Velora", metin, simge, cevap});
    }
    void YeniParola(const Metin& parola) {
        AlanaYaz(Prog().FormSifreDegistir->Text1, parola);
        AlanaYaz(Prog().FormSifreDegistir->Text2, parola);
        VELORA_BAS(Prog().FormSifreDegistir, Command1);
    }
    /// In the list of users: one is added who lacks these rights.
    void KullaniciEkle(const Metin& ad, const Metin& parola, const std::vector<int>& eksikler) {
        EkrandaYap(EkranAdi::FormKullaniciEkle, [this, ad, parola, eksikler] {
            const auto ekle = Prog().FormKullaniciEkle.Tut();
            AlanaYaz(ekle->Text1, ad);
            AlanaYaz(ekle->Text2, parola);
            AlanaYaz(ekle->Text3, parola);
            for (const int no : eksikler)
                Tikla(ekle->Check[no]);
            VELORA_BAS(Prog().FormKullaniciEkle, Command1);
        });
        VELORA_BAS(Prog().FormKullanicilar, Command1);
    }
    void KullanicilarAcikken(const std::function<void()>& is) {
        EkrandaYap(EkranAdi::FormKullanicilar, [this, is] {
            is();
            VELORA_BAS(Prog().FormKullanicilar, Command4);
        });
        kullanici.KomutSec(Komut::KulTanimssss);
    }
    /// All entries, lines and places of the tool bar but these are seen.
    void GorulmeyenlerOlmali(const std::set<Metin>& girdiler, const std::set<int>& araclar) {
        for (const KomutTanimi& komut : Komutlar())
            EXPECT_EQ(kullanici.Tablo().Girdi(komut.komut).gorunur, !girdiler.contains(Metin(komut.ad)))
                << KodYaz(komut.ad);
        for (int yer = 1; yer <= kAracSayisi; ++yer)
            EXPECT_EQ(kullanici.Tablo().Toolbar1[yer].gorunur, !araclar.contains(yer)) << yer;
    }
    /// Opens the record of the 20th and tries to take its payment away.
    void OdemeyiSilmeyeCalis(const std::function<void()>& beklenen) {
        EkrandaYap(EkranAdi::FormKayit, [this, beklenen] {
            const auto kayit = Prog().FormKayit.Tut();
            SatiraTikla(kayit->Liste, 0, [&] { kayit->Liste_ItemClick(); });
            beklenen();
            VELORA_BAS(Prog().FormKayit, Command7);
            VELORA_BAS(Prog().FormKayit, Command2);
        });
        kullanici.CiftTikla({20, 6, kGece});
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

constexpr std::string_view kUcKullanici =
    "\"admin\",\"g\xFCl5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n"
    "\"ay\xFE\x65\",\"\xE7\x61y\",\"0\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"0\",\"0\"\r\n"
    "\"can\",\"c9\",\"1\",\"0\",\"1\",\"1\",\"0\",\"0\",\"1\",\"0\",\"1\",\"0\",\"1\"\r\n";

TEST_F(KullanicilarGunu, Admin_sets_a_password_and_enters_two_users_who_see_what_they_may) {
    kullanici.GirisiAc();
    EXPECT_FALSE(kullanici.GirisYap(u"admin", u"")) << "without a password he is asked for one";
    YeniParola(u"gül5");
    kullanici.Boyutla(1280, 620);
    GorulmeyenlerOlmali({}, {});
    KullanicilarAcikken([this] {
        KullaniciEkle(u"ayşe", u"çay", {1, 9, 11});
        KullaniciEkle(u"can", u"c9", {2, 5, 6, 8});
    });
    EXPECT_EQ(agac.Bayt(u"User.dll"), kUcKullanici);
    kullanici.ProgramiKapat();

    kullanici.GirisiAc();
    ASSERT_TRUE(kullanici.GirisYap(u"ayşe", u"çay"));
    EXPECT_EQ(kullanici.Tablo().StatusBar1, u"Velora - Aktif Kullanıcı : ayşe");
    EXPECT_TRUE(kullanici.Goz(20, 6, kGece).tag.starts_with(u"ayşe|"));
    GorulmeyenlerOlmali({u"BakiyeRaporss", u"kasarapors", u"aline1", u"Guvenliksss", u"firmcizgi",
                         u"KulTanimssss", u"aline4"},
                        {3, 4, 5, 6});
    OdemeyiSilmeyeCalis([this] {
        EXPECT_TRUE(Prog().FormKayit->Kay[8].kilitli);
        KutuBekle(u"Alınan ödemeleri silmeye yetkiniz yok!");
    });
    kullanici.ProgramiKapat();

    kullanici.GirisiAc();
    ASSERT_TRUE(kullanici.GirisYap(u"can", u"c9"));
    GorulmeyenlerOlmali({u"iptals", u"aline12", u"Progrset", u"aline9", u"Salontanimss", u"aline4",
                         u"TasimaModuAc", u"aline11", u"Guvenliksss", u"firmcizgi", u"KulTanimssss"},
                        {11, 12, 13, 14});
    EXPECT_TRUE(kullanici.SagTikla({20, 6, kGece}));
    EXPECT_FALSE(kullanici.Tablo().Girdi(Komut::iptals).gorunur);
    OdemeyiSilmeyeCalis([this] {
        EXPECT_FALSE(Prog().FormKayit->Kay[8].kilitli);
        KutuBekle(u"Ödeme kaydını silmek istediğinizden emin misiniz?", Simge::Soru, Cevap::Evet);
    });
}

TEST_F(KullanicilarGunu, Cancellation_is_logged_under_the_user_and_a_deleted_user_gets_in_no_more) {
    agac.Koy(u"User.dll", kUcKullanici);
    kullanici.GirisiAc();
    ASSERT_TRUE(kullanici.GirisYap(u"ayşe", u"çay"));
    ASSERT_TRUE(kullanici.SagTikla({21, 6, kGece}));
    KutuBekle(u"Seçili kaydı silmek istediğinizden emin misiniz?", Simge::Soru, Cevap::Evet);
    kullanici.ortam.Bekle(BeklenenGirdi{u"İptal Sebebi", u"İptal sebebini yazınız!", u"Vazgeçti"});
    kullanici.KomutSec(Komut::iptals);
    EXPECT_NE(agac.Bayt(u"IptalSebep.txt").find(" - ay\xFE\x65 - Vazge\xE7ti"), std::string::npos)
        << agac.Bayt(u"IptalSebep.txt");
    kullanici.ProgramiKapat();

    kullanici.GirisiAc();
    ASSERT_TRUE(kullanici.GirisYap(u"admin", u"gül5"));
    KullanicilarAcikken([this] {
        const auto liste = Prog().FormKullanicilar.Tut();
        SatiraTikla(liste->Liste, 1, [&] { liste->Liste_Click(); });
        KutuBekle(u"Seçili kullanıcıyı silmek istediğinizden emin misiniz?", Simge::Soru, Cevap::Evet);
        VELORA_BAS(Prog().FormKullanicilar, Command2);
    });
    kullanici.ProgramiKapat();

    kullanici.GirisiAc();
    KutuBekle(u"Hatalı parola girdiniz!\nLütfen bilgilerinizi kontrol ediniz!", Simge::Kritik);
    EXPECT_FALSE(kullanici.GirisYap(u"ayşe", u"çay"));
    ASSERT_TRUE(kullanici.GirisYap(u"admin", u"gül5"));
    EXPECT_FALSE(kullanici.Tablo().Girdi(Komut::Guvenliksss).gorunur) << "after another name";
}

TEST_F(KullanicilarGunu, New_password_of_admin_leaves_nobody_else_as_is_meant) {
    agac.Koy(u"User.dll", kUcKullanici);
    kullanici.GirisiAc();
    ASSERT_TRUE(kullanici.GirisYap(u"admin", u"gül5"));
    EkrandaYap(EkranAdi::FormSifreDegistir, [this] { YeniParola(u"yeni"); });
    kullanici.KomutSec(Komut::Guvenliksss);
    KullanicilarAcikken([this] { EXPECT_EQ(Prog().FormKullanicilar->Liste.satirlar.size(), 1U); });
    kullanici.ProgramiKapat();
    kullanici.GirisiAc();
    KutuBekle(u"Hatalı parola girdiniz!\nLütfen bilgilerinizi kontrol ediniz!", Simge::Kritik);
    EXPECT_FALSE(kullanici.GirisYap(u"can", u"c9"));
    EXPECT_TRUE(kullanici.GirisYap(u"admin", u"yeni"));
}

} // namespace velora::test
