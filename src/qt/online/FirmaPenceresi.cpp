#include "qt/online/FirmaPenceresi.h"

#include <array>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "online/FormFirma.h"
#include "qt/Baglayici.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kFirmaAlaniEni = 340;

} // namespace

// The fields stand in the order in which they are asked for.
FirmaPenceresi::FirmaPenceresi(Program& program) : EkranPenceresi(program.FormFirma.Tut()) {
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    FormFirma& firma = Model();
    SatirEkle<QLineEdit>(*form, QStringLiteral("t1"), firma.t1)->setMinimumWidth(kFirmaAlaniEni);
    SatirEkle<QLineEdit>(*form, QStringLiteral("t2"), firma.t2);
    auto* salonSayisi = SatirEkle<QComboBox>(*form, QStringLiteral("t13"), firma.t13);
    const std::array alanlar{std::pair{"t3", &firma.t3}, std::pair{"t4", &firma.t4},
                             std::pair{"t5", &firma.t5}, std::pair{"t6", &firma.t6},
                             std::pair{"t7", &firma.t7}};
    for (const auto& [ad, model] : alanlar)
        SatirEkle<QLineEdit>(*form, QString::fromLatin1(ad), *model);
    auto* il = SatirEkle<QComboBox>(*form, QStringLiteral("t8"), firma.t8);
    auto* ilce = SatirEkle<QComboBox>(*form, QStringLiteral("t9"), firma.t9);
    // As wide as the fields, whatever they offer.
    for (QComboBox* liste : {salonSayisi, il, ilce})
        liste->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    sutun->addLayout(form);
    auto* tamam = DugmeYap({"Command1", &FormFirma::Command1, &FormFirma::Command1_Click});
    auto* kaydet = DugmeYap({"Command3", &FormFirma::Command3, &FormFirma::Command3_Click});
    auto* iptal = DugmeYap({"Command2", &FormFirma::Command2, &FormFirma::Command2_Click});
    tamam->setDefault(true);
    IptalDugmesi(iptal);
    sutun->addLayout(DugmeSeridi({tamam, iptal}, {kaydet}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak("t1");
}

} // namespace velora
