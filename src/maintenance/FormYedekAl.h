#pragma once

#include <memory>

#include "maintenance/KlasorIzleme.h"
#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;
class EslemeKosusu;

/// "Yedekleme İşlemleri": a dated copy of the whole tree in a folder of the user's choice. Whatever fails is
/// passed over, and the last message says all the same that it succeeded.
///
/// What starts it by itself, by the clock or at a change, is kept and can't be seen: no window shows it.
struct FormYedekAl {
    explicit FormYedekAl(Program& program);

    void Load();
    void txtSource_Change();
    void txtDestination_Change();
    void txtMins_Change();
    void Command1_Click(); ///< browses for the source
    void Command2_Click(); ///< browses for the target
    /// "Tamam": takes the backup and unloads the screen. Events run meanwhile; the screen may be unloaded
    /// then: the table, where it stands, goes on with the rest and this returns at once. Without it this goes
    /// on. Either way the backup comes to its end and its message.
    void cmdStart_Click();
    void Command3_Click(); ///< "Kapat": unloads the screen
    void Timer1_Timer();   ///< copies into the target itself, no folder of a day
    /// Tells that a backup has come to its end.
    static void Bitti(const Program& program);

    Metin baslik = u"Yedekleme İşlemleri";
    Etiket Label8;
    MetinKutusu txtSource;
    MetinKutusu txtDestination;
    Dugme Command1{u"Gözat...", u"Kaynak dizini seç"};
    Dugme Command2{u"Gözat...", u"Hedef dizini seç"};
    Dugme cmdStart{u"Tamam", {}};
    Dugme Command3{u"Kapat", {}};
    Etiket Label9{u"Yedek alınıyor... Lütfen bekleyiniz...", false};

    // Kept out of sight.
    OnayKutusu chkFolderChange;
    MetinKutusu txtMins;
    MetinKutusu txtFileType;
    OnayKutusu chkStartwithWindows;
    Zamanlayici Timer1;

  private:
    /// False: the end isn't reached here. The program ends meanwhile, or the table goes on with the rest.
    bool Yurut(const std::shared_ptr<EslemeKosusu>& kosu);
    bool Duruyor();
    void Ardindan();
    void Sakla(MetinBakis ad, const Metin& deger) const;

    Program& program_;
    Koken koken_; // of the values
    KlasorIzleme izleme_;
};

} // namespace velora
