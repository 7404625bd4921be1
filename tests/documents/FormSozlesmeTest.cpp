#include "documents/FormSozlesme.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "access/Splash.h"
#include "destek/Eylemler.h"
#include "destek/Kullanici.h"
#include "destek/Sayfalar.h"
#include "documents/FormPrint.h"
#include "online/FormFirma.h"

namespace velora::test {

namespace {

/// A profile: its name and its city among values that are all different.
Metin Profil(MetinBakis ad, MetinBakis sehir) {
    return u"\"" + Metin(ad) +
           u"\",\"Ayşe\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\",\"Çay Sk.\",\"" + Metin(sehir) +
           u"\",\"Ergene\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n";
}

// Heading and clauses as the disk has them: "Şartlar, Gül", and two lines with a comma in one.
constexpr std::string_view kSartlar = "\"\xDE"
                                      "artlar, G\xFCl\",\"1 - Kira, pe\xFEin.\r\n2 - \xDD\xE7ki yok.\"\r\n";

} // namespace

class FormSozlesmeTest : public ::testing::Test {
  protected:
    FormSozlesmeTest() {
        agac.KoyMetin(u"Firma.dll", Profil(u"Gül Düğün Salonları", u"TEKIRDAG"));
        agac.Koy(u"Sozlesme.dat", kSartlar);
    }

    FormSozlesme& Ekran() { return *program.FormSozlesme.Tut(); }

