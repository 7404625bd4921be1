#pragma once

#include <gtest/gtest.h>

#include "screen/Sayfa.h"
#include "storage/Sayi.h"

namespace velora::test {

/// Letters of one width, half as wide as high; bold ones are a fifth wider.
inline double EsitEnli(MetinBakis metin, const SayfaYazisi& yazi) {
    return static_cast<double>(metin.size()) * yazi.punto * 25.4 / 72 / 2 * (yazi.kalin ? 1.2 : 1);
}

/// Nothing leaves the margins of the paper, `kenar` in millimetres, no text is wider or higher than its
/// place, and no two texts lie over each other.
inline void SayfalarDuzgunOlmali(const std::vector<Sayfa>& sayfalar, double kenar = 15,
                                 const YaziOlcer& olcer = EsitEnli) {
    constexpr double kPay = 1e-3;
    for (const Sayfa& sayfa : sayfalar) {
        EXPECT_FALSE(sayfa.parcalar.empty());
        for (std::size_t i = 0; i < sayfa.parcalar.size(); ++i) {
            const SayfaParcasi& parca = sayfa.parcalar[i];
            SCOPED_TRACE(testing::PrintToString(parca.ad));
            EXPECT_GE(parca.yer.sol, kenar - kPay);
            EXPECT_GE(parca.yer.ust, kenar - kPay);
            EXPECT_LE(parca.yer.Sag(), sayfa.En() - kenar + kPay);
            EXPECT_LE(parca.yer.Alt(), sayfa.Boy() - kenar + kPay);
            const double yaziBoyu = static_cast<double>(parca.satirlar.size()) * SatirBoyu(parca.yazi);
            EXPECT_TRUE(parca.tur == ParcaTuru::Cerceve || yaziBoyu <= parca.yer.boy + kPay);
            for (const Metin& satir : parca.satirlar)
                EXPECT_LE(olcer(satir, parca.yazi), parca.yer.en + kPay);
            for (std::size_t j = 0; j < i && parca.tur == ParcaTuru::Yazi; ++j) {
                const SayfaYeri& oteki = sayfa.parcalar[j].yer;
                const bool ayri = oteki.Alt() <= parca.yer.ust + kPay ||
                                  parca.yer.Alt() <= oteki.ust + kPay ||
                                  oteki.Sag() <= parca.yer.sol + kPay || parca.yer.Sag() <= oteki.sol + kPay;
                EXPECT_TRUE(ayri || sayfa.parcalar[j].tur == ParcaTuru::Cerceve)
                    << testing::PrintToString(sayfa.parcalar[j].ad);
            }
        }
    }
}

/// So many letters in words and lines, no two words alike.
inline Metin UzunMetin(std::size_t harf) {
    Metin metin;
    for (int sira = 1; metin.size() < harf; ++sira)
        metin += SayiMetni(sira) + (sira % 40 == 0 ? u".\r\n" : u" ğüşıöç ");
    return metin.substr(0, harf);
}

/// Without what a page may break a text at.
inline Metin Bosluksuz(Metin metin) {
    std::erase_if(metin, [](char16_t harf) { return harf == u' ' || harf == u'\r' || harf == u'\n'; });
    return metin;
}

/// All that a field shows, over all pages, its lines put together without what breaks them.
inline Metin BosluksuzMetin(const std::vector<Sayfa>& sayfalar, MetinBakis ad) {
    Metin metin;
    for (const Sayfa& sayfa : sayfalar)
        for (const SayfaParcasi& parca : sayfa.parcalar)
            if (parca.ad == ad)
                for (const Metin& satir : parca.satirlar)
                    metin += satir;
    std::erase(metin, u' ');
    return metin;
}

} // namespace velora::test
