#pragma once

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "screen/Inet.h"
#include "screen/Kontroller.h"
#include "screen/Ortam.h"
#include "screen/TabloSatirlari.h"
#include "storage/VeriAgaci.h"
#include "table/GozDurumu.h"
#include "table/Komutlar.h"

namespace velora {

struct Program;
class YilOkumasi;
struct AnaDegerler;
struct HatirlatmaDegerleri;
struct FormTabloPrint;
struct Yayin;
class EslemeKosusu;
class YayinKosusu;

/// The mark of a head picked for the ruler: red 255, green 128, blue 0. It stands in no setting.
inline constexpr RenkDegeri kBaslikIsareti = 33023;

/// The half period of the blinking frames, in milliseconds.
inline constexpr int kYanipSonme = 300;

/// One slot of one day. Its back colour is the day's state for all other logic: it has no other record of
/// being taken.
struct Hucre {
    Metin baslik; ///< short weekday name; empty while hidden
    bool gorunur = false;
    RenkDegeri zemin = kBeyaz;
    RenkDegeri yazi = 0;
    Metin tag;   ///< summary of the reservation, ten parts with "|" between; empty on a free cell
    Metin ipucu; ///< the holiday's name
    bool otomatikSurukleme = false; ///< true while it can be dragged
};

/// One of the 24 rows.
struct TabloSatiri {
    BirTabanli<Hucre, kGunSayisi> gun;
    double ust = 0;       ///< twips
    double yukseklik = 0; ///< twips
};

/// The pictures that show which of a month's two rows is which.
enum class SiraResmi { Image1, Image2 }; ///< day slot on top, evening slot on top

struct AyResmi {
    SiraResmi resim = SiraResmi::Image2;
    bool gorunur = false;
    Yer yer;
};

/// A frame about the two cells of one day.
struct Cerceve {
    bool gorunur = false;
    Yer yer;
    int ay = 0;  ///< the month of that day, 0 until the frame is placed
    int gun = 0; ///< and its number
};

/// A mark over the table for what waits at the service: off until it blinks for the first time.
struct OnlineIsareti {
    Metin baslik;        ///< what it is called
    Metin ipucu;         ///< what it says while it is on
    bool etkin = false;  ///< it can be clicked
    bool renkli = false; ///< which of its two pictures it shows: the plain one, or the coloured one

    void YanSon(); ///< a tick: it is on, and shows the other picture
};

/// The main screen: for the hall selected in `Salon` and the year selected in `Sene`, a table of twelve
/// months with two rows each and 31 day columns. The cells are the working memory of the screen. All lengths
/// are twips.
struct FormTablo {
    explicit FormTablo(Program& program);

    // --- what the outside calls ---
    void Load();
    void Activate();
    /// Lays the table out for an inner width and height of the screen, in twips.
    void Resize(double icGenislik, double icYukseklik);
    /// The pointer moved over the bare screen, outside the cells.
    void MouseMove();
    void Salon_Click();
    void Sene_Click();
    void ALabel_Click(int gun);
    void AyAdi_Click(int ay);

    // --- what happens on a cell of a row; hidden cells raise nothing ---
    /// The pointer moves over it.
    void Hucre_MouseMove(SatirAdi satir, int gun);
    /// A button of the mouse goes down on it. True: `Sagtus` is to be opened at the pointer, for it has an
    /// entry that the user may see. The view sees to it that the pointer has moved over the cell before.
    bool Hucre_MouseDown(SatirAdi satir, int gun, bool sagDugme);
    void Hucre_Click();
    void Hucre_DblClick(SatirAdi satir, int gun);
    /// The cell last moved over has been dragged here.
    void Hucre_DragDrop(SatirAdi satir, int gun);

    /// The bell: lists what it rings for, over the table. With nothing due any more nothing is shown.
    void Image3_Click();

    // --- what waits at the service (OnlineIsaretler.cpp) ---
    void YeniRezervasyonVar_Click();
    void YeniDuyuru_Click(); ///< stops the blinking

    // --- the commands (Komutlar.h) ---
    /// Shows another screen of the program over the table: all that many commands do.
    template <auto Ekran>
    void EkranAc();
    /// A button of the tool bar: the ruler goes, then the command of exactly this caption runs.
    void AracaTikla(MetinBakis dugme);
    /// Asks, and ends the program. The window is closed by it too.
    void Cikissssss_Click();
    /// Shows the template of the contract, with the firm as its profile has it now.
    void Sozduzenss_Click();
    /// Opens the help page, or else the guide beside the program. Neither: a box says so.
    void Yardimssa_Click();
    void newkay_Click();
    void TasimaModuAc_Click();
    void iptals_Click();
    /// Shows the table as it stands now, as it will be printed (TabloBaskisi.cpp).
    void rezrapor_Click();
    void iptalsebepss_Click(); ///< the log of cancellations, there or not, in the user's text viewer

