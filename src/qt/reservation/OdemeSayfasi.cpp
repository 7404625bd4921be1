// The page of payments of `FormKayit`.
#include <array>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "qt/reservation/KayitPenceresi.h"
#include "reservation/FormKayit.h"

namespace velora {

namespace {

constexpr int kSutunEni = 120;
constexpr int kTutarEni = 90;

} // namespace

QWidget* KayitPenceresi::OdemeSayfasi() {
    auto* sayfa = new QWidget;
    QVBoxLayout* sutun = SutunKur(*sayfa);
    auto* liste = new QTreeWidget;
    liste->setObjectName(QStringLiteral("Liste"));
    liste->setAccessibleName(QStringLiteral("Ödemeler"));
    Bag().Bagla(*liste, Model().Liste, Isle(&FormKayit::Liste_ItemClick));
    liste->header()->setDefaultSectionSize(kSutunEni);
    auto* dugmeler = new QHBoxLayout;
    dugmeler->setSpacing(kAralik);
    dugmeler->addWidget(DugmeYap({"Command8", &FormKayit::Command8, &FormKayit::Command8_Click}));
    auto* sil = DugmeYap({"Command7", &FormKayit::Command7, &FormKayit::Command7_Click});
    OdagiListeyeVer(*sil, *liste);
    dugmeler->addWidget(sil);
    dugmeler->addStretch(1);
    dugmeler->addLayout(Toplamlar());
    sutun->addWidget(liste, 1);
    sutun->addLayout(dugmeler);
    return sayfa;
}

QLayout* KayitPenceresi::Toplamlar() {
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    const std::array toplamlar{std::tuple{u"Alınan Ödeme :", "Kayam9", &Model().Kayam9},
                               std::tuple{u"Kalan Ödeme :", "Kayam10", &Model().Kayam10}};
    for (const auto& [yazi, ad, model] : toplamlar) {
        auto* tutar = new QLabel;
        tutar->setObjectName(QString::fromLatin1(ad));
        tutar->setAccessibleName(QString::fromUtf16(yazi));
        tutar->setMinimumWidth(kTutarEni);
        tutar->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tutar->setMargin(kAralik / 2);
        Bag().Bagla(*tutar, *model);
        serit->addWidget(new QLabel(QString::fromUtf16(yazi)));
        serit->addWidget(tutar);
        serit->addWidget(new QLabel(QStringLiteral("TL")));
        serit->addSpacing(kAralik);
    }
    return serit;
}

} // namespace velora
