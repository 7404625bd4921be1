#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "storage/Metin.h"

namespace velora {

/// The records of a workbook that are written here, by their numbers.
enum class XlsKaydi : std::uint16_t {
    Son = 0x000A,
    Secim = 0x001D,
    YaziTipi = 0x0031,
    Devam = 0x003C,
    Pencere = 0x003D,
    Bolme = 0x0041,
    KodSayfasi = 0x0042,
    SutunEni = 0x007D,
    SayfaDuzeni = 0x0081,
    Sayfa = 0x0085,
    BaskiDuzeni = 0x00A1,
    HucreBicimi = 0x00E0,
    Metinler = 0x00FC,
    MetinHucresi = 0x00FD,
    Boyutlar = 0x0200,
    SayiHucresi = 0x0203,
    Satir = 0x0208,
    SayfaPenceresi = 0x023E,
    Bicem = 0x0293,
    Bas = 0x0809
};

/// The most bytes that a record holds behind its head.
inline constexpr std::size_t kEnUzunXlsKaydi = 8224;

/// A record: 16-bit numbers, and bytes behind them. No more than a record holds.
void XlsKaydiEkle(std::string& akis, XlsKaydi no, std::initializer_list<std::uint16_t> sayilar,
                  std::string_view bayt = {});

/// The texts of all cells of a workbook, each once. The texts themselves stay the caller's, and must stand
/// until the last call.
class XlsMetinleri {
  public:
    /// The number of a text that isn't empty.
    std::uint32_t No(MetinBakis metin);
    /// The table, in as many records as it takes.
    void Yaz(std::string& akis) const;

  private:
    std::unordered_map<MetinBakis, std::uint32_t> nolar_;
    std::vector<MetinBakis> metinler_; // by their numbers
    std::uint32_t hucreler_ = 0;       // that show one of them
};

} // namespace velora
