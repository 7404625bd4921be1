// The journal's own file: its making, and its cutting back.
#include <gtest/gtest.h>

#include "dayanim/DiskModeli.h"
#include "storage/gunluk/Gunluk.h"

namespace velora::dayanim {
namespace {

constexpr unsigned kEnCokOlum = 1000;

const Senaryo& Eylemi() {
    return *SenaryoBul("menu-uzun");
}

/// A journal that the next action makes longer than it may be.
Agac DoluGunluk(const Saha& saha) {
    saha.Kur(TemelAgac());
    saha.DurumKur({});
    {
        const auto gunluk = Gunluk::Ac(saha.Durum(), saha.Kok());
        for (std::size_t no = 1; no <= Gunluk::kEnAzEylem * 5 / 4; ++no) {
            EylemKaydi kayit{0, u"Sayaç", u"can", u"2012-06-15 10:00:00", {}};
            kayit.adimlar.push_back({.yol = u"\\Count.dat", .once = "a", .sonra = std::to_string(no)});
            gunluk->Bitti(gunluk->Basla(kayit).value());
        }
    }
    return saha.DurumOku();
}

/// How long the journal is; 0 when there is none, or one was set aside.
std::size_t GunlukBoyu(const Saha& saha) {
    std::size_t boy = 0;
    for (const auto& [ad, bayt] : saha.DurumOku()) {
        if (ad.ends_with(".bozuk"))
            return 0;
        if (ad.ends_with(".gunluk"))
            boy = bayt.size();
    }
    return boy;
}

/// What is wrong when an action dies in its write, with the journal as it lies there now.
std::string YarimOlumKusuru(const Saha& saha, const Beklenen& beklenen) {
    constexpr unsigned kDosyaYazimi = 2; // of the long writes; the first one is the journal's record
    saha.Kur(beklenen.once);
    if (!Kos(saha, Eylemi().ad, {.oldur = kDosyaYazimi, .yarim = true}).oldu)
        return "the action didn't come into the journal";
    if (saha.Oku() == beklenen.once || saha.Oku() == beklenen.sonra)
        return "the write wasn't cut";
    return Kusur(beklenen, saha.Baslat());
}

} // namespace

class GunlukDosyasiTest : public ::testing::Test {
  protected:
    Saha saha;
};

TEST_F(GunlukDosyasiTest, One_whose_first_start_died_or_lost_its_power_takes_the_next_action) {
    const Beklenen beklenen = TemizKosum(saha, Eylemi());
    Kusurlar kusurlar("the first start");
    for (unsigned no = 1; no < kEnCokOlum; ++no) {
        saha.Kur(beklenen.once);
        saha.DurumKur({});
        if (!Kos(saha, "ac", {.oldur = no}).oldu)
            break;
        kusurlar.Say("death at call " + std::to_string(no), YarimOlumKusuru(saha, beklenen));
    }
    saha.DurumKur({});
    DiskModeli disk(saha, beklenen.once, {});
    for (const KayitliCagri& cagri : Kos(saha, "ac", {}, true).cagrilar)
        if (disk.Uygula(cagri))
            disk.Haller(100, [&](const DiskHali& hal) {
                saha.DurumKur(hal.durum);
                kusurlar.Say("power cut behind " + Tarif(cagri), YarimOlumKusuru(saha, beklenen));
            });
    EXPECT_GT(kusurlar.Kosulan(), 10);
}

TEST_F(GunlukDosyasiTest, Cutting_it_back_can_die_or_lose_its_power_and_keeps_what_it_holds) {
    saha.ilkDurum = DoluGunluk(saha);
    const std::size_t uzunu = GunlukBoyu(saha);
    const Beklenen beklenen = TemizKosum(saha, Eylemi());
    ASSERT_LT(GunlukBoyu(saha), uzunu * 9 / 10) << "it wasn't cut back";
    Kusurlar kusurlar("cutting back");
    const auto bak = [&](const std::string& nerede) {
        const std::string kusur = Kusur(beklenen, saha.Baslat());
        const bool duruyor = GunlukBoyu(saha) > uzunu / 2;
        kusurlar.Say(nerede, kusur.empty() && !duruyor ? "the journal has gone" : kusur);
    };
    for (unsigned no = 1; no < kEnCokOlum; ++no) {
        saha.Kur(Eylemi());
        if (!Kos(saha, Eylemi().ad, {.oldur = no, .yalnizDegisen = true}).oldu)
            break;
        bak("death at call " + std::to_string(no));
    }
    DiskModeli disk(saha, beklenen.once, saha.ilkDurum);
    for (const KayitliCagri& cagri : beklenen.cagrilar)
        if (disk.Uygula(cagri) && cagri.bas.no != 0)
            disk.Haller(Uzun() ? 500 : 12, [&](const DiskHali& hal) {
                saha.Kur(hal.agac);
                saha.DurumKur(hal.durum);
                bak("power cut behind " + Tarif(cagri));
            });
    EXPECT_GT(kusurlar.Kosulan(), 10);
}

} // namespace velora::dayanim
