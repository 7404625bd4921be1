#include "qt/setup/SalonPencereleri.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"

namespace velora {

namespace {

constexpr int kSalonAlaniEni = 260;

} // namespace

SalonTanimPenceresi::SalonTanimPenceresi(Program& program) : EkranPenceresi(program.FormSalonTanim.Tut()) {
    auto* sutun = SutunKur(*this);
    auto* liste =
        ParcaYap<QListWidget>(QStringLiteral("List1"), Model().List1, Isle(&FormSalonTanim::List1_Click));
    sutun->addWidget(EtiketYap(QMetin(Model().Label8.baslik), *liste));
    sutun->addWidget(liste, 1);
    sutun->addLayout(ListeDugmeleri(*liste));
    liste->setFocus();
    resize(460, 340);
}

SalonAdPenceresi::SalonAdPenceresi(Program& program) : EkranPenceresi(program.FormSalonTanimAd.Tut()) {
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    auto* ad = SatirEkle<QLineEdit>(*form, QStringLiteral("Text1"), Model().Text1);
    ad->setMinimumWidth(kSalonAlaniEni);
    sutun->addLayout(form);
    sutun->addLayout(
        TamamIptal({"Command1", &FormSalonTanimAd::Command1, &FormSalonTanimAd::Command1_Click},
                   {"Command2", &FormSalonTanimAd::Command2, &FormSalonTanimAd::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    ad->setFocus();
    ad->selectAll();
}

} // namespace velora
