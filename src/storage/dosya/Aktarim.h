#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// How bytes go to an open file and come from it. The file is any type with the members of
/// `sistem::AcikDosya`, so that tests can put one in its place that breaks.
namespace velora {

/// A longer file is no record of ours. It is written over without the care that needs it in memory.
inline constexpr std::uint64_t kEnUzunKayit = 16U << 20U;

inline constexpr std::size_t kOkumaTamponu = 64U << 10U;

/// The blocks and pages that systems and networks read by are multiples of it.
inline constexpr std::size_t kEnKucukBlok = 512;

/// Reads with `oku(hedef, adet)` into the buffer until the end or up to `enCok` bytes, and returns how many
/// came. What comes short of what was asked for is taken for the end, so that a short file costs one call,
/// unless `sonu(dolu)` says that it can't be: then it is asked for more.
template <class Okur, class Son>
std::optional<std::size_t> Doldur(std::string& tampon, std::size_t enCok, Okur oku, Son sonu) {
    std::size_t dolu = 0;
    while (dolu < enCok) {
        if (dolu == tampon.size())
            tampon.resize(std::min(enCok, std::max(kOkumaTamponu, 2 * dolu)));
        const std::size_t istenen = std::min(tampon.size(), enCok) - dolu;
        const std::optional<std::size_t> gelen = oku(tampon.data() + dolu, istenen);
        if (!gelen)
            return {};
        dolu += *gelen;
        if (*gelen == 0 || (*gelen < istenen && sonu(dolu)))
            break;
    }
    return dolu;
}

/// Whether a read that came short so far may have come to the end. A system may break one off before: a disk
/// that fails in the middle gives what lies before, up to the border of a block, and fails at the next call.
/// Every text of ours ends with a line.
inline bool SonuOlabilir(std::string_view okunan) {
    return okunan.ends_with('\n') && okunan.size() % kEnKucukBlok != 0;
}

/// Reads a whole file as `Doldur` does. Nothing when it is longer than `enCok`. A short file, and that is
/// every record, isn't asked for its length: `boyu()` is called only for what one buffer doesn't hold, and
/// where one read may have been broken off.
template <class Boy, class Okur>
std::optional<std::size_t> SinirliDoldur(std::string& tampon, std::size_t enCok, Boy boyu, Okur oku) {
    bool ilk = true;
    const auto sinirliOku = [&](char* hedef, std::size_t adet) {
        const bool uygun = ilk || boyu().value_or(enCok + 1) <= enCok;
        ilk = false;
        return uygun ? oku(hedef, adet) : std::nullopt;
    };
    const auto okunan = Doldur(tampon, enCok, sinirliOku, [&](std::size_t dolu) {
        return SonuOlabilir(std::string_view(tampon).substr(0, dolu));
    });
    // Full to the limit by a first buffer that was as large: there may be more.
    return okunan == enCok && boyu().value_or(enCok + 1) > enCok ? std::nullopt : okunan;
}

/// Reads an open file of that length from its beginning, as `Doldur` does. What comes short of the length
/// isn't taken for the end.
template <class Dosya>
std::optional<std::size_t> OkuHepsini(Dosya& dosya, std::size_t enCok, std::string& tampon, std::size_t boy) {
    std::uint64_t konum = 0;
    const auto oku = [&](char* hedef, std::size_t adet) {
        const std::optional<std::size_t> gelen = dosya.Oku(konum, hedef, adet);
        konum += gelen.value_or(0);
        return gelen;
    };
    return Doldur(tampon, enCok, oku, [boy](std::size_t dolu) { return dolu >= boy; });
}

/// Writes again and again until all is down. False when the file takes no more.
template <class Dosya>
bool HepsiniYaz(Dosya& dosya, std::uint64_t konum, std::string_view bayt) {
    while (!bayt.empty()) {
        const std::size_t giden = dosya.Yaz(konum, bayt);
        if (giden == 0)
            return false;
        konum += giden;
        bayt.remove_prefix(giden);
    }
    return true;
}

/// Makes an old file hold the new text. At no moment is it empty. Where the system takes a write in one piece
/// it holds the old text at every moment, or the new one with line ends behind it; a longer one, from some
/// KiB on, a death can cut at a border of the system's pages, and what stands on the medium when the power
/// goes nobody knows. False when that can't be: then the old text stands again, as far as the file still
/// takes it.
template <class Dosya>
bool UzerineYaz(Dosya& dosya, std::string_view yeni) {
    const std::optional<std::uint64_t> boy = dosya.Boy();
    if (!boy || (yeni.size() > *boy && !dosya.YerAyir(yeni.size())))
        return false;
    std::string eski;
    std::string metin(yeni);
    if (*boy <= kEnUzunKayit) {
        const auto eskiBoy = static_cast<std::size_t>(*boy);
        const auto okunan = OkuHepsini(dosya, eskiBoy, eski, eskiBoy);
        eski.resize(okunan.value_or(0));
        metin.resize(std::max(metin.size(), eskiBoy), '\n');
    }
    if (HepsiniYaz(dosya, 0, metin) && (yeni.size() >= *boy || dosya.Kes(yeni.size())))
        return true;
    HepsiniYaz(dosya, 0, eski);
    dosya.Kes(*boy);
    return false;
}

/// Puts the bytes behind the last one. False when that can't be: the file then has its old length again.
template <class Dosya>
bool SonunaYaz(Dosya& dosya, std::string_view bayt) {
    const std::optional<std::uint64_t> boy = dosya.Boy();
    if (!boy)
        return false;
    if (HepsiniYaz(dosya, *boy, bayt))
        return true;
    dosya.Kes(*boy);
    return false;
}

/// A file on a disk with little room: it can grow by `yer` bytes and no more.
template <class Dosya>
class DarDosya {
  public:
    DarDosya(Dosya& dosya, std::size_t yer) : dosya_(dosya), sinir_(dosya.Boy().value_or(0) + yer) {}

    auto Boy() const { return dosya_.Boy(); }
    auto Oku(std::uint64_t konum, char* hedef, std::size_t adet) { return dosya_.Oku(konum, hedef, adet); }
    bool YerAyir(std::uint64_t boy) { return boy <= sinir_ && dosya_.YerAyir(boy); }
    bool Kes(std::uint64_t boy) { return dosya_.Kes(boy); }
    std::size_t Yaz(std::uint64_t konum, std::string_view bayt) {
        const std::uint64_t yer = sinir_ > konum ? sinir_ - konum : 0;
        bayt = bayt.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(bayt.size(), yer)));
        return bayt.empty() ? 0 : dosya_.Yaz(konum, bayt);
    }

  private:
    Dosya& dosya_;
    std::uint64_t sinir_;
};

} // namespace velora
