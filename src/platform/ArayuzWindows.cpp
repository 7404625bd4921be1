#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <winsock2.h>

#include <iphlpapi.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/Arayuzler.h"

namespace velora {

namespace {

constexpr ULONG kIlkBoy = 16U << 10U;
constexpr int kDeneme = 4; // adapters may come while they are asked for

/// Runs through all adapters that are up until `bak` says true. False when none does.
template <class Bak>
bool HerhangiArayuz(Bak bak) {
    std::vector<std::max_align_t> bellek;
    ULONG sonuc = ERROR_BUFFER_OVERFLOW;
    ULONG boy = kIlkBoy;
    for (int i = 0; i < kDeneme && sonuc == ERROR_BUFFER_OVERFLOW; ++i) {
        bellek.resize(boy / sizeof(std::max_align_t) + 1);
        sonuc = GetAdaptersAddresses(AF_UNSPEC, 0, nullptr,
                                     reinterpret_cast<IP_ADAPTER_ADDRESSES*>(bellek.data()), &boy);
    }
    if (sonuc != NO_ERROR)
        return false;
    const auto* arayuz = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(bellek.data());
    for (; arayuz != nullptr; arayuz = arayuz->Next)
        if (arayuz->OperStatus == IfOperStatusUp && arayuz->IfType != IF_TYPE_SOFTWARE_LOOPBACK &&
            bak(*arayuz))
            return true;
    return false;
}

} // namespace

bool BaglantiVar() {
    return HerhangiArayuz(
        [](const IP_ADAPTER_ADDRESSES& arayuz) { return arayuz.FirstUnicastAddress != nullptr; });
}

std::optional<DonanimAdresi> DonanimAdresiBul() {
    DonanimAdresi bulunan{};
    const bool var = HerhangiArayuz([&bulunan](const IP_ADAPTER_ADDRESSES& arayuz) {
        if (arayuz.PhysicalAddressLength != bulunan.size())
            return false;
        std::copy_n(arayuz.PhysicalAddress, bulunan.size(), bulunan.begin());
        return bulunan != DonanimAdresi{};
    });
    return var ? std::optional(bulunan) : std::nullopt;
}

} // namespace velora
