// The cash book as a file for a spreadsheet program.
#include "accounts/KasaTest.h"
#include "xls/Okurlar.h"

namespace velora::test {

class KasaAktarma : public KasaTest {};

TEST_F(KasaAktarma, The_rows_stand_as_they_are_listed_under_the_headings_of_the_screen) {
    agac.Koy(u"Rapor.xls", "the other report");
    agac.Koy(u"Salon A/2012/20.06.2012 - Gece-Odeme", "\"10.06.2012\",\"1250.50\",\"7 - Ay\xFE"
                                                      "e\"\r\n");
    agac.Koy(kGiderYolu, "#2012-06-11#,\"300\",\"=1+1\"\r\n");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] {
        KasaAraligi(u"01.01.2012", u"02.01.2012"); // not listed, so not exported
        VELORA_BAS(Prog().FormKasa, Command2);
        const auto sayfalar = FreeXlOku(agac.Yol(u"Rapor.xls"));
        ASSERT_EQ(sayfalar.size(), 1U);
        const XlsSatirlari beklenen{MetinSatiri({"Tarih", "Tutar", "İşlem", "Açıklama"}),
                                    {"10.06.2012", 1250.5, "Gelir", "7 - Ayşe"},
                                    {"11.06.2012", 300.0, "Gider", "=1+1"}};
        EXPECT_EQ(sayfalar[0].satirlar, beklenen);
        EXPECT_EQ(kullanici.ortam.acilanDosyalar, std::vector{agac.Kok() / "Rapor.xls"});
    });
}

TEST_F(KasaAktarma, The_old_file_is_gone_even_when_the_writing_then_fails_on_purpose) {
    agac.Koy(u"Rapor.xls", "old");
    KasaAc([&] {
        Prog().dosyalar.bosYer = 100;
        VELORA_BAS(Prog().FormKasa, Command2);
        EXPECT_FALSE(agac.Var(u"Rapor.xls"));
        EXPECT_EQ(kullanici.ortam.acilanDosyalar.size(), 1U);
    });
}

} // namespace velora::test
