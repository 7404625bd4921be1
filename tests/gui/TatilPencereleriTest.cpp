#include <QCheckBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "maintenance/FormResmiTatil.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr std::string_view kUcTatil = "\"23.04.2010\",\"\xC7ocuk\",\"Evet\",\"Genel\"\r\n"
                                      "\"05.06.2026\",\"Kurulu\xFE\",\"Hay\xFDr\",\"\xD6zel\"\r\n"
                                      "\"19.05.2010\",\"Gen\xE7lik\",\"Evet\",\"Genel\"\r\n";

struct TatilliFirma : GuiFirma {
    TatilliFirma() {
        agac.Koy(u"Tatiller.dll", kUcTatil);
        Ac();
    }
    Metin Ipucu(int ay, int gun) { return Model().Gozu(ay, GunduzGece::Gece, gun).ipucu; }
};

QTreeWidget& TatilListesi(const QWidget& pencere) {
    return Parcasi<QTreeWidget>(pencere, "Liste");
}

QStringList TatilAdlari(const QWidget& pencere) {
    QStringList adlar;
    for (int i = 0; i < TatilListesi(pencere).topLevelItemCount(); ++i)
        adlar << TatilListesi(pencere).topLevelItem(i)->text(1);
    return adlar;
}

void BasligaTikla(const QWidget& pencere, int sutun) {
    QHeaderView& baslik = *TatilListesi(pencere).header();
    const QPoint yer(baslik.sectionViewportPosition(sutun) + 20, baslik.height() / 2);
    QTest::mouseClick(baslik.viewport(), Qt::LeftButton, {}, yer);
}

const QString kKurulus = QStringLiteral("Kuruluş");
const QString kGenclik = QStringLiteral("Gençlik");
const QString kCocuk = QStringLiteral("Çocuk");

} // namespace

class TatilPencereleriTest : public QObject {
    Q_OBJECT

    static void Tatillerde(GuiFirma& firma, const Is& is) {
        Pencerede([&] { MenudenSec(firma, "ResTatilss"); }, {is});
    }

  private slots:
    void a_click_on_a_head_sorts_what_is_kept_and_shows_it_on_the_head() {
        TatilliFirma firma;
        Tatillerde(firma, [&](QDialog& pencere) {
            QCOMPARE(TatilAdlari(pencere), (QStringList{kCocuk, kKurulus, kGenclik}));
            BasligaTikla(pencere, 0);
            QCOMPARE(TatilAdlari(pencere), (QStringList{kKurulus, kGenclik, kCocuk}));
            QCOMPARE(TatilListesi(pencere).header()->sortIndicatorSection(), 0);
            QCOMPARE(TatilListesi(pencere).header()->sortIndicatorOrder(), Qt::AscendingOrder);
            BasligaTikla(pencere, 0);
            QCOMPARE(TatilListesi(pencere).header()->sortIndicatorOrder(), Qt::DescendingOrder);
            BasligaTikla(pencere, 0);
            QCOMPARE(TatilAdlari(pencere), (QStringList{kKurulus, kGenclik, kCocuk}));
            QCOMPARE(TatilListesi(pencere).header()->sortIndicatorSection(), 0);
            Tikla(pencere, "Command1");
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(firma.agac.Bayt(u"Tatiller.dll").substr(0, 12), std::string("\"05.06.2026\""));
    }

    void a_mark_follows_its_row_and_delete_removes_that_one_after_a_yes() {
        TatilliFirma firma;
        const QString soru = QStringLiteral("Seçili kaydı silmek istediğinizden emin misiniz?");
        Tatillerde(firma, [&](QDialog& pencere) {
            QVERIFY(!Parcasi<QPushButton>(pencere, "Command5").isEnabled());
            SatiraTikla(TatilListesi(pencere), 0);
            BasligaTikla(pencere, 0);
            QCOMPARE(TatilListesi(pencere).currentIndex().row(), 2);
            Pencerede([&] { Tikla(pencere, "Command5"); }, {Mesaj(soru, QStringLiteral("Hayır"))});
            QCOMPARE(TatilAdlari(pencere).size(), 3);
            Pencerede([&] { Tikla(pencere, "Command5"); }, {Mesaj(soru, QStringLiteral("Evet"))});
            QCOMPARE(TatilAdlari(pencere), (QStringList{kKurulus, kGenclik}));
            QVERIFY(!Parcasi<QPushButton>(pencere, "Command5").isEnabled());
            QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
            Tikla(pencere, "Command1");
        });
        QCOMPARE(firma.Ipucu(4, 23), Metin());
        QCOMPARE(firma.Ipucu(5, 19), Metin(u"Gençlik"));
    }

    void a_day_is_added_with_the_keyboard_and_painted_when_the_list_is_kept() {
        TatilliFirma firma;
        Tatillerde(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command4"); }, {[](QDialog& ekle) {
                          QCOMPARE(ekle.windowTitle(), QStringLiteral("Resmi Tatil Ekle"));
                          QCOMPARE(Parcasi<QDateEdit>(ekle, "DTPicker1").text(),
                                   QStringLiteral("01.01.2026"));
                          Pencerede([&] { QTest::keyClick(&ekle, Qt::Key_Return); },
                                    {Mesaj(QStringLiteral("Lütfen Açıklama yazınız"))});
                          QTRY_COMPARE(Odaktaki(), QStringLiteral("Text2"));
                          Yaz(QStringLiteral("Yılbaşı, \"gece\""));
                          Tusla(Qt::Key_Tab);
                          Tusla(Qt::Key_Space);
                          QVERIFY(Parcasi<QCheckBox>(ekle, "Check1").isChecked());
                          QTest::keyClick(&ekle, Qt::Key_Return);
                          QVERIFY(!ekle.isVisible());
                      }});
            QCOMPARE(SatirYazilari(TatilListesi(pencere), 3),
                     (QStringList{QStringLiteral("01.01.2026"), QStringLiteral("Yılbaşı. gece"),
                                  QStringLiteral("Evet"), QStringLiteral("Özel")}));
            Tikla(pencere, "Command1");
        });
        QCOMPARE(firma.Ipucu(1, 1), Metin(u"Yılbaşı. gece"));
        QVERIFY(firma.agac.Bayt(u"Tatiller.dll")
                    .ends_with("\"Y\xFDlba\xFE\xFD. gece\",\"Evet\",\"\xD6zel\"\r\n"));
    }

    void esc_and_the_x_drop_what_was_changed() {
        TatilliFirma firma;
        const Is vazgecmeler[]{TusBas(Qt::Key_Escape), [](QDialog& pencere) { pencere.close(); }};
        for (const Is& vazgec : vazgecmeler)
            Tatillerde(firma, [&](QDialog& pencere) {
                Tikla(pencere, "Temizle");
                QCOMPARE(TatilAdlari(pencere), QStringList{kKurulus});
                vazgec(pencere);
                QVERIFY(!pencere.isVisible());
            });
        QCOMPARE(firma.agac.Bayt(u"Tatiller.dll"), std::string(kUcTatil));
        QCOMPARE(firma.program.FormResmiTatil->Liste.satirlar.size(), std::size_t{3});
    }
};

VELORA_GUI_TEST(TatilPencereleriTest)
#include "TatilPencereleriTest.moc"
