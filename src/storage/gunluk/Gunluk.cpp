#include "storage/gunluk/Gunluk.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "storage/dosya/Aktarim.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {
namespace {

using sistem::AcikDosya;
using sistem::Acilis;
using sistem::Kip;

constexpr std::string_view kUzanti = ".gunluk";
constexpr std::string_view kBozukUzantisi = ".bozuk";
constexpr std::string_view kYeniUzantisi = ".yeni";

// A journal much longer than it may be is no journal of ours.
constexpr std::uint64_t kEnUzunGunluk = std::uint64_t{1} << 30U;

// Cutting back writes all that is kept: not for each action anew.
constexpr std::size_t kKisaltmaPayi = Gunluk::kEnAzEylem / 4;

std::filesystem::path Gercek(const std::filesystem::path& kok) {
    std::error_code hata;
    const auto gercek = std::filesystem::weakly_canonical(kok, hata);
    return hata ? kok : gercek;
}

std::filesystem::path Ekli(std::filesystem::path yol, std::string_view ek) {
    yol += ek;
    return yol;
}

/// Who has touched a file.
struct Dokunus {
    std::size_t sira = 0; ///< of the record
    std::uint64_t no = 0;
};

struct YarimEylem {
    EylemKaydi kayit;
    std::vector<std::size_t> siralar; ///< of the records that its steps come from
};

/// Goes through the records in their order and gathers what isn't done.
class Okuma {
  public:
    void operator()(EylemKaydi& kayit) {
        const std::uint64_t no = kayit.no;
        const std::vector<EylemAdimi> adimlar = std::exchange(kayit.adimlar, {});
        yarimlar_[no] = {std::move(kayit), {}};
        Ekle(no, adimlar);
    }
    void operator()(EkKaydi& kayit) { Ekle(kayit.no, kayit.adimlar); }
    void operator()(const BittiKaydi& kayit) { yarimlar_.erase(kayit.no); }
    void operator()(const OnarimKaydi& /*kayit*/) {}

    std::vector<EylemKaydi> Yarimlar() const {
        std::vector<EylemKaydi> sonuc;
        for (const auto& [no, yarim] : yarimlar_) {
            EylemKaydi kayit = yarim.kayit;
            kayit.adimlar.clear();
            for (std::size_t i = 0; i < yarim.siralar.size(); ++i)
                if (!Gecti(yarim.kayit.adimlar[i], {yarim.siralar[i], no}))
                    kayit.adimlar.push_back(yarim.kayit.adimlar[i]);
            sonuc.push_back(std::move(kayit));
        }
        return sonuc;
    }

  private:
    /// Whether a step is past: its file was touched later by an action that is done, or by one that had begun
    /// before.
    bool Gecti(const EylemAdimi& adim, const Dokunus& adiminki) const {
        return std::ranges::any_of(dokunulan_.at(adim.yol), [&](const Dokunus& biri) {
            return biri.sira > adiminki.sira && biri.no != adiminki.no &&
                   (biri.no < adiminki.no || !yarimlar_.contains(biri.no));
        });
    }

    void Ekle(std::uint64_t no, const std::vector<EylemAdimi>& adimlar) {
        ++sira_;
        const auto yarim = yarimlar_.find(no);
        for (const EylemAdimi& adim : adimlar) {
            dokunulan_[adim.yol].push_back({sira_, no});
            if (yarim == yarimlar_.end())
                continue;
            yarim->second.kayit.adimlar.push_back(adim);
            yarim->second.siralar.push_back(sira_);
        }
    }

    std::size_t sira_ = 0;
    std::map<std::uint64_t, YarimEylem> yarimlar_;
    std::map<Metin, std::vector<Dokunus>> dokunulan_;
};

std::uint64_t KaydinNosu(const GunlukKaydi& kayit) {
    return std::visit([](const auto& k) { return k.no; }, kayit);
}

/// Whether another whole record stands somewhere behind bytes that were damaged. Behind NUL bytes one says
/// nothing: blocks of an end that nobody has waited for come to the medium in any order.
bool KayitVar(std::string_view bayt) {
    const std::string_view gelen = bayt.substr(0, bayt.find('\0'));
    for (std::size_t yer = bayt.find("\n#"); yer < gelen.size(); yer = bayt.find("\n#", yer + 1)) {
        std::size_t konum = yer + 1;
        if (KayitOku(bayt, konum))
            return true;
    }
    return false;
}

} // namespace

