#pragma once

#include <cstddef>
#include <vector>

#include <QAbstractListModel>

#include "storage/Metin.h"

class QAbstractItemView;
class QComboBox;

namespace velora {

/// What a drop-down offers, each entry with its whole text as its tip.
class SecimModeli : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void Koy(const std::vector<Metin>& ogeler);

    int rowCount(const QModelIndex& ust = {}) const override;
    QVariant data(const QModelIndex& goz, int rol) const override;

  private:
    std::vector<Metin> ogeler_;
};

/// A list of very many entries takes all of them to be as high as the first: the view would measure each.
void AyniBoyluSay(QAbstractItemView* liste, std::size_t ogeSayisi);

/// The same for a drop-down. Its open list, which has no scroll bar of itself, gets one for many entries.
void BoyaUy(QComboBox& kutu, std::size_t ogeSayisi);

} // namespace velora
