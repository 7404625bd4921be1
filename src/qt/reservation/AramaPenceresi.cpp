#include "qt/reservation/AramaPenceresi.h"

#include <array>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
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

constexpr std::array<const char16_t*, FormArama::kOlcutSayisi> kAlanlar{u"Adı Soyadı", u"Gelin / Damat",
                                                                        u"Telefon", u"Cep", u"Sözleşme No"};
constexpr int kOlcutEni = 380;
// The columns of the names share what is left.
constexpr int kKalan = 0;
constexpr std::array kAramaSutunEnleri{180, 160, kKalan, kKalan, 110, 110};
constexpr QSize kEnKucukListe{760, 160};

} // namespace

AramaPenceresi::AramaPenceresi(Program& program) : Diyalog(program.FormArama.Tut()) {
    const auto tut = program.FormArama.Tut();
    FormArama* ekran = tut.get();
    // From top to bottom: the Tab key goes in the order in which things are put in.
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addLayout(Olcutler(ekran));
    auto* ara = findChild<QPushButton*>(QStringLiteral("Command3"));
    QTreeWidget* liste = Liste(ekran);
    sutun->addSpacing(kAralik);
    sutun->addWidget(liste, 1);
    // Back to the list: "Detaylar" is disabled behind it, and "Kapat" would come next.
    auto* detaylar = DugmeYap("Command1", ekran->Command1, [ekran, liste] {
        ekran->Command1_Click();
        liste->setFocus();
    });
    auto* kapat = DugmeYap("Command2", ekran->Command2, [ekran] { ekran->Command2_Click(); });
    IptalDugmesi(kapat);
    sutun->addLayout(DugmeSeridi({detaylar, kapat}));
    VarsayilanDugme(*ara, *liste, *detaylar);
    setWindowTitle(QMetin(ekran->baslik));
    resize(940, 580);
    findChild<QWidget*>(QStringLiteral("Text1"))->setFocus();
}

QLayout* AramaPenceresi::Olcutler(FormArama* ekran) {
    QFormLayout* form = FormKur();
    for (int no = 1; no <= FormArama::kOlcutSayisi; ++no) {
        const QString yazi = QString::fromUtf16(kAlanlar[static_cast<std::size_t>(no - 1)]);
        auto* alan = new QLineEdit(this);
        Adlandir(*alan, QStringLiteral("Text%1").arg(no), yazi);
        Bag().Bagla(*alan, ekran->Text[no]);
        alan->setFixedWidth(kOlcutEni);
        form->addRow(yazi, alan);
    }
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    serit->addLayout(form);
    serit->addWidget(DugmeYap("Command3", ekran->Command3, [ekran] { ekran->Command3_Click(); }), 0,
                     Qt::AlignBottom);
    serit->addStretch(1);
    return serit;
}

QTreeWidget* AramaPenceresi::Liste(FormArama* ekran) {
    auto* liste = new QTreeWidget(this);
    Adlandir(*liste, QStringLiteral("Liste"), QStringLiteral("Bulunan kayıtlar"));
    Bag().Bagla(
        *liste, ekran->Liste, [ekran] { ekran->Liste_ItemClick(); }, [ekran] { ekran->Liste_DblClick(); });
    liste->setMinimumSize(kEnKucukListe);
    QHeaderView* basliklar = liste->header();
    basliklar->setStretchLastSection(false);
    for (int i = 0; i < static_cast<int>(kAramaSutunEnleri.size()); ++i)
        if (const int en = kAramaSutunEnleri[static_cast<std::size_t>(i)]; en != kKalan)
            basliklar->resizeSection(i, en);
        else
            basliklar->setSectionResizeMode(i, QHeaderView::Stretch);
    return liste;
}

} // namespace velora
