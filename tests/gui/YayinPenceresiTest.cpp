#include <atomic>
#include <chrono>
#include <set>
#include <utility>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "access/Splash.h"
#include "destek/Servis.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "platform/Ag.h"
#include "platform/Sunucu.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr int kBolSure = 30'000; // milliseconds that no loaded machine needs

/// The number of the request whose reply is held back. Set in one thread, waited for in another.
class Tutulan {
  public:
    Tutulan& operator=(int istek) {
        istek_ = istek;
        istek_.notify_all();
        return *this;
    }
    /// Returns at once unless this is the one, and then as soon as it isn't any more.
    void Bekle(int istek) const { istek_.wait(istek); }

  private:
    std::atomic<int> istek_ = 0;
};

/// A firm in its windows with the real network, two halls and two reservations: a publish is five requests.
/// The service holds back its reply to the request of the number `tutulan`.
struct YayinFirmasi : GuiFirma {
    YayinFirmasi() {
        gercektenBiter = true;
        Rezervasyon(kSalonA, u"10.09.2026 - Gece", true);
        Rezervasyon(kSalonA, u"11.09.2026 - Gündüz", false);
        agac.KoyMetin(u"Adresler.dat", u"\"" + sunucu.Adres(u"") + u"\",\"\",\"\",\"\"\r\n");
        AgiBagla(program.ortam);
        BeklerkenGoster(program.ortam);
        program.ortam.ag.donanimAdresi = [] { return DonanimAdresi{1, 2, 3, 4, 5, 6}; };
        program.ortam.ag.baglantiVar = [] { return false; };
        program.Splash->Check1 = 1;
        Ac();
        // It asks by itself, some seconds on, and is no part of this.
        Model().DuyuruKontrol.tik = [] {};
    }
    ~YayinFirmasi() { tutulan = 0; }
    YayinFirmasi(const YayinFirmasi&) = delete;
    YayinFirmasi& operator=(const YayinFirmasi&) = delete;

    void YayinlaTikla() {
        auto& serit = Bul<QToolBar>("Toolbar1");
        for (QAction* dugme : serit.actions())
            if (dugme->text() == QStringLiteral("Yayınla"))
                return QTest::mouseClick(serit.widgetForAction(dugme), Qt::LeftButton);
        QFAIL("there is no such button");
    }
    std::optional<std::string> Cevapla(std::string_view hedef) {
        const auto cevap = servis.Cevapla(hedef);
        ++gelen;
        tutulan.Bekle(gelen);
        return cevap;
    }
    QWidget& YayinPenceresi() { return *disDunya.Pencere(EkranAdi::FormWebteYayinla); }
    std::size_t Yayindakiler() {
        return servis.firmalar[u"01-02-03-04-05-06"].yillar[{u"0", u"2026"}].size();
    }

    Tutulan tutulan;
    std::atomic<int> gelen = 0;
    Servis servis;
    Sunucu sunucu{Baglantilar::AcikKalir, [this](std::string_view hedef) { return Cevapla(hedef); }};
};

/// What a progress bar showed whenever it was painted.
class CubukGozcusu : public QObject {
  public:
    void Bak(QProgressBar& cubuk) {
        cubuk_ = &cubuk;
        cubuk.installEventFilter(this);
    }
    bool eventFilter(QObject* /*nesne*/, QEvent* olay) override {
        if (olay->type() == QEvent::Paint && cubuk_ != nullptr)
            gorulen.insert(cubuk_->value());
        return false;
    }
    std::set<int> gorulen;

  private:
    QPointer<QProgressBar> cubuk_;
};

