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
};

VELORA_GUI_TEST(KabukTest)
#include "KabukTest.moc"
