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

MenuAyarPenceresi::MenuAyarPenceresi(Program& program) : Diyalog(program.FormMenuAyar.Tut()) {
    const auto tut = program.FormMenuAyar.Tut();
    FormMenuAyar* ekran = tut.get();
    auto* sutun = SutunKur(*this);
    auto* liste = new QTreeWidget;
    Adlandir(*liste, QStringLiteral("Liste"), QMetin(ekran->baslik));
    Bag().Bagla(
        *liste, ekran->Liste, [ekran] { ekran->Liste_Click(); }, [ekran] { ekran->Liste_DblClick(); });
    liste->setColumnWidth(0, kAdSutunu);
    sutun->addWidget(liste, 1);
    sutun->addLayout(ListeDugmeleri(ekran, *liste));
    setWindowTitle(QMetin(ekran->baslik));
    liste->setFocus();
    resize(640, 380);
}

MenuEklePenceresi::MenuEklePenceresi(Program& program) : Diyalog(program.FormMenuEkle.Tut()) {
    const auto tut = program.FormMenuEkle.Tut();
    FormMenuEkle* ekran = tut.get();
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    auto* ad = new QLineEdit;
    Adlandir(*ad, QStringLiteral("Text1"), QMetin(ekran->Label1.baslik));
    ad->setMinimumWidth(kMenuAlaniEni);
    Bag().Bagla(*ad, ekran->Text1, {.degisti = [ekran] { ekran->Text1_Change(); }, .odakGitti = {}});
    form->addRow(QMetin(ekran->Label1.baslik), ad);
    auto* icerik = new QPlainTextEdit;
    Adlandir(*icerik, QStringLiteral("Text2"), QMetin(ekran->Label2.baslik));
    Bag().Bagla(*icerik, ekran->Text2);
    form->addRow(QMetin(ekran->Label2.baslik), icerik);
    sutun->addLayout(form, 1);
    sutun->addLayout(TamamIptal({"Command4", ekran->Command4, [ekran] { ekran->Command4_Click(); }},
                                {"Command3", ekran->Command3, [ekran] { ekran->Command3_Click(); }}));
    Bag().Izle([this, ekran] { setWindowTitle(QMetin(ekran->baslik)); });
    ad->setFocus();
}

} // namespace velora
