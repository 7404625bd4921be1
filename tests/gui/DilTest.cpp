#include <QAction>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>

#include "gui/GuiProgram.h"

/// What the toolkit itself says, on a system of any language.
class DilTest : public QObject {
    Q_OBJECT

    static QStringList Girdiler(const QMenu& menu) {
        QStringList yazilar;
        for (const QAction* girdi : menu.actions())
            if (!girdi->isSeparator())
                yazilar << girdi->text().section(u'\t', 0, 0).remove(u'&').toLower();
        return yazilar;
    }

  private slots:
    void the_menus_of_the_fields_are_turkish() {
        QLineEdit satir;
        QPlainTextEdit metin;
        for (QMenu* menu : {satir.createStandardContextMenu(), metin.createStandardContextMenu()}) {
            const std::unique_ptr<QMenu> sahibi(menu);
            const QStringList girdiler = Girdiler(*menu);
            QVERIFY2(girdiler.contains(QStringLiteral("kopyala")), qPrintable(girdiler.join(u' ')));
            QVERIFY2(girdiler.contains(QStringLiteral("yapıştır")), qPrintable(girdiler.join(u' ')));
            QVERIFY2(!girdiler.contains(QStringLiteral("undo")), qPrintable(girdiler.join(u' ')));
        }
    }

    void the_calendar_is_turkish_and_begins_on_monday() {
        QDateEdit tarih(QDate(2026, 5, 21));
        tarih.setCalendarPopup(true);
        const QCalendarWidget* takvim = tarih.calendarWidget();
        QCOMPARE(takvim->locale().monthName(takvim->monthShown()), QStringLiteral("Mayıs"));
        QCOMPARE(takvim->firstDayOfWeek(), Qt::Monday);
    }
};

VELORA_GUI_TEST(DilTest)
#include "DilTest.moc"
