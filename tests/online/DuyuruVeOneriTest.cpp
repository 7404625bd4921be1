// Announcements of the service, and suggestions to it.
#include "online/FirmaTest.h"
#include "online/FormDuyurular.h"
#include "online/FormOneri.h"
#include "table/FormTablo.h"

namespace velora::test {

namespace {

const Metin kDuyurularAdresi = u"http://servis.test/x/duyurular.php";
const Metin kOkunduAdresi = u"http://servis.test/x/duyuruokundu.php?firmaid=00-1B-C4-0D-E0-9F";
const Metin kOneriAdresi = u"http://servis.test/x/onerikaydet.php?firmaid=00-1B-C4-0D-E0-9F&firmaunvani=Gül "
                           u"Düğün&eposta=a@gul.test&mesaj=";

} // namespace

class FormDuyurularTest : public OnlineTest {
  protected:
    FormDuyurularTest() {
        program.FormTablo->YeniDuyuruTimer.aralik = 400;
        program.FormTablo->YeniDuyuruTimer_Tick();
    }
    Metin okununca; // what the screen showed when it was marked as read

    /// Opens the screen while the fetch gives that reply; `is` is what the user does there.
    void Ac(const Metin& cevap, std::function<void()> is) {
        ortam.Bekle(BeklenenEkran{EkranAdi::FormDuyurular, std::move(is)});
        ortam.Bekle(BeklenenIstek{.adres = kDuyurularAdresi, .cevap = cevap});
        ortam.Bekle(BeklenenIstek{.adres = kOkunduAdresi, .cevap = u"?", .is = [this] {
                                      okununca = program.FormDuyurular->Text1.metin;
                                  }});
        program.FormDuyurular.GosterModal();
    }
};

TEST_F(FormDuyurularTest, Shows_what_the_service_tells_line_by_line_and_has_it_marked_as_read) {
    Ac(u" Yeni sürüm<br><br>Bayram <b>kutlu</b><BR>", [this] {
        const auto duyurular = program.FormDuyurular.Tut();
        EXPECT_EQ(duyurular->Text1.metin, u" Yeni sürüm\r\n\r\nBayram <b>kutlu</b><BR>");
        EXPECT_TRUE(duyurular->Text1.kilitli);
        EXPECT_EQ(okununca, duyurular->Text1.metin);
        VELORA_BAS(program.FormDuyurular, Command1);
    });
    EXPECT_FALSE(program.FormDuyurular.Yuklu());
}

TEST_F(FormDuyurularTest, A_fetch_that_failed_shows_nothing_and_marks_as_read_all_the_same_on_purpose) {
    Ac(u"", [this] { EXPECT_EQ(program.FormDuyurular->Text1.metin, u""); });
}

TEST_F(FormDuyurularTest, Closing_puts_the_mark_out_and_it_stays_out) {
    Ac(u"x", [this] {
        EXPECT_TRUE(program.FormTablo->YeniDuyuru.etkin);
        VELORA_BAS(program.FormDuyurular, Command1);
    });
    EXPECT_FALSE(program.FormTablo->YeniDuyuru.etkin);
    EXPECT_EQ(program.FormTablo->YeniDuyuruTimer.aralik, 0) << "a tick would put it on again";
}

TEST_F(FormDuyurularTest, A_screen_that_is_closed_during_the_fetch_marks_nothing_as_read) {
    ortam.Bekle(BeklenenEkran{EkranAdi::FormDuyurular});
    ortam.Bekle(BeklenenIstek{.adres = kDuyurularAdresi, .cevap = u"x", .is = [this] {
                                  VELORA_BAS(program.FormDuyurular, Command1);
                              }});
    program.FormDuyurular.GosterModal();
    EXPECT_FALSE(program.FormDuyurular.Yuklu());
}

TEST_F(FormDuyurularTest, A_screen_that_is_closed_while_it_is_marked_as_read_leaves_that_request_on_its_way) {
    int yolda = 0;
    program.ortam.ag.gonder = [&](const AgIstegi& istek) {
        EXPECT_EQ(istek.adres, kOkunduAdresi);
        const auto varis = std::make_shared<int>(3);
        ++yolda;
        return Gonderim{.bitti = [&yolda, varis] { return --*varis == 0 && --yolda == 0; }};
    };
    ortam.Bekle(
        BeklenenEkran{EkranAdi::FormDuyurular, [this] { VELORA_BAS(program.FormDuyurular, Command1); }});
    ortam.Bekle(BeklenenIstek{.adres = kDuyurularAdresi, .cevap = u"x"});
    program.FormDuyurular.GosterModal();
    EXPECT_FALSE(program.FormDuyurular.Yuklu());
    auto& saat = program.FormTablo->YayinTimer;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(yolda, 1);
        EXPECT_EQ(saat.aralik, 10);
        saat.Calis();
    }
    EXPECT_EQ(yolda, 0);
    EXPECT_EQ(saat.aralik, 0);
}

