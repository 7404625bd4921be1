#include "destek/GeciciAgac.h"

#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <thread>

#include "storage/KodSayfasi.h"

namespace velora::test {

namespace fs = std::filesystem;

GeciciAgac::GeciciAgac() {
    std::random_device rastgele;
    do
        disi_ = fs::temp_directory_path() / ("velora-" + std::to_string(rastgele()));
    while (!fs::create_directory(disi_));
    kok_ = disi_ / fs::path(u"Düğün Salonu ığüşöç İĞÜŞÖÇ");
    fs::create_directory(kok_);
}

GeciciAgac::~GeciciAgac() {
    std::error_code hata;
    fs::remove_all(disi_, hata);
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
    return Oku(yol).value_or("");
}

std::optional<std::string> GeciciAgac::Oku(MetinBakis yol) const {
    std::ifstream dosya(Yol(yol), std::ios::binary);
    if (!dosya)
        return {};
    return std::string(std::istreambuf_iterator<char>(dosya), {});
}

bool GeciciAgac::Var(MetinBakis yol) const {
    return fs::exists(Yol(yol));
}

bool GeciciAgac::DosyaVar(MetinBakis yol) const {
    return fs::is_regular_file(Yol(yol));
}

bool GeciciAgac::KlasorVar(MetinBakis yol) const {
    return fs::is_directory(Yol(yol));
}

void GeciciAgac::YeniAn() const {
    const fs::path saat = disi_ / "saat";
    const auto yaz = [&] {
        std::ofstream(saat) << 'x';
        return fs::last_write_time(saat);
    };
    for (const auto once = yaz(); yaz() == once;)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
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
