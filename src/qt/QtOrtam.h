#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <QPointer>
#include <QWidget>

#include "qt/Isci.h"
#include "qt/PencereHafizasi.h"
#include "qt/Yazici.h"
#include "screen/Ortam.h"

namespace velora {

/// The outside world in windows. It makes the window of a screen when the screen is shown and drops it when
/// the screen is hidden. Must outlive the program that uses its functions.
class QtOrtam {
  public:
    using Uretici = std::function<std::unique_ptr<QWidget>()>;

    /// The functions for the program.
    Ortam Ver();

    /// Tells how the window of a screen is made.
    void Tanit(EkranAdi ekran, Uretici uretici);

    /// The screens that it knows a window for.
    std::vector<EkranAdi> Taninanlar() const;

    /// The window of a screen, null while it has none.
    QWidget* Pencere(EkranAdi ekran) const;

    /// Where windows are remembered; before the first is shown. Without it none is.
    void HafizaVer(PencereHafizasi hafiza) { hafiza_ = std::move(hafiza); }

    /// Where the program's own settings are kept; before a screen is used. Without it they are not.
    void AyarlarVer(AyarDosyasi ayarlar) { ayarlar_ = std::move(ayarlar); }

    /// How long a handler waits for the printer or the disk before it goes on as if they had failed.
    void SabirVer(std::chrono::milliseconds sabir) { sabir_ = sabir; }

    /// Drops all windows, before the screens go.
    void PencereleriBirak();

    /// True when the program was told to end.
    bool Bitti() const { return bitti_; }

    /// Waits for what still goes to the printer or the disk, for a program that ends. False: after some
    /// seconds it hangs there, and the process must end without taking anything from under it.
    bool IslerBitti() { return dosyaIscisi_.Bekle() && basimIscisi_.Bekle(); }

  private:
    /// A window may be dropped by a handler of its own: the toolkit gets its turn first.
    struct SonraSil {
        void operator()(QWidget* pencere) const;
    };

    /// The window with the keyboard. While none has it, as behind one that has just gone, the last shown.
    QWidget* Ondeki() const;
    QWidget* Hazirla(EkranAdi ekran);
    void Ac(EkranAdi ekran, const std::function<void()>& gorununce);
    void Modal(EkranAdi ekran, const std::function<void()>& gorununce);
    void Gizle(EkranAdi ekran);
    void Sakla(EkranAdi ekran) const;
    void OdakVer(EkranAdi ekran, MetinBakis kontrol) const;
    std::optional<std::filesystem::path> KayitYeri(const KayitYeriKutusu& kutu);
    Metin KlasorSec(const Metin& baslik);
    /// Waits for a job of another thread; events run meanwhile.
    bool Arkada(Isci& isci, const std::function<bool(const Vazgecildi&)>& is) const;
    Ortam::Kagit Kagit();
    void Bitir();

    std::map<EkranAdi, Uretici> ureticiler_;
    std::map<EkranAdi, std::unique_ptr<QWidget, SonraSil>> pencereler_;
    std::vector<QPointer<QWidget>> gosterilenler_; // in their order; some have gone
    PencereHafizasi hafiza_;
    AyarDosyasi ayarlar_;
    QString kayitKlasoru_;  // where a file was saved last
    QString secilenKlasor_; // the folder that was chosen last
    std::chrono::milliseconds sabir_{20'000};
    Isci basimIscisi_; // a print system that hangs keeps no file waiting
    Isci dosyaIscisi_;
    bool bitti_ = false;
};

/// While a request waits, the windows show what its handler has done so far. For a world that has its network
/// already.
void BeklerkenGoster(Ortam& ortam);

} // namespace velora