    // --- the panel of warnings (UyariPaneli.cpp) ---
    void Liste_Click(); ///< a row is marked
    void Liste_DblClick();
    void Command8_Click(); ///< "Detaylar": opens the marked row's reservation
    void Command2_Click(); ///< "Kapat": hides the panel

    // --- procedures under the names of their hidden buttons ---
    void Command1(); ///< "Listele": the full scan and repaint
    void Command3(); ///< "HaftaSonu": heads, free days, weekends
    void Command4(); ///< "Gun İptali": cells of days that exist, with their weekday names
    void Command5(); ///< "Resmi Tatiller"
    void Command6(); ///< "Bugün": is one of today's slots taken?
    void Command7(); ///< "Otomatik Yayin": publishes again what is published already, and else nothing
    /// Sends the table of the selected hall and year, as it is now, to the service, on a screen over the
    /// others (Yayin.cpp). Offline: nothing. Asked while another one goes out, it goes out behind that.
    void Yayinla();
    /// Sends a request whose reply nobody reads, and doesn't wait for it. An empty address is none.
    void ArkadanGonder(const Metin& adres);
    /// Takes over a backup in the middle: it goes on without a screen, to its end and its message
    /// (Yedek.cpp).
    void YedegiSurdur(std::shared_ptr<EslemeKosusu> kosu);
    /// What follows a change of the reservations: the scan, today's frame, the publish. `once` runs before
    /// each.
    void DegisikligiGoster(const std::function<void()>& once = {});
    void GecmisGunler();
    void CetvelAc();
    void CetvelSil();
    /// Lists the reservations that are near (reservation/Uyarilar). None, and not at the start: a box says
    /// so.
    void UyariGoster();
    void TasimaBitir(); ///< closes move mode

    // --- timers ---
    void CetvelTimer_Tick();
    void GunTimer_Tick();
    void Saatsay_Tick();
    void OzelHatirlatTimer_Tick(); ///< the other picture of the bell
    /// Asks the service once whether it has an announcement and which requests wait; these go into
    /// `RezTemp.dat`. No answer reads as none of either.
    void DuyuruKontrol_Tick();
    void YeniRezTimer_Tick();
    void YeniDuyuruTimer_Tick();
    void InternetTimer_Tick(); ///< asks once more whether the service is there
    void YayinTimer_Tick();    ///< what goes out without a screen: its next request
    void YedekTimer_Tick();    ///< the next files of a backup whose screen was closed
    /// Date and time of the status bar, by the clock.
    void SaatiYaz();

    Metin baslik; ///< title of the screen
    AcilirListe Salon;
    AcilirListe Sene;
    std::array<TabloSatiri, kSatirSayisi> satirlar;
    BirTabanli<Etiket, kGunSayisi> Gunler; ///< back of the head of each day column
    BirTabanli<Etiket, kGunSayisi> ALabel; ///< day numbers in the heads
    BirTabanli<Etiket, kAySayisi> AyAdi;   ///< month names in capitals
    BirTabanli<Etiket, kAySayisi> AyZemin; ///< bar behind the name of the month
    BirTabanli<AyResmi, kAySayisi> GunduzGece;
    Cerceve BuGun;           ///< frame about today's column of the current month, in `RenkNo::BuGunCercevesi`
    Cerceve HizliSecim;      ///< frame of the ruler
    int HizliAy = 0;         ///< month picked in the heads, 0 for none
    int HizliGun = 0;        ///< day picked in the heads, 0 for none
    Etiket Ekran;            ///< floating hover label
    Metin SeciliTarih;       ///< day file name of the cell under the pointer
    Metin SeciliTarih2;      ///< the same, frozen at the last press
    int tasimamoducheck = 0; ///< 1 while move mode is open
    /// The entries of the menu bar and of the context menu `Sagtus`, by their commands.
    std::array<MenuGirdisi, kKomutSayisi> komutlar;
    /// The buttons of the tool bar and the lines behind them, by their places.
    BirTabanli<MenuGirdisi, kAracSayisi> Toolbar1;
    std::array<Metin, 2> StatusBar1Saati; ///< panels 2 and 3 of the status bar: date and time
    int Check1 = 0;                       ///< "Hatirlatma": 0 until the first Activate
    int Dklabel = 0;                      ///< ticks of `Saatsay`
    // Said by the login, which comes before this screen (screen/Oturum.h).
    Metin& UserNamem;    ///< the active user
    int& TutarDegistir;  ///< 1: the user may change amounts
    Metin& StatusBar1;   ///< panel 1 of the status bar
    Etiket Picture1;     ///< warning panel
    Etiket UyariBaslik;  ///< its title
    ListeGorunumu Liste; ///< its list
    Dugme Command8{u"Detaylar", {}, false};
    Dugme Command2{u"Kapat", {}};
    bool Image3 = false; ///< the bell: a personal reminder falls on today
    Metin image3Ipucu = u"Bu Tarihte Hatırlatma Var";
    bool Image3a = true;                         ///< which of its two pictures the bell shows; they alternate
    Metin image3aIpucu = u"Özel Hatırlatma Var"; ///< what it is called for those who can't see it
    OnlineIsareti YeniRezervasyonVar{u"Online Rezervasyonlar", u"Yeni online rezervasyon var"};
    OnlineIsareti YeniDuyuru{u"Duyurular", u"Yeni duyuru var"};
    Zamanlayici CetvelTimer;
    Zamanlayici GunTimer;
    Zamanlayici OzelHatirlatTimer;
    Zamanlayici Saatsay;
    Zamanlayici DuyuruKontrol;
    Zamanlayici InternetTimer;
    Zamanlayici YayinTimer;
    Zamanlayici YedekTimer;
    Zamanlayici YeniRezTimer;
    Zamanlayici YeniDuyuruTimer;
    Inet Inet1;

