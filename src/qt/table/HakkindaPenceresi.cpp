#include "qt/table/HakkindaPenceresi.h"

#include <array>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "qt/Gorunum.h"
#include "qt/Simgeler.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"
#include "table/FormHakkinda.h"

namespace velora {

namespace {

constexpr int kHakkindaSimgeBoyu = 56;
constexpr double kHakkindaAdBuyumesi = 1.8; // of the name, beside the other texts
constexpr std::array kKitaplikEnleri{170, 240, kKalanEn};
constexpr QSize kKitaplikListesi{700, 120};

} // namespace

HakkindaPenceresi::HakkindaPenceresi(Program& program) : EkranPenceresi(program.FormHakkinda.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addLayout(Baslik());
    sutun->addSpacing(kAralik);
    auto* klasor = ParcaYap<QLineEdit>(QStringLiteral("Klasor"), Model().Klasor);
    sutun->addWidget(EtiketYap(QMetin(Model().Klasor.baslik), *klasor));
    sutun->addWidget(klasor);
    auto* liste = ListeYap(kKitaplikEnleri, nullptr);
    liste->setMinimumSize(kKitaplikListesi);
    sutun->addWidget(EtiketYap(QMetin(Model().Liste.baslik), *liste));
    sutun->addWidget(liste, 1);
    auto* tamam = DugmeYap({"Command1", &FormHakkinda::Command1, &FormHakkinda::Command1_Click});
    tamam->setDefault(true);
    IptalDugmesi(tamam);
    sutun->addLayout(DugmeSeridi({tamam}));
    tamam->setFocus();
}

QLayout* HakkindaPenceresi::Baslik() {
    auto* simge = new QLabel;
    const double olcek = devicePixelRatioF();
    QPixmap resim = ResimCiz(QStringLiteral("velora"), qRound(kHakkindaSimgeBoyu * olcek));
    resim.setDevicePixelRatio(olcek);
    simge->setPixmap(resim);
    auto* ad = new QLabel(QMetin(Model().Ad.baslik));
    ad->setObjectName(QStringLiteral("Ad"));
    QFont buyuk = ad->font();
    buyuk.setPointSizeF(buyuk.pointSizeF() * kHakkindaAdBuyumesi);
    buyuk.setBold(true);
    ad->setFont(buyuk);
    auto* surum = new QLabel(QMetin(Model().Surum.once + u" " + Model().Surum.baslik));
    surum->setObjectName(QStringLiteral("Surum"));
    auto* yazilar = new QVBoxLayout;
    yazilar->setSpacing(0);
    yazilar->addWidget(ad);
    yazilar->addWidget(surum);
    auto* serit = new QHBoxLayout;
    serit->setSpacing(2 * kAralik);
    serit->addWidget(simge);
    serit->addLayout(yazilar);
    serit->addStretch(1);
    return serit;
}

} // namespace velora
