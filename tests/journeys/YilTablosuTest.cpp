// A morning at the desk: looking through halls and years of a tree that was carried over from another
// machine.
#include <gtest/gtest.h>

#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "setup/FormAyarlar.h"
#include "storage/RezervasyonDosyalari.h"

namespace velora::test {

class YilTablosu : public ::testing::Test {
  protected:
    static constexpr auto kGunduz = velora::GunduzGece::Gunduz;
    static constexpr auto kGece = velora::GunduzGece::Gece;

    YilTablosu() {
        // Bytes as the old machine left them: Windows-1254 and CR LF.
        agac.Koy(u"Salon.dat", "\"D\xFC\xF0\xFCn Saray\xFD No. 1\"\r\n\"\xDEi\xFEli\"\r\n");
        agac.Koy(u"Tatiller.dll", "\"29.10.2000\",\"Cumhuriyet Bayram\xFD\",\"Evet\",\"Genel\"\r\n");
        Rezervasyon(u"Düğün Sarayı No. 1/2012/29.10.2012 - Gece", {.ad = u"Şükran Öz"}, true);
        Rezervasyon(u"Düğün Sarayı No. 1/2013/01.01.2013 - Gündüz", {.ad = u"İlk Gün"}, false);
        Rezervasyon(u"Şişli/2012/15.06.2012 - Gündüz",
                    {.ad = u"Bugün", .hatirlat = u"15.06.2012", .check19 = 1}, false);
    }

    void Rezervasyon(const Metin& yol, const OrnekKayit& kayit, bool on) {
        KayitKoy(agac, yol, kayit, on, u"\"01.01.2012\",\"1000\",\"7 - Ali\"\r\n");
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_F(YilTablosu, Looking_through_halls_and_years_shows_them_and_changes_no_byte) {
    kullanici.ProgramiAc();
    const std::string ilkResim = agac.Resim(); // folders of the current year stand by now
    const auto renk = [&](int n) { return kullanici.Prog().FormAyarlar->Renk(n); };

    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Düğün Sarayı No. 1");
    EXPECT_EQ(kullanici.Goz(29, 10, kGece).zemin, renk(21));
    EXPECT_EQ(kullanici.Goz(29, 10, kGunduz).zemin, renk(23));
    EXPECT_EQ(kullanici.Goz(29, 10, kGece).ipucu, u"Cumhuriyet Bayramı");
    EXPECT_FALSE(kullanici.Tablo().Image3);

    kullanici.AyBasligina(10);
    kullanici.GunBasligina(29);
    EXPECT_TRUE(kullanici.Tablo().HizliSecim.gorunur);

    kullanici.SalonSec(u"Şişli");
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    EXPECT_EQ(kullanici.Goz(29, 10, kGece).zemin, renk(23));
    EXPECT_EQ(kullanici.Goz(15, 6, kGunduz).zemin, renk(6));
    EXPECT_TRUE(kullanici.Tablo().Image3) << "a reminder falls on today in this hall";

    kullanici.SalonSec(u"Düğün Sarayı No. 1");
    kullanici.YilSec(u"2013");
    EXPECT_EQ(kullanici.Goz(1, 1, kGunduz).zemin, renk(6));
    EXPECT_FALSE(kullanici.Goz(29, 2, kGece).gorunur);
    EXPECT_FALSE(kullanici.Tablo().BuGun.gorunur);
    kullanici.Boyutla(1920, 980);
    kullanici.YilSec(u"2012");
    kullanici.ImleciBosaGotur();
    EXPECT_TRUE(kullanici.Tablo().BuGun.gorunur);

    kullanici.ProgramiKapat();
    EXPECT_EQ(agac.Resim(), ilkResim);
}

TEST_F(YilTablosu, Record_written_beside_the_program_shows_at_the_next_scan) {
    kullanici.ProgramiAc();
    const Dosyalar dosyalar(agac.Kok());
    const VeriAgaci veri(dosyalar);
    const Metin yol = veri.GunYolu(u"Şişli", u"2012", GunAnahtari(9, 7, u"2012", kGece));
    AnaKayit kayit;
    kayit.kay[0] = u"Ğüşiöç İı";
    kayit.kay[13] = u"99";
    ASSERT_TRUE(AnaYaz(dosyalar, yol, kayit));
    ASSERT_TRUE(DetayYaz(dosyalar, yol + Metin(kDetayEki), {}));
    EXPECT_EQ(kullanici.Goz(9, 7, kGece).tag, u"");
    kullanici.SalonSec(u"Şişli");
    EXPECT_EQ(kullanici.Goz(9, 7, kGece).tag, u"|||Gece||||Ğüşiöç İı|99|1");
    EXPECT_TRUE(agac.DosyaVar(u"Şişli/2012/09.07.2012 - Gece"));
}

} // namespace velora::test
