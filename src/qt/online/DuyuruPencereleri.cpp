#include "qt/online/DuyuruPencereleri.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "online/FormDuyurular.h"
#include "online/FormOneri.h"
#include "qt/Baglayici.h"
#include "qt/CokSatirKutusu.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

DuyurularPenceresi::DuyurularPenceresi(Program& program) : EkranPenceresi(program.FormDuyurular.Tut()) {
    auto* sutun = SutunKur(*this);
    sutun->addWidget(ParcaYap<CokSatirKutusu>(QStringLiteral("Text1"), Model().Text1), 1);
    auto* kapat = DugmeYap({"Command1", &FormDuyurular::Command1, &FormDuyurular::Command1_Click});
    kapat->setDefault(true);
    IptalDugmesi(kapat);
    sutun->addLayout(DugmeSeridi({kapat}));
    resize(560, 400);
    IlkOdak("Command1");
}

OneriPenceresi::OneriPenceresi(Program& program) : EkranPenceresi(program.FormOneri.Tut()) {
    using F = FormOneri;
    auto* sutun = SutunKur(*this);
    sutun->addWidget(YaziYap(QStringLiteral("Label2"), Model().Label2));
    const Baglayici::AlanIsleri isler{.degisti = Isle(&F::Aciklama_Change), .odakGitti = {}};
    sutun->addWidget(ParcaYap<CokSatirKutusu>(QStringLiteral("Aciklama"), Model().Aciklama, isler), 1);
    sutun->addLayout(TamamIptal({"Command1", &F::Command1, &F::Command1_Click},
                                {"Command2", &F::Command2, &F::Command2_Click}));
    resize(480, 320);
    IlkOdak("Aciklama");
}

} // namespace velora
