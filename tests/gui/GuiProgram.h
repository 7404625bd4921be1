#pragma once

#include <functional>
#include <memory>

class QObject;

namespace velora::test {

/// Tells the program of a test class. `ad` is what its command line calls it by.
class GuiTesti {
  public:
    using Uretici = std::function<std::unique_ptr<QObject>()>;
    GuiTesti(const char* ad, Uretici uretici);
};

} // namespace velora::test

/// Behind a test class: makes it known to the program.
#define VELORA_GUI_TEST(Sinif)                                                                               \
    static const velora::test::GuiTesti k##Sinif(#Sinif, [] { return std::make_unique<Sinif>(); });
