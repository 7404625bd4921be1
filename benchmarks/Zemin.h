#pragma once

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velora::olcum {

/// How long the work takes, in seconds.
inline double Saniye(const std::function<void()>& is) {
    const auto bas = std::chrono::steady_clock::now();
    is();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - bas).count();
}

inline double Ortanca(std::vector<double> sureler) {
    std::nth_element(sureler.begin(), sureler.begin() + static_cast<std::ptrdiff_t>(sureler.size() / 2),
                     sureler.end());
    return sureler[sureler.size() / 2];
}

/// What a benchmark has come to, and the most that it may: `scripts/speed` tells what is over it.
inline void OlcuYaz(benchmark::State& durum, const std::string& ad, double olculen, double enCok) {
    durum.counters[ad] = olculen;
    durum.counters["en_cok_" + ad] = enCok;
}
inline void OranYaz(benchmark::State& durum, double oran, double enCok) {
    OlcuYaz(durum, "oran", oran, enCok);
}

/// The floor: one listing of the folder plus open, read and close of each of its files that is wanted once,
/// nothing decoded.
/// Returns how many files it read.
inline int Zemin(const std::filesystem::path& klasor, bool (*istenen)(std::string_view ad) = nullptr) {
    static std::array<char, 1 << 16> tampon;
    std::vector<std::string> adlar;
    DIR* dizin = opendir(klasor.c_str());
    if (dizin == nullptr)
        return 0;
    while (const dirent* oge = readdir(dizin))
        if (oge->d_type == DT_REG && (istenen == nullptr || istenen(oge->d_name)))
            adlar.emplace_back(oge->d_name);
    for (const std::string& ad : adlar) {
        const int dosya = openat(dirfd(dizin), ad.c_str(), O_RDONLY | O_CLOEXEC);
        benchmark::DoNotOptimize(read(dosya, tampon.data(), tampon.size()));
        close(dosya);
    }
    closedir(dizin);
    return static_cast<int>(adlar.size());
}

} // namespace velora::olcum
