#pragma once

#include <QString>

#include "storage/Metin.h"

class QAbstractButton;
class QMenu;
class QWidget;

namespace velora {

/// Marks an access key ("&") in each caption of a window that can take one: buttons, tick boxes, tabs, and
/// labels that name a field (those with a buddy). The captions of the screens themselves know no marks.
///
/// The button that Enter presses chooses first, the one that cancels (`iptal`) last. "K" is the key of
/// "Kaydet" and of nothing else.
///
/// Where letters are too few, a button goes without that only turns to a page, and so do exclusive choices
/// behind the first one: the tab and the arrow keys lead there.
///
/// No two captions that are seen at the same time share a key; those on different pages may. A caption that
/// is marked already keeps its mark, and one for which no letter is left gets none. Costs nothing where all
/// are marked: meant to run after every refresh.
void ErisimTuslariVer(QWidget& pencere, const QAbstractButton* iptal = nullptr);

/// The same for the entries of a menu.
void ErisimTuslariVer(QMenu& menu);

/// A caption with its access key marked by hand: before the first `tus` in it, which must be there. For what
/// stands on a window whose keys aren't given out.
QString TusIsaretli(MetinBakis baslik, QChar tus);

} // namespace velora
