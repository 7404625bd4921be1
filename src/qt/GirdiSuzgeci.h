#pragma once

#include <functional>

#include <QString>

class QLineEdit;

namespace velora {

/// Whether a character may come into a field.
using HarfIzni = std::function<bool(char16_t)>;

/// What a field takes of what the user put in: `eski` is its text before, `yeni` its text after. Only what came in
/// is looked at; the rest stands as it was.
///
/// A field holds what a file can hold. Of one character alone, one outside the code page is dropped: a key that does
/// nothing. More at once is a text that was pasted: it is composed, and each such character becomes "?". Characters
/// without `izin` are dropped. `enUzun` is the length that the field may reach, 0 for no limit; a text that was longer
/// before keeps its length.
QString GirdiyiSuz(const QString& eski, const QString& yeni, const HarfIzni& izin, int enUzun);

/// Sets the text; the cursor keeps its place, counted from the end, behind what was refused.
void MetniKoy(QLineEdit& kutu, const QString& metin);

} // namespace velora
