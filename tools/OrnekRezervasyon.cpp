#include "tools/OrnekRezervasyon.h"

#include <algorithm>

#include "storage/Sayi.h"
#include "tools/OrnekMetinler.h"

namespace velora::ornek {

namespace {

/// The numbers of the fields, as the screens call them.
enum Alan {
    Ad = 1,
    Yore,
    GelinDamat,
    NitelikAlani,
    Telefon,
    Cep,
    Adres,
    Ucret,
    Alinan,
    Kalan,
    OnAciklama,
    Baslama,
    SozlesmeTarihi,
    SozlesmeNo,
    Bitis,
    KimlikNo,
    Davetli,
    HatirlatmaTarihi,
};

/// Prices are multiples of this.
constexpr int kYuvarlama = 500;
/// From here on a year is full: every reservation then has all three of its files.
constexpr unsigned kDoluYil = 730;

Metin& Kay(AnaKayit& ana, int no) {
    return ana.kay[static_cast<std::size_t>(no - 1)];
}

Metin Birlestir(MetinBakis bir, MetinBakis ara, MetinBakis iki) {
    Metin metin(bir);
    metin.append(ara).append(iki);
    return metin;
}

MetinBakis Birini(Rastgele& rastgele, std::span<const MetinBakis> liste) {
    return rastgele.Birini(liste);
}

const Nitelik& NitelikSec(Rastgele& rastgele) {
    int yer = rastgele.Arasi(1, 100);
    for (const Nitelik& nitelik : Nitelikler()) {
        yer -= nitelik.pay;
        if (yer <= 0)
            return nitelik;
    }
    return Nitelikler().back();
}

/// No number of these is anyone's: subscriber numbers don't begin with 000.
Metin TelefonNo(Rastgele& rastgele, MetinBakis alanKodu) {
    Metin metin(alanKodu);
    metin.append(u" 000 ").append(IkiHane(static_cast<unsigned>(rastgele.Arasi(0, 99))));
    return metin.append(u" ").append(IkiHane(static_cast<unsigned>(rastgele.Arasi(0, 99))));
}

/// Eleven digits that can't be a person's: real ones end in an even digit.
Metin KimlikNumarasi(Rastgele& rastgele) {
    Metin metin = SayiMetni(rastgele.Arasi(10000, 99999));
    metin += SayiMetni(rastgele.Arasi(10000, 99999));
    metin += SayiMetni(rastgele.Arasi(0, 4) * 2 + 1);
    return metin;
}

Metin AdresMetni(Rastgele& rastgele, MetinBakis yore) {
    Metin metin(Birini(rastgele, Mahalleler()));
    metin.append(u" ").append(Birini(rastgele, Caddeler()));
    metin.append(u" No: ").append(SayiMetni(rastgele.Arasi(1, 140)));
    return metin.append(u"\r\n").append(yore);
}

void Kisiler(AnaKayit& ana, const Nitelik& nitelik, Rastgele& rastgele) {
    const MetinBakis soyad = Birini(rastgele, Soyadlari());
    const bool kadin = rastgele.Yuzde(40);
    Kay(ana, Ad) = nitelik.kurum
                       ? Metin(Birini(rastgele, Kurumlar()))
                       : Birlestir(Birini(rastgele, kadin ? KadinAdlari() : ErkekAdlari()), u" ", soyad);
    Kay(ana, Yore) = Birini(rastgele, Yoreler());
    if (nitelik.ciftVar) {
        const MetinBakis gelin = Birini(rastgele, KadinAdlari());
        Kay(ana, GelinDamat) = Birlestir(gelin, u" / ", Birini(rastgele, ErkekAdlari()));
    }
    Kay(ana, NitelikAlani) = nitelik.ad;
    if (rastgele.Yuzde(60))
        Kay(ana, Telefon) = TelefonNo(rastgele, u"0312");
    Kay(ana, Cep) = TelefonNo(rastgele, u"0532");
    Kay(ana, Adres) = AdresMetni(rastgele, Kay(ana, Yore));
    if (!nitelik.kurum)
        Kay(ana, KimlikNo) = KimlikNumarasi(rastgele);
    Kay(ana, Davetli) = SayiMetni(rastgele.Arasi(4, 40) * 25);
    if (rastgele.Yuzde(25))
        Kay(ana, OnAciklama) = Birini(rastgele, OnAciklamalar());
}

void Saatler(AnaKayit& ana, GunduzGece dilim, Rastgele& rastgele) {
    const int ilk = dilim == GunduzGece::Gunduz ? 11 : 19;
    const int baslama = ilk + rastgele.Arasi(0, 1);
    const int bitis = baslama + rastgele.Arasi(3, 4);
    Kay(ana, Baslama) = IkiHane(static_cast<unsigned>(baslama)) + u":00";
    Kay(ana, Bitis) = IkiHane(static_cast<unsigned>(bitis % 24)) + (bitis < 24 ? u":30" : u":00");
}

/// So many parts, in whole hundreds, whose sum is exactly `toplam`.
std::vector<int> Parcala(int toplam, int adet) {
    std::vector<int> parcalar(static_cast<std::size_t>(adet), toplam / adet / 100 * 100);
    parcalar.front() += toplam - parcalar.front() * adet;
    return parcalar;
}

/// What has been paid: mostly all after the event, a part before it; now and then too much.
int OdenenTutar(int ucret, bool gecmis, Rastgele& rastgele) {
    if (gecmis && rastgele.Yuzde(2))
        return ucret + kYuvarlama;
    if (gecmis && rastgele.Yuzde(85))
        return ucret;
    return ucret * rastgele.Arasi(2, 7) / 10 / 100 * 100;
}

void Odemeler(Rezervasyon& rezervasyon, const Istek& istek, bool kesin, Rastgele& rastgele) {
    const int ucret = static_cast<int>(SayisalDeger(Kay(rezervasyon.ana, Ucret)));
    const int bugun = GunNo(istek.bugun);
    const bool gecmis = GunNo(rezervasyon.dilim.gun) < bugun;
    int adet = gecmis ? rastgele.Arasi(1, 4) : kesin ? rastgele.Arasi(0, 3) : rastgele.Arasi(0, 1);
    if (istek.rezervasyon >= kDoluYil)
        adet = std::max(adet, 1);
    int toplam = 0;
    if (adet > 0) {
        const int ilk = rezervasyon.sozlesmeGunu;
        const int son = std::clamp(GunNo(rezervasyon.dilim.gun), ilk, bugun);
        int sira = 0;
        for (const int tutar : Parcala(OdenenTutar(ucret, gecmis, rastgele), adet)) {
            const int gun = ilk + (son - ilk) * sira++ / adet;
            rezervasyon.odemeler.push_back({TarihMetni(GunuBul(gun)), SayiMetni(tutar), {}});
            toplam += tutar;
        }
    }
    Kay(rezervasyon.ana, Alinan) = DuzMetin(toplam);
    Kay(rezervasyon.ana, Kalan) = DuzMetin(ucret - toplam);
}

void Hizmetler(DetayKaydi& detay, Rastgele& rastgele) {
    for (std::size_t i = 0; i < detay.check.size(); ++i) {
        if (!rastgele.Yuzde(30))
            continue;
        detay.check[i] = 1;
        if (rastgele.Yuzde(60))
            detay.tt[i] = HizmetNotlari()[i];
    }
    detay.combo1 = u"Menü seçiniz...";
    if (rastgele.Yuzde(70)) {
        const Menu& menu = rastgele.Birini(Menuler());
        detay.combo1 = menu.ad;
        detay.label20 = menu.icerik;
    }
    if (rastgele.Yuzde(30))
        detay.aciklamalar = Birini(rastgele, OzelIstekler());
}

} // namespace

Rezervasyon RezervasyonYap(const Istek& istek, const Dilim& dilim, Rastgele& rastgele) {
    Rezervasyon rezervasyon;
    rezervasyon.dilim = dilim;
    rezervasyon.yil = static_cast<int>(dilim.gun.year());
    const int bugun = GunNo(istek.bugun);
    const int gun = GunNo(dilim.gun);
    const int onceden = rastgele.Arasi(15, 300);
    rezervasyon.sozlesmeGunu = std::min(gun - onceden, bugun - rastgele.Arasi(0, 90));

    const Nitelik& nitelik = NitelikSec(rastgele);
    AnaKayit& ana = rezervasyon.ana;
    Kisiler(ana, nitelik, rastgele);
    Saatler(ana, dilim.dilim, rastgele);
    Kay(ana, SozlesmeTarihi) = TarihMetni(GunuBul(rezervasyon.sozlesmeGunu));
    Kay(ana, Ucret) =
        SayiMetni(rastgele.Arasi(nitelik.enAz / kYuvarlama, nitelik.enCok / kYuvarlama) * kYuvarlama);
    Kay(ana, HatirlatmaTarihi) = kBosTarih;
    ana.check18 = rastgele.Yuzde(90) ? 1 : 0;
    if (gun > bugun + 10 && rastgele.Yuzde(8))
        Hatirlat(rezervasyon, GunuBul(gun - rastgele.Arasi(1, 9)));

    const bool kesin = gun < bugun || rastgele.Yuzde(75);
    rezervasyon.detay.option1 = kesin;
    rezervasyon.detay.option2 = !kesin;
    Hizmetler(rezervasyon.detay, rastgele);
    Odemeler(rezervasyon, istek, kesin, rastgele);
    return rezervasyon;
}

void Numarala(Rezervasyon& rezervasyon, unsigned no) {
    Kay(rezervasyon.ana, SozlesmeNo) = SayiMetni(no);
    for (Odeme& odeme : rezervasyon.odemeler)
        odeme.aciklama = Birlestir(SayiMetni(no), u" - ", Kay(rezervasyon.ana, Ad));
}

void Hatirlat(Rezervasyon& rezervasyon, const Gun& gun) {
    Kay(rezervasyon.ana, HatirlatmaTarihi) = TarihMetni(gun);
    rezervasyon.ana.check19 = 1;
}

} // namespace velora::ornek
