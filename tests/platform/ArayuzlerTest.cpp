// What the system says of its adapters, against what stands in /sys.
#include "platform/Arayuzler.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include <gtest/gtest.h>

namespace velora::test {

namespace {

constexpr unsigned kAcik = 0x1;
constexpr unsigned kDongu = 0x8;

std::string Oku(const std::filesystem::path& dosya) {
    std::string metin;
    std::getline(std::ifstream(dosya) >> std::ws, metin);
    return metin;
}

/// The address of each adapter that is up and isn't the loopback, by the number that the system gave it.
std::map<int, std::string> AcikArayuzler() {
    std::map<int, std::string> adresler;
    std::error_code yok;
    for (const auto& arayuz : std::filesystem::directory_iterator("/sys/class/net", yok)) {
        const std::string bayrak = Oku(arayuz.path() / "flags");
        const unsigned long bayraklar = bayrak.empty() ? 0 : std::stoul(bayrak, nullptr, 16);
        const std::string adres = Oku(arayuz.path() / "address");
        if ((bayraklar & kAcik) != 0 && (bayraklar & kDongu) == 0 && adres.size() == 17 &&
            adres != "00:00:00:00:00:00")
            adresler[std::stoi(Oku(arayuz.path() / "ifindex"))] = adres;
    }
    return adresler;
}

/// Whether a way leads out over some adapter: then it has an address and carries a signal.
bool YolVar() {
    std::ifstream yollar("/proc/net/route");
    std::string satir;
    std::getline(yollar, satir);
    while (std::getline(yollar, satir))
        if (!satir.starts_with("lo\t"))
            return true;
    return false;
}

std::string Yazili(const DonanimAdresi& adres) {
    std::string metin;
    for (const std::uint8_t bayt : adres) {
        constexpr std::string_view kRakamlar = "0123456789abcdef";
        metin += metin.empty() ? "" : ":";
        metin += kRakamlar[bayt >> 4U];
        metin += kRakamlar[bayt & 15U];
    }
    return metin;
}

} // namespace

TEST(ArayuzlerTest, The_hardware_address_is_that_of_the_first_adapter_that_is_up_and_no_loopback) {
    const auto arayuzler = AcikArayuzler();
    const auto adres = DonanimAdresiBul();
    ASSERT_EQ(adres.has_value(), !arayuzler.empty());
    if (adres) {
        EXPECT_EQ(Yazili(*adres), arayuzler.begin()->second);
    }
}

TEST(ArayuzlerTest, There_is_a_connection_where_a_way_leads_out_and_none_without_an_adapter) {
    if (YolVar()) {
        EXPECT_TRUE(BaglantiVar());
    }
    if (AcikArayuzler().empty()) {
        EXPECT_FALSE(BaglantiVar());
    }
}

} // namespace velora::test
