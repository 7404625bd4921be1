#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "access/Yetkiler.h"
#include "destek/GeciciAgac.h"
#include "table/Komutlar.h"
#include "tools/kilavuz/ResimGomme.h"

namespace velora::test {

namespace {

namespace fs = std::filesystem;

/// Pixels of the pictures for one of the page: sharp also where it is read enlarged.
constexpr double kResimOlcegi = 1.5;

const fs::path kKilavuzKlasoru = VELORA_DOCS "/kilavuz";

std::string DosyaBaytlari(const fs::path& dosya) {
    std::ifstream akis(dosya, std::ios::binary);
    EXPECT_TRUE(akis) << dosya;
    return {std::istreambuf_iterator<char>(akis), {}};
}

std::string KilavuzUtf8(MetinBakis metin) {
    const std::u8string utf8 = fs::path(Metin(metin)).u8string();
    return {utf8.begin(), utf8.end()};
}

/// What stands between each pair of these, in their order.
std::vector<std::string> Aralar(const std::string& sayfa, std::string_view once, std::string_view sonra) {
    std::vector<std::string> aralar;
    for (std::size_t yer = sayfa.find(once); yer != std::string::npos; yer = sayfa.find(once, yer)) {
        yer += once.size();
        aralar.push_back(sayfa.substr(yer, sayfa.find(sonra, yer) - yer));
    }
    return aralar;
}

/// The value of an attribute within a tag; empty without it.
std::string Ozellik(const std::string& etiket, const std::string& ad) {
    const auto degerler = Aralar(" " + etiket, " " + ad + "=\"", "\"");
    return degerler.size() == 1 ? degerler.front() : "";
}

/// A PNG file tells its width behind the head of its first part.
unsigned ResimEni(const std::string& png) {
    unsigned en = 0;
    for (std::size_t i = 16; i < 20; ++i)
        en = en << 8U | static_cast<unsigned char>(png.at(i));
    return en;
}

} // namespace

class Kilavuz : public ::testing::Test {
  protected:
    std::string Bolum(const std::string& ad) const {
        const auto bolumler = Aralar(sayfa, "<section id=\"" + ad + "\">", "</section>");
        return bolumler.size() == 1 ? bolumler.front() : "";
    }

