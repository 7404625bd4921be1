#include <fstream>

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "maintenance/FormYedekAl.h"
#include "qt/Ceviri.h"

using namespace velora;
using namespace velora::test;

namespace {

namespace fs = std::filesystem;

const QString kBitti = QStringLiteral("Yedekleme işleminiz başarıyla tamamlandı!");

/// A firm whose user has a home of his own beside the program's folder.
struct YedekFirma : GuiFirma {
    YedekFirma() {
        for (int gun = 10; gun < 30; ++gun)
            Rezervasyon(kSalonA, SayiMetni(gun) + u".05.2026 - Gece", true);
        qputenv("HOME", QByteArray::fromStdString(agac.Disi().string()));
    }

    fs::path Bugunku(const fs::path& ad = {}) const { return agac.Disi() / "VRYedek" / "21_05_2026" / ad; }
    void Yedekte(const Is& is) {
        Pencerede([this] { MenudenSec(*this, "Yedeksss"); }, {is});
    }
    /// Events run behind each step, and `is` is told the step's number.
    void HerAdimda(const std::function<void(int)>& is) {
        program.ortam.olaylar.adimda = [this, is, sira = 0]() mutable {
            program.ortam.olaylar.isle();
            is(++sira);
        };
    }
    /// All that the program's folder holds is in today's backup.
    void HepsiYedekte() const {
        int dosya = 0;
        for (const auto& oge : fs::recursive_directory_iterator(agac.Kok())) {
            const auto yeri = Bugunku(fs::relative(oge.path(), agac.Kok()));
            QVERIFY2(fs::exists(yeri), yeri.c_str());
            dosya += oge.is_regular_file() ? 1 : 0;
        }
        QVERIFY(dosya > 40);
    }
};

} // namespace

class YedekPenceresiTest : public QObject {
    Q_OBJECT

