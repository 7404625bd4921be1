#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "access/Kullanicilar.h"
#include "access/Splash.h"
#include "accounts/FormGiderler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "documents/FormSozlesme.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormYedekAl.h"
#include "online/Adresler.h"
#include "online/FormFirma.h"
#include "online/FormRezervasyonlar.h"
#include "online/FormSunucu.h"
#include "reservation/FormKayit.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "storage/KodSayfasi.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/gunluk/GunlukKaydi.h"
#include "table/FormTablo.h"

namespace velora::test {

namespace {

struct DosyaBolumu {
    int alanSayisi = 0; // by the numbers of the table's rows
    std::string ornek;  // bytes as they would stand on disk
};

std::string DiskBaytlari(const std::string& utf8) {
    std::string bayt = KodYaz(std::filesystem::path(std::u8string(utf8.begin(), utf8.end())).u16string());
    for (std::size_t i = bayt.find('\n'); i != std::string::npos; i = bayt.find('\n', i + 2))
        bayt.insert(i, 1, '\r');
    return bayt;
}

/// The sections of the page that hold an example, by the name of their file.
std::map<std::string, DosyaBolumu> SayfayiOku() {
    std::map<std::string, DosyaBolumu> bolumler;
    std::ifstream sayfa(VELORA_DOCS "/dosyalar.md");
    std::string bolum;
    std::string ornek;
    bool ornekte = false;
    for (std::string satir; std::getline(sayfa, satir);) {
        if (satir.starts_with("```")) {
            if (ornekte)
                bolumler[bolum].ornek = DiskBaytlari(ornek);
            else
                EXPECT_EQ(satir.substr(3), bolum) << "an example names its own section";
            ornekte = !ornekte;
            ornek.clear();
        } else if (ornekte) {
            ornek += satir + '\n';
        } else if (satir.starts_with("## ")) {
            bolum = satir.substr(3);
        } else if (satir.starts_with("| ") && std::isdigit(static_cast<unsigned char>(satir[2])) != 0) {
            const std::string numara = satir.substr(2, satir.find(' ', 2) - 2);
            const std::size_t tire = numara.find('-');
            const int ilk = std::stoi(numara);
            EXPECT_EQ(ilk, bolumler[bolum].alanSayisi + 1) << bolum << ": a number is missing";
            bolumler[bolum].alanSayisi = tire == std::string::npos ? ilk : std::stoi(numara.substr(tire + 1));
        }
    }
    return bolumler;
}

/// The indented lines of a section, without what indents them.
std::string GiritiliSatirlar(const std::string& bolum) {
    constexpr std::string_view kGirinti = "    ";
    std::ifstream sayfa(VELORA_DOCS "/dosyalar.md");
    std::string simdiki;
    std::string metin;
    for (std::string satir; std::getline(sayfa, satir);) {
        if (satir.starts_with("## "))
            simdiki = satir.substr(3);
        else if (simdiki == bolum && satir.starts_with(kGirinti))
            metin += satir.substr(kGirinti.size()) + '\n';
    }
    return metin;
}

} // namespace

class DosyalarSayfasi : public ::testing::Test {
  protected:
    std::map<std::string, DosyaBolumu> bolumler = SayfayiOku();
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{1}, std::chrono::day{5}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(DosyalarSayfasi, Each_example_holds_as_many_values_as_its_table_has_fields) {
    EXPECT_EQ(bolumler.size(), 17U);
    for (const auto& [ad, bolum] : bolumler) {
        DegerOkuyucu okuyucu(bolum.ornek);
        EXPECT_EQ(okuyucu.Atla(1000), bolum.alanSayisi) << ad;
        EXPECT_GT(bolum.alanSayisi, 0) << ad;
    }
}

TEST_F(DosyalarSayfasi, The_example_of_the_journal_holds_whole_records) {
    const std::string bayt = GiritiliSatirlar("The journal");
    const std::string bas = GunlukBasi(u"/home/gul/Velora");
    ASSERT_TRUE(bayt.starts_with(bas));
    std::size_t konum = bas.size();
    const auto eylem = KayitOku(bayt, konum);
    ASSERT_TRUE(eylem);
    EXPECT_EQ(*eylem,
              GunlukKaydi(EylemKaydi{
                  1,
                  u"Salon ekleme",
                  u"zeynep",
                  u"2026-11-05 14:20:07",
                  {{.yol = u"\\Gül\\2026\\Gider.dat", .once = {}, .sonra = ""},
                   {.tur = EylemAdimi::Tur::Klasor, .yol = u"\\Gül\\2027", .once = {}, .sonra = {}}}}));
    EXPECT_EQ(KayitOku(bayt, konum), GunlukKaydi(BittiKaydi{1}));
    EXPECT_EQ(konum, bayt.size());
}

TEST_F(DosyalarSayfasi, Program_reads_the_examples_of_the_firms_files) {
    for (const char16_t* ad : {u"Salon.dat", u"Menuler.dat", u"User.dll", u"Settings.dll", u"Visible.dll",
                               u"Tatiller.dll", u"Sozlesme.dat", u"Count.dat"})
        agac.Koy(ad, bolumler[std::filesystem::path(ad).string()].ornek);
    EXPECT_EQ(program.FormSozlesme->Baslik.metin, u"Sözleşme Maddeleri");
    EXPECT_TRUE(program.FormSozlesme->Sozlesme.metin.ends_with(
        u".\r\n2 - Tarih değişikliği bir ay önceden bildirilir."));
    EXPECT_EQ(program.FormKayit->Kay[14].metin, u"18");
    EXPECT_EQ(program.FormTablo->Salon.ogeler, std::vector<Metin>{u"Gül Salonu"});
    EXPECT_EQ(program.FormMenuAyar->Liste.satirlar.at(0).sutun,
              (std::vector<Metin>{u"Klasik", u"Çorba\r\nTatlı"}));
    const SatirListesi kullanicilar = KullanicilariOku(program);
    ASSERT_EQ(kullanicilar.size(), 1U);
    EXPECT_EQ(kullanicilar[0].sutun[KullaniciNo::Parola], u"gül5");
    EXPECT_EQ(kullanicilar[0].sutun.back(), u"1");
    EXPECT_EQ(program.FormAyarlar->UyariGun.metin, u"7");
    EXPECT_TRUE(program.FormAyarlar->GunduzUstte());
    EXPECT_TRUE(program.FormAyarlar->AyGorunur(5));
    EXPECT_FALSE(program.FormAyarlar->AyGorunur(6));
    EXPECT_EQ(program.FormTablo->Gozu(10, velora::GunduzGece::Gece, 29).ipucu, u"Cumhuriyet Bayramı");
}

TEST_F(DosyalarSayfasi, Program_reads_the_examples_of_the_service) {
    for (const char16_t* ad : {u"Firma.dll", u"Sunucu.dat", u"Adresler.dat", u"RezTemp.dat"})
        agac.Koy(ad, bolumler[std::filesystem::path(ad).string()].ornek);
    EXPECT_EQ(program.FormFirma->t1.metin, u"Gül Düğün Salonları");
    EXPECT_EQ(program.FormFirma->t9.metin, u"Termal");
    EXPECT_EQ(program.FormFirma->t13.Metni(), u"2");
    EXPECT_EQ(program.FormSunucu->Check1.deger, 1);
    EXPECT_EQ(AdresleriOku(program).servis, u"https://servis.ornek.test/velora");
    EXPECT_EQ(AdresleriOku(program).satir, u"Velora - www.ornek.test");
    program.FormRezervasyonlar->Activate();
    ASSERT_EQ(program.FormRezervasyonlar->Liste.satirlar.size(), 1U);
    EXPECT_EQ(program.FormRezervasyonlar->Liste.satirlar[0].sutun[9], u"Düğün");
}

TEST_F(DosyalarSayfasi, The_start_finds_the_examples_of_its_three_files_whole) {
    for (const char16_t* ad : {u"Firma.dll", u"Menuler.dat", u"Sozlesme.dat"})
        agac.Koy(ad, bolumler[std::filesystem::path(ad).string()].ornek);
    program.Splash->Baslat();
    EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::Splash}));
}

