#include "platform/Ag.h"

#include <memory>

#include "platform/AgIstemcisi.h"
#include "platform/Arayuzler.h"

namespace velora {

void AgiBagla(Ortam& ortam) {
    const auto istemci = std::make_shared<AgIstemcisi>();
    ortam.ag.getir = [istemci, isle = ortam.olaylar.isle](const AgIstegi& istek) {
        return istemci->Getir(istek.adres, std::chrono::seconds(istek.sure), [&] {
            isle();
            return !istek.vazgecildi();
        });
    };
    ortam.ag.baglantiVar = BaglantiVar;
    ortam.ag.donanimAdresi = DonanimAdresiBul;
    ortam.olaylar.bitir = [istemci, bitir = ortam.olaylar.bitir] {
        istemci->Kapat();
        bitir();
    };
}

} // namespace velora
