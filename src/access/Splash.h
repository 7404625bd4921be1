#pragma once

#include "screen/Inet.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

inline constexpr int kAdimSayisi = 7;

/// The start-up screen, the first of every run. It walks a ladder of ticks, asks the service and the product
/// site on its way, and hands over to the login. It stays loaded, hidden, for the whole run: its two boxes
/// are the online state.
struct Splash {
    explicit Splash(Program& program);

    void Load();

    /// Starts the program: refuses a second running copy, goes to the first run where there is no firm yet,
    /// makes one lost file anew, and shows the screen with its ladder. Once in a run.
    ///
    /// A file that is there but can't be read counts as lost. It is never written over: then nothing is told
    /// of a repair.
    void Baslat();
    void Timer1_Tick(); ///< one tick of the ladder
    /// The query for the connection once more, later in the run. What it asks of the calendar stays as it is.
    void tekrarinternetkontrol();
    /// The window is closed from outside before the ladder has ended: the program ends.
    void Kapat();

    Metin baslik = u"Velora";
    Metin Tag; ///< ticks of the ladder; empty counts as 0
    Etiket Label2{u"Sürüm"};
    Etiket Label3{u"Yüklemeye başlanıyor"}; ///< the current step
    Etiket Label5{u" Lütfen bekleyin"};
    BirTabanli<bool, kAdimSayisi> Loading; ///< the marks of the steps; true: lit
    Metin Text1;                           ///< the contract that a repair writes, in bytes of its file
    int Check1 = 0; ///< 1 when the service answered in this run: the test with which every online feature
                    ///< starts
    int Check2 = 0; ///< 1 when the service reports the firm's calendar as published
    int VersiyonKontrol = 0; ///< 1 when this version is out of date
    Zamanlayici Timer1;
    Inet Inet1;

  private:
    struct Basamak;
    static const std::array<Basamak, 10> kMerdiven;

    bool Okunur(MetinBakis ad) const;
    void KayipDosyayiOnar(const Metin& ad, MetinBakis icerik);
    void MerdiveniBaslat();
    bool Duruyor() const;
    void InternetKontrol();
    void ServiseSor();
    void SurumuSor();
    void YeniSurum();
    void Devret();

    Program& program_;
};

} // namespace velora
