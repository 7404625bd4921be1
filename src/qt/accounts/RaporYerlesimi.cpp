#include "qt/accounts/RaporYerlesimi.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "screen/Kontroller.h"

namespace velora {

namespace {

constexpr int kSecimEni = 300; // of the lists to choose from

} // namespace

void SuzgecEkle(QGridLayout& izgara, int satir, int sutun, QWidget& parca) {
    izgara.addWidget(EtiketYap(parca.accessibleName(), parca), satir, sutun);
    izgara.addWidget(&parca, satir, sutun + 1);
}

void SuzgecleriBitir(QGridLayout& izgara, QPushButton& listele) {
    izgara.addWidget(&listele, 1, 6);
    izgara.setSpacing(kAralik);
    for (const int ara : {2, 5})
        izgara.setColumnMinimumWidth(ara, kAralik);
    izgara.setColumnMinimumWidth(1, kSecimEni);
    izgara.setColumnStretch(7, 1);
}

QFrame* ToplamCercevesi() {
    auto* cerceve = new QFrame;
    cerceve->setFrameShape(QFrame::StyledPanel);
    cerceve->setBackgroundRole(QPalette::Base);
    cerceve->setAutoFillBackground(true);
    auto* izgara = new QGridLayout(cerceve);
    izgara->setHorizontalSpacing(kAralik);
    izgara->setVerticalSpacing(0);
    return cerceve;
}

void ToplamEkle(QFrame& cerceve, int satir, int sutun, const Etiket& model, QLabel& tutar) {
    auto& izgara = dynamic_cast<QGridLayout&>(*cerceve.layout());
    // The block keeps its shape when the amounts grow.
    tutar.setMinimumWidth(tutar.fontMetrics().horizontalAdvance(QStringLiteral(": 9.999.999 TL")));
    auto* baslik = new QLabel(QMetin(model.once));
    for (QLabel* etiket : {baslik, &tutar})
        etiket->setMargin(kAralik / 4);
    izgara.addWidget(baslik, satir, sutun);
    izgara.addWidget(&tutar, satir, sutun + 1);
    izgara.setColumnStretch(sutun + 1, 1);
}

} // namespace velora
