#pragma once

#include <array>
#include <span>

#include "storage/Metin.h"

namespace velora {

struct FormTablo;

/// The commands of the main screen, by the names of their entries, menu by menu and in the order in which
/// they stand there. The lines between them are rows too: who hides a command names the line that goes with
/// it.
enum class Komut {
    Arasss,
    aline13,
    Cikissssss,
    BakiyeRaporss,
    kasarapors,
    aline1,
    rezrapor,
    linooomm,
    iptalsebepss,
    FirmaBilgiss,
    firmcizgi,
    Sozduzenss,
    Salontanimss,
    aline4,
    MenuAyars,
    ResTatilss,
    aline8,
    KulTanimssss,
    Guvenliksss,
    Websssunucus,
    aline9,
    Progrset,
    aline10,
    Yedeksss,
    Yardimssa,
    oneriii,
    duyurularsss,
    Phakss,
    UyariGoster,
    Yayinla,
    newkay,
    aline11,
    TasimaModuAc,
    aline12,
    iptals
};
inline constexpr std::size_t kKomutSayisi = static_cast<std::size_t>(Komut::iptals) + 1;

/// The menus of the menu bar, from left to right, and the context menu of a cell. A command in `Yok` stands
/// in none of them.
enum class Menu { Kayitss, Raporsss, ayarsd, Yardimss, Sagtus, Yok };

struct MenuTanimi {
    Menu menu;
    MetinBakis ad;
    MetinBakis baslik; ///< empty: it isn't in the menu bar
};

inline constexpr std::array<MenuTanimi, 5> kMenuler{{{Menu::Kayitss, u"Kayitss", u"Dosya"},
                                                     {Menu::Raporsss, u"Raporsss", u"Raporlar"},
                                                     {Menu::ayarsd, u"ayarsd", u"Ayarlar"},
                                                     {Menu::Yardimss, u"Yardimss", u"Yardım"},
                                                     {Menu::Sagtus, u"Sagtus", u""}}};

/// A place in the tool bar `Toolbar1`. The places count the line behind each button: buttons have the odd
/// ones. A button is known by its caption, and the blanks about two of them are part of it.
struct AracYeri {
    int yer = 0; ///< from 1; 0: the command has no button
    MetinBakis baslik = {};
    MetinBakis ipucu = {};
    MetinBakis simge = {}; ///< its picture, by the name of the drawing
};

/// The highest place of the tool bar.
inline constexpr int kAracSayisi = 14;

/// All there is to say of a command. A line between two has a caption of "-" and no handler.
struct KomutTanimi {
    Komut komut;
    MetinBakis ad;
    Menu menu;
    MetinBakis baslik;
    void (FormTablo::*isle)() = nullptr;
    MetinBakis tus = {}; ///< as "F2" or "Ctrl+F1"; empty for none
    AracYeri arac = {};

    bool Cizgi() const { return isle == nullptr; }
};

/// Every command, in the order of `Komut`.
std::span<const KomutTanimi, kKomutSayisi> Komutlar();

} // namespace velora
