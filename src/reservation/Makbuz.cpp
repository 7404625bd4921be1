// The receipt of a payment.
#include "documents/Baski.h"
#include "documents/FormMakbuzPrint.h"
#include "reservation/FormKayit.h"
#include "storage/Sayi.h"

namespace velora {

void FormKayit::Command9_Click() {
    const ListeSatiri* satir = Liste.Secili();
    if (satir == nullptr)
        return;
    const Metin& tarih = satir->sutun[0];
    const Metin& ad = Kay[AnaNo::AdiSoyadi].metin;
    MakbuzGoster(program_, {.tur = MakbuzTuru::Odeme,
                            .tarih = tarih,
                            .tutar = SayisalDeger(satir->sutun[1]),
                            .aciklama = satir->sutun[2],
                            .adSoyad = ad,
                            .isAdi = BaskiAdi({tarih, SalonAdi.baslik, ad, u"Makbuz"})});
}

} // namespace velora