std::filesystem::path Gunluk::Yol(const std::filesystem::path& klasor, const std::filesystem::path& kok) {
    const Metin metin = YolMetni(Gercek(kok));
    std::uint64_t sayi = 0;
    for (const char16_t harf : metin)
        sayi = sayi * 1099511628211U + harf + 1;
    std::string ad;
    for (; ad.size() < 16; sayi >>= 4U)
        ad += "0123456789abcdef"[sayi & 0xFU];
    return klasor / (ad + std::string(kUzanti));
}

std::shared_ptr<Gunluk> Gunluk::Ac(const std::filesystem::path& klasor, const std::filesystem::path& kok) {
    std::error_code hata;
    std::filesystem::create_directories(klasor.parent_path(), hata);
    sistem::OzelKlasorYap(klasor);
    std::shared_ptr<Gunluk> gunluk(new Gunluk(Yol(klasor, kok), GunlukBasi(YolMetni(Gercek(kok)))));
    return gunluk->Hazirla() ? gunluk : nullptr;
}

bool Gunluk::Hazirla() {
    dosya_ = std::make_unique<AcikDosya>();
    if (dosya_->Ac(yol_, Kip::Ozel) != Acilis::Acildi)
        return false;
    Icindeki icindeki = Oku();
    if (icindeki == Icindeki::Bozuk) {
        std::error_code hata;
        dosya_->Kapat(); // not every system renames what is open
        std::filesystem::rename(yol_, Ekli(yol_, kBozukUzantisi), hata);
        dosya_ = std::make_unique<AcikDosya>();
        if (hata || dosya_->Ac(yol_, Kip::Ozel) != Acilis::Acildi)
            return false;
        icindeki = Oku();
    }
    return icindeki == Icindeki::Saglam && (boy_ > 0 || BasiYaz());
}

bool Gunluk::BasiYaz() {
    const bool yazildi = dosya_->Yaz(0, bas_) == bas_.size() && dosya_->Esitle();
    boy_ = bas_.size();
    return yazildi && sistem::AdlariEsitle(yol_.parent_path());
}

Gunluk::Icindeki Gunluk::Oku() {
    const auto uzunluk = dosya_->Boy();
    if (!uzunluk || *uzunluk > kEnUzunGunluk)
        return uzunluk ? Icindeki::Bozuk : Icindeki::Okunamadi;
    const auto boy = static_cast<std::size_t>(*uzunluk);
    std::string bayt(boy, '\0');
    const auto okunan = OkuHepsini(*dosya_, boy, bayt, boy);
    if (!okunan)
        return Icindeki::Okunamadi;
    bayt.resize(*okunan);
    // A first line that was cut off: nothing has stood behind it yet.
    if (bayt.size() <= bas_.size() && std::string_view(bas_).starts_with(bayt.substr(0, bayt.find('\0')))) {
        boy_ = bayt == bas_ ? boy : 0;
        return dosya_->Kes(boy_) ? Icindeki::Saglam : Icindeki::Okunamadi;
    }
    if (!bayt.starts_with(bas_))
        return Icindeki::Bozuk;
    boy_ = Coz(bayt);
    if (KayitVar(std::string_view(bayt).substr(boy_ - 1)))
        return Icindeki::Bozuk;
    // What a death left of a last record, which nobody has relied on yet.
    return boy_ == boy || dosya_->Kes(boy_) ? Icindeki::Saglam : Icindeki::Okunamadi;
}

/// Takes the records in. Where the last whole one ends.
std::size_t Gunluk::Coz(std::string_view bayt) {
    Okuma okuma;
    std::size_t konum = bas_.size();
    for (std::size_t yer = konum; auto kayit = KayitOku(bayt, konum); yer = konum) {
        const std::uint64_t no = KaydinNosu(*kayit);
        sonNo_ = std::max(sonNo_, no);
        const bool eylem = std::holds_alternative<EylemKaydi>(*kayit);
        yerler_.push_back({eylem, no, yer, konum - yer});
        eylemSayisi_ += eylem ? 1 : 0;
        std::visit(okuma, *kayit);
    }
    yarimlar_ = okuma.Yarimlar();
    for (const EylemKaydi& yarim : yarimlar_)
        acik_.insert(yarim.no);
    return konum;
}

bool Gunluk::Esitle() {
    const auto bas = std::chrono::steady_clock::now();
    const bool durur = dosya_->Esitle();
    beklenen_ = beklenen_.load() + (std::chrono::steady_clock::now() - bas);
    return durur;
}

