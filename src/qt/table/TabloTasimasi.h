#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QPoint>

#include "qt/table/TabloDuzeni.h"

class QDropEvent;
class QMimeData;

namespace velora {

class Baglayici;
class TabloGorunumu;
struct Program;

/// A cell of the year table on its way to another: dragged by the mouse, or picked up and dropped by keys.
/// While it is on its way no hover may reach the cells: the screen's source of the move is the cell last
/// moved over.
class TabloTasimasi : public QObject {
  public:
    /// `degisti` runs when other cells than before are to be marked.
    TabloTasimasi(Program& program, Baglayici& baglayici, TabloGorunumu& gorunum,
                  std::function<void()> degisti);

    /// Whether a cell can be moved: a press on it is no press of the screen's.
    bool Suruklenir(const TabloIsabeti& isabet) const;
    /// A cell is on its way, or about to be.
    bool Suruyor() const { return suruklemede_ || tutuluyor_; }

    // --- by the mouse ---
    /// A button goes down on a cell that can be moved, and up again.
    void Bas(const TabloIsabeti& goz, QPoint yer);
    void Kaldir() { basilan_ = {}; }
    /// Whether a button is down on it.
    bool Basili() const;
    /// The pointer moves with a button down.
    void Cek(QPoint yer);
    /// What the toolkit tells of a drag over the table; false for another event.
    bool Olay(QEvent& olay);

    // --- by keys ---
    bool Tutuluyor() const { return tutuluyor_; }
    const TabloIsabeti& Hedef() const { return hedef_; }
    void Tut(const TabloIsabeti& goz);
    void Gotur(const TabloIsabeti& goz);
    /// Drops what is held on the cell it was carried to; waits for the questions about it.
    void TutulaniBirak();
    /// Lets go of what is held, with nothing moved.
    void Vazgec();

    /// The cell under a drag; what is held and where it was carried to; both ends while a question about a
    /// move stands.
    std::vector<TabloIsabeti> Isaretliler() const;

    /// What a dragged cell carries.
    static std::unique_ptr<QMimeData> SuruklemeVerisi();

  private:
    void Surukle();
    void UzerindenGecir(QDropEvent& olay);
    void Birak(QDropEvent& olay);
    void BirakilaniIsle();
    void HedefAta(const TabloIsabeti& goz);

    Program& program_;
    Baglayici& baglayici_;
    std::weak_ptr<FormTablo> ekran_;
    TabloGorunumu& gorunum_;
    std::function<void()> degisti_;
    TabloIsabeti basilan_; // under a button, about to be dragged
    QPoint basYeri_;
    TabloIsabeti kaynak_; // the cell on its way
    TabloIsabeti hedef_;  // the cell under it
    bool suruklemede_ = false;
    bool tutuluyor_ = false; // by keys
    bool birakildi_ = false; // a drop that waits
    bool soruda_ = false;
};

} // namespace velora
