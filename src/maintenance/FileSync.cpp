#include "maintenance/FileSync.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <string>
#include <system_error>
#include <unordered_map>

#include "storage/dosya/Sistem.h"

namespace velora {

namespace {

namespace fs = std::filesystem;
using sistem::OgeBilgisi;
using sistem::Tur;

struct Icerik {
    std::map<fs::path, OgeBilgisi> dosyalar;
    std::vector<fs::path> klasorler; // names, sorted
};

/// What can't be listed or asked about isn't there.
Icerik Listele(const fs::path& klasor) {
    Icerik icerik;
    std::error_code hata;
    for (fs::directory_iterator oge(klasor, hata), son; !hata && oge != son; oge.increment(hata)) {
        const auto bilgi = sistem::Bilgi(oge->path());
        if (!bilgi)
            continue;
        if (bilgi->tur == Tur::Dosya)
            icerik.dosyalar.emplace(oge->path().filename(), *bilgi);
        else
            icerik.klasorler.push_back(oge->path().filename());
    }
    std::ranges::sort(icerik.klasorler);
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
    satirlar.reserve(kaynak.dosyalar.size());
    for (const auto& [ad, bilgi] : kaynak.dosyalar) {
        const auto es = hedef.dosyalar.find(ad);
        satirlar.push_back(
            {ad, es == hedef.dosyalar.end() ? EslemeDurumu::YalnizKaynakta : Durum(bilgi, es->second)});
    }
    for (const auto& [ad, bilgi] : hedef.dosyalar)
        if (!kaynak.dosyalar.contains(ad))
            satirlar.push_back({ad, EslemeDurumu::YalnizHedefte});
    return satirlar;
}

/// Copies a file with its time and its rights. One that is there is replaced in one step, whoever may write
/// into it, and stays when the copy fails.
void DosyaKopyala(const fs::path& kaynak, const fs::path& hedef, bool uzerine) {
    std::error_code hata;
    fs::path yeni = hedef;
    if (uzerine)
        yeni += ".veloraYeni";
    // Asked for before: written to while it is copied, it is copied again next time.
    const auto zaman = fs::last_write_time(kaynak, hata);
    bool tamam = !hata && fs::copy_file(kaynak, yeni, fs::copy_options::overwrite_existing, hata) && !hata;
    if (tamam) {
        fs::last_write_time(yeni, zaman, hata);
        if (uzerine) {
            fs::rename(yeni, hedef, hata);
            tamam = !hata;
        }
    }
    if (!tamam)
        fs::remove(yeni, hata);
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

/// A path without links, as it is told from others.
fs::path Gercek(const fs::path& yol) {
    std::error_code hata;
    fs::path gercek = fs::weakly_canonical(yol, hata);
    return hata ? yol : gercek;
}

} // namespace

FileSync::FileSync(std::function<void()> olaylar, std::vector<Yol> atlanan)
    : olaylar_(std::move(olaylar)), atlanan_(std::move(atlanan)) {
    for (Yol& yol : atlanan_)
        yol = Gercek(yol);
}

std::vector<EslemeSatiri> FileSync::Compare(const Yol& kaynak, const Yol& hedef) {
    return Esle(Listele(kaynak), Listele(hedef));
}

void FileSync::SyncFiles(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    SatirlariUygula(Compare(kaynak, hedef), kaynak, hedef, ikiYonlu);
}

void FileSync::SatirlariUygula(const std::vector<EslemeSatiri>& satirlar, const Yol& kaynak, const Yol& hedef,
                               bool ikiYonlu) const {
    for (const EslemeSatiri& satir : satirlar) {
        const KopyaYeri yon = KopyalanacakYer(satir.durum);
        if (yon == KopyaYeri::Hedefe)
            DosyaKopyala(kaynak / satir.ad, hedef / satir.ad, satir.durum != EslemeDurumu::YalnizKaynakta);
        else if (yon == KopyaYeri::Geri && ikiYonlu)
            DosyaKopyala(hedef / satir.ad, kaynak / satir.ad, satir.durum != EslemeDurumu::YalnizHedefte);
        olaylar_();
    }
}

void FileSync::SyncFolders(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const {
    const auto bilgi = sistem::Bilgi(kaynak);
    if (!bilgi || bilgi->tur != Tur::Klasor)
        return;
    // The target, too: within the source it would be copied into itself without end.
    std::vector<Yol> ustler{Gercek(kaynak), Gercek(hedef)};
    Gez(kaynak, hedef, ikiYonlu, ustler);
}

void FileSync::Gez(const Yol& kaynak, const Yol& hedef, bool ikiYonlu, std::vector<Yol>& ustler) const {
    std::error_code hata;
    fs::create_directories(hedef, hata);
    const Icerik kaynaktakiler = Listele(kaynak);
    const Icerik hedeftekiler = Listele(hedef);
    SatirlariUygula(Esle(kaynaktakiler, hedeftekiler), kaynak, hedef, ikiYonlu);
    const auto altina = [&](const Yol& nereden, const Yol& nereye, const Yol& ad, bool geriyeDe) {
        const Yol alt = nereden / ad;
        Yol gercek = fs::is_symlink(alt, hata) ? Gercek(alt) : Gercek(nereden) / ad;
        if (!Girilir(gercek, ustler))
            return;
        ustler.push_back(std::move(gercek));
        Gez(alt, nereye / ad, geriyeDe, ustler);
        ustler.pop_back();
        olaylar_();
    };
    for (const Yol& ad : kaynaktakiler.klasorler)
        altina(kaynak, hedef, ad, ikiYonlu);
    if (!ikiYonlu)
        return;
    for (const Yol& ad : hedeftekiler.klasorler)
        if (!std::ranges::binary_search(kaynaktakiler.klasorler, ad))
            altina(hedef, kaynak, ad, false);
}

bool FileSync::Girilir(const Yol& gercek, const std::vector<Yol>& ustler) const {
    return std::ranges::find(ustler, gercek) == ustler.end() &&
           std::ranges::find(atlanan_, gercek) == atlanan_.end();
}

} // namespace velora
