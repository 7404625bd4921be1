#include "online/FormIpMac.h"

#include "screen/Program.h"

namespace velora {

Metin BilgisayarAnahtari(const std::optional<DonanimAdresi>& adres) {
    if (!adres)
        return Metin(kAdressizAnahtar);
    constexpr MetinBakis kRakamlar = u"0123456789ABCDEF";
    Metin anahtar;
    for (const std::uint8_t bayt : *adres) {
        if (!anahtar.empty())
            anahtar += u'-';
        anahtar += kRakamlar[bayt / kRakamlar.size()];
        anahtar += kRakamlar[bayt % kRakamlar.size()];
    }
    return anahtar;
}

FormIpMac::FormIpMac(Program& program) : program_(program) {}

void FormIpMac::Load() {
    Label1.baslik = BilgisayarAnahtari(program_.ortam.ag.donanimAdresi());
}

void FormIpMac::macal() {
    Load();
    program_.FormIpMac.Bosalt();
}

Metin FirmaAnahtari(Program& program) {
    Metin anahtar = program.FormIpMac->Label1.baslik;
    std::erase(anahtar, u',');
    return anahtar;
}

} // namespace velora
