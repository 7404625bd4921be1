#include "qt/reservation/KayitPenceresi.h"

#include <array>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/CokSatirKutusu.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "reservation/FormKayit.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kAlanEni = 300;
constexpr int kKisaAlanEni = 110;
constexpr int kCokSatir = 2; // rows of the page that a field of many lines takes
constexpr int kSolSutun = 0;
constexpr int kSagSutun = 3; // each a caption and a field; between them a gap

// The fields of the first page, column by column.
constexpr std::array kSolAlanlar{AnaNo::AdiSoyadi, AnaNo::Yoresi, AnaNo::GelinDamat, AnaNo::Niteligi,
                                 AnaNo::Telefon,   AnaNo::Cep,    AnaNo::Adres,      AnaNo::ToplamUcret};
constexpr std::array kSagAlanlar{AnaNo::OnAciklama,     AnaNo::BaslamaSaati, AnaNo::BitisSaati,
                                 AnaNo::SozlesmeTarihi, AnaNo::SozlesmeNo,   AnaNo::KimlikNo,
                                 AnaNo::DavetliSayisi};
constexpr std::array kCokSatirlilar{AnaNo::Adres, AnaNo::OnAciklama};
constexpr std::array kKisalar{AnaNo::ToplamUcret, AnaNo::BaslamaSaati, AnaNo::SozlesmeTarihi,
                              AnaNo::SozlesmeNo,  AnaNo::BitisSaati,   AnaNo::HatirlatmaTarihi};

template <class Dizi>
bool Icinde(const Dizi& dizi, int no) {
    return std::find(dizi.begin(), dizi.end(), no) != dizi.end();
}

QString AlanAdi(const char* dizi, int no) {
    return QString::fromLatin1(dizi) + QString::number(no);
}

} // namespace

KayitPenceresi::KayitPenceresi(Program& program)
    : EkranPenceresi(program.FormKayit.Tut()), sayfalar_(new QTabWidget) {
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(sayfalar_);
    sayfalar_->setObjectName(QStringLiteral("SSTab1"));
    SayfaTuslari(*sayfalar_);
    std::size_t no = 0;
    for (QWidget* sayfa : {GenelSayfasi(), OdemeSayfasi(), MenuSayfasi(), HizmetSayfasi()})
        sayfalar_->addTab(sayfa, QMetin(Model().sayfalar[no++]));
    // Behind the pages for the Tab key too.
    auto* yazdir = DugmeYap({"Command3", &FormKayit::Command3, &FormKayit::Command3_Click});
    auto* pdf = DugmeYap({"Pdf", &FormKayit::Pdf, &FormKayit::Pdf_Click});
    sutun->addLayout(TamamIptal({"Command1", &FormKayit::Command1, &FormKayit::Command1_Click},
                                {"Command2", &FormKayit::Command2, &FormKayit::Command2_Click},
                                {yazdir, pdf}));
    connect(sayfalar_, &QTabWidget::currentChanged, this,
            [this](int sira) { Bag().Calistir([this, sira] { Model().SSTab1 = sira + 1; }); });
    Bag().Izle([this] { sayfalar_->setCurrentIndex(Model().SSTab1 - 1); });
    IlkOdak("Kay1");
}

QWidget* KayitPenceresi::AlanYap(int no) {
    MetinKutusu& model = Model().Kay[no];
    const QString ad = AlanAdi("Kay", no);
    if (!model.ogeler.empty())
        return ParcaYap<QComboBox>(ad, model);
    if (Icinde(kCokSatirlilar, no)) {
        auto* kutu = ParcaYap<CokSatirKutusu>(ad, model);
        kutu->setMinimumHeight(0);
        kutu->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // as high as its rows
        return kutu;
    }
    Baglayici::AlanIsleri isler;
    if (no == AnaNo::ToplamUcret)
        isler.odakGitti = Isle(&FormKayit::Kay8_LostFocus);
    if (no == AnaNo::BaslamaSaati)
        isler.odakGitti = Isle(&FormKayit::Kay12_LostFocus);
    auto* kutu = ParcaYap<QLineEdit>(ad, model, isler);
    if (no == AnaNo::ToplamUcret)
        kutu->setAlignment(Qt::AlignRight);
    return kutu;
}

