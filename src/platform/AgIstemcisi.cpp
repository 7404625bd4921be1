#include "platform/AgIstemcisi.h"

#include <algorithm>
#include <optional>
#include <string>

#include <curl/curl.h>

#include "storage/KodSayfasi.h"

namespace velora {

namespace {

using Saat = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kSiraArasi{10};
constexpr std::size_t kEnUzunBaslik = std::size_t{256} << 10U; // of all header lines of a reply

/// An address taken apart: where to connect, and what is asked for there.
struct AdresParcalari {
    std::string kok;   ///< scheme, host and port
    std::string hedef; ///< what goes into the request line
};

bool Basliyor(const std::string& adres, std::string_view sema) {
    return adres.size() >= sema.size() &&
           std::equal(sema.begin(), sema.end(), adres.begin(),
                      [](char s, char a) { return s == (a >= 'A' && a <= 'Z' ? a + ('a' - 'A') : a); });
}

bool SunucuHarfi(char harf) {
    return (harf >= 'a' && harf <= 'z') || (harf >= 'A' && harf <= 'Z') || (harf >= '0' && harf <= '9') ||
           std::string_view(".-:[]").find(harf) != std::string_view::npos;
}

std::optional<AdresParcalari> Ayir(const Metin& metin) {
    const std::string adres = KodYaz(metin);
    for (const std::string_view sema : {"http://", "https://"}) {
        if (!Basliyor(adres, sema))
            continue;
        const std::size_t yol = std::min(adres.find_first_of("/?#", sema.size()), adres.size());
        const std::string sunucu = adres.substr(sema.size(), yol - sema.size());
        std::string hedef = adres.substr(yol);
        if (sunucu.empty() || !std::all_of(sunucu.begin(), sunucu.end(), SunucuHarfi) ||
            hedef.find('\0') != std::string::npos)
            return std::nullopt;
        if (!hedef.starts_with('/'))
            hedef.insert(0, 1, '/');
        return AdresParcalari{std::string(sema) + sunucu + "/", std::move(hedef)};
    }
    return std::nullopt;
}

/// One request. curl holds its address: it stays where it is until it is off curl's list.
struct Aktarma {
    std::string govde;
    std::size_t baslikBoyu = 0;
    bool bitti = false;
    bool tamam = false; // came whole, with status 200

