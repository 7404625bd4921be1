#include "accounts/FormBakiye.h"

#include <algorithm>
#include <utility>

#include "accounts/RaporAktarma.h"
#include "accounts/RaporAlanlari.h"
#include "reservation/KayitYukle.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr MetinBakis kKesin = u"Kesin";
constexpr MetinBakis kOn = u"Ön";
constexpr std::size_t kKalanSutunu = 4;
constexpr std::size_t kTipSutunu = 5;

/// The entries of `Combo1`.
enum Tip { Tumu, OnRezervasyonlar, KesinRezervasyonlar };

constexpr std::size_t kGunAdiUzunlugu = 19; // of the longer one, with "Gündüz"

/// By the exact text: "DÜĞÜN" is another kind.
std::size_t TurSirasi(MetinBakis nitelik) {
    const auto yer = std::find(kBakiyeTurleri.begin(), kBakiyeTurleri.end() - 1, nitelik);
    return static_cast<std::size_t>(yer - kBakiyeTurleri.begin());
}

/// Unlike elsewhere, a zero is seen.
Metin ToplamMetni(double tutar) {
    const Metin metin = TutarMetni(tutar);
    return metin == u":  TL" ? u": 0 TL" : metin;
}

/// False where the file couldn't be read.
template <class Degerler>
bool Al(const std::optional<std::string_view>& bayt, Degerler& hedef) {
    if (bayt)
        DegerleriAl(*bayt, hedef);
    return bayt.has_value();
}

Metin SayacMetni(std::ptrdiff_t sayi) {
    return u": " + SayiMetni(sayi);
}

} // namespace

FormBakiye::FormBakiye(Program& program) : program_(program) {
    BasliklariKoy();
    Combo1.ogeler = {u"(Tümü)", u"Ön Rezervasyonlar", u"Kesin Rezervasyonlar"};
    Liste.basliklar = {u"Tarih", u"Ad Soyad", u"Toplam",   u"Alınan",  u"Kalan",
                       u"Tipi",  u"Salon",    u"Niteliği", u"Davetli", u"Ön Açıklama"};
    Liste.sayiSutunlari = {2, 3, 4, 8};
    Liste.secimDugmeleri.dugmeler = {&Command6};
    // The rows are always of the hall shown: a row's record is opened there.
    Combo2.tiklandi = [this] { YenidenListele(); };
    ToplamlariGoster({});
    Say();
}

void FormBakiye::BasliklariKoy() {
    Combo2.baslik = u"Salon Adı";
    DTPicker1.baslik = u"Başlangıç Tarihi";
    DTPicker2.baslik = u"Bitiş Tarihi";
    Combo1.baslik = u"Rezervasyon Tipi";
    Liste.baslik = u"Rezervasyonlar";
    for (std::size_t i = 0; i < kBakiyeTurleri.size(); ++i)
        DTop[static_cast<int>(i) + 1].once = kBakiyeTurleri[i];
    Toplam.once = u"Genel Toplam";
    Alinan.once = u"Alınan Ödeme";
    Kalan.once = u"Kalan Ödeme";
    Label14.once = u"Kesin Rezervasyon";
    Label18.once = u"Ön Rezervasyon";
    Label19.once = u"Toplam Rezervasyon";
}

void FormBakiye::Load() {
    SalonlariAl(program_, Combo2);
    Combo1.secili = Tumu;
    BuAyiSec(program_, DTPicker1, DTPicker2);
}

void FormBakiye::Activate() {
    Liste.secimDugmeleri.Ac(false);
    const auto gunler = [this] { return std::pair(DTPicker1.deger, DTPicker2.deger); };
    const auto once = gunler();
    Command4(); // the first day within the year
    Command5(); // the last day too
    acikmi = 1;
    const bool yilDegisti = listelenenYil_ != program_.FormTablo->Sene.Metni() || gunler() != once;
    if (!listelenenYil_.empty() && yilDegisti)
        YenidenListele();
}

void FormBakiye::Command4() {
    YilaSinirla(program_, DTPicker1);
}

void FormBakiye::Command5() {
    YilaSinirla(program_, DTPicker2);
}

void FormBakiye::ListeleGun() {
    if (YenidenListele() && Liste.satirlar.empty())
        Soyle(program_, u"Belirtilen tarihler arasında bir rezervasyon kaydı bulunamadı!");
}

bool FormBakiye::YenidenListele() {
    // No row of the new list has been clicked yet.
    Liste.secimDugmeleri.Ac(false);
    Liste.Temizle();
    listelenenYil_ = program_.FormTablo->Sene.Metni();
    Toplamlar toplamlar{};
    const bool tamam = Tara(toplamlar);
    Ozet.baslik = Liste.Ozeti(listelenenYil_); // of what is seen, also where the scan had to stop
    if (tamam) {
        ToplamlariGoster(toplamlar);
        Say();
    }
    return tamam;
}

