#include <algorithm>
#include <set>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "gui/Diyaloglar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "reservation/FormKayit.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormRenk.h"

using namespace velora;
using namespace velora::test;

namespace {

/// Does something in a window of the table, opened over the main screen.
void Diyalogda(GuiFirma& firma, const Diyalog& diyalog, const Is& is) {
    Pencerede([&] { diyalog.ac(firma.program); }, {is});
}

/// The number of its pages; a window without tabs is one.
int SayfaSayisi(const QDialog& pencere) {
    const auto* sayfalar = pencere.findChild<QTabWidget*>();
    return sayfalar == nullptr ? 1 : sayfalar->count();
}

using Ekranlar = std::set<EkranAdi>;

/// The names of the screens that are in the first set only.
QString Farki(const Ekranlar& bir, const Ekranlar& iki) {
    QStringList kalanlar;
    for (const EkranAdi ekran : bir)
        if (!iki.contains(ekran))
            kalanlar << QMetin(EkranBul(ekran).ad);
    return kalanlar.join(u' ');
}

/// The screens that the program can make a window for.
Ekranlar Taninanlar(const GuiFirma& firma) {
    const auto taninanlar = firma.disDunya.Taninanlar();
    return {taninanlar.begin(), taninanlar.end()};
}

/// A new reservation would ask before it is dropped.
void SorusuzKapansin(Program& program) {
    if (program.FormKayit.Yuklu())
        program.FormKayit->KayitAc = 1;
}

/// The Tab key until it leaves the control: a date takes it for its day, month and year first.
void SonrakineGit() {
    const QPointer<QWidget> alan = QApplication::focusWidget();
    const int enCok = qobject_cast<QDateEdit*>(alan) == nullptr ? 1 : 3;
    for (int i = 0; i < enCok && QApplication::focusWidget() == alan; ++i)
        Tusla(Qt::Key_Tab);
}

void SayfayaGec(const QDialog& pencere, int sayfa) {
    if (auto* sayfalar = pencere.findChild<QTabWidget*>())
        sayfalar->setCurrentIndex(sayfa);
}

/// From the first of `beklenen` the Tab key leads once around.
void TabGezmeli(const QDialog& pencere, int sayfa, const QStringList& beklenen) {
    if (sayfa > 0) {
        SayfayaGec(pencere, sayfa);
        Parcasi<QWidget>(pencere, qPrintable(beklenen.front())).setFocus();
    }
    QStringList durulan;
    for (qsizetype i = 0; i < beklenen.size(); ++i) {
        durulan << Odaktaki();
        SonrakineGit();
    }
    QCOMPARE(durulan, beklenen);
    QCOMPARE(Odaktaki(), beklenen.front());
}

/// The captions on the display that can have an access key.
QStringList Yazilar(const QWidget& pencere) {
    QStringList yazilar;
    for (const auto* dugme : pencere.findChildren<QAbstractButton*>())
        if (dugme->isVisible() && !dugme->text().isEmpty())
            yazilar << dugme->text();
    for (const auto* etiket : pencere.findChildren<QLabel*>())
        if (etiket->isVisible() && etiket->buddy() != nullptr &&
            etiket->buddy()->focusPolicy() != Qt::NoFocus)
            yazilar << etiket->text();
    for (const auto* sayfalar : pencere.findChildren<QTabWidget*>())
        for (int i = 0; i < sayfalar->count(); ++i)
            yazilar << sayfalar->tabText(i);
    return yazilar;
}

/// Of a caption that has none: another key leads there, as the page that a button is called by does, or the
/// first of some choices; and no letter of it is left.
void TussuzOlabilmeli(const QWidget& pencere, const QString& yazi, const QMap<QChar, QString>& tuslar) {
    bool ayni = false;
    for (const QString& tuslu : tuslar)
        ayni = ayni || Isaretsiz(tuslu) == yazi;
    QVERIFY2(ayni || yazi == Parcasi<QRadioButton>(pencere, "Option2").text(), qPrintable(yazi));
    for (const QChar harf : yazi)
        QVERIFY2(!harf.isLetter() || harf.toUpper() == u'K' || tuslar.contains(harf.toUpper()),
                 qPrintable(yazi + u' ' + harf));
}

void TuslariAyriOlmali(const QWidget& pencere) {
    QMap<QChar, QString> tuslar;
    QStringList tussuzler;
    for (const QString& yazi : Yazilar(pencere)) {
        if (!yazi.contains(u'&')) {
            tussuzler << yazi;
            continue;
        }
        QVERIFY2(yazi.count(u'&') == 1, qPrintable(yazi));
        const QChar tus = yazi[yazi.indexOf(u'&') + 1].toUpper();
        QVERIFY2(tus.isLetter() && tus != u'İ', qPrintable(yazi));
        QVERIFY2(!tuslar.contains(tus), qPrintable(yazi + QStringLiteral(" / ") + tuslar.value(tus)));
        tuslar[tus] = yazi;
    }
    for (const QString& yazi : tussuzler)
        TussuzOlabilmeli(pencere, yazi, tuslar);
}

/// A window that stands on what closes it. That has the letter that it has everywhere.
bool KapatmadaDurur(const Diyalog& diyalog) {
    return diyalog.ekran == EkranAdi::FormWebteYayinla || diyalog.ekran == EkranAdi::FormDuyurular ||
           diyalog.ekran == EkranAdi::FormRezervasyonlar;
}

/// Presses Alt and a letter in the window that has the focus.
void AltIle(Qt::Key tus) {
    QTest::keyClick(QApplication::focusWidget(), tus, Qt::AltModifier);
}

} // namespace