int KayitPenceresi::AlanEkle(QGridLayout& izgara, int satir, int sutun, int no) {
    const MetinKutusu& model = Model().Kay[no];
    QWidget* kutu = AlanYap(no);
    QLabel* etiket = EtiketYap(QMetin(model.baslik), *kutu);
    if (!Icinde(kKisalar, no)) {
        const int boy = Icinde(kCokSatirlilar, no) ? kCokSatir : 1;
        kutu->setMinimumWidth(kAlanEni);
        izgara.addWidget(etiket, satir, sutun);
        izgara.addWidget(kutu, satir, sutun + 1, boy, 1);
        return boy;
    }
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    kutu->setFixedWidth(kKisaAlanEni);
    serit->addWidget(kutu);
    serit->addWidget(new QLabel(QMetin(model.sonra)));
    if (no == AnaNo::ToplamUcret) {
        serit->addSpacing(kAralik);
        serit->addWidget(DugmeYap({"Command4", &FormKayit::Command4, &FormKayit::Command4_Click}));
    }
    serit->addStretch(1);
    izgara.addWidget(etiket, satir, sutun);
    izgara.addLayout(serit, satir, sutun + 1);
    return 1;
}

/// Which day of which hall. A long name of a hall is broken and widens nothing.
void KayitPenceresi::GunSatiri(QGridLayout& izgara) {
    const auto yazi = [this](const QString& ad, const Metin& baslik, const Metin& metin) {
        auto* etiket = new QLabel;
        etiket->setObjectName(ad);
        etiket->setTextFormat(Qt::PlainText);
        QFont kalin = etiket->font();
        kalin.setBold(true);
        etiket->setFont(kalin);
        Bag().Izle([etiket, &baslik, &metin] {
            etiket->setText(QMetin(metin));
            Okut(*etiket, QMetin(baslik + u": " + metin));
        });
        return etiket;
    };
    QLabel* tarih = yazi(QStringLiteral("Tarih"), Model().tarihBaslik, Model().Tarih);
    QLabel* salon = yazi(QStringLiteral("SalonAdi"), Model().SalonAdi.once, Model().SalonAdi.baslik);
    salon->setWordWrap(true);
    auto* satir = new QHBoxLayout;
    satir->setSpacing(kAralik);
    satir->addWidget(tarih);
    satir->addSpacing(kAralik);
    satir->addWidget(EtiketYap(QMetin(Model().SalonAdi.once), *salon));
    satir->addWidget(salon, 1);
    izgara.addWidget(EtiketYap(QMetin(Model().tarihBaslik), *tarih), 0, kSolSutun);
    izgara.addLayout(satir, 0, kSolSutun + 1);
}

QWidget* KayitPenceresi::GenelSayfasi() {
    auto* sayfa = new QWidget;
    auto* izgara = new QGridLayout(sayfa);
    izgara->setContentsMargins(2 * kAralik, 2 * kAralik, 2 * kAralik, 2 * kAralik);
    izgara->setSpacing(kAralik);
    GunSatiri(*izgara);
    int satir = 1;
    for (const int no : kSolAlanlar)
        satir += AlanEkle(*izgara, satir, kSolSutun, no);
    satir = 0;
    for (const int no : kSagAlanlar)
        satir += AlanEkle(*izgara, satir, kSagSutun, no);
    izgara->addWidget(DurumSecimi(), satir++, kSagSutun, 1, 2);
    izgara->addWidget(ParcaYap<QCheckBox>(QStringLiteral("Check18"), Model().Check18), satir++, kSagSutun, 1,
                      2);
    izgara->addWidget(HatirlatmaSecimi(), satir++, kSagSutun, 1, 2);
    // Rows keep their height and distance when the window grows.
    const int boy = izgara->itemAtPosition(1, kSolSutun + 1)->sizeHint().height();
    for (int sira = 0; sira < satir; ++sira)
        izgara->setRowMinimumHeight(sira, boy);
    izgara->setRowStretch(satir, 1);
    izgara->setColumnMinimumWidth(kSagSutun - 1, 2 * kAralik);
    izgara->setColumnStretch(kSolSutun + 1, 1);
    izgara->setColumnStretch(kSagSutun + 1, 1);
    return sayfa;
}

