#include "screen/Kontroller.h"

#include <algorithm>
#include <utility>

#include "screen/Bayrak.h"
#include "storage/Harf.h"

namespace velora {

namespace {

void SiradanSil(std::vector<Metin>& ogeler, int& secili, int sira) {
    if (sira < 0 || sira >= static_cast<int>(ogeler.size()))
        return;
    ogeler.erase(ogeler.begin() + sira);
    if (sira == secili)
        secili = -1;
    else if (sira < secili)
        --secili;
}

} // namespace

void TarihSecici::Sec(const Gun& gun) {
    if (std::exchange(deger, gun) != gun && degisti)
        degisti();
}

void TarihSecici::Sinirla(const Gun& ilk, const Gun& son) {
    enKucuk = ilk;
    enBuyuk = son;
    deger = std::clamp(deger, ilk, son);
}

int AcilirListe::Bul(MetinBakis metin) const {
    const auto yer = std::find(ogeler.begin(), ogeler.end(), metin);
    return yer == ogeler.end() ? -1 : static_cast<int>(yer - ogeler.begin());
}

void AcilirListe::Tikla(int sira) {
    if (sira < 0 || sira >= static_cast<int>(ogeler.size()))
        return;
    secili = sira;
    if (tiklandi)
        tiklandi();
}

void AcilirListe::Sec(int sira) {
    if (sira != secili)
        Tikla(sira);
}

void AcilirListe::Sec(MetinBakis metin) {
    if (secili >= 0 && Metni() == metin)
        return;
    Sec(Bul(metin));
}

void AcilirListe::SessizSec(MetinBakis metin) {
    const int sira = Bul(metin);
    if (sira >= 0)
        secili = sira;
}

void AcilirListe::MetinAta(MetinBakis metin) {
    secili = Bul(metin);
    serbest = metin;
}

void AcilirListe::Sil(int sira) {
    if (secili >= 0 && sira == secili)
        serbest.clear();
    SiradanSil(ogeler, secili, sira);
}

void ListeKutusu::Sil(int sira) {
    SiradanSil(ogeler, secili, sira);
}

SatirListesi& SatirListesi::operator=(SatirListesi oteki) {
    satirlar_ = std::move(oteki.satirlar_);
    ++degisme_;
    return *this;
}

void SatirListesi::push_back(ListeSatiri satir) {
    satirlar_.push_back(std::move(satir));
    ++degisme_;
}

void SatirListesi::erase(std::size_t sira) {
    satirlar_.erase(satirlar_.begin() + static_cast<std::ptrdiff_t>(sira));
    ++degisme_;
}

void SatirListesi::clear() {
    satirlar_.clear();
    ++degisme_;
}

void SatirListesi::Degistir(std::size_t sira, ListeSatiri satir) {
    satirlar_.at(sira) = std::move(satir);
    ++degisme_;
}

Metin ListeGorunumu::Ozeti(MetinBakis yil) const {
    return SayiMetni(static_cast<long long>(satirlar.size())) + u" kayıt · " + Metin(yil);
}

std::optional<IsaretliSatir> ListeGorunumu::Isaretli() const {
    const ListeSatiri* satir = Secili();
    if (satir == nullptr || satir->sutun.empty())
        return {};
    IsaretliSatir isaretli{satir->tag, satir->sutun.front()};
    isaretli.oncekiler = std::count_if(satirlar.begin(), satirlar.begin() + secili,
                                       [&](const ListeSatiri& s) { return isaretli.Bu(s); });
    return isaretli;
}

void ListeGorunumu::YenidenIsaretle(const std::optional<IsaretliSatir>& satir) {
    secili = -1;
    if (!satir)
        return;
    auto kalan = satir->oncekiler;
    for (auto yer = satirlar.begin(); yer != satirlar.end() && kalan >= 0; ++yer)
        if (satir->Bu(*yer)) {
            secili = static_cast<int>(yer - satirlar.begin());
            --kalan;
        }
}

void ListeGorunumu::Temizle() {
    satirlar.clear();
    secili = -1;
}

void ListeGorunumu::SeciliyiSil() {
    if (Secili() != nullptr)
        Sil(secili);
    secili = -1;
}

void ListeGorunumu::Sil(int sira) {
    satirlar.erase(static_cast<std::size_t>(sira));
    if (secili == sira)
        secili = -1;
    else if (secili > sira)
        --secili;
}

void Zamanlayici::Kur(int milisaniye) {
    aralik = milisaniye;
    ++kurulus;
}

void Zamanlayici::Calis() {
    if (icinde_ || aralik == 0 || !tik)
        return;
    const Bayrak icinde(icinde_);
    tik();
}

void ListeGorunumu::Sirala(int sutun) {
    siralama = {sutun, siralama.sutun == sutun && !siralama.azalan};
    const auto anahtar = [sutun](const ListeSatiri& satir) {
        const auto yer = static_cast<std::size_t>(sutun);
        return yer < satir.sutun.size() ? SozlukSirasi(satir.sutun[yer]) : Metin();
    };
    std::vector<std::pair<Metin, std::size_t>> yerler; // what a row is sorted by, where it stands
    for (const ListeSatiri& satir : satirlar)
        yerler.emplace_back(anahtar(satir), yerler.size());
    std::ranges::stable_sort(yerler, [azalan = siralama.azalan](const auto& bir, const auto& iki) {
        return azalan ? iki.first < bir.first : bir.first < iki.first;
    });
    std::vector<ListeSatiri> siralanan;
    int isaretli = -1;
    for (const auto& [metin, yer] : yerler) {
        if (static_cast<int>(yer) == secili)
            isaretli = static_cast<int>(siralanan.size());
        siralanan.push_back(satirlar[yer]);
    }
    secili = isaretli;
    satirlar = SatirListesi(std::move(siralanan));
}

} // namespace velora
