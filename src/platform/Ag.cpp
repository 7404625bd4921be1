#include "platform/Ag.h"

#include <memory>

#include "platform/AgIstemcisi.h"
#include "platform/Arayuzler.h"

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
    ortam.ag.baglantiVar = BaglantiVar;
    ortam.ag.donanimAdresi = DonanimAdresiBul;
    ortam.olaylar.bitir = [istemci, bitir = ortam.olaylar.bitir] {
        istemci->Kapat();
        bitir();
    };
}

} // namespace velora
