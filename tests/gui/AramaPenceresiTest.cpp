#include <algorithm>
#include <array>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormArama.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

/// The real window of the search, opened from the real table by its key.
class AramaPenceresiTest : public QObject {
    Q_OBJECT

    using Is = std::function<void(QWidget&)>;

    /// Presses F2 on the table; `is` runs while the search stands, which is then taken away.
    void Aramada(GuiFirma& firma, const Is& is) {
        firma.Ac();
        Uzerinde(firma, EkranAdi::FormArama, is, [&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F2); });
        firma.program.FormArama.Bosalt();
    }
    /// `ac` shows a screen over the others and waits for its end; `is` runs while it stands.
    void Uzerinde(GuiFirma& firma, EkranAdi ekran, const Is& is, const std::function<void()>& ac) {
        bool kosuldu = false;
        QTimer bekci;
        connect(&bekci, &QTimer::timeout, this, [&] {
            QWidget* pencere = firma.disDunya.Pencere(ekran);
            if (pencere == nullptr || QApplication::activeWindow() != pencere)
                return;
            bekci.stop();
            kosuldu = true;
            is(*pencere);
            if (firma.disDunya.Pencere(ekran) == pencere)
                pencere->hide();
        });
        bekci.start(1);
        ac();
        QVERIFY(kosuldu);
    }
    template <class Parca>
    static Parca& Bul(QWidget& pencere, const char* ad) {
        return *pencere.findChild<Parca*>(QString::fromLatin1(ad));
    }
    /// Types into the field that has the focus and presses Enter.
    static void YazVeAra(const QString& metin) {
        QTest::keyClicks(QApplication::focusWidget(), metin);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    static QStringList Satir(const QTreeWidget& liste, int sira) {
        QStringList metinler;
        for (int sutun = 0; sutun < liste.columnCount(); ++sutun)
            metinler << liste.topLevelItem(sira)->text(sutun);
        return metinler;
    }
    static QPoint SatirOrtasi(const QTreeWidget& liste, int sira) {
        return liste.visualItemRect(liste.topLevelItem(sira)).center();
    }
    static void Tikla(const QTreeWidget& liste, int sira) {
        QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, SatirOrtasi(liste, sira));
    }

  private slots:
    void the_menu_has_the_search_on_the_left_of_the_settings() {
        GuiFirma firma;
        firma.Ac();
        QStringList menuler;
        for (const QAction* menu : firma.Pencere().menuBar()->actions())
            menuler << menu->text();
        QVERIFY(menuler.indexOf(QStringLiteral("&Dosya")) >= 0);
        QVERIFY(menuler.indexOf(QStringLiteral("&Dosya")) < menuler.indexOf(QStringLiteral("&Ayarlar")));
        const auto& girdi = firma.Bul<QAction>("Arasss");
        QCOMPARE(girdi.text(), QStringLiteral("Kayıt Ara"));
        QCOMPARE(girdi.shortcut(), QKeySequence(Qt::Key_F2));
        QVERIFY(firma.Bul<QMenu>("Kayitss").actions().contains(&girdi));
    }

    void a_name_and_enter_bring_a_row_and_a_double_click_opens_its_record() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QWidget& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Kayıt Arama"));
            QVERIFY(Bul<QLineEdit>(pencere, "Text1").hasFocus());
            YazVeAra(QStringLiteral("VEL"));
            auto& liste = Bul<QTreeWidget>(pencere, "Liste");
            QCOMPARE(liste.topLevelItemCount(), 1);
            QCOMPARE(Satir(liste, 0), (QStringList{"10.09.2026 - Gece", QMetin(kSalonB), "Ali Veli",
                                                   QStringLiteral("Ayşe / Can"), "0212", "0532"}));
            Tikla(liste, 0);
            Uzerinde(
                firma, EkranAdi::FormKayit,
                [&](QWidget& kayit) {
                    QCOMPARE(Bul<QLineEdit>(kayit, "Kay1").text(), QStringLiteral("Ali Veli"));
                    QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"10.09.2026 - Gece"));
                    QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonB));
                    QTest::keyClick(&kayit, Qt::Key_Escape);
                },
                [&] { QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, SatirOrtasi(liste, 0)); });
        });
    }

    void enter_searches_from_any_field() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QWidget& pencere) {
            auto& liste = Bul<QTreeWidget>(pencere, "Liste");
            const std::array olcutler{u"ali", u"can", u"0212", u"0532", u"7"};
            for (int no = 1; no <= 5; ++no) {
                auto& alan = Bul<QLineEdit>(pencere, qPrintable(QStringLiteral("Text%1").arg(no)));
                alan.setFocus();
                YazVeAra(QString::fromUtf16(olcutler[static_cast<std::size_t>(no - 1)]));
                QCOMPARE(liste.topLevelItemCount(), no);
            }
        });
    }

    void a_search_without_an_answer_says_so_in_a_box() {
        GuiFirma firma;
        Aramada(firma, [&](QWidget&) {
            QString metin;
            QTimer::singleShot(0, this, [&] {
                if (auto* kutu = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    metin = kutu->text();
                    kutu->accept();
                }
            });
            YazVeAra(QStringLiteral("yok"));
            QCOMPARE(metin, QStringLiteral("Hiç kayıt bulunamadı!"));
        });
    }

    void a_click_on_the_marked_row_enables_the_button_again_after_a_record_closed() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QWidget& pencere) {
            YazVeAra(QStringLiteral("ali"));
            auto& liste = Bul<QTreeWidget>(pencere, "Liste");
            auto& detaylar = Bul<QPushButton>(pencere, "Command1");
            QVERIFY(!detaylar.isEnabled());
            Tikla(liste, 0);
            QVERIFY(detaylar.isEnabled());
            Uzerinde(
                firma, EkranAdi::FormKayit, [](QWidget& kayit) { QTest::keyClick(&kayit, Qt::Key_Escape); },
                [&] { detaylar.click(); });
            QVERIFY(!detaylar.isEnabled());
            QVERIFY(liste.topLevelItem(0)->isSelected());
            QTest::qWait(QApplication::doubleClickInterval() + 50); // not the second half of a double click
            Tikla(liste, 0);
            QVERIFY(detaylar.isEnabled());
        });
    }

    void the_keys_alone_go_from_a_name_to_the_record() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QWidget& pencere) {
            YazVeAra(QStringLiteral("ali"));
            auto& liste = Bul<QTreeWidget>(pencere, "Liste");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(liste.hasFocus());
            QVERIFY(!Bul<QPushButton>(pencere, "Command1").isEnabled());
            QTest::keyClick(&liste, Qt::Key_Down);
            QVERIFY(liste.topLevelItem(0)->isSelected());
            bool acildi = false;
            Uzerinde(
                firma, EkranAdi::FormKayit,
                [&](QWidget& kayit) {
                    acildi = true;
                    QTest::keyClick(&kayit, Qt::Key_Escape);
                },
                [&] { QTest::keyClick(&liste, Qt::Key_Return); });
            QVERIFY(acildi);
            QCOMPARE(pencere.focusWidget(), &liste);
            pencere.activateWindow();
            QTRY_VERIFY(liste.hasFocus());
            Bul<QLineEdit>(pencere, "Text1").setFocus();
            QVERIFY(Bul<QPushButton>(pencere, "Command3").isDefault());
        });
    }

    void escape_closes_and_the_next_search_is_empty() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QWidget& pencere) {
            YazVeAra(QStringLiteral("ali"));
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!firma.program.FormArama.Yuklu());
        });
        Aramada(firma, [&](QWidget& pencere) {
            QVERIFY(Bul<QLineEdit>(pencere, "Text1").text().isEmpty());
            QCOMPARE(Bul<QTreeWidget>(pencere, "Liste").topLevelItemCount(), 0);
        });
    }

    void every_field_has_its_caption_also_for_those_who_cannot_see_it() {
        GuiFirma firma;
        Aramada(firma, [&](QWidget& pencere) {
            const std::array alanlar{"Adı Soyadı", "Gelin / Damat", "Telefon", "Cep", "Sözleşme No"};
            for (std::size_t i = 0; i < alanlar.size(); ++i) {
                const auto& alan = *pencere.findChild<QLineEdit*>(QStringLiteral("Text%1").arg(i + 1));
                QCOMPARE(alan.accessibleName(), QString::fromUtf8(alanlar[i]));
                QVERIFY(std::ranges::any_of(pencere.findChildren<QLabel*>(), [&](const QLabel* etiket) {
                    return etiket->buddy() == &alan &&
                           etiket->text().remove(u'&') == QString::fromUtf8(alanlar[i]);
                }));
            }
            QVERIFY(!Bul<QWidget>(pencere, "Liste").accessibleName().isEmpty());
        });
    }
};

VELORA_GUI_TEST(AramaPenceresiTest)
#include "AramaPenceresiTest.moc"
