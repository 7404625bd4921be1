#include "platform/Indirme.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <utility>

#include "platform/CurlOrtak.h"
#include "screen/Bayrak.h"
#include "storage/KodSayfasi.h"

namespace velora {

namespace {

using IndirmeSaati = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kOlayArasi{10};

using BaslikListesi = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

BaslikListesi BaslikListesiYap(const std::vector<Metin>& basliklar) {
    BaslikListesi liste(nullptr, &curl_slist_free_all);
    for (const Metin& baslik : basliklar)
        if (curl_slist* yeni = curl_slist_append(liste.get(), KodYaz(baslik).c_str())) {
            static_cast<void>(liste.release());
            liste.reset(yeni);
        }
    return liste;
}

/// One fetch.
class Akis {
  public:
    Akis(AktarimIstegi istek, std::function<void()> olaylar, std::shared_ptr<const bool> kapali);
    Akis(const Akis&) = delete;
    Akis& operator=(const Akis&) = delete;
    ~Akis() = default;

    Metin Basliklar();
    std::string Parca(std::size_t enCok);
    /// The connection is closed: at once, or when the waiting in whose events this is has ended.
    void Iptal();

  private:
    bool Birakildi() const { return birakildi_ || *kapali_ || istek_.vazgecildi(); }
    template <class Kosul>
    bool Bekle(Kosul geldi);
    template <class Kosul>
    bool GeleneKadar(Kosul geldi);
    void Ilerle();
    void BaglantiyiKapat();
    static std::size_t GovdeGeldi(const char* bayt, std::size_t bir, std::size_t adet, void* kendisi);
    static std::size_t BaslikGeldi(const char* bayt, std::size_t bir, std::size_t adet, void* kendisi);

