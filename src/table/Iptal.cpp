// Cancelling a reservation: its three files go, and one line about it goes into a log.
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/KodSayfasi.h"
#include "storage/RezervasyonDosyalari.h"
#include "table/FormTablo.h"

namespace velora {

void FormTablo::iptals_Click() {
    if (!SilmeyiSor(program_, u"Seçili kaydı silmek istediğinizden emin misiniz?"))
        return;
    const Metin sebep = program_.ortam.sor.girdi(
        {.metin = u"İptal sebebini yazınız!", .baslik = u"İptal Sebebi", .baslangic = u""});
    const Metin yol = program_.agac.GunYolu(Salon.Metni(), Sene.Metni(), SeciliTarih2);
    program_.OlaylariIsle();
    AnaDegerler kayit;
    AnaOku(program_.dosyalar, yol, kayit);
    program_.OlaylariIsle();
    IptalSatiriEkle(kayit, sebep);
    program_.OlaylariIsle();
    for (const MetinBakis ek : kRezervasyonEkleri)
        program_.dosyalar.Sil(yol + Metin(ek));
    program_.OlaylariIsle();
    program_.OlaylariIsle();
    DegisikligiGoster();
}

void FormTablo::IptalSatiriEkle(const AnaDegerler& kayit, const Metin& sebep) {
    // The day is the one under the pointer now, the files are those of the day that was pressed.
    Metin satir = SeciliTarih;
    for (const Metin& parca : {Salon.Metni(), kayit.No(AnaNo::AdiSoyadi), kayit.No(AnaNo::Telefon),
                               kayit.No(AnaNo::Cep), UserNamem, sebep})
        satir += u" - " + parca;
    program_.dosyalar.Ekle(program_.agac.KokYolu(kIptalDosyasi), KodYaz(satir + u"\r\n"));
}

void FormTablo::iptalsebepss_Click() {
    if (const auto yol = program_.dosyalar.SistemYolu(program_.agac.KokYolu(kIptalDosyasi)))
        program_.ortam.kabuk.dosyaAc(*yol);
}

} // namespace velora
