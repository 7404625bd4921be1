#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <map>
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
};

struct BeklenenGirdi {
    Metin baslik;
    Metin metin;
    Metin cevap;
};

/// The outside world of a test. Boxes are a script: each one that comes must be the next expected one, letter
/// by letter; an unexpected, a differently worded and an unread one fail the test. Must outlive its program.
class SahteOrtam {
  public:
    explicit SahteOrtam(Gun bugun);
    ~SahteOrtam();
    SahteOrtam(const SahteOrtam&) = delete;
    SahteOrtam& operator=(const SahteOrtam&) = delete;

    /// The functions for the program.
    Ortam Ver();

    void Bekle(BeklenenKutu kutu) { kutular_.push_back(std::move(kutu)); }
    void Bekle(BeklenenGirdi girdi) { girdiler_.push_back(std::move(girdi)); }

    /// What happens while a screen is shown modally. Without one it closes at once.
    std::map<EkranAdi, std::function<void()>> modalda;
    /// Runs when a screen is shown beside the others.
    std::function<void(EkranAdi)> acilinca;
    /// Runs where the program lets pending events run; `sira` counts those points from 1.
    std::function<void(int sira)> olayda;

    std::chrono::local_seconds simdi;
    int olaySayisi = 0;
    bool bitti = false; ///< the program was told to end
    std::vector<EkranAdi> acilanlar;
    std::vector<EkranAdi> gizlenenler;
    std::vector<std::filesystem::path> acilanDosyalar; ///< given to the user's own programs
    std::vector<Metin> odaklar;                        ///< controls that were given the focus

  private:
    Cevap MesajSor(const MesajKutusu& kutu);
    Metin GirdiSor(const GirdiKutusu& kutu);

    std::deque<BeklenenKutu> kutular_;
    std::deque<BeklenenGirdi> girdiler_;
};

} // namespace velora::test
