#pragma once

#include <functional>

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace velora {

/// A drawing of the program (`ad` is its file without the ending) in its own colours, `boy` device pixels
/// high and wide. A name that isn't there gives an empty picture.
QPixmap ResimCiz(const QString& ad, int boy);

/// A line icon in one colour, the rest as above.
QPixmap SimgeCiz(const QString& ad, const QColor& renk, int boy);

/// An icon that is drawn by `ciz` in the device pixels in which it is seen, when it is seen: none is
/// stretched, and what is never shown costs nothing.
QIcon HerBoydaSimge(std::function<QPixmap(int boy)> ciz);

} // namespace velora
