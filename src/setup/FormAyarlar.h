#pragma once

#include <array>

#include "screen/Kontroller.h"

namespace velora {

struct Program;

inline constexpr int kRenkSayisi = 25;
inline constexpr MetinBakis kGunduzGeceSirasi = u"Gündüz / Gece";
inline constexpr MetinBakis kGeceGunduzSirasi = u"Gece / Gündüz";

/// "Genel Program Ayarları": the settings of the program and their live store. Readers ask for a value
/// whenever they need it; the first asking loads the screen from `Settings.dll` and `Visible.dll`, an unload
/// drops what was not saved.
struct FormAyarlar {
    explicit FormAyarlar(Program& program);

    /// Reads both files. With either missing, short or holding what is no number, all defaults stand.
    void Load();

    /// Colour `n`, 0 to 24.
    RenkDegeri Renk(int n) const { return renkler[static_cast<std::size_t>(n)]; }
    bool AyGorunur(int ay) const { return Aylar[ay].deger == 1; }
    /// True when the day slot stands on top in each month. Any text but "Gündüz / Gece" means the other
    /// order.
    bool GunduzUstte() const { return GunduzGece.Metni() == kGunduzGeceSirasi; }

    void Check3_Click();
    void Check7_Click();
    void GunduzGece_Click();
    /// All default values, as `Load` falls back to. Leaves the files alone.
    void Varsayilanlar();

    std::array<RenkDegeri, kRenkSayisi> renkler{};
    MetinKutusu UyariGun;
    MetinKutusu UyariGun2;
    OnayKutusu Check1; ///< "Geçmiş Günler"
    OnayKutusu Check2; ///< "Sözleşme numaralarını otomatik olarak ata."
    OnayKutusu Check3; ///< "Tabloda Görünecek Aylar"
    OnayKutusu Check4; ///< hidden: the slot order was changed
    OnayKutusu Check5; ///< "Resmi Tatiller ve Özel Günler"
    OnayKutusu Check6; ///< "Gün detaylarını göster"
    OnayKutusu Check7; ///< "Sözleşme numarası atama."

    /// "Yarı Gün Sıralaması": one of two items. A file may bring a third text, which stands as it is.
    AcilirListe GunduzGece;

    BirTabanli<OnayKutusu, 12> Aylar;

  private:
    bool DosyalardanOku();
    bool AyarlariYerlestir(const std::array<Metin, 33>& deger);
    bool AylariYerlestir(const std::array<Metin, 13>& deger);

    Program& program_;
};

} // namespace velora
