#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "storage/Metin.h"
#include "storage/Tarih.h"

namespace velora {

/// Reads the values of a record file, one after another, from its bytes. A value is found by its position
/// alone. The bytes must outlive the reader.
///
/// - Blanks, tabs and line ends before a value are skipped.
/// - A value that begins with a double quote goes to the next one, line breaks included, or to the end of
///   the file when there is no other. Blanks and tabs behind it are skipped, then one comma or one line end.
///   Any other character there begins the next value.
/// - Any other value goes up to the next comma or line end, without the blanks at its end.
class DegerOkuyucu {
  public:
    explicit DegerOkuyucu(std::string_view bayt) : yer_(bayt.data()), son_(yer_ + bayt.size()) {}

    /// True when only blanks, tabs and line ends are left.
    bool Sonda() const;

    /// The next value's bytes, without its quotes. False at the end: `deger` then keeps what it held and the
    /// position is the end of the file, so that no loop can hang.
    bool Oku(std::string_view& deger);

    /// The same, decoded.
    bool Oku(Metin& deger);

    /// Fills the targets in order and returns how many it could fill. The others keep what they held.
    template <class... Hedef>
    requires(sizeof...(Hedef) > 1) int Oku(Hedef&... hedef) {
        return (0 + ... + static_cast<int>(Oku(hedef)));
    }

    /// Passes over `adet` values. Returns how many there were.
    int Atla(int adet);

  private:
    const char* yer_;
    const char* son_;
};

/// Gathers the text of a record file. A call of `Yaz` is one write statement: its values with a comma between
/// them, and a line end (CR LF) after the last.
///
/// Texts go between double quotes just as they are: a double quote inside a text is neither doubled nor
/// escaped. Whole numbers are written bare, days as literals (`TarihDegeri`).
class DegerYazici {
  public:
    template <class... Deger>
    void Yaz(const Deger&... deger) {
        bool ilk = true;
        ((Ayir(ilk), Ekle(deger)), ...);
        bayt_ += "\r\n";
    }

    /// The parts of a statement of a length known only at run time. Close it with `SatirSonu`.
    template <class Deger>
    void Parca(const Deger& deger) {
        bool ilk = satirBasi_;
        Ayir(ilk);
        Ekle(deger);
        satirBasi_ = false;
    }
    void SatirSonu();

    const std::string& Bayt() const { return bayt_; }

  private:
    void Ayir(bool& ilk) {
        if (!ilk)
            bayt_ += ',';
        ilk = false;
    }
    void Ekle(MetinBakis metin);
    void Ekle(const Metin& metin) { Ekle(MetinBakis(metin)); }
    void Ekle(const Gun& gun);
    void Ekle(const char16_t* metin) { Ekle(MetinBakis(metin)); }
    /// A single character is no number: it doesn't compile.
    template <std::integral Sayi>
    requires(!std::same_as<Sayi, char16_t> && !std::same_as<Sayi, char>) void Ekle(Sayi sayi) {
        EkleSayi(static_cast<std::int64_t>(sayi));
    }
    void EkleSayi(std::int64_t sayi);

    std::string bayt_;
    bool satirBasi_ = true;
};

} // namespace velora
