#include <cmath>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include "destek/GeciciAgac.h"
#include "gui/GuiProgram.h"
#include "gui/PdfOkuma.h"
#include "platform/Sunucu.h"
#include "qt/QtOrtam.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr MetinBakis kAd = u"05.05.2012 - Nergis Salonu - Ayşe Yılmaz - Sözleşme";
constexpr int kTikMs = 10;

Sayfa OrnekYuz(MetinBakis metin, Yon yon = Yon::Dik) {
    return {yon,
            {{.yer = {15, 20, 180, 8}, .yazi = {12, true}, .satirlar = {Metin(metin)}},
             {.yer = {15, 40, 180, 8}, .yazi = {12, false}, .hiza = Hiza::Sag, .satirlar = {u"fiyat |"}}}};
}

/// What of a window goes on while something is waited for: its timers.
struct Tikler {
    Tikler() {
        QObject::connect(&saat, &QTimer::timeout, &saat, [this] {
            ++adet;
            if (olunca)
                olunca();
        });
        saat.start(kTikMs);
    }
    QTimer saat;
    int adet = 0;
    std::function<void()> olunca;
};

/// While it stands no file gets longer than this: as on a disk that fills up in the middle.
struct DoluDisk {
    explicit DoluDisk(rlim_t bayt) {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &eski);
        const rlimit yeni{bayt, eski.rlim_max};
        setrlimit(RLIMIT_FSIZE, &yeni);
    }
    ~DoluDisk() { setrlimit(RLIMIT_FSIZE, &eski); }
    DoluDisk(const DoluDisk&) = delete;
    DoluDisk& operator=(const DoluDisk&) = delete;
    rlimit eski{};
};

} // namespace

