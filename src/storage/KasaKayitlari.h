#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "storage/Metin.h"
#include "storage/Tarih.h"

namespace velora {

/// One movement of cash, as files of payments and of expenses hold it. What a reading can't fill stays from
/// the record before.
struct KasaKaydi {
    std::optional<Gun> gun; ///< none: no record has been read yet
    Metin tarih;            ///< the day as it is shown
    Metin tutar;
    Metin aciklama;
};

/// Hands over each record of a file. A record whose date is none leaves all of `kayit` as it was, and that is
/// handed over once more. So is it for a file without any record. Before the first date nothing is.
void KasaOku(std::string_view bayt, KasaKaydi& kayit, const std::function<void(const KasaKaydi&)>& ver);

/// The bytes of one new expense. Its day is the only date that stands in a file as a literal.
std::string GiderBayt(const Gun& gun, MetinBakis tutar, MetinBakis aciklama);

} // namespace velora
