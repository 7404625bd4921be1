#pragma once

#include <array>
#include <cassert>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

#include "storage/Metin.h"
#include "storage/Tarih.h"

namespace velora {

/// A colour as the files hold it: red in the low byte, then green, then blue.
using RenkDegeri = std::int32_t;

inline constexpr RenkDegeri kBeyaz = 0xFFFFFF;

/// Items numbered from 1, as the fields of the screens are.
template <class T, std::size_t Adet>
class BirTabanli {
  public:
    static constexpr int kAdet = static_cast<int>(Adet);

    T& operator[](int no) { return ogeler_[Sira(no)]; }
    const T& operator[](int no) const { return ogeler_[Sira(no)]; }
    auto begin() { return ogeler_.begin(); }
    auto end() { return ogeler_.end(); }
    auto begin() const { return ogeler_.begin(); }
    auto end() const { return ogeler_.end(); }
    bool operator==(const BirTabanli&) const = default;

  private:
    static std::size_t Sira(int no) {
        assert(no >= 1 && no <= kAdet);
        return static_cast<std::size_t>(no - 1);
    }
    std::array<T, Adet> ogeler_{};
};

/// Where something stands on its screen, in twips (15 twips are one logical pixel).
struct Yer {
    double sol = 0;
    double ust = 0;
    double genislik = 0;
    double yukseklik = 0;

    double Sag() const { return sol + genislik; }
    double Alt() const { return ust + yukseklik; }
    bool operator==(const Yer&) const = default;
};

// What stands on a control or beside it is the screen's to say, a window shows it. Where no label stands
// beside a field, its `baslik` is what the field is called for those who can't see it.

struct Etiket {
    Metin baslik; ///< its text
    bool gorunur = true;
    RenkDegeri zemin = kBeyaz;
    RenkDegeri yazi = 0;
    Yer yer{};
    Metin once{};  ///< what a text that changes says: stands before it
    Metin sonra{}; ///< stands behind it, as "TL"

    bool operator==(const Etiket&) const = default;
};

struct MetinKutusu {
    Metin metin;
    bool etkin = true;
    bool kilitli = false;
    bool beyazZemin = true; ///< false: the grey of a field that can't be used
    int enUzun = 0; ///< characters that typing may reach; 0 for no limit. Text set by code stands whole.
    /// "#" for a digit, all else stands as it is; empty for a box without a mask. `metin` holds the prompt
    /// signs ("_") too: an empty "##:##" is "__:__".
    Metin maske;
    bool yildizli = false;      ///< shows "*" for each character
    bool odaktaSecilir = false; ///< its whole text is selected when it gets the focus
    /// The characters that typing and pasting let through; null for all of them.
    bool (*suzgec)(char16_t) = nullptr;
    std::vector<Metin> ogeler{}; ///< what an editable list offers to choose from
    Metin baslik{};              ///< its label
    Metin sonra{};               ///< stands behind it, as "TL"
};

/// A box with a tick. `deger` is 0 or 1; a file may bring another number, which then stands as it is.
struct OnayKutusu {
    int deger = 0;
    bool etkin = true;
    std::function<void()> tiklandi; ///< the screen's handler, set by the screen
    Metin baslik;

    /// Gives the box a value. The handler runs only when the value is another one.
    void Ata(int yeni) {
        if (yeni == deger)
            return;
        deger = yeni;
        if (tiklandi)
            tiklandi();
    }
};

struct Dugme {
    Metin baslik;
    Metin ipucu;
    bool etkin = true;
    bool gorunur = true;
    bool aradaDa = false; ///< its press counts also while the work of another one on its screen goes on
};

/// How far a work has come: `deger` of `enCok` steps. An `enCok` of 0: nothing was to be done.
struct IlerlemeCubugu {
    int enCok = 0;
    int deger = 0;
    Metin baslik{};     ///< what it is called
    bool yuzde = false; ///< it says how many per cent are done, not how many steps

    bool operator==(const IlerlemeCubugu&) const = default;
};

/// An entry of a menu.
struct MenuGirdisi {
    Metin baslik;
    bool etkin = true;
    bool gorunur = true;
};

struct TarihSecici {
    Gun deger{};
    std::optional<Gun> enKucuk;      ///< the first day that can be chosen; with none, any day
    std::optional<Gun> enBuyuk;      ///< the last one
    Metin baslik{};                  ///< its label
    std::function<void()> degisti{}; ///< the screen's handler for another day, set by the screen

