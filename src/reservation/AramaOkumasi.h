#pragma once

#include <array>

#include "storage/RezervasyonDosyalari.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The values of a record that a search looks at, by their number in the file.
inline constexpr std::array<int, 5> kAramaNumaralari{AnaNo::AdiSoyadi, AnaNo::GelinDamat, AnaNo::Telefon,
                                                     AnaNo::Cep, AnaNo::SozlesmeNo};

/// These values, in this order, as the variables of a search hold them.
using AramaDegerleri = std::array<Metin, kAramaNumaralari.size()>;

/// The folder of a hall and year in which a search opens names, as often as it likes: it is listed once.
class AramaOkumasi {
  public:
    /// A folder that isn't there gives an empty reading.
    AramaOkumasi(const Dosyalar& dosyalar, const Metin& klasor) : okuma_(dosyalar.KlasorAc(klasor)) {}

    const KlasorOkumasi& Adlar() const { return okuma_; }

    /// What opening the file of this name leaves in the variables: it fills those whose values the file
    /// holds, in order, and leaves the rest as they were. False when it fills none; a file that isn't in the
    /// folder or can't be opened does so too.
    ///
    /// Names that are asked for in the order of the listing are found at once.
    bool Oku(MetinBakis ad, AramaDegerleri& hedef);

    /// The same of the name at this place of its own listing.
    bool Oku(std::size_t sira, AramaDegerleri& hedef);

  private:
    KlasorOkumasi okuma_;
    std::size_t siradaki_ = 0; // behind the one that was found last
};

} // namespace velora
