#pragma once

#include <span>

#include "table/Komutlar.h"

class QMenu;
class QMenuBar;
class QToolBar;

namespace velora {

class Baglayici;
struct Program;

/// The entries of a menu, in the order of the commands, bound to those of the main screen, each with an
/// access key. Lines are entries too.
void MenuyuDoldur(QMenu& parca, Menu menu, Program& program, Baglayici& baglayici,
                  std::span<const KomutTanimi> komutlar);

/// An entry of the menu needs a press of its own: one that opened the menu, with a hand that shook, chooses
/// nothing when it is let go.
void KendiBasmasiyla(QMenu& menu);

/// All menus of the menu bar. The first letter of a caption is its access key.
void MenuleriKur(QMenuBar& serit, Program& program, Baglayici& baglayici,
                 std::span<const KomutTanimi> komutlar);

/// The buttons of the tool bar in the order of their places, each with its line behind it. Tab reaches them,
/// a click leaves the focus where it is.
void AraclariKur(QToolBar& serit, Program& program, Baglayici& baglayici,
                 std::span<const KomutTanimi> komutlar);

} // namespace velora
