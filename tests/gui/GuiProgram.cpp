#include "gui/GuiProgram.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include <QApplication>
#include <QByteArray>
#include <QMetaMethod>
#include <QTest>

#include "qt/Dil.h"
#include "qt/Gorunum.h"
#include "qt/TusTekrari.h"

namespace velora::test {

namespace {

std::map<std::string, GuiTesti::Uretici>& Testler() {
    static std::map<std::string, GuiTesti::Uretici> testler;
    return testler;
}

/// Qt Test takes a function whose name ends so for the rows of another one, and runs it only before that.
bool SahipsizVar(const QMetaObject& sinif) {
    const QByteArray son = "_data";
    for (int i = sinif.methodOffset(); i < sinif.methodCount(); ++i) {
        const QByteArray ad = sinif.method(i).name();
        if (ad.endsWith(son) && sinif.indexOfMethod(ad.chopped(son.size()) + "()") < 0) {
            std::fprintf(stderr, "%s would never run: give it another name.\n", ad.constData());
            return true;
        }
    }
    return false;
}

} // namespace

GuiTesti::GuiTesti(const char* ad, Uretici uretici) {
    Testler()[ad] = std::move(uretici);
}

} // namespace velora::test

/// test_gui CLASS [what Qt Test takes]: runs the tests of a class as the program does its windows: same look,
/// no display needed. Without a class it tells which there are.
int main(int argc, char** argv) {
    using namespace velora::test;
    const auto test = argc > 1 ? Testler().find(argv[1]) : Testler().end();
    if (test == Testler().end()) {
        for (const auto& [ad, uretici] : Testler())
            std::printf("%s\n", ad.c_str());
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication uygulama(argc, argv);
    velora::DiliKur();
    velora::TusTekrariniKes();
    velora::GorunumuKur();
    std::vector<char*> kalanlar(argv, argv + argc);
    kalanlar.erase(kalanlar.begin() + 1);
    const auto testler = test->second();
    if (SahipsizVar(*testler->metaObject()))
        return 1;
    return QTest::qExec(testler.get(), static_cast<int>(kalanlar.size()), kalanlar.data());
}
