#include "qt/setup/AyarlarPenceresi.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/RenkSatirlari.h"

namespace velora {

namespace {

constexpr int kGunEni = 56;
constexpr QSize kRenkKutusu(56, 22);
constexpr int kAySutunu = 4; // months in a row

} // namespace

AyarlarPenceresi::AyarlarPenceresi(Program& program) : EkranPenceresi(program.FormAyarlar.Tut()) {
    auto* sutun = SutunKur(*this);
    auto* sayfalar = new QTabWidget;
    SayfaTuslari(*sayfalar);
    sayfalar->addTab(GenelSayfasi(), QMetin(Model().sayfalar[0]));
    sayfalar->addTab(GorunumSayfasi(), QMetin(Model().sayfalar[1]));
    auto* kaydet = DugmeYap({"Command1", &FormAyarlar::Command1, &FormAyarlar::Command1_Click});
    kaydet->setDefault(true);
    auto* iptal = DugmeYap({"Command2", &FormAyarlar::Command2, &FormAyarlar::Command2_Click});
    IptalDugmesi(iptal);
    auto* uygula = DugmeYap({"Command4", &FormAyarlar::Command4, &FormAyarlar::Command4_Click});
    auto* varsayilan = DugmeYap({"Command3", &FormAyarlar::Command3, &FormAyarlar::Command3_Click});
    sutun->addWidget(sayfalar, 1);
    sutun->addLayout(DugmeSeridi({kaydet, uygula, iptal}, {varsayilan}));
    sutun->setSizeConstraint(QLayout::SetFixedSize); // nothing in it could use more room
    IlkOdak("UyariGun");
}

QWidget* AyarlarPenceresi::GenelSayfasi() {
    FormAyarlar& ekran = Model();
    auto* sayfa = new QWidget;
    auto* sutun = SutunKur(*sayfa);
    auto* izgara = new QGridLayout;
    izgara->setSpacing(kAralik);
    izgara->setColumnStretch(2, 1);
    GunSatiriEkle(*izgara, QStringLiteral("UyariGun"), ekran.UyariGun);
    GunSatiriEkle(*izgara, QStringLiteral("UyariGun2"), ekran.UyariGun2);
    auto* liste = ParcaYap<QComboBox>(QStringLiteral("GunduzGece"), ekran.GunduzGece);
    const int satir = izgara->rowCount();
    izgara->addWidget(EtiketYap(QMetin(ekran.GunduzGece.baslik), *liste), satir, 0);
    izgara->addWidget(liste, satir, 1, 1, 2, Qt::AlignLeft);
    sutun->addLayout(izgara);
    sutun->addSpacing(kAralik);
    sutun->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Check2"), ekran.Check2));
    sutun->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Check7"), ekran.Check7));
    sutun->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Check6"), ekran.Check6));
    sutun->addSpacing(kAralik);
    sutun->addWidget(AylarKutusu());
    sutun->addStretch(1);
    return sayfa;
}

void AyarlarPenceresi::GunSatiriEkle(QGridLayout& izgara, const QString& ad, MetinKutusu& model) {
    auto* kutu = ParcaYap<QLineEdit>(ad, model);
    kutu->setFixedWidth(kGunEni);
    kutu->setAlignment(Qt::AlignRight);
    const int satir = izgara.rowCount();
    izgara.addWidget(EtiketYap(QMetin(model.baslik), *kutu), satir, 0);
    izgara.addWidget(kutu, satir, 1);
    izgara.addWidget(new QLabel(QMetin(model.sonra)), satir, 2);
}

QWidget* AyarlarPenceresi::AylarKutusu() {
    FormAyarlar& ekran = Model();
    auto* kutu = new QGroupBox;
    auto* izgara = new QGridLayout(kutu);
    izgara->setSpacing(kAralik);
    izgara->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Check3"), ekran.Check3), 0, 0, 1, kAySutunu);
    for (int ay = 1; ay <= BirTabanli<OnayKutusu, 12>::kAdet; ++ay)
        izgara->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Aylar%1").arg(ay), ekran.Aylar[ay]),
                          1 + (ay - 1) / kAySutunu, (ay - 1) % kAySutunu);
    return kutu;
}

