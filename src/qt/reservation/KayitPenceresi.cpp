#include "qt/reservation/KayitPenceresi.h"

#include <array>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "reservation/FormKayit.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kAlanEni = 300;
constexpr int kKisaAlanEni = 110;
constexpr int kCokSatirBoyu = 64;

struct AlanYazisi {
    int no;
    const char16_t* yazi;
    const char16_t* ardindan; // what stands behind the field
};

// The first page, column by column.
constexpr std::array<AlanYazisi, 8> kSolAlanlar{{{1, u"Adı Soyadı", u""},
                                                 {2, u"Yöresi", u""},
                                                 {3, u"Gelin / Damat", u""},
                                                 {4, u"Niteliği", u""},
                                                 {5, u"Telefon", u""},
                                                 {6, u"Cep", u""},
                                                 {7, u"Adres", u""},
                                                 {8, u"Toplam Ücret", u"TL"}}};
constexpr std::array<AlanYazisi, 7> kSagAlanlar{{{11, u"Ön Açıklama", u""},
                                                 {12, u"Başlama Saati", u""},
                                                 {15, u"Bitiş Saati", u""},
                                                 {13, u"Sözleşme Tarihi", u"(gün.ay.yıl)"},
                                                 {14, u"Sözleşme No", u""},
                                                 {16, u"T.C. Kimlik No", u""},
                                                 {17, u"Davetli Sayısı", u""}}};
constexpr std::array kCokSatirlilar{7, 11};
constexpr std::array kKisalar{8, 12, 13, 14, 15, 18};

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
    sayfalar_->addTab(GenelSayfasi(), QStringLiteral("Genel Bilgiler "));
    sayfalar_->addTab(OdemeSayfasi(), QStringLiteral("Ödemeler"));
    sayfalar_->addTab(MenuSayfasi(), QStringLiteral("Menüler"));
    sayfalar_->addTab(HizmetSayfasi(), QStringLiteral("Hizmetler"));
    sutun->addLayout(Dugmeler()); // behind the pages for the Tab key too
    connect(sayfalar_, &QTabWidget::tabBarClicked, this,
            [this](int sira) { Bag().Calistir([this, sira] { Model().SSTab1 = sira + 1; }); });
    connect(sayfalar_, &QTabWidget::currentChanged, this,
            [this](int sira) { Bag().Calistir([this, sira] { Model().SSTab1 = sira + 1; }); });
    Bag().Izle([this] { sayfalar_->setCurrentIndex(Model().SSTab1 - 1); });
    IlkOdak("Kay1");
}

QLayout* KayitPenceresi::Dugmeler() {
    auto* kaydet = DugmeYap({"Command1", &FormKayit::Command1, &FormKayit::Command1_Click});
    kaydet->setDefault(true);
    auto* kapat = DugmeYap({"Command2", &FormKayit::Command2, &FormKayit::Command2_Click});
    IptalDugmesi(kapat);
    return DugmeSeridi({kaydet, kapat});
}

QWidget* KayitPenceresi::AlanYap(int no) {
    MetinKutusu& model = Model().Kay[no];
    if (no == 4) {
        auto* kutu = new QComboBox;
        Bag().Bagla(*kutu, model, Model().Kay4Listesi);
        return kutu;
    }
    if (Icinde(kCokSatirlilar, no)) {
        auto* kutu = new QPlainTextEdit;
        kutu->setFixedHeight(kCokSatirBoyu);
        Bag().Bagla(*kutu, model);
        return kutu;
    }
    auto* kutu = new QLineEdit;
    Baglayici::AlanIsleri isler;
    if (no == 8) {
        kutu->setAlignment(Qt::AlignRight);
        isler.odakGitti = Isle(&FormKayit::Kay8_LostFocus);
    } else if (no == 12) {
        isler.odakGitti = Isle(&FormKayit::Kay12_LostFocus);
    }
    Bag().Bagla(*kutu, model, isler);
    return kutu;
}

void KayitPenceresi::AlanEkle(QFormLayout& form, int no, const QString& yazi, const QString& ardindan) {
    QWidget* kutu = AlanYap(no);
    Adlandir(*kutu, AlanAdi("Kay", no), yazi);
    QLabel* etiket = EtiketYap(yazi, *kutu);
    if (!Icinde(kKisalar, no)) {
        kutu->setMinimumWidth(kAlanEni);
        form.addRow(etiket, kutu);
        return;
    }
    auto* satir = new QHBoxLayout;
    satir->setSpacing(kAralik);
    kutu->setFixedWidth(kKisaAlanEni);
    satir->addWidget(kutu);
    if (no == 8) {
        satir->addWidget(new QLabel(ardindan));
        satir->addSpacing(kAralik);
        satir->addWidget(DugmeYap({"Command4", &FormKayit::Command4, &FormKayit::Command4_Click}));
    } else {
        satir->addWidget(new QLabel(ardindan));
    }
    satir->addStretch(1);
    form.addRow(etiket, satir);
}

