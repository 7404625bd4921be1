#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velora::kilavuz {

/// A page that needs no other file.
struct TekSayfa {
    std::string metin;
    std::vector<std::filesystem::path> resimler; ///< whose bytes stand in it, in the order of the page
};

/// Puts the pictures that a page shows into it. They are PNG files, named by their way from `klasor`. Throws
/// std::runtime_error when one can't be read.
TekSayfa ResimleriGom(const std::string& sayfa, const std::filesystem::path& klasor);

} // namespace velora::kilavuz
