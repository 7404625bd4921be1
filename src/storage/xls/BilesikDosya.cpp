#include "storage/xls/BilesikDosya.h"

#include <algorithm>

#include "storage/xls/Baytlar.h"

namespace velora {

namespace {

constexpr std::size_t kSektor = 512;
constexpr std::uint16_t kSektorKuvveti = 9;
constexpr std::uint16_t kKucukSektorKuvveti = 6;
constexpr std::size_t kKucukSinir = 4096; // a shorter stream would lie in small sectors
constexpr std::size_t kFatYeri = kSektor / 4;
constexpr std::size_t kBasliktakiFat = 109; // FAT sectors that the header itself names
constexpr std::size_t kDifatYeri = kFatYeri - 1;
constexpr std::size_t kDizinAdi = 64; // bytes

constexpr std::uint32_t kDifatSektoru = 0xFFFFFFFC;
constexpr std::uint32_t kFatSektoru = 0xFFFFFFFD;
constexpr std::uint32_t kZincirSonu = 0xFFFFFFFE;
constexpr std::uint32_t kBos = 0xFFFFFFFF; // also: no entry of the directory

enum DizinTuru : std::uint8_t { kBosKayit = 0, kAkis = 2, kKok = 5 };

std::size_t Bolum(std::size_t adet, std::size_t boy) {
    return (adet + boy - 1) / boy;
}

/// Where what lies: the sectors of the stream, then the directory, the FAT, and the list of the FAT sectors
/// that the header has no room for.
struct SektorPlani {
    explicit SektorPlani(std::size_t boy) : akis(Bolum(boy, kSektor)) {
        // The FAT tells of its own sectors too, and of those that list it.
        for (std::size_t onceki = 0; fat == 0 || fat != onceki;) {
            onceki = fat;
            difat = fat > kBasliktakiFat ? Bolum(fat - kBasliktakiFat, kDifatYeri) : 0;
            fat = Bolum(akis + 1 + fat + difat, kFatYeri);
        }
    }

    std::uint32_t Dizin() const { return static_cast<std::uint32_t>(akis); }
    std::uint32_t Fat(std::size_t sira) const { return static_cast<std::uint32_t>(akis + 1 + sira); }
    std::uint32_t Difat(std::size_t sira) const { return Fat(fat + sira); }

    std::size_t akis;
    std::size_t fat = 0;
    std::size_t difat = 0;
};

/// The number of the FAT sector with that place in their list; nothing behind the last.
std::uint32_t FatYeri(const SektorPlani& plan, std::size_t sira) {
    return sira < plan.fat ? plan.Fat(sira) : kBos;
}

void BaslikEkle(std::string& dosya, const SektorPlani& plan) {
    dosya += "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
    dosya.append(16, '\0');
    for (const std::uint16_t sayi : {0x003E, 3, 0xFFFE}) // version, and the order of bytes
        SayiEkle(dosya, sayi);
    SayiEkle(dosya, kSektorKuvveti);
    SayiEkle(dosya, kKucukSektorKuvveti);
    dosya.append(10, '\0');
    SayiEkle(dosya, static_cast<std::uint32_t>(plan.fat));
    SayiEkle(dosya, plan.Dizin());
    SayiEkle(dosya, std::uint32_t{0});
    SayiEkle(dosya, static_cast<std::uint32_t>(kKucukSinir));
    SayiEkle(dosya, kZincirSonu); // there are no small sectors
    SayiEkle(dosya, std::uint32_t{0});
    SayiEkle(dosya, plan.difat > 0 ? plan.Difat(0) : kZincirSonu);
    SayiEkle(dosya, static_cast<std::uint32_t>(plan.difat));
    for (std::size_t i = 0; i < kBasliktakiFat; ++i)
        SayiEkle(dosya, FatYeri(plan, i));
}

struct DizinKaydi {
    MetinBakis ad;
    DizinTuru tur = kBosKayit;
    std::uint32_t cocuk = kBos;
    std::uint32_t ilkSektor = 0;
    std::size_t boy = 0;
};

void DizinEkle(std::string& dosya, const DizinKaydi& kayit) {
    const auto adBoyu = static_cast<std::uint16_t>(kayit.ad.empty() ? 0 : 2 * (kayit.ad.size() + 1));
    MetinEkle(dosya, kayit.ad);
    dosya.append(kDizinAdi - 2 * kayit.ad.size(), '\0');
    SayiEkle(dosya, adBoyu);
    SayiEkle(dosya, static_cast<std::uint8_t>(kayit.tur));
    SayiEkle(dosya, std::uint8_t{1}); // a black node: with one stream the tree has no more to say
    SayiEkle(dosya, kBos);
    SayiEkle(dosya, kBos);
    SayiEkle(dosya, kayit.cocuk);
    dosya.append(36, '\0'); // no class, no times
    SayiEkle(dosya, kayit.ilkSektor);
    SayiEkle(dosya, static_cast<std::uint64_t>(kayit.boy));
}

void FatEkle(std::string& dosya, const SektorPlani& plan) {
    for (std::size_t i = 1; i < plan.akis; ++i)
        SayiEkle(dosya, static_cast<std::uint32_t>(i));
    SayiEkle(dosya, kZincirSonu); // of the stream
    SayiEkle(dosya, kZincirSonu); // of the directory
    for (std::size_t i = 0; i < plan.fat; ++i)
        SayiEkle(dosya, kFatSektoru);
    for (std::size_t i = 0; i < plan.difat; ++i)
        SayiEkle(dosya, kDifatSektoru);
    for (std::size_t i = plan.Difat(plan.difat); i < plan.fat * kFatYeri; ++i)
        SayiEkle(dosya, kBos);
}

void DifatEkle(std::string& dosya, const SektorPlani& plan) {
    for (std::size_t i = 0; i < plan.difat; ++i) {
        for (std::size_t j = 0; j < kDifatYeri; ++j)
            SayiEkle(dosya, FatYeri(plan, kBasliktakiFat + i * kDifatYeri + j));
        SayiEkle(dosya, i + 1 < plan.difat ? plan.Difat(i + 1) : kZincirSonu);
    }
}

} // namespace

std::string BilesikDosya(MetinBakis ad, std::string akis) {
    akis.resize(std::max(akis.size(), kKucukSinir));
    const std::size_t boy = akis.size();
    const SektorPlani plan(boy);
    akis.resize(plan.akis * kSektor);
    std::string dosya;
    dosya.reserve((2 + plan.akis + plan.fat + plan.difat) * kSektor);
    BaslikEkle(dosya, plan);
    dosya += akis;
    DizinEkle(dosya, {.ad = u"Root Entry", .tur = kKok, .cocuk = 1, .ilkSektor = kZincirSonu});
    DizinEkle(dosya, {.ad = ad, .tur = kAkis, .boy = boy});
    DizinEkle(dosya, {});
    DizinEkle(dosya, {});
    FatEkle(dosya, plan);
    DifatEkle(dosya, plan);
    return dosya;
}

} // namespace velora
