#include "maintenance/EslemeKosusu.h"

#include <algorithm>
#include <system_error>

#include "maintenance/KlasorEsleme.h"

namespace velora {

namespace {

/// Whether both lead to one folder, by whatever links.
bool AyniKlasor(const std::filesystem::path& bir, const std::filesystem::path& iki) {
    std::error_code hata;
    return std::filesystem::equivalent(bir, iki, hata) && !hata;
}

} // namespace

struct EslemeKosusu::Duzey {
    Yol kaynak;
    Yol hedef;
    bool ikiYonlu;
    KlasorIcerigi kaynaktaki;
    KlasorIcerigi hedefteki;
    std::size_t sira = 0; // the next one that is looked at for a folder: of the source's, then of the
                          // target's

    bool KaynaktaKlasor(const sistem::Oge& aranan) const {
        const auto yer = std::ranges::lower_bound(kaynaktaki, aranan.ad, {}, &sistem::Oge::ad);
        return yer != kaynaktaki.end() && yer->ad == aranan.ad && !DosyaMi(*yer);
    }
};

EslemeKosusu::EslemeKosusu(const Yol& kaynak, const Yol& hedef, bool ikiYonlu, std::vector<Yol> atlanan)
    : atlanan_(std::move(atlanan)) {
    if (!sistem::Var(kaynak, sistem::Tur::Klasor))
        return;
    std::error_code hata;
    std::filesystem::create_directories(hedef.parent_path(), hata);
    Gir(kaynak, hedef, ikiYonlu);
}

EslemeKosusu::~EslemeKosusu() = default;

bool EslemeKosusu::Adim() {
    while (!duzeyler_.empty()) {
        if (dosyalar_ != nullptr && dosyalar_->Adim())
            return true;
        dosyalar_.reset();
        if (AltaGir())
            continue;
        duzeyler_.pop_back();
        if (!duzeyler_.empty())
            return true;
    }
    return false;
}

void EslemeKosusu::Gir(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) {
    const bool yeni = sistem::KlasorYap(hedef);
    const Duzey& bu =
        duzeyler_.emplace_back(Duzey{.kaynak = kaynak,
                                     .hedef = hedef,
                                     .ikiYonlu = ikiYonlu,
                                     .kaynaktaki = KlasoruListele(kaynak),
                                     .hedefteki = yeni ? KlasorIcerigi() : KlasoruListele(hedef)});
    dosyalar_ = std::make_unique<DosyaEslemesi>(DosyaEslemesi::Klasor{bu.kaynak, bu.kaynaktaki},
                                                DosyaEslemesi::Klasor{bu.hedef, bu.hedefteki}, ikiYonlu);
}

/// Into the next folder below; with both ways also into those that only the target has. False: there is none.
bool EslemeKosusu::AltaGir() {
    Duzey& bu = duzeyler_.back();
    const std::size_t ileride = bu.kaynaktaki.size();
    const std::size_t son = ileride + (bu.ikiYonlu ? bu.hedefteki.size() : 0);
    while (bu.sira < son) {
        const bool geri = bu.sira >= ileride;
        const sistem::Oge& oge = geri ? bu.hedefteki[bu.sira - ileride] : bu.kaynaktaki[bu.sira];
        ++bu.sira;
        if (DosyaMi(oge) || (geri && bu.KaynaktaKlasor(oge)))
            continue;
        const Yol alt = (geri ? bu.hedef : bu.kaynak) / oge.ad;
        if (!Girilir(alt))
            continue;
        Gir(alt, (geri ? bu.kaynak : bu.hedef) / oge.ad, bu.ikiYonlu && !geri);
        return true;
    }
    return false;
}

/// Neither into itself nor into what is to be left out. The target is no source, too: within the source it
/// would be copied into itself without end.
bool EslemeKosusu::Girilir(const Yol& klasor) const {
    const auto bu = [&klasor](const Yol& oteki) { return AyniKlasor(klasor, oteki); };
    return !bu(duzeyler_.front().hedef) && std::ranges::none_of(duzeyler_, bu, &Duzey::kaynak) &&
           std::ranges::none_of(atlanan_, bu);
}

} // namespace velora
