#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/Ortam.h"
#include "storage/Metin.h"

namespace velora::test {

/// The service as its firms see it: it keeps their profiles, halls, published slots, requests and suggestions
/// and answers all of its scripts. What comes in are the bytes of a query as they stand, in Windows-1254 with
/// nothing escaped: they are taken apart at "&" and the first "=", as any server does.
class Servis {
  public:
    /// A published slot.
    struct Goz {
        Metin salon;
        Metin tarih; ///< yyyy-mm-dd
        Metin dilim;
        Metin durum;

        bool operator==(const Goz&) const = default;
    };
    /// The year of a hall: the hall's index as it was sent, and the year.
    using Yil = std::pair<Metin, Metin>;
    struct Firma {
        std::vector<Metin> profil;
        std::vector<Metin> salonlar;
        std::map<Yil, std::vector<Goz>> yillar;
        std::vector<std::pair<Metin, Metin>> istekler; ///< that wait: number, and the other fields as one
                                                       ///< text
        std::vector<Metin> devralinanlar;              ///< the numbers of those that were taken over
        std::vector<Metin> oneriler;
        bool yayinda = false;
        bool duyuruVar = false; ///< one that it hasn't read
    };

    /// The reply's body to what stands behind the host of an address, as "/x/save.php?firmaid=1". None: there
    /// is no such script, or the query hasn't its keys in their order.
    std::optional<std::string> Cevapla(std::string_view hedef);
    /// The same for the outside world of a program: a failure is an empty text.
    Metin Getir(const AgIstegi& istek);

    std::map<Metin, Firma> firmalar; ///< by their keys
    Metin duyurular;
    bool kopuk = false;          ///< no request gets through
    std::vector<Metin> gelenler; ///< the script and the query of each request that got through
    /// The scripts of the requests so far, in their order.
    std::vector<std::string> Betikler() const;

  private:
    struct Betik;
    static const std::vector<Betik>& Betikleri();
    using Degerler = std::vector<Metin>;

    Metin InternetKontrol(const Degerler& d);
    Metin Yayindami(const Degerler& d);
    Metin FirmaKontrol(const Degerler& d);
    Metin Duyuru(const Degerler& d);
    Metin Duyurular(const Degerler& d);
    Metin DuyuruOkundu(const Degerler& d);
    Metin RezKontrol(const Degerler& d);
    Metin RezOkundu(const Degerler& d);
    Metin RezSil(const Degerler& d);
    Metin Temizle(const Degerler& d);
    Metin SalonEkle(const Degerler& d);
    Metin Save(const Degerler& d);
    Metin OneriKaydet(const Degerler& d);
};

} // namespace velora::test
