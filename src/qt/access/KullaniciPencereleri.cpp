#include "qt/access/KullaniciPencereleri.h"

#include <utility>
#include <vector>

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "access/Yetkiler.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kAdEni = 150;
constexpr int kYetkiEni = 42;
constexpr int kKullaniciAlaniEni = 240;
constexpr int kYetkiSatiri = 5; // rights one below the other, before the next column begins

} // namespace

KullanicilarPenceresi::KullanicilarPenceresi(Program& program)
    : EkranPenceresi(program.FormKullanicilar.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    std::vector<int> enler{kAdEni, kAdEni};
    enler.resize(kKullaniciDegerSayisi, kYetkiEni);
    auto* liste = ListeYap(enler, &FormKullanicilar::Liste_Click, &FormKullanicilar::Liste_DblClick);
    // The heads are short: what the rights are, their tips say.
    int yetkiSutunu = KullaniciNo::IlkYetki;
    for (const Yetki& yetki : Yetkiler())
        liste->headerItem()->setToolTip(yetkiSutunu++, QIpucu(yetki.baslik));
    sutun->addWidget(liste, 1);
    sutun->addLayout(
        ListeDugmeleri(*liste, {"Command3", &FormKullanicilar::Command3, &FormKullanicilar::Command3_Click},
                       {"Command4", &FormKullanicilar::Command4, &FormKullanicilar::Command4_Click}));
    liste->setFocus();
    resize(830, 380);
}

QGridLayout* KullaniciEklePenceresi::Yetkileri() {
    auto* izgara = new QGridLayout;
    izgara->setHorizontalSpacing(2 * kAralik);
    izgara->setVerticalSpacing(kAralik);
    int no = 0;
    int yer = 0;
    for (const Yetki& yetki : Yetkiler()) {
        ++no;
        if (!yetki.gorunur)
            continue;
        auto* kutu = ParcaYap<QCheckBox>(QStringLiteral("Check%1").arg(no), Model().Check[no]);
        izgara->addWidget(kutu, yer % kYetkiSatiri, yer / kYetkiSatiri);
        ++yer;
    }
    return izgara;
}

KullaniciEklePenceresi::KullaniciEklePenceresi(Program& program)
    : EkranPenceresi(program.FormKullaniciEkle.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label8"), Model().Label8));
    QFormLayout* form = FormKur();
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    for (const auto& [ad, model] : {std::pair{"Text1", &Model().Text1}, std::pair{"Text2", &Model().Text2},
                                    std::pair{"Text3", &Model().Text3}})
        SatirEkle<QLineEdit>(*form, QString::fromLatin1(ad), *model)->setMinimumWidth(kKullaniciAlaniEni);
    sutun->addLayout(form);
    sutun->addSpacing(kAralik);
    sutun->addLayout(Yetkileri());
    sutun->addSpacing(kAralik);
    sutun->addLayout(
        TamamIptal({"Command1", &FormKullaniciEkle::Command1, &FormKullaniciEkle::Command1_Click},
                   {"Command2", &FormKullaniciEkle::Command2, &FormKullaniciEkle::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    IlkOdak(Model().Text1.etkin ? "Text1" : "Text2");
}

} // namespace velora
