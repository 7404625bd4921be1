#pragma once

#include <array>
#include <optional>

#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora::test {

/// What the plain scan says of one slot: nothing when it is free.
struct ReferansDilim {
    bool on = false;
    Metin tag;
};

struct ReferansSonuc {
    std::array<std::array<std::array<std::optional<ReferansDilim>, 2>, kGunSayisi>, kAySayisi> dilimler;
    bool hatirlatma = false;
};

/// The scan in its plain form, kept to compare the fast one with: one existence question for each of the 744
/// slots, two files read for each reservation, then every file of the folder read once more as a main record.
ReferansSonuc ReferansTara(const Program& program, const Metin& salon, const Metin& yil,
                           const Metin& kullanici);

/// The table must show just this. How many slots are taken.
int ReferansGibiOlmali(Program& program, const ReferansSonuc& beklenen);

} // namespace velora::test