    /// What the user picks: the handler runs only for another day.
    void Sec(const Gun& gun);
    /// From here on only the days from `ilk` to `son` can be chosen. A value outside goes to the nearer end.
    void Sinirla(const Gun& ilk, const Gun& son);
};

/// A list to choose one entry from.
struct AcilirListe {
    std::vector<Metin> ogeler;
    int secili = -1; ///< index of the chosen entry, -1 for none
    Metin serbest;   ///< with no entry chosen: the text that stands in the field all the same
    bool etkin = true;
    std::function<void()> tiklandi; ///< the screen's handler, set by the screen
    Metin baslik{};                 ///< its label
    Metin bosYazi{};  ///< stands in the field while there is nothing to choose; never the list's text
    Metin bosIpucu{}; ///< what can be done about that

    /// What the field shows: the chosen entry or the free text.
    Metin Metni() const { return secili < 0 ? serbest : ogeler[static_cast<std::size_t>(secili)]; }
    /// Index of the first entry of that text, -1 when there is none.
    int Bul(MetinBakis metin) const;

    /// Chooses another entry and runs the handler. The entry already chosen, or one that isn't there:
    /// nothing.
    void Sec(int sira);
    /// What the user picks, also the entry already chosen: chooses it and runs the handler. One that isn't
    /// there: nothing.
    void Tikla(int sira);
    /// As `Sec`, by its text. An unlisted text leaves the choice and runs nothing.
    void Sec(MetinBakis metin);
    /// Chooses by its text and runs nothing; an unlisted text leaves the choice.
    void SessizSec(MetinBakis metin);
    /// Takes the text as it stands, listed or not, and runs nothing.
    void MetinAta(MetinBakis metin);
    /// Takes an entry out and runs nothing. The choice stays on its entry; with the chosen one gone nothing
    /// is chosen. An index that isn't there: nothing.
    void Sil(int sira);
};

/// The buttons of a screen that work on what is marked in a list. The screen says when they can be pressed:
/// on a mark that the user made, and no more after their work.
struct SecimDugmeleri {
    std::vector<Dugme*> dugmeler;

    void Ac(bool acik) const {
        for (Dugme* dugme : dugmeler)
            dugme->etkin = acik;
    }
};

/// A list on the screen, one entry of which can be marked.
struct ListeKutusu {
    std::vector<Metin> ogeler;
    int secili = -1; ///< index of the marked entry, -1 for none
    Metin baslik{};  ///< its label
    SecimDugmeleri secimDugmeleri{};

    /// The marked entry's text, empty for none.
    Metin Metni() const { return secili < 0 ? Metin() : ogeler[static_cast<std::size_t>(secili)]; }
    /// As `AcilirListe::Sil`.
    void Sil(int sira);
};

struct ListeSatiri {
    std::vector<Metin> sutun; ///< column texts
    Metin tag;
    RenkDegeri yazi = 0;
    bool kalin = false; ///< in bold: what only its colour would tell

    bool operator==(const ListeSatiri&) const = default;
};

/// The column texts of a row. A braced list would copy each of them once more.
template <class... Metinler>
std::vector<Metin> Sutunlar(Metinler&&... metinler) {
    std::vector<Metin> sutunlar;
    sutunlar.reserve(sizeof...(metinler));
    (sutunlar.emplace_back(std::forward<Metinler>(metinler)), ...);
    return sutunlar;
}

/// The rows of a list. They count their changes: a window shows thousands of them and asks many times a
/// second whether it still shows the right ones.
class SatirListesi {
  public:
    using value_type = ListeSatiri;
    using const_iterator = std::vector<ListeSatiri>::const_iterator;

    SatirListesi() = default;
    SatirListesi(std::initializer_list<ListeSatiri> satirlar) : satirlar_(satirlar) {}
    SatirListesi(std::vector<ListeSatiri> satirlar) : satirlar_(std::move(satirlar)) {}
    SatirListesi(const SatirListesi&) = default;
    SatirListesi(SatirListesi&&) = default;
    ~SatirListesi() = default;
    /// Other rows, also when they are equal to those before: one change.
    SatirListesi& operator=(SatirListesi oteki);

