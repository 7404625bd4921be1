#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "storage/Metin.h"
#include "storage/dosya/KlasorBellegi.h"

namespace velora {

class Dosyalar;

/// A folder that is read: the names that stood there when it was opened, or a moment before
/// (`Dosyalar::Onden`), and the bytes of each file as they are when they are asked for, or were when the
/// folder was opened. What was read before, whoever did it, and hasn't changed since comes from memory.
///
/// It may stand while events run, and while others read and write the same folder. What is opened by
/// `Dosyalar` must not outlive it.
class KlasorOkumasi {
  public:
    KlasorOkumasi(KlasorOkumasi&& baska) noexcept;
    KlasorOkumasi& operator=(KlasorOkumasi&&) = delete;
    ~KlasorOkumasi();

    /// Names of the plain files, sorted by name without regard to case. None of a folder that isn't there.
    std::size_t Sayi() const { return bellek_ ? bellek_->Adlar().Sayi() : 0; }
    /// It lasts until the next name is asked for.
    MetinBakis operator[](std::size_t sira) const { return bellek_->Adlar()[sira]; }

    /// As in `AdListesi`.
    bool Biter(std::size_t sira, MetinBakis son) const { return bellek_->Adlar().Biter(sira, son); }
    bool BasiAyni(std::size_t sira, std::size_t boy) const { return bellek_->Adlar().BasiAyni(sira, boy); }

    /// Whether any of them is one by its first letters, `boy` or all that it has, which `uyar` is told. They
    /// come in no order, and none is made a text of: it is for who looks through many folders for little. One
    /// that has other letters than of seven bits there counts as one, for it can't be told so.
    bool BiriUyar(std::size_t boy, const std::function<bool(MetinBakis bas)>& uyar) const;

    /// The place of a name; else of the first that differs from it only in case.
    std::optional<std::size_t> Bul(MetinBakis ad) const {
        return bellek_ ? bellek_->Adlar().Bul(ad) : std::nullopt;
    }

    /// The whole file; nothing when it can't be opened or read. It lasts until the next one is read.
    std::optional<std::string_view> Oku(std::size_t sira);

    /// The file that this name leads to in this folder, be it that it is spelled otherwise there. Else as
    /// above.
    std::optional<std::string_view> Oku(MetinBakis ad);

    /// The same of the name at that place with letters of seven bits behind it.
    std::optional<std::string_view> EsiniOku(std::size_t sira, MetinBakis ek);

  private:
    friend class Dosyalar;
    KlasorOkumasi(const Dosyalar& dosyalar, Metin yol) : dosyalar_(&dosyalar), yol_(std::move(yol)) {}
    void Ac(const std::filesystem::path& klasor);

    sistem::Klasor& Acik();
    std::optional<std::string_view> BelleginOkumasi(std::size_t sira);

    const Dosyalar* dosyalar_; // null: this one was moved away
    Metin yol_;
    SistemAni sinir_{};
    std::unique_ptr<sistem::Klasor> acik_;
    std::shared_ptr<KlasorBellegi> bellek_;
    std::string tampon_;
};

} // namespace velora
