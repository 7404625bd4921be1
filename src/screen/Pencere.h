#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "screen/Ortam.h"

namespace velora {

struct Program;

/// How a screen stands on the display: beside the others, or so that nobody gets at those below.
enum class Durus { Yaninda, Ustunde };

/// The screens that stand on the display, from the lowest to the topmost. A screen is activated when it is
/// first shown, and again when a screen that stood over it closes. Boxes, menus and other programs activate
/// nothing.
class EkranYigini {
  public:
    using Etkinlestir = std::function<void()>;

    void Koy(EkranAdi ad, Durus durus, Etkinlestir etkinlestir);
    void Al(EkranAdi ad);
    /// Activates those that the user can get at: from the topmost screen down to the first one that stands
    /// over the others. One beside that one doesn't keep it from knowing that a third has closed.
    void UsttekileriEtkinlestir() const;
    bool Acik(EkranAdi ad) const;
    bool Bos() const { return kayitlar_.empty(); }

  private:
    struct Kayit {
        EkranAdi ad;
        Durus durus;
        Etkinlestir etkinlestir;
    };
    std::vector<Kayit> kayitlar_;
};

/// Holds one screen of the program. The first use makes the screen with its design values and runs its
/// `Load`; `Bosalt` drops it with all it held, and the next use loads afresh.
///
/// A handler may unload its own screen and run on: a screen lives until the last call that was made through
/// its holder has returned. After the unload such a handler may only touch other screens.
///
/// A screen is a struct with a constructor that takes the program. `Load()` is required, `Activate()` is not.
template <class Ekran>
class Pencere {
  public:
    Pencere(Program& program, EkranAdi ad) : program_(program), ad_(ad) {}
    Pencere(const Pencere&) = delete;
    Pencere& operator=(const Pencere&) = delete;

    /// The screen, loaded on first use, and kept alive as long as the answer is held.
    std::shared_ptr<Ekran> Tut();
    std::shared_ptr<Ekran> operator->() { return Tut(); }

    /// Asks without loading.
    bool Yuklu() const { return ekran_ != nullptr; }

    /// Shows the screen beside the others and returns.
    void Goster();
    /// Shows the screen over the others and returns when it has closed. `hazirla` runs before: it loads and
    /// fills the screen and tells whether it is to be shown; a screen that isn't is unloaded.
    ///
    /// One opening at a time: loading and filling let events run, so a second request can come in the middle
    /// of the first one. From there until the screen has closed it does nothing, and its `hazirla` doesn't
    /// run.
    void GosterModal(const std::function<bool()>& hazirla = {});
    /// Closes the screen's window; the screen stays loaded with all it holds.
    void Gizle();
    /// Unloads the screen and closes its window.
    void Bosalt();

  private:
    void Etkinlestir();

    Program& program_;
    EkranAdi ad_;
    std::shared_ptr<Ekran> ekran_;
    bool aciliyor_ = false; // an opening over the others goes on
};

} // namespace velora
