// What waits at the service: the poll, and the two marks that blink for it.
#include <algorithm>

#include "access/Splash.h"
#include "online/FormDuyurular.h"
#include "online/FormRezervasyonlar.h"
#include "online/FormSunucu.h"
#include "online/Istekler.h"
#include "screen/Program.h"
#include "storage/YazimBicimi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr int kIsaretYanipSonme = 400; // half a period, in milliseconds
constexpr MetinBakis kKayitArasi = u"<br>";

/// A request of the reply as the text of a line: its fields with what stands between values of a record. A
/// double quote would end its value too early.
Metin IstekSatiri(MetinBakis kayit) {
    Metin satir;
    for (const char16_t harf : Kirp(kayit))
        if (harf == u'|')
            satir += u"\",\"";
        else if (harf != u'"')
            satir += harf;
    return satir;
}

std::string IstekBaytlari(MetinBakis cevap) {
    DegerYazici yazici;
    for (std::size_t yer = 0; yer < cevap.size();) {
        const std::size_t son = std::min(cevap.find(kKayitArasi, yer), cevap.size());
        if (const Metin satir = IstekSatiri(cevap.substr(yer, son - yer)); !satir.empty())
            yazici.Yaz(satir);
        yer = son + kKayitArasi.size();
    }
    return yazici.Bayt();
}

} // namespace

void FormTablo::DuyuruKontrol_Tick() {
    Program& p = program_;
    // While it waits the user may open what it asks about, change it there and come back. Then the poll has
    // been set going anew: what this one was told is older than what stands here, and the new one asks again.
    const auto eskidi = [this, &p, kurulus = DuyuruKontrol.kurulus] {
        return !p.FormTablo.Yuklu() || DuyuruKontrol.kurulus != kurulus;
    };
    if (p.Splash->Check1 == 1) {
        const Metin anahtar = p.FormSunucu->Text1.metin;
        const Metin duyuru = Inet1.Getir(IstekAdresi(p, Istek::Duyuru, {anahtar}));
        if (eskidi())
            return;
        if (Kirp(duyuru) == u"1")
            YeniDuyuruTimer.aralik = kIsaretYanipSonme;
        p.OlaylariIsle();
        if (eskidi())
            return;
        const Metin cevap = Inet1.Getir(IstekAdresi(p, Istek::RezKontrol, {anahtar}));
        if (eskidi())
            return;
        IstekleriAl(Kirp(cevap));
        if (eskidi())
            return;
    }
    DuyuruKontrol.aralik = 0;
}

void FormTablo::IstekleriAl(MetinBakis cevap) {
    if (!cevap.empty() && cevap != u"0") {
        const Dosyalar::GunlukDisi gecici(program_.dosyalar);
        program_.dosyalar.Yaz(program_.agac.KokYolu(kIstekDosyasi), IstekBaytlari(cevap));
        YeniRezTimer.aralik = kIsaretYanipSonme;
        return;
    }
    // The file stays as it is, also when it holds some.
    YeniRezTimer.aralik = 0;
    program_.OlaylariIsle();
    YeniRezervasyonVar.etkin = false;
}

void OnlineIsareti::YanSon() {
    etkin = true;
    renkli = !renkli;
}

void FormTablo::YeniRezTimer_Tick() {
    YeniRezervasyonVar.YanSon();
}

void FormTablo::YeniDuyuruTimer_Tick() {
    YeniDuyuru.YanSon();
}

void FormTablo::YeniRezervasyonVar_Click() {
    program_.OlaylariIsle();
    program_.FormRezervasyonlar.GosterModal();
}

void FormTablo::YeniDuyuru_Click() {
    YeniDuyuruTimer.aralik = 0;
    program_.OlaylariIsle();
    program_.FormDuyurular.GosterModal();
}

} // namespace velora
