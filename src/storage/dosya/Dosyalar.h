#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/Metin.h"
#include "storage/dosya/AdArama.h"
#include "storage/dosya/KlasorOkumasi.h"

namespace velora {

/// The separator of the paths inside the system. The file module turns it into the one of the machine.
inline constexpr char16_t kAyrac = u'\\';

class EylemDefteri;
class OkumaBellegi;
class OndenListe;
class YazmaAkisi;
struct Degisiklik;
struct EylemSahibi;

namespace sistem {
enum class Tur;
}

/// The longest file that any reader takes, in bytes. A longer one can't be read: whole it would only cost the
/// memory of the machine.
inline constexpr std::size_t kEnUzunOkuma = std::size_t{256} << 20U;

/// What has come of reading a file. `Yok`: its name isn't in its folder, or the folder isn't there. Whatever
/// else keeps it from being read, be it that it can't be told, is `Okunamadi`.
enum class Okunus { Okundu, Yok, Okunamadi };

/// The bytes are those of the whole file, or none.
struct OkumaSonucu {
    Okunus okunus = Okunus::Okunamadi;
    std::string bayt = {};
};

enum class DosyaIsi { VarMi, Listele, Oku, Yaz, Ekle, Kopyala, Sil, KlasorYap };

/// What came of a copy. A source that isn't there is no failure: there is nothing to copy.
enum class Kopyalanis { Olmadi, KaynakYok, Oldu };

/// The one door to the disk. Every path is a text: the root, then names with a backslash before each. A path
/// that doesn't lie below the root is refused: it must begin with the root, and none of its names may be "."
/// or "..", or hold a character that a name can't hold on any of the systems the program runs on, such as
/// "/", ":" or NUL. Neither may it be made of dots and blanks alone. An empty name between two separators is
/// passed over.
///
/// Nothing here throws and nothing is reported but by the return value: a failing step is passed over by its
/// caller. A name's bytes are UTF-8 on Linux and UTF-16 on Windows.
///
/// A tree may have been made on another system. Each name of a path is looked up as Windows would: one that
/// is there to the letter is taken, else the first in the order of listings that differs only in case, lies
/// there in the bytes of Windows-1254, or with its letters apart from their marks (`AdAnahtari`). Only where
/// none fits a new file or folder gets the name as it stands. Listings give all names in the program's own
/// form, and what they give can be opened.
class Dosyalar {
  public:
    explicit Dosyalar(const std::filesystem::path& kok);
    ~Dosyalar();

    /// Opens the journal of this tree in that folder (storage/gunluk/Gunluk) and completes what a death has
    /// cut through in an earlier run. From then on all that is written, appended, copied, deleted and made
    /// here stands in it first. Where none can be had, all goes on as without.
    void GunluguAc(const std::filesystem::path& klasor, EylemSahibi sahip);

    /// One action of a user, as long as this stands: the journal takes it as a whole, and a start after a
    /// death completes it or finds nothing of it. `ad` says what it is, in the user's words.
    ///
    /// `adimlar`, where it is known beforehand what will be written, makes the same calls as the handler
    /// does, and nothing else: while it runs, they touch nothing and tell the journal what is to come, so
    /// that one sync is enough for all. What comes otherwise then costs one each.
    class Eylem {
      public:
        Eylem(const Dosyalar& dosyalar, const Metin& ad, const std::function<void()>& adimlar = {});
        Eylem(const Eylem&) = delete;
        Eylem& operator=(const Eylem&) = delete;
        ~Eylem();

        /// For the innermost one: what of it was planned and not made is left to the next start, which does
        /// it unless a later action has touched the file. Without a journal it is never done.
        void SonrayaKalir() const;

      private:
        EylemDefteri* defter_;
    };

    /// As long as one stands, the journal takes no notice: for what can be made or fetched anew at any time.
    class GunlukDisi {
      public:
        explicit GunlukDisi(const Dosyalar& dosyalar);
        GunlukDisi(const GunlukDisi&) = delete;
        GunlukDisi& operator=(const GunlukDisi&) = delete;
        ~GunlukDisi();

      private:
        EylemDefteri* defter_;
    };

    /// As long as the first one stands, these folders are listed a little ahead of who opens them with
    /// `KlasorAc`, all or some of them, in this order: for who looks through many (storage/dosya/OndenListe).
    class Onden {
      public:
        /// Fewer aren't worth a thread.
        static constexpr std::size_t kEnAz = 128;

        Onden(const Dosyalar& dosyalar, const std::vector<Metin>& klasorler);
        Onden(const Onden&) = delete;
        Onden& operator=(const Onden&) = delete;
        ~Onden();

      private:
        const Dosyalar* dosyalar_ = nullptr; // null: nothing is listed ahead for this one
    };

    /// For tests and measurements: waits until all that was written stands on the medium and is marked in
    /// the journal, a time at most.
    bool GunluguBekle() const;
    /// For measurements: how long the handlers have waited for the medium so far.
    std::chrono::nanoseconds GunlukBeklemesi() const;

    /// The root, without a separator at its end.
    const Metin& Kok() const { return kok_; }

    /// True when a plain file of this name is there. A folder is none.
    bool VarMi(const Metin& yol) const;

    /// Names of the plain files of a folder, sorted by name without regard to case. A folder that isn't there
    /// lists nothing.
    std::vector<Metin> Listele(const Metin& klasor) const;

    /// The whole file. One longer than `kEnUzunOkuma` can't be read, and so can't a path that is refused.
    OkumaSonucu SonucluOku(const Metin& yol) const;

