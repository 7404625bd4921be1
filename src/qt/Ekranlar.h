#pragma once

namespace velora {

class QtOrtam;
struct Program;

/// Tells the outside world how the window of each screen is made.
void EkranlariTanit(QtOrtam& ortam, Program& program);

} // namespace velora
