#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloPenceresi.h"
#include "storage/Tarih.h"

using namespace velora;
using namespace velora::test;

/// The real windows of the cash book, its expenses and the entry of one, opened by key and button.
class KasaPencereleriTest : public QObject {
    Q_OBJECT

    static Metin GiderYolu() { return Metin(kSalonA) + u"/2026/Gider.dat"; }

    /// F4 on the table; `is` is done on the cash book, which is then taken away.
    static void Kasada(GuiFirma& firma, const Is& is) {
        Pencerede([&] { QTest::keyClick(&firma.Pencere(), Qt::Key_F4); }, {is});
        firma.program.FormKasa.Bosalt();
    }
    /// A press on a button of a window that opens another, which is done with by `isler`.
    static void Basinca(QDialog& pencere, const char* dugme, const std::vector<Is>& isler) {
        Pencerede([&] { QTest::mouseClick(&Parcasi<QPushButton>(pencere, dugme), Qt::LeftButton); }, isler);
    }
    static void GiderlerKoy(const GuiFirma& firma) {
        firma.agac.Koy(GiderYolu(), "\"03.05.2026\",\"150\",\"Elektrik\"\r\n#2026-05-04#,\"90\",\"Su\"\r\n"
                                    "\"09.07.2026\",\"5000\",\"Kira\"\r\n");
    }
    static QString Yazi(QWidget& pencere, const char* ad) { return Parcasi<QLabel>(pencere, ad).text(); }
    static QRect PenceredeYeri(const QWidget& parca) {
        return {parca.mapTo(parca.window(), QPoint()), parca.size()};
    }
    /// The text that stands in the row of a label, next to it on its left.
    static QString SolundaYazan(QDialog& pencere, const char* ad) {
        const QRect yer = PenceredeYeri(Parcasi<QLabel>(pencere, ad));
        const QLabel* enYakin = nullptr;
        for (const auto* yazi : pencere.findChildren<QLabel*>())
            if (const QRect y = PenceredeYeri(*yazi);
                y.right() < yer.left() && y.contains(y.left(), yer.center().y()) && !yazi->text().isEmpty() &&
                (enYakin == nullptr || y.left() > PenceredeYeri(*enYakin).left()))
                enYakin = yazi;
        return enYakin == nullptr ? QString() : enYakin->text();
    }