    /// The contract of "Nergis" with its two clauses and of nobody.
    static void OrnekOlmali(const std::vector<Sayfa>& sayfalar) {
        EXPECT_EQ(BosluksuzMetin(sayfalar, u"Unvan"), u"Nergis");
        EXPECT_EQ(BosluksuzMetin(sayfalar, u"Baslik"), u"Kurallar");
        EXPECT_EQ(BosluksuzMetin(sayfalar, u"Sozlesme"), u"1-Nakit.2-Peşin.");
        int yerTutucular = 0;
        for (const SayfaParcasi& parca : sayfalar.at(0).parcalar)
            yerTutucular += parca.satirlar == std::vector<Metin>{u"xxx"} ? 1 : 0;
        EXPECT_EQ(yerTutucular, 17) << "date, number, eight details at the left, seven at the right";
        EXPECT_EQ(BosluksuzMetin(sayfalar, u"Onaciklama"), u"");
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{3}, std::chrono::day{5}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(FormSozlesmeTest, The_firm_comes_from_its_profile_and_the_texts_from_the_file) {
    EXPECT_EQ(Ekran().Unvan.metin, u"Gül Düğün Salonları");
    EXPECT_EQ(Ekran().Sehir.Metni(), u"TEKIRDAG");
    EXPECT_EQ(Ekran().Baslik.metin, u"Şartlar, Gül");
    EXPECT_EQ(Ekran().Sozlesme.metin, u"1 - Kira, peşin.\r\n2 - İçki yok.");
}

TEST_F(FormSozlesmeTest, The_controls_have_their_captions) {
    EXPECT_EQ(Ekran().baslik, u"Sözleşme Ayarları");
    EXPECT_EQ(Ekran().Unvan.baslik, u"Firma Ünvanı");
    EXPECT_EQ(Ekran().Sehir.baslik, u"Şehir");
    EXPECT_EQ(Ekran().Baslik.baslik, u"Başlık");
    EXPECT_EQ(Ekran().Sozlesme.baslik, u"Sözleşme");
    EXPECT_EQ(Ekran().Command1.baslik, u"Örnek Baskı");
    EXPECT_EQ(Ekran().Pdf.baslik, u"PDF");
    EXPECT_EQ(Ekran().Pdf.ipucu, u"PDF dosyası olarak kaydet");
    EXPECT_EQ(Ekran().Command2.baslik, u"Kaydet");
    EXPECT_EQ(Ekran().Command3.baslik, u"İptal");
}

TEST_F(FormSozlesmeTest, The_cities_are_the_81_provinces_in_their_order) {
    Metin iller;
    for (const Metin& il : Ekran().Sehir.ogeler)
        iller += il + u", ";
    EXPECT_EQ(iller,
              u"ADANA, ADIYAMAN, AFYON, AGRI, AKSARAY, AMASYA, ANKARA, ANTALYA, ARDAHAN, ARTVIN, AYDIN, "
              u"BALIKESIR, BARTIN, BATMAN, BAYBURT, BILECIK, BINGOL, BITLIS, BOLU, BURDUR, BURSA, "
              u"CANAKKALE, CANKIRI, CORUM, DENIZLI, DIYARBAKIR, DUZCE, EDIRNE, ELAZIG, ERZINCAN, ERZURUM, "
              u"ESKISEHIR, GAZIANTEP, GIRESUN, GUMUSHANE, HAKKARI, HATAY, ICEL, IGDIR, ISPARTA, ISTANBUL, "
              u"IZMIR, K.MARAS, KARABUK, KARAMAN, KARS, KASTAMONU, KAYSERI, KILIS, KIRIKKALE, KIRKLARELI, "
              u"KIRSEHIR, KOCAELI, KONYA, KUTAHYA, MALATYA, MANISA, MARDIN, MUGLA, MUS, NEVSEHIR, NIGDE, "
              u"ORDU, OSMANIYE, RIZE, S.URFA, SAKARYA, SAMSUN, SIIRT, SINOP, SIRNAK, SIVAS, TEKIRDAG, "
              u"TOKAT, TRABZON, TUNCELI, USAK, VAN, YALOVA, YOZGAT, ZONGULDAK, ");
}

TEST_F(FormSozlesmeTest, A_profile_without_a_city_leaves_it_empty_and_an_unlisted_one_is_taken) {
    agac.KoyMetin(u"Firma.dll", Profil(u"Gül", u"Şehir Seçiniz"));
    EXPECT_EQ(Ekran().Sehir.Metni(), u"");
    program.FormSozlesme.Bosalt();
    program.FormFirma.Bosalt();
    agac.KoyMetin(u"Firma.dll", Profil(u"Gül", u"Lefkoşa"));
    EXPECT_EQ(Ekran().Sehir.Metni(), u"Lefkoşa");
}

TEST_F(FormSozlesmeTest, Without_a_file_that_can_be_read_whole_the_texts_stay_empty) {
    for (const std::string_view bayt : {"", "\"Bir\"\r\n"}) {
        agac.Koy(u"Sozlesme.dat", bayt);
        EXPECT_EQ(Ekran().Baslik.metin, u"") << bayt;
        EXPECT_EQ(Ekran().Sozlesme.metin, u"") << bayt;
        EXPECT_EQ(Ekran().Unvan.metin, u"Gül Düğün Salonları") << bayt;
        program.FormSozlesme.Bosalt();
    }
    std::filesystem::remove(agac.Yol(u"Sozlesme.dat"));
    EXPECT_EQ(Ekran().Sozlesme.metin, u"");
    EXPECT_EQ(Ekran().Sehir.Metni(), u"TEKIRDAG");
}

TEST_F(FormSozlesmeTest, The_file_loses_double_quotes_and_the_fields_keep_them_on_purpose) {
    const auto sablon = program.FormSozlesme.Tut();
    AlanaYaz(sablon->Baslik, u"\"Gül\", 'şart'");
    SatirlaraYaz(sablon->Sozlesme, u"1 - \"Peşin\", nakit.\r\n\r\n2 - 5\" boru");
    VELORA_BAS(program.FormSozlesme, Command2);
    EXPECT_FALSE(program.FormSozlesme.Yuklu());
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), "\"G\xFCl, '\xFE"
                                          "art'\",\"1 - Pe\xFEin, nakit.\r\n\r\n2 - 5 boru\"\r\n");
    EXPECT_EQ(sablon->Baslik.metin, u"\"Gül\", 'şart'");
    EXPECT_EQ(sablon->Sozlesme.metin, u"1 - \"Peşin\", nakit.\r\n\r\n2 - 5\" boru");
    EXPECT_EQ(Ekran().Baslik.metin, u"Gül, 'şart'");
    EXPECT_EQ(Ekran().Sozlesme.metin, u"1 - Peşin, nakit.\r\n\r\n2 - 5 boru");
}

TEST_F(FormSozlesmeTest, A_save_of_what_was_read_leaves_the_file_byte_for_byte) {
    Ekran();
    VELORA_BAS(program.FormSozlesme, Command2);
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), kSartlar);
}

