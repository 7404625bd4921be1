#pragma once

#include <gtest/gtest.h>

#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "setup/FormAyarlar.h"

namespace velora::test {

inline constexpr auto kGunduz = velora::GunduzGece::Gunduz;
inline constexpr auto kGece = velora::GunduzGece::Gece;

/// A firm with one hall on Friday, 15 June 2012.
class TabloTest : public ::testing::Test {
  protected:
    TabloTest() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n"); }

    /// A reservation of hall A in 2012; `ad` is its day file name.
    void RezervasyonKoy(const Metin& ad, const OrnekKayit& kayit = {}, bool on = false) {
        KayitKoy(agac, u"Salon A/2012/" + ad, kayit, on);
    }
    void AyarKoy(int alan, MetinBakis deger) {
        agac.KoyMetin(u"Settings.dll", AyarMetni(alan, deger));
        agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
    }
    void AyKapat(int ay) {
        Metin aylar = u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n";
        aylar[static_cast<std::size_t>(2 * (ay - 1))] = u'0';
        agac.KoyMetin(u"Settings.dll", AyarMetni());
        agac.KoyMetin(u"Visible.dll", aylar);
    }
    /// The back and fore colour of a cell are these two slots of the colour list.
    void RenkOlmali(int gun, int ay, velora::GunduzGece dilim, int zemin, int yazi) {
        const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
        EXPECT_EQ(kullanici.Goz(gun, ay, dilim).zemin, ayarlar->Renk(zemin)) << gun << '.' << ay;
        EXPECT_EQ(kullanici.Goz(gun, ay, dilim).yazi, ayarlar->Renk(yazi)) << gun << '.' << ay;
    }

    /// What a deed does on the disk to tell whether a scan came before the look at today, by its first
    /// letters: "d"eleting, "l"isting the year, "b"eing asked for one of today's files.
    std::string DiskteSirasi(const std::function<void()>& is) {
        std::string sira;
        kullanici.Prog().dosyalar.ariza = [&](DosyaIsi isi, const Metin& yol) {
            if (isi == DosyaIsi::Sil)
                sira += 'd';
            else if (isi == DosyaIsi::Listele)
                sira += 'l';
            else if (isi == DosyaIsi::VarMi && yol.find(u"15.06.2012") != Metin::npos)
                sira += 'b';
            return false;
        };
        is();
        kullanici.Prog().dosyalar.ariza = nullptr;
        return sira;
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

} // namespace velora::test
