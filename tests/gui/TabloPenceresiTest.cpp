#include <algorithm>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

/// Counts the runs of a list's click beside what it does.
void TiklamalariSay(AcilirListe& liste, int& sayi) {
    liste.tiklandi = [&sayi, asil = liste.tiklandi] {
        ++sayi;
        asil();
    };
}

/// Chooses an entry as a person does with the mouse: opens the list and clicks on the entry.
void FareyleSec(QComboBox& kutu, int sira) {
    QTest::mouseClick(&kutu, Qt::LeftButton);
    QTRY_VERIFY(kutu.view()->isVisible());
    const QModelIndex oge = kutu.model()->index(sira, 0);
    kutu.view()->scrollTo(oge);
    QTest::qWait(QApplication::doubleClickInterval() + 50); // the list takes an earlier release for its
                                                            // opening
    QTest::mouseClick(kutu.view()->viewport(), Qt::LeftButton, {}, kutu.view()->visualRect(oge).center());
}

QColor PencereRengi(GuiFirma& firma, SatirAdi satir, int gun) {
    const QRect yer = firma.Tablo().Duzen().Hucre(satir, gun);
    return firma.Tablo().grab().toImage().pixelColor(yer.x() + 1, yer.center().y());
}

} // namespace

class TabloPenceresiTest : public QObject {
    Q_OBJECT

  private slots:
    void the_window_shows_the_models_title_lists_and_the_clock() {
        GuiFirma firma;
        firma.Ac();
        QCOMPARE(firma.Pencere().windowTitle(), QMetin(firma.Model().baslik));
        QCOMPARE(firma.Bul<QComboBox>("Salon").count(), 2);
        QCOMPARE(firma.Bul<QComboBox>("Salon").currentText(), QMetin(kSalonA));
        QCOMPARE(firma.Bul<QComboBox>("Sene").count(), 21);
        QCOMPARE(firma.Bul<QComboBox>("Sene").currentText(), QStringLiteral("2026"));
        QCOMPARE(firma.Bul<QLabel>("Tarih").text(), QStringLiteral("21.05.2026"));
        QCOMPARE(firma.Bul<QLabel>("Saat").text(), QStringLiteral("10:30"));
    }

    void the_two_lists_have_their_captions_beside_them() {
        GuiFirma firma;
        firma.Ac();
        for (const auto& [ad, baslik] : {std::pair{"Salon", "Salon"}, {"Sene", "Çalışma Yılı"}}) {
            auto& kutu = firma.Bul<QComboBox>(ad);
            const auto etiketler = firma.Pencere().findChildren<QLabel*>();
            const auto etiket = std::ranges::find(etiketler, &kutu, &QLabel::buddy);
            QVERIFY(etiket != etiketler.end());
            QCOMPARE(Isaretsiz((*etiket)->text()), QString::fromUtf8(baslik));
            QVERIFY((*etiket)->isVisible());
            QVERIFY((*etiket)->geometry().right() < kutu.x());
        }
    }

    void every_control_has_a_name_for_those_who_cannot_see_it() {
        GuiFirma firma;
        firma.Ac();
        for (const char* ad : {"Salon", "Sene", "Picture4", "Image3"})
            QVERIFY2(!firma.Bul<QWidget>(ad).accessibleName().isEmpty(), ad);
    }

