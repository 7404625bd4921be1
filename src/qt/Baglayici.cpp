#include "qt/Baglayici.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTimer>

#include "qt/Ceviri.h"

namespace velora {

namespace {

constexpr int kKisaIs = 100; // milliseconds up to which a handler only shows its end
constexpr int kSinirsiz = 32767;

/// What all binders share.
struct Ortak {
    std::vector<Baglayici*> canlilar;
    int derinlik = 0; // handlers that run, one inside the other
    bool tazeleniyor = false;
    bool uzun = false;       // the outermost handler has begun to wait for the user
    QElapsedTimer baslangic; // of the outermost handler
};

Ortak& Durum() {
    static Ortak durum;
    return durum;
}

/// Counts a running handler, also when it ends by an exception.
class IsSayaci {
  public:
    IsSayaci() {
        if (Durum().derinlik++ > 0)
            return;
        Durum().baslangic.start();
        Durum().uzun = false;
    }
    ~IsSayaci() { --Durum().derinlik; }
    IsSayaci(const IsSayaci&) = delete;
    IsSayaci& operator=(const IsSayaci&) = delete;
};

void RenkVer(QWidget& parca, QPalette::ColorRole rol, const QColor& renk) {
    if (parca.palette().color(rol) == renk)
        return;
    QPalette palet = parca.palette();
    palet.setColor(rol, renk);
    parca.setPalette(palet);
}

} // namespace

Baglayici::Baglayici(std::weak_ptr<const void> ekran, QObject* pencere)
    : QObject(pencere), ekran_(std::move(ekran)) {
    Durum().canlilar.push_back(this);
}

Baglayici::~Baglayici() {
    std::erase(Durum().canlilar, this);
}

void Baglayici::Izle(Isleyici tazele) {
    tazele();
    tazeleyenler_.push_back(std::move(tazele));
}

void Baglayici::Calistir(const Isleyici& isleyici) {
    // Kept here: the handler may unload its own screen.
    const auto ekran = ekran_.lock();
    if (!ekran || !isleyici || Durum().tazeleniyor)
        return;
    {
        const IsSayaci sayac;
        Koru(isleyici);
    }
    HepsiniTazele();
}

void Baglayici::HepsiniTazele() {
    Ortak& durum = Durum();
    if (durum.tazeleniyor)
        return;
    durum.tazeleniyor = true;
    const std::vector<Baglayici*> canlilar = durum.canlilar;
    for (Baglayici* baglayici : canlilar)
        Koru([baglayici] { baglayici->Tazele(); });
    durum.tazeleniyor = false;
}

bool Baglayici::KisaIsSuruyor() {
    const Ortak& durum = Durum();
    return durum.derinlik > 0 && !durum.uzun && !durum.baslangic.hasExpired(kKisaIs);
}

void Baglayici::KullaniciBekleniyor() {
    Durum().uzun = true;
    HepsiniTazele();
}

void Baglayici::Tazele() {
    const auto ekran = ekran_.lock();
    if (!ekran)
        return;
    for (const Isleyici& tazele : tazeleyenler_)
        tazele();
}

bool Baglayici::eventFilter(QObject* nesne, QEvent* olay) {
    const auto* parca = qobject_cast<QWidget*>(nesne);
    if (olay->type() != QEvent::Wheel || parca == nullptr || parca->hasFocus())
        return QObject::eventFilter(nesne, olay);
    olay->ignore();
    return true;
}

void Baglayici::Bagla(QCheckBox& kutu, OnayKutusu& model) {
    connect(&kutu, &QCheckBox::clicked, this,
            [this, &model] { Calistir([&model] { model.Ata(model.deger == 0 ? 1 : 0); }); });
    Izle([&kutu, &model] {
        const QSignalBlocker sus(&kutu);
        // A number from a file that is neither on nor off shows as neither.
        const auto gorunen = model.deger == 0   ? Qt::Unchecked
                             : model.deger == 1 ? Qt::Checked
                                                : Qt::PartiallyChecked;
        kutu.setCheckState(gorunen);
        kutu.setTristate(gorunen == Qt::PartiallyChecked);
        kutu.setEnabled(model.etkin);
    });
}

void Baglayici::Bagla(QLineEdit& kutu, MetinKutusu& model, const Isleyici& degisti) {
    connect(&kutu, &QLineEdit::textEdited, this, [this, &model, degisti](const QString& metin) {
        Calistir([&model, &metin, &degisti] {
            model.metin = MetinYap(metin);
            if (degisti)
                degisti();
        });
    });
    Izle([&kutu, &model] {
        const QSignalBlocker sus(&kutu);
        const QString metin = QMetin(model.metin);
        // The limit binds typing alone: a longer text that stands in the model stays whole.
        const int sinir = model.enUzun > 0 ? model.enUzun : kSinirsiz;
        kutu.setMaxLength(std::max({sinir, static_cast<int>(metin.size()), kutu.maxLength()}));
        if (kutu.text() != metin)
            kutu.setText(metin);
        kutu.setMaxLength(std::max(sinir, static_cast<int>(metin.size())));
        kutu.setEnabled(model.etkin);
        kutu.setReadOnly(model.kilitli);
        RenkVer(kutu, QPalette::Base,
                model.beyazZemin ? QColor(Qt::white) : kutu.palette().color(QPalette::Window));
    });
}

void Baglayici::Bagla(QAbstractButton& dugme, Dugme& model, const Isleyici& tiklandi) {
    connect(&dugme, &QAbstractButton::clicked, this, [this, tiklandi] { Calistir(tiklandi); });
    Izle([&dugme, &model] {
        dugme.setText(QMetin(model.baslik));
        dugme.setToolTip(QIpucu(model.ipucu));
        dugme.setEnabled(model.etkin);
        dugme.setVisible(model.gorunur);
    });
}

void Baglayici::Bagla(QComboBox& kutu, AcilirListe& model) {
    kutu.installEventFilter(this);
    connect(&kutu, &QComboBox::activated, this,
            [this, &model](int sira) { Calistir([&model, sira] { model.Sec(sira); }); });
    Izle([&kutu, &model, konan = std::vector<Metin>()]() mutable {
        const QSignalBlocker sus(&kutu);
        if (konan != model.ogeler) {
            kutu.clear();
            for (const Metin& oge : model.ogeler)
                kutu.addItem(QMetin(oge));
            konan = model.ogeler;
        }
        kutu.setCurrentIndex(model.secili);
        if (model.secili < 0)
            kutu.setPlaceholderText(QMetin(model.serbest));
        kutu.setEnabled(model.etkin);
    });
}

void Baglayici::Bagla(QAction& girdi, MenuGirdisi& model, const Isleyici& tiklandi) {
    connect(&girdi, &QAction::triggered, this, [this, tiklandi] { Calistir(tiklandi); });
    Izle([&girdi, &model] {
        girdi.setText(QMetin(model.baslik));
        girdi.setEnabled(model.etkin);
        girdi.setVisible(model.gorunur);
    });
}

void Baglayici::Bagla(QLabel& etiket, Etiket& model) {
    etiket.setTextFormat(Qt::PlainText);
    etiket.setAutoFillBackground(true);
    Izle([&etiket, &model] {
        etiket.setText(QMetin(model.baslik));
        RenkVer(etiket, QPalette::Window, QRenk(model.zemin));
        RenkVer(etiket, QPalette::WindowText, QRenk(model.yazi));
        etiket.setVisible(model.gorunur);
    });
}

void Baglayici::Bagla(Zamanlayici& model, const QString& ad) {
    auto* saat = new QTimer(this);
    saat->setObjectName(ad);
    connect(saat, &QTimer::timeout, this, [this, &model] { Calistir([&model] { model.Calis(); }); });
    Izle([saat, &model] {
        if (model.aralik <= 0)
            saat->stop();
        else if (!saat->isActive() || saat->interval() != model.aralik)
            saat->start(model.aralik);
    });
}

} // namespace velora
