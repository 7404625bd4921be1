#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "tools/OrnekFirma.h"

namespace velora::ornek {

/// What the command line asks for.
struct Komut {
    std::string klasor; ///< where the firm goes, as given
    Istek istek;
};

/// The command line without the program's name. Empty when it isn't understood: an unknown option, a number
/// out of its bounds, a date that is none, not exactly one folder. `bugun` stands where no --bugun is given.
std::optional<Komut> KomutCoz(std::span<const std::string_view> parcalar, const Gun& bugun);

/// How the program is called.
std::string_view Kullanim();

} // namespace velora::ornek
