#include "storage/Desen.h"

#include <algorithm>

namespace velora {

HazirDesen::HazirDesen(MetinBakis desen) : ogeler_(Coz(desen)), parca_(Parcasi(desen)) {
    ++Sayac();
}

std::size_t& HazirDesen::Sayac() {
    static std::size_t sayac = 0;
    return sayac;
}

bool HazirDesen::Oge::Uyar(char16_t harf) const {
    const bool icinde = std::any_of(araliklar.begin(), araliklar.end(), [harf](const Aralik& aralik) {
        return aralik.ilk <= harf && harf <= aralik.son;
    });
    return icinde != disinda;
}

HazirDesen::Oge HazirDesen::TekHarf(char16_t harf) {
    switch (harf) {
    case u'*':
        return {.yildiz = true, .disinda = false, .araliklar = {}};
    case u'?':
        return {.yildiz = false, .disinda = true, .araliklar = {}};
    case u'#':
        return {.yildiz = false, .disinda = false, .araliklar = {{u'0', u'9'}}};
    default:
        return {.yildiz = false, .disinda = false, .araliklar = {{harf, harf}}};
    }
}

/// What stands between the brackets. False when it is malformed.
bool HazirDesen::ListeEkle(MetinBakis liste, Ogeler& ogeler) {
    if (liste.empty())
        return true;
    Oge oge;
    if (liste.size() > 1 && liste.front() == u'!') {
        oge.disinda = true;
        liste.remove_prefix(1);
    }
    while (!liste.empty()) {
        const std::size_t boy = liste.size() > 2 && liste[1] == u'-' ? 3 : 1;
        if (liste[boy - 1] < liste[0])
            return false;
        oge.araliklar.push_back({liste[0], liste[boy - 1]});
        liste.remove_prefix(boy);
    }
    ogeler.push_back(std::move(oge));
    return true;
}

std::optional<HazirDesen::Ogeler> HazirDesen::Coz(MetinBakis desen) {
    Ogeler ogeler;
    for (std::size_t i = 0; i < desen.size(); ++i) {
        if (desen[i] != u'[') {
            ogeler.push_back(TekHarf(desen[i]));
            continue;
        }
        const std::size_t son = desen.find(u']', i);
        if (son == MetinBakis::npos || !ListeEkle(desen.substr(i + 1, son - i - 1), ogeler))
            return {};
        i = son;
    }
    return ogeler;
}

/// What stands between two `*` when it stands for itself, as nearly always.
std::optional<Metin> HazirDesen::Parcasi(MetinBakis desen) {
    if (desen.size() < 2 || !desen.starts_with(u'*') || !desen.ends_with(u'*'))
        return {};
    const MetinBakis parca = desen.substr(1, desen.size() - 2);
    return parca.find_first_of(u"*?#[") == MetinBakis::npos ? std::optional(Metin(parca)) : std::nullopt;
}

bool HazirDesen::Uyar(MetinBakis metin) const {
    if (parca_)
        return metin.find(*parca_) != MetinBakis::npos;
    if (!ogeler_)
        return false;
    auto oge = ogeler_->begin();
    auto harf = metin.begin();
    // The last `*` and how far it reaches: where the rest doesn't fit, it takes one character more.
    auto yildiz = ogeler_->end();
    auto yildizSonu = harf;
    while (harf != metin.end()) {
        if (oge != ogeler_->end() && oge->yildiz) {
            yildiz = oge++;
            yildizSonu = harf;
        } else if (oge != ogeler_->end() && oge->Uyar(*harf)) {
            ++oge;
            ++harf;
        } else if (yildiz != ogeler_->end()) {
            oge = std::next(yildiz);
            harf = ++yildizSonu;
        } else {
            return false;
        }
    }
    return std::all_of(oge, ogeler_->end(), [](const Oge& kalan) { return kalan.yildiz; });
}

} // namespace velora
