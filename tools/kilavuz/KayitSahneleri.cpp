#include <stdexcept>

#include "accounts/FormBakiye.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "reservation/FormArama.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOdemeAl.h"
#include "screen/Program.h"
#include "tools/kilavuz/Sahneler.h"

namespace velora::kilavuz {

namespace {

constexpr std::size_t kEnAzOdeme = 2;
constexpr int kMenulerSayfasi = 3;
constexpr int kHizmetlerSayfasi = 4;

Metin GozYolu(Program& program, const Goz& goz) {
    const auto tablo = program.FormTablo.Tut();
    const Metin yil = tablo->Sene.Metni();
    return program.agac.GunYolu(tablo->Salon.Metni(), yil,
                                GunAnahtari(static_cast<unsigned>(goz.gun),
                                            static_cast<unsigned>(SatirAyi(goz.satir)), yil,
                                            SatirDilimi(goz.satir)));
}

/// A wedding with some payments and a menu.
Goz DoluGoz(Program& program) {
    const auto tablo = program.FormTablo.Tut();
    return GozBul(*tablo, program.Bugun(), [&](SatirAdi satir, int gun) {
        const Metin yol = GozYolu(program, {satir, gun});
        std::vector<Odeme> odemeler;
        OdemeOku(program.dosyalar, yol + Metin(kOdemeEki), odemeler);
        AnaDegerler ana;
        DetayDegerler detay;
        return odemeler.size() >= kEnAzOdeme && AnaOku(program.dosyalar, yol, ana) &&
               DetayOku(program.dosyalar, yol + Metin(kDetayEki), detay) &&
               ana.No(AnaNo::Niteligi) == u"Düğün" && !ana.No(AnaNo::Telefon).empty() &&
               !detay.No(DetayNo::MenuIcerigi).empty();
    });
}

Goz BosGoz(Program& program) {
    const auto tablo = program.FormTablo.Tut();
    return GozBul(*tablo, program.Bugun(), [&](SatirAdi satir, int gun) {
        return SatirDilimi(satir) == GunduzGece::Gece &&
               !program.agac.RezervasyonVarMi(GozYolu(program, {satir, gun}));
    });
}

} // namespace

void YeniKayitAc(Program& program) {
    const Goz goz = BosGoz(program);
    const auto tablo = program.FormTablo.Tut();
    tablo->Hucre_MouseMove(goz.satir, goz.gun);
    tablo->Hucre_MouseDown(goz.satir, goz.gun, true);
    tablo->newkay_Click();
}

void YeniKayitDoldur(Program& program, QWidget& /*pencere*/) {
    const auto kayit = program.FormKayit.Tut();
    struct Deger {
        AnaNo::No no;
        const char16_t* metin;
    };
    for (const auto& [no, metin] : {Deger{AnaNo::AdiSoyadi, u"Hasan Ertürk"},
                                    {AnaNo::Yoresi, u"Kastamonu"},
                                    {AnaNo::GelinDamat, u"Melike / Onur"},
                                    {AnaNo::Niteligi, u"Nişan"},
                                    {AnaNo::Telefon, u"0312 000 27 45"},
                                    {AnaNo::Cep, u"0532 000 81 36"},
                                    {AnaNo::Adres, u"Bahçelievler Mah. Lale Sok. No: 9"},
                                    {AnaNo::ToplamUcret, u"68500"},
                                    {AnaNo::OnAciklama, u"Kaporayı pazartesi getirecek."},
                                    {AnaNo::BitisSaati, u"23:30"},
                                    {AnaNo::KimlikNo, u"10000000145"},
                                    {AnaNo::DavetliSayisi, u"350"},
                                    {AnaNo::HatirlatmaTarihi, u"25.05.2026"}})
        kayit->Kay[no].metin = metin;
    kayit->Option2.Ata(1);
    kayit->Check19.Ata(1);
    kayit->Kay8_LostFocus();
}

void DoluKayitAc(Program& program) {
    const Goz goz = DoluGoz(program);
    const auto tablo = program.FormTablo.Tut();
    tablo->Hucre_MouseMove(goz.satir, goz.gun);
    tablo->Hucre_DblClick(goz.satir, goz.gun);
}

void MenuSayfasi(Program& program, QWidget& /*pencere*/) {
    const auto kayit = program.FormKayit.Tut();
    kayit->SSTab1 = kMenulerSayfasi;
    kayit->Aciklamalar.metin = u"Gelin masası pembe süslenecek.\r\nYaşlı misafirlere ön masalar ayrılacak.";
}

void HizmetSayfasi(Program& program, QWidget& /*pencere*/) {
    const auto kayit = program.FormKayit.Tut();
    kayit->SSTab1 = kHizmetlerSayfasi;
    struct Hizmet {
        int no;
        const char16_t* aciklama;
    };
    for (const auto& [no, aciklama] : {Hizmet{5, u"Sıcak yemek, 300 kişilik"},
                                       {13, u"İnce saz, saat 21:00'de"},
                                       {16, u"Dış çekim 16:30, göl kıyısı"},
                                       {10, u""}}) {
        kayit->Check[no].Ata(1);
        kayit->TT[no].metin = aciklama;
    }
}

void OdemeAlAc(Program& program) {
    const auto kayit = program.FormKayit.Tut();
    kayit->Kay[AnaNo::AdiSoyadi].metin = u"Hasan Ertürk";
    kayit->Kay[AnaNo::SozlesmeNo].metin = u"418";
    kayit->Kay[AnaNo::ToplamUcret].metin = u"68500";
    kayit->Command8_Click();
}

void OdemeAlDoldur(Program& program, QWidget& /*pencere*/) {
    program.FormOdemeAl->Text1.metin = u"15000";
    program.FormOdemeAl->Text1_Change();
}

void MakbuzAc(Program& program) {
    const auto kayit = program.FormKayit.Tut();
    kayit->SalonAdi.baslik = program.FormTablo->Salon.Metni();
    kayit->Kay[AnaNo::AdiSoyadi].metin = u"Hasan Ertürk";
    kayit->Liste.satirlar.push_back({{u"21.05.2026", u"15000", u"418 - Hasan Ertürk"}, {}, 0});
    kayit->Liste.secili = 0;
    kayit->Command9_Click();
}

void HatirlatmaAc(Program& program) {
    program.FormTablo->Image3_Click();
}

void AramaYap(Program& program, QWidget& /*pencere*/) {
    const auto arama = program.FormArama.Tut();
    arama->Text[1].metin = u"yıl";
    arama->Command3_Click();
    arama->Liste.secili = 2;
    arama->Liste_ItemClick();
}

void RaporListele(Program& program, QWidget& /*pencere*/) {
    const auto rapor = program.FormBakiye.Tut();
    rapor->ListeleGun();
    rapor->Liste.secili = 4;
    rapor->Liste_Click();
}

void KasaListele(Program& program, QWidget& /*pencere*/) {
    program.FormKasa->ListeleGun();
}

void GiderYaz(Program& program, QWidget& /*pencere*/) {
    const auto ekle = program.FormKasaEkle.Tut();
    ekle->Tutar.metin = u"4500";
    ekle->Tutar_Change();
    ekle->Aciklama.metin = u"Piyanist";
}

} // namespace velora::kilavuz