/// What is done while requests wait: each as soon as so many have come to the service. A publish gets on only
/// when it has returned.
class IstekteYap {
  public:
    IstekteYap(YayinFirmasi& firma, std::vector<std::pair<int, std::function<void()>>> isler)
        : firma_(firma), isler_(std::move(isler)) {
        QObject::connect(&saat_, &QTimer::timeout, &saat_, [this] { Bak(); });
        saat_.start(std::chrono::milliseconds(5));
    }
    ~IstekteYap() {
        if (sira_ != isler_.size())
            QTest::qFail("A request has never come.", __FILE__, __LINE__);
    }
    IstekteYap(const IstekteYap&) = delete;
    IstekteYap& operator=(const IstekteYap&) = delete;

  private:
    void Bak() {
        if (sira_ < isler_.size() && firma_.gelen == isler_[sira_].first)
            isler_[sira_++].second();
    }

    YayinFirmasi& firma_;
    std::vector<std::pair<int, std::function<void()>>> isler_;
    std::size_t sira_ = 0;
    QTimer saat_;
};

} // namespace

/// The window of a publish, over the real network.
class YayinPenceresiTest : public QObject {
    Q_OBJECT

  private slots:
    void it_shows_how_far_it_has_come_while_requests_wait_and_goes_by_itself() {
        YayinFirmasi firma;
        firma.tutulan = 3;
        CubukGozcusu gozcu;
        QPointer<QWidget> pencere;
        const IstekteYap isler(
            firma, {{3,
                     [&] {
                         pencere = &firma.YayinPenceresi();
                         gozcu.Bak(Parcasi<QProgressBar>(*pencere, "ProgressBar1"));
                         firma.tutulan = 5;
                     }},
                    {5, [&] {
                         QVERIFY(pencere->isVisible());
                         QCOMPARE(pencere->windowTitle(), QStringLiteral("Veri Tabanı"));
                         const auto& cubuk = Parcasi<QProgressBar>(*pencere, "ProgressBar1");
                         QCOMPARE(cubuk.value(), 1);
                         QCOMPARE(cubuk.maximum(), 2);
                         QCOMPARE(cubuk.text(), QStringLiteral("1 / 2"));
                         QCOMPARE(cubuk.accessibleName(), QStringLiteral("Gönderilen kayıtlar"));
                         QCOMPARE(Parcasi<QLabel>(*pencere, "Label2").text(),
                                  QStringLiteral("Gül Salonu (2026) kayıtları veri tabanına kaydediliyor."));
                         QVERIFY2(gozcu.gorulen.contains(1), "it is painted between two requests");
                         firma.tutulan = 0;
                     }}});
        firma.YayinlaTikla();
        QVERIFY(pencere == nullptr || !pencere->isVisible());
        QCOMPARE(firma.Yayindakiler(), std::size_t{2});
        QCOMPARE(firma.gelen.load(), 5);
    }

    void an_empty_year_shows_a_bar_that_stands_still() {
        YayinFirmasi firma;
        firma.Model().Sene.Sec(u"2029");
        firma.tutulan = 2;
        const IstekteYap isler(firma, {{2, [&] {
                                            const auto& cubuk =
                                                Parcasi<QProgressBar>(firma.YayinPenceresi(), "ProgressBar1");
                                            QCOMPARE(cubuk.maximum(), 1);
                                            QCOMPARE(cubuk.value(), 0);
                                            QCOMPARE(cubuk.text(), QString());
                                            firma.tutulan = 0;
                                        }}});
        firma.YayinlaTikla();
        QCOMPARE(firma.gelen.load(), 3);
    }

