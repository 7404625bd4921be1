#include "storage/dosya/KlasorBellegi.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace velora {

namespace {

// Whatever is longer is read each time.
constexpr std::size_t kEnUzunSaklanan = std::size_t{1} << 20U;

// Of one folder, also while it is being read. No year needs it.
constexpr std::size_t kEnCokTutulan = std::size_t{64} << 20U;

constexpr std::size_t kEnKucukParca = std::size_t{4} << 10U;
constexpr std::size_t kEnBuyukParca = std::size_t{256} << 10U;

/// Whether nothing has touched the file since.
bool Eski(const sistem::Kimlik& kimlik, SistemAni sinir) {
    return SistemAni(std::chrono::nanoseconds(std::max(kimlik.yazma, kimlik.durum))) <= sinir;
}

} // namespace

std::unique_ptr<sistem::Gozcu> KlasorBellegi::Izlet(std::unique_ptr<sistem::Gozcu> gozcu) {
    for (Kayit& kayit : kayitlar_)
        kayit.sorulsun = true;
    return std::exchange(gozcu_, std::move(gozcu));
}

void KlasorBellegi::Tazele(const std::function<sistem::Klasor&()>& ac) {
    const bool bilinir = gozcu_ != nullptr && Degismedi();
    if (bilinir && tam_)
        return;
    sistem::Klasor& acik = ac();
    Listele(acik);
    tam_ = acik.Tam();
}

/// Whether it is sure that the folder is as it was when it was listed last. Files that may have changed are
/// asked about when they are wanted.
bool KlasorBellegi::Degismedi() {
    std::unordered_set<std::basic_string<sistem::AdHarfi>> degisenler;
    const bool emin = gozcu_->Degisenler([&](sistem::DiskAdi ad) { degisenler.emplace(ad); });
    if (emin && degisenler.empty())
        return true;
    for (std::size_t i = 0; i < kayitNo_.size(); ++i)
        if (kayitNo_[i] != kYok &&
            (!emin || degisenler.contains({}) ||
             degisenler.contains(std::basic_string<sistem::AdHarfi>(adlar_.Diskteki(i)))))
            kayitlar_[kayitNo_[i]].sorulsun = true;
    if (!emin)
        gozcu_->Izle(klasor_); // before the listing: no change gets lost
    return false;
}

std::unique_ptr<sistem::Klasor> KlasorBellegi::Al(ListelenenKlasor liste) {
    YeriniAl(liste.kimlik);
    AdlariDegistir(std::move(liste.adlar));
    tam_ = liste.acik->Tam();
    return std::move(liste.acik);
}

/// What is kept of files is kept of those in this folder: another one that stands in its place has others.
void KlasorBellegi::YeriniAl(const std::optional<sistem::Kimlik>& kimlik) {
    const auto yeri = [](const sistem::Kimlik& k) { return std::pair(k.disk, k.no); };
    if (!kimlik || yeri(*kimlik) != yeri(kimlik_))
        for (Kayit& kayit : kayitlar_)
            Birak(kayit);
    kimlik_ = kimlik.value_or(sistem::Kimlik());
}

void KlasorBellegi::Listele(sistem::Klasor& acik) {
    YeriniAl(acik.Sor());
    AdListesi yeni;
    std::size_t ayni = 0; // so many came as they did the last time, and no other
    bool degisti = false;
    for (sistem::ListeOgesi oge; acik.Sonraki(oge, sistem::Tur::Dosya);) {
        if (!degisti && adlar_.Gelen(ayni, oge)) {
            ++ayni;
            continue;
        }
        if (!std::exchange(degisti, true))
            yeni.BastanEkle(adlar_, ayni);
        yeni.Ekle(oge);
    }
    if (!degisti && ayni == adlar_.Sayi())
        return;
    if (!degisti)
        yeni.BastanEkle(adlar_, ayni);
    AdlariDegistir(std::move(yeni));
}

void KlasorBellegi::AdlariDegistir(AdListesi yeni) {
    std::vector<std::uint32_t> kayitNo(yeni.Sayi(), kYok);
    std::vector<Kayit> kayitlar;
    std::vector<sistem::Kimlik> kimlikler;
    if (saklanan_ > 0) {
        yeni.Sirala();
        std::unordered_map<sistem::DiskAdi, std::size_t> yerler;
        for (std::size_t i = 0; i < yeni.Sayi(); ++i)
            yerler.emplace(yeni.Diskteki(i), i);
        for (std::size_t i = 0; i < kayitNo_.size(); ++i) {
            if (kayitNo_[i] == kYok)
                continue;
            Kayit& kayit = kayitlar_[kayitNo_[i]];
            const auto yer = yerler.find(adlar_.Diskteki(i));
            if (yer == yerler.end() || yeni.No(yer->second) != adlar_.No(i)) {
                Birak(kayit); // gone, or another file has its name
            } else if (kayit.var) {
                kayitNo[yer->second] = static_cast<std::uint32_t>(kayitlar.size());
                kayitlar.push_back(kayit);
                if (kayit.kimlikli) {
                    kimlikler.resize(kayitlar.size());
                    kimlikler.back() = Kimligi(kayit);
                }
            }
        }
    }
    adlar_ = std::move(yeni);
    kayitNo_ = std::move(kayitNo);
    kayitlar_ = std::move(kayitlar);
    kimlikler_ = std::move(kimlikler);
}

