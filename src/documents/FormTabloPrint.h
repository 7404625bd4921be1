#pragma once

#include <array>
#include <tuple>

#include "screen/Kontroller.h"
#include "screen/Sayfa.h"
#include "screen/TabloSatirlari.h"

namespace velora {

struct Program;

/// What a cell says beside its colour, so that paper without colour says it too.
enum class BaskiIsareti { Yok, Kesin, On };

/// A cell of the printed table: what the table shows of it, and nothing of the reservation behind it.
struct BaskiGozu {
    Metin baslik;
    bool gorunur = false;
    RenkDegeri zemin = kBeyaz;
    RenkDegeri yazi = 0;
    BaskiIsareti isaret = BaskiIsareti::Yok;

    bool operator==(const BaskiGozu&) const = default;
};

/// A mark told under the table: its name, and the grounds that it stands on, the upper slot's first.
struct BaskiAciklamasi {
    BaskiIsareti isaret = BaskiIsareti::Yok;
    Metin ad;
    std::array<RenkDegeri, 2> zeminler{};

    bool operator==(const BaskiAciklamasi&) const = default;
};

/// The year table on paper, for a customer to take along. Who shows it fills it: it holds no data of its own,
/// and stays as it was filled.
struct FormTabloPrint {
    explicit FormTabloPrint(Program& program) : program_(program) {}
    void Load() {}

    /// "Yazdır": prints, and the screen goes. What can't be printed leaves it open without these two buttons.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"
    void Pdf_Click();

    /// One sheet on its side, in parts named by their fields, the cells by their days. Where the texts about
    /// the table are long, they get smaller, then the rows lower.
    std::vector<Sayfa> Sayfalar(const YaziOlcer& olcer) const;

    /// A copy of what the sheet shows, to see later whether it shows something else.
    auto Gorunen() const {
        return std::tuple(Unvan, Salon, Label1, Tarih, Label2, satirlar, ALabel, AyAdi, AyZemin, gunduzUstte,
                          aciklamalar);
    }

    BaskiGozu& Gozu(SatirAdi satir, int gun) { return satirlar[static_cast<std::size_t>(satir)][gun]; }
    const BaskiGozu& Gozu(SatirAdi satir, int gun) const {
        return satirlar[static_cast<std::size_t>(satir)][gun];
    }

    Metin baslik = u"Rezervasyon Tablosu";
    Etiket Unvan;
    Etiket Salon;
    Etiket Label1; ///< whom to call
    Etiket Tarih;  ///< when it was filled
    Etiket Label2; ///< the line of the online service
    std::array<BirTabanli<BaskiGozu, kGunSayisi>, kSatirSayisi> satirlar;
    BirTabanli<Etiket, kGunSayisi> ALabel;   ///< day heads
    BirTabanli<Etiket, kAySayisi> AyAdi;     ///< month names
    BirTabanli<Etiket, kAySayisi> AyZemin;   ///< their grounds
    BirTabanli<bool, kAySayisi> gunduzUstte; ///< which of a month's slots stands on top
    std::array<BaskiAciklamasi, 2> aciklamalar;
    Metin isAdi; ///< what its print and its file are called

    Dugme Command1{u"Yazdır", {}};
    Dugme Command2{u"İptal", {}};
    Dugme Pdf{u"PDF", u"PDF dosyası olarak kaydet"};

  private:
    Program& program_;
};

} // namespace velora
