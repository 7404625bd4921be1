#include "destek/GeciciAgac.h"

#include <fstream>
#include <iterator>
#include <map>
#include <random>

#include "storage/KodSayfasi.h"

namespace velora::test {

namespace fs = std::filesystem;

GeciciAgac::GeciciAgac() {
    std::random_device rastgele;
    do
        kok_ = fs::temp_directory_path() /
               fs::path(u"Düğün Salonu " + SayiMetni(rastgele()) + u" ığüşöç İĞÜŞÖÇ");
    while (!fs::create_directory(kok_));
}

GeciciAgac::~GeciciAgac() {
    std::error_code hata;
    fs::remove_all(kok_, hata);
}

fs::path GeciciAgac::Yol(MetinBakis yol) const {
    return kok_ / fs::path(Metin(yol));
}

void GeciciAgac::Koy(MetinBakis yol, std::string_view bayt) const {
    fs::create_directories(Yol(yol).parent_path());
    std::ofstream(Yol(yol), std::ios::binary) << bayt;
}

void GeciciAgac::KoyMetin(MetinBakis yol, MetinBakis metin) const {
    Koy(yol, KodYaz(metin));
}

void GeciciAgac::KlasorKoy(MetinBakis yol) const {
    fs::create_directories(Yol(yol));
}

std::string GeciciAgac::Bayt(MetinBakis yol) const {
    std::ifstream dosya(Yol(yol), std::ios::binary);
    return {std::istreambuf_iterator<char>(dosya), {}};
}

bool GeciciAgac::DosyaVar(MetinBakis yol) const {
    return fs::is_regular_file(Yol(yol));
}

bool GeciciAgac::KlasorVar(MetinBakis yol) const {
    return fs::is_directory(Yol(yol));
}

std::string GeciciAgac::Resim() const {
    std::map<std::string, std::string> dosyalar;
    for (const auto& oge : fs::recursive_directory_iterator(kok_)) {
        std::string& bayt = dosyalar[fs::relative(oge.path(), kok_).string()];
        if (!oge.is_regular_file())
            continue;
        std::ifstream dosya(oge.path(), std::ios::binary);
        bayt.assign(std::istreambuf_iterator<char>(dosya), {});
    }
    std::string resim;
    for (const auto& [ad, bayt] : dosyalar)
        resim += ad + '\n' + bayt + '\n';
    return resim;
}

} // namespace velora::test