TEST_F(DosyalarSayfasi, Readers_of_a_reservation_read_its_three_examples) {
    agac.Koy(u"a", bolumler["RezervasyonDosyasi"].ornek);
    agac.Koy(u"b", bolumler["DetayDosyasi"].ornek);
    agac.Koy(u"c", bolumler["OdemeDosyasi"].ornek);
    AnaDegerler ana;
    DetayDegerler detay;
    std::vector<Odeme> odemeler;
    ASSERT_TRUE(AnaOku(program.dosyalar, program.agac.KokYolu(u"a"), ana));
    ASSERT_TRUE(DetayOku(program.dosyalar, program.agac.KokYolu(u"b"), detay));
    ASSERT_TRUE(OdemeOku(program.dosyalar, program.agac.KokYolu(u"c"), odemeler));
    EXPECT_EQ(ana.No(1), u"Ayşe Yılmaz");
    EXPECT_EQ(ana.No(20), u"0");
    EXPECT_EQ(detay.No(18), u"Üç katlı");
    EXPECT_EQ(detay.No(39), u"Çorba\r\nTatlı");
    EXPECT_EQ(std::count(bolumler["DetayDosyasi"].ornek.begin(), bolumler["DetayDosyasi"].ornek.end(), '\n'),
              39)
        << "38 lines and the line break within the menu";
    ASSERT_EQ(odemeler.size(), 1U);
    EXPECT_EQ(odemeler[0].aciklama, u"17 - Ayşe Yılmaz");
}

TEST_F(DosyalarSayfasi, A_backup_writes_the_example_of_its_target) {
    program.FormYedekAl->txtDestination.metin = u"E:\\VRYedek";
    program.FormYedekAl->txtSource.metin.clear(); // it goes no further
    ortam.Bekle(BeklenenKutu{u"Velora", u"Lütfen dizin seçiniz!"});
    program.FormYedekAl->cmdStart_Click();
    EXPECT_EQ(agac.Bayt(u"BackupSetting.dat"), bolumler["BackupSetting.dat"].ornek);
}

TEST_F(DosyalarSayfasi, The_list_of_expenses_reads_their_example) {
    agac.Koy(u"Salon.dat", bolumler["Salon.dat"].ornek);
    agac.Koy(u"Gül Salonu/2012/Gider.dat", bolumler["Gider.dat"].ornek);
    program.FormGiderler->Combo2.Sec(u"Gül Salonu");
    ASSERT_EQ(program.FormGiderler->Liste.satirlar.size(), 1U);
    EXPECT_EQ(program.FormGiderler->Liste.satirlar[0].sutun,
              (std::vector<Metin>{u"03.05.2012", u"150", u"Gider", u"Elektrik"}));
}

} // namespace velora::test
