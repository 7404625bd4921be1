#include "platform/CurlOrtak.h"

#include <algorithm>
#include <string_view>

#include "storage/KodSayfasi.h"

namespace velora {

namespace {

bool Basliyor(const std::string& adres, std::string_view sema) {
    return adres.size() >= sema.size() &&
           std::equal(sema.begin(), sema.end(), adres.begin(),
                      [](char s, char a) { return s == (a >= 'A' && a <= 'Z' ? a + ('a' - 'A') : a); });
}

bool SunucuHarfi(char harf) {
    return (harf >= 'a' && harf <= 'z') || (harf >= 'A' && harf <= 'Z') || (harf >= '0' && harf <= '9') ||
           std::string_view(".-:[]").find(harf) != std::string_view::npos;
}

void OrtakSecenekler(CURL* kol) {
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
    // A name that is still being looked up would be waited for at the end, for as long as that takes.
    curl_easy_setopt(kol, CURLOPT_QUICK_EXIT, 1L);
}

} // namespace

std::optional<AdresParcalari> AdresAyir(const Metin& metin) {
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

CurlListesi CurlListesiYap() {
    static const CURLcode hazir = curl_global_init(CURL_GLOBAL_DEFAULT);
    return {hazir == CURLE_OK ? curl_multi_init() : nullptr, &curl_multi_cleanup};
}

CurlKolu CurlKoluYap(const AdresParcalari& parcalar) {
    CurlKolu kol(curl_easy_init(), &curl_easy_cleanup);
    if (kol == nullptr)
        return kol;
    OrtakSecenekler(kol.get());
    curl_easy_setopt(kol.get(), CURLOPT_URL, parcalar.kok.c_str());
    curl_easy_setopt(kol.get(), CURLOPT_REQUEST_TARGET, parcalar.hedef.c_str());
    return kol;
}

} // namespace velora
