#pragma once

#include <QColor>
#include <QString>

#include "screen/Kontroller.h"

namespace velora {

/// A text of the core for the toolkit, and back. Unit by unit: nothing is lost or changed.
QString QMetin(MetinBakis metin);
Metin MetinYap(const QString& metin);

/// A text for a tool tip, which would take anything with tags in it for rich text: shown letter by letter.
QString QIpucu(MetinBakis metin);

/// A colour of the core, red in its low byte, for the toolkit. Bits above the three bytes are passed over.
QColor QRenk(RenkDegeri renk);

} // namespace velora