/// Pages go into files, and to a print service that isn't there or never answers.
class YaziciTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        qputenv("CUPS_SERVER", QByteArray("/tmp/velora-no-such-socket"));
        disDunya_ = std::make_unique<QtOrtam>();
        ortam_ = disDunya_->Ver();
    }
    void cleanup() {
        ortam_ = {};
        disDunya_.reset();
    }

    void a_pdf_holds_its_texts_its_title_and_its_sheets() {
        const auto dosya = agac_.Yol(u"çıktı ğ.pdf");
        QVERIFY(ortam_.kagit.pdfYaz(
            {OrnekYuz(u"Gündüz ışığı ŞĞİ öç"), OrnekYuz(u"Çınar", Yon::Yatay), OrnekYuz(u"Üçüncü fıkra")},
            Metin(kAd), dosya));
        const QString metin = PdfMetni(dosya);
        for (const char* aranan : {"Gündüz ışığı ŞĞİ öç", "Çınar", "Üçüncü fıkra", "fiyat"})
            QVERIFY2(metin.contains(QString::fromUtf8(aranan)), qPrintable(metin));
        const QString bilgi = PdfBilgisi(dosya);
        QVERIFY2(bilgi.contains(QString::fromStdU16String(Metin(kAd))), qPrintable(bilgi));
        const char* boylar[]{"595 x 842", "842 x 595", "595 x 842"};
        for (int sayfa = 1; sayfa <= 3; ++sayfa)
            QVERIFY2(bilgi.contains(QRegularExpression(
                         QStringLiteral("Page +%1 size: +%2 pts").arg(sayfa).arg(boylar[sayfa - 1]))),
                     qPrintable(bilgi));
        QVERIFY(bilgi.contains(QRegularExpression(QStringLiteral("Pages: +3\n"))));
    }

    void a_pdf_has_its_letters_where_the_page_has_them() {
        constexpr int kIncelik = 300;
        constexpr double kMm = kIncelik / 25.4;
        const auto dosya = agac_.Yol(u"yer.pdf");
        QVERIFY(ortam_.kagit.pdfYaz({OrnekYuz(u"|")}, Metin(kAd), dosya));
        const QImage resim = PdfResmi(dosya, 1, kIncelik);
        const double cizgi = ortam_.kagit.olcer(u"|", {12, false});
        double sag = 0; // the middle of the last stroke of the line at the right
        for (int x = static_cast<int>(170 * kMm); x < static_cast<int>(200 * kMm); ++x)
            if (qGray(resim.pixel(x, static_cast<int>(42 * kMm))) < 128)
                sag = x / kMm;
        QVERIFY2(std::abs(sag - (195 - cizgi / 2)) < 0.2, qPrintable(QString::number(sag)));
    }

    void a_file_that_cannot_be_written_leaves_what_stood_there_and_nothing_beside_it() {
        agac_.Koy(u"Evrak/eski.pdf", "yesterday's contract");
        agac_.KlasorKoy(u"Evrak/klasor.pdf");
        agac_.Koy(u"Evrak/dosya", "a file, no folder");
        const std::string once = agac_.Resim();
        const auto yazilir = [this](const std::filesystem::path& dosya) {
            return ortam_.kagit.pdfYaz({OrnekYuz(u"Yeni")}, Metin(kAd), dosya);
        };
        for (const MetinBakis yer : {u"Evrak/klasor.pdf", u"Evrak/Yok/yeni.pdf", u"Evrak/dosya/yeni.pdf"})
            QVERIFY(!yazilir(agac_.Yol(yer)));
        QVERIFY(mkfifo(agac_.Yol(u"Evrak/boru").c_str(), S_IRWXU) == 0);
        QVERIFY(!yazilir(agac_.Yol(u"Evrak/boru")));
        QVERIFY2(std::filesystem::is_fifo(agac_.Yol(u"Evrak/boru")), "replaced by a file");
        std::filesystem::remove(agac_.Yol(u"Evrak/boru"));
        QVERIFY(!yazilir(""));
        {
            const DoluDisk disk(1000);
            QVERIFY(!yazilir(agac_.Yol(u"Evrak/eski.pdf")));
        }
        QVERIFY(agac_.Resim() == once);
        QVERIFY(yazilir(agac_.Yol(u"Evrak/eski.pdf")));
        QVERIFY(PdfMetni(agac_.Yol(u"Evrak/eski.pdf")).contains(QStringLiteral("Yeni")));
    }

    void a_window_lives_on_while_a_long_file_is_written_and_a_second_one_waits_its_turn() {
        // A fast disk is done before the sixth tick: then with a file twice as long.
        constexpr int kEnAzTik = 6, kEnCokYaprak = 32'000;
        Tikler tikler;
        bool ikinci = false;
        int yaprak = 500;
        do {
            yaprak *= 2;
            tikler.adet = 0;
            ikinci = false;
            QTimer::singleShot(kTikMs, qApp, [&] {
                ikinci = ortam_.kagit.pdfYaz({OrnekYuz(u"İkinci")}, Metin(kAd), agac_.Yol(u"ikinci.pdf"));
            });
            QVERIFY(
                ortam_.kagit.pdfYaz(std::vector<Sayfa>(yaprak, OrnekYuz(u"Uzun bir sözleşmenin bir sayfası")),
                                    Metin(kAd), agac_.Yol(u"uzun.pdf")));
        } while ((tikler.adet < kEnAzTik || !ikinci) && yaprak < kEnCokYaprak);
        QVERIFY2(tikler.adet >= kEnAzTik, qPrintable(QString::number(tikler.adet)));
        QVERIFY(ikinci);
        QVERIFY(PdfBilgisi(agac_.Yol(u"uzun.pdf"))
                    .contains(QRegularExpression(QStringLiteral("Pages: +%1\n").arg(yaprak))));
    }

    void a_file_that_nobody_waits_for_any_more_leaves_what_stood_there() {
        agac_.Koy(u"eski.pdf", "yesterday's contract");
        disDunya_->SabirVer(std::chrono::milliseconds(1));
        QVERIFY(!ortam_.kagit.pdfYaz(std::vector<Sayfa>(400, OrnekYuz(u"Geç")), Metin(kAd),
                                     agac_.Yol(u"eski.pdf")));
        QVERIFY(QTest::qWaitFor([this] { return disDunya_->IslerBitti(); }, 60'000));
        QCOMPARE(agac_.Bayt(u"eski.pdf"), std::string("yesterday's contract"));
    }

    void nothing_to_print_is_no_job() {
        QVERIFY(!ortam_.kagit.pdfYaz({}, Metin(kAd), agac_.Yol(u"bos.pdf")));
        QVERIFY(!agac_.Var(u"bos.pdf"));
        QVERIFY(!ortam_.kagit.yazdir({}, Metin(kAd)));
    }

    void without_a_print_service_printing_fails_at_once() {
        QElapsedTimer sure;
        sure.start();
        QVERIFY(!ortam_.kagit.yazdir({OrnekYuz(u"Bir")}, Metin(kAd)));
        QVERIFY2(sure.elapsed() < 10000, qPrintable(QString::number(sure.elapsed())));
    }

    void a_print_service_that_never_answers_stops_neither_windows_nor_files_nor_the_end_of_the_program() {
        Sunucu servis(std::vector<Sunucu::Davranis>(40, Sus()));
        qputenv("CUPS_SERVER", QString::fromStdU16String(servis.Adres(u"")).toUtf8().mid(7));
        Tikler tikler;
        bool basildi = true;
        QElapsedTimer bitiste;
        tikler.olunca = [&] {
            if (tikler.adet == 30)
                QVERIFY2(ortam_.kagit.pdfYaz({OrnekYuz(u"Yazıcısız")}, Metin(kAd), agac_.Yol(u"bu.pdf")),
                         "a file doesn't wait behind a job");
            if (tikler.adet == 40) {
                bitiste.start();
                ortam_.olaylar.bitir();
            }
        };
        QTimer::singleShot(0, qApp, [&] { basildi = ortam_.kagit.yazdir({OrnekYuz(u"Bir")}, Metin(kAd)); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!basildi);
        QVERIFY2(!servis.Istekler().empty(), "the service was asked");
        QVERIFY(bitiste.elapsed() < 10000);
        QVERIFY(agac_.Var(u"bu.pdf"));
        QVERIFY2(!disDunya_->IslerBitti(), "the job still hangs");
        QVERIFY(bitiste.elapsed() < 15000);
    }

  private:
    GeciciAgac agac_;
    std::unique_ptr<QtOrtam> disDunya_;
    Ortam ortam_;
};

VELORA_GUI_TEST(YaziciTest)
#include "YaziciTest.moc"
