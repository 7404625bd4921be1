#pragma once

#include "storage/Metin.h"

/// Every screen of the program, once: its name, and whether it has a window. One without a window only holds
/// what others read, or waits for its window to be built; showing it is told on the error stream.
#define VELORA_EKRANLAR(X)                                                                                   \
    X(Splash, Pencereli)                                                                                     \
    X(FormSifre, Pencereli)                                                                                  \
    X(FormSifreDegistir, Pencereli)                                                                          \
    X(FormKullanicilar, Pencereli)                                                                           \
    X(FormKullaniciEkle, Pencereli)                                                                          \
    X(FormTablo, Pencereli)                                                                                  \
    X(FormHakkinda, Pencereli)                                                                               \
    X(FormAyarlar, Pencereli)                                                                                \
    X(FormResmiTatil, Pencereli)                                                                             \
    X(FormResmiTatilEkle, Pencereli)                                                                         \
    X(FormResmiTatilYukle, Pencereli)                                                                        \
    X(FormRenk, Pencereli)                                                                                   \
    X(FormSalonTanim, Pencereli)                                                                             \
    X(FormSalonTanimAd, Pencereli)                                                                           \
    X(FormMenuAyar, Pencereli)                                                                               \
    X(FormMenuEkle, Pencereli)                                                                               \
    X(FormKayit, Pencereli)                                                                                  \
    X(FormOdemeAl, Pencereli)                                                                                \
    X(FormOzelHatirlatma, Pencereli)                                                                         \
    X(FormArama, Pencereli)                                                                                  \
    X(FormBakiye, Pencereli)                                                                                 \
    X(FormKasa, Pencereli)                                                                                   \
    X(FormKasaEkle, Pencereli)                                                                               \
    X(FormGiderler, Pencereli)                                                                               \
    X(FormSozlesme, Pencereli)                                                                               \
    X(FormPrint, Penceresiz)                                                                                 \
    X(FormPrint2, Penceresiz)                                                                                \
    X(FormMakbuzPrint, Pencereli)                                                                            \
    X(FormTabloPrint, Pencereli)                                                                             \
    X(FormWebteYayinla, Pencereli)                                                                           \
    X(FormRezervasyonlar, Pencereli)                                                                         \
    X(FormDuyurular, Pencereli)                                                                              \
    X(FormOneri, Pencereli)                                                                                  \
    X(FormDownloadManager, Pencereli)                                                                        \
    X(FormYedekAl, Pencereli)                                                                                \
    X(FormIpMac, Penceresiz)                                                                                 \
    X(FormSunucu, Pencereli)                                                                                 \
    X(FormFirma, Pencereli)

namespace velora {

#define VELORA_BILDIR(ad, tur) struct ad;
VELORA_EKRANLAR(VELORA_BILDIR)
#undef VELORA_BILDIR

/// The outside world finds a screen's window by it.
enum class EkranAdi {
#define VELORA_ADLANDIR(ad, tur) ad,
    VELORA_EKRANLAR(VELORA_ADLANDIR)
#undef VELORA_ADLANDIR
};

enum class EkranTuru { Pencereli, Penceresiz };

struct EkranKaydi {
    EkranAdi ekran;
    MetinBakis ad;
    EkranTuru tur;
};

/// The list as data, in the order of `EkranAdi`.
inline constexpr EkranKaydi kEkranlar[]{
#define VELORA_YAZ(ad, tur) {EkranAdi::ad, u## #ad, EkranTuru::tur},
    VELORA_EKRANLAR(VELORA_YAZ)
#undef VELORA_YAZ
};

constexpr const EkranKaydi& EkranBul(EkranAdi ekran) {
    return kEkranlar[static_cast<int>(ekran)];
}

} // namespace velora
