#include <set>

#include <QMenu>
#include <QTest>
#include <QToolButton>

#include "access/Yetkiler.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What a user who lacks these rights still opens by the keys of the keyboard's upper row; help and the about
/// screen are everybody's.
struct Tuslari {
    std::set<int> eksikler;
    std::set<Metin> acilanlar;
};

const std::vector<Tuslari> kTuslar{
    {{}, {u"F1", u"Ctrl+F1", u"F2", u"F3", u"F4", u"F5", u"F7"}},
    {{1}, {u"F1", u"Ctrl+F1", u"F2", u"F4", u"F5", u"F7"}},
    {{5}, {u"F1", u"Ctrl+F1", u"F2", u"F3", u"F4", u"F5"}},
    {{6, 11}, {u"F1", u"Ctrl+F1", u"F2", u"F3", u"F5", u"F7"}},
    {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, {u"F1", u"Ctrl+F1", u"F2", u"F5"}},
};

/// All of them, whether a command has it or not.
constexpr MetinBakis kUstSira[]{u"F1", u"F2", u"F3",  u"F4",  u"F5",  u"F6",     u"F7",
                                u"F8", u"F9", u"F10", u"F11", u"F12", u"Ctrl+F1"};

void GirisYap(GuiFirma& firma, const std::set<int>& eksikler) {
    std::array<Metin, kYetkiSayisi> yetkiler;
    for (int no = 1; no <= kYetkiSayisi; ++no)
        yetkiler[static_cast<std::size_t>(no - 1)] = eksikler.contains(no) ? u"0" : u"1";
    YetkileriUygula(firma.program.oturum, KullaniciSatiri(u"ali", u"a1", yetkiler));
    firma.Ac();
}

void SagBas(GuiFirma& firma) {
    QTest::mouseClick(&firma.Tablo(), Qt::RightButton, {},
                      firma.Orta(firma.Tablo().Duzen().Hucre(EylulGece, 10)));
}

} // namespace

/// What a user has no right to, in the window.
class YetkilerTest : public QObject {
    Q_OBJECT

  private slots:
    void the_key_of_a_hidden_entry_is_dead() {
        for (const Tuslari& kullanici : kTuslar) {
            GuiFirma firma;
            GirisYap(firma, kullanici.eksikler);
            for (const MetinBakis tusu : kUstSira) {
                int acilan = 0;
                const bool acilmali = kullanici.acilanlar.contains(Metin(tusu));
                const std::vector<Is> pencere(acilmali ? 1 : 0, [&](QDialog& /*pencere*/) { ++acilan; });
                const auto tus = QKeySequence::fromString(QMetin(tusu))[0];
                Pencerede([&] { QTest::keyClick(&firma.Tablo(), tus.key(), tus.keyboardModifiers()); },
                          pencere);
                QVERIFY2(acilan == (acilmali ? 1 : 0), qPrintable(QMetin(tusu)));
            }
        }
    }

    void without_the_right_to_settings_their_button_still_opens_them_as_is_meant() {
        GuiFirma firma;
        GirisYap(firma, {5});
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F7); }, {});
        Pencerede([&] { QTest::mouseClick(&firma.Bul<QToolButton>("Toolbar1_13"), Qt::LeftButton); },
                  {[](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Genel Program Ayarları"));
                  }});
    }

    void a_hidden_entry_stays_dead_when_all_is_refreshed_and_the_screen_comes_to_the_front_again() {
        GuiFirma firma;
        GirisYap(firma, {1});
        auto& girdi = firma.Bul<QAction>("BakiyeRaporss");
        firma.Model().Activate();
        Baglayici::HepsiniTazele();
        QVERIFY(!girdi.isVisible());
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F3); }, {});
        QVERIFY(!firma.Bul<QAction>("aline1").isVisible());
        QVERIFY(firma.Bul<QAction>("iptalsebepss").isVisible());
    }

    void the_menu_of_a_cell_shows_what_is_left_and_with_nothing_left_it_does_not_open() {
        {
            GuiFirma firma;
            GirisYap(firma, {3, 8});
            SagBas(firma);
            const auto& menu = firma.Bul<QMenu>("Sagtus");
            QTRY_VERIFY(menu.isVisible());
            QVERIFY(!firma.Bul<QAction>("newkay").isVisible());
            QVERIFY(!firma.Bul<QAction>("TasimaModuAc").isVisible());
            QVERIFY(firma.Bul<QAction>("iptals").isVisible());
        }
        GuiFirma firma;
        GirisYap(firma, {2, 3, 8});
        SagBas(firma);
        QTest::keyClick(&firma.Tablo(), Qt::Key_Menu);
        QCoreApplication::processEvents();
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
    }
};

VELORA_GUI_TEST(YetkilerTest)
#include "YetkilerTest.moc"
