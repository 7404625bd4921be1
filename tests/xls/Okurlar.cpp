#include "xls/Okurlar.h"

#include <array>
#include <cstdio>
#include <sstream>

#include <freexl.h>
#include <gtest/gtest.h>

namespace velora::test {

namespace {

void HucreKoy(OkunanSayfa& sayfa, std::size_t satir, std::size_t sutun, XlsHucresi hucre) {
    if (sayfa.satirlar.size() <= satir)
        sayfa.satirlar.resize(satir + 1);
    auto& hucreler = sayfa.satirlar[satir];
    if (hucreler.size() <= sutun)
        hucreler.resize(sutun + 1);
    hucreler[sutun] = std::move(hucre);
}

XlsHucresi FreeXlHucresi(const void* dosya, unsigned satir, std::uint16_t sutun) {
    FreeXL_CellValue deger{};
    EXPECT_EQ(freexl_get_cell_value(dosya, satir, sutun, &deger), FREEXL_OK) << satir << ", " << sutun;
    switch (deger.type) {
    case FREEXL_CELL_NULL:
        return {};
    case FREEXL_CELL_INT:
        return static_cast<double>(deger.value.int_value);
    case FREEXL_CELL_DOUBLE:
        return deger.value.double_value;
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
        return std::string(deger.value.text_value);
    default:
        ADD_FAILURE() << "neither text nor number: " << satir << ", " << sutun;
        return {};
    }
}

OkunanSayfa FreeXlSayfasi(const void* dosya, std::uint16_t sira) {
    OkunanSayfa sayfa;
    const char* ad = nullptr;
    unsigned satirSayisi = 0;
    std::uint16_t sutunSayisi = 0;
    EXPECT_EQ(freexl_get_worksheet_name(dosya, sira, &ad), FREEXL_OK);
    EXPECT_EQ(freexl_select_active_worksheet(dosya, sira), FREEXL_OK);
    EXPECT_EQ(freexl_worksheet_dimensions(dosya, &satirSayisi, &sutunSayisi), FREEXL_OK);
    sayfa.ad = ad == nullptr ? "" : ad;
    sayfa.satirlar.resize(satirSayisi);
    for (unsigned satir = 0; satir < satirSayisi; ++satir)
        for (std::uint16_t sutun = 0; sutun < sutunSayisi; ++sutun)
            if (auto hucre = FreeXlHucresi(dosya, satir, sutun); hucre.index() != 0)
                HucreKoy(sayfa, satir, sutun, std::move(hucre));
    return sayfa;
}

std::string OnaltilikCoz(const std::string& metin) {
    std::string bayt;
    for (std::size_t i = 0; i + 1 < metin.size(); i += 2)
        bayt += static_cast<char>(std::stoi(metin.substr(i, 2), nullptr, 16));
    return bayt;
}

/// What the program prints. Nothing when it fails, and the test fails with what it said.
std::string Calistir(const std::string& komut) {
    std::string cikti;
    std::array<char, 1 << 16> tampon{};
    FILE* boru = ::popen((komut + " 2>&1").c_str(), "r");
    while (const std::size_t adet = std::fread(tampon.data(), 1, tampon.size(), boru))
        cikti.append(tampon.data(), adet);
    if (::pclose(boru) == 0)
        return cikti;
    ADD_FAILURE() << komut << ": " << cikti;
    return {};
}

/// Takes one line of `xlrd_oku.py`, which tells there what it can be.
void XlrdSatiri(std::vector<OkunanSayfa>& sayfalar, const std::string& yazi) {
    std::istringstream satir(yazi);
    char tur = '?';
    std::string metin;
    std::string bicim;
    std::size_t satirNo = 0;
    std::size_t sutun = 0;
    satir >> tur;
    if (tur == 'S') {
        satir >> metin >> satirNo;
        sayfalar.push_back({.ad = OnaltilikCoz(metin), .satirlar = {satirNo, std::vector<XlsHucresi>()}});
        return;
    }
    if (sayfalar.empty() || (tur != 'B' && tur != 'E' && tur != 'T' && tur != 'N')) {
        ADD_FAILURE() << (tur == 'U' ? OnaltilikCoz(yazi.substr(2)) : yazi);
        return;
    }
    OkunanSayfa& sayfa = sayfalar.back();
    if (tur == 'B') {
        int kalin = 0;
        int hiza = 0;
        satir >> sutun >> kalin >> metin >> hiza;
        sayfa.basliklar.push_back({kalin == 1, metin, hiza == 3});
    } else if (tur == 'E') {
        satir >> sutun >> sayfa.enler.emplace_back();
    } else {
        satir >> satirNo >> sutun >> metin >> bicim;
        if (tur == 'N')
            sayfa.sayiBicimleri[{satirNo, sutun}] = OnaltilikCoz(bicim);
        HucreKoy(sayfa, satirNo, sutun,
                 tur == 'N' ? XlsHucresi(std::stod(metin)) : XlsHucresi(OnaltilikCoz(metin)));
    }
}

} // namespace

std::vector<OkunanSayfa> FreeXlOku(const std::filesystem::path& yol) {
    const void* dosya = nullptr;
    const int sonuc = freexl_open(yol.c_str(), &dosya);
    EXPECT_EQ(sonuc, FREEXL_OK) << yol;
    std::vector<OkunanSayfa> sayfalar;
    unsigned sayi = 0;
    if (sonuc == FREEXL_OK) {
        EXPECT_EQ(freexl_get_info(dosya, FREEXL_BIFF_SHEET_COUNT, &sayi), FREEXL_OK);
        for (unsigned i = 0; i < sayi; ++i)
            sayfalar.push_back(FreeXlSayfasi(dosya, static_cast<std::uint16_t>(i)));
    }
    freexl_close(dosya);
    return sayfalar;
}

std::vector<OkunanSayfa> XlrdOku(const std::filesystem::path& yol) {
    std::istringstream cikti(Calistir("'" VELORA_PYTHON "' '" VELORA_XLRD "' '" + yol.string() + "'"));
    std::vector<OkunanSayfa> sayfalar;
    for (std::string satir; std::getline(cikti, satir);)
        XlrdSatiri(sayfalar, satir);
    return sayfalar;
}

std::vector<XlsHucresi> MetinSatiri(const std::vector<std::string>& metinler) {
    return {metinler.begin(), metinler.end()};
}

} // namespace velora::test
