#include "accounts/KasaListesi.h"

#include "storage/Sayi.h"

namespace velora {

ListeGorunumu KasaListesi(MetinBakis baslik) {
    return {.basliklar = {u"Tarih", u"Tutar", u"İşlem", u"Açıklama"},
            .satirlar = {},
            .sayiSutunlari = {KasaSutunu::Tutar},
            .baslik = Metin(baslik)};
}

void KasaDerleme::Ekle(std::string_view bayt, MetinBakis islem) {
    KasaOku(bayt, kayit_, [&](const KasaKaydi& kayit) {
        if (*kayit.gun >= ilk_ && *kayit.gun <= son_)
            liste_.satirlar.push_back(
                {.sutun = Sutunlar(kayit.tarih, kayit.tutar, islem, kayit.aciklama), .tag = {}});
    });
}

double KasaToplami(const ListeGorunumu& liste, MetinBakis islem) {
    double toplam = 0;
    for (const ListeSatiri& satir : liste.satirlar)
        if (satir.sutun[KasaSutunu::Islem] == islem)
            toplam += TutarDegeri(satir.sutun[KasaSutunu::Tutar]);
    return toplam;
}

} // namespace velora
