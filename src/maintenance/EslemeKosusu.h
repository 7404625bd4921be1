#pragma once

#include <filesystem>
#include <memory>
#include <vector>

namespace velora {

class DosyaEslemesi;

/// Two trees that are brought in line by single steps, as `FileSync` tells it: what a backup is while it is
/// on its way. It stands on its own: no screen that comes or goes touches it.
class EslemeKosusu {
  public:
    using Yol = std::filesystem::path;

    /// A source that isn't there has no steps; a target that isn't there is made. `atlanan` are folders that
    /// are never entered.
    EslemeKosusu(const Yol& kaynak, const Yol& hedef, bool ikiYonlu, std::vector<Yol> atlanan = {});
    ~EslemeKosusu();
    EslemeKosusu(const EslemeKosusu&) = delete;
    EslemeKosusu& operator=(const EslemeKosusu&) = delete;

    /// Deals with the next file, or leaves a folder with all that it held. False: there was nothing left.
    bool Adim();

  private:
    struct Duzey;

    void Gir(const Yol& kaynak, const Yol& hedef, bool ikiYonlu);
    bool AltaGir();
    bool Girilir(const Yol& klasor) const;

    std::vector<Yol> atlanan_;
    std::vector<Duzey> duzeyler_; // the folders that the walk stands in, the trees themselves first
    std::unique_ptr<DosyaEslemesi> dosyalar_; // of the innermost one, until all are done
};

} // namespace velora
