#pragma once

#include <QLabel>

#include "screen/Kontroller.h"

namespace velora {

/// The hover label on the table. It takes no mouse events, stays within the table, and never lies under the
/// pointer.
class EkranEtiketi : public QLabel {
  public:
    explicit EkranEtiketi(QWidget* tablo);

    /// Shows what the model holds. `goz` is the cell it belongs to and `imlec` the pointer, both in logical
    /// pixels of the table.
    void Goster(const Etiket& model, const QRect& goz, QPoint imlec);
};

/// Where a label of this size stands: at `istenen`, beyond the cell's other side where it would leave
/// `sinir`, and off the cell altogether where it would cover the pointer.
QRect EkranYeri(QSize boy, QPoint istenen, const QRect& goz, QPoint imlec, const QRect& sinir);

} // namespace velora
