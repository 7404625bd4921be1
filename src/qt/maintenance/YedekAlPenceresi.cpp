#include "qt/maintenance/YedekAlPenceresi.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "maintenance/FormYedekAl.h"
#include "qt/Baglayici.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kKlasorAlaniEni = 420; // most paths whole

} // namespace

YedekAlPenceresi::YedekAlPenceresi(Program& program) : EkranPenceresi(program.FormYedekAl.Tut()) {
    auto* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label8"), Model().Label8));
    QFormLayout* form = FormKur();
    KlasorSatiri(*form, "txtSource", Model().txtSource, &FormYedekAl::txtSource_Change,
                 {"Command1", &FormYedekAl::Command1, &FormYedekAl::Command1_Click});
    KlasorSatiri(*form, "txtDestination", Model().txtDestination, &FormYedekAl::txtDestination_Change,
                 {"Command2", &FormYedekAl::Command2, &FormYedekAl::Command2_Click});
    sutun->addLayout(form);
    QLabel* bekleyin = YaziYap(QStringLiteral("Label9"), Model().Label9);
    // Its room is there from the start: nothing moves under the pointer.
    QSizePolicy yer = bekleyin->sizePolicy();
    yer.setRetainSizeWhenHidden(true);
    bekleyin->setSizePolicy(yer);
    Bag().Izle([bekleyin, &model = Model().Label9] {
        const bool geldi = model.gorunur && bekleyin->isHidden();
        bekleyin->setVisible(model.gorunur);
        // It is read out, and the next Enter doesn't press what stands behind the button that goes off.
        if (geldi)
            bekleyin->setFocus();
    });
    sutun->addWidget(bekleyin);
    sutun->addStretch();
    sutun->addLayout(TamamIptal({"cmdStart", &FormYedekAl::cmdStart, &FormYedekAl::cmdStart_Click},
                                {"Command3", &FormYedekAl::Command3, &FormYedekAl::Command3_Click}));
    Bag().Bagla(Model().Timer1, QStringLiteral("Timer1"));
    IlkOdak("txtSource");
}

void YedekAlPenceresi::KlasorSatiri(QFormLayout& form, const char* ad, MetinKutusu& model, Olay degisti,
                                    const DugmeTanimi& gozat) {
    auto* alan = ParcaYap<QLineEdit>(QString::fromLatin1(ad), model,
                                     Baglayici::AlanIsleri{.degisti = Isle(degisti), .odakGitti = {}});
    alan->setMinimumWidth(kKlasorAlaniEni);
    auto* satir = new QHBoxLayout;
    satir->addWidget(alan, 1);
    QPushButton* dugme = DugmeYap(gozat);
    dugme->setAccessibleName(dugme->toolTip());
    satir->addWidget(dugme);
    form.addRow(EtiketYap(QMetin(model.baslik), *alan), satir);
}

} // namespace velora
