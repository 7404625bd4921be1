#pragma once

#include "storage/Metin.h"

namespace velora {

/// The numeric value of a text: its leading digits, with at most one "." as decimal point and a minus only
/// directly before the first digit. Whatever doesn't begin so is 0.
double SayisalDeger(MetinBakis metin);

/// The numeric value of an amount in a report: as `SayisalDeger`, and blanks before it don't count.
double TutarDegeri(MetinBakis metin);

/// The shortest plain decimal form of a number: no grouping, no exponent, "." as decimal point.
Metin DuzMetin(double sayi);

/// The pattern "###,###,###": whole digits in groups of three with "." between them, rounded half away from
/// zero, minus before the digits. What rounds to 0 gives the empty text.
Metin GrupluMetin(double sayi);

/// ": ", the grouped value and " TL".
Metin TutarMetni(double sayi);

} // namespace velora
