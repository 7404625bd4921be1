#pragma once

#include "screen/Ortam.h"
#include "screen/Pencere.h"
#include "storage/Tarih.h"
#include "storage/VeriAgaci.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

struct Splash;
struct FormTablo;
struct FormAyarlar;
struct FormResmiTatil;
struct FormRenk;
struct FormSalonTanim;
struct FormSalonTanimAd;
struct FormMenuAyar;
struct FormMenuEkle;
struct FormKayit;
struct FormOdemeAl;
struct FormArama;
struct FormBakiye;
struct FormPrint;
struct FormWebteYayinla;

/// The whole program: its screens by their own names, the data tree and the outside world.
struct Program {
    /// `kok` is the program's folder, in which the data tree stands.
    Program(Ortam disDunya, const std::filesystem::path& kok);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Ortam ortam;
    Dosyalar dosyalar;
    VeriAgaci agac;
    EkranYigini yigin;

    Pencere<velora::Splash> Splash;
    Pencere<velora::FormTablo> FormTablo;
    Pencere<velora::FormAyarlar> FormAyarlar;
    Pencere<velora::FormResmiTatil> FormResmiTatil;
    Pencere<velora::FormRenk> FormRenk;
    Pencere<velora::FormSalonTanim> FormSalonTanim;
    Pencere<velora::FormSalonTanimAd> FormSalonTanimAd;
    Pencere<velora::FormMenuAyar> FormMenuAyar;
    Pencere<velora::FormMenuEkle> FormMenuEkle;
    Pencere<velora::FormKayit> FormKayit;
    Pencere<velora::FormOdemeAl> FormOdemeAl;
    Pencere<velora::FormArama> FormArama;
    Pencere<velora::FormBakiye> FormBakiye;
    Pencere<velora::FormPrint> FormPrint;
    Pencere<velora::FormWebteYayinla> FormWebteYayinla;

    /// Today, by the clock of the outside world.
    Gun Bugun() const;
    /// Lets pending events run.
    void OlaylariIsle() const { ortam.olaylar.isle(); }
};

template <class Ekran>
std::shared_ptr<Ekran> Pencere<Ekran>::Tut() {
    if (ekran_)
        return ekran_;
    auto yeni = std::make_shared<Ekran>(program_);
    ekran_ = yeni;
    yeni->Load();
    return yeni;
}

template <class Ekran>
void Pencere<Ekran>::Goster() {
    Tut();
    program_.yigin.Koy(ad_, [this] { Etkinlestir(); });
    program_.ortam.goster.ac(ad_, [this] { Etkinlestir(); });
}

template <class Ekran>
void Pencere<Ekran>::GosterModal() {
    Tut();
    program_.yigin.Koy(ad_, [this] { Etkinlestir(); });
    program_.ortam.goster.modal(ad_, [this] { Etkinlestir(); });
    program_.yigin.Al(ad_);
    program_.yigin.UsttekiniEtkinlestir();
}

template <class Ekran>
void Pencere<Ekran>::Bosalt() {
    const auto birakilan = std::move(ekran_);
    ekran_.reset();
    if (!birakilan)
        return;
    program_.yigin.Al(ad_);
    program_.ortam.goster.gizle(ad_);
}

template <class Ekran>
void Pencere<Ekran>::Etkinlestir() {
    if constexpr (requires(Ekran & e) { e.Activate(); })
        if (Yuklu())
            Tut()->Activate();
}

} // namespace velora