    std::size_t size() const { return satirlar_.size(); }
    bool empty() const { return satirlar_.empty(); }
    const ListeSatiri& operator[](std::size_t sira) const { return satirlar_[sira]; }
    const ListeSatiri& at(std::size_t sira) const { return satirlar_.at(sira); }
    const_iterator begin() const { return satirlar_.begin(); }
    const_iterator end() const { return satirlar_.end(); }

    void push_back(ListeSatiri satir);
    void erase(std::size_t sira);
    void clear();
    /// Puts another row in the place of one.
    void Degistir(std::size_t sira, ListeSatiri satir);

    /// How often they have changed: the same number, the same rows.
    std::uint64_t Degisme() const { return degisme_; }

  private:
    std::vector<ListeSatiri> satirlar_;
    std::uint64_t degisme_ = 0;
};

/// A row that was marked, as it is known again in rows made anew.
struct IsaretliSatir {
    Metin tag;
    Metin ilkSutun;
    std::ptrdiff_t oncekiler = 0; ///< rows of the same tag and column before it

    bool Bu(const ListeSatiri& satir) const {
        return satir.tag == tag && !satir.sutun.empty() && satir.sutun.front() == ilkSutun;
    }
};

/// How a list's rows were sorted last: by which column, from 0; -1: not at all.
struct ListeSirasi {
    int sutun = -1;
    bool azalan = false;

    bool operator==(const ListeSirasi&) const = default;
};

struct ListeGorunumu {
    std::vector<Metin> basliklar;
    SatirListesi satirlar;
    int secili = -1;                  ///< index of the marked row, -1 for none
    std::vector<int> sayiSutunlari{}; ///< columns, from 0, that hold numbers: these stand to the right
    Metin baslik{};                   ///< its label
    SecimDugmeleri secimDugmeleri{};
    /// The screen's handler for a click on the head of a column, from 0: it sorts the rows themselves, as
    /// with `Sirala`. Without one a click sorts what is seen and leaves the rows as they are.
    std::function<void(int sutun)> basligaTiklandi{};
    ListeSirasi siralama{}; ///< with that handler: what the heads show

    /// Sorts the rows by a column as texts (`SozlukSirasi`); by the column that they are sorted by
    /// already the other way round. Rows that are equal there stay in their order. The mark stays on its row.
    void Sirala(int sutun);
    /// The marked row, null for none.
    const ListeSatiri* Secili() const {
        const auto sira = static_cast<std::size_t>(secili);
        return secili >= 0 && sira < satirlar.size() ? &satirlar[sira] : nullptr;
    }
    /// The line under the list: "12 kayıt · 2026".
    Metin Ozeti(MetinBakis yil) const;
    /// Marks the row that `satir` was before the rows were made anew: the one with its tag and its first
    /// column, and of several such rows the one that stands as far among them. Without one, or without
    /// `satir`, nothing is marked.
    void YenidenIsaretle(const std::optional<IsaretliSatir>& satir);
    /// What `YenidenIsaretle` finds the marked row by; none when none is marked.
    std::optional<IsaretliSatir> Isaretli() const;
    /// Takes all rows out, and the mark.
    void Temizle();
    /// Takes the marked row out, if there is one. Nothing is marked then.
    void SeciliyiSil();
    /// Takes a row out, from 0. The mark stays with its own row.
    void Sil(int sira);
};

/// A timer of a screen. It runs while `aralik` isn't 0. The outside calls `Calis` when it is due.
struct Zamanlayici {
    int aralik = 0;            ///< milliseconds; 0 stops it
    std::function<void()> tik; ///< the screen's handler, set by the screen
    bool sakin = false; ///< it is due only while no other handler runs: what its own waits for holds up none
    bool beklerken = false; ///< with `sakin`: due also while the running handler waits for the user
    unsigned kurulus = 0;   ///< how often it was set going by `Kur`

    /// Sets it going, so long from now on, also when it runs already.
    void Kur(int milisaniye);
    /// Runs the handler, unless it is running already or the timer has been stopped: a due tick waits.
    void Calis();

  private:
    bool icinde_ = false;
};

} // namespace velora
