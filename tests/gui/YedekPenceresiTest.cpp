#include <fstream>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "maintenance/FormYedekAl.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

namespace fs = std::filesystem;

const QString kBitti = QStringLiteral("Yedekleme işleminiz başarıyla tamamlandı!");
constexpr int kYedekSuresi = 20'000; // milliseconds that no loaded machine needs
constexpr int kCokDosya = 1500;      // the table gets at its events many times before they are copied

/// A firm whose user has a home of his own beside the program's folder.
struct YedekFirma : GuiFirma {
    YedekFirma() {
        for (int gun = 10; gun < 30; ++gun)
            Rezervasyon(kSalonA, SayiMetni(gun) + u".05.2026 - Gece", true);
        qputenv("HOME", QByteArray::fromStdString(agac.Disi().string()));
    }

    /// So many more files, in a folder that comes behind those of the halls.
    void DosyalarKoy(int adet) const {
        for (int i = 0; i < adet; ++i)
            agac.Koy(u"Ömür/" + SayiMetni(i), "x");
    }
    fs::path Bugunku(const fs::path& ad = {}) const { return agac.Disi() / "VRYedek" / "21_05_2026" / ad; }
    /// The backup has dealt with its last folder.
    bool SonKlasorde() const { return fs::exists(Bugunku("Ömür") / std::to_string(kCokDosya - 1)); }
    void Yedekte(const Is& is) {
        Pencerede([this] { MenudenSec(*this, "Yedeksss"); }, {is});
    }
    /// Waits until the table has nothing left to copy.
    void SonunuBekle() { QTRY_COMPARE_WITH_TIMEOUT(Model().YedekTimer.aralik, 0, kYedekSuresi); }
    /// Events run behind each step, and `is` is told the step's number.
    void HerAdimda(const std::function<void(int)>& is) {
        program.ortam.olaylar.adimda = [this, is, sira = 0]() mutable {
            program.ortam.olaylar.isle();
            is(++sira);
        };
    }
    /// In its window: begins a backup and closes that in the middle. The backup that goes on within its
    /// handler is a failure, and asks nobody about its end.
    Is YaridaKapat(const std::function<void(QDialog&)>& kapat) {
        return [this, kapat](QDialog& pencere) {
            HerAdimda([&](int sira) {
                if (sira == 5)
                    kapat(pencere);
                if (sira == 6) {
                    hazirCevap = Cevap::Tamam;
                    QFAIL("It goes on above the window that is to close.");
                }
            });
            Tikla(pencere, "cmdStart");
            program.ortam.olaylar.adimda = [] {};
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

/// The name of a folder and the day of its last change, no sizes; the places beside it are whole.
void BakKlasorListesine(const QFileDialog& kutu) {
    const auto* liste = kutu.findChild<QTreeView*>(QStringLiteral("treeView"));
    QStringList sutunlar;
    for (int sutun = 0; sutun < liste->model()->columnCount(); ++sutun)
        if (!liste->isColumnHidden(sutun))
            sutunlar << liste->model()->headerData(sutun, Qt::Horizontal).toString();
    QCOMPARE(sutunlar, QStringList({"Ad", "Değiştirilme Tarihi"}));
    constexpr int kTarihSutunu = 3;
    struct Acik : QStyledItemDelegate {
        using QStyledItemDelegate::initStyleOption;
    };
    const auto* yazan = qobject_cast<QStyledItemDelegate*>(liste->itemDelegateForColumn(kTarihSutunu));
    QVERIFY(yazan != nullptr);
    QStyleOptionViewItem bicim;
    (yazan->*(&Acik::initStyleOption))(&bicim, liste->rootIndex().siblingAtColumn(kTarihSutunu));
    const QFileInfo klasor(kutu.directory().absolutePath());
    QCOMPARE(bicim.text, klasor.lastModified().toString(QStringLiteral("dd.MM.yyyy HH:mm")));
    const auto* yerler = kutu.findChild<QListView*>(QStringLiteral("sidebar"));
    QCOMPARE(yerler->horizontalScrollBar()->maximum(), 0);
}

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
            const auto kapat = [&](QDialog& pencere) {
                if (tusla)
                    QTest::keyClick(&pencere, Qt::Key_Escape);
                else
                    Tikla(pencere, "Command3");
                QVERIFY(!pencere.isVisible());
                QVERIFY(!firma.program.FormYedekAl.Yuklu());
            };
            const auto ac = [&] {
                MenudenSec(firma, "Yedeksss");
                firma.SonunuBekle();
            };
            Pencerede(ac, {firma.YaridaKapat(kapat), Mesaj(kBitti)});
            firma.HepsiYedekte();
        }
    }

