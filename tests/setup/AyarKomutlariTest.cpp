// What the user does with the settings: type, apply, save, reset, drop.
#include <algorithm>

#include "destek/Ariza.h"
#include "destek/Eylemler.h"
#include "setup/FormAyarlar.h"
#include "setup/RenkSatirlari.h"
#include "storage/KodSayfasi.h"
#include "table/HucreRenkleri.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

const BeklenenKutu kSiraDegisti{
    u"Velora", u"Yaptığınız yarı gün değişikliği programı yeniden başlattığınızda çalışacaktır!"};

const std::string kVarsayilanRenkler =
    "32768,16777215,8454143,0,16777215,0,255,16777215,6086641,0,15461355,0,192,16777215,192,16777215,255,"
    "12632256,16777215,65280,16777215,49152,16777215,16761087,0,";
const std::string kVarsayilanAyarlar =
    kVarsayilanRenkler + "\"5\",\"10\",0,1,\"Gece / G\xFCnd\xFCz\",1,1,0\r\n";
const std::string kTumAylar = "1,1,1,1,1,1,1,1,1,1,1,1,1\r\n";

} // namespace

class AyarKomutlari : public TabloTest {
  protected:
    AyarKomutlari() { kullanici.ProgramiAc(); }
    FormAyarlar& Ayarlar() { return *kullanici.Prog().FormAyarlar.Tut(); }
    bool Acik() { return kullanici.Prog().FormAyarlar.Yuklu(); }
    /// A free weekday of the day slot: Wednesday, 20 June 2012.
    Hucre& BosGun() { return kullanici.Goz(20, 6, kGunduz); }
};

TEST_F(AyarKomutlari, Captions_stand_as_the_user_reads_them) {
    EXPECT_EQ(Ayarlar().baslik, u"Genel Program Ayarları");
    EXPECT_EQ(Ayarlar().sayfalar, (std::array<Metin, 2>{u"Genel Ayarlar ", u"Görünüm Ayarları "}));
    EXPECT_EQ(Ayarlar().Command1.baslik, u"Kaydet");
    EXPECT_EQ(Ayarlar().Command2.baslik, u"İptal");
    EXPECT_EQ(Ayarlar().Command3.baslik, u"Varsayılan Ayarlar");
    EXPECT_EQ(Ayarlar().Command4.baslik, u"Uygula");
    EXPECT_EQ(Ayarlar().Check1.baslik, u"Geçmiş Günler");
    EXPECT_EQ(Ayarlar().Check2.baslik, u"Sözleşme numaralarını otomatik olarak ata.");
    EXPECT_EQ(Ayarlar().Check3.baslik, u"Tabloda Görünecek Aylar");
    EXPECT_EQ(Ayarlar().Check4.baslik, u"Değişti");
    EXPECT_EQ(Ayarlar().Check5.baslik, u"Resmi Tatiller ve Özel Günler");
    EXPECT_EQ(Ayarlar().Check6.baslik, u"Gün detaylarını göster");
    EXPECT_EQ(Ayarlar().Check7.baslik, u"Sözleşme numarası atama.");
    const std::array<MetinBakis, 12> aylar{u"Ocak",   u"Şubat",   u"Mart",  u"Nisan", u"Mayıs", u"Haziran",
                                           u"Temmuz", u"Ağustos", u"Eylül", u"Ekim",  u"Kasım", u"Aralık"};
    for (int ay = 1; ay <= 12; ++ay)
        EXPECT_EQ(Ayarlar().Aylar[ay].baslik, aylar[static_cast<std::size_t>(ay - 1)]);
}

TEST_F(AyarKomutlari, Rows_of_the_colours_stand_as_the_user_reads_them) {
    const std::array<MetinBakis, 13> basliklar{u"Başlıklar (Ay ve Günler)", u"Normal Günler (Gündüz)",
                                               u"Normal Günler (Gece)",     u"Hafta Sonu (Gündüz)",
                                               u"Hafta Sonu (Gece)",        u"Kesin Rezervasyon (Gündüz)",
                                               u"Kesin Rezervasyon (Gece)", u"Ön Rezervasyon (Gündüz)",
                                               u"Ön Rezervasyon (Gece)",    u"Resmi Tatiller ve Özel Günler",
                                               u"Uyarı Penceresi",          u"Geçmiş Günler",
                                               u"Bugün Çerçevesi"};
    for (std::size_t i = 0; i < basliklar.size(); ++i) {
        const RenkSatiri& satir = kRenkSatirlari[i];
        EXPECT_EQ(satir.onay == nullptr ? Metin(satir.baslik) : (Ayarlar().*satir.onay).baslik, basliklar[i]);
    }
}

