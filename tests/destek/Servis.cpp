#include "destek/Servis.h"

#include <algorithm>

#include "storage/KodSayfasi.h"

namespace velora::test {

struct Servis::Betik {
    std::string_view ad;
    std::vector<std::string_view> anahtarlar;
    Metin (Servis::*isle)(const Degerler&);
};

const std::vector<Servis::Betik>& Servis::Betikleri() {
    using S = Servis;
    static const std::vector<Betik> betikler{
        {"internetkontrol.php", {"ver"}, &S::InternetKontrol},
        {"yayindami.php", {"firmaid"}, &S::Yayindami},
        {"firmakontrol.php",
         {"firmaid", "a1", "a2", "a3", "a4", "a5", "a6", "a7", "a8", "a9", "a10", "a11", "a12", "a13"},
         &S::FirmaKontrol},
        {"duyuru.php", {"firmaid"}, &S::Duyuru},
        {"duyurular.php", {}, &S::Duyurular},
        {"duyuruokundu.php", {"firmaid"}, &S::DuyuruOkundu},
        {"rezkontrol.php", {"firmaid"}, &S::RezKontrol},
        {"rezokundu.php", {"firmaid", "id"}, &S::RezOkundu},
        {"rezsil.php", {"firmaid", "id"}, &S::RezSil},
        {"temizle.php", {"firmaid", "salonid", "sene"}, &S::Temizle},
        {"salonekle.php", {"firmaid", "salonisim"}, &S::SalonEkle},
        {"save.php", {"firmaid", "salonid", "salonisim", "tarih", "gunduzgece", "durum", "sene"}, &S::Save},
        {"onerikaydet.php", {"firmaid", "firmaunvani", "eposta", "mesaj"}, &S::OneriKaydet},
    };
    return betikler;
}

namespace {

/// The values of a query, if it has these keys in this order. What a value with "&" in it leaves behind
/// counts for nothing.
std::optional<std::vector<Metin>> SorguDegerleri(std::string_view sorgu,
                                                 const std::vector<std::string_view>& anahtarlar) {
    std::vector<Metin> degerler;
    while (!sorgu.empty() && degerler.size() < anahtarlar.size()) {
        const std::string_view parca = sorgu.substr(0, sorgu.find('&'));
        sorgu.remove_prefix(std::min(parca.size() + 1, sorgu.size()));
        const std::size_t esit = parca.find('=');
        if (esit != std::string_view::npos && parca.substr(0, esit) == anahtarlar[degerler.size()])
            degerler.push_back(KodCoz(parca.substr(esit + 1)));
    }
    if (degerler.size() != anahtarlar.size())
        return std::nullopt;
    return degerler;
}

} // namespace

std::optional<std::string> Servis::Cevapla(std::string_view hedef) {
    if (kopuk)
        return std::nullopt;
    const std::string_view yol = hedef.substr(0, hedef.find('?'));
    const std::string_view sorgu = hedef.substr(std::min(yol.size() + 1, hedef.size()));
    const std::size_t adBasi = yol.rfind('/') + 1;
    gelenler.push_back(KodCoz(hedef.substr(adBasi)));
    const auto betik = std::ranges::find(Betikleri(), yol.substr(adBasi), &Betik::ad);
    if (betik == Betikleri().end())
        return std::nullopt;
    const auto degerler = SorguDegerleri(sorgu, betik->anahtarlar);
    if (!degerler)
        return std::nullopt;
    return KodYaz((this->*betik->isle)(*degerler));
}

Metin Servis::Getir(const AgIstegi& istek) {
    const std::string adres = KodYaz(istek.adres);
    const std::size_t konakSonu = adres.find('/', adres.find("//") + 2);
    return KodCoz(Cevapla(std::string_view(adres).substr(std::min(konakSonu, adres.size()))).value_or(""));
}

std::vector<std::string> Servis::Betikler() const {
    std::vector<std::string> betikler;
    for (const Metin& gelen : gelenler)
        betikler.push_back(KodYaz(MetinBakis(gelen).substr(0, gelen.find(u'?'))));
    return betikler;
}

Metin Servis::InternetKontrol(const Degerler& /*d*/) {
    return u"OKEY";
}

Metin Servis::Yayindami(const Degerler& d) {
    return firmalar[d[0]].yayinda ? u"OKEY" : u"YOK";
}

Metin Servis::FirmaKontrol(const Degerler& d) {
    firmalar[d[0]].profil.assign(d.begin() + 1, d.end());
    return {};
}

Metin Servis::Duyuru(const Degerler& d) {
    return firmalar[d[0]].duyuruVar ? u"1" : u"0";
}

Metin Servis::Duyurular(const Degerler& /*d*/) {
    return duyurular;
}

Metin Servis::DuyuruOkundu(const Degerler& d) {
    firmalar[d[0]].duyuruVar = false;
    return {};
}

Metin Servis::RezKontrol(const Degerler& d) {
    Metin cevap;
    for (const auto& [no, alanlar] : firmalar[d[0]].istekler) {
        if (!cevap.empty())
            cevap += u"<br>";
        cevap.append(no).append(u"|").append(alanlar);
    }
    return cevap.empty() ? u"0" : cevap;
}

Metin Servis::RezOkundu(const Degerler& d) {
    Firma& firma = firmalar[d[0]];
    if (std::erase_if(firma.istekler, [&](const auto& istek) { return istek.first == d[1]; }) > 0)
        firma.devralinanlar.push_back(d[1]);
    return {};
}

Metin Servis::RezSil(const Degerler& d) {
    std::erase_if(firmalar[d[0]].istekler, [&](const auto& istek) { return istek.first == d[1]; });
    return {};
}

Metin Servis::Temizle(const Degerler& d) {
    firmalar[d[0]].yillar[{d[1], d[2]}].clear();
    return {};
}

Metin Servis::SalonEkle(const Degerler& d) {
    auto& salonlar = firmalar[d[0]].salonlar;
    if (std::ranges::find(salonlar, d[1]) == salonlar.end())
        salonlar.push_back(d[1]);
    return {};
}

Metin Servis::Save(const Degerler& d) {
    auto& gozler = firmalar[d[0]].yillar[{d[1], d[6]}];
    std::erase_if(gozler, [&](const Goz& goz) { return goz.tarih == d[3] && goz.dilim == d[4]; });
    gozler.push_back({.salon = d[2], .tarih = d[3], .dilim = d[4], .durum = d[5]});
    return {};
}

Metin Servis::OneriKaydet(const Degerler& d) {
    firmalar[d[0]].oneriler.push_back(d[3]);
    return u"OK";
}

} // namespace velora::test
