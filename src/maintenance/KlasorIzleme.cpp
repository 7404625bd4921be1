#include "maintenance/KlasorIzleme.h"

#include <system_error>

#include "screen/Program.h"
#include "screen/Sorular.h"

namespace velora {

namespace {

// Short enough for a button that is pressed meanwhile.
constexpr std::chrono::milliseconds kBeklemeSuresi{50};

} // namespace

void KlasorIzleme::Basla(const Metin& klasor) {
    if (izliyor_)
        return;
    const Bayrak izleme(izliyor_);
    dur_ = false;
    Izle(klasor);
    bekle_ = {};
}

void KlasorIzleme::Izle(const Metin& klasor) {
    const std::filesystem::path yol = MetinYolu(klasor).value_or(std::filesystem::path());
    TxtAra(yol);
    Soyle(program_, u"Beginning watching of folder " + klasor + u" .. press OK");
    bekle_ = program_.ortam.klasorler.izle(yol);
    if (Bekle()) {
        TxtAra(yol);
        Soyle(program_, u"The watched directory has been changed.  Resuming watch...");
        while (Bekle())
            Soyle(program_, u"The watched directory has been changed again.");
    }
    if (!program_.ortam.olaylar.bitti())
        Soyle(program_, u"Watching has been terminated for " + klasor);
}

bool KlasorIzleme::Bekle() {
    while (!dur_ && bekle_ && !program_.ortam.olaylar.bitti()) {
        if (bekle_(kBeklemeSuresi))
            return true;
        program_.OlaylariIsle();
    }
    return false;
}

void KlasorIzleme::Dur() {
    dur_ = true;
    program_.OlaylariIsle();
    bekle_ = {};
}

void KlasorIzleme::TxtAra(const std::filesystem::path& klasor) {
    std::error_code hata;
    bulunan.clear();
    for (std::filesystem::directory_iterator oge(klasor, hata), son; !hata && oge != son; oge.increment(hata))
        if (oge->path().extension() == ".txt") {
            bulunan = YolMetni(oge->path().filename());
            return;
        }
}

} // namespace velora
