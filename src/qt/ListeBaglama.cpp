// The binder's list view: it rebuilds its rows only when the model has others, or they are to be seen in
// another order.
#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeWidget>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/ListeSatirlari.h"
#include "qt/ListeSiralama.h"
#include "qt/Pano.h"
#include "qt/SecimModeli.h"

namespace velora {

namespace {

void BasliklariKoy(QTreeWidget& liste, const ListeGorunumu& model) {
    QStringList metinler;
    for (const Metin& baslik : model.basliklar)
        metinler << QMetin(baslik);
    liste.setColumnCount(static_cast<int>(metinler.size()));
    liste.setHeaderLabels(metinler);
    for (const int sutun : model.sayiSutunlari)
        liste.headerItem()->setTextAlignment(sutun, kSayiYeri);
}

/// Marks a row as it is seen, -1 for none. A press beside the rows, or one with Ctrl, takes a mark away that
/// the model still has. Where several rows can be chosen the user's choice stays as long as the marked row is
/// one of them, or none is marked.
void Isaretle(QAbstractItemView& liste, int gorunen, bool yeniSatirlar) {
    const QModelIndex satir = liste.model()->index(gorunen, 0);
    if (!satir.isValid()) {
        if (!yeniSatirlar && !liste.currentIndex().isValid() &&
            liste.selectionMode() == QAbstractItemView::ExtendedSelection)
            return;
        // Told in so many words that it has no row, the view doesn't take its first one when it gets the
        // focus.
        liste.setCurrentIndex({});
        liste.clearSelection();
    } else if (!liste.selectionModel()->isSelected(satir) || liste.currentIndex().row() != gorunen) {
        liste.selectionModel()->setCurrentIndex(satir, QItemSelectionModel::ClearAndSelect |
                                                           QItemSelectionModel::Rows);
    }
}

/// The chosen rows as they are seen, for a spreadsheet or a letter.
QString SeciliMetin(const QAbstractItemView& liste) {
    QModelIndexList satirlar = liste.selectionModel()->selectedRows();
    std::ranges::sort(satirlar, {}, [](const QModelIndex& satir) { return satir.row(); });
    QStringList yazilar;
    for (const QModelIndex& satir : satirlar) {
        QStringList gozler;
        for (int sutun = 0; sutun < liste.model()->columnCount(); ++sutun)
            gozler << satir.siblingAtColumn(sutun).data().toString().replace(u'\t', u' ');
        yazilar << gozler.join(u'\t');
    }
    return yazilar.join(u'\n');
}

/// The keys of a list. The space bar on a row is a press on it: the marked row can be chosen again without
/// the mouse. Ctrl+C copies whole rows, not the one cell that the toolkit would. End goes to the last row
/// also where none is marked yet, whereas the toolkit's first key, whichever it is, leads to the first row;
/// and where the marked row has been deleted the arrows go on at its place.
class ListeTuslari : public QObject {
  public:
    ListeTuslari(QAbstractItemView& liste, Baglayici::Isleyici basildi)
        : QObject(&liste), liste_(liste), basildi_(std::move(basildi)) {
        liste.installEventFilter(this);
        connect(liste.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [this](const QModelIndex& satir) {
                    if (!satir.isValid())
                        return;
                    sonYer_ = satir.row();
                    satirSayisi_ = liste_.model()->rowCount();
                });
    }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() != QEvent::KeyPress)
            return QObject::eventFilter(nesne, olay);
        const auto& tus = dynamic_cast<QKeyEvent&>(*olay);
        if (tus.matches(QKeySequence::Copy)) {
            if (liste_.selectionModel()->hasSelection())
                PanoyaKoy(SeciliMetin(liste_));
            return true;
        }
        if (const auto ilk = IlkSatir(tus.key())) {
            liste_.setCurrentIndex(liste_.model()->index(*ilk, 0));
            return true;
        }
        if (tus.key() != Qt::Key_Space || !liste_.currentIndex().isValid())
            return QObject::eventFilter(nesne, olay);
        basildi_();
        return true;
    }

  private:
    /// The row that a key leads to where none is marked; nothing where the toolkit knows it.
    std::optional<int> IlkSatir(int tus) const {
        const int son = liste_.model()->rowCount() - 1;
        if (son < 0 || liste_.currentIndex().isValid())
            return std::nullopt;
        if (tus == Qt::Key_End)
            return son;
        const bool silindi = son + 1 == satirSayisi_ - 1;
        if (silindi && tus == Qt::Key_Down)
            return std::min(sonYer_, son);
        if (silindi && tus == Qt::Key_Up)
            return std::max(sonYer_ - 1, 0);
        return std::nullopt;
    }

    QAbstractItemView& liste_;
    Baglayici::Isleyici basildi_;
    int sonYer_ = -1;      // the row that was marked last
    int satirSayisi_ = -1; // how many there were then
};

/// The tip of a cell that shows only a part of its text: all of it.
class KesikGozIpucu : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* olay, QAbstractItemView* liste, const QStyleOptionViewItem& secenek,
                   const QModelIndex& goz) override {
        if (olay->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(olay, liste, secenek, goz);
        const QRect gorunen = liste->visualRect(goz).intersected(liste->viewport()->rect());
        if (sizeHint(secenek, goz).width() > gorunen.width())
            QToolTip::showText(olay->globalPos(), QIpucu(MetinYap(goz.data().toString().left(kGorulebilen))),
                               liste->viewport(), gorunen);
        else
            QToolTip::hideText();
        return true;
    }

  protected:
    /// The toolkit measures all of a text before it shows its beginning.
    void initStyleOption(QStyleOptionViewItem* secenek, const QModelIndex& goz) const override {
        QStyledItemDelegate::initStyleOption(secenek, goz);
        secenek->text.truncate(kGorulebilen);
    }

  private:
    static constexpr qsizetype kGorulebilen = 2000; // letters: more than any screen is wide
};