TEST_F(FormSozlesmeTest, Name_and_city_are_lost_when_the_screen_goes_on_purpose) {
    const std::string profil = agac.Bayt(u"Firma.dll");
    AlanaYaz(Ekran().Unvan, u"Başka");
    ListedenSec(Ekran().Sehir, u"YALOVA");
    VELORA_BAS(program.FormSozlesme, Command2);
    EXPECT_EQ(agac.Bayt(u"Firma.dll"), profil);
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), kSartlar);
    EXPECT_EQ(Ekran().Unvan.metin, u"Gül Düğün Salonları");
    EXPECT_EQ(Ekran().Sehir.Metni(), u"TEKIRDAG");
}

TEST_F(FormSozlesmeTest, Cancel_writes_nothing) {
    AlanaYaz(Ekran().Baslik, u"Başka");
    VELORA_BAS(program.FormSozlesme, Command3);
    EXPECT_FALSE(program.FormSozlesme.Yuklu());
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), kSartlar);
}

TEST_F(FormSozlesmeTest, A_disk_that_takes_nothing_is_no_hindrance_and_keeps_the_old_texts) {
    AlanaYaz(Ekran().Baslik, u"Başka");
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    VELORA_BAS(program.FormSozlesme, Command2);
    EXPECT_FALSE(program.FormSozlesme.Yuklu());
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), kSartlar);
}

TEST_F(FormSozlesmeTest, What_the_start_makes_of_a_lost_file_are_heading_and_eight_clauses) {
    std::filesystem::remove(agac.Yol(u"Sozlesme.dat"));
    agac.KoyMetin(u"Menuler.dat", u"");
    ortam.baglanti = false;
    ortam.Bekle(BeklenenKutu{u"Sistem Hatası",
                             u"Programın çalışması için gereken (Sozlesme.dat) dosyası kayıp.\n"
                             u"Program otomatik olarak kayıp dosyayı geri yüklemeye çalışacak.",
                             Simge::Kritik});
    ortam.Bekle(BeklenenKutu{u"Sistem Onarımı", u"Kayıp dosya (Sozlesme.dat) başarıyla geri yüklendi."});
    program.Splash->Baslat();
    EXPECT_EQ(Ekran().Baslik.metin, u"Sözleşme Maddeleri");
    const Metin& maddeler = Ekran().Sozlesme.metin;
    EXPECT_TRUE(maddeler.starts_with(u"1 - Anlaşma yapıldığında belli bir kaparo alınır. Kalan kısım düğün "
                                     u"esnasında ödenir.\r\n2 - "));
    EXPECT_TRUE(maddeler.ends_with(u"\r\n8 - Fiyatlarımıza KDV dahil değildir."));
    EXPECT_EQ(std::ranges::count(maddeler, u'\n'), 7);
}

TEST_F(FormSozlesmeTest, A_print_reads_it_afresh_but_with_what_is_typed_while_it_is_on_show) {
    AlanaYaz(Ekran().Baslik, u"Bayat");
    EXPECT_EQ(TazeSozlesme(program)->Baslik.metin, u"Şartlar, Gül");
    program.FormSozlesme.Goster();
    AlanaYaz(Ekran().Baslik, u"Yazılan");
    EXPECT_EQ(TazeSozlesme(program)->Baslik.metin, u"Yazılan");
    VELORA_BAS(program.FormSozlesme, Command3);
    EXPECT_EQ(TazeSozlesme(program)->Baslik.metin, u"Şartlar, Gül");
}

