#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace velora::test {

/// What a reader found in a cell: nothing, a text in UTF-8, or a number.
using XlsHucresi = std::variant<std::monostate, std::string, double>;

using XlsSatirlari = std::vector<std::vector<XlsHucresi>>;

struct XlsBasligi {
    bool kalin = false;
    std::string zemin; ///< "FFFF00", or "-" for none
    bool sagda = false;
};

struct OkunanSayfa {
    std::string ad;
    XlsSatirlari satirlar; ///< each as long as its last cell that isn't empty
    // What only `XlrdOku` tells:
    std::vector<XlsBasligi> basliklar{};
    std::vector<int> enler{}; ///< of the columns, in 256ths of a digit
    std::map<std::pair<std::size_t, std::size_t>, std::string> sayiBicimleri{}; ///< by row and column
};

/// All sheets of a file. A reader that finds fault with the file, or isn't there, fails the test.
std::vector<OkunanSayfa> FreeXlOku(const std::filesystem::path& yol);
std::vector<OkunanSayfa> XlrdOku(const std::filesystem::path& yol);

/// A row of texts.
std::vector<XlsHucresi> MetinSatiri(const std::vector<std::string>& metinler);

} // namespace velora::test
