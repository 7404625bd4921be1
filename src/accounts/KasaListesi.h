#pragma once

#include "screen/Kontroller.h"
#include "storage/KasaKayitlari.h"

namespace velora {

inline constexpr MetinBakis kGelir = u"Gelir";
inline constexpr MetinBakis kGider = u"Gider";

/// The columns of a list of cash.
struct KasaSutunu {
    enum No : std::size_t { Tarih, Tutar, Islem, Aciklama };
};

/// A list of cash: its headings, and its amounts to the right.
ListeGorunumu KasaListesi(MetinBakis baslik);

/// Gathers the rows of a listing from one file after the other. The record read last goes from file to file:
/// it is listed once more for an empty one, as what that file holds.
class KasaDerleme {
  public:
    /// The days are inclusive.
    KasaDerleme(ListeGorunumu& liste, const Gun& ilk, const Gun& son) : liste_(liste), ilk_(ilk), son_(son) {}

    void Ekle(std::string_view bayt, MetinBakis islem);

  private:
    ListeGorunumu& liste_;
    Gun ilk_;
    Gun son_;
    KasaKaydi kayit_;
};

/// What the rows of this kind come to.
double KasaToplami(const ListeGorunumu& liste, MetinBakis islem);

} // namespace velora
