#pragma once

#include <QString>

namespace velora {

/// The text on the clipboard, empty for none.
QString PanoMetni();

/// Puts a text on the clipboard.
void PanoyaKoy(const QString& metin);

} // namespace velora
