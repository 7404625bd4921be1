// The ladder of the start, its queries and its ends.
#include "access/SplashTest.h"
#include "maintenance/FormDownloadManager.h"
#include "maintenance/FormYedekAl.h"

namespace velora::test {

namespace {

/// What the screen shows behind a tick.
struct Gorunen {
    int tik;
    MetinBakis adim;
    int yanan; // of the marks, the last lit
};

constexpr Gorunen kGorunenler[]{
    {0, u"Yüklemeye başlanıyor", 1},
    {4, u"Yüklemeye başlanıyor", 1},
    {5, u"Veri tabanı kontrol ediliyor...", 2},
    {9, u"Veri tabanı kontrol ediliyor...", 2},
    {10, u"Modüller kontrol ediliyor...", 2},
    {19, u"Modüller kontrol ediliyor...", 2},
    {20, u"Kullanıcı ayarları yükleniyor...", 3},
    {29, u"Kullanıcı ayarları yükleniyor...", 3},
    {30, u"Programın sürümü kontrol ediliyor...", 4},
    {39, u"Programın sürümü kontrol ediliyor...", 4},
    {40, u"Programın sürümü kontrol ediliyor...", 5},
    {49, u"Programın sürümü kontrol ediliyor...", 5},
    {50, u"Firma bilgileriniz yükleniyor...", 6},
    {59, u"Firma bilgileriniz yükleniyor...", 6},
    {60, u"Program açılıyor bekleyiniz...", 7},
    {69, u"Program açılıyor bekleyiniz...", 7},
};

} // namespace

TEST_F(SplashTest, A_second_copy_says_so_and_ends_before_it_looks_at_anything) {
    ortam.baskaKopya = true;
    std::filesystem::remove(agac.Yol(u"Firma.dll"));
    std::filesystem::remove(agac.Yol(u"Menuler.dat"));
    ortam.Bekle(BeklenenKutu{u"Hata", u"Velora Programı zaten çalışıyor!", Simge::Kritik});
    Baslat();
    EXPECT_TRUE(ortam.bitti);
    EXPECT_FALSE(program.Splash.Yuklu());
    EXPECT_TRUE(ortam.acilanlar.empty());
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat"));
}

TEST_F(SplashTest, Shows_its_version_and_walks_a_ladder_of_seventy_ticks) {
    CevrimdisiBaslat();
    EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::Splash}));
    EXPECT_EQ(Acilis().Label2.baslik, u"Sürüm 2.0.5");
    EXPECT_EQ(Acilis().Label5.baslik, u" Lütfen bekleyin");
    EXPECT_EQ(Acilis().Timer1.aralik, 60);
    EXPECT_EQ(Acilis().Tag, u"");
    for (const Gorunen& gorunen : kGorunenler) {
        SCOPED_TRACE(gorunen.tik);
        if (gorunen.tik > 0)
            TikeDek(gorunen.tik);
        EXPECT_EQ(Acilis().Label3.baslik, gorunen.adim);
        for (int mark = 1; mark <= 7; ++mark)
            EXPECT_EQ(Acilis().Loading[mark], mark <= gorunen.yanan) << mark;
    }
    EXPECT_EQ(ortam.acilanlar.size(), 1U);
}

TEST_F(SplashTest, The_second_and_the_third_step_light_the_same_mark_which_is_meant) {
    CevrimdisiBaslat();
    TikeDek(5);
    Acilis().Loading[2] = false;
    TikeDek(10);
    EXPECT_TRUE(Acilis().Loading[2]);
    EXPECT_FALSE(Acilis().Loading[3]);
}

TEST_F(SplashTest, At_the_last_tick_it_hides_unloads_the_profile_and_shows_the_login) {
    CevrimiciBaslat();
    SurumSor(u"");
    TikeDek(69);
    EXPECT_TRUE(program.FormFirma.Yuklu()) << "the send has loaded it";
    EXPECT_FALSE(program.FormSifre.Yuklu());
    TikeDek(70);
    EXPECT_EQ(Acilis().Timer1.aralik, 0);
    EXPECT_TRUE(program.Splash.Yuklu()) << "its boxes are asked for the whole run";
    EXPECT_FALSE(program.yigin.Acik(EkranAdi::Splash));
    EXPECT_FALSE(program.FormFirma.Yuklu());
    EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::Splash, EkranAdi::FormSifre}));
    EXPECT_EQ(ortam.gizlenenler, (std::vector{EkranAdi::Splash, EkranAdi::FormFirma}));
    EXPECT_FALSE(ortam.bitti) << "no window stood for a moment";
    EXPECT_EQ(Acilis().Check1, 1);
    EXPECT_EQ(Acilis().Check2, 1);
}

