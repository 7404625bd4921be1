#pragma once

#include "screen/Ortam.h"

namespace velora {

struct Program;

/// Asks a question with yes and no, and waits. True for yes; closing the box is a no.
bool Sor(const Program& program, const Metin& metin, const Metin& baslik = u"Velora",
         Simge simge = Simge::Soru);

/// The same for what deletes, cancels or throws away: it starts on the no, so that Enter loses nothing.
bool SilmeyiSor(const Program& program, const Metin& metin, const Metin& baslik = u"Velora",
                Simge simge = Simge::Soru);

/// Tells something, and waits until it has been read.
void Soyle(const Program& program, const Metin& metin, const Metin& baslik = u"Velora",
           Simge simge = Simge::Bilgi);

/// Tells what is wrong with a field of a screen, and gives it the focus.
void AlaniSoyle(const Program& program, EkranAdi ekran, MetinBakis alan, const Metin& metin);

} // namespace velora
