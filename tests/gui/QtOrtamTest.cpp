#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/OlayKilidi.h"
#include "qt/QtOrtam.h"
#include "qt/Simgeler.h"

using namespace velora;
using namespace velora::test;

namespace {

QStringList Dugmeler(const QMessageBox& kutu) {
    QStringList yazilar;
    for (const QAbstractButton* dugme : kutu.buttons())
        yazilar << Isaretsiz(dugme->text());
    return yazilar;
}

} // namespace

class QtOrtamTest : public QObject {
    Q_OBJECT

    const MesajKutusu kSoru{
        .metin = u"Emin misiniz?", .simge = Simge::Soru, .dugmeler = KutuDugmeleri::EvetHayir};

    /// What a question gives when `is` is done in its box.
    void CevapOlmali(Cevap beklenen, const Is& is) const {
        auto cevap = Cevap::Tamam;
        Pencerede([&] { cevap = ortam_.sor.mesaj(kSoru); }, {is});
        QCOMPARE(cevap, beklenen);
    }
    /// What an input box that begins with a text gives when `is` is done in it.
    void YazilanOlmali(MetinBakis baslangic, MetinBakis beklenen,
                       const std::function<void(QInputDialog&)>& is) const {
        Metin yazilan = u"hiç";
        const auto ac = [&] {
            yazilan = ortam_.sor.girdi({.metin = u"Salon adı", .baslangic = Metin(baslangic)});
        };
        Pencerede(ac, {Kutuda<QInputDialog>(is)});
        QCOMPARE(yazilan, Metin(beklenen));
    }

  private slots:
    void init() {
        disDunya_ = std::make_unique<QtOrtam>();
        ortam_ = disDunya_->Ver();
    }

    void cleanup() { disDunya_->PencereleriBirak(); }

    void a_message_box_shows_text_title_and_one_turkish_button() {
        const MesajKutusu mesaj{.metin = u"<b>Önce salon\nseçiniz</b>", .simge = Simge::Kritik};
        Cevap cevap = Cevap::Hayir;
        Pencerede([&] { cevap = ortam_.sor.mesaj(mesaj); }, {Kutuda<QMessageBox>([](QMessageBox& kutu) {
                      QCOMPARE(Dugmeler(kutu), QStringList{QStringLiteral("Tamam")});
                      QCOMPARE(kutu.text(), QStringLiteral("<b>Önce salon\nseçiniz</b>"));
                      QCOMPARE(kutu.windowTitle(), QStringLiteral("Velora"));
                      QCOMPARE(kutu.icon(), QMessageBox::Critical);
                      QTest::keyClick(&kutu, Qt::Key_Return);
                  })});
        QCOMPARE(cevap, Cevap::Tamam);
    }

    void each_kind_of_box_has_its_own_icon() {
        const std::pair<Simge, QMessageBox::Icon> simgeler[]{{Simge::Bilgi, QMessageBox::Information},
                                                             {Simge::Soru, QMessageBox::Question},
                                                             {Simge::Uyari, QMessageBox::Warning},
                                                             {Simge::Kritik, QMessageBox::Critical}};
        for (const auto& biri : simgeler)
            Pencerede([&] { ortam_.sor.mesaj({.metin = u"Bir", .simge = biri.first}); },
                      {Kutuda<QMessageBox>([&](QMessageBox& kutu) { QCOMPARE(kutu.icon(), biri.second); })});
    }

    void each_kind_of_box_shows_a_drawing_of_ours_in_a_colour_of_its_own() {
        const std::pair<Simge, QString> simgeler[]{{Simge::Bilgi, QStringLiteral("bilgi")},
                                                   {Simge::Soru, QStringLiteral("soru")},
                                                   {Simge::Uyari, QStringLiteral("uyari")},
                                                   {Simge::Kritik, QStringLiteral("kritik")}};
        QSet<QRgb> renkler;
        for (const auto& simge : simgeler)
            Pencerede([&] { ortam_.sor.mesaj({.metin = u"Bir", .simge = simge.first}); },
                      {Kutuda<QMessageBox>([&](QMessageBox& kutu) {
                          const QImage gorulen = kutu.iconPixmap().toImage();
                          QVERIFY(gorulen.width() >= 24);
                          const QImage bizim = SimgeCiz(simge.second, Qt::black, gorulen.width()).toImage();
                          int isaretli = 0;
                          for (int y = 0; y < gorulen.height(); ++y)
                              for (int x = 0; x < gorulen.width(); ++x) {
                                  QCOMPARE(gorulen.pixelColor(x, y).alpha(), bizim.pixelColor(x, y).alpha());
                                  if (gorulen.pixelColor(x, y).alpha() == 255 && ++isaretli == 1)
                                      renkler << gorulen.pixel(x, y);
                              }
                          QVERIFY(isaretli > 20);
                      })});
        QCOMPARE(renkler.size(), 4);
    }

    void an_input_box_says_what_it_asks_for_under_its_title() {
        const auto ac = [&] {
            ortam_.sor.girdi(
                {.metin = u"İptal sebebini yazınız!", .baslik = u"İptal Sebebi", .baslangic = {}});
        };
        Pencerede(ac, {Kutuda<QInputDialog>([](QInputDialog& kutu) {
                      QCOMPARE(kutu.labelText(), QStringLiteral("İptal sebebini yazınız!"));
                      QCOMPARE(kutu.windowTitle(), QStringLiteral("İptal Sebebi"));
                      const auto etiketler = kutu.findChildren<QLabel*>();
                      QVERIFY(std::ranges::any_of(etiketler, [&](const QLabel* etiket) {
                          return etiket->isVisible() && etiket->text() == kutu.labelText();
                      }));
                  })});
    }

