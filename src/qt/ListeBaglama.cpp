// The binder's list view: it rebuilds its rows only when the model has others.
#include <algorithm>

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"

namespace velora {

namespace {

bool AyniSatir(const ListeSatiri& bir, const ListeSatiri& iki) {
    return bir.sutun == iki.sutun && bir.yazi == iki.yazi;
}

void BasliklariKoy(QTreeWidget& liste, const std::vector<Metin>& basliklar) {
    QStringList metinler;
    for (const Metin& baslik : basliklar)
        metinler << QMetin(baslik);
    liste.setColumnCount(static_cast<int>(metinler.size()));
    liste.setHeaderLabels(metinler);
}

void SatirlariKoy(QTreeWidget& liste, const std::vector<ListeSatiri>& satirlar) {
    liste.clear();
    QList<QTreeWidgetItem*> ogeler;
    for (const ListeSatiri& satir : satirlar) {
        ogeler << new QTreeWidgetItem;
        for (int sutun = 0; sutun < static_cast<int>(satir.sutun.size()); ++sutun) {
            ogeler.back()->setText(sutun, QMetin(satir.sutun[static_cast<std::size_t>(sutun)]));
            ogeler.back()->setForeground(sutun, QRenk(satir.yazi));
        }
    }
    liste.addTopLevelItems(ogeler);
}

void SeciliyiIsaretle(QTreeWidget& liste, int secili) {
    QTreeWidgetItem* oge = liste.topLevelItem(secili);
    if (liste.indexOfTopLevelItem(liste.currentItem()) == (oge == nullptr ? -1 : secili))
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
    connect(&liste, &QTreeWidget::currentItemChanged, this, [this, &liste, &model, secildi] {
        Calistir([&liste, &model, &secildi] {
            model.secili = liste.indexOfTopLevelItem(liste.currentItem());
            if (secildi)
                secildi();
        });
    });
    connect(&liste, &QTreeWidget::itemDoubleClicked, this, [this, ciftTiklandi] { Calistir(ciftTiklandi); });
    Izle([&liste, &model, konan = ListeGorunumu()]() mutable {
        const QSignalBlocker sus(&liste);
        if (konan.basliklar != model.basliklar)
            BasliklariKoy(liste, model.basliklar);
        if (!std::ranges::equal(konan.satirlar, model.satirlar, AyniSatir))
            SatirlariKoy(liste, model.satirlar);
        konan = model;
        SeciliyiIsaretle(liste, model.secili);
    });
}

} // namespace velora
