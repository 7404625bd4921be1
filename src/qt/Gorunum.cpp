#include "qt/Gorunum.h"

#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QIcon>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "qt/Simgeler.h"

namespace velora {

namespace {

/// A picture that is drawn in the device pixels in which it is seen, when it is seen: none is stretched, and
/// what is never shown costs nothing.
class CizilenSimge : public QIconEngine {
  public:
    explicit CizilenSimge(std::function<QPixmap(int boy)> ciz) : ciz_(std::move(ciz)) {}

    QIconEngine* clone() const override { return std::make_unique<CizilenSimge>(*this).release(); }

    void paint(QPainter* boyaci, const QRect& yer, QIcon::Mode hal, QIcon::State durum) override {
        const double olcek = boyaci->device()->devicePixelRatioF();
        QPixmap resim = pixmap((QSizeF(yer.size()) * olcek).toSize(), hal, durum);
        resim.setDevicePixelRatio(olcek);
        boyaci->drawPixmap(yer.topLeft(), resim);
    }

    QPixmap pixmap(const QSize& boy, QIcon::Mode hal, QIcon::State /*durum*/) override {
        const int kenar = std::min(boy.width(), boy.height());
        if (kenar <= 0)
            return {};
        const auto [yer, yeni] = resimler_.try_emplace({kenar, hal});
        if (yeni)
            yer->second = Cizdir(kenar, hal);
        return yer->second;
    }

  private:
    QPixmap Cizdir(int kenar, QIcon::Mode hal) const {
        QPixmap resim = ciz_(kenar);
        if (hal == QIcon::Normal)
            return resim;
        QStyleOption secenek;
        secenek.palette = QApplication::palette();
        return QApplication::style()->generatedIconPixmap(hal, resim, &secenek);
    }

