// What stands beside the fields and lists of the setup's screens, without a window.
#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormRenk.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"

namespace velora::test {

class BasliklarTest : public ::testing::Test {
  protected:
    /// Captions, each with the one that it must be.
    using Basliklar = std::vector<std::pair<Metin, MetinBakis>>;

    static void Ayni(const Basliklar& basliklar) {
        for (const auto& [baslik, beklenen] : basliklar)
            EXPECT_EQ(baslik, beklenen);
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program p{ortam.Ver(), agac.Kok()};
};

TEST_F(BasliklarTest, Halls) {
    Ayni({{p.FormSalonTanim->List1.baslik, u"Salon Tanımları"},
          {p.FormSalonTanim->Label8.baslik, u"Salon Tanımları"},
          {p.FormSalonTanimAd->Text1.baslik, u"Salon Adı"},
          {p.FormSalonTanimAd->Label1.baslik, u"Salon Adı"}});
}

TEST_F(BasliklarTest, Menus) {
    Ayni({{p.FormMenuAyar->Liste.baslik, u"Menü Ayarları"},
          {p.FormMenuEkle->Text1.baslik, u"Menü Adı"},
          {p.FormMenuEkle->Label1.baslik, u"Menü Adı"},
          {p.FormMenuEkle->Text2.baslik, u"İçerik"},
          {p.FormMenuEkle->Label2.baslik, u"İçerik"}});
}

TEST_F(BasliklarTest, Settings) {
    const auto ayarlar = p.FormAyarlar.Tut();
    EXPECT_EQ(ayarlar->sayfalar, (std::array<Metin, 2>{u"Genel Ayarlar ", u"Görünüm Ayarları "}));
    Ayni({{ayarlar->UyariGun.baslik, u"Kesin rezervasyonların tarihine"},
          {ayarlar->UyariGun2.baslik, u"Ön rezervasyonların tarihine"},
          {ayarlar->UyariGun.sonra, u"gün kaldığında hatırlat."},
          {ayarlar->UyariGun2.sonra, u"gün kaldığında hatırlat."},
          {ayarlar->GunduzGece.baslik, u"Yarı Gün Sıralaması"}});
}

TEST_F(BasliklarTest, Colours) {
    const auto renk = p.FormRenk.Tut();
    Ayni({{renk->cizelgeBaslik, u"Renk çizelgesi"},
          {renk->picColorBox.once, u"Seçilen renk"},
          {renk->txtRed.baslik, u"R"},
          {renk->txtGreen.baslik, u"G"},
          {renk->txtBlue.baslik, u"B"},
          {renk->txtWeb.baslik, u"Web Value"},
          {renk->txtHex.baslik, u"Hex Value"},
          {renk->txtTers.baslik, u"Ters değer"}});
}

} // namespace velora::test
