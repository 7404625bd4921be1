#pragma once

#include <array>

#include <QPointF>
#include <QRect>

#include "table/FormTablo.h"

namespace velora {

/// What lies under a point of the table.
struct TabloIsabeti {
    enum class Tur { Bos, Hucre, GunBasligi, AyBasligi };
    Tur tur = Tur::Bos;
    int ay = 0;  ///< of a cell and of a month's head
    int gun = 0; ///< of a cell and of a day's head
    SatirAdi satir = OcakGunduz;

    bool HucreMi() const { return tur == Tur::Hucre; }
    bool operator==(const TabloIsabeti&) const = default;
};

/// Where the parts of the table are painted: the twips of the model snapped to whole device pixels.
///
/// The rows of the model overlap a little. Here each has only its visible part: a month goes from the middle
/// of its overlap with the month before to the middle of that with the month behind it, less a gap, and its
/// two rows share that evenly. So the rows of the whole table differ by one device pixel at most, and so do
/// the columns. All rectangles are device pixels, from the upper left corner of the table.
class TabloDuzeni {
  public:
    TabloDuzeni() = default;
    /// `olcek` is the number of device pixels in a logical one, which has 15 twips.
    TabloDuzeni(const FormTablo& tablo, double olcek);

    double Olcek() const { return olcek_; }
    /// Width of the thin lines between cells.
    int Cizgi() const { return cizgi_; }

    QRect Hucre(SatirAdi satir, int gun) const;
    QRect GunBasligi(int gun) const;
    QRect AyBasligi(int ay) const;
    /// The part of a month's head in which its name stands.
    QRect AyAdi(int ay) const;
    /// The part of a month's head that lies beside its upper or its lower row and shows that row's picture.
    QRect ResimYeri(int ay, bool ust) const;
    /// The line between a month's two rows at one day.
    QRect OrtaCizgi(int ay, int gun) const;
    /// The two cells of one day.
    QRect HucreCifti(int ay, int gun) const;
    /// All the cells of one month.
    QRect AyHucreleri(int ay) const;

    /// What lies at a place, given in logical pixels. A cell's place counts whether the cell is shown or not.
    TabloIsabeti Bul(QPointF yer) const;

    bool operator==(const TabloDuzeni&) const = default;

  private:
    struct Aralik {
        int bas = 0;
        int son = 0; // behind the last pixel
        bool Icinde(int yer) const { return yer >= bas && yer < son; }
        bool operator==(const Aralik&) const = default;
    };

    int Piksel(double twip) const;
    void SutunlariYerlestir(const FormTablo& tablo);
    void AylariYerlestir(const FormTablo& tablo);
    void AyYerlestir(const FormTablo& tablo, int ay, int bas, int son);
    const Aralik& Dikey(SatirAdi satir) const { return satirlar_[static_cast<std::size_t>(satir)]; }

    double olcek_ = 1;
    int cizgi_ = 1;
    BirTabanli<Aralik, kGunSayisi> gunler_;
    BirTabanli<Aralik, kAySayisi> aylar_;
    BirTabanli<Aralik, kAySayisi> ortaCizgiler_;
    std::array<Aralik, kSatirSayisi> satirlar_{};
    Aralik baslik_;
    Aralik bar_;
    Aralik resim_;
};

} // namespace velora
