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
    {
        const Dosyalar::Eylem eylem(program_.dosyalar, u"Rezervasyon iptali", [&] {
            IptalSatiriEkle(kayit, sebep);
            RezervasyonSil(program_.dosyalar, yol);
        });
        IptalSatiriEkle(kayit, sebep);
        program_.OlaylariIsle();
        RezervasyonSil(program_.dosyalar, yol);
    }
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
    const Metin yol = program_.agac.KokYolu(kIptalDosyasi);
    const auto sistemYolu = program_.dosyalar.SistemYolu(yol);
    if (!sistemYolu || program_.ortam.kabuk.dosyaAc(*sistemYolu) || program_.dosyalar.VarMi(yol))
        return;
    Soyle(program_, u"IptalSebep.txt bulunamadı.");
}

} // namespace velora
