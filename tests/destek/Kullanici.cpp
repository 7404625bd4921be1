#include "destek/Kullanici.h"

#include <array>
#include <utility>

#include "access/FormSifre.h"
#include "access/Splash.h"
#include "destek/Eylemler.h"
#include "maintenance/FormResmiTatil.h"
#include "setup/FormAyarlar.h"
#include "storage/KodSayfasi.h"
#include "table/Yerlesim.h"

namespace velora::test {

Kullanici::Kullanici(std::filesystem::path kok, const std::filesystem::path& durum, Gun bugun)
    : ortam(bugun), kok_(std::move(kok)) {
    ortam.durumKlasoru = durum;
}

void Kullanici::YeniProgram() {
    gecen_.clear();
    program_.reset(); // two of them can't have one journal
    program_ = std::make_unique<Program>(ortam.Ver(), kok_);
    if (hazirla)
        hazirla(*program_);
}

void Kullanici::ProgramiAc() {
    YeniProgram();
    program_->GunluguAc();
    program_->FormTablo.Tut();
    Boyutla(1280, 620);
    program_->FormTablo.Goster();
}

void Kullanici::Baslat() {
    YeniProgram();
    const auto acilis = program_->Splash.Tut();
    acilis->Baslat();
    while (acilis->Timer1.aralik > 0)
        acilis->Timer1.Calis();
}

void Kullanici::GirisiAc() {
    YeniProgram();
    program_->GunluguAc();
    program_->FormSifre.Goster();
}

bool Kullanici::GirisYap(MetinBakis ad, MetinBakis parola) {
    AlanaYaz(program_->FormSifre->Text1, ad);
    AlanaYaz(program_->FormSifre->Text2, parola);
    VELORA_BAS(program_->FormSifre, Command1);
    if (!program_->FormTablo.Yuklu())
        return false;
    Boyutla(1280, 620);
    return true;
}

void Kullanici::ProgramiKapat() {
    program_.reset();
}

FormTablo& Kullanici::Tablo() {
    return *program_->FormTablo.Tut();
}

void Kullanici::KomutSec(Komut komut) {
    const KomutTanimi& tanim = Komutlar()[static_cast<std::size_t>(komut)];
    const auto tablo = program_->FormTablo.Tut();
    if (Basilabilir(tablo->Girdi(komut), KodYaz(tanim.ad)))
        (*tablo.*tanim.isle)();
}

void Kullanici::SalonSec(MetinBakis salon) {
    ListedenSec(Tablo().Salon, salon);
}
void Kullanici::YilSec(MetinBakis yil) {
    ListedenSec(Tablo().Sene, yil);
}
void Kullanici::GunBasligina(int gun) {
    Tablo().ALabel_Click(gun);
}
void Kullanici::AyBasligina(int ay) {
    Tablo().AyAdi_Click(ay);
}
void Kullanici::Goze() {
    Tablo().Hucre_Click();
}

void Kullanici::Uzerine(const TabloGozu& goz) {
    Tablo().Hucre_MouseMove(Satir(goz.ay, goz.dilim), goz.gun);
}

bool Kullanici::SagTikla(const TabloGozu& goz) {
    Uzerine(goz);
    if (Goz(goz.gun, goz.ay, goz.dilim).otomatikSurukleme)
        return false;
    return Tablo().Hucre_MouseDown(Satir(goz.ay, goz.dilim), goz.gun, true);
}

void Kullanici::CiftTikla(const TabloGozu& goz) {
    Uzerine(goz);
    Tablo().Hucre_DblClick(Satir(goz.ay, goz.dilim), goz.gun);
}

bool Kullanici::Surukle(const TabloGozu& kaynak, const TabloGozu& hedef) {
    Uzerine(kaynak);
    if (!Goz(kaynak.gun, kaynak.ay, kaynak.dilim).otomatikSurukleme)
        return false;
    Tablo().Hucre_DragDrop(Satir(hedef.ay, hedef.dilim), hedef.gun);
    return true;
}

void Kullanici::ImleciBosaGotur() {
    Tablo().MouseMove();
}

void Kullanici::Boyutla(int genislik, int yukseklik) {
    Tablo().Resize(TabloIcGenisligi(genislik * kTwipPikseli), TabloIcYuksekligi(yukseklik * kTwipPikseli));
}

void Kullanici::ZamanGecir(int milisaniye) {
    constexpr int kAdim = 100;
    FormTablo& tablo = Tablo();
    const std::array hepsi{&tablo.CetvelTimer,    &tablo.GunTimer,      &tablo.OzelHatirlatTimer,
                           &tablo.Saatsay,        &tablo.DuyuruKontrol, &tablo.InternetTimer,
                           &tablo.YayinTimer,     &tablo.YedekTimer,    &tablo.YeniRezTimer,
                           &tablo.YeniDuyuruTimer};
    for (int an = 0; an < milisaniye; an += kAdim)
        for (Zamanlayici* zamanlayici : hepsi) {
            gecen_[zamanlayici] = zamanlayici->aralik == 0 ? 0 : gecen_[zamanlayici] + kAdim;
            if (zamanlayici->aralik != 0 && gecen_[zamanlayici] >= zamanlayici->aralik) {
                gecen_[zamanlayici] = 0;
                zamanlayici->Calis();
            }
        }
    ortam.simdi += std::chrono::duration_cast<std::chrono::seconds>(std::chrono::milliseconds(milisaniye));
}

} // namespace velora::test
