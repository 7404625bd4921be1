#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "storage/KodSayfasi.h"
#include "storage/YazimBicimi.h"

// Random inputs with fixed seeds: each run looks at the same cases.
namespace velora {
namespace {

using Rastgele = std::mt19937;

std::size_t Sayi(Rastgele& rastgele, std::size_t enCok) {
    return std::uniform_int_distribution<std::size_t>(0, enCok)(rastgele);
}

Metin TirnaksizMetin(Rastgele& rastgele) {
    std::string bayt;
    for (std::size_t i = Sayi(rastgele, 40); i > 0; --i) {
        const char c = static_cast<char>(Sayi(rastgele, 255));
        bayt += c == '"' ? '\'' : c;
    }
    return KodCoz(bayt);
}

/// Bytes in which the signs that matter to the reader are common.
std::string Karisik(Rastgele& rastgele) {
    static constexpr std::string_view kSik = "\"\",,\r\n \t1a";
    std::string bayt;
    for (std::size_t i = Sayi(rastgele, 60); i > 0; --i)
        bayt += Sayi(rastgele, 4) == 0 ? static_cast<char>(Sayi(rastgele, 255))
                                       : kSik[Sayi(rastgele, kSik.size() - 1)];
    return bayt;
}

/// Changes, drops, doubles or cuts something.
void Boz(Rastgele& rastgele, std::string& bayt) {
    if (bayt.empty())
        return;
    const std::size_t yer = Sayi(rastgele, bayt.size() - 1);
    switch (Sayi(rastgele, 3)) {
    case 0:
        bayt[yer] = Karisik(rastgele).append("\"")[0];
        break;
    case 1:
        bayt.erase(yer, Sayi(rastgele, 5));
        break;
    case 2:
        bayt.insert(yer, bayt.substr(yer, Sayi(rastgele, 10)));
        break;
    default:
        bayt.resize(yer);
        break;
    }
}

/// A second reader, one sign at a time, with the position as a number.
std::vector<std::string> YavasOku(const std::string& bayt) {
    const auto biri = [&](std::size_t i, std::string_view isaretler) {
        return i < bayt.size() && isaretler.find(bayt[i]) != std::string_view::npos;
    };
    std::vector<std::string> degerler;
    std::size_t i = 0;
    for (;;) {
        while (biri(i, " \t\r\n"))
            ++i;
        if (i >= bayt.size())
            return degerler;
        std::string deger;
        if (bayt[i] == '"') {
            for (++i; i < bayt.size() && bayt[i] != '"'; ++i)
                deger += bayt[i];
            ++i;
            while (biri(i, " \t"))
                ++i;
        } else {
            for (; i < bayt.size() && !biri(i, ",\r\n"); ++i)
                deger += bayt[i];
            while (!deger.empty() && deger.back() == ' ')
                deger.pop_back();
        }
        if (biri(i, ",\r\n"))
            ++i;
        degerler.push_back(deger);
    }
}

/// Reads all values with the reader under test. More than one value for each byte would be a reader that
/// stands still.
std::vector<std::string> Oku(const std::string& bayt) {
    std::vector<std::string> degerler;
    DegerOkuyucu okuyucu(bayt);
    std::string_view deger;
    while (degerler.size() <= bayt.size() && !okuyucu.Sonda()) {
        EXPECT_TRUE(okuyucu.Oku(deger));
        degerler.emplace_back(deger);
    }
    EXPECT_FALSE(okuyucu.Oku(deger));
    return degerler;
}

} // namespace

TEST(YazimBicimiOzellik, Texts_without_quotes_come_back_as_they_were) {
    Rastgele rastgele(1254);
    for (int tur = 0; tur < 3000; ++tur) {
        std::vector<Metin> metinler;
        DegerYazici yazici;
        for (std::size_t satir = 1 + Sayi(rastgele, 4); satir > 0; --satir) {
            for (std::size_t i = 1 + Sayi(rastgele, 4); i > 0; --i)
                yazici.Parca(metinler.emplace_back(TirnaksizMetin(rastgele)));
            yazici.SatirSonu();
        }
        DegerOkuyucu okuyucu(yazici.Bayt());
        for (const Metin& metin : metinler) {
            Metin okunan = u"x";
            ASSERT_TRUE(okuyucu.Oku(okunan));
            ASSERT_EQ(okunan, metin);
        }
        ASSERT_TRUE(okuyucu.Sonda());
    }
}

TEST(YazimBicimiOzellik, Numbers_and_texts_keep_their_places_when_mixed) {
    Rastgele rastgele(35);
    for (int tur = 0; tur < 1000; ++tur) {
        const Metin metin = TirnaksizMetin(rastgele);
        const auto sayi = static_cast<int>(Sayi(rastgele, 16777215)) - 8000000;
        DegerYazici yazici;
        yazici.Yaz(sayi, metin, sayi);
        Metin ilk;
        Metin orta;
        Metin son;
        ASSERT_EQ(DegerOkuyucu(yazici.Bayt()).Oku(ilk, orta, son), 3);
        ASSERT_EQ(ilk, SayiMetni(sayi));
        ASSERT_EQ(orta, metin);
        ASSERT_EQ(son, SayiMetni(sayi));
    }
}

TEST(YazimBicimiOzellik, Random_bytes_read_as_a_slow_reader_reads_them) {
    Rastgele rastgele(20120105);
    for (int tur = 0; tur < 20000; ++tur) {
        const std::string bayt = Karisik(rastgele);
        ASSERT_EQ(Oku(bayt), YavasOku(bayt)) << testing::PrintToString(bayt);
    }
}

TEST(YazimBicimiOzellik, A_damaged_record_neither_crashes_nor_hangs_the_reader) {
    Rastgele rastgele(666);
    const std::string saglam =
        "\"Ay\xFE"
        "e Y\xFDlmaz\",\"\",\"Rize\r\nMerkez\",\"1500\",1,0\r\n\"1\",\"0\"\r\n#2012-05-03#\r\n";
    for (int tur = 0; tur < 10000; ++tur) {
        std::string bayt = saglam;
        for (std::size_t i = 1 + Sayi(rastgele, 8); i > 0; --i)
            Boz(rastgele, bayt);
        ASSERT_EQ(Oku(bayt), YavasOku(bayt)) << testing::PrintToString(bayt);
    }
}

TEST(YazimBicimiOzellik, Line_ends_behind_a_record_change_nothing) {
    Rastgele rastgele(4);
    for (int tur = 0; tur < 2000; ++tur) {
        DegerYazici yazici;
        yazici.Yaz(TirnaksizMetin(rastgele), 1);
        const std::string dolgulu = yazici.Bayt() + std::string(Sayi(rastgele, 300), '\n');
        ASSERT_EQ(Oku(dolgulu), Oku(yazici.Bayt()));
    }
}

TEST(YazimBicimiOzellik, A_long_run_of_one_sign_is_read_to_its_end) {
    for (const char c : {'"', ',', ' ', '\n', 'x', '\0'}) {
        const std::string bayt(1U << 17U, c);
        EXPECT_EQ(Oku(bayt).size(), YavasOku(bayt).size()) << static_cast<int>(c);
    }
}

} // namespace velora
