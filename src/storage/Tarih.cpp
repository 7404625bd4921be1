#include "storage/Tarih.h"

#include <algorithm>
#include <array>

namespace velora {
namespace {

struct GunAdi {
    MetinBakis kisa;
    MetinBakis uzun;
};

// In the order of the calendar's own numbers, in which Sunday is 0.
constexpr std::array<GunAdi, 7> kGunler{{{u"Paz", u"Pazar"},
                                         {u"Pzt", u"Pazartesi"},
                                         {u"Sal", u"Salı"},
                                         {u"Çar", u"Çarşamba"},
                                         {u"Per", u"Perşembe"},
                                         {u"Cum", u"Cuma"},
                                         {u"Cmt", u"Cumartesi"}}};

const GunAdi& GunAdiBul(const Gun& gun) {
    return kGunler[std::chrono::weekday(std::chrono::sys_days(gun)).c_encoding()];
}

Metin YilMetni(const Gun& gun) {
    const Metin yil = SayiMetni(static_cast<int>(gun.year()));
    return Metin(yil.size() < 4 ? 4 - yil.size() : 0, u'0') + yil;
}

Metin AyMetni(const Gun& gun) {
    return IkiHane(static_cast<unsigned>(gun.month()));
}

Metin GunMetni(const Gun& gun) {
    return IkiHane(static_cast<unsigned>(gun.day()));
}

struct Desen {
    MetinBakis ad;
    Metin (*yap)(const Gun& gun);
};

constexpr std::array<Desen, 6> kDesenler{
    {{u"ddd", [](const Gun& gun) { return Metin(GunAdiBul(gun).kisa); }},
     {u"dddd", [](const Gun& gun) { return Metin(GunAdiBul(gun).uzun); }},
     {u"dd.mm.yyyy", TarihMetni},
     {u"yyyy", YilMetni},
     {u"mm", AyMetni},
     {u"dd", GunMetni}}};

/// The number that stands before the first `bitis`, or all of the rest when there is none to be; it and the
/// sign behind it go from `kalan`.
std::optional<int> SayiAl(MetinBakis& kalan, std::size_t enAz, std::size_t enCok, bool sonuncu) {
    int sayi = 0;
    std::size_t uzunluk = 0;
    for (; uzunluk < kalan.size() && kalan[uzunluk] != u'.'; ++uzunluk) {
        const char16_t harf = kalan[uzunluk];
        if (harf < u'0' || harf > u'9' || uzunluk == enCok)
            return {};
        sayi = sayi * 10 + (harf - u'0');
    }
    if (uzunluk < enAz || (uzunluk == kalan.size()) != sonuncu)
        return {};
    kalan.remove_prefix(sonuncu ? uzunluk : uzunluk + 1);
    return sayi;
}

} // namespace

std::optional<Gun> TarihCoz(MetinBakis metin) {
    const auto gun = SayiAl(metin, 1, 2, false);
    const auto ay = gun ? SayiAl(metin, 1, 2, false) : std::nullopt;
    const auto yil = ay ? SayiAl(metin, 4, 4, true) : std::nullopt;
    if (!yil || *yil == 0)
        return {};
    const Gun tarih{std::chrono::year(*yil), std::chrono::month(static_cast<unsigned>(*ay)),
                    std::chrono::day(static_cast<unsigned>(*gun))};
    return tarih.ok() ? std::optional(tarih) : std::nullopt;
}

std::optional<Gun> TarihDegeriCoz(MetinBakis metin) {
    if (metin.size() != kTarihUzunlugu + 2 || metin.front() != u'#' || metin.back() != u'#' ||
        metin[5] != u'-' || metin[8] != u'-')
        return {};
    return TarihCoz(Metin(metin.substr(9, 2)) + u'.' + Metin(metin.substr(6, 2)) + u'.' +
                    Metin(metin.substr(1, 4)));
}

Metin TarihDegeri(const Gun& gun) {
    return u'#' + YilMetni(gun) + u'-' + AyMetni(gun) + u'-' + GunMetni(gun) + u'#';
}

unsigned AyinSonGunu(const Gun& gun) {
    return static_cast<unsigned>((gun.year() / gun.month() / std::chrono::last).day());
}

Metin TarihMetni(const Gun& gun) {
    return GunMetni(gun) + u'.' + AyMetni(gun) + u'.' + YilMetni(gun);
}

Metin Bicimle(MetinBakis tarih, MetinBakis desen) {
    const auto gun = TarihCoz(tarih);
    const auto bulunan =
        std::find_if(kDesenler.begin(), kDesenler.end(), [&](const Desen& d) { return d.ad == desen; });
    return gun && bulunan != kDesenler.end() ? bulunan->yap(*gun) : Metin(tarih);
}

} // namespace velora
