#include "qt/reservation/AramaPenceresi.h"

#include <array>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "reservation/FormArama.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kOlcutEni = 380;
// The columns of the names share what is left.
constexpr std::array kAramaSutunEnleri{180, 160, kKalanEn, kKalanEn, 110, 110};
constexpr QSize kEnKucukListe{760, 160};

} // namespace

AramaPenceresi::AramaPenceresi(Program& program) : EkranPenceresi(program.FormArama.Tut()) {
    // From top to bottom: the Tab key goes in the order in which things are put in.
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addLayout(Olcutler());
    auto* ara = findChild<QPushButton*>(QStringLiteral("Command3"));
    auto* liste = ListeYap(kAramaSutunEnleri, &FormArama::Liste_ItemClick, &FormArama::Liste_DblClick);
    liste->setSelectionMode(QAbstractItemView::ExtendedSelection);
    liste->setMinimumSize(kEnKucukListe);
    sutun->addSpacing(kAralik);
    sutun->addWidget(liste, 1);
    auto* detaylar = DugmeYap({"Command1", &FormArama::Command1, &FormArama::Command1_Click});
    // Back to the list: "Detaylar" is disabled behind it, and "Kapat" would come next.
    Ardindan(*detaylar, [liste] { liste->setFocus(); });
    auto* kapat = DugmeYap({"Command2", &FormArama::Command2, &FormArama::Command2_Click});
    IptalDugmesi(kapat);
    sutun->addLayout(DugmeSeridi({detaylar, kapat}, {}, OzetYap(Model().Ozet)));
    VarsayilanDugme(*ara, *liste, *detaylar);
    BulunanaGotur(*ara, *liste);
    resize(940, 580);
    IlkOdak("Text1");
}

QLayout* AramaPenceresi::Olcutler() {
    QFormLayout* form = FormKur();
    for (int no = 1; no <= FormArama::kOlcutSayisi; ++no)
        SatirEkle<QLineEdit>(*form, QStringLiteral("Text%1").arg(no), Model().Text[no])
            ->setFixedWidth(kOlcutEni);
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    serit->addLayout(form);
    serit->addWidget(DugmeYap({"Command3", &FormArama::Command3, &FormArama::Command3_Click}), 0,
                     Qt::AlignBottom);
    serit->addStretch(1);
    return serit;
}

} // namespace velora