    static std::size_t GovdeAl(const char* bayt, std::size_t bir, std::size_t adet, void* kendisi) {
        std::string& govde = static_cast<Aktarma*>(kendisi)->govde;
        if (bir * adet > kEnUzunCevap - govde.size())
            return 0; // curl ends the transfer
        govde.append(bayt, bir * adet);
        return bir * adet;
    }
    static std::size_t BaslikAl(const char* /*bayt*/, std::size_t bir, std::size_t adet, void* kendisi) {
        std::size_t& boy = static_cast<Aktarma*>(kendisi)->baslikBoyu;
        boy += bir * adet;
        return boy > kEnUzunBaslik ? 0 : bir * adet;
    }
};

using Kol = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

// What every request has in common.
void Sinirla(CURL* kol, std::chrono::milliseconds sure) {
    curl_easy_setopt(kol, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(kol, CURLOPT_FOLLOWLOCATION, 0L);
    // A later version would refuse blanks in a request line.
    curl_easy_setopt(kol, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(kol, CURLOPT_PROXY, "");
    curl_easy_setopt(kol, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(kol, CURLOPT_SSL_VERIFYHOST, 2L);
    // Where the certificates stand in one file, a folder of them as well would keep curl from remembering
    // them, and each request would stand still for reading them again.
    const char* sertifikalar = nullptr;
    if (curl_easy_getinfo(kol, CURLINFO_CAINFO, &sertifikalar) == CURLE_OK && sertifikalar != nullptr)
        curl_easy_setopt(kol, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(kol, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(kol, CURLOPT_TIMEOUT_MS, static_cast<long>(std::max<long long>(1, sure.count())));
    // A name that is still being looked up would be waited for at the end, for as long as that takes.
    curl_easy_setopt(kol, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(kol, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(kEnUzunCevap));
}

/// On a connection that is used again curl may send a request twice, and not every one may come twice.
void BaglantiyiSec(CURL* kol, BaglantiTuru tur) {
    const long tek = tur == BaglantiTuru::Tek ? 1 : 0;
    curl_easy_setopt(kol, CURLOPT_FRESH_CONNECT, tek);
    curl_easy_setopt(kol, CURLOPT_FORBID_REUSE, tek);
}

Kol KolYap(const AdresParcalari& parcalar, std::chrono::milliseconds sure, BaglantiTuru tur,
           Aktarma& aktarma) {
    Kol kol(curl_easy_init(), &curl_easy_cleanup);
    if (kol == nullptr)
        return kol;
    Sinirla(kol.get(), sure);
    BaglantiyiSec(kol.get(), tur);
    curl_easy_setopt(kol.get(), CURLOPT_URL, parcalar.kok.c_str());
    curl_easy_setopt(kol.get(), CURLOPT_REQUEST_TARGET, parcalar.hedef.c_str());
    curl_easy_setopt(kol.get(), CURLOPT_WRITEFUNCTION, &Aktarma::GovdeAl);
    curl_easy_setopt(kol.get(), CURLOPT_WRITEDATA, &aktarma);
    curl_easy_setopt(kol.get(), CURLOPT_HEADERFUNCTION, &Aktarma::BaslikAl);
    curl_easy_setopt(kol.get(), CURLOPT_HEADERDATA, &aktarma);
    curl_easy_setopt(kol.get(), CURLOPT_PRIVATE, &aktarma);
    return kol;
}

} // namespace

/// All requests run on one list of curl's: whoever waits moves the others along, too.
struct AgIstemcisi::Ic {
    Ic() {
        static const CURLcode hazir = curl_global_init(CURL_GLOBAL_DEFAULT);
        if (hazir == CURLE_OK)
            liste = curl_multi_init();
    }
    ~Ic() { curl_multi_cleanup(liste); }
    Ic(const Ic&) = delete;
    Ic& operator=(const Ic&) = delete;

    /// A request on the list, as long as this stands.
    class Yer {
      public:
        Yer(CURLM* liste, CURL* kol) : liste_(liste), kol_(kol) { curl_multi_add_handle(liste_, kol_); }
        ~Yer() { curl_multi_remove_handle(liste_, kol_); }
        Yer(const Yer&) = delete;
        Yer& operator=(const Yer&) = delete;

      private:
        CURLM* liste_;
        CURL* kol_;
    };

    void Ilerle() const;

    CURLM* liste = nullptr;
    bool kapali = false;
};

void AgIstemcisi::Ic::Ilerle() const {
    int suren = 0;
    curl_multi_perform(liste, &suren);
    int kalan = 0;
    while (const CURLMsg* haber = curl_multi_info_read(liste, &kalan)) {
        if (haber->msg != CURLMSG_DONE)
            continue;
        Aktarma* aktarma = nullptr;
        long durum = 0;
        curl_easy_getinfo(haber->easy_handle, CURLINFO_PRIVATE, &aktarma);
        curl_easy_getinfo(haber->easy_handle, CURLINFO_RESPONSE_CODE, &durum);
        aktarma->bitti = true;
        aktarma->tamam = haber->data.result == CURLE_OK && durum == 200;
    }
}

AgIstemcisi::AgIstemcisi() : ic_(std::make_shared<Ic>()) {}

AgIstemcisi::~AgIstemcisi() {
    Kapat();
}

void AgIstemcisi::Kapat() {
    ic_->kapali = true;
}

Metin AgIstemcisi::Getir(const Metin& adres, std::chrono::milliseconds sure, const Sira& sira,
                         BaglantiTuru tur) {
    const auto parcalar = Ayir(adres);
    const auto ic = ic_; // a turn may be the client's last
    if (!parcalar || ic->kapali || ic->liste == nullptr)
        return {};
    Aktarma aktarma;
    const Kol kol = KolYap(*parcalar, sure, tur, aktarma);
    if (kol == nullptr)
        return {};
    const Ic::Yer yer(ic->liste, kol.get());
    for (auto sonSira = Saat::now();;) {
        ic->Ilerle();
        if (aktarma.bitti)
            return aktarma.tamam ? KodCoz(aktarma.govde) : Metin();
        curl_multi_poll(ic->liste, nullptr, 0, static_cast<int>(kSiraArasi.count()), nullptr);
        if (Saat::now() - sonSira < kSiraArasi)
            continue;
        if (!sira() || ic->kapali)
            return {};
        sonSira = Saat::now();
    }
}

} // namespace velora
