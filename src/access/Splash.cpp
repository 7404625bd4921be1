#include "access/Splash.h"

#include "access/FormSifre.h"
#include "maintenance/FormDownloadManager.h"
#include "online/FormFirma.h"
#include "online/FormIpMac.h"
#include "online/Istekler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "screen/Surum.h"
#include "storage/KodSayfasi.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr int kTikAraligi = 60;    // milliseconds
constexpr int kSorgudanSonra = 4;  // seconds that a request may take from then on
constexpr int kTekrardanSonra = 3; // the same, behind the repeated query
constexpr MetinBakis kTamam = u"OKEY";
constexpr MetinBakis kEski = u"OLD";

// The contract of a firm that has none: title and clauses as one record, and one line end more.
constexpr MetinBakis kVarsayilanSozlesme =
    u"\"Sözleşme Maddeleri\",\""
    u"1 - Anlaşma yapıldığında belli bir kaparo alınır. Kalan kısım düğün esnasında ödenir.\r\n"
    u"2 - Organizasyon herhangi bir nedenle iptal edilirse kaparo geri iade edilmez. Organizasyonun iptali "
    u"salona bir ay kala bildirilirse sözleşme karşılıklı fesh edilir, sadece kaparo yanar düğün tarihi bir "
    u"aydan az zaman zarfında iptal edilirse kira ücretinin yarısını ödeme zorunluluğu vardır. Aksi halde "
    u"İlgili Mahkemelerin salahiyetini kabul etmiş sayılır.\r\n"
    u"3 - Düğün salonunda içki içme ve bulundurma yasaktır.\r\n"
    u"4 - Düğün salonunda düğün anında nahoş hadiselerden doğacak her türlü maddi ve manevi hasarların "
    u"mesuliyeti düğün sahibine aittir, sözleşmeyi imzalayan kişidir. Her hangi bir vukuat anında İlgili "
    u"Mahkemelerin salahiyetini kabul etmiş olur.\r\n"
    u"5 - Düğün salonunda düğün başlamadan önce anons yapılmak kaydı ile herkes kendi özel eşyasından "
    u"sorumludur, kaybolan hiçbir özel eşyadan salonumuz sorumlu değildir.\r\n"
    u"6 - Salon sahibinin elinde olmadan oluşabilecek deprem, yangın, felaket v.s gibi doğal afetlerden "
    u"salonumuz işlemez hale geldiğinde, salonumuz hiçbir şekilde sorumlu tutulamaz.\r\n"
    u"7 - Bu sözleşmede yazılı her sözleşme maddesini okuyarak ve kabul ederek salonumuzu kiralıyor olup "
    u"imzalayarak kabul etmiş olursunuz.\r\n"
    u"8 - Fiyatlarımıza KDV dahil değildir.\"\r\n";

} // namespace

/// What happens at one tick: a mark is lit, the step is told, something is done. 0, empty and null for none.
struct Splash::Basamak {
    int tik;
    int isik;
    MetinBakis yazi;
    void (Splash::*is)();
};

const std::array<Splash::Basamak, 10> Splash::kMerdiven{{
    {5, 2, u"Veri tabanı kontrol ediliyor...", &Splash::InternetKontrol},
    {10, 2, u"Modüller kontrol ediliyor...", nullptr},
    {20, 3, u"Kullanıcı ayarları yükleniyor...", nullptr},
    {30, 4, u"Programın sürümü kontrol ediliyor...", nullptr},
    {34, 0, u"", &Splash::SurumuSor},
    {35, 0, u"", &Splash::YeniSurum},
    {40, 5, u"", nullptr},
    {50, 6, u"Firma bilgileriniz yükleniyor...", nullptr},
    {60, 7, u"Program açılıyor bekleyiniz...", nullptr},
    {70, 0, u"", &Splash::Devret},
}};

Splash::Splash(Program& program) : Text1(kVarsayilanSozlesme), Inet1(program), program_(program) {
    Loading[1] = true;
    Timer1.tik = [this] { Timer1_Tick(); };
}

void Splash::Load() {
    Label2.baslik = u"Sürüm " + Metin(kSurum);
}

void Splash::Baslat() {
    Program& p = program_;
    if (!p.ortam.kopya.tek()) {
        Soyle(p, u"Velora Programı zaten çalışıyor!", u"Hata", Simge::Kritik);
        p.Splash.Bosalt();
        return p.ortam.olaylar.bitir();
    }
    p.GunluguAc();
    if (!Okunur(kFirmaDosyasi)) {
        p.Splash.Gizle();
        p.FormFirma->Tag = u"1";
        p.FormFirma.Goster();
    } else if (!Okunur(kMenuDosyasi)) {
        KayipDosyayiOnar(Metin(kMenuDosyasi), u"");
    } else if (!Okunur(kSozlesmeDosyasi)) {
        KayipDosyayiOnar(Metin(kSozlesmeDosyasi), Text1 + u"\r\n");
    } else {
        MerdiveniBaslat();
    }
}

