#include "qt/setup/MenuPencereleri.h"

#include <array>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/CokSatirKutusu.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"

namespace velora {

namespace {

constexpr std::array kMenuSutunEnleri{180};
constexpr int kMenuAlaniEni = 340;

} // namespace

MenuAyarPenceresi::MenuAyarPenceresi(Program& program) : EkranPenceresi(program.FormMenuAyar.Tut()) {
    auto* sutun = SutunKur(*this);
    auto* liste = ListeYap(kMenuSutunEnleri, &FormMenuAyar::Liste_Click, &FormMenuAyar::Liste_DblClick);
    sutun->addWidget(liste, 1);
    sutun->addLayout(ListeDugmeleri(*liste));
    liste->setFocus();
    resize(640, 380);
}

MenuEklePenceresi::MenuEklePenceresi(Program& program) : EkranPenceresi(program.FormMenuEkle.Tut()) {
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    const Baglayici::AlanIsleri isler{.degisti = Isle(&FormMenuEkle::Text1_Change), .odakGitti = {}};
    auto* ad = SatirEkle<QLineEdit>(*form, QStringLiteral("Text1"), Model().Text1, isler);
    ad->setMinimumWidth(kMenuAlaniEni);
    SatirEkle<CokSatirKutusu>(*form, QStringLiteral("Text2"), Model().Text2);
    sutun->addLayout(form, 1);
    sutun->addLayout(TamamIptal({"Command4", &FormMenuEkle::Command4, &FormMenuEkle::Command4_Click},
                                {"Command3", &FormMenuEkle::Command3, &FormMenuEkle::Command3_Click}));
    ad->setFocus();
}

} // namespace velora