    void closed_in_the_middle_the_table_works_on_and_is_painted_while_the_rest_is_copied() {
        YedekFirma firma;
        firma.DosyalarKoy(kCokDosya);
        firma.Rezervasyon(kSalonB, u"31.05.2026 - Gündüz", false);
        firma.Ac();
        const auto zemin = [&] {
            const QRect yer = firma.Tablo().Duzen().Hucre(Satir(5, GunduzGece::Gunduz), 31);
            return firma.Tablo().grab().toImage().pixelColor(yer.x() + 1, yer.center().y());
        };
        const QColor bos = zemin();
        const auto calis = [&] {
            MenudenSec(firma, "Yedeksss");
            MenudenSec(firma, "Websssunucus"); // its window is the next
            auto& salon = firma.Bul<QComboBox>("Salon");
            salon.setFocus();
            QTest::keyClick(&salon, Qt::Key_Down);
            QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonB));
            QVERIFY2(zemin() != bos, "what is painted follows");
            QVERIFY2(!firma.SonKlasorde(), "the rest has been copied before all of this");
            firma.SonunuBekle();
        };
        Pencerede(calis, {firma.YaridaKapat([](QDialog& pencere) { Tikla(pencere, "Command3"); }),
                          TusBas(Qt::Key_Escape), Mesaj(kBitti)});
        firma.HepsiYedekte();
    }

    void the_rest_is_copied_while_another_window_stands_and_its_message_waits_for_that_one() {
        YedekFirma firma;
        firma.DosyalarKoy(kCokDosya);
        firma.Ac();
        const auto ac = [&] {
            MenudenSec(firma, "Yedeksss");
            MenudenSec(firma, "Websssunucus");
            firma.SonunuBekle();
        };
        Pencerede(ac, {firma.YaridaKapat([](QDialog& pencere) { Tikla(pencere, "Command3"); }),
                       [&](QDialog& pencere) {
                           QVERIFY(!firma.SonKlasorde());
                           QTRY_VERIFY_WITH_TIMEOUT(!firma.Model().YedekTimer.beklerken, kYedekSuresi);
                           QVERIFY(firma.SonKlasorde());
                           QTest::qWait(50);
                           QCOMPARE(QApplication::activeModalWidget(), &pencere);
                           QTest::keyClick(&pencere, Qt::Key_Escape);
                           QVERIFY(!pencere.isVisible());
                       },
                       Mesaj(kBitti)});
        firma.HepsiYedekte();
    }

    void the_rest_waits_while_another_backup_runs_in_its_window() {
        YedekFirma firma;
        firma.DosyalarKoy(kCokDosya);
        firma.Ac();
        int tikler = 0;
        Zamanlayici& saat = firma.Model().YedekTimer;
        saat.tik = [&tikler, asil = saat.tik] {
            ++tikler;
            asil();
        };
        const auto ac = [&] {
            MenudenSec(firma, "Yedeksss");
            MenudenSec(firma, "Yedeksss");
            firma.SonunuBekle();
        };
        const auto ikinci = [&](QDialog& pencere) {
            const int once = tikler;
            int sonra = 0;
            firma.HerAdimda([&](int) { sonra = tikler; });
            firma.hazirCevap = Cevap::Tamam;
            Tikla(pencere, "cmdStart");
            firma.hazirCevap.reset();
            QVERIFY(firma.SonKlasorde());
            QCOMPARE(sonra, once);
            QVERIFY2(saat.aralik > 0, "the first one still has its end to tell");
        };
        Pencerede(ac, {firma.YaridaKapat([](QDialog& pencere) { Tikla(pencere, "Command3"); }), ikinci,
                       Mesaj(kBitti)});
        QVERIFY(tikler > 0);
    }

    void the_x_of_the_table_ends_the_program_in_the_middle_without_the_last_message() {
        YedekFirma firma;
        firma.DosyalarKoy(kCokDosya);
        firma.gercektenBiter = true;
        firma.Ac();
        QTimer kurtar; // a program that doesn't end hangs no test
        QObject::connect(&kurtar, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
        kurtar.start(std::chrono::seconds(20));
        QTimer::singleShot(0, qApp, [&] {
            const auto ac = [&] {
                MenudenSec(firma, "Yedeksss");
                firma.Pencere().close();
            };
            const QString soru = QStringLiteral("Programdan çıkmak istediğinizden emin misiniz?");
            Pencerede(ac, {firma.YaridaKapat([](QDialog& pencere) { Tikla(pencere, "Command3"); }),
                           Mesaj(soru, QStringLiteral("Evet"))});
        });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(firma.disDunya.Bitti());
        QVERIFY(!firma.SonKlasorde());
        firma.disDunya.PencereleriBirak();
        QVERIFY(!firma.SonKlasorde());
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
            BakKlasorListesine(kutu);
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

    void what_is_typed_is_kept_in_a_file_of_the_user_and_not_in_the_tree() {
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
