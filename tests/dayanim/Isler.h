#pragma once

#include "dayanim/Senaryolar.h"
#include "reservation/FormKayit.h"

/// What the user does on the screens, for the scenarios.
namespace velora::dayanim {

using test::TabloGozu;

inline constexpr auto kGunduz = velora::GunduzGece::Gunduz;
inline constexpr auto kGece = velora::GunduzGece::Gece;
// Cells of the firm's first hall in 2012.
inline constexpr TabloGozu kBosGun{18, 9, kGece};
inline constexpr TabloGozu kIkiOdemeli{20, 6, kGunduz};
inline constexpr TabloGozu kTekOdemeli{21, 6, kGece};
inline constexpr TabloGozu kOnKayit{22, 6, kGece};
inline constexpr TabloGozu kUzunKayit{23, 6, kGunduz};
inline constexpr TabloGozu kGecmis{10, 6, kGece};

/// So many letters in words; none of the ends of pages of memory looks like another.
Metin UzunMetin(std::size_t boy, MetinBakis soz);

FormKayit& Kayit(Masa& m);
/// Types into a field of the reservation.
void Gir(Masa& m, int no, const Metin& metin);
void OdemeAl(Masa& m, const Metin& tutar);
void OdemeSil(Masa& m, int sira);
/// Long texts, and so many payments more.
void UzunYaz(Masa& m, MetinBakis soz, int odeme);
/// A free day gets a reservation by its menu, and it is saved.
void YeniKayit(Masa& m, const std::function<void()>& is);
/// A reservation is opened by a double click, and saved.
void KayitDuzenle(Masa& m, const TabloGozu& goz, const std::function<void()>& is);
void TasimaAc(Masa& m);
void Tasi(Masa& m, const TabloGozu& kaynak, const TabloGozu& hedef);
void Iptal(Masa& m, const TabloGozu& goz);

void Ayarlar(Masa& m);
void SalonEkle(Masa& m);
void SalonSil(Masa& m);
void SalonAdi(Masa& m);
void MenuYaz(Masa& m, const Metin& ad, const Metin& icerik, bool yeni);
void MenuSil(Masa& m, int sira);
/// In the cash book of a hall.
void Kasada(Masa& m, const Metin& salon, const std::function<void()>& is);
void GiderEkle(Masa& m);
void GiderSil(Masa& m);
void KullaniciEkle(Masa& m);
void KullaniciSil(Masa& m);
void TatilKaydet(Masa& m);
void SozlesmeKaydet(Masa& m);
void FirmaKaydet(Masa& m);
void SunucuKaydet(Masa& m);
/// Where backups go; none is made.
void YedekAyari(Masa& m);
void ParolaDegistir(Masa& m);
/// The first of two requests of visitors, which wait at the service, becomes a reservation.
void IstektenKayit(Masa& m);
/// The two, as the last poll has left them.
std::string IstekBaytlari();

// The first run.
inline constexpr MetinBakis kIlkParola = u"g5";
/// What a start behind a first run without a password makes of the users.
inline constexpr std::string_view kParolasizAdmin =
    "\"admin\",\"\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n";
/// The profile, the password and a hall.
void IlkKurulum(Masa& m);
/// On the screen of the password, which leads to the table and there to the first hall.
void IlkParolaVeSalon(test::Kullanici& kullanici);

} // namespace velora::dayanim
