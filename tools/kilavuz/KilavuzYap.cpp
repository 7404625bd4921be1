#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "tools/kilavuz/ResimGomme.h"

namespace {

using namespace velora::kilavuz;

std::string Oku(const std::filesystem::path& dosya) {
    std::ifstream akis(dosya, std::ios::binary);
    if (!akis)
        throw std::runtime_error(dosya.string() + " can't be read");
    return {std::istreambuf_iterator<char>(akis), {}};
}

void Yaz(const std::filesystem::path& dosya, const std::string& metin) {
    std::ofstream akis(dosya, std::ios::binary);
    if (!(akis << metin).flush())
        throw std::runtime_error(dosya.string() + " can't be written");
}

/// A rule for the build: what the guide is made from.
std::string Kural(const std::filesystem::path& hedef, const TekSayfa& tek) {
    std::string kural = hedef.string() + ":";
    for (const std::filesystem::path& resim : tek.resimler)
        kural += " " + resim.string();
    return kural + "\n";
}

} // namespace

/// KilavuzYap PAGE GUIDE RULE: writes the page with its pictures in it, and of what pictures it is made.
int main(int adet, char** parcalar) {
    if (adet != 4) {
        std::cerr << "usage: KilavuzYap PAGE GUIDE RULE\n";
        return 2;
    }
    try {
        const std::filesystem::path sayfa = parcalar[1];
        const TekSayfa tek = ResimleriGom(Oku(sayfa), sayfa.parent_path());
        Yaz(parcalar[3], Kural(parcalar[2], tek));
        Yaz(parcalar[2], tek.metin);
        return 0;
    } catch (const std::exception& hata) {
        std::cerr << hata.what() << "\n";
        return 1;
    }
}
