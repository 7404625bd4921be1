#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QWindow>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "qt/table/TabloTasimasi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr MetinBakis kKaynak = u"10.09.2026 - Gündüz";
const QString kSoru = QStringLiteral("Seçili rezervasyonu taşımak istediğinizden emin misiniz?");

struct Yerinde {
    SatirAdi satir;
    int gun;
};
constexpr Yerinde kEylul10{EylulGunduz, 10};
constexpr Yerinde kEylul12{EylulGunduz, 12};

/// A firm with one reservation, in move mode.
struct TasimaFirmasi : GuiFirma {
    TasimaFirmasi() {
        Rezervasyon(kSalonA, kKaynak, false);
        Ac();
        Model().BuGun.gorunur = false;
        Model().TasimaModuAc_Click();
    }
    QPoint Yer(const Yerinde& goz) { return Orta(Tablo().Duzen().Hucre(goz.satir, goz.gun)); }
    bool Halkali(const Yerinde& goz) {
        const QPoint kose = Tablo().Duzen().Hucre(goz.satir, goz.gun).topLeft();
        return Tablo().grab().toImage().pixelColor(kose) == QColor(32, 33, 36);
    }
    bool DosyaVar(MetinBakis gun) const { return agac.DosyaVar(Metin(kSalonA) + u"/2026/" + Metin(gun)); }
    /// Through the window, as the mouse comes.
    QPoint PencereYeri(const Yerinde& goz) { return Tablo().mapTo(&Pencere(), Yer(goz)); }
    /// In two steps: a pointer that stands there already wouldn't move.
    void Git(const Yerinde& goz) {
        for (const int kay : {1, 0})
            QTest::mouseMove(Pencere().windowHandle(), PencereYeri(goz) + QPoint(kay, 0));
    }
    /// With the button down, at once: what the drag is made of lives until the next turn of the events.
    void Cek(const Yerinde& goz) {
        QMouseEvent olay(QEvent::MouseMove, Yer(goz), Tablo().mapToGlobal(Yer(goz)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Tablo(), &olay);
    }
    void Bas(const Yerinde& goz, Qt::MouseButton dugme = Qt::LeftButton) {
        QTest::mousePress(Pencere().windowHandle(), dugme, {}, PencereYeri(goz));
    }
    void Kaldir(const Yerinde& goz, Qt::MouseButton dugme = Qt::LeftButton) {
        QTest::mouseRelease(Pencere().windowHandle(), dugme, {}, PencereYeri(goz));
    }
    void KaynagaGit() {
        Git(kEylul10);
        QCOMPARE(Model().SeciliTarih, Metin(kKaynak));
        Tablo().setFocus();
    }
};

/// Says no, having looked at what is marked meanwhile.
Is HayirDerken(const std::function<void()>& bak) {
    return [=](QDialog& kutu) {
        bak();
        Mesaj(kSoru, QStringLiteral("Hayır"))(kutu);
    };
}

} // namespace

class TabloTasimasiTest : public QObject {
    Q_OBJECT

  private slots:
    void the_pointer_is_an_open_hand_over_cells_that_can_be_dragged_and_closed_while_one_is() {
        TasimaFirmasi firma;
        const auto imlec = [&] { return firma.Tablo().cursor().shape(); };
        firma.Git(kEylul12);
        QTRY_COMPARE(firma.Model().SeciliTarih, Metin(u"12.09.2026 - Gündüz"));
        QCOMPARE(imlec(), Qt::ArrowCursor);
        firma.KaynagaGit();
        QCOMPARE(imlec(), Qt::OpenHandCursor);
        firma.Bas(kEylul10);
        QCOMPARE(imlec(), Qt::ClosedHandCursor);
        firma.Kaldir(kEylul10);
        QCOMPARE(imlec(), Qt::OpenHandCursor);
        firma.Bas(kEylul10);
        firma.Cek(kEylul12);
        const auto* surukleme = firma.Tablo().findChild<QDrag*>();
        QVERIFY(surukleme != nullptr);
        QVERIFY(!surukleme->dragCursor(Qt::MoveAction).isNull());
        firma.Kaldir(kEylul12);
    }

