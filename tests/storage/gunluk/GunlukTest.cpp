#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "destek/GeciciAgac.h"
#include "storage/gunluk/Gunluk.h"

namespace velora {
namespace {

/// A folder for journals beside a tree.
class GunlukDosyasi : public testing::Test {
  protected:
    test::GeciciAgac agac;
    std::filesystem::path durum = agac.Disi() / "kullanıcı" / "durum";

    std::shared_ptr<Gunluk> Ac() const { return Gunluk::Ac(durum, agac.Kok()); }
    std::filesystem::path Yol() const { return Gunluk::Yol(durum, agac.Kok()); }
    std::string Bayt() const {
        std::ifstream dosya(Yol(), std::ios::binary);
        return {std::istreambuf_iterator<char>(dosya), {}};
    }
    void Koy(const std::string& bayt) const {
        std::ofstream(Yol(), std::ios::binary | std::ios::trunc) << bayt;
    }
    static EylemKaydi Eylem(const Metin& ad, std::string sonra = "yeni") {
        return {0,
                ad,
                u"zeynep",
                u"2012-06-15 11:00:00",
                {{.yol = u"\\" + ad, .once = {}, .sonra = std::move(sonra)}}};
    }
    std::vector<Metin> YarimAdlari() const {
        std::vector<Metin> adlar;
        if (const auto gunluk = Ac())
            for (const EylemKaydi& eylem : gunluk->YarimKalanlar())
                adlar.push_back(eylem.ad);
        return adlar;
    }
    /// How many actions the file holds.
    std::size_t EylemSayisi() const {
        const std::string bayt = Bayt();
        std::size_t sayi = 0;
        for (std::size_t yer = bayt.find("\n#E "); yer != std::string::npos;
             yer = bayt.find("\n#E ", yer + 1))
            ++sayi;
        return sayi;
    }
};

} // namespace

TEST_F(GunlukDosyasi, Holds_what_has_begun_and_is_not_marked_and_counts_on) {
    {
        const auto gunluk = Ac();
        EXPECT_EQ(gunluk->Basla(Eylem(u"bir")), 1U);
        EXPECT_EQ(gunluk->Basla(Eylem(u"iki")), 2U);
        gunluk->Bitti(1);
        EXPECT_TRUE(gunluk->Ekle(2, {{.yol = u"\\ek", .once = {}, .sonra = "ek"}}));
    }
    const auto gunluk = Ac();
    ASSERT_EQ(gunluk->YarimKalanlar().size(), 1U);
    const EylemKaydi& yarim = gunluk->YarimKalanlar()[0];
    EXPECT_EQ(yarim.ad, u"iki");
    EXPECT_EQ(yarim.kim, u"zeynep");
    ASSERT_EQ(yarim.adimlar.size(), 2U);
    EXPECT_EQ(yarim.adimlar[1].yol, u"\\ek");
    EXPECT_EQ(gunluk->Basla(Eylem(u"üç")), 3U);
}

TEST_F(GunlukDosyasi, A_last_record_that_was_cut_off_or_never_came_is_dropped) {
    Ac()->Basla(Eylem(u"bir"));
    const std::string saglam = Bayt();
    Ac()->Basla(Eylem(u"iki"));
    const std::string tam = Bayt();
    for (std::size_t boy = saglam.size(); boy < tam.size(); ++boy) {
        Koy(tam.substr(0, boy));
        ASSERT_EQ(YarimAdlari(), std::vector<Metin>{u"bir"}) << boy;
        ASSERT_EQ(Bayt(), saglam);
    }
    Koy(saglam + std::string(tam.size() - saglam.size(), '\0'));
    EXPECT_EQ(YarimAdlari(), std::vector<Metin>{u"bir"});
    Koy(tam);
    EXPECT_EQ(YarimAdlari(), (std::vector<Metin>{u"bir", u"iki"}));
}

TEST_F(GunlukDosyasi, A_mark_that_never_came_costs_those_behind_it_that_did_and_no_action) {
    {
        const auto gunluk = Ac();
        gunluk->Basla(Eylem(u"bir"));
        gunluk->Bitti(1);
        gunluk->Basla(Eylem(u"iki"));
    }
    const std::string saglam = Bayt();
    const std::string gelmeyen(KayitBaytlari(OnarimKaydi{2, u"2012-06-16 10:00:00", {u"+\\iki"}}).size(),
                               '\0');
    const std::string isaret = KayitBaytlari(BittiKaydi{2});
    for (const std::string& gelen : {isaret, isaret + isaret}) {
        Koy(saglam + gelmeyen + gelen);
        EXPECT_EQ(YarimAdlari(), std::vector<Metin>{u"iki"});
        EXPECT_EQ(Bayt(), saglam);
    }
}

TEST_F(GunlukDosyasi, A_journal_whose_first_line_never_came_begins_anew) {
    Ac();
    const std::string bas = Bayt();
    for (std::size_t boy = 0; boy <= bas.size(); ++boy)
        for (const std::string& kalan : {std::string(), std::string(bas.size() - boy, '\0')}) {
            Koy(bas.substr(0, boy) + kalan);
            ASSERT_TRUE(Ac());
            ASSERT_EQ(Bayt(), bas) << boy;
        }
    EXPECT_FALSE(std::filesystem::exists(Yol().string() + ".bozuk"));
}

TEST_F(GunlukDosyasi, A_damaged_journal_is_set_aside_and_never_obeyed) {
    Ac()->Basla(Eylem(u"bir"));
    Ac()->Basla(Eylem(u"iki"));
    const std::string tam = Bayt();
    const auto bozuk = [&](const std::string& bayt) {
        Koy(bayt);
        EXPECT_TRUE(YarimAdlari().empty());
        std::ifstream dosya(Yol().string() + ".bozuk", std::ios::binary);
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(dosya), {}), bayt);
        std::filesystem::remove(Yol().string() + ".bozuk");
    };
    std::string delik = tam;
    delik[tam.find("yeni")] = 'x'; // in the first of two actions
    bozuk(delik);
    bozuk("baska bir dosya, hem de uzunca: " + tam);
    bozuk(tam.substr(1));
}

