#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/dosya/AdListesi.h"
#include "storage/dosya/Sistem.h"

namespace velora {

/// What was read of one folder, as long as the system surely tells what has changed in it since. A file is
/// read when it is first asked for, and again behind each change.
class KlasorBellegi {
  public:
    /// Begins with another folder, of which nothing is known yet.
    void Basla(const std::filesystem::path& klasor);
    /// Forgets all and watches nothing.
    void Unut();

    /// The folder; empty for none.
    const std::filesystem::path& Klasor() const { return klasor_; }

    /// Brings names and contents up to this moment. False: nothing can be known of this folder any more.
    bool Tazele();

    const AdListesi& Adlar() const { return adlar_; }
    /// The bytes of a file by its place among the names; nothing when it can't be opened or read. They last
    /// until the next call. `okunan` counts what came from the disk.
    std::optional<std::string_view> Oku(std::size_t sira, std::size_t enCok, std::string& tampon,
                                        std::size_t& okunan);

  private:
    void Listele(const std::vector<Metin>& degisenler);

    std::filesystem::path klasor_;
    sistem::Gozcu gozcu_;
    std::unique_ptr<sistem::Klasor> acik_;
    AdListesi adlar_;
    std::vector<std::optional<std::string>> icerikler_; // by the places of the names; none: not read yet
    std::size_t bayt_ = 0;                              // in them
};

} // namespace velora
