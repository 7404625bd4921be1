// What happens on a cell: the pointer over it, a press, a click, a double click, a new reservation. All 24
// rows behave alike. Free and taken are told by the back colour alone, compared with the colours as they are
// now.
#include <algorithm>

#include "reservation/FormKayit.h"
#include "reservation/KayitYukle.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormAyarlar.h"
#include "setup/FormSalonTanim.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

constexpr double kEkranPayi = 100; // twips that the hover label reaches into its cell
constexpr MetinBakis kGunduzBaslangici = u"11:00";
constexpr MetinBakis kGeceBaslangici = u"20:00";

bool ZeminlerdenBiri(Program& program, const Hucre& hucre, const auto& zeminler) {
    const auto ayarlar = program.FormAyarlar.Tut();
    return std::ranges::any_of(zeminler, [&](int n) { return hucre.zemin == ayarlar->Renk(n); });
}

} // namespace

bool FormTablo::BosRenkte(SatirAdi satir, int gun) const {
    return ZeminlerdenBiri(program_, Gozu(satir, gun), BosZeminler(SatirDilimi(satir)));
}

bool FormTablo::DoluRenkte(SatirAdi satir, int gun) const {
    return ZeminlerdenBiri(program_, Gozu(satir, gun), DoluZeminler(SatirDilimi(satir)));
}

Metin FormTablo::GozAnahtari(SatirAdi satir, int gun) const {
    return GunAnahtari(static_cast<unsigned>(gun), static_cast<unsigned>(SatirAyi(satir)), Sene.Metni(),
                       SatirDilimi(satir));
}

void FormTablo::Hucre_MouseMove(SatirAdi satir, int gun) {
    const Yer goz = HucreYeri(satir, gun);
    Ekran.yer.sol = goz.Sag() - kEkranPayi;
    Ekran.yer.ust = goz.Alt() - kEkranPayi;
    Ekran.baslik = EtiketMetni(satir, gun);
    if (program_.FormAyarlar->Check6.deger == 1 && tasimamoducheck == 0)
        Ekran.gorunur = true;
    SeciliTarih = GozAnahtari(satir, gun);
}

bool FormTablo::Hucre_MouseDown(SatirAdi satir, int gun, bool sagDugme) {
    const bool bos = BosRenkte(satir, gun);
    Girdi(Komut::newkay).etkin = bos;
    Girdi(Komut::iptals).etkin = !bos;
    SeciliTarih2 = SeciliTarih;
    const auto secilir = [this](const KomutTanimi& komut) {
        return komut.menu == Menu::Sagtus && !komut.Cizgi() && Girdi(komut.komut).gorunur;
    };
    return sagDugme && std::ranges::any_of(Komutlar(), secilir);
}

void FormTablo::Hucre_Click() {
    CetvelSil();
}

void FormTablo::Hucre_DblClick(SatirAdi satir, int gun) {
    // By the file, not by the colour: a past reservation opens, a free day has nothing to open.
    KayitYukle(program_, program_.agac.GunYolu(Salon.Metni(), Sene.Metni(), GozAnahtari(satir, gun)));
}

void FormTablo::newkay_Click() {
    // The day that was pressed: the loading of the screen lets events run, and the pointer may move on.
    const Metin gun = SeciliTarih;
    if (Kirp(Salon.Metni()).empty()) {
        Soyle(program_, u"Lütfen Önce Salon Tanımı yapınız!", u"Velora", Simge::Kritik);
        program_.FormSalonTanim.GosterModal();
        return;
    }
    program_.FormKayit.GosterModal([&] {
        const auto kayit = program_.FormKayit.Tut();
        kayit->Tarih = gun;
        kayit->Kay[AnaNo::ToplamUcret].kilitli = false;
        kayit->Kay[AnaNo::BaslamaSaati].metin =
            AnahtarDilimi(gun) == velora::GunduzGece::Gunduz ? kGunduzBaslangici : kGeceBaslangici;
        return true;
    });
}

} // namespace velora
