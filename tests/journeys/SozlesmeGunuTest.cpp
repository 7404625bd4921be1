// A day on which contracts are signed: entered, printed, sent as a file, with and without a printer.
#include "destek/Sayfalar.h"
#include "documents/FormSozlesme.h"
#include "reservation/SozlesmeTest.h"

namespace velora::test {

class SozlesmeGunu : public SozlesmeTest {
  protected:
    static constexpr TabloGozu kHaziran20{20, 6, kGunduz};

    /// The reservation of the day is opened by a double click.
    void KayitAc(const Is& is) {
        EkranBekle(EkranAdi::FormKayit, [this, is] {
            is();
            KapataBas();
        });
        kullanici.CiftTikla(kHaziran20);
    }
    /// The day's reservation is entered by the menu of its cell, paid in part and saved.
    void KayitGir() {
        Prog();
        EkranBekle(EkranAdi::FormKayit, [this] {
            Gir(AnaNo::AdiSoyadi, u"ayşe yılmaz");
            Gir(AnaNo::Niteligi, u"Nişan");
            Gir(AnaNo::Adres, u"Çay Sk. 3\r\nErgene");
            Gir(AnaNo::ToplamUcret, u"12500");
            Gir(AnaNo::OnAciklama, u"Masa düzeni U olacak.");
            Gir(AnaNo::BitisSaati, u"15:45");
            ListedenSec(Kayit().Combo1, u"Klasik");
            SatirlaraYaz(Kayit().Aciklamalar, u"Tuzsuz ekmek");
            OdemeAl(u"2500");
            KaydeteBas();
        });
        EXPECT_TRUE(kullanici.SagTikla(kHaziran20));
        kullanici.KomutSec(Komut::newkay);
        ProgramiKapat();
        Prog();
    }
    /// All that two contracts with their notes and two menus bring.
    void IkiserBas() {
        IkiserBekle(u"2", Cevap::Evet);
        Yazdir();
    }
};

TEST_F(SozlesmeGunu, A_reservation_is_entered_and_its_contract_its_note_and_its_menu_come_twice) {
    KayitGir();
    const std::string once = agac.Resim();
    KayitAc([&] { IkiserBas(); });
    ASSERT_EQ(Basilanlar().size(), 4U);
    for (const std::size_t sozlesme : {0U, 1U}) {
        SayfalarDuzgunOlmali(Basilanlar()[sozlesme].sayfalar);
        EXPECT_EQ(Basilan(sozlesme, u"CAdi"), u"Ayşe Yılmaz") << "as it was saved";
        EXPECT_EQ(Basilan(sozlesme, u"SozNo"), u"Sözleşme No : 58");
        EXPECT_EQ(Basilan(sozlesme, u"CKalan"), u"10000 TL");
        EXPECT_EQ(Basilan(sozlesme, u"CAdres"), u"Çay Sk. 3|Ergene");
        EXPECT_NE(Basilan(sozlesme, u"Senet"), u"-");
        EXPECT_EQ(Basilan(sozlesme, u"Onaciklama"), u"-");
    }
    SayfalarDuzgunOlmali(Basilanlar()[3].sayfalar);
    EXPECT_EQ(Basilan(3, u"Label20"), u"Çorba, Tatlı");
    EXPECT_EQ(Basilan(3, u"OzelIstekler"), u"Tuzsuz ekmek");
    EXPECT_EQ(Basilan(3, u"Onaciklama"), u"Masa düzeni U olacak.");
    EXPECT_EQ(agac.Resim(), once) << "paper changes no file";
}

TEST_F(SozlesmeGunu, Without_a_printer_the_customer_gets_the_contract_as_a_file) {
    KayitGir();
    KayitAc([&] {
        SayfaSorusu(u"2");
        SenetSorusu(Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi, false);
        YaziciYokKutusu();
        Yazdir();
        SenetSorusu(Cevap::Hayir);
        MenuSorusu(Cevap::Evet);
        kullanici.ortam.Bekle(BeklenenKayitYeri{.ad = kSozlesmeIsi + u".pdf", .secilen = "/yer/ayse.pdf"});
        PdfeBas();
        SenetSorusu(Cevap::Hayir);
        MenuSorusu(Cevap::Hayir);
        kullanici.ortam.Bekle(BeklenenKayitYeri{.ad = kSozlesmeIsi + u".pdf"}); // cancelled
        PdfeBas();
    });
    EXPECT_TRUE(Basilanlar().empty());
    const auto& pdfler = kullanici.ortam.pdfler;
    ASSERT_EQ(pdfler.size(), 1U);
    EXPECT_EQ(pdfler[0].sayfalar.size(), 2U);
    EXPECT_EQ(AlanMetni(pdfler[0].sayfalar, u"Onaciklama"), u"Masa düzeni U olacak.|Masa düzeni U olacak.");
}

TEST_F(SozlesmeGunu, The_first_contract_of_a_firm_is_written_between_two_prints) {
    MaddeKoy(u"");
    KayitGir();
    KayitAc([&] {
        SayfaSorusu(u"1");
        MaddeYokKutusu();
        Yazdir();
        const auto sablon = Prog().FormSozlesme.Tut();
        AlanaYaz(sablon->Baslik, u"Kurallar");
        SatirlaraYaz(sablon->Sozlesme, u"1 - \"Kaparo\" yanar.\r\n2 - Nakit.");
        BaskiBekle(u"Örnek Sözleşme");
        VELORA_BAS(Prog().FormSozlesme, Command1);
        VELORA_BAS(Prog().FormSozlesme, Command2);
        BirKezBas(true);
    });
    ASSERT_EQ(Basilanlar().size(), 2U);
    EXPECT_EQ(Basilan(0, u"Sozlesme"), u"1 - \"Kaparo\" yanar.|2 - Nakit.");
    EXPECT_EQ(Basilan(0, u"CAdi"), u"xxx");
    EXPECT_EQ(Basilan(1, u"Sozlesme"), u"1 - Kaparo yanar.|2 - Nakit.");
    EXPECT_EQ(Basilan(1, u"Baslik"), u"Kurallar");
    EXPECT_EQ(Basilan(1, u"CAdi"), u"Ayşe Yılmaz");
}

} // namespace velora::test