/// What the user does to the marks of a list, of either kind.
template <class Liste, class Model>
void IsaretiDinle(Baglayici& baglayici, Liste& liste, Model& model, const Baglayici::Isleyici& secildi,
                  const std::shared_ptr<const SatirSirasi>& sira) {
    const auto isaretlendi = [&baglayici, &liste, &model, secildi, sira] {
        baglayici.Calistir([&] {
            model.secili = sira->Modeldeki(liste.currentIndex().row());
            if (secildi)
                secildi();
        });
    };
    QObject::connect(&liste, &Liste::currentItemChanged, &baglayici, isaretlendi);
    QObject::connect(&liste, &Liste::itemPressed, &baglayici, isaretlendi);
    new ListeTuslari(liste, isaretlendi);
    liste.setItemDelegate(new KesikGozIpucu(&liste));
    QObject::connect(&liste, &Liste::itemSelectionChanged, &baglayici, [&liste] {
        if (!liste.selectionModel()->hasSelection())
            Baglayici::HepsiniTazele();
    });
}

/// A click on a head sorts by it, another one turns the order round, and a third one brings the order of the
/// model back. Where the model sorts itself, there is no other order than its own.
void BasliklariKur(Baglayici& baglayici, QHeaderView& basliklar, const ListeGorunumu& model) {
    QFont kalin = basliklar.font();
    kalin.setBold(true);
    basliklar.setFont(kalin);
    basliklar.setSectionsClickable(true);
    basliklar.setHighlightSections(false);
    basliklar.setSortIndicatorShown(true);
    basliklar.setSortIndicatorClearable(true);
    basliklar.setSortIndicator(-1, Qt::AscendingOrder);
    if (model.basligaTiklandi) {
        QObject::connect(&basliklar, &QHeaderView::sectionClicked, &baglayici,
                         [&baglayici, &model](int sutun) {
                             baglayici.Bas([&model, sutun] { model.basligaTiklandi(sutun); });
                         });
        return;
    }
    QObject::connect(&basliklar, &QHeaderView::sortIndicatorChanged, &baglayici,
                     [] { Baglayici::HepsiniTazele(); });
}

/// Shows on the heads in what order the model has put its rows.
void SirasiniGoster(QHeaderView& basliklar, const ListeSirasi& sira) {
    basliklar.setSortIndicator(sira.sutun, sira.azalan ? Qt::DescendingOrder : Qt::AscendingOrder);
}

/// What rows of a model a list shows, and in what order.
struct KonanSatirlar {
    std::uint64_t degisme;
    int sutun;
    Qt::SortOrder yon;
    bool operator==(const KonanSatirlar&) const = default;
};

} // namespace

void Baglayici::Bagla(QTreeWidget& liste, ListeGorunumu& model, const Isleyici& secildi,
                      const Isleyici& ciftTiklandi) {
    liste.setRootIsDecorated(false);
    liste.setUniformRowHeights(true);
    liste.setAlternatingRowColors(true);
    BasliklariKur(*this, *liste.header(), model);
    const auto sira = std::make_shared<SatirSirasi>();
    const auto kaynak = std::make_shared<const SatirKaynagi>(SatirKaynagi{ekran_, model, sira});
    IsaretiDinle(*this, liste, model, secildi, sira);
    connect(&liste, &QTreeWidget::itemDoubleClicked, this, [this, ciftTiklandi] { Bas(ciftTiklandi); });
    Izle([&liste, &model, sira, kaynak, basliklar = std::vector<Metin>(),
          konan = std::optional<KonanSatirlar>()]() mutable {
        const QSignalBlocker sus(&liste);
        if (basliklar != model.basliklar)
            BasliklariKoy(liste, model);
        basliklar = model.basliklar;
        if (model.basligaTiklandi)
            SirasiniGoster(*liste.header(), model.siralama);
        const KonanSatirlar istenen{model.satirlar.Degisme(), liste.header()->sortIndicatorSection(),
                                    liste.header()->sortIndicatorOrder()};
        const bool yeni = konan != istenen;
        if (yeni) {
            sira->Koy(GorunenSira(model, model.basligaTiklandi ? -1 : istenen.sutun, istenen.yon));
            SatirlariKoy(liste, kaynak);
            konan = istenen;
        }
        Isaretle(liste, sira->Gorunen(model.secili), yeni);
    });
}

void Baglayici::Bagla(QListWidget& liste, ListeKutusu& model, const Isleyici& secildi) {
    IsaretiDinle(*this, liste, model, secildi, std::make_shared<SatirSirasi>());
    Izle([&liste, &model, konan = std::vector<Metin>()]() mutable {
        const QSignalBlocker sus(&liste);
        const bool yeni = konan != model.ogeler;
        if (yeni) {
            liste.clear();
            for (const Metin& oge : model.ogeler)
                liste.addItem(QMetin(oge));
            AyniBoyluSay(&liste, model.ogeler.size());
            konan = model.ogeler;
        }
        Isaretle(liste, model.secili, yeni);
    });
}

} // namespace velora
