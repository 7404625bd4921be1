#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "documents/FormSozlesme.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "gui/PdfOkuma.h"
#include "qt/Ceviri.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr MetinBakis kGun = u"20.06.2026 - Gece";
const QString kMaddeYok = QStringLiteral("Lütfen yazdırmadan önce sözleşme ayarlarınızı yapınız!");

/// Where the middle of a widget lies in its window.
QPoint Yeri(QWidget& pencere, const char* ad) {
    auto& parca = Parcasi<QWidget>(pencere, ad);
    return parca.mapTo(&pencere, parca.rect().center());
}

/// As the system sends it: a window that another one keeps from the user doesn't get it.
void SistemleTikla(QWidget& pencere, const char* ad) {
    QTest::mouseClick(pencere.windowHandle(), Qt::LeftButton, {}, Yeri(pencere, ad));
    QCoreApplication::processEvents(); // a field may select its text
}
void SistemleYaz(QWidget& pencere, const char* harfler) {
    for (const char* harf = harfler; *harf != '\0'; ++harf)
        QTest::keyClick(pencere.windowHandle(), *harf);
}

/// A firm whose prints are kept.
struct BaskiFirmasi : GuiFirma {
    explicit BaskiFirmasi(std::string_view sozlesme) {
        agac.Koy(u"Sozlesme.dat", sozlesme);
        program.ortam.kagit.yazdir = [this](const std::vector<Sayfa>&, const Metin& ad) {
            basilanlar << QMetin(ad);
            // A copy: what runs may take itself out.
            if (const auto is = basarken)
                is();
            return basilir;
        };
    }

    QWidget* Sablon() { return disDunya.Pencere(EkranAdi::FormSozlesme); }

    QStringList basilanlar;
    std::function<void()> basarken; ///< what happens while the printer takes a page
    bool basilir = true;
};

/// Counts the boxes that come up while it stands, also one that is gone at once.
class KutuSayaci : public QObject {
  public:
    KutuSayaci() { qApp->installEventFilter(this); }
    int Sayi() const { return sayi_; }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::Show && qobject_cast<QMessageBox*>(nesne) != nullptr)
            ++sayi_;
        return QObject::eventFilter(nesne, olay);
    }

  private:
    int sayi_ = 0;
};

constexpr std::string_view kMaddeli = "\"Kurallar\",\"1 - Kira\"\r\n";
constexpr std::string_view kMaddesiz = "\"Kurallar\",\"\"\r\n";
const QString kIs = QStringLiteral("20.06.2026 - Gül Salonu - Ali - Sözleşme");

/// On a new record of "Ali".
void Kayitta(BaskiFirmasi& firma, const Is& is) {
    YeniKayitta(firma, kGun, {[&](QDialog& kayit) {
                    Yaz(QStringLiteral("Ali"));
                    is(kayit);
                    if (firma.program.FormKayit.Yuklu())
                        firma.program.FormKayit->KayitAc = 1; // closes without a question
                }});
}

/// A press on "Sözleşme Yazdır", that many copies, with neither note nor menu.
void Yazdir(QDialog& kayit, const char* kopya, const std::vector<Is>& sonra) {
    std::vector<Is> isler{Girdi(QString::fromLatin1(kopya))};
    isler.insert(isler.end(), sonra.begin(), sonra.end());
    Pencerede([&] { Tikla(kayit, "Command3"); }, isler);
}

Is SenedeHayir() {
    return Mesaj(QStringLiteral("Sözleşme ile birlikte senet bastırmak ister misiniz?"),
                 QStringLiteral("Hayır"));
}
Is MenuyeHayir() {
    return Mesaj(QStringLiteral("Menüyü bastırmak istermisiniz?"), QStringLiteral("Hayır"));
}

/// Prints without clauses, and gives the keyboard to the template that comes.
void SablonuGetir(BaskiFirmasi& firma, QDialog& kayit) {
    Yazdir(kayit, "1", {Mesaj(kMaddeYok)});
    QVERIFY(firma.Sablon() != nullptr && firma.Sablon()->isVisible());
    firma.Sablon()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(firma.Sablon()));
}

} // namespace

/// A contract from its button to the printer, on real windows.
class SozlesmeBaskisiTest : public QObject {
    Q_OBJECT

