#include "qt/table/TabloErisimi.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWindow>

#include "qt/Ceviri.h"
#include "qt/table/TabloGirisi.h"
#include "qt/table/TabloGorunumu.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr int kHucreSayisi = kSatirSayisi * kGunSayisi;
// The children of the table: its cells row by row, the heads of the days, those of the rows, then its
// widgets.
constexpr int kGunBasi = kHucreSayisi;
constexpr int kSatirBasi = kGunBasi + kGunSayisi;
constexpr int kParcaBasi = kSatirBasi + kSatirSayisi;

/// A row of the screen, counted from 0. A month's two rows change places by the settings.
SatirAdi SatirinAdi(const FormTablo& tablo, int sira) {
    const SatirAdi gunduz = Satir(sira / 2 + 1, GunduzGece::Gunduz);
    const SatirAdi gece = Satir(sira / 2 + 1, GunduzGece::Gece);
    const auto ust = [&](SatirAdi satir) { return tablo.satirlar[static_cast<std::size_t>(satir)].ust; };
    const bool gunduzUstte = ust(gunduz) < ust(gece);
    return (sira % 2 == 0) == gunduzUstte ? gunduz : gece;
}

int SatirinSirasi(const FormTablo& tablo, SatirAdi satir) {
    const int ilk = 2 * (SatirAyi(satir) - 1);
    return SatirinAdi(tablo, ilk) == satir ? ilk : ilk + 1;
}

class TabloArayuzu;

/// A cell or a head, by its number among the children of the table.
class GozArayuzu : public QAccessibleInterface, public QAccessibleTableCellInterface {
  public:
    GozArayuzu(TabloGorunumu& gorunum, int no) : gorunum_(&gorunum), no_(no) {}

    bool isValid() const override { return Tablo() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? gorunum_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return gorunum_ ? QAccessible::queryAccessibleInterface(gorunum_) : nullptr;
    }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* child(int /*no*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*cocuk*/) const override { return -1; }

    QAccessible::Role role() const override {
        return Hucre()        ? QAccessible::Cell
               : GunBasligi() ? QAccessible::ColumnHeader
                              : QAccessible::RowHeader;
    }
    QAccessible::State state() const override;
    QString text(QAccessible::Text tur) const override;
    void setText(QAccessible::Text /*tur*/, const QString& /*metin*/) override {}
    QRect rect() const override;

    int columnIndex() const override { return Hucre() ? no_ % kGunSayisi : std::max(0, no_ - kGunBasi); }
    int rowIndex() const override { return Hucre() ? no_ / kGunSayisi : std::max(0, no_ - kSatirBasi); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    bool isSelected() const override { return false; }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    QAccessibleInterface* table() const override { return parent(); }

    void* interface_cast(QAccessible::InterfaceType tur) override {
        return tur == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                      : nullptr;
    }

    int No() const { return no_; }

  private:
    std::shared_ptr<FormTablo> Tablo() const { return gorunum_ ? gorunum_->Giris().Ekran() : nullptr; }
    bool Hucre() const { return no_ < kGunBasi; }
    bool GunBasligi() const { return !Hucre() && no_ < kSatirBasi; }
    int Gun() const { return columnIndex() + 1; }
    SatirAdi SatirAdiBul(const FormTablo& tablo) const { return SatirinAdi(tablo, rowIndex()); }

    QPointer<TabloGorunumu> gorunum_;
    int no_;
};

class TabloArayuzu : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit TabloArayuzu(TabloGorunumu& gorunum)
        : QAccessibleWidget(&gorunum, QAccessible::Table), gorunum_(gorunum) {}
    ~TabloArayuzu() override {
        for (const auto& [no, kimlik] : gozler_)
            QAccessible::deleteAccessibleInterface(kimlik);
    }
    TabloArayuzu(const TabloArayuzu&) = delete;
    TabloArayuzu& operator=(const TabloArayuzu&) = delete;

