// The commands of the main screen: one table.
#include "table/Komutlar.h"

#include <set>

#include "destek/Eylemler.h"
#include "screen/Surum.h"
#include "storage/KodSayfasi.h"
#include "table/FormHakkinda.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

struct BeklenenKomut {
    Komut komut;
    Menu menu;
    MetinBakis ad;
    MetinBakis baslik;
    MetinBakis tus;
    int arac = 0; // its place in the tool bar
    MetinBakis aracBasligi = {};
    MetinBakis ipucu = {};
};

constexpr std::array<BeklenenKomut, kKomutSayisi> kBeklenenler{{
    {Komut::Arasss, Menu::Kayitss, u"Arasss", u"Kayıt Ara", u"F2", 1, u"Ara", u"Kayıt Ara (F2)"},
    {Komut::aline13, Menu::Kayitss, u"aline13", u"-", u""},
    {Komut::Cikissssss, Menu::Kayitss, u"Cikissssss", u"Programdan Çıkış", u""},
    {Komut::BakiyeRaporss, Menu::Raporsss, u"BakiyeRaporss", u"Rezervasyon Raporu", u"F3", 3, u"Rapor",
     u"Rezervasyon Raporu (F3)"},
    {Komut::kasarapors, Menu::Raporsss, u"kasarapors", u"Kasa Raporu", u"F4", 5, u"Kasa",
     u"Kasa Raporu (F4)"},
    {Komut::aline1, Menu::Raporsss, u"aline1", u"-", u""},
    {Komut::rezrapor, Menu::Raporsss, u"rezrapor", u"Rezervasyon Tablosu", u"F5", 7, u"Yazdır",
     u"Rezervasyon Tablosu (F5)"},
    {Komut::linooomm, Menu::Raporsss, u"linooomm", u"-", u""},
    {Komut::iptalsebepss, Menu::Raporsss, u"iptalsebepss", u"İptal Sebepleri", u""},
    {Komut::FirmaBilgiss, Menu::ayarsd, u"FirmaBilgiss", u"Firma Bilgileri", u""},
    {Komut::firmcizgi, Menu::ayarsd, u"firmcizgi", u"-", u""},
    {Komut::Sozduzenss, Menu::ayarsd, u"Sozduzenss", u"Sözleşme Tanımları", u""},
    {Komut::Salontanimss, Menu::ayarsd, u"Salontanimss", u"Salon Tanımları", u""},
    {Komut::aline4, Menu::ayarsd, u"aline4", u"-", u""},
    {Komut::MenuAyars, Menu::ayarsd, u"MenuAyars", u"Menü Tanımları", u""},
    {Komut::ResTatilss, Menu::ayarsd, u"ResTatilss", u"Resmi Tatil ve Özel Gün Tanımları", u""},
    {Komut::aline8, Menu::ayarsd, u"aline8", u"-", u""},
    {Komut::KulTanimssss, Menu::ayarsd, u"KulTanimssss", u"Kullanıcı ve Yetki Tanımları", u""},
    {Komut::Guvenliksss, Menu::ayarsd, u"Guvenliksss", u"Güvenlik Ayarları", u""},
    {Komut::Websssunucus, Menu::ayarsd, u"Websssunucus", u"Web Sunucu Ayarları", u""},
    {Komut::aline9, Menu::ayarsd, u"aline9", u"-", u""},
    {Komut::Progrset, Menu::ayarsd, u"Progrset", u"Genel Program Ayarları", u"F7", 13, u" Ayarlar ",
     u"Program Ayarları (F7)"},
    {Komut::aline10, Menu::ayarsd, u"aline10", u"-", u""},
    {Komut::Yedeksss, Menu::ayarsd, u"Yedeksss", u"Yedek Al / Geri Yükle", u""},
    {Komut::Yardimssa, Menu::Yardimss, u"Yardimssa", u"Yardım Konuları", u"F1"},
    {Komut::oneriii, Menu::Yardimss, u"oneriii", u"Öneri ve İstekleriniz", u""},
    {Komut::duyurularsss, Menu::Yardimss, u"duyurularsss", u"Duyurular", u""},
    {Komut::Phakss, Menu::Yardimss, u"Phakss", u"Program Hakkında", u"Ctrl+F1"},
    {Komut::UyariGoster, Menu::Yok, u"UyariGoster", u"Uyari Goster", u"", 9, u" Uyarılar",
     u"Yaklaşan Rezervasyonlar"},
    {Komut::Yayinla, Menu::Yok, u"Yayinla", u"Web'te Yayınla", u"", 11, u"Yayınla", u"Web'te Yayınla (F12)"},
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
        EXPECT_EQ(komut.arac.yer, beklenen.arac);
        EXPECT_EQ(komut.arac.baslik, beklenen.aracBasligi);
        EXPECT_EQ(komut.arac.ipucu, beklenen.ipucu);
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

TEST(Komutlar, No_menu_begins_or_ends_with_a_line_and_no_two_lines_touch) {
    const KomutTanimi* once = nullptr;
    for (const KomutTanimi& komut : Komutlar()) {
        const bool ilk = once == nullptr || once->menu != komut.menu;
        EXPECT_FALSE(komut.Cizgi() && (ilk || once->Cizgi())) << KodYaz(komut.ad);
        EXPECT_FALSE(ilk && once != nullptr && once->Cizgi()) << KodYaz(komut.ad);
        once = &komut;
    }
    EXPECT_FALSE(once->Cizgi());
}

TEST(Komutlar, F12_belongs_to_nothing_though_a_tip_may_name_it_on_purpose) {
    for (const KomutTanimi& komut : Komutlar())
        EXPECT_NE(komut.tus, u"F12");
}

TEST_F(KomutTablosu, A_button_of_the_tool_bar_takes_the_ruler_away_before_its_command_runs) {
    kullanici.ProgramiAc();
    const auto cetvelsiz = [this] {
        EXPECT_EQ(kullanici.Tablo().HizliGun, 0);
        EXPECT_EQ(kullanici.Tablo().HizliAy, 0);
        EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    };
    for (const auto& [dugme, ekran] : {std::pair{u"Ara", EkranAdi::FormArama},
                                       {u"Rapor", EkranAdi::FormBakiye},
                                       {u"Kasa", EkranAdi::FormKasa},
                                       {u"Yazdır", EkranAdi::FormTabloPrint},
                                       {u" Ayarlar ", EkranAdi::FormAyarlar}}) {
        kullanici.GunBasligina(7);
        kullanici.AyBasligina(9);
        ASSERT_TRUE(kullanici.Tablo().HizliSecim.gorunur);
        kullanici.ortam.Bekle(BeklenenEkran{ekran, cetvelsiz});
        kullanici.Tablo().AracaTikla(dugme);
    }
    kullanici.GunBasligina(7);
    kullanici.ortam.Bekle(BeklenenKutu{u"Velora", u"Hatırlatmalarda yaklaşan rezervasyon yok."});
    kullanici.Tablo().AracaTikla(u" Uyarılar");
    cetvelsiz();
}

TEST_F(KomutTablosu, A_button_is_known_by_its_caption_to_the_blank_on_purpose) {
    kullanici.ProgramiAc();
    for (const char16_t* dugme :
         {u"Uyarılar", u" Uyarılar ", u"Ayarlar", u" Ayarlar", u"ara", u" Ara", u""}) {
        kullanici.GunBasligina(7);
        kullanici.Tablo().AracaTikla(dugme); // nothing is expected to come
        EXPECT_EQ(kullanici.Tablo().HizliGun, 0) << "but the ruler goes all the same";
    }
}

TEST_F(KomutTablosu, Leaving_asks_and_a_no_leaves_everything_as_it_was) {
    kullanici.ProgramiAc();
    const auto sor = [this](Cevap cevap) {
        kullanici.ortam.Bekle(
            BeklenenKutu{u"Velora", u"Programdan çıkmak istediğinizden emin misiniz?", Simge::Soru, cevap});
        kullanici.KomutSec(Komut::Cikissssss);
    };
    sor(Cevap::Hayir);
    EXPECT_FALSE(kullanici.ortam.bitti);
    sor(Cevap::Evet);
    EXPECT_TRUE(kullanici.ortam.bitti);
    EXPECT_TRUE(kullanici.ortam.hayirdaBaslayanlar.empty()) << "nothing is lost by it";
}

class Yardim : public TabloTest {
  protected:
    static constexpr MetinBakis kSayfa = u"https://yardim.example/velora";

    void SayfayiVer() { agac.KoyMetin(u"Adresler.dat", u"\"s\",\"t\",\"" + Metin(kSayfa) + u"\",\"r\"\r\n"); }
    void KutuBekle() {
        kullanici.ortam.Bekle(BeklenenKutu{u"Velora",
                                           u"Yardım sayfası açılamadı.\n"
                                           u"Programın klasöründeki Kilavuz.html dosyasına bakınız."});
    }
};

TEST_F(Yardim, Opens_the_page_where_one_is_given_and_then_not_the_guide) {
    agac.KoyMetin(u"Kilavuz.html", u"<p>Kılavuz</p>");
    kullanici.ProgramiAc();
    SayfayiVer();
    kullanici.KomutSec(Komut::Yardimssa);
    EXPECT_EQ(kullanici.ortam.acilanAdresler, std::vector<Metin>{Metin(kSayfa)});
    EXPECT_TRUE(kullanici.ortam.acilanDosyalar.empty());
}

TEST_F(Yardim, Without_a_page_or_without_a_browser_opens_the_guide_beside_the_program) {
    agac.KoyMetin(u"Kilavuz.html", u"<p>Kılavuz</p>");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::Yardimssa);
    EXPECT_TRUE(kullanici.ortam.acilanAdresler.empty());
    SayfayiVer();
    kullanici.ortam.adresAcilir = false;
    kullanici.KomutSec(Komut::Yardimssa);
    const std::filesystem::path kilavuz = agac.Yol(u"Kilavuz.html");
    EXPECT_EQ(kullanici.ortam.acilanDosyalar, (std::vector<std::filesystem::path>{kilavuz, kilavuz}));
}

TEST_F(Yardim, With_neither_page_nor_guide_a_box_says_so) {
    kullanici.ProgramiAc();
    KutuBekle();
    kullanici.KomutSec(Komut::Yardimssa);
    EXPECT_TRUE(kullanici.ortam.acilanDosyalar.empty()) << "no program is started on a file that isn't there";
    agac.KoyMetin(u"Kilavuz.html", u"<p>Kılavuz</p>");
    kullanici.ortam.dosyaAcilir = false;
    KutuBekle();
    kullanici.KomutSec(Komut::Yardimssa);
}

TEST_F(KomutTablosu, The_about_screen_tells_name_version_folder_and_licences) {
    kullanici.ProgramiAc();
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormHakkinda, [this] {
                                            const auto hakkinda = kullanici.Prog().FormHakkinda.Tut();
                                            EXPECT_EQ(hakkinda->Ad.baslik, u"Velora");
                                            EXPECT_EQ(hakkinda->Surum.baslik, kSurum);
                                            EXPECT_EQ(MetinYolu(hakkinda->Klasor.metin), agac.Kok());
                                            EXPECT_TRUE(hakkinda->Klasor.kilitli);
                                            EXPECT_GE(hakkinda->Liste.satirlar.size(), 3U);
                                            for (const ListeSatiri& satir : hakkinda->Liste.satirlar) {
                                                EXPECT_EQ(satir.sutun.size(), 3U);
                                                EXPECT_FALSE(satir.sutun[0].empty() ||
                                                             satir.sutun[2].empty());
                                            }
                                            VELORA_BAS(kullanici.Prog().FormHakkinda, Command1);
                                        }});
    kullanici.KomutSec(Komut::Phakss);
    EXPECT_FALSE(kullanici.Prog().FormHakkinda.Yuklu());
}

TEST_F(KomutTablosu, The_status_bar_tells_date_and_time_and_leaves_its_first_panel_to_the_login) {
    kullanici.ProgramiAc();
    using namespace std::chrono_literals;
    kullanici.ortam.simdi = std::chrono::local_days(std::chrono::year{2013} / 3 / 9) + 7h + 5min + 59s;
    kullanici.Tablo().StatusBar1 = u"Velora - Aktif Kullanıcı : ayşe";
    kullanici.Tablo().SaatiYaz();
    EXPECT_EQ(kullanici.Tablo().StatusBar1, u"Velora - Aktif Kullanıcı : ayşe");
    EXPECT_EQ(kullanici.Tablo().StatusBar1Saati[0], u"09.03.2013");
    EXPECT_EQ(kullanici.Tablo().StatusBar1Saati[1], u"07:05");
}

} // namespace velora::test
