#include <chrono>
#include <ctime>
#include <exception>
#include <filesystem>
#include <iostream>
#include <vector>

#include "storage/KodSayfasi.h"
#include "tools/OrnekIstek.h"

namespace {

using namespace velora;
using namespace velora::ornek;

enum Cikis { Tamam = 0, Olmadi = 1, YanlisKullanim = 2 };

/// The day by the machine's own clock and zone.
Gun Bugun() {
    const std::time_t simdi = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm yerel = *std::localtime(&simdi);
    return std::chrono::year(yerel.tm_year + 1900) / (yerel.tm_mon + 1) / yerel.tm_mday;
}

Cikis Bildir(const Komut& komut, const Sonuc& sonuc) {
    if (sonuc.durum == Durum::AgacVar) {
        std::cerr << komut.klasor << " holds a firm already (Salon.dat); nothing was written.\n";
        return Olmadi;
    }
    if (sonuc.durum == Durum::Yazilamadi) {
        std::cerr << "Not everything could be written below " << komut.klasor << ".\n";
        return Olmadi;
    }
    std::cout << "Sample firm in " << komut.klasor << ": " << sonuc.salonlar.size() << " halls, "
              << sonuc.yillar.size() << " years, " << sonuc.rezervasyon << " reservations, " << sonuc.odeme
              << " payments.\nUser " << KodYaz(kYonetici) << ", password " << KodYaz(kYoneticiParolasi)
              << ".\n";
    if (sonuc.enAzRezervasyon < komut.istek.rezervasyon)
        std::cout << "A year has no more than " << sonuc.enAzRezervasyon
                  << " day slots; --tum-adlar takes 31 days "
                  << "for every month.\n";
    return Tamam;
}

Cikis Calistir(const std::vector<std::string_view>& parcalar) {
    if (parcalar.size() == 1 && (parcalar[0] == "-h" || parcalar[0] == "--help")) {
        std::cout << Kullanim();
        return Tamam;
    }
    const std::optional<Komut> komut = KomutCoz(parcalar, Bugun());
    if (!komut) {
        std::cerr << Kullanim();
        return YanlisKullanim;
    }
    std::filesystem::create_directories(komut->klasor);
    const Dosyalar dosyalar(std::filesystem::canonical(komut->klasor));
    return Bildir(*komut, FirmaYap(dosyalar, komut->istek));
}

} // namespace

int main(int adet, char** parcalar) {
    try {
        return Calistir({parcalar + 1, parcalar + adet});
    } catch (const std::exception& hata) {
        std::cerr << hata.what() << "\n";
        return Olmadi;
    }
}
