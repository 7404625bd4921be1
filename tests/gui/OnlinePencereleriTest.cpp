#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "access/Splash.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "online/FormFirma.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr std::string_view kProfil =
    "\"G\xFCl\",\"Ay\xFE"
    "e\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\",\"\xC7"
    "ay Sk.\",\"TEKIRDAG\",\"Ergene\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n";

/// A firm with its profile, and a place of the service that answers when the test lets it.
struct OnlineFirma : GuiFirma {
    OnlineFirma() {
        agac.Koy(u"Firma.dll", kProfil);
        agac.Koy(u"Adresler.dat", "\"http://servis.test\",\"\",\"\",\"\"\r\n");
        program.ortam.ag.donanimAdresi = [] { return DonanimAdresi{0xA0, 1, 2, 3, 4, 5}; };
        program.ortam.ag.getir = [this](const AgIstegi& istek) {
            istekler.push_back(istek.adres);
            // Waits as the real one does.
            for (int i = 0; i < 3 && !istek.vazgecildi(); ++i) {
                if (beklerken)
                    beklerken();
                program.OlaylariIsle();
            }
            return Metin();
        };
    }

    std::vector<Metin> istekler;
    std::function<void()> beklerken;
};

void Profilde(OnlineFirma& firma, const Is& is) {
    Pencerede([&] { MenudenSec(firma, "FirmaBilgiss"); }, {is});
}

/// Types over what stands in the field of an editable list.
void ListeyeYaz(const QWidget& pencere, const char* ad, Qt::Key ilk, const QString& devam) {
    auto& liste = Parcasi<QComboBox>(pencere, ad);
    liste.setFocus();
    liste.lineEdit()->selectAll();
    QTest::keyClick(&liste, ilk);
    QTest::keyClicks(&liste, devam);
}

QString Secili(const QWidget& pencere, const char* ad) {
    return Parcasi<QComboBox>(pencere, ad).currentText();
}

QStringList Secenekler(const QWidget& pencere, const char* ad) {
    const auto& liste = Parcasi<QComboBox>(pencere, ad);
    QStringList secenekler;
    for (int i = 0; i < liste.count(); ++i)
        secenekler << liste.itemText(i);
    return secenekler;
}

} // namespace

/// The windows of what the firm exchanges with the service.
class OnlinePencereleriTest : public QObject {
    Q_OBJECT

  private slots:
    void the_profile_shows_what_the_file_holds_a_district_that_no_list_has_too() {
        OnlineFirma firma;
        firma.Ac();
        Profilde(firma, [](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Firma Bilgileri"));
            QCOMPARE(Odaktaki(), QStringLiteral("t1"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "t7").text(), QStringLiteral("Çay Sk."));
            QCOMPARE(Secili(pencere, "t13"), QStringLiteral("4"));
            QCOMPARE(Secili(pencere, "t8"), QStringLiteral("TEKIRDAG"));
            QCOMPARE(Secili(pencere, "t9"), QStringLiteral("Ergene"));
            QVERIFY(Secenekler(pencere, "t9").contains(QStringLiteral("Çorlu")));
            QVERIFY(pencere.findChild<QWidget*>(QStringLiteral("t10")) == nullptr);
        });
    }

    void a_province_that_is_picked_by_keys_offers_its_districts_and_one_is_picked_or_typed() {
        OnlineFirma firma;
        firma.Ac();
        Profilde(firma, [&](QDialog& pencere) {
            auto& il = Parcasi<QComboBox>(pencere, "t8");
            il.setFocus();
            QTest::keyClicks(&il, QStringLiteral("BAYB"));
            QCOMPARE(Secili(pencere, "t8"), QStringLiteral("BAYBURT"));
            QCOMPARE(Secenekler(pencere, "t9"),
                     (QStringList{QStringLiteral("Aydıntepe"), QStringLiteral("Demirözü")}));
            QCOMPARE(Secili(pencere, "t9"), QString());
            auto& ilce = Parcasi<QComboBox>(pencere, "t9");
            ilce.setFocus();
            QTest::keyClick(&ilce, Qt::Key_Down);
            QCOMPARE(Secili(pencere, "t9"), QStringLiteral("Aydıntepe"));
            QTest::keyClick(&ilce, Qt::Key_Down);
            QCOMPARE(firma.program.FormFirma->t9.metin, Metin(u"Demirözü"));
            ListeyeYaz(pencere, "t9", Qt::Key_M, QStringLiteral("erkez"));
            QCOMPARE(firma.program.FormFirma->t9.metin, Metin(u"merkez"));
            Tikla(pencere, "Command1");
            QVERIFY(!pencere.isVisible());
        });
        const std::string bayt = firma.agac.Bayt(u"Firma.dll");
        QVERIFY(bayt.find("\"BAYBURT\",\"Merkez\",\"Velora 2.0.5\",\"21.05.2026\",\"yedek\",\"4\"\r\n") !=
                std::string::npos);
        QVERIFY(firma.istekler.empty());
        QCOMPARE(firma.agac.Bayt(u"Sunucu.dat"), std::string("\"A0-01-02-03-04-05\",1\r\n"));
    }

