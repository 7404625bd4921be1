#include "qt/ListeSatirlari.h"

#include <algorithm>
#include <utility>

#include <QBrush>
#include <QFont>
#include <QTreeWidget>

#include "qt/Ceviri.h"

namespace velora {

namespace {

/// A row is one line: what stands on several lines in a file stands side by side in it.
QString TekSatir(const Metin& metin) {
    return QMetin(metin).replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\n', u' ');
}

class GorunenSatir : public QTreeWidgetItem {
  public:
    GorunenSatir(std::shared_ptr<const SatirKaynagi> kaynak, int yer)
        : kaynak_(std::move(kaynak)), yer_(yer) {}

    QVariant data(int sutun, int rol) const override {
        const auto ekran = kaynak_->ekran.lock();
        const auto sira = static_cast<std::size_t>(kaynak_->sira->Modeldeki(yer_));
        // Between a change of the model and the refresh behind it, the row may be gone there.
        if (!ekran || sutun < 0 || sira >= kaynak_->model.satirlar.size())
            return {};
        const ListeSatiri& satir = kaynak_->model.satirlar[sira];
        if (rol == Qt::TextAlignmentRole)
            return SayiMi(sutun) ? QVariant(kSayiYeri.toInt()) : QVariant();
        if (static_cast<std::size_t>(sutun) >= satir.sutun.size())
            return {};
        switch (rol) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return TekSatir(satir.sutun[static_cast<std::size_t>(sutun)]);
        case Qt::ForegroundRole:
            return QBrush(QRenk(satir.yazi));
        case Qt::FontRole:
            return Yazi(satir.kalin);
        default:
            return QTreeWidgetItem::data(sutun, rol); // what somebody put on the row itself
        }
    }

  private:
    bool SayiMi(int sutun) const {
        const auto& sayilar = kaynak_->model.sayiSutunlari;
        return std::ranges::find(sayilar, sutun) != sayilar.end();
    }
    QFont Yazi(bool kalin) const {
        QFont yazi = treeWidget()->font();
        yazi.setBold(kalin);
        return yazi;
    }

    std::shared_ptr<const SatirKaynagi> kaynak_;
    int yer_; // as it is seen
};

} // namespace

void SatirSirasi::Koy(std::vector<int> modeldeki) {
    modeldeki_ = std::move(modeldeki);
    gorunen_.resize(modeldeki_.size());
    for (std::size_t i = 0; i < modeldeki_.size(); ++i)
        gorunen_[static_cast<std::size_t>(modeldeki_[i])] = static_cast<int>(i);
}

int SatirSirasi::Karsilik(const std::vector<int>& sira, int yer) {
    return yer >= 0 && yer < static_cast<int>(sira.size()) ? sira[static_cast<std::size_t>(yer)] : yer;
}

void SatirlariKoy(QTreeWidget& liste, const std::shared_ptr<const SatirKaynagi>& kaynak) {
    liste.clear();
    QList<QTreeWidgetItem*> ogeler;
    ogeler.reserve(static_cast<qsizetype>(kaynak->sira->Sayi()));
    for (int yer = 0; yer < static_cast<int>(kaynak->sira->Sayi()); ++yer)
        ogeler << new GorunenSatir(kaynak, yer);
    liste.addTopLevelItems(ogeler);
}

} // namespace velora