    void the_hand_goes_with_the_mode_without_a_movement_of_the_mouse() {
        TasimaFirmasi firma;
        firma.KaynagaGit();
        QCOMPARE(firma.Tablo().cursor().shape(), Qt::OpenHandCursor);
        firma.Model().TasimaBitir();
        Baglayici::HepsiniTazele();
        QCOMPARE(firma.Tablo().cursor().shape(), Qt::ArrowCursor);
    }

    void the_cell_under_a_drag_is_ringed_and_in_the_question_the_source_too() {
        TasimaFirmasi firma;
        firma.KaynagaGit();
        firma.Bas(kEylul10);
        firma.Cek(kEylul12);
        const auto veri = TabloTasimasi::SuruklemeVerisi();
        QDragEnterEvent giris(firma.Yer(kEylul10), Qt::MoveAction, veri.get(), Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&firma.Tablo(), &giris);
        const auto gecir = [&](const Yerinde& goz) {
            QDragMoveEvent olay(firma.Yer(goz), Qt::MoveAction, veri.get(), Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&firma.Tablo(), &olay);
        };
        gecir({EkimGece, 5});
        QVERIFY(firma.Halkali({EkimGece, 5}));
        gecir(kEylul12);
        QVERIFY(!firma.Halkali({EkimGece, 5}));
        QVERIFY(firma.Halkali(kEylul12));
        QDragLeaveEvent cikis;
        QApplication::sendEvent(&firma.Tablo(), &cikis);
        QVERIFY(!firma.Halkali(kEylul12));
        QApplication::sendEvent(&firma.Tablo(), &giris);
        const auto birak = [&] {
            QDropEvent olay(firma.Yer(kEylul12), Qt::MoveAction, veri.get(), Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&firma.Tablo(), &olay);
            QTRY_COMPARE(firma.Model().tasimamoducheck, 0);
        };
        Pencerede(birak, {HayirDerken([&] { QVERIFY(firma.Halkali(kEylul10) && firma.Halkali(kEylul12)); })});
        QVERIFY(!firma.Halkali(kEylul10) && !firma.Halkali(kEylul12));
        firma.Kaldir(kEylul12);
    }