  private slots:
    void the_questions_start_on_yes_and_each_copy_goes_out() {
        BaskiFirmasi firma(kMaddeli);
        Kayitta(firma, [&](QDialog& kayit) {
            const Is enter = TusBas(Qt::Key_Return);
            Yazdir(kayit, "2", {enter, enter});
            const QString menu = QStringLiteral("20.06.2026 - Gül Salonu - Ali - Menü");
            QCOMPARE(firma.basilanlar, (QStringList{kIs, kIs, menu, menu}));
            QVERIFY(kayit.isVisible());
        });
    }

    void escape_in_the_first_box_prints_nothing() {
        BaskiFirmasi firma(kMaddeli);
        Kayitta(firma, [&](QDialog& kayit) {
            Pencerede([&] { Tikla(kayit, "Command3"); }, {TusBas(Qt::Key_Escape)});
            QCOMPARE(firma.basilanlar, QStringList());
        });
    }

    void the_template_that_comes_over_the_reservation_can_be_used_and_printed_from() {
        BaskiFirmasi firma(kMaddesiz);
        Kayitta(firma, [&](QDialog& kayit) {
            SablonuGetir(firma, kayit);
            QVERIFY(!firma.Sablon()->isModal() && kayit.isModal());
            SistemleTikla(*firma.Sablon(), "Sozlesme");
            SistemleYaz(*firma.Sablon(), "1 - peron");
            QCOMPARE(firma.program.FormSozlesme->Sozlesme.metin, Metin(u"1 - peron"));
            SistemleTikla(*firma.Sablon(), "Command2");
            QVERIFY(firma.Sablon() == nullptr);
            QCOMPARE(firma.agac.Bayt(u"Sozlesme.dat"), std::string("\"Kurallar\",\"1 - peron\"\r\n"));
            QVERIFY(kayit.isVisible());
            Yazdir(kayit, "1", {SenedeHayir(), MenuyeHayir()});
            QCOMPARE(firma.basilanlar, QStringList{kIs});
        });
    }

