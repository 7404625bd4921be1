// The year table for paper: what the cells show at this moment.
#include "documents/Baski.h"
#include "documents/FormSozlesme.h"
#include "documents/FormTabloPrint.h"
#include "online/Adresler.h"
#include "online/FormFirma.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

/// The states that get a mark.
struct IsaretliDurum {
    GozDurumu durum;
    BaskiIsareti isaret;
};
constexpr std::array<IsaretliDurum, 2> kIsaretliler{
    {{GozDurumu::Kesin, BaskiIsareti::Kesin}, {GozDurumu::On, BaskiIsareti::On}}};

BaskiIsareti Isareti(const std::optional<GozDurumu>& durum) {
    for (const auto& [isaretli, isaret] : kIsaretliler)
        if (durum == isaretli)
            return isaret;
    return BaskiIsareti::Yok;
}

} // namespace

void FormTablo::rezrapor_Click() {
    program_.FormTabloPrint.GosterModal([this] {
        program_.FormTabloPrint.Bosalt(); // filled afresh each time
        const auto baski = program_.FormTabloPrint.Tut();
        BaskiyaKopyala(*baski);
        BaskiMetinleriniKoy(*baski);
        return true;
    });
}

void FormTablo::BaskiyaKopyala(FormTabloPrint& baski) const {
    const auto ayarlar = program_.FormAyarlar.Tut();
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        // Not the head's colour on the screen, which may be marked for the ruler.
        baski.ALabel[gun] = {.baslik = ALabel[gun].baslik,
                             .zemin = ayarlar->Renk(kBaslikRengi.zemin),
                             .yazi = ayarlar->Renk(kBaslikRengi.yazi)};
        for (int no = 0; no < kSatirSayisi; ++no) {
            const auto satir = static_cast<SatirAdi>(no);
            const Hucre& goz = Gozu(satir, gun);
            baski.Gozu(satir, gun) = {goz.baslik, goz.gorunur, goz.zemin, goz.yazi,
                                      Isareti(Durumu(satir, gun))};
        }
    }
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        baski.AyZemin[ay] = {
            .baslik = {}, .gorunur = AyZemin[ay].gorunur, .zemin = ayarlar->Renk(kBaslikRengi.zemin)};
        baski.AyAdi[ay] = {.baslik = AyAdi[ay].baslik,
                           .gorunur = AyAdi[ay].gorunur,
                           .yazi = ayarlar->Renk(kBaslikRengi.yazi)};
        baski.gunduzUstte[ay] = GunduzGece[ay].resim == SiraResmi::Image1;
    }
    for (std::size_t i = 0; i < kIsaretliler.size(); ++i) {
        const auto rengi = [&](velora::GunduzGece dilim) {
            return ayarlar->Renk(Durum(kIsaretliler[i].durum, dilim).zemin);
        };
        BaskiAciklamasi& aciklama = baski.aciklamalar[i];
        aciklama = {kIsaretliler[i].isaret,
                    Metin(Durum(kIsaretliler[i].durum, velora::GunduzGece::Gunduz).ad),
                    {rengi(velora::GunduzGece::Gunduz), rengi(velora::GunduzGece::Gece)}};
        if (!GunduzUstte())
            std::swap(aciklama.zeminler[0], aciklama.zeminler[1]);
    }
}

void FormTablo::BaskiMetinleriniKoy(FormTabloPrint& baski) const {
    const Metin salon = Salon.Metni();
    const Metin yil = Sene.Metni();
    const auto firma = program_.FormFirma.Tut();
    const auto [bugun, saat] = TarihVeSaat();
    baski.Unvan.baslik = TazeSozlesme(program_)->Unvan.metin;
    baski.Salon.baslik = salon + u" - " + yil + u" Yılı Rezervasyon Tablosu";
    baski.Label1.baslik = u"Not : Lütfen Salonumuzu " + firma->t3.metin + u" veya " + firma->t4.metin +
                          u" nolu numaramızdan arayarak belirlediğiniz gün için onay alınız.";
    baski.Tarih.baslik = u"Tarih : " + bugun + u" - Saat : " + saat;
    baski.Label2.baslik = AdresleriOku(program_).satir;
    baski.isAdi = BaskiAdi({yil, salon, u"Rezervasyon Tablosu"});
}

} // namespace velora
