#include "qt/accounts/KasaPencereleri.h"

#include <array>

#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "qt/accounts/RaporYerlesimi.h"
#include "screen/Program.h"

namespace velora {

namespace {

// Of the lists of cash; the last one takes what is left.
constexpr std::array kKasaSutunEnleri{100, 110, 70, 300};
constexpr int kGiderAlaniEni = 280;

} // namespace

KasaPenceresi::KasaPenceresi(Program& program) : EkranPenceresi(program.FormKasa.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    // In the window first: the keys go through the fields in the order in which they come into it.
    auto* suzgecler = new QGridLayout;
    sutun->addLayout(suzgecler);
    QPushButton* listele = SuzgecleriKur(*suzgecler);
    QTreeWidget* liste = ListeYap(kKasaSutunEnleri, nullptr);
    liste->setSelectionMode(QAbstractItemView::ExtendedSelection);
    sutun->addWidget(liste, 1);
    sutun->addWidget(Toplamlar());
    auto* aktar = DugmeYap({"Command2", &FormKasa::Command2, &FormKasa::Command2_Click});
    auto* giderler = DugmeYap({"Command3", &FormKasa::Command3, &FormKasa::Command3_Click});
    auto* ekle = DugmeYap({"Command6", &FormKasa::Command6, &FormKasa::Command6_Click});
    auto* kapat = DugmeYap({"Command1", &FormKasa::Command1, &FormKasa::Command1_Click});
    listele->setDefault(true);
    IptalDugmesi(kapat);
    BulunanaGotur(*listele, *liste);
    QLabel* ozet = OzetYap(Model().Ozet);
    ozet->setMinimumWidth(1); // a long name of a hall is cut
    sutun->addLayout(DugmeSeridi({aktar, giderler, ekle, kapat}, {}, ozet));
    resize(780, 560);
    IlkOdak("Combo2");
}

QPushButton* KasaPenceresi::SuzgecleriKur(QGridLayout& izgara) {
    SuzgecEkle(izgara, 0, 0, *ParcaYap<QComboBox>(QStringLiteral("Combo2"), Model().Combo2));
    SuzgecEkle(izgara, 0, 3, *ParcaYap<QDateEdit>(QStringLiteral("DTPicker1"), Model().DTPicker1));
    SuzgecEkle(izgara, 1, 3, *ParcaYap<QDateEdit>(QStringLiteral("DTPicker2"), Model().DTPicker2));
    auto* listele = DugmeYap({"ListeleGun", &FormKasa::Listele, &FormKasa::ListeleGun});
    SuzgecleriBitir(izgara, *listele);
    return listele;
}

QWidget* KasaPenceresi::Toplamlar() {
    QFrame* cerceve = ToplamCercevesi();
    ToplamEkle(*cerceve, 0, 0, Model().Gelirler, *DegerYap(QStringLiteral("Gelirler"), Model().Gelirler));
    ToplamEkle(*cerceve, 0, 3, Model().Giderler, *DegerYap(QStringLiteral("Giderler"), Model().Giderler));
    ToplamEkle(*cerceve, 0, 6, Model().GenelTop, *DegerYap(QStringLiteral("GenelTop"), Model().GenelTop));
    return cerceve;
}

KasaEklePenceresi::KasaEklePenceresi(Program& program) : EkranPenceresi(program.FormKasaEkle.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    SatirEkle<QComboBox>(*form, QStringLiteral("Combo1"), Model().Combo1);
    SatirEkle<QDateEdit>(*form, QStringLiteral("DTPicker1"), Model().DTPicker1);
    const Baglayici::AlanIsleri isler{.degisti = Isle(&FormKasaEkle::Tutar_Change), .odakGitti = {}};
    auto* tutar = ParcaYap<QLineEdit>(QStringLiteral("Tutar"), Model().Tutar, isler);
    tutar->setAlignment(Qt::AlignRight);
    auto* serit = new QHBoxLayout;
    serit->addWidget(tutar);
    serit->addWidget(new QLabel(QMetin(Model().Tutar.sonra)));
    form->addRow(EtiketYap(QMetin(Model().Tutar.baslik), *tutar), serit);
    auto* aciklama = SatirEkle<QLineEdit>(*form, QStringLiteral("Aciklama"), Model().Aciklama);
    aciklama->setMinimumWidth(kGiderAlaniEni);
    form->addRow(QString(), YaziYap(QStringLiteral("Ornek"), Model().Ornek));
    sutun->addLayout(form);
    sutun->addLayout(TamamIptal({"Command1", &FormKasaEkle::Command1, &FormKasaEkle::Command1_Click},
                                {"Command2", &FormKasaEkle::Command2, &FormKasaEkle::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize);
    tutar->setFocus();
}

GiderlerPenceresi::GiderlerPenceresi(Program& program) : EkranPenceresi(program.FormGiderler.Tut()) {
    QVBoxLayout* sutun = SutunKur(*this);
    sutun->addWidget(BaslikYap(QStringLiteral("Label4"), Model().Label4));
    auto* suzgecler = new QGridLayout;
    sutun->addLayout(suzgecler);
    QPushButton* listele = SuzgecleriKur(*suzgecler);
    QTreeWidget* liste = ListeYap(kKasaSutunEnleri, &FormGiderler::Liste_Click);
    sutun->addWidget(liste, 1);
    sutun->addWidget(Toplamlar());
    auto* ekle = DugmeYap({"Command3", &FormGiderler::Command3, &FormGiderler::Command3_Click});
    auto* sil = DugmeYap({"Command4", &FormGiderler::Command4, &FormGiderler::Command4_Click});
    auto* kaydet = DugmeYap({"Kaydet", &FormGiderler::Kaydet, &FormGiderler::Kaydet_Click});
    auto* makbuz = DugmeYap({"Command2", &FormGiderler::Command2, &FormGiderler::Command2_Click});
    auto* kapat = DugmeYap({"Command1", &FormGiderler::Command1, &FormGiderler::Command1_Click});
    listele->setDefault(true);
    IptalDugmesi(kapat);
    BulunanaGotur(*listele, *liste);
    for (QPushButton* dugme : {sil, makbuz})
        OdagiListeyeVer(*dugme, *liste);
    sutun->addLayout(DugmeSeridi({ekle, sil, kaydet, makbuz, kapat}));
    resize(720, 520);
    IlkOdak("Combo2");
}

QPushButton* GiderlerPenceresi::SuzgecleriKur(QGridLayout& izgara) {
    SuzgecEkle(izgara, 0, 0, *ParcaYap<QComboBox>(QStringLiteral("Combo2"), Model().Combo2));
    auto* yil = ParcaYap<QDateEdit>(QStringLiteral("DTPicker3"), Model().DTPicker3);
    yil->setDisplayFormat(QStringLiteral("yyyy"));
    SuzgecEkle(izgara, 1, 0, *yil);
    SuzgecEkle(izgara, 0, 3, *ParcaYap<QDateEdit>(QStringLiteral("DTPicker1"), Model().DTPicker1));
    SuzgecEkle(izgara, 1, 3, *ParcaYap<QDateEdit>(QStringLiteral("DTPicker2"), Model().DTPicker2));
    auto* listele = DugmeYap({"ListeleGun", &FormGiderler::Listele, &FormGiderler::ListeleGun});
    SuzgecleriBitir(izgara, *listele);
    return listele;
}

QWidget* GiderlerPenceresi::Toplamlar() {
    QFrame* cerceve = ToplamCercevesi();
    ToplamEkle(*cerceve, 0, 0, Model().Giderler, *DegerYap(QStringLiteral("Giderler"), Model().Giderler));
    return cerceve;
}

} // namespace velora
