#pragma once

#include <optional>
#include <vector>

#include "storage/Metin.h"

namespace velora {

/// A pattern, taken apart once and then held against many texts. The whole text must have its form, letter by
/// letter with regard to case. In a pattern
///
/// - `*` stands for any run of characters, also for none; `?` for any one; `#` for one digit, 0 to 9;
/// - `[list]` for one character of the list, `[!list]` for one that isn't in it. "a-f" in a list is the range
///   from a to f by character code; a "-" at either end of a list is itself. `[]` stands for nothing, `[!]`
///   for a "!".
/// - Anything else stands for itself, a "]" without a list too.
///
/// A malformed pattern, with a list that never ends or a range that runs backwards, fits no text.
class HazirDesen {
  public:
    explicit HazirDesen(MetinBakis desen);

    bool Uyar(MetinBakis metin) const;

    /// For tests: how many patterns have been taken apart so far.
    static std::size_t Cozulen() { return Sayac(); }

  private:
    struct Aralik {
        char16_t ilk;
        char16_t son;
    };
    /// What stands for one character of the text, or `*`.
    struct Oge {
        bool yildiz = false;
        bool disinda = false; ///< one that lies in none of the ranges
        std::vector<Aralik> araliklar;

        bool Uyar(char16_t harf) const;
    };
    using Ogeler = std::vector<Oge>;

    static Oge TekHarf(char16_t harf);
    static bool ListeEkle(MetinBakis liste, Ogeler& ogeler);
    static std::optional<Ogeler> Coz(MetinBakis desen);
    static std::optional<Metin> Parcasi(MetinBakis desen);
    static std::size_t& Sayac();

    std::optional<Ogeler> ogeler_; // none: malformed
    std::optional<Metin> parca_;   // all that it asks is that this stands somewhere in the text
};

} // namespace velora
