#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

namespace velora {

/// A line icon of the program (`ad` is its file without the ending) in one colour, `boy` device pixels high
/// and wide. A name that isn't there gives an empty picture.
QPixmap SimgeCiz(const QString& ad, const QColor& renk, int boy);

} // namespace velora
