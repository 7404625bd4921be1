#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/dosya/AdListesi.h"
#include "storage/dosya/Gozcu.h"
#include "storage/dosya/OndenListe.h"
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

    /// From here on what changes in the folder is told by one who watches it, as far as he can be sure: what
    /// hasn't changed is then neither listed nor asked about. Null: nobody watches. Gives the one before
    /// back.
    std::unique_ptr<sistem::Gozcu> Izlet(std::unique_ptr<sistem::Gozcu> gozcu);
    bool Izleniyor() const { return gozcu_ != nullptr; }

    /// Takes the names that stand there now, and forgets what is gone. `ac` opens the folder, where it must
    /// be listed.
    void Tazele(const std::function<sistem::Klasor&()>& ac);

    /// The same of a folder that nobody watches, where somebody has just listed it. Gives it back open.
    std::unique_ptr<sistem::Klasor> Al(ListelenenKlasor liste);

    const AdListesi& Adlar() {
        adlar_.Sirala();
        return adlar_;
    }
    /// The same as they came: of a folder in which nobody is interested they are never put into order.
    const AdListesi& GelenAdlar() const { return adlar_; }

    /// The bytes that are kept of a file, by its place among the names, where it is known that they are those
    /// of the disk. They last until the next one is kept.
    std::optional<std::string_view> Bilinen(std::size_t sira);

    /// The same where the system has to be asked.
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
    /// A first reading makes thousands of them: small, they leave the system more of the processor's nearest
    /// memory for its own.
    struct Kayit {
        SistemAni sinir = {};
        const char* bas = nullptr; ///< in `parcalar_`
        std::uint32_t boy = 0;     ///< bytes
        bool var = false;
        bool kimlikli = false; ///< it was asked about: `kimlikler_` has what the system told
        bool sorulsun = true;  ///< nobody watches, or he has told of a change since

        std::string_view Bayt() const { return {bas, boy}; }
    };

    bool Degismedi();
    void Listele(sistem::Klasor& acik);
    void YeriniAl(const std::optional<sistem::Kimlik>& kimlik);
    void AdlariDegistir(AdListesi yeni);
    bool Taze(std::size_t sira, Kayit& kayit, const sistem::Kimlik& simdi);
    sistem::Kimlik& Kimligi(const Kayit& kayit);
    Kayit* Bul(std::size_t sira);
    void Birak(Kayit& kayit);
    const char* Yerlestir(std::string_view bayt);
    void Sikistir();

    std::filesystem::path klasor_;
    std::unique_ptr<sistem::Gozcu> gozcu_;
    sistem::Kimlik kimlik_; // of the folder
    AdListesi adlar_;
    bool tam_ = true; // the last listing came to its end
    static constexpr std::uint32_t kYok = UINT32_MAX;
    std::vector<std::uint32_t> kayitNo_;      // by the places of the names: in `kayitlar_`, or `kYok`
    std::vector<Kayit> kayitlar_;             // of those that were read
    std::vector<sistem::Kimlik> kimlikler_;   // by the places of those, as far as one of them was asked about
    std::vector<std::vector<char>> parcalar_; // bytes of all that are kept, and of some that aren't any more
    std::size_t tutulan_ = 0;                 // bytes that the pieces take
    std::size_t saklanan_ = 0;                // files
    std::size_t kullanilan_ = 0;              // bytes of them
};

} // namespace velora