    /// The same for who doesn't ask why: nothing when it can't be opened or read.
    std::optional<std::string> Oku(const Metin& yol) const;

    /// Opens a folder for who reads its files. One that isn't there has none.
    KlasorOkumasi KlasorAc(const Metin& klasor) const;

    /// One file of a folder, as `KlasoruOku` hands it over. The views last until `ver` returns.
    struct OkunanDosya {
        MetinBakis ad;
        bool acildi; ///< false: it is there but can't be opened or read; `bayt` is empty
        std::string_view bayt;
    };

    /// Opens a folder and hands over each of its files, in the order of its names. A name that `istenen` says
    /// no to is passed over and not read.
    void KlasoruOku(const Metin& klasor, const std::function<void(const OkunanDosya&)>& ver,
                    const std::function<bool(MetinBakis ad)>& istenen = {}) const;

    /// Makes the file hold exactly these bytes. The old text is never emptied before the new one is down: the
    /// new one goes over it in a single write, filled up with line ends to the old length, and then the file
    /// is cut to its length. Room on the disk is taken beforehand where the system can do that; when there is
    /// none, the old text stays. A new file appears whole under its name where the system can do that; one
    /// whose text can't be put down is removed again. Another program that writes over the same file is
    /// waited for, a fifth of a second at most. False on failure.
    bool Yaz(const Metin& yol, std::string_view bayt) const;

    /// Makes a file that isn't there yet, as `Yaz` does. False, and nothing is changed, where one is there,
    /// whatever else can be told of it.
    bool Yarat(const Metin& yol, std::string_view bayt) const;

    /// Puts the bytes at the end of the file, which is made when missing. When they can't be put down whole,
    /// the file gets its old length back.
    bool Ekle(const Metin& yol, std::string_view bayt) const;

    /// Copies a file over another, with the care of `Yaz`. `ariza` is asked for the copy with the target's
    /// path, then for the reading and the writing in it.
    Kopyalanis Kopyala(const Metin& kaynak, const Metin& hedef) const;

    /// Opens a file to be written piece by piece, from `konum` on (storage/dosya/YazmaAkisi). Null when it
    /// can't be. `ariza` is asked for a writing here and at each piece; the stream must not outlive this.
    std::unique_ptr<YazmaAkisi> AkisAc(const Metin& yol, std::uint64_t konum = 0) const;

    /// Bytes that the disk of a path still has room for, there or not. Nothing when that can't be told.
    std::optional<std::uint64_t> BosAlan(const Metin& yol) const;

    /// False when it can't be removed, also when it isn't there.
    bool Sil(const Metin& yol) const;

    /// Makes one folder, the last name of the path. False when it can't, also when it is there already.
    bool KlasorYap(const Metin& yol) const;

    /// Where a file lies, in the words of the system, for another program. Nothing for a path that is
    /// refused.
    std::optional<std::filesystem::path> SistemYolu(const Metin& yol) const;

    /// Whether two paths lead to one and the same folder. False when one isn't there.
    bool AyniKlasor(const Metin& bir, const Metin& iki) const;

    /// For tests: how many files of folders have been read from the disk.
    std::size_t Okunan() const { return okunan_; }
    /// For tests: what is kept of folders.
    OkumaBellegi& Bellek() const { return *bellek_; }
    /// For tests: what is listed ahead. Null: nothing.
    const OndenListe* Ondekiler() const { return onden_.get(); }

    /// For tests: how many folders were listed to find a name that isn't there to the letter.
    std::size_t AramadaListelenen() const { return arama_.Listelenen(); }

    /// Runs before each file that is read or asked for, and before each folder. It works on no file.
    std::function<void()> okurken;

    /// For tests: asked before each piece of work; where it says true, that work fails as it would on a bad
    /// disk.
    std::function<bool(DosyaIsi, const Metin& yol)> ariza;
    /// For tests: room that is left on the disk, in bytes that a write or a stream may still add.
    std::optional<std::size_t> bosYer;

  private:
    friend class KlasorOkumasi;
    std::optional<std::vector<std::filesystem::path>> Adlar(const Metin& yol) const;
    std::optional<std::filesystem::path> Bul(const Metin& yol, sistem::Tur tur) const;
    std::optional<std::filesystem::path> Cevir(DosyaIsi is, const Metin& yol) const;
    template <class Yap>
    bool Adim(DosyaIsi is, const Metin& yol, const Degisiklik& degisiklik, Yap yap) const;

    std::filesystem::path kokYolu_;
    Metin kok_;
    std::unique_ptr<EylemDefteri> defter_; // none: there is no journal
    mutable AdArama arama_;                // remembers listings
    mutable std::size_t okunan_ = 0;
    std::unique_ptr<OkumaBellegi> bellek_; // of the folders that were read
    mutable std::unique_ptr<OndenListe> onden_;
};

/// An action whose steps are known beforehand and follow each other at once: plans them, then makes them.
inline void EylemleYap(const Dosyalar& dosyalar, const Metin& ad, const std::function<void()>& adimlar) {
    const Dosyalar::Eylem eylem(dosyalar, ad, adimlar);
    adimlar();
}

/// True when two names, in the form that listings give them, are the same but for their case.
bool AyniAd(MetinBakis bir, MetinBakis iki);

/// The order of listings: by name, without regard to case.
bool AdSirasi(MetinBakis bir, MetinBakis iki);

/// A path's text and back; lossless. Nothing comes back for a text that no path can hold.
Metin YolMetni(const std::filesystem::path& yol);
std::optional<std::filesystem::path> MetinYolu(MetinBakis metin);

} // namespace velora
