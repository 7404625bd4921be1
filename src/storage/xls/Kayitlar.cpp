#include "storage/xls/Kayitlar.h"

#include <algorithm>

#include "storage/xls/Baytlar.h"
#include "storage/xls/HucreMetni.h"

namespace velora {

namespace {

/// A record that goes on in others when it is full.
class UzunKayit {
  public:
    UzunKayit(std::string& akis, XlsKaydi no) : akis_(akis) { Ac(no); }
    UzunKayit(const UzunKayit&) = delete;
    UzunKayit& operator=(const UzunKayit&) = delete;
    ~UzunKayit() { Kapat(); }

    std::size_t Yer() const { return kEnUzunXlsKaydi - (akis_.size() - bas_); }
    /// What is written next stays together in one record.
    void YerAc(std::size_t boy) {
        if (Yer() < boy)
            Devam();
    }
    void Devam() {
        Kapat();
        Ac(XlsKaydi::Devam);
    }

  private:
    void Ac(XlsKaydi no) {
        SayiEkle(akis_, static_cast<std::uint16_t>(no));
        SayiEkle(akis_, std::uint16_t{0});
        bas_ = akis_.size();
    }
    void Kapat() {
        const std::size_t boy = akis_.size() - bas_;
        akis_[bas_ - 2] = static_cast<char>(boy & 0xFFU);
        akis_[bas_ - 1] = static_cast<char>(boy >> 8U);
    }

    std::string& akis_;
    std::size_t bas_ = 0; // where the record's own bytes begin
};

// A text says of itself, and again wherever it goes on in another record, that its units have two bytes.
constexpr std::uint8_t kIkiBayt = 1;
constexpr std::size_t kMetinBasi = 3; // its length and that

void MetniBol(std::string& akis, UzunKayit& kayit, MetinBakis metin) {
    kayit.YerAc(kMetinBasi + sizeof(char16_t));
    SayiEkle(akis, static_cast<std::uint16_t>(metin.size()));
    SayiEkle(akis, kIkiBayt);
    while (true) {
        const std::size_t sigan = std::min(metin.size(), kayit.Yer() / sizeof(char16_t));
        MetinEkle(akis, metin.substr(0, sigan));
        metin.remove_prefix(sigan);
        if (metin.empty())
            return;
        kayit.Devam();
        SayiEkle(akis, kIkiBayt);
    }
}

} // namespace

void XlsKaydiEkle(std::string& akis, XlsKaydi no, std::initializer_list<std::uint16_t> sayilar,
                  std::string_view bayt) {
    SayiEkle(akis, static_cast<std::uint16_t>(no));
    SayiEkle(akis, static_cast<std::uint16_t>(sayilar.size() * sizeof(std::uint16_t) + bayt.size()));
    for (const std::uint16_t sayi : sayilar)
        SayiEkle(akis, sayi);
    akis += bayt;
}

std::uint32_t XlsMetinleri::No(MetinBakis metin) {
    ++hucreler_;
    const auto [yer, yeni] = nolar_.try_emplace(metin, static_cast<std::uint32_t>(metinler_.size()));
    if (yeni)
        metinler_.push_back(metin);
    return yer->second;
}

void XlsMetinleri::Yaz(std::string& akis) const {
    UzunKayit kayit(akis, XlsKaydi::Metinler);
    SayiEkle(akis, hucreler_);
    SayiEkle(akis, static_cast<std::uint32_t>(metinler_.size()));
    for (const MetinBakis metin : metinler_)
        MetniBol(akis, kayit, XlsMetni(metin));
}

} // namespace velora
