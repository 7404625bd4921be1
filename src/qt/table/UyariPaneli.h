#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QFrame>

class QPushButton;
class QTreeWidget;

namespace velora {

class Baglayici;
struct FormTablo;
struct ListeGorunumu;

/// The panel of warnings over the table: the reservations that are near. It stands where the model says, and
/// within the table. Its list has the focus when it comes, and the table when it goes.
class UyariPaneli : public QFrame {
  public:
    UyariPaneli(FormTablo& tablo, Baglayici& baglayici, QWidget* ust);

  protected:
    /// Esc closes it, Enter opens the marked row. No key of the panel gets through to the table.
    void keyPressEvent(QKeyEvent* olay) override;
    /// A drag over the panel stays with it and finds no place there: the cells under it aren't seen.
    void dragEnterEvent(QDragEnterEvent* olay) override;
    void dragMoveEvent(QDragMoveEvent* olay) override;
    void dropEvent(QDropEvent* olay) override;
    /// With other letters the columns are measured anew.
    void changeEvent(QEvent* olay) override;

  private:
    void Tazele(const FormTablo& tablo);
    void Gizle();
    /// The width in which all columns of the list are seen.
    int SutunlarinEni(const ListeGorunumu& model);
    int SutunlariOlc() const;
    int SutunOlc(int sutun) const;

    QTreeWidget* liste_;
    QPushButton* detaylar_;
    QPushButton* kapat_;
    std::optional<std::uint64_t> olculen_; // the rows that `sutunlarinEni_` is of
    int sutunlarinEni_ = 0;
};

} // namespace velora