class DiyalogKlavyesiTest : public QObject {
    Q_OBJECT

  private slots:
    void the_screens_that_the_list_gives_a_window_are_the_ones_that_have_one() {
        const GuiFirma firma;
        Ekranlar listedekiler;
        for (const EkranKaydi& kayit : kEkranlar)
            if (kayit.tur == EkranTuru::Pencereli)
                listedekiler.insert(kayit.ekran);
        QCOMPARE(Farki(listedekiler, Taninanlar(firma)), QString());
        QCOMPARE(Farki(Taninanlar(firma), listedekiler), QString());
    }

    void every_window_but_the_main_one_and_that_of_the_start_has_its_row_here() {
        const GuiFirma firma;
        // The keys of the one have a test of their own, the other has nothing to press.
        Ekranlar satirlar{EkranAdi::FormTablo, EkranAdi::Splash};
        for (const Diyalog& diyalog : kDiyaloglar)
            satirlar.insert(diyalog.ekran);
        QCOMPARE(satirlar.size(), std::size(kDiyaloglar) + 2);
        QCOMPARE(Farki(Taninanlar(firma), satirlar), QString()); // windows without a row
        QCOMPARE(Farki(satirlar, Taninanlar(firma)), QString()); // rows without a window
    }

    void on_each_page_each_caption_has_an_access_key_of_its_own_while_letters_last() {
        GuiFirma firma;
        firma.Ac();
        for (const Diyalog& diyalog : kDiyaloglar)
            Diyalogda(firma, diyalog, [&](QDialog& pencere) {
                QVERIFY(Yazilar(pencere).size() >=
                        (diyalog.iptal == nullptr || KapatmadaDurur(diyalog) ? 1 : 2));
                for (int i = 0; i < SayfaSayisi(pencere); ++i) {
                    SayfayaGec(pencere, i);
                    TuslariAyriOlmali(pencere);
                }
            });
    }

    void the_row_of_the_tabs_and_the_field_of_an_editable_list_have_names_too() {
        GuiFirma firma;
        YeniKayitta(firma, u"11.09.2026 - Gece", {[](QDialog& pencere) {
                        QCOMPARE(pencere.findChild<QTabBar*>()->accessibleName(), QStringLiteral("Sayfalar"));
                        int yazilabilen = 0;
                        for (const auto* liste : pencere.findChildren<QComboBox*>()) {
                            if (!liste->isEditable())
                                continue;
                            ++yazilabilen;
                            QVERIFY(!liste->accessibleName().isEmpty());
                            QCOMPARE(liste->lineEdit()->accessibleName(), liste->accessibleName());
                        }
                        QVERIFY(yazilabilen > 0);
                    }});
    }

