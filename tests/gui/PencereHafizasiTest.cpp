#include <QApplication>
#include <QHeaderView>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include "gui/Diyaloglar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/PencereHafizasi.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

/// Sizes of windows from one start of the program to the next. Each test has a file of its own.
class PencereHafizasiTest : public QObject {
    Q_OBJECT

    /// A start of the program: `is` is done while the main window stands, then it is closed.
    void Oturum(const std::function<void(GuiFirma&)>& is) const {
        GuiFirma firma;
        firma.disDunya.HafizaVer(PencereHafizasi(dosya_));
        firma.gercektenBiter = true;
        firma.program.FormTablo.Goster();
        QVERIFY(QTest::qWaitForWindowActive(&firma.Pencere()));
        QCoreApplication::processEvents();
        is(firma);
        firma.hazirCevap = Cevap::Evet; // to the question whether it may end
        firma.Pencere().close();
        // The end of the program ends every loop until the next one of the program's own.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        QApplication::exec();
    }
    static void Ayarla(TabloPenceresi& pencere, const QRect& yer) {
        pencere.showNormal();
        pencere.setMinimumSize(100, 100);
        pencere.setGeometry(yer);
        QCoreApplication::processEvents();
    }
    static void Aramada(GuiFirma& firma, const Is& is) {
        Pencerede([&] { firma.program.FormArama.GosterModal(); }, {is});
    }
    void Yaz(const QByteArray& bayt) const {
        QFile dosya(dosya_);
        QVERIFY(dosya.open(QIODevice::WriteOnly));
        QCOMPARE(dosya.write(bayt), bayt.size());
    }

  private slots:
    void init() {
        klasor_ = std::make_unique<QTemporaryDir>();
        dosya_ = klasor_->filePath(QStringLiteral("ayar ğ/pencereler.ini"));
    }

    void the_program_starts_maximised_and_then_as_it_was_left() {
        const QRect yer(60, 70, 640, 580);
        Oturum([&](GuiFirma& firma) {
            QVERIFY(firma.Pencere().isMaximized());
            Ayarla(firma.Pencere(), yer);
        });
        Oturum([&](GuiFirma& firma) {
            QVERIFY(!firma.Pencere().isMaximized());
            QCOMPARE(firma.Pencere().pos(), QPoint(yer.topLeft()) - QPoint(2, 2)); // its frame
            QCOMPARE(firma.Pencere().height(), yer.height());
            firma.Pencere().showMaximized();
        });
        Oturum([](GuiFirma& firma) { QVERIFY(firma.Pencere().isMaximized()); });
    }

    void a_window_over_it_keeps_its_size_and_its_columns() {
        Oturum([](GuiFirma& firma) {
            Aramada(firma, [](QDialog& pencere) {
                pencere.resize(777, 444);
                Parcasi<QTreeWidget>(pencere, "Liste").header()->resizeSection(1, 133);
                Tusla(Qt::Key_Escape);
            });
        });
        Oturum([](GuiFirma& firma) {
            Aramada(firma, [](QDialog& pencere) {
                QCOMPARE(pencere.height(), 444);
                QCOMPARE(Parcasi<QTreeWidget>(pencere, "Liste").header()->sectionSize(1), 133);
            });
        });
    }

    void a_place_on_a_screen_that_is_gone_is_brought_inside() {
        Oturum([](GuiFirma& firma) { Ayarla(firma.Pencere(), {4000, 3000, 600, 500}); });
        Oturum([](GuiFirma& firma) {
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(
                firma.Pencere().frameGeometry().topLeft()));
        });
    }

    void a_damaged_file_is_as_good_as_none_data() {
        QTest::addColumn<QByteArray>("bayt");
        QTest::newRow("bytes") << QByteArray("\xFF\0\x01[[[=\n%zz\"", 12);
        QTest::newRow("numbers") << QByteArray("[FormTablo]\nyer=@Rect(9 9 -5 0)\nbuyuk=@Invalid()\n"
                                               "[FormArama]\nyer=@Rect(0 0 2000000000 2000000000)\n"
                                               "sutunlar-Liste=-7, 90000, x, 1, 999999999, 3\n");
        QTest::newRow("kinds") << QByteArray(
            "[FormTablo]\nyer=7\n[FormArama]\nyer=a\nsutunlar-Liste=@Rect(1)\n");
    }
    void a_damaged_file_is_as_good_as_none() {
        QFETCH(const QByteArray, bayt);
        dosya_ = klasor_->filePath(QStringLiteral("pencereler.ini"));
        Yaz(bayt);
        Oturum([](GuiFirma& firma) {
            Aramada(firma, [](QDialog& pencere) {
                const QSize ekran = QGuiApplication::primaryScreen()->size();
                QCOMPARE(pencere.size().boundedTo(ekran), pencere.size());
                QVERIFY(Parcasi<QTreeWidget>(pencere, "Liste").header()->length() < 4 * ekran.width());
            });
        });
    }

    void a_file_that_cannot_be_written_disturbs_nothing() {
        EngelKoy();
        Oturum([](GuiFirma& firma) { QVERIFY(firma.Pencere().isMaximized()); });
        Oturum([](GuiFirma& firma) { QVERIFY(firma.Pencere().isMaximized()); });
    }

    void the_file_lies_among_the_users_settings() {
        const QByteArray once = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", klasor_->path().toUtf8());
        const QString dosya = PencereHafizasi::KullaniciDosyasi();
        once.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", once);
        QVERIFY(dosya.startsWith(klasor_->path() + u'/'));
    }

    void without_a_file_nothing_is_remembered_and_nothing_maximised() {
        GuiFirma firma;
        firma.program.FormTablo.Goster();
        QVERIFY(!firma.Pencere().isMaximized());
    }

  private:
    /// A file stands where the folder should be.
    void EngelKoy() {
        const QString engel = klasor_->filePath(QStringLiteral("engel"));
        dosya_ = engel;
        Yaz("x");
        dosya_ = engel + QStringLiteral("/pencereler.ini");
    }

    std::unique_ptr<QTemporaryDir> klasor_;
    QString dosya_;
};

VELORA_GUI_TEST(PencereHafizasiTest)
#include "PencereHafizasiTest.moc"