TEST_F(AyarKomutlari, Save_applies_first_then_writes_the_settings_and_then_the_months) {
    std::vector<Metin> isler;
    kullanici.Prog().dosyalar.ariza = [&isler](DosyaIsi is, const Metin& yol) {
        if (is == DosyaIsi::Yaz || is == DosyaIsi::Listele)
            isler.push_back(yol.substr(yol.rfind(u'\\') + 1));
        return false;
    };
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(isler, (std::vector<Metin>{u"2012", u"Settings.dll", u"Visible.dll"}));
}

TEST_F(AyarKomutlari, Save_writes_both_files_with_all_defaults_and_unloads) {
    Ayarlar();
    EXPECT_FALSE(agac.DosyaVar(u"Settings.dll"));
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Bayt(u"Settings.dll"), kVarsayilanAyarlar);
    EXPECT_EQ(agac.Bayt(u"Visible.dll"), kTumAylar);
    EXPECT_FALSE(Acik());
    EXPECT_EQ(kullanici.ortam.gizlenenler.back(), EkranAdi::FormAyarlar);
}

TEST_F(AyarKomutlari, Every_field_is_saved_in_its_place) {
    for (int i = 0; i < kRenkSayisi; ++i)
        Ayarlar().renkler[static_cast<std::size_t>(i)] = 100 + i;
    AlanaYaz(Ayarlar().UyariGun, u"6");
    AlanaYaz(Ayarlar().UyariGun2, u"ş");
    Tikla(Ayarlar().Check1);
    ListedenSec(Ayarlar().GunduzGece, u"Gündüz / Gece");
    Tikla(Ayarlar().Check5);
    Tikla(Ayarlar().Check7);
    Tikla(Ayarlar().Check3);
    Tikla(Ayarlar().Aylar[2]);
    kullanici.ortam.Bekle(kSiraDegisti);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Bayt(u"Settings.dll"),
              "100,101,102,103,104,105,106,107,108,109,110,111,112,113,114,115,116,117,118,119,120,121,122,"
              "123,124,\"6\",\"\xFE\",1,1,\"G\xFCnd\xFCz / Gece\",0,1,1\r\n");
    EXPECT_EQ(agac.Bayt(u"Visible.dll"), "0,1,0,0,0,0,0,0,0,0,0,0,0\r\n");
}

TEST_F(AyarKomutlari, Emptied_warning_days_are_an_empty_quoted_text) {
    Ayarlar().UyariGun.metin.clear();
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Bayt(u"Settings.dll"),
              kVarsayilanRenkler + "\"\",\"10\",0,1,\"Gece / G\xFCnd\xFCz\",1,1,0\r\n");
    EXPECT_EQ(Ayarlar().UyariGun.metin, u"");
}

TEST_F(AyarKomutlari, First_warning_field_takes_digits_alone_and_the_second_anything_as_is_meant) {
    for (const char16_t tus : MetinBakis(u"0123456789\b"))
        EXPECT_TRUE(Ayarlar().UyariGun.suzgec(tus));
    for (const char16_t tus : MetinBakis(u"a ,.-\r\""))
        EXPECT_FALSE(Ayarlar().UyariGun.suzgec(tus));
    AlanaYaz(Ayarlar().UyariGun2, u"on beş");
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(Ayarlar().UyariGun2.metin, u"on beş");
}

TEST_F(AyarKomutlari, Double_quote_in_the_second_warning_field_costs_all_settings_as_is_meant) {
    Ayarlar().renkler[0] = 77;
    AlanaYaz(Ayarlar().UyariGun2, u"1\"2");
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_NE(agac.Bayt(u"Settings.dll").find("\"5\",\"1\"2\",0,1,"), std::string::npos);
    EXPECT_EQ(Ayarlar().Renk(0), 32768) << "the values behind it slid, so that all defaults stand";
}

