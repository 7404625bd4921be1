// The bytes of an .xls file, taken apart by the rules of the format. Whether others can read it says
// tests/xls.
#include "storage/xls/Xls.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "storage/xls/BilesikDosya.h"
#include "storage/xls/HucreMetni.h"
#include "storage/xls/Kayitlar.h"

namespace velora {

namespace {

constexpr std::size_t kSektorBoyu = 512;
constexpr std::uint32_t kZincirinSonu = 0xFFFFFFFE;

/// A number of so many bytes, the low one first.
std::uint32_t Sayi(const std::string& bayt, std::size_t yer, std::size_t boy = 4) {
    std::uint32_t sayi = 0;
    for (std::size_t i = boy; i-- > 0;)
        sayi = sayi << 8U | static_cast<unsigned char>(bayt.at(yer + i));
    return sayi;
}

std::size_t SektorYeri(std::uint32_t no) {
    return (no + std::size_t{1}) * kSektorBoyu;
}

/// The numbers of the sectors that hold the FAT: 109 stand in the head, the others in a chain of sectors.
std::vector<std::uint32_t> FatSektorleri(const std::string& dosya) {
    std::vector<std::uint32_t> nolar;
    const std::size_t adet = Sayi(dosya, 44);
    for (std::size_t i = 0; i < 109 && nolar.size() < adet; ++i)
        nolar.push_back(Sayi(dosya, 76 + 4 * i));
    std::uint32_t difat = Sayi(dosya, 68);
    std::size_t difatSayisi = 0;
    for (; difat != kZincirinSonu; difat = Sayi(dosya, SektorYeri(difat) + 508), ++difatSayisi)
        for (std::size_t i = 0; i < 127 && nolar.size() < adet; ++i)
            nolar.push_back(Sayi(dosya, SektorYeri(difat) + 4 * i));
    EXPECT_EQ(difatSayisi, Sayi(dosya, 72));
    EXPECT_EQ(nolar.size(), adet);
    return nolar;
}

std::uint32_t Sonraki(const std::string& dosya, const std::vector<std::uint32_t>& fat, std::uint32_t no) {
    return Sayi(dosya, SektorYeri(fat.at(no / 128)) + 4 * (no % 128));
}

/// The only stream of a compound file, by the way of its directory and its chain of sectors.
std::string AkisiAl(const std::string& dosya) {
    const auto fat = FatSektorleri(dosya);
    const std::size_t kayit = SektorYeri(Sayi(dosya, 48)) + 128; // the second of the directory
    EXPECT_EQ(dosya.at(kayit + 66), 2) << "a stream";
    EXPECT_GE(Sayi(dosya, kayit + 120), 4096U) << "a shorter one would lie in small sectors";
    std::string akis;
    for (std::uint32_t no = Sayi(dosya, kayit + 116); no != kZincirinSonu; no = Sonraki(dosya, fat, no))
        akis += dosya.substr(SektorYeri(no), kSektorBoyu);
    EXPECT_LT(akis.size() - Sayi(dosya, kayit + 120), kSektorBoyu) << "the chain is as long as the stream";
    akis.resize(Sayi(dosya, kayit + 120));
    return akis;
}

/// Every sector is told of by the FAT: the FAT's own ones as such, none twice, and no more than there are.
void FatTamOlmali(const std::string& dosya) {
    ASSERT_EQ(dosya.size() % kSektorBoyu, 0U);
    const auto fat = FatSektorleri(dosya);
    const std::size_t sektor = dosya.size() / kSektorBoyu - 1;
    ASSERT_GE(fat.size() * 128, sektor);
    for (const std::uint32_t no : fat)
        ASSERT_EQ(Sonraki(dosya, fat, no), 0xFFFFFFFDU);
    for (std::uint32_t difat = Sayi(dosya, 68); difat != kZincirinSonu;
         difat = Sayi(dosya, SektorYeri(difat) + 508))
        ASSERT_EQ(Sonraki(dosya, fat, difat), 0xFFFFFFFCU);
    for (std::size_t no = 0; no < fat.size() * 128; ++no)
        ASSERT_EQ(Sonraki(dosya, fat, static_cast<std::uint32_t>(no)) == 0xFFFFFFFFU, no >= sektor) << no;
}

struct XlsKayit {
    std::uint32_t no;
    std::size_t yer; // in the stream
    std::string bayt;
};

/// The records of a workbook up to the zeros that fill it up.
std::vector<XlsKayit> Kayitlari(const XlsTablosu& tablo) {
    const std::string akis = AkisiAl(XlsYaz(tablo));
    std::vector<XlsKayit> kayitlar;
    for (std::size_t yer = 0; yer < akis.size() && Sayi(akis, yer, 2) != 0;) {
        const std::size_t boy = Sayi(akis, yer + 2, 2);
        kayitlar.push_back({Sayi(akis, yer, 2), yer, akis.substr(yer + 4, boy)});
        yer += 4 + boy;
    }
    return kayitlar;
}

std::vector<XlsKayit> Secilenler(const std::vector<XlsKayit>& kayitlar, XlsKaydi no) {
    std::vector<XlsKayit> secilen;
    for (const XlsKayit& kayit : kayitlar)
        if (kayit.no == static_cast<std::uint32_t>(no))
            secilen.push_back(kayit);
    return secilen;
}

XlsTablosu TekSutun(const std::vector<Metin>& metinler) {
    XlsTablosu tablo{.basliklar = {u"Açıklama"}, .satirlar = {}, .sayiSutunlari = {}};
    for (const Metin& metin : metinler)
        tablo.satirlar.emplace_back(&metin, 1);
    return tablo;
}

} // namespace

TEST(BilesikDosya, The_head_tells_of_version_3_and_sectors_of_512_bytes) {
    const std::string dosya = BilesikDosya(u"Workbook", std::string(5000, 'x'));
    EXPECT_EQ(dosya.substr(0, 8), "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    EXPECT_EQ(dosya.substr(24, 10), std::string("\x3E\0\3\0\xFE\xFF\x09\0\6\0", 10));
    EXPECT_EQ(Sayi(dosya, 56), 4096U);
    EXPECT_EQ(Sayi(dosya, 60), kZincirinSonu);
    EXPECT_EQ(Sayi(dosya, 64), 0U);
}

TEST(BilesikDosya, The_directory_names_its_root_and_the_stream) {
    const std::string dosya = BilesikDosya(u"Defter ş", "x");
    const std::size_t dizin = SektorYeri(Sayi(dosya, 48));
    EXPECT_EQ(dosya.substr(dizin, 22), std::string("R\0o\0o\0t\0 \0E\0n\0t\0r\0y\0\0\0", 22));
    EXPECT_EQ(Sayi(dosya, dizin + 64, 2), 22U);
    EXPECT_EQ(dosya.at(dizin + 66), 5);
    EXPECT_EQ(Sayi(dosya, dizin + 76), 1U) << "the stream is its child";
    EXPECT_EQ(dosya.substr(dizin + 128, 18), std::string("D\0e\0f\0t\0e\0r\0 \0\x5F\x01\0\0", 18));
    EXPECT_EQ(Sayi(dosya, dizin + 128 + 64, 2), 18U);
    for (const std::size_t bos : {256U, 384U})
        EXPECT_EQ(dosya.at(dizin + bos + 66), 0);
}

TEST(BilesikDosya, A_short_stream_is_filled_up_with_zeros_so_that_it_needs_no_small_sectors) {
    for (const std::size_t boy : {0U, 1U, 4095U})
        EXPECT_EQ(AkisiAl(BilesikDosya(u"W", std::string(boy, 'x'))),
                  std::string(boy, 'x') + std::string(4096 - boy, '\0'));
}

TEST(BilesikDosya, A_stream_of_any_length_comes_back) {
    // Sectors of the FAT tell of 128 each, themselves and the directory included; the head names 109 of them.
    constexpr std::size_t kBaslikDolu = (109 * 128 - 109 - 1) * kSektorBoyu;
    constexpr std::size_t kBirDifatDolu = (236 * 128 - 236 - 1 - 1) * kSektorBoyu;
    for (const std::size_t boy : {std::size_t{4096}, std::size_t{4097}, 126 * kSektorBoyu, 127 * kSektorBoyu,
                                  kBaslikDolu, kBaslikDolu + 1, kBirDifatDolu, kBirDifatDolu + 1}) {
        std::string akis(boy, '\0');
        for (std::size_t i = 0; i < boy; ++i)
            akis[i] = static_cast<char>(i / kSektorBoyu * 7 + i);
        const std::string dosya = BilesikDosya(u"W", akis);
        EXPECT_TRUE(AkisiAl(dosya) == akis) << boy;
        FatTamOlmali(dosya);
    }
    EXPECT_EQ(Sayi(BilesikDosya(u"W", std::string(kBaslikDolu, 'x')), 72), 0U) << "the head is enough";
    EXPECT_EQ(Sayi(BilesikDosya(u"W", std::string(kBaslikDolu + 1, 'x')), 72), 1U);
    EXPECT_EQ(Sayi(BilesikDosya(u"W", std::string(kBirDifatDolu + 1, 'x')), 72), 2U);
}

TEST(Xls, No_record_is_longer_than_a_record_can_be) {
    const std::vector<Metin> metinler{Metin(30000, u'a'), Metin(4106, u'b'), Metin(7, u'c')};
    const auto kayitlar = Kayitlari(TekSutun(metinler));
    for (const XlsKayit& kayit : kayitlar)
        EXPECT_LE(kayit.bayt.size(), 8224U);
    EXPECT_GE(Secilenler(kayitlar, XlsKaydi::Devam).size(), 8U);
}

TEST(Xls, The_head_of_a_text_is_not_parted_from_its_first_character) {
    // Four bytes are left behind the counts, the heading and the first text.
    const std::vector<Metin> metinler{Metin((8224 - 8 - 19 - 3 - 4) / 2, u'a'), u"şı"};
    const auto kayitlar = Kayitlari(TekSutun(metinler));
    EXPECT_EQ(Secilenler(kayitlar, XlsKaydi::Metinler).at(0).bayt.size(), 8220U);
    EXPECT_EQ(Secilenler(kayitlar, XlsKaydi::Devam).at(0).bayt, std::string("\2\0\1\x5F\x01\x31\x01", 7));
}

TEST(Xls, Each_sheet_begins_where_the_workbook_says_and_the_file_ends_with_an_end) {
    std::vector<Metin> metinler(131071, u"x");
    metinler[70000].clear(); // the second sheet is shorter than the first
    const auto kayitlar = Kayitlari(TekSutun(metinler));
    const auto sayfalar = Secilenler(kayitlar, XlsKaydi::Sayfa);
    const auto baslar = Secilenler(kayitlar, XlsKaydi::Bas);
    ASSERT_EQ(sayfalar.size(), 3U);
    ASSERT_EQ(baslar.size(), 4U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(Sayi(sayfalar[i].bayt, 0), baslar[i + 1].yer);
        EXPECT_EQ(Sayi(baslar[i + 1].bayt, 2, 2), 0x0010U);
    }
    EXPECT_EQ(Secilenler(kayitlar, XlsKaydi::Son).size(), 4U);
    EXPECT_EQ(kayitlar.back().no, static_cast<std::uint32_t>(XlsKaydi::Son));
}

TEST(Xls, A_second_sheet_comes_with_the_65536th_row_and_tells_its_own_size) {
    std::vector<Metin> metinler(65535, u"x");
    EXPECT_EQ(Secilenler(Kayitlari(TekSutun(metinler)), XlsKaydi::Sayfa).size(), 1U);
    metinler.emplace_back(u"son");
    const auto boyutlar = Secilenler(Kayitlari(TekSutun(metinler)), XlsKaydi::Boyutlar);
    ASSERT_EQ(boyutlar.size(), 2U);
    EXPECT_EQ(Sayi(boyutlar[0].bayt, 4), 65536U);
    EXPECT_EQ(Sayi(boyutlar[1].bayt, 4), 2U);
    EXPECT_EQ(Sayi(boyutlar[1].bayt, 10, 2), 1U) << "columns";
}

TEST(Xls, Between_two_sheets_there_is_time_for_a_breath) {
    const std::vector<Metin> metinler(65'536, u"a");
    int arada = 0;
    XlsYaz(TekSutun({u"tek"}), [&arada] { ++arada; });
    EXPECT_EQ(arada, 1);
    XlsYaz(TekSutun(metinler), [&arada] { ++arada; });
    EXPECT_EQ(arada, 3);
}

TEST(Xls, No_cell_is_a_formula_and_a_text_that_comes_again_is_kept_once) {
    const std::vector<Metin> metinler{u"=1+1", u"@x", u"=1+1", u"=1+1"};
    const auto kayitlar = Kayitlari(TekSutun(metinler));
    EXPECT_EQ(Secilenler(kayitlar, XlsKaydi::MetinHucresi).size(), 5U)
        << "all of them texts, the heading too";
    EXPECT_TRUE(Secilenler(kayitlar, XlsKaydi{0x0006}).empty()) << "formulas";
    const auto tablo = Secilenler(kayitlar, XlsKaydi::Metinler);
    ASSERT_EQ(tablo.size(), 1U);
    EXPECT_EQ(Sayi(tablo[0].bayt, 0), 5U);
    EXPECT_EQ(Sayi(tablo[0].bayt, 4), 3U);
}

TEST(Xls, Rows_of_several_lines_are_so_high_and_others_are_left_to_the_program) {
    const std::vector<Metin> metinler{u"bir", u"bir\r\niki\r\nüç", Metin(300, u'a'), Metin(200, u'a'),
                                      Metin(30000, u'\n')};
    const auto satirlar = Secilenler(Kayitlari(TekSutun(metinler)), XlsKaydi::Satir);
    ASSERT_EQ(satirlar.size(), 3U);
    EXPECT_EQ(Sayi(satirlar[0].bayt, 0, 2), 2U);
    EXPECT_EQ(Sayi(satirlar[0].bayt, 6, 2), 3 * 255U);
    EXPECT_EQ(Sayi(satirlar[1].bayt, 0, 2), 3U) << "too long to stand in one line of the widest column";
    EXPECT_EQ(Sayi(satirlar[1].bayt, 6, 2), 5 * 255U);
    EXPECT_EQ(Sayi(satirlar[2].bayt, 6, 2), 409 * 20U) << "no row can be higher";
}

TEST(Xls, On_paper_the_sheet_lies_across_and_no_page_stands_beside_another) {
    const auto kayitlar = Kayitlari(TekSutun({}));
    const auto sayfa = Secilenler(kayitlar, XlsKaydi::SayfaDuzeni);
    const auto baski = Secilenler(kayitlar, XlsKaydi::BaskiDuzeni);
    ASSERT_EQ(sayfa.size(), 1U);
    ASSERT_EQ(baski.size(), 1U);
    EXPECT_EQ(Sayi(sayfa[0].bayt, 0, 2), 0x0100U) << "made to fit";
    EXPECT_EQ(baski[0].bayt.size(), 34U);
    EXPECT_EQ(Sayi(baski[0].bayt, 0, 2), 9U) << "A4";
    EXPECT_EQ(Sayi(baski[0].bayt, 6, 2), 1U) << "pages across";
    EXPECT_EQ(Sayi(baski[0].bayt, 8, 2), 0U) << "as many down as it takes";
    EXPECT_EQ(Sayi(baski[0].bayt, 10, 2), 0U) << "not upright";
}

TEST(DuzSayi, Takes_what_reads_alike_as_text_and_as_number) {
    const std::vector<std::pair<Metin, double>> sayilar{
        {u"0", 0},           {u"7", 7},
        {u"50000", 50000},   {u"-20", -20},
        {u"1250.5", 1250.5}, {u"1250.50", 1250.5},
        {u"-0.25", -0.25},   {u"999999999999999", 999999999999999}};
    for (const auto& [metin, sayi] : sayilar)
        EXPECT_EQ(DuzSayi(metin), sayi) << std::filesystem::path(metin);
}

TEST(DuzSayi, Leaves_all_else_a_text) {
    for (const MetinBakis metin : {u"",
                                   u"-",
                                   u".",
                                   u".5",
                                   u"5.",
                                   u"1.250",
                                   u"1,5",
                                   u"1.2.3",
                                   u" 5",
                                   u"5 ",
                                   u"+5",
                                   u"--5",
                                   u"007",
                                   u"00",
                                   u"1E5",
                                   u"5 TL",
                                   u"=5",
                                   u"9999999999999999",
                                   u"12345678901234.56",
                                   u"٣",
                                   u"inf"})
        EXPECT_FALSE(DuzSayi(metin)) << std::filesystem::path(Metin(metin));
}

} // namespace velora
