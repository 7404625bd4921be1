#include "screen/Kontroller.h"

#include <gtest/gtest.h>

namespace velora::test {

class AcilirListeTest : public ::testing::Test {
  protected:
    AcilirListeTest() {
        liste.ogeler = {u"A", u"B", u"B", u"C"};
        liste.tiklandi = [this] { ++tik; };
    }
    AcilirListe liste;
    int tik = 0;
};

TEST_F(AcilirListeTest, Choosing_another_entry_runs_the_click_once) {
    liste.Sec(u"B");
    EXPECT_EQ(liste.secili, 1);
    EXPECT_EQ(tik, 1);
    liste.Sec(3);
    EXPECT_EQ(liste.Metni(), u"C");
    EXPECT_EQ(tik, 2);
}

TEST_F(AcilirListeTest, Choosing_the_same_entry_runs_nothing) {
    liste.Sec(u"B");
    liste.Sec(u"B");
    liste.Sec(1);
    EXPECT_EQ(tik, 1);
}

TEST_F(AcilirListeTest, User_who_picks_the_same_entry_again_runs_the_click_again) {
    liste.Tikla(1);
    liste.Tikla(1);
    liste.Tikla(4);
    EXPECT_EQ(liste.secili, 1);
    EXPECT_EQ(tik, 2);
}

TEST_F(AcilirListeTest, Text_of_the_second_of_two_equal_entries_keeps_the_second) {
    liste.Sec(2);
    liste.Sec(u"B");
    EXPECT_EQ(liste.secili, 2);
    EXPECT_EQ(tik, 1);
}

TEST_F(AcilirListeTest, Entry_taken_out_before_the_chosen_one_moves_the_choice_with_its_entry) {
    liste.SessizSec(u"C");
    liste.Sil(0);
    EXPECT_EQ(liste.secili, 2);
    EXPECT_EQ(liste.Metni(), u"C");
    EXPECT_EQ(tik, 0);
}

TEST_F(AcilirListeTest, Chosen_entry_taken_out_leaves_none_chosen_and_an_empty_field) {
    liste.MetinAta(u"C");
    liste.Sil(3);
    EXPECT_EQ(liste.secili, -1);
    EXPECT_EQ(liste.Metni(), u"");
    EXPECT_EQ(tik, 0);
}

TEST_F(AcilirListeTest, Taking_out_what_is_not_there_changes_nothing) {
    liste.MetinAta(u"free text");
    liste.Sil(-1);
    liste.Sil(4);
    EXPECT_EQ(liste.ogeler.size(), 4U);
    EXPECT_EQ(liste.Metni(), u"free text");
}

TEST(ListeKutusu, Mark_follows_its_entry_when_others_are_taken_out) {
    ListeKutusu liste{{u"A", u"B", u"C"}, 1};
    EXPECT_EQ(liste.Metni(), u"B");
    liste.Sil(2);
    EXPECT_EQ(liste.Metni(), u"B");
    liste.Sil(0);
    EXPECT_EQ(liste.secili, 0);
    liste.Sil(0);
    EXPECT_EQ(liste.secili, -1);
    EXPECT_EQ(liste.Metni(), u"");
    EXPECT_TRUE(liste.ogeler.empty());
}

TEST_F(AcilirListeTest, Unlisted_text_or_index_leaves_the_choice_and_runs_nothing) {
    liste.Sec(u"B");
    liste.Sec(u"yok");
    liste.Sec(-1);
    liste.Sec(4);
    EXPECT_EQ(liste.Metni(), u"B");
    EXPECT_EQ(tik, 1);
}

TEST_F(AcilirListeTest, Silent_choice_runs_nothing) {
    liste.SessizSec(u"C");
    EXPECT_EQ(liste.secili, 3);
    liste.SessizSec(u"yok");
    EXPECT_EQ(liste.secili, 3);
    EXPECT_EQ(tik, 0);
}

TEST_F(AcilirListeTest, Text_set_as_it_stands_may_be_unlisted) {
    liste.MetinAta(u"başka");
    EXPECT_EQ(liste.secili, -1);
    EXPECT_EQ(liste.Metni(), u"başka");
    liste.MetinAta(u"C");
    EXPECT_EQ(liste.secili, 3);
    EXPECT_EQ(liste.Metni(), u"C");
    EXPECT_EQ(tik, 0);
}

class TarihSeciciTest : public ::testing::Test {
  protected:
    static Gun YilGunu(int yil, unsigned ay, unsigned gun) {
        return {std::chrono::year(yil), std::chrono::month(ay), std::chrono::day(gun)};
    }
    /// What a value becomes under the limits of the year 2012.
    static Gun Sinirli(const Gun& deger) {
        TarihSecici secici{deger, {}, {}};
        secici.Sinirla(YilGunu(2012, 1, 1), YilGunu(2012, 12, 31));
        return secici.deger;
    }
};

TEST_F(TarihSeciciTest, Limits_leave_the_days_between_them_and_at_both_ends_alone) {
    for (const Gun& gun : {YilGunu(2012, 1, 1), YilGunu(2012, 6, 15), YilGunu(2012, 12, 31)})
        EXPECT_EQ(Sinirli(gun), gun);
}

TEST_F(TarihSeciciTest, A_day_outside_the_limits_goes_to_the_nearer_end) {
    EXPECT_EQ(Sinirli(YilGunu(2011, 12, 31)), YilGunu(2012, 1, 1));
    EXPECT_EQ(Sinirli(YilGunu(2013, 1, 1)), YilGunu(2012, 12, 31));
}

TEST_F(TarihSeciciTest, Only_another_day_tells_the_screen) {
    TarihSecici secici{YilGunu(2012, 6, 15), {}, {}};
    secici.Sec(YilGunu(2012, 6, 14)); // nobody listens
    int kez = 0;
    secici.degisti = [&] {
        EXPECT_EQ(secici.deger, YilGunu(2012, 7, 1));
        ++kez;
    };
    secici.Sec(YilGunu(2012, 7, 1));
    secici.Sec(YilGunu(2012, 7, 1));
    EXPECT_EQ(kez, 1);
}

TEST_F(TarihSeciciTest, New_limits_take_the_place_of_the_old_ones) {
    TarihSecici secici{YilGunu(2012, 6, 15), {}, {}};
    EXPECT_FALSE(secici.enKucuk || secici.enBuyuk);
    secici.Sinirla(YilGunu(2012, 1, 1), YilGunu(2012, 12, 31));
    secici.Sinirla(YilGunu(2013, 1, 1), YilGunu(2013, 12, 31));
    EXPECT_EQ(secici.enKucuk, YilGunu(2013, 1, 1));
    EXPECT_EQ(secici.enBuyuk, YilGunu(2013, 12, 31));
    EXPECT_EQ(secici.deger, YilGunu(2013, 1, 1));
}

TEST(OnayKutusuTest, Click_runs_only_when_the_value_changes) {
    OnayKutusu kutu;
    int tik = 0;
    kutu.tiklandi = [&tik] { ++tik; };
    kutu.Ata(0);
    EXPECT_EQ(tik, 0);
    kutu.Ata(1);
    kutu.Ata(1);
    EXPECT_EQ(tik, 1);
}

TEST(ZamanlayiciTest, Tick_is_not_entered_again_while_it_runs) {
    Zamanlayici zamanlayici;
    int sayac = 0;
    zamanlayici.aralik = 5;
    zamanlayici.tik = [&] {
        ++sayac;
        zamanlayici.Calis(); // events run inside the tick, and the next one is due
    };
    zamanlayici.Calis();
    EXPECT_EQ(sayac, 1);
    zamanlayici.Calis();
    EXPECT_EQ(sayac, 2);
}

TEST(ZamanlayiciTest, Stopped_timer_does_not_tick) {
    Zamanlayici zamanlayici;
    int sayac = 0;
    zamanlayici.tik = [&] { ++sayac; };
    zamanlayici.Calis();
    EXPECT_EQ(sayac, 0);
}

TEST(ZamanlayiciTest, Timer_that_threw_ticks_again) {
    Zamanlayici zamanlayici;
    zamanlayici.aralik = 5;
    int sayac = 0;
    zamanlayici.tik = [&] {
        if (++sayac == 1)
            throw 1;
    };
    EXPECT_THROW(zamanlayici.Calis(), int);
    zamanlayici.Calis();
    EXPECT_EQ(sayac, 2);
}

TEST(ListeGorunumuTest, The_marked_row_goes_and_nothing_is_marked_then) {
    ListeGorunumu liste;
    liste.satirlar = {{{u"bir"}, {}, 0}, {{u"iki"}, {}, 0}, {{u"üç"}, {}, 0}};
    liste.secili = 1;
    liste.SeciliyiSil();
    ASSERT_EQ(liste.satirlar.size(), 2U);
    EXPECT_EQ(liste.satirlar[0].sutun[0], u"bir");
    EXPECT_EQ(liste.satirlar[1].sutun[0], u"üç");
    EXPECT_EQ(liste.secili, -1);
    for (const int yok : {-1, 2}) {
        liste.secili = yok;
        liste.SeciliyiSil();
        EXPECT_EQ(liste.satirlar.size(), 2U);
        EXPECT_EQ(liste.secili, -1);
    }
}

TEST(ListeGorunumuTest, A_marked_row_is_found_again_by_tag_and_first_column_and_by_its_place_among_equals) {
    ListeGorunumu liste;
    liste.satirlar = {{{u"1"}, u"x", 0}, {{u"2"}, u"y", 0}, {{u"1"}, u"x", 0}, {{u"1"}, u"y", 0}};
    EXPECT_FALSE(liste.Isaretli());
    liste.secili = 2;
    const auto isaretli = liste.Isaretli();
    liste.satirlar = {{{u"1"}, u"y", 0}, {{u"1", u"a"}, u"x", 0}, {{u"2"}, u"x", 0}, {{u"1", u"b"}, u"x", 0}};
    liste.YenidenIsaretle(isaretli);
    EXPECT_EQ(liste.secili, 3);
    liste.satirlar.erase(3);
    liste.YenidenIsaretle(isaretli);
    EXPECT_EQ(liste.secili, 1) << "one of them has gone";
    liste.satirlar.erase(1);
    liste.YenidenIsaretle(isaretli);
    EXPECT_EQ(liste.secili, -1);
    liste.secili = 1;
    liste.YenidenIsaretle({});
    EXPECT_EQ(liste.secili, -1);
}

TEST(ListeGorunumuTest, An_emptied_list_has_no_mark) {
    ListeGorunumu liste;
    liste.satirlar = {{{u"bir"}, {}, 0}};
    liste.secili = 0;
    liste.Temizle();
    EXPECT_TRUE(liste.satirlar.empty());
    EXPECT_EQ(liste.secili, -1);
}

TEST(SatirListesiTest, Each_change_moves_the_counter_and_reading_does_not) {
    SatirListesi satirlar{{{u"bir"}, u"1", 5}, {{u"iki"}, u"2", 6}};
    auto onceki = satirlar.Degisme();
    const auto degisti = [&] { return std::exchange(onceki, satirlar.Degisme()) != satirlar.Degisme(); };
    EXPECT_EQ(satirlar.at(1).tag, u"2");
    EXPECT_EQ(satirlar.begin()->sutun[0], u"bir");
    EXPECT_FALSE(degisti());
    satirlar.push_back({{u"üç"}, u"3", 7});
    EXPECT_TRUE(degisti());
    satirlar.Degistir(0, {{u"sıfır"}, u"0", 4});
    EXPECT_TRUE(degisti());
    EXPECT_EQ(satirlar[0].sutun[0], u"sıfır");
    satirlar.erase(1);
    EXPECT_TRUE(degisti());
    ASSERT_EQ(satirlar.size(), 2U);
    EXPECT_EQ(satirlar[1].tag, u"3");
    const SatirListesi ayni = satirlar;
    satirlar = ayni;
    EXPECT_TRUE(degisti()) << "rows as those before are a change too";
    EXPECT_EQ(satirlar.size(), 2U);
    satirlar.clear();
    EXPECT_TRUE(degisti());
    EXPECT_TRUE(satirlar.empty());
}

TEST(SatirListesiTest, A_whole_list_that_is_put_in_the_place_of_another_moves_the_counter) {
    ListeGorunumu liste;
    liste.satirlar = {{{u"bir"}, {}, 0}};
    const auto onceki = liste.satirlar.Degisme();
    liste = ListeGorunumu{{u"Ad"}, {{{u"iki"}, {}, 0}}, 0};
    EXPECT_NE(liste.satirlar.Degisme(), onceki);
    EXPECT_EQ(liste.satirlar[0].sutun[0], u"iki");
}

TEST(SecimDugmeleriTest, All_of_them_go_on_and_off_together_and_no_other) {
    std::array<Dugme, 3> dugmeler;
    const SecimDugmeleri secim{{&dugmeler[0], &dugmeler[2]}};
    secim.Ac(false);
    EXPECT_FALSE(dugmeler[0].etkin || dugmeler[2].etkin);
    EXPECT_TRUE(dugmeler[1].etkin);
    dugmeler[1].etkin = false;
    secim.Ac(true);
    EXPECT_TRUE(dugmeler[0].etkin && dugmeler[2].etkin);
    EXPECT_FALSE(dugmeler[1].etkin);
}

TEST(BirTabanliTest, Items_are_numbered_from_one) {
    BirTabanli<int, 3> dizi;
    int no = 0;
    for (int& oge : dizi)
        oge = ++no;
    EXPECT_EQ(dizi[1], 1);
    EXPECT_EQ(dizi[3], 3);
}

} // namespace velora::test
