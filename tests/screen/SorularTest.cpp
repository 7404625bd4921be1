// Questions and messages of a screen.
#include "screen/Sorular.h"

#include <gtest/gtest.h>

#include "destek/Kullanici.h"

namespace velora::test {

TEST(Sorular, A_question_has_yes_and_no_and_only_yes_is_yes) {
    const GeciciAgac agac;
    Kullanici kullanici(agac, std::chrono::year(2012) / 6 / 15);
    kullanici.ProgramiAc();
    kullanici.ortam.Bekle(BeklenenKutu{u"Velora", u"Silinsin mi?", Simge::Soru, Cevap::Evet});
    EXPECT_TRUE(Sor(kullanici.Prog(), u"Silinsin mi?"));
    kullanici.ortam.Bekle(BeklenenKutu{u"Uyarı", u"Kapansın mı?", Simge::Uyari, Cevap::Hayir});
    EXPECT_FALSE(Sor(kullanici.Prog(), u"Kapansın mı?", u"Uyarı", Simge::Uyari));
}

TEST(Sorular, What_deletes_or_throws_away_starts_on_the_no_and_other_questions_on_the_yes) {
    const GeciciAgac agac;
    Kullanici kullanici(agac, std::chrono::year(2012) / 6 / 15);
    kullanici.ProgramiAc();
    kullanici.ortam.Bekle(BeklenenKutu{u"Velora", u"Silinsin mi?", Simge::Soru, Cevap::Evet});
    EXPECT_TRUE(SilmeyiSor(kullanici.Prog(), u"Silinsin mi?"));
    kullanici.ortam.Bekle(BeklenenKutu{u"Uyarı", u"Atılsın mı?", Simge::Uyari, Cevap::Hayir});
    EXPECT_FALSE(SilmeyiSor(kullanici.Prog(), u"Atılsın mı?", u"Uyarı", Simge::Uyari));
    kullanici.ortam.Bekle(BeklenenKutu{u"Velora", u"Taşınsın mı?", Simge::Soru, Cevap::Evet});
    EXPECT_TRUE(Sor(kullanici.Prog(), u"Taşınsın mı?"));
    EXPECT_EQ(kullanici.ortam.hayirdaBaslayanlar, (std::vector<Metin>{u"Silinsin mi?", u"Atılsın mı?"}));
}

TEST(Sorular, A_message_has_one_button) {
    const GeciciAgac agac;
    Kullanici kullanici(agac, std::chrono::year(2012) / 6 / 15);
    kullanici.ProgramiAc();
    kullanici.ortam.Bekle(BeklenenKutu{u"Velora", u"Bulunamadı!", Simge::Bilgi, Cevap::Tamam});
    Soyle(kullanici.Prog(), u"Bulunamadı!");
    kullanici.ortam.Bekle(BeklenenKutu{u"Hata", u"Olmadı!", Simge::Kritik, Cevap::Tamam});
    Soyle(kullanici.Prog(), u"Olmadı!", u"Hata", Simge::Kritik);
}

} // namespace velora::test