/// The place for what the system tells of a file that was read.
sistem::Kimlik& KlasorBellegi::Kimligi(const Kayit& kayit) {
    const auto no = static_cast<std::size_t>(&kayit - kayitlar_.data());
    if (no >= kimlikler_.size())
        kimlikler_.resize(kayitlar_.size());
    return kimlikler_[no];
}

bool KlasorBellegi::Taze(std::size_t sira, Kayit& kayit, const sistem::Kimlik& simdi) {
    if (kayit.kimlikli)
        return simdi == Kimligi(kayit);
    // Nobody asked about it when it was read. It was this file, and it hasn't been touched since before then.
    if (simdi.disk != kimlik_.disk || simdi.no != adlar_.No(sira) || simdi.boy != kayit.boy ||
        !Eski(simdi, kayit.sinir))
        return false;
    kayit.kimlikli = true;
    Kimligi(kayit) = simdi;
    return true;
}

std::optional<std::string_view> KlasorBellegi::Bilinen(std::size_t sira) {
    const Kayit* kayit = Bul(sira);
    if (kayit == nullptr || kayit->sorulsun)
        return {};
    return kayit->Bayt();
}

std::optional<std::string_view> KlasorBellegi::Hatirla(const sistem::Klasor& acik, std::size_t sira,
                                                       std::optional<sistem::Kimlik>& simdi) {
    Kayit* kayit = Bul(sira);
    if (kayit == nullptr && adlar_.No(sira) != 0)
        return {};
    simdi = acik.Sor(adlar_.Diskteki(sira).data());
    if (kayit == nullptr || !simdi || !Taze(sira, *kayit, *simdi))
        return {};
    // Where a link leads to nobody watches.
    kayit->sorulsun = gozcu_ == nullptr || adlar_.No(sira) == 0;
    return kayit->Bayt();
}

bool KlasorBellegi::Sakla(std::size_t sira, std::string_view bayt,
                          const std::optional<sistem::Kimlik>& kimlik, SistemAni sinir) {
    if (Kayit* eski = Bul(sira))
        Birak(*eski);
    const bool guvenilir = kimlik ? kimlik->boy == bayt.size() && Eski(*kimlik, sinir) : adlar_.No(sira) != 0;
    if (!guvenilir || bayt.size() > kEnUzunSaklanan)
        return false;
    if (tutulan_ > 2 * kullanilan_ + kEnUzunSaklanan)
        Sikistir();
    if (tutulan_ + bayt.size() > kEnCokTutulan)
        return false;
    if (kayitNo_[sira] == kYok) {
        kayitlar_.emplace_back();
        kayitNo_[sira] = static_cast<std::uint32_t>(kayitlar_.size() - 1);
    }
    Kayit& kayit = kayitlar_[kayitNo_[sira]];
    kayit = {.sinir = sinir,
             .bas = Yerlestir(bayt),
             .boy = static_cast<std::uint32_t>(bayt.size()),
             .var = true,
             .kimlikli = kimlik.has_value()};
    if (kimlik)
        Kimligi(kayit) = *kimlik;
    ++saklanan_;
    kullanilan_ += bayt.size();
    return true;
}

void KlasorBellegi::Unut(sistem::DiskAdi ad) {
    if (Bos())
        return;
    for (std::size_t i = 0; i < kayitNo_.size(); ++i)
        if (Kayit* kayit = adlar_.Diskteki(i) == ad ? Bul(i) : nullptr)
            Birak(*kayit);
}

/// What is kept of a file. Null: nothing.
KlasorBellegi::Kayit* KlasorBellegi::Bul(std::size_t sira) {
    const std::uint32_t no = kayitNo_[sira];
    return no == kYok || !kayitlar_[no].var ? nullptr : &kayitlar_[no];
}

void KlasorBellegi::Birak(Kayit& kayit) {
    if (!std::exchange(kayit.var, false))
        return;
    --saklanan_;
    kullanilan_ -= kayit.boy;
}

/// Copies the bytes to where they stay. The pieces grow with what there is: a folder of which a few files are
/// wanted takes little, and none is ever moved for more room.
const char* KlasorBellegi::Yerlestir(std::string_view bayt) {
    if (parcalar_.empty() || parcalar_.back().capacity() - parcalar_.back().size() < bayt.size()) {
        std::vector<char> parca;
        parca.reserve(std::max(bayt.size(), std::clamp(tutulan_, kEnKucukParca, kEnBuyukParca)));
        tutulan_ += parca.capacity();
        parcalar_.push_back(std::move(parca));
    }
    std::vector<char>& parca = parcalar_.back();
    const std::size_t bas = parca.size();
    parca.insert(parca.end(), bayt.begin(), bayt.end());
    return parca.data() + bas;
}

/// Gives back the room of what isn't kept any more.
void KlasorBellegi::Sikistir() {
    const std::vector<std::vector<char>> eski = std::exchange(parcalar_, {});
    tutulan_ = 0;
    for (Kayit& kayit : kayitlar_)
        kayit.bas = kayit.var ? Yerlestir(kayit.Bayt()) : nullptr;
}

std::size_t KlasorBellegi::Bayt() const {
    return adlar_.Bayt() + kayitNo_.capacity() * sizeof(kYok) + kayitlar_.capacity() * sizeof(Kayit) +
           kimlikler_.capacity() * sizeof(sistem::Kimlik) + tutulan_;
}

} // namespace velora
