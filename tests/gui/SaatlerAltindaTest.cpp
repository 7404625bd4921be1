#include <algorithm>
#include <array>

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "gui/Diyaloglar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/documents/SayfaGorunumu.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr int kAralikMs = 3;
constexpr int kTusArasi = 8; // the timers tick between two keys

/// The three timers of the table tick fast, each for itself.
class Saatler {
  public:
    explicit Saatler(FormTablo& tablo) {
        int aralik = kAralikMs;
        for (Zamanlayici* saat : {&tablo.GunTimer, &tablo.CetvelTimer, &tablo.OzelHatirlatTimer}) {
            saat->aralik = aralik++;
            saat->tik = [this, sira = tikler_.size(), once = saat->tik] {
                ++tikler_[sira];
                once();
            };
            tikler_.push_back(0);
        }
        Baglayici::HepsiniTazele();
    }
    Saatler(const Saatler&) = delete;
    Saatler& operator=(const Saatler&) = delete;

    bool HepsiCalisti() const {
        return std::ranges::all_of(tikler_, [](int tik) { return tik > 3; });
    }

  private:
    std::vector<int> tikler_;
};

/// What was done in a window and what it looked like behind each step. The same steps must leave the same
/// marks with and without timers that tick.
class Gunluk {
  public:
    explicit Gunluk(bool saatli) : saatli_(saatli) {}

    void Bekle() const {
        if (saatli_)
            QTest::qWait(kTusArasi);
    }
    void Tusla(QWidget& parca, Qt::Key tus, Qt::KeyboardModifiers ek = Qt::NoModifier) const {
        QTest::keyClick(&parca, tus, ek);
        Bekle();
    }
    void Yaz(QWidget& parca, const char* tuslar) const {
        for (; *tuslar != '\0'; ++tuslar) {
            QTest::keyClick(&parca, *tuslar);
            Bekle();
        }
    }
    void Not(const QWidget& parca, const QString& hal) {
        satirlar << parca.objectName() + QStringLiteral(": ") + hal;
    }

    QStringList satirlar;

  private:
    bool saatli_;
};

void SatirdaCalis(Gunluk& gunluk, QLineEdit& alan) {
    gunluk.Yaz(alan, "1203");
    gunluk.Tusla(alan, Qt::Key_Left);
    gunluk.Tusla(alan, Qt::Key_Left, Qt::ShiftModifier);
    gunluk.Not(alan, alan.displayText() + u'|' + alan.selectedText() + u'|' +
                         QString::number(alan.cursorPosition()));
}

void MetindeCalis(Gunluk& gunluk, QPlainTextEdit& alan) {
    for (int satir = 0; satir < 12; ++satir) {
        gunluk.Yaz(alan, "a");
        gunluk.Tusla(alan, Qt::Key_Return);
    }
    gunluk.Tusla(alan, Qt::Key_Up, Qt::ShiftModifier);
    alan.verticalScrollBar()->setValue(2);
    gunluk.Bekle();
    gunluk.Not(alan, alan.toPlainText() + u'|' + alan.textCursor().selectedText() + u'|' +
                         QString::number(alan.verticalScrollBar()->value()));
}

void TarihteCalis(Gunluk& gunluk, QDateEdit& alan) {
    alan.setSelectedSection(QDateTimeEdit::DaySection);
    gunluk.Yaz(alan, "28022026");
    gunluk.Not(alan, alan.text());
    QStyleOptionComboBox ok; // its arrow is that of a drop-down
    ok.initFrom(&alan);
    QTest::mouseClick(
        &alan, Qt::LeftButton, {},
        alan.style()->subControlRect(QStyle::CC_ComboBox, &ok, QStyle::SC_ComboBoxArrow, &alan).center());
    QCalendarWidget* takvim = alan.calendarWidget();
    QTRY_VERIFY(takvim->isVisible());
    takvim->showNextMonth();
    takvim->showNextMonth();
    gunluk.Bekle();
    gunluk.Not(alan, QStringLiteral("%1 %2.%3")
                         .arg(takvim->isVisible())
                         .arg(takvim->monthShown())
                         .arg(takvim->yearShown()));
    takvim->window()->close();
}

