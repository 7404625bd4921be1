#include "maintenance/FileSync.h"

#include <algorithm>
#include <system_error>

#include "storage/dosya/Sistem.h"

namespace velora {

namespace {

namespace fs = std::filesystem;
using sistem::Oge;
using sistem::OgeBilgisi;
using sistem::Tur;

/// What a copy is called until it is whole. One that a crash has left is no file of anybody's.
const fs::path kYarimAd = ".velora-yarim";

using Icerik = std::vector<Oge>; // sorted by name

/// What can't be listed or asked about isn't there.
Icerik Listele(const fs::path& klasor) {
    Icerik icerik = sistem::Ogeler(klasor);
    std::erase_if(icerik, [](const Oge& oge) { return oge.ad == kYarimAd.native(); });
    std::ranges::sort(icerik, {}, &Oge::ad);
    return icerik;
}

bool Dosya(const Oge& oge) {
    return oge.bilgi.tur == Tur::Dosya;
}

/// A difference of less than a second is none: not every disk keeps more.
int ZamanFarki(const OgeBilgisi& kaynak, const OgeBilgisi& hedef) {
    constexpr std::int64_t kSaniye = 1'000'000'000;
    const std::int64_t fark = (kaynak.degisme - hedef.degisme) / kSaniye;
    return fark > 0 ? EslemeDurumu::KaynakYeni : fark < 0 ? EslemeDurumu::HedefYeni : 0;
}

int Durum(const OgeBilgisi& kaynak, const OgeBilgisi& hedef) {
    int durum = ZamanFarki(kaynak, hedef);
    if (kaynak.ozellik != hedef.ozellik)
        durum |= EslemeDurumu::OzellikFarkli;
    if (kaynak.boy != hedef.boy)
        durum |= EslemeDurumu::BoyFarkli;
    return durum;
}

/// The rows of a comparison: first all of the source, then those that only the target has. Ends where `ver`
/// says false.
template <class Ver>
bool Esle(const Icerik& kaynak, const Icerik& hedef, Ver ver) {
    std::vector<const Oge*> yalnizHedefte;
    auto es = hedef.begin();
    const auto gec = [&] {
        if (Dosya(*es))
            yalnizHedefte.push_back(&*es);
        ++es;
    };
    for (const Oge& oge : kaynak) {
        if (!Dosya(oge))
            continue;
        int sira = -1;
        while (es != hedef.end() && (sira = es->ad.compare(oge.ad)) < 0)
            gec();
        const bool var = es != hedef.end() && sira == 0 && Dosya(*es);
        if (!ver(oge.ad, var ? Durum(oge.bilgi, es->bilgi) : EslemeDurumu::YalnizKaynakta))
            return false;
        if (var)
            ++es;
    }
    while (es != hedef.end())
        gec();
    return std::ranges::all_of(yalnizHedefte,
                               [&ver](const Oge* oge) { return ver(oge->ad, EslemeDurumu::YalnizHedefte); });
}

enum class KopyaYeri { Yok, Hedefe, Geri };

KopyaYeri KopyalanacakYer(int durum) {
    constexpr int kZaman = EslemeDurumu::KaynakYeni | EslemeDurumu::HedefYeni;
    if (durum == EslemeDurumu::Ayni || durum == EslemeDurumu::OzellikFarkli)
        return KopyaYeri::Yok;
    if (durum == EslemeDurumu::YalnizKaynakta)
        return KopyaYeri::Hedefe;
    if (durum == EslemeDurumu::YalnizHedefte || (durum & kZaman) == EslemeDurumu::HedefYeni)
        return KopyaYeri::Geri;
    return KopyaYeri::Hedefe;
}

/// Whether both lead to one folder, by whatever links.
bool AyniKlasor(const fs::path& bir, const fs::path& iki) {
    std::error_code hata;
    return fs::equivalent(bir, iki, hata) && !hata;
}

} // namespace

struct FileSync::Klasor {
    const Yol& yol;
    std::vector<sistem::Oge> ogeler;
};

FileSync::FileSync(std::function<bool()> olaylar, std::vector<Yol> atlanan)
    : olaylar_(std::move(olaylar)), atlanan_(std::move(atlanan)) {}

std::vector<EslemeSatiri> FileSync::Compare(const Yol& kaynak, const Yol& hedef) {
    std::vector<EslemeSatiri> satirlar;
    Esle(Listele(kaynak), Listele(hedef), [&satirlar](const auto& ad, int durum) {
        satirlar.push_back({ad, durum});
        return true;
    });
    return satirlar;
}

void FileSync::SyncFiles(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    Uygula({kaynak, Listele(kaynak)}, {hedef, Listele(hedef)}, ikiYonlu);
}

bool FileSync::Uygula(const Klasor& kaynak, const Klasor& hedef, bool ikiYonlu) const {
    const sistem::Kopyaci ileri(kaynak.yol, hedef.yol, kYarimAd);
    const sistem::Kopyaci geri(hedef.yol, kaynak.yol, kYarimAd);
    return Esle(kaynak.ogeler, hedef.ogeler, [&](const auto& ad, int durum) {
        const KopyaYeri yon = KopyalanacakYer(durum);
        if (yon == KopyaYeri::Hedefe)
            ileri.Kopyala(ad);
        else if (yon == KopyaYeri::Geri && ikiYonlu)
            geri.Kopyala(ad);
        return olaylar_();
    });
}

void FileSync::SyncFolders(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    if (!sistem::Var(kaynak, Tur::Klasor))
        return;
    std::error_code hata;
    fs::create_directories(hedef.parent_path(), hata);
    // The target, too: within the source it would be copied into itself without end.
    std::vector<Yol> ustler{kaynak, hedef};
    Gez(kaynak, hedef, ikiYonlu, ustler);
}

bool FileSync::Gez(const Yol& kaynak, const Yol& hedef, bool ikiYonlu, std::vector<Yol>& ustler) const {
    const bool yeni = sistem::KlasorYap(hedef);
    const Klasor kaynaktaki{kaynak, Listele(kaynak)};
    const Klasor hedefteki{hedef, yeni ? Icerik() : Listele(hedef)};
    if (!Uygula(kaynaktaki, hedefteki, ikiYonlu))
        return false;
    const auto altlara = [&](const Klasor& nereden, const Yol& nereye, bool geriyeDe, const auto& istenen) {
        return std::ranges::all_of(nereden.ogeler, [&](const Oge& oge) {
            if (Dosya(oge) || !istenen(oge))
                return true;
            const Yol alt = nereden.yol / oge.ad;
            if (!Girilir(alt, ustler))
                return true;
            ustler.push_back(alt);
            const bool surer = Gez(alt, nereye / oge.ad, geriyeDe, ustler);
            ustler.pop_back();
            return surer && olaylar_();
        });
    };
    const auto kaynaktaYok = [&](const Oge& oge) {
        const auto yer = std::ranges::lower_bound(kaynaktaki.ogeler, oge.ad, {}, &Oge::ad);
        return yer == kaynaktaki.ogeler.end() || yer->ad != oge.ad || Dosya(*yer);
    };
    return altlara(kaynaktaki, hedef, ikiYonlu, [](const Oge&) { return true; }) &&
           (!ikiYonlu || altlara(hedefteki, kaynak, false, kaynaktaYok));
}

bool FileSync::Girilir(const Yol& klasor, const std::vector<Yol>& ustler) const {
    const auto bu = [&klasor](const Yol& oteki) { return AyniKlasor(klasor, oteki); };
    return std::ranges::none_of(ustler, bu) && std::ranges::none_of(atlanan_, bu);
}

} // namespace velora
