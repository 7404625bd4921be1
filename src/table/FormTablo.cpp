#include "table/FormTablo.h"

#include "access/Splash.h"
#include "online/FormIpMac.h"
#include "reservation/FormOzelHatirlatma.h"
#include "screen/Program.h"
#include "screen/Surum.h"
#include "setup/FormAyarlar.h"
#include "storage/ListeDosyasi.h"

namespace velora {

namespace {

constexpr std::array<MetinBakis, kAySayisi> kAyAdlari{u"OCAK",  u"ŞUBAT",   u"MART",   u"NİSAN",
                                                      u"MAYIS", u"HAZİRAN", u"TEMMUZ", u"AĞUSTOS",
                                                      u"EYLÜL", u"EKİM",    u"KASIM",  u"ARALIK"};

constexpr double kPanelGenisligi = 13200; // of the panel of warnings
constexpr int kYilPayi = 10;              // years that `Sene` offers before and after the current one
constexpr int kSaatsayAraligi = 50'000;
constexpr int kDuyuruAraligi = 2'500;
constexpr int kInternetAraligi = 100;
constexpr int kHatirlatmaAraligi = 500;
constexpr int kDuyuruTiki = 3; // `Saatsay` starts the check at the tick that finds this count

} // namespace

FormTablo::FormTablo(Program& program)
    : UserNamem(program.oturum.UserNamem), TutarDegistir(program.oturum.TutarDegistir),
      StatusBar1(program.oturum.StatusBar1), Inet1(program), program_(program) {
    for (const KomutTanimi& komut : Komutlar())
        Girdi(komut.komut).baslik = komut.baslik;
    for (const KomutTanimi& komut : Komutlar())
        if (komut.arac.yer > 0)
            Toolbar1[komut.arac.yer].baslik = komut.arac.baslik;
    for (int gun = 1; gun <= kGunSayisi; ++gun)
        ALabel[gun].baslik = SayiMetni(gun);
    for (int ay = 1; ay <= kAySayisi; ++ay)
        AyAdi[ay].baslik = kAyAdlari[static_cast<std::size_t>(ay - 1)];
    UyariBaslik.baslik = u"YAKLAŞAN REZERVASYON UYARILARI";
    Liste.basliklar = {u"Tarih", u"Salon", u"Ad Soyad", u"Gelin / Damat", u"Telefon", u"Cep", u"Tipi"};
    Liste.secimDugmeleri.dugmeler = {&Command8};
    Picture1.yer.genislik = kPanelGenisligi;
    Picture1.gorunur = Ekran.gorunur = false;
    Salon.baslik = u"Salon";
    Salon.bosYazi = u"Salon tanımlı değil";
    Salon.bosIpucu = u"Salon eklemek için Ayarlar menüsünden Salon Tanımları'nı açın.";
    Sene.baslik = u"Çalışma Yılı";
    Salon.tiklandi = [this] { Salon_Click(); };
    Sene.tiklandi = [this] { Sene_Click(); };
    CetvelTimer.tik = [this] { CetvelTimer_Tick(); };
    GunTimer.tik = [this] { GunTimer_Tick(); };
    OzelHatirlatTimer.tik = [this] { OzelHatirlatTimer_Tick(); };
    Saatsay.tik = [this] { Saatsay_Tick(); };
    DuyuruKontrol.tik = [this] { DuyuruKontrol_Tick(); };
    DuyuruKontrol.sakin = true;
    YeniRezTimer.tik = [this] { YeniRezTimer_Tick(); };
    YeniDuyuruTimer.tik = [this] { YeniDuyuruTimer_Tick(); };
    InternetTimer.tik = [this] { InternetTimer_Tick(); };
    InternetTimer.sakin = true;
    YayinTimer.tik = [this] { YayinTimer_Tick(); };
    YedekTimer.tik = [this] { YedekTimer_Tick(); };
    YedekTimer.sakin = YedekTimer.beklerken = true;
}

void FormTablo::Load() {
    baslik = kTabloBasligi;
    SalonlariYukle();
    SeneleriDoldur();
    for (const Metin& salon : Salon.ogeler)
        program_.agac.KlasorHazirla(salon, Sene.Metni());
    Salon.Sec(0);
    gunduzUstte_ = program_.FormAyarlar->GunduzUstte();
    Command1(); // the scan
    OzelHatirlatmaBak();
    program_.OlaylariIsle();
    UyariGoster();
    Dklabel = 0;
    Saatsay.aralik = kSaatsayAraligi;
}

void FormTablo::SalonlariYukle() {
    for (auto& satir : SatirlariOku(program_.dosyalar, program_.agac.KokYolu(kSalonDosyasi), 1))
        Salon.ogeler.push_back(std::move(satir.front()));
}

void FormTablo::SeneleriDoldur() {
    const int buYil = static_cast<int>(program_.Bugun().year());
    for (int yil = buYil - kYilPayi; yil <= buYil + kYilPayi; ++yil)
        Sene.ogeler.push_back(SayiMetni(yil));
    // Chosen without its click: at the start only the halls of the list get a folder, not an empty hall name.
    Sene.SessizSec(SayiMetni(buYil));
}

bool FormTablo::BuYil() const {
    return Sene.Metni() == SayiMetni(static_cast<int>(program_.Bugun().year()));
}

void FormTablo::Salon_Click() {
    program_.ortam.odak.ver(EkranAdi::FormTablo, u"Picture4");
    CetvelSil();
    Command1(); // the scan
}

void FormTablo::Sene_Click() {
    program_.ortam.odak.ver(EkranAdi::FormTablo, u"Picture4");
    CetvelSil();
    // Only the year folder: a hall folder that is gone stays gone until the next start.
    program_.dosyalar.KlasorYap(program_.agac.YilKlasoru(Salon.Metni(), Sene.Metni()));
    Command1(); // the scan
    if (!BuYil())
        BuGun.gorunur = false;
}

void FormTablo::MouseMove() {
    Ekran.gorunur = false;
    if (!BuYil())
        BuGun.gorunur = false;
    else if (GunTimer.aralik == 0 && !BuGun.gorunur)
        BuGun.gorunur = true;
}

void FormTablo::Activate() {
    KapalilariGizle();
    if (Liste.satirlar.empty())
        Picture1.gorunur = false;
    {
        const auto ayarlar = program_.FormAyarlar.Tut();
        Picture1.zemin = ayarlar->Renk(RenkNo::UyariZemini);
        UyariBaslik.yazi = ayarlar->Renk(RenkNo::UyariYazisi);
    }
    Check1 = 1;
    program_.OlaylariIsle();
    if (program_.Splash->Check1 == 1) {
        program_.FormIpMac->macal();
        DuyuruKontrol.Kur(kDuyuruAraligi);
    } else if (program_.ortam.ag.baglantiVar()) {
        // Not here, where other screens come back: what they were shown for would wait for the reply.
        InternetTimer.aralik = kInternetAraligi;
    }
}

void FormTablo::InternetTimer_Tick() {
    InternetTimer.aralik = 0;
    Program& p = program_;
    p.Splash->tekrarinternetkontrol();
    if (p.FormTablo.Yuklu() && p.Splash->Check1 == 1)
        DuyuruKontrol.Kur(kDuyuruAraligi);
}

void FormTablo::Command6() {
    YeniGun();
    const Gun bugun = program_.Bugun();
    bool dolu = false;
    for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece}) {
        const Metin ad = TarihMetni(bugun) + Metin(DilimEki(dilim));
        dolu = dolu || program_.agac.RezervasyonVarMi(program_.agac.GunYolu(Salon.Metni(), Sene.Metni(), ad));
    }
    GunTimer.aralik = dolu ? kYanipSonme : 0;
    program_.OlaylariIsle();
    BuGun.gorunur = true;
}

