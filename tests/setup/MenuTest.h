#pragma once

#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"

namespace velora::test {

/// What is done on the two screens of the menus.
class MenuTest : public ::testing::Test {
  protected:
    using Satirlar = std::vector<std::vector<Metin>>;

    FormMenuAyar& Menuler() { return *program.FormMenuAyar.Tut(); }
    FormMenuEkle& Ekle() { return *program.FormMenuEkle.Tut(); }
    Satirlar Liste() {
        Satirlar satirlar;
        for (const ListeSatiri& satir : Menuler().Liste.satirlar)
            satirlar.push_back(satir.sutun);
        return satirlar;
    }
    void Isaretle(int sira) {
        Menuler().Liste.secili = sira;
        Menuler().Liste_Click();
    }
    /// The dialogue of one menu is expected next; `is` is done while it stands.
    void MenuAcikken(std::function<void()> is) {
        ortam.Bekle(BeklenenEkran{EkranAdi::FormMenuEkle, std::move(is)});
    }
    void MenuyuGir(const Metin& ad, const Metin& icerik) {
        AlanaYaz(Ekle().Text1, ad, {.degisti = [this] { Ekle().Text1_Change(); }});
        SatirlaraYaz(Ekle().Text2, icerik);
    }
    void MenuEkle(const Metin& ad, const Metin& icerik) {
        MenuAcikken([this, ad, icerik] {
            MenuyuGir(ad, icerik);
            VELORA_BAS(program.FormMenuEkle, Command4);
        });
        Menuler(); // a test may work on the list without showing it
        VELORA_BAS(program.FormMenuAyar, Command1);
    }
    void MenuSil(int sira, Cevap cevap) {
        Isaretle(sira);
        ortam.Bekle(BeklenenKutu{u"Velora", u"Seçili menüyü silmek istediğinizden emin misiniz?", Simge::Soru,
                                 cevap});
        VELORA_BAS(program.FormMenuAyar, Command2);
        EXPECT_EQ(ortam.hayirdaBaslayanlar.back(), u"Seçili menüyü silmek istediğinizden emin misiniz?");
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

} // namespace velora::test
