#include <algorithm>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOdemeAl.h"

using namespace velora;
using namespace velora::test;

namespace {

QRect Yeri(const QWidget& parca) {
    return {parca.mapTo(parca.window(), QPoint()), parca.size()};
}

/// The text that stands nearest to a widget in its row, on the side that `yon` names: 1 behind it, -1 before
/// it.
QString Yandaki(const QWidget& parca, int yon) {
    const QRect yer = Yeri(parca);
    const QLabel* enYakin = nullptr;
    const auto uzaklik = [&](const QLabel& etiket) {
        return yon * (Yeri(etiket).center().x() - yer.center().x());
    };
    for (const auto* etiket : parca.window()->findChildren<QLabel*>()) {
        const QRect satir = Yeri(*etiket);
        if (etiket != &parca && etiket->isVisible() && !etiket->text().isEmpty() &&
            satir.top() <= yer.center().y() && satir.bottom() >= yer.center().y() && uzaklik(*etiket) > 0 &&
            (enYakin == nullptr || uzaklik(*etiket) < uzaklik(*enYakin)))
            enYakin = etiket;
    }
    return enYakin == nullptr ? QString() : enYakin->text();
}

using Okuma = QString (*)(const QWidget&);

QString Etiketi(const QWidget& parca) {
    for (const auto* etiket : parca.window()->findChildren<QLabel*>())
        if (etiket->buddy() == &parca)
            return etiket->text();
    return {};
}
QString Kendisi(const QWidget& parca) {
    return dynamic_cast<const QAbstractButton&>(parca).text();
}
QString Ardindaki(const QWidget& parca) {
    return Yandaki(parca, 1);
}
QString Onundeki(const QWidget& parca) {
    return Yandaki(parca, -1);
}
QString Ipucu(const QWidget& parca) {
    return parca.toolTip();
}

/// A caption of a window: the control that it belongs to, and where it stands.
struct Yazi {
    int sayfa; // of the tabs, from 0
    const char* ad;
    Okuma oku;
    const char16_t* metin;
};

constexpr Yazi kKayitYazilari[]{
    {0, "Tarih", Etiketi, u"Rezervasyon Tarihi"},
    {0, "SalonAdi", Etiketi, u"Salon"},
    {0, "Kay1", Etiketi, u"Adı Soyadı"},
    {0, "Kay2", Etiketi, u"Yöresi"},
    {0, "Kay3", Etiketi, u"Gelin / Damat"},
    {0, "Kay4", Etiketi, u"Niteliği"},
    {0, "Kay5", Etiketi, u"Telefon"},
    {0, "Kay6", Etiketi, u"Cep"},
    {0, "Kay7", Etiketi, u"Adres"},
    {0, "Kay8", Etiketi, u"Toplam Ücret"},
    {0, "Kay8", Ardindaki, u"TL"},
    {0, "Kay11", Etiketi, u"Ön Açıklama"},
    {0, "Kay12", Etiketi, u"Başlama Saati"},
    {0, "Kay15", Etiketi, u"Bitiş Saati"},
    {0, "Kay13", Etiketi, u"Sözleşme Tarihi"},
    {0, "Kay13", Ardindaki, u"(gün.ay.yıl)"},
    {0, "Kay14", Etiketi, u"Sözleşme No"},
    {0, "Kay16", Etiketi, u"T.C. Kimlik No"},
    {0, "Kay17", Etiketi, u"Davetli Sayısı"},
    {0, "Option1", Kendisi, u"Kesin Rezervasyon"},
    {0, "Option2", Kendisi, u"Ön Rezervasyon"},
    {0, "Check18", Kendisi, u"Yaklaşınca Hatırlat"},
    {0, "Check19", Kendisi, u"Bu Tarihte Hatırlat"},
    {0, "Command4", Kendisi, u"Ödemeler"},
    {0, "Command4", Ipucu, u"Ödemeler Listesi / Ödeme Ekle"},
    {0, "Command3", Kendisi, u"Sözleşme Yazdır"},
    {0, "Command3", Ipucu, u""},
    {0, "Command1", Kendisi, u"Oluştur"},
    {0, "Command1", Ipucu, u"Rezervasyonu oluştur"},
    {0, "Command2", Kendisi, u"Kapat"},
    {0, "Command2", Ipucu, u"Rezervasyonu Oluşturmadan Kapat"},
    {1, "Kayam9", Onundeki, u"Alınan Ödeme :"},
    {1, "Kayam9", Ardindaki, u"TL"},
    {1, "Kayam10", Onundeki, u"Kalan Ödeme :"},
    {1, "Kayam10", Ardindaki, u"TL"},
    {1, "Command8", Kendisi, u"Ekle"},
    {1, "Command8", Ipucu, u"Ödeme Ekle"},
    {1, "Command7", Kendisi, u"Sil"},
    {1, "Command7", Ipucu, u"Ödemeyi Sil"},
    {1, "Command9", Kendisi, u"Makbuz"},
    {1, "Command9", Ipucu, u"Makbuz Bastır"},
    {2, "Aciklamalar", Etiketi, u"Özel İstekler ve Açıklamalar"},
    {3, "Check1", Kendisi, u"Yaş Pasta Servisi"},
    {3, "Check2", Kendisi, u"Havai Fişek Gösterisi"},
    {3, "Check3", Kendisi, u"Yerli İçki Servisi"},
    {3, "Check4", Kendisi, u"Yabancı İçki Servisi"},
    {3, "Check5", Kendisi, u"Yemek Servisi"},
    {3, "Check6", Kendisi, u"Kuru Pasta Servisi"},
    {3, "Check7", Kendisi, u"Volkan Konfeti Gösterisi"},
    {3, "Check8", Kendisi, u"Barkovizyon"},
    {3, "Check9", Kendisi, u"Özel Araç Tahsisi"},
    {3, "Check10", Kendisi, u"Araç Süsleme"},
    {3, "Check11", Kendisi, u"Gelin Kuaförü"},
    {3, "Check12", Kendisi, u"Damat Kuaförü"},
    {3, "Check13", Kendisi, u"Orkestra"},
    {3, "Check14", Kendisi, u"Sanatçı"},
    {3, "Check15", Kendisi, u"Video Çekimleri"},
    {3, "Check16", Kendisi, u"Fotoğraf Çekimleri"},
    {3, "Check17", Kendisi, u"Dj / Ara Disko"},
};

constexpr Yazi kOdemeYazilari[]{
    {0, "DTPicker1", Etiketi, u"Tarih Seçin"}, {0, "Text1", Etiketi, u"Miktar Girin"},
    {0, "Aciklama", Etiketi, u"Açıklama"},     {0, "Command1", Kendisi, u"Tamam"},
    {0, "Command2", Kendisi, u"İptal"},
};

/// The captions of a window that `ac` opens.
template <class Yazilar>
void YazilariOku(const std::function<void()>& ac, const QString& baslik, const Yazilar& yazilar) {
    Pencerede(ac, {[&](QDialog& pencere) {
                  QCOMPARE(pencere.windowTitle(), baslik);
                  for (const Yazi& yazi : yazilar) {
                      if (auto* sayfalar = pencere.findChild<QTabWidget*>())
                          sayfalar->setCurrentIndex(yazi.sayfa);
                      const auto* parca = pencere.findChild<QWidget*>(QString::fromLatin1(yazi.ad));
                      QVERIFY2(parca != nullptr && parca->isVisible(), yazi.ad);
                      QCOMPARE(Isaretsiz(yazi.oku(*parca)), QString::fromUtf16(yazi.metin));
                  }
              }});
}

} // namespace

