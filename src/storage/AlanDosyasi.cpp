#include "storage/AlanDosyasi.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "storage/KodSayfasi.h"

namespace velora {

std::optional<std::int32_t> TamSayi(MetinBakis metin) {
    const std::string bayt = KodYaz(Kirp(metin));
    std::int32_t sayi = 0;
    const auto [son, hata] = std::from_chars(bayt.data(), bayt.data() + bayt.size(), sayi);
    if (hata != std::errc() || son != bayt.data() + bayt.size())
        return std::nullopt;
    return sayi;
}

Alan MetinAlani(Metin& metin) {
    return {.oku =
                [&metin](const Metin& deger) {
                    metin = deger;
                    return true;
                },
            .yaz = [&metin](DegerYazici& yazici) { yazici.Parca(metin); }};
}

Alan SayiAlani(std::int32_t& sayi) {
    return {.oku =
                [&sayi](const Metin& deger) {
                    const auto okunan = TamSayi(deger);
                    sayi = okunan.value_or(sayi);
                    return okunan.has_value();
                },
            .yaz = [&sayi](DegerYazici& yazici) { yazici.Parca(sayi); }};
}

bool AlanlariOku(const Dosyalar& dosyalar, const Metin& yol, std::span<const Alan> alanlar, Koken* koken) {
    const auto bayt = KokenleOku(dosyalar, yol, koken);
    if (!bayt)
        return false;
    DegerOkuyucu okuyucu(*bayt);
    std::vector<Metin> degerler(alanlar.size());
    for (Metin& deger : degerler)
        if (!okuyucu.Oku(deger))
            return false;
    return std::ranges::equal(alanlar, degerler,
                              [](const Alan& alan, const Metin& deger) { return alan.oku(deger); });
}

std::string AlanBaytlari(std::span<const Alan> alanlar) {
    DegerYazici yazici;
    for (const Alan& alan : alanlar)
        alan.yaz(yazici);
    yazici.SatirSonu();
    return yazici.Bayt();
}

} // namespace velora
