#include "qt/online/RezervasyonlarPenceresi.h"

#include <array>

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>

#include "online/FormRezervasyonlar.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr std::array kIstekSutunEnleri{56, kKalanEn, 120, 120, kKalanEn, kKalanEn, 88, 56, 72, 80};

} // namespace

RezervasyonlarPenceresi::RezervasyonlarPenceresi(Program& program)
    : EkranPenceresi(program.FormRezervasyonlar.Tut()) {
    using F = FormRezervasyonlar;
    auto* sutun = SutunKur(*this);
    auto* liste = ListeYap(kIstekSutunEnleri, &F::Liste_Click, &F::Liste_DblClick);
    sutun->addWidget(liste, 1);
    auto* olustur = DugmeYap({"Command2", &F::Command2, &F::Command2_Click});
    auto* sil = DugmeYap({"Command3", &F::Command3, &F::Command3_Click});
    auto* kaydet = DugmeYap({"Kaydet", &F::Kaydet, &F::Kaydet_Click});
    auto* kapat = DugmeYap({"Command1", &F::Command1, &F::Command1_Click});
    IptalDugmesi(kapat);
    VarsayilanDugme(*olustur, *liste, *olustur);
    OdagiListeyeVer(*sil, *liste);
    // Refused, its row is still marked. Taken over, the screen came back and gave the focus itself.
    Ardindan(*olustur, [liste] {
        if (!liste->selectedItems().isEmpty())
            liste->setFocus();
    });
    sutun->addLayout(DugmeSeridi({olustur, sil, kapat}, {kaydet}));
    resize(980, 400);
    IlkOdak("Command1");
}

} // namespace velora