void SecimdeCalis(Gunluk& gunluk, QComboBox& secim) {
    if (secim.count() < 2)
        return;
    secim.showPopup();
    QTRY_VERIFY(secim.view()->isVisible());
    gunluk.Tusla(*secim.view(), Qt::Key_Down);
    gunluk.Bekle();
    gunluk.Not(
        secim,
        QStringLiteral("%1 %2").arg(secim.view()->isVisible()).arg(secim.view()->currentIndex().row()));
    secim.hidePopup();
}

void ListedeCalis(Gunluk& gunluk, QTreeWidget& liste) {
    gunluk.Tusla(liste, Qt::Key_Down);
    gunluk.Tusla(liste, Qt::Key_Down);
    liste.verticalScrollBar()->setValue(7);
    gunluk.Bekle();
    gunluk.Not(
        liste,
        QStringLiteral("%1 %2").arg(liste.currentIndex().row()).arg(liste.verticalScrollBar()->value()));
}

void SayfadaCalis(Gunluk& gunluk, SayfaGorunumu& sayfa) {
    gunluk.Tusla(sayfa, Qt::Key_Down);
    gunluk.Tusla(sayfa, Qt::Key_PageDown);
    gunluk.Bekle();
    gunluk.Not(sayfa, QString::number(sayfa.verticalScrollBar()->value()));
}

/// Everything in the window that takes the focus is worked on.
void HerYerindeCalis(Gunluk& gunluk, QWidget& pencere) {
    for (auto* parca : pencere.findChildren<QWidget*>()) {
        if (!parca->isVisible() || !parca->isEnabled() ||
            parca->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        pencere.window()->activateWindow(); // an open list or calendar had the keyboard
        QTRY_VERIFY(pencere.window()->isActiveWindow());
        parca->setFocus();
        QCoreApplication::processEvents(); // some select all they hold behind that
        if (auto* alan = qobject_cast<QLineEdit*>(parca); alan != nullptr && !alan->isReadOnly())
            SatirdaCalis(gunluk, *alan);
        else if (auto* metin = qobject_cast<QPlainTextEdit*>(parca); metin != nullptr && !metin->isReadOnly())
            MetindeCalis(gunluk, *metin);
        else if (auto* tarih = qobject_cast<QDateEdit*>(parca))
            TarihteCalis(gunluk, *tarih);
        else if (auto* secim = qobject_cast<QComboBox*>(parca))
            SecimdeCalis(gunluk, *secim);
        else if (auto* liste = qobject_cast<QTreeWidget*>(parca))
            ListedeCalis(gunluk, *liste);
        else if (auto* sayfa = dynamic_cast<SayfaGorunumu*>(parca))
            SayfadaCalis(gunluk, *sayfa);
    }
}

void FirmayiDoldur(GuiFirma& firma) {
    Metin menuler;
    for (int i = 10; i < 40; ++i) {
        firma.Rezervasyon(kSalonA,
                          SayiMetni(i % 28 + 1).insert(0, i % 28 + 1 < 10 ? u"0" : u"") + u".05.2026 - Gece",
                          true);
        menuler += u"\"Menü " + SayiMetni(i) + u"\",\"Çorba\"\r\n";
    }
    firma.agac.KoyMetin(u"Menuler.dat", menuler);
}

/// A record of the tree is searched for, listed and paid.
void PencereyiDoldur(Program& program, EkranAdi ekran) {
    if (ekran == EkranAdi::FormArama) {
        program.FormArama->Text[1].metin = u"ali";
        program.FormArama->Command3_Click();
    } else if (ekran == EkranAdi::FormBakiye) {
        program.FormBakiye->ListeleGun();
    } else if (ekran == EkranAdi::FormKasa) {
        for (int i = 1; i <= 40; ++i)
            program.FormKasa->Liste.satirlar.push_back(
                {{u"01.02.2026", SayiMetni(i), u"Gider", u"x"}, {}, 0});
    } else if (ekran == EkranAdi::FormGiderler) {
        for (int i = 1; i <= 40; ++i)
            program.FormGiderler->Liste.satirlar.push_back(
                {{u"01.02.2026", SayiMetni(i), u"Gider", u"x"}, {}, 0});
    } else if (ekran == EkranAdi::FormKayit) {
        for (int i = 1; i <= 40; ++i)
            program.FormKayit->Liste.satirlar.push_back({{u"01.02.2026", SayiMetni(i), u"x"}, {}, 0});
    }
    Baglayici::HepsiniTazele();
}

} // namespace

