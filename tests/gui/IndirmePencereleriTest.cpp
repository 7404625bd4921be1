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
#include "qt/table/TabloPenceresi.h"

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
        program.ortam.klasorler.yedek = [this] { return agac.Disi() / "yedek"; };
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

/// Does something as soon as the window of a screen stands so. The screen waits for its end meanwhile.
void Olunca(SiteliFirma& firma, EkranAdi ekran, const std::function<bool(QWidget&)>& oldu,
            const std::function<void(QWidget&)>& is) {
    auto* bak = new QTimer(&firma.Pencere());
    QObject::connect(bak, &QTimer::timeout, bak, [bak, oldu, is, ekran, &firma] {
        QWidget* pencere = firma.disDunya.Pencere(ekran);
        if (pencere == nullptr || !oldu(*pencere))
            return;
        bak->stop();
        bak->deleteLater();
        is(*pencere);
    });
    bak->start(5);
}

/// Half of the file has come.
bool Yarida(QWidget& pencere) {
    return CubukDegeri(pencere) == 50;
}

bool Bosta(QWidget& pencere) {
    return KomutYazisi(pencere) == QStringLiteral("Yeniden Dene");
}

void KomutaBas(QWidget& pencere) {
    Tikla(pencere, "Command");
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
        const EkranAdi ekran = EkranAdi::FormResmiTatilYukle;
        int denemeler = 0;
        const std::function<void(QWidget&)> durdur = [&](QWidget& pencere) {
            QCOMPARE(KomutYazisi(pencere), QStringLiteral("Durdur"));
            KomutaBas(pencere);
            QVERIFY(Bosta(pencere));
            QCOMPARE(CubukDegeri(pencere), 0);
            QVERIFY(!firma.agac.Var(u"Tatiller.dat"));
            ++denemeler;
            const bool ikinci = denemeler == 2;
            QTimer::singleShot(50, &pencere, [&, ikinci] {
                if (ikinci)
                    return QTest::keyClick(&pencere, Qt::Key_Escape);
                Olunca(firma, ekran, Yarida, durdur);
                KomutaBas(pencere);
            });
        };
        Olunca(firma, ekran, Yarida, durdur);
        QElapsedTimer gecen;
        gecen.start();
        firma.program.FormResmiTatilYukle.GosterModal();
        QCOMPARE(denemeler, 2);
        QVERIFY2(gecen.elapsed() < 10'000, "it has waited for the server");
        QVERIFY(!firma.program.FormResmiTatilYukle.Yuklu());
        QCOMPARE(firma.yazilar, QStringList());
    }

    void esc_in_the_middle_of_a_second_try_closes_the_window_and_leaves_nothing() {
        SiteliFirma firma({HamYolla(""), YaridaSus()});
        firma.kutular.start(10);
        const EkranAdi ekran = EkranAdi::FormResmiTatilYukle;
        const auto hatadanSonra = [&](QWidget& pencere) {
            return !firma.yazilar.isEmpty() && Bosta(pencere);
        };
        Olunca(firma, ekran, hatadanSonra, [&](QWidget& bosta) {
            Olunca(firma, ekran, Yarida, [](QWidget& pencere) { QTest::keyClick(&pencere, Qt::Key_Escape); });
            KomutaBas(bosta);
            QVERIFY(!firma.program.FormResmiTatilYukle.Yuklu());
        });
        firma.program.FormResmiTatilYukle.GosterModal();
        QVERIFY(firma.disDunya.Pencere(ekran) == nullptr);
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
        QCOMPARE(firma.yazilar, (QStringList{QStringLiteral("Programın yeni sürümü başarıyla indirildi..."),
                                             QStringLiteral("Yedekleme işleminiz başarıyla tamamlandı!")}));
        QCOMPARE(firma.agac.Bayt(u"VeloraYeni.exe"), std::string("MZ yeni"));
        QVERIFY(firma.calisanlar == std::vector{firma.agac.Kok() / "Update.exe"});
        QCOMPARE(firma.site.IstekSatirlari(), std::vector<std::string>{"GET /update/Velora.exe HTTP/1.1"});
    }

    void the_x_while_the_backup_is_taken_leaves_no_window_and_the_updater_starts_behind_it() {
        SiteliFirma firma({Cevapla("MZ yeni")});
        firma.kutular.start(10);
        int adim = 0;
        firma.program.ortam.olaylar.adimda = [&] {
            firma.program.ortam.olaylar.isle();
            if (++adim == 2)
                firma.Surum().close();
            if (adim < 2)
                return;
            QVERIFY(firma.calisanlar.empty());
            for (const QWidget* pencere : QApplication::topLevelWidgets())
                QVERIFY2(!pencere->isVisible() || pencere == &firma.Pencere(),
                         qPrintable(pencere->windowTitle()));
        };
        firma.program.FormDownloadManager.GosterModal();
        QVERIFY(adim > 3);
        QVERIFY(firma.disDunya.Pencere(EkranAdi::FormDownloadManager) == nullptr);
        QVERIFY(firma.disDunya.Pencere(EkranAdi::FormYedekAl) == nullptr);
        QCOMPARE(firma.yazilar.size(), 2);
        QCOMPARE(firma.yazilar.back(), QStringLiteral("Yedekleme işleminiz başarıyla tamamlandı!"));
        QVERIFY(firma.calisanlar == std::vector{firma.agac.Kok() / "Update.exe"});
    }

    void the_x_of_a_new_version_that_stalls_ends_its_window_with_nothing_left() {
        SiteliFirma firma({YaridaSus()});
        firma.kutular.start(10);
        Olunca(firma, EkranAdi::FormDownloadManager, Yarida, [](QWidget& pencere) { pencere.close(); });
        firma.program.FormDownloadManager.GosterModal();
        QVERIFY(!firma.program.FormDownloadManager.Yuklu());
        QVERIFY(!firma.agac.Var(u"VeloraYeni.exe"));
        QVERIFY(firma.calisanlar.empty());
        QCOMPARE(firma.yazilar, QStringList());
    }
};

VELORA_GUI_TEST(IndirmePencereleriTest)
#include "IndirmePencereleriTest.moc"
