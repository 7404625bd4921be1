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
/// as the system tells the same of it as before they were read (`sistem::Kimlik`). What is read for the first
/// time isn't asked about: there the system must say at the second reading that nothing has touched the file
/// since before the first.
class KlasorBellegi {
  public:
    explicit KlasorBellegi(std::filesystem::path klasor) : klasor_(std::move(klasor)) {}

    const std::filesystem::path& Klasor() const { return klasor_; }

    /// Takes the names that stand there now, and forgets what is gone.
    void Listele(sistem::Klasor& acik);

    const AdListesi& Adlar() const { return adlar_; }

    /// The bytes that are kept of a file, by its place among the names, where they are those of the disk.
    /// They last until the next one is kept. `simdi` becomes what the system says of the file, where it was
    /// asked.
    std::optional<std::string_view> Hatirla(const sistem::Klasor& acik, std::size_t sira,
                                            std::optional<sistem::Kimlik>& simdi);

    /// Keeps what was just read of a file, if nothing has touched it since `sinir`. `kimlik` is what
    /// `Hatirla` was told before that. False: it isn't kept.
    bool Sakla(std::size_t sira, std::string_view bayt, const std::optional<sistem::Kimlik>& kimlik,
               SistemAni sinir);

    /// Forgets one, whatever the system says of it.
    void Unut(sistem::DiskAdi ad);

    /// Whether the bytes of any file are kept.
    bool Bos() const { return saklanan_ == 0; }
    /// What it holds in memory.
    std::size_t Bayt() const;

  private:
    struct Kayit {
        std::optional<sistem::Kimlik> kimlik = {}; ///< none: nobody has asked about it yet
        std::uint64_t no = 0;                      ///< in the listing when it was read
        SistemAni sinir = {};
        std::uint32_t bas = 0; ///< in `baytlar_`
        std::uint32_t uzunluk = 0;
        bool var = false;
    };

    void AdlariDegistir(AdListesi yeni);
    bool Taze(Kayit& kayit, const sistem::Kimlik& simdi) const;
    void Birak(Kayit& kayit);
    void Sikistir();

    std::filesystem::path klasor_;
    sistem::Kimlik kimlik_; // of the folder
    AdListesi adlar_;
    std::vector<Kayit> kayitlar_; // by the places of the names
    std::string baytlar_;         // of all that are kept, and of some that aren't any more
    std::size_t saklanan_ = 0;    // files
    std::size_t kullanilan_ = 0;  // bytes of them
};

} // namespace velora
