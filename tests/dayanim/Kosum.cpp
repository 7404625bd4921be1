#include "dayanim/Kosum.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <random>
#include <spawn.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace velora::dayanim {

namespace fs = std::filesystem;

namespace {

/// By plain calls: there are hundreds of thousands of such readings.
std::string Bayt(const std::string& yol) {
    std::string bayt;
    const int no = ::open(yol.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat bilgi {};
    if (no >= 0 && ::fstat(no, &bilgi) == 0) {
        bayt.resize(static_cast<std::size_t>(bilgi.st_size));
        bayt.resize(static_cast<std::size_t>(std::max<ssize_t>(0, ::read(no, bayt.data(), bayt.size()))));
    }
    ::close(no);
    return bayt;
}

void BaytKoy(const std::string& yol, const std::string& bayt) {
    const int no = ::open(yol.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    EXPECT_EQ(::write(no, bayt.data(), bayt.size()), static_cast<ssize_t>(bayt.size())) << yol;
    ::close(no);
}

fs::path UstKlasor() {
    const fs::path bellek("/dev/shm");
    return ::access(bellek.c_str(), W_OK | X_OK) == 0 ? bellek : fs::temp_directory_path();
}

fs::path YeniKlasor(const fs::path& ustu) {
    std::random_device rastgele;
    fs::path klasor;
    do
        klasor = (ustu.empty() ? UstKlasor() : ustu) / ("velora-dayanim-" + std::to_string(rastgele()));
    while (!fs::create_directory(klasor));
    return klasor;
}

} // namespace

Saha::Saha(const fs::path& ustu, const fs::path& durumUstu)
    : ust_(YeniKlasor(ustu)), durumUstu_(YeniKlasor(durumUstu)) {
    kok_ = ust_ / fs::path(u"Düğün Salonu ığ");
    durum_ = durumUstu_ / "durum";
    fs::create_directory(kok_);
    fs::create_directory(durum_);
}

Saha::~Saha() {
    std::error_code hata;
    fs::remove_all(ust_, hata);
    fs::remove_all(durumUstu_, hata);
}

const Agac& Saha::Oku() const {
    if (!bilinen_)
        bilinen_ = Oku(kok_);
    return *bilinen_;
}

void Saha::Kur(const Agac& agac) const {
    Yaz(kok_, Oku(), agac);
    bilinen_ = agac;
}

void Saha::Kur(const Senaryo& senaryo) const {
    Kur(BaslangicAgaci(senaryo));
    DurumKur({});
}

void Saha::Yaz(const fs::path& klasor, const Agac& eski, const Agac& agac) {
    for (auto i = eski.rbegin(); i != eski.rend(); ++i) // what lies in a folder before the folder
        if (!agac.contains(i->first))
            fs::remove(klasor / i->first.substr(0, i->first.find_last_not_of('/') + 1));
    for (const auto& [yol, bayt] : agac) {
        const auto yer = eski.find(yol);
        if (yol.ends_with('/'))
            fs::create_directory(klasor / yol.substr(0, yol.size() - 1));
        else if (yer == eski.end() || yer->second != bayt)
            BaytKoy(klasor.string() + "/" + yol, bayt);
    }
}

Agac Saha::Oku(const fs::path& klasor) {
    Agac agac;
    std::vector<std::string> klasorler{""};
    while (!klasorler.empty()) {
        const std::string ust = klasorler.back();
        klasorler.pop_back();
        DIR* akis = ::opendir((klasor.string() + "/" + ust).c_str());
        while (const dirent* oge = akis == nullptr ? nullptr : ::readdir(akis)) {
            const std::string ad = static_cast<const char*>(oge->d_name);
            if (ad == "." || ad == "..")
                continue;
            if (oge->d_type != DT_DIR)
                agac[ust + ad] = Bayt(klasor.string() + "/" + ust + ad);
            else
                agac[klasorler.emplace_back(ust + ad + "/")];
        }
        if (akis != nullptr)
            ::closedir(akis);
    }
    return agac;
}

const Agac& Saha::Baslat() const {
    test::SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    {
        Program program(ortam.Ver(), kok_);
        GunlukAc(program, gunluklu ? durum_ : fs::path());
    }
    Degisti();
    return Oku();
}

namespace {

std::vector<KayitliCagri> KayitOku(const fs::path& yol) {
    const std::string bayt = Bayt(yol.string());
    std::vector<KayitliCagri> cagrilar;
    for (std::size_t yer = 0; yer + sizeof(KayitBasi) <= bayt.size();) {
        KayitliCagri cagri;
        std::memcpy(&cagri.bas, bayt.data() + yer, sizeof(KayitBasi));
        yer += sizeof(KayitBasi);
        for (auto [hedef, boy] :
             {std::pair{&cagri.yol, cagri.bas.yolBoyu}, std::pair{&cagri.hedef, cagri.bas.hedefBoyu},
              std::pair{&cagri.veri, cagri.bas.veriBoyu}}) {
            *hedef = bayt.substr(yer, boy);
            yer += boy;
        }
        cagrilar.push_back(std::move(cagri));
    }
    return cagrilar;
}

/// The environment of this process, and what the library is told.
std::vector<std::string> Cevre(const Saha& saha, const Ariza& ariza, const fs::path& kayit) {
    std::vector<std::string> cevre{std::string("LD_PRELOAD=") + VELORA_CAGRI_KAYDI,
                                   std::string("PATH=/usr/bin:/bin"), "LC_ALL=C.UTF-8"};
    const auto koy = [&](const char* ad, const std::string& deger) {
        cevre.push_back(std::string(ad) + "=" + deger);
    };
    koy(kAgacDegiskeni, saha.Kok().string());
    koy(kDurumDegiskeni, saha.Durum().string());
    if (!kayit.empty())
        koy(kDosyaDegiskeni, kayit.string());
    koy(kOldurDegiskeni, std::to_string(ariza.oldur));
    koy(kYarimDegiskeni, ariza.yarim ? "1" : "0");
    koy(kYalnizDegiskeni, ariza.yalnizDegisen ? "1" : "0");
    koy(kBozDegiskeni, std::to_string(ariza.boz));
    koy(kHataDegiskeni, std::to_string(ariza.hata));
    koy(kSonraDegiskeni, ariza.sonra ? "1" : "0");
    koy(kKisaDegiskeni, std::to_string(ariza.kisa));
    return cevre;
}

std::vector<char*> Isaretciler(std::vector<std::string>& metinler) {
    std::vector<char*> isaretciler;
    for (std::string& metin : metinler)
        isaretciler.push_back(metin.data());
    isaretciler.push_back(nullptr);
    return isaretciler;
}

int Dogur(std::vector<std::string> degerler, std::vector<std::string> cevre) {
    degerler.insert(degerler.begin(), VELORA_EYLEM_KOSUCU);
    posix_spawn_file_actions_t isler;
    ::posix_spawn_file_actions_init(&isler);
    ::posix_spawn_file_actions_addopen(&isler, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t cocuk = -1;
    const int sonuc = ::posix_spawn(&cocuk, VELORA_EYLEM_KOSUCU, &isler, nullptr,
                                    Isaretciler(degerler).data(), Isaretciler(cevre).data());
    ::posix_spawn_file_actions_destroy(&isler);
    return sonuc == 0 ? cocuk : -1;
}

std::string DurumMetni(const Saha& saha) {
    return saha.gunluklu ? saha.Durum().string() : "-";
}

} // namespace

KosumSonucu Kos(const Saha& saha, std::string_view senaryo, const Ariza& ariza, bool kayit) {
    const fs::path dosya = kayit ? saha.Kok().parent_path().parent_path() /
                                       (saha.Kok().parent_path().filename().string() + ".kayit")
                                 : fs::path();
    if (kayit)
        fs::remove(dosya);
    const pid_t cocuk =
        Dogur({std::string(senaryo), saha.Kok().string(), DurumMetni(saha)}, Cevre(saha, ariza, dosya));
    int durum = 0;
    KosumSonucu sonuc;
    saha.Degisti();
    if (cocuk <= 0 || ::waitpid(cocuk, &durum, 0) != cocuk) {
        sonuc.sonuc = "it can't be started";
        return sonuc;
    }
    sonuc.bitti = WIFEXITED(durum) && WEXITSTATUS(durum) <= 1;
    sonuc.oldu = WIFSIGNALED(durum) && WTERMSIG(durum) == SIGKILL;
    sonuc.sonuc = WIFSIGNALED(durum) ? "signal " + std::to_string(WTERMSIG(durum))
                                     : "exit " + std::to_string(WEXITSTATUS(durum));
    if (kayit)
        sonuc.cagrilar = KayitOku(dosya);
    fs::remove(dosya);
    return sonuc;
}

int Baslat(const Saha& saha, const std::vector<std::string>& degerler) {
    std::vector<std::string> hepsi = degerler;
    hepsi.insert(hepsi.end(), {saha.Kok().string(), DurumMetni(saha)});
    return Dogur(hepsi, {"PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8"});
}

const char* CagriAdi(Cagri cagri) {
    constexpr std::array adlar{"open",  "read",  "write",  "ftruncate", "fallocate", "unlink",
                               "rmdir", "mkdir", "rename", "link",      "fsync",     "syncfs",
                               "flock", "close", "stat",   "opendir",   "readdir"};
    return adlar.at(static_cast<std::size_t>(cagri));
}

std::string Tarif(const KayitliCagri& cagri) {
    const std::string ad = cagri.yol.substr(cagri.yol.rfind('/') + 1);
    return "call " + std::to_string(cagri.bas.no) + ", " + CagriAdi(cagri.bas.cagri) + " of " +
           (cagri.bas.durumda != 0 ? "the journal's " : "") + ad;
}

std::vector<KayitliCagri> Beklenen::Sayililar() const {
    std::vector<KayitliCagri> sayililar;
    for (const KayitliCagri& cagri : cagrilar)
        if (cagri.bas.no != 0)
            sayililar.push_back(cagri);
    return sayililar;
}

Beklenen TemizKosum(const Saha& saha, const Senaryo& senaryo) {
    Beklenen beklenen{BaslangicAgaci(senaryo), {}, {}};
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
    if (const std::string kayip = Kayip(beklenen, kalan); !kayip.empty() && olcu != Olcu::Satir)
        return kayip;
    if (olcu == Olcu::Butun && !eski.empty() && !yeni.empty())
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