    void choosing_a_hall_with_the_mouse_runs_its_click_once_and_repaints() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        int sayi = 0;
        TiklamalariSay(firma.Model().Salon, sayi);
        QCOMPARE(PencereRengi(firma, EylulGunduz, 10), QColor(255, 255, 128));
        FareyleSec(firma.Bul<QComboBox>("Salon"), 1);
        QTRY_COMPARE(sayi, 1);
        QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonB));
        QCOMPARE(PencereRengi(firma, EylulGunduz, 10), QColor(255, 0, 0));
        QTest::qWait(50);
        QCOMPARE(sayi, 1);
    }

    void choosing_a_year_with_the_keys_runs_its_click_once_and_gives_the_focus_to_the_table() {
        GuiFirma firma;
        firma.Ac();
        int sayi = 0;
        TiklamalariSay(firma.Model().Sene, sayi);
        auto& sene = firma.Bul<QComboBox>("Sene");
        sene.setFocus();
        QTest::keyClick(&sene, Qt::Key_Down);
        QCOMPARE(sayi, 1);
        QCOMPARE(firma.Model().Sene.Metni(), Metin(u"2027"));
        QVERIFY(firma.agac.KlasorVar(Metin(kSalonA) + u"/2027"));
        QVERIFY(firma.Tablo().hasFocus());
        QVERIFY(!firma.Model().BuGun.gorunur);
    }

    void the_wheel_over_the_lists_changes_neither_hall_nor_year_at_the_start_nor_after_a_choice() {
        GuiFirma firma;
        firma.Ac();
        firma.Tablo().setFocus();
        auto& sene = firma.Bul<QComboBox>("Sene");
        TekeriCevir(firma.Bul<QComboBox>("Salon"));
        TekeriCevir(sene);
        QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonA));
        QCOMPARE(firma.Model().Sene.Metni(), Metin(u"2026"));
        sene.setFocus();
        QTest::keyClick(&sene, Qt::Key_Down);
        TekeriCevir(sene);
        QCOMPARE(firma.Model().Sene.Metni(), Metin(u"2027"));
        QVERIFY(!firma.agac.KlasorVar(Metin(kSalonA) + u"/2028"));
    }

    void a_quick_scan_shows_only_its_end() {
        GuiFirma firma;
        firma.Ac();
        FormTablo& tablo = firma.Model();
        const QRect yer = firma.Tablo().Duzen().Hucre(EylulGunduz, 10);
        const QPoint nokta = firma.Tablo().mapTo(&firma.Pencere(), QPoint(yer.x() + 1, yer.center().y()));
        const auto ekrandaki = [&] {
            return firma.Pencere().screen()->grabWindow(firma.Pencere().winId()).toImage().pixelColor(nokta);
        };
        QColor ortada;
        tablo.Salon.tiklandi = [&] {
            tablo.Gozu(9, GunduzGece::Gunduz, 10).zemin = 0x0000FF;
            firma.program.OlaylariIsle();
            ortada = ekrandaki();
            tablo.Gozu(9, GunduzGece::Gunduz, 10).zemin = 0xFF0000;
        };
        const QColor once = ekrandaki();
        QTest::keyClick(&firma.Bul<QComboBox>("Salon"), Qt::Key_Down);
        QCoreApplication::processEvents();
        QCOMPARE(ortada, once);
        QCOMPARE(ekrandaki(), QColor(0, 0, 255));
    }

    void clicks_on_a_month_head_and_a_day_head_start_the_ruler_and_a_click_on_a_cell_ends_it() {
        GuiFirma firma;
        firma.Ac();
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.AyBasligi(8)));
        QCOMPARE(firma.Model().HizliAy, 8);
        QVERIFY(!firma.Model().HizliSecim.gorunur);
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.GunBasligi(17)));
        QCOMPARE(firma.Model().HizliGun, 17);
        QVERIFY(firma.Model().HizliSecim.gorunur);
        const auto& saat = firma.Bul<QTimer>("CetvelTimer");
        QVERIFY(saat.isActive());
        QCOMPARE(saat.interval(), 300);
        QTRY_VERIFY_WITH_TIMEOUT(!firma.Model().HizliSecim.gorunur, 2000);
        QTRY_VERIFY_WITH_TIMEOUT(firma.Model().HizliSecim.gorunur, 2000);
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.Hucre(MartGece, 3)));
        QVERIFY(!firma.Model().HizliSecim.gorunur);
        QCOMPARE(firma.Model().HizliAy, 0);
        QVERIFY(!saat.isActive());
    }

    void a_press_that_is_let_go_elsewhere_is_no_click() {
        GuiFirma firma;
        firma.Ac();
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.GunBasligi(5)));
        QTest::mouseRelease(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.GunBasligi(6)));
        QCOMPARE(firma.Model().HizliGun, 0);
    }

    void a_hidden_cell_is_no_cell() {
        GuiFirma firma;
        firma.Ac();
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.GunBasligi(17)));
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {}, firma.Orta(duzen.Hucre(SubatGunduz, 30)));
        QCOMPARE(firma.Model().HizliGun, 17);
    }

    void moving_over_bare_ground_brings_todays_frame_back_and_over_a_cell_does_not() {
        GuiFirma firma;
        firma.Ac();
        firma.Model().BuGun.gorunur = false;
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        QTest::mouseMove(&firma.Tablo(), firma.Orta(duzen.Hucre(MartGece, 3)));
        QVERIFY(!firma.Model().BuGun.gorunur);
        QTest::mouseMove(&firma.Tablo(), {20, 10});
        QTRY_VERIFY(firma.Model().BuGun.gorunur);
    }

    void the_strip_beside_the_lists_and_the_status_bar_are_bare_ground_too() {
        GuiFirma firma;
        firma.Ac();
        QWindow* pencere = firma.Pencere().windowHandle();
        const auto git = [&](const QWidget& parca, QPoint nokta) {
            QTest::mouseMove(pencere, parca.mapTo(&firma.Pencere(), nokta));
            QCoreApplication::processEvents();
        };
        const auto getirir = [&](const QWidget& parca, QPoint nokta) {
            git(parca, nokta); // leaves the place before
            firma.Model().BuGun.gorunur = false;
            firma.Model().Ekran.gorunur = true;
            git(parca, nokta + QPoint(3, 1));
            return firma.Model().BuGun.gorunur && !firma.Model().Ekran.gorunur;
        };
        const auto& sene = firma.Bul<QComboBox>("Sene");
        const auto& durum = firma.Bul<QLabel>("Tarih");
        QVERIFY(getirir(*sene.parentWidget(), {sene.geometry().right() + 10, sene.geometry().center().y()}));
        QVERIFY(getirir(*durum.parentWidget(), {durum.x() - 200, durum.geometry().center().y()}));
        QVERIFY(getirir(durum, durum.rect().center()));
    }

    void the_whole_table_fits_on_a_small_screen() {
        GuiFirma firma;
        const QSize ekran = QGuiApplication::primaryScreen()->availableSize();
        QVERIFY2(ekran.width() < 1000, "the platform's screen is to be a small one");
        firma.program.FormTablo.Goster();
        QVERIFY(QTest::qWaitForWindowActive(&firma.Pencere()));
        QCoreApplication::processEvents();
        QVERIFY(firma.Pencere().width() <= ekran.width());
        QVERIFY(firma.Pencere().height() <= ekran.height());
        const QRect son = firma.Tablo().Mantiksal(firma.Tablo().Duzen().HucreCifti(12, 31));
        QVERIFY(firma.Tablo().rect().contains(son));
        QVERIFY(firma.Pencere().rect().contains(firma.Tablo().mapTo(&firma.Pencere(), son.bottomRight())));
    }

    void heads_show_a_hand_and_cells_an_arrow() {
        GuiFirma firma;
        firma.Ac();
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        QTest::mouseMove(&firma.Tablo(), firma.Orta(duzen.GunBasligi(5)));
        QTRY_COMPARE(firma.Tablo().cursor().shape(), Qt::PointingHandCursor);
        QTest::mouseMove(&firma.Tablo(), firma.Orta(duzen.Hucre(MartGece, 3)));
        QTRY_COMPARE(firma.Tablo().cursor().shape(), Qt::ArrowCursor);
    }

    void a_resize_lays_the_table_out_anew_and_leaves_colours_and_tags() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", true);
        firma.Ac();
        const double once = firma.Model().Gunler[31].yer.sol;
        const Metin tag = firma.Model().Gozu(9, GunduzGece::Gece, 10).tag;
        QVERIFY(!tag.empty());
        firma.Pencere().resize(1600, 900);
        QTRY_VERIFY(firma.Model().Gunler[31].yer.sol > once);
        QCOMPARE(firma.Model().Gozu(9, GunduzGece::Gece, 10).tag, tag);
        QCOMPARE(PencereRengi(firma, EylulGece, 10), QColor(0, 192, 0));
        const QRect son = firma.Tablo().Duzen().HucreCifti(12, 31);
        QVERIFY(firma.Tablo().width() - son.right() < 10);
    }

    void the_table_is_laid_out_and_shows_todays_frame_when_the_window_first_stands() {
        GuiFirma firma;
        firma.Ac();
        QVERIFY(firma.Model().Gunler[1].yer.genislik > 0);
        QVERIFY(firma.Model().BuGun.gorunur);
        QCOMPARE(firma.Model().Check1, 1);
    }

    void the_bell_is_seen_only_when_a_reminder_falls_on_today() {
        GuiFirma firma;
        firma.Ac();
        QVERIFY(!firma.Bul<QWidget>("Image3").isVisible());
        OrnekKayit kayit;
        kayit.hatirlat = u"21.05.2026";
        kayit.check19 = 1;
        firma.agac.KoyMetin(Metin(kSalonB) + u"/2026/05.06.2026 - Gece", AnaMetni(kayit));
        auto& salon = firma.Bul<QComboBox>("Salon");
        salon.setFocus();
        QTest::keyClick(&salon, Qt::Key_Down);
        QVERIFY(firma.Bul<QWidget>("Image3").isVisible());
        QCOMPARE(firma.Bul<QTimer>("OzelHatirlatTimer").interval(), 500);
    }

    void the_slow_clock_runs_from_the_start() {
        GuiFirma firma;
        firma.Ac();
        QVERIFY(firma.Bul<QTimer>("Saatsay").isActive());
        QCOMPARE(firma.Bul<QTimer>("Saatsay").interval(), 50'000);
        QVERIFY(!firma.Bul<QTimer>("GunTimer").isActive());
    }

    void it_can_not_be_closed_under_a_window_that_stands_over_it() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F2); }, {[&](QDialog& pencere) {
                      firma.Pencere().close(); // as the system does at its end
                      QCOMPARE(firma.bitisler, 0);
                      QVERIFY(pencere.isVisible());
                  }});
    }

    void the_panels_of_the_status_bar_follow_the_login_and_the_clock() {
        using namespace std::chrono_literals;
        GuiFirma firma;
        firma.simdi += 58s; // of a minute
        firma.Ac();
        auto& kullanici = firma.Bul<QLabel>("StatusBar1");
        QCOMPARE(kullanici.text(), QString());
        const int en = firma.Pencere().minimumSizeHint().width();
        firma.Model().StatusBar1 = u"Velora - Aktif Kullanıcı : " + Metin(300, u'ş');
        firma.simdi += 14h;
        QTRY_COMPARE_WITH_TIMEOUT(firma.Bul<QLabel>("Tarih").text(), QStringLiteral("22.05.2026"), 5000);
        QCOMPARE(firma.Bul<QLabel>("Saat").text(), QStringLiteral("00:30"));
        QVERIFY(kullanici.text().startsWith(QStringLiteral("Velora - Aktif Kullanıcı : şşş")));
        QCOMPARE(firma.Pencere().minimumSizeHint().width(), en); // a long name makes no window wider
    }

    void nothing_wakes_an_idle_table_up_before_the_clock_shows_another_minute() {
        using namespace std::chrono_literals;
        GuiFirma firma;
        firma.simdi += 5s;
        firma.Ac();
        QCOMPARE(firma.Model().GunTimer.aralik, 0);
        const auto saatler = firma.Pencere().findChildren<QTimer*>();
        QVERIFY(!saatler.isEmpty());
        for (const QTimer* saat : saatler)
            if (saat->isActive())
                QVERIFY2(saat->remainingTime() > 30'000, qPrintable(saat->objectName()));
        QVERIFY(firma.Bul<QTimer>("Dakika").remainingTime() <= 55'000);
    }

    void a_clock_that_went_on_while_the_machine_slept_is_right_when_the_program_is_looked_at_again() {
        using namespace std::chrono_literals;
        GuiFirma firma;
        firma.Ac();
        firma.simdi += 7h;
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QCOMPARE(firma.Bul<QLabel>("Saat").text(), QStringLiteral("17:30"));
    }

    void a_program_folder_without_any_file_opens_an_empty_table() {
        GuiFirma firma;
        std::filesystem::remove(firma.agac.Yol(u"Salon.dat"));
        firma.Ac();
        QCOMPARE(firma.Bul<QComboBox>("Salon").count(), 0);
        QCOMPARE(PencereRengi(firma, EylulGunduz, 10), QColor(255, 255, 128));
        QVERIFY(!firma.agac.KlasorVar(u"2026"));
    }

    /// The last one: no event loop runs behind it.
    void closing_the_window_asks_and_a_no_leaves_it_open() {
        GuiFirma firma;
        firma.Ac();
        const QString soru = QStringLiteral("Programdan çıkmak istediğinizden emin misiniz?");
        const auto kapat = [&] { firma.Pencere().close(); };
        for (const Is& hayir : {Mesaj(soru, QStringLiteral("Hayır")), TusBas(Qt::Key_Escape)}) {
            Pencerede(kapat, {hayir});
            QCOMPARE(firma.bitisler, 0);
            QVERIFY(firma.Pencere().isVisible());
            QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonA));
        }
        Pencerede(kapat, {Mesaj(soru, QStringLiteral("Evet"))});
        QCOMPARE(firma.bitisler, 1);
    }
};

VELORA_GUI_TEST(TabloPenceresiTest)
#include "TabloPenceresiTest.moc"
