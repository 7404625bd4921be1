#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace velora {

/// A file that is written piece by piece, in one opening: for what is too long, or comes too slowly, to be
/// put down in one go. Meanwhile it holds what has come so far. It is closed with this object.
class YazmaAkisi {
  public:
    /// What tests put between the stream and the disk, as in `Dosyalar`.
    struct Sinama {
        std::function<bool()> ariza;
        std::optional<std::size_t> bosYer;
    };

    /// Opens the file at `konum`, counted from 0; it is made when missing, and what it held from there on
    /// goes. Null when it can't be opened, and when it is shorter than that.
    static std::unique_ptr<YazmaAkisi> Ac(const std::filesystem::path& yol, std::uint64_t konum,
                                          Sinama sinama);
    ~YazmaAkisi();
    YazmaAkisi(const YazmaAkisi&) = delete;
    YazmaAkisi& operator=(const YazmaAkisi&) = delete;

    /// Puts the bytes behind those before. False when they can't be put down whole.
    bool Yaz(std::string_view bayt);
    /// No byte is written any more. False when the system took back what it had promised.
    bool Kapat();

  private:
    struct Ic;
    explicit YazmaAkisi(std::unique_ptr<Ic> ic);
    std::unique_ptr<Ic> ic_;
};

} // namespace velora