bool Gunluk::Koy(std::uint64_t no, const GunlukKaydi& kayit, bool bekle) {
    const std::string bayt = KayitBaytlari(kayit);
    if (!HepsiniYaz(*dosya_, boy_, bayt) || (bekle && !Esitle())) {
        dosya_->Kes(boy_);
        return false;
    }
    const bool eylem = std::holds_alternative<EylemKaydi>(kayit);
    yerler_.push_back({eylem, no, boy_, bayt.size()});
    eylemSayisi_ += eylem ? 1 : 0;
    boy_ += bayt.size();
    return true;
}

std::optional<std::uint64_t> Gunluk::Basla(EylemKaydi kayit) {
    const std::lock_guard kilit(kilit_);
    kayit.no = sonNo_ + 1;
    if (!Koy(kayit.no, kayit, true))
        return {};
    acik_.insert(kayit.no);
    return ++sonNo_;
}

bool Gunluk::Ekle(std::uint64_t no, std::vector<EylemAdimi> adimlar) {
    const std::lock_guard kilit(kilit_);
    return Koy(no, EkKaydi{no, std::move(adimlar)}, true);
}

void Gunluk::Bitti(std::uint64_t no) {
    const std::lock_guard kilit(kilit_);
    if (Koy(no, BittiKaydi{no}, false))
        acik_.erase(no);
}

void Gunluk::Onarildi(OnarimKaydi kayit) {
    const std::lock_guard kilit(kilit_);
    const std::uint64_t no = kayit.no;
    Koy(no, std::move(kayit), false);
}

/// The actions that stay: all that aren't done, and the last of those that are.
std::set<std::uint64_t> Gunluk::Kalacaklar() const {
    std::map<std::uint64_t, std::uint64_t, std::greater<>> boylar; // by number, the newest first
    for (const Yeri& yer : yerler_)
        boylar[yer.no] += yer.boy;
    std::uint64_t toplam = bas_.size();
    for (const std::uint64_t no : acik_)
        toplam += boylar[no];
    std::set<std::uint64_t> kalan = acik_;
    for (const auto& [no, boy] : boylar) {
        if (acik_.contains(no))
            continue;
        toplam += boy;
        if (toplam > kEnCokBayt - kEnCokBayt / 4 || kalan.size() >= kEnAzEylem + acik_.size())
            break;
        kalan.insert(no);
    }
    return kalan;
}

void Gunluk::Kisalt() {
    const std::lock_guard kilit(kilit_);
    if (boy_ <= kEnCokBayt && eylemSayisi_ <= kEnAzEylem + kKisaltmaPayi)
        return;
    std::string eski(static_cast<std::size_t>(boy_), '\0');
    if (OkuHepsini(*dosya_, eski.size(), eski, eski.size()) != eski.size())
        return;
    const std::set<std::uint64_t> kalan = Kalacaklar();
    std::string yeni = bas_;
    std::vector<Yeri> yerler;
    for (const Yeri& yer : yerler_)
        if (kalan.contains(yer.no)) {
            yerler.push_back({yer.eylem, yer.no, yeni.size(), yer.boy});
            yeni.append(eski, static_cast<std::size_t>(yer.konum), static_cast<std::size_t>(yer.boy));
        }
    if (!YerineKoy(yeni))
        return;
    yerler_ = std::move(yerler);
    boy_ = yeni.size();
    eylemSayisi_ =
        static_cast<std::size_t>(std::ranges::count_if(yerler_, [](const Yeri& yer) { return yer.eylem; }));
}

/// Puts a shorter journal in the place of this one, in one step. Without it the old one goes on.
bool Gunluk::YerineKoy(const std::string& bayt) {
    const std::filesystem::path yan = Ekli(yol_, kYeniUzantisi);
    AcikDosya yeni;
    if (yeni.Ac(yan, Kip::Ozel) != Acilis::Acildi || !yeni.Kes(0) || !HepsiniYaz(yeni, 0, bayt) ||
        !yeni.Esitle() || !yeni.Kapat())
        return false;
    std::error_code hata;
    dosya_->Kapat(); // not every system renames what is open
    std::filesystem::rename(yan, yol_, hata);
    sistem::AdlariEsitle(yol_.parent_path());
    return dosya_->Ac(yol_, Kip::Ozel) == Acilis::Acildi && !hata;
}

} // namespace velora
