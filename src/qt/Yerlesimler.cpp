#include "qt/Yerlesimler.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>

#include "qt/Gorunum.h"

namespace velora {

QVBoxLayout* SutunKur(QWidget& parca) {
    auto* sutun = new QVBoxLayout(&parca);
    sutun->setContentsMargins(2 * kAralik, 2 * kAralik, 2 * kAralik, 2 * kAralik);
    sutun->setSpacing(kAralik);
    return sutun;
}

QFormLayout* FormKur() {
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(kAralik);
    form->setVerticalSpacing(kAralik);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    return form;
}

QHBoxLayout* DugmeSeridi(std::initializer_list<QPushButton*> sagdakiler,
                         std::initializer_list<QPushButton*> soldakiler, QWidget* yazi) {
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    QPushButton* onceki = nullptr;
    const auto ekle = [&](QPushButton* dugme) {
        serit->addWidget(dugme);
        if (onceki != nullptr)
            QWidget::setTabOrder(onceki, dugme);
        onceki = dugme;
    };
    std::ranges::for_each(soldakiler, ekle);
    if (yazi != nullptr)
        serit->addWidget(yazi);
    serit->addStretch(1);
    std::ranges::for_each(sagdakiler, ekle);
    return serit;
}

void SutunEnleriVer(QTreeWidget& liste, std::span<const int> enler) {
    QHeaderView& basliklar = *liste.header();
    basliklar.setStretchLastSection(std::ranges::find(enler, kKalanEn) == enler.end());
    int sutun = 0;
    for (const int en : enler) {
        if (en == kKalanEn)
            basliklar.setSectionResizeMode(sutun, QHeaderView::Stretch);
        else
            basliklar.resizeSection(sutun, en);
        ++sutun;
    }
}

void SayfaTuslari(QTabWidget& sayfalar) {
    sayfalar.setAccessibleName(QStringLiteral("Sayfalar"));
    sayfalar.tabBar()->setAccessibleName(sayfalar.accessibleName());
    const std::array tuslar{
        std::pair{QKeySequence(Qt::CTRL | Qt::Key_Tab), 1},
        std::pair{QKeySequence(Qt::CTRL | Qt::Key_PageDown), 1},
        std::pair{QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), -1},
        std::pair{QKeySequence(Qt::CTRL | Qt::Key_PageUp), -1},
    };
    for (const auto& [tus, adim] : tuslar)
        QObject::connect(new QShortcut(tus, &sayfalar), &QShortcut::activated, &sayfalar,
                         [&sayfalar, adim = adim] {
                             const int sayi = sayfalar.count();
                             sayfalar.setCurrentIndex((sayfalar.currentIndex() + adim + sayi) % sayi);
                         });
}

QLabel* EtiketYap(const QString& baslik, QWidget& alan) {
    auto* etiket = new QLabel(baslik);
    etiket->setBuddy(&alan);
    return etiket;
}

namespace {

class EnterSuzgeci : public QObject {
  public:
    explicit EnterSuzgeci(QAbstractButton& dugme) : QObject(&dugme), dugme_(dugme) {
        dugme.installEventFilter(this);
    }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() != QEvent::KeyPress)
            return QObject::eventFilter(nesne, olay);
        const int tus = dynamic_cast<QKeyEvent&>(*olay).key();
        if (tus != Qt::Key_Return && tus != Qt::Key_Enter)
            return QObject::eventFilter(nesne, olay);
        dugme_.click();
        return true;
    }

  private:
    QAbstractButton& dugme_;
};

} // namespace

void EnterleBasilsin(QAbstractButton& dugme) {
    new EnterSuzgeci(dugme);
}

void Adlandir(QWidget& parca, const QString& ad, const QString& baslik) {
    parca.setObjectName(ad);
    parca.setAccessibleName(baslik);
}

void Okut(QWidget& parca, const QString& isim) {
    if (parca.accessibleName() != isim)
        parca.setAccessibleName(isim);
}

} // namespace velora
