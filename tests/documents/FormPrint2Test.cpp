#include "documents/FormPrint2.h"

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "destek/Sayfalar.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

// The page with short texts, all of it: field, place, size, side, lines.
constexpr MetinBakis kMenuSayfasi = uR"(--
Unvan 15,15 180x14 18K =|Gül Düğün Salonları|
Label19 15,29 180x5.5 13K =|Menü Bilgileri|
Label4 15,35.5 180x5.9 14 =|Klasik Menü|
 15,49.4 180x5.1 12K <|Açıklama|
Label20 15,55.5 180x10.2 12 <|Çorba|Tatlı|
Label3 15,73.7 180x5.1 12K <|Özel İstekler|
OzelIstekler 15,79.8 180x5.1 12 <|Tuzsuz ekmek|
Label2 15,92.8 180x5.1 12K <|Ön Açıklama|
Onaciklama 15,98.9 180x5.1 12 <|Masa düzeni U olacak.|
 15,120 88x4.2 10K =|Kiraya Veren İmza|
 15,134 88x4.2 10K =|----------------------------|
 107,120 88x4.2 10K =|Kiralayan İmza|
 107,134 88x4.2 10K =|----------------------------|
)";

} // namespace

/// A menu page whose fields are all different.
class FormPrint2Test : public ::testing::Test {
  protected:
    FormPrint2Test() {
        sayfa.Unvan.baslik = u"Gül Düğün Salonları";
        sayfa.Label4.baslik = u"Klasik Menü";
        sayfa.Label20.baslik = u"Çorba\r\nTatlı";
        sayfa.OzelIstekler.baslik = u"Tuzsuz ekmek";
        sayfa.Onaciklama.baslik = u"Masa düzeni U olacak.";
    }

    std::vector<Sayfa> Sayfalar() const { return sayfa.Sayfalar(EsitEnli); }
    /// The size of a field's letters.
    double Punto(MetinBakis ad) const {
        const std::vector<Sayfa> sayfalar = Sayfalar();
        for (const SayfaParcasi& parca : sayfalar.front().parcalar)
            if (parca.ad == ad)
                return parca.yazi.punto;
        return 0;
    }
    /// The pages are whole, and all of these texts is on them.
    void HepsiGorunmeli() const {
        const std::vector<Sayfa> sayfalar = Sayfalar();
        SayfalarDuzgunOlmali(sayfalar);
        for (const auto& [ad, alan] :
             {std::pair{u"Unvan", &sayfa.Unvan}, std::pair{u"Label4", &sayfa.Label4},
              std::pair{u"Label20", &sayfa.Label20}, std::pair{u"OzelIstekler", &sayfa.OzelIstekler},
              std::pair{u"Onaciklama", &sayfa.Onaciklama}})
            EXPECT_EQ(BosluksuzMetin(sayfalar, ad), Bosluksuz(alan->baslik)) << testing::PrintToString(ad);
        EXPECT_EQ(BosluksuzMetin(sayfalar, u"Label3"), u"Özelİstekler");
        EXPECT_EQ(BosluksuzMetin(sayfalar, u"Label2"), u"ÖnAçıklama");
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{3}, std::chrono::day{5}}};
    Program program{ortam.Ver(), agac.Kok()};
    FormPrint2 sayfa{program};
};

TEST_F(FormPrint2Test, Every_field_has_its_place_from_top_to_bottom) {
    EXPECT_EQ(SayfalarMetni(Sayfalar()), kMenuSayfasi);
}

TEST_F(FormPrint2Test, A_fresh_page_has_its_captions_and_nothing_that_looks_like_somebodys_menu) {
    const FormPrint2 bos(program);
    Metin yazilar;
    const std::vector<Sayfa> sayfalar = bos.Sayfalar(EsitEnli);
    ASSERT_EQ(sayfalar.size(), 1U);
    for (const SayfaParcasi& parca : sayfalar[0].parcalar)
        for (const Metin& satir : parca.satirlar)
            yazilar += satir + u"|";
    EXPECT_EQ(yazilar, u"Menü Bilgileri|Açıklama|Özel İstekler|Ön Açıklama|Kiraya Veren İmza|"
                       u"----------------------------|Kiralayan İmza|----------------------------|");
    SayfalarDuzgunOlmali(sayfalar);
}

TEST_F(FormPrint2Test, An_empty_text_keeps_its_caption_and_a_line_to_write_on) {
    const double once = Sayfalar()[0].parcalar.back().yer.ust;
    sayfa.OzelIstekler.baslik.clear();
    EXPECT_NEAR(Sayfalar()[0].parcalar.back().yer.ust, once, 1e-6);
    HepsiGorunmeli();
}

TEST_F(FormPrint2Test, The_three_texts_get_smaller_together_before_they_go_on_to_another_sheet) {
    EXPECT_EQ(Punto(u"Onaciklama"), 12);
    sayfa.Label20.baslik = UzunMetin(5000);
    EXPECT_EQ(Sayfalar().size(), 1U);
    const double punto = Punto(u"Label20");
    EXPECT_LT(punto, 12);
    EXPECT_GE(punto, 8);
    EXPECT_EQ(Punto(u"OzelIstekler"), punto);
    EXPECT_EQ(Punto(u"Onaciklama"), punto);
    EXPECT_EQ(Punto(u"Label2"), 12) << "a heading stays as it is";
    HepsiGorunmeli();
    sayfa.OzelIstekler.baslik = UzunMetin(4990);
    EXPECT_EQ(Sayfalar().size(), 2U);
    EXPECT_EQ(Punto(u"Label20"), Punto(u"OzelIstekler"));
    EXPECT_EQ(Sayfalar()[1].parcalar.back().satirlar, std::vector<Metin>{u"2 / 2"});
    HepsiGorunmeli();
}

TEST_F(FormPrint2Test, Long_lines_of_each_field_are_never_cut_off) {
    for (Etiket* alan :
         {&sayfa.Unvan, &sayfa.Label4, &sayfa.Label20, &sayfa.OzelIstekler, &sayfa.Onaciklama}) {
        const Metin once = alan->baslik;
        alan->baslik = Metin(600, u'W') + u"Ğ";
        HepsiGorunmeli();
        alan->baslik = once;
    }
    sayfa.Onaciklama.baslik = UzunMetin(20000);
    HepsiGorunmeli();
}

TEST_F(FormPrint2Test, A_heading_never_stands_alone_at_the_end_of_a_sheet) {
    int yeniSayfadakiler = 0;
    sayfa.OzelIstekler.baslik = UzunMetin(6000);
    for (int satir = 1; satir <= 60; ++satir) {
        sayfa.Label20.baslik += SayiMetni(satir) + u"\r\n";
        for (const Sayfa& biri : Sayfalar())
            for (std::size_t sira = 0; sira < biri.parcalar.size(); ++sira) {
                if (biri.parcalar[sira].ad != u"Label3")
                    continue;
                EXPECT_EQ(biri.parcalar.at(sira + 1).ad, u"OzelIstekler") << satir;
                yeniSayfadakiler += sira == 0 ? 1 : 0;
            }
    }
    EXPECT_GT(yeniSayfadakiler, 0) << "in no case did one have to go over";
}

} // namespace velora::test
