#include <algorithm>
#include <cstring>
#include <memory>

#include <ifaddrs.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <sys/socket.h>

#include "platform/Arayuzler.h"

namespace velora {

namespace {

/// Runs through the addresses of all adapters until `bak` says true. False when none does.
template <class Bak>
bool HerhangiArayuz(Bak bak) {
    ifaddrs* ilk = nullptr;
    if (getifaddrs(&ilk) != 0)
        return false;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> liste(ilk, &freeifaddrs);
    for (const ifaddrs* arayuz = ilk; arayuz != nullptr; arayuz = arayuz->ifa_next)
        if (arayuz->ifa_addr != nullptr && (arayuz->ifa_flags & IFF_UP) != 0 &&
            (arayuz->ifa_flags & IFF_LOOPBACK) == 0 && bak(*arayuz))
            return true;
    return false;
}

} // namespace

bool BaglantiVar() {
    return HerhangiArayuz([](const ifaddrs& arayuz) {
        const auto aile = arayuz.ifa_addr->sa_family;
        return (arayuz.ifa_flags & IFF_RUNNING) != 0 && (aile == AF_INET || aile == AF_INET6);
    });
}

std::optional<DonanimAdresi> DonanimAdresiBul() {
    DonanimAdresi bulunan{};
    const bool var = HerhangiArayuz([&bulunan](const ifaddrs& arayuz) {
        if (arayuz.ifa_addr->sa_family != AF_PACKET)
            return false;
        sockaddr_ll adres{};
        std::memcpy(&adres, arayuz.ifa_addr, sizeof adres);
        if (adres.sll_halen != bulunan.size())
            return false;
        std::copy_n(adres.sll_addr, bulunan.size(), bulunan.begin());
        return bulunan != DonanimAdresi{};
    });
    return var ? std::optional(bulunan) : std::nullopt;
}

} // namespace velora
