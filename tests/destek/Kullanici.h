#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora::test {

/// A cell of the table.
struct TabloGozu {
    int gun;
    int ay;
    velora::GunduzGece dilim;
};

/// A person at the desk: a program over a data tree, and the verbs of working with it. No toolkit is needed.
class Kullanici {
  public:
    Kullanici(const GeciciAgac& agac, Gun bugun) : Kullanici(agac.Kok(), agac.Disi() / "durum", bugun) {}
    /// Over a folder that belongs to somebody else; `durum` is that of the journal, empty for none.
    Kullanici(std::filesystem::path kok, const std::filesystem::path& durum, Gun bugun);

    /// Starts the program as its user does and lets the ladder of the start tick to its end, where it stands
    /// at the login; on a first run there is no ladder.
    void Baslat();
    /// Starts the program: the table is loaded, laid out and brought to the front.
    void ProgramiAc();
    /// Starts it at its login, which comes before the table.
    void GirisiAc();
    /// Types into the login and presses "Giriş". True: the table has come, and is laid out.
    bool GirisYap(MetinBakis ad, MetinBakis parola);
    /// Ends it and throws away all that was in memory.
    void ProgramiKapat();

    /// Picks an entry, which must be on, from the menu bar or from the menu of a cell.
    void KomutSec(Komut komut);
    void SalonSec(MetinBakis salon);
    void YilSec(MetinBakis yil);
    void GunBasligina(int gun);
    void AyBasligina(int ay);
    /// A click on a cell.
    void Goze();
    /// The pointer moves over a cell.
    void Uzerine(const TabloGozu& goz);
    /// The pointer moves over a cell and the right button is pressed there. True when a menu opens.
    bool SagTikla(const TabloGozu& goz);
    void CiftTikla(const TabloGozu& goz);
    /// Takes the cell by the mouse and drops it on another. False when it can't be dragged.
    bool Surukle(const TabloGozu& kaynak, const TabloGozu& hedef);
    /// The pointer moves over the bare screen.
    void ImleciBosaGotur();
    /// The window takes another size, in logical pixels.
    void Boyutla(int genislik, int yukseklik);
    /// Time goes by: each timer ticks as often as it is due in so many milliseconds.
    void ZamanGecir(int milisaniye);

    FormTablo& Tablo();
    Hucre& Goz(int gun, int ay, velora::GunduzGece dilim) { return Tablo().Gozu(ay, dilim, gun); }
    Program& Prog() { return *program_; }

    SahteOrtam ortam;
    /// Runs on each new program, before any of its screens is loaded.
    std::function<void(Program&)> hazirla;

  private:
    void YeniProgram();
    std::filesystem::path kok_;
    std::unique_ptr<Program> program_;
    std::map<Zamanlayici*, int> gecen_; // milliseconds since each timer's last tick
};

} // namespace velora::test
