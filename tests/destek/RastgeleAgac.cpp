#include "destek/RastgeleAgac.h"

#include "storage/VeriAgaci.h"

namespace velora::test {

std::vector<Metin> RastgeleAgac::SalonlariKoy(bool cok) const {
    std::vector<Metin> salonlar;
    Metin liste;
    for (char16_t harf = u'A'; harf <= (cok ? u'H' : u'B'); ++harf) {
        salonlar.push_back(u"Salon " + Metin(1, harf));
        liste += u"\"" + salonlar.back() + u"\"\r\n";
    }
    agac_.KoyMetin(u"Salon.dat", liste);
    return salonlar;
}

unsigned RastgeleAgac::Sec(std::size_t adet) {
    return std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(adet) - 1)(rastgele_);
}

void RastgeleAgac::Yap(const Tarif& tarif) {
    for (int i = 0; i < tarif.adet; ++i) {
        const Metin& salon = tarif.salonlar.at(Sec(tarif.salonlar.size()));
        const Metin& yil = tarif.yillar.at(Sec(tarif.yillar.size()));
        const auto dilim = Sec(2) == 0 ? GunduzGece::Gunduz : GunduzGece::Gece;
        const unsigned ay = tarif.ilkAy + Sec(tarif.sonAy - tarif.ilkAy + 1);
        UcDosyaKoy(tarif, salon, yil, GunAnahtari(1 + Sec(31), ay, yil, dilim));
    }
    for (const Metin& salon : tarif.salonlar)
        for (const Metin& yil : tarif.yillar)
            for (const Metin& ad : tarif.adlar)
                UcDosyaKoy(tarif, salon, yil, ad);
}

Metin RastgeleAgac::KayitMetni(MetinBakis ek, const OrnekKayit& kayit) {
    if (ek == kDetayEki)
        return DetayMetni(Sec(2) == 0);
    return ek == kOdemeEki ? Metin(u"\"01.01.2012\",\"5\",\"0\"\r\n") : AnaMetni(kayit);
}

void RastgeleAgac::UcDosyaKoy(const Tarif& tarif, const Metin& salon, const Metin& yil, const Metin& ad) {
    for (const MetinBakis ek : kRezervasyonEkleri) {
        if (ek == kOdemeEki && Sec(3) != 0)
            continue; // few have payments
        // Some files stand where no others of their reservation do.
        const Metin& yer = Sec(6) == 0 ? tarif.salonlar.at(Sec(tarif.salonlar.size())) : salon;
        Koy(yer + u"/" + yil + u"/" + ad + Metin(ek), tarif.metin(ek));
    }
}

void RastgeleAgac::Koy(const Metin& yol, Metin metin) {
    if (Sec(8) == 0 || agac_.Var(yol))
        return;
    if (Sec(15) == 0)
        return agac_.KlasorKoy(yol);
    if (!metin.empty() && Sec(3) == 0)
        Boz(metin);
    agac_.KoyMetin(yol, metin);
}

void RastgeleAgac::Boz(Metin& metin) {
    const std::size_t yer = Sec(metin.size());
    switch (Sec(4)) {
    case 0:
        metin.clear();
        break;
    case 1:
        metin.resize(yer);
        break;
    case 2:
        metin.insert(yer, u"\"");
        break;
    default:
        metin.insert(yer, u"\r\n,");
        break;
    }
}

} // namespace velora::test
