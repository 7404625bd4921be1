#include "reservation/KayitYukle.h"

#include "reservation/FormKayit.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// A box takes 0 and 1. Anything else is passed over, as a box that can't hold it does.
void OnayAta(OnayKutusu& kutu, MetinBakis deger) {
    if (deger == u"0" || deger == u"1")
        kutu.Ata(deger == u"1" ? 1 : 0);
}

void AnayiYerlestir(FormKayit& kayit, const AnaDegerler& ana) {
    kayit.KayitAc = 1;
    kayit.kayitliOdeme = ana.No(AnaNo::AlinanOdeme);
    for (int no = 1; no <= kKaySayisi; ++no) {
        MetinKutusu& kutu = kayit.Kay[no];
        kutu.metin = ana.No(no);
        // A masked field that is empty holds its prompt signs.
        if (kutu.metin.empty() && !kutu.maske.empty())
            for (const char16_t isaret : kutu.maske)
                kutu.metin += isaret == u'#' ? u'_' : isaret;
    }
    OnayAta(kayit.Check18, ana.No(AnaNo::YaklasincaHatirlat));
    OnayAta(kayit.Check19, ana.No(AnaNo::BuTarihteHatirlat));
}

void DetayiYerlestir(FormKayit& kayit, const DetayDegerler& detay) {
    // All boxes before all notes: a box that changes empties its note.
    for (int no = 1; no <= kHizmetSayisi; ++no)
        OnayAta(kayit.Check[no], detay.No(DetayNo::IlkHizmet + no - 1));
    for (int no = 1; no <= kHizmetSayisi; ++no)
        kayit.TT[no].metin = detay.No(DetayNo::IlkHizmetNotu + no - 1);
    kayit.Aciklamalar.metin = detay.No(DetayNo::Aciklamalar);
    // By its text, which runs no click: the record's own copy of the menu stands.
    kayit.Combo1.MetinAta(detay.No(DetayNo::MenuAdi));
    kayit.Label20.metin = detay.No(DetayNo::MenuIcerigi);
    if (detay.No(DetayNo::KesinRezervasyon) == u"1")
        kayit.Option1.Ata(1);
    if (detay.No(DetayNo::OnRezervasyon) == u"1")
        kayit.Option2.Ata(1);
}

/// Fills the screen from the files. False when it isn't to be shown.
bool KayitDoldur(Program& program, const Metin& yol, const std::optional<Metin>& tarih) {
    // First of all: the loading of the screen lets events run, and the pointer may move on to another day.
    const Metin gun = tarih ? *tarih : program.FormTablo->SeciliTarih;
    const auto kayit = program.FormKayit.Tut();
    AnaDegerler ana;
    // Read first: what is there, and can't be asked about just now, is no new record.
    if (AnaOku(program.dosyalar, yol, ana, &kayit->anaKoken) || program.agac.RezervasyonVarMi(yol))
        AnayiYerlestir(*kayit, ana);
    kayit->Tarih = gun;
    const Metin detayYolu = yol + Metin(kDetayEki);
    if (!program.dosyalar.VarMi(detayYolu))
        return false;
    DetayDegerler detay;
    DetayOku(program.dosyalar, detayYolu, detay, &kayit->detayKoken);
    DetayiYerlestir(*kayit, detay);
    kayit->Tag = yol;
    kayit->Command10(); // the payments
    return true;
}

} // namespace

void KayitYukle(Program& program, const Metin& yol, const std::optional<Metin>& tarih) {
    // Never shown, never closed: left loaded it would pass its flags on to the next new record.
    program.FormKayit.GosterModal([&] { return KayitDoldur(program, yol, tarih); });
}

void SatiriAc(Program& program, ListeSatiri satir, const Metin& salon, const Metin& yil) {
    if (satir.sutun.front().empty())
        return;
    // The table's way to the hall and the year lets events run as well: it belongs to the opening.
    program.FormKayit.GosterModal([&] {
        if (!salon.empty())
            program.FormTablo->Salon.Sec(salon);
        if (!yil.empty())
            program.FormTablo->Sene.Sec(yil);
        program.OlaylariIsle();
        program.FormKayit->KayitAc = 1;
        program.FormKayit->Tag = satir.tag;
        // Under the row's own day: its payments are read and written there.
        return KayitDoldur(program, satir.tag, satir.sutun.front());
    });
}

} // namespace velora
