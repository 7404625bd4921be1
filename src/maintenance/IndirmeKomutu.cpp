#include "maintenance/IndirmeKomutu.h"

namespace velora {

void IndirmeKomutu(const IndirmeParcalari& parcalar, const Metin& adres, const Metin& hedef) {
    auto& [Command, ProgressBar, indiren] = parcalar;
    if (Command.baslik != kYenidenDene) {
        indiren.Cancel();
        return IndirmeyiSifirla(parcalar);
    }
    Command.baslik = kDurdur;
    ProgressBar.deger = 0;
    // A caption that still offers to stop would be all that is left of a reply of no length.
    if (!indiren.DownloadFile(adres, hedef) && Command.baslik == kDurdur)
        IndirmeyiSifirla(parcalar);
}

void IndirmeyiSifirla(const IndirmeParcalari& parcalar) {
    parcalar.Command.baslik = kYenidenDene;
    parcalar.ProgressBar.deger = 0;
}

} // namespace velora