    int childCount() const override { return kParcaBasi + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int no) const override {
        if (no >= kParcaBasi)
            return QAccessibleWidget::child(no - kParcaBasi);
        return no < 0 ? nullptr : Goz(no);
    }
    int indexOfChild(const QAccessibleInterface* cocuk) const override {
        if (const auto* goz = dynamic_cast<const GozArayuzu*>(cocuk))
            return goz->No();
        const int parca = QAccessibleWidget::indexOfChild(cocuk);
        return parca < 0 ? parca : kParcaBasi + parca;
    }
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    void* interface_cast(QAccessible::InterfaceType tur) override {
        if (tur == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(tur);
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int satir, int sutun) const override {
        const bool icinde = satir >= 0 && satir < kSatirSayisi && sutun >= 0 && sutun < kGunSayisi;
        return icinde ? Goz(satir * kGunSayisi + sutun) : nullptr;
    }
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QString columnDescription(int sutun) const override {
        return sutun < 0 || sutun >= kGunSayisi ? QString() : Goz(kGunBasi + sutun)->text(QAccessible::Name);
    }
    QString rowDescription(int satir) const override {
        return satir < 0 || satir >= kSatirSayisi ? QString()
                                                  : Goz(kSatirBasi + satir)->text(QAccessible::Name);
    }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override { return kGunSayisi; }
    int rowCount() const override { return kSatirSayisi; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int /*sutun*/) const override { return false; }
    bool isRowSelected(int /*satir*/) const override { return false; }
    bool selectRow(int /*satir*/) override { return false; }
    bool selectColumn(int /*sutun*/) override { return false; }
    bool unselectRow(int /*satir*/) override { return false; }
    bool unselectColumn(int /*sutun*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*olay*/) override {}

    /// The number of a cell among the children; -1 for what is none.
    int HucreNo(const TabloIsabeti& goz) const {
        const auto tablo = gorunum_.Giris().Ekran();
        return tablo && goz.HucreMi() ? SatirinSirasi(*tablo, goz.satir) * kGunSayisi + goz.gun - 1 : -1;
    }

  private:
    /// Made when it is first asked for; the toolkit keeps it under a number of its own.
    QAccessibleInterface* Goz(int no) const {
        const auto [yer, yeni] = gozler_.try_emplace(no);
        if (yeni)
            yer->second = QAccessible::registerAccessibleInterface(new GozArayuzu(gorunum_, no));
        return QAccessible::accessibleInterface(yer->second);
    }

    TabloGorunumu& gorunum_;
    mutable std::map<int, QAccessible::Id> gozler_;
};

QAccessible::State GozArayuzu::state() const {
    QAccessible::State durum;
    const auto tablo = Tablo();
    if (!tablo) {
        durum.invalid = true;
        return durum;
    }
    durum.readOnly = true;
    if (!Hucre())
        return durum;
    const bool gorunur = tablo->Gozu(SatirAdiBul(*tablo), Gun()).gorunur && gorunum_->isVisible();
    durum.invisible = !gorunur;
    durum.focusable = gorunur;
    const auto* ust = dynamic_cast<const TabloArayuzu*>(parent());
    durum.focused = gorunur && ust != nullptr && ust->HucreNo(gorunum_->Giris().TusGozu()) == no_;
    return durum;
}

QString GozArayuzu::text(QAccessible::Text tur) const {
    const auto tablo = Tablo();
    if (!tablo)
        return {};
    const SatirAdi satir = SatirAdiBul(*tablo);
    if (GunBasligi())
        return tur == QAccessible::Name ? QMetin(tablo->ALabel[Gun()].baslik) : QString();
    if (!Hucre()) {
        const QString dilim =
            SatirDilimi(satir) == GunduzGece::Gunduz ? QStringLiteral(" Gündüz") : QStringLiteral(" Gece");
        return tur == QAccessible::Name ? QMetin(tablo->AyAdi[SatirAyi(satir)].baslik) + dilim : QString();
    }
    const velora::Hucre& hucre = tablo->Gozu(satir, Gun());
    switch (tur) {
    case QAccessible::Name:
        return QMetin(tablo->GozAdi(satir, Gun()));
    case QAccessible::Description:
        return hucre.gorunur ? QMetin(tablo->EtiketMetni(satir, Gun())).simplified() : QString();
    case QAccessible::Help:
        return hucre.gorunur ? QMetin(hucre.ipucu) : QString();
    default:
        return {};
    }
}

QRect GozArayuzu::rect() const {
    const auto tablo = Tablo();
    if (!tablo)
        return {};
    const TabloDuzeni& duzen = gorunum_->Duzen();
    const SatirAdi satir = SatirAdiBul(*tablo);
    const QRect yer = Hucre()        ? duzen.Hucre(satir, Gun())
                      : GunBasligi() ? duzen.GunBasligi(Gun())
                                     : duzen.ResimYeri(SatirAyi(satir), rowIndex() % 2 == 0);
    const QRect mantiksal = gorunum_->Mantiksal(yer);
    return {gorunum_->mapToGlobal(mantiksal.topLeft()), mantiksal.size()};
}

QList<QAccessibleInterface*> GozArayuzu::columnHeaderCells() const {
    const auto* ust = Hucre() ? parent() : nullptr;
    return ust == nullptr ? QList<QAccessibleInterface*>() : QList{ust->child(kGunBasi + columnIndex())};
}

QList<QAccessibleInterface*> GozArayuzu::rowHeaderCells() const {
    const auto* ust = Hucre() ? parent() : nullptr;
    return ust == nullptr ? QList<QAccessibleInterface*>() : QList{ust->child(kSatirBasi + rowIndex())};
}

QAccessibleInterface* TabloArayuzu::childAt(int x, int y) const {
    const QPoint yer = gorunum_.mapFromGlobal(QPoint(x, y));
    if (gorunum_.childAt(yer) != nullptr)
        return QAccessibleWidget::childAt(x, y);
    const int no = HucreNo(gorunum_.Isabet(yer));
    return no < 0 ? nullptr : Goz(no);
}

QAccessibleInterface* TabloArayuzu::focusChild() const {
    if (!gorunum_.hasFocus())
        return QAccessibleWidget::focusChild();
    const int no = HucreNo(gorunum_.Giris().TusGozu());
    return no < 0 ? nullptr : Goz(no);
}

QAccessibleInterface* TablonunArayuzu(const QString& /*sinif*/, QObject* nesne) {
    auto* gorunum = dynamic_cast<TabloGorunumu*>(nesne);
    return gorunum == nullptr ? nullptr : new TabloArayuzu(*gorunum);
}

} // namespace

void TabloErisiminiTanit() {
    // The toolkit takes the same one only once.
    QAccessible::installFactory(TablonunArayuzu);
}

namespace {

std::function<void(QAccessibleEvent*)>& OdakDinleyicisi() {
    static std::function<void(QAccessibleEvent*)> dinleyici;
    return dinleyici;
}

} // namespace

void TabloOdaginiDinle(std::function<void(QAccessibleEvent*)> dinleyici) {
    OdakDinleyicisi() = std::move(dinleyici);
}

void TabloOdaginiBildir(TabloGorunumu& gorunum, const TabloIsabeti& goz) {
    const auto& dinleyici = OdakDinleyicisi();
    if (!dinleyici && !QAccessible::isActive())
        return;
    const auto* arayuz = dynamic_cast<TabloArayuzu*>(QAccessible::queryAccessibleInterface(&gorunum));
    const int no = arayuz == nullptr ? -1 : arayuz->HucreNo(goz);
    if (no < 0)
        return;
    QAccessibleEvent olay(&gorunum, QAccessible::Focus);
    olay.setChild(no);
    dinleyici ? dinleyici(&olay) : QAccessible::updateAccessibility(&olay);
}

} // namespace velora
