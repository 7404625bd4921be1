#include "online/FormFirma.h"

#include <algorithm>

#include "access/FormSifreDegistir.h"
#include "access/Splash.h"
#include "online/FormIpMac.h"
#include "online/FormSunucu.h"
#include "online/Iller.h"
#include "online/Istekler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "screen/Surum.h"
#include "storage/Harf.h"
#include "storage/ListeDosyasi.h"
#include "storage/YazimBicimi.h"

namespace velora {

namespace {

constexpr MetinBakis kIlkKurulum = u"1";
constexpr int kEnCokSalon = 10;
constexpr int kGondermeSuresi = 2; // seconds

// The numbers of the values, from 0.
constexpr std::size_t kBaslikAlani = 9;
constexpr std::size_t kGunAlani = 10;

Metin FirmaYolu(const Program& program) {
    return program.agac.KokYolu(kFirmaDosyasi);
}

/// Fills what the file holds and leaves the rest.
void FirmaOku(const Program& program, FirmaKaydi& kayit, Koken& koken) {
    const auto bayt = koken.Oku(program.dosyalar, FirmaYolu(program));
    if (!bayt)
        return;
    DegerOkuyucu okuyucu(*bayt);
    for (Metin& deger : kayit)
        if (!okuyucu.Oku(deger))
            return;
}

/// A choice takes any text but none: then it stays on what it asks for.
void MetniSec(AcilirListe& liste, const Metin& metin) {
    if (!Kirp(metin).empty())
        liste.MetinAta(metin);
}

} // namespace

FormFirma::FormFirma(Program& program) : Inet1(program), program_(program) {
    t1.baslik = u"Firma Adı";
    t2.baslik = u"Yetkili Kişi";
    t3.baslik = u"Telefon";
    t4.baslik = u"Gsm";
    t5.baslik = u"Web Sitesi";
    t6.baslik = u"E-Posta";
    t7.baslik = u"Adres";
    t8.baslik = u"Şehir";
    t9.baslik = u"İlçe";
    t11.baslik = u"Son Giriş Tarihi";
    t13.baslik = u"Salon Sayısı";
    t8.ogeler.emplace_back(kSehirSeciniz);
    for (const Il& il : Iller())
        t8.ogeler.emplace_back(il.ad);
    t13.ogeler.emplace_back(kSalonSayisiSeciniz);
    for (int sayi = 1; sayi <= kEnCokSalon; ++sayi)
        t13.ogeler.push_back(SayiMetni(sayi));
    t8.secili = t13.secili = 0;
    t8.tiklandi = [this] { t8_Click(); };
    Command1.baslik = u"Tamam";
    Command2.baslik = u"İptal";
    Command3.baslik = u"Kaydet";
    Command3.ipucu = u"Eksik alanları sormadan saklar, göndermez ve pencereyi kapatmaz";
}

void FormFirma::Load() {
    FirmaKaydi kayit = Kayit();
    FirmaOku(program_, kayit, koken_);
    GunuKoy(kayit);
    KayittanAl(kayit);
}

void FormFirma::Activate() {
    Command3.gorunur = Tag != kIlkKurulum;
}

void FormFirma::t8_Click() {
    t9.metin.clear();
    t9.ogeler = Ilceleri(t8.Metni());
}

FirmaKaydi FormFirma::Kayit() const {
    return {t1.metin,   t2.metin, t3.metin,  t4.metin,  t5.metin,  t6.metin,   t7.metin,
            t8.Metni(), t9.metin, t10.metin, t11.metin, t12.metin, t13.Metni()};
}

void FormFirma::KayittanAl(const FirmaKaydi& kayit) {
    MetniSec(t8, kayit[7]);
    MetniSec(t13, kayit[12]);
    // Picks nothing yet: the districts must not take the place of the one that is set below.
    t8_Click();
    MetinKutusu* const alanlar[]{&t1, &t2, &t3, &t4, &t5, &t6, &t7, nullptr, &t9, &t10, &t11, &t12};
    for (std::size_t i = 0; i < std::size(alanlar); ++i)
        if (alanlar[i] != nullptr)
            alanlar[i]->metin = kayit[i];
}

void FormFirma::GunuKoy(FirmaKaydi& kayit) const {
    kayit[kBaslikAlani] = kTabloBasligi;
    kayit[kGunAlani] = TarihMetni(program_.Bugun());
}

bool FormFirma::AlanlarTamam() const {
    struct Kontrol {
        MetinBakis ad;
        Metin deger;
        MetinBakis bos; ///< what stands there while nothing is chosen
        const char16_t* mesaj;
    };
    const Kontrol kontroller[]{
        {u"t1", t1.metin, u"", u"Lütfen Firma Adını Yazınız."},
        {u"t2", t2.metin, u"", u"Lütfen Yetkili Kişi İsmini Yazınız."},
        {u"t13", t13.Metni(), kSalonSayisiSeciniz, u"Lütfen Düğün Salonunuzdaki Salon Sayısını Seçiniz."},
        {u"t3", t3.metin, u"", u"Lütfen Telefon Numaranızı Yazınız."},
        {u"t4", t4.metin, u"", u"Lütfen Gsm Numaranızı Yazınız."},
        {u"t5", t5.metin, u"", u"Lütfen Varsa Web Site Adresinizi Yazınız.\nYoksa Yok Diye Belirtiniz."},
        {u"t6", t6.metin, u"", u"Lütfen Varsa E-Posta Adresinizi Yazınız.\nYoksa Yok Diye Belirtiniz."},
        {u"t7", t7.metin, u"", u"Lütfen Firma Adresinizi Yazınız."},
        {u"t8", t8.Metni(), kSehirSeciniz, u"Lütfen Şehrinizi Seçiniz."},
        {u"t9", t9.metin, u"", u"Lütfen İlçenizi Seçiniz."},
    };
    for (const Kontrol& kontrol : kontroller)
        if (Kirp(kontrol.deger) == kontrol.bos) {
            Soyle(program_, kontrol.mesaj);
            program_.ortam.odak.ver(EkranAdi::FormFirma, kontrol.ad);
            return false;
        }
    return true;
}

void FormFirma::Yaz() const {
    const FirmaKaydi kayit = Kayit();
    const auto yaz = [&] {
        SatirlariYaz(program_.dosyalar, FirmaYolu(program_), {{kayit.begin(), kayit.end()}}, koken_);
    };
    const Dosyalar::Eylem eylem(program_.dosyalar, u"Firma bilgileri", [&] {
        yaz();
        // A firm that has a profile and no users lets nobody in. So whoever gets no further than this in the
        // first run finds an `admin` at the next start who has to make a password.
        if (Tag == kIlkKurulum)
            ParolasizAdminYaz(program_);
    });
    yaz();
    if (Tag == kIlkKurulum)
        eylem.SonrayaKalir();
}

void FormFirma::Yolla(const FirmaKaydi& kayit) {
    if (program_.Splash->Check1 != 1)
        return;
    std::vector<Metin> degerler{FirmaAnahtari(program_)};
    degerler.insert(degerler.end(), kayit.begin(), kayit.end());
    // An older sending would keep the newer profile from going out.
    Inet1.Iptal();
    Inet1.sure = kGondermeSuresi;
    Inet1.Getir(IstekAdresi(program_, Istek::FirmaKontrol, degerler));
    Inet1.Iptal();
}

void FormFirma::Command1_Click() {
    if (!AlanlarTamam())
        return;
    for (MetinKutusu* alan : {&t1, &t2, &t7, &t9})
        alan->metin = BuyukBas(alan->metin);
    Yaz();
    Program& p = program_;
    const bool ilk = Tag == kIlkKurulum;
    p.OlaylariIsle();
    Yolla(Kayit());
    p.OlaylariIsle();
    if (ilk)
        IlkParolayiSor(p);
    p.FormSunucu->Command1_Click();
    p.FormFirma.Bosalt();
}

void FormFirma::Command2_Click() {
    if (Tag != kIlkKurulum)
        return program_.FormFirma.Bosalt();
    if (SilmeyiSor(program_,
                   u"Programın kurulumu henüz tamamlanmadı!\nKurulumdan çıkmak istediğinize emin misiniz?",
                   u"Uyarı"))
        program_.ortam.olaylar.bitir();
}

void FormFirma::Command3_Click() {
    Yaz();
}

void FormFirma::gonder() {
    FirmaKaydi kayit = Kayit();
    // Before the file is read: what it holds is what is sent.
    GunuKoy(kayit);
    Koken koken;
    FirmaOku(program_, kayit, koken);
    if (!program_.yigin.Acik(EkranAdi::FormFirma)) {
        KayittanAl(kayit);
        // Where it couldn't be read now, the fields are those of the reading before.
        if (koken.Yazilir())
            koken_ = koken;
    }
    Yolla(kayit);
}

} // namespace velora
