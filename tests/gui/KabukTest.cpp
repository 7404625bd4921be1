#include <QDesktopServices>
#include <QDir>
#include <QTest>
#include <QUrl>

#include "destek/GeciciAgac.h"
#include "gui/GuiProgram.h"
#include "qt/Kabuk.h"

using namespace velora;
using namespace velora::test;

/// Stands in for the desktop's opener.
class AcilanAdresler : public QObject {
    Q_OBJECT

  public:
    AcilanAdresler() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Ac"); }
    ~AcilanAdresler() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList adlar;
    QStringList klasorler; ///< in which the opener was started

  public slots:
    void Ac(const QUrl& adres) {
        adlar << adres.fileName();
        klasorler << QDir::currentPath();
    }
};

/// How a file goes to the user's own programs.
class KabukTest : public QObject {
    Q_OBJECT

  private slots:
    void a_file_that_is_missing_counts_as_not_opened_though_the_opener_starts() {
        const GeciciAgac agac;
        agac.Koy(u"var.txt", "x");
        const AcilanAdresler acilan;
        QVERIFY(DosyaAc(agac.Yol(u"var.txt")));
        QVERIFY(!DosyaAc(agac.Yol(u"yok.txt")));
        QCOMPARE(acilan.adlar, (QStringList{QStringLiteral("var.txt"), QStringLiteral("yok.txt")}));
    }

    void a_file_is_opened_from_its_own_folder_and_the_program_stays_in_its_own() {
        const GeciciAgac agac;
        agac.Koy(u"var.txt", "x");
        const QString once = QDir::currentPath();
        const AcilanAdresler acilan;
        DosyaAc(agac.Yol(u"var.txt"));
        DosyaAc(agac.Yol(u"yok/var.txt"));
        const QString kok = QString::fromStdU16String(agac.Kok().u16string());
        QCOMPARE(acilan.klasorler, (QStringList{kok, once}));
        QCOMPARE(QDir::currentPath(), once);
    }

    void a_program_starts_in_its_own_folder_and_is_not_waited_for() {
        if (std::filesystem::path::preferred_separator == '\\')
            QSKIP("Windows starts no scripts.");
        const GeciciAgac agac;
        // It ends when it is told to, or by itself some time.
        agac.Koy(u"Update.exe", "#!/bin/sh\npwd >yer.txt.x\nmv yer.txt.x yer.txt\nn=0\n"
                                "while [ ! -e son ] && [ $n -lt 200 ]; do sleep 0.1; n=$((n + 1)); done\n"
                                "echo >bitti.txt\n");
        agac.Koy(u"metin.exe", "MZ is no program here\n");
        QVERIFY2(!ProgramCalistir(agac.Yol(u"Update.exe")), "nobody may run it");
        std::filesystem::permissions(agac.Yol(u"Update.exe"), std::filesystem::perms::owner_all);
        std::filesystem::permissions(agac.Yol(u"metin.exe"), std::filesystem::perms::owner_all);
        QVERIFY(!ProgramCalistir(agac.Yol(u"metin.exe")));
        QVERIFY(!ProgramCalistir(agac.Yol(u"yok.exe")));
        QVERIFY(ProgramCalistir(agac.Yol(u"Update.exe")));
        QVERIFY2(!agac.DosyaVar(u"bitti.txt"), "it was waited for");
        QTRY_VERIFY(agac.DosyaVar(u"yer.txt"));
        agac.Koy(u"son", "");
        QTRY_VERIFY(agac.DosyaVar(u"bitti.txt"));
        QCOMPARE(agac.Bayt(u"yer.txt"), agac.Kok().string() + "\n");
    }
};

VELORA_GUI_TEST(KabukTest)
#include "KabukTest.moc"
