// Days at the table: a reservation is moved to another month and slot and back, and one is cancelled.
#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "reservation/FormKayit.h"
#include "setup/FormAyarlar.h"

namespace velora::test {

class TabloGunu : public ::testing::Test {
  protected:
    static constexpr auto kGunduz = velora::GunduzGece::Gunduz;
    static constexpr auto kGece = velora::GunduzGece::Gece;

    TabloGunu() {
        agac.Koy(u"Salon.dat", "\"\xDEi\xFEli\"\r\n");
        agac.Koy(u"Count.dat", "\"17\"\r\n");
        Koy(u"20.06.2012 - Gündüz", {.ad = u"Şükran Öz", .no = u"17"});
        Koy(u"21.06.2012 - Gece", {.ad = u"Ali"});
        kullanici.ProgramiAc();
        kullanici.Tablo().UserNamem = u"admin";
    }
    void Koy(const Metin& ad, const OrnekKayit& kayit) {
        KayitKoy(agac, u"Şişli/2012/" + ad, kayit, false, u"\"01.01.2012\",\"1000\",\"not\"\r\n");
    }
    void Tasi(const TabloGozu& kaynak, const TabloGozu& hedef) {
        ASSERT_TRUE(kullanici.SagTikla(kaynak));
        kullanici.KomutSec(Komut::TasimaModuAc);
        kullanici.ortam.Bekle(BeklenenKutu{u"Velora",
                                           u"Seçili rezervasyonu taşımak istediğinizden emin misiniz?",
                                           Simge::Soru, Cevap::Evet});
        ASSERT_TRUE(kullanici.Surukle(kaynak, hedef));
        EXPECT_EQ(kullanici.Tablo().tasimamoducheck, 0);
    }
    /// The three files of `ad`, by the bytes that the first day's record has.
    void UcDosyaOlmali(const Metin& ad) {
        EXPECT_EQ(
            agac.Bayt(u"Şişli/2012/" + ad),
            "\"\xDE\xFCkran \xD6z\",\"Bolu\",\"Ay\xFE"
            "e / Can\",\"D\xFC\xF0\xFCn\",\"0212\",\"0532\",\"Adres 1\",\"5000\",\"1000\",\"4000\","
            "\"not\",\"11:00\",\"01.01.2012\",\"17\",\"23:00\",\"12345678901\",\"250\",\"__.__.____\",1,0"
            "\r\n");
        EXPECT_EQ(agac.Bayt(u"Şişli/2012/" + ad + u"-Odeme"), "\"01.01.2012\",\"1000\",\"not\"\r\n");
        EXPECT_TRUE(agac.DosyaVar(u"Şişli/2012/" + ad + u"-Detay"));
    }
    void UcDosyaYok(const Metin& ad) {
        for (const MetinBakis ek : {u"", u"-Detay", u"-Odeme"})
            EXPECT_FALSE(agac.DosyaVar(u"Şişli/2012/" + ad + Metin(ek)));
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_F(TabloGunu, A_reservation_moves_to_another_month_and_slot_and_back_and_no_byte_differs) {
    const std::string once = agac.Resim();
    Tasi({20, 6, kGunduz}, {3, 11, kGece});
    UcDosyaOlmali(u"03.11.2012 - Gece");
    UcDosyaYok(u"20.06.2012 - Gündüz");
    const auto renk = [&](int n) { return kullanici.Prog().FormAyarlar->Renk(n); };
    EXPECT_EQ(kullanici.Goz(3, 11, kGece).zemin, renk(12));
    EXPECT_EQ(kullanici.Goz(20, 6, kGunduz).zemin, renk(2));

    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormKayit, [&] {
                                            const auto kayit = kullanici.Prog().FormKayit.Tut();
                                            EXPECT_EQ(kayit->Tarih, u"03.11.2012 - Gece");
                                            EXPECT_EQ(kayit->Kay[14].metin, u"17");
                                            VELORA_BAS(kullanici.Prog().FormKayit, Command2);
                                        }});
    kullanici.CiftTikla({3, 11, kGece});

    Tasi({3, 11, kGece}, {20, 6, kGunduz});
    kullanici.ProgramiKapat();
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(TabloGunu, A_cancellation_with_an_empty_reason_frees_the_day_and_logs_one_line) {
    ASSERT_TRUE(kullanici.SagTikla({21, 6, kGece}));
    kullanici.ortam.Bekle(BeklenenKutu{u"Velora", u"Seçili kaydı silmek istediğinizden emin misiniz?",
                                       Simge::Soru, Cevap::Evet});
    kullanici.ortam.Bekle(BeklenenGirdi{u"İptal Sebebi", u"İptal sebebini yazınız!", u""});
    kullanici.KomutSec(Komut::iptals);
    ASSERT_TRUE(kullanici.SagTikla({21, 6, kGece}));
    EXPECT_TRUE(kullanici.Tablo().Girdi(Komut::newkay).etkin);
    kullanici.ProgramiKapat();
    UcDosyaYok(u"21.06.2012 - Gece");
    UcDosyaOlmali(u"20.06.2012 - Gündüz");
    EXPECT_EQ(agac.Bayt(u"IptalSebep.txt"),
              "21.06.2012 - Gece - \xDEi\xFEli - Ali - 0212 - 0532 - admin - \r\n");
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"17\"\r\n");
}

} // namespace velora::test
