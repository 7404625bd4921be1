#include "qt/setup/MenuPencereleri.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"

namespace velora {

namespace {

constexpr int kAdSutunu = 180;
constexpr int kMenuAlaniEni = 340;

} // namespace

MenuAyarPenceresi::MenuAyarPenceresi(Program& program) : EkranPenceresi(program.FormMenuAyar.Tut()) {
    auto* sutun = SutunKur(*this);
    auto* liste = new QTreeWidget;
    Adlandir(*liste, QStringLiteral("Liste"), QMetin(Model().baslik));
    Bag().Bagla(*liste, Model().Liste, Isle(&FormMenuAyar::Liste_Click), Isle(&FormMenuAyar::Liste_DblClick));
    liste->setColumnWidth(0, kAdSutunu);
    sutun->addWidget(liste, 1);
    sutun->addLayout(ListeDugmeleri(*liste));
    liste->setFocus();
    resize(640, 380);
}

MenuEklePenceresi::MenuEklePenceresi(Program& program) : EkranPenceresi(program.FormMenuEkle.Tut()) {
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    auto* ad = new QLineEdit;
    Adlandir(*ad, QStringLiteral("Text1"), QMetin(Model().Label1.baslik));
    ad->setMinimumWidth(kMenuAlaniEni);
    Bag().Bagla(*ad, Model().Text1, {.degisti = Isle(&FormMenuEkle::Text1_Change), .odakGitti = {}});
    form->addRow(QMetin(Model().Label1.baslik), ad);
    auto* icerik = new QPlainTextEdit;
    Adlandir(*icerik, QStringLiteral("Text2"), QMetin(Model().Label2.baslik));
    Bag().Bagla(*icerik, Model().Text2);
    form->addRow(QMetin(Model().Label2.baslik), icerik);
    sutun->addLayout(form, 1);
    sutun->addLayout(TamamIptal({"Command4", &FormMenuEkle::Command4, &FormMenuEkle::Command4_Click},
                                {"Command3", &FormMenuEkle::Command3, &FormMenuEkle::Command3_Click}));
    ad->setFocus();
}

} // namespace velora
