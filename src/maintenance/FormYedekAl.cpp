#include "maintenance/FormYedekAl.h"

#include "screen/Program.h"

namespace velora {

FormYedekAl::FormYedekAl(Program& program) : program_(program) {
    Label8.baslik = baslik;
}

void FormYedekAl::Load() {}

void FormYedekAl::cmdStart_Click() {}

void FormYedekAl::Command3_Click() {
    program_.FormYedekAl.Bosalt();
}

} // namespace velora
