#include "destek/SahteOrtam.h"

#include <gtest/gtest.h>

namespace velora::test {

SahteOrtam::SahteOrtam(Gun bugun) : simdi(std::chrono::local_days(bugun) + std::chrono::hours(10)) {}

SahteOrtam::~SahteOrtam() {
    EXPECT_TRUE(kutular_.empty()) << "an expected message box never came";
    EXPECT_TRUE(girdiler_.empty()) << "an expected input box never came";
}

Ortam SahteOrtam::Ver() {
    Ortam ortam;
    ortam.sor.mesaj = [this](const MesajKutusu& kutu) { return MesajSor(kutu); };
    ortam.sor.girdi = [this](const GirdiKutusu& kutu) { return GirdiSor(kutu); };
    ortam.goster.ac = [this](EkranAdi ad, const std::function<void()>& gorununce) {
        acilanlar.push_back(ad);
        if (acilinca)
            acilinca(ad);
        gorununce();
    };
    ortam.goster.modal = [this](EkranAdi ad, const std::function<void()>& gorununce) {
        acilanlar.push_back(ad);
        gorununce();
        if (const auto senaryo = modalda.find(ad); senaryo != modalda.end())
            senaryo->second();
    };
    ortam.goster.gizle = [this](EkranAdi ad) { gizlenenler.push_back(ad); };
    ortam.zaman.simdi = [this] { return simdi; };
    ortam.olaylar.isle = [this] {
        ++olaySayisi;
        // A copy: what runs may take itself out.
        if (const auto is = olayda)
            is(olaySayisi);
    };
    ortam.kabuk.dosyaAc = [this](const std::filesystem::path& yol) { acilanDosyalar.push_back(yol); };
    ortam.olaylar.bitir = [this] { bitti = true; };
    ortam.odak.ver = [this](EkranAdi, MetinBakis kontrol) { odaklar.emplace_back(kontrol); };
    return ortam;
}

Cevap SahteOrtam::MesajSor(const MesajKutusu& kutu) {
    const Cevap yedek = kutu.dugmeler == KutuDugmeleri::EvetHayir ? Cevap::Hayir : Cevap::Tamam;
    if (kutular_.empty()) {
        ADD_FAILURE() << "unexpected box: " << ::testing::PrintToString(kutu.metin);
        return yedek;
    }
    const BeklenenKutu beklenen = kutular_.front();
    kutular_.pop_front();
    EXPECT_EQ(kutu.metin, beklenen.metin);
    EXPECT_EQ(kutu.baslik, beklenen.baslik);
    EXPECT_EQ(kutu.simge, beklenen.simge);
    EXPECT_EQ(kutu.dugmeler == KutuDugmeleri::Tamam, beklenen.cevap == Cevap::Tamam)
        << "the box has other buttons than the answer needs";
    return beklenen.cevap;
}

Metin SahteOrtam::GirdiSor(const GirdiKutusu& kutu) {
    if (girdiler_.empty()) {
        ADD_FAILURE() << "unexpected input box: " << ::testing::PrintToString(kutu.metin);
        // A blank, no empty text: an asker that takes no empty answer must not ask for ever.
        return u" ";
    }
    const BeklenenGirdi beklenen = girdiler_.front();
    girdiler_.pop_front();
    EXPECT_EQ(kutu.metin, beklenen.metin);
    EXPECT_EQ(kutu.baslik, beklenen.baslik);
    return beklenen.cevap;
}

} // namespace velora::test
