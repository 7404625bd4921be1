// What the web shows follows the table: which changes publish it again.
#include <algorithm>

#include "access/Splash.h"
#include "online/FormWebteYayinla.h"
#include "table/TabloTest.h"

namespace velora::test {

class Yayin : public TabloTest {
  protected:
    void Baslat(int servis, int yayinda) {
        RezervasyonKoy(u"20.06.2012 - Gündüz");
        RezervasyonKoy(u"21.06.2012 - Gece");
        kullanici.ProgramiAc();
        kullanici.Prog().Splash->Check1 = servis;
        kullanici.Prog().Splash->Check2 = yayinda;
    }
    auto Yayinlar() { return std::ranges::count(kullanici.ortam.acilanlar, EkranAdi::FormWebteYayinla); }
    void YayinBekle() { kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla}); }
    /// Opens move mode and drops the reservation of 20 June on another cell.
    void Tasi(const TabloGozu& hedef) {
        kullanici.Uzerine({20, 6, kGunduz});
        kullanici.KomutSec(Komut::TasimaModuAc);
        kullanici.Surukle({20, 6, kGunduz}, hedef);
    }
    void SoruBekle(const Metin& metin, Cevap cevap) {
        kullanici.ortam.Bekle(BeklenenKutu{u"Velora", metin, Simge::Soru, cevap});
    }
    void TasimaSorusuBekle(Cevap cevap) {
        SoruBekle(u"Seçili rezervasyonu taşımak istediğinizden emin misiniz?", cevap);
    }
    void IptalEt() {
        kullanici.SagTikla({20, 6, kGunduz});
        kullanici.KomutSec(Komut::iptals);
    }
};

TEST_F(Yayin, A_publish_shows_its_screen_over_the_others_until_all_is_sent) {
    Baslat(1, 0);
    YayinBekle();
    kullanici.Tablo().Yayinla();
    EXPECT_EQ(Yayinlar(), 1);
    EXPECT_FALSE(kullanici.Prog().FormWebteYayinla.Yuklu());
}

TEST_F(Yayin, A_screen_without_anything_to_send_stands_until_it_is_closed) {
    Baslat(1, 0);
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla, [this] {
                                            const auto ekran = kullanici.Prog().FormWebteYayinla.Tut();
                                            EXPECT_EQ(ekran->Label8.baslik, u"Veri Tabanı");
                                            EXPECT_EQ(ekran->Command1.baslik, u"İptal");
                                            ekran->Command1_Click();
                                        }});
    kullanici.Prog().FormWebteYayinla.GosterModal();
    EXPECT_FALSE(kullanici.Prog().FormWebteYayinla.Yuklu());
}

TEST_F(Yayin, Offline_nothing_is_published_even_by_a_firm_that_is) {
    Baslat(0, 1);
    kullanici.Tablo().Yayinla();
    kullanici.Tablo().Command7();
    EXPECT_EQ(Yayinlar(), 0);
    EXPECT_FALSE(kullanici.Prog().FormWebteYayinla.Yuklu());
}

TEST_F(Yayin, An_unpublished_firm_is_sent_nothing_by_itself) {
    Baslat(1, 0);
    kullanici.Tablo().Command7();
    EXPECT_EQ(Yayinlar(), 0);
}

TEST_F(Yayin, Every_end_of_move_mode_publishes_on_purpose_also_a_refusal_and_a_no) {
    Baslat(1, 1);
    Metin tagYayinda;
    int modYayinda = 1;
    agac.Koy(u"Adresler.dat", "\"http://servis.test/x\",\"\",\"\",\"\"\r\n");
    kullanici.Prog().ortam.ag.getir = [&](const AgIstegi&) {
        tagYayinda = kullanici.Goz(20, 6, kGunduz).tag;
        modYayinda = kullanici.Tablo().tasimamoducheck;
        return Metin();
    };
    kullanici.ortam.Bekle(
        BeklenenKutu{.baslik = u"Uyarı",
                     .metin = u"Bu tarihe taşıma yapamazsınız!\nBu tarihte zaten bir rezervasyon kayıtlı!"});
    YayinBekle();
    Tasi({21, 6, kGece});
    EXPECT_EQ(Yayinlar(), 1) << "a refusal";
    TasimaSorusuBekle(Cevap::Hayir);
    YayinBekle();
    Tasi({22, 6, kGece});
    EXPECT_EQ(Yayinlar(), 2) << "a no";
    TasimaSorusuBekle(Cevap::Evet);
    YayinBekle();
    Tasi({22, 6, kGece});
    EXPECT_EQ(Yayinlar(), 3) << "a move";
    EXPECT_EQ(kullanici.Goz(20, 6, kGunduz).tag, u"");
    EXPECT_EQ(tagYayinda, u"") << "the table that is published is the one after the move";
    EXPECT_EQ(modYayinda, 0);
}

TEST_F(Yayin, A_cancellation_publishes_the_table_without_it_and_a_no_publishes_nothing) {
    Baslat(1, 1);
    SoruBekle(u"Seçili kaydı silmek istediğinizden emin misiniz?", Cevap::Hayir);
    IptalEt();
    EXPECT_EQ(Yayinlar(), 0);
    SoruBekle(u"Seçili kaydı silmek istediğinizden emin misiniz?", Cevap::Evet);
    kullanici.ortam.Bekle(BeklenenGirdi{u"İptal Sebebi", u"İptal sebebini yazınız!", u"x"});
    YayinBekle();
    IptalEt();
    EXPECT_EQ(Yayinlar(), 1);
    EXPECT_EQ(kullanici.Goz(20, 6, kGunduz).tag, u"");
}

} // namespace velora::test
