// The table and the service: what the web shows follows what changes here.
#include "access/Splash.h"
#include "online/FormWebteYayinla.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

void FormTablo::Yayinla() {
    if (program_.Splash->Check1 != 1)
        return;
    program_.FormWebteYayinla->Label2.baslik =
        Salon.Metni() + u" (" + Sene.Metni() + u") kayıtları veri tabanına kaydediliyor.";
    program_.FormWebteYayinla.Goster();
}

void FormTablo::Command7() {
    if (program_.Splash->Check2 == 1)
        Yayinla();
}

} // namespace velora
