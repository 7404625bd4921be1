// Each test reads what we have written with two readers that others have written.
#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "storage/Metin.h"
#include "storage/xls/Xls.h"
#include "xls/Okurlar.h"

namespace velora::test {

namespace {

struct Okur {
    const char* ad;
    std::vector<OkunanSayfa> (*oku)(const std::filesystem::path& yol);
};

std::string Utf8(const Metin& metin) {
    const std::u8string bayt = std::filesystem::path(metin).u8string();
    return {bayt.begin(), bayt.end()};
}

std::vector<XlsHucresi> Okunan(const std::vector<Metin>& metinler) {
    std::vector<XlsHucresi> satir;
    for (const Metin& metin : metinler)
        satir.push_back(metin.empty() ? XlsHucresi() : XlsHucresi(Utf8(metin)));
    return satir;
}

} // namespace

class XlsOkur : public testing::TestWithParam<Okur> {
  protected:
    std::vector<OkunanSayfa> YazVeOku(const std::vector<std::vector<Metin>>& satirlar,
                                      std::vector<int> sayiSutunlari = {}) {
        XlsTablosu tablo{.basliklar = basliklar, .satirlar = {}, .sayiSutunlari = std::move(sayiSutunlari)};
        tablo.satirlar.assign(satirlar.begin(), satirlar.end());
        agac.Koy(u"Rapor.xls", XlsYaz(tablo));
        return GetParam().oku(agac.Yol(u"Rapor.xls"));
    }
    /// One column of such texts, read back in one sheet.
    std::vector<XlsHucresi> SutunuOku(const std::vector<Metin>& metinler,
                                      std::vector<int> sayiSutunlari = {}) {
        std::vector<std::vector<Metin>> satirlar;
        for (const Metin& metin : metinler)
            satirlar.push_back({metin});
        std::vector<XlsHucresi> hucreler;
        const auto sayfalar = YazVeOku(satirlar, std::move(sayiSutunlari));
        if (sayfalar.size() != 1 || sayfalar[0].satirlar.size() != metinler.size() + 1) {
            ADD_FAILURE() << "other sheets or rows than were written";
            return {};
        }
        for (std::size_t i = 1; i <= metinler.size(); ++i)
            hucreler.push_back(sayfalar[0].satirlar[i].empty() ? XlsHucresi()
                                                               : sayfalar[0].satirlar[i].front());
        return hucreler;
    }
    /// As many rows as that, each of its own number.
    static std::vector<std::vector<Metin>> NumaraliSatirlar(int adet) {
        std::vector<std::vector<Metin>> satirlar;
        for (int i = 1; i <= adet; ++i)
            satirlar.push_back({u"kayıt " + SayiMetni(i), SayiMetni(i * 3)});
        return satirlar;
    }
    /// The sheet holds the headings and then the rows from `ilk` on, each with its number.
    static void NumaralarOlmali(const OkunanSayfa& sayfa, int ilk, std::size_t adet) {
        ASSERT_EQ(sayfa.satirlar.size(), adet + 1);
        EXPECT_EQ(sayfa.satirlar[0], MetinSatiri({"Açıklama", "Tutar"}));
        for (std::size_t i = 1; i <= adet; ++i) {
            const int no = ilk + static_cast<int>(i) - 1;
            ASSERT_EQ(sayfa.satirlar[i],
                      (std::vector<XlsHucresi>{"kayıt " + std::to_string(no), double{3} * no}));
        }
    }

