#include "platform/AgIstemcisi.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/CurlOrtak.h"
#include "storage/KodSayfasi.h"

namespace velora {

namespace {

using Saat = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kSiraArasi{10};

/// What curl writes into: it stays where it is until the request is off curl's list.
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

/// On a connection that is used again curl may send a request twice, and not every one may come twice.
void BaglantiyiSec(CURL* kol, BaglantiTuru tur) {
    const long tek = tur == BaglantiTuru::Tek ? 1 : 0;
    curl_easy_setopt(kol, CURLOPT_FRESH_CONNECT, tek);
    curl_easy_setopt(kol, CURLOPT_FORBID_REUSE, tek);
}

CurlKolu KolYap(const AdresParcalari& parcalar, std::chrono::milliseconds sure, BaglantiTuru tur,
                Aktarma& aktarma) {
    CurlKolu kol = CurlKoluYap(parcalar);
    if (kol == nullptr)
        return kol;
    BaglantiyiSec(kol.get(), tur);
    curl_easy_setopt(kol.get(), CURLOPT_TIMEOUT_MS, static_cast<long>(std::max<long long>(1, sure.count())));
    curl_easy_setopt(kol.get(), CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(kEnUzunCevap));
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
    void Ilerle() const;

    const CurlListesi liste = CurlListesiYap();
    bool kapali = false;
};

void AgIstemcisi::Ic::Ilerle() const {
    int suren = 0;
    curl_multi_perform(liste.get(), &suren);
    int kalan = 0;
    while (const CURLMsg* haber = curl_multi_info_read(liste.get(), &kalan)) {
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

/// One request, on curl's list.
struct AgIstemcisi::Gonderilen::Hal {
    Hal(std::shared_ptr<Ic> istemci, std::unique_ptr<Aktarma> giden, CurlKolu kolu)
        : ic(std::move(istemci)), aktarma(std::move(giden)), kol(std::move(kolu)),
          yer(ic->liste.get(), kol.get()) {}

    std::shared_ptr<Ic> ic; // a turn may be the client's last
    std::unique_ptr<Aktarma> aktarma;
    CurlKolu kol;
    CurlYeri yer;
};

AgIstemcisi::Gonderilen::Gonderilen(std::unique_ptr<Hal> hal) : hal_(std::move(hal)) {}

AgIstemcisi::Gonderilen::~Gonderilen() = default;

bool AgIstemcisi::Gonderilen::Bitti() {
    if (!hal_->aktarma->bitti && !hal_->ic->kapali)
        hal_->ic->Ilerle();
    return hal_->aktarma->bitti || hal_->ic->kapali;
}

bool AgIstemcisi::Gonderilen::Bekle(const Sira& sira) {
    for (auto sonSira = Saat::now(); !Bitti();) {
        curl_multi_poll(hal_->ic->liste.get(), nullptr, 0, static_cast<int>(kSiraArasi.count()), nullptr);
        if (Saat::now() - sonSira < kSiraArasi)
            continue;
        if (!sira())
            return false;
        sonSira = Saat::now();
    }
    return true;
}

Metin AgIstemcisi::Gonderilen::Cevap() const {
    return hal_->aktarma->tamam ? KodCoz(hal_->aktarma->govde) : Metin();
}

std::shared_ptr<AgIstemcisi::Gonderilen>
AgIstemcisi::Gonder(const Metin& adres, std::chrono::milliseconds sure, BaglantiTuru tur) {
    const auto parcalar = AdresAyir(adres);
    if (!parcalar || ic_->kapali || ic_->liste == nullptr)
        return nullptr;
    auto aktarma = std::make_unique<Aktarma>();
    CurlKolu kol = KolYap(*parcalar, sure, tur, *aktarma);
    if (kol == nullptr)
        return nullptr;
    return std::make_shared<Gonderilen>(
        std::make_unique<Gonderilen::Hal>(ic_, std::move(aktarma), std::move(kol)));
}

Metin AgIstemcisi::Getir(const Metin& adres, std::chrono::milliseconds sure, const Sira& sira,
                         BaglantiTuru tur) {
    const auto gonderilen = Gonder(adres, sure, tur);
    return gonderilen != nullptr && gonderilen->Bekle(sira) ? gonderilen->Cevap() : Metin();
}

} // namespace velora
