#include "online/FormRezervasyonlar.h"

#include <algorithm>

#include "online/FormSunucu.h"
#include "online/Istekler.h"
#include "reservation/FormKayit.h"
#include "screen/GirdiKurali.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/ListeDosyasi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// The values of a request, from 0: the columns of the list.
struct IstekNo {
    enum : std::size_t { Numara, Gonderen, Telefon, Mobil, EPosta, Salon, Tarih, Saat, Zaman, Nitelik, Adet };
};

Metin IstekYolu(const Program& program) {
    return program.agac.KokYolu(kIstekDosyasi);
}

/// The number from 1 that a text of two digits is, 0 for another one.
int IkiHaneliSayi(MetinBakis metin, int enCok) {
    for (int sayi = 1; sayi <= enCok; ++sayi)
        if (IkiHane(static_cast<unsigned>(sayi)) == metin)
            return sayi;
    return 0;
}

std::optional<GunduzGece> IstenenDilim(MetinBakis zaman) {
    if (zaman == u"Gündüz")
        return GunduzGece::Gunduz;
    if (zaman == u"Gece")
        return GunduzGece::Gece;
    return std::nullopt;
}

} // namespace

FormRezervasyonlar::FormRezervasyonlar(Program& program) : Inet1(program), program_(program) {
    Liste.baslik = u"Bekleyen istekler";
    Liste.basliklar = {u"ID",        u"Gönderen", u"Telefon", u"Mobil", u"E-Posta",
                       u"Salon Adı", u"Tarih",    u"Saat",    u"Zaman", u"Niteliği"};
    Liste.secimDugmeleri.dugmeler = {&Command2, &Command3};
}

bool FormRezervasyonlar::Duruyor() const {
    return program_.FormRezervasyonlar.Yuklu() && program_.FormRezervasyonlar.Tut().get() == this;
}

void FormRezervasyonlar::Activate() {
    Liste.secimDugmeleri.Ac(false);
    Liste.Temizle();
    std::vector<ListeSatiri> satirlar;
    for (auto& degerler : SatirlariOku(program_.dosyalar, IstekYolu(program_), IstekNo::Adet, &koken_))
        satirlar.push_back({std::move(degerler), {}});
    Liste.satirlar = std::move(satirlar);
    program_.ortam.odak.ver(EkranAdi::FormRezervasyonlar, u"Command1");
}

void FormRezervasyonlar::Liste_Click() {
    Liste.secimDugmeleri.Ac(true);
}

void FormRezervasyonlar::Liste_DblClick() {
    if (!Liste.satirlar.empty() && Command2.etkin)
        Command2_Click();
}

void FormRezervasyonlar::Command1_Click() {
    program_.FormRezervasyonlar.Bosalt();
}

void FormRezervasyonlar::Kaydet_Click() {
    std::vector<SutunMetinleri> satirlar;
    for (const ListeSatiri& satir : Liste.satirlar)
        satirlar.push_back(satir.sutun);
    const Dosyalar::GunlukDisi gecici(program_.dosyalar);
    SatirlariYaz(program_.dosyalar, IstekYolu(program_), satirlar, koken_);
}

/// As it stands now: what let events run may have moved or taken it.
void FormRezervasyonlar::SatiriSil(const ListeSatiri& satir) {
    const auto yer = std::ranges::find(Liste.satirlar, satir.sutun, &ListeSatiri::sutun);
    if (yer != Liste.satirlar.end())
        Liste.Sil(static_cast<int>(yer - Liste.satirlar.begin()));
}

void FormRezervasyonlar::BosaldiysaKapat() const {
    if (!Liste.satirlar.empty() || !Duruyor())
        return;
    {
        const auto tablo = program_.FormTablo.Tut();
        tablo->YeniRezTimer.aralik = 0;
        tablo->YeniRezervasyonVar.etkin = false;
    }
    program_.FormRezervasyonlar.Bosalt();
}

void FormRezervasyonlar::Command3_Click() {
    Liste.secimDugmeleri.Ac(false);
    const ListeSatiri* secili = Liste.Secili();
    if (secili == nullptr)
        return;
    const ListeSatiri satir = *secili;
    if (!SilmeyiSor(program_, u"Gelen online rezervasyonu silmek istediğinizden emin misiniz?") || !Duruyor())
        return;
    Inet1.Getir(IstekAdresi(program_, Istek::RezSil,
                            {program_.FormSunucu->Text1.metin, satir.sutun[IstekNo::Numara]}));
    SatiriSil(satir);
    Kaydet_Click();
    BosaldiysaKapat();
}

