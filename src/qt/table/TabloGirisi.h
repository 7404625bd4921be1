#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QPoint>

#include "qt/table/TabloDuzeni.h"

class QKeyEvent;
class QMenu;
class QMouseEvent;

namespace velora {

class Baglayici;
class EkranEtiketi;
class TabloGorunumu;
class TabloTasimasi;
struct Program;

/// What the user does on the year table, by mouse and by keys: it turns the toolkit's events into the events
/// of the screen's cells and heads, opens `Sagtus`, moves cells (`TabloTasimasi`), and shows the hover label.
///
/// The pointer cell is the cell last moved over; the keys move it too. While `Sagtus` or a box is open, or a
/// cell is on its way to another, no hover reaches the cells. A press is always preceded by a hover of its
/// own cell. No key works a cell that something on the table covers.
class TabloGirisi : public QObject {
  public:
    TabloGirisi(Program& program, Baglayici& baglayici, TabloGorunumu& gorunum);

    /// The cells to be marked: the one that an open menu or window is about, those of a move, or else the one
    /// that the keys work on, unless the mouse leads.
    std::vector<TabloIsabeti> IsaretliGozler() const;
    /// The cell that the keys work on; bare while there is none, or while the mouse leads.
    TabloIsabeti TusGozu() const;
    /// The screen, null when it is unloaded.
    std::shared_ptr<FormTablo> Ekran() const { return ekran_.lock(); }

    /// The cell that the pointer is on, or that the keys have come to; bare when it has gone elsewhere.
    const TabloIsabeti& UzerindekiGoz() const { return uzerinde_; }

  protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

  private:
    void MenuKur();
    bool HoverKapali() const;
    bool Ortulu(const TabloIsabeti& goz) const;
    QPoint GozOrtasi(const TabloIsabeti& goz) const;

    bool FareOlayi(QEvent& olay);
    void Bas(const QMouseEvent& olay);
    void CiftTikla(const QMouseEvent& olay);
    void Kaldir(const QMouseEvent& olay);
    void Kimilda(const QMouseEvent& olay);
    void ImlecSekli();
    void Ayril();
    void Bosa();
    void Tikla(const TabloIsabeti& isabet);
    void Uzerine(const TabloIsabeti& goz);
    void MenuAc(const TabloIsabeti& goz, bool sagDugme, QPoint yer);
    void MenuBitti();
    void Ac(const TabloIsabeti& goz);

    bool TusBas(const QKeyEvent& olay);
    bool TasimaTusu(int tus);
    void GozdeTus(const FormTablo& tablo, int tus, bool ilk);
    TabloIsabeti Gezin(const FormTablo& tablo, const TabloIsabeti& goz, int tus) const;
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
    TabloTasimasi* tasima_;
    TabloIsabeti imlec_; // the pointer cell
    TabloIsabeti uzerinde_;
    TabloIsabeti basilan_; // where a click may end
    TabloIsabeti sorulan_; // what an open menu or window is about
    QPoint imlecYeri_;
    QPoint fareYeri_;
    std::vector<QRect> isaretler_; // as they are painted
    TabloIsabeti bildirilen_;      // the cell whose focus was told last
    bool klavye_ = false;          // the keys were used last
};

} // namespace velora
