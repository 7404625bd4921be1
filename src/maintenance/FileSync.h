#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "maintenance/KlasorEsleme.h"

namespace velora {

/// Brings folders in line, file by file. It deletes nothing. Whatever fails is passed over and the rest goes
/// on: a file that couldn't be copied whole stays as it was at its target, or away.
///
/// Plain files and folders only. Links are followed; one that leads back to a folder above itself is passed
/// over, or the walk would never end.
class FileSync {
  public:
    using Yol = std::filesystem::path;

    /// `olaylar` runs behind each file and folder; where it says false nobody wants the rest, and the walk
    /// ends there. `atlanan` are folders that no walk enters, as the backups' own.
    explicit FileSync(std::function<bool()> olaylar, std::vector<Yol> atlanan = {});

    /// The files of two folders, without those below them: first all of the source, then those that only the
    /// target has, each part sorted by name.
    static std::vector<EslemeSatiri> Compare(const Yol& kaynak, const Yol& hedef);

    /// Copies what differs of two folders' files. From the source to the target, unless the target's is the
    /// newer one; with `ikiYonlu` that one, and what only the target has, is copied back.
    void SyncFiles(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const;

    /// The same for whole trees. A source that isn't there does nothing; a target that isn't there is made.
    void SyncFolders(const Yol& kaynak, const Yol& hedef, bool ikiYonlu) const;

  private:
    std::function<bool()> olaylar_;
    std::vector<Yol> atlanan_;
};

} // namespace velora
