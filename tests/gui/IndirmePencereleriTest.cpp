#include <QElapsedTimer>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "maintenance/FormDownloadManager.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormResmiTatilYukle.h"
#include "platform/Ag.h"
#include "platform/Sunucu.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr std::string_view kGelenListe = "\"29.10.2010\",\"Cumhuriyet\",\"Evet\",\"Genel\"\r\n";

/// Half of a file comes, and then nothing more.
Sunucu::Davranis YaridaSus() {
    return [](const Baglanti& baglanti) {
        baglanti.Yolla("HTTP/1.1 206 Partial Content\r\nContent-Length: 8\r\n\r\nabcd");
        baglanti.KapanmasiniBekle();
    };
}

/// A firm in its windows with the real network, and a product site that does what the test says.
struct SiteliFirma : GuiFirma {
    explicit SiteliFirma(std::vector<Sunucu::Davranis> senaryo) : site(std::move(senaryo)) {
        agac.KoyMetin(u"Adresler.dat", u"\"\",\"" + site.Adres(u"") + u"\",\"\",\"\"\r\n");
        agac.Koy(u"Tatiller.dll", "\"05.06.2026\",\"a\",\"Hay\xFDr\",\"Genel\"\r\n");
        AgiBagla(program.ortam);
        BeklerkenGoster(program.ortam);
        program.ortam.kabuk.calistir = [this](const std::filesystem::path& yol) {
            calisanlar.push_back(yol);
            return true;
        };
        QObject::connect(&kutular, &QTimer::timeout, &kutular, [this] {
            auto* kutu = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (kutu == nullptr)
                return;
            yazilar << kutu->text();
            QTest::mouseClick(kutu->buttons().first(), Qt::LeftButton);
        });
        Ac();
    }
    QWidget& Indirme() { return *disDunya.Pencere(EkranAdi::FormResmiTatilYukle); }
    QWidget& Surum() { return *disDunya.Pencere(EkranAdi::FormDownloadManager); }

    Sunucu site;
    QTimer kutular; ///< running, it answers each box and keeps what that said
    QStringList yazilar;
    std::vector<std::filesystem::path> calisanlar;
};

QString KomutYazisi(const QWidget& pencere) {
    return Isaretsiz(Parcasi<QPushButton>(pencere, "Command").text());
}

int CubukDegeri(const QWidget& pencere) {
    return Parcasi<QProgressBar>(pencere, "ProgressBar").value();
}

/// Does something as soon as half of the file has come.
void YarisiGelince(SiteliFirma& firma, EkranAdi ekran, const std::function<void(QWidget&)>& is) {
    auto* bak = new QTimer(&firma.Pencere());
    QObject::connect(bak, &QTimer::timeout, bak, [bak, is, ekran, &firma] {
        QWidget* pencere = firma.disDunya.Pencere(ekran);
        if (pencere == nullptr || CubukDegeri(*pencere) != 50)
            return;
        bak->deleteLater();
        bak->stop();
        is(*pencere);
    });
    bak->start(5);
}

} // namespace

/// Windows in which a file is fetched from a real server, one that stalls too.
class IndirmePencereleriTest : public QObject {
    Q_OBJECT

  private slots:
    void the_published_list_is_fetched_told_and_shown_behind_the_window() {
        SiteliFirma firma({Cevapla(kGelenListe)});
        firma.kutular.start(10);
        Pencerede([&] { firma.program.FormResmiTatil.GosterModal(); }, {[&](QDialog& tatiller) {
                      Tikla(tatiller, "Command3");
                      QCOMPARE(firma.yazilar, QStringList{QStringLiteral("Yükleme başarıyla tamamlandı...")});
                      QVERIFY(firma.disDunya.Pencere(EkranAdi::FormResmiTatilYukle) == nullptr);
                      QCOMPARE(SatirYazilari(Parcasi<QTreeWidget>(tatiller, "Liste"), 0).at(1),
                               QStringLiteral("Cumhuriyet"));
                  }});
        QCOMPARE(firma.site.IstekSatirlari(),
                 std::vector<std::string>{"GET /progdata/ozelgunler.dat HTTP/1.1"});
    }

