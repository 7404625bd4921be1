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
    ortam.sor.mesaj = [this, sor = ortam.sor.mesaj](const MesajKutusu& kutu) {
        if (!hazirCevap)
            return sor(kutu);
        AradaCalis();
        return *hazirCevap;
    };
    ortam.sor.girdi = [this, sor = ortam.sor.girdi](const GirdiKutusu& kutu) {
        if (!hazirCevap)
            return sor(kutu);
        AradaCalis();
        return Metin(u"2 Yeni"); // a name, and a number of copies
    };
    ortam.sor.kayitYeri = [this, sor = ortam.sor.kayitYeri](const KayitYeriKutusu& kutu) {
        if (!hazirCevap)
            return sor(kutu);
        AradaCalis();
        return std::optional(agac.Kok() / kutu.ad);
    };
    ortam.kagit.yazdir = [this, yazdir = ortam.kagit.yazdir](const auto& sayfalar, const Metin& isAdi) {
        if (!hazirCevap)
            return yazdir(sayfalar, isAdi);
        AradaCalis();
        return true;
    };
    ortam.kagit.pdfYaz = [this, yaz = ortam.kagit.pdfYaz](const auto& sayfalar, const Metin& isAdi,
                                                          const std::filesystem::path& dosya) {
        if (!hazirCevap)
            return yaz(sayfalar, isAdi, dosya);
        AradaCalis();
        return true;
    };
    ortam.sor.kayitYeri = [this, sor = ortam.sor.kayitYeri](const KayitYeriKutusu& kutu) {
        if (!hazirCevap)
            return sor(kutu);
        AradaCalis();
        return std::optional(agac.Kok() / kutu.ad);
    };
    ortam.kagit.yazdir = [this, yazdir = ortam.kagit.yazdir](const auto& sayfalar, const Metin& isAdi) {
        if (!hazirCevap)
            return yazdir(sayfalar, isAdi);
        AradaCalis();
        return true;
    };
    ortam.kagit.pdfYaz = [this, yaz = ortam.kagit.pdfYaz](const auto& sayfalar, const Metin& isAdi,
                                                          const std::filesystem::path& dosya) {
        if (!hazirCevap)
            return yaz(sayfalar, isAdi, dosya);
        AradaCalis();
        return true;
    };
    ortam.goster.modal = [this, modal = ortam.goster.modal](EkranAdi ekran, const auto& gorununce) {
        if (!hazirCevap)
            return modal(ekran, gorununce);
        AradaCalis();
    };
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