    void cancel_closes_it_between_two_requests_and_the_table_works_on_while_the_rest_goes_out() {
        YayinFirmasi firma;
        firma.tutulan = 2;
        bool donuldu = false;
        const IstekteYap isler(firma, {{2,
                                        [&] {
                                            auto& pencere = firma.YayinPenceresi();
                                            Tikla(pencere, "Command1");
                                            QVERIFY(!pencere.isVisible());
                                            firma.tutulan = 4;
                                        }},
                                       {4, [&] {
                                            QVERIFY2(donuldu, "whoever asked for the publish goes on");
                                            // A request waits, and yet a menu opens its window.
                                            Pencerede([&] { MenudenSec(firma, "Websssunucus"); },
                                                      {TusBas(Qt::Key_Escape)});
                                            QTest::keyClick(&firma.Tablo(), Qt::Key_Right);
                                            QVERIFY(!firma.Model().SeciliTarih.empty());
                                            firma.tutulan = 0;
                                        }}});
        firma.YayinlaTikla();
        donuldu = true;
        QTRY_COMPARE_WITH_TIMEOUT(firma.gelen.load(), 5, kBolSure);
        QTRY_COMPARE_WITH_TIMEOUT(firma.Model().YayinTimer.aralik, 0, kBolSure);
        QCOMPARE(firma.Yayindakiler(), std::size_t{2});
    }

    void the_rest_goes_out_also_while_another_window_stands_over_the_table() {
        YayinFirmasi firma;
        firma.tutulan = 1;
        const IstekteYap isler(firma, {{1, [&] {
                                            QTest::keyClick(&firma.YayinPenceresi(), Qt::Key_Escape);
                                            firma.tutulan = 2;
                                        }}});
        firma.YayinlaTikla();
        QTRY_COMPARE_WITH_TIMEOUT(firma.gelen.load(), 2, kBolSure);
        // A request of the rest is under way when the window opens.
        Pencerede([&] { MenudenSec(firma, "Websssunucus"); }, {[&](QDialog& pencere) {
                      firma.tutulan = 0;
                      QTRY_COMPARE_WITH_TIMEOUT(firma.gelen.load(), 5, kBolSure);
                      QTRY_COMPARE_WITH_TIMEOUT(firma.Model().YayinTimer.aralik, 0, kBolSure);
                      QVERIFY(pencere.isVisible());
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
    }

    void asked_anew_while_the_rest_goes_out_it_shows_its_window_until_both_are_out() {
        YayinFirmasi firma;
        firma.tutulan = 2;
        QPointer<QWidget> ikinci;
        const IstekteYap isler(firma, {{2,
                                        [&] {
                                            QTest::keyClick(&firma.YayinPenceresi(), Qt::Key_Escape);
                                            firma.tutulan = 3;
                                        }},
                                       {3,
                                        [&] {
                                            firma.tutulan = 7;
                                            QTimer::singleShot(0, qApp, [&] { firma.YayinlaTikla(); });
                                        }},
                                       {7, [&] {
                                            ikinci = &firma.YayinPenceresi();
                                            QVERIFY(ikinci->isVisible());
                                            firma.tutulan = 0;
                                        }}});
        firma.YayinlaTikla();
        QTRY_COMPARE_WITH_TIMEOUT(firma.gelen.load(), 10, kBolSure);
        QTRY_VERIFY_WITH_TIMEOUT(ikinci == nullptr || !ikinci->isVisible(), kBolSure);
        QCOMPARE(firma.Yayindakiler(), std::size_t{2});
    }

    void a_program_that_ends_in_the_middle_waits_for_nothing() {
        YayinFirmasi firma;
        firma.tutulan = 3;
        QTimer::singleShot(0, qApp, [&] { firma.YayinlaTikla(); });
        QTimer bak;
        QObject::connect(&bak, &QTimer::timeout, &bak, [&] {
            if (firma.gelen == 3)
                firma.program.ortam.olaylar.bitir();
        });
        bak.start(std::chrono::milliseconds(5));
        QTimer kurtar; // a program that doesn't end hangs no test
        QObject::connect(&kurtar, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
        kurtar.start(std::chrono::seconds(8));
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(firma.disDunya.Bitti());
        firma.disDunya.PencereleriBirak();
        QCOMPARE(firma.gelen.load(), 3);
    }
};

VELORA_GUI_TEST(YayinPenceresiTest)
#include "YayinPenceresiTest.moc"
