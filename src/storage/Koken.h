#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "storage/dosya/Dosyalar.h"

namespace velora {

/// Where data come from that are shown and may be written back whole. It lives beside them and goes along
/// with each reading and writing of theirs: what couldn't be read isn't what the file holds, and what stands
/// in its place is never written over it. One that has read nothing keeps from nothing.
class Koken {
  public:
    /// As `Dosyalar::Oku`, and remembers whether it failed on what may be there.
    std::optional<std::string> Oku(const Dosyalar& dosyalar, const Metin& yol);

    /// False when the last reading did so.
    bool Yazilir() const { return yazilir_; }

    /// As `Dosyalar::Yaz`. False, and the old text stays, where `Yazilir` says no.
    bool Yaz(const Dosyalar& dosyalar, const Metin& yol, std::string_view bayt) const;

  private:
    bool yazilir_ = true;
};

/// For readers of both kinds of callers: those that write back give an origin, the others none.
std::optional<std::string> KokenleOku(const Dosyalar& dosyalar, const Metin& yol, Koken* koken);

} // namespace velora