TEST_F(FormSozlesmeTest, A_sample_shows_what_is_typed_and_placeholders_for_all_else_and_is_printed_once) {
    AlanaYaz(Ekran().Unvan, u"Nergis");
    AlanaYaz(Ekran().Baslik, u"Kurallar");
    SatirlaraYaz(Ekran().Sozlesme, u"1 - Nakit.\r\n2 - Peşin.");
    ortam.Bekle(BeklenenBaski{.isAdi = u"Örnek Sözleşme"});
    VELORA_BAS(program.FormSozlesme, Command1);
    ASSERT_EQ(ortam.basilanlar.size(), 1U);
    OrnekOlmali(ortam.basilanlar[0].sayfalar);
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), kSartlar);
    EXPECT_TRUE(program.FormSozlesme.Yuklu());
}

TEST_F(FormSozlesmeTest, A_sample_never_shows_the_last_customer_and_leaves_nothing_for_the_next) {
    const auto dolu = program.FormPrint.Tut();
    dolu->CAdi.baslik = u"Ayşe Yılmaz";
    dolu->Senet = dolu->Onaciklama.gorunur = true;
    AlanaYaz(Ekran().Unvan, u"Nergis");
    AlanaYaz(Ekran().Baslik, u"Kurallar");
    SatirlaraYaz(Ekran().Sozlesme, u"1 - Nakit.\r\n2 - Peşin.");
    ortam.Bekle(BeklenenKayitYeri{.ad = u"Örnek Sözleşme.pdf", .secilen = "/yer/örnek.pdf"});
    VELORA_BAS(program.FormSozlesme, Pdf);
    ASSERT_EQ(ortam.pdfler.size(), 1U);
    EXPECT_EQ(ortam.pdfler[0].dosya, "/yer/örnek.pdf");
    OrnekOlmali(ortam.pdfler[0].sayfalar);
    EXPECT_EQ(program.FormPrint->Unvan.baslik, u"xxx");
}

TEST_F(FormSozlesmeTest, Without_a_printer_the_sample_fails_in_silence_on_purpose) {
    ortam.Bekle(BeklenenBaski{.isAdi = u"Örnek Sözleşme", .basilir = false});
    Ekran();
    VELORA_BAS(program.FormSozlesme, Command1);
    EXPECT_TRUE(program.FormSozlesme.Yuklu());
}

TEST_F(FormSozlesmeTest, A_sample_bears_that_its_screen_goes_while_it_is_made) {
    ortam.olayda = [&](int) { program.FormSozlesme.Bosalt(); };
    ortam.Bekle(BeklenenBaski{.isAdi = u"Örnek Sözleşme"});
    Ekran();
    VELORA_BAS(program.FormSozlesme, Command1);
    EXPECT_FALSE(program.FormSozlesme.Yuklu());
}

TEST(SozlesmeGirdisi, Opens_it_with_the_firm_as_the_profile_has_it_now) {
    const GeciciAgac agac;
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n");
    agac.KoyMetin(u"Firma.dll", Profil(u"Gül", u"TEKIRDAG"));
    agac.Koy(u"Sozlesme.dat", kSartlar);
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{3}, std::chrono::day{5}}};
    kullanici.ProgramiAc();
    Program& program = kullanici.Prog();
    AlanaYaz(program.FormSozlesme->Baslik, u"Bayat"); // a print has left it loaded
    program.FormFirma.Bosalt();
    agac.KoyMetin(u"Firma.dll", Profil(u"Nergis Salonu", u"YALOVA"));
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormSozlesme, [&program] {
                                            EXPECT_EQ(program.FormSozlesme->Unvan.metin, u"Nergis Salonu");
                                            EXPECT_EQ(program.FormSozlesme->Sehir.Metni(), u"YALOVA");
                                            EXPECT_EQ(program.FormSozlesme->Baslik.metin, u"Şartlar, Gül");
                                            VELORA_BAS(program.FormSozlesme, Command3);
                                        }});
    kullanici.KomutSec(Komut::Sozduzenss);
    EXPECT_FALSE(program.FormSozlesme.Yuklu());
}

} // namespace velora::test
