// The commands of the main screen: one table.
#include "table/Komutlar.h"

#include <set>

#include "reservation/FormArama.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

struct BeklenenKomut {
    Komut komut;
    Menu menu;
    MetinBakis ad;
    MetinBakis baslik;
    MetinBakis tus;
};

constexpr std::array<BeklenenKomut, kKomutSayisi> kBeklenenler{{
    {Komut::Arasss, Menu::Kayitss, u"Arasss", u"Kayıt Ara", u"F2"},
    {Komut::BakiyeRaporss, Menu::Raporsss, u"BakiyeRaporss", u"Rezervasyon Raporu", u"F3"},
    {Komut::aline1, Menu::Raporsss, u"aline1", u"-", u""},
    {Komut::iptalsebepss, Menu::Raporsss, u"iptalsebepss", u"İptal Sebepleri", u""},
    {Komut::FirmaBilgiss, Menu::ayarsd, u"FirmaBilgiss", u"Firma Bilgileri", u""},
    {Komut::firmcizgi, Menu::ayarsd, u"firmcizgi", u"-", u""},
    {Komut::Salontanimss, Menu::ayarsd, u"Salontanimss", u"Salon Tanımları", u""},
    {Komut::aline4, Menu::ayarsd, u"aline4", u"-", u""},
    {Komut::MenuAyars, Menu::ayarsd, u"MenuAyars", u"Menü Tanımları", u""},
    {Komut::aline8, Menu::ayarsd, u"aline8", u"-", u""},
    {Komut::KulTanimssss, Menu::ayarsd, u"KulTanimssss", u"Kullanıcı ve Yetki Tanımları", u""},
    {Komut::Guvenliksss, Menu::ayarsd, u"Guvenliksss", u"Güvenlik Ayarları", u""},
    {Komut::Websssunucus, Menu::ayarsd, u"Websssunucus", u"Web Sunucu Ayarları", u""},
    {Komut::aline9, Menu::ayarsd, u"aline9", u"-", u""},
    {Komut::Progrset, Menu::ayarsd, u"Progrset", u"Genel Program Ayarları", u"F7"},
    {Komut::newkay, Menu::Sagtus, u"newkay", u"Yeni Organizasyon Oluştur", u""},
    {Komut::aline11, Menu::Sagtus, u"aline11", u"-", u""},
    {Komut::TasimaModuAc, Menu::Sagtus, u"TasimaModuAc", u"Taşıma Modunu Aç", u""},
    {Komut::aline12, Menu::Sagtus, u"aline12", u"-", u""},
    {Komut::iptals, Menu::Sagtus, u"iptals", u"Kayıt İptali", u""},
}};

} // namespace

using KomutTablosu = TabloTest;

TEST(Komutlar, Stand_in_their_menus_with_their_captions_and_keys) {
    std::size_t sira = 0;
    for (const KomutTanimi& komut : Komutlar()) {
        const BeklenenKomut& beklenen = kBeklenenler[sira++];
        EXPECT_EQ(komut.komut, beklenen.komut);
        EXPECT_EQ(komut.menu, beklenen.menu);
        EXPECT_EQ(komut.ad, beklenen.ad);
        EXPECT_EQ(komut.baslik, beklenen.baslik);
        EXPECT_EQ(komut.tus, beklenen.tus);
        EXPECT_EQ(komut.Cizgi(), beklenen.baslik == u"-")
            << "a line has no handler, and only a line has none";
    }
}

TEST(Komutlar, No_key_and_no_handler_serves_two) {
    std::set<MetinBakis> tuslar;
    for (const KomutTanimi& komut : Komutlar()) {
        if (!komut.tus.empty()) {
            EXPECT_TRUE(tuslar.insert(komut.tus).second);
        }
        for (const KomutTanimi& oteki : Komutlar())
            EXPECT_FALSE(&komut != &oteki && !komut.Cizgi() && komut.isle == oteki.isle);
    }
}

TEST_F(KomutTablosu, The_screen_has_an_entry_for_each_with_its_caption) {
    kullanici.ProgramiAc();
    for (const BeklenenKomut& beklenen : kBeklenenler) {
        const MenuGirdisi& girdi = kullanici.Tablo().Girdi(beklenen.komut);
        EXPECT_EQ(girdi.baslik, beklenen.baslik);
        EXPECT_TRUE(girdi.etkin && girdi.gorunur);
    }
}

TEST_F(KomutTablosu, A_button_of_the_tool_bar_takes_the_ruler_away_before_its_command_runs) {
    kullanici.ProgramiAc();
    kullanici.GunBasligina(7);
    kullanici.AyBasligina(9);
    ASSERT_TRUE(kullanici.Tablo().HizliSecim.gorunur);
    const auto ara = Komutlar()[static_cast<std::size_t>(Komut::Arasss)];
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormArama, [this] {
                                            EXPECT_EQ(kullanici.Tablo().HizliGun, 0);
                                            EXPECT_EQ(kullanici.Tablo().HizliAy, 0);
                                            EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
                                        }});
    kullanici.Tablo().AracaTikla(ara);
}

} // namespace velora::test
