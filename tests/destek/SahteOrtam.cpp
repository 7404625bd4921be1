#include "destek/SahteOrtam.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "destek/Sayfalar.h"
#include "storage/KodSayfasi.h"
#include "storage/dosya/Utf8.h"

namespace velora::test {

namespace {

std::string Tirnakli(MetinBakis metin) {
    std::string bayt = "\"";
    if (!Utf8Ekle(metin, bayt))
        return ::testing::PrintToString(Metin(metin));
    return bayt + '"';
}

// What was expected, and what came, in the words of a failure.
std::string Tarif(const BeklenenKutu& kutu) {
    return "the box " + Tirnakli(kutu.metin);
}
std::string Tarif(const BeklenenGirdi& girdi) {
    return "the input box " + Tirnakli(girdi.metin);
}
std::string Tarif(const BeklenenEkran& ekran) {
    return "the screen " + KodYaz(EkranBul(ekran.ad).ad);
}
std::string Tarif(const BeklenenIstek& istek) {
    return "the request " + Tirnakli(istek.adres);
}
std::string Tarif(const BeklenenBaski& baski) {
    return "the print " + Tirnakli(baski.isAdi);
}
std::string Tarif(const BeklenenAktarim& aktarim) {
    return "the fetch of " + Tirnakli(aktarim.adres);
}
std::string Tarif(const BeklenenKayitYeri& yer) {
    return "the place to save " + Tirnakli(yer.ad);
}
std::string Tarif(const BeklenenKlasor& klasor) {
    return "the folder " + Tirnakli(klasor.baslik);
}

} // namespace

SahteOrtam::SahteOrtam(Gun bugun) : simdi(std::chrono::local_days(bugun) + std::chrono::hours(10)) {}

SahteOrtam::~SahteOrtam() {
    for (const Beklenen& beklenen : beklenenler_)
        ADD_FAILURE() << std::visit([](const auto& biri) { return Tarif(biri); }, beklenen)
                      << " was expected and never came";
}

Ortam SahteOrtam::Ver() {
    Ortam ortam;
    ortam.sor.mesaj = [this](const MesajKutusu& kutu) { return MesajSor(kutu); };
    ortam.sor.girdi = [this](const GirdiKutusu& kutu) { return GirdiSor(kutu); };
    ortam.sor.kayitYeri = [this](const KayitYeriKutusu& kutu) { return KayitYeriSor(kutu); };
    ortam.sor.klasor = [this](const Metin& baslik) { return KlasorSor(baslik); };
    ortam.goster.ac = [this](EkranAdi ad, const std::function<void()>& gorununce) {
        acilanlar.push_back(ad);
        if (acilinca)
            acilinca(ad);
        gorununce();
    };
    ortam.goster.modal = [this](EkranAdi ad, const std::function<void()>& gorununce) {
        ModalGoster(ad, gorununce);
    };
    ortam.goster.gizle = [this](EkranAdi ad) { gizlenenler.push_back(ad); };
    ortam.zaman.simdi = [this] { return simdi; };
    ortam.olaylar.isle = [this] {
        ++olaySayisi;
        // A copy: what runs may take itself out.
        if (const auto is = olayda)
            is(olaySayisi);
    };
    ortam.olaylar.adimda = ortam.olaylar.isle;
    ortam.olaylar.bitti = [this] { return bitti; };
    ortam.klasorler.durum = [this] { return durumKlasoru; };
    ortam.klasorler.yedek = [this] { return yedekKlasoru; };
    ortam.klasorler.izle = [this](const std::filesystem::path& klasor) { return Izle(klasor); };
    ortam.ayarlar.yaz = [this](MetinBakis bolum, MetinBakis anahtar, const Metin& deger) {
        ayarlar.push_back({Metin(bolum), Metin(anahtar), deger});
    };
    ortam.kabuk = Kabuk();
    ortam.olaylar.bitir = [this] { bitti = true; };
    ortam.odak.ver = [this](EkranAdi ekran, MetinBakis kontrol) {
        odaklar.emplace_back(kontrol);
        odakEkranlari.push_back(ekran);
    };
    ortam.kagit.olcer = EsitEnli;
    ortam.kagit.yazdir = [this](const std::vector<Sayfa>& sayfalar, const Metin& isAdi) {
        return Yazdir(sayfalar, isAdi);
    };
    ortam.kagit.pdfYaz = [this](const std::vector<Sayfa>& sayfalar, const Metin& isAdi,
                                const std::filesystem::path& dosya) {
        return PdfYaz(sayfalar, isAdi, dosya);
    };
    ortam.kopya.tek = [this] { return !baskaKopya; };
    ortam.ag.getir = [this](const AgIstegi& istek) { return Getir(istek); };
    ortam.ag.aktarimAc = [this](const AktarimIstegi& istek) { return AktarimAc(istek); };
    ortam.ag.baglantiVar = [this] { return baglanti; };
    ortam.ag.donanimAdresi = [this] { return donanim; };
    return ortam;
}

Ortam::Kabuk SahteOrtam::Kabuk() {
    Ortam::Kabuk kabuk;
    kabuk.dosyaAc = [this](const std::filesystem::path& yol) {
        acilanDosyalar.push_back(yol);
        // A copy: what runs may take itself out.
        if (const auto is = dosyaAcilirken)
            is();
        return dosyaAcilir;
    };
    kabuk.adresAc = [this](const Metin& adres) {
        acilanAdresler.push_back(adres);
        return adresAcilir;
    };
    kabuk.calistir = [this](const std::filesystem::path& yol) {
        calisanlar.push_back(yol);
        return calisir;
    };
    return kabuk;
}

void SahteOrtam::SirayaKoy(Beklenen beklenen) {
    beklenenler_.insert(beklenenler_.end() - static_cast<std::ptrdiff_t>(disaridakiler_),
                        std::move(beklenen));
}

template <class Tur>
std::optional<Tur> SahteOrtam::SiradanAl(const std::string& gelen) {
    if (beklenenler_.empty()) {
        ADD_FAILURE() << "nothing was expected, but " << gelen << " came";
        return std::nullopt;
    }
    const Beklenen beklenen = std::move(beklenenler_.front());
    beklenenler_.pop_front();
    disaridakiler_ = std::min(disaridakiler_, beklenenler_.size());
    if (const Tur* uygun = std::get_if<Tur>(&beklenen))
        return *uygun;
    ADD_FAILURE() << std::visit([](const auto& biri) { return Tarif(biri); }, beklenen)
                  << " was expected, but " << gelen << " came";
    return std::nullopt;
}

Cevap SahteOrtam::MesajSor(const MesajKutusu& kutu) {
    if (kutu.baslangic == Cevap::Hayir)
        hayirdaBaslayanlar.push_back(kutu.metin);
    const auto beklenen = SiradanAl<BeklenenKutu>("the box " + Tirnakli(kutu.metin));
    if (!beklenen)
        return kutu.dugmeler == KutuDugmeleri::EvetHayir ? Cevap::Hayir : Cevap::Tamam;
    EXPECT_EQ(kutu.metin, beklenen->metin);
    EXPECT_EQ(kutu.baslik, beklenen->baslik);
    EXPECT_EQ(kutu.simge, beklenen->simge);
    EXPECT_EQ(kutu.dugmeler == KutuDugmeleri::Tamam, beklenen->cevap == Cevap::Tamam)
        << "the box has other buttons than the answer needs";
    Icinde(beklenen->is);
    return beklenen->cevap;
}

Metin SahteOrtam::GirdiSor(const GirdiKutusu& kutu) {
    const auto beklenen = SiradanAl<BeklenenGirdi>("the input box " + Tirnakli(kutu.metin));
    // A blank, no empty text: an asker that takes no empty answer must not ask for ever.
    if (!beklenen)
        return u" ";
    EXPECT_EQ(kutu.metin, beklenen->metin);
    EXPECT_EQ(kutu.baslik, beklenen->baslik);
    EXPECT_EQ(kutu.baslangic, beklenen->baslangic) << "the text that the box offers";
    return beklenen->cevap;
}

void SahteOrtam::ModalGoster(EkranAdi ad, const std::function<void()>& gorununce) {
    acilanlar.push_back(ad);
    const std::string gelen = Tarif(BeklenenEkran{.ad = ad});
    const auto beklenen = SiradanAl<BeklenenEkran>(gelen);
    if (beklenen && beklenen->ad != ad)
        ADD_FAILURE() << Tarif(*beklenen) << " was expected, but " << gelen << " came";
    gorununce();
    if (beklenen && beklenen->ad == ad)
        Icinde(beklenen->is);
}

void SahteOrtam::Icinde(const std::function<void()>& is) {
    if (!is)
        return;
    const std::size_t once = std::exchange(disaridakiler_, beklenenler_.size());
    is();
    disaridakiler_ = std::min(once, beklenenler_.size());
}

Metin SahteOrtam::Getir(const AgIstegi& istek) {
    const auto beklenen = SiradanAl<BeklenenIstek>("the request " + Tirnakli(istek.adres));
    if (!beklenen)
        return {};
    EXPECT_EQ(Tirnakli(istek.adres), Tirnakli(beklenen->adres));
    EXPECT_EQ(istek.sure, beklenen->sure.value_or(istek.sure)) << "seconds for " << Tirnakli(istek.adres);
    Icinde(beklenen->is);
    return istek.vazgecildi() ? Metin() : beklenen->cevap;
}

Aktarim SahteOrtam::AktarimAc(const AktarimIstegi& istek) {
    aktarimlar.push_back(istek);
    const auto beklenen = SiradanAl<BeklenenAktarim>("the fetch of " + Tirnakli(istek.adres));
    if (!beklenen)
        return {};
    EXPECT_EQ(Tirnakli(istek.adres), Tirnakli(beklenen->adres));
    const auto sira = std::make_shared<std::size_t>(0);
    // What is waited for comes only when it wasn't given up meanwhile.
    const auto bekle = [this, is = beklenen->is, sira, vazgecildi = istek.vazgecildi] {
        const std::size_t bu = (*sira)++;
        if (is)
            Icinde([&] { is(bu); });
        return !vazgecildi();
    };
    return {.basliklar = [beklenen, bekle] { return bekle() ? beklenen->basliklar : Metin(); },
            .parca =
                [beklenen, bekle, sira](std::size_t enCok) {
                    const std::size_t no = *sira - 1;
                    if (!bekle() || no >= beklenen->parcalar.size())
                        return std::string();
                    EXPECT_LE(beklenen->parcalar[no].size(), enCok);
                    return beklenen->parcalar[no];
                },
            .iptal = [this] { ++birakilanAktarim; }};
}

bool SahteOrtam::Yazdir(const std::vector<Sayfa>& sayfalar, const Metin& isAdi) {
    const auto beklenen = SiradanAl<BeklenenBaski>("the print " + Tirnakli(isAdi));
    if (!beklenen)
        return false;
    EXPECT_EQ(Tirnakli(isAdi), Tirnakli(beklenen->isAdi));
    EXPECT_FALSE(sayfalar.empty()) << "a print without a page";
    Icinde(beklenen->is);
    if (beklenen->basilir)
        basilanlar.push_back({isAdi, sayfalar});
    return beklenen->basilir;
}

std::optional<std::filesystem::path> SahteOrtam::KayitYeriSor(const KayitYeriKutusu& kutu) {
    const auto beklenen = SiradanAl<BeklenenKayitYeri>("the place to save " + Tirnakli(kutu.ad));
    if (!beklenen)
        return std::nullopt;
    EXPECT_EQ(Tirnakli(kutu.ad), Tirnakli(beklenen->ad));
    pdfSirasinda_ = beklenen->is;
    return beklenen->secilen;
}

Metin SahteOrtam::KlasorSor(const Metin& baslik) {
    const auto beklenen = SiradanAl<BeklenenKlasor>("the folder " + Tirnakli(baslik));
    if (!beklenen)
        return {};
    EXPECT_EQ(Tirnakli(baslik), Tirnakli(beklenen->baslik));
    return beklenen->secilen;
}

DegisiklikBekle SahteOrtam::Izle(const std::filesystem::path& klasor) {
    if (!izlenir)
        return {};
    izlenen = klasor;
    // Ends with the last copy of what waits.
    const std::shared_ptr<void> izleme(nullptr, [this](void*) { izlenen.clear(); });
    return [this, izleme](std::chrono::milliseconds) { return std::exchange(klasorDegisti, false); };
}

bool SahteOrtam::PdfYaz(const std::vector<Sayfa>& sayfalar, const Metin& isAdi,
                        const std::filesystem::path& dosya) {
    EXPECT_FALSE(sayfalar.empty()) << "a file without a page";
    Icinde(std::exchange(pdfSirasinda_, {}));
    if (pdfYazilir)
        pdfler.push_back({isAdi, sayfalar, dosya});
    return pdfYazilir;
}

} // namespace velora::test
