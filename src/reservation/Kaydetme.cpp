// The save: from the fields to the three files of the reservation and the counter.
#include "accounts/FormBakiye.h"
#include "reservation/FormArama.h"
#include "reservation/FormKayit.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormAyarlar.h"
#include "storage/Harf.h"
#include "storage/Sayi.h"
#include "storage/YazimBicimi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr const char16_t* kEylemAdi = u"Rezervasyon kaydı";

struct AlanKontrolu {
    int no;             ///< of the field
    MetinBakis olmayan; ///< the trimmed text that isn't taken
    const char16_t* mesaj;
};

/// In the order of the questions. Only a wholly empty mask is refused; a field that is off isn't asked.
constexpr std::array<AlanKontrolu, 6> kKontroller{{
    {AnaNo::BaslamaSaati, kBosSaat, u"Lütfen başlama saatini giriniz!"},
    {AnaNo::BitisSaati, kBosSaat, u"Lütfen bitiş saatini giriniz!"},
    {AnaNo::SozlesmeTarihi, kBosTarih, u"Lütfen sözleşme tarihini giriniz!"},
    {AnaNo::AdiSoyadi, u"", u"Lütfen adı soyadı giriniz!"},
    {AnaNo::Niteligi, kNitelikSeciniz, u"Lütfen niteliği seçiniz!"},
    {AnaNo::HatirlatmaTarihi, kBosTarih, u"Lütfen bu tarihte hatırlatın tarihini giriniz!"},
}};

/// Lists anew on a screen, which a box that this brings may unload. The marked row is marked again where it
/// is still there; its buttons wait for a mark by the user.
template <class Ekran>
void YenidenListele(const std::shared_ptr<Ekran>& ekran, void (Ekran::*listele)()) {
    const std::optional<IsaretliSatir> isaretli = ekran->Liste.Isaretli();
    (ekran.get()->*listele)();
    ekran->Liste.YenidenIsaretle(isaretli);
}

/// What stands open shows the saved record: the lists with the messages they bring, then the table.
void AcikEkranlariTazele(Program& p) {
    if (p.FormBakiye.Yuklu() && p.FormBakiye->acikmi == 1)
        YenidenListele(p.FormBakiye.Tut(), &FormBakiye::ListeleGun);
    if (p.FormArama.Yuklu() && p.FormArama->acikmi == 1)
        YenidenListele(p.FormArama.Tut(), &FormArama::Command3_Click);
    const auto tablo = p.FormTablo.Tut();
    if (tablo->Picture1.gorunur)
        YenidenListele(tablo, &FormTablo::UyariGoster);
    tablo->DegisikligiGoster([&p] { p.OlaylariIsle(); });
}

/// The payments stay as they are on the disk, and so does their sum.
void OdemeOzetiniKoru(AnaKayit& kayit, const Metin& alinan) {
    const auto deger = [&kayit](int no) -> Metin& { return kayit.kay[static_cast<std::size_t>(no - 1)]; };
    deger(AnaNo::AlinanOdeme) = alinan;
    deger(AnaNo::KalanOdeme) = DuzMetin(SayisalDeger(deger(AnaNo::ToplamUcret)) - SayisalDeger(alinan));
}

} // namespace

void FormKayit::Command1_Click() {
    Program& p = program_;
    if (!GunVar() || !AlanlarTamam())
        return;
    for (const int no : {AnaNo::AdiSoyadi, AnaNo::Yoresi, AnaNo::GelinDamat, AnaNo::Adres})
        Kay[no].metin = BuyukBas(Kay[no].metin);
    if (!NumaraUygun())
        return;
    DosyalariYaz();
    Basildi = 1;
    p.FormKayit.Bosalt();
    p.OlaylariIsle();
    AcikEkranlariTazele(p);
}

/// The journal knows beforehand what the fields say now. What changes in them while events run costs it more.
void FormKayit::DosyalariYaz() {
    const Program& p = program_;
    const bool sayac = SayacYazilir();
    const Dosyalar::Eylem eylem(p.dosyalar, kEylemAdi, [&] {
        KlasoruYap();
        AnaYaz(p.dosyalar, AnaYolu(), Ana(), anaKoken);
        DetayYaz(p.dosyalar, DetayYolu(), Detay(), detayKoken);
        Kaydet();
        if (sayac)
            SayaciYaz();
    });
    KlasoruVeKayitlariYaz();
    Kaydet();
    p.OlaylariIsle();
    if (SayacYazilir())
        SayaciYaz();
    p.OlaylariIsle();
}

bool FormKayit::SayacYazilir() const {
    return KayitAc == 0 && program_.FormAyarlar->Check7.deger == 0;
}

void FormKayit::Command11() {
    if (!GunVar() || !NumaraUygun())
        return;
    const Dosyalar::Eylem eylem(program_.dosyalar, kEylemAdi);
    KlasoruVeKayitlariYaz();
    if (KayitAc != 0)
        return;
    OdemeHazirla(program_.dosyalar, GunYolu() + Metin(kOdemeEki));
    SayaciYaz();
}

