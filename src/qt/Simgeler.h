#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

namespace velora {

/// A drawing of the program (`ad` is its file without the ending) in its own colours, `boy` device pixels
/// high and wide. A name that isn't there gives an empty picture.
QPixmap ResimCiz(const QString& ad, int boy);

/// A line icon in one colour, the rest as above.
QPixmap SimgeCiz(const QString& ad, const QColor& renk, int boy);

} // namespace velora
