#include "storage/xls/HucreMetni.h"

#include <algorithm>
#include <numeric>

#include "storage/Harf.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr std::size_t kEnUzunHucre = 32767;
constexpr char16_t kYerTutan = u'\xFFFD';

bool BasYarim(char16_t harf) {
    return 0xD800 <= harf && harf < 0xDC00;
}

bool SonYarim(char16_t harf) {
    return 0xDC00 <= harf && harf < 0xE000;
}

bool OnlukRakam(char16_t harf) {
    return u'0' <= harf && harf <= u'9';
}

std::size_t HarfEni(char16_t harf) {
    const bool genis = harf == u'm' || harf == u'w' || harf == u'@' || KucukHarf(harf) != harf;
    return genis ? 14 : 10;
}

} // namespace

Metin XlsMetni(MetinBakis metin) {
    Metin sonuc;
    sonuc.reserve(std::min(metin.size(), kEnUzunHucre));
    for (std::size_t i = 0; i < metin.size() && sonuc.size() < kEnUzunHucre; ++i) {
        const char16_t harf = metin[i];
        const char16_t sonraki = i + 1 < metin.size() ? metin[i + 1] : u'\0';
        if (BasYarim(harf) && SonYarim(sonraki)) {
            if (sonuc.size() + 2 > kEnUzunHucre)
                break; // the pair isn't cut in two
            sonuc += harf;
            sonuc += sonraki;
            ++i;
        } else if (harf == u'\r') {
            sonuc += u'\n';
            i += sonraki == u'\n' ? 1 : 0;
        } else if (BasYarim(harf) || SonYarim(harf)) {
            sonuc += kYerTutan;
        } else {
            sonuc += harf < u' ' && harf != u'\n' ? u' ' : harf;
        }
    }
    return sonuc;
}

std::optional<double> DuzSayi(MetinBakis metin) {
    constexpr std::size_t kEnCokHane = 15; // a double holds so many exactly
    MetinBakis sayi = metin;
    if (sayi.starts_with(u'-'))
        sayi.remove_prefix(1);
    const std::size_t nokta = std::min(sayi.find(u'.'), sayi.size());
    const MetinBakis tam = sayi.substr(0, nokta);
    const MetinBakis kesir = sayi.substr(std::min(nokta + 1, sayi.size()));
    const bool rakamlar = std::ranges::all_of(tam, OnlukRakam) && std::ranges::all_of(kesir, OnlukRakam);
    const bool tamUygun = !tam.empty() && (tam == u"0" || tam.front() != u'0');
    const bool kesirUygun = nokta == sayi.size() || kesir.size() == 1 || kesir.size() == 2;
    if (!rakamlar || !tamUygun || !kesirUygun || tam.size() + kesir.size() > kEnCokHane)
        return {};
    return SayisalDeger(metin);
}

XlsMetinBoyu XlsBoyu(MetinBakis metin) {
    XlsMetinBoyu boy;
    const Metin yazilan = XlsMetni(metin);
    for (MetinBakis kalan = yazilan; boy.satir == 0 || !kalan.empty();) {
        const MetinBakis satir = kalan.substr(0, kalan.find(u'\n'));
        kalan.remove_prefix(std::min(satir.size() + 1, kalan.size()));
        const std::size_t en =
            std::accumulate(satir.begin(), satir.end(), std::size_t{0},
                            [](std::size_t toplam, char16_t harf) { return toplam + HarfEni(harf); });
        boy.en = std::max(boy.en, en);
        boy.satir += std::max<std::size_t>(1, (en + kEnGenisXlsSutunu - 1) / kEnGenisXlsSutunu);
    }
    return boy;
}

} // namespace velora
