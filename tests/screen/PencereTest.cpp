#include "screen/Pencere.h"

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

std::vector<std::string>& Gunluk() {
    static std::vector<std::string> gunluk;
    return gunluk;
}

struct AltEkran {
    explicit AltEkran(Program&) {}
    ~AltEkran() { Gunluk().emplace_back("alt gitti"); }
    void Load() { Gunluk().emplace_back("alt yüklendi"); }
    void Activate() { Gunluk().emplace_back("alt öne geldi"); }
    int alan = 7;
};

struct UstEkran {
    explicit UstEkran(Program&) {}
    void Load() {}
    void Activate() { Gunluk().emplace_back("üst öne geldi"); }
};

} // namespace

class PencereTest : public ::testing::Test {
  protected:
    PencereTest() { Gunluk().clear(); }
    ~PencereTest() override { Gunluk().clear(); }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
    Pencere<AltEkran> alt{program, EkranAdi::FormTablo};
    Pencere<UstEkran> ust{program, EkranAdi::FormAyarlar};
};

TEST_F(PencereTest, First_use_loads_the_screen_and_later_uses_dont) {
    EXPECT_EQ(alt->alan, 7);
    alt->alan = 8;
    EXPECT_EQ(alt->alan, 8);
    EXPECT_EQ(Gunluk(), std::vector<std::string>{"alt yüklendi"});
}

TEST_F(PencereTest, Asking_whether_it_is_loaded_loads_nothing) {
    EXPECT_FALSE(alt.Yuklu());
    EXPECT_TRUE(Gunluk().empty());
}

TEST_F(PencereTest, A_screen_shown_again_comes_to_the_front_and_stands_there_once) {
    alt.Goster();
    ust.Goster();
    alt.Goster();
    alt.Bosalt();
    Gunluk().clear();
    program.yigin.UsttekileriEtkinlestir();
    EXPECT_EQ(Gunluk(), std::vector<std::string>{"üst öne geldi"});
    EXPECT_FALSE(program.yigin.Acik(EkranAdi::FormTablo));
}

TEST_F(PencereTest, Unload_drops_what_it_held_and_the_next_use_loads_afresh) {
    alt->alan = 8;
    alt.Bosalt();
    EXPECT_FALSE(alt.Yuklu());
    EXPECT_EQ(alt->alan, 7);
    EXPECT_EQ(Gunluk(), (std::vector<std::string>{"alt yüklendi", "alt gitti", "alt yüklendi"}));
    EXPECT_EQ(ortam.gizlenenler, std::vector<EkranAdi>{EkranAdi::FormTablo});
}

TEST_F(PencereTest, Unload_of_a_screen_that_was_never_loaded_does_nothing) {
    alt.Bosalt();
    EXPECT_TRUE(ortam.gizlenenler.empty());
    EXPECT_TRUE(Gunluk().empty());
}

TEST_F(PencereTest, Screen_unloaded_by_its_own_handler_lives_until_the_handler_returns) {
    {
        const auto tutulan = alt.Tut();
        alt.Bosalt();
        EXPECT_EQ(tutulan->alan, 7);
        EXPECT_EQ(Gunluk(), std::vector<std::string>{"alt yüklendi"});
    }
    EXPECT_EQ(Gunluk().back(), "alt gitti");
}

TEST_F(PencereTest, Screen_is_activated_when_shown_and_when_the_screen_over_it_closes) {
    alt.Goster();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormAyarlar});
    ust.GosterModal();
    EXPECT_EQ(Gunluk(),
              (std::vector<std::string>{"alt yüklendi", "alt öne geldi", "üst öne geldi", "alt öne geldi"}));
}

TEST_F(PencereTest, Box_over_a_screen_activates_nothing) {
    alt.Goster();
    Gunluk().clear();
    ortam.Bekle(BeklenenKutu{u"Velora", u"Emin misiniz?", Simge::Soru, Cevap::Evet});
    EXPECT_EQ(program.ortam.sor.mesaj({u"Emin misiniz?", u"Velora", Simge::Soru, KutuDugmeleri::EvetHayir}),
              Cevap::Evet);
    EXPECT_TRUE(Gunluk().empty());
}

