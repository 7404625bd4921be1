#include "qt/ListeSiralama.h"

#include <algorithm>
#include <numeric>
#include <tuple>

#include "qt/Ceviri.h"
#include "qt/Dil.h"
#include "qt/Nefes.h"
#include "storage/Metin.h"
#include "storage/Sayi.h"
#include "storage/Tarih.h"
#include "storage/VeriAgaci.h"

namespace velora {

namespace {

/// What a cell is compared by, from its first part on. Made once for each row.
struct SiraAnahtari {
    bool tarihsiz;
    std::chrono::sys_days gun;
    bool gece;
    double sayi;
    MetinSirasi metin;

    bool operator<(const SiraAnahtari& o) const {
        const auto basi = [](const SiraAnahtari& a) { return std::tie(a.tarihsiz, a.gun, a.gece, a.sayi); };
        return basi(*this) != basi(o) ? basi(*this) < basi(o) : metin < o.metin;
    }
};

SiraAnahtari AnahtarYap(const Metin& goz, bool sayi) {
    SiraAnahtari anahtar{true, {}, false, sayi ? TutarDegeri(goz) : 0, TurkceSirasi(QMetin(goz))};
    if (const auto gun = TarihCoz(MetinBakis(goz).substr(0, kTarihUzunlugu)); gun && !sayi) {
        anahtar.tarihsiz = false;
        anahtar.gun = *gun;
        anahtar.gece = MetinBakis(goz).substr(kTarihUzunlugu).starts_with(DilimEki(GunduzGece::Gece));
    }
    return anahtar;
}

/// Draws breath behind every so many steps: one of them is far shorter than the asking.
class SeyrekNefes {
  public:
    void Al() {
        constexpr unsigned kArada = 1024;
        if (++adim_ % kArada == 0)
            Nefes::Al();
    }

  private:
    unsigned adim_ = 0;
};

} // namespace

std::vector<int> GorunenSira(const ListeGorunumu& liste, int sutun, Qt::SortOrder yon) {
    std::vector<int> sira(liste.satirlar.size());
    std::iota(sira.begin(), sira.end(), 0);
    if (sutun < 0)
        return sira;
    const bool sayi = std::ranges::find(liste.sayiSutunlari, sutun) != liste.sayiSutunlari.end();
    const auto yer = static_cast<std::size_t>(sutun);
    std::vector<SiraAnahtari> anahtarlar;
    anahtarlar.reserve(sira.size());
    SeyrekNefes nefes;
    for (const ListeSatiri& satir : liste.satirlar) {
        nefes.Al();
        anahtarlar.push_back(AnahtarYap(yer < satir.sutun.size() ? satir.sutun[yer] : Metin(), sayi));
    }
    std::ranges::stable_sort(sira, [&](int bir, int iki) {
        nefes.Al();
        const SiraAnahtari& a = anahtarlar[static_cast<std::size_t>(bir)];
        const SiraAnahtari& b = anahtarlar[static_cast<std::size_t>(iki)];
        return yon == Qt::AscendingOrder ? a < b : b < a;
    });
    return sira;
}

} // namespace velora
