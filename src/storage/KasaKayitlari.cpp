#include "storage/KasaKayitlari.h"

#include <utility>

#include "storage/YazimBicimi.h"

namespace velora {

namespace {

struct KasaTarihi {
    std::optional<Gun> gun;
    Metin metin;
};

/// A literal is shown as all other dates are, a text as it stands.
KasaTarihi KasaTarihiCoz(Metin metin) {
    if (const auto gun = TarihDegeriCoz(metin))
        return {gun, TarihMetni(*gun)};
    const auto gun = TarihCoz(metin);
    return {gun, std::move(metin)};
}

} // namespace

void KasaOku(std::string_view bayt, KasaKaydi& kayit, const std::function<void(const KasaKaydi&)>& ver) {
    DegerOkuyucu okuyucu(bayt);
    // An empty file takes one turn, too.
    do {
        Metin tarih;
        if (okuyucu.Oku(tarih)) {
            Metin tutar;
            Metin aciklama;
            const bool tutarVar = okuyucu.Oku(tutar);
            const bool aciklamaVar = okuyucu.Oku(aciklama);
            KasaTarihi cozulen = KasaTarihiCoz(std::move(tarih));
            if (cozulen.gun) {
                kayit.gun = cozulen.gun;
                kayit.tarih = std::move(cozulen.metin);
                if (tutarVar)
                    kayit.tutar = std::move(tutar);
                if (aciklamaVar)
                    kayit.aciklama = std::move(aciklama);
            }
        }
        if (kayit.gun)
            ver(kayit);
    } while (!okuyucu.Sonda());
}

std::string GiderBayt(const Gun& gun, MetinBakis tutar, MetinBakis aciklama) {
    DegerYazici yazici;
    yazici.Yaz(gun, tutar, aciklama);
    return yazici.Bayt();
}

} // namespace velora