    void stop_answers_at_once_while_the_server_stalls_also_behind_a_second_try() {
        SiteliFirma firma({YaridaSus(), YaridaSus()});
        firma.kutular.start(10);
        QElapsedTimer gecen;
        int denemeler = 0;
        const auto durdur = [&](QWidget& pencere) {
            QCOMPARE(KomutYazisi(pencere), QStringLiteral("Durdur"));
            gecen.start();
            Tikla(pencere, "Command");
            QCOMPARE(KomutYazisi(pencere), QStringLiteral("Yeniden Dene"));
            QCOMPARE(CubukDegeri(pencere), 0);
            QVERIFY(!firma.agac.Var(u"Tatiller.dat"));
            ++denemeler;
        };
        YarisiGelince(firma, EkranAdi::FormResmiTatilYukle, durdur);
        QTimer::singleShot(0, &firma.Pencere(), [&] { firma.program.FormResmiTatilYukle.GosterModal(); });
        QTRY_COMPARE(denemeler, 1);
        QVERIFY(gecen.elapsed() < 1000);
        YarisiGelince(firma, EkranAdi::FormResmiTatilYukle, durdur);
        QTest::qWait(50);
        Tikla(firma.Indirme(), "Command"); // returns when the second one was stopped
        QCOMPARE(denemeler, 2);
        QVERIFY(gecen.elapsed() < 1000);
        QCOMPARE(firma.yazilar, QStringList());
        QTest::keyClick(&firma.Indirme(), Qt::Key_Escape);
        QTRY_VERIFY(!firma.program.FormResmiTatilYukle.Yuklu());
    }

    void esc_in_the_middle_of_a_second_try_closes_the_window_and_leaves_nothing() {
        SiteliFirma firma({HamYolla(""), YaridaSus()});
        firma.kutular.start(10);
        YarisiGelince(firma, EkranAdi::FormResmiTatilYukle,
                      [&](QWidget& pencere) { QTest::keyClick(&pencere, Qt::Key_Escape); });
        QTimer::singleShot(0, &firma.Pencere(), [&] { firma.program.FormResmiTatilYukle.GosterModal(); });
        QTRY_COMPARE(firma.yazilar.size(), 1);
        QTRY_COMPARE(KomutYazisi(firma.Indirme()), QStringLiteral("Yeniden Dene"));
        Tikla(firma.Indirme(), "Command");
        QVERIFY(!firma.program.FormResmiTatilYukle.Yuklu());
        QTRY_VERIFY(firma.disDunya.Pencere(EkranAdi::FormResmiTatilYukle) == nullptr);
        QVERIFY(!firma.agac.Var(u"Tatiller.dat"));
        QCOMPARE(firma.yazilar.size(), 1);
    }

    void a_new_version_is_fetched_its_bar_runs_and_the_updater_starts_behind_the_window() {
        SiteliFirma firma({Cevapla("MZ yeni")});
        firma.kutular.start(10);
        bool arada = false;
        QTimer bak;
        QObject::connect(&bak, &QTimer::timeout, &bak, [&] {
            const QWidget* pencere = firma.disDunya.Pencere(EkranAdi::FormDownloadManager);
            if (pencere == nullptr || pencere->windowTitle() != QStringLiteral("Backup Yöneticisi"))
                return;
            QCOMPARE(KomutYazisi(*pencere), QStringLiteral("Tekrar İndir"));
            arada = arada || (CubukDegeri(*pencere) > 10 && CubukDegeri(*pencere) < 90);
        });
        bak.start(5);
        QElapsedTimer gecen;
        gecen.start();
        firma.program.FormDownloadManager.GosterModal();
        QVERIFY2(arada, "nobody has seen the bar run");
        QVERIFY(gecen.elapsed() < 5000);
        QCOMPARE(firma.yazilar.first(), QStringLiteral("Programın yeni sürümü başarıyla indirildi..."));
        QCOMPARE(firma.agac.Bayt(u"VeloraYeni.exe"), std::string("MZ yeni"));
        QVERIFY(firma.calisanlar == std::vector{firma.agac.Kok() / "Update.exe"});
        QCOMPARE(firma.site.IstekSatirlari(), std::vector<std::string>{"GET /update/Velora.exe HTTP/1.1"});
    }

    void the_x_of_a_new_version_that_stalls_ends_its_window_with_nothing_left() {
        SiteliFirma firma({YaridaSus()});
        firma.kutular.start(10);
        YarisiGelince(firma, EkranAdi::FormDownloadManager, [](QWidget& pencere) { pencere.close(); });
        firma.program.FormDownloadManager.GosterModal();
        QVERIFY(!firma.program.FormDownloadManager.Yuklu());
        QVERIFY(!firma.agac.Var(u"VeloraYeni.exe"));
        QVERIFY(firma.calisanlar.empty());
        QCOMPARE(firma.yazilar, QStringList());
    }
};

VELORA_GUI_TEST(IndirmePencereleriTest)
#include "IndirmePencereleriTest.moc"
