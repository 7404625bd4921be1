// The captions of `FormKayit`, as they stand on its four pages.
#include "reservation/FormKayit.h"

namespace velora {

namespace {

struct AlanBasligi {
    AnaNo::No no;
    MetinBakis baslik;
    MetinBakis sonra = {};
};

/// What is paid and what is left aren't seen: `Kayam9` and `Kayam10` stand for them.
constexpr std::array<AlanBasligi, 16> kAlanBasliklari{
    {{AnaNo::AdiSoyadi, u"Adı Soyadı"},
     {AnaNo::Yoresi, u"Yöresi"},
     {AnaNo::GelinDamat, u"Gelin / Damat"},
     {AnaNo::Niteligi, u"Niteliği"},
     {AnaNo::Telefon, u"Telefon"},
     {AnaNo::Cep, u"Cep"},
     {AnaNo::Adres, u"Adres"},
     {AnaNo::ToplamUcret, u"Toplam Ücret", u"TL"},
     {AnaNo::OnAciklama, u"Ön Açıklama"},
     {AnaNo::BaslamaSaati, u"Başlama Saati"},
     {AnaNo::SozlesmeTarihi, u"Sözleşme Tarihi", u"(gün.ay.yıl)"},
     {AnaNo::SozlesmeNo, u"Sözleşme No"},
     {AnaNo::BitisSaati, u"Bitiş Saati"},
     {AnaNo::KimlikNo, u"T.C. Kimlik No"},
     {AnaNo::DavetliSayisi, u"Davetli Sayısı"},
     {AnaNo::HatirlatmaTarihi, u"Bu Tarihte Hatırlat"}}};

/// The services, by the numbers of their `Check` and `TT` fields less one.
constexpr std::array<MetinBakis, kHizmetSayisi> kHizmetAdlari{u"Yaş Pasta Servisi",
                                                              u"Havai Fişek Gösterisi",
                                                              u"Yerli İçki Servisi",
                                                              u"Yabancı İçki Servisi",
                                                              u"Yemek Servisi",
                                                              u"Kuru Pasta Servisi",
                                                              u"Volkan Konfeti Gösterisi",
                                                              u"Barkovizyon",
                                                              u"Özel Araç Tahsisi",
                                                              u"Araç Süsleme",
                                                              u"Gelin Kuaförü",
                                                              u"Damat Kuaförü",
                                                              u"Orkestra",
                                                              u"Sanatçı",
                                                              u"Video Çekimleri",
                                                              u"Fotoğraf Çekimleri",
                                                              u"Dj / Ara Disko"};

} // namespace

void FormKayit::BasliklariKoy() {
    for (const AlanBasligi& alan : kAlanBasliklari) {
        Kay[alan.no].baslik = alan.baslik;
        Kay[alan.no].sonra = alan.sonra;
    }
    SalonAdi.once = u"Salon";
    Option1.baslik = u"Kesin Rezervasyon";
    Option2.baslik = u"Ön Rezervasyon";
    Check18.baslik = u"Yaklaşınca Hatırlat";
    Check19.baslik = u"Bu Tarihte Hatırlat";
    Liste.baslik = u"Ödemeler";
    Liste.basliklar = {u"Tarih", u"Tutar", u"Açıklama"};
    ToplamUcret.once = u"Toplam Ücret :";
    Kayam9.once = u"Alınan Ödeme :";
    Kayam10.once = u"Kalan Ödeme :";
    ToplamUcret.sonra = Kayam9.sonra = Kayam10.sonra = u"TL";
    Combo1.baslik = u"Menü";
    Label20.baslik = u"Menü içeriği";
    Aciklamalar.baslik = u"Özel İstekler ve Açıklamalar";
    for (int no = 1; no <= kHizmetSayisi; ++no) {
        Check[no].baslik = kHizmetAdlari[static_cast<std::size_t>(no - 1)];
        TT[no].baslik = Check[no].baslik + u", not";
    }
}

} // namespace velora
