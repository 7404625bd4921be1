#pragma once

#include <memory>
#include <vector>

#include <Qt>

#include "screen/Kontroller.h"

class QTreeWidget;

namespace velora {

/// How a column of numbers stands.
inline constexpr Qt::Alignment kSayiYeri = Qt::AlignRight | Qt::AlignVCenter;

/// Where the rows of a list are seen, beside their places in the model: the same, unless it is sorted.
class SatirSirasi {
  public:
    void Koy(std::vector<int> modeldeki);
    std::size_t Sayi() const { return modeldeki_.size(); }
    int Modeldeki(int gorunen) const { return Karsilik(modeldeki_, gorunen); }
    int Gorunen(int modeldeki) const { return Karsilik(gorunen_, modeldeki); }

  private:
    static int Karsilik(const std::vector<int>& sira, int yer);

    std::vector<int> modeldeki_;
    std::vector<int> gorunen_;
};

/// What the rows of a list are shown from, as long as their screen stands.
struct SatirKaynagi {
    std::weak_ptr<const void> ekran;
    const ListeGorunumu& model;
    std::shared_ptr<const SatirSirasi> sira;
};

/// As many rows as the source has, in the place of those before. A row copies nothing: it asks its source
/// when it is looked at, so that a list of hundreds of thousands of rows costs what is seen of it.
void SatirlariKoy(QTreeWidget& liste, const std::shared_ptr<const SatirKaynagi>& kaynak);

} // namespace velora
