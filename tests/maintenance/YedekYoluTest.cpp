#include "maintenance/YedekYolu.h"

#include <gtest/gtest.h>

namespace velora::test {

TEST(YedekYoluTest, The_chosen_folder_gets_its_own_below_it) {
    EXPECT_EQ(HedefYolu(u"D:\\Ayşe\\Belgeler", u'\\'), u"D:\\Ayşe\\Belgeler\\VRYedek");
    EXPECT_EQ(HedefYolu(u"/home/ayşe/Belgeler", u'/'), u"/home/ayşe/Belgeler/VRYedek");
}

TEST(YedekYoluTest, The_root_of_a_drive_works) {
    EXPECT_EQ(HedefYolu(u"E:\\", u'\\'), u"E:\\VRYedek");
    EXPECT_EQ(HedefYolu(u"/", u'/'), u"/VRYedek");
}

TEST(YedekYoluTest, A_cancelled_choice_gives_the_bare_name_on_purpose) {
    EXPECT_EQ(HedefYolu(u"", u'\\'), u"\\VRYedek");
    EXPECT_EQ(HedefYolu(u"", u'/'), u"/VRYedek");
}

TEST(YedekYoluTest, A_folder_of_the_network_breaks_on_purpose) {
    EXPECT_EQ(HedefYolu(u"\\\\SUNUCU\\ortak\\", u'\\'), u"\\SUNUCU\\ortak\\VRYedek");
}

TEST(YedekYoluTest, Doubled_separators_become_one_once) {
    EXPECT_EQ(HedefYolu(u"C:\\\\a\\\\\\b\\\\\\\\c", u'\\'), u"C:\\a\\\\b\\\\c\\VRYedek");
    EXPECT_EQ(HedefYolu(u"/a\\\\b//c", u'/'), u"/a\\\\b/c/VRYedek");
}

TEST(YedekYoluTest, A_day_has_its_folder) {
    using namespace std::chrono;
    EXPECT_EQ(GunlukYol(u"C:\\VRYedek", Gun{year{2012}, month{3}, day{7}}, u'\\'),
              u"C:\\VRYedek\\07_03_2012");
    EXPECT_EQ(GunlukYol(u"/yedek", Gun{year{2026}, month{11}, day{22}}, u'/'), u"/yedek/22_11_2026");
    EXPECT_EQ(GunlukYol(u"", Gun{year{2026}, month{11}, day{22}}, u'\\'), u"\\22_11_2026");
}

TEST(YedekYoluTest, A_path_of_another_system_is_known) {
    EXPECT_TRUE(BaskaSistemin(u"C:\\VRYedek", u'/'));
    EXPECT_TRUE(BaskaSistemin(u"\\VRYedek", u'/'));
    EXPECT_TRUE(BaskaSistemin(u"/home/ayşe/VRYedek", u'\\'));
    EXPECT_FALSE(BaskaSistemin(u"/home/ayşe/VRYedek", u'/'));
    EXPECT_FALSE(BaskaSistemin(u"C:\\VRYedek", u'\\'));
    EXPECT_FALSE(BaskaSistemin(u"\\VRYedek", u'\\'));
    EXPECT_FALSE(BaskaSistemin(u"yedek", u'/'));
    EXPECT_FALSE(BaskaSistemin(u"", u'/'));
}

} // namespace velora::test
