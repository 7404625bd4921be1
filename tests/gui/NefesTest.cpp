#include <functional>
#include <utility>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/ListeSiralama.h"
#include "qt/Nefes.h"
#include "qt/OlayKilidi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr int kSabirsizlik = 350; // milliseconds: behind so many the next step draws breath

bool MesgulGorunur() {
    const QCursor* imlec = QGuiApplication::overrideCursor();
    return imlec != nullptr && imlec->shape() == Qt::WaitCursor;
}

/// Whether work draws breath in one of its steps, when events haven't come through for long before it.
bool NefesAlir(const std::function<void()>& is) {
    Nefes::Basla();
    QTest::qSleep(kSabirsizlik);
    is();
    const bool alindi = MesgulGorunur();
    Nefes::Bitir();
    return alindi;
}

/// Works on until a breath has been drawn, some seconds at most.
bool NefeseKadar() {
    QElapsedTimer sure;
    for (sure.start(); !MesgulGorunur() && !sure.hasExpired(10'000);)
        Nefes::Al();
    return MesgulGorunur();
}

class FareSayan : public QWidget {
  public:
    FareSayan() {
        setMouseTracking(true);
        resize(300, 200);
    }
    int gelen = 0;

  protected:
    void mouseMoveEvent(QMouseEvent* /*olay*/) override { ++gelen; }
};

/// A window that counts how often it is refreshed.
struct SayilanPencere {
    SayilanPencere() : baglayici(new Baglayici(ekran, pencere)) {
        baglayici->Izle([this] {
            ++tazelenen;
            if (arada)
                std::exchange(arada, {})();
        });
    }
    ~SayilanPencere() { delete pencere; }
    SayilanPencere(const SayilanPencere&) = delete;
    SayilanPencere& operator=(const SayilanPencere&) = delete;

    std::shared_ptr<Dugme> ekran = std::make_shared<Dugme>();
    QPointer<QWidget> pencere = new QWidget;
    QPointer<Baglayici> baglayici;
    std::function<void()> arada; // in the middle of the next refresh
    int tazelenen = 0;
};

/// So many rows in no order.
ListeGorunumu Karisik(int satir) {
    ListeGorunumu liste;
    liste.basliklar = {u"Ad"};
    for (int i = 0; i < satir; ++i)
        liste.satirlar.push_back({{MetinYap(QString::number(i * 7919 % 1009))}, {}, 0});
    return liste;
}

} // namespace

/// The sign of life of what takes long.
class NefesTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() { Nefes::Bitir(); }

    void the_pointer_says_busy_after_a_while_without_events_and_no_more_at_the_end() {
        QElapsedTimer sure;
        sure.start();
        Nefes::Basla();
        QVERIFY(NefeseKadar());
        QVERIFY2(sure.elapsed() >= 200, qPrintable(QString::number(sure.elapsed())));
        // Once however many are drawn.
        QTest::qSleep(kSabirsizlik);
        Nefes::Al();
        Nefes::Bitir();
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void events_that_came_through_begin_the_while_anew() {
        Nefes::Basla();
        QTest::qSleep(kSabirsizlik);
        QElapsedTimer sure;
        sure.start();
        Nefes::Basla();
        Nefes::Al();
        QVERIFY(!MesgulGorunur() || sure.elapsed() >= 200);
    }

    void nothing_is_drawn_where_nothing_runs_or_the_toolkit_is_in_the_middle_of_its_work() {
        QTest::qSleep(kSabirsizlik);
        Nefes::Al();
        QVERIFY(!MesgulGorunur());
        QVERIFY(!NefesAlir([] {
            const OlayKilidi kilit;
            Nefes::Al();
        }));
        QVERIFY(NefesAlir([] { Nefes::Al(); }));
    }

    void the_mouse_waits_for_the_end() {
        FareSayan pencere;
        pencere.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pencere));
        QCursor::setPos(pencere.mapToGlobal(QPoint(20, 20)));
        QTRY_VERIFY(pencere.gelen > 0);
        pencere.gelen = 0;
        QCursor::setPos(pencere.mapToGlobal(QPoint(60, 40)));
        QVERIFY(NefesAlir([] { Nefes::Al(); }));
        QCOMPARE(pencere.gelen, 0);
        QTRY_COMPARE(pencere.gelen, 1);
    }

    void no_timer_is_due_in_a_breath() {
        int tik = 0;
        QTimer saat;
        connect(&saat, &QTimer::timeout, &saat, [&tik] { ++tik; });
        saat.start(1);
        QVERIFY(NefesAlir([] { Nefes::Al(); }));
        QCOMPARE(tik, 0);
        QTRY_VERIFY(tik > 0);
    }

    void a_refresh_outside_of_a_handler_draws_breath_and_what_comes_in_it_runs_behind_it() {
        SayilanPencere uzun;
        QPushButton dugme;
        QStringList sira;
        uzun.baglayici->Bagla(dugme, *uzun.ekran, [&] { sira << QStringLiteral("basıldı"); });
        uzun.arada = [&] {
            Siraya(dugme, [&] { dugme.click(); });
            sira << (NefeseKadar() ? QStringLiteral("nefes") : QStringLiteral("nefessiz"));
        };
        Baglayici::HepsiniTazele();
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        QCOMPARE(sira, QStringList{"nefes"});
        QTRY_COMPARE(sira, (QStringList{"nefes", "basıldı"}));
        Nefes::Al(); // closed again
        QTest::qSleep(kSabirsizlik);
        Nefes::Al();
        QVERIFY(!MesgulGorunur());
    }

    void a_refresh_within_a_handler_leaves_its_breath_as_it_is() {
        SayilanPencere pencere;
        bool alinir = false;
        pencere.baglayici->Calistir([&] {
            QTest::qSleep(kSabirsizlik);
            Baglayici::HepsiniTazele(); // draws one itself
            alinir = NefeseKadar();
        });
        QVERIFY(alinir);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void a_window_that_was_dropped_is_refreshed_no_more_and_may_go_in_a_breath() {
        SayilanPencere onceki;
        SayilanPencere duran;
        SayilanPencere sonraki;
        // A window goes when the loop that it was dropped in is over.
        QEventLoop dongu;
        Siraya(dongu, [&] {
            Baglayici::Sil(*onceki.pencere);
            Baglayici::Sil(*sonraki.pencere);
            dongu.quit();
        });
        dongu.exec();
        onceki.tazelenen = duran.tazelenen = sonraki.tazelenen = 0;
        duran.arada = [] { QVERIFY(NefeseKadar()); };
        const QPointer<QWidget> giden = sonraki.pencere;
        Baglayici::HepsiniTazele();
        QVERIFY(giden == nullptr);
        QCOMPARE(onceki.tazelenen, 0);
        QCOMPARE(duran.tazelenen, 1);
        QCOMPARE(sonraki.tazelenen, 0);
    }

    void rows_by_the_hundred_thousand_draw_breath_while_they_are_sorted() {
        const ListeGorunumu cok = Karisik(1100);
        // Fewer rows than go by between two breaths, but more comparisons.
        const ListeGorunumu az = Karisik(1000);
        QVERIFY(NefesAlir([&] { GorunenSira(cok, 0, Qt::AscendingOrder); }));
        QVERIFY(NefesAlir([&] { GorunenSira(az, 0, Qt::DescendingOrder); }));
        QVERIFY(!NefesAlir([&] { GorunenSira(cok, -1, Qt::AscendingOrder); }));
    }

    void behind_a_second_a_block_wanders_in_the_status_bar_of_the_table() {
        GuiFirma firma;
        firma.Ac();
        auto& cubuk = firma.Bul<QWidget>("Mesgul");
        QVERIFY(!cubuk.isVisible());
        Nefes::Basla();
        QVERIFY(NefeseKadar());
        QVERIFY(!cubuk.isVisible()); // not for less
        QTest::qSleep(1050);
        Nefes::Al();
        QVERIFY(cubuk.isVisible());
        const QImage ilk = cubuk.grab().toImage();
        QTest::qSleep(150);
        Nefes::Al();
        QVERIFY(cubuk.grab().toImage() != ilk);
        Nefes::Bitir();
        QVERIFY(!cubuk.isVisible());
        // The next work begins anew.
        QVERIFY(NefesAlir([&] {
            Nefes::Al();
            QVERIFY(!cubuk.isVisible());
        }));
    }

    void measuring_a_page_draws_breath() {
        GuiFirma firma;
        QVERIFY(NefesAlir([&] { firma.program.ortam.kagit.olcer(u"Sözleşme", {}); }));
    }
};

VELORA_GUI_TEST(NefesTest)
#include "NefesTest.moc"
