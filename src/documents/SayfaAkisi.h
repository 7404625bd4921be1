#pragma once

#include <span>

#include "screen/Sayfa.h"

namespace velora {

/// What stands in a place of its own: how large its text is, and how small it may get.
struct AlanBicimi {
    SayfaYazisi yazi{};
    Hiza hiza = Hiza::Sol;
    double enKucuk = 7; ///< points
};

/// Fills pages from the top to the bottom. What is put on is never cut off and never lies over anything else:
/// a text gets smaller down to its limit, then its place gets higher, then a new page begins.
class SayfaAkisi {
  public:
    /// With so much kept free at the foot of each page, and on each side `kenar`: more than the paper's own
    /// margin, where a frame is put around all of it.
    explicit SayfaAkisi(YaziOlcer olcer, double altlik = 0, double kenar = kKenar)
        : olcer_(std::move(olcer)), altlik_(altlik), kenar_(kenar), ust_(kenar) {}

    static constexpr double kKenar = 15; ///< what stays free on each side of the paper

    static constexpr double kEn = kSayfaEni - 2 * kKenar;

    /// A text of a block that isn't on a page yet; `yer` counts from the block's upper left corner. It gets
    /// smaller until it fits; at its smallest the place grows instead.
    SayfaParcasi Parca(Metin ad, MetinBakis metin, const SayfaYeri& yer, const AlanBicimi& bicim) const;
    /// A row of one sign, as long as the width allows: dots to write on, a rule.
    Metin Sira(char16_t isaret, double en, const SayfaYazisi& yazi) const;
    /// Puts a block, of parts whose places count from its corner, under what is there, on a new page when the
    /// rest of this one is too low.
    void Koy(std::vector<SayfaParcasi> blok);
    /// The same at the bottom of the page; on a new one at its top.
    void DibeKoy(std::vector<SayfaParcasi> blok);
    /// Puts a text over the whole width, line by line: a new page may begin within it.
    void Akit(const Metin& ad, MetinBakis metin, const SayfaYazisi& yazi);
    /// The same with a text that is broken already, as far from the left as its place says; what is `yaninda`
    /// stands beside its first line.
    void Akit(const SayfaParcasi& parca, std::vector<SayfaParcasi> yaninda = {});
    /// Begins a new page unless so much is free under what is there: for a heading, which needs lines of its
    /// text beside it.
    void YerAc(double boy);
    /// Leaves so much free under what is there.
    void Bosluk(double boy) { ust_ += boy; }
    /// Where the next one goes, from the upper edge of the paper.
    double Ust() const { return ust_; }

    /// Writes a text and its number, "2 / 3", at the foot of each page, where there has to be room.
    void Numarala(MetinBakis metin);

    const std::vector<Sayfa>& Sayfalar() const { return sayfalar_; }

  private:
    double Kalan() const;

    YaziOlcer olcer_;
    double altlik_;
    double kenar_;
    std::vector<Sayfa> sayfalar_{Sayfa{}};
    double ust_;
};

/// The lower edge of the lowest of some parts.
double EnAlt(std::span<const SayfaParcasi> parcalar);

} // namespace velora
