#pragma once

#include <filesystem>
#include <random>
#include <thread>

#include "screen/Program.h"
#include "storage/dosya/OkumaBellegi.h"
#include "tools/OrnekFirma.h"

namespace velora::olcum {

/// A program folder, with one hall and one year in which every slot is taken where no other is asked for.
class OlcumAgaci {
  public:
    /// Of 12 times 31 days, or of those that the year has.
    enum class Adlar { Hepsi, Gercek };
    static constexpr std::size_t kRezervasyon = ornek::kEnCokRezervasyon;

    explicit OlcumAgaci(Adlar adlar = Adlar::Hepsi)
        : OlcumAgaci({.salon = 1,
                      .yil = 1,
                      .rezervasyon = kRezervasyon,
                      .bugun = Bugun(),
                      .tumAdlar = adlar == Adlar::Hepsi}) {}
    explicit OlcumAgaci(const ornek::Istek& istek) {
        std::random_device rastgele;
        do
            kok_ = std::filesystem::temp_directory_path() / ("velora-olcum-" + std::to_string(rastgele()));
        while (!std::filesystem::create_directory(kok_));
        durum_ = kok_;
        durum_ += "-durum";
        salon_ = ornek::FirmaYap(Dosyalar(kok_), istek).salonlar.at(0);
    }
    ~OlcumAgaci() {
        std::error_code hata;
        std::filesystem::remove_all(kok_, hata);
        std::filesystem::remove_all(durum_, hata);
    }
    OlcumAgaci(const OlcumAgaci&) = delete;
    OlcumAgaci& operator=(const OlcumAgaci&) = delete;

    /// Waits until what stands there is believed when it is read.
    static void Yaslandir() { std::this_thread::sleep_for(OkumaBellegi().zamanAdimi * 11 / 10); }

    static constexpr Gun Bugun() {
        return {std::chrono::year{2026}, std::chrono::month{6}, std::chrono::day{15}};
    }
    const std::filesystem::path& Kok() const { return kok_; }
    /// Where a program on it may keep its journal.
    const std::filesystem::path& DurumKlasoru() const { return durum_; }
    /// This year of the first hall.
    std::filesystem::path YilYolu() const { return kok_ / salon_ / "2026"; }

  private:
    std::filesystem::path kok_;
    std::filesystem::path durum_;
    Metin salon_;
};

/// An outside world in which nothing happens.
inline Ortam OlcumOrtami(Gun bugun) {
    Ortam ortam;
    ortam.sor.mesaj = [](const MesajKutusu&) { return Cevap::Tamam; };
    ortam.sor.girdi = [](const GirdiKutusu&) { return Metin(); };
    ortam.goster.ac = ortam.goster.modal = [](EkranAdi, const std::function<void()>&) {};
    ortam.goster.gizle = [](EkranAdi) {};
    ortam.zaman.simdi = [bugun] { return std::chrono::local_seconds(std::chrono::local_days(bugun)); };
    ortam.olaylar.isle = ortam.olaylar.bitir = [] {};
    ortam.kabuk.dosyaAc = [](const std::filesystem::path&) { return true; };
    ortam.odak.ver = [](EkranAdi, MetinBakis) {};
    return ortam;
}

} // namespace velora::olcum
