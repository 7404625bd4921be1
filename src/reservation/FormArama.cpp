#include "reservation/FormArama.h"

#include "screen/Program.h"

namespace velora {

FormArama::FormArama(Program& program) : program_(program) {}

void FormArama::Activate() {
    acikmi = 1;
}

void FormArama::Command3_Click() {
    (void)program_;
}

} // namespace velora