TEST_F(SplashTest, Only_a_whole_ok_counts_and_blanks_around_it_do_not_matter) {
    struct {
        Metin cevap;
        int sayilir;
    } const cevaplar[]{{u"OKEY", 1},  {u"  OKEY   ", 1}, {u"okey", 0}, {u"OKEY\r\n", 0},
                       {u"OKEYS", 0}, {u"", 0},          {u"1", 0}};
    for (const auto& [cevap, sayilir] : cevaplar) {
        SCOPED_TRACE(::testing::PrintToString(cevap));
        program.Splash.Bosalt();
        program.FormFirma.Bosalt();
        Baslat();
        ServisSor(cevap);
        if (sayilir == 1)
            ProfilGider();
        YayinSor(cevap);
        TikeDek(5);
        EXPECT_EQ(Acilis().Check1, sayilir);
        EXPECT_EQ(Acilis().Check2, sayilir);
        EXPECT_EQ(program.FormFirma.Yuklu(), sayilir == 1) << "only a service that is there is sent to";
    }
}

TEST_F(SplashTest, Without_a_connection_nothing_is_asked_at_all) {
    CevrimdisiBaslat();
    TikeDek(70);
    EXPECT_EQ(Acilis().Check1, 0);
    EXPECT_EQ(Acilis().Check2, 0);
    EXPECT_EQ(Acilis().VersiyonKontrol, 0);
    EXPECT_EQ(ortam.acilanlar.back(), EkranAdi::FormSifre);
}

TEST_F(SplashTest, The_calendar_is_asked_for_also_when_the_service_is_out_which_is_meant) {
    Baslat();
    ServisSor(u"");
    YayinSor(u"OKEY");
    TikeDek(70);
    EXPECT_EQ(Acilis().Check1, 0);
    EXPECT_EQ(Acilis().Check2, 1);
}

TEST_F(SplashTest, The_version_is_asked_for_at_its_tick_alone_and_only_online) {
    CevrimiciBaslat();
    TikeDek(33);
    SurumSor(u"NEW", 4);
    TikeDek(34);
    EXPECT_EQ(Acilis().VersiyonKontrol, 0);
    TikeDek(70);
    EXPECT_EQ(ortam.acilanlar.back(), EkranAdi::FormSifre);
}

TEST_F(SplashTest, Each_query_may_take_ten_seconds_and_those_behind_it_four) {
    Baslat();
    ortam.Bekle(BeklenenIstek{ServisAdresi(u"internetkontrol.php?ver=2.0.5"), u"OKEY", 10});
    ProfilGider();
    YayinSor(u"", 10);
    TikeDek(5);
    EXPECT_EQ(Acilis().Inet1.sure, 4);
    SurumSor(u"", 4);
    TikeDek(34);
    EXPECT_EQ(Acilis().Inet1.sure, 4);
}

TEST_F(SplashTest, A_refused_new_version_ends_the_program_with_a_word) {
    CevrimiciBaslat();
    SurumSor(u" OLD ");
    ortam.Bekle(BeklenenKutu{u"Velora Yeni Sürüm",
                             u"YENİ SÜRÜM HAZIR! \nYeni sürümü şimdi yüklemek ister misiniz?", Simge::Soru,
                             Cevap::Hayir});
    ortam.Bekle(BeklenenKutu{u"Velora", u"Programı kullanabilmeniz için yeni sürümü kurmalısınız!"});
    TikeDek(34);
    EXPECT_EQ(Acilis().VersiyonKontrol, 1);
    EXPECT_FALSE(ortam.bitti);
    TikeDek(70);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_EQ(Acilis().Tag, u"35") << "this run doesn't get past it";
    EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::Splash}));
}

