#include "online/FormSunucu.h"

#include <array>

#include "online/FormIpMac.h"
#include "screen/Program.h"
#include "storage/AlanDosyasi.h"

namespace velora {

namespace {

Metin SunucuYolu(const Program& program) {
    return program.agac.KokYolu(kSunucuDosyasi);
}

std::array<Alan, 2> SunucuAlanlari(FormSunucu& ekran) {
    return {MetinAlani(ekran.Text1.metin), SayiAlani(ekran.Check1.deger)};
}

} // namespace

FormSunucu::FormSunucu(Program& program) : program_(program) {
    Text1.baslik = u"Salon ID";
    Text1.kilitli = true;
    Check1.baslik = u"Rezervasyonları otomatik webte yayınla";
    Command1.baslik = u"Tamam";
    Command2.baslik = u"Kapat";
}

void FormSunucu::Load() {
    if (!AlanlariOku(program_.dosyalar, SunucuYolu(program_), SunucuAlanlari(*this), &koken_))
        Check1.deger = 1;
    Text1.metin = FirmaAnahtari(program_);
}

void FormSunucu::Command1_Click() {
    const Dosyalar::Eylem eylem(program_.dosyalar, u"Sunucu ayarları");
    koken_.Yaz(program_.dosyalar, SunucuYolu(program_), AlanBaytlari(SunucuAlanlari(*this)));
    program_.FormSunucu.Bosalt();
}

void FormSunucu::Command2_Click() {
    program_.FormSunucu.Bosalt();
}

} // namespace velora