    void what_is_missing_is_told_and_its_field_has_the_focus() {
        OnlineFirma firma;
        firma.Ac();
        Profilde(firma, [&](QDialog& pencere) {
            ListeyeYaz(pencere, "t9", Qt::Key_Delete, QString());
            Pencerede([] { Tusla(Qt::Key_Return); }, {Mesaj(QStringLiteral("Lütfen İlçenizi Seçiniz."))});
            QCOMPARE(Odaktaki(), QStringLiteral("t9"));
            QTest::keyClick(&Parcasi<QComboBox>(pencere, "t13"), Qt::Key_Home);
            Pencerede([&] { Tikla(pencere, "Command1"); },
                      {Mesaj(QStringLiteral("Lütfen Düğün Salonunuzdaki Salon Sayısını Seçiniz."))});
            QCOMPARE(Odaktaki(), QStringLiteral("t13"));
            QVERIFY(pencere.isVisible());
        });
        QCOMPARE(firma.agac.Bayt(u"Firma.dll"), std::string(kProfil));
    }

    void while_the_profile_is_sent_events_run_and_neither_a_press_nor_escape_comes_between() {
        OnlineFirma firma;
        firma.program.Splash->Check1 = 1;
        firma.Model().DuyuruKontrol.tik = [] {}; // it asks by itself, some seconds on
        firma.Ac();
        int olay = 0;
        Profilde(firma, [&](QDialog& pencere) {
            firma.beklerken = [&] {
                Siraya(pencere, [&] { ++olay; });
                QTest::mouseClick(&Parcasi<QPushButton>(pencere, "Command1"), Qt::LeftButton);
                QTest::mouseClick(&Parcasi<QPushButton>(pencere, "Command2"), Qt::LeftButton);
                QTest::keyClick(&pencere, Qt::Key_Escape);
                QVERIFY(pencere.isVisible());
            };
            Tikla(pencere, "Command1");
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(olay, 3);
        QCOMPARE(firma.istekler.size(), std::size_t{1});
        QVERIFY(firma.istekler[0].starts_with(
            u"http://servis.test/firmakontrol.php?firmaid=A0-01-02-03-04-05&a1=Gül&a2=Ayşe&"));
    }

    void save_stays_and_is_not_there_on_a_first_run_whose_cancel_asks() {
        OnlineFirma firma;
        firma.Ac();
        Profilde(firma, [&](QDialog& pencere) {
            AlanaYaz(pencere, "t1", QStringLiteral("yeni ad"));
            Tikla(pencere, "Command3");
            QVERIFY(pencere.isVisible());
            Tikla(pencere, "Command2");
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(firma.agac.Bayt(u"Firma.dll").starts_with("\"yeni ad\",\"Ay\xFE"));
        firma.program.FormFirma->Tag = u"1";
        firma.program.FormFirma.Goster();
        auto& pencere = *firma.disDunya.Pencere(EkranAdi::FormFirma);
        QVERIFY(!Parcasi<QPushButton>(pencere, "Command3").isVisible());
        Pencerede([&] { QTest::keyClick(&pencere, Qt::Key_Escape); },
                  {Mesaj(QStringLiteral("Programın kurulumu henüz tamamlanmadı!\n"
                                        "Kurulumdan çıkmak istediğinize emin misiniz?"),
                         QStringLiteral("Hayır"))});
        QVERIFY(pencere.isVisible());
        QCOMPARE(firma.bitisler, 0);
    }

    void on_a_first_run_the_password_stands_behind_the_profile_and_can_not_be_left() {
        OnlineFirma firma;
        firma.program.FormFirma->Tag = u"1";
        firma.program.FormFirma.Goster();
        Tikla(*firma.disDunya.Pencere(EkranAdi::FormFirma), "Command1");
        QVERIFY(!firma.program.FormFirma.Yuklu());
        QCOMPARE(firma.bitisler, 0);
        auto& parola = *firma.disDunya.Pencere(EkranAdi::FormSifreDegistir);
        QVERIFY(parola.isVisible());
        QCOMPARE(parola.windowTitle(), QStringLiteral("Kullanıcı Girişi"));
        QCOMPARE(Parcasi<QLabel>(parola, "Label8").text(), QStringLiteral("Yeni Parola Oluşturun"));
        QVERIFY(!Parcasi<QPushButton>(parola, "Command2").isEnabled());
        QVERIFY(QTest::qWaitForWindowActive(&parola));
        QTest::keyClick(&parola, Qt::Key_Escape);
        QVERIFY(parola.isVisible());
    }

    void the_key_at_the_service_can_be_copied_and_not_typed_over() {
        OnlineFirma firma;
        firma.Ac();
        Pencerede([&] { MenudenSec(firma, "Websssunucus"); }, {[](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Web Sunucu Ayarları"));
                      auto& anahtar = Parcasi<QLineEdit>(pencere, "Text1");
                      QTest::keyClicks(&anahtar, QStringLiteral("x"));
                      QCOMPARE(anahtar.text(), QStringLiteral("A0-01-02-03-04-05"));
                      QVERIFY(anahtar.isEnabled());
                      Tusla(Qt::Key_Space);
                      QTest::keyClick(&pencere, Qt::Key_Return);
                      QVERIFY(!pencere.isVisible());
                  }});
        QCOMPARE(firma.agac.Bayt(u"Sunucu.dat"), std::string("\"A0-01-02-03-04-05\",0\r\n"));
    }
};

VELORA_GUI_TEST(OnlinePencereleriTest)
#include "OnlinePencereleriTest.moc"
