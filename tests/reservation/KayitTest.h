#pragma once

#include "destek/Eylemler.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOdemeAl.h"
#include "reservation/KayitYukle.h"
#include "table/TabloTest.h"

namespace velora::test {

/// The firm of `TabloTest` with one menu and the contract numbers given out up to 57. The program starts at
/// the first use; what a test puts into the tree before that is there at the start.
class KayitTest : public TabloTest {
  protected:
    using Is = std::function<void()>;
    static constexpr MetinBakis kGun = u"20.06.2012 - Gündüz";

    KayitTest() {
        agac.KoyMetin(u"Menuler.dat", u"\"Klasik\",\"Çorba, Tatlı\"\r\n");
        agac.Koy(u"Count.dat", "\"57\"\r\n");
    }

    Program& Prog() {
        if (!acik_) {
            kullanici.ProgramiAc();
            acik_ = true;
        }
        return kullanici.Prog();
    }
    /// The next use starts it afresh, with what the disk holds.
    void ProgramiKapat() {
        kullanici.ProgramiKapat();
        acik_ = false;
    }
    FormKayit& Kayit() { return *Prog().FormKayit.Tut(); }

    /// A free day is opened; `is` is what the user does on the screen. A screen that is still open after that
    /// is taken away.
    void YeniKayit(const Is& is, MetinBakis gun = kGun) {
        Kayit().Tarih = gun;
        Kayit().Kay[12].metin = u"11:00";
        Ekranda(is, [&] { Prog().FormKayit.GosterModal(); });
    }
    /// The same on an existing reservation of hall A in 2012.
    void KayitAc(const Is& is, MetinBakis gun = kGun) {
        Ekranda(is, [&] { KayitYukle(Prog(), Yol(gun), Metin(gun)); });
    }
    Metin Yol(MetinBakis gun) { return Prog().agac.GunYolu(u"Salon A", u"2012", gun); }

    /// Types into a field, which must take it whole, and leaves it.
    void Gir(int no, const Metin& metin) {
        const bool cokSatirli = no == AnaNo::Adres || no == AnaNo::OnAciklama;
        (cokSatirli ? SatirlaraYaz : AlanaYaz)(Kayit().Kay[no], metin, {});
        EXPECT_EQ(Kayit().Kay[no].metin, metin);
        if (no == AnaNo::ToplamUcret)
            Kayit().Kay8_LostFocus();
        if (no == AnaNo::BaslamaSaati)
            Kayit().Kay12_LostFocus();
    }
    /// All that a save asks for.
    void Doldur() {
        Gir(1, u"ali usta");
        Gir(4, u"Düğün");
        Gir(8, u"5000");
        Gir(15, u"16:00");
    }
    void OdemeAl(const Metin& tutar) {
        EkranBekle(EkranAdi::FormOdemeAl, [this, tutar] {
            const auto odeme = Prog().FormOdemeAl.Tut();
            AlanaYaz(odeme->Text1, tutar, {.degisti = [&] { odeme->Text1_Change(); }});
            VELORA_BAS(Prog().FormOdemeAl, Command1);
        });
        VELORA_BAS(Prog().FormKayit, Command8);
    }
    void OdemeSec(int sira) {
        SatiraTikla(Kayit().Liste, sira, [this] { Kayit().Liste_ItemClick(); });
    }
    void KaydeteBas() { VELORA_BAS(Prog().FormKayit, Command1); }
    void KapataBas() { VELORA_BAS(Prog().FormKayit, Command2); }

    /// The screen is expected next; `is` is what the user does on it.
    void EkranBekle(EkranAdi ad, Is is) { kullanici.ortam.Bekle(BeklenenEkran{ad, std::move(is)}); }
    void KutuBekle(const Metin& metin, Cevap cevap = Cevap::Tamam, Simge simge = Simge::Bilgi,
                   const Metin& baslik = u"Velora") {
        kullanici.ortam.Bekle(BeklenenKutu{baslik, metin, simge, cevap});
    }
    void SilmeSorusuBekle(Cevap cevap) {
        KutuBekle(u"Ödeme kaydını silmek istediğinizden emin misiniz?", cevap, Simge::Soru);
    }
    void NumaraKutusuBekle() {
        KutuBekle(u"Bu sözleşme numarası ile kayıtlı bir sözleşme var!\n"
                  u"Lütfen farklı bir sözleşme numarası giriniz.");
    }

    std::string AnaBaytlari(MetinBakis gun = kGun) { return agac.Bayt(u"Salon A/2012/" + Metin(gun)); }
    std::string DetayBaytlari(MetinBakis gun = kGun) {
        return agac.Bayt(u"Salon A/2012/" + Metin(gun) + u"-Detay");
    }
    std::string OdemeBaytlari(MetinBakis gun = kGun) {
        return agac.Bayt(u"Salon A/2012/" + Metin(gun) + u"-Odeme");
    }
    bool AnaVar(MetinBakis gun = kGun) { return agac.DosyaVar(u"Salon A/2012/" + Metin(gun)); }
    bool OdemeVar(MetinBakis gun = kGun) { return agac.DosyaVar(u"Salon A/2012/" + Metin(gun) + u"-Odeme"); }

    void KayitSil() {
        for (const char16_t* ek : {u"", u"-Detay"})
            std::filesystem::remove(agac.Yol(u"Salon A/2012/" + Metin(kGun) + ek));
    }

  private:
    void Ekranda(const Is& is, const Is& goster) {
        EkranBekle(EkranAdi::FormKayit, is);
        goster();
        Prog().FormKayit.Bosalt();
    }

    bool acik_ = false;
};

} // namespace velora::test
