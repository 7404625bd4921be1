#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloTasimasi.h"

using namespace velora;
using namespace velora::test;

namespace {

QPoint GozYeri(GuiFirma& firma, SatirAdi satir, int gun) {
    return firma.Orta(firma.Tablo().Duzen().Hucre(satir, gun));
}

Metin Dosya(MetinBakis ad) {
    return Metin(kSalonA) + u"/2026/" + Metin(ad);
}

/// Moves the pointer with the left button down.
void Cek(GuiFirma& firma, QPoint yer) {
    QMouseEvent olay(QEvent::MouseMove, yer, firma.Tablo().mapToGlobal(yer), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&firma.Tablo(), &olay);
}

/// A drag comes over a place of a widget and is let go there; the toolkit looks for who takes it. False when
/// nobody does.
bool Birak(QWidget& alttaki, QPoint yer, const QMimeData& veri) {
    QDragEnterEvent giris(yer, Qt::MoveAction, &veri, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&alttaki, &giris);
    QDropEvent olay(yer, Qt::MoveAction, &veri, Qt::LeftButton, Qt::NoModifier);
    olay.ignore();
    QApplication::sendEvent(&alttaki, &olay);
    return olay.isAccepted();
}

/// The same with a cell of this table, over a place of it.
bool Birak(GuiFirma& firma, QPoint yer, const QMimeData& veri = *TabloTasimasi::SuruklemeVerisi()) {
    return Birak(firma.Tablo(), yer, veri);
}

/// Does something once, when a widget is painted for the next time.
class Cizince : public QObject {
  public:
    Cizince(QWidget& parca, std::function<void()> is) : is_(std::move(is)) { parca.installEventFilter(this); }
    bool Oldu() const { return is_ == nullptr; }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::Paint)
            if (const auto is = std::exchange(is_, nullptr))
                is();
        return QObject::eventFilter(nesne, olay);
    }

  private:
    std::function<void()> is_;
};

} // namespace

class TabloSuruklemeTest : public QObject {
    Q_OBJECT

