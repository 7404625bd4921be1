// The file of the users.
#include "access/Kullanicilar.h"

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

class KullanicilarTest : public ::testing::Test {
  protected:
    using Satirlar = std::vector<std::vector<Metin>>;

    Satirlar Okunan() {
        Satirlar satirlar;
        for (const ListeSatiri& satir : KullanicilariOku(program))
            satirlar.push_back(satir.sutun);
        return satirlar;
    }

    const std::vector<Metin> admin{u"admin", u"gül5", u"1", u"1", u"1", u"1", u"1",
                                   u"1",     u"1",    u"1", u"1", u"0", u"1"};
    const std::vector<Metin> ayse{u"Ayşe", u"çay 7", u"0", u"1", u"0", u"1", u"0",
                                  u"0",    u"1",     u"1", u"0", u"1", u"0"};
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

constexpr std::string_view kIkiKullanici =
    "\"admin\",\"g\xFCl5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n"
    "\"Ay\xFE\x65\",\"\xE7\x61y 7\",\"0\",\"1\",\"0\",\"1\",\"0\",\"0\",\"1\",\"1\",\"0\",\"1\",\"0\"\r\n";

TEST_F(KullanicilarTest, Are_read_in_the_order_of_the_file_with_their_thirteen_values) {
    agac.Koy(u"User.dll", kIkiKullanici);
    EXPECT_EQ(Okunan(), (Satirlar{admin, ayse}));
}

TEST_F(KullanicilarTest, Are_written_one_on_a_line) {
    agac.Koy(u"User.dll", kIkiKullanici);
    const SatirListesi kullanicilar = KullanicilariOku(program);
    agac.Koy(u"User.dll", "\"x\",\"y\"\r\n");
    KullanicilariYaz(program, kullanicilar);
    EXPECT_EQ(agac.Bayt(u"User.dll"), kIkiKullanici);
}

TEST_F(KullanicilarTest, Line_ends_count_for_nothing) {
    std::string satirSatir(kIkiKullanici);
    for (std::size_t i = satirSatir.find(','); i != std::string::npos; i = satirSatir.find(',', i))
        satirSatir.replace(i, 1, "\r\n");
    agac.Koy(u"User.dll", satirSatir);
    EXPECT_EQ(Okunan(), (Satirlar{admin, ayse}));
    std::string tekSatir(kIkiKullanici);
    tekSatir.replace(tekSatir.find("\r\n"), 2, ",");
    agac.Koy(u"User.dll", tekSatir);
    EXPECT_EQ(Okunan(), (Satirlar{admin, ayse}));
}

TEST_F(KullanicilarTest, User_with_a_blank_name_is_left_out) {
    agac.Koy(u"User.dll",
             "\"  \",\"p\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n" +
                 std::string(kIkiKullanici));
    EXPECT_EQ(Okunan(), (Satirlar{admin, ayse}));
}

TEST_F(KullanicilarTest, File_that_is_missing_empty_or_cannot_be_opened_has_no_users) {
    EXPECT_EQ(Okunan(), Satirlar{});
    agac.Koy(u"User.dll", "");
    EXPECT_EQ(Okunan(), Satirlar{});
    agac.Koy(u"User.dll", " \r\n\t\r\n");
    EXPECT_EQ(Okunan(), Satirlar{});
    agac.Koy(u"User.dll", kIkiKullanici);
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    EXPECT_EQ(Okunan(), Satirlar{});
}

TEST_F(KullanicilarTest, Last_record_of_twelve_values_keeps_the_last_right_of_the_user_before_as_is_meant) {
    agac.Koy(u"User.dll", kIkiKullanici.substr(0, kIkiKullanici.rfind(',')));
    std::vector<Metin> kisa = ayse;
    kisa.back() = admin.back();
    EXPECT_EQ(Okunan(), (Satirlar{admin, kisa}));
}

TEST_F(KullanicilarTest, Record_of_twelve_values_takes_its_last_from_the_next_user_as_is_meant) {
    std::string bayt(kIkiKullanici);
    bayt.erase(bayt.find(",\"0\""), 4); // right 10 of admin
    agac.Koy(u"User.dll", bayt);
    std::vector<Metin> uzun = admin;
    uzun[11] = u"1";
    uzun[12] = u"Ayşe";
    std::vector<Metin> kayan{ayse.begin() + 1, ayse.end()};
    kayan.push_back(u"Ayşe"); // nothing is left to be read: what was there stays
    EXPECT_EQ(Okunan(), (Satirlar{uzun, kayan}));
}

TEST_F(KullanicilarTest, Record_of_fourteen_values_slides_the_next_user_as_is_meant) {
    std::string bayt(kIkiKullanici);
    bayt.insert(bayt.find("\r\n"), ",\"fazla\"");
    agac.Koy(u"User.dll", bayt);
    const std::vector<Metin> kayan{u"fazla", u"Ayşe", u"çay 7", u"0", u"1", u"0", u"1",
                                   u"0",     u"0",    u"1",     u"1", u"0", u"1"};
    std::vector<Metin> kalan = kayan;
    kalan[0] = u"0"; // the fourteenth value of the second line
    EXPECT_EQ(Okunan(), (Satirlar{admin, kayan, kalan}));
}

TEST_F(KullanicilarTest, Garbage_is_read_and_crashes_nothing) {
    agac.Koy(u"User.dll", std::string(100'000, '"') + std::string(1000, '\xFF'));
    Okunan();
    agac.Koy(u"User.dll", std::string(5000, ','));
    EXPECT_EQ(Okunan(), Satirlar{});
}

TEST_F(KullanicilarTest, File_that_cannot_be_written_stays) {
    agac.Koy(u"User.dll", kIkiKullanici);
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    KullanicilariYaz(program, {});
    EXPECT_EQ(agac.Bayt(u"User.dll"), kIkiKullanici);
}

TEST_F(KullanicilarTest, Row_of_a_user_holds_name_password_and_rights_in_their_order) {
    const std::array<Metin, kYetkiSayisi> yetkiler{u"1", u"0", u"3", u"0", u"5", u"0",
                                                   u"7", u"0", u"9", u"0", u"11"};
    EXPECT_EQ(KullaniciSatiri(u"ali", u"a1", yetkiler).sutun,
              (std::vector<Metin>{u"ali", u"a1", u"1", u"0", u"3", u"0", u"5", u"0", u"7", u"0", u"9", u"0",
                                  u"11"}));
}

} // namespace velora::test
