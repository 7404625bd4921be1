#include "qt/accounts/BakiyePenceresi.h"

#include <array>

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
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

/// A field with its caption before it.
template <class Parca>
Parca* AlanEkle(QGridLayout& izgara, int satir, int sutun, const char* ad, const QString& yazi) {
    auto* parca = new Parca;
    Adlandir(*parca, QString::fromLatin1(ad), yazi);
    izgara.addWidget(EtiketYap(yazi, *parca), satir, sutun);
    izgara.addWidget(parca, satir, sutun + 1);
    return parca;
}

} // namespace

BakiyePenceresi::BakiyePenceresi(Program& program) : EkranPenceresi(program.FormBakiye.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    // In the window first: the keys go through the fields in the order in which they come into it.
    auto* suzgecler = new QGridLayout;
    sutun->addLayout(suzgecler);
    SuzgecleriKur(*suzgecler);
    QWidget* liste = Liste();
    sutun->addWidget(liste, 1);
    sutun->addWidget(Toplamlar());
    auto* detay = DugmeYap({"Command6", &FormBakiye::Command6, &FormBakiye::Command6_Click});
    auto* kapat = DugmeYap({"Command1", &FormBakiye::Command1, &FormBakiye::Command1_Click});
    IptalDugmesi(kapat);
    VarsayilanDugme(*findChild<QPushButton*>(QStringLiteral("ListeleGun")), *liste, *detay);
    OdagiListeyeVer(*detay, *liste);
    sutun->addLayout(DugmeSeridi({detay, kapat}));
    resize(1080, 600);
    IlkOdak("Combo2");
}

void BakiyePenceresi::SuzgecleriKur(QGridLayout& izgara) {
    izgara.setSpacing(kAralik);
    Bag().Bagla(*AlanEkle<QComboBox>(izgara, 0, 0, "Combo2", QStringLiteral("Salon Adı")), Model().Combo2);
    Bag().Bagla(*AlanEkle<QDateEdit>(izgara, 0, 3, "DTPicker1", QStringLiteral("Başlangıç Tarihi")),
                Model().DTPicker1);
    Bag().Bagla(*AlanEkle<QComboBox>(izgara, 1, 0, "Combo1", QStringLiteral("Rezervasyon Tipi")),
                Model().Combo1);
    Bag().Bagla(*AlanEkle<QDateEdit>(izgara, 1, 3, "DTPicker2", QStringLiteral("Bitiş Tarihi")),
                Model().DTPicker2);
    auto* listele = DugmeYap({"ListeleGun", &FormBakiye::Listele, &FormBakiye::ListeleGun});
    izgara.addWidget(listele, 1, 6);
    for (const int ara : {2, 5})
        izgara.setColumnMinimumWidth(ara, kAralik);
    izgara.setColumnMinimumWidth(1, kSecimEni);
    izgara.setColumnStretch(7, 1);
}

QWidget* BakiyePenceresi::Liste() {
    auto* liste = new QTreeWidget;
    Adlandir(*liste, QStringLiteral("Liste"), QStringLiteral("Rezervasyonlar"));
    Bag().Bagla(*liste, Model().Liste, Isle(&FormBakiye::Liste_Click), Isle(&FormBakiye::Liste_DblClick));
    int sutun = 0;
    for (const int en : kBakiyeSutunEnleri)
        liste->setColumnWidth(sutun++, en);
    return liste;
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
                   QMetin(kBakiyeTurleri[static_cast<std::size_t>(sira)]), Model().DTop[sira + 1]);
    const std::array sagdakiler{std::tuple{"Toplam", u"Genel Toplam", &Model().Toplam},
                                std::tuple{"Alinan", u"Alınan Ödeme", &Model().Alinan},
                                std::tuple{"Kalan", u"Kalan Ödeme", &Model().Kalan},
                                std::tuple{"Label14", u"Kesin Rezervasyon", &Model().Label14},
                                std::tuple{"Label18", u"Ön Rezervasyon", &Model().Label18},
                                std::tuple{"Label19", u"Toplam Rezervasyon", &Model().Label19}};
    int sira = 0;
    for (const auto& [ad, yazi, model] : sagdakiler) {
        ToplamEkle(*izgara, sira % 3, 6 + sira / 3 * 3, QString::fromLatin1(ad), QString::fromUtf16(yazi),
                   *model);
        ++sira;
    }
    for (const int sutun : {1, 4, 7, 10})
        izgara->setColumnStretch(sutun, 1);
    return cerceve;
}

void BakiyePenceresi::ToplamEkle(QGridLayout& izgara, int satir, int sutun, const QString& ad,
                                 const QString& yazi, Etiket& model) {
    auto* tutar = new QLabel;
    Adlandir(*tutar, ad, yazi);
    Bag().Bagla(*tutar, model);
    // The block keeps its shape when the amounts grow.
    tutar->setMinimumWidth(tutar->fontMetrics().horizontalAdvance(QStringLiteral(": 9.999.999 TL")));
    auto* baslik = new QLabel(yazi);
    for (QLabel* etiket : {baslik, tutar})
        etiket->setMargin(kAralik / 4);
    izgara.addWidget(baslik, satir, sutun);
    izgara.addWidget(tutar, satir, sutun + 1);
}

} // namespace velora
