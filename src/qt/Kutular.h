#pragma once

#include "screen/Ortam.h"

class QWidget;

namespace velora {

/// Shows a message box over `ust` and waits for the answer. Esc and the closing of a question are a no.
Cevap MesajGoster(QWidget* ust, const MesajKutusu& kutu);

/// Asks for one line of text. Empty when it was cancelled.
Metin GirdiAl(QWidget* ust, const GirdiKutusu& kutu);

} // namespace velora
