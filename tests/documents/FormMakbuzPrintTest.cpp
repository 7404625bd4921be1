#include "documents/FormMakbuzPrint.h"

#include "destek/Eylemler.h"
#include "destek/Kullanici.h"
#include "destek/Sayfalar.h"
#include "online/FormFirma.h"
#include "storage/Sayi.h"

namespace velora::test {

namespace {

using namespace std::chrono_literals;

Metin UzunAciklama(int harf) {
    Metin metin;
    for (int no = 1; static_cast<int>(metin.size()) < harf; ++no)
        metin += SayiMetni(no * 7) + u" ";
    return metin;
}

} // namespace

class FormMakbuzPrintTest : public ::testing::Test {
  protected:
    FormMakbuzPrintTest() {
        agac.KoyMetin(
            u"Firma.dll",
            u"\"Gül Düğün Salonları\",\"Ayşe\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\","
            u"\"Çay Sk.\",\"TEKIRDAG\",\"Ergene\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n");
    }

    const Makbuz odeme{.tur = MakbuzTuru::Odeme,
                       .tarih = u"05.01.2012",
                       .tutar = 1250.5,
                       .aciklama = u"58 - Kapora",
                       .adSoyad = u"Ali Usta",
                       .isAdi = u"Bir"};
    const Makbuz gider{.tur = MakbuzTuru::Gider,
                       .tarih = u"03.05.2012",
                       .tutar = 0,
                       .aciklama = u"Elektrik",
                       .adSoyad = u"zeynep",
                       .isAdi = u"İki"};

