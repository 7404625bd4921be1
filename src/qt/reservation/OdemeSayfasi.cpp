// The page of payments of `FormKayit`.
#include <array>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "qt/reservation/KayitPenceresi.h"

#include "reservation/FormKayit.h"
#include <utility>

namespace velora {

namespace {

constexpr std::array kOdemeSutunEnleri{120, 120};
constexpr int kTutarEni = 90;

} // namespace

QWidget* KayitPenceresi::OdemeSayfasi() {
    auto* sayfa = new QWidget;
    QVBoxLayout* sutun = SutunKur(*sayfa);
    auto* liste = ListeYap(kOdemeSutunEnleri, &FormKayit::Liste_ItemClick);
    auto* dugmeler = new QHBoxLayout;
    dugmeler->setSpacing(kAralik);
    dugmeler->addWidget(DugmeYap({"Command8", &FormKayit::Command8, &FormKayit::Command8_Click}));
    auto* sil = DugmeYap({"Command7", &FormKayit::Command7, &FormKayit::Command7_Click});
    auto* makbuz = DugmeYap({"Command9", &FormKayit::Command9, &FormKayit::Command9_Click});
    for (QPushButton* dugme : {sil, makbuz}) {
        OdagiListeyeVer(*dugme, *liste);
        dugmeler->addWidget(dugme);
    }
    dugmeler->addStretch(1);
    sutun->addWidget(liste, 1);
    // Beside the buttons the totals would make the window wider than a small screen.
    sutun->addLayout(dugmeler);
    sutun->addLayout(Toplamlar());
    return sayfa;
}

QLayout* KayitPenceresi::Toplamlar() {
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    serit->addStretch(1);
    for (const auto& [ad, model] : {std::pair{"ToplamUcret", &Model().ToplamUcret},
                                    {"Kayam9", &Model().Kayam9},
                                    {"Kayam10", &Model().Kayam10}}) {
        QLabel* tutar = DegerYap(QString::fromLatin1(ad), *model);
        tutar->setMinimumWidth(kTutarEni);
        tutar->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tutar->setMargin(kAralik / 2);
        serit->addWidget(new QLabel(QMetin(model->once)));
        serit->addWidget(tutar);
        serit->addWidget(new QLabel(QMetin(model->sonra)));
        serit->addSpacing(kAralik);
    }
    return serit;
}

} // namespace velora
