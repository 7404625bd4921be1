#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "storage/DosyaAgaci.h"
#include "storage/gunluk/EylemDefteri.h"
#include "storage/gunluk/Kurtarma.h"

namespace velora {
namespace {

using test::DosyaAgaci;
using namespace std::chrono_literals;

const std::string kEski = "\"Ada\",\"100\"\r\n";
const std::string kYeni = "\"Eda Oya\",\"2500\"\r\n";

MetinZinciri Zincir(std::vector<DosyaMetni> metinler, bool bilinir = true) {
    return {u"\\x", bilinir, std::move(metinler)};
}

BulunanHal Hal(const DosyaMetni& once, const DosyaMetni& sonra, const DosyaMetni& bulunan) {
    return HalBul(Zincir({once, sonra}), true, bulunan);
}

/// A tree with a journal beside it, in which actions begin and don't end.
class Kurtarma : public testing::Test {
  protected:
    DosyaAgaci kok;
    std::filesystem::path durum = kok.Disi() / "durum";

    /// An action of these steps, put down by a program that then died.
    std::uint64_t YarimBirak(std::vector<EylemAdimi> adimlar) const {
        const auto gunluk = Gunluk::Ac(durum, kok.Kok());
        return gunluk->Basla({0, u"Menü kaydı", u"admin", u"2012-06-15 11:00:00", std::move(adimlar)})
            .value();
    }
    std::vector<EylemKaydi> Yarimlar() const { return Gunluk::Ac(durum, kok.Kok())->YarimKalanlar(); }
    /// A program starts on the tree, does something and ends.
    void Basla(const std::function<void(const Dosyalar&)>& is = {}) const {
        Dosyalar dosyalar(kok.Kok());
        dosyalar.GunluguAc(durum, {[] { return Metin(u"admin"); },
                                   [] { return std::chrono::local_days(2012y / 6 / 16) + 9h + 5min; }});
        if (is)
            is(dosyalar);
    }
};

} // namespace

TEST(KurtarmaHali, A_file_with_a_whole_text_of_its_action_is_known) {
    EXPECT_EQ(Hal(kEski, kYeni, kEski), BulunanHal::Once);
    EXPECT_EQ(Hal(kEski, kYeni, kYeni), BulunanHal::Sonra);
    EXPECT_EQ(Hal({}, kYeni, {}), BulunanHal::Once);
    EXPECT_EQ(Hal(kEski, {}, {}), BulunanHal::Sonra);
    EXPECT_EQ(Hal(kEski, kEski, kEski), BulunanHal::Ayni);
    EXPECT_EQ(Hal({}, {}, {}), BulunanHal::Ayni);
    EXPECT_EQ(HalBul(Zincir({kEski, "orta", kYeni}), true, "orta"), BulunanHal::Yarida);
    EXPECT_EQ(HalBul(Zincir({kEski, kYeni}), false, {}), BulunanHal::Okunamadi);
    EXPECT_EQ(HalBul(Zincir({{}, kYeni}, false), true, kEski), BulunanHal::Baska);
}

TEST(KurtarmaHali, What_a_death_leaves_of_a_file_is_told_from_a_text_of_somebody_else) {
    const std::string nul(kYeni.size(), '\0');
    for (const std::string& bulunan :
         {std::string(), kEski.substr(0, 4), kYeni.substr(0, 9), kYeni.substr(0, 5) + kEski.substr(5),
          kEski.substr(0, 3) + kYeni.substr(3), kEski + "\n\n", nul, kYeni.substr(0, 6) + nul.substr(6)})
        EXPECT_EQ(Hal(kEski, kYeni, bulunan), BulunanHal::Yarida) << testing::PrintToString(bulunan);
    EXPECT_EQ(Hal(kEski, kYeni, {}), BulunanHal::Yarida);
    for (const std::string& baska : {std::string("\"Ada\",\"150\"\r\n"), std::string("\"Can\",\"9\"\r\n"),
                                     kYeni + "\r\n", kEski + kEski, nul + "\1"})
        EXPECT_EQ(Hal(kEski, kYeni, baska), BulunanHal::Baska) << testing::PrintToString(baska);
}

TEST(KurtarmaHali, Blocks_of_the_medium_may_hold_the_one_text_the_other_or_NUL) {
    const std::string a(1536, 'a');
    const std::string b(1536, 'b');
    const std::string nul(512, '\0');
    const auto blok = [](const std::string& metin) { return metin.substr(0, 512); };
    EXPECT_TRUE(Kalinti(blok(b) + blok(a) + blok(b), a, b));
    EXPECT_TRUE(Kalinti(blok(b) + nul + blok(a), a, b));
    EXPECT_TRUE(Kalinti(nul + blok(b) + std::string(100, 'b'), {}, b));
    EXPECT_FALSE(Kalinti(blok(b) + blok(a) + std::string(100, 'b') + std::string(10, 'a'), a, b));
    EXPECT_FALSE(Kalinti(blok(b) + std::string(512, 'c') + blok(a), a, b));
}

TEST_F(Kurtarma, An_action_that_has_begun_is_completed_in_all_its_files) {
    kok.Koy(u"a", kYeni);
    kok.Koy(u"b", "eski b");
    kok.Koy(u"giden", "gider");
    kok.Koy(u"yari", "yeni");
    kok.Koy(u"karisma", "kalan");
    const auto once = kok.Bayt(u"karisma");
    YarimBirak({{.yol = u"\\a", .once = kEski, .sonra = kYeni},
                {.yol = u"\\b", .once = "eski b", .sonra = "yeni b"},
                {.yol = u"\\giden", .once = "gider", .sonra = {}},
                {.yol = u"\\Gül\\2013\\c", .once = {}, .sonra = "yeni c"},
                {.yol = u"\\yari", .once = {}, .sonra = "yenisi"},
                {.tur = EylemAdimi::Tur::Klasor, .yol = u"\\Gül\\2014", .once = {}, .sonra = {}}});
    Basla();
    EXPECT_EQ(kok.Bayt(u"a"), kYeni);
    EXPECT_EQ(kok.Bayt(u"b"), "yeni b");
    EXPECT_FALSE(kok.Var(u"giden"));
    EXPECT_EQ(kok.Bayt(u"Gül/2013/c"), "yeni c");
    EXPECT_EQ(kok.Bayt(u"yari"), "yenisi");
    EXPECT_TRUE(kok.KlasorVar(u"Gül/2014"));
    EXPECT_EQ(kok.Bayt(u"karisma"), once);
}

TEST_F(Kurtarma, An_action_of_which_nothing_has_been_done_is_not_done_now) {
    kok.Koy(u"a", kEski);
    YarimBirak({{.yol = u"\\a", .once = kEski, .sonra = kYeni},
                {.yol = u"\\b", .once = {}, .sonra = "yeni b"},
                {.yol = u"\\hic", .once = {}, .sonra = {}}});
    const std::string resim = kok.Resim();
    Basla();
    EXPECT_EQ(kok.Resim(), resim);
}

TEST_F(Kurtarma, What_somebody_else_has_changed_since_is_left_alone_and_the_rest_completed) {
    kok.Koy(u"a", kYeni);
    kok.Koy(u"b", "baskasinin");
    kok.Koy(u"c", "eski c");
    YarimBirak({{.yol = u"\\a", .once = kEski, .sonra = kYeni},
                {.yol = u"\\b", .once = "eski b", .sonra = "yeni b"},
                {.yol = u"\\c", .once = "eski c", .sonra = "yeni c"}});
    Basla();
    EXPECT_EQ(kok.Bayt(u"b"), "baskasinin");
    EXPECT_EQ(kok.Bayt(u"c"), "yeni c");
}

TEST_F(Kurtarma, A_file_that_a_later_action_has_touched_is_that_ones) {
    // A move of which the payments stayed behind; then the moved reservation was cancelled.
    kok.Koy(u"x-Odeme", "odeme");
    YarimBirak({{.yol = u"\\y", .once = {}, .sonra = "ana"},
                {.yol = u"\\y-Odeme", .once = {}, .sonra = "odeme"},
                {.yol = u"\\x", .once = "ana", .sonra = {}},
                {.yol = u"\\x-Odeme", .once = "odeme", .sonra = {}}});
    {
        const auto gunluk = Gunluk::Ac(durum, kok.Kok());
        gunluk->Bitti(*gunluk->Basla(
            {0,
             u"Rezervasyon iptali",
             u"",
             u"",
             {{.yol = u"\\y", .once = "ana", .sonra = {}}, {.yol = u"\\y-Odeme", .once = {}, .sonra = {}}}}));
    }
    Basla();
    EXPECT_FALSE(kok.Var(u"y"));
    EXPECT_FALSE(kok.Var(u"y-Odeme"));
    EXPECT_FALSE(kok.Var(u"x-Odeme"));
}

TEST_F(Kurtarma, Of_two_unfinished_actions_on_one_file_each_is_completed_in_its_turn_or_not_at_all) {
    struct Durum {
        std::string sayac;
        bool birVar, ikiVar; ///< whether the file of the first action came to the disk, and of the second
        std::string beklenen;
    };
    const std::string elli = "\"57\"\r\n";
    const std::string birinci = "\"58\"\r\n";
    const std::string ikinci = "\"159\"\r\n";
    for (const Durum& biri :
         {Durum{elli, false, false, elli}, Durum{elli, true, false, birinci}, Durum{elli, true, true, ikinci},
          Durum{elli, false, true, ikinci}, Durum{birinci, false, false, birinci},
          Durum{birinci, false, true, ikinci}, Durum{ikinci, false, false, ikinci},
          Durum{"\"15", true, false, ikinci}, Durum{"\"9\"\r\n", true, true, "\"9\"\r\n"}}) {
        std::filesystem::remove_all(durum);
        for (const MetinBakis ad : {u"bir", u"iki"})
            std::filesystem::remove(kok.Yol(ad));
        kok.Koy(u"sayac", biri.sayac);
        if (biri.birVar)
            kok.Koy(u"bir", "ilk kayit");
        if (biri.ikiVar)
            kok.Koy(u"iki", "sonraki kayit");
        YarimBirak({{.yol = u"\\sayac", .once = elli, .sonra = birinci},
                    {.yol = u"\\bir", .once = {}, .sonra = "ilk kayit"}});
        YarimBirak({{.yol = u"\\sayac", .once = birinci, .sonra = ikinci},
                    {.yol = u"\\iki", .once = {}, .sonra = "sonraki kayit"}});
        Basla();
        EXPECT_EQ(kok.Bayt(u"sayac"), biri.beklenen) << biri.sayac << biri.birVar << biri.ikiVar;
        const bool baskasinin = biri.beklenen.size() == 5;
        EXPECT_EQ(kok.Var(u"bir"), biri.birVar || (biri.sayac != elli && !baskasinin)) << biri.sayac;
        EXPECT_EQ(kok.Var(u"iki"), biri.beklenen == ikinci || biri.ikiVar) << biri.sayac;
        EXPECT_TRUE(Yarimlar().empty());
    }
}

TEST_F(Kurtarma, A_step_stays_that_of_an_action_when_a_later_one_on_its_file_has_never_begun) {
    kok.Koy(u"profil", "yeni profil");
    YarimBirak({{.yol = u"\\profil", .once = {}, .sonra = "yeni profil"},
                {.yol = u"\\parola", .once = {}, .sonra = "bos"}});
    YarimBirak({{.yol = u"\\parola", .once = {}, .sonra = "dolu dolu"}});
    Basla();
    EXPECT_EQ(kok.Bayt(u"parola"), "bos");
    kok.Koy(u"parola", "dolu dolu");
    Basla();
    EXPECT_EQ(kok.Bayt(u"parola"), "dolu dolu") << "both are done";
}

TEST_F(Kurtarma, A_later_action_on_a_file_is_completed_over_what_the_one_before_it_leaves) {
    kok.Koy(u"profil", "yeni profil");
    kok.Koy(u"salon", "yeni salon");
    YarimBirak({{.yol = u"\\profil", .once = {}, .sonra = "yeni profil"},
                {.yol = u"\\parola", .once = {}, .sonra = "bos"}});
    YarimBirak({{.yol = u"\\parola", .once = {}, .sonra = "dolu dolu"},
                {.yol = u"\\salon", .once = {}, .sonra = "yeni salon"}});
    Basla();
    EXPECT_EQ(kok.Bayt(u"parola"), "dolu dolu");
    EXPECT_EQ(kok.Bayt(u"profil"), "yeni profil");
}

TEST_F(Kurtarma, What_an_action_leaves_to_the_next_start_is_done_there_once_where_no_later_one_has_been) {
    const auto yaz = [](const Dosyalar& dosyalar, MetinBakis ad, std::string_view bayt) {
        dosyalar.Yaz(dosyalar.Kok() + u"\\" + Metin(ad), bayt);
    };
    Basla([&](const Dosyalar& dosyalar) {
        const Dosyalar::Eylem eylem(dosyalar, u"Profil", [&] {
            yaz(dosyalar, u"yapilan", "yapildi");
            yaz(dosyalar, u"kalan", "kalan is");
            yaz(dosyalar, u"degisen", "olmayacak");
        });
        yaz(dosyalar, u"yapilan", "yapildi");
        eylem.SonrayaKalir();
        EylemleYap(dosyalar, u"Parola", [&] { yaz(dosyalar, u"degisen", "sonradan"); });
    });
    EXPECT_FALSE(kok.Var(u"kalan"));
    Basla();
    EXPECT_EQ(kok.Bayt(u"yapilan"), "yapildi");
    EXPECT_EQ(kok.Bayt(u"kalan"), "kalan is");
    EXPECT_EQ(kok.Bayt(u"degisen"), "sonradan");
    std::filesystem::remove(kok.Yol(u"kalan"));
    Basla();
    EXPECT_FALSE(kok.Var(u"kalan")) << "once is enough";
}

TEST_F(Kurtarma, A_completed_action_is_done_and_the_journal_keeps_a_line_of_what_was_made_of_it) {
    kok.Koy(u"a", kYeni.substr(0, 3));
    const auto no = YarimBirak({{.yol = u"\\a", .once = kEski, .sonra = kYeni}});
    ASSERT_EQ(Yarimlar().size(), 1U);
    Basla();
    EXPECT_TRUE(Yarimlar().empty());
    std::ifstream dosya(Gunluk::Yol(durum, kok.Kok()), std::ios::binary);
    const std::string bayt{std::istreambuf_iterator<char>(dosya), {}};
    EXPECT_NE(bayt.find(KayitBaytlari(OnarimKaydi{no, u"2012-06-16 09:05:00", {u"+\\a"}})),
              std::string::npos);
}

TEST_F(Kurtarma, What_can_not_be_read_or_written_at_a_start_is_completed_by_the_next_one) {
    kok.Koy(u"a", kYeni);
    kok.KlasorKoy(u"b"); // in the place of the file
    YarimBirak(
        {{.yol = u"\\a", .once = kEski, .sonra = kYeni}, {.yol = u"\\b", .once = {}, .sonra = "yeni b"}});
    Basla();
    EXPECT_TRUE(kok.KlasorVar(u"b"));
    ASSERT_EQ(Yarimlar().size(), 1U);
    std::filesystem::remove(kok.Yol(u"b"));
    Basla();
    EXPECT_EQ(kok.Bayt(u"b"), "yeni b");
    EXPECT_TRUE(Yarimlar().empty());
}

TEST_F(Kurtarma, A_path_that_leads_out_of_the_tree_is_refused) {
    kok.Koy(u"a", kYeni);
    YarimBirak({{.yol = u"\\a", .once = kEski, .sonra = kYeni},
                {.yol = u"\\..\\disari", .once = {}, .sonra = "disari"}});
    Basla();
    EXPECT_FALSE(std::filesystem::exists(kok.Disi() / "disari"));
}

} // namespace velora
