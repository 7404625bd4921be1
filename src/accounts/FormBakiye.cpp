#include "accounts/FormBakiye.h"

#include "screen/Program.h"

namespace velora {

FormBakiye::FormBakiye(Program& program) : program_(program) {}

void FormBakiye::Load() {}

void FormBakiye::Activate() {
    acikmi = 1;
}

void FormBakiye::ListeleGun() {
    (void)program_;
}

} // namespace velora
