#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "storage/Metin.h"

namespace velora::test {

/// A program folder of its own for one test, gone when the test ends. Its name has blanks and Turkish letters
/// in it. Files are put and taken as bytes by the standard library, not through the module under test.
class GeciciAgac {
  public:
    GeciciAgac();
    ~GeciciAgac();
    GeciciAgac(const GeciciAgac&) = delete;
    GeciciAgac& operator=(const GeciciAgac&) = delete;

    const std::filesystem::path& Kok() const { return kok_; }
    /// The folder above the root, empty but for the root.
    const std::filesystem::path& Disi() const { return disi_; }

    /// A path below the root; `yol` has "/" between its names.
    std::filesystem::path Yol(MetinBakis yol) const;

    /// Puts a file with these bytes, and the folders above it.
    void Koy(MetinBakis yol, std::string_view bayt) const;
    /// The same with a text, which the file holds in Windows-1254.
    void KoyMetin(MetinBakis yol, MetinBakis metin) const;
    void KlasorKoy(MetinBakis yol) const;
    /// The bytes of a file, none also when it isn't there.
    std::string Bayt(MetinBakis yol) const;
    /// The same, with nothing when it isn't there.
    std::optional<std::string> Oku(MetinBakis yol) const;
    /// Whether there is anything of this name.
    bool Var(MetinBakis yol) const;
    bool DosyaVar(MetinBakis yol) const;
    bool KlasorVar(MetinBakis yol) const;

    /// Waits until the disk gives a file another time than it gave any before.
    void YeniAn() const;

    /// The whole tree as text: each file's path below the root and its bytes. Two equal answers: nothing
    /// changed.
    std::string Resim() const;

  private:
    std::filesystem::path disi_;
    std::filesystem::path kok_;
};

} // namespace velora::test
