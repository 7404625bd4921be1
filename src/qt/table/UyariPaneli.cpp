#include "qt/table/UyariPaneli.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/ErisimTuslari.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "table/FormTablo.h"
#include "table/Yerlesim.h"

namespace velora {

namespace {

QPushButton* DugmeYap(QWidget& ust, Baglayici& baglayici, const char* ad, Dugme& model,
                      const Baglayici::Isleyici& tiklandi) {
    auto* dugme = new QPushButton(&ust);
    dugme->setObjectName(QString::fromLatin1(ad));
    baglayici.Bagla(*dugme, model, tiklandi);
    return dugme;
}

} // namespace

UyariPaneli::UyariPaneli(FormTablo& tablo, Baglayici& baglayici, QWidget* ust) : QFrame(ust) {
    setObjectName(QStringLiteral("Picture1"));
    setAccessibleName(QMetin(tablo.UyariBaslik.baslik));
    setFrameShape(QFrame::Box);
    setAttribute(Qt::WA_NoMousePropagation);
    setAcceptDrops(true);
    setAutoFillBackground(true);
    auto* sutun = SutunKur(*this);
    auto* baslik = new QLabel;
    baslik->setObjectName(QStringLiteral("UyariBaslik"));
    QFont kalin = baslik->font();
    kalin.setBold(true);
    baslik->setFont(kalin);
    baslik->setAlignment(Qt::AlignCenter);
    sutun->addWidget(baslik);
    liste_ = new QTreeWidget;
    Adlandir(*liste_, QStringLiteral("Liste"), QMetin(tablo.UyariBaslik.baslik));
    baglayici.Bagla(
        *liste_, tablo.Liste, [&tablo] { tablo.Liste_Click(); }, [&tablo] { tablo.Liste_DblClick(); });
    liste_->header()->setSectionResizeMode(QHeaderView::Fixed);
    sutun->addWidget(liste_, 1);
    detaylar_ = DugmeYap(*this, baglayici, "Command8", tablo.Command8, [&tablo] { tablo.Command8_Click(); });
    kapat_ = DugmeYap(*this, baglayici, "Command2", tablo.Command2, [&tablo] { tablo.Command2_Click(); });
    // Beside the keys of the window that the panel stands in.
    detaylar_->setText(TusIsaretli(tablo.Command8.baslik, u't'));
    kapat_->setText(TusIsaretli(tablo.Command2.baslik, u'p'));
    sutun->addLayout(DugmeSeridi({detaylar_, kapat_}));
    // The record that it opened is closed again: the keys go on in the list.
    connect(detaylar_, &QPushButton::clicked, this, [this] {
        if (isVisible())
            liste_->setFocus();
    });
    hide();
    baglayici.Izle([this, &tablo, baslik] {
        baslik->setText(QMetin(tablo.UyariBaslik.baslik));
        RenkVer(*baslik, QPalette::WindowText, QRenk(tablo.UyariBaslik.yazi));
        Tazele(tablo);
    });
}

void UyariPaneli::keyPressEvent(QKeyEvent* olay) {
    if (olay->key() == Qt::Key_Escape)
        kapat_->click();
    if (olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter)
        (kapat_->hasFocus() ? kapat_ : detaylar_)->click();
    olay->accept();
}

void UyariPaneli::dragEnterEvent(QDragEnterEvent* olay) {
    // What isn't taken here would go on to the table.
    olay->accept();
}

void UyariPaneli::dragMoveEvent(QDragMoveEvent* olay) {
    olay->ignore();
}

void UyariPaneli::dropEvent(QDropEvent* olay) {
    olay->ignore();
}

void UyariPaneli::Tazele(const FormTablo& tablo) {
    const Etiket& model = tablo.Picture1;
    if (!model.gorunur)
        return Gizle();
    RenkVer(*this, QPalette::Window, QRenk(model.zemin));
    const auto piksel = [](double twip) { return qRound(twip / kTwipPikseli); };
    // What the columns need comes before the model's width: a row is read without scrolling.
    const int en = std::max(piksel(model.yer.genislik), SutunlarinEni(tablo.Liste));
    const QSize boy = QSize(en, piksel(model.yer.yukseklik))
                          .expandedTo(minimumSizeHint())
                          .boundedTo(parentWidget()->size());
    // The model's inner width is not the widget's, but the middle of the one is the middle of the other.
    const double genislik = parentWidget()->width() * kTwipPikseli;
    const double kayma = (TabloIcGenisligi(genislik) - genislik) / 2;
    const QPoint orta(piksel(model.yer.sol + model.yer.genislik / 2 - kayma),
                      piksel(model.yer.ust + model.yer.yukseklik / 2));
    const QPoint kose = orta - QPoint(boy.width() / 2, boy.height() / 2);
    setGeometry(QRect(QPoint(std::clamp(kose.x(), 0, parentWidget()->width() - boy.width()),
                             std::clamp(kose.y(), 0, parentWidget()->height() - boy.height())),
                      boy));
    const bool yeni = isHidden();
    show();
    raise();
    if (yeni)
        liste_->setFocus();
}

/// Measured once for the rows that stand: a refresh comes several times a second.
int UyariPaneli::SutunlarinEni(const ListeGorunumu& model) {
    const auto& satirlar = model.satirlar;
    if (olculen_ == satirlar.Degisme())
        return sutunlarinEni_;
    sutunlarinEni_ = SutunlariOlc();
    olculen_ = satirlar.Degisme();
    return sutunlarinEni_;
}

int UyariPaneli::SutunlariOlc() const {
    const QMargins kenar = layout()->contentsMargins();
    int en = kenar.left() + kenar.right() + 2 * (frameWidth() + liste_->frameWidth()) +
             liste_->verticalScrollBar()->sizeHint().width();
    for (int sutun = 0; sutun < liste_->columnCount(); ++sutun) {
        liste_->header()->resizeSection(sutun, SutunOlc(sutun));
        en += liste_->header()->sectionSize(sutun);
    }
    // The last column takes what is left, but the toolkit never makes it narrower than this.
    return en + liste_->header()->defaultSectionSize();
}

/// What a column needs. The toolkit would measure each of hundreds of texts, and several times: here the few
/// that seem to be the widest are.
int UyariPaneli::SutunOlc(int sutun) const {
    constexpr std::size_t kOlculen = 16;
    constexpr double kKalinPayi = 1.2;
    const QFontMetricsF olcu(liste_->font());
    std::map<QChar, double> enler;
    const auto tahmin = [&](const QModelIndex& goz) {
        double en = 0;
        for (const QChar harf : goz.data().toString()) {
            const auto [yer, yeni] = enler.try_emplace(harf);
            if (yeni)
                yer->second = olcu.horizontalAdvance(harf);
            en += yer->second;
        }
        return goz.data(Qt::FontRole).value<QFont>().bold() ? en * kKalinPayi : en;
    };
    std::vector<std::pair<double, QModelIndex>> gozler;
    for (int satir = 0; satir < liste_->topLevelItemCount(); ++satir) {
        const QModelIndex goz = liste_->model()->index(satir, sutun);
        gozler.emplace_back(tahmin(goz), goz);
    }
    const auto olculen = gozler.begin() + static_cast<std::ptrdiff_t>(std::min(kOlculen, gozler.size()));
    std::ranges::partial_sort(gozler, olculen, std::greater{}, [](const auto& goz) { return goz.first; });
    int en = liste_->header()->sectionSizeHint(sutun);
    const QAbstractItemView& liste = *liste_;
    for (auto goz = gozler.begin(); goz != olculen; ++goz)
        en = std::max(en, liste.sizeHintForIndex(goz->second).width());
    return en;
}

void UyariPaneli::changeEvent(QEvent* olay) {
    QFrame::changeEvent(olay);
    if (olay->type() == QEvent::FontChange || olay->type() == QEvent::StyleChange)
        olculen_.reset();
}

void UyariPaneli::Gizle() {
    // Before it hides: the toolkit would hand its focus to the first field of the window.
    if (isAncestorOf(window()->focusWidget()))
        parentWidget()->setFocus();
    hide();
}

} // namespace velora
