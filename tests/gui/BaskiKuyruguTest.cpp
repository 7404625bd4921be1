#include <cmath>

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include "gui/BaskiKuyrugu.h"
#include "gui/GuiProgram.h"
#include "gui/PdfOkuma.h"
#include "qt/QtOrtam.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr MetinBakis kIsAdi = u"05.05.2012 - Nergis Salonu - Makbuz";
constexpr int kIncelik = 100;
constexpr double kMm = kIncelik / 25.4;

/// An upright page and one that lies, with letters, a ground and a frame each at a place of its own.
std::vector<Sayfa> Sayfalar() {
    Sayfa dik;
    dik.parcalar = {{.yer = {15, 20, 180, 8}, .yazi = {12, true}, .satirlar = {u"Gündüz ışığı ŞĞİ öç"}},
                    {.yer = {30, 60, 50, 25}, .zemin = 0x00A000},
                    {.tur = ParcaTuru::Cerceve, .yer = {20, 200, 170, 80}, .renk = 0x0000FF}};
    Sayfa yatay{.yon = Yon::Yatay};
    yatay.parcalar = {
        {.yer = {200, 15, 82, 8}, .yazi = {10, false}, .hiza = Hiza::Sag, .satirlar = {u"Çınar Bahçesi"}},
        {.yer = {240, 150, 40, 40}, .zemin = 0xC00000}};
    return {dik, yatay};
}

QColor Renk(const QImage& resim, double x, double y) {
    return resim.pixelColor(static_cast<int>(x * kMm), static_cast<int>(y * kMm));
}

bool Yakin(const QColor& bir, const QColor& iki) {
    constexpr int kPay = 24; // a printer's colours
    return std::abs(bir.red() - iki.red()) < kPay && std::abs(bir.green() - iki.green()) < kPay &&
           std::abs(bir.blue() - iki.blue()) < kPay;
}

/// How much of a place is dark.
double Karalik(const QImage& resim, const QRectF& mm) {
    int kara = 0;
    const QRect yer = QRectF(mm.topLeft() * kMm, mm.size() * kMm).toRect();
    for (int y = yer.top(); y <= yer.bottom(); ++y)
        for (int x = yer.left(); x <= yer.right(); ++x)
            kara += qGray(resim.pixel(x, y)) < 128 ? 1 : 0;
    return static_cast<double>(kara) / (yer.width() * yer.height());
}

/// A page that lies, as it is read. The sheet itself comes out of the printer upright.
QImage YatayResim(const std::filesystem::path& dosya, int sayfa) {
    constexpr int kCeyrek = 90;
    const QImage kagit = PdfResmi(dosya, sayfa, kIncelik);
    if (kagit.width() > kagit.height())
        return kagit;
    return kagit.transformed(QTransform().rotate(kCeyrek));
}

/// Both pages are on it, each in its shape, and all stands where the pages say.
void KagidaBak(const std::filesystem::path& dosya) {
    const QImage dik = PdfResmi(dosya, 1, kIncelik);
    const QImage yatay = YatayResim(dosya, 2);
    QVERIFY2(std::abs(dik.width() - 827) <= 1 && std::abs(dik.height() - 1169) <= 1, "an upright A4 sheet");
    QVERIFY(Yakin(Renk(dik, 55, 72), QColor(0, 0xA0, 0)));
    for (const auto& [x, y] : {std::pair{28.0, 72.0}, {82.0, 72.0}, {55.0, 58.0}, {55.0, 87.0}})
        QVERIFY(Yakin(Renk(dik, x, y), Qt::white));
    QVERIFY(Karalik(dik, {15, 20, 45, 6}) > 0.05);
    QVERIFY(Karalik(dik, {80, 20, 110, 6}) == 0);
    QVERIFY(Yakin(Renk(dik, 100, 240), Qt::white));
    bool kirmizi = false;
    for (double y = 199; y < 201; y += 0.1)
        kirmizi = kirmizi || (Renk(dik, 100, y).red() > 200 && Renk(dik, 100, y).green() < 160);
    QVERIFY2(kirmizi, "the upper line of the frame");
    QVERIFY(Yakin(Renk(yatay, 260, 170), QColor(0, 0, 0xC0)));
    QVERIFY(Yakin(Renk(yatay, 236, 170), Qt::white));
    QVERIFY(Karalik(yatay, {262, 15, 20, 5}) > 0.05);
    QVERIFY(Karalik(yatay, {200, 15, 50, 5}) == 0);
}

} // namespace

