#pragma once

#include <array>
#include <vector>

#include "storage/RezervasyonDosyalari.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The values of a record that a search looks at, by their number in the file.
inline constexpr std::array<int, 5> kAramaNumaralari{AnaNo::AdiSoyadi, AnaNo::GelinDamat, AnaNo::Telefon,
                                                     AnaNo::Cep, AnaNo::SozlesmeNo};

/// These values, in this order, as the variables of a search hold them.
using AramaDegerleri = std::array<Metin, kAramaNumaralari.size()>;

/// One pass over a folder: it is listed once and the first values of each file are read once, so that a
/// search can then open any name in it as often as it likes.
class AramaOkumasi {
  public:
    /// A folder that isn't there gives an empty reading.
    AramaOkumasi(const Dosyalar& dosyalar, const Metin& klasor);

    /// What opening the file of this name leaves in the variables: it fills those whose values the file
    /// holds, in order, and leaves the rest as they were. False when it fills none; a file that isn't in the
    /// folder or can't be opened does so too.
    ///
    /// Names that are asked for in the order of the listing are found at once.
    bool Oku(MetinBakis ad, AramaDegerleri& hedef);

  private:
    struct Dosya {
        Metin ad;
        std::size_t adet; ///< of the values that the file holds
        AramaDegerleri deger;
    };
    const Dosya* Bul(MetinBakis ad);

    std::vector<Dosya> dosyalari_; // in the order of the listing
    std::size_t siradaki_ = 0;     // behind the one that was found last
};

} // namespace velora
