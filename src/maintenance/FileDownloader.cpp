#include "maintenance/FileDownloader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <string>
#include <utility>

#include "screen/Program.h"
#include "storage/Harf.h"
#include "storage/KodSayfasi.h"
#include "storage/dosya/YazmaAkisi.h"

namespace velora {

namespace {

constexpr std::size_t kParcaBoyu = 1024;  // bytes of a chunk
constexpr std::uint64_t kGeriAdim = 4096; // bytes that a fetch which goes on steps back
constexpr MetinBakis kBaslikSonu = u"\r\n";
constexpr MetinBakis kKoptu = u"The connection with the server was reset.";

// Where disks have letters, only a path that begins with one has a disk to ask. Elsewhere every path has.
constexpr bool kSurucuHarfiVar = std::filesystem::path::preferred_separator == '\\';

bool DiskiVar(MetinBakis hedef) {
    return !kSurucuHarfiVar || Parca(hedef, 2, 2) == u":\\";
}

MetinBakis IlkSatir(MetinBakis basliklar) {
    return basliklar.substr(0, basliklar.find(kBaslikSonu));
}

/// The header "Content-Length"; 0 without one, and for what is no number.
std::uint64_t UzakBoy(MetinBakis basliklar) {
    constexpr MetinBakis kAd = u"content-length:";
    while (!basliklar.empty()) {
        const MetinBakis satir = IlkSatir(basliklar);
        basliklar.remove_prefix(std::min(basliklar.size(), satir.size() + kBaslikSonu.size()));
        if (Kucult(satir.substr(0, kAd.size())) != kAd)
            continue;
        const std::string deger = KodYaz(Kirp(satir.substr(kAd.size())));
        std::uint64_t boy = 0;
        const auto okunan = std::from_chars(deger.data(), deger.data() + deger.size(), boy);
        return okunan.ec == std::errc() && okunan.ptr == deger.data() + deger.size() ? boy : 0;
    }
    return 0;
}

} // namespace

/// One run. It lives until it has returned, and touches nothing of the component, which may be gone.
struct FileDownloader::Kosu {
    bool Calis(const Metin& kullanici, const Metin& parola, int verisizSure);
    void Dur();
    void Birak();
    void HedefiSil() const;

  private:
    bool CevapUygun(const Metin& basliklar);
    bool YerHazir();
    void Al();
    bool Bitir();
    bool Tamam() const { return !bozuk && uzakBoy > 0 && tutulan == uzakBoy; }
    template <class Olay, class... Deger>
    void Bildir(Olay Olaylar::*olay, const Deger&... deger) const {
        if (olaylar.*olay)
            (olaylar.*olay)(deger...);
    }
    bool Hata(const Metin& metin) {
        dur = true; // before: what the handler begins is a run of its own
        Bildir(&Olaylar::hata, metin);
        return false;
    }

