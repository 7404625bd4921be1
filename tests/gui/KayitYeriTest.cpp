#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include "destek/GeciciAgac.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/QtOrtam.h"

using namespace velora;
using namespace velora::test;

namespace {

const QString kAd = QStringLiteral("05.01.2012 - Nergis Salonu - Ayşe Yılmaz - Sözleşme.pdf");

QLineEdit& AdAlani(QFileDialog& kutu) {
    return *kutu.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

/// A name is typed over the one that is offered, and Enter pressed.
void AdVer(QFileDialog& kutu, const QString& ad) {
    AdAlani(kutu).setFocus();
    AdAlani(kutu).selectAll();
    Yaz(ad);
    Tusla(Qt::Key_Return);
}

/// What a screen reader says of a widget.
QString Okunusu(QWidget& parca) {
    const QAccessibleInterface* arayuz = QAccessible::queryAccessibleInterface(&parca);
    return arayuz == nullptr ? QString() : arayuz->text(QAccessible::Name);
}

/// The caption that it finds for one.
QString Etiketi(QWidget& parca) {
    const auto bagliler = QAccessible::queryAccessibleInterface(&parca)->relations(QAccessible::Label);
    return bagliler.isEmpty() ? QString() : bagliler.first().first->text(QAccessible::Name);
}

QString Klasoru(const QFileDialog& kutu) {
    return kutu.directory().absolutePath();
}

} // namespace

/// The box that asks where a file is to be saved, as it stands on the display.
class KayitYeriTest : public QObject {
    Q_OBJECT

    /// What the box gives when `isler` are done in it.
    std::optional<std::filesystem::path> Sor(const std::function<void(QFileDialog&)>& is) const {
        std::optional<std::filesystem::path> yol;
        const auto ac = [&] {
            yol = ortam_.sor.kayitYeri({u"PDF Olarak Kaydet", MetinYap(kAd), u"PDF dosyası", u".pdf"});
        };
        Pencerede(ac, {Kutuda<QFileDialog>(is)});
        return yol;
    }
    void OlusanYol(const std::optional<std::filesystem::path>& yol, MetinBakis beklenen) const {
        QVERIFY(yol.has_value());
        QCOMPARE(yol->u16string(), agac_->Yol(beklenen).u16string());
    }

  private slots:
    void init() {
        agac_ = std::make_unique<GeciciAgac>();
        agac_->KlasorKoy(u"Belgeler/Sözleşmeler");
        agac_->Koy(u".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Belgeler\"\n");
        qputenv("HOME", QByteArray::fromStdString(agac_->Kok().string()));
        qunsetenv("XDG_CONFIG_HOME");
        disDunya_ = std::make_unique<QtOrtam>();
        ortam_ = disDunya_->Ver();
    }
    void cleanup() { disDunya_->PencereleriBirak(); }

    void it_offers_the_name_among_the_user_s_documents_and_all_of_it_is_turkish() {
        QStringList basliklarda;
        const auto yol = Sor([&](QFileDialog& kutu) {
            QCOMPARE(kutu.windowTitle(), QStringLiteral("PDF Olarak Kaydet"));
            QCOMPARE(Klasoru(kutu), QString::fromStdString(agac_->Yol(u"Belgeler").string()));
            QCOMPARE(AdAlani(kutu).text(), kAd);
            QCOMPARE(kutu.nameFilters(), QStringList{QStringLiteral("PDF dosyası (*.pdf)")});
            QStringList yazilar;
            for (auto* parca : kutu.findChildren<QWidget*>()) {
                if (!parca->isVisible())
                    continue;
                if (parca->focusPolicy() != Qt::NoFocus && parca->focusProxy() == nullptr)
                    QVERIFY2(!Okunusu(*parca).isEmpty(), qPrintable(parca->objectName()));
                if (const auto* dugme = qobject_cast<QAbstractButton*>(parca))
                    yazilar << Isaretsiz(dugme->text()) << dugme->toolTip();
                if (const auto* etiket = qobject_cast<QLabel*>(parca))
                    yazilar << Isaretsiz(etiket->text());
            }
            QCOMPARE(Etiketi(Parcasi<QComboBox>(kutu, "lookInCombo")), QStringLiteral("Klasör:"));
            QCOMPARE(Etiketi(Parcasi<QComboBox>(kutu, "fileTypeCombo")), QStringLiteral("Dosya türü:"));
            yazilar.removeAll(QString());
            yazilar.sort();
            QCOMPARE(yazilar, QStringList({"Ayrıntılı Görünüm", "Dosya adı:", "Dosya türü:", "Geri", "Kaydet",
                                           "Klasör:", "Liste Görünümü", "Yeni Klasör Oluştur", "Üst Dizin",
                                           "İleri", "İptal"}));
            const auto& basliklar = *kutu.findChild<QTreeView*>()->header();
            for (int sutun = 0; sutun < basliklar.count(); ++sutun)
                if (!basliklar.isSectionHidden(sutun))
                    basliklarda << basliklar.model()->headerData(sutun, Qt::Horizontal).toString();
            Tusla(Qt::Key_Escape);
        });
        QVERIFY(!yol.has_value());
        QCOMPARE(basliklarda, QStringList({"Ad", "Boyut", "Değiştirilme Tarihi"}));
    }

