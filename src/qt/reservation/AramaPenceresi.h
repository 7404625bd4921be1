#pragma once

#include "qt/Diyalog.h"

class QTreeWidget;

namespace velora {

struct FormArama;
struct Program;

/// The window of `FormArama`.
class AramaPenceresi : public Diyalog {
  public:
    explicit AramaPenceresi(Program& program);

  private:
    QTreeWidget* Liste(FormArama* ekran);
    /// The criteria, with "Ara" behind the last of them.
    QLayout* Olcutler(FormArama* ekran);
};

} // namespace velora