    AktarimIstegi istek_;
    std::function<void()> olaylar_;
    std::shared_ptr<const bool> kapali_;
    BaslikListesi istekBasliklari_;
    CurlListesi liste_ = CurlListesiYap();
    CurlKolu kol_{nullptr, &curl_easy_cleanup};
    std::optional<CurlYeri> yer_; // the first to go: it needs both
    std::string basliklar_;
    bool basliklarTamam_ = false;
    std::string govde_;
    std::size_t verilen_ = 0;                  // of the body that is at hand, from its beginning
    std::chrono::nanoseconds verisizGecen_{0}; // waited for since the last byte
    bool bitti_ = false;
    bool birakildi_ = false;
    bool bekliyor_ = false;
};

Akis::Akis(AktarimIstegi istek, std::function<void()> olaylar, std::shared_ptr<const bool> kapali)
    : istek_(std::move(istek)), olaylar_(std::move(olaylar)), kapali_(std::move(kapali)),
      istekBasliklari_(BaslikListesiYap(istek_.basliklar)) {
    const auto parcalar = AdresAyir(istek_.adres);
    bitti_ = true; // until there is something to wait for
    if (!parcalar || *kapali_ || liste_ == nullptr)
        return;
    kol_ = CurlKoluYap(*parcalar);
    if (kol_ == nullptr)
        return;
    curl_easy_setopt(kol_.get(), CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(kol_.get(), CURLOPT_HTTPHEADER, istekBasliklari_.get());
    if (!istek_.kullanici.empty()) {
        curl_easy_setopt(kol_.get(), CURLOPT_HTTPAUTH, CURLAUTH_BASIC);
        curl_easy_setopt(kol_.get(), CURLOPT_USERNAME, KodYaz(istek_.kullanici).c_str());
        curl_easy_setopt(kol_.get(), CURLOPT_PASSWORD, KodYaz(istek_.parola).c_str());
    }
    curl_easy_setopt(kol_.get(), CURLOPT_WRITEFUNCTION, &Akis::GovdeGeldi);
    curl_easy_setopt(kol_.get(), CURLOPT_WRITEDATA, this);
    curl_easy_setopt(kol_.get(), CURLOPT_HEADERFUNCTION, &Akis::BaslikGeldi);
    curl_easy_setopt(kol_.get(), CURLOPT_HEADERDATA, this);
    yer_.emplace(liste_.get(), kol_.get());
    bitti_ = false;
}

std::size_t Akis::GovdeGeldi(const char* bayt, std::size_t bir, std::size_t adet, void* kendisi) {
    auto& akis = *static_cast<Akis*>(kendisi);
    akis.verisizGecen_ = {};
    akis.govde_.append(bayt, bir * adet);
    return bir * adet;
}

/// Each reply on the way, as "100 Continue", has lines of its own: those of the last one count.
std::size_t Akis::BaslikGeldi(const char* bayt, std::size_t bir, std::size_t adet, void* kendisi) {
    auto& akis = *static_cast<Akis*>(kendisi);
    const std::string_view satir(bayt, bir * adet);
    akis.verisizGecen_ = {};
    if (akis.basliklarTamam_)
        return satir.size(); // what stands behind the body
    if (satir.starts_with("HTTP/"))
        akis.basliklar_.clear();
    akis.basliklar_ += satir;
    constexpr std::size_t kDurumYeri = 9; // of the status in the first line
    const bool ara = akis.basliklar_.size() > kDurumYeri && akis.basliklar_[kDurumYeri] == '1';
    akis.basliklarTamam_ = !ara && (satir == "\r\n" || satir == "\n");
    return akis.basliklar_.size() > kEnUzunBaslik ? 0 : satir.size();
}

void Akis::Ilerle() {
    int suren = 0;
    curl_multi_perform(liste_.get(), &suren);
    bitti_ = suren == 0;
}

void Akis::Iptal() {
    birakildi_ = true;
    if (!bekliyor_)
        BaglantiyiKapat();
}

void Akis::BaglantiyiKapat() {
    bitti_ = true;
    yer_.reset();
    kol_.reset();
}

/// False when there is no more to wait for.
template <class Kosul>
bool Akis::Bekle(Kosul geldi) {
    if (bekliyor_)
        return false; // begun in the events of a wait of its own
    bool geldiMi = false;
    {
        const Bayrak bekleyis(bekliyor_);
        geldiMi = GeleneKadar(geldi);
    }
    if (birakildi_)
        BaglantiyiKapat();
    return geldiMi;
}

template <class Kosul>
bool Akis::GeleneKadar(Kosul geldi) {
    auto sonOlay = IndirmeSaati::now();
    while (!Birakildi()) {
        if (geldi())
            return true;
        if (bitti_)
            return false;
        Ilerle();
        if (bitti_ || geldi())
            continue;
        // Only what is waited for here counts: a box that stood open meanwhile is no silence of the server.
        const auto bas = IndirmeSaati::now();
        curl_multi_poll(liste_.get(), nullptr, 0, static_cast<int>(kOlayArasi.count()), nullptr);
        const auto simdi = IndirmeSaati::now();
        verisizGecen_ += simdi - bas;
        if (verisizGecen_ >= std::chrono::seconds(istek_.verisizSure))
            bitti_ = true;
        if (simdi - sonOlay < kOlayArasi)
            continue;
        olaylar_();
        sonOlay = IndirmeSaati::now();
    }
    return false;
}

Metin Akis::Basliklar() {
    return Bekle([this] { return basliklarTamam_; }) ? KodCoz(basliklar_) : Metin();
}

std::string Akis::Parca(std::size_t enCok) {
    if (verilen_ == govde_.size()) {
        govde_.clear();
        verilen_ = 0;
    }
    if (!Bekle([this] { return verilen_ < govde_.size(); }))
        return {};
    std::string parca = govde_.substr(verilen_, enCok);
    verilen_ += parca.size();
    return parca;
}

} // namespace

Indirici::Indirici(std::function<void()> olaylar) : olaylar_(std::move(olaylar)) {}

Aktarim Indirici::Ac(const AktarimIstegi& istek) const {
    const auto akis = std::make_shared<Akis>(istek, olaylar_, kapali_);
    return {.basliklar = [akis] { return akis->Basliklar(); },
            .parca = [akis](std::size_t enCok) { return akis->Parca(enCok); },
            .iptal = [akis] { akis->Iptal(); }};
}

} // namespace velora