    GeciciAgac agac;
    std::vector<Metin> basliklar{u"Açıklama", u"Tutar"};
};

INSTANTIATE_TEST_SUITE_P(Okurlar, XlsOkur, testing::Values(Okur{"FreeXL", FreeXlOku}, Okur{"xlrd", XlrdOku}),
                         [](const auto& bilgi) { return std::string(bilgi.param.ad); });

TEST_P(XlsOkur, Without_rows_there_is_one_sheet_with_the_headings) {
    const auto sayfalar = YazVeOku({});
    ASSERT_EQ(sayfalar.size(), 1U);
    EXPECT_EQ(sayfalar[0].ad, "Sayfa1");
    EXPECT_EQ(sayfalar[0].satirlar, XlsSatirlari({MetinSatiri({"Açıklama", "Tutar"})}));
}

TEST_P(XlsOkur, One_row_stands_under_the_headings) {
    const auto sayfalar = YazVeOku({{u"Elektrik", u"150"}});
    ASSERT_EQ(sayfalar.size(), 1U);
    EXPECT_EQ(sayfalar[0].satirlar,
              XlsSatirlari({MetinSatiri({"Açıklama", "Tutar"}), MetinSatiri({"Elektrik", "150"})}));
}

TEST_P(XlsOkur, Every_letter_comes_back) {
    const std::vector<Metin> metinler{u"çÇğĞıIiİöÖşŞüÜ", u"âÂîÎûÛ", u"€ ‘tırnak’ … ½ ß ÿ", u"\"çift\" & <ok>",
                                      u"ﷺ 漢 😀"};
    EXPECT_EQ(SutunuOku(metinler), Okunan(metinler));
}

TEST_P(XlsOkur, What_looks_like_a_formula_a_number_or_a_date_stays_a_text) {
    const std::vector<Metin> metinler{u"=1+1",
                                      u"=HYPERLINK(\"http://x.test\")",
                                      u"+90 532 000 00 00",
                                      u"-5",
                                      u"@SUM(A1)",
                                      u"'x",
                                      u"0532",
                                      u"05.01.2012",
                                      u"1E5",
                                      u"TRUE"};
    EXPECT_EQ(SutunuOku(metinler), Okunan(metinler));
    EXPECT_EQ(SutunuOku({u"=1+1", u"+5", u"@5", u"- 5"}, {0}), Okunan({u"=1+1", u"+5", u"@5", u"- 5"}));
}

TEST_P(XlsOkur, Plain_amounts_of_a_number_column_are_numbers_and_its_other_texts_stay) {
    const auto sayfalar = YazVeOku({{u"1500", u"1500"},
                                    {u"-20", u"-20"},
                                    {u"0", u"1250.5"},
                                    {u"7", u"999999999999999"},
                                    {u"8", u"1.250"},
                                    {u"9", u"5 bin"},
                                    {u"10", u""},
                                    {u"11", u"0"}},
                                   {1});
    ASSERT_EQ(sayfalar.size(), 1U);
    const XlsSatirlari beklenen{MetinSatiri({"Açıklama", "Tutar"}),
                                {"1500", 1500.0},
                                {"-20", -20.0},
                                {"0", 1250.5},
                                {"7", 999999999999999.0},
                                {"8", "1.250"},
                                {"9", "5 bin"},
                                {"10"},
                                {"11", 0.0}};
    EXPECT_EQ(sayfalar[0].satirlar, beklenen);
}

TEST_P(XlsOkur, Seventy_thousand_rows_fill_a_sheet_and_go_on_in_a_second_one) {
    const auto sayfalar = YazVeOku(NumaraliSatirlar(70000), {1});
    ASSERT_EQ(sayfalar.size(), 2U);
    EXPECT_EQ(sayfalar[1].ad, "Sayfa2");
    NumaralarOlmali(sayfalar[0], 1, 65535);
    NumaralarOlmali(sayfalar[1], 65536, 4465);
}

// The texts of all cells stand in one long table, which is cut into records wherever one is full.
TEST_P(XlsOkur, Texts_of_every_length_come_back_wherever_a_record_ends_in_them) {
    std::vector<Metin> metinler;
    for (std::size_t boy = 1; boy <= 400; ++boy)
        metinler.push_back(SayiMetni(static_cast<std::ptrdiff_t>(boy)) + Metin(boy, u'ş'));
    for (std::size_t boy = 4096; boy <= 4120; ++boy)
        metinler.push_back(SayiMetni(static_cast<std::ptrdiff_t>(boy)) + Metin(boy, u'ğ'));
    EXPECT_EQ(SutunuOku(metinler), Okunan(metinler));
}

TEST_P(XlsOkur, The_text_behind_one_that_nearly_fills_a_record_comes_back) {
    basliklar = {u"B"};
    constexpr std::size_t kIlkKayit = 8224 - 8 - 5; // the most bytes, the counts of the texts, the heading
    for (std::size_t kalan = 0; kalan < 8; ++kalan) {
        // A text takes an odd number of bytes: for an even rest there is one more.
        std::vector<Metin> metinler{u"ı"};
        if (kalan % 2 == 0)
            metinler.push_back(u"i");
        metinler.push_back(Metin((kIlkKayit - 5 * metinler.size() - 3 - kalan) / 2, u'ğ'));
        metinler.push_back(u"ŞşĞğ");
        EXPECT_EQ(SutunuOku(metinler), Okunan(metinler)) << kalan << " bytes were left";
    }
}

TEST_P(XlsOkur, Line_ends_are_single_ones_and_control_characters_blanks) {
    EXPECT_EQ(SutunuOku({u"bir\r\niki\rüç\ndört", Metin(u"a\tb\0c\x1Fz", 7)}),
              Okunan({u"bir\niki\nüç\ndört", u"a b c z"}));
}

TEST_P(XlsOkur, Half_a_surrogate_pair_is_shown_as_a_sign_that_is_missing) {
    EXPECT_EQ(SutunuOku({u"a\xD83D", u"\xDE00z"}), Okunan({u"a\xFFFD", u"\xFFFDz"}));
}

TEST_P(XlsOkur, Empty_texts_leave_gaps_and_short_rows_end_early) {
    basliklar = {u"A", u"B", u"C"};
    const auto sayfalar = YazVeOku({{u"", u"", u"x"}, {}, {u"y"}, {u"", u"z"}});
    ASSERT_EQ(sayfalar.size(), 1U);
    const XlsSatirlari beklenen{MetinSatiri({"A", "B", "C"}), {{}, {}, "x"}, {}, {"y"}, {{}, "z"}};
    EXPECT_EQ(sayfalar[0].satirlar, beklenen);
}

TEST_P(XlsOkur, Columns_behind_the_last_one_of_a_sheet_are_left_out) {
    basliklar.assign(257, u"b");
    std::vector<Metin> satir;
    for (int i = 1; i <= 257; ++i)
        satir.push_back(u"s" + SayiMetni(i));
    const auto sayfalar = YazVeOku({satir});
    ASSERT_EQ(sayfalar.size(), 1U);
    satir.resize(256);
    EXPECT_EQ(sayfalar[0].satirlar.at(1), Okunan(satir));
}

/// What only one of the readers tells or follows.
class XlsTekOkur : public XlsOkur {};

INSTANTIATE_TEST_SUITE_P(Okurlar, XlsTekOkur, testing::Values(Okur{"xlrd", XlrdOku}),
                         [](const auto& bilgi) { return std::string(bilgi.param.ad); });

// FreeXL doesn't follow a text into a third record.
TEST_P(XlsTekOkur, A_text_is_cut_to_what_a_cell_can_hold_and_never_within_a_sign) {
    const Metin tam = Metin(32766, u'ı') + u"x";
    const Metin cift = Metin(32766, u'ı') + u"😀";
    EXPECT_EQ(SutunuOku({tam, tam + u"y", cift}), Okunan({tam, tam, Metin(32766, u'ı')}));
}

TEST_P(XlsTekOkur, Headings_are_bold_on_yellow) {
    const auto sayfalar = YazVeOku(NumaraliSatirlar(2));
    ASSERT_EQ(sayfalar.size(), 1U);
    ASSERT_EQ(sayfalar[0].basliklar.size(), 2U);
    for (const XlsBasligi& baslik : sayfalar[0].basliklar) {
        EXPECT_TRUE(baslik.kalin);
        EXPECT_EQ(baslik.zemin, "FFFF00");
    }
}

TEST_P(XlsTekOkur, The_heading_of_a_number_column_stands_to_the_right_as_its_numbers_do) {
    const auto sayfalar = YazVeOku(NumaraliSatirlar(2), {1});
    ASSERT_EQ(sayfalar.size(), 1U);
    EXPECT_FALSE(sayfalar[0].basliklar.at(0).sagda);
    EXPECT_TRUE(sayfalar[0].basliklar.at(1).sagda);
    EXPECT_EQ(sayfalar[0].basliklar.at(1).zemin, "FFFF00");
}

TEST_P(XlsTekOkur, Columns_are_as_wide_as_the_longest_line_in_them_within_limits) {
    basliklar = {u"Tarih", u"Ad Soyad", u"Açıklama", u"Uzun bir başlık, on dokuz"};
    const auto sayfalar = YazVeOku({{u"5", u"0123456789012345678901234", u"kısa\r\n0123456789", u"1"},
                                    {u"6", u"MMMMMMMMMMMMMMMMMMMMMMMMM", Metin(500, u'a'), u"2"}});
    ASSERT_EQ(sayfalar.size(), 1U);
    ASSERT_EQ(sayfalar[0].enler.size(), 4U);
    const auto hane = [&](std::size_t sutun) { return sayfalar[0].enler[sutun] / 256.0; };
    EXPECT_EQ(hane(0), 10) << "never too narrow";
    EXPECT_GE(hane(1), 25 * 1.4) << "wide letters";
    EXPECT_LE(hane(1), 25 * 1.4 + 3);
    EXPECT_LE(hane(2), 62) << "a long note doesn't push all else away";
    EXPECT_GE(hane(2), 60);
    EXPECT_GE(hane(3), 25) << "headings count";
}

TEST_P(XlsTekOkur, Amounts_with_a_point_show_two_digits_behind_it) {
    const auto sayfalar = YazVeOku({{u"a", u"1250.5"}, {u"b", u"1250"}}, {1});
    ASSERT_EQ(sayfalar.size(), 1U);
    EXPECT_EQ(sayfalar[0].sayiBicimleri.at({1, 1}), "0.00");
    EXPECT_EQ(sayfalar[0].sayiBicimleri.at({2, 1}), "General");
}

} // namespace velora::test
