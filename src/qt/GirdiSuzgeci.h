#pragma once

#include <QString>

#include "screen/GirdiKurali.h"

class QLineEdit;
class QWidget;

namespace velora {

/// What a field holds after the user put something in: `eski` is its text before, `gorunen` what it shows
/// now. Only what came in is looked at, composed and put in by `GirdiyiKoy`; the rest of `eski` stands as it
/// was, also where the field shows it otherwise (`CokSatirGoster`). Signs that are typed never come here when
/// no file holds them: `TuslariSuz` stands before.
QString GirdiyiSuz(const QString& eski, const QString& gorunen, const GirdiKurali& kural);

/// What came in between the two, where the text before shows as it is.
QString Giren(const QString& eski, const QString& gorunen);

/// What a field of many lines shows of a text: each of CR LF, CR and LF as LF, and a blank that doesn't break
/// as a blank.
QString CokSatirGoster(QString metin);

/// From now on only what `TuslananMetin` leaves of it gets into a field when it is typed, by keys or an input
/// method. What is pasted or dropped doesn't pass here.
void TuslariSuz(QWidget& alan, HarfIzni izin = nullptr);

/// Sets the text; the cursor of a field that has the focus keeps its place, counted from the end, behind what
/// was refused.
void MetniKoy(QLineEdit& kutu, const QString& metin);

} // namespace velora
