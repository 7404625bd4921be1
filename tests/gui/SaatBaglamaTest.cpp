#include <algorithm>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include "gui/GuiProgram.h"
#include "qt/Baglayici.h"

using namespace velora;
using namespace velora::test;

namespace {

/// A screen with a timer, and its window.
struct SaatSahnesi {
    struct Ekran {
        Zamanlayici saat;
    };

    void Bagla() { baglayici.Bagla(ekran->saat, QStringLiteral("Saat")); }
    /// A calm one, which counts its ticks.
    void SakinKur() {
        ekran->saat.sakin = true;
        ekran->saat.aralik = 5;
        ekran->saat.tik = [this] { ++sayi; };
        Bagla();
    }

    std::shared_ptr<Ekran> ekran = std::make_shared<Ekran>();
    QWidget pencere;
    int sayi = 0; // ticks
    Baglayici baglayici{ekran, &pencere};
};

} // namespace

/// Timers of screens, as the toolkit's timers run them.
class SaatBaglamaTest : public QObject {
    Q_OBJECT

  private slots:
    void a_timer_follows_the_interval_and_is_not_restarted_by_the_same_one() {
        SaatSahnesi sahne;
        sahne.Bagla();
        const auto* saat = sahne.pencere.findChild<QTimer*>(QStringLiteral("Saat"));
        QVERIFY(!saat->isActive());
        sahne.ekran->saat.aralik = 60'000;
        Baglayici::HepsiniTazele();
        QVERIFY(saat->isActive());
        const int kimlik = saat->timerId();
        Baglayici::HepsiniTazele();
        QCOMPARE(saat->timerId(), kimlik);
        sahne.ekran->saat.aralik = 0;
        Baglayici::HepsiniTazele();
        QVERIFY(!saat->isActive());
    }

    void a_timer_that_is_set_going_anew_begins_its_time_anew() {
        constexpr int kAralik = 400;
        SaatSahnesi sahne;
        QElapsedTimer gecen;
        qint64 tikta = 0;
        sahne.ekran->saat.Kur(kAralik);
        sahne.ekran->saat.tik = [&] {
            tikta = gecen.elapsed();
            ++sahne.sayi;
        };
        sahne.Bagla();
        QTest::qWait(3 * kAralik / 4);
        sahne.ekran->saat.Kur(kAralik);
        sahne.sayi = 0;
        gecen.start();
        Baglayici::HepsiniTazele();
        QTRY_VERIFY(sahne.sayi > 0);
        QVERIFY2(tikta > kAralik / 2, qPrintable(QString::number(tikta)));
    }

    void a_tick_runs_the_handler_and_can_stop_its_own_timer() {
        SaatSahnesi sahne;
        sahne.ekran->saat.aralik = 5;
        sahne.ekran->saat.tik = [&] {
            if (++sahne.sayi == 3)
                sahne.ekran->saat.aralik = 0;
        };
        sahne.Bagla();
        QTRY_COMPARE(sahne.sayi, 3);
        QTest::qWait(50);
        QCOMPARE(sahne.sayi, 3);
    }

    void a_calm_timer_is_due_only_when_no_handler_runs() {
        SaatSahnesi sahne;
        sahne.SakinKur();
        sahne.baglayici.Calistir([&] {
            QTest::qWait(60);
            QCOMPARE(sahne.sayi, 0);
        });
        QTRY_VERIFY(sahne.sayi > 0);
    }

    void a_tick_handler_that_lets_events_run_is_not_entered_again() {
        SaatSahnesi sahne;
        int derinlik = 0;
        int enDerin = 0;
        sahne.ekran->saat.aralik = 5;
        sahne.ekran->saat.tik = [&] {
            enDerin = std::max(enDerin, ++derinlik);
            ++sahne.sayi;
            QTest::qWait(30);
            --derinlik;
        };
        sahne.Bagla();
        QTRY_VERIFY(sahne.sayi >= 2);
        QCOMPARE(enDerin, 1);
    }

    void a_calm_timer_that_may_is_due_while_the_running_handler_waits_for_the_user() {
        SaatSahnesi sahne;
        sahne.ekran->saat.beklerken = true;
        sahne.SakinKur();
        sahne.baglayici.Calistir([&] {
            QTest::qWait(60);
            QCOMPARE(sahne.sayi, 0);
            const Baglayici::KullaniciBekleme bekleme;
            QTRY_VERIFY(sahne.sayi > 0);
        });
    }
};

VELORA_GUI_TEST(SaatBaglamaTest)
#include "SaatBaglamaTest.moc"
