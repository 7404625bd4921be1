// The layers under the reservations: heads, free days, weekends, the shape of the months, holidays.
#include "maintenance/FormResmiTatil.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Sayi.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

constexpr std::size_t kTakvimAdiEnUzun = 5; // a longer caption is no weekday: the date came back unchanged

void Boya(Hucre& hucre, const FormAyarlar& ayarlar, const RenkCifti& renk) {
    hucre.zemin = ayarlar.Renk(renk.zemin);
    hucre.yazi = ayarlar.Renk(renk.yazi);
}

} // namespace

void FormTablo::Command3() {
    const auto ayarlar = program_.FormAyarlar.Tut();
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        AyZemin[ay].zemin = ayarlar->Renk(kBaslikRengi.zemin);
        AyAdi[ay].yazi = ayarlar->Renk(kBaslikRengi.yazi);
    }
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        Gunler[gun].zemin = ayarlar->Renk(kBaslikRengi.zemin);
        ALabel[gun].yazi = ayarlar->Renk(kBaslikRengi.yazi);
    }
    const Metin yil = Sene.Metni();
    for (int ay = 1; ay <= kAySayisi; ++ay)
        for (int gun = 1; gun <= kGunSayisi; ++gun) {
            const Metin gunAdi = Bicimle(
                IkiHane(static_cast<unsigned>(gun)) + AyEki(static_cast<unsigned>(ay)) + yil, u"dddd");
            const bool haftaSonu = gunAdi == u"Cumartesi" || gunAdi == u"Pazar";
            for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece}) {
                const SatirRenkleri& renkler = Renkler(dilim);
                Boya(Gozu(ay, dilim, gun), *ayarlar, haftaSonu ? renkler.haftaSonu : renkler.bos);
            }
        }
}

void FormTablo::Command4() {
    const auto ayarlar = program_.FormAyarlar.Tut();
    const Metin yil = Sene.Metni();
    for (int ay = 1; ay <= kAySayisi; ++ay)
        for (int gun = 1; gun <= kGunSayisi; ++gun) {
            Metin gunAdi;
            if (ayarlar->AyGorunur(ay))
                gunAdi = Kirp(Bicimle(SayiMetni(gun) + AyEki(static_cast<unsigned>(ay)) + yil, u"ddd"));
            const bool takvimde = !gunAdi.empty() && gunAdi.size() <= kTakvimAdiEnUzun;
            for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece}) {
                Hucre& hucre = Gozu(ay, dilim, gun);
                hucre.gorunur = takvimde;
                hucre.baslik = takvimde ? gunAdi : Metin();
            }
        }
    AyBasliklariniGoster();
}

void FormTablo::Command5() {
    if (program_.FormAyarlar->Check5.deger == 0)
        return;
    for (TabloSatiri& satir : satirlar)
        for (Hucre& hucre : satir.gun)
            hucre.ipucu.clear();
    program_.OlaylariIsle();
    const auto ayarlar = program_.FormAyarlar.Tut();
    const auto tatiller = program_.FormResmiTatil.Tut();
    const Metin yil = Sene.Metni();
    // Yearly rows first, whatever the order of the list.
    for (const MetinBakis tekrar : {MetinBakis(u"Evet"), MetinBakis(u"Hayır")})
        for (const ListeSatiri& tatil : tatiller->Liste.satirlar) {
            const Metin& tarih = tatil.sutun[0];
            if (tatil.sutun[2] != tekrar || (tekrar == u"Hayır" && Parca(tarih, 7, 4) != yil))
                continue;
            const int gun = static_cast<int>(SayisalDeger(Parca(tarih, 1, 2)));
            for (int ay = 1; ay <= kAySayisi; ++ay) {
                if (Parca(tarih, 4, 2) != IkiHane(static_cast<unsigned>(ay)) || gun < 1 || gun > kGunSayisi)
                    continue;
                for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece}) {
                    Hucre& hucre = Gozu(ay, dilim, gun);
                    Boya(hucre, *ayarlar, kTatilRengi);
                    hucre.ipucu = tatil.sutun[1];
                }
            }
        }
}

} // namespace velora
