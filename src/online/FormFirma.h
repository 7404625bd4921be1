#pragma once

#include <array>

#include "screen/Inet.h"
#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

inline constexpr MetinBakis kSehirSeciniz = u"Şehir Seçiniz";
inline constexpr MetinBakis kSalonSayisiSeciniz = u"Salon Sayısı Seçiniz";

/// The record of `Firma.dll`: its values from the first on. In a request they are `a1` to `a13`.
inline constexpr std::size_t kFirmaAlani = 13;
using FirmaKaydi = std::array<Metin, kFirmaAlani>;

/// "Firma Bilgileri": the firm's profile, kept in `Firma.dll` and sent to the service. On the first run it is
/// the first screen that a user sees.
///
/// Its texts are not cleaned: a double quote in one slides those behind it when the file is read again.
struct FormFirma {
    explicit FormFirma(Program& program);

    /// Reads the file into the fields. What it doesn't hold keeps its design value.
    void Load();
    /// The screen comes to the front: on the first run nothing is saved unchecked.
    void Activate();

    /// A province is picked: its districts are offered, and the one before is gone.
    void t8_Click();

    /// "Tamam": checks the fields, writes the file, sends it when the service has answered in this run,
    /// writes `Sunucu.dat` and unloads the screen. The first field that is missing gets the focus, and
    /// nothing else happens. What fails of writing and sending is passed over.
    void Command1_Click();
    /// "İptal": unloads the screen. On the first run it ends the program, after a question.
    void Command2_Click();
    void Command3_Click(); ///< "Kaydet": writes the file as the fields stand, and stays

    /// "Gönder": reads the file into the fields and sends it when the service has answered in this run. While
    /// the screen is shown the fields stay as they are: somebody may be typing.
    void gonder();

    Metin baslik = u"Firma Bilgileri";
    Metin Tag;         ///< "1": the first run
    MetinKutusu t1;    ///< name of the firm
    MetinKutusu t2;    ///< contact person
    MetinKutusu t3;    ///< telephone
    MetinKutusu t4;    ///< mobile telephone
    MetinKutusu t5;    ///< web address
    MetinKutusu t6;    ///< e-mail
    MetinKutusu t7;    ///< address
    AcilirListe t8;    ///< province
    MetinKutusu t9;    ///< district: one of the province's, or typed
    MetinKutusu t10{}; ///< hidden: the caption of `FormTablo`
    MetinKutusu t11{}; ///< hidden: the day on which the profile was last opened
    MetinKutusu t12{}; ///< hidden: spare
    AcilirListe t13;   ///< number of halls
    Dugme Command1;
    Dugme Command2;
    Dugme Command3;
    Inet Inet1;

  private:
    FirmaKaydi Kayit() const;
    void KayittanAl(const FirmaKaydi& kayit);
    void GunuKoy(FirmaKaydi& kayit) const;
    bool AlanlarTamam() const;
    void Yaz() const;
    void Yolla(const FirmaKaydi& kayit);

    Program& program_;
    Koken koken_; // of the fields
};

/// What follows the profile on the first run: the screen on which the administrator's password is made.
void IlkParolayiSor(Program& program);

} // namespace velora
