#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/dosya/AdListesi.h"
#include "storage/dosya/Sistem.h"

namespace velora {

/// The clock of the system, which files get their times from.
using SistemAni = std::chrono::sys_time<std::chrono::nanoseconds>;

/// What was read of one folder. The names are those of the last listing. The bytes of a file are kept as long
/// as the system tells the same of it as before they were read (`sistem::Kimlik`); but what had been written
/// so shortly before that another write might bear the same time is never kept.
class KlasorBellegi {
  public:
    explicit KlasorBellegi(std::filesystem::path klasor) : klasor_(std::move(klasor)) {}

    const std::filesystem::path& Klasor() const { return klasor_; }

    /// Takes the names that stand there now, and forgets what is gone.
    void Listele(sistem::Klasor& acik);

    const AdListesi& Adlar() const { return adlar_; }

    /// The bytes that are kept of a file, by its place among the names, where the system says that it is as
    /// it was. They last until the next one is kept.
    std::optional<std::string_view> Hatirla(const sistem::Klasor& acik, std::size_t sira) const;

    /// Keeps what was read of a file after `an`, which was `kimlik` before it was read. False: it isn't kept.
    bool Sakla(std::size_t sira, std::string_view bayt, const sistem::Kimlik& kimlik, SistemAni an);

    /// Forgets one, whatever the system says of it.
    void Unut(sistem::DiskAdi ad);

    /// Whether the bytes of any file are kept.
    bool Bos() const { return saklanan_ == 0; }
    /// What it holds in memory.
    std::size_t Bayt() const;

  private:
    struct Kayit {
        sistem::Kimlik kimlik = {};
        std::uint32_t bas = 0; ///< in `baytlar_`
        std::uint32_t uzunluk = 0;
        bool var = false;
    };

    void AdlariDegistir(AdListesi yeni);
    void Birak(Kayit& kayit);
    void Sikistir();

    std::filesystem::path klasor_;
    AdListesi adlar_;
    std::vector<Kayit> kayitlar_; // by the places of the names
    std::string baytlar_;         // of all that are kept, and of some that aren't any more
    std::size_t saklanan_ = 0;    // files
    std::size_t kullanilan_ = 0;  // bytes of them
};

} // namespace velora
