#pragma once

#include "screen/Kontroller.h"
#include "screen/Sayfa.h"

namespace velora {

struct Program;

/// The page of the contract. `FormKayit` loads it when it opens, so that it stands ready for printing. Who
/// prints fills its fields; what nobody fills shows its placeholder.
struct FormPrint {
    explicit FormPrint(Program& program);
    void Load() {}

    /// The page as its fields stand, in parts named by their fields. The clauses get smaller so that all of
    /// it goes on one sheet; at their smallest it goes on to another one. Nothing is left out.
    std::vector<Sayfa> Sayfalar(const YaziOlcer& olcer) const;

    Etiket Unvan;
    Etiket Tarihi;
    Etiket SozNo;
    Etiket Baslik;
    Etiket Sozlesme;
    // The details of the reservation, the left column.
    Etiket CSalon;
    Etiket CTuru;
    Etiket CTarihi;
    Etiket CSaati;
    Etiket Cdavetli;
    Etiket CTutar;
    Etiket COdenen;
    Etiket CKalan;
    // The right one.
    Etiket Ctcno;
    Etiket CAdi;
    Etiket CGelin;
    Etiket CYore;
    Etiket CTel;
    Etiket CCep;
    Etiket CAdres;
    // The bottom holds either of two things, or nothing.
    Etiket Label55; ///< over the remark
    Etiket Onaciklama;
    bool Senet = false; ///< whether the promissory note is there
    Etiket Label38;     ///< its sentence on what an unpaid one does
    Etiket Label50;     ///< its sentence on the court, with the firm's city
};

} // namespace velora
