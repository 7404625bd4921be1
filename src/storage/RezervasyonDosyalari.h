#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "storage/Koken.h"
#include "storage/Metin.h"
#include "storage/YazimBicimi.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The values of the main file, by their numbers: 1 to 18 are the fields `Kay1` to `Kay18`.
struct AnaNo {
    enum No : int {
        AdiSoyadi = 1,
        Yoresi,
        GelinDamat,
        Niteligi,
        Telefon,
        Cep,
        Adres,
        ToplamUcret,
        AlinanOdeme,
        KalanOdeme,
        OnAciklama,
        BaslamaSaati,
        SozlesmeTarihi,
        SozlesmeNo,
        BitisSaati,
        KimlikNo,
        DavetliSayisi,
        HatirlatmaTarihi,
        YaklasincaHatirlat, ///< `Check18`
        BuTarihteHatirlat   ///< `Check19`
    };
};

inline constexpr int kHizmetSayisi = 17;

/// The values of the details file, by their numbers. The services and their notes come first, in the order of
/// the services.
struct DetayNo {
    enum No : int {
        IlkHizmet = 1,                             ///< `Check1` to `Check17`
        IlkHizmetNotu = IlkHizmet + kHizmetSayisi, ///< `TT1` to `TT17`
        Aciklamalar = IlkHizmetNotu + kHizmetSayisi,
        KesinRezervasyon, ///< `Option1`
        OnRezervasyon,    ///< `Option2`
        MenuAdi,          ///< `Combo1`
        MenuIcerigi       ///< `Label20`
    };
};

inline constexpr int kAnaDegerSayisi = AnaNo::BuTarihteHatirlat;
inline constexpr int kDetayDegerSayisi = DetayNo::MenuIcerigi;
static_assert(kAnaDegerSayisi == 20 && kDetayDegerSayisi == 39);

/// The empty masks, as the screen holds and the files store them.
inline constexpr MetinBakis kBosTarih = u"__.__.____";
inline constexpr MetinBakis kBosSaat = u"__:__";

/// The main file as a list of untyped values, in the order of the file: `deger[0]` is value 1.
/// Its life is the life of the values: what a reading can't fill stays from the reading before.
struct AnaDegerler {
    std::array<Metin, kAnaDegerSayisi> deger;

    /// The value with this number (`AnaNo`), 1 to 20.
    const Metin& No(int no) const { return deger[static_cast<std::size_t>(no - 1)]; }
};

/// The details file as a list of untyped values, 1 to 39 (`DetayNo`).
struct DetayDegerler {
    std::array<Metin, kDetayDegerSayisi> deger;
    const Metin& No(int no) const { return deger[static_cast<std::size_t>(no - 1)]; }
};

/// Some of the values of a record, by their numbers in the file, ascending: who reads thousands of files
/// makes texts of what he wants alone. Its life is the life of the values, as above.
template <int... Numaralar>
struct SecilenDegerler {
    static constexpr std::array<int, sizeof...(Numaralar)> kNumaralar{Numaralar...};
    static_assert(std::is_sorted(kNumaralar.begin(), kNumaralar.end()));
    std::array<Metin, sizeof...(Numaralar)> deger;

    const Metin& No(int no) const {
        // Of a number that stands in the program no searching is left.
        std::size_t yer = 0;
        while (kNumaralar[yer] != no)
            ++yer;
        return deger[yer];
    }
};

struct Odeme {
    Metin tarih; ///< dd.mm.yyyy
    Metin tutar; ///< a plain number in text form
    Metin aciklama;
};

/// Fills what the bytes of a file hold, in order, leaves the rest as it was, and says how many values it
/// filled.
int DegerleriAl(std::string_view bayt, AnaDegerler& hedef);
int DegerleriAl(std::string_view bayt, DetayDegerler& hedef);

/// The same of the values with these numbers alone, ascending: `hedef` has one place for each of them. How
/// many of them it filled.
std::size_t DegerleriAl(std::string_view bayt, std::span<const int> numaralar, std::span<Metin> hedef);
template <int... Numaralar>
std::size_t DegerleriAl(std::string_view bayt, SecilenDegerler<Numaralar...>& hedef) {
    return DegerleriAl(bayt, hedef.kNumaralar, hedef.deger);
}

/// Each does that with a file. Nothing when the file can't be opened or read. Who writes back what was read
/// gives each file a `koken` of its own.
std::optional<int> AnaOku(const Dosyalar& dosyalar, const Metin& yol, AnaDegerler& hedef,
                          Koken* koken = nullptr);
std::optional<int> DetayOku(const Dosyalar& dosyalar, const Metin& yol, DetayDegerler& hedef,
                            Koken* koken = nullptr);
/// Adds the payments of the file to the list. A payment whose date is blank adds nothing. False when the file
/// can't be opened or read.
bool OdemeOku(const Dosyalar& dosyalar, const Metin& yol, std::vector<Odeme>& hedef, Koken* koken = nullptr);

/// Main record: every double quote goes, every comma becomes a full stop.
Metin AnaTemizle(MetinBakis metin);
/// Details: every comma becomes a full stop, every double quote an apostrophe.
Metin DetayTemizle(MetinBakis metin);

/// A main record to be written. `Kay` texts are written as they are: clean them before, on the fields.
struct AnaKayit {
    std::array<Metin, 18> kay; ///< `kay[0]` is `Kay1`
    int check18 = 1;
    int check19 = 0;
};

/// A details record to be written. Notes and free text are cleaned while writing, the menu's two texts are
/// not.
struct DetayKaydi {
    std::array<int, kHizmetSayisi> check{};
    std::array<Metin, kHizmetSayisi> tt;
    Metin aciklamalar;
    bool option1 = true;  ///< firm
    bool option2 = false; ///< pre-reservation
    Metin combo1;
    Metin label20;
};

std::string AnaBayt(const AnaKayit& kayit);
/// 38 lines: each value on its own, 36 and 37 on one line.
std::string DetayBayt(const DetayKaydi& kayit);
std::string OdemeBayt(const std::vector<Odeme>& odemeler);

// Each of these refuses a path without a day, and where it takes a `koken` one that lets nothing be written:
// false, and nothing on the disk changes. The companions' paths have their word behind the day's.

bool AnaYaz(const Dosyalar& dosyalar, const Metin& yol, const AnaKayit& kayit, const Koken& koken = {});
bool DetayYaz(const Dosyalar& dosyalar, const Metin& yol, const DetayKaydi& kayit, const Koken& koken = {});
/// An empty list leaves no file.
bool OdemeYaz(const Dosyalar& dosyalar, const Metin& yol, const std::vector<Odeme>& odemeler,
              const Koken& koken = {});
/// Makes an empty file of payments, or leaves the one that is there.
bool OdemeHazirla(const Dosyalar& dosyalar, const Metin& yol);

// These two take the path of the main file and pass over each step that fails. False is a refusal alone.

/// Copies the three files to the names of another day, then deletes those under the old ones that have come
/// there.
bool RezervasyonTasi(const Dosyalar& dosyalar, const Metin& kaynak, const Metin& hedef);
bool RezervasyonSil(const Dosyalar& dosyalar, const Metin& yol);

} // namespace velora
