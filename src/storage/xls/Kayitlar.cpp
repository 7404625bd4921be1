#include "storage/xls/Kayitlar.h"

#include <algorithm>

#include "storage/xls/Baytlar.h"

namespace velora {

namespace {

constexpr std::size_t kEnUzunHucre = 32767;
constexpr char16_t kYerTutan = u'\xFFFD';

bool BasYarim(char16_t harf) {
    return 0xD800 <= harf && harf < 0xDC00;
}

bool SonYarim(char16_t harf) {
    return 0xDC00 <= harf && harf < 0xE000;
}

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
        std::string boy;
        SayiEkle(boy, static_cast<std::uint16_t>(akis_.size() - bas_));
        akis_.replace(bas_ - boy.size(), boy.size(), boy);
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

Metin XlsMetni(MetinBakis metin) {
    Metin sonuc;
    sonuc.reserve(std::min(metin.size(), kEnUzunHucre));
    for (std::size_t i = 0; i < metin.size() && sonuc.size() < kEnUzunHucre; ++i) {
        const char16_t harf = metin[i];
        const char16_t sonraki = i + 1 < metin.size() ? metin[i + 1] : u'\0';
        if (BasYarim(harf) && SonYarim(sonraki)) {
            if (sonuc.size() + 2 > kEnUzunHucre)
                break; // the pair isn't cut in two
            sonuc += harf;
            sonuc += sonraki;
            ++i;
        } else if (harf == u'\r') {
            sonuc += u'\n';
            i += sonraki == u'\n' ? 1 : 0;
        } else if (BasYarim(harf) || SonYarim(harf)) {
            sonuc += kYerTutan;
        } else {
            sonuc += harf < u' ' && harf != u'\n' ? u' ' : harf;
        }
    }
    return sonuc;
}

} // namespace velora
