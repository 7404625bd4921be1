#include "online/Istekler.h"

#include <array>
#include <cassert>

namespace velora {

namespace {

constexpr std::array<MetinBakis, 1> kSurumIle{u"ver"};
constexpr std::array<MetinBakis, 1> kFirmaIle{u"firmaid"};
constexpr std::array<MetinBakis, 14> kProfilIle{u"firmaid", u"a1", u"a2", u"a3",  u"a4",  u"a5",  u"a6",
                                                u"a7",      u"a8", u"a9", u"a10", u"a11", u"a12", u"a13"};
constexpr std::array<MetinBakis, 2> kRezervasyonIle{u"firmaid", u"id"};
constexpr std::array<MetinBakis, 3> kYilIle{u"firmaid", u"salonid", u"sene"};
constexpr std::array<MetinBakis, 2> kSalonIle{u"firmaid", u"salonisim"};
constexpr std::array<MetinBakis, 7> kGozIle{u"firmaid",    u"salonid", u"salonisim", u"tarih",
                                            u"gunduzgece", u"durum",   u"sene"};
constexpr std::array<MetinBakis, 4> kOneriIle{u"firmaid", u"firmaunvani", u"eposta", u"mesaj"};

const std::array<IstekTanimi, 14> kIstekler{{
    {Istek::InternetKontrol, &Adresler::servis, u"internetkontrol.php", kSurumIle},
    {Istek::Yayindami, &Adresler::servis, u"yayindami.php", kFirmaIle},
    {Istek::FirmaKontrol, &Adresler::servis, u"firmakontrol.php", kProfilIle},
    {Istek::Duyuru, &Adresler::servis, u"duyuru.php", kFirmaIle},
    {Istek::Duyurular, &Adresler::servis, u"duyurular.php", {}},
    {Istek::DuyuruOkundu, &Adresler::servis, u"duyuruokundu.php", kFirmaIle},
    {Istek::RezKontrol, &Adresler::servis, u"rezkontrol.php", kFirmaIle},
    {Istek::RezOkundu, &Adresler::servis, u"rezokundu.php", kRezervasyonIle},
    {Istek::RezSil, &Adresler::servis, u"rezsil.php", kRezervasyonIle},
    {Istek::Temizle, &Adresler::servis, u"temizle.php", kYilIle},
    {Istek::SalonEkle, &Adresler::servis, u"salonekle.php", kSalonIle},
    {Istek::Save, &Adresler::servis, u"save.php", kGozIle},
    {Istek::OneriKaydet, &Adresler::servis, u"onerikaydet.php", kOneriIle},
    {Istek::Versiyon, &Adresler::site, u"versiyon.php", kSurumIle},
}};

Metin AdresiYaz(const Adresler& adresler, Istek istek, std::span<const Metin> degerler) {
    const IstekTanimi& tanim = kIstekler.at(static_cast<std::size_t>(istek));
    assert(degerler.size() == tanim.anahtarlar.size());
    Metin adres = YerAdresi(adresler.*tanim.yer, tanim.betik);
    if (adres.empty())
        return {};
    char16_t ayrac = u'?';
    for (std::size_t i = 0; i < tanim.anahtarlar.size(); ++i) {
        adres += ayrac;
        adres.append(tanim.anahtarlar[i]).append(u"=").append(degerler[i]);
        ayrac = u'&';
    }
    return adres;
}

} // namespace

std::span<const IstekTanimi> Istekler() {
    return kIstekler;
}

Metin IstekAdresi(const Program& program, Istek istek, std::span<const Metin> degerler) {
    return AdresiYaz(AdresleriOku(program), istek, degerler);
}

Metin IstekAdresi(const Program& program, Istek istek, std::initializer_list<Metin> degerler) {
    return IstekAdresi(program, istek, std::span(degerler.begin(), degerler.size()));
}

Metin IstekAdresi(const Adresler& adresler, Istek istek, std::initializer_list<Metin> degerler) {
    return AdresiYaz(adresler, istek, std::span(degerler.begin(), degerler.size()));
}

} // namespace velora
