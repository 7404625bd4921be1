#pragma once

#include <memory>

#include <QObject>
#include <QPoint>

#include "qt/table/TabloDuzeni.h"

class QDropEvent;
class QKeyEvent;
class QMenu;
class QMimeData;
class QMouseEvent;

namespace velora {

class Baglayici;
class EkranEtiketi;
class TabloGorunumu;
struct Program;

/// What the user does on the year table, by mouse and by keys: it turns the toolkit's events into the events
/// of the screen's cells and heads, opens `Sagtus`, drags cells, and shows the hover label.
///
/// The pointer cell is the cell last moved over; the keys move it too. While `Sagtus` or a box is open, or a
/// drag goes on, no hover reaches the cells. A press is always preceded by a hover of its own cell.
class TabloGirisi : public QObject {
  public:
    TabloGirisi(Program& program, Baglayici& baglayici, TabloGorunumu& gorunum);

    /// The cell to be marked as the one that the keys work on; bare while there is none, or while the mouse
    /// leads.
    TabloIsabeti OdakGozu() const;

    /// The cell that the pointer is on, or that the keys have come to; bare when it has gone elsewhere.
    const TabloIsabeti& UzerindekiGoz() const { return uzerinde_; }

    /// What a dragged cell carries.
    static std::unique_ptr<QMimeData> SuruklemeVerisi();

  protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

  private:
    bool HoverKapali() const;
    bool Suruklenir(const TabloIsabeti& isabet) const;
    QPoint GozOrtasi(const TabloIsabeti& goz) const;

    bool FareOlayi(QEvent& olay);
    void Bas(const QMouseEvent& olay);
    void CiftTikla(const QMouseEvent& olay);
    void Kaldir(const QMouseEvent& olay);
    void Kimilda(const QMouseEvent& olay);
    void ImlecSekli(TabloIsabeti::Tur tur);
    void Ayril();
    void Bosa();
    void Tikla(const TabloIsabeti& isabet);
    void Uzerine(const TabloIsabeti& goz);
    void MenuAc(const TabloIsabeti& goz, bool sagDugme, QPoint yer);
    void Ac(const TabloIsabeti& goz);

    void Surukle();
    void UzerindenGecir(QDropEvent& olay) const;
    void Birak(QDropEvent& olay);
    void BirakilaniIsle();

    bool TusBas(const QKeyEvent& olay);
    void KlavyedenMenu();
    bool ImlecHazirla(const FormTablo& tablo);
    void KlavyeAta(bool klavye);
    void OdakTazele();

    Program& program_;
    Baglayici& baglayici_;
    std::weak_ptr<FormTablo> ekran_;
    TabloGorunumu& gorunum_;
    EkranEtiketi* etiket_;
    QMenu* menu_;
    TabloIsabeti imlec_; // the pointer cell
    TabloIsabeti uzerinde_;
    TabloIsabeti basilan_; // where a click may end
    TabloIsabeti kaynak_;  // cell under a button, about to be dragged
    TabloIsabeti birakilan_;
    QPoint imlecYeri_;
    QPoint basYeri_;
    QRect odakYeri_;
    bool suruklemede_ = false;
    bool klavye_ = false; // the keys were used last
};

} // namespace velora
