#include "setup/FormAyarlar.h"

#include <charconv>
#include <limits>
#include <optional>

#include "screen/Program.h"
#include "screen/TusSuzgeci.h"
#include "storage/KodSayfasi.h"
#include "storage/Sayi.h"
#include "storage/YazimBicimi.h"

namespace velora {

namespace {

constexpr std::array<RenkDegeri, kRenkSayisi> kVarsayilanRenkler{
    32768,    16777215, 8454143,  0,     16777215, 0,        255,      16777215, 6086641,
    0,        15461355, 0,        192,   16777215, 192,      16777215, 255,      12632256,
    16777215, 65280,    16777215, 49152, 16777215, 16761087, 0};

// The fields behind the colours in `Settings.dll`.
enum AyarSirasi {
    kUyariGun = kRenkSayisi,
    kUyariGun2,
    kCheck1,
    kCheck2,
    kGunduzGece,
    kCheck5,
    kCheck6,
    kCheck7
};

/// A whole number, nothing else: what is no number is an error for the whole load.
std::optional<std::int32_t> TamSayi(MetinBakis metin) {
    const std::string bayt = KodYaz(Kirp(metin));
    std::int32_t sayi = 0;
    const auto [son, hata] = std::from_chars(bayt.data(), bayt.data() + bayt.size(), sayi);
    if (hata != std::errc() || son != bayt.data() + bayt.size())
        return std::nullopt;
    return sayi;
}

/// The numeric value as a check value: "abc" is 0, no error.
int SayisalOnay(MetinBakis metin) {
    const double deger = SayisalDeger(metin);
    constexpr double kEnCok = std::numeric_limits<std::int16_t>::max();
    return deger > kEnCok || deger < -kEnCok ? 0 : static_cast<int>(deger);
}

/// Reads all values of a file. False when it can't be opened or holds fewer.
template <std::size_t Adet>
bool HepsiniOku(const Program& program, MetinBakis ad, std::array<Metin, Adet>& deger) {
    const auto bayt = program.dosyalar.Oku(program.agac.KokYolu(ad));
    if (!bayt)
        return false;
    DegerOkuyucu okuyucu(*bayt);
    for (Metin& hedef : deger)
        if (!okuyucu.Oku(hedef))
            return false;
    return true;
}

} // namespace

FormAyarlar::FormAyarlar(Program& program) : program_(program) {
    UyariGun.suzgec = YalnizRakam;
    GunduzGece.ogeler = {Metin(kGunduzGeceSirasi), Metin(kGeceGunduzSirasi)};
    GunduzGece.tiklandi = [this] { GunduzGece_Click(); };
    Check3.tiklandi = [this] { Check3_Click(); };
    Check7.tiklandi = [this] { Check7_Click(); };
    BasliklariKoy();
}

void FormAyarlar::BasliklariKoy() {
    constexpr std::array<MetinBakis, 12> kAylar{u"Ocak",  u"Şubat",   u"Mart",   u"Nisan",
                                                u"Mayıs", u"Haziran", u"Temmuz", u"Ağustos",
                                                u"Eylül", u"Ekim",    u"Kasım",  u"Aralık"};
    for (int ay = 1; ay <= BirTabanli<OnayKutusu, 12>::kAdet; ++ay)
        Aylar[ay].baslik = kAylar[static_cast<std::size_t>(ay - 1)];
    Check1.baslik = u"Geçmiş Günler";
    Check2.baslik = u"Sözleşme numaralarını otomatik olarak ata.";
    Check3.baslik = u"Tabloda Görünecek Aylar";
    Check4.baslik = u"Değişti";
    Check5.baslik = u"Resmi Tatiller ve Özel Günler";
    Check6.baslik = u"Gün detaylarını göster";
    Check7.baslik = u"Sözleşme numarası atama.";
    Command1.baslik = u"Kaydet";
    Command2.baslik = u"İptal";
    Command3.baslik = u"Varsayılan Ayarlar";
    Command4.baslik = u"Uygula";
}

void FormAyarlar::Load() {
    if (!DosyalardanOku())
        Varsayilanlar();
    // Last of all: setting the slot order has counted as a change.
    Check4.Ata(0);
}

bool FormAyarlar::DosyalardanOku() {
    std::array<Metin, 33> ayarlar;
    std::array<Metin, 13> aylar;
    return HepsiniOku(program_, kAyarDosyasi, ayarlar) && AyarlariYerlestir(ayarlar) &&
           HepsiniOku(program_, kAyDosyasi, aylar) && AylariYerlestir(aylar);
}

bool FormAyarlar::AyarlariYerlestir(const std::array<Metin, 33>& deger) {
    for (std::size_t i = 0; i < renkler.size(); ++i) {
        const auto renk = TamSayi(deger[i]);
        if (!renk)
            return false;
        renkler[i] = *renk;
    }
    UyariGun.metin = deger[kUyariGun];
    UyariGun2.metin = deger[kUyariGun2];
    Check1.Ata(SayisalOnay(deger[kCheck1]));
    Check2.Ata(SayisalOnay(deger[kCheck2]));
    GunduzGece.MetinAta(deger[kGunduzGece]);
    GunduzGece_Click();
    for (auto [kutu, sira] : {std::pair{&Check5, kCheck5}, {&Check6, kCheck6}, {&Check7, kCheck7}}) {
        const auto onay = TamSayi(deger[static_cast<std::size_t>(sira)]);
        if (!onay)
            return false;
        kutu->Ata(*onay);
    }
    Check7_Click();
    return true;
}

bool FormAyarlar::AylariYerlestir(const std::array<Metin, 13>& deger) {
    const auto hepsi = TamSayi(deger.back());
    if (!hepsi)
        return false;
    Check3.Ata(*hepsi);
    for (int ay = 1; ay <= BirTabanli<OnayKutusu, 12>::kAdet; ++ay) {
        const auto onay = TamSayi(deger[static_cast<std::size_t>(ay - 1)]);
        if (!onay)
            return false;
        Aylar[ay].Ata(*onay);
    }
    return true;
}

void FormAyarlar::Varsayilanlar() {
    renkler = kVarsayilanRenkler;
    UyariGun.metin = u"5";
    UyariGun2.metin = u"10";
    Check1.Ata(0);
    Check2.Ata(1);
    // Off and on again, so that the click rule ticks all twelve months.
    Check3.Ata(0);
    Check3.Ata(1);
    GunduzGece.MetinAta(kGeceGunduzSirasi);
    GunduzGece_Click();
    Check5.Ata(1);
    Check6.Ata(1);
    Check7.Ata(0);
}

void FormAyarlar::Check3_Click() {
    for (OnayKutusu& ay : Aylar)
        ay.Ata(Check3.deger == 1 ? 1 : 0);
}

void FormAyarlar::Check7_Click() {
    Check2.etkin = Check7.deger != 1;
}

void FormAyarlar::GunduzGece_Click() {
    Check4.Ata(1);
}

} // namespace velora
