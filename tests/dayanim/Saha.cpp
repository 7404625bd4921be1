#include "dayanim/Saha.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

namespace velora::dayanim {

namespace fs = std::filesystem;

namespace {

/// By plain calls: there are hundreds of thousands of such readings.
std::string Bayt(const std::string& yol) {
    std::string bayt;
    const int no = ::open(yol.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat bilgi {};
    if (no >= 0 && ::fstat(no, &bilgi) == 0) {
        bayt.resize(static_cast<std::size_t>(bilgi.st_size));
        bayt.resize(static_cast<std::size_t>(std::max<ssize_t>(0, ::read(no, bayt.data(), bayt.size()))));
    }
    ::close(no);
    return bayt;
}

void BaytKoy(const std::string& yol, const std::string& bayt) {
    const int no = ::open(yol.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    EXPECT_EQ(::write(no, bayt.data(), bayt.size()), static_cast<ssize_t>(bayt.size())) << yol;
    ::close(no);
}

fs::path UstKlasor() {
    const fs::path bellek("/dev/shm");
    return ::access(bellek.c_str(), W_OK | X_OK) == 0 ? bellek : fs::temp_directory_path();
}

fs::path YeniKlasor(const fs::path& ustu) {
    std::random_device rastgele;
    fs::path klasor;
    do
        klasor = (ustu.empty() ? UstKlasor() : ustu) / ("velora-dayanim-" + std::to_string(rastgele()));
    while (!fs::create_directory(klasor));
    return klasor;
}

} // namespace

Saha::Saha(const fs::path& ustu, const fs::path& durumUstu)
    : ust_(YeniKlasor(ustu)), durumUstu_(YeniKlasor(durumUstu)) {
    kok_ = ust_ / fs::path(u"Düğün Salonu ığ");
    durum_ = durumUstu_ / "durum";
    fs::create_directory(kok_);
    fs::create_directory(durum_);
}

Saha::~Saha() {
    std::error_code hata;
    fs::remove_all(ust_, hata);
    fs::remove_all(durumUstu_, hata);
}

const Agac& Saha::Oku() const {
    if (!bilinen_)
        bilinen_ = Oku(kok_);
    return *bilinen_;
}

void Saha::Kur(const Agac& agac) const {
    Yaz(kok_, Oku(), agac);
    bilinen_ = agac;
}

void Saha::Kur(const Senaryo& senaryo) const {
    Kur(BaslangicAgaci(senaryo.degisik));
    DurumKur(ilkDurum);
}

void Saha::Yaz(const fs::path& klasor, const Agac& eski, const Agac& agac) {
    std::vector<std::string> gidenler;
    for (const auto& [yol, bayt] : eski)
        if (!agac.contains(yol))
            gidenler.push_back(yol.substr(0, yol.find_last_not_of('/') + 1));
    for (; !gidenler.empty(); gidenler.pop_back()) // what lies in a folder before the folder
        fs::remove(klasor / gidenler.back());
    for (const auto& [yol, bayt] : agac) {
        const auto yer = eski.find(yol);
        if (yol.ends_with('/'))
            fs::create_directory(klasor / yol.substr(0, yol.size() - 1));
        else if (yer == eski.end() || yer->second != bayt)
            BaytKoy(klasor.string() + "/" + yol, bayt);
    }
}

Agac Saha::Oku(const fs::path& klasor) {
    Agac agac;
    std::vector<std::string> klasorler{""};
    while (!klasorler.empty()) {
        const std::string ust = klasorler.back();
        klasorler.pop_back();
        DIR* akis = ::opendir((klasor.string() + "/" + ust).c_str());
        while (const dirent* oge = akis == nullptr ? nullptr : ::readdir(akis)) {
            const std::string ad = static_cast<const char*>(oge->d_name);
            if (ad == "." || ad == "..")
                continue;
            if (oge->d_type != DT_DIR)
                agac[ust + ad] = Bayt(klasor.string() + "/" + ust + ad);
            else
                agac[klasorler.emplace_back(ust + ad + "/")];
        }
        if (akis != nullptr)
            ::closedir(akis);
    }
    return agac;
}

const Agac& Saha::Baslat() const {
    test::SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    ortam.durumKlasoru = gunluklu ? durum_ : fs::path();
    Program(ortam.Ver(), kok_).GunluguAc();
    Degisti();
    return Oku();
}

} // namespace velora::dayanim