  private slots:
    void F4_opens_the_cash_book_and_enter_lists_it_with_its_totals() {
        GuiFirma firma;
        GiderlerKoy(firma);
        firma.agac.Koy(Metin(kSalonA) + u"/2026/20.05.2026 - Gece-Odeme",
                       "\"02.05.2026\",\"1250.50\",\"7 - Ali\"\r\n");
        firma.Ac();
        Kasada(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Kasa Raporu"));
            QCOMPARE(Yazi(pencere, "GenelTop"), QStringLiteral(": 0"));
            QCOMPARE(Odaktaki(), QStringLiteral("Combo2"));
            QTest::keyClick(&Parcasi<QComboBox>(pencere, "Combo2"), Qt::Key_Return);
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            QCOMPARE(liste.topLevelItemCount(), 3);
            QCOMPARE(SatirYazilari(liste, 0),
                     (QStringList{QStringLiteral("02.05.2026"), QStringLiteral("1250.50"),
                                  QStringLiteral("Gelir"), QStringLiteral("7 - Ali")}));
            QVERIFY(liste.topLevelItem(0)->textAlignment(1) & Qt::AlignRight);
            QVERIFY(liste.hasFocus());
            QCOMPARE(Yazi(pencere, "Gelirler"), QStringLiteral(": 1.251 TL"));
            QCOMPARE(Yazi(pencere, "Giderler"), QStringLiteral(": 240 TL"));
            QCOMPARE(Yazi(pencere, "GenelTop"), QStringLiteral(": 1.011 TL"));
            QCOMPARE(Parcasi<QLabel>(pencere, "GenelTop").accessibleName(),
                     QStringLiteral("Genel Toplam: 1.011 TL"));
            QTest::mouseClick(&Parcasi<QPushButton>(pencere, "Command2"), Qt::LeftButton);
            QVERIFY(firma.acilanDosyalar == std::vector{firma.agac.Kok() / "Rapor.xls"});
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!firma.program.FormKasa.Yuklu());
        });
    }

    void an_expense_is_typed_in_and_stands_in_the_file_and_the_list() {
        GuiFirma firma;
        firma.agac.KlasorKoy(Metin(kSalonA) + u"/2026");
        firma.Ac();
        Kasada(firma, [&](QDialog& kasa) {
            Basinca(kasa, "Command6", {[&](QDialog& pencere) {
                        QCOMPARE(pencere.windowTitle(), QStringLiteral("Gider Ekle"));
                        QCOMPARE(Odaktaki(), QStringLiteral("Tutar"));
                        QCOMPARE(Yazi(pencere, "Ornek"),
                                 QStringLiteral("(Örn : Piyanist, Elektrik, Su Faturası)"));
                        QVERIFY(!Parcasi<QPushButton>(pencere, "Command1").isEnabled());
                        AlanaYaz(pencere, "Tutar", QStringLiteral("1a50"));
                        QVERIFY(Parcasi<QPushButton>(pencere, "Command1").isEnabled());
                        AlanaYaz(pencere, "Aciklama", QStringLiteral("Işık"));
                        Tusla(Qt::Key_Return);
                        QVERIFY(!firma.program.FormKasaEkle.Yuklu());
                    }});
            QCOMPARE(firma.agac.Bayt(GiderYolu()), std::string("#2026-05-21#,\"150\",\"I\xFE\xFDk\"\r\n"));
            QCOMPARE(Parcasi<QTreeWidget>(kasa, "Liste").topLevelItemCount(), 1);
        });
    }

    void each_date_and_each_total_of_the_cash_book_has_its_own_name_and_value() {
        GuiFirma firma;
        firma.Ac();
        Kasada(firma, [&](QDialog& pencere) {
            const auto model = firma.program.FormKasa.Tut();
            const auto tarih = [&](const char* ad) { return Parcasi<QDateEdit>(pencere, ad).text(); };
            QCOMPARE(tarih("DTPicker1"), QStringLiteral("01.05.2026"));
            QCOMPARE(tarih("DTPicker2"), QStringLiteral("31.05.2026"));
            for (const auto& [ad, gun] : {std::pair{"DTPicker1", 3}, std::pair{"DTPicker2", 28}})
                Parcasi<QDateEdit>(pencere, ad).setDate(QDate(2025, 4, gun));
            QVERIFY(TarihMetni(model->DTPicker1.deger) == u"03.04.2025");
            QVERIFY(TarihMetni(model->DTPicker2.deger) == u"28.04.2025");
            for (const auto& [ad, baslik] :
                 {std::pair{"Gelirler", u"Gelir Toplam"}, std::pair{"Giderler", u"Gider Toplam"},
                  std::pair{"GenelTop", u"Genel Toplam"}})
                QCOMPARE(SolundaYazan(pencere, ad), QString::fromUtf16(baslik));
        });
    }

    void an_amount_has_its_currency_behind_it() {
        GuiFirma firma;
        firma.Ac();
        Kasada(firma, [&](QDialog& kasa) {
            Basinca(kasa, "Command6", {[](QDialog& pencere) {
                        const QRect tutar = PenceredeYeri(Parcasi<QLineEdit>(pencere, "Tutar"));
                        QStringList arkasinda;
                        for (const auto* yazi : pencere.findChildren<QLabel*>())
                            if (const QRect yer = PenceredeYeri(*yazi);
                                yer.left() >= tutar.right() && yer.contains(yer.left(), tutar.center().y()))
                                arkasinda << yazi->text();
                        QCOMPARE(arkasinda, QStringList{QStringLiteral("TL")});
                    }});
        });
    }

    void save_and_add_of_the_expenses_do_their_own_work_by_a_click() {
        GuiFirma firma;
        GiderlerKoy(firma);
        firma.Ac();
        Kasada(firma, [&](QDialog& kasa) {
            Basinca(kasa, "Command3", {[&](QDialog& pencere) {
                        Tikla(pencere, "Kaydet");
                        QCOMPARE(firma.agac.Bayt(GiderYolu()),
                                 std::string("\"03.05.2026\",\"150\",\"Elektrik\"\r\n\"04.05.2026\",\"90\","
                                             "\"Su\"\r\n\"09.07.2026\",\"5000\",\"Kira\"\r\n"));
                        Basinca(pencere, "Command3", {[](QDialog& ekle) {
                                    QCOMPARE(ekle.windowTitle(), QStringLiteral("Gider Ekle"));
                                    AlanaYaz(ekle, "Tutar", QStringLiteral("7"));
                                    AlanaYaz(ekle, "Aciklama", QStringLiteral("Tuz"));
                                    Tikla(ekle, "Command1");
                                }});
                        QCOMPARE(Yazi(pencere, "Giderler"), QStringLiteral(": 5.247 TL"));
                    }});
        });
    }

    void without_a_description_the_focus_goes_there() {
        GuiFirma firma;
        firma.Ac();
        Kasada(firma, [&](QDialog& kasa) {
            Basinca(kasa, "Command6", {[&](QDialog& pencere) {
                        AlanaYaz(pencere, "Tutar", QStringLiteral("150"));
                        Pencerede([&] { Tusla(Qt::Key_Return); },
                                  {Mesaj(QStringLiteral("Lüften açıklama giriniz!"))});
                        QCOMPARE(Odaktaki(), QStringLiteral("Aciklama"));
                        QTest::keyClick(&pencere, Qt::Key_Escape);
                        QVERIFY(!firma.program.FormKasaEkle.Yuklu());
                    }});
            QVERIFY(!firma.agac.Var(GiderYolu()));
        });
    }

    void an_expense_is_marked_and_deleted_after_a_question() {
        GuiFirma firma;
        GiderlerKoy(firma);
        firma.Ac();
        Kasada(firma, [&](QDialog& kasa) {
            Basinca(kasa, "Command3", {[&](QDialog& pencere) {
                        QCOMPARE(pencere.windowTitle(), QStringLiteral("Gider Listesi"));
                        QCOMPARE(Yazi(pencere, "Label4"), QStringLiteral("2026 Yılı"));
                        QCOMPARE(Yazi(pencere, "Giderler"), QStringLiteral(": 5.240 TL"));
                        auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
                        auto& sil = Parcasi<QPushButton>(pencere, "Command4");
                        QVERIFY(!sil.isEnabled());
                        SatiraTikla(liste, 1);
                        QVERIFY(sil.isEnabled());
                        Basinca(pencere, "Command4",
                                {Mesaj(QStringLiteral("Gider kaydını silmek istediğinizden emin misiniz?"),
                                       QStringLiteral("Evet"))});
                        QCOMPARE(liste.topLevelItemCount(), 2);
                        QVERIFY(!sil.isEnabled());
                        QVERIFY(liste.hasFocus());
                    }});
            QCOMPARE(Yazi(kasa, "Giderler"), QStringLiteral(": 150 TL"));
        });
        QCOMPARE(firma.agac.Bayt(GiderYolu()),
                 std::string("\"03.05.2026\",\"150\",\"Elektrik\"\r\n\"09.07.2026\",\"5000\",\"Kira\"\r\n"));
    }

    void a_long_name_of_a_hall_does_not_widen_the_cash_book() {
        GuiFirma firma;
        firma.Ac();
        firma.Model().Salon.ogeler.emplace_back(150, u'W');
        firma.Model().Salon.secili = static_cast<int>(firma.Model().Salon.ogeler.size()) - 1;
        Kasada(firma, [&](QDialog& pencere) {
            const int once = pencere.minimumSizeHint().width();
            firma.program.FormKasa->ListeleGun1();
            Baglayici::HepsiniTazele();
            QVERIFY(Yazi(pencere, "Ozet").contains(QStringLiteral("WWW")));
            QCOMPARE(pencere.minimumSizeHint().width(), once);
        });
    }

    void the_year_is_shown_alone_and_another_one_is_listed_at_once() {
        GuiFirma firma;
        GiderlerKoy(firma);
        firma.agac.Koy(Metin(kSalonA) + u"/2025/Gider.dat", "\"03.05.2025\",\"8\",\"Su\"\r\n");
        firma.Ac();
        Kasada(firma, [&](QDialog& kasa) {
            Basinca(kasa, "Command3", {[&](QDialog& pencere) {
                        auto& yil = Parcasi<QDateEdit>(pencere, "DTPicker3");
                        QCOMPARE(yil.text(), QStringLiteral("2026"));
                        yil.setFocus();
                        QTest::keyClick(&yil, Qt::Key_Down);
                        QCOMPARE(Yazi(pencere, "Label4"), QStringLiteral("2025 Yılı"));
                        QCOMPARE(Yazi(pencere, "Giderler"), QStringLiteral(": 8 TL"));
                        QCOMPARE(Parcasi<QDateEdit>(pencere, "DTPicker1").text(),
                                 QStringLiteral("01.01.2025"));
                        QTest::keyClick(&pencere, Qt::Key_Escape);
                        QVERIFY(!firma.program.FormGiderler.Yuklu());
                        QVERIFY(firma.program.FormKasa.Yuklu());
                    }});
        });
    }
};

VELORA_GUI_TEST(KasaPencereleriTest)
#include "KasaPencereleriTest.moc"
