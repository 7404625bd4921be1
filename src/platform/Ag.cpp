#include "platform/Ag.h"

#include <memory>

#include "platform/AgIstemcisi.h"
#include "platform/Arayuzler.h"
#include "platform/Indirme.h"

namespace velora {

void AgiBagla(Ortam& ortam) {
    const auto istemci = std::make_shared<AgIstemcisi>();
    ortam.ag.getir = [istemci, isle = ortam.olaylar.isle](const AgIstegi& istek) {
        const auto sira = [&] {
            isle();
            return !istek.vazgecildi();
        };
        return istemci->Getir(istek.adres, std::chrono::seconds(istek.sure), sira,
                              istek.baglantiKalsin ? BaglantiTuru::Kalan : BaglantiTuru::Tek);
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
