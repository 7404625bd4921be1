#pragma once

#include <functional>

#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace velora {

/// Whether a character may come into a field.
using HarfIzni = std::function<bool(char16_t)>;

/// What a field takes.
struct GirdiKurali {
    HarfIzni izin;           ///< characters without it are dropped; null for all of them
    int enUzun = 0;          ///< the length that its text may reach, in UTF-16 units; 0 for no limit
    bool cokSatirli = false; ///< it takes line breaks, which its text holds as CR LF
};

/// What a field holds after the user put something in: `eski` is its text before, `gorunen` what it shows
/// now. Only what came in is looked at; the rest of `eski` stands as it was, also where the field shows it
/// otherwise
/// (`CokSatirGoster`). A text that was longer than the limit before keeps its length.
///
/// A field holds what a file can hold: what came in is composed, and each character outside the code page
/// becomes "?". In a field of one line each line break (CR LF is one) and each other control character
/// becomes a blank. Signs that are typed never come here when no file holds them: `TuslariSuz` stands before.
QString GirdiyiSuz(const QString& eski, const QString& gorunen, const GirdiKurali& kural);

/// What a field of many lines shows of a text: each of CR LF, CR and LF as LF, and a blank that doesn't break
/// as a blank.
QString CokSatirGoster(QString metin);

/// Drops, from now on, what is typed into a field, by keys or an input method, and lies outside the code page
/// or has no `izin`: a key that does nothing, also to the selection. What is pasted or dropped doesn't pass
/// here.
void TuslariSuz(QWidget& alan, const HarfIzni& izin = {});

/// Sets the text; the cursor of a field that has the focus keeps its place, counted from the end, behind what
/// was refused.
void MetniKoy(QLineEdit& kutu, const QString& metin);
/// Without the focus the cursor keeps its place counted from the beginning.
void MetniKoy(QPlainTextEdit& kutu, const QString& metin);

} // namespace velora
