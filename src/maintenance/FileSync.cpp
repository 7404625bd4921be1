#include "maintenance/FileSync.h"

#include <utility>

#include "maintenance/EslemeKosusu.h"

namespace velora {

namespace {

/// Step by step, to the end or until nobody wants the rest.
template <class Adimlar>
void Yurut(Adimlar& adimlar, const std::function<bool()>& surer) {
    while (adimlar.Adim() && surer())
        continue;
}

} // namespace

FileSync::FileSync(std::function<bool()> olaylar, std::vector<Yol> atlanan)
    : olaylar_(std::move(olaylar)), atlanan_(std::move(atlanan)) {}

std::vector<EslemeSatiri> FileSync::Compare(const Yol& kaynak, const Yol& hedef) {
    const KlasorIcerigi kaynaktaki = KlasoruListele(kaynak);
    const KlasorIcerigi hedefteki = KlasoruListele(hedef);
    EslemeSirasi sira(kaynaktaki, hedefteki);
    std::vector<EslemeSatiri> satirlar;
    while (const auto satir = sira.Sonraki())
        satirlar.push_back({satir->oge.ad, satir->durum});
    return satirlar;
}

void FileSync::SyncFiles(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    const KlasorIcerigi kaynaktaki = KlasoruListele(kaynak);
    const KlasorIcerigi hedefteki = KlasoruListele(hedef);
    DosyaEslemesi dosyalar({kaynak, kaynaktaki}, {hedef, hedefteki}, ikiYonlu);
    Yurut(dosyalar, olaylar_);
}

void FileSync::SyncFolders(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    EslemeKosusu kosu(kaynak, hedef, ikiYonlu, atlanan_);
    Yurut(kosu, olaylar_);
}

} // namespace velora
