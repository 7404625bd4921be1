#include "online/FormWebteYayinla.h"

#include "screen/Program.h"

namespace velora {

FormWebteYayinla::FormWebteYayinla(Program& program) : program_(program) {
    Label8.baslik = baslik;
    Label1.baslik = u"Lütfen bekleyiniz, bu işlem bir kaç dakika sürebilir...";
}

void FormWebteYayinla::Command1_Click() {
    program_.FormWebteYayinla.Bosalt();
}

} // namespace velora
