#include "screen/GirdiKurali.h"

#include <algorithm>

#include "screen/Kontroller.h"
#include "storage/KodSayfasi.h"

namespace velora {

namespace {

constexpr MetinBakis kRakamlar = u"0123456789";
constexpr MetinBakis kSatirSonu = u"\r\n";
constexpr MetinBakis kRakamSayilanlar = u"\u00B2\u00B3\u00B9\u00BC\u00BD\u00BE"; // superscripts and fractions

bool MaskedeDurur(char16_t harf) {
    return harf >= u'0' && harf <= u'9';
}

bool SatirSonu(char16_t harf) {
    return MetinBakis(u"\n\r\u2028\u2029").find(harf) != MetinBakis::npos;
}

bool DenetimHarfi(char16_t harf) {
    return harf < 0x20 || (harf >= 0x7F && harf < 0xA0);
}

/// Two units that are one character.
bool BirKarakter(char16_t ilk, char16_t sonraki) {
    const bool ust = ilk >= 0xD800 && ilk < 0xDC00;
    const bool alt = sonraki >= 0xDC00 && sonraki < 0xE000;
    return (ust && alt) || (ilk == kSatirSonu[0] && sonraki == kSatirSonu[1]);
}

/// The text as the field holds it, with a line break as one character.
Metin Uydur(MetinBakis gelen, bool cokSatirli) {
    Metin uygun;
    for (std::size_t i = 0; i < gelen.size(); ++i) {
        const char16_t harf = gelen[i];
        if (SatirSonu(harf))
            uygun += cokSatirli ? u'\n' : u' ';
        else if (!cokSatirli && DenetimHarfi(harf))
            uygun += u' ';
        else
            uygun += KodVar(harf) ? harf : u'?';
        if (i + 1 < gelen.size() && BirKarakter(harf, gelen[i + 1]))
            ++i;
    }
    return uygun;
}

/// The first characters of a text, not more than fit, and no half of a line break.
Metin Sigan(MetinBakis metin, std::size_t enCok) {
    Metin sigan;
    for (const char16_t harf : metin) {
        const MetinBakis birim = harf == u'\n' ? kSatirSonu : MetinBakis(&harf, 1);
        if (sigan.size() + birim.size() > enCok)
            break;
        sigan += birim;
    }
    return sigan;
}

} // namespace

GirdiKurali KutununKurali(const MetinKutusu& kutu, bool cokSatirli) {
    return {.izin = kutu.suzgec, .enUzun = kutu.enUzun, .cokSatirli = cokSatirli};
}

Metin GirdiyiKoy(MetinBakis ust, MetinBakis gelen, MetinBakis alt, const GirdiKurali& kural) {
    Metin giren = Uydur(gelen, kural.cokSatirli);
    if (kural.izin != nullptr)
        std::erase_if(giren, [&kural](char16_t harf) { return !kural.izin(harf); });
    const std::size_t duran = ust.size() + alt.size();
    const auto sinir = static_cast<std::size_t>(std::max(kural.enUzun, 0));
    const std::size_t yer = sinir > duran ? sinir - duran : 0;
    Metin metin(ust);
    metin += Sigan(giren, sinir == 0 ? Metin::npos : yer);
    if (kural.cokSatirli && metin.ends_with(kSatirSonu[0]) && alt.starts_with(kSatirSonu[1]))
        metin += kSatirSonu[1]; // two line breaks stay two
    return metin.append(alt);
}

Metin TutarOlarak(MetinBakis gelen) {
    constexpr MetinBakis kAyraclar = u".,";
    const std::size_t ilk = gelen.find_first_of(kRakamlar);
    if (ilk == MetinBakis::npos)
        return Metin(gelen);
    MetinBakis sayi = gelen.substr(ilk, gelen.find_last_of(kRakamlar) + 1 - ilk);
    if (sayi.find_first_not_of(u"0123456789., ") != MetinBakis::npos)
        return Metin(gelen);
    if (const std::size_t son = sayi.find_last_of(kAyraclar); son != MetinBakis::npos) {
        const std::size_t once = sayi.find_first_of(kAyraclar);
        constexpr std::size_t kBinlik = 3;
        if (sayi.size() - son - 1 != kBinlik || sayi[once] != sayi[son])
            sayi = sayi.substr(0, son);
    }
    Metin tam(sayi);
    std::erase_if(tam, [](char16_t harf) { return !MaskedeDurur(harf); });
    return tam;
}

Metin TuslananMetin(MetinBakis tuslanan, HarfIzni izin) {
    Metin giren(tuslanan);
    std::erase_if(giren, [izin](char16_t harf) {
        return !KodVar(harf) || (izin != nullptr && !DenetimHarfi(harf) && !izin(harf));
    });
    return giren;
}

bool MaskeTusu(char16_t harf) {
    return kRakamSayilanlar.find(harf) == MetinBakis::npos;
}

Metin MaskeyiSuz(MetinBakis maske, MetinBakis eski, Metin yeni) {
    for (std::size_t i = 0; i < std::min(maske.size(), yeni.size()); ++i) {
        const bool duran = i < eski.size() && yeni[i] == eski[i];
        if (maske[i] == kMaskeRakami && !duran && !MaskedeDurur(yeni[i]))
            yeni[i] = kBosYer;
    }
    return yeni;
}

std::optional<Metin> MaskeyeOturt(MetinBakis maske, MetinBakis yapistirilan) {
    constexpr std::size_t kYilYeri = 4;
    Metin dolu;
    std::size_t yer = 0; // in what was pasted
    for (std::size_t i = 0; i < maske.size();) {
        if (maske[i] != kMaskeRakami) {
            dolu += maske[i++];
            continue;
        }
        const std::size_t son = std::min(maske.find_first_not_of(kMaskeRakami, i), maske.size());
        const std::size_t ilk = yapistirilan.find_first_of(kRakamlar, yer);
        if (ilk == MetinBakis::npos)
            return std::nullopt;
        yer = std::min(yapistirilan.find_first_not_of(kRakamlar, ilk), yapistirilan.size());
        const std::size_t adet = yer - ilk;
        if (adet > son - i || (son - i == kYilYeri && adet != kYilYeri))
            return std::nullopt;
        dolu.append(son - i - adet, u'0').append(yapistirilan.substr(ilk, adet));
        i = son;
    }
    if (yapistirilan.find_first_of(kRakamlar, yer) != MetinBakis::npos)
        return std::nullopt;
    return dolu;
}

} // namespace velora