    void a_question_has_turkish_buttons_and_answers_by_the_one_pressed() {
        const auto dugmelerineBak = [](QMessageBox& kutu) {
            const QStringList dugmeler = Dugmeler(kutu);
            QVERIFY(dugmeler.contains(QStringLiteral("Evet")));
            QVERIFY(dugmeler.contains(QStringLiteral("Hayır")));
            QCOMPARE(dugmeler.size(), 2);
        };
        for (const Cevap istenen : {Cevap::Evet, Cevap::Hayir})
            CevapOlmali(istenen, [&](QDialog& pencere) {
                Kutuda<QMessageBox>(dugmelerineBak)(pencere);
                Mesaj(QMetin(kSoru.metin),
                      istenen == Cevap::Evet ? QStringLiteral("Evet") : QStringLiteral("Hayır"))(pencere);
            });
    }

    void a_question_starts_on_yes_and_one_that_loses_something_on_no() {
        for (const Cevap baslangic : {Cevap::Evet, Cevap::Hayir}) {
            MesajKutusu soru = kSoru;
            soru.baslangic = baslangic;
            auto cevap = Cevap::Tamam;
            Pencerede([&] { cevap = ortam_.sor.mesaj(soru); }, {[](QDialog&) { Tusla(Qt::Key_Return); }});
            QCOMPARE(cevap, baslangic);
        }
    }

    void the_first_letters_answer_a_question_with_and_without_the_alt_key() {
        for (const auto ek : {Qt::NoModifier, Qt::AltModifier}) {
            const auto basar = [ek](Qt::Key tus) {
                return [=](QDialog& kutu) {
                    Tusla(tus, ek);
                    Kapanincaya(kutu);
                };
            };
            CevapOlmali(Cevap::Evet, basar(Qt::Key_E));
            CevapOlmali(Cevap::Hayir, basar(Qt::Key_H));
        }
    }

    void escape_and_closing_a_question_are_a_no() {
        CevapOlmali(Cevap::Hayir, TusBas(Qt::Key_Escape));
        CevapOlmali(Cevap::Hayir, [](QDialog& kutu) { kutu.close(); });
    }

    void an_input_box_gives_what_was_typed() {
        YazilanOlmali(u"eski", u"Salon 3", [](QInputDialog& kutu) {
            QCOMPARE(Isaretsiz(kutu.okButtonText()), QStringLiteral("Tamam"));
            QCOMPARE(Isaretsiz(kutu.cancelButtonText()), QStringLiteral("İptal"));
            QVERIFY(kutu.findChild<QLineEdit*>()->width() >= 300);
            Yaz(QStringLiteral("Salon 3"));
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
    }

    void an_input_box_drops_keys_that_no_file_holds_and_makes_pasted_text_fit() {
        YazilanOlmali(u"", u"aé?b", [](QInputDialog& kutu) {
            auto* satir = kutu.findChild<QLineEdit*>();
            Yaz(QStringLiteral("a\u0436b"));
            QCOMPARE(satir->text(), QStringLiteral("ab"));
            satir->setCursorPosition(1);
            QGuiApplication::clipboard()->setText(QStringLiteral("e\u0301\u0436"));
            satir->paste();
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
    }

    void an_input_box_holds_one_line_and_drops_a_typed_picture() {
        YazilanOlmali(u"", u"a b c d?", [](QInputDialog& kutu) {
            auto* satir = kutu.findChild<QLineEdit*>();
            Yaz(QStringLiteral("a\U0001F600"));
            QCOMPARE(satir->text(), QStringLiteral("a"));
            QGuiApplication::clipboard()->setText(QStringLiteral("\r\nb\tc\u2028d"));
            satir->paste();
            QGuiApplication::clipboard()->setText(QStringLiteral("語"));
            satir->paste();
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
    }

    void a_cancelled_input_box_gives_empty_text() {
        YazilanOlmali(u"eski", u"", [](QInputDialog& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
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
        const auto calistir = [&] {
            baglayici.Calistir([&] {
                *ekran = 8;
                ortam_.sor.mesaj({.metin = u"Bekle"});
                *ekran = 9;
            });
        };
        Pencerede(calistir, {Kutuda<QMessageBox>([&](QMessageBox&) { QCOMPARE(gorulen, 8); })});
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
        disDunya_->Tanit(EkranAdi::FormAyarlar, [] { return std::make_unique<QDialog>(); });
        const std::vector<Is> kapatmalar{[](QDialog& pencere) { pencere.close(); },
                                         [this](QDialog&) { ortam_.goster.gizle(EkranAdi::FormAyarlar); }};
        for (const auto& kapat : kapatmalar) {
            Pencerede([this] { ortam_.goster.modal(EkranAdi::FormAyarlar, [] {}); }, {[&](QDialog& pencere) {
                          QCOMPARE(disDunya_->Pencere(EkranAdi::FormAyarlar), &pencere);
                          QVERIFY(pencere.isModal());
                          kapat(pencere);
                          QVERIFY(!pencere.isVisible());
                      }});
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
        ortam_.odak.ver(EkranAdi::FormIpMac, u"Text1");
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Text2"));
    }

    void pending_events_run_unless_the_toolkit_is_in_the_middle_of_its_own_work() {
        int sayi = 0;
        Siraya(*this, [&] { ++sayi; });
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
