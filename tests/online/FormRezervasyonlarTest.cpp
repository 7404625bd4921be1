#include "online/FormRezervasyonlar.h"

#include <algorithm>

#include "online/IstekListesiTest.h"

namespace velora::test {

namespace {

const Metin kSilmeSorusu = u"Gelen online rezervasyonu silmek istediğinizden emin misiniz?";
const Metin kDolu = u"Bu tarihe online rezervasyon alamazsınız!\nZaten bir rezervasyon kayıtlı.";

} // namespace

class FormRezervasyonlarTest : public IstekListesiTest {
  protected:
    /// The program starts, and the first request of the list is taken over.
    void IlkiDevralinmali() {
        Baslat();
        ListeyiAc([this] {
            Sec(0);
            EkranBekle(EkranAdi::FormKayit, {});
            Olustur();
        });
        EXPECT_EQ(Firma().devralinanlar.size(), 1U);
    }
};

TEST_F(FormRezervasyonlarTest, Lists_the_file_ten_fields_a_row_and_the_close_button_has_the_focus) {
    Iste({});
    Iste({.no = u"42", .ad = u"Can", .salon = u"Salon A"});
    Baslat();
    ListeyiAc([this] {
        FormRezervasyonlar& liste = Liste();
        EXPECT_EQ(liste.baslik, u"Online Rezervasyonlar");
        EXPECT_EQ(liste.Liste.basliklar,
                  (std::vector<Metin>{u"ID", u"Gönderen", u"Telefon", u"Mobil", u"E-Posta", u"Salon Adı",
                                      u"Tarih", u"Saat", u"Zaman", u"Niteliği"}));
        ASSERT_EQ(liste.Liste.satirlar.size(), 2U);
        EXPECT_EQ(liste.Liste.satirlar[0].sutun,
                  (std::vector<Metin>{u"41", u"Gül Işık", u"0212 33", u"0532 44", u"gul@x.test", u"Salon B",
                                      u"23.06.2013", u"19:30", u"Gece", u"Nişan"}));
        EXPECT_EQ(liste.Liste.satirlar[1].sutun[0], u"42");
        EXPECT_EQ(kullanici.ortam.odaklar.back(), u"Command1");
        EXPECT_EQ(liste.Command2.baslik, u"Oluştur");
        EXPECT_EQ(liste.Kaydet.baslik, u"Kaydet");
        for (const Dugme* dugme : {&liste.Command2, &liste.Command3})
            EXPECT_FALSE(dugme->etkin);
        Sec(1);
        for (const Dugme* dugme : {&liste.Command2, &liste.Command3})
            EXPECT_TRUE(dugme->etkin);
        VELORA_BAS(Prog().FormRezervasyonlar, Command1);
    });
    EXPECT_FALSE(ListeVar());
    EXPECT_EQ(kullanici.Tablo().YeniRezTimer.aralik, 400) << "requests are left";
    EXPECT_TRUE(kullanici.Tablo().YeniRezervasyonVar.etkin);
    EXPECT_TRUE(servis.gelenler.empty());
}

TEST_F(FormRezervasyonlarTest, Without_the_file_the_list_is_empty_and_nothing_is_said) {
    Baslat();
    EXPECT_FALSE(agac.Var(u"RezTemp.dat"));
    EkranBekle(EkranAdi::FormRezervasyonlar, [this] {
        EXPECT_TRUE(Liste().Liste.satirlar.empty());
        Liste().Liste_DblClick();
    });
    Prog().FormRezervasyonlar.GosterModal();
}

TEST_F(FormRezervasyonlarTest, Records_with_too_few_and_too_many_fields_slide_into_each_other_on_purpose) {
    agac.Koy(u"RezTemp.dat",
             "\"1\",\"A\"\r\n\"2\",\"b\",\"c\",\"d\",\"e\",\"f\",\"g\",\"h\",\"i\",\"j\",\"k\"\r\n"
             "\"\",\"x\"\r\n");
    Baslat();
    EkranBekle(EkranAdi::FormRezervasyonlar, [this] {
        const auto& satirlar = Liste().Liste.satirlar;
        ASSERT_EQ(satirlar.size(), 2U);
        EXPECT_EQ(satirlar[0].sutun,
                  (std::vector<Metin>{u"1", u"A", u"2", u"b", u"c", u"d", u"e", u"f", u"g", u"h"}));
        EXPECT_EQ(satirlar[1].sutun,
                  (std::vector<Metin>{u"i", u"j", u"k", u"", u"x", u"d", u"e", u"f", u"g", u"h"}))
            << "a cut off record keeps the values of the one before";
    });
    Prog().FormRezervasyonlar.GosterModal();
}

TEST_F(FormRezervasyonlarTest, A_delete_asks_from_the_no_and_a_no_changes_nothing) {
    Iste({});
    Baslat();
    const std::string once = Dosya();
    ListeyiAc([&] {
        Sec(0);
        KutuBekle(kSilmeSorusu, Cevap::Hayir, Simge::Soru);
        VELORA_BAS(Prog().FormRezervasyonlar, Command3);
        EXPECT_FALSE(Liste().Command3.etkin);
        EXPECT_EQ(Liste().Liste.satirlar.size(), 1U);
    });
    EXPECT_EQ(Dosya(), once);
    EXPECT_TRUE(servis.gelenler.empty());
    EXPECT_EQ(kullanici.ortam.hayirdaBaslayanlar, std::vector<Metin>{kSilmeSorusu});
}

TEST_F(FormRezervasyonlarTest,
       A_delete_goes_to_the_service_the_list_and_the_file_and_the_last_one_closes_all) {
    Iste({});
    Iste({.no = u"42", .ad = u"Can"});
    Baslat();
    ListeyiAc([&] {
        for (const MetinBakis no : {u"42", u"41"}) {
            Sec(no == u"42" ? 1 : 0);
            KutuBekle(kSilmeSorusu, Cevap::Evet, Simge::Soru);
            VELORA_BAS(Prog().FormRezervasyonlar, Command3);
            EXPECT_EQ(servis.gelenler.back(), u"rezsil.php?firmaid=00-1B-C4-0D-E0-9F&id=" + Metin(no));
            if (no == u"42") {
                ASSERT_EQ(Liste().Liste.satirlar.size(), 1U);
                EXPECT_TRUE(Dosya().starts_with("\"41\",\"G\xFCl I\xFE\xFDk\",\"0212 33\",")) << Dosya();
                EXPECT_EQ(std::ranges::count(Dosya(), '\n'), 1);
            }
        }
        EXPECT_FALSE(ListeVar());
    });
    EXPECT_EQ(agac.Oku(u"RezTemp.dat"), "");
    EXPECT_TRUE(Firma().istekler.empty());
    EXPECT_EQ(kullanici.Tablo().YeniRezTimer.aralik, 0);
    EXPECT_FALSE(kullanici.Tablo().YeniRezervasyonVar.etkin);
}

TEST_F(FormRezervasyonlarTest,
       Taking_over_fills_the_record_and_the_request_is_gone_before_the_record_stands) {
    Iste({});
    Iste({.no = u"42", .ad = u"Can"});
    Baslat();
    ListeyiAc([this] {
        Sec(0);
        EkranBekle(EkranAdi::FormKayit, [this] {
            EXPECT_EQ(servis.Betikler(), std::vector<std::string>{"rezokundu.php"});
            EXPECT_EQ(Firma().devralinanlar, std::vector<Metin>{u"41"});
            EXPECT_TRUE(Dosya().starts_with("\"42\",")) << "the list is written before the record stands";
            const FormKayit& kayit = Kayit();
            EXPECT_EQ(kayit.Tarih, u"23.06.2013 - Gece");
            EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"23.06.2013 - Gece");
            EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon B");
            EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2013");
            const std::vector<std::pair<int, Metin>> beklenen{{AnaNo::AdiSoyadi, u"Gül Işık"},
                                                              {AnaNo::Niteligi, u"Nişan"},
                                                              {AnaNo::Telefon, u"0212 33"},
                                                              {AnaNo::Cep, u"0532 44"},
                                                              {AnaNo::BaslamaSaati, u"19:30"}};
            for (const auto& [no, deger] : beklenen)
                EXPECT_EQ(kayit.Kay[no].metin, deger);
            EXPECT_EQ(kayit.Option2.deger, 1);
            EXPECT_EQ(kayit.Option1.deger, 0);
            EXPECT_EQ(kayit.KayitAc, 0);
        });
        Liste().Liste_DblClick();
        EXPECT_TRUE(ListeVar()) << "one is left";
        EXPECT_EQ(Liste().Liste.satirlar.size(), 1U);
        EXPECT_FALSE(Liste().Command2.etkin);
    });
}

