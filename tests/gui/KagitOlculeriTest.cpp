#include <cmath>
#include <set>

#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest-spi.h>

#include "access/Splash.h"
#include "destek/Sayfalar.h"
#include "documents/FormMakbuzPrint.h"
#include "documents/FormPrint.h"
#include "documents/FormTabloPrint.h"
#include "documents/TabloSayfasi.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/SayfaCizimi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr double kKenar = 15;        // of the paper, in millimetres
constexpr double kOlcek = 96 / 25.4; // of a screen
constexpr double kTasma = 0.7; // millimetres that a letter's ink may stand out of its width, and a pixel

Metin Maddeler(std::size_t harf) {
    Metin metin;
    for (int sira = 1; metin.size() < harf; ++sira)
        metin += SayiMetni(sira) +
                 u" - Yağmur, çığ ve fırtına hâlinde “salon” değişmez; ücret iade edilmez. VAT AVTO Ödeme "
                 u"şartları İĞÜŞÖÇ ığüşöç, kaparo %30." +
                 (sira % 3 == 0 ? u"\r\n" : u" ");
    return metin.substr(0, harf);
}

/// The whole page in the real type: what a page must be, told by the checks of the other tests.
void DuzgunOlmali(const std::vector<Sayfa>& sayfalar, double kenar = kKenar) {
    testing::TestPartResultArray kusurlar;
    {
        const testing::ScopedFakeTestPartResultReporter dinleyen(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &kusurlar);
        SayfalarDuzgunOlmali(sayfalar, kenar, SayfaOlcer());
    }
    QVERIFY2(kusurlar.size() == 0, kusurlar.size() == 0 ? "" : kusurlar.GetTestPartResult(0).summary());
}

/// The ink of a part alone stays in its place.
void YerindeKalmali(const Sayfa& sayfa, const SayfaParcasi& parca) {
    const QSize boy = (QSizeF(sayfa.En(), sayfa.Boy()) * kOlcek).toSize();
    QImage bos(boy, QImage::Format_RGB32);
    bos.fill(Qt::white);
    QImage resim = bos;
    QPainter boyaci(&resim);
    SayfayiCiz(boyaci, {sayfa.yon, {parca}}, kOlcek);
    QVERIFY(resim != bos || OkunanMetin({{sayfa.yon, {parca}}}).empty());
    const QRectF yer(parca.yer.sol, parca.yer.ust, parca.yer.en, parca.yer.boy);
    const QRectF silinen = yer.adjusted(-kTasma, -kTasma, kTasma, kTasma);
    boyaci.fillRect(QRectF(silinen.topLeft() * kOlcek, silinen.size() * kOlcek), Qt::white);
    QVERIFY2(resim == bos,
             qPrintable(QString::fromStdU16String(parca.ad + u": " + OkunanMetin({{sayfa.yon, {parca}}}))));
}

/// Pages as the real type makes them: whole, and each part of them painted into its place.
void SayfalaraBak(const std::vector<Sayfa>& sayfalar) {
    DuzgunOlmali(sayfalar);
    for (const Sayfa& sayfa : sayfalar)
        for (const SayfaParcasi& parca : sayfa.parcalar)
            YerindeKalmali(sayfa, parca);
}

} // namespace

/// What is printed in the type that it is printed in, with what doesn't fit easily.
class KagitOlculeriTest : public QObject {
    Q_OBJECT

    /// The page with the note, and with the remark.
    static void IkisineDeBak(FormPrint& sayfa) {
        for (const bool senet : {true, false}) {
            sayfa.Senet = senet;
            sayfa.Label55.gorunur = sayfa.Onaciklama.gorunur = !senet;
            SayfalaraBak(sayfa.Sayfalar(SayfaOlcer()));
        }
    }
    static FormPrint& Doldur(FormPrint& sayfa) {
        sayfa.Unvan.baslik = u"Gül Düğün Salonları ve Organizasyon Ltd. Şti.";
        sayfa.Tarihi.baslik = u"Tarih : 03.02.2012";
        sayfa.SozNo.baslik = u"Sözleşme No : 418";
        sayfa.Baslik.baslik = u"Sözleşme Maddeleri";
        sayfa.CAdi.baslik = u"Ayşe Yılmaz";
        sayfa.Onaciklama.baslik = u"Masa düzeni U olacak, gelin yolu beyaz.";
        sayfa.Label38.baslik = u"İş Bu bono vadesinde ödenmediği taktirde, müteakip bonolarında muacceliyet "
                               u"kesbedeceğini ihtilaf vukuunda";
        sayfa.Label50.baslik = u"TEKIRDAG Mahkemelerinin selahiyetinin şimdiden kabul eyleri....";
        return sayfa;
    }

