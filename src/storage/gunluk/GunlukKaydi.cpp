#include "storage/gunluk/GunlukKaydi.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "storage/dosya/Utf8.h"

namespace velora {
namespace {

// A frame: "#E ", the length of what it holds and its checksum in hexadecimal digits, a line end.
constexpr std::size_t kBoyYeri = 3;
constexpr std::size_t kBoyHanesi = 16;
constexpr std::size_t kCrcYeri = kBoyYeri + kBoyHanesi + 1;
constexpr std::size_t kCrcHanesi = 8;
constexpr std::size_t kCerceve = kCrcYeri + kCrcHanesi + 1;
constexpr std::string_view kTurler = "EABO"; // in the order of `GunlukKaydi`

constexpr std::array<std::uint32_t, 256> kCrcTablosu = [] {
    constexpr std::uint32_t kPolinom = 0xEDB88320;
    std::array<std::uint32_t, 256> tablo{};
    for (std::uint32_t i = 0; i < tablo.size(); ++i) {
        std::uint32_t kalan = i;
        for (int bit = 0; bit < 8; ++bit)
            kalan = (kalan & 1U) != 0 ? kPolinom ^ (kalan >> 1U) : kalan >> 1U;
        tablo[i] = kalan;
    }
    return tablo;
}();

std::string Onaltilik(std::uint64_t sayi, std::size_t hane) {
    std::string metin(hane, '0');
    for (std::size_t i = hane; i > 0; --i, sayi >>= 4U)
        metin[i - 1] = "0123456789abcdef"[sayi & 0xFU];
    return metin;
}

template <class Sayi>
std::optional<Sayi> SayiOku(std::string_view metin, int taban) {
    Sayi sayi{};
    const auto [son, hata] = std::from_chars(metin.data(), metin.data() + metin.size(), sayi, taban);
    if (hata != std::errc() || son != metin.data() + metin.size())
        return {};
    return sayi;
}

/// Gathers fields: each with its length and a colon before it and a comma behind, so that it may hold
/// whatever it likes.
class AlanYazan {
  public:
    void operator()(std::string_view alan) {
        (((bayt_ += std::to_string(alan.size())) += ':') += alan) += ',';
    }
    void operator()(const Metin& metin) {
        std::string utf8;
        Utf8Ekle(metin, utf8);
        (*this)(std::string_view(utf8));
    }
    void operator()(std::uint64_t sayi) { (*this)(std::string_view(std::to_string(sayi))); }
    void operator()(const std::vector<Metin>& metinler) {
        (*this)(std::uint64_t{metinler.size()});
        for (const Metin& metin : metinler)
            (*this)(metin);
    }
    void operator()(const EylemAdimi& adim);
    void operator()(const std::vector<EylemAdimi>& adimlar) {
        (*this)(std::uint64_t{adimlar.size()});
        for (const EylemAdimi& adim : adimlar)
            (*this)(adim);
    }

    const std::string& Bayt() const { return bayt_; }

  private:
    std::string bayt_;
};

/// Takes the fields out again. Once something is amiss it gives empty ones.
class AlanOkuyan {
  public:
    explicit AlanOkuyan(std::string_view bayt) : kalan_(bayt) {}

    bool Tamam() const { return saglam_ && kalan_.empty(); }

    std::string_view Alan() {
        const std::size_t iki = kalan_.find(':');
        const auto boy = SayiOku<std::size_t>(kalan_.substr(0, iki), 10);
        saglam_ = saglam_ && iki != std::string_view::npos && boy && *boy < kalan_.size() - iki - 1 &&
                  kalan_[iki + 1 + *boy] == ',';
        if (!saglam_)
            return {};
        const std::string_view alan = kalan_.substr(iki + 1, *boy);
        kalan_.remove_prefix(iki + 1 + *boy + 1);
        return alan;
    }
    Metin MetinAl() {
        Metin metin;
        Utf8Coz(Alan(), metin);
        return metin;
    }
    std::uint64_t Sayi() {
        const auto sayi = SayiOku<std::uint64_t>(Alan(), 10);
        saglam_ = saglam_ && sayi;
        return sayi.value_or(0);
    }
    EylemAdimi Adim();
    std::vector<EylemAdimi> Adimlar() {
        std::vector<EylemAdimi> adimlar;
        for (std::uint64_t kalan = Sayi(); kalan > 0 && saglam_; --kalan)
            adimlar.push_back(Adim());
        return adimlar;
    }
    std::vector<Metin> Metinler() {
        std::vector<Metin> metinler;
        for (std::uint64_t kalan = Sayi(); kalan > 0 && saglam_; --kalan)
            metinler.push_back(MetinAl());
        return metinler;
    }

