#pragma once

#include "storage/Metin.h"

namespace velora {

/// Turkish letter case, for the letters of Windows-1254: i and İ are a pair, and so are ı and I. A sign
/// without a partner comes back as it is.
char16_t KucukHarf(char16_t harf);
char16_t BuyukHarf(char16_t harf);

/// The whole text in lower or in upper case. The length stays.
Metin Kucult(MetinBakis metin);
Metin Buyut(MetinBakis metin);

/// The lower case of a text that is one of thousands: in `hedef`, whose memory is used again.
void Kucult(MetinBakis metin, Metin& hedef);

/// What texts are put in the order of a Turkish dictionary by, without regard to case: digits and signs
/// before letters, "Çınar" before "Demir", "ılık" before "iri".
Metin SozlukSirasi(MetinBakis metin);

/// Proper case: the first sign of each word in upper case, the others in lower case. A word begins at the
/// start of the text and after a blank, a tab, CR or LF, and nowhere else: "ali-veli" gives "Ali-veli".
Metin BuyukBas(MetinBakis metin);

/// The letter that stands for both cases where file names are ordered. Not Turkish: i goes with I, as file
/// systems have it, and İ and ı are letters of their own.
char16_t SiraHarfi(char16_t harf);

/// The same for letters below ÿ, where a rule tells it. Listings ask for thousands.
constexpr char16_t SikSiraHarfi(char16_t harf) {
    const bool kucuk = (u'a' <= harf && harf <= u'z') || (u'à' <= harf && harf <= u'þ' && harf != u'÷');
    return kucuk ? static_cast<char16_t>(harf - (u'a' - u'A')) : harf;
}

} // namespace velora
