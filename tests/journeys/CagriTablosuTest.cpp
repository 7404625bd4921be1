// What each action asks of the disk, as the kernel sees it. These numbers don't wobble: one call more than
// the table says is a slip that would be felt on an old disk or a share.
#include <chrono>
#include <ostream>
#include <thread>
#include <tuple>
#include <vector>

#include "accounts/FormBakiye.h"
#include "reservation/FormArama.h"
#include "reservation/KayitTest.h"
#include "storage/dosya/Gozcu.h"
#include "storage/dosya/OkumaBellegi.h"
#include "tools/CagriSayaci.h"

namespace velora::test {
namespace {

struct Sayilar {
    int listeleme;
    int acma;
    int okuma;
    int sorma;
};

std::ostream& operator<<(std::ostream& akis, const Sayilar& s) {
    return akis << "{" << s.listeleme << ", " << s.acma << ", " << s.okuma << ", " << s.sorma << "}";
}

struct Satir {
    const char* ad;
    std::function<void()> is;
    Sayilar enCok;
};

} // namespace

/// Two halls: 31 reservations in the one, 10 in the other, two files each, in one of the 21 years of the
/// list. One of them is near. All have stood there for more than two seconds when the program starts. Today
/// is 15 June 2012.
class CagriTablosu : public KayitTest {
  protected:
    static constexpr int kBirinci = 62; ///< files of the first hall's year
    static constexpr int kIkinci = 20;

    CagriTablosu() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
        RezervasyonKoy(Metin(kYakin), {.no = u"Y"});
        for (int gun = 1; gun < kBirinci / 2; ++gun)
            RezervasyonKoy(GunAnahtari(static_cast<unsigned>(gun), 9, u"2012", kGece), {.no = u"A"});
        for (int gun = 1; gun <= kIkinci / 2; ++gun)
            KayitKoy(agac, u"Salon B/2012/" + GunAnahtari(static_cast<unsigned>(gun), 3, u"2012", kGunduz),
                     {.no = u"B"}, false);
        for (int yil = 2002; yil <= 2022; ++yil)
            for (const MetinBakis salon : {u"Salon A/", u"Salon B/"})
                agac.KlasorKoy(Metin(salon) + SayiMetni(yil));
        std::this_thread::sleep_for(std::chrono::milliseconds(2100));
    }

    /// Whether the system surely tells of each change in the tree. Not all file systems do.
    bool Izlenir() const {
        sistem::Gozcu gozcu;
        gozcu.Izle(agac.Kok());
        return gozcu.Degisenler([](sistem::DiskAdi) {});
    }
    void Kaydet() {
        YeniKayit([this] {
            Doldur();
            KaydeteBas();
        });
    }
    void Degistir() {
        KayitAc(
            [this] {
                Gir(1, u"veli usta");
                KaydeteBas();
            },
            kYakin);
    }
    void Ara() {
        const auto arama = Prog().FormArama.Tut();
        arama->Text[1].metin = u"ali";
        arama->Command3_Click();
        EXPECT_EQ(arama->Liste.satirlar.size(), 41U);
    }
    void Raporla() {
        const auto rapor = Prog().FormBakiye.Tut();
        rapor->DTPicker1.deger = Gun{std::chrono::year{2012}, std::chrono::month{9}, std::chrono::day{1}};
        rapor->DTPicker2.deger = Gun{std::chrono::year{2012}, std::chrono::month{9}, std::chrono::day{20}};
        rapor->ListeleGun();
        EXPECT_EQ(rapor->Liste.satirlar.size(), 20U);
    }

    static constexpr MetinBakis kYakin = u"17.06.2012 - Gece";

    /// What an action may ask where each file must be asked about, and where the folders are watched.
    struct IkiHal {
        Sayilar sorarak;
        Sayilar izleyerek;
    };

