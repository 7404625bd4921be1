#include <gtest/gtest.h>

#include <sys/stat.h>

#include <atomic>
#include <thread>

#include "destek/GeciciAgac.h"
#include "storage/gunluk/Esitleyici.h"

namespace velora {
namespace {

/// Files and folders that are to stand on the medium.
class EsitleyiciIsi : public testing::Test {
  protected:
    test::GeciciAgac agac;
    std::atomic<int> olan = 0;

    Esitleyici::Is Is(std::vector<std::filesystem::path> dosyalar) {
        return {std::move(dosyalar), {agac.Kok()}, agac.Kok(), [this] { ++olan; }};
    }
};

} // namespace

TEST_F(EsitleyiciIsi, Tells_on_a_thread_of_its_own_when_all_stands_there) {
    agac.Koy(u"a", "metin");
    Esitleyici esitleyici;
    std::thread::id oteki;
    auto is = Is({agac.Yol(u"a")});
    is.olunca = [&] { oteki = std::this_thread::get_id(); };
    esitleyici.Ver(std::move(is));
    EXPECT_TRUE(esitleyici.Bekle());
    EXPECT_NE(oteki, std::thread::id());
    EXPECT_NE(oteki, std::this_thread::get_id());
}

TEST_F(EsitleyiciIsi, What_is_gone_by_then_needs_no_waiting) {
    Esitleyici esitleyici;
    esitleyici.Ver(Is({agac.Yol(u"giden"), agac.Yol(u"giden klasör/dosya")}));
    EXPECT_TRUE(esitleyici.Bekle());
    EXPECT_EQ(olan, 1);
}

TEST_F(EsitleyiciIsi, Says_nothing_when_one_of_them_can_not_be_waited_for) {
    agac.Koy(u"a", "metin");
    ASSERT_EQ(::mkfifo(agac.Yol(u"boru").c_str(), 0600), 0);
    Esitleyici esitleyici;
    esitleyici.Ver(Is({agac.Yol(u"boru")}));
    EXPECT_TRUE(esitleyici.Bekle());
    EXPECT_EQ(olan, 0);
    esitleyici.Ver(Is({agac.Yol(u"a")}));
    EXPECT_TRUE(esitleyici.Bekle());
    EXPECT_EQ(olan, 1);
}

TEST_F(EsitleyiciIsi, For_many_files_the_whole_disk_is_waited_for) {
    ASSERT_EQ(::mkfifo(agac.Yol(u"boru").c_str(), 0600), 0);
    std::vector<std::filesystem::path> cok(40, agac.Yol(u"boru")); // each by itself couldn't be
    Esitleyici esitleyici;
    esitleyici.Ver(Is(std::move(cok)));
    EXPECT_TRUE(esitleyici.Bekle());
    EXPECT_EQ(olan, 1);
}

TEST_F(EsitleyiciIsi, Carries_out_what_is_under_way_before_it_goes) {
    agac.Koy(u"a", "metin");
    {
        Esitleyici esitleyici;
        for (int i = 0; i < 5; ++i)
            esitleyici.Ver(Is({agac.Yol(u"a")}));
    }
    EXPECT_EQ(olan, 5);
}

} // namespace velora
