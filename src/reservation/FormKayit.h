#pragma once

#include <array>

#include "screen/Kontroller.h"
#include "screen/Sayfa.h"
#include "storage/RezervasyonDosyalari.h"

namespace velora {

struct Program;

inline constexpr int kKaySayisi = 18;
// Of the four pages: the fields of the main file, and the payments.
inline constexpr int kGenelSayfasi = 1;
inline constexpr int kOdemelerSayfasi = 2;
inline constexpr MetinBakis kNitelikSeciniz = u"Lütfen Seçiniz";
inline constexpr MetinBakis kMenuSeciniz = u"Menü seçiniz...";

/// "Yeni Kayıt" / "Kayıt Düzenle": the one screen on which a reservation is entered and changed. `Load`
/// prepares a new record; who opens an existing one sets `KayitAc` and the fields afterwards (`KayitYukle`).
///
/// Money is text. `Kay9` and `Kay10` are computed from the list of payments, whatever a file says.
struct FormKayit {
    explicit FormKayit(Program& program);

    // --- opening and closing (FormKayit.cpp) ---
    /// Today's contract date, the menus, the next contract number. A missing or short `Menuler.dat` or
    /// `Count.dat` ends it there and offers the number "1".
    void Load();
    void Activate();
    /// "Kapat": asks before an unsaved new record is dropped; an existing one closes without a question.
    void Command2_Click();

    // --- fields (FormKayit.cpp) ---
    void Check_Change(int no);
    void Check_MouseUp(int no);
    void Check19_Change();
    void Check19_MouseUp();
    void Combo1_Click();
    void Kay8_LostFocus();
    void Kay9_LostFocus();
    void Kay12_LostFocus();
    void Command4_Click(); ///< "Ödemeler": to the page of payments

    // --- saving (Kaydetme.cpp) ---
    /// "Oluştur" / "Kaydet": checks, writes the three files and the counter, but for what couldn't be read of
    /// them, unloads the screen and brings the open views up to date. Nothing that fails on the disk is
    /// reported, and the screen closes all the same.
    void Command1_Click();
    /// "GizliKayit": writes without checking the fields, leaves payments alone and the screen open.
    void Command11();

    // --- payments (Odemeler.cpp) ---
    void Command7_Click(); ///< "Sil"
    void Command8_Click(); ///< "Ekle"
    void Command9_Click(); ///< "Makbuz": of the marked payment, saved or not (Makbuz.cpp)
    void Liste_ItemClick();
    void Command10();    ///< "Listele": adds what `OdemeDosyasi` holds
    void Command12();    ///< "listeyi topla": the totals
    void Kaydet() const; ///< writes `OdemeDosyasi`; an empty list leaves no file

    // --- the contract (SozlesmeBaskisi.cpp) ---
    /// "Sözleşme Yazdır": asks for the number of copies, the note and the menu, and prints what the fields
    /// show, saved or not; each copy is a job of its own. Nothing goes on once the screen has gone.
    void Command3_Click();
    /// The same as one file, the menu behind the contract. It needs no printer.
    void Pdf_Click();

    Metin baslik = u"Yeni Kayıt";
    std::array<Metin, 4> sayfalar{u"Genel Bilgiler ", u"Ödemeler", u"Menüler", u"Hizmetler"};
    int SSTab1 = 1; ///< the page shown, 1 to 4

    int KayitAc = 0; ///< 1: an existing record. Set by who opens one.
    int Basildi = 0; ///< 1: saved in this opening
    Metin Tag;       ///< path of the main file of an existing record

    // Of the three files of an existing record: what couldn't be read isn't saved over.
    Koken anaKoken;
    Koken detayKoken;
    Koken odemeKoken;
    Metin kayitliOdeme; ///< what was paid, by the main file

    Metin Tarih; ///< day file name of the record
    Metin tarihBaslik = u"Rezervasyon Tarihi";
    Etiket SalonAdi;                         ///< the hall that it is saved in: the one that the table shows
    BirTabanli<MetinKutusu, kKaySayisi> Kay; ///< the fields by their numbers; `Kay[4]` is an editable list
    OnayKutusu Option1;                      ///< "Kesin Rezervasyon"
    OnayKutusu Option2;                      ///< "Ön Rezervasyon"
    OnayKutusu Check18;                      ///< "Yaklaşınca Hatırlat"
    OnayKutusu Check19;                      ///< "Bu Tarihte Hatırlat"

    ListeGorunumu Liste; ///< payments: "Tarih", "Tutar", "Açıklama"
    Etiket ToplamUcret;  ///< `Kay8` for the eye, on the page of payments
    Etiket Kayam9;       ///< `Kay9` for the eye
    Etiket Kayam10;      ///< `Kay10` for the eye

    AcilirListe Combo1;
    std::vector<Metin> ListCombo1; ///< the text of each menu of `Combo1`
    MetinKutusu Label20;           ///< the text of the chosen menu; may be changed by hand
    MetinKutusu Aciklamalar;

    BirTabanli<OnayKutusu, kHizmetSayisi> Check;
    BirTabanli<MetinKutusu, kHizmetSayisi> TT;

    Dugme Command1{u"Oluştur", u"Rezervasyonu oluştur"};
    Dugme Command2{u"Kapat", u"Rezervasyonu Oluşturmadan Kapat"};
    Dugme Command3{u"Sözleşme Yazdır", {}};
    Dugme Pdf{u"PDF", u"PDF dosyası olarak kaydet"};
    Dugme Command4{u"Ödemeler", u"Ödemeler Listesi / Ödeme Ekle"};
    Dugme Command7{u"Sil", u"Ödemeyi Sil", false};
    Dugme Command8{u"Ekle", u"Ödeme Ekle"};
    Dugme Command9{u"Makbuz", u"Makbuz Bastır", false};

  private:
    bool MenuleriOku();
    void SozlesmeNoAc(bool acik);
    bool SozlesmeNoOner();
    bool GunVar() const;
    bool AlanlarTamam();
    bool NumaraVar(const Metin& no) const;
    bool NumaraUygun();
    void AlanaDon(int no, const Metin& mesaj);
    void BasliklariKoy();
    void DosyalariYaz();
    bool SayacYazilir() const;
    void KlasoruYap() const;
    void KlasoruVeKayitlariYaz();
    Metin AnaYolu() const;
    Metin DetayYolu() const;
    AnaKayit Ana() const;
    DetayKaydi Detay() const;
    /// The path of this day in the hall and year that are selected now.
    Metin GunYolu() const;
    void SayaciYaz() const;
    /// Whether the screen still stands, behind what lets events run.
    bool Duruyor() const;
    bool KopyalariBas(const std::vector<Sayfa>& baskilar, const Metin& ad, double kopya) const;

    Program& program_;
    Koken sayacKoken_; // of the number that is offered
};

} // namespace velora
