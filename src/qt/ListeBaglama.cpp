// The binder's list view: it rebuilds its rows only when the model has others.
#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"

namespace velora {

namespace {

bool AyniSatir(const ListeSatiri& bir, const ListeSatiri& iki) {
    return bir.sutun == iki.sutun && bir.yazi == iki.yazi;
}

/// A row is one line: what stands on several lines in a file stands side by side in it.
QString TekSatir(const Metin& metin) {
    return QMetin(metin).replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\n', u' ');
}

/// Rows with room between their texts.
class FerahSatir : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& secenek, const QModelIndex& sira) const override {
        return QStyledItemDelegate::sizeHint(secenek, sira) + QSize(0, kAralik / 2);
    }
};

constexpr Qt::Alignment kSaga = Qt::AlignRight | Qt::AlignVCenter;

void BasliklariKoy(QTreeWidget& liste, const ListeGorunumu& model) {
    QStringList metinler;
    for (const Metin& baslik : model.basliklar)
        metinler << QMetin(baslik);
    liste.setColumnCount(static_cast<int>(metinler.size()));
    liste.setHeaderLabels(metinler);
    for (const int sutun : model.sayiSutunlari)
        liste.headerItem()->setTextAlignment(sutun, kSaga);
}

void SatirlariKoy(QTreeWidget& liste, const ListeGorunumu& model) {
    liste.clear();
    QList<QTreeWidgetItem*> ogeler;
    for (const ListeSatiri& satir : model.satirlar) {
        ogeler << new QTreeWidgetItem;
        for (int sutun = 0; sutun < static_cast<int>(satir.sutun.size()); ++sutun) {
            ogeler.back()->setText(sutun, TekSatir(satir.sutun[static_cast<std::size_t>(sutun)]));
            ogeler.back()->setForeground(sutun, QRenk(satir.yazi));
        }
        for (const int sutun : model.sayiSutunlari)
            ogeler.back()->setTextAlignment(sutun, kSaga);
    }
    liste.addTopLevelItems(ogeler);
}

/// Index of the marked row, -1 for none. The cursor may stand on a row that isn't marked: the focus alone puts it there.
int IsaretliSira(const QTreeWidget& liste) {
    const auto isaretli = liste.selectedItems();
    return isaretli.isEmpty() ? -1 : liste.indexOfTopLevelItem(isaretli.first());
}

int IsaretliSira(const QListWidget& liste) {
    const auto isaretli = liste.selectedItems();
    return isaretli.isEmpty() ? -1 : liste.row(isaretli.first());
}

/// The focus alone puts the cursor on the first row and marks nothing. An arrow key then marks that row before the
/// next ones go on from it: otherwise a list of one row could not be marked by the keys.
class OkTuslari : public QObject {
  public:
    explicit OkTuslari(QAbstractItemView& liste) : QObject(&liste), liste_(liste) {
        liste.installEventFilter(this);
    }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        const QModelIndex imlec = liste_.currentIndex();
        if (olay->type() != QEvent::KeyPress || !imlec.isValid() || liste_.selectionModel()->hasSelection())
            return QObject::eventFilter(nesne, olay);
        const int tus = dynamic_cast<QKeyEvent&>(*olay).key();
        if (tus != Qt::Key_Up && tus != Qt::Key_Down)
            return QObject::eventFilter(nesne, olay);
        liste_.setCurrentIndex(imlec);
        return true;
    }

  private:
    QAbstractItemView& liste_;
};

void SeciliyiIsaretle(QTreeWidget& liste, int secili) {
    QTreeWidgetItem* oge = liste.topLevelItem(secili);
    if (IsaretliSira(liste) == (oge == nullptr ? -1 : secili))
        return;
    liste.setCurrentItem(oge);
    if (oge == nullptr)
        liste.clearSelection();
}

} // namespace

void Baglayici::Bagla(QTreeWidget& liste, ListeGorunumu& model, const Isleyici& secildi,
                      const Isleyici& ciftTiklandi) {
    liste.setRootIsDecorated(false);
    liste.setUniformRowHeights(true);
    liste.setAlternatingRowColors(true);
    new OkTuslari(liste);
    liste.setItemDelegate(new FerahSatir(&liste));
    const auto isaretle = [this, &liste, &model, secildi] {
        Calistir([&liste, &model, &secildi] {
            model.secili = IsaretliSira(liste);
            if (secildi && model.secili >= 0)
                secildi();
        });
    };
    connect(&liste, &QTreeWidget::itemSelectionChanged, this, isaretle);
    // A click on the row that is marked already counts as well.
    connect(&liste, &QTreeWidget::itemClicked, this, isaretle);
    connect(&liste, &QTreeWidget::itemDoubleClicked, this, [this, ciftTiklandi] { Calistir(ciftTiklandi); });
    Izle([&liste, &model, konan = ListeGorunumu()]() mutable {
        const QSignalBlocker sus(&liste);
        if (konan.basliklar != model.basliklar)
            BasliklariKoy(liste, model);
        if (!std::ranges::equal(konan.satirlar, model.satirlar, AyniSatir))
            SatirlariKoy(liste, model);
        konan = model;
        SeciliyiIsaretle(liste, model.secili);
    });
}

void Baglayici::Bagla(QListWidget& liste, ListeKutusu& model, const Isleyici& secildi) {
    new OkTuslari(liste);
    const auto isaretle = [this, &liste, &model, secildi] {
        Calistir([&liste, &model, &secildi] {
            model.secili = IsaretliSira(liste);
            if (secildi)
                secildi();
        });
    };
    connect(&liste, &QListWidget::itemSelectionChanged, this, isaretle);
    connect(&liste, &QListWidget::itemClicked, this, isaretle);
    Izle([&liste, &model, konan = std::vector<Metin>()]() mutable {
        const QSignalBlocker sus(&liste);
        if (konan != model.ogeler) {
            liste.clear();
            for (const Metin& oge : model.ogeler)
                liste.addItem(QMetin(oge));
            konan = model.ogeler;
        }
        if (IsaretliSira(liste) != model.secili)
            liste.setCurrentRow(model.secili);
    });
}

} // namespace velora
