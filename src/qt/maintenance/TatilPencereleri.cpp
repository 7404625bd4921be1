#include "qt/maintenance/TatilPencereleri.h"

#include <array>

#include <QCheckBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormResmiTatilEkle.h"
#include "qt/Baglayici.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr std::array kTatilSutunEnleri{110, kKalanEn, 90, 80};
constexpr int kTatilAlaniEni = 300;

} // namespace

ResmiTatilPenceresi::ResmiTatilPenceresi(Program& program) : EkranPenceresi(program.FormResmiTatil.Tut()) {
    using F = FormResmiTatil;
    QVBoxLayout* sutun = SutunKur(*this);
    auto* liste = ListeYap(kTatilSutunEnleri, &F::Liste_Click);
    sutun->addWidget(liste, 1);
    auto* ekle = DugmeYap({"Command4", &F::Command4, &F::Command4_Click});
    auto* sil = DugmeYap({"Command5", &F::Command5, &F::Command5_Click});
    auto* guncelle = DugmeYap({"Command3", &F::Command3, &F::Command3_Click});
    auto* temizle = DugmeYap({"Temizle", &F::Temizle, &F::Temizle_Click});
    sutun->addLayout(TamamIptal({"Command1", &F::Command1, &F::Command1_Click},
                                {"Command2", &F::Command2, &F::Command2_Click},
                                {ekle, sil, guncelle, temizle}));
    OdagiListeyeVer(*sil, *liste);
    resize(720, 440);
    liste->setFocus();
}

ResmiTatilEklePenceresi::ResmiTatilEklePenceresi(Program& program)
    : EkranPenceresi(program.FormResmiTatilEkle.Tut()) {
    using F = FormResmiTatilEkle;
    QVBoxLayout* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    SatirEkle<QDateEdit>(*form, QStringLiteral("DTPicker1"), Model().DTPicker1);
    SatirEkle<QLineEdit>(*form, QStringLiteral("Text2"), Model().Text2)->setMinimumWidth(kTatilAlaniEni);
    form->addRow(QString(), ParcaYap<QCheckBox>(QStringLiteral("Check1"), Model().Check1));
    sutun->addLayout(form);
    sutun->addLayout(TamamIptal({"Command1", &F::Command1, &F::Command1_Click},
                                {"Command2", &F::Command2, &F::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak("DTPicker1");
}

} // namespace velora