QWidget* KayitPenceresi::GenelSayfasi() {
    auto* sayfa = new QWidget;
    auto* sutunlar = new QHBoxLayout(sayfa);
    sutunlar->setContentsMargins(2 * kAralik, 2 * kAralik, 2 * kAralik, 2 * kAralik);
    sutunlar->setSpacing(4 * kAralik);
    QFormLayout* sol = FormKur();
    auto* tarih = new QLabel;
    Adlandir(*tarih, QStringLiteral("Tarih"), QStringLiteral("Rezervasyon Tarihi"));
    tarih->setTextFormat(Qt::PlainText);
    QFont kalin = tarih->font();
    kalin.setBold(true);
    tarih->setFont(kalin);
    Bag().Izle([this, tarih] { tarih->setText(QMetin(Model().Tarih)); });
    sol->addRow(QStringLiteral("Rezervasyon Tarihi"), tarih);
    for (const AlanYazisi& alan : kSolAlanlar)
        AlanEkle(*sol, alan.no, QString::fromUtf16(alan.yazi), QString::fromUtf16(alan.ardindan));
    QFormLayout* sag = FormKur();
    for (const AlanYazisi& alan : kSagAlanlar)
        AlanEkle(*sag, alan.no, QString::fromUtf16(alan.yazi), QString::fromUtf16(alan.ardindan));
    sag->addRow(DurumSecimi());
    sag->addRow(HatirlatmaSecimi());
    // Rows keep their distance when the window grows.
    for (QFormLayout* form : {sol, sag}) {
        auto* sutun = new QVBoxLayout;
        sutun->addLayout(form);
        sutun->addStretch(1);
        sutunlar->addLayout(sutun, 1);
    }
    return sayfa;
}

QWidget* KayitPenceresi::DurumSecimi() {
    auto* parca = new QWidget;
    auto* satir = new QHBoxLayout(parca);
    satir->setContentsMargins(0, 0, 0, 0);
    satir->setSpacing(2 * kAralik);
    const std::array secenekler{std::pair{u"Kesin Rezervasyon", &Model().Option1},
                                std::pair{u"Ön Rezervasyon", &Model().Option2}};
    int no = 0;
    for (const auto& [yazi, model] : secenekler) {
        auto* dugme = new QRadioButton(QString::fromUtf16(yazi));
        Adlandir(*dugme, AlanAdi("Option", ++no), dugme->text());
        Bag().Bagla(*dugme, *model);
        satir->addWidget(dugme);
    }
    satir->addStretch(1);
    return parca;
}

QWidget* KayitPenceresi::HatirlatmaSecimi() {
    auto* parca = new QWidget;
    auto* satir = new QGridLayout(parca);
    satir->setContentsMargins(0, 0, 0, 0);
    satir->setSpacing(kAralik);
    auto* yaklasinca = new QCheckBox(QStringLiteral("Yaklaşınca Hatırlat"));
    Adlandir(*yaklasinca, QStringLiteral("Check18"), yaklasinca->text());
    Bag().Bagla(*yaklasinca, Model().Check18);
    auto* tarihte = new QCheckBox(QStringLiteral("Bu Tarihte Hatırlat"));
    Adlandir(*tarihte, QStringLiteral("Check19"), tarihte->text());
    Bag().Bagla(*tarihte, Model().Check19, Isle(&FormKayit::Check19_MouseUp));
    QWidget* tarih = AlanYap(18);
    Adlandir(*tarih, QStringLiteral("Kay18"), QStringLiteral("Bu Tarihte Hatırlat"));
    tarih->setFixedWidth(kKisaAlanEni);
    satir->addWidget(yaklasinca, 0, 0);
    satir->addWidget(tarihte, 1, 0);
    satir->addWidget(tarih, 1, 1);
    satir->setColumnStretch(2, 1);
    return parca;
}

QWidget* KayitPenceresi::MenuSayfasi() {
    auto* sayfa = new QWidget;
    QVBoxLayout* sutun = SutunKur(*sayfa);
    auto* secim = new QComboBox;
    Adlandir(*secim, QStringLiteral("Combo1"), QStringLiteral("Menü"));
    Bag().Bagla(*secim, Model().Combo1);
    auto* metin = new QPlainTextEdit;
    Adlandir(*metin, QStringLiteral("Label20"), QStringLiteral("Menü içeriği"));
    Bag().Bagla(*metin, Model().Label20);
    auto* aciklama = new QPlainTextEdit;
    QLabel* baslik = EtiketYap(QStringLiteral("Özel İstekler ve Açıklamalar"), *aciklama);
    Adlandir(*aciklama, QStringLiteral("Aciklamalar"), baslik->text());
    Bag().Bagla(*aciklama, Model().Aciklamalar);
    sutun->addWidget(secim);
    sutun->addWidget(metin, 1);
    sutun->addSpacing(kAralik);
    sutun->addWidget(baslik);
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
        const QString ad = QMetin(kHizmetAdlari[static_cast<std::size_t>(no - 1)]);
        auto* kutu = new QCheckBox(ad);
        Adlandir(*kutu, AlanAdi("Check", no), ad);
        Bag().Bagla(*kutu, Model().Check[no], [this, no] { Model().Check_MouseUp(no); });
        auto* not_ = new QLineEdit;
        Adlandir(*not_, AlanAdi("TT", no), ad + QStringLiteral(", not"));
        Bag().Bagla(*not_, Model().TT[no]);
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