TEST_F(FormRezervasyonlarTest, Who_closes_the_record_without_saving_has_lost_the_request_on_purpose) {
    Iste({});
    Baslat();
    ListeyiAc([this] {
        Sec(0);
        EkranBekle(EkranAdi::FormKayit, [this] {
            KutuBekle(u"Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                      u"Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?",
                      Cevap::Evet, Simge::Uyari, u"Uyarı");
            KapataBas();
        });
        Olustur();
        EXPECT_FALSE(ListeVar());
    });
    EXPECT_EQ(agac.Oku(u"RezTemp.dat"), "");
    EXPECT_TRUE(Firma().istekler.empty());
    EXPECT_FALSE(kullanici.Tablo().YeniRezervasyonVar.etkin);
}

TEST_F(FormRezervasyonlarTest,
       A_request_for_a_hall_that_is_gone_is_refused_and_the_year_has_changed_on_purpose) {
    Iste({.salon = u"Eski Salon"});
    Baslat();
    ListeyiAc([this] {
        Sec(0);
        KutuBekle(u"Salon isminizi değiştirdiğiniz için online rezervasyon oluşturulamıyor!\n"
                  u"Seçmiş olduğunuz online rezervasyonu oluşturmak istiyorsanız salon isminizi\n"
                  u"Eski Salon olarak değiştirmelisiniz.");
        Olustur();
        EXPECT_EQ(Liste().Liste.satirlar.size(), 1U);
    });
    EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2013");
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon A");
    EXPECT_TRUE(servis.gelenler.empty());
}

