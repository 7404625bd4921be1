#include "qt/Baglayici.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QTimer>

#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Nefes.h"
#include "qt/SecimModeli.h"
#include "screen/Bayrak.h"

namespace velora {

namespace {

/// What all binders share.
struct Ortak {
    std::vector<Baglayici*> canlilar;
    int derinlik = 0; // handlers that run, one inside the other
    bool tazeleniyor = false;
    bool bekliyor = false; // the innermost one waits for the user
    std::vector<std::pair<QPointer<Baglayici>, Baglayici::Isleyici>> ertelenenler; // what came in a breath
};

Ortak& Durum() {
    static Ortak durum;
    return durum;
}

/// Counts a running handler, also when it ends by an exception.
class IsSayaci {
  public:
    IsSayaci() : disaridaki_(std::exchange(Durum().bekliyor, false)) {
        ++Durum().derinlik;
        Nefes::Basla();
    }
    ~IsSayaci() {
        Durum().bekliyor = disaridaki_;
        if (--Durum().derinlik == 0 || disaridaki_)
            Nefes::Bitir();
    }
    IsSayaci(const IsSayaci&) = delete;
    IsSayaci& operator=(const IsSayaci&) = delete;

  private:
    bool disaridaki_; // the handler around this one waits
};

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
    Nefes::Al();
    tazeleyenler_.push_back(std::move(tazele));
}

void Baglayici::Calistir(const Isleyici& isleyici) {
    // Kept here: the handler may unload its own screen.
    const auto ekran = ekran_.lock();
    if (!ekran || !isleyici)
        return;
    if (Nefes::Aliniyor())
        return Ertele([this, isleyici] { Calistir(isleyici); });
    if (Durum().tazeleniyor)
        return;
    const QPointer<Baglayici> kendisi = this;
    ++derinlik_;
    {
        const IsSayaci sayac;
        Koru(isleyici);
    }
    if (kendisi != nullptr && --derinlik_ == 0 && birakildi_)
        parent()->deleteLater();
    HepsiniTazele();
}

/// What comes in a breath waits until no handler works any more, as it would have without one.
void Baglayici::Ertele(Isleyici is) {
    Durum().ertelenenler.emplace_back(this, std::move(is));
}

void Baglayici::ErtelenenleriCalistir() {
    if (Nefes::Aliniyor())
        return; // the end of what draws it asks again
    for (const auto& [baglayici, is] : std::exchange(Durum().ertelenenler, {}))
        if (baglayici != nullptr)
            is();
}

void Baglayici::Bas(const Isleyici& isleyici, bool aradaDa) {
    if (Nefes::Aliniyor())
        return Ertele([this, isleyici, aradaDa] { Bas(isleyici, aradaDa); });
    if (basildi_)
        return aradaDa ? Calistir(isleyici) : void();
    // The handler may unload the screen, but the window stands until it has returned.
    Calistir([this, &isleyici] {
        const Bayrak basilis(basildi_);
        if (isleyici)
            isleyici();
    });
}

bool Baglayici::Duruyor() const {
    return !birakildi_ && !ekran_.expired();
}

void Baglayici::Sil(QWidget& pencere) {
    const auto& canlilar = Durum().canlilar;
    const auto yer = std::ranges::find(canlilar, &pencere, [](const Baglayici* b) { return b->parent(); });
    if (yer != canlilar.end()) {
        (*yer)->birakildi_ = true;
        if ((*yer)->derinlik_ > 0)
            return;
    }
    pencere.deleteLater();
}

namespace {

/// Tells that the left button of the mouse was let go on a widget: after what the click itself does. Keys
/// tell nothing.
class FareBirakma : public QObject {
  public:
    FareBirakma(QWidget& parca, Baglayici::Isleyici birakildi)
        : QObject(&parca), birakildi_(std::move(birakildi)) {
        parca.installEventFilter(this);
    }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::MouseButtonRelease &&
            dynamic_cast<QMouseEvent&>(*olay).button() == Qt::LeftButton)
            QMetaObject::invokeMethod(nesne, birakildi_, Qt::QueuedConnection);
        return QObject::eventFilter(nesne, olay);
    }

  private:
    Baglayici::Isleyici birakildi_;
};

} // namespace

