// The contract with its note and its menu: on paper, or as a file.
#include <algorithm>
#include <iterator>

#include "documents/Baski.h"
#include "documents/FormPrint.h"
#include "documents/FormPrint2.h"
#include "documents/FormSozlesme.h"
#include "reservation/FormKayit.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr std::size_t kTarihHarfi = 10; // of the day's name: dd.mm.yyyy

/// What was hidden on the pages is hidden again, and nothing of another customer stands on them.
void SayfalariBosalt(Program& p) {
    p.FormPrint.Bosalt();
    p.FormPrint2.Bosalt();
}

/// The template, when it has clauses. Without any it is said so, and the template comes up beside the
/// reservation to be filled.
std::shared_ptr<FormSozlesme> MaddeliSozlesme(Program& p) {
    auto sozlesme = TazeSozlesme(p);
    if (!Kirp(sozlesme->Sozlesme.metin).empty())
        return sozlesme;
    Soyle(p, u"Lütfen yazdırmadan önce sözleşme ayarlarınızı yapınız!");
    p.FormSozlesme.Goster();
    return nullptr;
}

bool SenediSor(const Program& p) {
    return Sor(p, u"Sözleşme ile birlikte senet bastırmak ister misiniz?");
}

/// Only a no leaves the menu out.
bool MenuyuSor(const Program& p) {
    const MesajKutusu kutu{.metin = u"Menüyü bastırmak istermisiniz?",
                           .simge = Simge::Soru,
                           .dugmeler = KutuDugmeleri::EvetHayir};
    return p.ortam.sor.mesaj(kutu) != Cevap::Hayir;
}

/// As it stands in the fields, saved or not; the hall is the one that the table shows now.
void BilgileriDoldur(FormPrint& sayfa, const FormKayit& kayit, Program& p) {
    const auto kay = [&kayit](int no) -> const Metin& { return kayit.Kay[no].metin; };
    sayfa.Tarihi.baslik = u"Tarih : " + kay(AnaNo::SozlesmeTarihi);
    sayfa.SozNo.baslik = u"Sözleşme No : " + kay(AnaNo::SozlesmeNo);
    sayfa.CSaati.baslik = kay(AnaNo::BaslamaSaati) + u" - " + kay(AnaNo::BitisSaati);
    sayfa.CSalon.baslik = p.FormTablo->Salon.Metni();
    sayfa.CTarihi.baslik = kayit.Tarih.substr(0, kTarihHarfi);
    sayfa.CTuru.baslik = kay(AnaNo::Niteligi);
    sayfa.CTutar.baslik = kay(AnaNo::ToplamUcret) + u" TL";
    sayfa.COdenen.baslik = kay(AnaNo::AlinanOdeme) + u" TL";
    sayfa.CKalan.baslik = kay(AnaNo::KalanOdeme) + u" TL";
    sayfa.CAdi.baslik = kay(AnaNo::AdiSoyadi);
    sayfa.Ctcno.baslik = kay(AnaNo::KimlikNo);
    sayfa.Cdavetli.baslik = kay(AnaNo::DavetliSayisi) + u" Kişi";
    sayfa.CGelin.baslik = kay(AnaNo::GelinDamat);
    sayfa.CYore.baslik = kay(AnaNo::Yoresi);
    sayfa.CTel.baslik = kay(AnaNo::Telefon);
    sayfa.CCep.baslik = kay(AnaNo::Cep);
    sayfa.CAdres.baslik = kay(AnaNo::Adres);
    sayfa.Onaciklama.baslik = kay(AnaNo::OnAciklama);
}

/// The pages of the contract, at the bottom with the note or with the remark.
std::vector<Sayfa> SozlesmeSayfalari(Program& p, const FormKayit& kayit, const FormSozlesme& sozlesme,
                                     bool senet) {
    SayfalariBosalt(p);
    const auto sayfa = p.FormPrint.Tut();
    sayfa->Senet = senet;
    sayfa->Label55.gorunur = sayfa->Onaciklama.gorunur = !senet;
    BilgileriDoldur(*sayfa, kayit, p);
    sayfa->Unvan.baslik = sozlesme.Unvan.metin;
    sayfa->Baslik.baslik = sozlesme.Baslik.metin;
    sayfa->Sozlesme.baslik = sozlesme.Sozlesme.metin;
    sayfa->Label38.baslik = u"İş Bu bono vadesinde ödenmediği taktirde, müteakip bonolarında muacceliyet "
                            u"kesbedeceğini ihtilaf vukuunda";
    sayfa->Label50.baslik =
        sozlesme.Sehir.Metni() + u" Mahkemelerinin selahiyetinin şimdiden kabul eyleri....";
    p.OlaylariIsle();
    return sayfa->Sayfalar(p.ortam.kagit.olcer);
}

