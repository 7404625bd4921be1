#pragma once

#include <QCollator>
#include <QString>

namespace velora {

/// Turkish, whatever the system speaks: dates and calendars, and what the toolkit itself says, as the menus
/// of its fields do. Where the toolkit's Turkish texts aren't installed, these menus stay English. Called
/// once, before the first window.
void DiliKur();

/// What texts are put in order by.
using MetinSirasi = QCollatorSortKey;

/// A text's place in the order of a Turkish dictionary: "Çınar" before "Demir", "ılık" before "iri".
MetinSirasi TurkceSirasi(const QString& metin);

} // namespace velora
