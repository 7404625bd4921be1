#include <algorithm>
#include <vector>

#include "dayanim/Isler.h"
#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "storage/KodSayfasi.h"

namespace velora::dayanim {
namespace {

void KisaYaz(Masa& m, int sira) {
    KayitDuzenle(m, kIkiOdemeli, [&m, sira] {
        Gir(m, AnaNo::AdiSoyadi, sira % 2 == 1 ? u"ali osman ustaoğlu" : u"ali usta");
        Gir(m, AnaNo::Yoresi, sira % 2 == 1 ? u"of" : u"sürmene");
        test::Tikla(Kayit(m).Check[3]);
    });
}

void UzunDegistir(Masa& m, const TabloGozu& goz, MetinBakis soz, std::size_t odeme) {
    KayitDuzenle(m, goz, [&m, soz, odeme] {
        Gir(m, AnaNo::AdiSoyadi, Metin(soz));
        while (!Kayit(m).Liste.satirlar.empty())
            Kayit(m).Liste.satirlar.erase(0);
        UzunYaz(m, soz, static_cast<int>(odeme));
    });
}

void TasiVeGeriAl(Masa& m, int sira) {
    TasimaAc(m);
    if (sira % 2 == 1)
        Tasi(m, kUzunKayit, kBosGun);
    else
        Tasi(m, kBosGun, kUzunKayit);
}

void MenuEkleVeSil(Masa& m, int sira) {
    if (sira % 2 == 1)
        MenuYaz(m, u"saray", UzunMetin(6400, u"tabak"), true);
    else
        MenuSil(m, 2);
}

void KayitVeIptal(Masa& m, int sira) {
    if (sira % 2 == 1)
        YeniKayit(m, [&m] { OdemeAl(m, u"1200"); });
    else
        Iptal(m, kBosGun);
}

const std::vector<Tekrar>& TekrarTablosu() {
    static const std::vector<Tekrar> tekrarlar{
        {.ad = "kisa", .yap = KisaYaz},
        {.ad = "uzun",
         .yap =
             [](Masa& m, int sira) {
                 UzunDegistir(m, kUzunKayit, sira % 2 == 1 ? u"bir" : u"ikinci", sira % 2 == 1 ? 200 : 120);
             }},
        {.ad = "tasima", .yap = TasiVeGeriAl},
        {.ad = "ayarlar", .yap = [](Masa& m, int) { Ayarlar(m); }},
        {.ad = "menu", .yap = MenuEkleVeSil},
        {.ad = "kayit-iptal",
         .yap = KayitVeIptal,
         .degisik = {{"Settings.dll", KodYaz(test::AyarMetni(33, u"1"))}}, // numbers aren't given out
         .uzayan = "IptalSebep.txt"},
        // Two desks at one record.
        {.ad = "masa-bir", .yap = [](Masa& m, int) { UzunDegistir(m, kUzunKayit, u"bir", 190); }},
        {.ad = "masa-iki", .yap = [](Masa& m, int) { UzunDegistir(m, kUzunKayit, u"öteki", 230); }},
    };
    return tekrarlar;
}

} // namespace

std::span<const Tekrar> Tekrarlar() {
    return TekrarTablosu();
}

const Tekrar* TekrarBul(std::string_view ad) {
    const auto yer = std::ranges::find(TekrarTablosu(), ad, &Tekrar::ad);
    return yer == TekrarTablosu().end() ? nullptr : &*yer;
}

} // namespace velora::dayanim
