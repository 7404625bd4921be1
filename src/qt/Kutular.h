#pragma once

#include "screen/Ortam.h"

class QString;
class QWidget;

namespace velora {

/// Shows a message box over `ust` and waits for the answer. Esc and the closing of a question are a no.
Cevap MesajGoster(QWidget* ust, const MesajKutusu& kutu);

/// Asks for one line of text. Empty when it was cancelled.
Metin GirdiAl(QWidget* ust, const GirdiKutusu& kutu);

/// Asks where a file is to be saved, beginning in `klasor`. What lies in the way of the name chosen is given
/// up only after a question. None when it was cancelled.
std::optional<std::filesystem::path> KayitYeriSor(QWidget* ust, const KayitYeriKutusu& kutu,
                                                  const QString& klasor);

/// Asks for a folder that is there, beginning in `klasor`. Empty when it was cancelled.
QString KlasorSor(QWidget* ust, const QString& baslik, const QString& klasor);

} // namespace velora
