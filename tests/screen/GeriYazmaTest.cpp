// Each list and record that a screen reads and later writes back whole.
#include <gtest/gtest.h>

#include "access/FormKullanicilar.h"
#include "access/Kullanicilar.h"
#include "destek/Ariza.h"
#include "destek/GeciciAgac.h"
#include "destek/Kayitlar.h"
#include "destek/SahteOrtam.h"
#include "documents/FormSozlesme.h"
#include "maintenance/FormResmiTatil.h"
#include "online/FormFirma.h"
#include "online/FormRezervasyonlar.h"
#include "online/FormSunucu.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormSalonTanim.h"
#include "storage/KodSayfasi.h"
#include "storage/VeriAgaci.h"

namespace velora::test {

namespace {

/// A file, what it holds, and the screen that reads it, enters something and saves.
struct GeriYazilan {
    MetinBakis dosya;
    std::string eski;
    void (*girVeKaydet)(Program&);
    std::string yeni; ///< what is entered, as the file then holds it
};

void SalonGir(Program& p) {
    p.FormSalonTanim->List1.ogeler.emplace_back(u"Nergis");
    p.FormSalonTanim->Kaydet_Click();
}

void MenuGir(Program& p) {
    p.FormMenuAyar->Liste.satirlar.push_back({{u"Balık", u"Levrek"}, {}, 0});
    p.FormMenuAyar->Kaydet_Click();
}

void KullaniciGir(Program& p) {
    std::vector<Metin> sutun(KullaniciNo::IlkYetki + kYetkiSayisi, u"0");
    sutun[KullaniciNo::Ad] = u"can";
    p.FormKullanicilar->Liste.satirlar.push_back({sutun, {}, 0});
    p.FormKullanicilar->Command6_Click();
}

void TatilGir(Program& p) {
    p.FormResmiTatil->Ekle({u"07.08.2012", u"Panayır", u"Hayır", u"Özel"});
    p.FormResmiTatil->Command1_Click();
}

void IstekGir(Program& p) {
    p.FormRezervasyonlar->Activate();
    p.FormRezervasyonlar->Liste.satirlar.push_back({std::vector<Metin>(10, u"yeni"), {}, 0});
    p.FormRezervasyonlar->Kaydet_Click();
}

void AyarGir(Program& p) {
    p.FormAyarlar->UyariGun.metin = u"19";
    p.FormAyarlar->Command1_Click();
}

void AyGir(Program& p) {
    p.FormAyarlar->Aylar[4].Ata(0);
    p.FormAyarlar->Command1_Click();
}

void SozlesmeGir(Program& p) {
    p.FormSozlesme->Baslik.metin = u"Yeni başlık";
    p.FormSozlesme->Command2_Click();
}

void FirmaGir(Program& p) {
    p.FormFirma->t1.metin = u"Yeni Firma";
    p.FormFirma->Command3_Click();
}

void SunucuGir(Program& p) {
    p.FormSunucu->Check1.Ata(0);
    p.FormSunucu->Command1_Click();
}

const std::string kEskiAylar = "1,1,0,1,1,1,1,1,0,1,1,1,1\r\n";

const std::vector<GeriYazilan> kGeriYazilanlar{
    {kSalonDosyasi, "\"Lale\"\r\n\"G\xFCl\"\r\n", SalonGir, "\"Nergis\""},
    {kMenuDosyasi, "\"Klasik\",\"\xC7orba\"\r\n", MenuGir, "\"Bal\xFDk\",\"Levrek\""},
    {kKullaniciDosyasi, "\"admin\",\"g5\",1,1,1,1,1,1,1,1,1,0,1\r\n", KullaniciGir, "\"can\",\"0\""},
    {kTatilDosyasi, "\"23.04.2010\",\"Bayram\",\"Evet\",\"Genel\"\r\n", TatilGir, "\"Panay\xFDr\""},
    {kIstekDosyasi, "\"7\",\"Elif\",\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"Gece\",\"8\"\r\n", IstekGir,
     "\"yeni\",\"yeni\""},
    {kAyarDosyasi, KodYaz(AyarMetni(2, u"4711")), AyarGir, ",\"19\",\"10\","},
    {kAyDosyasi, kEskiAylar, AyGir, "1,1,1,0,1"},
    {kSozlesmeDosyasi, "\"Maddeler\",\"1 - Kapora\r\n2 - Kira\"\r\n", SozlesmeGir, "\"Yeni ba\xFEl\xFDk\","},
    {kFirmaDosyasi, "\"Eski Firma\",\"b\",\"3\",\"4\"\r\n", FirmaGir, "\"Yeni Firma\","},
    {kSunucuDosyasi, "\"00-11\",1\r\n", SunucuGir, "\"00-1B-C4-0D-E0-9F\",0"},
};

} // namespace

class GeriYazmaTest : public ::testing::TestWithParam<GeriYazilan> {
  protected:
    /// Both files of the settings count only together.
    GeriYazmaTest() {
        agac.Koy(u"Settings.dll", KodYaz(AyarMetni()));
        agac.Koy(u"Visible.dll", "1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        agac.Koy(dosya, GetParam().eski);
    }

    /// In a program of its own, as at the next start.
    void GirVeKaydet(const std::function<void(Dosyalar&)>& once = {}) {
        Program program{ortam.Ver(), agac.Kok()};
        if (once)
            once(program.dosyalar);
        GetParam().girVeKaydet(program);
    }
    void YeniOlmali() const {
        EXPECT_NE(agac.Bayt(dosya).find(GetParam().yeni), std::string::npos) << agac.Bayt(dosya);
    }

    const Metin dosya{GetParam().dosya};
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_P(GeriYazmaTest, A_file_that_could_not_be_read_keeps_its_text_and_one_that_could_is_written) {
    std::shared_ptr<bool> bozuldu;
    GirVeKaydet([&](Dosyalar& dosyalar) { bozuldu = BirKezOkunmaz(dosyalar, dosya); });
    EXPECT_TRUE(*bozuldu);
    EXPECT_EQ(agac.Oku(dosya), GetParam().eski);
    GirVeKaydet();
    YeniOlmali();
}

TEST_P(GeriYazmaTest, A_file_that_is_not_there_is_written) {
    std::filesystem::remove(agac.Yol(dosya));
    GirVeKaydet();
    YeniOlmali();
}

INSTANTIATE_TEST_SUITE_P(Dosyalar, GeriYazmaTest, ::testing::ValuesIn(kGeriYazilanlar),
                         [](const auto& bilgi) {
                             std::string ad = KodYaz(bilgi.param.dosya);
                             return ad.substr(0, ad.find('.'));
                         });

} // namespace velora::test
