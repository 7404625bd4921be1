// The firm's profile: its file, its fields, its checks.
#include "access/FormSifreDegistir.h"
#include "online/FirmaTest.h"

namespace velora::test {

using FormFirmaTest = FirmaTest;

TEST_F(FormFirmaTest, Fields_have_their_captions_and_a_new_firm_begins_with_nothing_chosen) {
    const FormFirma& firma = Firma();
    EXPECT_EQ(firma.baslik, u"Firma Bilgileri");
    const std::vector<std::pair<Metin, MetinBakis>> basliklar{
        {firma.t1.baslik, u"Firma Adı"},     {firma.t2.baslik, u"Yetkili Kişi"},
        {firma.t3.baslik, u"Telefon"},       {firma.t4.baslik, u"Gsm"},
        {firma.t5.baslik, u"Web Sitesi"},    {firma.t6.baslik, u"E-Posta"},
        {firma.t7.baslik, u"Adres"},         {firma.t11.baslik, u"Son Giriş Tarihi"},
        {firma.t8.baslik, u"Şehir"},         {firma.t9.baslik, u"İlçe"},
        {firma.t13.baslik, u"Salon Sayısı"}, {firma.Command1.baslik, u"Tamam"},
        {firma.Command2.baslik, u"İptal"},   {firma.Command3.baslik, u"Kaydet"}};
    for (const auto& [baslik, beklenen] : basliklar)
        EXPECT_EQ(baslik, beklenen);
    EXPECT_EQ(firma.t8.Metni(), u"Şehir Seçiniz");
    EXPECT_EQ(firma.t8.ogeler.size(), 82U);
    EXPECT_EQ(firma.t8.ogeler[1], u"ADANA");
    EXPECT_EQ(firma.t13.ogeler, (std::vector<Metin>{u"Salon Sayısı Seçiniz", u"1", u"2", u"3", u"4", u"5",
                                                    u"6", u"7", u"8", u"9", u"10"}));
    EXPECT_EQ(firma.t13.secili, 0);
    EXPECT_EQ(firma.t1.metin + firma.t9.metin + firma.t12.metin, u"");
    EXPECT_TRUE(firma.t9.ogeler.empty());
    EXPECT_EQ(firma.t10.metin, u"Velora 2.0.5");
    EXPECT_EQ(firma.t11.metin, u"05.03.2012");
}

TEST_F(FormFirmaTest, The_file_fills_the_fields_and_title_and_day_are_those_of_now) {
    agac.Koy(u"Firma.dll", kDosya);
    const FormFirma& firma = Firma();
    EXPECT_EQ(firma.t1.metin, u"Gül Düğün");
    EXPECT_EQ(firma.t2.metin, u"Ayşe Ir");
    EXPECT_EQ(firma.t3.metin, u"0212 1");
    EXPECT_EQ(firma.t4.metin, u"0532 2");
    EXPECT_EQ(firma.t5.metin, u"gul.test");
    EXPECT_EQ(firma.t6.metin, u"a@gul.test");
    EXPECT_EQ(firma.t7.metin, u"Çay Sk. 3");
    EXPECT_EQ(firma.t8.secili, 79);
    EXPECT_EQ(firma.t9.metin, u"Termal");
    EXPECT_EQ(firma.t9.ogeler.size(), 6U);
    EXPECT_EQ(firma.t10.metin, u"Velora " + Metin(kSurum));
    EXPECT_EQ(firma.t11.metin, u"05.03.2012");
    EXPECT_EQ(firma.t12.metin, u"yedek");
    EXPECT_EQ(firma.t13.Metni(), u"4");
    EXPECT_FALSE(program.FormTablo.Yuklu()) << "its title is known without its scan";
}

TEST_F(FormFirmaTest, A_stored_district_or_number_that_no_list_has_is_kept_on_purpose) {
    agac.KoyMetin(u"Firma.dll",
                  u"\"A\",\"B\",\"3\",\"4\",\"5\",\"6\",\"7\",\"TEKIRDAG\",\"Ergene\",\"\",\"\",\"\",\"12\"");
    EXPECT_EQ(Firma().t8.Metni(), u"TEKIRDAG");
    EXPECT_EQ(Firma().t9.metin, u"Ergene");
    EXPECT_EQ(Firma().t13.Metni(), u"12");
    VELORA_BAS(program.FormFirma, Command3);
    EXPECT_EQ(agac.Bayt(u"Firma.dll"), "\"A\",\"B\",\"3\",\"4\",\"5\",\"6\",\"7\",\"TEKIRDAG\",\"Ergene\","
                                       "\"Velora 2.0.5\",\"05.03.2012\",\"\",\"12\"\r\n");
}

TEST_F(FormFirmaTest, A_short_file_fills_what_it_holds_and_blanks_choose_nothing) {
    agac.Koy(u"Firma.dll", "\"Bir\",\"\xDDki\",\"3\"\r\n");
    EXPECT_EQ(Firma().t2.metin, u"İki");
    EXPECT_EQ(Firma().t4.metin, u"");
    EXPECT_EQ(Firma().t8.secili, 0);
    EXPECT_EQ(Firma().t11.metin, u"05.03.2012");
    program.FormFirma.Bosalt();
    agac.KoyMetin(u"Firma.dll",
                  u"\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\",\"\",\"İlçe\",\"\",\"\",\"\",\" \"");
    EXPECT_EQ(Firma().t8.Metni(), u"Şehir Seçiniz");
    EXPECT_EQ(Firma().t9.metin, u"İlçe");
    EXPECT_EQ(Firma().t13.Metni(), u"Salon Sayısı Seçiniz");
}

TEST_F(FormFirmaTest, An_empty_a_foreign_and_an_unreadable_file_do_no_harm) {
    for (const std::string& bayt :
         {std::string(), std::string("\0\xFF\"\",,\"\r\n", 8), std::string(100000, ',')}) {
        agac.Koy(u"Firma.dll", bayt);
        EXPECT_EQ(Firma().t8.secili, 0);
        program.FormFirma.Bosalt();
    }
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    EXPECT_EQ(Firma().t1.metin, u"");
}

TEST_F(FormFirmaTest, A_province_offers_its_districts_and_drops_the_one_that_was_chosen) {
    ListedenSec(Firma().t8, u"YALOVA");
    EXPECT_EQ(Firma().t9.ogeler, (std::vector<Metin>{u"Altınova", u"Armutlu", u"Çınarcık", u"Çiftlikköy",
                                                     u"Merkez", u"Termal"}));
    EXPECT_EQ(Firma().t9.metin, u"");
    AlanaYaz(Firma().t9, u"Termal");
    ListedenSec(Firma().t8, u"BAYBURT");
    EXPECT_EQ(Firma().t9.ogeler, (std::vector<Metin>{u"Aydıntepe", u"Demirözü"}));
    EXPECT_EQ(Firma().t9.metin, u"");
    AlanaYaz(Firma().t9, u"Demirözü");
    ListedenSec(Firma().t8, u"Şehir Seçiniz");
    EXPECT_TRUE(Firma().t9.ogeler.empty());
    EXPECT_EQ(Firma().t9.metin, u"");
}

TEST_F(FormFirmaTest, What_is_missing_is_asked_for_in_this_order_and_gets_the_focus) {
    struct Eksik {
        MetinBakis ad;
        const char16_t* mesaj;
        std::function<void()> doldur;
    };
    FormFirma& firma = Firma();
    const auto yaz = [](MetinKutusu& alan) { return [&alan] { AlanaYaz(alan, u"x"); }; };
    const Eksik eksikler[]{
        {u"t1", u"Lütfen Firma Adını Yazınız.", yaz(firma.t1)},
        {u"t2", u"Lütfen Yetkili Kişi İsmini Yazınız.", yaz(firma.t2)},
        {u"t13", u"Lütfen Düğün Salonunuzdaki Salon Sayısını Seçiniz.",
         [&] { ListedenSec(firma.t13, u"2"); }},
        {u"t3", u"Lütfen Telefon Numaranızı Yazınız.", yaz(firma.t3)},
        {u"t4", u"Lütfen Gsm Numaranızı Yazınız.", yaz(firma.t4)},
        {u"t5", u"Lütfen Varsa Web Site Adresinizi Yazınız.\nYoksa Yok Diye Belirtiniz.", yaz(firma.t5)},
        {u"t6", u"Lütfen Varsa E-Posta Adresinizi Yazınız.\nYoksa Yok Diye Belirtiniz.", yaz(firma.t6)},
        {u"t7", u"Lütfen Firma Adresinizi Yazınız.", yaz(firma.t7)},
        {u"t8", u"Lütfen Şehrinizi Seçiniz.", [&] { ListedenSec(firma.t8, u"VAN"); }},
        {u"t9", u"Lütfen İlçenizi Seçiniz.", yaz(firma.t9)},
    };
    for (MetinKutusu* alan : {&firma.t1, &firma.t2, &firma.t3, &firma.t4, &firma.t5, &firma.t6, &firma.t7})
        alan->metin = u"  "; // blanks are nothing
    for (const Eksik& eksik : eksikler) {
        ortam.Bekle(BeklenenKutu{u"Velora", eksik.mesaj});
        VELORA_BAS(program.FormFirma, Command1);
        EXPECT_EQ(ortam.odaklar.back(), eksik.ad);
        EXPECT_FALSE(agac.Var(u"Firma.dll"));
        EXPECT_TRUE(program.FormFirma.Yuklu());
        eksik.doldur();
    }
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_TRUE(agac.Var(u"Firma.dll"));
    EXPECT_EQ(ortam.odakEkranlari, std::vector(10, EkranAdi::FormFirma));
}

TEST_F(FormFirmaTest,
       OK_writes_the_profile_with_words_in_Turkish_capitals_and_the_key_and_unloads_the_screen) {
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_EQ(agac.Bayt(u"Firma.dll"),
              "\"B\xFCy\xFCk D\xFC\xF0\xFCn \xDD\xFEleri\",\"Ali Il\xFD"
              "ca\",\"0212 33\",\"0532 44\",\"www.Buyuk.test\",\"yok\",\"G\xFCl Sk. No:7 \xDD\xE7 Kap\xFD\","
              "\"BAYBURT\",\"Ayd\xFDntepe\",\"Velora 2.0.5\",\"05.03.2012\",\"\",\"10\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Sunucu.dat"), "\"00-1B-C4-0D-E0-9F\",1\r\n");
    EXPECT_FALSE(program.FormFirma.Yuklu());
    EXPECT_FALSE(program.FormSunucu.Yuklu());
    EXPECT_EQ(Firma().t9.metin, u"Aydıntepe");
}

