#include "storage/dosya/YazmaAkisi.h"

#include <utility>

#include "storage/dosya/Aktarim.h"
#include "storage/dosya/Sistem.h"

namespace velora {

struct YazmaAkisi::Ic {
    Ic(Sinama sina, std::uint64_t nereden) : sinama(std::move(sina)), konum(nereden) {}
    bool Ac(const std::filesystem::path& yol) {
        const auto acilis = dosya.Ac(yol, sistem::Kip::Guncelle);
        if (acilis == sistem::Acilis::Yok)
            return konum == 0 && dosya.Ac(yol, sistem::Kip::Yeni) == sistem::Acilis::Acildi;
        return acilis == sistem::Acilis::Acildi && dosya.Boy().value_or(0) >= konum && dosya.Kes(konum);
    }
    bool Yaz(std::string_view bayt) {
        if (dar)
            return HepsiniYaz(*dar, konum, bayt);
        return HepsiniYaz(dosya, konum, bayt);
    }

    Sinama sinama;
    std::uint64_t konum;
    sistem::AcikDosya dosya;
    std::optional<DarDosya<sistem::AcikDosya>> dar;
};

YazmaAkisi::YazmaAkisi(std::unique_ptr<Ic> ic) : ic_(std::move(ic)) {}

YazmaAkisi::~YazmaAkisi() = default;

std::unique_ptr<YazmaAkisi> YazmaAkisi::Ac(const std::filesystem::path& yol, std::uint64_t konum,
                                           Sinama sinama) {
    auto ic = std::make_unique<Ic>(std::move(sinama), konum);
    if (!ic->Ac(yol))
        return nullptr;
    if (ic->sinama.bosYer)
        ic->dar.emplace(ic->dosya, *ic->sinama.bosYer);
    return std::unique_ptr<YazmaAkisi>(new YazmaAkisi(std::move(ic)));
}

bool YazmaAkisi::Yaz(std::string_view bayt) {
    if (ic_->sinama.ariza && ic_->sinama.ariza())
        return false;
    if (!ic_->Yaz(bayt))
        return false;
    ic_->konum += bayt.size();
    return true;
}

bool YazmaAkisi::Kapat() {
    return ic_->dosya.Kapat();
}

} // namespace velora