/// The captions of the windows of a reservation, letter by letter.
class KayitYazilariTest : public QObject {
    Q_OBJECT

  private slots:
    void a_new_record_and_the_dialog_of_payments_say_what_their_fields_are() {
        GuiFirma firma;
        firma.Ac();
        YazilariOku([&] { firma.program.FormKayit.GosterModal(); }, QStringLiteral("Yeni Kayıt"),
                    kKayitYazilari);
        YazilariOku([&] { firma.program.FormOdemeAl.GosterModal(); }, QStringLiteral("Ödeme Ekle"),
                    kOdemeYazilari);
    }

    void the_pages_and_the_columns_of_payments_have_their_names() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { firma.program.FormKayit.GosterModal(); }, {[](QDialog& pencere) {
                      const auto& sayfalar = Parcasi<QTabWidget>(pencere, "SSTab1");
                      QStringList adlar;
                      for (int i = 0; i < sayfalar.count(); ++i)
                          adlar << Isaretsiz(sayfalar.tabText(i));
                      QCOMPARE(adlar,
                               (QStringList{QStringLiteral("Genel Bilgiler "), QStringLiteral("Ödemeler"),
                                            QStringLiteral("Menüler"), QStringLiteral("Hizmetler")}));
                      const QTreeWidgetItem& baslik = *Parcasi<QTreeWidget>(pencere, "Liste").headerItem();
                      QStringList sutunlar;
                      for (int i = 0; i < baslik.columnCount(); ++i)
                          sutunlar << baslik.text(i);
                      QCOMPARE(sutunlar, (QStringList{QStringLiteral("Tarih"), QStringLiteral("Tutar"),
                                                      QStringLiteral("Açıklama")}));
                  }});
    }

    void an_existing_record_has_its_own_title_button_and_tips() {
        constexpr Yazi kDuzenleme[]{
            {0, "Command1", Kendisi, u"Kaydet"},
            {0, "Command1", Ipucu, u"Değişiklikleri Kaydet"},
            {0, "Command2", Ipucu, u"Değişiklikleri Kaydetmeden Kapat"},
        };
        GuiFirma firma;
        firma.Ac();
        firma.program.FormKayit->KayitAc = 1;
        YazilariOku([&] { firma.program.FormKayit.GosterModal(); }, QStringLiteral("Kayıt Düzenle"),
                    kDuzenleme);
    }

    void the_kinds_of_event_stand_in_their_order() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { firma.program.FormKayit.GosterModal(); }, {[](QDialog& pencere) {
                      const auto& kutu = Parcasi<QComboBox>(pencere, "Kay4");
                      QStringList nitelikler;
                      for (int i = 0; i < kutu.count(); ++i)
                          nitelikler << kutu.itemText(i);
                      QCOMPARE(
                          nitelikler,
                          QStringLiteral("Lütfen Seçiniz|Düğün|Nişan|Sünnet|Toplantı|Kokteyl|Konferans|Diğer")
                              .split(u'|'));
                      QCOMPARE(kutu.currentText(), nitelikler.front());
                      QVERIFY(kutu.isEditable());
                  }});
    }
};

VELORA_GUI_TEST(KayitYazilariTest)
#include "KayitYazilariTest.moc"