  private slots:
    void a_dragged_reservation_dropped_on_a_free_cell_moves_its_files() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        const QPoint bas = GozYeri(firma, EylulGunduz, 10);
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, bas);
        QVERIFY(firma.Tablo().findChild<QDrag*>() == nullptr);
        Cek(firma, bas + QPoint(QApplication::startDragDistance() + 1, 0));
        QVERIFY(firma.Tablo().findChild<QDrag*>() != nullptr);
        const auto birak = [&] {
            QVERIFY(Birak(firma, GozYeri(firma, KasimGece, 20)));
            QVERIFY2(firma.Model().tasimamoducheck == 1, "no box while the toolkit is still in its drag");
            QTRY_COMPARE(firma.Model().tasimamoducheck, 0);
        };
        Pencerede(birak, {Mesaj(QStringLiteral("Seçili rezervasyonu taşımak istediğinizden emin misiniz?"),
                                QStringLiteral("Evet"))});
        QVERIFY(firma.agac.DosyaVar(Dosya(u"20.11.2026 - Gece")));
        QVERIFY(firma.agac.DosyaVar(Dosya(u"20.11.2026 - Gece-Detay")));
        QVERIFY(!firma.agac.DosyaVar(Dosya(u"10.09.2026 - Gündüz")));
        QCOMPARE(firma.Model().tasimamoducheck, 0);
    }

    void a_press_on_a_draggable_cell_raises_neither_press_nor_click_nor_double_click() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        firma.Model().AyAdi_Click(3);
        const QPoint yer = GozYeri(firma, EylulGunduz, 10);
        const auto tikla = [&] {
            for (const auto dugme : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
                QTest::mouseClick(&firma.Tablo(), dugme, {}, yer);
                QTest::mouseDClick(&firma.Tablo(), dugme, {}, yer);
            }
        };
        Pencerede(tikla, {});
        QCOMPARE(firma.Model().SeciliTarih2, Metin());
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"10.09.2026 - Gündüz"));
        QCOMPARE(firma.Model().HizliAy, 3);
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
    }

    void a_free_cell_starts_no_drag() {
        GuiFirma firma;
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        const QPoint bas = GozYeri(firma, EylulGunduz, 10);
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, bas);
        Cek(firma, bas + QPoint(50, 0));
        QVERIFY(firma.Tablo().findChild<QDrag*>() == nullptr);
    }

    void a_drop_on_the_panel_of_warnings_moves_nothing_to_the_days_under_it() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& panel = firma.Bul<QWidget>("Picture1");
        QVERIFY(panel.isVisible());
        firma.Model().TasimaModuAc_Click();
        firma.Model().Hucre_MouseMove(MayisGece, 23);
        const auto veri = TabloTasimasi::SuruklemeVerisi();
        auto& liste = *panel.findChild<QTreeWidget*>(QStringLiteral("Liste"));
        const auto birak = [&] {
            for (QWidget* yuzey : {&panel, liste.viewport()})
                QVERIFY(!Birak(*yuzey, yuzey->rect().center(), *veri));
            QCoreApplication::processEvents();
        };
        Pencerede(birak, {});
        QCOMPARE(firma.Model().tasimamoducheck, 1);
        QVERIFY(firma.agac.DosyaVar(Dosya(u"23.05.2026 - Gece")));
    }

    void a_drop_beside_the_cells_leaves_the_mode_open() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        QVERIFY(!Birak(firma, {20, 10}));
        QVERIFY(!Birak(firma, GozYeri(firma, SubatGunduz, 30)));
        QCOMPARE(firma.Model().tasimamoducheck, 1);
        QVERIFY(firma.Model().Gozu(EylulGunduz, 10).otomatikSurukleme);
    }

    void a_drop_on_a_taken_cell_is_refused_and_closes_the_mode() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Rezervasyon(kSalonA, u"11.09.2026 - Gece", true);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        const auto birak = [&] {
            QVERIFY(Birak(firma, GozYeri(firma, EylulGece, 11)));
            QTRY_COMPARE(firma.Model().tasimamoducheck, 0);
        };
        Pencerede(birak, {Mesaj(QStringLiteral(
                             "Bu tarihe taşıma yapamazsınız!\nBu tarihte zaten bir rezervasyon kayıtlı!"))});
    }

    void a_drop_waits_for_the_end_of_its_drag_also_when_events_run_inside_that() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        const QPoint bas = GozYeri(firma, EylulGunduz, 10);
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, bas);
        // The drag takes a picture of its cell: from there on it goes on.
        Cizince cizince(firma.Tablo(), [&] {
            QVERIFY(Birak(firma, GozYeri(firma, KasimGece, 20)));
            QCoreApplication::processEvents();
            QVERIFY2(firma.Model().tasimamoducheck == 1, "no box while the toolkit is still in its drag");
        });
        const auto birak = [&] {
            Cek(firma, bas + QPoint(QApplication::startDragDistance() + 1, 0));
            QTRY_COMPARE(firma.Model().tasimamoducheck, 0);
        };
        Pencerede(birak, {Mesaj(QStringLiteral("Seçili rezervasyonu taşımak istediğinizden emin misiniz?"),
                                QStringLiteral("Evet"))});
        QVERIFY(cizince.Oldu());
        QVERIFY(firma.agac.DosyaVar(Dosya(u"20.11.2026 - Gece")));
    }

    void a_cell_dragged_here_from_another_running_copy_is_no_drop() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        firma.Model().Hucre_MouseMove(EylulGunduz, 10);
        const auto bizim = TabloTasimasi::SuruklemeVerisi();
        QCOMPARE(bizim->formats().size(), 1);
        QMimeData baskasinin;
        baskasinin.setData(bizim->formats().front(),
                           QByteArray::number(QCoreApplication::applicationPid() + 1));
        const auto birak = [&] {
            QVERIFY(!Birak(firma, GozYeri(firma, KasimGece, 20), baskasinin));
            QCoreApplication::processEvents();
        };
        Pencerede(birak, {});
        QVERIFY(firma.agac.DosyaVar(Dosya(u"10.09.2026 - Gündüz")));
    }

    void what_another_program_drags_here_is_no_drop() {
        GuiFirma firma;
        firma.Ac();
        QMimeData veri;
        veri.setText(QStringLiteral("başka"));
        QVERIFY(!Birak(firma, GozYeri(firma, EylulGece, 11), veri));
    }
};

VELORA_GUI_TEST(TabloSuruklemeTest)
#include "TabloSuruklemeTest.moc"