TEST_F(FormFirmaTest, OK_keeps_that_the_firm_is_not_published) {
    agac.Koy(u"Sunucu.dat", "\"eski\",0\r\n");
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_EQ(agac.Bayt(u"Sunucu.dat"), "\"00-1B-C4-0D-E0-9F\",0\r\n");
}

TEST_F(FormFirmaTest, Save_writes_the_fields_as_they_stand_unchecked_and_stays) {
    AlanaYaz(Firma().t1, u"gül, \"x\"");
    VELORA_BAS(program.FormFirma, Command3);
    EXPECT_EQ(
        agac.Bayt(u"Firma.dll"),
        "\"g\xFCl, \"x\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\xDE"
        "ehir Se\xE7iniz\",\"\",\"Velora 2.0.5\",\"05.03.2012\",\"\",\"Salon Say\xFDs\xFD Se\xE7iniz\"\r\n");
    EXPECT_TRUE(program.FormFirma.Yuklu());
    EXPECT_FALSE(agac.Var(u"Sunucu.dat"));
}

TEST_F(FormFirmaTest, Cancel_writes_nothing) {
    Doldur();
    VELORA_BAS(program.FormFirma, Command2);
    EXPECT_FALSE(program.FormFirma.Yuklu());
    EXPECT_FALSE(agac.Var(u"Firma.dll"));
    EXPECT_FALSE(ortam.bitti);
}