TEST_F(FormRezervasyonlarTest, A_taken_slot_is_refused_firm_or_not_and_the_table_stays_at_its_year) {
    for (const bool on : {false, true}) {
        KayitKoy(agac, u"Salon B/2013/23.06.2013 - Gece", {}, on);
        KayitKoy(agac, u"Salon B/2013/24.06.2013 - Gündüz", {}, on);
        Firma().istekler.clear();
        Iste({});
        Iste({.no = u"42", .tarih = u"24.06.2013", .zaman = u"Gündüz"});
        Baslat();
        ListeyiAc([this] {
            for (const int sira : {0, 1}) {
                Sec(sira);
                KutuBekle(kDolu);
                Olustur();
                EXPECT_FALSE(Liste().Command2.etkin);
            }
            EXPECT_EQ(Liste().Liste.satirlar.size(), 2U);
            VELORA_BAS(Prog().FormRezervasyonlar, Command1);
        });
        EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2013");
        EXPECT_TRUE(servis.gelenler.empty());
        ProgramiKapat();
    }
}

TEST_F(FormRezervasyonlarTest, The_other_slot_of_the_day_and_the_other_hall_keep_nobody_away) {
    KayitKoy(agac, u"Salon B/2013/23.06.2013 - Gündüz");
    KayitKoy(agac, u"Salon A/2013/23.06.2013 - Gece");
    Iste({});
    IlkiDevralinmali();
}

// The colour of a day gone by hides what is there: the save then writes over it.
TEST_F(FormRezervasyonlarTest, A_taken_day_that_is_past_is_grey_and_lets_the_request_through_on_purpose) {
    AyarKoy(28, u"1"); // past days are painted
    KayitKoy(agac, u"Salon B/2012/05.06.2012 - Gece");
    Iste({.tarih = u"05.06.2012"});
    IlkiDevralinmali();
}

TEST_F(FormRezervasyonlarTest, A_row_that_the_service_sent_twice_goes_once) {
    Iste({});
    Iste({});
    Baslat();
    ListeyiAc([this] {
        Sec(1);
        KutuBekle(kSilmeSorusu, Cevap::Evet, Simge::Soru);
        VELORA_BAS(Prog().FormRezervasyonlar, Command3);
        EXPECT_EQ(Liste().Liste.satirlar.size(), 1U);
    });
}

TEST_F(FormRezervasyonlarTest, The_row_that_was_chosen_goes_also_when_the_list_was_made_anew_meanwhile) {
    Iste({});
    Iste({.no = u"42"});
    Baslat();
    ListeyiAc([this] {
        Sec(1);
        istekte = [this] {
            istekte = {};
            Liste().Activate();
        };
        KutuBekle(kSilmeSorusu, Cevap::Evet, Simge::Soru);
        VELORA_BAS(Prog().FormRezervasyonlar, Command3);
        ASSERT_EQ(Liste().Liste.satirlar.size(), 1U);
        EXPECT_EQ(Liste().Liste.satirlar[0].sutun[0], u"41");
    });
}

TEST_F(FormRezervasyonlarTest, The_screen_may_go_while_the_table_moves_to_the_request_or_a_request_waits) {
    Iste({});
    Baslat();
    ListeyiAc([this] {
        Sec(0);
        kullanici.ortam.olayda = [this](int) { Prog().FormRezervasyonlar.Bosalt(); };
        Olustur();
        kullanici.ortam.olayda = {};
        EXPECT_FALSE(ListeVar());
    });
    EXPECT_TRUE(servis.gelenler.empty());
    ListeyiAc([this] {
        Sec(0);
        istekte = [this] { Prog().FormRezervasyonlar.Bosalt(); };
        KutuBekle(kSilmeSorusu, Cevap::Evet, Simge::Soru);
        VELORA_BAS(Prog().FormRezervasyonlar, Command3);
        EXPECT_FALSE(ListeVar());
    });
    EXPECT_EQ(agac.Oku(u"RezTemp.dat"), "");
}

