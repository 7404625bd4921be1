#include "qt/reservation/OdemeAlPenceresi.h"

#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Yerlesimler.h"
#include "reservation/FormOdemeAl.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kOdemeAlaniEni = 260;

} // namespace

OdemeAlPenceresi::OdemeAlPenceresi(Program& program) : EkranPenceresi(program.FormOdemeAl.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    const Baglayici::AlanIsleri isler{.degisti = Isle(&FormOdemeAl::Text1_Change), .odakGitti = {}};
    auto* tarih = SatirEkle<QDateEdit>(*form, QStringLiteral("DTPicker1"), Model().DTPicker1);
    auto* miktar = SatirEkle<QLineEdit>(*form, QStringLiteral("Text1"), Model().Text1, isler);
    auto* aciklama = SatirEkle<QLineEdit>(*form, QStringLiteral("Aciklama"), Model().Aciklama);
    miktar->setAlignment(Qt::AlignRight);
    for (QWidget* alan : std::initializer_list<QWidget*>{tarih, miktar, aciklama})
        alan->setMinimumWidth(kOdemeAlaniEni);
    sutun->addLayout(form);
    sutun->addLayout(TamamIptal({"Command1", &FormOdemeAl::Command1, &FormOdemeAl::Command1_Click},
                                {"Command2", &FormOdemeAl::Command2, &FormOdemeAl::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    miktar->setFocus();
}

} // namespace velora
