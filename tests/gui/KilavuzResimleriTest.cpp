#include <QFile>
#include <QSet>
#include <QTest>

#include "destek/GeciciAgac.h"
#include "gui/GuiProgram.h"
#include "qt/Ceviri.h"
#include "reservation/FormArama.h"
#include "screen/Program.h"
#include "tools/kilavuz/Resimler.h"

using namespace velora;
using namespace velora::kilavuz;

namespace {

QString KilavuzDosyasi(const QString& ad) {
    return QStringLiteral(VELORA_DOCS "/kilavuz/") + ad;
}

QString ResimAdi(const ResimTanimi& tanim) {
    return QStringLiteral("resimler/") + QMetin(tanim.dosya) + QStringLiteral(".png");
}

const ResimTanimi& ResimBul(MetinBakis dosya) {
    const auto resimler = Resimler();
    return *std::ranges::find(resimler, dosya, &ResimTanimi::dosya);
}

int RenkSayisi(const QImage& resim) {
    QSet<QRgb> renkler;
    for (int y = 0; y < resim.height(); ++y)
        for (int x = 0; x < resim.width(); ++x)
            renkler.insert(resim.pixel(x, y));
    return static_cast<int>(renkler.size());
}

void BosAra(Program& program, QWidget& /*pencere*/) {
    program.FormArama->Text[1].metin = u"Kimsenin Adı";
    program.FormArama->Command3_Click();
}

void AramaAc(Program& program) {
    program.FormArama.GosterModal();
}

} // namespace

/// The pictures of the guide: which there are, and that they are taken.
class KilavuzResimleriTest : public QObject {
    Q_OBJECT

  private slots:
    void Each_screen_with_a_window_has_its_picture_in_the_guide();
    void A_screen_without_a_picture_is_named();
    void Each_picture_has_its_file_and_its_place_in_the_page();
    void A_window_is_shown_by_its_door_and_its_picture_taken();
    void A_box_that_comes_up_and_a_window_that_does_not_are_told();
};

void KilavuzResimleriTest::Each_screen_with_a_window_has_its_picture_in_the_guide() {
    for (const EkranAdi ekran : ResimsizEkranlar(Resimler()))
        QFAIL(qPrintable(QMetin(EkranBul(ekran).ad) +
                         QStringLiteral(" has none (tools/kilavuz/Resimler.cpp)")));
}

void KilavuzResimleriTest::A_screen_without_a_picture_is_named() {
    std::vector<ResimTanimi> aramasiz(Resimler().begin(), Resimler().end());
    std::erase_if(aramasiz, [](const ResimTanimi& tanim) {
        return tanim.ekran == EkranAdi::FormArama || tanim.ekran == EkranAdi::FormTablo;
    });
    QCOMPARE(ResimsizEkranlar(aramasiz), (std::vector{EkranAdi::FormTablo, EkranAdi::FormArama}));
}

void KilavuzResimleriTest::Each_picture_has_its_file_and_its_place_in_the_page() {
    QFile dosya(KilavuzDosyasi(QStringLiteral("kilavuz.html")));
    QVERIFY(dosya.open(QIODevice::ReadOnly));
    const QString sayfa = QString::fromUtf8(dosya.readAll());
    QSet<QString> adlar;
    for (const ResimTanimi& tanim : Resimler()) {
        const QString ad = ResimAdi(tanim);
        QVERIFY2(!adlar.contains(ad), qPrintable(ad));
        adlar.insert(ad);
        QVERIFY2(QFile::exists(KilavuzDosyasi(ad)), qPrintable(ad));
        QVERIFY2(sayfa.contains(QStringLiteral("<img src=\"%1\"").arg(ad)), qPrintable(ad));
    }
}

void KilavuzResimleriTest::A_window_is_shown_by_its_door_and_its_picture_taken() {
    const test::GeciciAgac agac;
    QVERIFY(FirmayiKur(agac.Kok(), 9));
    const CekilenResim salonlar = ResimCek(agac.Kok(), ResimBul(u"salonlar"));
    QCOMPARE(salonlar.hata, QString());
    QVERIFY(RenkSayisi(salonlar.resim) > 100);
    QVERIFY(salonlar.resim.width() > ResimBul(u"salonlar").boy.width());
    // Another hall is marked, and nothing else differs.
    ResimTanimi secimsiz = ResimBul(u"salonlar");
    secimsiz.hazirla = nullptr;
    const QImage isaretsiz = ResimCek(agac.Kok(), secimsiz).resim;
    QCOMPARE(isaretsiz.size(), salonlar.resim.size());
    QVERIFY(isaretsiz != salonlar.resim);
    // The same picture each time.
    QCOMPARE(ResimCek(agac.Kok(), ResimBul(u"salonlar")).resim, salonlar.resim);
    const CekilenResim tablo = ResimCek(agac.Kok(), ResimBul(u"tablo-sag-tus"));
    QCOMPARE(tablo.hata, QString());
    QVERIFY(RenkSayisi(tablo.resim) > 100);
    QVERIFY(QApplication::topLevelWidgets().isEmpty() || QApplication::activePopupWidget() == nullptr);
}

void KilavuzResimleriTest::A_box_that_comes_up_and_a_window_that_does_not_are_told() {
    const test::GeciciAgac agac;
    const CekilenResim kutulu = ResimCek(agac.Kok(), {EkranAdi::FormArama, u"kutulu", AramaAc, BosAra});
    QVERIFY2(kutulu.hata.contains(QStringLiteral("Hiç kayıt bulunamadı!")), qPrintable(kutulu.hata));
    const CekilenResim baska = ResimCek(agac.Kok(), {EkranAdi::FormSalonTanim, u"baska", AramaAc});
    QVERIFY(baska.resim.isNull());
    QVERIFY2(baska.hata.contains(QStringLiteral("FormArama")), qPrintable(baska.hata));
}

VELORA_GUI_TEST(KilavuzResimleriTest)

#include "KilavuzResimleriTest.moc"
