#pragma once

#include "screen/Kontroller.h"
#include "screen/Ortam.h"

namespace velora {

struct Program;

/// The key of every firm whose computer has no hardware address: they share it.
inline constexpr MetinBakis kAdressizAnahtar = u"VLR00-0000-0000-0000";

/// The key that a hardware address makes: its bytes in capitals, two digits each, as in "00-1B-C4-0D-E0-9F".
Metin BilgisayarAnahtari(const std::optional<DonanimAdresi>& adres);

/// "Bilgisayar ID": holds the key that the firm is known by at the service, and is never shown. The key is
/// looked up when the screen is first asked, and again by the next asking after `macal`.
struct FormIpMac {
    explicit FormIpMac(Program& program);

    void Load();
    void macal(); ///< looks the key up again, and unloads the screen

    Metin baslik = u"Bilgisayar ID";
    Etiket Label1; ///< the key

  private:
    Program& program_;
};

/// The key without its commas, which no address may hold.
Metin FirmaAnahtari(Program& program);

} // namespace velora
