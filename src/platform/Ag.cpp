#include "platform/Ag.h"

#include <memory>

#include "platform/AgIstemcisi.h"
#include "platform/Arayuzler.h"
#include "platform/Indirme.h"

namespace velora {

namespace {

BaglantiTuru Tur(const AgIstegi& istek) {
    return istek.baglantiKalsin ? BaglantiTuru::Kalan : BaglantiTuru::Tek;
}

} // namespace

void AgiBagla(Ortam& ortam) {
    const auto istemci = std::make_shared<AgIstemcisi>();
    ortam.ag.getir = [istemci, isle = ortam.olaylar.isle](const AgIstegi& istek) {
        const auto sira = [&] {
            isle();
            return !istek.vazgecildi();
        };
        return istemci->Getir(istek.adres, std::chrono::seconds(istek.sure), sira, Tur(istek));
    };
    ortam.ag.gonder = [istemci, isle = ortam.olaylar.isle](const AgIstegi& istek) {
        const auto giden = istemci->Gonder(istek.adres, std::chrono::seconds(istek.sure), Tur(istek));
        if (giden == nullptr)
            return Gonderim();
        return Gonderim{.bitti = [giden] { return giden->Bitti(); },
                        .bekle =
                            [giden, isle](const std::function<bool()>& birak) {
                                giden->Bekle([&] {
                                    isle();
                                    return !birak();
                                });
                            }};
    };
    const auto indirici = std::make_shared<Indirici>(ortam.olaylar.isle);
    ortam.ag.aktarimAc = [indirici](const AktarimIstegi& istek) { return indirici->Ac(istek); };
    ortam.ag.baglantiVar = BaglantiVar;
    ortam.ag.donanimAdresi = DonanimAdresiBul;
    ortam.olaylar.bitir = [istemci, indirici, bitir = ortam.olaylar.bitir] {
        istemci->Kapat();
        indirici->Kapat();
        bitir();
    };
}

} // namespace velora