  private slots:
    void eight_clauses_of_a_new_firm_with_the_note_are_one_sheet() {
        GuiFirma firma;
        FormPrint sayfa(firma.program);
        Doldur(sayfa).Sozlesme.baslik = firma.program.Splash->Text1;
        IkisineDeBak(sayfa);
        sayfa.Senet = true;
        sayfa.Label55.gorunur = sayfa.Onaciklama.gorunur = false;
        QCOMPARE(sayfa.Sayfalar(SayfaOlcer()).size(), std::size_t{1});
    }

    void five_thousand_letters_of_clauses_stay_in_their_places() {
        GuiFirma firma;
        FormPrint sayfa(firma.program);
        Doldur(sayfa).Sozlesme.baslik = Maddeler(5000);
        IkisineDeBak(sayfa);
        sayfa.Sozlesme.baslik = u"Kısa.";
        sayfa.Onaciklama.baslik = Maddeler(5001);
        IkisineDeBak(sayfa);
    }

    void an_address_of_five_lines_and_names_without_a_blank_stay_in_their_places() {
        GuiFirma firma;
        FormPrint sayfa(firma.program);
        Doldur(sayfa).CAdres.baslik = u"Çay Sk. 3\r\nGül Apt. B Blok\r\nKat 2\r\nDaire 7\r\nErgene Tekirdağ";
        IkisineDeBak(sayfa);
        for (Etiket* alan :
             {&sayfa.Unvan, &sayfa.SozNo, &sayfa.CAdi, &sayfa.CSalon, &sayfa.Baslik, &sayfa.Label50})
            alan->baslik = Metin(130, u'W') + Metin(130, u'ı');
        IkisineDeBak(sayfa);
    }

    void a_receipt_keeps_each_text_in_its_place() {
        GuiFirma firma;
        FormMakbuzPrint makbuz(firma.program);
        makbuz.Firma.baslik = u"Gül Düğün Salonları ve Organizasyon Hizmetleri Sanayi ve Ticaret Ltd. Şti.";
        for (const std::size_t harf : {20U, 700U, 5000U}) {
            makbuz.Aciklama.baslik = u": " + Maddeler(harf);
            SayfalaraBak(makbuz.Sayfalar(SayfaOlcer()));
        }
        makbuz.AdSoyad.baslik = u": " + Metin(130, u'W') + Metin(130, u'ı');
        SayfalaraBak(makbuz.Sayfalar(SayfaOlcer()));
    }

    void the_year_table_keeps_each_text_in_its_place_and_its_marks_are_drawn() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"20.06.2026 - Gündüz", false);
        firma.Rezervasyon(kSalonA, u"21.06.2026 - Gece", true);
        firma.Ac();
        firma.hazirCevap = Cevap::Evet; // it is filled and not shown
        firma.Model().rezrapor_Click();
        const auto baski = firma.program.FormTabloPrint.Tut();
        baski->Unvan.baslik = u"Gül Düğün Salonları ve Organizasyon Ltd. Şti.";
        const std::vector<Sayfa> sayfalar = baski->Sayfalar(SayfaOlcer());
        DuzgunOlmali(sayfalar, kTabloKenari);
        std::set<Metin> bakilanlar;
        for (const SayfaParcasi& parca : sayfalar.at(0).parcalar)
            if (!parca.satirlar.empty() && bakilanlar.insert(parca.satirlar[0]).second) {
                SayfaParcasi siyah = parca;
                siyah.renk = 0;
                YerindeKalmali(sayfalar[0], siyah);
            }
        QVERIFY(bakilanlar.contains(u"●") && bakilanlar.contains(u"○") && bakilanlar.contains(u"Cmt"));
        baski->Unvan.baslik = Metin(130, u'W') + Metin(130, u'ı');
        baski->Salon.baslik = Metin(300, u'W');
        DuzgunOlmali(baski->Sayfalar(SayfaOlcer()), kTabloKenari);
    }
};

VELORA_GUI_TEST(KagitOlculeriTest)
#include "KagitOlculeriTest.moc"
