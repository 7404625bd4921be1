#include "dayanim/Kosum.h"

#include <array>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace velora::dayanim {

namespace fs = std::filesystem;

namespace {

std::vector<KayitliCagri> KayitOku(const fs::path& yol) {
    std::ifstream dosya(yol, std::ios::binary);
    std::stringstream hepsi;
    hepsi << dosya.rdbuf();
    const std::string bayt = hepsi.str();
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
    isaretciler.reserve(metinler.size() + 1);
    for (std::string& metin : metinler)
        isaretciler.push_back(metin.data());
    isaretciler.push_back(nullptr);
    return isaretciler;
}

/// Starts the runner with these as its standard input and output.
int Dogur(std::vector<std::string> degerler, std::vector<std::string> cevre, int girdi, int cikti) {
    degerler.insert(degerler.begin(), VELORA_EYLEM_KOSUCU);
    posix_spawn_file_actions_t isler;
    ::posix_spawn_file_actions_init(&isler);
    ::posix_spawn_file_actions_adddup2(&isler, girdi, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&isler, cikti, STDOUT_FILENO);
    pid_t cocuk = -1;
    const int sonuc = ::posix_spawn(&cocuk, VELORA_EYLEM_KOSUCU, &isler, nullptr,
                                    Isaretciler(degerler).data(), Isaretciler(cevre).data());
    ::posix_spawn_file_actions_destroy(&isler);
    return sonuc == 0 ? cocuk : -1;
}

/// Where nothing comes from and all goes to.
int Bosluk() {
    static const int no = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    return no;
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
    const pid_t cocuk = Dogur({std::string(senaryo), saha.Kok().string(), DurumMetni(saha)},
                              Cevre(saha, ariza, dosya), Bosluk(), Bosluk());
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

SurenKosum::SurenKosum(const Saha& saha, const fs::path& durum, std::string_view kip, std::string_view tekrar,
                       bool yavas) {
    std::array<int, 2> giden{};
    std::array<int, 2> gelen{};
    saha.Degisti();
    if (::pipe2(giden.data(), O_CLOEXEC) != 0 || ::pipe2(gelen.data(), O_CLOEXEC) != 0)
        return;
    std::vector<std::string> cevre = Cevre(saha, {}, {});
    if (yavas)
        cevre.push_back(std::string(kYavasDegiskeni) + "=1");
    cocuk_ = Dogur({std::string(kip), std::string(tekrar), saha.Kok().string(), durum.string()}, cevre,
                   giden[0], gelen[1]);
    ::close(giden[0]);
    ::close(gelen[1]);
    giden_ = giden[1];
    gelen_ = gelen[0];
}

bool SurenKosum::Ver() const {
    return ::write(giden_, "x", 1) == 1;
}

bool SurenKosum::Al() const {
    char haber = 0;
    return ::read(gelen_, &haber, 1) == 1;
}

bool SurenKosum::Oldur() {
    if (cocuk_ <= 0)
        return false;
    int durum = 0;
    ::kill(cocuk_, SIGKILL);
    const bool bekledi = ::waitpid(cocuk_, &durum, 0) == cocuk_;
    cocuk_ = -1;
    ::close(giden_);
    ::close(gelen_);
    return bekledi && WIFSIGNALED(durum) && WTERMSIG(durum) == SIGKILL;
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

} // namespace velora::dayanim