    std::function<QPixmap(int boy)> ciz_;
    std::map<std::pair<int, QIcon::Mode>, QPixmap> resimler_;
};

QIcon HerBoyda(std::function<QPixmap(int boy)> ciz) {
    // The icon takes the engine.
    return QIcon(std::make_unique<CizilenSimge>(std::move(ciz)).release());
}

struct KutuSimgesi {
    QStyle::StandardPixmap tur;
    const char* ad;
    QRgb renk;
};

constexpr std::array kKutuSimgeleri{
    KutuSimgesi{QStyle::SP_MessageBoxInformation, "bilgi", qRgb(0, 92, 168)},
    KutuSimgesi{QStyle::SP_MessageBoxQuestion, "soru", qRgb(0, 128, 0)},
    KutuSimgesi{QStyle::SP_MessageBoxWarning, "uyari", qRgb(176, 96, 0)},
    KutuSimgesi{QStyle::SP_MessageBoxCritical, "kritik", qRgb(192, 0, 0)},
};

constexpr QRgb kVurgu = qRgb(0, 128, 0);

constexpr std::array<std::pair<QPalette::ColorRole, QRgb>, 18> kRenkler{{
    {QPalette::Window, qRgb(243, 244, 245)},
    {QPalette::WindowText, qRgb(32, 33, 36)},
    {QPalette::Base, qRgb(255, 255, 255)},
    {QPalette::AlternateBase, qRgb(246, 248, 246)},
    {QPalette::Text, qRgb(32, 33, 36)},
    {QPalette::PlaceholderText, qRgb(112, 116, 120)},
    {QPalette::Button, qRgb(238, 239, 241)},
    {QPalette::ButtonText, qRgb(32, 33, 36)},
    {QPalette::BrightText, qRgb(255, 255, 255)},
    {QPalette::ToolTipBase, qRgb(255, 255, 255)},
    {QPalette::ToolTipText, qRgb(32, 33, 36)},
    {QPalette::Light, qRgb(255, 255, 255)},
    {QPalette::Midlight, qRgb(230, 232, 234)},
    {QPalette::Mid, qRgb(120, 124, 128)},
    {QPalette::Dark, qRgb(160, 164, 168)},
    {QPalette::Highlight, kVurgu},
    {QPalette::HighlightedText, qRgb(255, 255, 255)},
    {QPalette::Link, kVurgu},
}};

constexpr std::array kSolgunlar{QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
constexpr QRgb kSolgun = qRgb(128, 132, 136);

// The style takes the edges of fields from the colour of the window, which makes them too pale to be seen
// well.
constexpr QRgb kAlanKenari = qRgb(168, 174, 179);

/// Draws with edges that are dark enough, for options of this kind; false for others.
template <class Secenek>
bool KoyuKenarla(const QStyleOption* secenek, const auto& ciz) {
    const auto* bizim = qstyleoption_cast<const Secenek*>(secenek);
    if (bizim == nullptr)
        return false;
    Secenek koyu = *bizim;
    koyu.palette.setColor(QPalette::Window, QColor(kAlanKenari));
    ciz(&koyu);
    return true;
}

// Letters with dots over them stand out of the line that their font names, and an access key makes a text
// a little wider than it was measured.
constexpr QMargins kEtiketPayi(1, 2, 4, 2);

constexpr int kSatirPayi = 6;           // what a row of a list is higher than its text
constexpr int kHucrePayi = 6;           // what a cell of a list keeps free on either side
constexpr int kDugmePayi = 3 * kAralik; // what a button is wider than its text, at least

/// What we want otherwise than the style that all windows are drawn in.
class Bicim : public QProxyStyle {
  public:
    Bicim() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    /// The button that Enter presses is filled with the accent.
    void drawControl(ControlElement parca, const QStyleOption* secenek, QPainter* firca,
                     const QWidget* widget) const override {
        const auto* dugme = qstyleoption_cast<const QStyleOptionButton*>(secenek);
        if (parca != CE_PushButton || dugme == nullptr || !(dugme->state & State_Enabled) ||
            !dugme->features.testFlag(QStyleOptionButton::DefaultButton))
            return QProxyStyle::drawControl(parca, secenek, firca, widget);
        QStyleOptionButton dolu = *dugme;
        dolu.palette.setColor(QPalette::Button, dolu.palette.color(QPalette::Highlight));
        dolu.palette.setColor(QPalette::ButtonText, dolu.palette.color(QPalette::HighlightedText));
        QProxyStyle::drawControl(parca, &dolu, firca, widget);
    }

    /// The edges of fields, and the frame of lists and of fields of many lines: whole at every scale, and it
    /// shows the focus.
    void drawPrimitive(PrimitiveElement parca, const QStyleOption* secenek, QPainter* firca,
                       const QWidget* widget) const override {
        const auto ciz = [&](const QStyleOption* koyu) {
            QProxyStyle::drawPrimitive(parca, koyu, firca, widget);
        };
        if (parca == PE_FrameLineEdit && KoyuKenarla<QStyleOptionFrame>(secenek, ciz))
            return;
        if ((parca == PE_IndicatorCheckBox || parca == PE_IndicatorRadioButton) &&
            KoyuKenarla<QStyleOptionButton>(secenek, ciz))
            return;
        if (parca != PE_Frame || qobject_cast<const QFrame*>(widget) == nullptr ||
            widget->inherits("QComboBoxPrivateContainer"))
            return QProxyStyle::drawPrimitive(parca, secenek, firca, widget);
        const QColor renk =
            secenek->palette.color(secenek->state & State_HasFocus ? QPalette::Highlight : QPalette::Mid);
        const QRect yer = secenek->rect;
        firca->fillRect(yer.left(), yer.top(), yer.width(), 1, renk);
        firca->fillRect(yer.left(), yer.bottom(), yer.width(), 1, renk);
        firca->fillRect(yer.left(), yer.top(), 1, yer.height(), renk);
        firca->fillRect(yer.right(), yer.top(), 1, yer.height(), renk);
    }

    void drawComplexControl(ComplexControl parca, const QStyleOptionComplex* secenek, QPainter* firca,
                            const QWidget* widget) const override {
        const auto ciz = [&](const QStyleOptionComplex* koyu) {
            QProxyStyle::drawComplexControl(parca, koyu, firca, widget);
        };
        if (!KoyuKenarla<QStyleOptionComboBox>(secenek, ciz) &&
            !KoyuKenarla<QStyleOptionSpinBox>(secenek, ciz))
            ciz(secenek);
    }

    /// Boxes show pictograms of ours; they go on to know their kind.
    QIcon standardIcon(StandardPixmap tur, const QStyleOption* secenek,
                       const QWidget* widget) const override {
        for (const KutuSimgesi& simge : kKutuSimgeleri)
            if (simge.tur == tur)
                return HerBoyda([&simge](int boy) {
                    return SimgeCiz(QString::fromLatin1(simge.ad), QColor(simge.renk), boy);
                });
        return QProxyStyle::standardIcon(tur, secenek, widget);
    }

    /// Buttons of boxes are words, as all others are. A password is shown as stars, from its first letter on.
    int styleHint(StyleHint konu, const QStyleOption* secenek, const QWidget* widget,
                  QStyleHintReturn* ayrinti) const override {
        if (konu == SH_DialogButtonBox_ButtonsHaveIcons || konu == SH_LineEdit_PasswordMaskDelay)
            return 0;
        if (konu == SH_LineEdit_PasswordCharacter)
            return u'*';
        return QProxyStyle::styleHint(konu, secenek, widget, ayrinti);
    }

    /// Cells of lists keep a distance, a number on the right from the text beside it.
    int pixelMetric(PixelMetric konu, const QStyleOption* secenek, const QWidget* widget) const override {
        if (konu == PM_FocusFrameHMargin)
            return kHucrePayi;
        if (konu == PM_HeaderMargin)
            return kHucrePayi + 1; // its text stands over that of the cells
        return QProxyStyle::pixelMetric(konu, secenek, widget);
    }

    /// Labels have a margin for what stands out of their line: it isn't cut off there.
    void drawItemText(QPainter* firca, const QRect& yer, int bayraklar, const QPalette& palet, bool etkin,
                      const QString& metin, QPalette::ColorRole rol) const override {
        QProxyStyle::drawItemText(firca, yer, bayraklar | Qt::TextDontClip, palet, etkin, metin, rol);
    }

    using QProxyStyle::polish;
    void polish(QWidget* parca) override {
        QProxyStyle::polish(parca);
        auto* etiket = qobject_cast<QLabel*>(parca);
        if (etiket != nullptr && etiket->contentsMargins().isNull())
            etiket->setContentsMargins(kEtiketPayi);
    }

    QSize sizeFromContents(ContentsType tur, const QStyleOption* secenek, const QSize& icerik,
                           const QWidget* widget) const override {
        QSize boy = QProxyStyle::sizeFromContents(tur, secenek, icerik, widget);
        if (tur == CT_ItemViewItem)
            boy.rheight() += kSatirPayi;
        if (tur == CT_PushButton)
            boy.setWidth(std::max(boy.width(), icerik.width() + kDugmePayi));
        return boy;
    }
};

} // namespace

void GorunumuKur() {
    QApplication::setStyle(new Bicim);
    QPalette palet;
    for (const auto& [rol, renk] : kRenkler)
        palet.setColor(rol, QColor(renk));
    for (const QPalette::ColorRole rol : kSolgunlar)
        palet.setColor(QPalette::Disabled, rol, QColor(kSolgun));
    QApplication::setPalette(palet);
    QApplication::setWindowIcon(HerBoyda([](int boy) { return ResimCiz(QStringLiteral("velora"), boy); }));
}

double Karsitlik(const QColor& bir, const QColor& iki) {
    const auto isik = [](const QColor& renk) {
        const auto dogrusal = [](double b) {
            return b <= 0.04045 ? b / 12.92 : std::pow((b + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * dogrusal(renk.redF()) + 0.7152 * dogrusal(renk.greenF()) +
               0.0722 * dogrusal(renk.blueF()) + 0.05;
    };
    const auto [koyu, acik] = std::minmax({isik(bir), isik(iki)});
    return acik / koyu;
}

void RenkVer(QWidget& parca, QPalette::ColorRole rol, const QColor& renk) {
    if (parca.palette().color(rol) == renk)
        return;
    QPalette palet = parca.palette();
    palet.setColor(rol, renk);
    parca.setPalette(palet);
}

void SimgeVer(QAction& girdi, const QString& ad, const QColor& renk) {
    girdi.setIcon(HerBoyda([ad, renk](int boy) { return SimgeCiz(ad, renk, boy); }));
}

} // namespace velora
