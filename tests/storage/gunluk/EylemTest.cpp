#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "storage/DosyaAgaci.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/VeriAgaci.h"
#include "storage/gunluk/EylemDefteri.h"

// What the door to the disk puts into the journal, and when.
namespace velora {
namespace {

using namespace std::chrono_literals;

class Eylem : public testing::Test {
  protected:
    Eylem() {
        dosyalar.GunluguAc(durum, {[] { return Metin(u"zeynep"); },
                                   [] { return std::chrono::local_days(2012y / 6 / 15) + 21h + 7min + 5s; }});
    }
    test::GeciciAgac agac;
    std::filesystem::path durum = agac.Disi() / "durum";
    Dosyalar dosyalar{agac.Kok()};

    Metin Yol(MetinBakis ad) const { return dosyalar.Kok() + u"\\" + Metin(ad); }
    /// All records, once what is done is marked.
    std::vector<GunlukKaydi> Kayitlar() const {
        EXPECT_TRUE(dosyalar.GunluguBekle());
        std::ifstream dosya(Gunluk::Yol(durum, agac.Kok()), std::ios::binary);
        const std::string bayt{std::istreambuf_iterator<char>(dosya), {}};
        std::size_t konum = bayt.find("\n#") + 1;
        std::vector<GunlukKaydi> kayitlar;
        while (auto kayit = KayitOku(bayt, konum))
            kayitlar.push_back(*kayit);
        return kayitlar;
    }
    /// The kinds of the records, each with the number of its action: "E1 A1 B1".
    std::string Turler() const {
        std::string turler;
        for (const GunlukKaydi& kayit : Kayitlar())
            turler += std::string(turler.empty() ? "" : " ") + "EABO"[kayit.index()] +
                      std::to_string(std::visit([](const auto& k) { return k.no; }, kayit));
        return turler;
    }
};

} // namespace

TEST_F(Eylem, A_planned_action_stands_in_the_journal_as_one_record_with_all_its_texts) {
    agac.Koy(u"a", "eski a");
    agac.Koy(u"giden", "gider");
    EylemleYap(dosyalar, u"Menü kaydı", [&] {
        dosyalar.Yaz(Yol(u"a"), "yeni a");
        dosyalar.Ekle(Yol(u"a"), " ve eki");
        dosyalar.KlasorYap(Yol(u"klasör"));
        dosyalar.Kopyala(Yol(u"a"), Yol(u"klasör\\kopya"));
        dosyalar.Sil(Yol(u"giden"));
        dosyalar.Sil(Yol(u"yok"));
    });
    EXPECT_EQ(agac.Bayt(u"klasör/kopya"), "yeni a ve eki");
    EXPECT_FALSE(agac.Var(u"giden"));
    const EylemKaydi beklenen{1,
                              u"Menü kaydı",
                              u"zeynep",
                              u"2012-06-15 21:07:05",
                              {{.yol = u"\\a", .once = "eski a", .sonra = "yeni a"},
                               {.yol = u"\\a", .once = "yeni a", .sonra = "yeni a ve eki"},
                               {.tur = EylemAdimi::Tur::Klasor, .yol = u"\\klasör", .once = {}, .sonra = {}},
                               {.yol = u"\\klasör\\kopya", .once = {}, .sonra = "yeni a ve eki"},
                               {.yol = u"\\giden", .once = "gider", .sonra = {}},
                               {.yol = u"\\yok", .once = {}, .sonra = {}}}};
    EXPECT_EQ(Kayitlar(), (std::vector<GunlukKaydi>{beklenen, BittiKaydi{1}}));
}

TEST_F(Eylem, A_plan_touches_nothing) {
    agac.Koy(u"a", "eski a");
    const std::string resim = agac.Resim();
    const Dosyalar::Eylem eylem(dosyalar, u"Deneme", [&] {
        EXPECT_TRUE(dosyalar.Yaz(Yol(u"a"), "yeni"));
        EXPECT_TRUE(dosyalar.Yaz(Yol(u"b"), "yeni"));
        EXPECT_TRUE(dosyalar.Yarat(Yol(u"c"), "yeni"));
        EXPECT_TRUE(dosyalar.Ekle(Yol(u"a"), "ek"));
        EXPECT_TRUE(dosyalar.KlasorYap(Yol(u"klasör")));
        EXPECT_EQ(dosyalar.Kopyala(Yol(u"b"), Yol(u"d")), Kopyalanis::Oldu);
        EXPECT_EQ(dosyalar.Kopyala(Yol(u"yok"), Yol(u"d")), Kopyalanis::KaynakYok);
        EXPECT_TRUE(dosyalar.Sil(Yol(u"a")));
    });
    EXPECT_EQ(agac.Resim(), resim);
}

TEST_F(Eylem, The_record_stands_on_the_disk_before_the_first_step) {
    std::string oncesi;
    dosyalar.ariza = [&](DosyaIsi, const Metin&) {
        std::ifstream dosya(Gunluk::Yol(durum, agac.Kok()), std::ios::binary);
        oncesi.assign(std::istreambuf_iterator<char>(dosya), {});
        return false;
    };
    EylemleYap(dosyalar, u"Menü kaydı", [&] { dosyalar.Yaz(Yol(u"a"), "yepyeni"); });
    EXPECT_NE(oncesi.find("yepyeni"), std::string::npos);
}

TEST_F(Eylem, What_comes_otherwise_than_planned_is_put_down_before_it_is_written) {
    agac.Koy(u"a", "eski");
    {
        const Dosyalar::Eylem eylem(dosyalar, u"Deneme", [&] {
            dosyalar.Yaz(Yol(u"a"), "bu olacakti");
            dosyalar.Yaz(Yol(u"b"), "bu da");
        });
        dosyalar.Yaz(Yol(u"a"), "bu oldu");
        dosyalar.Yaz(Yol(u"b"), "bu da");
    }
    const auto kayitlar = Kayitlar();
    ASSERT_EQ(Turler(), "E1 A1 A1 B1");
    const auto& ek = std::get<EkKaydi>(kayitlar[1]).adimlar;
    EXPECT_EQ(ek, (std::vector<EylemAdimi>{{.yol = u"\\a", .once = "eski", .sonra = "bu oldu"}}));
}

TEST_F(Eylem, A_step_that_was_planned_and_left_out_costs_the_others_nothing) {
    {
        const Dosyalar::Eylem eylem(dosyalar, u"Deneme", [&] {
            dosyalar.Yaz(Yol(u"a"), "a");
            dosyalar.Yaz(Yol(u"b"), "b");
        });
        dosyalar.Yaz(Yol(u"b"), "b");
    }
    EXPECT_EQ(Turler(), "E1 B1");
}

TEST_F(Eylem, A_write_that_belongs_to_no_action_is_one_by_itself_under_its_files_name) {
    dosyalar.Yaz(Yol(u"a"), "bir");
    EXPECT_EQ(Turler(), "E1 B1");
    dosyalar.Ekle(Yol(u"a"), "iki");
    EXPECT_EQ(Turler(), "E1 B1 E2 B2");
    dosyalar.Sil(Yol(u"a"));
    EXPECT_EQ(Turler(), "E1 B1 E2 B2 E3 B3");
    EXPECT_EQ(std::get<EylemKaydi>(Kayitlar()[0]).ad, u"a");
}

TEST_F(Eylem, An_action_within_another_ones_events_stands_by_itself) {
    {
        const Dosyalar::Eylem dis(dosyalar, u"Dış");
        dosyalar.Yaz(Yol(u"a"), "a");
        EylemleYap(dosyalar, u"İç", [&] { dosyalar.Yaz(Yol(u"b"), "b"); });
        EXPECT_TRUE(dosyalar.GunluguBekle());
        dosyalar.Yaz(Yol(u"c"), "c");
    }
    EXPECT_EQ(Turler(), "E1 E2 B2 A1 B1");
}

TEST_F(Eylem, An_action_of_which_a_step_failed_is_left_to_the_next_start) {
    dosyalar.bosYer = 3;
    EylemleYap(dosyalar, u"Deneme", [&] {
        dosyalar.Yaz(Yol(u"a"), "abc");
        dosyalar.Yaz(Yol(u"b"), "uzunca");
    });
    EXPECT_EQ(Turler(), "E1");
    EXPECT_FALSE(agac.Var(u"b"));
}

TEST_F(Eylem, A_folder_that_is_there_and_a_file_that_is_not_are_no_failures) {
    agac.KlasorKoy(u"klasör");
    EylemleYap(dosyalar, u"Deneme", [&] {
        dosyalar.KlasorYap(Yol(u"klasör"));
        dosyalar.Sil(Yol(u"yok"));
        dosyalar.Kopyala(Yol(u"yok"), Yol(u"a"));
        dosyalar.Yaz(Yol(u"b"), "b");
    });
    EXPECT_EQ(Turler(), "E1 B1");
}

TEST_F(Eylem, The_journal_takes_no_notice_of_what_can_be_made_anew) {
    {
        const Dosyalar::GunlukDisi gecici(dosyalar);
        dosyalar.Yaz(Yol(u"a"), "a");
        dosyalar.Sil(Yol(u"a"));
    }
    EXPECT_EQ(Turler(), "");
    dosyalar.Yaz(Yol(u"b"), "b");
    EXPECT_EQ(Turler(), "E1 B1");
}

TEST_F(Eylem, A_journal_that_takes_nothing_more_is_not_in_the_way) {
    std::filesystem::permissions(durum, std::filesystem::perms::none);
    std::filesystem::remove_all(durum);
    dosyalar.Yaz(Yol(u"a"), "a");
    EXPECT_EQ(agac.Bayt(u"a"), "a");
}

TEST_F(Eylem, A_move_deletes_no_source_whose_copy_did_not_come_there) {
    for (const MetinBakis ek : kRezervasyonEkleri)
        agac.Koy(u"05.01.2012 - Gece" + Metin(ek), "metin" + std::to_string(ek.size()));
    dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Yaz && yol.ends_with(u"06.01.2012 - Gece-Detay");
    };
    EylemleYap(dosyalar, u"Rezervasyon taşıma",
               [&] { RezervasyonTasi(dosyalar, Yol(u"05.01.2012 - Gece"), Yol(u"06.01.2012 - Gece")); });
    EXPECT_FALSE(agac.Var(u"05.01.2012 - Gece"));
    EXPECT_EQ(agac.Bayt(u"05.01.2012 - Gece-Detay"), "metin6");
    EXPECT_FALSE(agac.Var(u"05.01.2012 - Gece-Odeme"));
    EXPECT_EQ(Turler(), "E1");
}

TEST_F(Eylem, A_move_whose_source_can_not_be_read_leaves_it) {
    agac.Koy(u"05.01.2012 - Gece", "ana");
    agac.Koy(u"05.01.2012 - Gece-Odeme", "odeme");
    dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.ends_with(u"-Odeme");
    };
    EylemleYap(dosyalar, u"Rezervasyon taşıma",
               [&] { RezervasyonTasi(dosyalar, Yol(u"05.01.2012 - Gece"), Yol(u"06.01.2012 - Gece")); });
    EXPECT_EQ(agac.Bayt(u"06.01.2012 - Gece"), "ana");
    EXPECT_EQ(agac.Bayt(u"05.01.2012 - Gece-Odeme"), "odeme");
    EXPECT_FALSE(agac.Var(u"06.01.2012 - Gece-Odeme"));
    EXPECT_EQ(Turler(), "E1"); // the next start brings them along
}

} // namespace velora
