#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "storage/Metin.h"
#include "storage/dosya/Gozcu.h"
#include "storage/dosya/Sistem.h"

namespace velora {

/// Where the names of a path lie on a file system that tells case apart.
///
/// A name that is there to the letter is taken, and costs no listing. Otherwise the folder is looked through
/// for one that `AdAnahtari` takes for the same; of several the first in the order of listings. Where none
/// fits, the name stands as it is: that is the file or folder to be made.
///
/// Listings are kept as long as their folder tells that nothing in it has changed. One of very many names, as
/// when each of its halls gets its folder, is watched from its second listing on where the system can do
/// that: then only what has changed is asked about.
class AdArama {
  public:
    /// The last name stands for a file or a folder, those before it for folders. What is of another kind
    /// counts as not there.
    std::filesystem::path Coz(const std::filesystem::path& kok,
                              const std::vector<std::filesystem::path>& adlar, sistem::Tur tur);

    /// Whether the last `Coz` could list each folder that it had to. Otherwise a name that it left as it
    /// stands may be there all the same, in another spelling.
    bool Tam() const { return tam_; }

    /// Whether what the last `Coz` gave is there. Otherwise it stands as the path had it.
    bool Bulundu() const { return bulundu_; }

    /// How many folders have been listed so far.
    std::size_t Listelenen() const { return listelenen_; }

  private:
    using Adlar = std::unordered_multimap<Metin, std::filesystem::path::string_type>; // by `AdAnahtari`
    struct Icerik {
        std::optional<std::filesystem::file_time_type> degisim; ///< none: must be listed again
        Adlar adlar;
    };

    using Anahtar = std::pair<std::filesystem::path, sistem::Tur>;

    std::optional<std::filesystem::path> Bul(const Anahtar& klasor, const std::filesystem::path& ad);
    const Adlar& Listesi(const Anahtar& klasor);
    bool IzlenenTaze(const Anahtar& klasor);
    void YerAc();

    std::map<Anahtar, Icerik> icerikler_;
    sistem::Gozcu gozcu_;
    std::optional<Anahtar> izlenen_; // what it watches
    std::size_t listelenen_ = 0;
    bool tam_ = true;
    bool bulundu_ = false;
};

} // namespace velora
