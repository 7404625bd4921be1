#include "qt/online/YayinPenceresi.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

#include "online/FormWebteYayinla.h"
#include "qt/Baglayici.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kYayinEni = 460;

} // namespace

YayinPenceresi::YayinPenceresi(Program& program) : EkranPenceresi(program.FormWebteYayinla.Tut()) {
    using F = FormWebteYayinla;
    auto* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label8"), Model().Label8));
    QLabel* ne = YaziYap(QStringLiteral("Label2"), Model().Label2);
    // A hall may have a long name.
    ne->setWordWrap(true);
    ne->setMinimumWidth(kYayinEni);
    sutun->addWidget(ne);
    sutun->addWidget(YaziYap(QStringLiteral("Label1"), Model().Label1));
    sutun->addWidget(ParcaYap<QProgressBar>(QStringLiteral("ProgressBar1"), Model().ProgressBar1));
    auto* iptal = DugmeYap({"Command1", &F::Command1, &F::Command1_Click});
    IptalDugmesi(iptal);
    sutun->addLayout(DugmeSeridi({iptal}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak("Command1");
}

} // namespace velora
