#include "qt/maintenance/IndirmePencereleri.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "maintenance/FormDownloadManager.h"
#include "maintenance/FormResmiTatilYukle.h"
#include "qt/Baglayici.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kCubukEni = 420;

} // namespace

TatilYuklePenceresi::TatilYuklePenceresi(Program& program)
    : EkranPenceresi(program.FormResmiTatilYukle.Tut()) {
    using F = FormResmiTatilYukle;
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(YaziYap(QStringLiteral("Label1"), Model().Label1));
    auto* cubuk = ParcaYap<QProgressBar>(QStringLiteral("ProgressBar"), Model().ProgressBar);
    cubuk->setMinimumWidth(kCubukEni);
    sutun->addWidget(cubuk);
    sutun->addLayout(TamamIptal({"Command", &F::Command, &F::Command_Click},
                                {"Command1", &F::Command1, &F::Command1_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak("Command");
}

YeniSurumPenceresi::YeniSurumPenceresi(Program& program) : EkranPenceresi(program.FormDownloadManager.Tut()) {
    using F = FormDownloadManager;
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label8"), Model().Label8));
    sutun->addWidget(YaziYap(QStringLiteral("Label1"), Model().Label1));
    auto* cubuk = ParcaYap<QProgressBar>(QStringLiteral("ProgressBar"), Model().ProgressBar);
    cubuk->setMinimumWidth(kCubukEni);
    sutun->addWidget(cubuk);
    auto* komut = DugmeYap({"Command", &F::Command, &F::Command_Click});
    komut->setDefault(true);
    sutun->addLayout(DugmeSeridi({komut}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    Bag().Bagla(Model().Timer1, QStringLiteral("Timer1"));
    IlkOdak("Command");
}

void YeniSurumPenceresi::reject() {
    Bag().Bas([this] { Model().Kapat(); }, true);
}

} // namespace velora
