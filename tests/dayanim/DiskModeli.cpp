#include "dayanim/DiskModeli.h"

#include <algorithm>
#include <random>

namespace velora::dayanim {

DiskModeli::DiskModeli(const Saha& saha, const Agac& agac, const Agac& durum)
    : agacKoku_(saha.Kok().string() + "/"), durumKoku_(saha.Durum().string() + "/") {
    for (const auto& [kok, dosyalar] : {std::pair{&agacKoku_, &agac}, std::pair{&durumKoku_, &durum}})
        for (const auto& [yol, bayt] : *dosyalar)
            kalici_[*kok + yol] =
                yol.ends_with('/') ? nullptr : std::make_shared<Govde>(Govde{bayt, bayt, std::string::npos});
    simdi_ = kalici_;
}

void DiskModeli::AdDegistir(const std::string& yol, GovdeNo govde, std::function<void(Adlar&)> uygula) {
    uygula(simdi_);
    bekleyen_.push_back({yol.substr(0, yol.rfind('/')), std::move(govde), std::move(uygula)});
}

void DiskModeli::Ac(const KayitliCagri& cagri) {
    const bool adsiz = (cagri.bas.ek & O_TMPFILE) == O_TMPFILE;
    const auto yer = simdi_.find(cagri.yol);
    if (adsiz || (yer == simdi_.end() && (cagri.bas.ek & O_CREAT) != 0)) {
        const auto govde = std::make_shared<Govde>();
        if (!adsiz)
            AdDegistir(cagri.yol, govde, [yol = cagri.yol, govde](Adlar& adlar) { adlar[yol] = govde; });
        acik_[cagri.bas.seri] = govde;
    } else if (yer != simdi_.end()) {
        if ((cagri.bas.ek & O_TRUNC) != 0) {
            yer->second->simdi.clear();
            yer->second->kirli = 0;
        }
        acik_[cagri.bas.seri] = yer->second;
    }
}

void DiskModeli::Esle(const KayitliCagri& cagri) {
    const auto acik = acik_.find(cagri.bas.seri);
    const GovdeNo govde = acik == acik_.end() ? nullptr : acik->second;
    const auto kalir = [](Govde& biri) {
        biri.kalici = biri.simdi;
        biri.kirli = std::string::npos;
    };
    if (govde)
        kalir(*govde);
    const bool hepsi = cagri.bas.cagri == Cagri::HepsiniEsle;
    if (hepsi)
        for (const auto& [yol, baska] : simdi_)
            if (baska)
                kalir(*baska);
    const auto son = std::find_if(bekleyen_.rbegin(), bekleyen_.rend(), [&](const AdIsi& is) {
        return hepsi || (govde ? is.govde == govde : is.klasor == cagri.yol);
    });
    const auto kacKalir = son - bekleyen_.rbegin();
    const auto bitis = bekleyen_.end() - kacKalir;
    for (auto i = bekleyen_.begin(); i != bitis; ++i)
        i->uygula(kalici_);
    bekleyen_.erase(bekleyen_.begin(), bitis);
}

bool DiskModeli::Uygula(const KayitliCagri& cagri) {
    if (cagri.bas.hata != 0)
        return false;
    const auto govde = acik_.find(cagri.bas.seri);
    switch (cagri.bas.cagri) {
    case Cagri::Ac:
        Ac(cagri);
        return cagri.Degistirir();
    case Cagri::Yaz: {
        std::string& bayt = govde->second->simdi;
        govde->second->kirli = std::min<std::size_t>(govde->second->kirli, cagri.bas.konum);
        bayt.resize(std::max<std::size_t>(bayt.size(), cagri.bas.konum + cagri.veri.size()));
        bayt.replace(cagri.bas.konum, cagri.veri.size(), cagri.veri);
        return true;
    }
    case Cagri::Kes:
        govde->second->kirli = std::min<std::size_t>(govde->second->kirli, cagri.bas.konum);
        govde->second->simdi.resize(cagri.bas.konum);
        return true;
    case Cagri::Esle:
    case Cagri::HepsiniEsle:
        Esle(cagri);
        return true;
    default:
        return AdlariUygula(cagri);
    }
}

bool DiskModeli::AdlariUygula(const KayitliCagri& cagri) {
    const std::string& yol = cagri.yol;
    const std::string& hedef = cagri.hedef;
    const auto govde = acik_.find(cagri.bas.seri);
    switch (cagri.bas.cagri) {
    case Cagri::Sil:
        AdDegistir(yol, simdi_[yol], [yol](Adlar& adlar) { adlar.erase(yol); });
        return true;
    case Cagri::KlasorSil:
        AdDegistir(yol, nullptr, [ad = yol + "/"](Adlar& adlar) { adlar.erase(ad); });
        return true;
    case Cagri::KlasorYap:
        AdDegistir(yol, nullptr, [ad = yol + "/"](Adlar& adlar) { adlar[ad] = nullptr; });
        return true;
    case Cagri::Tasi:
        AdDegistir(hedef, simdi_[yol], [yol, hedef, tasinan = simdi_[yol]](Adlar& adlar) {
            adlar.erase(yol);
            adlar[hedef] = tasinan;
        });
        return true;
    case Cagri::Bagla: {
        const GovdeNo bagli = govde != acik_.end() ? govde->second : simdi_[yol];
        AdDegistir(hedef, bagli, [hedef, bagli](Adlar& adlar) { adlar[hedef] = bagli; });
        return true;
    }
    default:
        return false;
    }
}

std::vector<std::string> DiskModeli::Halleri(const Govde& govde) {
    constexpr std::size_t kSayfa = 4096;
    constexpr std::size_t kKesim = 512;
    const std::string& eski = govde.kalici;
    const std::string& yeni = govde.simdi;
    const std::size_t boy = yeni.size();
    const std::size_t kirli = std::min(govde.kirli, boy);
    const auto sonraki = [kirli](std::size_t birim) { return (kirli / birim + 1) * birim; };
    const std::string duran = yeni.substr(0, kirli);
    std::vector<std::string> haller{eski, yeni, duran, duran + std::string(boy - kirli, '\0')};
    // The first border of each kind, the last one, and one in the middle of a short text.
    for (const std::size_t sinir : {sonraki(kKesim), sonraki(kSayfa), (boy - 1) / kKesim * kKesim,
                                    (boy - 1) / kSayfa * kSayfa, (kirli + boy) / 2}) {
        if (boy == 0 || sinir <= kirli || sinir >= boy)
            continue;
        const std::string bas = yeni.substr(0, sinir);
        haller.push_back(bas);
        haller.push_back(bas + (eski.size() > sinir ? eski.substr(sinir) : std::string()));
        haller.push_back(bas + std::string(boy - sinir, '\0'));
        // Blocks may come to the disk out of their order, but none in two parts.
        if (sinir % kKesim != 0)
            continue;
        std::string onceki = eski.substr(0, sinir);
        onceki.resize(sinir, '\0');
        haller.push_back(onceki + yeni.substr(sinir));
        haller.push_back(duran + std::string(sinir - kirli, '\0') + yeni.substr(sinir));
    }
    std::set<std::string> gorulen;
    std::erase_if(haller, [&](const std::string& hal) { return !gorulen.insert(hal).second; });
    return haller;
}

DiskHali DiskModeli::Hal(const Adlar& adlar, const std::map<GovdeNo, std::string>& icerikler) const {
    DiskHali hal;
    for (const auto& [yol, govde] : adlar) {
        const bool durumda = yol.starts_with(durumKoku_);
        const std::string ad = yol.substr((durumda ? durumKoku_ : agacKoku_).size());
        const auto icerik = icerikler.find(govde);
        const std::string bayt = govde ? govde->kalici : std::string();
        (durumda ? hal.durum : hal.agac)[ad] = icerik == icerikler.end() ? bayt : icerik->second;
    }
    return hal;
}

/// Of files that can each fare in some ways the combinations, by the numbers of those ways: all when they are
/// few, otherwise as `Haller` says.
static std::vector<std::vector<std::size_t>> Birlesimler(const std::vector<std::size_t>& adetler,
                                                         std::size_t enCok) {
    std::size_t hepsi = 1;
    std::size_t enUzun = 1;
    for (const std::size_t adet : adetler) {
        hepsi = std::min(hepsi * adet, enCok + 1);
        enUzun = std::max(enUzun, adet);
    }
    std::vector<std::vector<std::size_t>> sonuc;
    if (hepsi <= enCok) {
        for (std::size_t no = 0; no < hepsi; ++no) {
            std::vector<std::size_t>& biri = sonuc.emplace_back();
            std::size_t kalan = no;
            for (const std::size_t adet : adetler) {
                biri.push_back(kalan % adet);
                kalan /= adet;
            }
        }
        return sonuc;
    }
    const auto ekle = [&](std::size_t otekiler, std::size_t dosya, std::size_t hal) {
        std::vector<std::size_t>& biri = sonuc.emplace_back();
        for (std::size_t i = 0; i < adetler.size(); ++i)
            biri.push_back(std::min(i == dosya ? hal : otekiler, adetler[i] - 1));
    };
    for (std::size_t hal = 0; hal < enUzun; ++hal)
        ekle(hal, 0, hal);
    for (std::size_t i = 0; i < adetler.size(); ++i)
        for (std::size_t hal = 0; hal < adetler[i]; ++hal)
            for (const std::size_t otekiler : {0U, 1U})
                ekle(otekiler, i, hal);
    std::mt19937 rastgele(static_cast<unsigned>(adetler.size()));
    while (sonuc.size() < enCok) {
        std::vector<std::size_t>& biri = sonuc.emplace_back();
        for (const std::size_t adet : adetler)
            biri.push_back(rastgele() % adet);
    }
    return sonuc;
}

void DiskModeli::AdHalindeki(const Adlar& adlar, std::size_t enCok,
                             const std::function<void(const DiskHali&)>& ver) const {
    std::vector<GovdeNo> govdeler;
    std::vector<std::vector<std::string>> haller;
    for (const auto& [yol, govde] : adlar)
        if (govde && govde->kalici != govde->simdi &&
            std::find(govdeler.begin(), govdeler.end(), govde) == govdeler.end()) {
            govdeler.push_back(govde);
            haller.push_back(Halleri(*govde));
        }
    std::vector<std::size_t> adetler;
    adetler.reserve(haller.size());
    for (const auto& biri : haller)
        adetler.push_back(biri.size());
    for (const auto& birlesim : Birlesimler(adetler, enCok)) {
        std::map<GovdeNo, std::string> icerikler;
        for (std::size_t i = 0; i < govdeler.size(); ++i)
            icerikler[govdeler[i]] = haller[i][birlesim[i]];
        ver(Hal(adlar, icerikler));
    }
}

void DiskModeli::Haller(std::size_t enCok, const std::function<void(const DiskHali&)>& ver) const {
    Adlar adlar = kalici_;
    AdHalindeki(adlar, enCok, ver);
    for (const AdIsi& is : bekleyen_) {
        is.uygula(adlar);
        AdHalindeki(adlar, enCok, ver);
    }
}

} // namespace velora::dayanim
