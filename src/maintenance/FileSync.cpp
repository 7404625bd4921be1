#include "maintenance/FileSync.h"

#include <algorithm>
#include <iterator>
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

const fs::path::string_type& Adi(const Oge& oge) {
    return oge.ad.native();
}

struct Icerik {
    std::vector<Oge> dosyalar;  // sorted by name
    std::vector<Oge> klasorler; // sorted by name
};

/// What can't be listed or asked about isn't there.
Icerik Listele(const fs::path& klasor) {
    Icerik icerik;
    for (Oge& oge : sistem::Ogeler(klasor)) {
        if (oge.ad == kYarimAd)
            continue;
        auto& yeri = oge.bilgi.tur == Tur::Dosya ? icerik.dosyalar : icerik.klasorler;
        yeri.push_back(std::move(oge));
    }
    for (auto* ogeler : {&icerik.dosyalar, &icerik.klasorler})
        std::ranges::sort(*ogeler, {}, Adi);
    return icerik;
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

std::vector<EslemeSatiri> Esle(const Icerik& kaynak, const Icerik& hedef) {
    std::vector<EslemeSatiri> satirlar;
    std::vector<EslemeSatiri> fazlalar;
    satirlar.reserve(kaynak.dosyalar.size());
    auto es = hedef.dosyalar.begin();
    const auto fazlayiGec = [&](const auto& dur) {
        for (; es != hedef.dosyalar.end() && dur(*es); ++es)
            fazlalar.push_back({es->ad, EslemeDurumu::YalnizHedefte});
    };
    for (const Oge& oge : kaynak.dosyalar) {
        fazlayiGec([&oge](const Oge& oteki) { return Adi(oteki) < Adi(oge); });
        const bool var = es != hedef.dosyalar.end() && Adi(*es) == Adi(oge);
        satirlar.push_back({oge.ad, var ? Durum(oge.bilgi, es->bilgi) : EslemeDurumu::YalnizKaynakta});
        if (var)
            ++es;
    }
    fazlayiGec([](const Oge&) { return true; });
    std::ranges::move(fazlalar, std::back_inserter(satirlar));
    return satirlar;
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

FileSync::FileSync(std::function<bool()> olaylar, std::vector<Yol> atlanan)
    : olaylar_(std::move(olaylar)), atlanan_(std::move(atlanan)) {}

std::vector<EslemeSatiri> FileSync::Compare(const Yol& kaynak, const Yol& hedef) {
    return Esle(Listele(kaynak), Listele(hedef));
}

void FileSync::SyncFiles(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    SatirlariUygula(Compare(kaynak, hedef), kaynak, hedef, ikiYonlu);
}

bool FileSync::SatirlariUygula(const std::vector<EslemeSatiri>& satirlar, const Yol& kaynak, const Yol& hedef,
                               bool ikiYonlu) const {
    const auto kopyala = [](const Yol& nereden, const Yol& nereye, const Yol& ad) {
        sistem::Kopyala(nereden / ad, nereye / ad, nereye / kYarimAd);
    };
    return std::ranges::all_of(satirlar, [&](const EslemeSatiri& satir) {
        const KopyaYeri yon = KopyalanacakYer(satir.durum);
        if (yon == KopyaYeri::Hedefe)
            kopyala(kaynak, hedef, satir.ad);
        else if (yon == KopyaYeri::Geri && ikiYonlu)
            kopyala(hedef, kaynak, satir.ad);
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
    const Icerik kaynaktakiler = Listele(kaynak);
    const Icerik hedeftekiler = yeni ? Icerik() : Listele(hedef);
    if (!SatirlariUygula(Esle(kaynaktakiler, hedeftekiler), kaynak, hedef, ikiYonlu))
        return false;
    const auto altina = [&](const Yol& nereden, const Yol& nereye, const Yol& ad, bool geriyeDe) {
        const Yol alt = nereden / ad;
        if (!Girilir(alt, ustler))
            return true;
        ustler.push_back(alt);
        const bool surer = Gez(alt, nereye / ad, geriyeDe, ustler);
        ustler.pop_back();
        return surer && olaylar_();
    };
    const auto hepsine = [](const std::vector<Oge>& klasorler, const auto& is) {
        return std::ranges::all_of(klasorler, [&is](const Oge& oge) { return is(oge.ad); });
    };
    if (!hepsine(kaynaktakiler.klasorler, [&](const Yol& ad) { return altina(kaynak, hedef, ad, ikiYonlu); }))
        return false;
    return !ikiYonlu || hepsine(hedeftekiler.klasorler, [&](const Yol& ad) {
        return std::ranges::binary_search(kaynaktakiler.klasorler, ad.native(), {}, Adi) ||
               altina(hedef, kaynak, ad, false);
    });
}

bool FileSync::Girilir(const Yol& klasor, const std::vector<Yol>& ustler) const {
    const auto bu = [&klasor](const Yol& oteki) { return AyniKlasor(klasor, oteki); };
    return std::ranges::none_of(ustler, bu) && std::ranges::none_of(atlanan_, bu);
}

} // namespace velora
