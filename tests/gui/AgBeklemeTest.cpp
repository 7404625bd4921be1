#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "access/Splash.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "online/FormFirma.h"
#include "platform/Ag.h"
#include "platform/Sunucu.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr std::string_view kTamProfil =
    "\"G\xFCl\",\"Can\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\","
    "\"Sokak\",\"VAN\",\"Edremit\",\"\",\"\",\"\",\"4\"\r\n";
constexpr int kSonraMs = 20;

/// A firm in its windows with the real network, and a service that takes a request and never answers.
struct SusanServis : GuiFirma {
    SusanServis() {
        gercektenBiter = true;
        agac.Koy(u"Firma.dll", kTamProfil);
        agac.KoyMetin(u"Adresler.dat", u"\"" + sunucu.Adres(u"") + u"\",\"\",\"\",\"\"\r\n");
        AgiBagla(program.ortam);
        BeklerkenGoster(program.ortam);
        program.Splash->Check1 = 1;
        // It asks by itself, some seconds on, and is no part of this.
        program.FormTablo->DuyuruKontrol.tik = [] {};
    }

    /// Runs the program as it runs for its user, until it is told to end: first `is`, then, while the request
    /// that it leads to is waited for, `beklerken`.
    void Calistir(const std::function<void()>& is, const std::function<void()>& beklerken) {
        Ac();
        QTimer bak;
        QObject::connect(&bak, &QTimer::timeout, &bak, [&] {
            if (sunucu.Istekler().empty())
                return;
            bak.stop();
            beklemede.start();
            beklerken();
        });
        bak.start(kSonraMs);
        QTimer::singleShot(0, qApp, is);
        QTimer kurtar; // a program that doesn't end hangs no test
        QObject::connect(&kurtar, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
        kurtar.start(std::chrono::seconds(30));
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(disDunya.Bitti());
        disDunya.PencereleriBirak();
    }
    /// Opens the profile over the table and presses "Tamam", which sends it.
    void ProfiliGonder() {
        QTimer::singleShot(kSonraMs, qApp, [this] {
            auto* pencere = disDunya.Pencere(EkranAdi::FormFirma);
            profil = pencere;
            Tikla(*pencere, "Command1");
        });
        MenudenSec(*this, "FirmaBilgiss");
    }

    Sunucu sunucu{{Sus(), Sus()}};
    QElapsedTimer beklemede; // since the service has the request
    QPointer<QWidget> profil;
};

} // namespace

/// Windows and the end of the program, while the real network keeps one of their handlers waiting.
class AgBeklemeTest : public QObject {
    Q_OBJECT

  private slots:
    void a_program_that_is_told_to_end_while_the_profile_is_sent_waits_for_nothing() {
        SusanServis firma;
        firma.Calistir([&] { firma.ProfiliGonder(); }, [&] { firma.program.ortam.olaylar.bitir(); });
        QVERIFY2(firma.beklemede.elapsed() < kIstekSuresi * 1000 / 2,
                 "it has waited for the time of the request to run out");
        QVERIFY2(firma.agac.Var(u"Sunucu.dat"), "what the button does behind the send is done all the same");
        QCOMPARE(firma.sunucu.Istekler().size(), std::size_t{1});
    }

    void the_main_window_closes_with_its_question_while_a_profile_is_sent_behind_it() {
        SusanServis firma;
        bool donuldu = false;
        firma.Calistir(
            [&] {
                firma.program.FormFirma->gonder();
                donuldu = true;
            },
            [&] {
                QVERIFY(!donuldu);
                Pencerede([&] { firma.Pencere().close(); },
                          {Mesaj(QStringLiteral("Programdan çıkmak istediğinizden emin misiniz?"),
                                 QStringLiteral("Evet"))});
                QCOMPARE(firma.bitisler, 1);
            });
        QVERIFY(donuldu);
    }

    void a_window_that_goes_while_its_profile_is_sent_gives_the_request_up_and_the_program_goes_on() {
        SusanServis firma;
        firma.Calistir([&] { firma.ProfiliGonder(); },
                       [&] {
                           firma.program.FormFirma.Bosalt();
                           QVERIFY(!firma.profil->isVisible());
                           QTimer::singleShot(10 * kSonraMs, qApp, [&] {
                               QVERIFY2(firma.profil == nullptr, "the handler is still waiting");
                               QVERIFY(firma.agac.Var(u"Sunucu.dat"));
                               QTest::keyClick(&firma.Tablo(), Qt::Key_Right);
                               QVERIFY(!firma.Model().SeciliTarih.empty());
                               firma.program.ortam.olaylar.bitir();
                           });
                       });
    }
};

VELORA_GUI_TEST(AgBeklemeTest)
#include "AgBeklemeTest.moc"
