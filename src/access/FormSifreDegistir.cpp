#include "access/FormSifreDegistir.h"

#include "access/Kullanicilar.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormSalonTanim.h"
#include "storage/ListeDosyasi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr int kEnUzunYeniParola = 10;

ListeSatiri AdminSatiri(const Metin& parola) {
    std::array<Metin, kYetkiSayisi> hepsi;
    hepsi.fill(u"1");
    return KullaniciSatiri(Metin(kAdmin), parola, hepsi);
}

} // namespace

FormSifreDegistir::FormSifreDegistir(Program& program) : program_(program) {
    Text1.baslik = u"Yeni Parola";
    Text2.baslik = u"Yeni Parola (Tekrar)";
    for (MetinKutusu* alan : {&Text1, &Text2}) {
        alan->yildizli = true;
        alan->enUzun = kEnUzunYeniParola;
    }
}

bool FormSifreDegistir::Girildi() {
    const auto olmaz = [this](MetinBakis alan, const Metin& neden) {
        AlaniSoyle(program_, EkranAdi::FormSifreDegistir, alan, neden);
        return false;
    };
    if (Text1.metin.empty())
        return olmaz(u"Text1", u"Lütfen parolanızı giriniz!");
    if (Text2.metin.empty())
        return olmaz(u"Text2", u"Lütfen parola tekrarını giriniz!");
    if (Text1.metin != Text2.metin)
        return olmaz(u"Text2", u"Lütfen parola tekrarını kontrol ediniz!");
    return true;
}

void FormSifreDegistir::Command1_Click() {
    if (!Girildi())
        return;
    Program& p = program_;
    const Metin admin(kAdmin);
    KullanicilariYaz(p, {AdminSatiri(Text1.metin)});
    p.oturum.Goster(admin);
    p.oturum.UserNamem = admin;
    p.FormSifreDegistir.Bosalt();
    p.FormTablo.Goster();
    IlkSalonuSor(p);
}

void ParolasizAdminYaz(const Program& program) {
    const Metin yol = program.agac.KokYolu(kKullaniciDosyasi);
    if (program.dosyalar.SonucluOku(yol).okunus == Okunus::Yok)
        SatirlariYaz(program.dosyalar, yol, {AdminSatiri(u"").sutun});
}

void FormSifreDegistir::Command2_Click() {
    Program& p = program_;
    p.FormSifreDegistir.Bosalt();
    p.EkranKalmadiysaBitir();
}

} // namespace velora
