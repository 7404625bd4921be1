#include "access/Yetkiler.h"

#include "storage/Sayi.h"

namespace velora {

namespace {

/// The numbers of the buttons are meant as they stand: the right to the settings takes "Yayınla" away, that
/// to the halls " Ayarlar ".
constexpr std::array<Yetki, kYetkiSayisi> kYetkiler{{
    {.baslik = u"Rezervasyon raporu alabilsin",
     .yol = {.girdi = u"BakiyeRaporss", .cizgi = u"aline1", .arac = 3}},
    {.baslik = u"Rezervasyon iptali yapabilsin", .yol = {.girdi = u"iptals", .cizgi = u"aline12"}},
    {.baslik = u"Yeni rezervasyon açabilsin",
     .yol = {.girdi = u"newkay", .cizgi = u"aline11"},
     .degisir = false},
    {.baslik = u"Sözleşme ayarlarını değiştirebilsin", .yol = {.girdi = u"Sozduzenss", .cizgi = u"aline4"}},
    {.baslik = u"Program ayarlarını değiştirebilsin",
     .yol = {.girdi = u"Progrset", .cizgi = u"aline9", .arac = 11}},
    {.baslik = u"Salon tanımı yapabilsin", .yol = {.girdi = u"Salontanimss", .cizgi = u"aline4", .arac = 13}},
    {.baslik = u"Resmi tatil veya özel gün ekleyebilsin",
     .yol = {.girdi = u"ResTatilss", .cizgi = u"firmcizgi"}},
    {.baslik = u"Rezervasyonları taşıyabilsin", .yol = {.girdi = u"TasimaModuAc", .cizgi = u"aline11"}},
    {.baslik = u"Rezervasyon ücretlerini değiştirebilsin", .tutar = true},
    {.baslik = u"rezerve", .varsayilan = false, .gorunur = false},
    {.baslik = u"Kasa raporu alabilsin", .yol = {.girdi = u"kasarapors", .cizgi = u"aline1", .arac = 5}},
}};

} // namespace

std::span<const Yetki, kYetkiSayisi> Yetkiler() {
    return kYetkiler;
}

double YetkiDegeri(const ListeSatiri& kullanici, int no) {
    return SayisalDeger(Kirp(kullanici.sutun.at(KullaniciNo::IlkYetki + static_cast<std::size_t>(no - 1))));
}

void YetkileriUygula(Oturum& oturum, const ListeSatiri& kullanici) {
    int no = 0;
    for (const Yetki& yetki : kYetkiler) {
        const bool var = YetkiDegeri(kullanici, ++no) != 0;
        if (yetki.tutar)
            oturum.TutarDegistir = var ? 1 : 0;
        if (!var)
            oturum.Kapat(yetki.yol);
    }
}

} // namespace velora