TEST_F(PencereTest, Modal_screen_that_unloads_itself_leaves_the_one_below_on_top) {
    alt.Goster();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormAyarlar, [this] {
                                  ust.Bosalt();
                                  EXPECT_FALSE(program.yigin.Acik(EkranAdi::FormAyarlar));
                              }});
    ust.GosterModal();
    EXPECT_FALSE(ust.Yuklu());
    EXPECT_TRUE(program.yigin.Acik(EkranAdi::FormTablo));
    EXPECT_EQ(Gunluk().back(), "alt öne geldi");
}

TEST_F(PencereTest, Screen_unloaded_by_its_own_Activate_is_not_activated_again) {
    ortam.Bekle(BeklenenEkran{EkranAdi::FormAyarlar, [this] { alt.Bosalt(); }});
    alt.Goster();
    Gunluk().clear();
    ust.GosterModal();
    EXPECT_EQ(Gunluk(), (std::vector<std::string>{"üst öne geldi", "alt gitti"}));
}

TEST_F(PencereTest, What_fills_a_screen_runs_before_it_is_shown) {
    ortam.Bekle(BeklenenEkran{EkranAdi::FormTablo, [this] { EXPECT_EQ(alt->alan, 9); }});
    alt.GosterModal([this] {
        alt->alan = 9;
        return true;
    });
}

TEST_F(PencereTest, A_screen_that_could_not_be_filled_is_unloaded_and_not_shown) {
    alt.GosterModal([this] {
        alt->alan = 9;
        return false;
    });
    EXPECT_FALSE(alt.Yuklu());
    EXPECT_TRUE(ortam.acilanlar.empty());
}

TEST_F(PencereTest, A_second_opening_does_nothing_while_the_first_one_fills_the_screen_or_it_stands) {
    int ikinciler = 0;
    const auto ikinci = [&] {
        ++ikinciler;
        alt.GosterModal([] {
            ADD_FAILURE() << "the second opening filled the screen";
            return false;
        });
    };
    ortam.Bekle(BeklenenEkran{EkranAdi::FormTablo, ikinci});
    alt.GosterModal([&] {
        ikinci();
        alt->alan = 9;
        ikinci();
        return true;
    });
    EXPECT_EQ(ikinciler, 3);
    EXPECT_EQ(alt->alan, 9);
    EXPECT_EQ(ortam.acilanlar, std::vector<EkranAdi>{EkranAdi::FormTablo});
    alt.Bosalt();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormTablo}); // the next one opens it again
    alt.GosterModal();
}

TEST_F(PencereTest, A_screen_that_went_while_it_was_filled_is_not_shown_empty) {
    alt.GosterModal([this] {
        alt->alan = 9;
        alt.Bosalt();
        return true;
    });
    EXPECT_FALSE(alt.Yuklu());
    EXPECT_TRUE(ortam.acilanlar.empty());
}

TEST_F(PencereTest, Today_comes_from_the_outside_world) {
    EXPECT_EQ(TarihMetni(program.Bugun()), u"15.06.2012");
}

TEST_F(PencereTest,
       A_screen_beside_one_that_stands_over_all_does_not_keep_that_one_from_coming_to_the_front) {
    std::vector<std::string> etkinler;
    const auto yaz = [&](const char* ad) { return [&etkinler, ad] { etkinler.emplace_back(ad); }; };
    EkranYigini yigin;
    yigin.UsttekileriEtkinlestir();
    yigin.Koy(EkranAdi::FormTablo, Durus::Yaninda, yaz("tablo"));
    yigin.Koy(EkranAdi::FormArama, Durus::Ustunde, yaz("arama"));
    yigin.Koy(EkranAdi::FormKayit, Durus::Ustunde, yaz("kayıt"));
    yigin.Koy(EkranAdi::FormSozlesme, Durus::Yaninda, yaz("şablon"));
    yigin.UsttekileriEtkinlestir();
    EXPECT_EQ(etkinler, (std::vector<std::string>{"şablon", "kayıt"}));
    yigin.Al(EkranAdi::FormKayit);
    yigin.Al(EkranAdi::FormArama);
    etkinler.clear();
    yigin.UsttekileriEtkinlestir();
    EXPECT_EQ(etkinler, (std::vector<std::string>{"şablon", "tablo"}));
}

} // namespace velora::test
