#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "qt/Ceviri.h"
#include "qt/Dil.h"
#include "qt/Gorunum.h"
#include "tools/kilavuz/Resimler.h"

namespace {

using namespace velora;
using namespace velora::kilavuz;

bool Bildir(const QString& hata) {
    std::fprintf(stderr, "%s\n", qPrintable(hata));
    return false;
}

bool HerEkranVar() {
    const auto eksik = ResimsizEkranlar(Resimler());
    for (const EkranAdi ekran : eksik)
        Bildir(QMetin(EkranBul(ekran).ad) + QStringLiteral(" has a window and no picture (Resimler.cpp)"));
    return eksik.empty();
}

/// As few bytes as the eye lets through: the pictures are kept with the sources. A window has few colours,
/// and the many that soften the edges of its letters are hardly told apart: the most frequent ones stand for
/// all.
QImage Kucult(const QImage& resim) {
    constexpr int kPalet = 256;
    constexpr std::size_t kCizelge = 20'000;
    std::map<QRgb, int> sayilar;
    for (int y = 0; y < resim.height(); ++y)
        for (int x = 0; x < resim.width(); ++x)
            ++sayilar[resim.pixel(x, y)];
    if (sayilar.size() > kCizelge)
        return resim;
    std::vector<std::pair<int, QRgb>> sirali;
    sirali.reserve(sayilar.size());
    for (const auto& [renk, sayi] : sayilar)
        sirali.emplace_back(-sayi, renk);
    std::ranges::sort(sirali);
    QList<QRgb> palet;
    for (const auto& [sayi, renk] : sirali)
        if (palet.size() < kPalet)
            palet.append(renk);
    return resim.convertToFormat(QImage::Format_Indexed8, palet, Qt::ThresholdDither | Qt::AvoidDither);
}

bool Yaz(const std::filesystem::path& kok, const QDir& hedef, const ResimTanimi& tanim) {
    const QString ad = QMetin(tanim.dosya) + QStringLiteral(".png");
    const CekilenResim cekilen = ResimCek(kok, tanim);
    if (!cekilen.hata.isEmpty())
        return Bildir(ad + QStringLiteral(": ") + cekilen.hata);
    return Kucult(cekilen.resim).save(hedef.filePath(ad), "PNG", 0) ||
           Bildir(ad + QStringLiteral(" couldn't be written"));
}

/// Pictures that are no longer taken.
void EskileriSil(QDir& hedef) {
    std::set<QString> yeniler;
    for (const ResimTanimi& tanim : Resimler())
        yeniler.insert(QMetin(tanim.dosya) + QStringLiteral(".png"));
    for (const QString& ad : hedef.entryList({QStringLiteral("*.png")}))
        if (!yeniler.contains(ad))
            hedef.remove(ad);
}

bool HepsiniCek(const std::filesystem::path& kok, const QString& klasor) {
    QDir hedef(klasor);
    if (!HerEkranVar() || !hedef.mkpath(QStringLiteral(".")) || !FirmayiKur(kok))
        return false;
    for (const ResimTanimi& tanim : Resimler())
        if (!Yaz(kok, hedef, tanim))
            return false;
    EskileriSil(hedef);
    return true;
}

/// The display that isn't there: larger than the largest of the pictures.
bool EkraniKur(const QString& dosya) {
    QFile ayar(dosya);
    if (!ayar.open(QIODevice::WriteOnly))
        return Bildir(dosya + QStringLiteral(" couldn't be written"));
    ayar.write(R"({"screens": [{"name": "kilavuz", "x": 0, "y": 0, "width": 1600, "height": 1000,
                                "logicalDpi": 96, "dpr": 1.5}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(dosya));
    // No scale of a desktop.
    qunsetenv("QT_SCALE_FACTOR");
    return true;
}

/// What that display can't do isn't missed.
void Suz(QtMsgType tur, const QMessageLogContext& yer, const QString& yazi) {
    if (!yazi.startsWith(QStringLiteral("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(tur, yer, yazi)));
}

} // namespace

/// KilavuzResimleri FOLDER: makes all pictures of the guide anew.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: KilavuzResimleri FOLDER\n");
        return 2;
    }
    const QString klasor = QString::fromLocal8Bit(argv[1]);
    const QTemporaryDir gecici;
    const QDir firma(gecici.filePath(QStringLiteral("firma")));
    if (!firma.mkpath(QStringLiteral(".")) || !EkraniKur(gecici.filePath(QStringLiteral("ekran.json"))))
        return 1;
    qInstallMessageHandler(Suz);
    const QApplication uygulama(argc, argv);
    QApplication::setCursorFlashTime(0);
    DiliKur();
    GorunumuKur();
    return HepsiniCek(std::filesystem::canonical(firma.path().toStdU16String()), klasor) ? 0 : 1;
}