TEST_F(FormRezervasyonlarTest, A_row_that_was_chosen_while_another_one_was_deleted_stays_chosen) {
    Iste({});
    Iste({.no = u"42"});
    Iste({.no = u"43"});
    Baslat();
    ListeyiAc([this] {
        for (const auto& [silinen, secilen] : {std::pair{0, 2}, {1, 0}}) {
            Sec(silinen);
            istekte = [this, no = secilen] { Sec(no); };
            KutuBekle(kSilmeSorusu, Cevap::Evet, Simge::Soru);
            VELORA_BAS(Prog().FormRezervasyonlar, Command3);
            ASSERT_NE(Liste().Liste.Secili(), nullptr);
            EXPECT_EQ(Liste().Liste.Secili()->sutun[0], silinen == 0 ? u"43" : u"42");
            EXPECT_TRUE(Liste().Command2.etkin);
        }
    });
}

// What it was told is older than what the user has done since.
TEST_F(FormRezervasyonlarTest, A_poll_within_which_the_list_was_open_is_dropped_and_a_new_one_asks) {
    Iste({});
    Iste({.no = u"42"});
    Baslat();
    bool acildi = false;
    istekte = [this, &acildi] {
        if (acildi || !servis.gelenler.back().starts_with(u"rezkontrol.php"))
            return;
        acildi = true;
        ListeyiAc([this] {
            Sec(0);
            KutuBekle(kSilmeSorusu, Cevap::Evet, Simge::Soru);
            VELORA_BAS(Prog().FormRezervasyonlar, Command3);
            VELORA_BAS(Prog().FormRezervasyonlar, Command1);
        });
    };
    kullanici.ZamanGecir(2'600);
    ASSERT_TRUE(acildi);
    EXPECT_TRUE(Dosya().starts_with("\"42\",")) << "the deleted one hasn't come back";
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 2'500);
    EXPECT_EQ(kullanici.Tablo().YeniRezTimer.aralik, 400);
    servis.gelenler.clear();
    kullanici.ZamanGecir(2'600);
    EXPECT_EQ(servis.Betikler(), (std::vector<std::string>{"duyuru.php", "rezkontrol.php"}));
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0);
}

TEST_F(FormRezervasyonlarTest, Closed_with_requests_left_the_mark_blinks_on_through_the_next_poll) {
    Iste({});
    Baslat();
    ListeyiAc([this] { VELORA_BAS(Prog().FormRezervasyonlar, Command1); });
    kullanici.ZamanGecir(2'600);
    EXPECT_EQ(servis.Betikler().back(), "rezkontrol.php");
    EXPECT_EQ(kullanici.Tablo().YeniRezTimer.aralik, 400);
    EXPECT_TRUE(kullanici.Tablo().YeniRezervasyonVar.etkin);
}

TEST_F(FormRezervasyonlarTest, A_double_click_on_a_list_in_which_nothing_was_chosen_takes_over_nothing) {
    Iste({});
    Baslat();
    ListeyiAc([this] {
        Liste().Liste.secili = 0;
        Liste().Liste_DblClick();
    });
    EXPECT_TRUE(servis.gelenler.empty());
}

TEST_F(FormRezervasyonlarTest, The_mail_address_of_a_request_goes_nowhere_on_purpose) {
    Iste({});
    Baslat();
    ListeyiAc([this] {
        Sec(0);
        EkranBekle(EkranAdi::FormKayit, [this] {
            for (const MetinKutusu& alan : Kayit().Kay)
                EXPECT_EQ(alan.metin.find(u"gul@x.test"), Metin::npos);
        });
        Olustur();
    });
}

TEST_F(FormRezervasyonlarTest, Save_writes_the_list_back_record_by_record) {
    Iste({});
    Baslat();
    ListeyiAc([this] {
        std::filesystem::remove(agac.Yol(u"RezTemp.dat"));
        VELORA_BAS(Prog().FormRezervasyonlar, Kaydet);
    });
    EXPECT_EQ(Dosya(), "\"41\",\"G\xFCl I\xFE\xFDk\",\"0212 33\",\"0532 44\",\"gul@x.test\",\"Salon B\","
                       "\"23.06.2013\",\"19:30\",\"Gece\",\"Ni\xFE"
                       "an\"\r\n");
}

} // namespace velora::test
