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

template <class Parca>
Parca* AlanEkle(QFormLayout& form, const char* ad, const QString& yazi) {
    auto* parca = new Parca;
    Adlandir(*parca, QString::fromLatin1(ad), yazi);
    parca->setMinimumWidth(kOdemeAlaniEni);
    form.addRow(yazi, parca);
    return parca;
}

} // namespace

OdemeAlPenceresi::OdemeAlPenceresi(Program& program) : EkranPenceresi(program.FormOdemeAl.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    Bag().Bagla(*AlanEkle<QDateEdit>(*form, "DTPicker1", QStringLiteral("Tarih Seçin")), Model().DTPicker1);
    auto* miktar = AlanEkle<QLineEdit>(*form, "Text1", QStringLiteral("Miktar Girin"));
    miktar->setAlignment(Qt::AlignRight);
    Bag().Bagla(*miktar, Model().Text1, {.degisti = Isle(&FormOdemeAl::Text1_Change), .odakGitti = {}});
    Bag().Bagla(*AlanEkle<QLineEdit>(*form, "Aciklama", QStringLiteral("Açıklama")), Model().Aciklama);
    sutun->addLayout(form);
    sutun->addLayout(TamamIptal({"Command1", &FormOdemeAl::Command1, &FormOdemeAl::Command1_Click},
                                {"Command2", &FormOdemeAl::Command2, &FormOdemeAl::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    miktar->setFocus();
}

} // namespace velora
