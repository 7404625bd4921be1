#include "access/FormSifreDegistir.h"
#include "online/FormFirma.h"
#include "screen/Program.h"

namespace velora {

void IlkParolayiSor(Program& program) {
    program.FormSifreDegistir.Goster();
    const auto parola = program.FormSifreDegistir.Tut();
    parola->baslik = u"Kullanıcı Girişi";
    parola->Label8.baslik = u"Yeni Parola Oluşturun";
    parola->Command2.etkin = false;
}

} // namespace velora
