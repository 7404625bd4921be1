#include "qt/SayfaCizimi.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include "qt/Ceviri.h"

namespace velora {

namespace {

// Every text is laid out in this one size, and the painter is scaled: so it breaks and ends at the same place
// on a screen, on a printer and in a file, whatever they make of small letters.
constexpr int kTipBoyu = 200;
constexpr double kPuntodanMm = 25.4 / 72;
constexpr double kCerceveKalinligi = 0.25; // millimetres

QFont SayfaTipi(bool kalin) {
    QFont tip;
    // The second is as wide as the first, letter by letter.
    tip.setFamilies({QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif")});
    tip.setStyleHint(QFont::Serif);
    tip.setPixelSize(kTipBoyu);
    tip.setBold(kalin);
    tip.setHintingPreference(QFont::PreferNoHinting);
    return tip;
}

/// From the units of the type to millimetres.
double TipOlcegi(const SayfaYazisi& yazi) {
    return yazi.punto * kPuntodanMm / kTipBoyu;
}

/// What isn't painted as a letter, as a tab, stands as a blank.
constexpr char16_t CizilenHarf(char16_t harf) {
    constexpr char16_t kYumusakTire = 0xAD;
    const bool denetim = harf < u' ' || (harf >= 0x7F && harf < 0xA0);
    return denetim ? u' ' : harf == kYumusakTire ? u'-' : harf;
}

QString CizilenMetin(MetinBakis metin) {
    Metin cizilen(metin);
    std::ranges::transform(cizilen, cizilen.begin(), CizilenHarf);
    return QMetin(cizilen);
}

/// How wide texts are in one weight, in units of the type. Breaking a text into lines measures each of its
/// letters hundreds of times: letters and pairs of them are kept.
class TipEnleri {
  public:
    explicit TipEnleri(bool kalin) : olcu_(SayfaTipi(kalin)) {
        tek_.fill(kBilinmez);
        yanasma_.resize(kSikHarf * kSikHarf, kBilinmez);
    }

    double En(MetinBakis metin) {
        double en = 0;
        int onceki = -1;
        for (const char16_t harf : metin) {
            const int no = SikNo(CizilenHarf(harf));
            if (no < 0)
                return olcu_.horizontalAdvance(CizilenMetin(metin));
            en += Tek(no, harf);
            if (onceki >= 0)
                en += Yanasma(onceki, no);
            onceki = no;
        }
        return en;
    }

  private:
    // Latin letters, the punctuation and the currencies of the files' code page, each by a number.
    struct Aralik {
        char16_t ilk;
        char16_t son;
    };
    static constexpr std::array kAraliklar{Aralik{0x20, 0x17F}, Aralik{0x2013, 0x2026},
                                           Aralik{0x2030, 0x203A}, Aralik{0x20AC, 0x20BA}};
    static constexpr int kSikHarf = [] {
        int adet = 0;
        for (const Aralik& aralik : kAraliklar)
            adet += aralik.son - aralik.ilk + 1;
        return adet;
    }();
    static constexpr float kBilinmez = std::numeric_limits<float>::quiet_NaN();

    static int SikNo(char16_t harf) {
        int taban = 0;
        for (const Aralik& aralik : kAraliklar) {
            if (harf >= aralik.ilk && harf <= aralik.son)
                return taban + harf - aralik.ilk;
            taban += aralik.son - aralik.ilk + 1;
        }
        return -1;
    }
    double Tek(int no, char16_t harf) {
        float& en = tek_[static_cast<std::size_t>(no)];
        if (std::isnan(en)) {
            harfler_[static_cast<std::size_t>(no)] = CizilenHarf(harf);
            en = static_cast<float>(olcu_.horizontalAdvance(CizilenMetin({&harf, 1})));
        }
        return en;
    }
    /// How much nearer the second stands to the first than side by side. Both have been measured before.
    double Yanasma(int ilk, int ikinci) {
        float& pay = yanasma_[static_cast<std::size_t>(ilk * kSikHarf + ikinci)];
        if (std::isnan(pay)) {
            const auto sira = [](int no) { return static_cast<std::size_t>(no); };
            const Metin cift{harfler_[sira(ilk)], harfler_[sira(ikinci)]};
            pay = static_cast<float>(olcu_.horizontalAdvance(QMetin(cift))) - tek_[sira(ilk)] -
                  tek_[sira(ikinci)];
        }
        return pay;
    }

    QFontMetricsF olcu_;
    std::array<float, kSikHarf> tek_{};
    std::array<char16_t, kSikHarf> harfler_{};
    std::vector<float> yanasma_;
};

class TipOlcusu {
  public:
    double En(MetinBakis metin, const SayfaYazisi& yazi) {
        return (yazi.kalin ? kalin_ : ince_).En(metin) * TipOlcegi(yazi);
    }

  private:
    TipEnleri ince_{false};
    TipEnleri kalin_{true};
};

void SatirCiz(QPainter& boyaci, const SayfaParcasi& parca, MetinBakis satir, double ust) {
    const QFontMetricsF olcu(boyaci.font());
    const QString metin = CizilenMetin(satir);
    const double olcek = TipOlcegi(parca.yazi);
    const double bosluk = parca.yer.en - olcu.horizontalAdvance(metin) * olcek;
    const double pay = parca.hiza == Hiza::Sol ? 0 : parca.hiza == Hiza::Orta ? bosluk / 2 : bosluk;
    // The letters stand in the middle of the height of their line.
    const double taban = (SatirBoyu(parca.yazi) + (olcu.ascent() - olcu.descent()) * olcek) / 2;
    boyaci.save();
    boyaci.translate(parca.yer.sol + pay, ust + taban);
    boyaci.scale(olcek, olcek);
    boyaci.drawText(QPointF(0, 0), metin);
    boyaci.restore();
}

void ParcaCiz(QPainter& boyaci, const SayfaParcasi& parca) {
    const QRectF yer(parca.yer.sol, parca.yer.ust, parca.yer.en, parca.yer.boy);
    if (parca.zemin)
        boyaci.fillRect(yer, QRenk(*parca.zemin));
    if (parca.tur == ParcaTuru::Cerceve) {
        boyaci.setPen(
            QPen(QRenk(parca.renk), kCerceveKalinligi, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        boyaci.setBrush(Qt::NoBrush);
        boyaci.drawRect(yer);
        return;
    }
    boyaci.setFont(SayfaTipi(parca.yazi.kalin));
    boyaci.setPen(QRenk(parca.renk));
    double ust = parca.yer.ust;
    for (const Metin& satir : parca.satirlar) {
        SatirCiz(boyaci, parca, satir, ust);
        ust += SatirBoyu(parca.yazi);
    }
}

/// A row of dots or dashes is there to write on.
bool Okunur(MetinBakis satir) {
    return satir.find_first_not_of(u" .-:") != MetinBakis::npos;
}

} // namespace

YaziOlcer SayfaOlcer() {
    return [olcu = std::make_shared<TipOlcusu>()](MetinBakis metin, const SayfaYazisi& yazi) {
        return olcu->En(metin, yazi);
    };
}

void SayfayiCiz(QPainter& boyaci, const Sayfa& sayfa, double olcek) {
    boyaci.save();
    boyaci.scale(olcek, olcek);
    // Places that touch must not let the paper through between them.
    boyaci.setRenderHint(QPainter::Antialiasing, false);
    boyaci.setRenderHint(QPainter::TextAntialiasing);
    boyaci.setLayoutDirection(Qt::LeftToRight);
    for (const SayfaParcasi& parca : sayfa.parcalar)
        ParcaCiz(boyaci, parca);
    boyaci.restore();
}

Metin OkunanMetin(const std::vector<Sayfa>& sayfalar) {
    Metin metin;
    for (const Sayfa& sayfa : sayfalar) {
        double ust = -1; // of what was read last on this page
        for (const SayfaParcasi& parca : sayfa.parcalar)
            for (const Metin& satir : parca.satirlar) {
                if (!Okunur(satir) && satir != u":")
                    continue;
                if (!metin.empty())
                    metin += parca.yer.ust == ust ? u' ' : u'\n';
                metin += Kirp(satir);
                ust = parca.yer.ust;
            }
    }
    return metin;
}

} // namespace velora
