#include "setup/FormAyarlar.h"

#include <limits>

#include "screen/Program.h"
#include "screen/TusSuzgeci.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr std::array<RenkDegeri, kRenkSayisi> kVarsayilanRenkler{
    32768,    16777215, 8454143,  0,     16777215, 0,        255,      16777215, 6086641,
    0,        15461355, 0,        192,   16777215, 192,      16777215, 255,      12632256,
    16777215, 65280,    16777215, 49152, 16777215, 16761087, 0};

/// The numeric value as a check value: "abc" is 0, no error.
int SayisalOnay(MetinBakis metin) {
    const double deger = SayisalDeger(metin);
    constexpr double kEnCok = std::numeric_limits<std::int16_t>::max();
    return deger > kEnCok || deger < -kEnCok ? 0 : static_cast<int>(deger);
}

/// A box that takes any whole number. It clicks when that is another one.
Alan OnayAlani(OnayKutusu& kutu) {
    return {.oku =
                [&kutu](const Metin& deger) {
                    const auto sayi = TamSayi(deger);
                    kutu.Ata(sayi.value_or(kutu.deger));
                    return sayi.has_value();
                },
            .yaz = [&kutu](DegerYazici& yazici) { yazici.Parca(kutu.deger); }};
}

/// A box that takes any text, by its numeric value.
Alan GevsekOnayAlani(OnayKutusu& kutu) {
    return {.oku =
                [&kutu](const Metin& deger) {
                    kutu.Ata(SayisalOnay(deger));
                    return true;
                },
            .yaz = [&kutu](DegerYazici& yazici) { yazici.Parca(kutu.deger); }};
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
    UyariGun.baslik = u"Kesin rezervasyonların tarihine";
    UyariGun2.baslik = u"Ön rezervasyonların tarihine";
    UyariGun.sonra = UyariGun2.sonra = u"gün kaldığında hatırlat.";
    GunduzGece.baslik = u"Yarı Gün Sıralaması";
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
    if (!DosyalardanOku()) {
        Varsayilanlar();
        VarsayilanlariTut();
    }
    // Last of all: setting the slot order has counted as a change.
    Check4.Ata(0);
}

bool FormAyarlar::DosyalardanOku() {
    const VeriAgaci& agac = program_.agac;
    ayarlar_.okundu =
        AlanlariOku(program_.dosyalar, agac.KokYolu(kAyarDosyasi), AyarAlanlari(), &ayarlar_.koken);
    if (ayarlar_.okundu) {
        GunduzGece_Click();
        Check7_Click();
    }
    // Whatever came of the first: a save wants to know it of each.
    aylar_.okundu = AlanlariOku(program_.dosyalar, agac.KokYolu(kAyDosyasi), AyAlanlari(), &aylar_.koken);
    return ayarlar_.okundu && aylar_.okundu;
}

/// Where one file couldn't be read, the defaults stand in the place of the other one's values too, whole as
/// they are. As long as nothing of these is changed on the screen, they stay.
void FormAyarlar::VarsayilanlariTut() {
    if (ayarlar_.koken.Yazilir() && aylar_.koken.Yazilir())
        return;
    if (ayarlar_.okundu)
        ayarlar_.varsayilan = AlanBaytlari(AyarAlanlari());
    if (aylar_.okundu)
        aylar_.varsayilan = AlanBaytlari(AyAlanlari());
}

std::vector<Alan> FormAyarlar::AyarAlanlari() {
    std::vector<Alan> alanlar;
    for (RenkDegeri& renk : renkler)
        alanlar.push_back(SayiAlani(renk));
    for (MetinKutusu* kutu : {&UyariGun, &UyariGun2})
        alanlar.push_back(MetinAlani(kutu->metin));
    for (OnayKutusu* kutu : {&Check1, &Check2})
        alanlar.push_back(GevsekOnayAlani(*kutu));
    alanlar.push_back({.oku =
                           [this](const Metin& deger) {
                               GunduzGece.MetinAta(deger);
                               return true;
                           },
                       .yaz = [this](DegerYazici& yazici) { yazici.Parca(GunduzGece.Metni()); }});
    for (OnayKutusu* kutu : {&Check5, &Check6, &Check7})
        alanlar.push_back(OnayAlani(*kutu));
    return alanlar;
}

std::vector<Alan> FormAyarlar::AyAlanlari() {
    std::vector<Alan> alanlar;
    for (OnayKutusu& ay : Aylar)
        alanlar.push_back(OnayAlani(ay));
    // By its value alone: its click would tick or clear the months that were just read.
    alanlar.push_back(SayiAlani(Check3.deger));
    return alanlar;
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
