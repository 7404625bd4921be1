#pragma once

#include <memory>
#include <optional>
#include <string>

#include <curl/curl.h>

#include "storage/Metin.h"

namespace velora {

/// An address taken apart: where to connect, and what is asked for there.
struct AdresParcalari {
    std::string kok;   ///< scheme, host and port
    std::string hedef; ///< what goes into the request line, in Windows-1254 and byte for byte
};

/// Nothing for an address of another scheme than http and https, without a host, with a host of other signs
/// than letters and digits of ASCII, dots, hyphens, a port and the brackets of an IPv6 address, or with a
/// NUL.
std::optional<AdresParcalari> AdresAyir(const Metin& adres);

/// The most that all header lines of a reply may hold, in bytes.
inline constexpr std::size_t kEnUzunBaslik = std::size_t{256} << 10U;

using CurlKolu = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using CurlListesi = std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)>;

/// A list of requests that go on together. Null when curl can't be had.
CurlListesi CurlListesiYap();

/// A request for that address, with what all requests of the program have in common: http and https alone, no
/// redirect, no proxy, certificates checked. Null when curl can't be had.
CurlKolu CurlKoluYap(const AdresParcalari& parcalar);

/// A request on a list, as long as this stands. Both must outlive it.
class CurlYeri {
  public:
    CurlYeri(CURLM* liste, CURL* kol) : liste_(liste), kol_(kol) { curl_multi_add_handle(liste_, kol_); }
    ~CurlYeri() { curl_multi_remove_handle(liste_, kol_); }
    CurlYeri(const CurlYeri&) = delete;
    CurlYeri& operator=(const CurlYeri&) = delete;

  private:
    CURLM* liste_;
    CURL* kol_;
};

} // namespace velora