TEST_F(FormFirmaTest, On_the_first_run_cancel_ends_the_program_after_a_question_that_starts_on_the_no) {
    const Metin soru =
        u"Programın kurulumu henüz tamamlanmadı!\nKurulumdan çıkmak istediğinize emin misiniz?";
    Firma().Tag = u"1";
    program.FormFirma.Goster();
    ortam.Bekle(BeklenenKutu{u"Uyarı", soru, Simge::Soru, Cevap::Hayir});
    VELORA_BAS(program.FormFirma, Command2);
    EXPECT_TRUE(program.FormFirma.Yuklu());
    EXPECT_FALSE(ortam.bitti);
    ortam.Bekle(BeklenenKutu{u"Uyarı", soru, Simge::Soru, Cevap::Evet});
    VELORA_BAS(program.FormFirma, Command2);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_EQ(ortam.hayirdaBaslayanlar.size(), 2U);
}

TEST_F(FormFirmaTest, On_the_first_run_nothing_can_be_saved_unchecked) {
    Firma().Tag = u"1";
    program.FormFirma.Goster();
    EXPECT_FALSE(Firma().Command3.gorunur);
    program.FormFirma.Bosalt();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormFirma, [this] { EXPECT_TRUE(Firma().Command3.gorunur); }});
    program.FormFirma.GosterModal();
}

TEST_F(FormFirmaTest, On_the_first_run_OK_writes_both_files_and_unloads_the_screen) {
    Firma().Tag = u"1";
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_TRUE(agac.Var(u"Firma.dll"));
    EXPECT_TRUE(agac.Var(u"Sunucu.dat"));
    EXPECT_FALSE(program.FormFirma.Yuklu());
}

TEST_F(FormFirmaTest, On_the_first_run_OK_goes_on_to_the_password_which_can_not_be_left) {
    Firma().Tag = u"1";
    program.FormFirma.Goster();
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_FALSE(ortam.bitti) << "with the profile gone the password stands";
    EXPECT_TRUE(program.yigin.Acik(EkranAdi::FormSifreDegistir));
    const auto parola = program.FormSifreDegistir.Tut();
    EXPECT_EQ(parola->baslik, u"Kullanıcı Girişi");
    EXPECT_EQ(parola->Label8.baslik, u"Yeni Parola Oluşturun");
    EXPECT_FALSE(parola->Command2.etkin);
}

TEST_F(FormFirmaTest, From_the_menu_OK_asks_for_no_password) {
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_FALSE(program.FormSifreDegistir.Yuklu());
}

TEST_F(FormFirmaTest, A_disk_that_takes_nothing_is_no_hindrance) {
    Doldur();
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_FALSE(program.FormFirma.Yuklu());
    EXPECT_FALSE(agac.Var(u"Firma.dll"));
}

} // namespace velora::test