class FormOneriTest : public FirmaTest {
  protected:
    FormOneriTest() { agac.Koy(u"Firma.dll", kDosya); }
    int olaylar = 0;
    FormOneri& Oneri() { return *program.FormOneri.Tut(); }
    void Yaz(const Metin& metin) {
        SatirlaraYaz(Oneri().Aciklama, metin, {.degisti = [this] { Oneri().Aciklama_Change(); }});
    }
    void Gonder(const Metin& mesaj, const Metin& cevap, bool gitti) {
        Yaz(mesaj);
        ortam.Bekle(BeklenenIstek{.adres = kOneriAdresi + mesaj, .cevap = cevap, .is = [this] {
                                      EXPECT_EQ(ortam.olaySayisi, olaylar) << "events have a turn behind it";
                                  }});
        olaylar = ortam.olaySayisi;
        if (!gitti)
            ortam.Bekle(BeklenenKutu{
                u"Velora", u"Mesajınız gönderilemedi!\nLütfen İnternet bağlantınızı kontrol ediniz!",
                Simge::Kritik});
        else
            ortam.Bekle(BeklenenKutu{u"Teşekkürler", u"Tebrikler...\nMesajınız başarıyla gönderilmiştir."});
        VELORA_BAS(program.FormOneri, Command1);
    }
};

TEST_F(FormOneriTest, Only_a_text_can_be_sent) {
    EXPECT_EQ(Oneri().baslik, u"Öneri ve İstekleriniz");
    EXPECT_EQ(Oneri().Label2.baslik, u"Öneri ve isteklerinizi bizimle paylaşabilirsiniz.");
    EXPECT_FALSE(Oneri().Command1.etkin);
    Yaz(u"a");
    EXPECT_TRUE(Oneri().Command1.etkin);
    Yaz(u"   ");
    EXPECT_FALSE(Oneri().Command1.etkin);
    VELORA_BAS(program.FormOneri, Command2);
    EXPECT_FALSE(program.FormOneri.Yuklu());
}

TEST_F(FormOneriTest, A_message_goes_out_with_its_line_breaks_and_signs_as_it_stands_on_purpose) {
    Gonder(u"Bir & iki=3\r\nSon", u"OK", true);
    EXPECT_FALSE(program.FormOneri.Yuklu());
    EXPECT_EQ(ortam.olaySayisi, 1) << "events have a turn before the box";
}

TEST_F(FormOneriTest, A_reply_counts_without_its_line_breaks_and_the_blanks_about_them) {
    for (const Metin& cevap : {Metin(u"OK\r\n"), Metin(u" \r\n OK \r\n\r\n"), Metin(u"O\r\nK")}) {
        Gonder(u"Bir", cevap, true);
        EXPECT_FALSE(program.FormOneri.Yuklu());
    }
}

TEST_F(FormOneriTest, Any_other_reply_is_told_and_the_message_stays) {
    for (const Metin& cevap : {Metin(), Metin(u"ok"), Metin(u"NOK"), Metin(u"<html>")}) {
        Gonder(u"Bir", cevap, false);
        EXPECT_EQ(Oneri().Aciklama.metin, u"Bir");
    }
}

TEST_F(FormOneriTest, A_screen_that_goes_while_its_message_is_sent_says_nothing_more) {
    Yaz(u"Bir");
    ortam.Bekle(BeklenenIstek{
        .adres = kOneriAdresi + u"Bir", .cevap = u"OK", .is = [this] { program.FormOneri.Bosalt(); }});
    VELORA_BAS(program.FormOneri, Command1);
    EXPECT_FALSE(program.FormOneri.Yuklu());
}

} // namespace velora::test
