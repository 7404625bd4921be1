#include "documents/Baski.h"

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

using namespace std::chrono_literals;

class BaskiTest : public ::testing::Test {
  protected:
    GeciciAgac agac;
    SahteOrtam ortam{Gun(2012y / 6 / 15)};
    Program program{ortam.Ver(), agac.Kok()};
    const std::vector<Sayfa> sayfalar{
        {Yon::Yatay, {{ParcaTuru::Yazi, u"a", {20, 30, 40, 5}, {9, true}, Hiza::Sag, {u"ğ"}, 255, 65280}}}};
};

} // namespace

TEST_F(BaskiTest, A_name_has_the_parts_that_are_there_and_only_what_a_file_name_may_hold) {
    EXPECT_EQ(BaskiAdi({u"05.01.2012", u"Nergis Salonu", u"Ayşe Yılmaz"}),
              u"05.01.2012 - Nergis Salonu - Ayşe Yılmaz");
    EXPECT_EQ(BaskiAdi({u"05.01.2012", u"  ", u" Can ", u""}), u"05.01.2012 - Can");
    EXPECT_EQ(BaskiAdi({u"a/b\\c:d*e?f\"g<h>i|j\r\nk"}), u"a b c d e f g h i j  k");
    EXPECT_EQ(BaskiAdi({u"Gül A.Ş. ."}), u"Gül A.Ş");
    EXPECT_EQ(BaskiAdi({Metin(300, u'x'), u"y"}), Metin(120, u'x'));
}

TEST_F(BaskiTest, A_print_tells_whether_the_printer_took_it) {
    ortam.Bekle(BeklenenBaski{.isAdi = u"Bir"});
    EXPECT_TRUE(Yazdir(program, sayfalar, u"Bir"));
    ortam.Bekle(BeklenenBaski{.isAdi = u"İki", .basilir = false});
    EXPECT_FALSE(Yazdir(program, sayfalar, u"İki"));
    ASSERT_EQ(ortam.basilanlar.size(), 1U);
    EXPECT_EQ(ortam.basilanlar[0].isAdi, u"Bir");
    EXPECT_EQ(SayfalarMetni(ortam.basilanlar[0].sayfalar), u"-- yatay\na 20,30 40x5 #255 /65280 9K >|ğ|\n");
}

TEST_F(BaskiTest, A_pdf_goes_where_the_user_wants_it) {
    ortam.Bekle(BeklenenKayitYeri{.ad = u"Bir.pdf", .secilen = "/tmp/x/seçilen.pdf"});
    PdfKaydet(program, sayfalar, u"Bir");
    ASSERT_EQ(ortam.pdfler.size(), 1U);
    EXPECT_EQ(ortam.pdfler[0].dosya, std::filesystem::path("/tmp/x/seçilen.pdf"));
    EXPECT_EQ(ortam.pdfler[0].isAdi, u"Bir");
    EXPECT_EQ(SayfalarMetni(ortam.pdfler[0].sayfalar), SayfalarMetni(sayfalar));
}

TEST_F(BaskiTest, A_cancelled_pdf_writes_nothing_and_says_nothing) {
    ortam.Bekle(BeklenenKayitYeri{.ad = u"Bir.pdf"});
    PdfKaydet(program, sayfalar, u"Bir");
    EXPECT_TRUE(ortam.pdfler.empty());
}

TEST_F(BaskiTest, A_pdf_that_cannot_be_written_is_told) {
    ortam.pdfYazilir = false;
    ortam.Bekle(BeklenenKayitYeri{.ad = u"Bir.pdf", .secilen = "/tmp/x/y.pdf"});
    ortam.Bekle(BeklenenKutu{
        u"Velora", u"PDF dosyası kaydedilemedi!\nBaşka bir klasör seçip yeniden deneyin.", Simge::Uyari});
    PdfKaydet(program, sayfalar, u"Bir");
    EXPECT_TRUE(ortam.pdfler.empty());
}

} // namespace velora::test