  private slots:
    void a_backup_is_taken_from_the_menu_into_the_user_s_own_folder() {
        YedekFirma firma;
        firma.Ac();
        firma.Yedekte([&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Yedekleme İşlemleri"));
            QCOMPARE(Parcasi<QLabel>(pencere, "Label8").text(), QStringLiteral("Yedekleme İşlemleri"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "txtSource").text(),
                     QString::fromStdString(firma.agac.Kok().string()));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "txtDestination").text(),
                     QString::fromStdString((firma.agac.Disi() / "VRYedek").string()));
            QVERIFY(!Parcasi<QLabel>(pencere, "Label9").isVisible());
            QVERIFY(pencere.findChildren<QCheckBox*>().isEmpty());
            QCOMPARE(pencere.findChildren<QLineEdit*>().size(), 2);
            Pencerede([&] { Tusla(Qt::Key_Return); }, {Mesaj(kBitti)});
            QVERIFY(!pencere.isVisible());
        });
        firma.HepsiYedekte();
        QCOMPARE(firma.agac.Bayt(u"BackupSetting.dat"),
                 "\"" + (firma.agac.Disi() / "VRYedek").string() + "\"\r\n");
    }

    void while_it_runs_the_window_says_so_and_takes_no_second_press() {
        YedekFirma firma;
        firma.Ac();
        firma.Yedekte([&](QDialog& pencere) {
            int bakilan = 0;
            firma.HerAdimda([&](int sira) {
                QVERIFY(Parcasi<QLabel>(pencere, "Label9").isVisible());
                QCOMPARE(Parcasi<QLabel>(pencere, "Label9").text(),
                         QStringLiteral("Yedek alınıyor... Lütfen bekleyiniz..."));
                QVERIFY(!Parcasi<QPushButton>(pencere, "cmdStart").isEnabled());
                if (sira == 3) { // neither again, nor the window away
                    Tikla(pencere, "cmdStart");
                    Tusla(Qt::Key_Return);
                    Tusla(Qt::Key_Space);
                }
                if (sira == 4)
                    QTest::keyClick(&Parcasi<QLineEdit>(pencere, "txtSource"), Qt::Key_Return);
                ++bakilan;
            });
            Pencerede([&] { Tikla(pencere, "cmdStart"); }, {Mesaj(kBitti)});
            QVERIFY(bakilan > 40);
        });
        firma.HepsiYedekte();
    }

    void closed_in_the_middle_the_window_goes_at_once_and_the_backup_to_its_end_and_its_message() {
        for (const bool tusla : {false, true}) {
            YedekFirma firma;
            firma.Ac();
            firma.Yedekte([&](QDialog& pencere) {
                QPointer<QDialog> duran = &pencere;
                firma.HerAdimda([&](int sira) {
                    if (sira == 5 && tusla)
                        QTest::keyClick(&pencere, Qt::Key_Escape);
                    else if (sira == 5)
                        Tikla(pencere, "Command3");
                    if (sira >= 5) {
                        QVERIFY(duran == nullptr || !duran->isVisible());
                        QVERIFY(!firma.program.FormYedekAl.Yuklu());
                    }
                });
                Pencerede([&] { Tikla(pencere, "cmdStart"); }, {Mesaj(kBitti)});
            });
            firma.HepsiYedekte();
        }
    }

    void the_end_of_the_program_stops_it_where_it_is() {
        YedekFirma firma;
        firma.gercektenBiter = true;
        firma.Ac();
        int sonuncu = 0;
        QTimer::singleShot(0, qApp, [&] {
            QTimer::singleShot(0, qApp,
                               [&] { Tikla(*firma.disDunya.Pencere(EkranAdi::FormYedekAl), "cmdStart"); });
            firma.HerAdimda([&](int sira) {
                sonuncu = sira;
                if (sira == 6)
                    firma.program.ortam.olaylar.bitir();
            });
            MenudenSec(firma, "Yedeksss");
        });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(sonuncu, 6);
        QVERIFY(!fs::exists(firma.Bugunku(fs::path(Metin(kSalonA)) / "2026" / "29.05.2026 - Gece-Odeme")));
    }

    void a_folder_is_chosen_in_a_box_in_turkish_and_a_cancel_empties_the_source() {
        YedekFirma firma;
        firma.agac.KlasorKoy(u"Gül Salonu/öteki");
        fs::create_directories(firma.agac.Disi() / "Ayşe" / "iç");
        const QString secilen = QString::fromStdString((firma.agac.Disi() / "Ayşe").string());
        firma.Ac();
        const auto sec = Kutuda<QFileDialog>([&](QFileDialog& kutu) {
            QCOMPARE(kutu.windowTitle(), QStringLiteral("Select directory..."));
            QCOMPARE(kutu.directory().absolutePath(), QString::fromStdString(firma.agac.Disi().string()));
            QStringList yazilar;
            for (const auto* dugme : kutu.findChildren<QPushButton*>())
                if (dugme->isVisible())
                    yazilar << Isaretsiz(dugme->text());
            for (const auto* etiket : kutu.findChildren<QLabel*>())
                if (etiket->isVisible())
                    yazilar << Isaretsiz(etiket->text());
            yazilar.sort();
            QCOMPARE(yazilar, QStringList({"Dizin:", "Klasör:", "Seç", "İptal"}));
            kutu.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setFocus();
            kutu.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->selectAll();
            Yaz(QStringLiteral("Ayşe"));
            Tusla(Qt::Key_Return);
        });
        const auto vazgec = Kutuda<QFileDialog>([&](QFileDialog& kutu) {
            QCOMPARE(kutu.directory().absolutePath(), secilen);
            Tusla(Qt::Key_Escape);
        });
        firma.Yedekte([&](QDialog& pencere) {
            auto& kaynak = Parcasi<QLineEdit>(pencere, "txtSource");
            auto& hedef = Parcasi<QLineEdit>(pencere, "txtDestination");
            Pencerede([&] { Tikla(pencere, "Command2"); }, {sec});
            QCOMPARE(hedef.text(), secilen + QStringLiteral("/VRYedek"));
            Pencerede([&] { Tikla(pencere, "Command1"); }, {vazgec});
            QCOMPARE(kaynak.text(), QString());
            Pencerede([&] { Tikla(pencere, "cmdStart"); }, {Mesaj(QStringLiteral("Lütfen dizin seçiniz!"))});
            QVERIFY(pencere.isVisible());
            QVERIFY(Parcasi<QLabel>(pencere, "Label9").isVisible());
            QVERIFY(!Parcasi<QPushButton>(pencere, "cmdStart").isEnabled());
        });
    }

    void what_is_typed_is_kept_in_a_file_of_the_user_and_not_in_the_data() {
        YedekFirma firma;
        const QString dosya = QString::fromStdString((firma.agac.Disi() / "ayar ğ" / "ayarlar.ini").string());
        firma.disDunya.AyarlarVer(AyarDosyasi(dosya));
        firma.Ac();
        const std::string once = firma.agac.Resim();
        firma.Yedekte([&](QDialog& pencere) {
            AlanaYaz(pencere, "txtDestination", QStringLiteral("/mnt/Ayşe'nin, diski"));
            Tikla(pencere, "Command3");
        });
        const QSettings ayarlar(dosya, QSettings::IniFormat);
        QCOMPARE(ayarlar.value(QStringLiteral("Settings/txtDestination")).toString(),
                 QStringLiteral("/mnt/Ayşe'nin, diski"));
        QCOMPARE(ayarlar.value(QStringLiteral("Settings/txtSource")).toString(),
                 QString::fromStdString(firma.agac.Kok().string()));
        QCOMPARE(firma.agac.Resim(), once);
    }

    void behind_many_small_steps_events_run_now_and_then() {
        YedekFirma firma;
        firma.Ac();
        int tikler = 0;
        QTimer saat;
        QObject::connect(&saat, &QTimer::timeout, [&tikler] { ++tikler; });
        saat.start(0);
        QElapsedTimer sure;
        sure.start();
        int adimlar = 0;
        while (!sure.hasExpired(400)) {
            firma.program.ortam.olaylar.adimda();
            ++adimlar;
        }
        QVERIFY2(tikler >= 4 && tikler <= 42, qPrintable(QString::number(tikler)));
        QVERIFY2(adimlar > 1000, qPrintable(QString::number(adimlar)));
    }
};

VELORA_GUI_TEST(YedekPenceresiTest)
#include "YedekPenceresiTest.moc"