TEST_F(SplashTest, An_accepted_new_version_is_fetched_alone_on_the_screen_and_the_program_ends_behind_it) {
    CevrimiciBaslat();
    SurumSor(u"OLD");
    ortam.Bekle(BeklenenKutu{u"Velora Yeni Sürüm",
                             u"YENİ SÜRÜM HAZIR! \nYeni sürümü şimdi yüklemek ister misiniz?", Simge::Soru,
                             Cevap::Evet});
    ortam.Bekle(BeklenenEkran{EkranAdi::FormDownloadManager, [this] {
                                  EXPECT_FALSE(program.yigin.Acik(EkranAdi::Splash));
                                  EXPECT_FALSE(ortam.bitti);
                                  EXPECT_EQ(agac.Bayt(u"VeloraYeni.exe"), "MZ");
                              }});
    ortam.Bekle(BeklenenAktarim{
        u"http://site.test/update/Velora.exe", u"HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n", {"MZ"}});
    ortam.Bekle(BeklenenKutu{u"Yeni Sürüm", u"Programın yeni sürümü başarıyla indirildi..."});
    TikeDek(70);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_FALSE(program.FormSifre.Yuklu());
}

TEST_F(SplashTest,
       A_new_version_that_is_closed_while_its_backup_is_taken_starts_the_updater_and_the_program_ends) {
    ortam.yedekKlasoru = agac.Disi() / "yedek";
    CevrimiciBaslat();
    SurumSor(u"OLD");
    ortam.Bekle(BeklenenKutu{u"Velora Yeni Sürüm",
                             u"YENİ SÜRÜM HAZIR! \nYeni sürümü şimdi yüklemek ister misiniz?", Simge::Soru,
                             Cevap::Evet});
    ortam.Bekle(
        BeklenenEkran{EkranAdi::FormDownloadManager, [this] {
                          ortam.Bekle(BeklenenKutu{u"Velora", u"Yedekleme işleminiz başarıyla tamamlandı!"});
                          ortam.olayda = [this](int) {
                              if (program.FormYedekAl.Yuklu() && program.FormDownloadManager.Yuklu())
                                  program.FormDownloadManager->Kapat();
                          };
                          for (int i = 0; i < 200 && program.FormDownloadManager.Yuklu(); ++i)
                              program.FormDownloadManager->Timer1.Calis();
                          EXPECT_EQ(ortam.calisanlar, std::vector{agac.Kok() / "Update.exe"});
                          EXPECT_FALSE(ortam.bitti) << "the updater is started before the end";
                      }});
    ortam.Bekle(BeklenenAktarim{
        u"http://site.test/update/Velora.exe", u"HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n", {"MZ"}});
    ortam.Bekle(BeklenenKutu{u"Yeni Sürüm", u"Programın yeni sürümü başarıyla indirildi..."});
    TikeDek(70);
    EXPECT_TRUE(ortam.bitti);
}

TEST_F(SplashTest, The_repeated_query_brings_the_program_online_and_leaves_the_calendar_alone) {
    CevrimdisiBaslat();
    TikeDek(70);
    Acilis().Check2 = 1;
    ServisSor(u"no");
    program.Splash->tekrarinternetkontrol();
    EXPECT_EQ(Acilis().Check1, 0);
    EXPECT_EQ(Acilis().Inet1.sure, 3);
    ServisSor(u"OKEY");
    ProfilGider();
    program.Splash->tekrarinternetkontrol();
    EXPECT_EQ(Acilis().Check1, 1);
    EXPECT_EQ(Acilis().Check2, 1);
}

TEST_F(SplashTest, A_window_closed_while_the_service_is_asked_ends_the_program_and_asks_no_more) {
    Baslat();
    ServisSor(u"OKEY", [this] { program.Splash->Kapat(); });
    TikeDek(70);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_FALSE(program.Splash.Yuklu());
    EXPECT_FALSE(program.FormFirma.Yuklu());
    EXPECT_FALSE(program.FormSifre.Yuklu());
}

TEST_F(SplashTest, A_window_closed_while_events_run_does_nothing_of_its_step) {
    Baslat();
    ortam.olayda = [this](int) {
        if (program.Splash.Yuklu() && Acilis().Tag == u"5")
            program.Splash->Kapat();
    };
    TikeDek(70);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_FALSE(program.Splash.Yuklu());
}

} // namespace velora::test