/// A screen that was filled halfway has no day. Nothing of it is saved, and what stands on it stays.
bool FormKayit::GunVar() const {
    return !Kirp(Tarih).empty();
}

bool FormKayit::AlanlarTamam() {
    for (const auto& [no, olmayan, mesaj] : kKontroller)
        if (Kay[no].etkin && Kirp(Kay[no].metin) == olmayan) {
            AlanaDon(no, mesaj);
            return false;
        }
    return true;
}

void FormKayit::AlanaDon(int no, const Metin& mesaj) {
    Soyle(program_, mesaj);
    SSTab1 = kGenelSayfasi; // all fields that are asked for stand there
    program_.ortam.odak.ver(EkranAdi::FormKayit, u"Kay" + SayiMetni(no));
}

bool FormKayit::NumaraUygun() {
    // Only a new number can be taken twice: that of an existing record is locked.
    if (KayitAc != 0 || !NumaraVar(Kay[AnaNo::SozlesmeNo].metin))
        return true;
    AlanaDon(AnaNo::SozlesmeNo, u"Bu sözleşme numarası ile kayıtlı bir sözleşme var!\n"
                                u"Lütfen farklı bir sözleşme numarası giriniz.");
    return false;
}

/// The rule walks all halls and years, but reads each name in the selected folder: a name that isn't there
/// can't be read, and a number found twice is found all the same. So one pass over that folder is enough.
/// Payments and expenses are read as main records too: of these, the amount of the fifth payment counts.
bool FormKayit::NumaraVar(const Metin& no) const {
    bool var = false;
    Metin okunan;
    const auto tablo = program_.FormTablo.Tut();
    program_.dosyalar.KlasoruOku(
        program_.agac.YilKlasoru(tablo->Salon.Metni(), tablo->Sene.Metni()),
        [&](const Dosyalar::OkunanDosya& dosya) {
            DegerOkuyucu okuyucu(dosya.bayt);
            if (okuyucu.Atla(AnaNo::SozlesmeNo - 1) == AnaNo::SozlesmeNo - 1 && okuyucu.Oku(okunan))
                var = var || (!Kirp(okunan).empty() && okunan == no);
        },
        [](MetinBakis ad) { return !ad.ends_with(u"Detay"); });
    return var;
}

void FormKayit::KlasoruYap() const {
    const auto tablo = program_.FormTablo.Tut();
    program_.dosyalar.KlasorYap(program_.agac.YilKlasoru(tablo->Salon.Metni(), tablo->Sene.Metni()));
}

Metin FormKayit::AnaYolu() const {
    return KayitAc == 0 ? GunYolu() : Tag;
}

Metin FormKayit::DetayYolu() const {
    const Metin yol(Kirp(Tag));
    return (KayitAc == 0 || yol.empty() ? GunYolu() : yol) + Metin(kDetayEki);
}

void FormKayit::KlasoruVeKayitlariYaz() {
    const Program& p = program_;
    KlasoruYap();
    for (MetinKutusu& kutu : Kay)
        kutu.metin = AnaTemizle(kutu.metin);
    p.OlaylariIsle();
    AnaYaz(p.dosyalar, AnaYolu(), Ana(), anaKoken);
    p.OlaylariIsle();
    for (MetinKutusu& kutu : TT)
        kutu.metin = DetayTemizle(kutu.metin);
    Aciklamalar.metin = DetayTemizle(Aciklamalar.metin);
    DetayYaz(p.dosyalar, DetayYolu(), Detay(), detayKoken);
    p.OlaylariIsle();
}

AnaKayit FormKayit::Ana() const {
    AnaKayit kayit;
    for (int no = 1; no <= kKaySayisi; ++no)
        kayit.kay[static_cast<std::size_t>(no - 1)] = AnaTemizle(Kay[no].metin);
    if (!odemeKoken.Yazilir() && !kayitliOdeme.empty())
        OdemeOzetiniKoru(kayit, kayitliOdeme);
    kayit.check18 = Check18.deger;
    kayit.check19 = Check19.deger;
    return kayit;
}

DetayKaydi FormKayit::Detay() const {
    DetayKaydi kayit;
    for (int no = 1; no <= kHizmetSayisi; ++no) {
        const auto sira = static_cast<std::size_t>(no - 1);
        kayit.check[sira] = Check[no].deger;
        kayit.tt[sira] = TT[no].metin;
    }
    kayit.aciklamalar = Aciklamalar.metin;
    kayit.option1 = Option1.deger == 1;
    kayit.option2 = Option2.deger == 1;
    kayit.combo1 = Combo1.Metni();
    kayit.label20 = Label20.metin;
    return kayit;
}

Metin FormKayit::GunYolu() const {
    const auto tablo = program_.FormTablo.Tut();
    return program_.agac.GunYolu(tablo->Salon.Metni(), tablo->Sene.Metni(), Tarih);
}

void FormKayit::SayaciYaz() const {
    DegerYazici yazici;
    yazici.Yaz(AnaTemizle(Kay[AnaNo::SozlesmeNo].metin));
    sayacKoken_.Yaz(program_.dosyalar, program_.agac.KokYolu(kSayacDosyasi), yazici.Bayt());
}

} // namespace velora