  public:
    Program& program;
    Olaylar olaylar; // copies: the screen may be gone while one of them runs
    Metin adres;
    Metin hedef;
    std::optional<Kalan> devam;
    Aktarim aktarim{};
    std::unique_ptr<YazmaAkisi> dosya{};
    bool acildi = false; // this run has opened the target: it is its own
    bool bozuk = false;  // the disk hasn't taken what came, or more came than was announced
    bool dur = false;    // the stop flag
    std::uint64_t uzakBoy = 0;
    std::uint64_t tutulan = 0;
};

bool FileDownloader::DownloadFile(const Metin& adres, const Metin& hedef, const Metin& kullanici,
                                  const Metin& parola) {
    Cancel();
    const std::shared_ptr<Kosu> kosu(new Kosu{program_, olaylar, adres, hedef, devam});
    suren_ = kosu;
    // However it ends, also when a handler throws.
    const std::unique_ptr<Kosu, void (*)(Kosu*)> birakan(kosu.get(), [](Kosu* k) { k->Birak(); });
    return kosu->Calis(kullanici, parola, verisizSure);
}

void FileDownloader::Cancel() {
    if (const auto kosu = std::exchange(suren_, nullptr))
        kosu->Dur();
}

bool FileDownloader::Kosu::Calis(const Metin& kullanici, const Metin& parola, int verisizSure) {
    if (devam)
        devam->baslangic -= std::min(devam->baslangic, kGeriAdim);
    Bildir(&Olaylar::durum, Metin(devam ? u"Resuming download" : u"Getting file information"));
    if (dur)
        return false;
    const std::uint64_t ilkBayt = devam ? devam->baslangic : 0;
    aktarim = program.ortam.ag.aktarimAc(
        {.adres = adres,
         .kullanici = kullanici,
         .parola = parola,
         .basliklar = {u"Range: bytes=" + SayiMetni(static_cast<long long>(ilkBayt)) + u"-"},
         .verisizSure = verisizSure,
         .vazgecildi = [this] { return dur; }});
    const Metin basliklar = aktarim.basliklar();
    if (dur || !CevapUygun(basliklar))
        return false;
    uzakBoy = devam ? devam->uzakBoy : UzakBoy(basliklar);
    if (uzakBoy == 0) {
        Dur();
        return false;
    }
    tutulan = ilkBayt;
    if (!YerHazir())
        return false;
    Al();
    return Bitir();
}

/// What the status of a reply means.
bool FileDownloader::Kosu::CevapUygun(const Metin& basliklar) {
    const MetinBakis kod = Parca(basliklar, 10, 3);
    if (kod == u"206" || (kod == u"200" && !devam))
        return true;
    if (kod == u"200") {
        HedefiSil();
        return Hata(u"The server is unable to resume this download.");
    }
    const std::array<std::pair<MetinBakis, Metin>, 4> hatalar{
        {{u"204", u"Nothing to download!"},
         {u"401", u"Authorization failed!"},
         {u"404", u"The file, \"" + adres + u"\" was not found!"},
         {kBaslikSonu, u"Cannot establish connection."}}};
    for (const auto& [hataKodu, metin] : hatalar)
        if (kod == hataKodu)
            return Hata(metin);
    const MetinBakis satir = IlkSatir(basliklar);
    return Hata(u"The server returned the following response:\r\r" +
                Metin(satir.empty() ? MetinBakis(u"<nothing>") : satir));
}

/// Room on the disk, the folder, the file.
bool FileDownloader::Kosu::YerHazir() {
    if (DiskiVar(hedef))
        if (const auto alan = program.dosyalar.BosAlan(hedef); alan && *alan < uzakBoy)
            return Hata(u"There is not enough free space on disk for this file.");
    program.dosyalar.KlasorYap(hedef.substr(0, hedef.rfind(kAyrac)));
    dosya = program.dosyalar.AkisAc(hedef, devam ? devam->baslangic : 0);
    acildi = dosya != nullptr;
    return acildi || Hata(Metin(kKoptu));
}

/// Chunk by chunk, until there are no more. A stop has closed the file already.
void FileDownloader::Kosu::Al() {
    while (!dur) {
        const std::string parca = aktarim.parca(kParcaBoyu);
        // More than was announced: a reply without end would fill the disk.
        bozuk = !dur && !parca.empty() && (parca.size() > uzakBoy - tutulan || !dosya->Yaz(parca));
        if (dur || parca.empty() || bozuk)
            return;
        tutulan += parca.size();
        const double yuzde = 100.0 * static_cast<double>(tutulan) / static_cast<double>(uzakBoy);
        Bildir(&Olaylar::ilerledi, SayiMetni(std::lround(yuzde)));
        if (!dur)
            program.OlaylariIsle();
    }
}

/// The end of a run that has opened its target.
bool FileDownloader::Kosu::Bitir() {
    bozuk = (dosya != nullptr && !dosya->Kapat()) || bozuk;
    const bool tamam = Tamam();
    if (!tamam && !dur)
        Hata(Metin(kKoptu));
    const bool duruldu = dur;
    Birak();
    if (tamam && !duruldu)
        Bildir(&Olaylar::tamamlandi);
    return tamam;
}

/// Stops the run at once.
void FileDownloader::Kosu::Dur() {
    dur = true;
    Birak();
}

/// What is unfinished goes. Closed first: some systems remove no open file.
void FileDownloader::Kosu::Birak() {
    aktarim.iptal();
    dosya.reset();
    if (std::exchange(acildi, false) && !Tamam())
        HedefiSil();
}

/// It can be fetched anew: the journal needs nothing of it.
void FileDownloader::Kosu::HedefiSil() const {
    const Dosyalar::GunlukDisi gecici(program.dosyalar);
    program.dosyalar.Sil(hedef);
}

} // namespace velora