std::vector<Sayfa> MenuSayfalari(Program& p, const FormKayit& kayit, const FormSozlesme& sozlesme) {
    p.OlaylariIsle();
    const auto sayfa = p.FormPrint2.Tut();
    sayfa->OzelIstekler.baslik = kayit.Aciklamalar.metin;
    sayfa->Onaciklama.baslik = kayit.Kay[AnaNo::OnAciklama].metin;
    sayfa->Unvan.baslik = sozlesme.Unvan.metin;
    sayfa->Label20.baslik = kayit.Label20.metin;
    sayfa->Label4.baslik = kayit.Combo1.Metni();
    return sayfa->Sayfalar(p.ortam.kagit.olcer);
}

Metin SozlesmeninAdi(Program& p, const FormKayit& kayit, MetinBakis tur) {
    return BaskiAdi({MetinBakis(kayit.Tarih).substr(0, kTarihHarfi), p.FormTablo->Salon.Metni(),
                     kayit.Kay[AnaNo::AdiSoyadi].metin, tur});
}

} // namespace

bool FormKayit::Duruyor() const {
    return program_.FormKayit.Yuklu() && program_.FormKayit.Tut().get() == this;
}

/// Prints each copy as a job of its own. False: one failed, which is told, or the screen has gone meanwhile,
/// with whom it could be told to.
bool FormKayit::KopyalariBas(const std::vector<Sayfa>& baskilar, const Metin& ad, double kopya) const {
    for (double sira = 1; sira <= kopya; ++sira) {
        const bool basildi = Yazdir(program_, baskilar, ad);
        if (!Duruyor())
            return false;
        if (!basildi) {
            Soyle(program_, u"Bilgisayarınıza bağlı bir yazıcı bulunamadı!");
            return false;
        }
    }
    return true;
}

void FormKayit::Command3_Click() {
    Program& p = program_;
    SayfalariBosalt(p);
    const double kopya = TutarDegeri(p.ortam.sor.girdi({u"Kaç sayfa yazdırılacak?", u"Velora", {}}));
    SayfalariBosalt(p);
    if (kopya == 0 || !Duruyor())
        return;
    const auto sozlesme = MaddeliSozlesme(p);
    if (!sozlesme)
        return;
    const bool senet = SenediSor(p);
    if (!Duruyor())
        return;
    const auto sozlesmeSayfalari = SozlesmeSayfalari(p, *this, *sozlesme, senet);
    if (!Duruyor() || !KopyalariBas(sozlesmeSayfalari, SozlesmeninAdi(p, *this, u"Sözleşme"), kopya))
        return;
    if (!MenuyuSor(p) || !Duruyor())
        return;
    const auto menu = MenuSayfalari(p, *this, *sozlesme);
    if (Duruyor())
        KopyalariBas(menu, SozlesmeninAdi(p, *this, u"Menü"), kopya);
}

void FormKayit::Pdf_Click() {
    Program& p = program_;
    const auto sozlesme = MaddeliSozlesme(p);
    if (!sozlesme)
        return;
    const bool senet = SenediSor(p);
    const bool menuyle = Duruyor() && MenuyuSor(p);
    if (!Duruyor())
        return;
    auto hepsi = SozlesmeSayfalari(p, *this, *sozlesme, senet);
    if (menuyle) {
        auto menu = MenuSayfalari(p, *this, *sozlesme);
        std::ranges::move(menu, std::back_inserter(hepsi));
    }
    if (Duruyor())
        PdfKaydet(p, hepsi, SozlesmeninAdi(p, *this, u"Sözleşme"));
}

} // namespace velora
