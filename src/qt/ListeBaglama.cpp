// The binder's list view: it rebuilds its rows only when the model has others.
#include <algorithm>
#include <utility>

#include <QHeaderView>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"

namespace velora {

namespace {

bool AyniSatir(const ListeSatiri& bir, const ListeSatiri& iki) {
    return bir.sutun == iki.sutun && bir.yazi == iki.yazi;
}

/// A row is one line: what stands on several lines in a file stands side by side in it.
QString TekSatir(const Metin& metin) {
    return QMetin(metin).replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\n', u' ');
}

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

/// Marks a row, -1 for none. A press beside the rows, or one with Ctrl, takes a mark away that the model
/// still has.
void Isaretle(QAbstractItemView& liste, int secili) {
    const QModelIndex satir = liste.model()->index(secili, 0);
    if (!satir.isValid()) {
        // Told in so many words that it has no row, the view doesn't take its first one when it gets the
        // focus.
        liste.setCurrentIndex({});
        liste.clearSelection();
    } else if (!liste.selectionModel()->isSelected(satir) || liste.currentIndex().row() != secili) {
        liste.selectionModel()->setCurrentIndex(satir, QItemSelectionModel::ClearAndSelect |
                                                           QItemSelectionModel::Rows);
    }
}

/// The space bar on a row is a press on it: the marked row can be chosen again without the mouse.
class BoslukTusu : public QObject {
  public:
    BoslukTusu(QAbstractItemView& liste, Baglayici::Isleyici basildi)
        : QObject(&liste), liste_(liste), basildi_(std::move(basildi)) {
        liste.installEventFilter(this);
    }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() != QEvent::KeyPress || dynamic_cast<QKeyEvent&>(*olay).key() != Qt::Key_Space ||
            !liste_.currentIndex().isValid())
            return QObject::eventFilter(nesne, olay);
        basildi_();
        return true;
    }

  private:
    QAbstractItemView& liste_;
    Baglayici::Isleyici basildi_;
};

/// What the user does to the marks of a list, of either kind.
template <class Liste, class Model>
void IsaretiDinle(Baglayici& baglayici, Liste& liste, Model& model, const Baglayici::Isleyici& secildi) {
    const auto isaretlendi = [&baglayici, &liste, &model, secildi] {
        baglayici.Calistir([&liste, &model, &secildi] {
            model.secili = liste.currentIndex().row();
            if (secildi)
                secildi();
        });
    };
    QObject::connect(&liste, &Liste::currentItemChanged, &baglayici, isaretlendi);
    QObject::connect(&liste, &Liste::itemPressed, &baglayici, isaretlendi);
    new BoslukTusu(liste, isaretlendi);
    QObject::connect(&liste, &Liste::itemSelectionChanged, &baglayici, [&liste] {
        if (!liste.selectionModel()->hasSelection())
            Baglayici::HepsiniTazele();
    });
}

} // namespace

void Baglayici::Bagla(QTreeWidget& liste, ListeGorunumu& model, const Isleyici& secildi,
                      const Isleyici& ciftTiklandi) {
    liste.setRootIsDecorated(false);
    liste.setUniformRowHeights(true);
    liste.setAlternatingRowColors(true);
    QFont kalin = liste.header()->font();
    kalin.setBold(true);
    liste.header()->setFont(kalin);
    IsaretiDinle(*this, liste, model, secildi);
    connect(&liste, &QTreeWidget::itemDoubleClicked, this, [this, ciftTiklandi] { Bas(ciftTiklandi); });
    Izle([&liste, &model, konan = ListeGorunumu()]() mutable {
        const QSignalBlocker sus(&liste);
        if (konan.basliklar != model.basliklar)
            BasliklariKoy(liste, model);
        if (!std::ranges::equal(konan.satirlar, model.satirlar, AyniSatir))
            SatirlariKoy(liste, model);
        konan = model;
        Isaretle(liste, model.secili);
    });
}

void Baglayici::Bagla(QListWidget& liste, ListeKutusu& model, const Isleyici& secildi) {
    IsaretiDinle(*this, liste, model, secildi);
    Izle([&liste, &model, konan = std::vector<Metin>()]() mutable {
        const QSignalBlocker sus(&liste);
        if (konan != model.ogeler) {
            liste.clear();
            for (const Metin& oge : model.ogeler)
                liste.addItem(QMetin(oge));
            konan = model.ogeler;
        }
        Isaretle(liste, model.secili);
    });
}

} // namespace velora
