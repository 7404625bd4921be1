#pragma once

#include <gtest/gtest.h>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

/// What is done on the screens of the way in.
class AccessTest : public ::testing::Test {
  protected:
    using Satirlar = std::vector<std::vector<Metin>>;

    /// The line of a user in `User.dll`, rights as one sign each.
    static std::string Satir(const std::string& ad, const std::string& parola, const std::string& yetkiler) {
        std::string satir = "\"" + ad + "\",\"" + parola + "\"";
        for (const char yetki : yetkiler)
            satir += std::string(",\"") + yetki + "\"";
        return satir + "\r\n";
    }
    void KullaniciKoy(const std::string& bayt) const { agac.Koy(u"User.dll", bayt); }
    std::string Dosya() const { return agac.Bayt(u"User.dll"); }

    void KutuBekle(const Metin& metin, Simge simge = Simge::Bilgi) {
        ortam.Bekle(BeklenenKutu{u"Velora", metin, simge});
    }

    FormKullanicilar& Kullanicilar() { return *program.FormKullanicilar.Tut(); }
    FormKullaniciEkle& Ekle() { return *program.FormKullaniciEkle.Tut(); }
    FormSifre& Sifre() { return *program.FormSifre.Tut(); }
    FormSifreDegistir& Degistir() { return *program.FormSifreDegistir.Tut(); }

    Satirlar Liste() {
        Satirlar satirlar;
        for (const ListeSatiri& satir : Kullanicilar().Liste.satirlar)
            satirlar.push_back(satir.sutun);
        return satirlar;
    }
    void Isaretle(int sira) {
        Kullanicilar().Liste.secili = sira;
        Kullanicilar().Liste_Click();
    }
    /// The dialogue of one user is expected next; `is` is done while it stands.
    void EkleAcikken(std::function<void()> is) {
        ortam.Bekle(BeklenenEkran{EkranAdi::FormKullaniciEkle, std::move(is)});
    }
    void GirVeTamam(const Metin& ad, const Metin& parola, const Metin& tekrar) {
        AlanaYaz(Ekle().Text1, ad);
        AlanaYaz(Ekle().Text2, parola);
        AlanaYaz(Ekle().Text3, tekrar);
        VELORA_BAS(program.FormKullaniciEkle, Command1);
    }
    /// Types name and password into the login and presses "Giriş".
    void Gir(const Metin& ad, const Metin& parola) {
        AlanaYaz(Sifre().Text1, ad);
        AlanaYaz(Sifre().Text2, parola);
        VELORA_BAS(program.FormSifre, Command1);
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

} // namespace velora::test
