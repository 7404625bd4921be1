#include "tools/kilavuz/ResimGomme.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace velora::kilavuz {

namespace {

constexpr std::string_view kKaynak = "src=\"";
constexpr std::string_view kGomulu = "data:image/png;base64,";

std::string Baytlar(const std::filesystem::path& dosya) {
    std::ifstream akis(dosya, std::ios::binary);
    if (!akis)
        throw std::runtime_error(dosya.string() + " can't be read");
    return {std::istreambuf_iterator<char>(akis), {}};
}

std::string Base64(std::string_view baytlar) {
    constexpr std::string_view kHarfler = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t kUclu = 3;
    constexpr unsigned kAltiBit = 63;
    std::string metin;
    metin.reserve((baytlar.size() + 2) / kUclu * 4);
    for (std::size_t yer = 0; yer < baytlar.size(); yer += kUclu) {
        const std::string_view parca = baytlar.substr(yer, kUclu);
        unsigned bitler = 0;
        for (std::size_t i = 0; i < kUclu; ++i)
            bitler = bitler << 8U | (i < parca.size() ? static_cast<unsigned char>(parca[i]) : 0U);
        for (std::size_t i = 0; i <= kUclu; ++i)
            metin += i <= parca.size() ? kHarfler[bitler >> (6 * (kUclu - i)) & kAltiBit] : '=';
    }
    return metin;
}

} // namespace

TekSayfa ResimleriGom(const std::string& sayfa, const std::filesystem::path& klasor) {
    TekSayfa tek;
    std::size_t kopyalanan = 0;
    for (std::size_t yer = sayfa.find(kKaynak); yer != std::string::npos; yer = sayfa.find(kKaynak, yer)) {
        yer += kKaynak.size();
        const std::size_t son = sayfa.find('"', yer);
        if (son == std::string::npos)
            throw std::runtime_error("the page ends within the name of a picture");
        tek.resimler.push_back(klasor / sayfa.substr(yer, son - yer));
        tek.metin.append(sayfa, kopyalanan, yer - kopyalanan).append(kGomulu);
        tek.metin += Base64(Baytlar(tek.resimler.back()));
        kopyalanan = yer = son;
    }
    tek.metin.append(sayfa, kopyalanan);
    return tek;
}

} // namespace velora::kilavuz