TEST_F(AyarKomutlari, Apply_paints_colours_and_months_and_writes_nothing) {
    Ayarlar().renkler[2] = 123;
    Tikla(Ayarlar().Aylar[7]);
    const std::string once = agac.Resim();
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command4);
    EXPECT_EQ(BosGun().zemin, 123);
    EXPECT_FALSE(kullanici.Goz(1, 7, kGunduz).gorunur);
    EXPECT_TRUE(Acik());
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(AyarKomutlari, Unapplied_colour_is_read_at_once_but_not_yet_painted) {
    Ayarlar().renkler[2] = 123;
    EXPECT_EQ(kullanici.Prog().FormAyarlar->Renk(2), 123);
    EXPECT_EQ(BosGun().zemin, 8454143);
}

TEST_F(AyarKomutlari, Applying_twice_after_a_change_of_the_slot_order_tells_of_the_restart_twice) {
    ListedenSec(Ayarlar().GunduzGece, u"Gündüz / Gece");
    kullanici.ortam.Bekle(kSiraDegisti);
    kullanici.ortam.Bekle(kSiraDegisti);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command4);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command4);
    EXPECT_EQ(Ayarlar().Check4.deger, 1);
}

// At the box and at the scan's points of events the files still hold the old settings.
TEST_F(AyarKomutlari, Save_applies_with_message_and_scan_before_it_writes) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(1, u"77"));
    agac.Koy(u"Visible.dll", kTumAylar);
    kullanici.Prog().FormAyarlar.Bosalt();
    Ayarlar().renkler[2] = 123;
    ListedenSec(Ayarlar().GunduzGece, u"Gündüz / Gece");
    kullanici.ortam.Bekle(kSiraDegisti);
    const std::string eski = agac.Bayt(u"Settings.dll");
    int bakilan = 0;
    kullanici.ortam.olayda = [&](int) {
        ++bakilan;
        EXPECT_EQ(agac.Bayt(u"Settings.dll"), eski);
        EXPECT_TRUE(Acik());
    };
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    kullanici.ortam.olayda = nullptr;
    EXPECT_GT(bakilan, 0);
    EXPECT_EQ(BosGun().zemin, 123);
    EXPECT_NE(agac.Bayt(u"Settings.dll"), eski);
}

// The window stays pressable where the scan lets events run.
TEST_F(AyarKomutlari, Cancel_pressed_within_the_scan_of_a_save_comes_too_late_and_leaves_nothing_dangling) {
    AlanaYaz(Ayarlar().UyariGun, u"3");
    kullanici.ortam.olayda = [this](int) {
        kullanici.ortam.olayda = nullptr;
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command2);
    };
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Bayt(u"Settings.dll"),
              kVarsayilanRenkler + "\"3\",\"10\",0,1,\"Gece / G\xFCnd\xFCz\",1,1,0\r\n");
    EXPECT_FALSE(Acik());
}

TEST_F(AyarKomutlari, Failed_save_closes_as_if_all_were_well_and_the_next_reading_brings_the_old_values) {
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    Ayarlar().renkler[2] = 123;
    Tikla(Ayarlar().Aylar[7]);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_FALSE(Acik());
    EXPECT_EQ(agac.Bayt(u"Settings.dll"), kVarsayilanAyarlar);
    EXPECT_EQ(Ayarlar().Renk(2), 8454143);
    EXPECT_TRUE(Ayarlar().AyGorunur(7));
    EXPECT_EQ(BosGun().zemin, 123) << "the table keeps what was applied";
}

TEST_F(AyarKomutlari, Full_disk_keeps_the_old_settings_and_still_writes_the_months_that_fit) {
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    kullanici.Prog().dosyalar.bosYer = 0;
    AlanaYaz(Ayarlar().UyariGun, u"5000000");
    Tikla(Ayarlar().Aylar[7]);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Bayt(u"Settings.dll"), kVarsayilanAyarlar);
    EXPECT_EQ(agac.Bayt(u"Visible.dll"), "1,1,1,1,1,1,0,1,1,1,1,1,1\r\n");
}

