#include <semaphore>

#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include "gui/GuiProgram.h"
#include "qt/Isci.h"

using namespace velora;
using namespace velora::test;

class IsciTest : public QObject {
    Q_OBJECT

  private slots:
    void jobs_run_one_by_one_in_their_order_in_a_thread_of_their_own() {
        Isci isci;
        std::vector<int> yapilan; // by the jobs alone, until all are done
        std::vector<std::pair<int, bool>> gelen;
        QThread* const buIs = QThread::currentThread();
        bool ayri = true;
        for (int no = 1; no <= 5; ++no)
            isci.Ver(
                [&, no] {
                    QThread::msleep(static_cast<unsigned long>(20 / no));
                    ayri = ayri && QThread::currentThread() != buIs;
                    yapilan.push_back(no);
                    return no % 2 == 0;
                },
                [&, no](bool tamam) {
                    QVERIFY(QThread::currentThread() == buIs);
                    gelen.emplace_back(no, tamam);
                });
        QVERIFY2(gelen.empty(), "a result comes by the event loop");
        QTRY_COMPARE(gelen.size(), std::size_t{5});
        QVERIFY(ayri);
        QVERIFY((yapilan == std::vector<int>{1, 2, 3, 4, 5}));
        QVERIFY((gelen == std::vector<std::pair<int, bool>>{
                              {1, false}, {2, true}, {3, false}, {4, true}, {5, false}}));
    }

    void a_job_that_throws_has_failed_and_the_next_one_runs() {
        Isci isci;
        std::vector<bool> gelen;
        QTest::ignoreMessage(QtWarningMsg, "A handler ended early: full");
        isci.Ver([]() -> bool { throw std::runtime_error("full"); },
                 [&](bool tamam) { gelen.push_back(tamam); });
        isci.Ver([] { return true; }, [&](bool tamam) { gelen.push_back(tamam); });
        QTRY_COMPARE(gelen.size(), std::size_t{2});
        QVERIFY((gelen == std::vector<bool>{false, true}));
    }

    void all_jobs_are_waited_for_at_the_end() {
        int biten = 0;
        Isci isci;
        QVERIFY2(isci.Bekle(), "nothing to wait for");
        for (int no = 0; no < 3; ++no)
            isci.Ver(
                [&] {
                    QThread::msleep(30);
                    ++biten;
                    return true;
                },
                [](bool) {});
        QVERIFY(isci.Bekle());
        QCOMPARE(biten, 3);
    }

    void a_job_that_hangs_is_left_alone_with_those_behind_it() {
        struct Ortak {
            std::binary_semaphore birak{0};
            std::binary_semaphore bitti{0};
            bool sonraki = false;
        };
        const auto ortak = std::make_shared<Ortak>();
        const auto geldi = std::make_shared<bool>(false);
        QElapsedTimer sure;
        {
            Isci isci;
            isci.Ver(
                [ortak] {
                    ortak->birak.acquire();
                    ortak->bitti.release();
                    return true;
                },
                [geldi](bool) { *geldi = true; });
            isci.Ver([ortak] { return ortak->sonraki = true; }, [geldi](bool) { *geldi = true; });
            sure.start();
        }
        QVERIFY2(sure.elapsed() < 15000, "it waits for what never ends");
        ortak->birak.release();
        QVERIFY(ortak->bitti.try_acquire_for(std::chrono::seconds(5)));
        // Until the thread has let go of what it would have called, or that has been called.
        QTRY_COMPARE(geldi.use_count(), 1L);
        QVERIFY(!*geldi);
        QVERIFY(!ortak->sonraki);
    }
};

VELORA_GUI_TEST(IsciTest)
#include "IsciTest.moc"
