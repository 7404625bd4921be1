#include "storage/Metin.h"

#include <algorithm>

namespace velora {

MetinBakis Kirp(MetinBakis metin) {
    const std::size_t ilk = metin.find_first_not_of(u' ');
    if (ilk == MetinBakis::npos)
        return {};
    return metin.substr(ilk, metin.find_last_not_of(u' ') - ilk + 1);
}

MetinBakis Parca(MetinBakis metin, std::size_t ilk, std::size_t adet) {
    if (ilk == 0 || ilk > metin.size())
        return {};
    return metin.substr(ilk - 1, adet);
}

MetinBakis Son(MetinBakis metin, std::size_t adet) {
    return metin.substr(metin.size() - std::min(adet, metin.size()));
}

Metin SayiMetni(long long sayi) {
    const std::string bayt = std::to_string(sayi);
    return {bayt.begin(), bayt.end()};
}

Metin IkiHane(unsigned sayi) {
    const Metin metin = SayiMetni(sayi);
    return sayi < 10 ? u'0' + metin : metin;
}

} // namespace velora
