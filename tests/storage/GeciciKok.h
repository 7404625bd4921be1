#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <string>

#include "storage/dosya/Dosyalar.h"

namespace velora::test {

/// A root of its own for one test, in a folder whose name has blanks and Turkish letters. It goes with the
/// object.
struct GeciciKok {
    std::filesystem::path disi = YeniKlasor(); ///< the folder above the root, empty but for the root
    std::filesystem::path yol = disi / std::filesystem::path(u"Düğün Salonu ığş");
    Dosyalar dosyalar{(std::filesystem::create_directory(yol), yol)};

    GeciciKok() = default;
    GeciciKok(const GeciciKok&) = delete;
    GeciciKok& operator=(const GeciciKok&) = delete;
    ~GeciciKok() {
        std::error_code hata;
        std::filesystem::remove_all(disi, hata);
    }

    /// The path of a file in the root, as the system names it.
    Metin Yol(MetinBakis ad) const { return dosyalar.Kok() + u"\\" + Metin(ad); }

    // The disk itself, past the code under test.
    std::filesystem::path Ham(MetinBakis ad) const { return yol / std::filesystem::path(Metin(ad)); }
    void HamYaz(MetinBakis ad, const std::string& bayt) const {
        std::ofstream(Ham(ad), std::ios::binary | std::ios::trunc) << bayt;
    }
    std::optional<std::string> HamOku(MetinBakis ad) const {
        std::ifstream akis(Ham(ad), std::ios::binary);
        if (!akis)
            return {};
        return std::string(std::istreambuf_iterator<char>(akis), {});
    }
    bool HamVar(MetinBakis ad) const { return std::filesystem::exists(Ham(ad)); }
    void KlasorYap(MetinBakis ad) const { std::filesystem::create_directories(Ham(ad)); }

  private:
    static std::filesystem::path YeniKlasor() {
        std::random_device rastgele;
        for (;;) {
            auto aday = std::filesystem::temp_directory_path() / ("velora-" + std::to_string(rastgele()));
            if (std::filesystem::create_directory(aday))
                return aday;
        }
    }
};

} // namespace velora::test