QWidget* KayitPenceresi::DurumSecimi() {
    auto* parca = new QWidget;
    auto* satir = new QHBoxLayout(parca);
    satir->setContentsMargins(0, 0, 0, 0);
    satir->setSpacing(2 * kAralik);
    satir->addWidget(ParcaYap<QRadioButton>(QStringLiteral("Option1"), Model().Option1));
    satir->addWidget(ParcaYap<QRadioButton>(QStringLiteral("Option2"), Model().Option2));
    satir->addStretch(1);
    return parca;
}

QWidget* KayitPenceresi::HatirlatmaSecimi() {
    auto* parca = new QWidget;
    auto* satir = new QHBoxLayout(parca);
    satir->setContentsMargins(0, 0, 0, 0);
    satir->setSpacing(kAralik);
    satir->addWidget(
        ParcaYap<QCheckBox>(QStringLiteral("Check19"), Model().Check19, Isle(&FormKayit::Check19_MouseUp)));
    QWidget* tarih = AlanYap(AnaNo::HatirlatmaTarihi);
    tarih->setFixedWidth(kKisaAlanEni);
    satir->addWidget(tarih);
    satir->addStretch(1);
    return parca;
}

QWidget* KayitPenceresi::MenuSayfasi() {
    auto* sayfa = new QWidget;
    QVBoxLayout* sutun = SutunKur(*sayfa);
    auto* secim = ParcaYap<QComboBox>(QStringLiteral("Combo1"), Model().Combo1);
    auto* metin = ParcaYap<CokSatirKutusu>(QStringLiteral("Label20"), Model().Label20);
    auto* aciklama = ParcaYap<CokSatirKutusu>(QStringLiteral("Aciklamalar"), Model().Aciklamalar);
    sutun->addWidget(EtiketYap(QMetin(Model().Combo1.baslik), *secim));
    sutun->addWidget(secim);
    sutun->addWidget(metin, 1);
    sutun->addSpacing(kAralik);
    sutun->addWidget(EtiketYap(QMetin(Model().Aciklamalar.baslik), *aciklama));
    sutun->addWidget(aciklama, 1);
    return sayfa;
}

QWidget* KayitPenceresi::HizmetSayfasi() {
    auto* sayfa = new QWidget;
    auto* izgara = new QGridLayout(sayfa);
    izgara->setContentsMargins(2 * kAralik, 2 * kAralik, 2 * kAralik, 2 * kAralik);
    izgara->setSpacing(kAralik);
    constexpr int kSatir = (kHizmetSayisi + 1) / 2; // in two columns, each from top to bottom
    for (int no = 1; no <= kHizmetSayisi; ++no) {
        auto* kutu = ParcaYap<QCheckBox>(AlanAdi("Check", no), Model().Check[no],
                                         [this, no] { Model().Check_MouseUp(no); });
        auto* not_ = ParcaYap<QLineEdit>(AlanAdi("TT", no), Model().TT[no]);
        const int sutun = (no - 1) / kSatir * 3;
        izgara->addWidget(kutu, (no - 1) % kSatir, sutun);
        izgara->addWidget(not_, (no - 1) % kSatir, sutun + 1);
    }
    izgara->setColumnMinimumWidth(2, 2 * kAralik);
    izgara->setColumnStretch(1, 1);
    izgara->setColumnStretch(4, 1);
    izgara->setRowStretch(kSatir, 1);
    return sayfa;
}

} // namespace velora