    /// Shows a receipt; `is` is what the user does on it.
    void Goster(const Makbuz& makbuz, const std::function<void()>& is) {
        ortam.Bekle(BeklenenEkran{EkranAdi::FormMakbuzPrint, is});
        MakbuzGoster(program, makbuz);
    }
    FormMakbuzPrint& Ekran() { return *program.FormMakbuzPrint.Tut(); }
    /// Each caption of the page and the text beside it.
    Metin Yazilar() {
        Metin metin;
        for (const Etiket* etiket : {&Ekran().Firma, &Ekran().Label1, &Ekran().Label3, &Ekran().AdSoyad,
                                     &Ekran().Label4, &Ekran().Tarih, &Ekran().Label5, &Ekran().Aciklama,
                                     &Ekran().Label6, &Ekran().Tutar, &Ekran().Label2})
            metin += etiket->baslik + u"|";
        return metin;
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun(2012y / 6 / 15)};
    Program program{ortam.Ver(), agac.Kok()};
    static constexpr MetinBakis kOdemeYazilari =
        u"Gül Düğün Salonları|A L I N D I   M A K B U Z U|ADI SOYADI |: Ali Usta|TARİH|: 05.01.2012|"
        u"ALINDI AÇIKLAMASI|: 58 - Kapora|ALINDI BEDELİ|: 1.251 TL|DÜZENLEYEN|";
};

TEST_F(FormMakbuzPrintTest, By_design_it_says_whose_name_goes_where) {
    EXPECT_EQ(Yazilar(), u"FİRMA|A L I N D I   M A K B U Z U|ADI SOYADI |: XXX|TARİH|: XXX|ALINDI AÇIKLAMASI|"
                         u": XXX|ALINDI BEDELİ|: XXX|DÜZENLEYEN|");
    EXPECT_EQ(Ekran().Command1.baslik, u"Yazdır");
    EXPECT_EQ(Ekran().Command2.baslik, u"İptal");
    EXPECT_EQ(Ekran().Pdf.baslik, u"PDF");
    EXPECT_EQ(Ekran().Pdf.ipucu, u"PDF dosyası olarak kaydet");
}

TEST_F(FormMakbuzPrintTest, A_payment_fills_it_and_an_expense_has_captions_of_its_own) {
    Goster(odeme, [&] { EXPECT_EQ(Yazilar(), kOdemeYazilari); });
    Goster(gider, [&] {
        EXPECT_EQ(Yazilar(), u"Gül Düğün Salonları|GİDER MAKBUZU|DÜZENLEYEN|: zeynep|GİDER TARİHİ|"
                             u": 03.05.2012|GİDER AÇIKLAMASI|: Elektrik|GİDER BEDELİ|:  TL|DÜZENLEYEN|");
    });
}

TEST_F(FormMakbuzPrintTest, Behind_an_expense_a_payment_has_the_captions_of_a_payment_again) {
    Goster(gider, [&] { Ekran().Command1.gorunur = false; });
    EXPECT_TRUE(program.FormMakbuzPrint.Yuklu()) << "even where it was left loaded";
    Goster(odeme, [&] {
        EXPECT_EQ(Yazilar(), kOdemeYazilari);
        EXPECT_TRUE(Ekran().Command1.gorunur && Ekran().Command2.gorunur);
    });
}

TEST_F(FormMakbuzPrintTest, The_firm_is_named_as_its_profile_has_it_now) {
    Goster(odeme, [&] { EXPECT_EQ(Ekran().Firma.baslik, u"Gül Düğün Salonları"); });
    program.FormFirma->t1.metin = u"Nergis";
    Goster(odeme, [&] { EXPECT_EQ(Ekran().Firma.baslik, u"Nergis"); });
}

TEST_F(FormMakbuzPrintTest, Printing_hides_the_commands_first_and_closes_it) {
    Goster(odeme, [&] {
        ortam.Bekle(BeklenenBaski{.isAdi = u"Bir", .is = [&] {
                                      EXPECT_FALSE(Ekran().Command1.gorunur || Ekran().Command2.gorunur);
                                      ortam.olayda = [&](int) {
                                          EXPECT_TRUE(program.FormMakbuzPrint.Yuklu())
                                              << "events run before it goes";
                                      };
                                  }});
        const int once = ortam.olaySayisi;
        VELORA_BAS(program.FormMakbuzPrint, Command1);
        EXPECT_EQ(ortam.olaySayisi, once + 1);
        EXPECT_FALSE(program.FormMakbuzPrint.Yuklu());
    });
    ASSERT_EQ(ortam.basilanlar.size(), 1U);
    EXPECT_EQ(BosluksuzMetin(ortam.basilanlar[0].sayfalar, u"AdSoyad"), u":AliUsta");
}

TEST_F(FormMakbuzPrintTest, Without_a_printer_it_closes_all_the_same) {
    Goster(odeme, [&] {
        ortam.Bekle(BeklenenBaski{.isAdi = u"Bir", .basilir = false});
        VELORA_BAS(program.FormMakbuzPrint, Command1);
        EXPECT_FALSE(program.FormMakbuzPrint.Yuklu());
    });
    EXPECT_TRUE(ortam.basilanlar.empty());
}

TEST_F(FormMakbuzPrintTest, Cancelled_while_the_printer_takes_it_nothing_comes_back) {
    Goster(odeme, [&] {
        ortam.Bekle(BeklenenBaski{.isAdi = u"Bir", .is = [&] { Ekran().Command2_Click(); }});
        VELORA_BAS(program.FormMakbuzPrint, Command1);
        EXPECT_FALSE(program.FormMakbuzPrint.Yuklu());
    });
    EXPECT_EQ(ortam.basilanlar.size(), 1U);
}

TEST_F(FormMakbuzPrintTest, Cancel_prints_nothing) {
    Goster(odeme, [&] { VELORA_BAS(program.FormMakbuzPrint, Command2); });
    EXPECT_FALSE(program.FormMakbuzPrint.Yuklu());
    EXPECT_TRUE(ortam.basilanlar.empty());
}

TEST_F(FormMakbuzPrintTest, A_pdf_has_the_same_page_and_leaves_the_screen_as_it_is) {
    Goster(odeme, [&] {
        ortam.Bekle(BeklenenKayitYeri{.ad = u"Bir.pdf", .secilen = "/tmp/m.pdf"});
        VELORA_BAS(program.FormMakbuzPrint, Pdf);
        EXPECT_TRUE(Ekran().Command1.gorunur && Ekran().Command2.gorunur);
        ASSERT_EQ(ortam.pdfler.size(), 1U);
        EXPECT_EQ(SayfalarMetni(ortam.pdfler[0].sayfalar), SayfalarMetni(Ekran().Sayfalar(EsitEnli)));
    });
}

TEST_F(FormMakbuzPrintTest, Pressed_again_while_it_is_shown_another_receipt_does_not_take_its_place) {
    Goster(odeme, [&] {
        MakbuzGoster(program, gider); // nothing is expected to come
        EXPECT_EQ(Yazilar(), kOdemeYazilari);
    });
}

TEST_F(FormMakbuzPrintTest, The_page_as_text) {
    Goster(odeme, [&] {
        const std::vector<Sayfa> sayfalar = Ekran().Sayfalar(EsitEnli);
        EXPECT_EQ(SayfalarMetni(sayfalar), u"--\n"
                                           u"Firma 23,23 164x7.6 18K =|Gül Düğün Salonları|\n"
                                           u"Label1 23,34.6 164x5.9 14K =|A L I N D I   M A K B U Z U|\n"
                                           u"Label3 23,48.5 54x5.1 12K <|ADI SOYADI |\n"
                                           u"AdSoyad 77,48.5 110x5.1 12 <|: Ali Usta|\n"
                                           u"Label4 23,57.6 54x5.1 12K <|TARİH|\n"
                                           u"Tarih 77,57.6 110x5.1 12 <|: 05.01.2012|\n"
                                           u"Label5 23,66.7 54x5.1 12K <|ALINDI AÇIKLAMASI|\n"
                                           u"Aciklama 77,66.7 110x5.1 12 <|: 58 - Kapora|\n"
                                           u"Label6 23,75.8 54x5.1 12K <|ALINDI BEDELİ|\n"
                                           u"Tutar 77,75.8 110x5.1 12K <|: 1.251 TL|\n"
                                           u"Label2 127,115.4 60x25.1 12K =|DÜZENLEYEN|\n"
                                           u"Cerceve 15,15 180x133.5 []\n");
        SayfalarDuzgunOlmali(sayfalar);
    });
}

TEST_F(FormMakbuzPrintTest,
       A_long_description_gets_smaller_on_the_half_sheet_then_the_frame_grows_then_it_flows) {
    const auto sayfalar = [&](int harf) {
        Ekran().Aciklama.baslik = u": " + UzunAciklama(harf);
        const std::vector<Sayfa> dizilen = Ekran().Sayfalar(EsitEnli);
        SayfalarDuzgunOlmali(dizilen);
        Metin beklenen = Ekran().Aciklama.baslik;
        std::erase(beklenen, u' ');
        EXPECT_EQ(BosluksuzMetin(dizilen, u"Aciklama"), beklenen);
        EXPECT_EQ(BosluksuzMetin(dizilen, u"Label2"), u"DÜZENLEYEN");
        return dizilen;
    };
    const auto cerceveAlti = [](const std::vector<Sayfa>& s) { return s.front().parcalar.back().yer.Alt(); };
    const auto punto = [](const std::vector<Sayfa>& s) {
        for (const SayfaParcasi& parca : s.front().parcalar)
            if (parca.ad == u"Aciklama")
                return parca.yazi.punto;
        return 0.0;
    };
    EXPECT_EQ(punto(sayfalar(200)), 12);
    EXPECT_DOUBLE_EQ(cerceveAlti(sayfalar(200)), 148.5);
    EXPECT_LT(punto(sayfalar(600)), 12);
    EXPECT_GT(punto(sayfalar(600)), 8);
    EXPECT_DOUBLE_EQ(cerceveAlti(sayfalar(600)), 148.5);
    EXPECT_EQ(punto(sayfalar(2500)), 8);
    EXPECT_EQ(sayfalar(2500).size(), 1U);
    EXPECT_GT(cerceveAlti(sayfalar(2500)), 148.5);
    EXPECT_EQ(sayfalar(9000).size(), 2U);
}

TEST_F(FormMakbuzPrintTest, Names_without_a_blank_are_broken_and_never_cut_off) {
    const std::pair<Etiket*, MetinBakis> alanlar[]{{&Ekran().Firma, u"Firma"},
                                                   {&Ekran().AdSoyad, u"AdSoyad"},
                                                   {&Ekran().Tarih, u"Tarih"},
                                                   {&Ekran().Tutar, u"Tutar"},
                                                   {&Ekran().Aciklama, u"Aciklama"}};
    for (const auto& [alan, ad] : alanlar)
        alan->baslik = Metin(260, u'W') + Metin(ad);
    const std::vector<Sayfa> sayfalar = Ekran().Sayfalar(EsitEnli);
    for (const auto& [alan, ad] : alanlar)
        EXPECT_EQ(BosluksuzMetin(sayfalar, ad), alan->baslik);
    SayfalarDuzgunOlmali(sayfalar);
}

} // namespace velora::test
