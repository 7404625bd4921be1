#include "dayanim/Senaryolar.h"

#include <vector>

#include "dayanim/Isler.h"
#include "destek/Eylemler.h"

namespace velora::dayanim {
namespace {

using test::Tikla;

const std::vector<Senaryo> kSenaryolar{
    {.ad = "yeni-kayit", .yap = [](Masa& m) { YeniKayit(m, [] {}); }},
    {.ad = "yeni-odemeli",
     .yap =
         [](Masa& m) {
             YeniKayit(m, [&m] {
                 OdemeAl(m, u"1200");
                 OdemeAl(m, u"650");
             });
         }},
    {.ad = "yeni-uzun", .yap = [](Masa& m) { YeniKayit(m, [&m] { UzunYaz(m, u"haber", 200); }); }},
    {.ad = "ilk-sayac", .yap = [](Masa& m) { YeniKayit(m, [] {}); }, .degisik = {{"Count.dat", ""}}},
    {.ad = "kayit-duzenle",
     .yap =
         [](Masa& m) {
             KayitDuzenle(m, kIkiOdemeli, [&m] {
                 Gir(m, AnaNo::AdiSoyadi, u"ali osman ustaoğlu");
                 Gir(m, AnaNo::Yoresi, u"of");
                 Tikla(Kayit(m).Check[3]);
             });
         }},
    {.ad = "uzun-duzenle",
     .yap = [](Masa& m) { KayitDuzenle(m, kUzunKayit, [&m] { UzunYaz(m, u"yeni", 30); }); }},
    {.ad = "odeme-ekle", .yap = [](Masa& m) { KayitDuzenle(m, kIkiOdemeli, [&m] { OdemeAl(m, u"775"); }); }},
    {.ad = "son-odeme-sil",
     .yap = [](Masa& m) { KayitDuzenle(m, kTekOdemeli, [&m] { OdemeSil(m, 0); }); },
     .yokGibi = {{"Salon A/2012/21.06.2012 - Gece-Odeme", ""}}},
    {.ad = "kesinlestir",
     .yap = [](Masa& m) { KayitDuzenle(m, kOnKayit, [&m] { Kayit(m).Option1.Ata(1); }); }},
    {.ad = "bosa-tasi", .yap = [](Masa& m) { Tasi(m, kIkiOdemeli, kBosGun); }, .hazirla = TasimaAc},
    {.ad = "uzunu-tasi", .yap = [](Masa& m) { Tasi(m, kUzunKayit, kBosGun); }, .hazirla = TasimaAc},
    {.ad = "gecmise-tasi", .yap = [](Masa& m) { Tasi(m, kIkiOdemeli, kGecmis); }, .hazirla = TasimaAc},
    {.ad = "iptal", .yap = [](Masa& m) { Iptal(m, kIkiOdemeli); }},
    {.ad = "ilk-iptal", .yap = [](Masa& m) { Iptal(m, kTekOdemeli); }, .degisik = {{"IptalSebep.txt", ""}}},
    {.ad = "ayarlar", .yap = Ayarlar},
    {.ad = "ilk-ayarlar", .yap = Ayarlar, .degisik = {{"Settings.dll", ""}, {"Visible.dll", ""}}},
    {.ad = "salon-ekle", .yap = SalonEkle},
    {.ad = "salon-sil", .yap = SalonSil},
    {.ad = "salon-adi", .yap = SalonAdi},
    {.ad = "menu-ekle", .yap = [](Masa& m) { MenuYaz(m, u"gümüş", u"pilav, ayran", true); }},
    {.ad = "menu-uzun", .yap = [](Masa& m) { MenuYaz(m, u"saray", UzunMetin(6400, u"tabak"), true); }},
    {.ad = "menu-duzenle", .yap = [](Masa& m) { MenuYaz(m, u"klasik iki", u"çorba", false); }},
    {.ad = "menu-sil", .yap = [](Masa& m) { MenuSil(m, 0); }},
    {.ad = "gider-ekle", .yap = [](Masa& m) { Kasada(m, u"Salon A", [&m] { GiderEkle(m); }); }},
    {.ad = "ilk-gider",
     .yap = [](Masa& m) { Kasada(m, u"Bahçe", [&m] { GiderEkle(m); }); },
     .degisik = {{"Bahçe/2012/Gider.dat", ""}}},
    {.ad = "gider-sil", .yap = [](Masa& m) { Kasada(m, u"Salon A", [&m] { GiderSil(m); }); }},
    {.ad = "son-gider-sil", .yap = [](Masa& m) { Kasada(m, u"Bahçe", [&m] { GiderSil(m); }); }},
    {.ad = "kullanici-ekle", .yap = KullaniciEkle},
    {.ad = "kullanici-sil", .yap = KullaniciSil},
    {.ad = "tatil", .yap = TatilKaydet},
    {.ad = "sozlesme", .yap = SozlesmeKaydet},
    {.ad = "firma",
     .yap = FirmaKaydet,
     .degisik = {{"Sunucu.dat", "\"AA-BB-CC-DD-EE-FF\",0\r\n"}},
     .ayri = true}, // the profile, then the firm's key at the service
    {.ad = "sunucu", .yap = SunucuKaydet},
    {.ad = "yedek-ayari", .yap = YedekAyari},
    {.ad = "parola", .yap = ParolaDegistir},
    {.ad = "istekten-kayit",
     .yap = IstektenKayit,
     .degisik = {{"RezTemp.dat", IstekBaytlari()}},
     .disinda = "RezTemp.dat"},
    {.ad = "ilk-kurulum",
     .yap = IlkKurulum,
     .degisik = {{"Firma.dll", ""}, {"User.dll", ""}, {"Sunucu.dat", ""}, {"Salon.dat", ""}},
     .ayri = true, // the profile, the key, the password, the hall
     .yokGibi = {{"User.dll", std::string(kParolasizAdmin)}}},
};

} // namespace

Masa::Masa(const std::filesystem::path& kok, const std::filesystem::path& durum)
    : kullanici(kok, durum, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}) {
    kullanici.ortam.baglanti = false;
    if (std::filesystem::exists(kok / "Firma.dll"))
        kullanici.ProgramiAc();
    else
        kullanici.Baslat();
}

void Masa::EkranBekle(EkranAdi ad, std::function<void()> is) {
    kullanici.ortam.Bekle(test::BeklenenEkran{ad, std::move(is)});
}

void Masa::Soru(const Metin& metin) {
    kullanici.ortam.Bekle(
        test::BeklenenKutu{.baslik = u"Velora", .metin = metin, .simge = Simge::Soru, .cevap = Cevap::Evet});
}

std::span<const Senaryo> Senaryolar() {
    return kSenaryolar;
}

const Senaryo* SenaryoBul(std::string_view ad) {
    for (const Senaryo& senaryo : kSenaryolar)
        if (senaryo.ad == ad)
            return &senaryo;
    return nullptr;
}

} // namespace velora::dayanim
