#pragma once

#include <cstdint>
#include <optional>
#include <tuple>
#include <vector>

#include "storage/Metin.h"
#include "storage/dosya/Sistem.h"

namespace velora {

/// The names of a folder as the disk has them, all in one piece of memory: a listing of thousands costs no
/// memory call for each, and a name becomes a text only when somebody asks for it.
class AdListesi {
  public:
    /// Takes a name as it stands on the disk, and the number of its file.
    void Ekle(const sistem::ListeOgesi& oge);

    /// Puts the names into the order of `AdSirasi`. Of equal ones the one that stands so on the disk comes
    /// first. Whatever asks for a name by its place, or for its place, comes behind it.
    void Sirala() {
        if (adlar_.size() != gelenler_.size())
            Diz();
    }

    std::size_t Sayi() const { return gelenler_.size(); }
    /// In the form of the program's own names (`AdDuzelt`). It lasts until another one is asked for.
    MetinBakis operator[](std::size_t i) const;
    /// As it stands on the disk. A zero follows it.
    sistem::DiskAdi Diskteki(std::size_t i) const { return Bakis(gelenler_[adlar_[i].gelen]); }

    /// The number of its file, 0 for none.
    std::uint64_t No(std::size_t i) const { return gelenler_[adlar_[i].gelen].no; }

    /// Whether the `i`th ends with these letters of seven bits. That costs no text.
    bool Biter(std::size_t i, MetinBakis son) const;

    /// Whether the one behind the `i`th is surely called as that one and with these letters of seven bits
    /// behind it. Neither becomes a text.
    bool EsiArkada(std::size_t i, MetinBakis ek) const;

    /// Whether the `i`th has the same first letters as the one before it, all of them of seven bits. That
    /// costs none either: it spares who goes by these letters alone the names of a day behind the first.
    bool BasiAyni(std::size_t i, std::size_t boy) const;

    /// Whether this one was added as the `i`th, whatever its place is by now.
    bool Gelen(std::size_t i, const sistem::ListeOgesi& oge) const {
        return i < gelenler_.size() && gelenler_[i].no == oge.no && Bakis(gelenler_[i]) == oge.ad;
    }
    /// How the one that was added as the `i`th stands on the disk.
    sistem::DiskAdi GelenAd(std::size_t i) const { return Bakis(gelenler_[i]); }
    /// Adds those that were added first to another one, in that order.
    void BastanEkle(const AdListesi& baska, std::size_t adet);

    /// The place of this name; else of the first that differs from it only in case.
    std::optional<std::size_t> Bul(MetinBakis ad) const;

    /// What it holds in memory.
    std::size_t Bayt() const;

  private:
    /// Eight bytes each: the name of a day's companion fits in as far as it differs from the others.
    struct Anahtar {
        std::uint64_t bas;
        std::uint64_t orta;
        std::uint64_t son;
        bool operator==(const Anahtar&) const = default;
        bool operator<(const Anahtar& iki) const {
            return std::tie(bas, orta, son) < std::tie(iki.bas, iki.orta, iki.son);
        }
    };
    static constexpr std::size_t kYok = static_cast<std::size_t>(-1);
    struct Yer {
        std::uint64_t no;
        std::uint32_t bas;
        std::uint32_t uzunluk;
    };
    struct Ad {
        Anahtar anahtar;     ///< the first letters without their case; orders as the names do
        std::uint32_t gelen; ///< its place in the order of coming
        bool sade;           ///< each letter stands for itself: nothing is changed for the program's form
    };

    sistem::DiskAdi Bakis(const Yer& yer) const {
        return sistem::DiskAdi(harfler_).substr(yer.bas, yer.uzunluk);
    }
    sistem::DiskAdi Bakis(const Ad& ad) const { return Bakis(gelenler_[ad.gelen]); }
    void Diz();
    template <class Okuyan>
    static Anahtar AnahtarYap(Okuyan harfler);
    std::optional<Anahtar> HizliAnahtar(const Yer& ad) const;
    bool Once(const Ad& bir, const Ad& iki) const;

    std::basic_string<sistem::AdHarfi> harfler_; // with a zero behind each
    std::vector<Yer> gelenler_;
    std::vector<Ad> adlar_;
    mutable Metin okunan_;
    mutable std::size_t okunanSira_ = kYok; ///< the name that `okunan_` is
};

} // namespace velora