void Baglayici::HepsiniTazele() {
    Ortak& durum = Durum();
    if (durum.tazeleniyor)
        return;
    const bool kendiBasina = !IsSuruyor();
    if (kendiBasina)
        Nefes::Basla();
    durum.tazeleniyor = true;
    // In a breath a window may go that was dropped before.
    const std::vector<QPointer<Baglayici>> canlilar(durum.canlilar.begin(), durum.canlilar.end());
    for (const QPointer<Baglayici>& baglayici : canlilar)
        if (baglayici != nullptr && !baglayici->birakildi_)
            Koru([&baglayici] { baglayici->Tazele(); });
    durum.tazeleniyor = false;
    if (!kendiBasina)
        return;
    Nefes::Bitir();
    if (!durum.ertelenenler.empty())
        QMetaObject::invokeMethod(qApp, ErtelenenleriCalistir, Qt::QueuedConnection);
}

bool Baglayici::IsSuruyor() {
    return Durum().derinlik > 0 && !Durum().bekliyor;
}

Baglayici::KullaniciBekleme::KullaniciBekleme() : onceki_(std::exchange(Durum().bekliyor, true)) {
    Nefes::Bitir();
    HepsiniTazele();
}

Baglayici::KullaniciBekleme::~KullaniciBekleme() {
    Durum().bekliyor = onceki_;
    if (IsSuruyor())
        Nefes::Basla();
}

void Baglayici::Tazele() {
    const auto ekran = ekran_.lock();
    if (!ekran)
        return;
    for (const Isleyici& tazele : tazeleyenler_) {
        tazele();
        Nefes::Al();
    }
}

bool Baglayici::OdakDonecek(const QEvent& olay) {
    const auto neden = static_cast<const QFocusEvent&>(olay).reason();
    return neden == Qt::ActiveWindowFocusReason || neden == Qt::PopupFocusReason ||
           neden == Qt::MenuBarFocusReason;
}

/// A refresh that hides or disables the field runs no handler, so that one waits for its end.
void Baglayici::AlandanCikildi(const Isleyici& isleyici) {
    if (!Durum().tazeleniyor)
        return Calistir(isleyici);
    QMetaObject::invokeMethod(
        this, [this, isleyici] { Calistir(isleyici); }, Qt::QueuedConnection);
}

bool Baglayici::eventFilter(QObject* nesne, QEvent* olay) {
    if (const auto alan = odaklananlar_.find(nesne); alan != odaklananlar_.end()) {
        if (olay->type() == QEvent::FocusOut && !OdakDonecek(*olay))
            AlandanCikildi(alan->second);
        return QObject::eventFilter(nesne, olay);
    }
    const auto* parca = qobject_cast<QWidget*>(nesne);
    if (olay->type() != QEvent::Wheel || parca == nullptr || parca->hasFocus())
        return QObject::eventFilter(nesne, olay);
    olay->ignore();
    return true;
}

