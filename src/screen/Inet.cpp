#include "screen/Inet.h"

#include <utility>

#include "screen/Program.h"

namespace velora {

Metin Inet::Getir(const Metin& adres) {
    if (suren_ != nullptr || adres.empty())
        return {};
    const auto birakildi = std::make_shared<bool>(false);
    suren_ = birakildi;
    Metin cevap;
    try {
        cevap = program_.ortam.ag.getir(
            {.adres = adres, .sure = sure, .vazgecildi = [birakildi] { return *birakildi; }});
    } catch (...) {
        if (!*birakildi)
            suren_.reset();
        throw;
    }
    // Given up, perhaps with this control and its screen: nothing of it is touched any more.
    if (*birakildi)
        return {};
    suren_.reset();
    return cevap;
}

void Inet::Iptal() {
    if (const auto suren = std::exchange(suren_, nullptr))
        *suren = true;
}

} // namespace velora
