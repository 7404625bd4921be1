#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "screen/Ortam.h"
#include "storage/Tarih.h"

namespace velora::test {

/// A box that the program is expected to show next, and what the user answers.
struct BeklenenKutu {
    Metin baslik;
    Metin metin;
    Simge simge = Simge::Bilgi;
    Cevap cevap = Cevap::Tamam;
    std::function<void()> is = {}; ///< what happens while the box stands
};

struct BeklenenGirdi {
    Metin baslik;
    Metin metin;
    Metin cevap;
    Metin baslangic = {}; ///< the text that the box offers
};

/// A screen that the program is expected to show next over the others, and what the user does on it. With
/// nothing to do it closes at once.
struct BeklenenEkran {
    EkranAdi ad;
    std::function<void()> is = {};
};

/// A print that is expected next. Its pages are kept in `basilanlar`.
struct BeklenenBaski {
    Metin isAdi;
    bool basilir = true;           ///< the printer takes it
    std::function<void()> is = {}; ///< what happens while the system takes it
};

/// Where a file is to be saved is asked next, and what the user chooses; none is a cancel.
struct BeklenenKayitYeri {
    Metin ad; ///< the name that is offered
    std::optional<std::filesystem::path> secilen = {};
    std::function<void()> is = {}; ///< what happens while the file is written
};

/// The folder that is asked for next, and what the user chooses; empty is a cancel.
struct BeklenenKlasor {
    Metin baslik; ///< of the box
    Metin secilen = {};
};

/// A value that was kept in the program's own settings.
struct SaklananAyar {
    Metin bolum;
    Metin anahtar;
    Metin deger;

    bool operator==(const SaklananAyar&) const = default;
};

/// Pages that went to paper or into a file.
struct GidenSayfalar {
    Metin isAdi;
    std::vector<Sayfa> sayfalar;
    std::filesystem::path dosya = {}; ///< empty on paper
};

/// A request that is expected to go out next, and its reply; an empty one is a failure.
struct BeklenenIstek {
    Metin adres;
    Metin cevap = {};
    std::optional<int> sure = {};  ///< the seconds that it may take; with none, any
    std::function<void()> is = {}; ///< what happens while the reply is waited for
};

/// A fetch of a file that is expected to begin next, and what comes of it.
struct BeklenenAktarim {
    Metin adres;
    Metin basliklar = {};                   ///< the header lines of the reply; empty: none came
    std::vector<std::string> parcalar = {}; ///< then nothing more
    /// What happens while the headers (0) and each of the chunks (from 1) are waited for, and the end.
    std::function<void(std::size_t sira)> is = {};
};

/// The outside world of a test. All that the program asks, shows over its screens and sends is one script, in
/// its order across kinds: whatever comes must be the next expected one, letter by letter; an unexpected, a
/// different and an unread one fail the test. Must outlive its program.
///
/// What is done on an expected screen, while a box stands or a request is waited for, may expect more: that
/// comes next, before what was expected until then.
class SahteOrtam {
  public:
    explicit SahteOrtam(Gun bugun);
    ~SahteOrtam();
    SahteOrtam(const SahteOrtam&) = delete;
    SahteOrtam& operator=(const SahteOrtam&) = delete;

    /// The functions for the program.
    Ortam Ver();

    void Bekle(BeklenenKutu kutu) { SirayaKoy(std::move(kutu)); }
    void Bekle(BeklenenGirdi girdi) { SirayaKoy(std::move(girdi)); }
    void Bekle(BeklenenEkran ekran) { SirayaKoy(std::move(ekran)); }
    void Bekle(BeklenenIstek istek) { SirayaKoy(std::move(istek)); }
    void Bekle(BeklenenAktarim aktarim) { SirayaKoy(std::move(aktarim)); }
    void Bekle(BeklenenBaski baski) { SirayaKoy(std::move(baski)); }
    void Bekle(BeklenenKayitYeri yer) { SirayaKoy(std::move(yer)); }
    void Bekle(BeklenenKlasor klasor) { SirayaKoy(std::move(klasor)); }

