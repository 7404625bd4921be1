#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "storage/Koken.h"
#include "storage/YazimBicimi.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// One value of a file that is a single record, such as the settings: where it goes and where it comes from.
/// A table of these, in the order of the file, is all that reading and writing need.
struct Alan {
    /// Takes the value that was read. False: it is none for this field.
    std::function<bool(const Metin&)> oku;
    /// Writes the value that is to be kept.
    std::function<void(DegerYazici&)> yaz;
};

/// A text, as it stands.
Alan MetinAlani(Metin& metin);
/// A whole number and nothing else, bare in the file.
Alan SayiAlani(std::int32_t& sayi);

/// The number, when the text is one, blanks about it or not.
std::optional<std::int32_t> TamSayi(MetinBakis metin);

/// Reads a file into its fields. False when it can't be opened, holds fewer values or one that is none: in
/// the first two cases no field has changed, in the last those before it. Who writes the fields back gives
/// them a `koken`, and writes by it.
bool AlanlariOku(const Dosyalar& dosyalar, const Metin& yol, std::span<const Alan> alanlar,
                 Koken* koken = nullptr);

/// The file's bytes: all fields in one line.
std::string AlanBaytlari(std::span<const Alan> alanlar);

} // namespace velora