    void the_key_k_saves_wherever_something_is_saved_and_belongs_to_nothing_else() {
        GuiFirma firma;
        firma.Ac();
        int kaydedenler = 0;
        for (const bool eski : {false, true}) // a record that is there already says "Kaydet", a new one
                                              // doesn't
            for (const Diyalog& diyalog : kDiyaloglar)
                Diyalogda(firma, diyalog, [&](QDialog& pencere) {
                    if (eski && diyalog.ekran == EkranAdi::FormKayit) {
                        SorusuzKapansin(firma.program);
                        firma.program.FormKayit->Activate();
                        Baglayici::HepsiniTazele();
                    }
                    for (const QString& yazi : Yazilar(pencere)) {
                        QCOMPARE(yazi.contains(QStringLiteral("&K")), yazi == QStringLiteral("&Kaydet"));
                        QVERIFY2(!yazi.contains(QStringLiteral("&k")), qPrintable(yazi));
                        kaydedenler += yazi == QStringLiteral("&Kaydet") ? 1 : 0;
                    }
                });
        // The record once; the settings, the holidays, the expenses, the contract, the firm's profile and the
        // requests twice.
        QCOMPARE(kaydedenler, 13);
    }

    void the_button_of_enter_has_its_first_letter() {
        GuiFirma firma;
        firma.Ac();
        for (const Diyalog& diyalog : kDiyaloglar)
            Diyalogda(firma, diyalog, [&](QDialog& pencere) {
                const QString yazi = Parcasi<QPushButton>(pencere, diyalog.dolu).text();
                QVERIFY2(KapatmadaDurur(diyalog) ? yazi.contains(u'&') : yazi.startsWith(u'&'),
                         qPrintable(yazi));
            });
    }

