#pragma once

#include <set>

#include "storage/Metin.h"

namespace velora {

/// A way to a function on the main screen, as it is closed to a user. What a name or a place stands for need
/// not be there yet.
struct KapananYol {
    MetinBakis girdi{}; ///< the entry of a menu
    MetinBakis cizgi{}; ///< the line that goes with it; another entry may have the same
    int arac = 0;       ///< the place of its button in the tool bar, whose line goes too; 0 for none
};

/// Who works with the program and what he may. The login says it before the main screen is loaded, which
/// shows and asks it under the same names. What has been closed stays closed for the whole run.
struct Oturum {
    Metin UserNamem;       ///< the active user
    Metin StatusBar1;      ///< panel 1 of the status bar
    int TutarDegistir = 1; ///< 0: the user may not change amounts. Without a login there is nobody to bar.
    std::set<Metin> kapaliGirdiler; ///< entries and lines of menus, by their names
    std::set<int> kapaliAraclar;    ///< places in the tool bar

    void Kapat(const KapananYol& yol) {
        for (const MetinBakis ad : {yol.girdi, yol.cizgi})
            if (!ad.empty())
                kapaliGirdiler.emplace(ad);
        if (yol.arac > 0)
            kapaliAraclar.insert({yol.arac, yol.arac + 1});
    }
    /// Says on the status bar who works.
    void Goster(MetinBakis ad) { StatusBar1 = u"Velora - Aktif Kullanıcı : " + Metin(ad); }
};

} // namespace velora
