#pragma once

#include <optional>

#include "dayanim/Senaryolar.h"

namespace velora::dayanim {

/// A tree and a folder for its journal on the disk, and programs that work on them. They lie in memory where
/// the system has such a folder: nothing here needs a real disk.
class Saha {
  public:
    /// `ustu`, `durumUstu`: the folder to make the tree in, and that for the journal; empty for the usual
    /// one.
    explicit Saha(const std::filesystem::path& ustu = {}, const std::filesystem::path& durumUstu = {});
    ~Saha();
    Saha(const Saha&) = delete;
    Saha& operator=(const Saha&) = delete;

    const std::filesystem::path& Kok() const { return kok_; }
    const std::filesystem::path& Durum() const { return durum_; }

    /// Makes the tree hold just this. What is so already isn't touched.
    void Kur(const Agac& agac) const;
    const Agac& Oku() const;
    /// The same of the journal's folder.
    void DurumKur(const Agac& agac) const { Yaz(durum_, Oku(durum_), agac); }
    Agac DurumOku() const { return Oku(durum_); }

    /// Both as a scenario begins with them.
    void Kur(const Senaryo& senaryo) const;
    /// A fresh start: the journal is opened, in this process. The tree behind it.
    const Agac& Baslat() const;
    /// Somebody else has changed the tree.
    void Degisti() const { bilinen_.reset(); }
    /// Whether scenarios run with a journal; true unless told otherwise.
    bool gunluklu = true;
    /// What the journal's folder holds when a scenario begins; nothing unless told otherwise.
    Agac ilkDurum;

  private:
    static void Yaz(const std::filesystem::path& klasor, const Agac& eski, const Agac& agac);
    static Agac Oku(const std::filesystem::path& klasor);

    std::filesystem::path ust_, durumUstu_, kok_, durum_;
    mutable std::optional<Agac> bilinen_; // what the tree holds, so that not all is read again and again
};

} // namespace velora::dayanim
