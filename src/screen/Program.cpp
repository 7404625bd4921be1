#include "screen/Program.h"

namespace velora {

Program::Program(Ortam disDunya, const std::filesystem::path& kok)
    : ortam(std::move(disDunya)), dosyalar(kok), agac(dosyalar), Splash(*this, EkranAdi::Splash),
      FormTablo(*this, EkranAdi::FormTablo), FormAyarlar(*this, EkranAdi::FormAyarlar),
      FormResmiTatil(*this, EkranAdi::FormResmiTatil), FormRenk(*this, EkranAdi::FormRenk),
      FormSalonTanim(*this, EkranAdi::FormSalonTanim), FormSalonTanimAd(*this, EkranAdi::FormSalonTanimAd),
      FormMenuAyar(*this, EkranAdi::FormMenuAyar), FormMenuEkle(*this, EkranAdi::FormMenuEkle),
      FormKayit(*this, EkranAdi::FormKayit), FormOdemeAl(*this, EkranAdi::FormOdemeAl),
      FormArama(*this, EkranAdi::FormArama), FormBakiye(*this, EkranAdi::FormBakiye),
      FormPrint(*this, EkranAdi::FormPrint), FormWebteYayinla(*this, EkranAdi::FormWebteYayinla) {}

Gun Program::Bugun() const {
    return Gun(std::chrono::floor<std::chrono::days>(ortam.zaman.simdi()));
}

} // namespace velora
