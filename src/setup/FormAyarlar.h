#pragma once

#include <array>
#include <vector>

#include "screen/Kontroller.h"
#include "setup/RenkNo.h"
#include "storage/AlanDosyasi.h"

namespace velora {

struct Program;

inline constexpr MetinBakis kGunduzGeceSirasi = u"Gündüz / Gece";
inline constexpr MetinBakis kGeceGunduzSirasi = u"Gece / Gündüz";

/// "Genel Program Ayarları": the settings of the program and their live store. Readers ask for a value
/// whenever they need it; the first asking loads the screen from `Settings.dll` and `Visible.dll`, an unload
/// drops what was not saved.
struct FormAyarlar {
    explicit FormAyarlar(Program& program);

    /// Reads both files. With either missing, short or holding what is no number, all defaults stand.
    void Load();

    /// Colour `n`, 0 to 24 (`RenkNo`).
    RenkDegeri Renk(int n) const { return renkler[static_cast<std::size_t>(n)]; }
    bool AyGorunur(int ay) const { return Aylar[ay].deger == 1; }
    /// True when the day slot stands on top in each month. Any text but "Gündüz / Gece" means the other
    /// order.
    bool GunduzUstte() const { return GunduzGece.Metni() == kGunduzGeceSirasi; }

    void Check3_Click();
    void Check7_Click();
    void GunduzGece_Click();
    /// Opens the colour picker for slot `n`.
    void Renk_Click(int n);
    /// "Kaydet": applies, writes both files and unloads. One that couldn't be read isn't written, and the
    /// other one then only when it was changed here. A failed write is not reported; the next reading then
    /// brings what the disk holds.
    void Command1_Click();
    /// "İptal": drops what was not saved, also what the table already shows; the table keeps that until its
    /// next repaint.
    void Command2_Click();
    void Command3_Click(); ///< "Varsayılan Ayarlar": sets all defaults and applies them; saves nothing
    void Command4_Click(); ///< "Uygula": repaints the table, and tells of a changed slot order each time
    /// All default values, as `Load` falls back to. Leaves the files alone.
    void Varsayilanlar();

    Metin baslik = u"Genel Program Ayarları";
    std::array<Metin, 2> sayfalar{u"Genel Ayarlar ", u"Görünüm Ayarları "};
    std::array<RenkDegeri, kRenkSayisi> renkler{};
    MetinKutusu UyariGun;
    MetinKutusu UyariGun2; ///< takes any character, unlike `UyariGun`, as is meant
    OnayKutusu Check1;     ///< past days are painted
    OnayKutusu Check2;     ///< contract numbers are given automatically
    OnayKutusu Check3;     ///< the box over all months
    OnayKutusu Check4;     ///< hidden: the slot order was changed
    OnayKutusu Check5;     ///< holidays are painted
    OnayKutusu Check6;     ///< the pointer shows the day
    OnayKutusu Check7;     ///< no contract numbers at all

    /// "Yarı Gün Sıralaması": one of two items. A file may bring a third text, which stands as it is.
    AcilirListe GunduzGece;

    BirTabanli<OnayKutusu, 12> Aylar;
    Dugme Command1;
    Dugme Command2;
    Dugme Command3;
    Dugme Command4;

  private:
    /// One of the two files.
    struct Dosya {
        Koken koken;
        bool okundu = false;      ///< its values are whole
        std::string varsayilan{}; ///< what isn't written over them
    };
    bool DosyalardanOku();
    void Yaz(MetinBakis ad, const Dosya& dosya, const std::string& bayt) const;
    void VarsayilanlariTut();
    void BasliklariKoy();
    /// The values of the two files, in their order. Whoever holds a table must not outlive the screen.
    std::vector<Alan> AyarAlanlari();
    std::vector<Alan> AyAlanlari();

    Program& program_;
    Dosya ayarlar_;
    Dosya aylar_;
};

} // namespace velora
