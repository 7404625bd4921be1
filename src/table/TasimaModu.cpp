// Move mode: taken cells can be dragged, and the first drop on a cell ends it. A reservation is its files, so
// a move copies them to the names of the other day and deletes the old ones.
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/RezervasyonDosyalari.h"
#include "table/FormTablo.h"

namespace velora {

void FormTablo::TasimaModuAc_Click() {
    tasimamoducheck = 1;
    Ekran.gorunur = false;
    for (int satir = 0; satir < kSatirSayisi; ++satir)
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            if (const auto ad = static_cast<SatirAdi>(satir); DoluRenkte(ad, gun))
                Gozu(ad, gun).otomatikSurukleme = true;
}

void FormTablo::Hucre_DragDrop(SatirAdi satir, int gun) {
    if (DoluRenkte(satir, gun)) {
        Soyle(program_, u"Bu tarihe taşıma yapamazsınız!\nBu tarihte zaten bir rezervasyon kayıtlı!",
              u"Uyarı");
        return TasimaBitir();
    }
    if (!Sor(program_, u"Seçili rezervasyonu taşımak istediğinizden emin misiniz?"))
        return TasimaBitir();
    RezervasyonuTasi(SeciliTarih, GozAnahtari(satir, gun));
    Command1(); // the scan
    Command6(); // today's frame
    TasimaBitir();
}

void FormTablo::RezervasyonuTasi(const Metin& kaynakAdi, const Metin& hedefAdi) {
    // A taken cell refuses itself by its colour. One that was painted as past since then doesn't: it stays
    // where it is.
    if (kaynakAdi == hedefAdi)
        return;
    const Metin salon = Salon.Metni();
    const Metin yil = Sene.Metni();
    EylemleYap(program_.dosyalar, u"Rezervasyon taşıma", [&] {
        RezervasyonTasi(program_.dosyalar, program_.agac.GunYolu(salon, yil, kaynakAdi),
                        program_.agac.GunYolu(salon, yil, hedefAdi));
    });
}

void FormTablo::TasimaBitir() {
    for (TabloSatiri& satir : satirlar)
        for (Hucre& hucre : satir.gun)
            hucre.otomatikSurukleme = false;
    tasimamoducheck = 0;
    Command7(); // publishes
}

} // namespace velora