/// What the user does in a window isn't disturbed by what blinks on the table behind it.
class SaatlerAltindaTest : public QObject {
    Q_OBJECT

    static QStringList Dialogda(const Diyalog& diyalog, bool saatli) {
        GuiFirma firma;
        FirmayiDoldur(firma);
        firma.Ac();
        std::optional<Saatler> saatler;
        Gunluk gunluk(saatli);
        Pencerede([&] { diyalog.ac(firma.program); }, {[&](QDialog& pencere) {
                      if (saatli)
                          saatler.emplace(firma.Model());
                      PencereyiDoldur(firma.program, diyalog.ekran);
                      HerYerindeCalis(gunluk, pencere);
                      if (auto* sayfalar = pencere.findChild<QTabWidget*>())
                          for (int i = 1; i < sayfalar->count(); ++i) {
                              sayfalar->setCurrentIndex(i);
                              HerYerindeCalis(gunluk, pencere);
                          }
                      QTRY_VERIFY(!saatler || saatler->HepsiCalisti());
                  }});
        return gunluk.satirlar;
    }

  private slots:
    void typing_selecting_scrolling_and_open_lists_are_the_same_while_the_table_blinks_data() {
        QTest::addColumn<int>("sira");
        for (int sira = 0; sira < static_cast<int>(std::size(kDiyaloglar)); ++sira)
            QTest::newRow(qPrintable(QMetin(EkranBul(kDiyaloglar[sira].ekran).ad))) << sira;
    }

    void typing_selecting_scrolling_and_open_lists_are_the_same_while_the_table_blinks() {
        QFETCH(const int, sira);
        const QStringList sakin = Dialogda(kDiyaloglar[sira], false);
        // These have nothing that can be typed into or opened.
        constexpr std::array kAlansiz{EkranAdi::FormSalonTanim,      EkranAdi::FormSunucu,
                                      EkranAdi::FormWebteYayinla,    EkranAdi::FormDuyurular,
                                      EkranAdi::FormResmiTatilYukle, EkranAdi::FormDownloadManager};
        QVERIFY(!sakin.isEmpty() || std::ranges::find(kAlansiz, kDiyaloglar[sira].ekran) != kAlansiz.end());
        QCOMPARE(Dialogda(kDiyaloglar[sira], true), sakin);
    }

    void the_lists_over_the_table_and_its_panel_too() {
        QStringList gunlukler[2];
        for (const bool saatli : {false, true}) {
            GuiFirma firma;
            for (int gun = 21; gun <= 31; ++gun)
                firma.Rezervasyon(kSalonA, SayiMetni(gun) + u".05.2026 - Gece", true);
            firma.Ac();
            QVERIFY(firma.Model().Picture1.gorunur);
            std::optional<Saatler> saatler;
            if (saatli)
                saatler.emplace(firma.Model());
            Gunluk gunluk(saatli);
            for (const char* ad : {"Salon", "Sene"})
                SecimdeCalis(gunluk, firma.Bul<QComboBox>(ad));
            ListedeCalis(gunluk, firma.Bul<QTreeWidget>("Liste"));
            gunlukler[saatli ? 1 : 0] = gunluk.satirlar;
            QVERIFY(!saatler || saatler->HepsiCalisti());
        }
        QCOMPARE(gunlukler[0].size(), 3);
        QCOMPARE(gunlukler[1], gunlukler[0]);
    }
};

VELORA_GUI_TEST(SaatlerAltindaTest)
#include "SaatlerAltindaTest.moc"
