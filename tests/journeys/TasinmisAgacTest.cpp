// A firm that comes from another machine: its folders and files bear the names that the list of halls has,
// but not to the letter.
#include <fstream>

#include "reservation/KayitTest.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"
#include "storage/Harf.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

namespace {

constexpr MetinBakis kSalon = u"Gül Salonu";

using Bicim = std::filesystem::path (*)(const Metin&);

std::filesystem::path HamBaytlar(const Metin& ad) {
    return KodYaz(ad);
}

std::filesystem::path AyriIsaretler(const Metin& ad) {
    Metin ayri;
    for (const char16_t harf : ad)
        ayri += harf == u'ü' ? Metin(u"u\u0308") : Metin(1, harf);
    return ayri;
}

std::filesystem::path BuyukHarfler(const Metin& ad) {
    Metin buyuk = ad;
    std::transform(buyuk.begin(), buyuk.end(), buyuk.begin(), SiraHarfi);
    return buyuk;
}

} // namespace

/// The hall has one reservation, on 20 June 2012, day slot, with details and a payment.
class TasinmisAgac : public KayitTest, public ::testing::WithParamInterface<Bicim> {
  protected:
    TasinmisAgac() {
        agac.KoyMetin(u"Salon.dat", u"\"Gül Salonu\"\r\n");
        KayitKoy(agac, u"tam", {.ad = u"Nur Ak", .no = u"31"}, false, u"\"01.02.2012\",\"750\",\"kapora\"");
        std::filesystem::create_directories(Klasor());
        for (const MetinBakis ek : kRezervasyonEkleri)
            std::filesystem::rename(agac.Yol(u"tam" + Metin(ek)), Dosya(ek));
    }

    std::filesystem::path Klasor() { return agac.Kok() / GetParam()(Metin(kSalon)) / "2012"; }
    std::filesystem::path Dosya(MetinBakis ek) { return Klasor() / GetParam()(Metin(kGun) + Metin(ek)); }
    std::string DosyaBaytlari(MetinBakis ek) {
        std::ifstream dosya(Dosya(ek), std::ios::binary);
        return {std::istreambuf_iterator<char>(dosya), {}};
    }
    static std::ptrdiff_t Icindeki(const std::filesystem::path& klasor, bool klasorler) {
        return std::count_if(std::filesystem::directory_iterator(klasor),
                             std::filesystem::directory_iterator(),
                             [&](const auto& giris) { return giris.is_directory() == klasorler; });
    }
    /// Nothing stands beside the hall's folder, and nothing but these files in its year.
    void YalnizBunlarOlmali(std::ptrdiff_t dosya) {
        EXPECT_EQ(Icindeki(agac.Kok(), true), 1);
        EXPECT_EQ(Icindeki(Klasor(), false), dosya);
    }
};

INSTANTIATE_TEST_SUITE_P(Names, TasinmisAgac, ::testing::Values(HamBaytlar, AyriIsaretler, BuyukHarfler));

TEST_P(TasinmisAgac, The_day_is_taken_and_a_save_goes_into_the_files_that_are_there) {
    Prog();
    kullanici.Tablo().TutarDegistir = 1;
    RenkOlmali(20, 6, kGunduz, 6, 7);
    EXPECT_TRUE(kullanici.SagTikla({20, 6, kGunduz}));
    EXPECT_FALSE(kullanici.Tablo().Girdi(Komut::newkay).etkin) << "nobody books it twice";
    EkranBekle(EkranAdi::FormKayit, [&] {
        EXPECT_EQ(Kayit().Kay[AnaNo::AdiSoyadi].metin, u"Nur Ak");
        EXPECT_EQ(Kayit().Kayam9.baslik, u"750");
        Gir(AnaNo::AdiSoyadi, u"Nur Akay");
        Gir(AnaNo::BitisSaati, u"17:00");
        OdemeAl(u"40");
        KaydeteBas();
    });
    kullanici.CiftTikla({20, 6, kGunduz});
    EXPECT_NE(DosyaBaytlari(u"").find("\"Nur Akay\""), std::string::npos);
    EXPECT_NE(DosyaBaytlari(kOdemeEki).find("\"40\""), std::string::npos);
    YalnizBunlarOlmali(3);
}

