#include <cstdlib>
#include <filesystem>
#include <utility>

#include <QApplication>

#include "access/Splash.h"
#include "platform/Ag.h"
#include "platform/DurumKlasoru.h"
#include "platform/KlasorIzleme.h"
#include "platform/TekKopya.h"
#include "qt/Dil.h"
#include "qt/Ekranlar.h"
#include "qt/Gorunum.h"
#include "qt/Koruma.h"
#include "qt/QtOrtam.h"
#include "qt/TusTekrari.h"
#include "screen/Program.h"

static int Calistir(char** argv) {
    // The program has no command line: the toolkit sees none either.
    int argumanSayisi = 1;
    const QApplication uygulama(argumanSayisi, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Velora"));
    QGuiApplication::setDesktopFileName(QStringLiteral("velora"));
    velora::DiliKur();
    velora::TusTekrariniKes();
    velora::GorunumuKur();
    velora::QtOrtam disDunya;
    disDunya.HafizaVer(velora::PencereHafizasi(velora::PencereHafizasi::KullaniciDosyasi()));
    disDunya.AyarlarVer(velora::AyarDosyasi(velora::AyarDosyasi::KullaniciDosyasi()));
    const std::filesystem::path programDizini(QCoreApplication::applicationDirPath().toStdU16String());
    velora::Ortam ortam = disDunya.Ver();
    velora::AgiBagla(ortam);
    velora::BeklerkenGoster(ortam);
    velora::KopyayiBagla(ortam);
    velora::IzlemeyiBagla(ortam);
    velora::DurumuBagla(ortam);
    velora::Program program(std::move(ortam), programDizini);
    velora::EkranlariTanit(disDunya, program);
    program.Splash->Baslat();
    const int sonuc = disDunya.Bitti() ? 0 : QApplication::exec();
    disDunya.PencereleriBirak();
    // A dead print service must not keep the process: every save is on the disk already.
    if (!disDunya.IslerBitti())
        std::_Exit(sonuc);
    return sonuc;
}

int main(int /*argc*/, char** argv) {
    int sonuc = 1;
    velora::Koru([&sonuc, argv] { sonuc = Calistir(argv); });
    return sonuc;
}
