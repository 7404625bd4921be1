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
#include "qt/accounts/RaporYerlesimi.h"
#include "screen/Program.h"

namespace velora {

namespace {

// Of the list; the last one takes what is left.
constexpr std::array kBakiyeSutunEnleri{150, 170, 76, 76, 76, 56, 130, 90, 64, 140};

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
    SuzgecEkle(izgara, 0, 0, *ParcaYap<QComboBox>(QStringLiteral("Combo2"), Model().Combo2));
    SuzgecEkle(izgara, 0, 3, *ParcaYap<QDateEdit>(QStringLiteral("DTPicker1"), Model().DTPicker1));
    SuzgecEkle(izgara, 1, 0, *ParcaYap<QComboBox>(QStringLiteral("Combo1"), Model().Combo1));
    SuzgecEkle(izgara, 1, 3, *ParcaYap<QDateEdit>(QStringLiteral("DTPicker2"), Model().DTPicker2));
    SuzgecleriBitir(izgara, *DugmeYap({"ListeleGun", &FormBakiye::Listele, &FormBakiye::ListeleGun}));
}

QWidget* BakiyePenceresi::Toplamlar() {
    QFrame* cerceve = ToplamCercevesi();
    const auto ekle = [&](int satir, int sutun, const QString& ad, Etiket& model) {
        ToplamEkle(*cerceve, satir, sutun, model, *DegerYap(ad, model));
    };
    constexpr int kSatir = static_cast<int>(kBakiyeTurleri.size()) / 2; // the kinds stand in two columns
    for (int sira = 0; sira < 2 * kSatir; ++sira)
        ekle(sira % kSatir, sira / kSatir * 3, QStringLiteral("DTop%1").arg(sira + 1),
             Model().DTop[sira + 1]);
    const std::array sagdakiler{
        std::pair{"Toplam", &Model().Toplam},   std::pair{"Alinan", &Model().Alinan},
        std::pair{"Kalan", &Model().Kalan},     std::pair{"Label14", &Model().Label14},
        std::pair{"Label18", &Model().Label18}, std::pair{"Label19", &Model().Label19}};
    int sira = 0;
    for (const auto& [ad, model] : sagdakiler) {
        ekle(sira % 3, 6 + sira / 3 * 3, QString::fromLatin1(ad), *model);
        ++sira;
    }
    return cerceve;
}

} // namespace velora
