#pragma once

class QObject;

namespace velora::test {

/// Runs the tests of an object as the program does its windows: same look, no display needed.
int GuiTestleriniCalistir(QObject& testler, int argc, char** argv);

} // namespace velora::test

/// The `main` of a test program with one test class.
#define VELORA_GUI_TEST(Sinif)                                                                               \
    int main(int argc, char** argv) {                                                                        \
        Sinif testler;                                                                                       \
        return velora::test::GuiTestleriniCalistir(testler, argc, argv);                                     \
    }
