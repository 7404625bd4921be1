#include "qt/table/TabloPenceresi.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/ErisimTuslari.h"
#include "qt/Gorunum.h"
#include "qt/PencereYeri.h"
#include "qt/table/IsaretDugmesi.h"
#include "qt/table/KomutMenuleri.h"
#include "qt/table/MesgulCubugu.h"
#include "qt/table/RenkAciklamasi.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/UyariPaneli.h"
#include "qt/table/ZilDugmesi.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr int kSalonEni = 220;
constexpr int kSeneEni = 96;
constexpr std::chrono::seconds kDakika{60};
constexpr QSize kIlkBoy(1280, 720);
constexpr QSize kEnKucukBoy(1000, 560); // where the screen has room for it

/// A drop-down under the name of its control, with its caption before it.
QComboBox* EtiketliListe(QHBoxLayout& serit, const AcilirListe& model, QChar tus, const QString& ad) {
    auto* etiket = new QLabel(TusIsaretli(model.baslik, tus));
    auto* liste = new QComboBox;
    liste->setObjectName(ad);
    liste->setAccessibleName(QMetin(model.baslik));
    etiket->setBuddy(liste);
    serit.addWidget(etiket);
    serit.addWidget(liste);
    return liste;
}

} // namespace

TabloPenceresi::TabloPenceresi(Program& program)
    : program_(program), baglayici_(new Baglayici(program.FormTablo.Tut(), this)) {
    const auto tablo = program.FormTablo.Tut();
    auto* orta = new QWidget;
    auto* sutun = new QVBoxLayout(orta);
    sutun->setContentsMargins(0, 0, 0, 0);
    sutun->setSpacing(0);
    sutun->addWidget(UstSerit(*tablo));
    gorunum_ = new TabloGorunumu(program, *baglayici_, orta);
    gorunum_->setObjectName(QStringLiteral("Picture4"));
    gorunum_->setAccessibleName(QStringLiteral("Yıl tablosu"));
    auto* cerceve = new QHBoxLayout;
    cerceve->setContentsMargins(kAralik / 2, 0, kAralik / 2, 0);
    cerceve->addWidget(gorunum_);
    sutun->addLayout(cerceve, 1);
    setCentralWidget(orta);
    MenuleriKur(*menuBar(), program, *baglayici_, Komutlar());
    AracSeridiKur();
    DurumSeridiKur(*tablo);
    ZamanlayicilariBagla(*tablo);
    baglayici_->Izle([this, t = tablo.get()] { setWindowTitle(QMetin(t->baslik)); });
    setMinimumSize(kEnKucukBoy.boundedTo(EkrandaYer(*this)));
    resize(kIlkBoy);
    gorunum_->setFocus();
    // Only now the table is in the window whose focus the panel takes.
    new UyariPaneli(*tablo, *baglayici_, gorunum_);
}

void TabloPenceresi::BosYeriIzle(QWidget& parca) {
    parca.setMouseTracking(true);
    parca.installEventFilter(this);
    // What only shows something lets the moves over it through. What can be worked on isn't bare.
    for (QWidget* cocuk : parca.findChildren<QWidget*>())
        cocuk->setMouseTracking(cocuk->focusPolicy() == Qt::NoFocus);
}

bool TabloPenceresi::eventFilter(QObject* nesne, QEvent* olay) {
    if (olay->type() == QEvent::MouseMove && static_cast<QMouseEvent*>(olay)->buttons() == Qt::NoButton)
        baglayici_->Calistir([this] { program_.FormTablo->MouseMove(); });
    return QMainWindow::eventFilter(nesne, olay);
}

QWidget* TabloPenceresi::UstSerit(FormTablo& tablo) {
    auto* parca = new QWidget;
    auto* serit = new QHBoxLayout(parca);
    serit->setContentsMargins(kAralik, kAralik, kAralik, kAralik);
    serit->setSpacing(kAralik);
    QComboBox* salon = EtiketliListe(*serit, tablo.Salon, u'S', QStringLiteral("Salon"));
    salon->setMinimumWidth(kSalonEni);
    baglayici_->Bagla(*salon, tablo.Salon);
    serit->addSpacing(kAralik);
    QComboBox* sene = EtiketliListe(*serit, tablo.Sene, u'l', QStringLiteral("Sene"));
    sene->setMinimumWidth(kSeneEni);
    baglayici_->Bagla(*sene, tablo.Sene);
    serit->addSpacing(kAralik);
    // Behind the lists for the Tab key too; without it the key goes on to the table.
    const auto tabloyaDon = [this] { gorunum_->setFocus(); };
    serit->addWidget(new ZilDugmesi(tablo, *baglayici_, tabloyaDon));
    struct Isaret {
        OnlineIsareti FormTablo::*model;
        void (FormTablo::*tiklandi)();
        IsaretResimleri resimler;
    };
    for (const Isaret& isaret : {Isaret{&FormTablo::YeniRezervasyonVar,
                                        &FormTablo::YeniRezervasyonVar_Click,
                                        {"YeniRezervasyonVar", "rezervasyon", "rezervasyon-sari"}},
                                 Isaret{&FormTablo::YeniDuyuru,
                                        &FormTablo::YeniDuyuru_Click,
                                        {"YeniDuyuru", "duyuru", "duyuru-yesil"}}}) {
        const auto bas = [this, &tablo, tiklandi = isaret.tiklandi] {
            baglayici_->Bas([&tablo, tiklandi] { (tablo.*tiklandi)(); });
        };
        serit->addWidget(
            new IsaretDugmesi(tablo.*isaret.model, isaret.resimler, *baglayici_, bas, tabloyaDon));
    }
    serit->addStretch(1);
    serit->addWidget(new RenkAciklamasi(program_, *baglayici_, parca));
    BosYeriIzle(*parca);
    return parca;
}

