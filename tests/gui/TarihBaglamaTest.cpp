#include <memory>

#include <QApplication>
#include <QDateEdit>
#include <QLineEdit>
#include <QTest>

#include "gui/GuiProgram.h"
#include "qt/Baglayici.h"

using namespace velora;
using namespace velora::test;

namespace {

/// One date of a screen, and the window that shows it.
struct TarihSahnesi {
    TarihSahnesi() : kutu(&pencere), baglayici(tarih, &pencere), model(*tarih) {}

    std::shared_ptr<TarihSecici> tarih = std::make_shared<TarihSecici>();
    QWidget pencere;
    QDateEdit kutu;
    Baglayici baglayici;
    TarihSecici& model;
};

} // namespace

class TarihBaglamaTest : public QObject {
    Q_OBJECT

  private slots:
    void a_date_is_typed_to_its_end_while_timers_refresh_the_windows() {
        TarihSahnesi sahne;
        QDateEdit& kutu = sahne.kutu;
        sahne.model.deger = std::chrono::year(2026) / 6 / 21;
        sahne.model.Sinirla(std::chrono::year(2024) / 1 / 1, std::chrono::year(2027) / 12 / 31);
        sahne.baglayici.Bagla(kutu, sahne.model);
        sahne.pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&sahne.pencere));
        kutu.setFocus();
        kutu.setSelectedSection(QDateTimeEdit::DaySection);
        for (const char tus : {'1', '7', '0', '2', '2', '0', '2', '5'}) {
            QTest::keyClick(&kutu, tus);
            Baglayici::HepsiniTazele();
        }
        QCOMPARE(kutu.text(), QStringLiteral("17.02.2025"));
        QTest::keyClick(&kutu, Qt::Key_Tab);
        QVERIFY(sahne.model.deger == std::chrono::year(2025) / 2 / 17);
    }

    void digits_typed_into_a_date_that_was_clicked_take_the_place_of_the_part_under_the_pointer() {
        TarihSahnesi sahne;
        QDateEdit& kutu = sahne.kutu;
        sahne.model.deger = std::chrono::year(2026) / 6 / 21;
        sahne.baglayici.Bagla(kutu, sahne.model);
        kutu.resize(160, 30);
        sahne.pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&sahne.pencere));
        auto* satir = kutu.findChild<QLineEdit*>();
        const auto tikla = [&](const QString& onceki) {
            const int x = satir->fontMetrics().horizontalAdvance(onceki) + 6;
            QTest::mouseClick(satir, Qt::LeftButton, {}, {x, satir->height() / 2});
            QCoreApplication::processEvents();
        };
        tikla(QStringLiteral("21."));
        QTest::keyClicks(&kutu, QStringLiteral("112025"));
        QCOMPARE(kutu.text(), QStringLiteral("21.11.2025"));
        tikla(QString());
        QTest::keyClicks(&kutu, QStringLiteral("0308"));
        QTest::keyClick(&kutu, Qt::Key_Tab);
        QVERIFY(sahne.model.deger == std::chrono::year(2025) / 8 / 3);
    }

    void a_date_is_typed_from_its_day_also_when_shift_and_tab_lead_to_it() {
        TarihSahnesi sahne;
        QDateEdit& kutu = sahne.kutu;
        QLineEdit sonraki(&sahne.pencere);
        sahne.model.deger = std::chrono::year(2026) / 6 / 21;
        sahne.baglayici.Bagla(kutu, sahne.model);
        sahne.pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&sahne.pencere));
        sonraki.setFocus();
        QTest::keyClick(&sonraki, Qt::Key_Tab, Qt::ShiftModifier);
        QTRY_VERIFY(kutu.hasFocus());
        QCoreApplication::processEvents();
        QTest::keyClicks(&kutu, QStringLiteral("07022025"));
        QTest::keyClick(&kutu, Qt::Key_Return);
        QVERIFY(sahne.model.deger == std::chrono::year(2025) / 2 / 7);
    }

    void a_day_and_limits_that_the_screen_sets_are_shown_at_the_next_refresh() {
        TarihSahnesi sahne;
        QDateEdit& kutu = sahne.kutu;
        sahne.model.deger = std::chrono::year(2026) / 6 / 21;
        sahne.baglayici.Bagla(kutu, sahne.model);
        sahne.model.deger = std::chrono::year(2026) / 9 / 3;
        sahne.model.Sinirla(std::chrono::year(2026) / 2 / 1, std::chrono::year(2026) / 11 / 30);
        Baglayici::HepsiniTazele();
        QCOMPARE(kutu.date(), QDate(2026, 9, 3));
        QCOMPARE(kutu.minimumDate(), QDate(2026, 2, 1));
        QCOMPARE(kutu.maximumDate(), QDate(2026, 11, 30));
    }

    void a_date_field_takes_the_days_between_the_limits_of_its_model_and_no_others() {
        TarihSahnesi sahne;
        QDateEdit& kutu = sahne.kutu;
        TarihSecici& model = sahne.model;
        model.deger = Gun{std::chrono::year{2026}, std::chrono::month{5}, std::chrono::day{21}};
        sahne.baglayici.Bagla(kutu, model);
        kutu.setDate(QDate(2024, 2, 29));
        QCOMPARE(TarihMetni(model.deger), Metin(u"29.02.2024"));
        model.Sinirla(TarihCoz(u"01.01.2026").value(), TarihCoz(u"31.12.2026").value());
        Baglayici::HepsiniTazele();
        QCOMPARE(kutu.date(), QDate(2026, 1, 1));
        kutu.setDate(QDate(2027, 1, 1));
        QCOMPARE(TarihMetni(model.deger), Metin(u"31.12.2026"));
        kutu.setDate(QDate(2026, 3, 8));
        QCOMPARE(TarihMetni(model.deger), Metin(u"08.03.2026"));
        model.enKucuk.reset();
        model.enBuyuk.reset();
        Baglayici::HepsiniTazele();
        kutu.setDate(QDate(2030, 7, 1));
        QCOMPARE(TarihMetni(model.deger), Metin(u"01.07.2030"));
    }
};

VELORA_GUI_TEST(TarihBaglamaTest)
#include "TarihBaglamaTest.moc"
