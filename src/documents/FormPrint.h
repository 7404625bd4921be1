#pragma once

namespace velora {

struct Program;

/// The page of the contract. `FormKayit` loads it when it opens, so that it stands ready for printing.
struct FormPrint {
    explicit FormPrint(Program& /*program*/) {}
    void Load() {}
};

} // namespace velora
