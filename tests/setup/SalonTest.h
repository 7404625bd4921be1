#pragma once

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"

namespace velora::test {

/// The program of a firm on 15 June 2012, and what is done on the screens of its halls.
class SalonTest : public ::testing::Test {
  protected:
    using Salonlar = std::vector<Metin>;

    FormSalonTanim& Tanim() { return *kullanici.Prog().FormSalonTanim.Tut(); }
    FormTablo& Tablo() { return kullanici.Tablo(); }
    SahteOrtam& Ortam() { return kullanici.ortam; }

    /// The hall list is opened; `is` is done on it while it stands.
    void SalonlarAcikken(std::function<void()> is) {
        Ortam().Bekle(BeklenenEkran{EkranAdi::FormSalonTanim, std::move(is)});
        kullanici.Prog().FormSalonTanim.GosterModal();
    }
    void SalonEkle(const Metin& cevap) {
        Tanim(); // a test may work on the list without showing it
        Ortam().Bekle(BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", cevap});
        VELORA_BAS(kullanici.Prog().FormSalonTanim, Command1);
    }
    void Isaretle(int sira) {
        Tanim().List1.secili = sira;
        Tanim().List1_Click();
    }
    void SalonSil(int sira, Cevap cevap) {
        Isaretle(sira);
        Ortam().Bekle(
            BeklenenKutu{u"Velora",
                         u"Seçili salonu silerseniz bu salona ait rezervasyonları göremezsiniz!\nSeçili "
                         u"salonu silmek istediğinize emin misiniz?",
                         Simge::Soru, cevap});
        VELORA_BAS(kullanici.Prog().FormSalonTanim, Command2);
        EXPECT_TRUE(Ortam().hayirdaBaslayanlar.back().starts_with(u"Seçili salonu silerseniz"));
    }
    /// The dialogue of a hall's name is expected next; `is` is done while it stands.
    void AdAcikken(std::function<void()> is) {
        Ortam().Bekle(BeklenenEkran{EkranAdi::FormSalonTanimAd, std::move(is)});
    }
    void AdiGir(const Metin& yeni) {
        AlanaYaz(kullanici.Prog().FormSalonTanimAd->Text1, yeni);
        VELORA_BAS(kullanici.Prog().FormSalonTanimAd, Command1);
    }
    /// The marked hall gets this name.
    void AdDegistir(int sira, const Metin& yeni) {
        Isaretle(sira);
        AdAcikken([this, yeni] { AdiGir(yeni); });
        VELORA_BAS(kullanici.Prog().FormSalonTanim, Command4);
    }
    /// A reservation of the hall on 20 June 2012 in the evening.
    void RezervasyonKoy(const Metin& salon) const { KayitKoy(agac, salon + u"/2012/20.06.2012 - Gece"); }
    /// What the table knows of it; empty when it shows none.
    const Metin& RezervasyonTagi() { return kullanici.Goz(20, 6, GunduzGece::Gece).tag; }
    /// Both lists hold these halls, in this order.
    void SalonlarOlmali(const Salonlar& beklenen) {
        EXPECT_EQ(Tanim().List1.ogeler, beklenen);
        EXPECT_EQ(Tablo().Salon.ogeler, beklenen);
    }
    /// What is written, made and listed on the disk from now on, without repeats.
    std::shared_ptr<std::vector<DosyaIsi>> IsleriIzle() {
        auto isler = std::make_shared<std::vector<DosyaIsi>>();
        kullanici.Prog().dosyalar.ariza = [isler](DosyaIsi is, const Metin&) {
            const bool izlenen = is == DosyaIsi::Yaz || is == DosyaIsi::KlasorYap || is == DosyaIsi::Listele;
            if (izlenen && (isler->empty() || isler->back() != is))
                isler->push_back(is);
            return false;
        };
        return isler;
    }
    /// Everything of this kind fails from now on.
    void Boz(DosyaIsi bozuk) {
        kullanici.Prog().dosyalar.ariza = [bozuk](DosyaIsi is, const Metin&) { return is == bozuk; };
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

} // namespace velora::test
