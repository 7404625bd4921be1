#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "gui/GuiProgram.h"
#include "qt/Baglayici.h"
#include "qt/OlayKilidi.h"
#include "qt/QtOrtam.h"

using namespace velora;

namespace {

/// Runs inside the next box, once it stands.
template <class Kutu>
void Kutuda(const std::function<void(Kutu&)>& is) {
    QTimer::singleShot(0, qApp, [is] {
        auto* kutu = qobject_cast<Kutu*>(QApplication::activeModalWidget());
        QVERIFY(kutu != nullptr);
        is(*kutu);
    });
}

QStringList Dugmeler(const QMessageBox& kutu) {
    QStringList yazilar;
    for (const QAbstractButton* dugme : kutu.buttons())
        yazilar << dugme->text();
    return yazilar;
}

} // namespace

class QtOrtamTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        disDunya_ = std::make_unique<QtOrtam>();
        ortam_ = disDunya_->Ver();
    }

    void cleanup() { disDunya_->PencereleriBirak(); }

    void a_message_box_shows_text_title_and_one_turkish_button() {
        QStringList dugmeler;
        QString metin;
        QString baslik;
        auto simge = QMessageBox::NoIcon;
        Kutuda<QMessageBox>([&](QMessageBox& kutu) {
            dugmeler = Dugmeler(kutu);
            metin = kutu.text();
            baslik = kutu.windowTitle();
            simge = kutu.icon();
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
        const Cevap cevap =
            ortam_.sor.mesaj({.metin = u"<b>Önce salon\nseçiniz</b>", .simge = Simge::Kritik});
        QCOMPARE(cevap, Cevap::Tamam);
        QCOMPARE(dugmeler, QStringList{QStringLiteral("Tamam")});
        QCOMPARE(metin, QStringLiteral("<b>Önce salon\nseçiniz</b>"));
        QCOMPARE(baslik, QStringLiteral("Velora"));
        QCOMPARE(simge, QMessageBox::Critical);
    }

    void a_question_has_turkish_buttons_and_answers_by_the_one_pressed() {
        for (const Cevap istenen : {Cevap::Evet, Cevap::Hayir}) {
            QStringList dugmeler;
            Kutuda<QMessageBox>([&](QMessageBox& kutu) {
                dugmeler = Dugmeler(kutu);
                for (QAbstractButton* dugme : kutu.buttons())
                    if (dugme->text() ==
                        (istenen == Cevap::Evet ? QStringLiteral("Evet") : QStringLiteral("Hayır")))
                        QTest::mouseClick(dugme, Qt::LeftButton);
            });
            const Cevap cevap = ortam_.sor.mesaj(
                {.metin = u"Emin misiniz?", .simge = Simge::Soru, .dugmeler = KutuDugmeleri::EvetHayir});
            QCOMPARE(cevap, istenen);
            QVERIFY(dugmeler.contains(QStringLiteral("Evet")));
            QVERIFY(dugmeler.contains(QStringLiteral("Hayır")));
            QCOMPARE(dugmeler.size(), 2);
        }
    }

    void escape_and_closing_a_question_are_a_no() {
        const MesajKutusu soru{
            .metin = u"Emin misiniz?", .simge = Simge::Soru, .dugmeler = KutuDugmeleri::EvetHayir};
        Kutuda<QMessageBox>([](QMessageBox& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
        QCOMPARE(ortam_.sor.mesaj(soru), Cevap::Hayir);
        Kutuda<QMessageBox>([](QMessageBox& kutu) { kutu.close(); });
        QCOMPARE(ortam_.sor.mesaj(soru), Cevap::Hayir);
    }

    void an_input_box_gives_what_was_typed() {
        QString tamam;
        QString iptal;
        int alan = 0; // its width
        Kutuda<QInputDialog>([&](QInputDialog& kutu) {
            tamam = kutu.okButtonText();
            iptal = kutu.cancelButtonText();
            alan = kutu.findChild<QLineEdit*>()->width();
            QTest::keyClicks(kutu.findChild<QLineEdit*>(), QStringLiteral("Salon 3"));
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
        QCOMPARE(ortam_.sor.girdi({.metin = u"Salon adı", .baslangic = u"eski"}), Metin(u"Salon 3"));
        QCOMPARE(tamam, QStringLiteral("Tamam"));
        QCOMPARE(iptal, QStringLiteral("İptal"));
        QVERIFY(alan >= 300);
    }

    void an_input_box_drops_keys_that_no_file_holds_and_makes_pasted_text_fit() {
        QString yazilan;
        Kutuda<QInputDialog>([&yazilan](QInputDialog& kutu) {
            auto* satir = kutu.findChild<QLineEdit*>();
            QTest::keyClick(satir, Qt::Key_A);
            QTest::sendKeyEvent(QTest::Click, satir, Qt::Key_unknown, QStringLiteral("\u0436"),
                                Qt::NoModifier);
            QTest::keyClick(satir, Qt::Key_B);
            yazilan = satir->text();
            satir->setCursorPosition(1);
            QGuiApplication::clipboard()->setText(QStringLiteral("e\u0301\u0436"));
            satir->paste();
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
        QCOMPARE(ortam_.sor.girdi({.metin = u"Salon adı", .baslangic = u""}), Metin(u"aé?b"));
        QCOMPARE(yazilan, QStringLiteral("ab"));
    }

    void an_input_box_holds_one_line_and_drops_a_typed_picture() {
        QString yazilan;
        Kutuda<QInputDialog>([&yazilan](QInputDialog& kutu) {
            auto* satir = kutu.findChild<QLineEdit*>();
            QTest::keyClick(satir, Qt::Key_A);
            QTest::sendKeyEvent(QTest::Click, satir, Qt::Key_unknown, QStringLiteral("\U0001F600"),
                                Qt::NoModifier);
            yazilan = satir->text();
            QGuiApplication::clipboard()->setText(QStringLiteral("\r\nb\tc\u2028d"));
            satir->paste();
            QGuiApplication::clipboard()->setText(QStringLiteral("語"));
            satir->paste();
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
        QCOMPARE(ortam_.sor.girdi({.metin = u"Salon adı", .baslangic = u""}), Metin(u"a b c d?"));
        QCOMPARE(yazilan, QStringLiteral("a"));
    }

    void a_cancelled_input_box_gives_empty_text() {
        Kutuda<QInputDialog>([](QInputDialog& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
        QVERIFY(ortam_.sor.girdi({.metin = u"Salon adı", .baslangic = u"eski"}).empty());
    }

    void a_handler_that_waits_for_an_answer_is_no_quick_one_and_shows_what_it_has_done() {
        const auto ekran = std::make_shared<int>(0);
        QObject pencere;
        Baglayici baglayici(ekran, &pencere);
        int gorulen = 0;
        baglayici.Izle([&] {
            if (!Baglayici::IsSuruyor())
                gorulen = *ekran;
        });
        int kutuda = 0;
        Kutuda<QMessageBox>([&](QMessageBox& kutu) {
            kutuda = gorulen;
            kutu.close();
        });
        baglayici.Calistir([&] {
            *ekran = 8;
            ortam_.sor.mesaj({.metin = u"Bekle"});
            *ekran = 9;
        });
        QCOMPARE(kutuda, 8);
        QCOMPARE(gorulen, 9);
    }

    void a_handler_shows_only_its_end_however_long_it_takes() {
        const auto ekran = std::make_shared<int>(0);
        QObject pencere;
        Baglayici baglayici(ekran, &pencere);
        std::vector<bool> suruyor;
        baglayici.Calistir([&] {
            QTest::qSleep(150);
            suruyor.push_back(Baglayici::IsSuruyor());
            baglayici.Calistir([&] { suruyor.push_back(Baglayici::IsSuruyor()); });
            suruyor.push_back(Baglayici::IsSuruyor());
        });
        suruyor.push_back(Baglayici::IsSuruyor());
        QCOMPARE(suruyor, (std::vector{true, true, true, false}));
    }

    void a_handler_that_waits_for_the_user_is_none_until_the_answer_and_one_inside_is_of_its_own() {
        const auto ekran = std::make_shared<int>(0);
        QObject pencere;
        Baglayici baglayici(ekran, &pencere);
        std::vector<bool> suruyor;
        const auto bak = [&] { suruyor.push_back(Baglayici::IsSuruyor()); };
        baglayici.Calistir([&] {
            bak();
            {
                const Baglayici::KullaniciBekleme acikPencere;
                bak();
                baglayici.Calistir([&] {
                    bak();
                    {
                        const Baglayici::KullaniciBekleme acikKutu;
                        bak();
                    }
                    bak();
                });
                bak();
            }
            bak();
        });
        QCOMPARE(suruyor, (std::vector{true, false, true, false, true, false, true}));
    }

    void a_window_is_made_at_its_first_showing_and_dropped_when_hidden() {
        int yapilan = 0;
        disDunya_->Tanit(EkranAdi::FormAyarlar, [&] {
            ++yapilan;
            return std::make_unique<QWidget>();
        });
        bool gorunurken = false;
        ortam_.goster.ac(EkranAdi::FormAyarlar,
                         [&] { gorunurken = disDunya_->Pencere(EkranAdi::FormAyarlar)->isVisible(); });
        QVERIFY(gorunurken);
        ortam_.goster.ac(EkranAdi::FormAyarlar, [] {});
        QCOMPARE(yapilan, 1);
        ortam_.goster.gizle(EkranAdi::FormAyarlar);
        QVERIFY(disDunya_->Pencere(EkranAdi::FormAyarlar) == nullptr);
        ortam_.goster.ac(EkranAdi::FormAyarlar, [] {});
        QCOMPARE(yapilan, 2);
    }

    void a_modal_window_returns_when_it_is_closed_by_the_user_or_by_the_program() {
        disDunya_->Tanit(EkranAdi::FormAyarlar, [] { return std::make_unique<QWidget>(); });
        const std::vector<std::function<void()>> kapatmalar{
            [this] { disDunya_->Pencere(EkranAdi::FormAyarlar)->close(); },
            [this] { ortam_.goster.gizle(EkranAdi::FormAyarlar); }};
        for (const auto& kapat : kapatmalar) {
            bool modal = false;
            QTimer::singleShot(20, this, [&] {
                modal = disDunya_->Pencere(EkranAdi::FormAyarlar)->isModal();
                kapat();
            });
            ortam_.goster.modal(EkranAdi::FormAyarlar, [] {});
            QVERIFY(modal);
            QVERIFY(disDunya_->Pencere(EkranAdi::FormAyarlar) == nullptr);
        }
    }

    void a_modal_window_closed_by_its_first_activation_returns_at_once() {
        disDunya_->Tanit(EkranAdi::FormAyarlar, [] { return std::make_unique<QWidget>(); });
        ortam_.goster.modal(EkranAdi::FormAyarlar, [this] { ortam_.goster.gizle(EkranAdi::FormAyarlar); });
        QVERIFY(disDunya_->Pencere(EkranAdi::FormAyarlar) == nullptr);
    }

    void the_focus_goes_to_a_control_by_its_name() {
        disDunya_->Tanit(EkranAdi::FormAyarlar, [] {
            auto pencere = std::make_unique<QWidget>();
            auto* bir = new QLineEdit(pencere.get());
            bir->setObjectName(QStringLiteral("Text1"));
            auto* iki = new QLineEdit(pencere.get());
            iki->setObjectName(QStringLiteral("Text2"));
            return pencere;
        });
        ortam_.goster.ac(EkranAdi::FormAyarlar, [] {});
        QVERIFY(QTest::qWaitForWindowActive(disDunya_->Pencere(EkranAdi::FormAyarlar)));
        ortam_.odak.ver(EkranAdi::FormAyarlar, u"Text2");
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Text2"));
        ortam_.odak.ver(EkranAdi::FormAyarlar, u"Text9");
        ortam_.odak.ver(EkranAdi::Splash, u"Text1");
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Text2"));
    }

    void pending_events_run_unless_the_toolkit_is_in_the_middle_of_its_own_work() {
        int sayi = 0;
        QTimer::singleShot(0, this, [&] { ++sayi; });
        {
            const OlayKilidi kilit;
            ortam_.olaylar.isle();
            QCOMPARE(sayi, 0);
        }
        ortam_.olaylar.isle();
        QCOMPARE(sayi, 1);
    }

    void the_clock_is_the_local_time_of_the_machine() {
        const QDateTime once = QDateTime::currentDateTime();
        const auto simdi = ortam_.zaman.simdi();
        const QDateTime sonra = QDateTime::currentDateTime();
        const std::chrono::year_month_day gun(std::chrono::floor<std::chrono::days>(simdi));
        const auto saniye = std::chrono::duration_cast<std::chrono::seconds>(
            simdi - std::chrono::floor<std::chrono::days>(simdi));
        const QDateTime okunan(QDate(int(gun.year()), int(unsigned(gun.month())), int(unsigned(gun.day()))),
                               QTime(0, 0).addSecs(static_cast<int>(saniye.count())));
        QVERIFY(okunan >= once.addSecs(-1));
        QVERIFY(okunan <= sonra);
    }

    void ending_the_program_is_remembered_also_before_its_loop_has_begun() {
        QVERIFY(!disDunya_->Bitti());
        ortam_.olaylar.bitir();
        QVERIFY(disDunya_->Bitti());
    }

  private:
    std::unique_ptr<QtOrtam> disDunya_;
    Ortam ortam_;
};

VELORA_GUI_TEST(QtOrtamTest)
#include "QtOrtamTest.moc"
