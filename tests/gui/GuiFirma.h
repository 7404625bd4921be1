#pragma once

#include <functional>
#include <optional>

#include "destek/GeciciAgac.h"
#include "qt/QtOrtam.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/FormTablo.h"

namespace velora {
class TabloGorunumu;
class TabloPenceresi;
} // namespace velora

namespace velora::test {

/// A firm with two halls in a program folder of its own, and the program in windows over it. Today is 21 May
/// 2026, 10:30; a year of 365 days.
class GuiFirma {
  public:
    GuiFirma();
    ~GuiFirma();
    GuiFirma(const GuiFirma&) = delete;
    GuiFirma& operator=(const GuiFirma&) = delete;

    /// Puts a reservation, before or while the program runs.
    void Rezervasyon(MetinBakis salon, MetinBakis gunAnahtari, bool on) const;

    /// Shows the main screen in this size.
    void Ac(QSize boy = {1280, 720});

    TabloPenceresi& Pencere();
    TabloGorunumu& Tablo();
    FormTablo& Model() { return *program.FormTablo.Tut(); }
    /// A widget of the window by the name of its control.
    template <class Parca>
    Parca& Bul(const char* ad) {
        return *PencereParcasi().findChild<Parca*>(QString::fromLatin1(ad));
    }

    /// The middle of a part of the table, in logical pixels, from its place in device pixels.
    QPoint Orta(const QRect& yer);

    /// Runs behind each "let pending events run", each answered box, each shown screen and opened file: where
    /// something else can come in between.
    std::function<void()> arada;
    /// Files that were given to the user's own programs; none is started.
    std::vector<std::filesystem::path> acilanDosyalar;
    /// While set, boxes aren't shown but answered so, screens aren't shown over others but closed at once,
    /// and pages go nowhere.
    std::optional<Cevap> hazirCevap;

    /// How often the program was told to end. It goes on all the same, unless `gercektenBiter`: the event
    /// loops that a test still needs would be over.
    int bitisler = 0;
    bool gercektenBiter = false;

    GeciciAgac agac;
    QtOrtam disDunya;
    std::chrono::local_seconds simdi;
    Program program;

  private:
    QWidget& PencereParcasi();
    Ortam Dis();
    void AradaCalis() const;
    /// While answers are ready the outside isn't asked but `cevapla`.
    template <class Donus, class... Girdi, class Cevaplayan>
    void HazirCevapla(std::function<Donus(Girdi...)>& islev, Cevaplayan cevapla);
};

inline constexpr MetinBakis kSalonA = u"Gül Salonu";
inline constexpr MetinBakis kSalonB = u"Çınar Kır Bahçesi No.2";

} // namespace velora::test
