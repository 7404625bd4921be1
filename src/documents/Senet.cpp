#include "documents/Senet.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "documents/SayfaAkisi.h"

namespace velora {

namespace {

constexpr double kIcKenar = 4; // between the frame and what is in it, in millimetres
constexpr double kIcEn = SayfaAkisi::kEn - 2 * kIcKenar;
constexpr SayfaYazisi kSenetYazisi{10, false};

// The heads with a dotted cell under each, and how wide they are, of all.
struct SenetBasi {
    MetinBakis baslik;
    double pay;
};
constexpr std::array kBaslar{SenetBasi{u"    Ödeme Tarihi    ", 0.35},
                             SenetBasi{u"    Türk Lirası    ", 0.35}, SenetBasi{u"  Kuruş  ", 0.15},
                             SenetBasi{u" No ", 0.15}};

constexpr std::array<MetinBakis, 3> kSatirlar{
    u"İş bu emre muharrer senedim................ mukabilinde "
    u".......................................................................................... tarihinde",
    u"Bay...................................................................................................."
    u"......"
    u"....................veya emrü Havale..............................",
    u"yukarıda yazılı Yanlız.....................................................TL..........Krş. "
    u"Ödeyeceği...........Bedeli ............ ahzolunmuştur."};

constexpr std::array<MetinBakis, 4> kBorclu{u"Adı - Soyadı", u"Adresi", u"", u"Tel & Gsm"};

/// Puts parts into the frame from the top to the bottom.
class SenetYazari {
  public:
    SenetYazari(const SayfaAkisi& akis, double ara) : akis_(akis), ara_(ara) {}

    void Ekle(Metin ad, MetinBakis metin, double sol, double en, Hiza hiza = Hiza::Sol) {
        const AlanBicimi bicim{kSenetYazisi, hiza, 7};
        blok_.push_back(
            akis_.Parca(std::move(ad), metin, {kIcKenar + sol, ust_, en, SatirBoyu(bicim.yazi)}, bicim));
    }
    /// A row of one sign.
    void Sirala(char16_t isaret, double sol, double en) {
        Ekle(u"", akis_.Sira(isaret, en, kSenetYazisi), sol, en);
    }
    /// The next one goes under all that is there.
    void Alta() { ust_ = std::max(EnAlt(blok_), EnAlt(gozler_)) + ara_; }
    /// A cell from the top of the frame down to what is there.
    void Gozle(double sol, double en) {
        SayfaParcasi goz{.tur = ParcaTuru::Cerceve};
        goz.yer = {kIcKenar + sol, kIcKenar - kGozPayi, en, 0};
        goz.yer.boy = EnAlt(blok_) + kGozPayi - goz.yer.ust;
        gozler_.push_back(std::move(goz));
    }

    std::vector<SayfaParcasi> Blok() {
        std::ranges::move(gozler_, std::back_inserter(blok_));
        SayfaParcasi cerceve{.tur = ParcaTuru::Cerceve, .ad = u"Senet"};
        cerceve.yer = {0, 0, SayfaAkisi::kEn, EnAlt(blok_) + kIcKenar};
        blok_.push_back(std::move(cerceve));
        return std::move(blok_);
    }

  private:
    static constexpr double kGozPayi = 1; // around what is in a cell

    const SayfaAkisi& akis_;
    double ara_;
    std::vector<SayfaParcasi> blok_;
    std::vector<SayfaParcasi> gozler_;
    double ust_ = kIcKenar;
};

void BaslariEkle(SenetYazari& yazar) {
    constexpr double kBosPay = 0.1; // of a head's width, on each side of the dots
    for (const bool baslik : {true, false}) {
        double sol = 0;
        for (const SenetBasi& bas : kBaslar) {
            const double en = bas.pay * kIcEn;
            if (baslik)
                yazar.Ekle(u"", bas.baslik, sol, en, Hiza::Orta);
            else
                yazar.Sirala(u'.', sol + en * kBosPay, en * (1 - 2 * kBosPay));
            sol += en;
        }
        if (baslik)
            yazar.Alta();
    }
    double sol = 0;
    for (const SenetBasi& bas : kBaslar) {
        yazar.Gozle(sol, bas.pay * kIcEn);
        sol += bas.pay * kIcEn;
    }
    yazar.Alta();
}

/// Who owes, and at the right the place to sign.
void BorcluyuEkle(SenetYazari& yazar) {
    constexpr double kEtiketEni = 26;
    constexpr double kIkiNoktaEni = 3;
    constexpr double kNoktaEni = 85;
    constexpr double kImzaSol = 124;
    constexpr double kImzaEni = kIcEn - kImzaSol;
    for (const MetinBakis satir : kBorclu) {
        if (!satir.empty())
            yazar.Ekle(u"", satir, 0, kEtiketEni);
        yazar.Ekle(u"", u":", kEtiketEni, kIkiNoktaEni);
        yazar.Sirala(u'.', kEtiketEni + kIkiNoktaEni, kNoktaEni);
        if (satir == kBorclu.front())
            yazar.Ekle(u"", u"İMZA", kImzaSol, kImzaEni, Hiza::Orta);
        if (satir == kBorclu.back())
            yazar.Sirala(u'-', kImzaSol, kImzaEni);
        yazar.Alta();
    }
}

} // namespace

std::vector<SayfaParcasi> SenetBlogu(const SayfaAkisi& akis, MetinBakis muacceliyet, MetinBakis mahkeme,
                                     double ara) {
    SenetYazari yazar(akis, ara);
    BaslariEkle(yazar);
    for (const MetinBakis satir : kSatirlar) {
        yazar.Ekle(u"", satir, 0, kIcEn);
        yazar.Alta();
    }
    yazar.Ekle(u"Label38", muacceliyet, 0, kIcEn);
    yazar.Alta();
    yazar.Ekle(u"Label50", mahkeme, 0, kIcEn);
    yazar.Alta();
    BorcluyuEkle(yazar);
    return yazar.Blok();
}

} // namespace velora