void FormTablo::DegisikligiGoster(const std::function<void()>& once) {
    for (const auto adim : {&FormTablo::Command1, &FormTablo::Command6, &FormTablo::Command7}) {
        if (once)
            once();
        (this->*adim)();
    }
}

void FormTablo::GunTimer_Tick() {
    if (BuYil())
        BuGun.gorunur = !BuGun.gorunur;
}

void FormTablo::HatirlatmaGoster(bool var) {
    Image3 = var;
    OzelHatirlatTimer.aralik = var ? kHatirlatmaAraligi : 0;
}

void FormTablo::OzelHatirlatTimer_Tick() {
    Image3a = !Image3a;
}

void FormTablo::Image3_Click() {
    // Listed before it is shown: an empty window would only flash.
    program_.FormOzelHatirlatma.GosterModal([this] { return program_.FormOzelHatirlatma->Listele(); });
}

void FormTablo::YeniGun() {
    const Gun bugun = program_.Bugun();
    if (!yerlesti_ || (BuGun.ay == static_cast<int>(unsigned(bugun.month())) &&
                       BuGun.gun == static_cast<int>(unsigned(bugun.day()))))
        return;
    BuGunYerlestir();
    // That it blinks was said of yesterday. Nobody has asked about the new day yet, as at the start.
    GunTimer.aralik = 0;
    BuGun.gorunur = BuYil();
}

void FormTablo::Saatsay_Tick() {
    YeniGun();
    if (Dklabel == kDuyuruTiki) {
        DuyuruKontrol.Kur(kDuyuruAraligi);
        Dklabel = 0;
    } else {
        ++Dklabel;
    }
}

std::array<Metin, 2> FormTablo::TarihVeSaat() const {
    const auto simdi = program_.ortam.zaman.simdi();
    const std::chrono::hh_mm_ss gunIci(simdi - std::chrono::floor<std::chrono::days>(simdi));
    return {TarihMetni(program_.Bugun()), IkiHane(static_cast<unsigned>(gunIci.hours().count())) + u":" +
                                              IkiHane(static_cast<unsigned>(gunIci.minutes().count()))};
}

void FormTablo::SaatiYaz() {
    StatusBar1Saati = TarihVeSaat();
}

} // namespace velora