    /// Runs when a screen is shown beside the others.
    std::function<void(EkranAdi)> acilinca;
    /// Runs while a file is given to one of the user's own programs.
    std::function<void()> dosyaAcilirken;
    /// Runs where the program lets pending events run; `sira` counts those points from 1.
    std::function<void(int sira)> olayda;

    std::chrono::local_seconds simdi;
    int olaySayisi = 0;
    bool bitti = false;              ///< the program was told to end
    std::vector<EkranAdi> acilanlar; ///< shown, beside the others or over them
    std::vector<EkranAdi> gizlenenler;
    std::vector<std::filesystem::path> acilanDosyalar; ///< given to the user's own programs
    bool dosyaAcilir = true;                           ///< there is a program that shows files
    std::vector<Metin> acilanAdresler;                 ///< given to the user's browser
    bool adresAcilir = true;                           ///< there is a browser
    std::vector<GidenSayfalar> basilanlar;             ///< taken by the printer
    std::vector<GidenSayfalar> pdfler;                 ///< written as files, where they were to be
    bool pdfYazilir = true;                            ///< the disk takes such files
    std::vector<Metin> hayirdaBaslayanlar;             ///< questions on which Enter at once is a no
    std::vector<Metin> odaklar;                        ///< controls that were given the focus
    std::vector<EkranAdi> odakEkranlari;               ///< the screens of these controls
    std::vector<AktarimIstegi> aktarimlar;             ///< fetches of files that have begun
    int birakilanAktarim = 0;                          ///< how often one was given up, also behind its end
    std::vector<std::filesystem::path> calisanlar;     ///< programs that were to be started
    bool calisir = true;                               ///< the system can start them
    std::filesystem::path durumKlasoru;                ///< where the journal is kept; empty: there is none
    std::filesystem::path yedekKlasoru = "yedekler";   ///< where backups go as long as nothing else is said
    std::vector<SaklananAyar> ayarlar;                 ///< kept, in their order
    std::filesystem::path izlenen;                     ///< the folder that is watched; empty: none
    bool klasorDegisti = false;                        ///< what the next wait for a change finds
    bool izlenir = true;                               ///< folders can be watched
    bool baglanti = true;                              ///< the machine has a connection
    bool baskaKopya = false;                           ///< another copy of the program runs
    std::optional<DonanimAdresi> donanim = DonanimAdresi{0x00, 0x1B, 0xC4, 0x0D, 0xE0, 0x9F};

  private:
    using Beklenen = std::variant<BeklenenKutu, BeklenenGirdi, BeklenenEkran, BeklenenIstek, BeklenenBaski,
                                  BeklenenKayitYeri, BeklenenKlasor, BeklenenAktarim>;

    void SirayaKoy(Beklenen beklenen);
    /// Takes the next expected one. None when nothing was expected, or another kind: that fails the test.
    template <class Tur>
    std::optional<Tur> SiradanAl(const std::string& gelen);
    Ortam::Kabuk Kabuk();
    Cevap MesajSor(const MesajKutusu& kutu);
    Metin GirdiSor(const GirdiKutusu& kutu);
    void ModalGoster(EkranAdi ad, const std::function<void()>& gorununce);
    Metin Getir(const AgIstegi& istek);
    Aktarim AktarimAc(const AktarimIstegi& istek);
    bool Yazdir(const std::vector<Sayfa>& sayfalar, const Metin& isAdi);
    std::optional<std::filesystem::path> KayitYeriSor(const KayitYeriKutusu& kutu);
    Metin KlasorSor(const Metin& baslik);
    DegisiklikBekle Izle(const std::filesystem::path& klasor);
    bool PdfYaz(const std::vector<Sayfa>& sayfalar, const Metin& isAdi, const std::filesystem::path& dosya);
    /// Runs what is done on a screen, during a request or in a fetch: what it expects comes next.
    void Icinde(const std::function<void()>& is);

    std::deque<Beklenen> beklenenler_;
    std::function<void()> pdfSirasinda_; ///< what happens while the next file is written
    std::size_t disaridakiler_ = 0;      ///< expected before the work within began, and still to come
};

} // namespace velora::test