TEST_F(GunlukDosyasi, A_journal_of_another_tree_is_not_obeyed) {
    const test::GeciciAgac baska;
    Gunluk::Ac(durum, baska.Kok())->Basla(Eylem(u"bir"));
    EXPECT_NE(Yol(), Gunluk::Yol(durum, baska.Kok()));
    std::filesystem::copy_file(Gunluk::Yol(durum, baska.Kok()), Yol());
    EXPECT_TRUE(YarimAdlari().empty());
}

TEST_F(GunlukDosyasi, Only_one_program_at_a_time_has_it) {
    const auto gunluk = Ac();
    EXPECT_TRUE(gunluk);
    EXPECT_FALSE(Ac());
}

TEST_F(GunlukDosyasi, Only_its_owner_may_look_into_it) {
    const auto gunluk = Ac();
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(durum).permissions() & perms::mask, perms::owner_all);
    EXPECT_EQ(std::filesystem::status(Yol()).permissions() & perms::mask,
              perms::owner_read | perms::owner_write);
}

TEST_F(GunlukDosyasi, There_is_none_where_its_folder_can_not_be_made) {
    std::filesystem::create_directories(durum.parent_path());
    std::ofstream(durum) << "bir dosya";
    EXPECT_FALSE(Ac());
}

TEST_F(GunlukDosyasi, Keeps_the_last_thousand_actions_and_what_is_not_done) {
    Ac()->Basla(Eylem(u"yarım"));
    std::string bayt = Bayt();
    for (std::uint64_t no = 2; no <= 1240; ++no) {
        EylemKaydi eylem = Eylem(u"e" + SayiMetni(static_cast<long long>(no)));
        eylem.no = no;
        (bayt += KayitBaytlari(eylem)) += KayitBaytlari(BittiKaydi{no});
    }
    Koy(bayt);
    {
        const auto gunluk = Ac();
        for (int i = 1241; i <= 1255; ++i) {
            gunluk->Bitti(*gunluk->Basla(Eylem(u"e" + SayiMetni(i))));
            gunluk->Kisalt();
            ASSERT_LE(EylemSayisi(), 1250U);
        }
        EXPECT_EQ(EylemSayisi(), 1005U);
        EXPECT_EQ(gunluk->Basla(Eylem(u"sonuncu")), 1256U);
    }
    EXPECT_EQ(YarimAdlari(), (std::vector<Metin>{u"yarım", u"sonuncu"}));
    bayt = Bayt();
    EXPECT_EQ(bayt.find("4:e251,"), std::string::npos);
    EXPECT_NE(bayt.find("4:e252,"), std::string::npos);
    EXPECT_NE(bayt.find("5:e1255,"), std::string::npos);
}

TEST_F(GunlukDosyasi, Keeps_no_more_than_sixteen_MiB_of_what_is_done) {
    const auto gunluk = Ac();
    for (int i = 1; i <= 9; ++i) {
        gunluk->Bitti(*gunluk->Basla(Eylem(u"e" + SayiMetni(i), std::string(std::size_t{2} << 20U, 'x'))));
        gunluk->Kisalt();
        ASSERT_LE(std::filesystem::file_size(Yol()), Gunluk::kEnCokBayt);
    }
    EXPECT_NE(Bayt().find("2:e9,"), std::string::npos);
    EXPECT_EQ(Bayt().find("2:e1,"), std::string::npos);
    EXPECT_EQ(gunluk->Basla(Eylem(u"son")), 10U);
}

} // namespace velora