/// False when it had to stop.
bool FormBakiye::Tara(Toplamlar& toplamlar) {
    const Metin klasor = program_.agac.YilKlasoru(Combo2.Metni(), program_.FormTablo->Sene.Metni());
    // Outside the loop: a file that is too short leaves the values of the one before it.
    AnaSecimi ana;
    DetaySecimi detay;
    KlasorOkumasi okuma = program_.dosyalar.KlasorAc(klasor);
    Metin ad; // kept for its memory
    for (std::size_t i = 0; i < okuma.Sayi(); ++i) {
        if (EslikDosyasi(okuma, i) || !GunDosyasiDeseni(okuma[i]))
            continue;
        ad = okuma[i];
        const auto gun = TarihCoz(Parca(ad, 1, kTarihUzunlugu));
        if (!gun)
            return false;
        if (*gun < DTPicker1.deger || *gun > DTPicker2.deger)
            continue;
        if (!Al(okuma.Oku(i), ana) || !Al(okuma.EsiniOku(i, kDetayEki), detay))
            return false;
        if (!Istenen(detay))
            continue;
        SatirEkle(ad, VeriAgaci::GunYolu(klasor, ad), ana, detay);
        std::size_t sira = kBakiyeTurleri.size();
        for (const int no : {AnaNo::ToplamUcret, AnaNo::AlinanOdeme, AnaNo::KalanOdeme}) {
            const double tutar = TutarDegeri(ana.No(no));
            toplamlar[sira++] += tutar;
            if (no == AnaNo::ToplamUcret)
                toplamlar[TurSirasi(ana.No(AnaNo::Niteligi))] += tutar;
        }
    }
    return true;
}

bool FormBakiye::OnMu(const DetaySecimi& detay) {
    return detay.No(DetayNo::OnRezervasyon) == u"1";
}

/// A record in neither state stands in the whole list alone.
bool FormBakiye::Istenen(const DetaySecimi& detay) const {
    if (Combo1.secili == OnRezervasyonlar)
        return OnMu(detay);
    if (Combo1.secili == KesinRezervasyonlar)
        return detay.No(DetayNo::KesinRezervasyon) == u"1";
    return true;
}

void FormBakiye::SatirEkle(MetinBakis ad, Metin yol, const AnaSecimi& ana, const DetaySecimi& detay) {
    Liste.satirlar.push_back(
        {.sutun = Sutunlar(Parca(ad, 1, kGunAdiUzunlugu), ana.No(AnaNo::AdiSoyadi),
                           ana.No(AnaNo::ToplamUcret), ana.No(AnaNo::AlinanOdeme), ana.No(AnaNo::KalanOdeme),
                           OnMu(detay) ? kOn : kKesin, Combo2.Metni(), ana.No(AnaNo::Niteligi),
                           ana.No(AnaNo::DavetliSayisi), ana.No(AnaNo::OnAciklama)),
         .tag = std::move(yol)});
}

void FormBakiye::ToplamlariGoster(const Toplamlar& toplamlar) {
    auto toplam = toplamlar.begin();
    for (Etiket& etiket : DTop)
        etiket.baslik = ToplamMetni(*toplam++);
    for (Etiket* etiket : {&Toplam, &Alinan, &Kalan})
        etiket->baslik = ToplamMetni(*toplam++);
}

void FormBakiye::Say() {
    const auto hepsi = static_cast<std::ptrdiff_t>(Liste.satirlar.size());
    const auto kesin = std::ranges::count_if(
        Liste.satirlar, [](const ListeSatiri& satir) { return satir.sutun[kTipSutunu] == kKesin; });
    Label14.baslik = SayacMetni(kesin);
    Label18.baslik = SayacMetni(hepsi - kesin);
    Label19.baslik = SayacMetni(hepsi);
}

void FormBakiye::Liste_Click() {
    Liste.secimDugmeleri.Ac(true);
}

void FormBakiye::Liste_DblClick() {
    if (Command6.etkin)
        Command6_Click();
}

void FormBakiye::Command6_Click() {
    if (const ListeSatiri* satir = Liste.Secili())
        SatiriAc(program_, *satir, Combo2.Metni());
}

void FormBakiye::Command2_Click() {
    std::vector<Metin> basliklar = Liste.basliklar;
    basliklar[kKalanSutunu] = u"Bakiye"; // as it is called there, and on the screen isn't
    RaporAktar(program_, std::move(basliklar), Liste);
    Liste.secimDugmeleri.Ac(false);
}

void FormBakiye::Command1_Click() {
    program_.FormBakiye.Bosalt();
}

} // namespace velora
