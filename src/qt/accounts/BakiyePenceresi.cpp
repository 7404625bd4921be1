#include "qt/accounts/BakiyePenceresi.h"

#include <array>

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "accounts/FormBakiye.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

// Of the list; the last one takes what is left.
constexpr std::array kBakiyeSutunEnleri{150, 170, 76, 76, 76, 56, 130, 90, 64, 140};
constexpr int kSecimEni = 300; // of the two lists to choose from

} // namespace

BakiyePenceresi::BakiyePenceresi(Program& program) : EkranPenceresi(program.FormBakiye.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    // In the window first: the keys go through the fields in the order in which they come into it.
    auto* suzgecler = new QGridLayout;
    sutun->addLayout(suzgecler);
    SuzgecleriKur(*suzgecler);
    QTreeWidget* liste = ListeYap(kBakiyeSutunEnleri, &FormBakiye::Liste_Click, &FormBakiye::Liste_DblClick);
    liste->setSelectionMode(QAbstractItemView::ExtendedSelection);
    sutun->addWidget(liste, 1);
    sutun->addWidget(Toplamlar());
    auto* aktar = DugmeYap({"Command2", &FormBakiye::Command2, &FormBakiye::Command2_Click});
    auto* detay = DugmeYap({"Command6", &FormBakiye::Command6, &FormBakiye::Command6_Click});
    auto* kapat = DugmeYap({"Command1", &FormBakiye::Command1, &FormBakiye::Command1_Click});
    IptalDugmesi(kapat);
    auto* listele = findChild<QPushButton*>(QStringLiteral("ListeleGun"));
    VarsayilanDugme(*listele, *liste, *detay);
    BulunanaGotur(*listele, *liste);
    OdagiListeyeVer(*detay, *liste);
    sutun->addLayout(DugmeSeridi({aktar, detay, kapat}, {}, OzetYap(Model().Ozet)));
    resize(1080, 600);
    IlkOdak("Combo2");
}

void BakiyePenceresi::SuzgecleriKur(QGridLayout& izgara) {
    izgara.setSpacing(kAralik);
    const auto ekle = [&](int satir, int sutun, QWidget* parca) {
        izgara.addWidget(EtiketYap(parca->accessibleName(), *parca), satir, sutun);
        izgara.addWidget(parca, satir, sutun + 1);
    };
    ekle(0, 0, ParcaYap<QComboBox>(QStringLiteral("Combo2"), Model().Combo2));
    ekle(0, 3, ParcaYap<QDateEdit>(QStringLiteral("DTPicker1"), Model().DTPicker1));
    ekle(1, 0, ParcaYap<QComboBox>(QStringLiteral("Combo1"), Model().Combo1));
    ekle(1, 3, ParcaYap<QDateEdit>(QStringLiteral("DTPicker2"), Model().DTPicker2));
    auto* listele = DugmeYap({"ListeleGun", &FormBakiye::Listele, &FormBakiye::ListeleGun});
    izgara.addWidget(listele, 1, 6);
    for (const int ara : {2, 5})
        izgara.setColumnMinimumWidth(ara, kAralik);
    izgara.setColumnMinimumWidth(1, kSecimEni);
    izgara.setColumnStretch(7, 1);
}

QWidget* BakiyePenceresi::Toplamlar() {
    auto* cerceve = new QFrame;
    cerceve->setFrameShape(QFrame::StyledPanel);
    cerceve->setBackgroundRole(QPalette::Base);
    cerceve->setAutoFillBackground(true);
    auto* izgara = new QGridLayout(cerceve);
    izgara->setHorizontalSpacing(kAralik);
    izgara->setVerticalSpacing(0);
    constexpr int kSatir = static_cast<int>(kBakiyeTurleri.size()) / 2; // the kinds stand in two columns
    for (int sira = 0; sira < 2 * kSatir; ++sira)
        ToplamEkle(*izgara, sira % kSatir, sira / kSatir * 3, QStringLiteral("DTop%1").arg(sira + 1),
                   Model().DTop[sira + 1]);
    const std::array sagdakiler{
        std::pair{"Toplam", &Model().Toplam},   std::pair{"Alinan", &Model().Alinan},
        std::pair{"Kalan", &Model().Kalan},     std::pair{"Label14", &Model().Label14},
        std::pair{"Label18", &Model().Label18}, std::pair{"Label19", &Model().Label19}};
    int sira = 0;
    for (const auto& [ad, model] : sagdakiler) {
        ToplamEkle(*izgara, sira % 3, 6 + sira / 3 * 3, QString::fromLatin1(ad), *model);
        ++sira;
    }
    for (const int sutun : {1, 4, 7, 10})
        izgara->setColumnStretch(sutun, 1);
    return cerceve;
}

void BakiyePenceresi::ToplamEkle(QGridLayout& izgara, int satir, int sutun, const QString& ad,
                                 Etiket& model) {
    QLabel* tutar = DegerYap(ad, model);
    // The block keeps its shape when the amounts grow.
    tutar->setMinimumWidth(tutar->fontMetrics().horizontalAdvance(QStringLiteral(": 9.999.999 TL")));
    auto* baslik = new QLabel(QMetin(model.once));
    for (QLabel* etiket : {baslik, tutar})
        etiket->setMargin(kAralik / 4);
    izgara.addWidget(baslik, satir, sutun);
    izgara.addWidget(tutar, satir, sutun + 1);
}

} // namespace velora