    void the_captions_of_the_screens_know_no_marks() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { firma.program.FormAyarlar.GosterModal(); }, {[&](QDialog& pencere) {
                      const auto ekran = firma.program.FormAyarlar.Tut();
                      QVERIFY(Parcasi<QPushButton>(pencere, "Command2").text() == QStringLiteral("İ&ptal"));
                      QCOMPARE(ekran->Command2.baslik, Metin(u"İptal"));
                      QCOMPARE(ekran->Aylar[1].baslik, Metin(u"Ocak"));
                      QCOMPARE(Parcasi<QCheckBox>(pencere, "Aylar1").accessibleName(),
                               QStringLiteral("Ocak"));
                  }});
    }

    void tab_walks_the_fields_and_the_buttons_in_their_order() {
        for (const Diyalog& diyalog : kDiyaloglar) {
            int sayfaSayisi = 1;
            for (int sayfa = 0; sayfa < sayfaSayisi; ++sayfa) {
                GuiFirma firma;
                firma.Ac();
                Diyalogda(firma, diyalog, [&](QDialog& pencere) {
                    sayfaSayisi = SayfaSayisi(pencere);
                    const char* satir = diyalog.sayfalar.at(static_cast<std::size_t>(sayfa));
                    QVERIFY2(satir != nullptr, qPrintable(pencere.windowTitle()));
                    TabGezmeli(pencere, sayfa, QString(satir).split(u' '));
                });
            }
            const auto fazla = diyalog.sayfalar.begin() + sayfaSayisi;
            QVERIFY(std::all_of(fazla, diyalog.sayfalar.end(), [](const char* s) { return s == nullptr; }));
        }
    }

    void each_window_has_one_button_for_enter_and_escape_cancels() {
        GuiFirma firma;
        firma.Ac();
        for (const Diyalog& diyalog : kDiyaloglar)
            Diyalogda(firma, diyalog, [&](QDialog& pencere) {
                QStringList bulunan;
                for (const auto* dugme : pencere.findChildren<QPushButton*>())
                    if (dugme->isDefault())
                        bulunan << dugme->objectName();
                QCOMPARE(bulunan, QStringList{diyalog.dolu});
                SorusuzKapansin(firma.program);
                QTest::keyClick(&pencere, Qt::Key_Escape);
                QVERIFY(!pencere.isVisible());
            });
    }

    void enter_on_the_button_that_cancels_presses_that_one() {
        GuiFirma firma;
        firma.Ac();
        for (const Diyalog& diyalog : kDiyaloglar)
            Diyalogda(firma, diyalog, [&](QDialog& pencere) {
                SorusuzKapansin(firma.program);
                if (diyalog.iptal == nullptr)
                    return;
                Parcasi<QPushButton>(pencere, diyalog.iptal).setFocus();
                // A box would come out of another button.
                Pencerede([] { Tusla(Qt::Key_Return); }, {});
                QVERIFY2(!pencere.isVisible(), qPrintable(pencere.windowTitle()));
            });
    }

    void after_delete_and_edit_the_list_has_the_focus_and_enter_still_adds() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { firma.program.FormSalonTanim.GosterModal(); }, {[](QDialog& pencere) {
                      for (const Qt::Key tus : {Qt::Key_D, Qt::Key_I}) {
                          QCOMPARE(Odaktaki(), QStringLiteral("List1"));
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
                          bool kosuldu = false;
                          const auto ac = [&] {
                              AltIle(tus);
                              QTRY_VERIFY(kosuldu);
                          };
                          Pencerede(ac, {[&](QDialog& kutu) {
                                        kosuldu = true;
                                        QTest::keyClick(&kutu, Qt::Key_Escape);
                                    }});
                      }
                      QCOMPARE(Odaktaki(), QStringLiteral("List1"));
                      QVERIFY(Parcasi<QPushButton>(pencere, "Command1").isDefault());
                      Pencerede([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); },
                                {Girdi(QStringLiteral(" "))});
                  }});
    }

    void access_keys_lead_to_fields_press_buttons_and_turn_pages() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { AdliMenuEkleAc(firma.program); }, {[](QDialog& pencere) {
                      Parcasi<QPushButton>(pencere, "Command3").setFocus();
                      AltIle(Qt::Key_M);
                      QCOMPARE(Odaktaki(), QStringLiteral("Text1"));
                      AltIle(Qt::Key_P);
                      Kapanincaya(pencere);
                  }});
        Pencerede([&] { firma.program.FormAyarlar.GosterModal(); }, {[](QDialog& pencere) {
                      const auto& ekim = Parcasi<QCheckBox>(pencere, "Aylar10");
                      QVERIFY(ekim.isChecked());
                      AltIle(Qt::Key_E);
                      QTRY_VERIFY(!ekim.isChecked());
                      AltIle(Qt::Key_A);
                      QCOMPARE(pencere.findChild<QTabWidget*>()->currentIndex(), 1);
                  }});
    }

    void the_key_of_a_colour_row_opens_the_picker_for_its_ground() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { firma.program.FormAyarlar.GosterModal(); }, {[&](QDialog& pencere) {
                      AltIle(Qt::Key_A);
                      bool kosuldu = false;
                      const auto ac = [&] {
                          AltIle(Qt::Key_B);
                          QTRY_VERIFY(kosuldu);
                      };
                      Pencerede(ac, {[&](QDialog& renk) {
                                    kosuldu = true;
                                    QCOMPARE(firma.program.FormRenk->Tag, Metin(u"0"));
                                    Tikla(renk, "Command2");
                                }});
                      QVERIFY(pencere.isVisible());
                  }});
    }

    void a_caption_that_changes_while_the_window_stands_is_marked_again() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { AdliMenuEkleAc(firma.program); }, {[&](QDialog& pencere) {
                      const auto& dugme = Parcasi<QPushButton>(pencere, "Command4");
                      QCOMPARE(dugme.text(), QStringLiteral("&Tamam"));
                      firma.program.FormMenuEkle->Command4.baslik = u"Değiştir";
                      Yaz(QStringLiteral("x"));
                      QCOMPARE(dugme.text(), QStringLiteral("&Değiştir"));
                  }});
    }
};

VELORA_GUI_TEST(DiyalogKlavyesiTest)
#include "DiyalogKlavyesiTest.moc"
