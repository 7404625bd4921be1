// What stands beside the filters, the list and the amounts of the report, without a window.
#include "accounts/BakiyeTest.h"

namespace velora::test {

class BakiyeBasliklari : public BakiyeTest {};

TEST_F(BakiyeBasliklari, Filters_and_list) {
    EXPECT_EQ(Rapor().Combo2.baslik, u"Salon Adı");
    EXPECT_EQ(Rapor().DTPicker1.baslik, u"Başlangıç Tarihi");
    EXPECT_EQ(Rapor().DTPicker2.baslik, u"Bitiş Tarihi");
    EXPECT_EQ(Rapor().Combo1.baslik, u"Rezervasyon Tipi");
    EXPECT_EQ(Rapor().Listele.baslik, u"Listele");
    EXPECT_EQ(Rapor().Liste.baslik, u"Rezervasyonlar");
    EXPECT_EQ(Rapor().Command6.baslik, u"Detaylar");
    EXPECT_EQ(Rapor().Command1.baslik, u"Kapat");
}

TEST_F(BakiyeBasliklari, Amounts_and_counters) {
    Metin turler;
    for (const Etiket& etiket : Rapor().DTop)
        turler += etiket.once + u" / ";
    EXPECT_EQ(turler, u"Düğün / Sünnet / Toplantı / Kına / Nişan / Kokteyl / Konferans / Diğer / ");
    EXPECT_EQ(Rapor().Toplam.once, u"Genel Toplam");
    EXPECT_EQ(Rapor().Alinan.once, u"Alınan Ödeme");
    EXPECT_EQ(Rapor().Kalan.once, u"Kalan Ödeme");
    EXPECT_EQ(Rapor().Label14.once, u"Kesin Rezervasyon");
    EXPECT_EQ(Rapor().Label18.once, u"Ön Rezervasyon");
    EXPECT_EQ(Rapor().Label19.once, u"Toplam Rezervasyon");
}

} // namespace velora::test
