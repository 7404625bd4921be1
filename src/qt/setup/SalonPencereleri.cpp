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

SalonTanimPenceresi::SalonTanimPenceresi(Program& program) : Diyalog(program.FormSalonTanim.Tut()) {
    const auto tut = program.FormSalonTanim.Tut();
    FormSalonTanim* ekran = tut.get();
    auto* sutun = SutunKur(*this);
    auto* liste = new QListWidget;
    Adlandir(*liste, QStringLiteral("List1"), QMetin(ekran->Label8.baslik));
    Bag().Bagla(*liste, ekran->List1, [ekran] { ekran->List1_Click(); });
    sutun->addWidget(EtiketYap(QMetin(ekran->Label8.baslik), *liste));
    sutun->addWidget(liste, 1);
    sutun->addLayout(ListeDugmeleri(ekran, *liste));
    setWindowTitle(QMetin(ekran->baslik));
    liste->setFocus();
    resize(460, 340);
}

SalonAdPenceresi::SalonAdPenceresi(Program& program) : Diyalog(program.FormSalonTanimAd.Tut()) {
    const auto tut = program.FormSalonTanimAd.Tut();
    FormSalonTanimAd* ekran = tut.get();
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    auto* ad = new QLineEdit;
    Adlandir(*ad, QStringLiteral("Text1"), QMetin(ekran->Label1.baslik));
    ad->setMinimumWidth(kSalonAlaniEni);
    Bag().Bagla(*ad, ekran->Text1);
    form->addRow(QMetin(ekran->Label1.baslik), ad);
    sutun->addLayout(form);
    sutun->addLayout(TamamIptal({"Command1", ekran->Command1, [ekran] { ekran->Command1_Click(); }},
                                {"Command2", ekran->Command2, [ekran] { ekran->Command2_Click(); }}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    setWindowTitle(QMetin(ekran->baslik));
    ad->setFocus();
    ad->selectAll();
}

} // namespace velora
