#pragma once

#include "screen/Kontroller.h"
#include "screen/Sayfa.h"

namespace velora {

struct Program;

/// The page of the menu, which goes with a contract. Who prints fills all of its fields, and nobody prints a
/// sample of it: a fresh one has no placeholders.
struct FormPrint2 {
    explicit FormPrint2(Program& program);
    void Load() {}

    /// The page as its fields stand, in parts named by them. Its three texts get smaller together so that all
    /// goes on one sheet; at their smallest they go on to others. Nothing is left out.
    std::vector<Sayfa> Sayfalar(const YaziOlcer& olcer) const;

    Etiket Unvan;
    Etiket Label19; ///< over the chosen menu
    Etiket Label4;
    Etiket Label20; ///< the menu's description
    Etiket Label3;  ///< over the wishes
    Etiket OzelIstekler;
    Etiket Label2; ///< over the remark
    Etiket Onaciklama;
    Etiket Label34; ///< who signs at the left
    Etiket Label28; ///< who signs at the right
};

} // namespace velora