    /// The folders are 42, for 21 years of two halls; the files 62 and 20. What was read comes from memory,
    /// for one question each.
    std::vector<Satir> GununIsleri(Sayilar IkiHal::*hal) {
        const std::vector<std::tuple<const char*, std::function<void()>, IkiHal>> isler{
            {"start", [this] { Prog(); }, {{47, 66, 63, 247}, {44, 66, 63, 125}}},
            {"scan again", [this] { kullanici.Tablo().Command1(); }, {{1, 0, 0, 63}, {0, 0, 0, 2}}},
            {"report", [this] { Raporla(); }, {{1, 0, 0, 41}, {0, 0, 0, 2}}},
            {"report again", [this] { Raporla(); }, {{1, 0, 0, 41}, {0, 0, 0, 2}}},
            {"search", [this] { Ara(); }, {{42, 20, 20, 104}, {41, 20, 20, 43}}},
            {"search again", [this] { Ara(); }, {{42, 0, 0, 124}, {41, 0, 0, 64}}},
            {"warnings", [this] { kullanici.Tablo().UyariGoster(); }, {{43, 0, 0, 107}, {40, 0, 0, 46}}},
            {"another hall", [this] { kullanici.SalonSec(u"Salon B"); }, {{1, 0, 0, 21}, {0, 0, 0, 2}}},
            {"and back", [this] { kullanici.SalonSec(u"Salon A"); }, {{1, 0, 0, 63}, {0, 0, 0, 2}}},
            {"another year", [this] { kullanici.YilSec(u"2013"); }, {{1, 0, 0, 2}, {1, 0, 0, 2}}},
            {"and back", [this] { kullanici.YilSec(u"2012"); }, {{1, 0, 0, 64}, {0, 0, 0, 3}}},
        };
        std::vector<Satir> satirlar;
        for (const auto& is : isler)
            satirlar.push_back({std::get<0>(is), std::get<1>(is), std::get<2>(is).*hal});
        return satirlar;
    }

    void Dene(const std::vector<Satir>& satirlar) {
        std::vector<std::function<void()>> isler;
        for (const Satir& satir : satirlar)
            isler.push_back(satir.is);
        // The copy ends badly where a box or a screen came that nobody had expected.
        isler.emplace_back([] {
            if (HasFailure())
                std::_Exit(1);
        });
        const auto sayilar = olcum::CagrilariSay(agac.Kok(), isler);
        ASSERT_TRUE(sayilar) << "the copy of this process didn't come to its end";
        for (std::size_t i = 0; i < satirlar.size(); ++i) {
            const olcum::Cagrilar& c = (*sayilar)[i];
            const Sayilar& en = satirlar[i].enCok;
            const Sayilar bu{c.listeleme, c.acma, c.okuma, c.sorma};
            EXPECT_EQ((std::pair(bu.acma, bu.okuma)), (std::pair(en.acma, en.okuma))) << satirlar[i].ad;
            // A folder that has just changed is listed again for each name that isn't in it: on a slow disk
            // it may have settled by then.
            EXPECT_TRUE(bu.listeleme <= en.listeleme && bu.sorma <= en.sorma)
                << satirlar[i].ad << ": listings, openings, readings, questions " << bu;
        }
    }
};

TEST_F(CagriTablosu,
       Where_nobody_can_watch_a_folder_each_action_asks_no_more_of_the_disk_than_is_written_here) {
    kullanici.hazirla = [](Program& p) { p.dosyalar.Bellek().enCokIzlenen = 0; };
    Dene(GununIsleri(&IkiHal::sorarak));
}

TEST_F(CagriTablosu, A_watched_folder_in_which_nothing_has_changed_is_neither_listed_nor_asked_about) {
    if (!Izlenir())
        GTEST_SKIP() << "changes are not told of on this file system";
    Dene(GununIsleri(&IkiHal::izleyerek));
}

TEST_F(CagriTablosu, A_year_that_a_hall_has_no_folder_for_is_asked_for_and_not_opened) {
    for (int yil = 2002; yil <= 2022; ++yil)
        for (const MetinBakis salon : {u"Salon A/", u"Salon B/"})
            if (yil != 2012)
                std::filesystem::remove(agac.Yol(Metin(salon) + SayiMetni(yil)));
    // What has just changed is listed again for each name that isn't in it.
    const auto eski = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    for (const MetinBakis salon : {u"Salon A", u"Salon B"})
        std::filesystem::last_write_time(agac.Yol(salon), eski);
    kullanici.hazirla = [](Program& p) { p.dosyalar.Bellek().enCokIzlenen = 0; };
    Dene({
        {"start", [this] { Prog(); }, {9, 66, 63, 327}},
        {"search", [this] { Ara(); }, {2, 20, 20, 184}},
        {"warnings", [this] { kullanici.Tablo().UyariGoster(); }, {3, 0, 0, 187}},
    });
}

// What was written a moment ago is read again by each reader, for its time could still come twice.
TEST_F(CagriTablosu, A_save_reads_what_it_has_written_and_nothing_else) {
    kullanici.hazirla = [](Program& p) { p.dosyalar.Bellek().enCokIzlenen = 0; };
    Dene({
        {"start", [this] { Prog(); }, {47, 66, 63, 247}},
        {"save of a new one, panel open", [this] { Kaydet(); }, {51, 12, 9, 252}},
        {"save of an edit, panel open", [this] { Degistir(); }, {50, 20, 18, 212}},
        {"panel closed", [this] { kullanici.Tablo().Command2_Click(); }, {0, 0, 0, 0}},
        {"save of an edit, panel closed", [this] { Degistir(); }, {7, 12, 10, 103}},
    });
}

} // namespace velora::test
