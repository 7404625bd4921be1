#pragma once

namespace velora {

struct Program;

/// Makes the program ready for its first window. A missing `Menuler.dat` is made, empty: without it no
/// contract number but 1 is ever offered. A file that can't be made is not reported.
void ProgramiHazirla(Program& program);

} // namespace velora
