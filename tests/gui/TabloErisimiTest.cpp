#include <QAccessible>
#include <QTest>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloErisimi.h"
#include "qt/table/TabloGorunumu.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What was told of the focus, by names.
QStringList odaklar;

void OdagiDinle(QAccessibleEvent* olay) {
    if (olay->type() == QAccessible::Focus && olay->accessibleInterface() != nullptr)
        odaklar << olay->accessibleInterface()->text(QAccessible::Name);
}

QAccessibleInterface& OkunanTablo(GuiFirma& firma) {
    return *QAccessible::queryAccessibleInterface(&firma.Tablo());
}

QAccessibleInterface& OkunanGoz(GuiFirma& firma, int satir, int sutun) {
    return *OkunanTablo(firma).tableInterface()->cellAt(satir, sutun);
}

QString OkunanAd(const QAccessibleInterface& arayuz) {
    return arayuz.text(QAccessible::Name);
}

} // namespace

/// The year table as a screen reader meets it. Today is 21 May 2026.
class TabloErisimiTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { TabloOdaginiDinle(OdagiDinle); }
    void cleanupTestCase() { TabloOdaginiDinle({}); }
    void init() { odaklar.clear(); }

    void it_is_a_table_of_24_rows_and_31_columns_as_they_stand_on_the_screen() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Tatiller.dll", u"\"17.06.2026\",\"Kuruluş Günü\",\"Evet\"\r\n");
        firma.Rezervasyon(kSalonA, u"17.06.2026 - Gündüz", true);
        firma.Rezervasyon(kSalonA, u"18.06.2026 - Gece", false);
        firma.Ac();
        QCOMPARE(OkunanTablo(firma).role(), QAccessible::Table);
        QCOMPARE(OkunanAd(OkunanTablo(firma)), QStringLiteral("Yıl tablosu"));
        auto* tablo = OkunanTablo(firma).tableInterface();
        QVERIFY(tablo != nullptr);
        QCOMPARE(tablo->rowCount(), 24);
        QCOMPARE(tablo->columnCount(), 31);
        QVERIFY(tablo->cellAt(24, 0) == nullptr && tablo->cellAt(0, 31) == nullptr);
        // The evening stands on top.
        QCOMPARE(OkunanAd(OkunanGoz(firma, 10, 17)),
                 QStringLiteral("18 Haziran 2026 Perşembe, Gece, Kesin rezervasyon"));
        const QAccessibleInterface& on = OkunanGoz(firma, 11, 16);
        QCOMPARE(OkunanAd(on), QStringLiteral("17 Haziran 2026 Çarşamba, Gündüz, Ön rezervasyon"));
        QCOMPARE(on.text(QAccessible::Description), QStringLiteral("17.06.2026 Çarşamba - Gündüz"));
        QCOMPARE(on.text(QAccessible::Help), QStringLiteral("Kuruluş Günü"));
        QCOMPARE(on.role(), QAccessible::Cell);
        QVERIFY(!on.state().invisible);
        QVERIFY(OkunanGoz(firma, 2, 29).state().invisible);
    }

    void with_the_day_on_top_the_rows_change_places() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni(30, u"\"Gündüz / Gece\""));
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        firma.Ac();
        QCOMPARE(OkunanAd(OkunanGoz(firma, 10, 16)), QStringLiteral("17 Haziran 2026 Çarşamba, Gündüz, Boş"));
        QCOMPARE(OkunanTablo(firma).tableInterface()->rowDescription(11), QStringLiteral("HAZİRAN Gece"));
    }

    void each_child_knows_its_number_its_parent_and_its_place_and_each_cell_its_headers() {
        GuiFirma firma;
        firma.Ac();
        QAccessibleInterface& tablo = OkunanTablo(firma);
        for (const int no : {0, 30, 31, 371, 743, 744, 774, 775, 798})
            QCOMPARE(tablo.indexOfChild(tablo.child(no)), no);
        QAccessibleInterface& goz = OkunanGoz(firma, 11, 16);
        QCOMPARE(goz.parent(), &tablo);
        QCOMPARE(tablo.indexOfChild(&goz), 11 * 31 + 16);
        auto* hucre = goz.tableCellInterface();
        QVERIFY(hucre != nullptr);
        QCOMPARE(hucre->rowIndex(), 11);
        QCOMPARE(hucre->columnIndex(), 16);
        QCOMPARE(hucre->table(), &tablo);
        QCOMPARE(OkunanAd(*hucre->columnHeaderCells().value(0)), QStringLiteral("17"));
        QCOMPARE(OkunanAd(*hucre->rowHeaderCells().value(0)), QStringLiteral("HAZİRAN Gündüz"));
        QCOMPARE(hucre->columnHeaderCells().value(0)->role(), QAccessible::ColumnHeader);
        QCOMPARE(hucre->rowHeaderCells().value(0)->role(), QAccessible::RowHeader);
        QCOMPARE(tablo.tableInterface()->columnDescription(16), QStringLiteral("17"));
        const QPoint orta = goz.rect().center();
        const QPoint kayma =
            firma.Tablo().mapFromGlobal(orta) - firma.Orta(firma.Tablo().Duzen().Hucre(HaziranGunduz, 17));
        QVERIFY2(kayma.manhattanLength() <= 2, "a pixel by rounding");
        QCOMPARE(tablo.childAt(orta.x(), orta.y()), &goz);
    }

    void the_panel_of_warnings_stays_among_the_children() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto* panel = QAccessible::queryAccessibleInterface(&firma.Bul<QWidget>("Picture1"));
        QAccessibleInterface& tablo = OkunanTablo(firma);
        const int no = tablo.indexOfChild(panel);
        QVERIFY(no >= 799 && no < tablo.childCount());
        QCOMPARE(tablo.child(no), panel);
    }

    void the_focus_is_told_as_the_ring_moves_and_not_again_by_a_refresh() {
        GuiFirma firma;
        firma.Ac();
        QCoreApplication::processEvents();
        odaklar.clear();
        Tusla(Qt::Key_Right);
        Tusla(Qt::Key_Right);
        Baglayici::HepsiniTazele();
        QCOMPARE(odaklar, QStringList({QStringLiteral("21 Mayıs 2026 Perşembe, Gece, Boş"),
                                       QStringLiteral("22 Mayıs 2026 Cuma, Gece, Boş")}));
        QVERIFY(OkunanGoz(firma, 8, 21).state().focused);
        QVERIFY(!OkunanGoz(firma, 8, 20).state().focused);
        QCOMPARE(OkunanTablo(firma).focusChild(), &OkunanGoz(firma, 8, 21));
    }

    void a_table_that_gets_the_focus_back_tells_its_cell_behind_itself() {
        GuiFirma firma;
        firma.Ac();
        Tusla(Qt::Key_Right);
        firma.Bul<QWidget>("Sene").setFocus();
        odaklar.clear();
        firma.Tablo().setFocus();
        QCoreApplication::processEvents();
        QVERIFY(!odaklar.isEmpty());
        QCOMPARE(odaklar.back(), QStringLiteral("21 Mayıs 2026 Perşembe, Gece, Boş"));
    }

    void a_day_that_is_carried_by_keys_tells_where_it_is() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"21.05.2026 - Gece", false);
        firma.Ac();
        firma.Model().TasimaModuAc_Click();
        Tusla(Qt::Key_Right);
        Tusla(Qt::Key_Space);
        odaklar.clear();
        Tusla(Qt::Key_Down);
        QCOMPARE(odaklar, QStringList(QStringLiteral("21 Mayıs 2026 Perşembe, Gündüz, Boş")));
    }

    void cells_outlive_neither_their_window_nor_their_screen() {
        QAccessible::Id kimlik = 0;
        {
            GuiFirma firma;
            firma.Ac();
            kimlik = QAccessible::uniqueId(&OkunanGoz(firma, 11, 16));
            QVERIFY(QAccessible::accessibleInterface(kimlik) != nullptr);
        }
        QVERIFY(QAccessible::accessibleInterface(kimlik) == nullptr);
    }
};

VELORA_GUI_TEST(TabloErisimiTest)
#include "TabloErisimiTest.moc"
