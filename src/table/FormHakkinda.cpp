#include "table/FormHakkinda.h"

#include "screen/Program.h"
#include "screen/Surum.h"

namespace velora {

namespace {

/// What goes out with the program. What only builds and tests it isn't here.
constexpr std::array<std::array<MetinBakis, 3>, 4> kKutuphaneler{{
    {u"Qt 6 Widgets", u"Pencereler, yazdırma, erişilebilirlik", u"LGPL 3.0"},
    {u"Qt 6 Svg", u"Simgeler", u"LGPL 3.0"},
    {u"libcurl", u"Ağ", u"curl (MIT benzeri)"},
    {u"C++ standart kitaplığı", u"Dosyalar, metinler, tarihler", u"GPL 3.0 + çalışma zamanı istisnası"},
}};

} // namespace

FormHakkinda::FormHakkinda(Program& program) : program_(program) {
    Ad.baslik = u"Velora";
    Surum.baslik = kSurum;
    Surum.once = u"Sürüm";
    Klasor.baslik = u"Program klasörü";
    Klasor.kilitli = true;
    if (const auto yol = program.dosyalar.SistemYolu(program.dosyalar.Kok()))
        Klasor.metin = YolMetni(*yol);
    Liste.baslik = u"Kullanılan kitaplıklar";
    Liste.basliklar = {u"Kitaplık", u"Ne için", u"Lisans"};
    for (const auto& [ad, is, lisans] : kKutuphaneler)
        Liste.satirlar.push_back({{Metin(ad), Metin(is), Metin(lisans)}, {}});
}

void FormHakkinda::Command1_Click() {
    program_.FormHakkinda.Bosalt();
}

} // namespace velora