/// A field that the wheel would change takes it only when it has the focus already. The toolkit's own way is
/// to give it the focus first.
void Baglayici::TekeriBagla(QWidget& parca) {
    parca.setFocusPolicy(Qt::StrongFocus);
    parca.installEventFilter(this);
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

void Baglayici::Bagla(QAbstractButton& dugme, Dugme& model, const Isleyici& tiklandi) {
    connect(&dugme, &QAbstractButton::clicked, this, [this, &dugme, tiklandi, aradaDa = model.aradaDa] {
        dugme.setFocus(Qt::OtherFocusReason);
        Bas(tiklandi, aradaDa);
    });
    Izle([&dugme, &model, konan = Metin()]() mutable {
        // The window may have put an access key into the text.
        if (konan != model.baslik)
            dugme.setText(QMetin(model.baslik));
        konan = model.baslik;
        dugme.setToolTip(QIpucu(model.ipucu));
        dugme.setEnabled(model.etkin);
        dugme.setVisible(model.gorunur);
    });
}

void Baglayici::Bagla(QCheckBox& kutu, OnayKutusu& model, const Isleyici& birakildi) {
    Bagla(kutu, model);
    new FareBirakma(kutu, [this, birakildi] { Calistir(birakildi); });
}

void Baglayici::Bagla(QRadioButton& dugme, OnayKutusu& model) {
    connect(&dugme, &QRadioButton::clicked, this, [this, &model] { Calistir([&model] { model.Ata(1); }); });
    Izle([&dugme, &model] {
        const QSignalBlocker sus(&dugme);
        dugme.setChecked(model.deger == 1);
        dugme.setEnabled(model.etkin);
    });
}

namespace {

constexpr int kEnGenisSecim = 26; // letters that a drop-down makes room for: names of halls may be longer

/// As wide as its entries want, up to a limit. A longer one is told by its tip, here and in the open list.
void SecimleriKoy(QComboBox& kutu, SecimModeli& secimler, const AcilirListe& model) {
    secimler.Koy(model.ogeler);
    BoyaUy(kutu, model.ogeler.size());
    const int harf = kutu.fontMetrics().horizontalAdvance(u'X');
    int en = kutu.fontMetrics().horizontalAdvance(QMetin(model.bosYazi));
    for (const Metin& oge : model.ogeler) {
        if (en >= kEnGenisSecim * harf)
            break;
        en = std::max(en, kutu.fontMetrics().horizontalAdvance(QMetin(oge)));
    }
    kutu.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    kutu.setMinimumContentsLength(std::min(en / harf + 1, kEnGenisSecim));
}

/// The chosen text, where the field shows only a part of it.
QString KesikSecim(const QComboBox& kutu, MetinBakis metin) {
    QStyleOptionComboBox secenek;
    secenek.initFrom(&kutu);
    const QRect alan =
        kutu.style()->subControlRect(QStyle::CC_ComboBox, &secenek, QStyle::SC_ComboBoxEditField, &kutu);
    return kutu.fontMetrics().horizontalAdvance(QMetin(metin)) > alan.width() ? QIpucu(metin) : QString();
}

} // namespace

void Baglayici::Bagla(QComboBox& kutu, AcilirListe& model) {
    TekeriBagla(kutu);
    auto* secimler = new SecimModeli(&kutu);
    kutu.setModel(secimler);
    connect(&kutu, &QComboBox::activated, this,
            [this, &model](int sira) { Calistir([&model, sira] { model.Tikla(sira); }); });
    Izle([&kutu, &model, secimler, konan = std::optional<std::vector<Metin>>()]() mutable {
        const QSignalBlocker sus(&kutu);
        if (konan != model.ogeler) {
            SecimleriKoy(kutu, *secimler, model);
            konan = model.ogeler;
        }
        kutu.setCurrentIndex(model.secili);
        const bool bos = model.ogeler.empty() && model.serbest.empty();
        if (model.secili < 0) {
            // A text as good as any entry.
            RenkVer(kutu, QPalette::PlaceholderText, kutu.palette().color(QPalette::Text));
            kutu.setPlaceholderText(QMetin(bos ? model.bosYazi : model.serbest));
        }
        const QString ipucu = bos ? QMetin(model.bosIpucu) : KesikSecim(kutu, model.Metni());
        if (kutu.toolTip() != ipucu)
            kutu.setToolTip(ipucu);
        kutu.setEnabled(model.etkin);
    });
}

void Baglayici::Bagla(QAction& girdi, MenuGirdisi& model, const Isleyici& tiklandi) {
    connect(&girdi, &QAction::triggered, this, [this, tiklandi] { Bas(tiklandi); });
    Izle([&girdi, &model, konan = Metin()]() mutable {
        // The menu may have put an access key into the text.
        if (konan != model.baslik && !girdi.isSeparator()) // a line would show its "-"
            girdi.setText(QMetin(model.baslik));
        konan = model.baslik;
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

void Baglayici::Bagla(QProgressBar& cubuk, IlerlemeCubugu& model) {
    Izle([&cubuk, &model] {
        // A range of nothing would be shown as a work without an end.
        cubuk.setRange(0, std::max(1, model.enCok));
        cubuk.setValue(model.deger);
        cubuk.setFormat(model.enCok <= 0 ? QString()
                        : model.yuzde    ? QStringLiteral("% %p")
                                         : QStringLiteral("%v / %m"));
    });
}

void Baglayici::Bagla(Zamanlayici& model, const QString& ad) {
    auto* saat = new QTimer(this);
    saat->setObjectName(ad);
    connect(saat, &QTimer::timeout, this, [this, &model] {
        if (Nefes::Aliniyor())
            return; // the next tick is soon enough
        if (!model.sakin || Durum().derinlik == 0 || (model.beklerken && Durum().bekliyor))
            Calistir([&model] { model.Calis(); });
    });
    Izle([saat, &model, kurulus = model.kurulus]() mutable {
        const bool kuruldu = std::exchange(kurulus, model.kurulus) != model.kurulus;
        if (model.aralik <= 0)
            saat->stop();
        else if (kuruldu || !saat->isActive() || saat->interval() != model.aralik)
            saat->start(model.aralik);
    });
}

} // namespace velora
