#pragma once

#include <initializer_list>
#include <span>

#include "online/Adresler.h"

namespace velora {

/// What the service and the product site can be asked: one name for each script.
enum class Istek {
    InternetKontrol,
    Yayindami,
    FirmaKontrol,
    Duyuru,
    Duyurular,
    DuyuruOkundu,
    RezKontrol,
    RezOkundu,
    RezSil,
    Temizle,
    SalonEkle,
    Save,
    OneriKaydet,
    Versiyon,
};

struct IstekTanimi {
    Istek istek;
    Metin Adresler::*yer; ///< where the script lies
    MetinBakis betik;
    std::span<const MetinBakis> anahtarlar; ///< of the query, in their order
};

/// All of them, in the order of `Istek`.
std::span<const IstekTanimi> Istekler();

/// The address of a request: its place, a "/" where that doesn't end with one, the script, "?" and the query,
/// the values as they stand, one for each key. Empty without a place: then nothing is asked.
Metin IstekAdresi(const Program& program, Istek istek, std::span<const Metin> degerler);
Metin IstekAdresi(const Program& program, Istek istek, std::initializer_list<Metin> degerler = {});
/// The same for who has read the places already.
Metin IstekAdresi(const Adresler& adresler, Istek istek, std::initializer_list<Metin> degerler);

} // namespace velora
