#include "access/FormKullaniciEkle.h"

#include <algorithm>

#include "access/FormKullanicilar.h"
#include "access/Yetkiler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr int kEnUzunKullanici = 10; // name or password
constexpr double kEnBuyukYetki = 1e9;

} // namespace

FormKullaniciEkle::FormKullaniciEkle(Program& program) : program_(program) {
    Text1.baslik = u"Kullanıcı Adı";
    Text2.baslik = u"Parola";
    Text3.baslik = u"Parola (Tekrar)";
    Text2.yildizli = Text3.yildizli = true;
    for (MetinKutusu* alan : {&Text1, &Text2, &Text3})
        alan->enUzun = kEnUzunKullanici;
    int no = 0;
    for (const Yetki& yetki : Yetkiler()) {
        OnayKutusu& kutu = Check[++no];
        kutu.baslik = yetki.baslik;
        kutu.deger = yetki.varsayilan ? 1 : 0;
        kutu.etkin = yetki.degisir;
    }
}

void FormKullaniciEkle::Doldur(const ListeSatiri& kullanici) {
    const Metin& ad = kullanici.sutun[KullaniciNo::Ad];
    Text1.metin = ad;
    Text2.metin = Text3.metin = kullanici.sutun[KullaniciNo::Parola];
    Text1.etkin = ad != kAdmin;
    int no = 0;
    for (const Yetki& yetki : Yetkiler()) {
        const double deger = YetkiDegeri(kullanici, ++no);
        Check[no].deger = static_cast<int>(std::clamp(deger, -kEnBuyukYetki, kEnBuyukYetki));
        if (yetki.degisir)
            Check[no].etkin = ad != kAdmin;
    }
}

bool FormKullaniciEkle::Girildi() {
    const auto olmaz = [this](MetinBakis alan, const Metin& neden) {
        AlaniSoyle(program_, EkranAdi::FormKullaniciEkle, alan, neden);
        return false;
    };
    if (Kirp(Text1.metin).empty())
        return olmaz(u"Text1", u"Lütfen kullanıcı adı giriniz!");
    if (Kirp(Text2.metin).empty())
        return olmaz(u"Text2", u"Lütfen parola giriniz!");
    if (Kirp(Text3.metin).empty())
        return olmaz(u"Text3", u"Lütfen parola (Tekrar) giriniz!");
    if (Text2.metin != Text3.metin)
        return olmaz(u"Text3", u"Lütfen parola tekrarını kontrol ediniz!");
    return true;
}

void FormKullaniciEkle::Command1_Click() {
    if (!Girildi())
        return;
    Program& p = program_;
    std::array<Metin, kYetkiSayisi> yetkiler;
    std::ranges::transform(Check, yetkiler.begin(),
                           [](const OnayKutusu& kutu) { return SayiMetni(kutu.deger); });
    const ListeSatiri kullanici = KullaniciSatiri(Text1.metin, Text2.metin, yetkiler);
    const auto liste = p.FormKullanicilar.Tut();
    auto& satirlar = liste->Liste.satirlar;
    if (Kirp(Tag).empty())
        satirlar.push_back(kullanici);
    else if (const double sira = SayisalDeger(Tag); sira >= 0 && sira < static_cast<double>(satirlar.size()))
        satirlar.Degistir(static_cast<std::size_t>(sira), kullanici);
    liste->Command6_Click(); // writes
    p.FormKullaniciEkle.Bosalt();
}

void FormKullaniciEkle::Command2_Click() {
    program_.FormKullaniciEkle.Bosalt();
}

} // namespace velora
