#pragma once

#include <memory>

#include "storage/dosya/Dosyalar.h"

namespace velora::test {

/// From here on a file whose path ends so can't be read, as on a bad disk: once, then it can. What comes back
/// tells whether that has happened.
inline std::shared_ptr<bool> BirKezOkunmaz(Dosyalar& dosyalar, MetinBakis son) {
    auto oldu = std::make_shared<bool>(false);
    dosyalar.ariza = [oldu, aranan = Metin(son)](DosyaIsi is, const Metin& yol) {
        const bool bu = is == DosyaIsi::Oku && yol.ends_with(aranan) && !*oldu;
        *oldu = *oldu || bu;
        return bu;
    };
    return oldu;
}

} // namespace velora::test
