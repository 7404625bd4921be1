#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "storage/RezervasyonDosyalari.h"
#include "storage/VeriAgaci.h"
#include "storage/YazimBicimi.h"
#include "table/FormTablo.h"

namespace velora {

/// The values of a main record that the tag of a cell shows, by their number in the file.
inline constexpr std::array<int, 8> kTagDegerleri{
    AnaNo::AdiSoyadi,  AnaNo::Niteligi,     AnaNo::ToplamUcret, AnaNo::AlinanOdeme,
    AnaNo::KalanOdeme, AnaNo::BaslamaSaati, AnaNo::SozlesmeNo,  AnaNo::YaklasincaHatirlat};

/// The two values of a main record that decide on a personal reminder, as a reader that keeps its variables
/// from one file to the next sees them.
struct HatirlatmaDegerleri {
    bool bugun = false;    ///< value 18 is today's date
    bool isaretli = false; ///< value 20 is 1
    bool Gecerli() const { return bugun && isaretli; }
};

/// What a reading of 20 values found in one file.
struct AnaParcasi {
    int adet = 0; ///< values that the file holds, at most 20: the reading leaves the others as they were
    HatirlatmaDegerleri hatirlatma;

    /// What the reader's variables hold after this file.
    void Uygula(HatirlatmaDegerleri& degerler) const;
};

/// Whether a file of a slot was found, and whether its name is the one to the letter.
enum class DilimAdi { Yok, Baska, Tam };

/// One slot of one day, as the folder has it.
struct DilimOkumasi {
    bool dolu = false; ///< the main file is there: the slot is taken
    AnaParcasi ana;
    std::uint32_t ilkDeger = 0; ///< of its tag values in `YilOkumasi`
    bool onVar = false;         ///< the details file holds a value 37
    bool on = false;            ///< and it is 1: a pre-reservation
    DilimAdi anaAdi = DilimAdi::Yok;
    DilimAdi detayAdi = DilimAdi::Yok;
};

/// One pass over a year folder: the folder is listed once and each file is read once. It leaves what the scan
/// of the table and the reminder scan need, so that both can work on it as if they had opened the files one
/// by one.
class YilOkumasi {
  public:
    /// Reads the folder of a hall and year. A folder that isn't there gives an empty reading.
    YilOkumasi(const Dosyalar& dosyalar, const Metin& klasor, MetinBakis yil, MetinBakis bugun);

    const DilimOkumasi& Dilim(int ay, int gun, GunduzGece dilim) const;

    /// Puts the tag values that the slot's main file holds into their targets, in the order of
    /// `kTagDegerleri`.
    void TagDegerleri(const DilimOkumasi& dilim, std::array<Metin, kTagDegerleri.size()>& hedef) const;

    /// Every file of the folder, in the order of its listing.
    const std::vector<AnaParcasi>& Dosyalari() const { return dosyalari_; }

  private:
    void Ekle(const Dosyalar::OkunanDosya& dosya);
    AnaParcasi AnaOkumasi(DegerOkuyucu& okuyucu) const;
    AnaParcasi AnaEkle(DegerOkuyucu& okuyucu, DilimOkumasi& dilim);
    void DegerAl(int no, std::string_view deger, AnaParcasi& parca) const;
    static void DetayEkle(DegerOkuyucu& okuyucu, DilimOkumasi& dilim);

    Metin yil_;
    std::string bugun_;
    std::array<std::array<std::array<DilimOkumasi, 2>, kGunSayisi>, kAySayisi> dilimler_{};
    std::vector<AnaParcasi> dosyalari_;
    std::string havuz_;                    // the tag values of all main files, one behind the other
    std::vector<std::uint32_t> sonlar_{0}; // their ends
};

} // namespace velora