void TabloPenceresi::AracSeridiKur() {
    auto* serit = new QToolBar;
    serit->setObjectName(QStringLiteral("Toolbar1"));
    serit->setWindowTitle(QStringLiteral("Araçlar"));
    serit->setMovable(false);
    serit->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    AraclariKur(*serit, program_, *baglayici_, Komutlar());
    addToolBar(serit);
    // The toolkit's own menu could put the tool bar away.
    setContextMenuPolicy(Qt::NoContextMenu);
}

void TabloPenceresi::DurumSeridiKur(FormTablo& tablo) {
    statusBar()->setSizeGripEnabled(false);
    const auto panelYap = [this](const char* ad, const Metin& yazi) {
        auto* panel = new QLabel;
        panel->setObjectName(QString::fromLatin1(ad));
        panel->setTextFormat(Qt::PlainText);
        panel->setContentsMargins(kAralik, 0, kAralik, 0);
        baglayici_->Izle([panel, &yazi] { panel->setText(QMetin(yazi)); });
        return panel;
    };
    QLabel* kullanici = panelYap("StatusBar1", tablo.StatusBar1);
    // A long name takes no room from the table.
    kullanici->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(kullanici, 1);
    statusBar()->addPermanentWidget(new MesgulCubugu);
    statusBar()->addPermanentWidget(panelYap("Tarih", tablo.StatusBar1Saati[0]));
    statusBar()->addPermanentWidget(panelYap("Saat", tablo.StatusBar1Saati[1]));
    BosYeriIzle(*statusBar());
    saat_ = new QTimer(this);
    saat_->setObjectName(QStringLiteral("Dakika"));
    saat_->setSingleShot(true);
    saat_->setTimerType(Qt::PreciseTimer); // another one may be seconds late in so long a time
    const auto goster = [this] { Koru([this] { SaatiGoster(); }); };
    connect(saat_, &QTimer::timeout, this, goster);
    // The machine may have slept, which its timers don't notice.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, goster);
    SaatiGoster();
}

void TabloPenceresi::SaatiGoster() {
    const auto tablo = program_.FormTablo.Tut();
    // It shows minutes: nothing is woken up in between.
    saat_->start(kDakika - program_.ortam.zaman.simdi().time_since_epoch() % kDakika);
    const auto once = tablo->StatusBar1Saati;
    tablo->SaatiYaz();
    // A minute is over. The panels follow whatever is refreshed meanwhile anyway.
    if (tablo->StatusBar1Saati != once)
        Baglayici::HepsiniTazele();
}

void TabloPenceresi::ZamanlayicilariBagla(FormTablo& tablo) {
    baglayici_->Bagla(tablo.CetvelTimer, QStringLiteral("CetvelTimer"));
    baglayici_->Bagla(tablo.GunTimer, QStringLiteral("GunTimer"));
    baglayici_->Bagla(tablo.OzelHatirlatTimer, QStringLiteral("OzelHatirlatTimer"));
    baglayici_->Bagla(tablo.Saatsay, QStringLiteral("Saatsay"));
    baglayici_->Bagla(tablo.DuyuruKontrol, QStringLiteral("DuyuruKontrol"));
    baglayici_->Bagla(tablo.InternetTimer, QStringLiteral("InternetTimer"));
    baglayici_->Bagla(tablo.YayinTimer, QStringLiteral("YayinTimer"));
    baglayici_->Bagla(tablo.YedekTimer, QStringLiteral("YedekTimer"));
    baglayici_->Bagla(tablo.YeniRezTimer, QStringLiteral("YeniRezTimer"));
    baglayici_->Bagla(tablo.YeniDuyuruTimer, QStringLiteral("YeniDuyuruTimer"));
}

void TabloPenceresi::closeEvent(QCloseEvent* olay) {
    // It closes with the program alone: what stands over the table could not stand without it.
    olay->ignore();
    baglayici_->Bas([this] { program_.FormTablo->Cikissssss_Click(); });
}

} // namespace velora
