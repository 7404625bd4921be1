#include "screen/Sorular.h"

#include "screen/Program.h"

namespace velora {

bool Sor(const Program& program, const Metin& metin, const Metin& baslik, Simge simge) {
    return program.ortam.sor.mesaj({metin, baslik, simge, KutuDugmeleri::EvetHayir}) == Cevap::Evet;
}

bool SilmeyiSor(const Program& program, const Metin& metin, const Metin& baslik, Simge simge) {
    return program.ortam.sor.mesaj({metin, baslik, simge, KutuDugmeleri::EvetHayir, Cevap::Hayir}) ==
           Cevap::Evet;
}

void Soyle(const Program& program, const Metin& metin, const Metin& baslik, Simge simge) {
    program.ortam.sor.mesaj({metin, baslik, simge, KutuDugmeleri::Tamam});
}

void AlaniSoyle(const Program& program, EkranAdi ekran, MetinBakis alan, const Metin& metin) {
    Soyle(program, metin);
    program.ortam.odak.ver(ekran, alan);
}

} // namespace velora
