#include "gui/GuiFirma.h"

#include <QTest>

#include "destek/Kayitlar.h"
#include "qt/Baglayici.h"
#include "qt/Ekranlar.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

namespace velora::test {

namespace {

std::chrono::local_seconds SabitSaat() {
    using namespace std::chrono_literals;
    return std::chrono::local_days(std::chrono::year(2026) / 5 / 21) + 10h + 30min;
}

} // namespace

GuiFirma::GuiFirma() : simdi(SabitSaat()), program(Dis(), agac.Kok()) {
    agac.KoyMetin(u"Salon.dat", u"\"" + Metin(kSalonA) + u"\"\r\n\"" + Metin(kSalonB) + u"\"\r\n");
    EkranlariTanit(disDunya, program);
}

GuiFirma::~GuiFirma() {
    disDunya.PencereleriBirak();
}

void GuiFirma::AradaCalis() const {
    // A copy: what runs may take itself out.
    if (const auto is = arada)
        is();
}

template <class Donus, class... Girdi, class Cevaplayan>
void GuiFirma::HazirCevapla(std::function<Donus(Girdi...)>& islev, Cevaplayan cevapla) {
    islev = [this, asil = islev, cevapla](Girdi... girdi) -> Donus {
        if (!hazirCevap)
            return asil(girdi...);
        AradaCalis();
        return cevapla(girdi...);
    };
}

Ortam GuiFirma::Dis() {
    Ortam ortam = disDunya.Ver();
    ortam.zaman.simdi = [this] { return simdi; };
    ortam.olaylar.isle = [this, isle = ortam.olaylar.isle] {
        isle();
        AradaCalis();
    };
    ortam.olaylar.bitir = [this, bitir = ortam.olaylar.bitir] {
        ++bitisler;
        if (gercektenBiter)
            bitir();
    };
    ortam.kabuk.dosyaAc = [this](const std::filesystem::path& yol) {
        acilanDosyalar.push_back(yol);
        AradaCalis();
        return true;
    };
    HazirCevapla(ortam.sor.mesaj, [this](const MesajKutusu&) { return *hazirCevap; });
    HazirCevapla(ortam.sor.girdi, [](const GirdiKutusu&) { return Metin(u"2 Yeni"); }); // a name, and a
                                                                                        // number
    HazirCevapla(ortam.sor.kayitYeri,
                 [this](const KayitYeriKutusu& kutu) { return std::optional(agac.Kok() / kutu.ad); });
    HazirCevapla(ortam.sor.klasor, [](const Metin&) { return Metin(); });
    HazirCevapla(ortam.kagit.yazdir, [](const auto&, const Metin&) { return true; });
    HazirCevapla(ortam.kagit.pdfYaz,
                 [](const auto&, const Metin&, const std::filesystem::path&) { return true; });
    HazirCevapla(ortam.goster.modal, [](EkranAdi, const auto&) {});
    return ortam;
}

void GuiFirma::Rezervasyon(MetinBakis salon, MetinBakis gunAnahtari, bool on) const {
    const MetinBakis yil = gunAnahtari.substr(6, 4);
    KayitKoy(agac, Metin(salon) + u"/" + Metin(yil) + u"/" + Metin(gunAnahtari), {}, on);
}

void GuiFirma::Ac(QSize boy) {
    program.FormTablo.Goster();
    Pencere().resize(boy);
    QVERIFY(QTest::qWaitForWindowActive(&Pencere()));
    QCoreApplication::processEvents();
}

QWidget& GuiFirma::PencereParcasi() {
    return *disDunya.Pencere(EkranAdi::FormTablo);
}

TabloPenceresi& GuiFirma::Pencere() {
    return dynamic_cast<TabloPenceresi&>(PencereParcasi());
}

TabloGorunumu& GuiFirma::Tablo() {
    return dynamic_cast<TabloGorunumu&>(Bul<QWidget>("Picture4"));
}

QPoint GuiFirma::Orta(const QRect& yer) {
    const double olcek = Tablo().Duzen().Olcek();
    return (QRectF(yer).center() / olcek).toPoint();
}

} // namespace velora::test
