#include "platform/AgIstemcisi.h"

#include <algorithm>
#include <string>

#include "platform/CurlOrtak.h"
#include "storage/KodSayfasi.h"

namespace velora {

namespace {

using Saat = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kSiraArasi{10};

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

Metin AgIstemcisi::Getir(const Metin& adres, std::chrono::milliseconds sure, const Sira& sira,
                         BaglantiTuru tur) {
    const auto parcalar = AdresAyir(adres);
    const auto ic = ic_; // a turn may be the client's last
    if (!parcalar || ic->kapali || ic->liste == nullptr)
        return {};
    Aktarma aktarma;
    const CurlKolu kol = KolYap(*parcalar, sure, tur, aktarma);
    if (kol == nullptr)
        return {};
    const CurlYeri yer(ic->liste.get(), kol.get());
    for (auto sonSira = Saat::now();;) {
        ic->Ilerle();
        if (aktarma.bitti)
            return aktarma.tamam ? KodCoz(aktarma.govde) : Metin();
        curl_multi_poll(ic->liste.get(), nullptr, 0, static_cast<int>(kSiraArasi.count()), nullptr);
        if (Saat::now() - sonSira < kSiraArasi)
            continue;
        if (!sira() || ic->kapali)
            return {};
        sonSira = Saat::now();
    }
}

} // namespace velora
