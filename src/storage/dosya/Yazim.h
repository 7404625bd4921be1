#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// How the text of one file comes to the disk and from it, by the file's own path. Nothing here checks a
/// path. `yer` is for tests: the room that is left on the disk, in bytes.
namespace velora::yazim {

using Yer = std::optional<std::size_t>;

/// Makes the file hold exactly these bytes, as `Dosyalar::Yaz` says.
bool Yaz(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer = {});

/// Makes a file that isn't there yet, as `Dosyalar::Yarat` says.
bool Yarat(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer = {});

/// Puts the bytes at the end of the file, as `Dosyalar::Ekle` says.
bool Ekle(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer = {});

struct Okunan {
    bool okundu = false;              ///< false: it is there and can't be read, or nobody can tell
    std::optional<std::string> metin; ///< nothing when it isn't there
};

/// The whole file.
Okunan Oku(const std::filesystem::path& yol);

} // namespace velora::yazim
