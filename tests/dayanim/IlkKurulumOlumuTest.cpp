// A program that dies in the first run of a firm. What is left has to let its owner in.
#include <gtest/gtest.h>

#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "dayanim/Isler.h"
#include "dayanim/Olcum.h"
#include "destek/Eylemler.h"

namespace velora::dayanim {
namespace {

enum class Giris { Yok, IlkKurulum, ParolaSorulur, Olur };

/// A start, as far as its user gets. One whose password was asked for is at the table with a hall, and its
/// next start takes the password.
Giris Gir(const Saha& saha) {
    const Gun bugun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}};
    test::Kullanici kullanici(saha.Kok(), saha.gunluklu ? saha.Durum() : std::filesystem::path(), bugun);
    kullanici.ortam.baglanti = false;
    saha.Degisti();
    kullanici.Baslat();
    if (kullanici.ortam.acilanlar.back() == EkranAdi::FormFirma)
        return Giris::IlkKurulum;
    if (kullanici.Prog().FormSifre->Liste.satirlar.empty())
        return Giris::Yok;
    if (kullanici.GirisYap(u"admin", kIlkParola))
        return Giris::Olur;
    if (!kullanici.Prog().FormSifreDegistir.Yuklu())
        return Giris::Yok;
    IlkParolaVeSalon(kullanici);
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Kır Evi");
    kullanici.Baslat();
    return kullanici.GirisYap(u"admin", kIlkParola) ? Giris::ParolaSorulur : Giris::Yok;
}

/// How often each came of the deaths before the calls of a first run.
std::map<Giris, int> Girisler(bool gunluklu) {
    constexpr unsigned kEnCokCagri = 2000;
    Saha saha;
    saha.gunluklu = gunluklu;
    std::map<Giris, int> girisler;
    for (unsigned no = 1; no < kEnCokCagri; ++no) {
        saha.Kur(*SenaryoBul("ilk-kurulum"));
        if (!Kos(saha, "ilk-kurulum", {.oldur = no, .yalnizDegisen = !Uzun()}).oldu)
            break;
        ++girisler[Gir(saha)];
    }
    return girisler;
}

} // namespace

TEST(IlkKurulumOlumu, A_first_run_that_dies_begins_anew_or_has_a_login_that_lets_its_owner_in) {
    std::map<Giris, int> girisler = Girisler(true);
    EXPECT_EQ(girisler[Giris::Yok], 0);
    for (const Giris giris : {Giris::IlkKurulum, Giris::ParolaSorulur, Giris::Olur})
        EXPECT_GT(girisler[giris], 0) << static_cast<int>(giris);
}

TEST(IlkKurulumOlumu, Without_a_journal_one_that_dies_before_its_password_is_seen_to_lock_everybody_out) {
    EXPECT_GT(Girisler(false)[Giris::Yok], 0);
}

} // namespace velora::dayanim
