#include <filesystem>

#include <QApplication>

#include "qt/Ekranlar.h"
#include "qt/Gorunum.h"
#include "qt/Koruma.h"
#include "qt/QtOrtam.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

int main(int /*argc*/, char** argv) {
    // The program has no command line: the toolkit sees none either.
    int argumanSayisi = 1;
    const QApplication uygulama(argumanSayisi, argv);
    velora::GorunumuKur();
    velora::QtOrtam disDunya;
    const std::filesystem::path programDizini(QCoreApplication::applicationDirPath().toStdU16String());
    velora::Program program(disDunya.Ver(), programDizini);
    velora::EkranlariTanit(disDunya, program);
    velora::Koru([&program] { program.FormTablo.Goster(); });
    const int sonuc = disDunya.Bitti() ? 0 : QApplication::exec();
    disDunya.PencereleriBirak();
    return sonuc;
}