TEST_F(AyarKomutlari,
       Of_two_files_the_one_that_could_not_be_read_stays_and_so_does_what_nobody_changed_of_the_other) {
    const std::string ayarlar = KodYaz(AyarMetni(2, u"4711"));
    const std::string aylar = "1,1,1,1,0,1,1,1,1,1,1,1,1\r\n";
    for (const auto& [bozuk, giris, eskiAyar, eskiAy] : {std::tuple{kAyarDosyasi, 0, true, true},
                                                         {kAyarDosyasi, 1, true, true},
                                                         {kAyarDosyasi, 2, true, false},
                                                         {kAyDosyasi, 0, true, true},
                                                         {kAyDosyasi, 1, false, true},
                                                         {kAyDosyasi, 2, true, true}}) {
        agac.Koy(u"Settings.dll", ayarlar);
        agac.Koy(u"Visible.dll", aylar);
        kullanici.Prog().FormAyarlar.Bosalt();
        const auto bozuldu = BirKezOkunmaz(kullanici.Prog().dosyalar, bozuk);
        EXPECT_EQ(Ayarlar().Renk(1), 16777215) << "all defaults";
        EXPECT_TRUE(Ayarlar().AyGorunur(5));
        EXPECT_TRUE(*bozuldu);
        if (giris == 1)
            AlanaYaz(Ayarlar().UyariGun, u"19");
        if (giris == 2)
            Tikla(Ayarlar().Aylar[7]);
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
        EXPECT_EQ(agac.Bayt(u"Settings.dll") == ayarlar, eskiAyar) << KodYaz(bozuk) << giris;
        EXPECT_EQ(agac.Bayt(u"Visible.dll") == aylar, eskiAy) << KodYaz(bozuk) << giris;
    }
}

TEST_F(AyarKomutlari, Beside_a_file_that_could_not_be_read_a_missing_and_a_damaged_one_are_written) {
    agac.Koy(u"Settings.dll", KodYaz(AyarMetni(2, u"4711")));
    for (const MetinBakis aylar : {u"", u"1,0,1\r\n"}) {
        agac.KoyMetin(u"Visible.dll", aylar);
        if (aylar.empty())
            std::filesystem::remove(agac.Yol(u"Visible.dll"));
        kullanici.Prog().FormAyarlar.Bosalt();
        BirKezOkunmaz(kullanici.Prog().dosyalar, kAyarDosyasi);
        Ayarlar();
        VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
        EXPECT_EQ(agac.Bayt(u"Settings.dll"), KodYaz(AyarMetni(2, u"4711")));
        EXPECT_EQ(agac.Bayt(u"Visible.dll"), kTumAylar);
    }
}

TEST_F(AyarKomutlari, Beside_a_damaged_file_that_can_be_read_the_other_one_is_written_over_on_purpose) {
    agac.Koy(u"Settings.dll", "1,2,3\r\n");
    agac.Koy(u"Visible.dll", "1,1,1,1,0,1,1,1,1,1,1,1,1\r\n");
    kullanici.Prog().FormAyarlar.Bosalt();
    Ayarlar();
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Bayt(u"Settings.dll"), kVarsayilanAyarlar);
    EXPECT_EQ(agac.Bayt(u"Visible.dll"), kTumAylar);
}

TEST_F(AyarKomutlari, Both_files_that_could_not_be_read_stay_whatever_is_changed) {
    agac.Koy(u"Settings.dll", KodYaz(AyarMetni(2, u"4711")));
    agac.Koy(u"Visible.dll", "1,1,1,1,0,1,1,1,1,1,1,1,1\r\n");
    kullanici.Prog().FormAyarlar.Bosalt();
    const std::string once = agac.Resim();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    Ayarlar();
    kullanici.Prog().dosyalar.ariza = {};
    AlanaYaz(Ayarlar().UyariGun, u"19");
    Tikla(Ayarlar().Aylar[7]);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command1);
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(AyarKomutlari, Defaults_count_as_a_change_of_the_slot_order_always_as_is_meant) {
    EXPECT_EQ(Ayarlar().GunduzGece.Metni(), u"Gece / Gündüz");
    kullanici.ortam.Bekle(kSiraDegisti);
    Ayarlar().renkler[2] = 123;
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command3);
    EXPECT_EQ(Ayarlar().Check4.deger, 1);
    EXPECT_EQ(Ayarlar().Renk(2), 8454143);
    EXPECT_EQ(BosGun().zemin, 8454143);
    EXPECT_FALSE(agac.DosyaVar(u"Settings.dll"));
}

