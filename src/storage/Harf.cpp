#include "storage/Harf.h"

#include <algorithm>
#include <array>

namespace velora {
namespace {

struct Cift {
    char16_t kucuk;
    char16_t buyuk;
};

// The pairs that lie a fixed way apart are told by a rule; these are the others.
constexpr std::array<Cift, 5> kCiftler{
    {{u'ğ', u'Ğ'}, {u'ş', u'Ş'}, {u'š', u'Š'}, {u'œ', u'Œ'}, {u'ÿ', u'Ÿ'}}};
constexpr std::array<Cift, 2> kTurkce{{{u'i', u'İ'}, {u'ı', u'I'}}};

constexpr char16_t kAralik = u'a' - u'A';

bool Arasinda(char16_t harf, char16_t ilk, char16_t son) {
    return ilk <= harf && harf <= son;
}

template <std::size_t Adet>
char16_t Ara(const std::array<Cift, Adet>& ciftler, char16_t Cift::*neyi, char16_t Cift::*neye,
             char16_t harf) {
    const auto cift =
        std::find_if(ciftler.begin(), ciftler.end(), [&](const Cift& c) { return c.*neyi == harf; });
    return cift == ciftler.end() ? harf : (*cift).*neye;
}

bool KelimeAyirici(char16_t harf) {
    return harf == u' ' || harf == u'\t' || harf == u'\r' || harf == u'\n';
}

template <class Donusum>
Metin HerHarf(MetinBakis metin, Donusum donusum) {
    Metin sonuc(metin);
    std::transform(sonuc.begin(), sonuc.end(), sonuc.begin(), donusum);
    return sonuc;
}

} // namespace

char16_t SiraHarfi(char16_t harf) {
    return harf < u'ÿ' ? SikSiraHarfi(harf) : Ara(kCiftler, &Cift::kucuk, &Cift::buyuk, harf);
}

char16_t BuyukHarf(char16_t harf) {
    const char16_t turkce = Ara(kTurkce, &Cift::kucuk, &Cift::buyuk, harf);
    return turkce != harf ? turkce : SiraHarfi(harf);
}

char16_t KucukHarf(char16_t harf) {
    const char16_t turkce = Ara(kTurkce, &Cift::buyuk, &Cift::kucuk, harf);
    if (turkce != harf)
        return turkce;
    if (Arasinda(harf, u'A', u'Z') || (Arasinda(harf, u'À', u'Þ') && harf != u'×'))
        return static_cast<char16_t>(harf + kAralik);
    return Ara(kCiftler, &Cift::buyuk, &Cift::kucuk, harf);
}

Metin Kucult(MetinBakis metin) {
    return HerHarf(metin, KucukHarf);
}

void Kucult(MetinBakis metin, Metin& hedef) {
    hedef.resize(metin.size());
    std::ranges::transform(metin, hedef.begin(), KucukHarf);
}

Metin Buyut(MetinBakis metin) {
    return HerHarf(metin, BuyukHarf);
}

Metin BuyukBas(MetinBakis metin) {
    bool basta = true;
    return HerHarf(metin, [&basta](char16_t harf) {
        const char16_t yeni = basta ? BuyukHarf(harf) : KucukHarf(harf);
        basta = KelimeAyirici(harf);
        return yeni;
    });
}

Metin SozlukSirasi(MetinBakis metin) {
    constexpr MetinBakis kAlfabe = u"aâbcçdefgğhıiîjklmnoöpqrsştuûüvwxyz";
    constexpr char16_t kHarfler = 0x400; // behind all signs
    return HerHarf(metin, [&](char16_t harf) {
        const std::size_t yer = kAlfabe.find(KucukHarf(harf));
        return yer == MetinBakis::npos ? harf : static_cast<char16_t>(kHarfler + yer);
    });
}

} // namespace velora
