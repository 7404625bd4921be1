#pragma once

#include "screen/Bayrak.h"
#include "screen/Ortam.h"
#include "screen/Oturum.h"
#include "screen/Pencere.h"
#include "storage/Tarih.h"
#include "storage/VeriAgaci.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

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
    Oturum oturum;

    // Each screen by its own name.
#define VELORA_TUT(ad, tur) Pencere<velora::ad> ad{*this, EkranAdi::ad};
    VELORA_EKRANLAR(VELORA_TUT)
#undef VELORA_TUT

    /// Opens the journal of the tree and completes what a death has cut through in an earlier run: before
    /// anything of the tree is read.
    void GunluguAc();
    /// For a screen that has closed and shown no other: ends the program when none stands any more.
    void EkranKalmadiysaBitir() const;
    /// Today, by the clock of the outside world.
    Gun Bugun() const;
    /// Lets pending events run.
    void OlaylariIsle() const {
        ortam.olaylar.isle();
    }
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
    program_.yigin.Koy(ad_, Durus::Yaninda, [this] { Etkinlestir(); });
    program_.ortam.goster.ac(ad_, [this] { Etkinlestir(); });
}

template <class Ekran>
void Pencere<Ekran>::GosterModal(const std::function<bool()>& hazirla) {
    if (aciliyor_)
        return;
    const Bayrak acilis(aciliyor_);
    if (hazirla && !hazirla())
        return Bosalt();
    // Filled and gone again: a fresh one would be empty.
    if (hazirla && !Yuklu())
        return;
    Tut();
    program_.yigin.Koy(ad_, Durus::Ustunde, [this] { Etkinlestir(); });
    program_.ortam.goster.modal(ad_, [this] { Etkinlestir(); });
    program_.yigin.Al(ad_);
    program_.yigin.UsttekileriEtkinlestir();
}

template <class Ekran>
void Pencere<Ekran>::Gizle() {
    program_.yigin.Al(ad_);
    program_.ortam.goster.gizle(ad_);
}

template <class Ekran>
void Pencere<Ekran>::Bosalt() {
    const auto birakilan = std::move(ekran_);
    ekran_.reset();
    if (!birakilan)
        return;
    static_assert(sizeof(Ekran) > 0, "what a screen has to leave undone is known where it is unloaded");
    // A handler of the screen may wait for it, and keeps the screen while it waits.
    if constexpr (requires(Ekran & e) { e.Inet1.Iptal(); })
        birakilan->Inet1.Iptal();
    if constexpr (requires(Ekran & e) { e.FileDownloader.Cancel(); })
        birakilan->FileDownloader.Cancel();
    Gizle();
}

template <class Ekran>
void Pencere<Ekran>::Etkinlestir() {
    if constexpr (requires(Ekran & e) { e.Activate(); })
        if (Yuklu())
            Tut()->Activate();
}

} // namespace velora
