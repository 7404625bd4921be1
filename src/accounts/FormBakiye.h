#pragma once

#include <array>

#include "screen/Kontroller.h"
#include "storage/RezervasyonDosyalari.h"

namespace velora {

struct Program;

/// The kinds of event that have a total of their own, by the numbers of their `DTop` less one. The last one
/// also takes every kind that isn't named here.
inline constexpr std::array<MetinBakis, 8> kBakiyeTurleri{u"Düğün", u"Sünnet",  u"Toplantı",  u"Kına",
                                                          u"Nişan", u"Kokteyl", u"Konferans", u"Diğer"};

/// "Rezervasyon Raporu": the reservations of one hall in a range of dates, and what they come to. The range
/// lies in the year selected on the table.
struct FormBakiye {
    explicit FormBakiye(Program& program);

    void Load();
    /// Holds the range in the table's year. When that has changed since the last listing, lists anew.
    void Activate();
    /// Reads the folder of the hall and lists what lies in the range. Nothing in it: a box says so.
    ///
    /// A name in the folder that begins as a day's and is no date ends it there, and so does a reservation of
    /// the range whose main file or details can't be opened. What was listed until then stays; totals and
    /// counters show what they showed before, and no box comes.
    void ListeleGun();
    void Liste_Click();
    void Liste_DblClick();
    void Command1_Click(); ///< "Kapat"
    /// "Detaylar": the table goes to the hall of the report, and the marked reservation is opened. Returns
    /// when it has closed. Without a marked row nothing happens.
    void Command6_Click();
    /// "Excel'e Aktar": the list as `Rapor.xls`, which is then opened (`RaporAktar`). Nothing is told,
    /// whatever fails.
    void Command2_Click();
    void Command4(); ///< "DTPicker1 Tarihi Sınırla"
    void Command5(); ///< "DTPicker2 Tarihi Sınırla"

    Metin baslik = u"Rezervasyon Raporu";
    AcilirListe Combo2;    ///< "Salon Adı"; a choice lists anew
    TarihSecici DTPicker1; ///< "Başlangıç Tarihi", inclusive
    TarihSecici DTPicker2; ///< "Bitiş Tarihi", inclusive
    AcilirListe Combo1;    ///< "Rezervasyon Tipi"
    Dugme Listele{u"Listele", {}};
    ListeGorunumu Liste; ///< a row's tag is the path of the main file
    Etiket Ozet;         ///< how many rows there are, and of what year; empty before the first listing

    BirTabanli<Etiket, kBakiyeTurleri.size()> DTop; ///< totals of the kinds
    Etiket Toplam;                                  ///< "Genel Toplam"
    Etiket Alinan;                                  ///< "Alınan Ödeme"
    Etiket Kalan;                                   ///< "Kalan Ödeme"
    Etiket Label14;                                 ///< "Kesin Rezervasyon"
    Etiket Label18;                                 ///< "Ön Rezervasyon"
    Etiket Label19;                                 ///< "Toplam Rezervasyon"

    Dugme Command2{u"Excel'e Aktar", {}};
    Dugme Command6{u"Detaylar", {}, false};
    Dugme Command1{u"Kapat", {}};

    int acikmi = 0; ///< 1 from the first `Activate` on: a save repeats the scan

  private:
    /// The kinds, then all rows' price, what was taken and what is left.
    static constexpr std::size_t kToplamSayisi = kBakiyeTurleri.size() + 3;
    using Toplamlar = std::array<double, kToplamSayisi>;

    void BasliklariKoy();
    bool Tara(Toplamlar& toplamlar);
    /// The listing without its box, which is for who asked for it. False when it had to stop.
    bool YenidenListele();
    using AnaSecimi =
        SecilenDegerler<AnaNo::AdiSoyadi, AnaNo::Niteligi, AnaNo::ToplamUcret, AnaNo::AlinanOdeme,
                        AnaNo::KalanOdeme, AnaNo::OnAciklama, AnaNo::DavetliSayisi>;
    using DetaySecimi = SecilenDegerler<DetayNo::KesinRezervasyon, DetayNo::OnRezervasyon>;
    static bool OnMu(const DetaySecimi& detay);
    bool Istenen(const DetaySecimi& detay) const;
    void SatirEkle(MetinBakis ad, Metin yol, const AnaSecimi& ana, const DetaySecimi& detay);
    void ToplamlariGoster(const Toplamlar& toplamlar);
    void Say();

    Program& program_;
    Metin listelenenYil_; // of the last listing; empty before the first
};

} // namespace velora
