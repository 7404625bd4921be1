#pragma once

#include <QRect>
#include <QSize>

class QWidget;

namespace velora {

/// How large a window can be on its screen: with the frame that the system puts about it, beside the bars.
QSize EkrandaYer(const QWidget& pencere);

/// Before a window is shown: it is no larger than its screen. Where what stands in it can't get smaller, all
/// but its last row, the buttons, goes into a scroll area.
void EkranaSigdir(QWidget& pencere);

/// A place of a window, moved and cut so that it lies on one of the screens that are there.
QRect EkranaAl(const QRect& yer);

} // namespace velora