    void enter_takes_the_name_that_it_offers() {
        OlusanYol(Sor([](QFileDialog&) { Tusla(Qt::Key_Return); }), u"Belgeler/" + MetinYap(kAd));
    }

    void a_name_without_the_ending_gets_it_also_when_it_holds_dots() {
        OlusanYol(Sor([](QFileDialog& kutu) { AdVer(kutu, QStringLiteral("05.01.2012 Ayşe")); }),
                  u"Belgeler/05.01.2012 Ayşe.pdf");
        OlusanYol(Sor([](QFileDialog& kutu) { AdVer(kutu, QStringLiteral("Can.PDF")); }),
                  u"Belgeler/Can.PDF");
    }

    void a_file_in_the_way_is_given_up_only_after_a_question_which_comes_for_an_added_ending_too() {
        agac_->Koy(u"Belgeler/5.1 Can.pdf", "eski");
        for (const QString& ad : {QStringLiteral("5.1 Can.pdf"), QStringLiteral("5.1 Can")}) {
            const auto yol = Sor([&](QFileDialog& kutu) {
                for (const bool evet : {false, true}) {
                    const auto cevapla = Kutuda<QMessageBox>([evet](QMessageBox& soru) {
                        QCOMPARE(soru.text(),
                                 QStringLiteral("5.1 Can.pdf zaten var.\nDeğiştirmek istiyor musunuz?"));
                        QCOMPARE(Isaretsiz(soru.button(QMessageBox::Yes)->text()), QStringLiteral("Evet"));
                        QCOMPARE(Isaretsiz(soru.button(QMessageBox::No)->text()), QStringLiteral("Hayır"));
                        QVERIFY2(soru.defaultButton() == soru.button(QMessageBox::No), "it loses something");
                        QTest::mouseClick(soru.button(evet ? QMessageBox::Yes : QMessageBox::No),
                                          Qt::LeftButton);
                    });
                    Pencerede([&] { AdVer(kutu, ad); }, {cevapla});
                    QCOMPARE(kutu.isVisible(), !evet);
                }
            });
            OlusanYol(yol, u"Belgeler/5.1 Can.pdf");
            QCOMPARE(agac_->Bayt(u"Belgeler/5.1 Can.pdf"), std::string("eski"));
        }
    }

    void a_folder_s_name_opens_the_folder_and_the_next_box_begins_where_the_last_file_went() {
        OlusanYol(Sor([this](QFileDialog& kutu) {
                      AdVer(kutu, QStringLiteral("Sözleşmeler"));
                      QVERIFY(kutu.isVisible());
                      QCOMPARE(Klasoru(kutu),
                               QString::fromStdString(agac_->Yol(u"Belgeler/Sözleşmeler").string()));
                      AdVer(kutu, QStringLiteral("bir"));
                  }),
                  u"Belgeler/Sözleşmeler/bir.pdf");
        OlusanYol(Sor([](QFileDialog&) { Tusla(Qt::Key_Return); }), u"Belgeler/Sözleşmeler/" + MetinYap(kAd));
    }

    void a_folder_that_has_gone_since_is_no_harm() {
        QVERIFY(Sor([](QFileDialog& kutu) { AdVer(kutu, QStringLiteral("Sözleşmeler/bir")); }).has_value());
        std::filesystem::remove_all(agac_->Yol(u"Belgeler"));
        QVERIFY(!Sor([](QFileDialog& kutu) {
                     QVERIFY(kutu.directory().exists());
                     Tusla(Qt::Key_Escape);
                 }).has_value());
    }

  private:
    std::unique_ptr<GeciciAgac> agac_;
    std::unique_ptr<QtOrtam> disDunya_;
    Ortam ortam_;
};

VELORA_GUI_TEST(KayitYeriTest)
#include "KayitYeriTest.moc"