  private:
    std::string_view kalan_;
    bool saglam_ = true;
};

/// Of a text before and one after what both begin and end with stands once.
struct Fark {
    Fark(std::string_view once, std::string_view sonra) {
        const auto ilk = std::mismatch(once.begin(), once.end(), sonra.begin(), sonra.end());
        bas = once.substr(0, static_cast<std::size_t>(ilk.first - once.begin()));
        once.remove_prefix(bas.size());
        sonra.remove_prefix(bas.size());
        const auto ters = std::mismatch(once.rbegin(), once.rend(), sonra.rbegin(), sonra.rend());
        son = once.substr(once.size() - static_cast<std::size_t>(ters.first - once.rbegin()));
        once.remove_suffix(son.size());
        sonra.remove_suffix(son.size());
        onceki = once;
        sonraki = sonra;
    }
    std::string_view bas, onceki, sonraki, son;
};

/// "+" there is a text, "-" there is none, "?" nobody knows.
std::string Varlik(const EylemAdimi& adim) {
    std::string varlik(1, static_cast<char>(adim.tur));
    varlik += !adim.onceBilinir ? '?' : adim.once ? '+' : '-';
    varlik += adim.sonra ? '+' : '-';
    return varlik;
}

void AlanYazan::operator()(const EylemAdimi& adim) {
    const Fark fark(adim.once ? *adim.once : std::string_view(),
                    adim.sonra ? *adim.sonra : std::string_view());
    (*this)(std::string_view(Varlik(adim)));
    (*this)(adim.yol);
    for (const std::string_view parca : {fark.bas, fark.onceki, fark.sonraki, fark.son})
        (*this)(parca);
}

EylemAdimi AlanOkuyan::Adim() {
    const std::string_view varlik = Alan();
    EylemAdimi adim;
    adim.yol = MetinAl();
    std::array<std::string_view, 4> parca;
    for (std::string_view& p : parca)
        p = Alan();
    saglam_ = saglam_ && varlik.size() == 3;
    if (!saglam_)
        return adim;
    adim.tur = static_cast<EylemAdimi::Tur>(varlik[0]);
    adim.onceBilinir = varlik[1] != '?';
    const auto metin = [&](std::string_view orta) { return ((std::string(parca[0]) += orta) += parca[3]); };
    if (varlik[1] == '+')
        adim.once = metin(parca[1]);
    if (varlik[2] == '+')
        adim.sonra = metin(parca[2]);
    return adim;
}

struct Icerik {
    AlanYazan yazan;
    void operator()(const EylemKaydi& kayit) {
        yazan(kayit.no);
        for (const Metin* metin : {&kayit.ad, &kayit.kim, &kayit.zaman})
            yazan(*metin);
        yazan(kayit.adimlar);
    }
    void operator()(const EkKaydi& kayit) {
        yazan(kayit.no);
        yazan(kayit.adimlar);
    }
    void operator()(const BittiKaydi& kayit) { yazan(kayit.no); }
    void operator()(const OnarimKaydi& kayit) {
        yazan(kayit.no);
        yazan(kayit.zaman);
        yazan(kayit.isler);
    }
};

// The fields come in their order: braces say so.
GunlukKaydi IcerikOku(char tur, AlanOkuyan& alan) {
    switch (tur) {
    case 'E':
        return EylemKaydi{alan.Sayi(), alan.MetinAl(), alan.MetinAl(), alan.MetinAl(), alan.Adimlar()};
    case 'A':
        return EkKaydi{alan.Sayi(), alan.Adimlar()};
    case 'O':
        return OnarimKaydi{alan.Sayi(), alan.MetinAl(), alan.Metinler()};
    default:
        return BittiKaydi{alan.Sayi()};
    }
}

} // namespace

std::uint32_t Crc32(std::string_view bayt) {
    std::uint32_t kalan = ~std::uint32_t{0};
    for (const char c : bayt)
        kalan = kCrcTablosu[(kalan ^ static_cast<unsigned char>(c)) & 0xFFU] ^ (kalan >> 8U);
    return ~kalan;
}

std::string KayitBaytlari(const GunlukKaydi& kayit) {
    Icerik icerik;
    std::visit(icerik, kayit);
    const std::string& bayt = icerik.yazan.Bayt();
    std::string sonuc{'#', kTurler[kayit.index()], ' '};
    ((sonuc += Onaltilik(bayt.size(), kBoyHanesi)) += ' ') += Onaltilik(Crc32(bayt), kCrcHanesi);
    return ((sonuc += '\n') += bayt) += '\n';
}

std::optional<GunlukKaydi> KayitOku(std::string_view bayt, std::size_t& konum) {
    const std::string_view kalan = bayt.substr(std::min(konum, bayt.size()));
    if (kalan.size() <= kCerceve || kalan[0] != '#' || kTurler.find(kalan[1]) == std::string_view::npos ||
        kalan[kBoyYeri - 1] != ' ' || kalan[kCrcYeri - 1] != ' ' || kalan[kCerceve - 1] != '\n')
        return {};
    const auto boy = SayiOku<std::size_t>(kalan.substr(kBoyYeri, kBoyHanesi), 16);
    const auto crc = SayiOku<std::uint32_t>(kalan.substr(kCrcYeri, kCrcHanesi), 16);
    if (!boy || !crc || *boy >= kalan.size() - kCerceve || kalan[kCerceve + *boy] != '\n')
        return {};
    const std::string_view icerik = kalan.substr(kCerceve, *boy);
    if (Crc32(icerik) != *crc)
        return {};
    AlanOkuyan alan(icerik);
    GunlukKaydi kayit = IcerikOku(kalan[1], alan);
    if (!alan.Tamam())
        return {};
    konum += kCerceve + *boy + 1;
    return kayit;
}

std::string GunlukBasi(const Metin& kok) {
    AlanYazan yazan;
    yazan(kok);
    return "VELORA GUNLUK 1\n" + yazan.Bayt() + '\n';
}

} // namespace velora