QWidget* AyarlarPenceresi::GorunumSayfasi() {
    auto* sayfa = new QWidget;
    auto* sutunlar = new QHBoxLayout(sayfa);
    sutunlar->setContentsMargins(2 * kAralik, 2 * kAralik, 2 * kAralik, 2 * kAralik);
    sutunlar->setSpacing(4 * kAralik);
    // In two columns, each from top to bottom: in one they need more height than a small screen has.
    constexpr std::span kSatirlar(kRenkSatirlari);
    constexpr std::size_t kSolSatirlar = (kSatirlar.size() + 1) / 2;
    sutunlar->addLayout(RenkSutunu(kSatirlar.first(kSolSatirlar)));
    sutunlar->addLayout(RenkSutunu(kSatirlar.subspan(kSolSatirlar)));
    return sayfa;
}

QGridLayout* AyarlarPenceresi::RenkSutunu(std::span<const RenkSatiri> satirlar) {
    auto* izgara = new QGridLayout;
    izgara->setHorizontalSpacing(2 * kAralik);
    izgara->setVerticalSpacing(kAralik);
    izgara->addWidget(new QLabel(QMetin(kZeminRengi)), 0, 1);
    izgara->addWidget(new QLabel(QMetin(kMetinRengi)), 0, 2);
    int satir = 0;
    for (const RenkSatiri& renkler : satirlar)
        RenkSatiriEkle(*izgara, ++satir, renkler);
    izgara->setColumnStretch(0, 1);
    izgara->setRowStretch(satir + 1, 1);
    return izgara;
}

void AyarlarPenceresi::RenkSatiriEkle(QGridLayout& izgara, int satir, const RenkSatiri& renkler) {
    FormAyarlar& ekran = Model();
    const QString baslik = QMetin(renkler.onay == nullptr ? renkler.baslik : (ekran.*renkler.onay).baslik);
    QWidget* zemin = RenkKutusu(renkler.zemin, QMetin(renkler.zeminIpucu),
                                baslik + QStringLiteral(", ") + QMetin(kZeminRengi));
    if (renkler.onay != nullptr) {
        const bool gecmis = renkler.onay == &FormAyarlar::Check1;
        izgara.addWidget(ParcaYap<QCheckBox>(gecmis ? QStringLiteral("Check1") : QStringLiteral("Check5"),
                                             ekran.*renkler.onay),
                         satir, 0);
    } else {
        izgara.addWidget(EtiketYap(baslik, *zemin), satir, 0);
    }
    izgara.addWidget(zemin, satir, 1);
    if (renkler.yazi != kRenkYok)
        izgara.addWidget(RenkKutusu(renkler.yazi, QMetin(renkler.yaziIpucu),
                                    baslik + QStringLiteral(", ") + QMetin(kMetinRengi)),
                         satir, 2);
}

QWidget* AyarlarPenceresi::RenkKutusu(int renk, const QString& ipucu, const QString& okunan) {
    FormAyarlar& ekran = Model();
    auto* kutu = new QToolButton;
    Adlandir(*kutu, QStringLiteral("Renk%1").arg(renk), okunan);
    kutu->setToolTip(ipucu);
    kutu->setIconSize(kRenkKutusu);
    connect(kutu, &QToolButton::clicked, this,
            [this, &ekran, renk] { Bag().Calistir([&ekran, renk] { ekran.Renk_Click(renk); }); });
    Bag().Izle([kutu, &ekran, renk, konan = QColor()]() mutable {
        const QColor simdi = QRenk(ekran.Renk(renk));
        if (simdi == konan)
            return;
        konan = simdi;
        QPixmap resim(kRenkKutusu);
        resim.fill(simdi);
        kutu->setIcon(resim);
    });
    return kutu;
}

} // namespace velora
