#include "qt/access/GirisPencereleri.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "qt/Baglayici.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kGirisAlaniEni = 240;

} // namespace

SifrePenceresi::SifrePenceresi(Program& program) : EkranPenceresi(program.FormSifre.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label8"), Model().Label8));
    sutun->addWidget(YaziYap(QStringLiteral("Label1"), Model().Label1));
    QFormLayout* form = FormKur();
    auto* ad = SatirEkle<QComboBox>(*form, QStringLiteral("Text1"), Model().Text1);
    ad->setMinimumWidth(kGirisAlaniEni);
    ad->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); // as wide as the password
    SatirEkle<QLineEdit>(*form, QStringLiteral("Text2"), Model().Text2);
    sutun->addLayout(form);
    sutun->addSpacing(kAralik);
    sutun->addLayout(TamamIptal({"Command1", &FormSifre::Command1, &FormSifre::Command1_Click},
                                {"Command2", &FormSifre::Command2, &FormSifre::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    // The name is chosen already, most of the time.
    IlkOdak("Text2");
}

SifreDegistirPenceresi::SifreDegistirPenceresi(Program& program)
    : EkranPenceresi(program.FormSifreDegistir.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label8"), Model().Label8));
    QFormLayout* form = FormKur();
    SatirEkle<QLineEdit>(*form, QStringLiteral("Text1"), Model().Text1)->setMinimumWidth(kGirisAlaniEni);
    SatirEkle<QLineEdit>(*form, QStringLiteral("Text2"), Model().Text2);
    sutun->addLayout(form);
    sutun->addSpacing(kAralik);
    sutun->addLayout(
        TamamIptal({"Command1", &FormSifreDegistir::Command1, &FormSifreDegistir::Command1_Click},
                   {"Command2", &FormSifreDegistir::Command2, &FormSifreDegistir::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak("Text1");
}

} // namespace velora