    void space_picks_up_and_drops_and_the_question_names_both_days_by_their_rings() {
        TasimaFirmasi firma;
        firma.KaynagaGit();
        Tusla(Qt::Key_Space);
        QVERIFY(firma.Halkali(kEylul10));
        Tusla(Qt::Key_Right);
        Tusla(Qt::Key_Right);
        QVERIFY(firma.Halkali(kEylul10) && firma.Halkali(kEylul12));
        QCOMPARE(firma.Model().SeciliTarih, Metin(kKaynak));
        const auto birak = [] { Tusla(Qt::Key_Space); };
        const auto evet = [&](QDialog& kutu) {
            QVERIFY(firma.Halkali(kEylul10) && firma.Halkali(kEylul12));
            Mesaj(kSoru, QStringLiteral("Evet"))(kutu);
        };
        Pencerede(birak, {evet});
        QVERIFY(firma.DosyaVar(u"12.09.2026 - Gündüz"));
        QVERIFY(!firma.DosyaVar(kKaynak));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"12.09.2026 - Gündüz"));
        QCOMPARE(firma.Model().tasimamoducheck, 0);
    }

    void esc_another_focus_and_a_press_of_the_mouse_let_go_of_what_space_picked_up() {
        TasimaFirmasi firma;
        const std::vector<std::function<void()>> birakmalar{
            [] { Tusla(Qt::Key_Escape); },
            [&] {
                firma.Bul<QWidget>("Sene").setFocus();
                firma.Tablo().setFocus();
            },
            [&] {
                firma.Bas(kEylul10);
                firma.Kaldir(kEylul10);
            },
        };
        for (const auto& birakma : birakmalar) {
            firma.KaynagaGit();
            Tusla(Qt::Key_Space);
            Tusla(Qt::Key_Right);
            QVERIFY(firma.Halkali({EylulGunduz, 11}));
            birakma();
            QVERIFY(!firma.Halkali({EylulGunduz, 11}));
            Tusla(Qt::Key_Left);
            QCOMPARE(firma.Model().SeciliTarih, Metin(u"09.09.2026 - Gündüz"));
        }
        QCOMPARE(firma.Model().tasimamoducheck, 1);
        QVERIFY(firma.DosyaVar(kKaynak));
    }

    void a_stray_hover_enter_and_the_menu_key_do_nothing_while_a_day_is_held() {
        TasimaFirmasi firma;
        firma.KaynagaGit();
        Tusla(Qt::Key_Space);
        Tusla(Qt::Key_Down);
        const auto tuslar = [&] {
            firma.Git({MartGece, 3});
            QCoreApplication::processEvents();
            for (const auto tus : {Qt::Key_Return, Qt::Key_Menu})
                Tusla(tus);
        };
        Pencerede(tuslar, {});
        QCOMPARE(firma.Model().SeciliTarih, Metin(kKaynak));
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
    }

    void space_picks_up_no_free_day_and_drops_nothing_once_the_mode_has_ended() {
        TasimaFirmasi firma;
        firma.KaynagaGit();
        Tusla(Qt::Key_Right);
        Tusla(Qt::Key_Space);
        Tusla(Qt::Key_Left);
        QCOMPARE(firma.Model().SeciliTarih, Metin(kKaynak));
        Tusla(Qt::Key_Space);
        Tusla(Qt::Key_Right);
        firma.Model().TasimaBitir();
        Pencerede([] { Tusla(Qt::Key_Space); }, {});
        QVERIFY(firma.DosyaVar(kKaynak));
    }

    void the_pressed_cell_is_ringed_while_its_menu_or_a_question_of_its_entry_is_open() {
        TasimaFirmasi firma;
        firma.Model().TasimaBitir();
        firma.Bas(kEylul10, Qt::RightButton);
        firma.Kaldir(kEylul10, Qt::RightButton);
        auto& menu = firma.Bul<QMenu>("Sagtus");
        QTRY_VERIFY(menu.isVisible());
        QVERIFY(firma.Halkali(kEylul10));
        const auto iptal = [&] {
            QTest::mouseClick(&menu, Qt::LeftButton, {},
                              menu.actionGeometry(&firma.Bul<QAction>("iptals")).center());
            QTest::qWait(20);
        };
        Pencerede(iptal, {[&](QDialog& kutu) {
                      QTest::qWait(20);
                      QVERIFY(firma.Halkali(kEylul10));
                      QTest::keyClick(&kutu, Qt::Key_Escape);
                  }});
        QVERIFY(!firma.Halkali(kEylul10));
        firma.Bas(kEylul12, Qt::RightButton);
        firma.Kaldir(kEylul12, Qt::RightButton);
        QVERIFY(firma.Halkali(kEylul12));
        menu.close();
        QTRY_VERIFY(!firma.Halkali(kEylul12));
    }

    void the_day_whose_record_is_open_is_ringed_behind_its_window() {
        TasimaFirmasi firma;
        firma.Model().TasimaBitir();
        const auto ac = [&] { QTest::mouseDClick(&firma.Tablo(), Qt::LeftButton, {}, firma.Yer(kEylul10)); };
        Pencerede(ac, {[&](QDialog&) { QVERIFY(firma.Halkali(kEylul10)); }});
        QVERIFY(!firma.Halkali(kEylul10));
    }
};

VELORA_GUI_TEST(TabloTasimasiTest)
#include "TabloTasimasiTest.moc"