    void the_reservation_can_be_used_beside_its_template_and_pressed_again() {
        BaskiFirmasi firma(kMaddesiz);
        Kayitta(firma, [&](QDialog& kayit) {
            SablonuGetir(firma, kayit);
            kayit.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&kayit));
            SistemleTikla(kayit, "Kay2");
            SistemleYaz(kayit, "van");
            QCOMPARE(firma.program.FormKayit->Kay[2].metin, Metin(u"van"));
            SablonuGetir(firma, kayit);
            SistemleYaz(*firma.Sablon(), "1 - peron");
            Yazdir(kayit, "1", {SenedeHayir(), MenuyeHayir()});
            QCOMPARE(firma.basilanlar, QStringList{kIs}); // from what is typed and not saved
        });
    }

    void the_template_outlives_the_reservation_and_the_next_one() {
        BaskiFirmasi firma(kMaddesiz);
        Kayitta(firma, [&](QDialog& kayit) { SablonuGetir(firma, kayit); });
        QVERIFY(!firma.program.FormKayit.Yuklu() || !firma.disDunya.Pencere(EkranAdi::FormKayit));
        const QPointer<QWidget> sablon = firma.Sablon();
        QVERIFY(sablon != nullptr && sablon->isVisible());
        SistemleYaz(*sablon, "1 - ");
        firma.program.FormKayit.Bosalt();
        Kayitta(firma, [&](QDialog& kayit) {
            // Behind the new one it can't be reached, until that one brings it up.
            SistemleYaz(*sablon, "yok");
            QCOMPARE(firma.program.FormSozlesme->Sozlesme.metin, Metin(u"1 - "));
            firma.program.FormSozlesme->Sozlesme.metin.clear();
            SablonuGetir(firma, kayit);
            QCOMPARE(firma.Sablon(), sablon.data());
            SistemleYaz(*sablon, "2 - peron");
            QCOMPARE(firma.program.FormSozlesme->Sozlesme.metin, Metin(u"2 - peron"));
        });
    }

    void its_menu_entry_brings_the_template_that_stands_there_over_all() {
        BaskiFirmasi firma(kMaddesiz);
        Kayitta(firma, [&](QDialog& kayit) { SablonuGetir(firma, kayit); });
        firma.program.FormKayit.Bosalt();
        SistemleYaz(*firma.Sablon(), "1 - peron");
        Pencerede([&] { MenudenSec(firma, "Sozduzenss"); }, {[&](QDialog& sablon) {
                      QVERIFY(sablon.isModal());
                      QCOMPARE(&sablon, firma.Sablon());
                      // Nobody gets past it now.
                      QCOMPARE(QGuiApplication::modalWindow(), sablon.windowHandle());
                      const QPointer<QDialog> duran(&sablon);
                      SistemleTikla(sablon, "Command2");
                      QVERIFY(duran == nullptr || !duran->isVisible());
                  }});
        QVERIFY(!firma.program.yigin.Acik(EkranAdi::FormSozlesme));
        QCOMPARE(firma.agac.Bayt(u"Sozlesme.dat"), std::string("\"Kurallar\",\"1 - peron\"\r\n"));
    }

    void what_is_pressed_while_the_printer_waits_does_nothing() {
        BaskiFirmasi firma(kMaddeli);
        firma.basarken = [&] {
            QWidget& kayit = *firma.disDunya.Pencere(EkranAdi::FormKayit);
            for (const char* ad : {"Command3", "Pdf", "Command1", "Command2"})
                SistemleTikla(kayit, ad);
            QTest::keyClick(kayit.windowHandle(), Qt::Key_Escape);
            QVERIFY(kayit.isVisible());
        };
        Kayitta(firma, [&](QDialog& kayit) {
            Yazdir(kayit, "2", {SenedeHayir(), MenuyeHayir()});
            QCOMPARE(firma.basilanlar, (QStringList{kIs, kIs}));
            QVERIFY(firma.program.FormKayit.Yuklu());
        });
    }

    void a_pdf_lies_where_it_was_wanted_and_can_be_searched() {
        BaskiFirmasi firma(kMaddeli);
        const std::filesystem::path dosya = firma.agac.Kok() / "sözleşme.pdf";
        Kayitta(firma, [&](QDialog& kayit) {
            firma.program.FormKayit->Kay[3].metin = u"Gülşah - Çağrı";
            const auto yerSec = [&](QFileDialog& kutu) {
                auto& ad = *kutu.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                QCOMPARE(ad.text(), kIs + QStringLiteral(".pdf"));
                ad.setFocus();
                ad.selectAll();
                Yaz(QString::fromStdU16String(dosya.u16string()));
                Tusla(Qt::Key_Return);
            };
            Pencerede([&] { Tikla(kayit, "Pdf"); },
                      {TusBas(Qt::Key_Return), TusBas(Qt::Key_Return), Kutuda<QFileDialog>(yerSec)});
            QVERIFY(kayit.isVisible());
        });
        const QString metin = PdfMetni(dosya);
        for (const char* aranan : {"Gülşah - Çağrı", "1 - Kira", "Kiralayan İmza", "emre muharrer senedim",
                                   "Menü Bilgileri", "Özel İstekler"})
            QVERIFY2(metin.contains(QString::fromUtf8(aranan)), aranan);
        QVERIFY(PdfBilgisi(dosya).contains(kIs));
    }

    void a_printer_that_takes_nothing_is_told_in_one_box() {
        BaskiFirmasi firma(kMaddeli);
        firma.basilir = false;
        Kayitta(firma, [&](QDialog& kayit) {
            Yazdir(kayit, "3",
                   {SenedeHayir(), Mesaj(QStringLiteral("Bilgisayarınıza bağlı bir yazıcı bulunamadı!"))});
            QCOMPARE(firma.basilanlar, QStringList{kIs});
        });
    }

    void the_end_of_the_program_ends_a_print_without_a_word() {
        BaskiFirmasi firma(kMaddeli);
        firma.gercektenBiter = true;
        firma.basilir = false;
        firma.basarken = [&] { firma.program.ortam.olaylar.bitir(); };
        firma.Ac();
        const KutuSayaci kutular;
        QTimer::singleShot(0, qApp, [&] {
            firma.program.FormKayit->Tarih = kGun;
            firma.program.ortam.sor.girdi = [](const GirdiKutusu&) { return Metin(u"3"); };
            firma.program.ortam.sor.mesaj = [&, sor = firma.program.ortam.sor.mesaj](const auto& kutu) {
                return firma.disDunya.Bitti() ? sor(kutu) : Cevap::Evet;
            };
            firma.program.FormKayit->Command3_Click();
        });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(firma.basilanlar.size(), 1);
        QCOMPARE(kutular.Sayi(), 0);
    }
};

VELORA_GUI_TEST(SozlesmeBaskisiTest)
#include "SozlesmeBaskisiTest.moc"
