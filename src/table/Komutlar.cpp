// The commands of the menu bar. Each shows another screen over the table.
#include "accounts/FormBakiye.h"
#include "reservation/FormArama.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormSalonTanim.h"
#include "table/FormTablo.h"

namespace velora {

void FormTablo::Arasss_Click() {
    program_.FormArama.GosterModal();
}

void FormTablo::BakiyeRaporss_Click() {
    program_.FormBakiye.GosterModal();
}

void FormTablo::Salontanimss_Click() {
    program_.FormSalonTanim.GosterModal();
}

void FormTablo::MenuAyars_Click() {
    program_.FormMenuAyar.GosterModal();
}

void FormTablo::Progrset_Click() {
    program_.FormAyarlar.GosterModal();
}

} // namespace velora
