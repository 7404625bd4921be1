#include "qt/SecimModeli.h"

#include <QComboBox>
#include <QListView>

#include "qt/Ceviri.h"

namespace velora {

void SecimModeli::Koy(const std::vector<Metin>& ogeler) {
    beginResetModel();
    ogeler_ = ogeler;
    endResetModel();
}

int SecimModeli::rowCount(const QModelIndex& ust) const {
    return ust.isValid() ? 0 : static_cast<int>(ogeler_.size());
}

QVariant SecimModeli::data(const QModelIndex& goz, int rol) const {
    if (!goz.isValid() || goz.row() >= rowCount())
        return {};
    const Metin& oge = ogeler_[static_cast<std::size_t>(goz.row())];
    if (rol == Qt::DisplayRole || rol == Qt::EditRole)
        return QMetin(oge);
    return rol == Qt::ToolTipRole ? QVariant(QIpucu(oge)) : QVariant();
}

void AyniBoyluSay(QAbstractItemView* liste, std::size_t ogeSayisi) {
    constexpr std::size_t kOlculebilen = 1000;
    if (auto* duz = qobject_cast<QListView*>(liste))
        duz->setUniformItemSizes(ogeSayisi > kOlculebilen);
}

void BoyaUy(QComboBox& kutu, std::size_t ogeSayisi) {
    constexpr std::size_t kCubuksuz = 100; // are soon gone through
    AyniBoyluSay(kutu.view(), ogeSayisi);
    kutu.view()->setVerticalScrollBarPolicy(ogeSayisi > kCubuksuz ? Qt::ScrollBarAsNeeded
                                                                  : Qt::ScrollBarAlwaysOff);
}

} // namespace velora