/// Prints through a real print service onto paper that can be read back.
class BaskiKuyruguTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        if (const QString engel = BaskiKuyrugu::Engel(); !engel.isEmpty())
            QSKIP(qPrintable(engel));
        kuyruk_ = std::make_unique<BaskiKuyrugu>();
        QVERIFY2(kuyruk_->Hazir(), "the print service doesn't start");
        disDunya_ = std::make_unique<QtOrtam>();
        ortam_ = disDunya_->Ver();
    }

    void cleanup() {
        ortam_ = {};
        disDunya_.reset();
        kuyruk_.reset();
    }

    void pages_come_out_of_the_default_printer_with_their_texts_colours_and_shapes() {
        QVERIFY(ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
        const auto verilen = kuyruk_->Verilen(1);
        const QString metin = PdfMetni(verilen);
        QVERIFY2(metin.contains(QStringLiteral("Gündüz ışığı ŞĞİ öç")), qPrintable(metin));
        QVERIFY(metin.contains(QStringLiteral("Çınar Bahçesi")));
        const QString bilgi = PdfBilgisi(verilen);
        QVERIFY2(bilgi.contains(QRegularExpression(QStringLiteral("Page +1 size: +595 x 842 pts"))),
                 qPrintable(bilgi));
        QVERIFY(bilgi.contains(QRegularExpression(QStringLiteral("Page +2 size: +842 x 595 pts"))));

        const auto basilan = kuyruk_->Basilan(1);
        QVERIFY2(!basilan.empty(), "no paper comes out");
        QVERIFY2(basilan.filename().string().find("Nergis") != std::string::npos, "the job's name");
        const QString kagittaki = PdfMetni(basilan);
        QVERIFY2(kagittaki.contains(QStringLiteral("Gündüz")), qPrintable(kagittaki));
        KagidaBak(basilan);
    }

    void a_single_page_that_lies_comes_out_lying() {
        QVERIFY(ortam_.kagit.yazdir({Sayfalar()[1]}, Metin(kIsAdi)));
        const auto basilan = kuyruk_->Basilan(1);
        QVERIFY(!basilan.empty());
        const QImage resim = YatayResim(basilan, 1);
        QVERIFY(Yakin(Renk(resim, 260, 170), QColor(0, 0, 0xC0)));
    }

    void each_print_is_a_job_of_its_own() {
        for (int kopya = 1; kopya <= 3; ++kopya)
            QVERIFY(ortam_.kagit.yazdir({Sayfalar()[0]}, Metin(kIsAdi)));
        QVERIFY(!kuyruk_->Basilan(3).empty());
        QVERIFY(!std::filesystem::exists(kuyruk_->Verilen(4)));
        QVERIFY(
            !PdfBilgisi(kuyruk_->Verilen(3)).contains(QRegularExpression(QStringLiteral("Page +2 size"))));
    }

    void a_printer_that_takes_no_jobs_is_a_failure() {
        BaskiKuyrugu::Komut("cupsreject");
        QVERIFY(!ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
        BaskiKuyrugu::Komut("cupsaccept");
        QVERIFY(ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
    }

    void a_printer_that_stands_still_takes_the_job_and_prints_it_later() {
        BaskiKuyrugu::Komut("cupsdisable");
        QVERIFY(ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
        BaskiKuyrugu::Komut("cupsenable");
        QVERIFY(!kuyruk_->Basilan(1).empty());
    }

    void a_job_that_nobody_waits_for_any_more_is_not_printed_later() {
        disDunya_->SabirVer(std::chrono::milliseconds(300));
        kuyruk_->Uyut();
        QElapsedTimer sure;
        sure.start();
        QVERIFY(!ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
        QVERIFY2(sure.elapsed() > 200 && sure.elapsed() < 15000, qPrintable(QString::number(sure.elapsed())));
        kuyruk_->Uyandir();
        QVERIFY2(disDunya_->IslerBitti(), "it goes on with the service");
        QVERIFY(!std::filesystem::exists(kuyruk_->Verilen(1)));
        disDunya_->SabirVer(std::chrono::seconds(20));
        QVERIFY(ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
        QVERIFY(std::filesystem::exists(kuyruk_->Verilen(1)));
    }

    void a_service_without_a_printer_is_a_failure_at_once() {
        BaskiKuyrugu::KuyruguSil();
        QElapsedTimer sure;
        sure.start();
        QVERIFY(!ortam_.kagit.yazdir(Sayfalar(), Metin(kIsAdi)));
        QVERIFY(sure.elapsed() < 10000);
    }

  private:
    std::unique_ptr<BaskiKuyrugu> kuyruk_;
    std::unique_ptr<QtOrtam> disDunya_;
    Ortam ortam_;
};

VELORA_GUI_TEST(BaskiKuyruguTest)
#include "BaskiKuyruguTest.moc"