    std::string sayfa = DosyaBaytlari(kKilavuzKlasoru / "kilavuz.html");
    std::vector<std::string> resimler = Aralar(sayfa, "<img ", ">");
};

TEST_F(Kilavuz, Chapters_go_by_task_in_the_order_of_a_desk_and_end_with_the_owners) {
    const std::vector<std::string> bolumler{"ilk-gun",
                                            "giris",
                                            "tablo",
                                            "yeni-rezervasyon",
                                            "sozlesme-yazdirma",
                                            "odeme",
                                            "tasima",
                                            "iptal",
                                            "arama",
                                            "rapor",
                                            "kasa",
                                            "uyarilar",
                                            "acma-kapama",
                                            "yedek",
                                            "kullanicilar",
                                            "firma",
                                            "online",
                                            "ayarlar",
                                            "tuslar",
                                            "sozluk",
                                            "sahibine"};
    EXPECT_EQ(Aralar(sayfa, "<section id=\"", "\""), bolumler);
    std::vector<std::string> icindekiler = Aralar(Aralar(sayfa, "<nav", "</nav>").at(0), "href=\"#", "\"");
    EXPECT_EQ(icindekiler, bolumler);
}

TEST_F(Kilavuz, Each_link_leads_to_a_place_of_the_page_that_is_there_once) {
    const auto yerler = Aralar(sayfa, " id=\"", "\"");
    const std::set<std::string> farkli(yerler.begin(), yerler.end());
    EXPECT_EQ(farkli.size(), yerler.size());
    const auto baglar = Aralar(sayfa, "href=\"", "\"");
    EXPECT_GT(baglar.size(), 30U);
    for (const std::string& bag : baglar)
        EXPECT_TRUE(bag.starts_with("#") && farkli.contains(bag.substr(1))) << bag;
}

TEST_F(Kilavuz, Nothing_comes_from_outside_of_the_page) {
    for (const char* disari : {"://", "<script", "<link", "@import", "url(", "src=\"/", "<iframe", "srcset"})
        EXPECT_EQ(sayfa.find(disari), std::string::npos) << disari;
    EXPECT_EQ(Aralar(sayfa, "<style", "</style>").size(), 1U);
    EXPECT_NE(sayfa.find("<html lang=\"tr\">"), std::string::npos);
    EXPECT_NE(sayfa.find("<meta charset=\"utf-8\">"), std::string::npos);
}

TEST_F(Kilavuz, Each_picture_is_there_says_what_it_shows_and_has_the_size_of_its_window) {
    std::set<std::string> anlatilanlar;
    for (const std::string& resim : resimler) {
        const std::string png = DosyaBaytlari(kKilavuzKlasoru / Ozellik(resim, "src"));
        ASSERT_GT(png.size(), 1000U) << resim;
        EXPECT_EQ(Ozellik(resim, "width"), std::to_string(std::lround(ResimEni(png) / kResimOlcegi)))
            << resim;
        EXPECT_GT(Ozellik(resim, "alt").size(), 20U) << resim;
        anlatilanlar.insert(Ozellik(resim, "alt"));
    }
    EXPECT_EQ(anlatilanlar.size(), resimler.size());
}

TEST_F(Kilavuz, No_picture_lies_there_unused) {
    std::set<std::string> gosterilenler;
    for (const std::string& resim : resimler)
        gosterilenler.insert(Ozellik(resim, "src"));
    std::set<std::string> duranlar;
    for (const auto& oge : fs::directory_iterator(kKilavuzKlasoru / "resimler"))
        if (oge.path().extension() != ".md")
            duranlar.insert("resimler/" + oge.path().filename().string());
    EXPECT_EQ(gosterilenler, duranlar);
}

TEST_F(Kilavuz, Page_of_keys_has_each_key_of_the_commands) {
    const std::string tuslar = Bolum("tuslar");
    int sayi = 0;
    for (const KomutTanimi& komut : Komutlar()) {
        if (komut.tus.empty())
            continue;
        ++sayi;
        const std::string tus = "<kbd>" + KilavuzUtf8(komut.tus) + "</kbd>";
        EXPECT_NE(tuslar.find(tus), std::string::npos) << tus;
    }
    EXPECT_GE(sayi, 5);
}

TEST_F(Kilavuz, Each_entry_of_the_menus_and_each_right_is_named) {
    const auto gecer = [](std::string metin, const std::string& yazi) {
        std::ranges::replace(metin, '\n', ' ');
        EXPECT_NE(metin.find(yazi), std::string::npos) << yazi;
    };
    for (const KomutTanimi& komut : Komutlar())
        if (komut.menu != Menu::Yok && !komut.Cizgi())
            gecer(sayfa, "<b>" + KilavuzUtf8(komut.baslik) + "</b>");
    const std::string kullanicilar = Bolum("kullanicilar");
    for (const Yetki& yetki : Yetkiler())
        if (yetki.gorunur)
            gecer(kullanicilar, KilavuzUtf8(yetki.baslik));
}

TEST_F(Kilavuz, Guide_beside_the_program_has_its_pictures_in_it) {
    const kilavuz::TekSayfa tek = kilavuz::ResimleriGom(sayfa, kKilavuzKlasoru);
    EXPECT_EQ(tek.metin.find("src=\"resimler/"), std::string::npos);
    EXPECT_EQ(Aralar(tek.metin, "src=\"data:image/png;base64,iVBORw0KGgo", "\"").size(), resimler.size());
    EXPECT_EQ(tek.resimler.size(), resimler.size());
    for (const fs::path& resim : tek.resimler)
        EXPECT_TRUE(fs::is_regular_file(resim)) << resim;
    const auto kalan = [](const std::string& metin) { return metin.substr(metin.rfind("<section")); };
    EXPECT_EQ(kalan(tek.metin), kalan(sayfa));
}

/// The three lengths of a last part.
TEST(ResimGomme, Bytes_of_a_picture_become_base64) {
    const GeciciAgac agac;
    agac.Koy(u"bir.png", "f");
    agac.Koy(u"iki.png", "fo");
    agac.Koy(u"uc.png", "foo");
    agac.Koy(u"alti.png", std::string("\xFF\xFE\x00\x7F\x80 ", 6));
    const auto tek = kilavuz::ResimleriGom("<p><img src=\"bir.png\" alt=\"x\"><img src=\"iki.png\">"
                                           "<img src=\"uc.png\"><img src=\"alti.png\"></p>",
                                           agac.Kok());
    EXPECT_EQ(tek.metin, "<p><img src=\"data:image/png;base64,Zg==\" alt=\"x\">"
                         "<img src=\"data:image/png;base64,Zm8=\"><img src=\"data:image/png;base64,Zm9v\">"
                         "<img src=\"data:image/png;base64,//4Af4Ag\"></p>");
}

TEST(ResimGomme, Picture_that_cannot_be_read_makes_no_guide) {
    const GeciciAgac agac;
    EXPECT_THROW(kilavuz::ResimleriGom("<img src=\"yok.png\">", agac.Kok()), std::runtime_error);
    EXPECT_THROW(kilavuz::ResimleriGom("<img src=\"yok", agac.Kok()), std::runtime_error);
}

} // namespace velora::test