/// False: there is no such hall any more. The year has been set all the same.
bool FormRezervasyonlar::SalonaGit(const ListeSatiri& satir) const {
    const Metin& salon = satir.sutun[IstekNo::Salon];
    const MetinBakis yil = Son(satir.sutun[IstekNo::Tarih], 4);
    const auto tablo = program_.FormTablo.Tut();
    // One that is chosen already isn't loaded again.
    tablo->Salon.Sec(MetinBakis(salon));
    tablo->Sene.Sec(yil);
    return tablo->Salon.Metni() == salon;
}

/// By the colour of the slot that is asked for, of no other. A day that the table doesn't show is free.
bool FormRezervasyonlar::GozDolu(const ListeSatiri& satir) const {
    const Metin& tarih = satir.sutun[IstekNo::Tarih];
    const auto tablo = program_.FormTablo.Tut();
    const int ay = IkiHaneliSayi(Parca(tarih, 4, 2), kAySayisi);
    const int gun = IkiHaneliSayi(Parca(tarih, 1, 2), kGunSayisi);
    const auto dilim = IstenenDilim(satir.sutun[IstekNo::Zaman]);
    if (ay == 0 || gun == 0 || !dilim || tablo->Sene.Metni() != Son(tarih, 4))
        return false;
    return tablo->DoluRenkte(Satir(ay, *dilim), gun);
}

void FormRezervasyonlar::KaydaAktar(const ListeSatiri& satir) const {
    const Metin gun = satir.sutun[IstekNo::Tarih] + u" - " + satir.sutun[IstekNo::Zaman];
    const auto kayit = program_.FormKayit.Tut();
    program_.FormTablo->SeciliTarih = gun;
    kayit->Tarih = gun;
    // What is no time leaves the field empty: it would have no place in it.
    MetinKutusu& saat = kayit->Kay[AnaNo::BaslamaSaati];
    if (const auto gelen = MaskeyeOturt(saat.maske, satir.sutun[IstekNo::Saat]))
        saat.metin = *gelen;
    kayit->Kay[AnaNo::AdiSoyadi].metin = satir.sutun[IstekNo::Gonderen];
    kayit->Kay[AnaNo::Niteligi].metin = satir.sutun[IstekNo::Nitelik];
    kayit->Kay[AnaNo::Telefon].metin = satir.sutun[IstekNo::Telefon];
    kayit->Kay[AnaNo::Cep].metin = satir.sutun[IstekNo::Mobil];
    kayit->Option2.Ata(1);
}

/// Runs before the reservation screen stands.
bool FormRezervasyonlar::Devral(const ListeSatiri& satir) {
    KaydaAktar(satir);
    Inet1.Getir(IstekAdresi(program_, Istek::RezOkundu,
                            {program_.FormSunucu->Text1.metin, satir.sutun[IstekNo::Numara]}));
    SatiriSil(satir);
    Kaydet_Click();
    return true;
}

void FormRezervasyonlar::Command2_Click() {
    Liste.secimDugmeleri.Ac(false);
    const ListeSatiri* secili = Liste.Secili();
    if (secili == nullptr)
        return;
    const ListeSatiri satir = *secili;
    const bool salonVar = SalonaGit(satir);
    if (!Duruyor())
        return;
    if (!salonVar)
        return Soyle(program_,
                     u"Salon isminizi değiştirdiğiniz için online rezervasyon oluşturulamıyor!\n"
                     u"Seçmiş olduğunuz online rezervasyonu oluşturmak istiyorsanız salon isminizi\n" +
                         satir.sutun[IstekNo::Salon] + u" olarak değiştirmelisiniz.");
    if (GozDolu(satir))
        return Soyle(program_, u"Bu tarihe online rezervasyon alamazsınız!\nZaten bir rezervasyon kayıtlı.");
    program_.FormKayit.GosterModal([&] { return Devral(satir); });
    BosaldiysaKapat();
}

} // namespace velora