bool Splash::Okunur(MetinBakis ad) const {
    return program_.dosyalar.Oku(program_.agac.KokYolu(ad)).has_value();
}

void Splash::KayipDosyayiOnar(const Metin& ad, MetinBakis icerik) {
    Timer1.aralik = 0;
    Soyle(program_,
          u"Programın çalışması için gereken (" + ad +
              u") dosyası kayıp.\nProgram otomatik olarak kayıp dosyayı geri yüklemeye çalışacak.",
          u"Sistem Hatası", Simge::Kritik);
    program_.OlaylariIsle();
    const Metin yol = program_.agac.KokYolu(ad);
    // One that is there and can't be read, or asked about, may hold all that it ever held.
    if (program_.dosyalar.Yarat(yol, KodYaz(icerik))) {
        Soyle(program_, u"Kayıp dosya (" + ad + u") başarıyla geri yüklendi.", u"Sistem Onarımı");
        program_.OlaylariIsle();
    }
    MerdiveniBaslat();
}

void Splash::MerdiveniBaslat() {
    Timer1.aralik = kTikAraligi; // before: the window that comes now follows it
    program_.Splash.Goster();
}

/// False once the window was closed, which can happen wherever events run.
bool Splash::Duruyor() const {
    return program_.Splash.Yuklu();
}

void Splash::Timer1_Tick() {
    const int tik = static_cast<int>(SayisalDeger(Tag)) + 1;
    Tag = SayiMetni(tik);
    for (const Basamak& basamak : kMerdiven) {
        if (basamak.tik != tik)
            continue;
        if (basamak.isik > 0)
            Loading[basamak.isik] = Loading[1];
        if (!basamak.yazi.empty())
            Label3.baslik = basamak.yazi;
        program_.OlaylariIsle();
        if (basamak.is != nullptr && Duruyor())
            (this->*basamak.is)();
    }
}

void Splash::InternetKontrol() {
    if (!program_.ortam.ag.baglantiVar())
        return;
    ServiseSor();
    if (!Duruyor())
        return;
    const Metin cevap =
        Inet1.Getir(IstekAdresi(program_, Istek::Yayindami, {program_.FormIpMac->Label1.baslik}));
    Check2 = Kirp(cevap) == kTamam ? 1 : 0;
    Inet1.sure = kSorgudanSonra;
    Inet1.Iptal();
}

void Splash::ServiseSor() {
    const Metin cevap = Inet1.Getir(IstekAdresi(program_, Istek::InternetKontrol, {Metin(kSurum)}));
    Check1 = Kirp(cevap) == kTamam ? 1 : 0;
    if (Check1 == 1 && Duruyor())
        program_.FormFirma->gonder();
}

void Splash::SurumuSor() {
    if (Check1 != 1)
        return;
    const Metin cevap = Inet1.Getir(IstekAdresi(program_, Istek::Versiyon, {Metin(kSurum)}));
    VersiyonKontrol = Kirp(cevap) == kEski ? 1 : 0;
    Inet1.sure = kSorgudanSonra;
    Inet1.Iptal();
}

void Splash::YeniSurum() {
    if (VersiyonKontrol != 1)
        return;
    Program& p = program_;
    if (Sor(p, u"YENİ SÜRÜM HAZIR! \nYeni sürümü şimdi yüklemek ister misiniz?", u"Velora Yeni Sürüm")) {
        p.Splash.Gizle();
        p.FormDownloadManager.GosterModal();
    } else {
        Soyle(p, u"Programı kullanabilmeniz için yeni sürümü kurmalısınız!");
    }
    Timer1.aralik = 0;
    p.ortam.olaylar.bitir();
}

void Splash::Devret() {
    Timer1.aralik = 0;
    Program& p = program_;
    p.Splash.Gizle();
    p.FormFirma.Bosalt();
    p.FormSifre.Goster();
}

void Splash::tekrarinternetkontrol() {
    ServiseSor();
    Inet1.sure = kTekrardanSonra;
    Inet1.Iptal();
}

void Splash::Kapat() {
    Timer1.aralik = 0;
    Program& p = program_;
    p.Splash.Bosalt();
    p.EkranKalmadiysaBitir();
}

} // namespace velora
