#include "qt/online/SunucuPenceresi.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "online/FormSunucu.h"
#include "qt/Baglayici.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kAnahtarEni = 220;

} // namespace

SunucuPenceresi::SunucuPenceresi(Program& program) : EkranPenceresi(program.FormSunucu.Tut()) {
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    SatirEkle<QLineEdit>(*form, QStringLiteral("Text1"), Model().Text1)->setMinimumWidth(kAnahtarEni);
    sutun->addLayout(form);
    sutun->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Check1"), Model().Check1));
    sutun->addLayout(TamamIptal({"Command1", &FormSunucu::Command1, &FormSunucu::Command1_Click},
                                {"Command2", &FormSunucu::Command2, &FormSunucu::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak("Check1");
}

} // namespace velora