TEST_P(TasinmisAgac, A_new_reservation_comes_into_the_folder_that_is_there) {
    Prog();
    EXPECT_TRUE(kullanici.SagTikla({21, 6, kGece}));
    EkranBekle(EkranAdi::FormKayit, [&] {
        Doldur();
        KaydeteBas();
    });
    kullanici.KomutSec(Komut::newkay);
    EXPECT_TRUE(std::filesystem::exists(Klasor() / "21.06.2012 - Gece"));
    YalnizBunlarOlmali(5);
    RenkOlmali(21, 6, kGece, 12, 13);
}

TEST_P(TasinmisAgac, A_move_takes_all_three_files_along) {
    Prog();
    const std::string ana = DosyaBaytlari(u"");
    const std::string odeme = DosyaBaytlari(kOdemeEki);
    kullanici.KomutSec(Komut::TasimaModuAc);
    KutuBekle(u"Seçili rezervasyonu taşımak istediğinizden emin misiniz?", Cevap::Evet, Simge::Soru);
    EXPECT_TRUE(kullanici.Surukle({20, 6, kGunduz}, {3, 9, kGece}));
    const auto yeni = Klasor() / "03.09.2012 - Gece";
    EXPECT_EQ(std::filesystem::file_size(yeni), ana.size());
    EXPECT_EQ(std::filesystem::file_size(Klasor() / "03.09.2012 - Gece-Odeme"), odeme.size());
    YalnizBunlarOlmali(3);
    RenkOlmali(20, 6, kGunduz, 2, 3);
    RenkOlmali(3, 9, kGece, 12, 13);
}

TEST_P(TasinmisAgac, A_cancel_takes_all_three_files_away) {
    Prog();
    EXPECT_TRUE(kullanici.SagTikla({20, 6, kGunduz}));
    KutuBekle(u"Seçili kaydı silmek istediğinizden emin misiniz?", Cevap::Evet, Simge::Soru);
    kullanici.ortam.Bekle(
        BeklenenGirdi{.baslik = u"İptal Sebebi", .metin = u"İptal sebebini yazınız!", .cevap = u"yok"});
    kullanici.KomutSec(Komut::iptals);
    YalnizBunlarOlmali(0);
    RenkOlmali(20, 6, kGunduz, 2, 3);
}

TEST_P(TasinmisAgac, A_rename_takes_the_files_along_and_a_hall_that_comes_back_finds_them) {
    Prog();
    const auto tanim = Prog().FormSalonTanim.Tut();
    tanim->List1.secili = 0;
    EkranBekle(EkranAdi::FormSalonTanimAd, [&] {
        AlanaYaz(Prog().FormSalonTanimAd->Text1, u"Çınar");
        VELORA_BAS(Prog().FormSalonTanimAd, Command1);
    });
    tanim->Command4_Click();
    EXPECT_EQ(agac.Oku(u"Çınar/2012/20.06.2012 - Gündüz").has_value(), GetParam() != BuyukHarfler);
    Prog().FormTablo->Command1();
    RenkOlmali(20, 6, kGunduz, 6, 7);
    kullanici.ortam.Bekle(BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"gül salonu"});
    tanim->Command1_Click();
    kullanici.SalonSec(kSalon);
    RenkOlmali(20, 6, kGunduz, 6, 7);
    EXPECT_EQ(Icindeki(agac.Kok(), true), 2) << "the old folder and the new one, no third";
}

TEST_P(TasinmisAgac, Of_two_files_for_one_day_the_one_to_the_letter_is_shown_and_opened) {
    std::ofstream(Klasor() / std::filesystem::path(Metin(kGun)), std::ios::binary)
        << KodYaz(AnaMetni({.ad = u"Tam Ad"}));
    Prog();
    EXPECT_NE(kullanici.Goz(20, 6, kGunduz).tag.find(u"|Tam Ad|"), Metin::npos);
    EkranBekle(EkranAdi::FormKayit, [&] { EXPECT_EQ(Kayit().Kay[AnaNo::AdiSoyadi].metin, u"Tam Ad"); });
    kullanici.CiftTikla({20, 6, kGunduz});
}

} // namespace velora::test