TEST_F(AyarKomutlari, Defaults_dropped_by_cancel_leave_the_files_untouched) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(1, u"77"));
    agac.Koy(u"Visible.dll", "1,1,1,1,1,1,1,1,1,1,1,0,1\r\n");
    kullanici.Prog().FormAyarlar.Bosalt();
    const std::string once = agac.Resim();
    Ayarlar();
    kullanici.ortam.Bekle(kSiraDegisti);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command3);
    EXPECT_TRUE(kullanici.Goz(1, 12, kGunduz).gorunur);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command2);
    EXPECT_FALSE(Acik());
    EXPECT_EQ(agac.Resim(), once);
    EXPECT_EQ(Ayarlar().Renk(0), 77);
    EXPECT_FALSE(Ayarlar().AyGorunur(12));
}

TEST_F(AyarKomutlari, Applied_and_dropped_colours_stay_on_the_table_until_the_next_scan_as_is_meant) {
    Ayarlar().renkler[2] = 123;
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command4);
    VELORA_BAS(kullanici.Prog().FormAyarlar, Command2);
    EXPECT_EQ(BosGun().zemin, 123);
    for (int i = 0; i < kRenkSayisi; ++i)
        EXPECT_NE(BosGun().zemin, Ayarlar().Renk(i)) << "the cell's colour is no live colour any more";
    kullanici.Tablo().Command1();
    EXPECT_EQ(BosGun().zemin, Ayarlar().Renk(2));
}

TEST_F(AyarKomutlari, Colour_rows_name_each_slot_once) {
    std::vector<int> gozler;
    for (const RenkSatiri& satir : kRenkSatirlari)
        for (const int goz : {satir.zemin, satir.yazi})
            if (goz != kRenkYok)
                gozler.push_back(goz);
    std::sort(gozler.begin(), gozler.end());
    ASSERT_EQ(gozler.size(), 25U);
    for (int i = 0; i < kRenkSayisi; ++i)
        EXPECT_EQ(gozler[static_cast<std::size_t>(i)], i);
}

TEST_F(AyarKomutlari, Colour_rows_name_the_slots_that_the_table_paints_with) {
    const std::array<RenkCifti, 9> boyanan{
        {kGunduzRenkleri.bos, kGeceRenkleri.bos, kGunduzRenkleri.haftaSonu, kGeceRenkleri.haftaSonu,
         kGunduzRenkleri.kesin, kGeceRenkleri.kesin, kGunduzRenkleri.on, kGeceRenkleri.on, kTatilRengi}};
    for (std::size_t i = 0; i < boyanan.size(); ++i) {
        EXPECT_EQ(kRenkSatirlari[i + 1].zemin, boyanan[i].zemin) << i;
        EXPECT_EQ(kRenkSatirlari[i + 1].yazi, boyanan[i].yazi) << i;
    }
    EXPECT_EQ(kRenkSatirlari[11].zemin, kGecmisRengi.zemin);
    EXPECT_EQ(kRenkSatirlari[9].onay, &FormAyarlar::Check5);
    EXPECT_EQ(kRenkSatirlari[11].onay, &FormAyarlar::Check1);
}

TEST_F(AyarKomutlari, Both_boxes_of_the_past_days_have_the_tool_tip_of_a_ground_as_is_meant) {
    for (const RenkSatiri& satir : kRenkSatirlari) {
        EXPECT_EQ(satir.zeminIpucu, u"Zemin Rengi");
        EXPECT_EQ(satir.yaziIpucu, satir.zemin == 17 ? u"Zemin Rengi" : u"Metin Rengi");
    }
}

} // namespace velora::test