    MenuGirdisi& Girdi(Komut komut) { return komutlar[static_cast<std::size_t>(komut)]; }
    Hucre& Gozu(int ay, velora::GunduzGece dilim, int gun) { return Gozu(Satir(ay, dilim), gun); }
    Hucre& Gozu(SatirAdi satir, int gun) { return satirlar[static_cast<std::size_t>(satir)].gun[gun]; }
    const Hucre& Gozu(SatirAdi satir, int gun) const {
        return satirlar[static_cast<std::size_t>(satir)].gun[gun];
    }

    /// Which slot stands on top in this run. A changed setting waits for the next start.
    bool GunduzUstte() const { return gunduzUstte_; }
    /// Where a cell stands, shown or not.
    Yer HucreYeri(SatirAdi satir, int gun) const;
    /// What the hover label says of a cell.
    Metin EtiketMetni(SatirAdi satir, int gun) const;
    /// What a cell is called where it isn't seen: day, slot, and the state that its colour shows. Empty for a
    /// cell that isn't shown.
    Metin GozAdi(SatirAdi satir, int gun) const;
    /// The state that the back colour of a cell shows; none for a colour of no state.
    std::optional<GozDurumu> Durumu(SatirAdi satir, int gun) const;
    /// True when a cell has one of the colours of a reservation.
    bool DoluRenkte(SatirAdi satir, int gun) const;
    /// True when the year in `Sene` is the year of today.
    bool BuYil() const;

  private:
    void KapalilariGizle();
    void SalonlariYukle();
    void SeneleriDoldur();
    void OzelHatirlatmaBak();
    void HatirlatmaGoster(bool var);
    void RezervasyonlariBoya(const YilOkumasi& okuma, HatirlatmaDegerleri& hatirlatma);
    void SutunlariYerlestir();
    void SatirlariYerlestir();
    void BasliklariYerlestir();
    void BuGunYerlestir();
    void YeniGun();
    void CetvelYerlestir();
    void PaneliYerlestir();
    void AyBasliklariniGoster();
    template <std::size_t Adet>
    void BasligiSec(BirTabanli<Etiket, Adet>& basliklar, int no, int& hizli);
    void GecmisBoya(int ay, int ilkGun, int sonGun);
    bool BosRenkte(SatirAdi satir, int gun) const;
    void IstekleriAl(MetinBakis cevap);
    std::array<Metin, 2> TarihVeSaat() const;
    void BaskiyaKopyala(FormTabloPrint& baski) const;
    void BaskiMetinleriniKoy(FormTabloPrint& baski) const;
    Metin GozAnahtari(SatirAdi satir, int gun) const;
    Metin GozTarihi(SatirAdi satir, int gun) const;
    void RezervasyonuTasi(const Metin& kaynakAdi, const Metin& hedefAdi);
    void IptalSatiriEkle(const AnaDegerler& kayit, const Metin& sebep);
    Yayin YayinaKopyala() const;
    void YayinlariGoster();
    void GonderimSaatiniKur();
    void YedekBitti();

    Program& program_;
    double icGenislik_ = 0;
    double icYukseklik_ = 0;
    bool gunduzUstte_ = false; // as the settings said when the screen was loaded
    bool yerlesti_ = false;
    std::deque<std::shared_ptr<YayinKosusu>> yayinlar_;  // that go out or wait, in their order
    bool yayinda_ = false;                               // a screen sends them
    std::vector<Gonderim> gidenler_;                     // requests under way that nobody waits for
    std::deque<std::shared_ptr<EslemeKosusu>> yedekler_; // that go on without a screen, one behind the other
};

} // namespace velora
