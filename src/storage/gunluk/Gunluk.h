#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "storage/dosya/Sistem.h"
#include "storage/gunluk/GunlukKaydi.h"

namespace velora {

/// The journal of one data tree: one file in a folder outside of it, for its owner's eyes alone. An action
/// stands in it, on the medium, before its steps begin, and is marked when they stand on the medium
/// themselves. Behind that it is history.
///
/// Whatever of it fails, the caller goes on without it. It can be used from two threads.
class Gunluk {
  public:
    /// How much is kept of what is done: the last so many actions, and no more bytes than that in all.
    static constexpr std::size_t kEnAzEylem = 1000;
    static constexpr std::uint64_t kEnCokBayt = 16U << 20U;

    /// Opens the journal of the tree at `kok`; it and its folder are made when missing. One that is damaged,
    /// or another tree's, is set aside as a file beside it. Null when none can be had: the folder can't be
    /// written, or another program has the journal.
    static std::shared_ptr<Gunluk> Ac(const std::filesystem::path& klasor, const std::filesystem::path& kok);

    /// Where the journal of a tree lies.
    static std::filesystem::path Yol(const std::filesystem::path& klasor, const std::filesystem::path& kok);

    /// The actions of earlier runs that aren't done, in their order. A file that a later action has touched,
    /// which is done, is that one's: the steps on it are left out.
    const std::vector<EylemKaydi>& YarimKalanlar() const { return yarimlar_; }

    /// Puts an action down and waits until it stands on the medium; `kayit.no` is given here. Its number, or
    /// nothing when that can't be: then it isn't in the journal.
    std::optional<std::uint64_t> Basla(EylemKaydi kayit);
    /// The same with more steps of an action.
    bool Ekle(std::uint64_t no, std::vector<EylemAdimi> adimlar);
    /// Marks an action. The mark isn't waited for: one that is lost costs the next start a look.
    void Bitti(std::uint64_t no);
    /// Keeps what was done for an action of an earlier run.
    void Onarildi(OnarimKaydi kayit);
    /// For measurements: how long was waited for the medium so far.
    std::chrono::nanoseconds Beklenen() const { return beklenen_; }
    /// Forgets the oldest of what is done, when there is more than is to be kept.
    void Kisalt();

  private:
    struct Yeri {
        bool eylem; ///< the record that an action begins with
        std::uint64_t no;
        std::uint64_t konum;
        std::uint64_t boy;
    };
    enum class Icindeki { Saglam, Bozuk, Okunamadi };

    Gunluk(std::filesystem::path yol, std::string bas) : yol_(std::move(yol)), bas_(std::move(bas)) {}
    bool Hazirla();
    Icindeki Oku();
    bool BasiYaz();
    std::size_t Coz(std::string_view bayt);
    bool Esitle();
    bool Koy(std::uint64_t no, const GunlukKaydi& kayit, bool bekle);
    std::set<std::uint64_t> Kalacaklar() const;
    bool YerineKoy(const std::string& bayt);

    const std::filesystem::path yol_;
    const std::string bas_;
    std::mutex kilit_;
    std::unique_ptr<sistem::AcikDosya> dosya_;
    std::uint64_t boy_ = 0;
    std::uint64_t sonNo_ = 0;
    std::vector<Yeri> yerler_;     // of the records, in their order
    std::size_t eylemSayisi_ = 0;  // in them
    std::set<std::uint64_t> acik_; // actions without a mark
    std::vector<EylemKaydi> yarimlar_;
    std::atomic<std::chrono::nanoseconds> beklenen_{};
};

} // namespace velora
