#pragma once

#include "screen/Sayfa.h"

class QPainter;

namespace velora {

/// How wide a text is in the type that pages are painted in, on each device and at every scale. For one
/// thread.
YaziOlcer SayfaOlcer();

/// Paints a page, with its upper left corner where the painter stands; `olcek` is how many of the painter's
/// units a millimetre is. The sheet itself isn't painted: paper is white.
void SayfayiCiz(QPainter& boyaci, const Sayfa& sayfa, double olcek);

/// The texts of pages as they are read, without what is only there to write on.
Metin OkunanMetin(const std::vector<Sayfa>& sayfalar);

} // namespace velora
