#include "dayanim/Olcum.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <sstream>

namespace velora::dayanim {

std::vector<KayitliCagri> Beklenen::Sayililar() const {
    std::vector<KayitliCagri> sayililar;
    for (const KayitliCagri& cagri : cagrilar)
        if (cagri.bas.no != 0)
            sayililar.push_back(cagri);
    return sayililar;
}

Beklenen TemizKosum(const Saha& saha, const Senaryo& senaryo) {
    Beklenen beklenen{
        BaslangicAgaci(senaryo.degisik), {}, {}, senaryo.ayri, senaryo.yokGibi, senaryo.disinda};
    saha.Kur(senaryo);
    KosumSonucu sonuc = Kos(saha, senaryo.ad, {}, true);
    EXPECT_EQ(sonuc.sonuc, "exit 0") << senaryo.ad;
    beklenen.sonra = saha.Oku();
    beklenen.cagrilar = std::move(sonuc.cagrilar);
    EXPECT_NE(beklenen.once, beklenen.sonra) << senaryo.ad;
    EXPECT_EQ(saha.Baslat(), beklenen.sonra) << senaryo.ad << ": a start behind it changes something";
    return beklenen;
}

namespace {

const std::string* Bul(const Agac& agac, const std::string& yol) {
    const auto yer = agac.find(yol);
    return yer == agac.end() ? nullptr : &yer->second;
}

bool Ayni(const std::string* bir, const std::string* iki) {
    return bir == nullptr || iki == nullptr ? bir == iki : *bir == *iki;
}

std::string Kisa(const std::string* bayt) {
    if (bayt == nullptr)
        return "isn't there";
    std::string kisa = "holds " + std::to_string(bayt->size()) + " bytes: ";
    for (const char harf : bayt->substr(0, 60))
        kisa += harf < ' ' || harf > '~' ? '.' : harf;
    return kisa;
}

std::set<std::string> Icerikler(const Agac& agac) {
    std::set<std::string> icerikler;
    for (const auto& [yol, bayt] : agac)
        icerikler.insert(bayt);
    return icerikler;
}

/// A text that was there before and is there behind, under whatever name, must not have gone meanwhile.
std::string Kayip(const Beklenen& beklenen, const Agac& kalan) {
    const std::set<std::string> sonra = Icerikler(beklenen.sonra);
    const std::set<std::string> simdi = Icerikler(kalan);
    for (const auto& [yol, bayt] : beklenen.once)
        if (sonra.contains(bayt) && !simdi.contains(bayt))
            return "the text of " + yol + " is lost";
    return {};
}

/// A line that both have and the third one hasn't; nothing when there is none.
std::optional<std::string> KayipSatir(const std::string& once, const std::string& sonra,
                                      const std::string& simdi) {
    std::istringstream satirlar(once);
    const std::string arananlar = "\n" + sonra;
    const std::string kalanlar = "\n" + simdi;
    for (std::string satir; std::getline(satirlar, satir);)
        if (const std::string tam = "\n" + satir + "\n";
            arananlar.find(tam) != std::string::npos && kalanlar.find(tam) == std::string::npos)
            return satir;
    return std::nullopt;
}

/// By `Olcu::Satir`, of one file of the action.
std::string SatirKusuru(const std::string* once, const std::string* sonra, const std::string* simdi) {
    if (once == nullptr || sonra == nullptr)
        return {};
    if (simdi == nullptr)
        return "isn't there";
    const auto kayip = KayipSatir(*once, *sonra, *simdi);
    return kayip ? Kisa(simdi) + " and lacks the line " + Kisa(&*kayip) : std::string();
}

} // namespace

std::string Kusur(const Beklenen& beklenen, const Agac& kalan, Olcu olcu) {
    std::set<std::string> yollar;
    for (const Agac* agac : {&beklenen.once, &beklenen.sonra, &kalan})
        for (const auto& [yol, bayt] : *agac)
            yollar.insert(yol);
    std::string eski;
    std::string yeni;
    for (const std::string& yol : yollar) {
        const std::string* once = Bul(beklenen.once, yol);
        const std::string* sonra = Bul(beklenen.sonra, yol);
        const std::string* simdi = Bul(kalan, yol);
        if (yol == beklenen.disinda)
            continue;
        if (Ayni(simdi, Bul(beklenen.yokGibi, yol)))
            simdi = nullptr;
        if (olcu == Olcu::Satir && !Ayni(once, sonra)) {
            if (const std::string kusur = SatirKusuru(once, sonra, simdi); !kusur.empty())
                return yol + " " + kusur;
            continue;
        }
        if (!Ayni(simdi, once) && !Ayni(simdi, sonra))
            return yol + " " + Kisa(simdi) + (Ayni(once, sonra) ? " (it is none of the action's)" : "");
        // A folder more says nothing: a program that looks at a year makes its folder.
        if (Ayni(once, sonra) || yol.ends_with('/'))
            continue;
        (Ayni(simdi, once) ? eski : yeni) += " [" + yol + "]";
    }
    if (std::string kayip = Kayip(beklenen, kalan); !kayip.empty() && olcu != Olcu::Satir)
        return kayip;
    if (olcu == Olcu::Butun && !beklenen.ayri && !eski.empty() && !yeni.empty())
        return "as before:" + eski + ", but as behind:" + yeni;
    return {};
}

bool Uzun() {
    return ::getenv("VELORA_UZUN") != nullptr;
}

void Kusurlar::Say(const std::string& nerede, const std::string& kusur) {
    constexpr int kEnCokSoylenen = 5;
    ++kosulan_;
    if (!kusur.empty() && ++kusurlu_ <= kEnCokSoylenen)
        ilkler_ += "\n  " + nerede + ": " + kusur;
}

Kusurlar::~Kusurlar() {
    if (kusurlu_ > 0 && !hosgorulur_)
        ADD_FAILURE() << konu_ << ": " << kusurlu_ << " of " << kosulan_ << ilkler_;
    ::testing::Test::RecordProperty("runs", kosulan_);
}

std::vector<const Senaryo*> HerSenaryo() {
    std::vector<const Senaryo*> hepsi;
    for (const Senaryo& senaryo : Senaryolar())
        hepsi.push_back(&senaryo);
    return hepsi;
}

std::string SenaryoAdi(const ::testing::TestParamInfo<const Senaryo*>& bilgi) {
    std::string ad(bilgi.param->ad);
    std::replace(ad.begin(), ad.end(), '-', '_');
    return ad;
}

} // namespace velora::dayanim
