#include "gui/GuiProgram.h"

#include <QApplication>
#include <QTest>

#include "qt/Gorunum.h"

namespace velora::test {

int GuiTestleriniCalistir(QObject& testler, int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication uygulama(argc, argv);
    GorunumuKur();
    return QTest::qExec(&testler, argc, argv);
}

} // namespace velora::test
