// The table and the service: what the web shows follows what changes here.
#include "access/Splash.h"
#include "online/FormSunucu.h"
#include "online/FormWebteYayinla.h"
#include "online/YayinKosusu.h"
#include "screen/Bayrak.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr int kYayinAraligi = 10; // between two requests of what goes out without its screen

} // namespace

/// The slots day by day through the months of the year, not month by month.
Yayin FormTablo::YayinaKopyala() const {
    Yayin yayin{.anahtar = program_.FormSunucu->Text1.metin,
                .salonNo = Salon.secili,
                .salon = Salon.Metni(),
                .sene = Sene.Metni(),
                .salonlar = Salon.ogeler,
                .gozler = {}};
    for (int gun = 1; gun <= kGunSayisi; ++gun)
        for (int ay = 1; ay <= kAySayisi; ++ay)
            for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece})
                if (const Metin& tag = Gozu(Satir(ay, dilim), gun).tag; !tag.empty())
                    yayin.gozler.push_back({IkiHane(static_cast<unsigned>(gun)) + u"-" +
                                                IkiHane(static_cast<unsigned>(ay)) + u"-" + yayin.sene,
                                            tag, dilim == velora::GunduzGece::Gunduz ? u"Gündüz" : u"Gece"});
    return yayin;
}

void FormTablo::Yayinla() {
    if (program_.Splash->Check1 != 1)
        return;
    yayinlar_.push_back(std::make_shared<YayinKosusu>(program_, YayinaKopyala()));
    // Asked while another one goes out: it goes out whole behind that. Sent in between, it would be overtaken
    // by what the other one still has to say of the same year.
    if (!yayinda_)
        YayinlariGoster();
}

void FormTablo::YayinlariGoster() {
    Program& p = program_;
    for (Bayrak yayinda(yayinda_); !yayinlar_.empty(); yayinlar_.pop_front()) {
        const auto kosu = yayinlar_.front();
        p.FormWebteYayinla.GosterModal([&] {
            const auto ekran = p.FormWebteYayinla.Tut();
            ekran->kosu = kosu;
            ekran->Label2.baslik = kosu->Icerik().salon + u" (" + kosu->Icerik().sene +
                                   u") kayıtları veri tabanına kaydediliyor.";
            return true;
        });
        // Closed in the middle, which stops nothing: what is left goes out without a screen.
        if (!kosu->Bitti())
            break;
    }
    GonderimSaatiniKur();
}

void FormTablo::GonderimSaatiniKur() {
    const bool bos = gidenler_.empty() && (yayinda_ || yayinlar_.empty());
    YayinTimer.aralik = bos ? 0 : kYayinAraligi;
}

void FormTablo::YayinTimer_Tick() {
    std::erase_if(gidenler_, [](const Gonderim& giden) { return giden.bitti(); });
    if (!yayinda_ && !yayinlar_.empty()) {
        const auto kosu = yayinlar_.front();
        kosu->Ilerle();
        if (kosu->Bitti())
            std::erase(yayinlar_, kosu);
    }
    GonderimSaatiniKur();
}

void FormTablo::ArkadanGonder(const Metin& adres) {
    if (adres.empty())
        return;
    gidenler_.push_back(program_.ortam.ag.Gonder({.adres = adres, .sure = kIstekSuresi}));
    GonderimSaatiniKur();
}

void FormTablo::Command7() {
    if (program_.Splash->Check2 == 1)
        Yayinla();
}

} // namespace velora
