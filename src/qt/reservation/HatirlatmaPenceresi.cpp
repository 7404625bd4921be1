#include "qt/reservation/HatirlatmaPenceresi.h"

#include <array>

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Yerlesimler.h"
#include "reservation/FormOzelHatirlatma.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr std::array kHatirlatmaSutunEnleri{180, kKalanEn, 110, 120, 120};

} // namespace

HatirlatmaPenceresi::HatirlatmaPenceresi(Program& program)
    : EkranPenceresi(program.FormOzelHatirlatma.Tut()) {
    using F = FormOzelHatirlatma;
    QVBoxLayout* sutun = SutunKur(*this);
    auto* liste = ListeYap(kHatirlatmaSutunEnleri, &F::Liste_ItemClick, &F::Liste_DblClick);
    sutun->addWidget(liste, 1);
    auto* goster = DugmeYap({"Command4", &F::Command4, &F::Command4_Click});
    auto* kapat = DugmeYap({"Command2", &F::Command2, &F::Command2_Click});
    IptalDugmesi(kapat);
    // Back to the list: "Göster" is disabled behind the record, and "Kapat" would come next.
    OdagiListeyeVer(*goster, *liste);
    VarsayilanDugme(*goster, *liste, *goster);
    sutun->addLayout(DugmeSeridi({goster, kapat}));
    resize(780, 360);
    liste->setFocus();
}

} // namespace velora
