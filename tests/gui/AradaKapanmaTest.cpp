#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "access/Splash.h"
#include "documents/FormPrint.h"
#include "documents/FormPrint2.h"
#include "gui/Diyaloglar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "maintenance/FormDownloadManager.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormResmiTatilEkle.h"
#include "maintenance/FormResmiTatilYukle.h"
#include "maintenance/FormYedekAl.h"
#include "online/FormIpMac.h"
#include "online/FormWebteYayinla.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"

using namespace velora;
using namespace velora::test;

namespace {

void EkraniBosalt(Program& program, EkranAdi ekran) {
    switch (ekran) {
#define VELORA_BOSALT(ad, tur)                                                                               \
    case EkranAdi::ad:                                                                                       \
        return program.ad.Bosalt();
        VELORA_EKRANLAR(VELORA_BOSALT)
#undef VELORA_BOSALT
    }
}

/// What windows that are to be deleted wait for, at once.
void SilinecekleriSil() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Something in every list, and a mark on it: all buttons can be pressed.
struct Dolum {
    EkranAdi ekran;
    void (*doldur)(Program& program);
};
constexpr Dolum kDolumlar[]{
    {EkranAdi::FormArama,
     [](Program& program) {
         program.FormArama->Text[1].metin = u"ali";
         program.FormArama->Command3_Click();
         program.FormArama->Liste.secili = 0;
         program.FormArama->Liste_ItemClick();
     }},
    {EkranAdi::FormBakiye,
     [](Program& program) {
         program.FormBakiye->ListeleGun();
         program.FormBakiye->Liste.secili = 0;
         program.FormBakiye->Liste_Click();
     }},
    {EkranAdi::FormKasa, [](Program& program) { program.FormKasa->ListeleGun1(); }},
    {EkranAdi::FormKasaEkle,
     [](Program& program) {
         program.FormKasaEkle->Tutar.metin = u"150";
         program.FormKasaEkle->Tutar_Change();
         program.FormKasaEkle->Aciklama.metin = u"Su";
     }},
    {EkranAdi::FormGiderler,
     [](Program& program) {
         program.FormGiderler->Liste.satirlar.push_back({{u"01.02.2026", u"5", u"Gider", u"Su"}, {}, 0});
         program.FormGiderler->Liste.secili = 0;
         program.FormGiderler->Liste_Click();
     }},
    {EkranAdi::FormOzelHatirlatma,
     [](Program& program) {
         program.FormOzelHatirlatma->Liste.secili = 0;
         program.FormOzelHatirlatma->Liste_ItemClick();
     }},
    {EkranAdi::FormRezervasyonlar,
     [](Program& program) {
         program.FormRezervasyonlar->Liste.secili = 1;
         program.FormRezervasyonlar->Liste_Click();
     }},
    {EkranAdi::FormYedekAl,
     [](Program& program) {
         program.FormYedekAl->txtSource.metin = program.dosyalar.Kok();
         program.FormYedekAl->txtDestination.metin = program.dosyalar.Kok() + u"-yedek";
     }},
    {EkranAdi::FormSifre, [](Program& program) { program.FormSifre->Text2.metin = u"c9"; }},
    {EkranAdi::FormSifreDegistir,
     [](Program& program) {
         program.FormSifreDegistir->Text1.metin = program.FormSifreDegistir->Text2.metin = u"yeni";
     }},
    {EkranAdi::FormKullanicilar,
     [](Program& program) {
         program.FormKullanicilar->Liste.secili = 0;
         program.FormKullanicilar->Liste_Click();
     }},
    {EkranAdi::FormKullaniciEkle,
     [](Program& program) {
         const auto ekle = program.FormKullaniciEkle.Tut();
         ekle->Text1.metin = ekle->Text2.metin = ekle->Text3.metin = u"ali";
     }},
    {EkranAdi::FormMenuAyar,
     [](Program& program) {
         program.FormMenuAyar->Liste.secili = 0;
         program.FormMenuAyar->Liste_Click();
     }},
    {EkranAdi::FormResmiTatil,
     [](Program& program) {
         program.FormResmiTatil->Ekle({u"01.02.2026", u"Açılış", u"Hayır", u"Özel"});
         program.FormResmiTatil->Liste.secili = 0;
         program.FormResmiTatil->Liste_Click();
     }},
    {EkranAdi::FormResmiTatilEkle,
     [](Program& program) { program.FormResmiTatilEkle->Text2.metin = u"Açılış"; }},
    {EkranAdi::FormSalonTanim,
     [](Program& program) {
         program.FormSalonTanim->List1.secili = 1;
         program.FormSalonTanim->List1_Click();
     }},
    {EkranAdi::FormKayit,
     [](Program& program) {
         const auto kayit = program.FormKayit.Tut();
         kayit->Tarih = u"20.06.2026 - Gece";
         for (const int no : {AnaNo::AdiSoyadi, AnaNo::BaslamaSaati, AnaNo::BitisSaati, AnaNo::ToplamUcret})
             kayit->Kay[no].metin = u"12:30";
         kayit->Kay[AnaNo::Niteligi].metin = u"Nişan";
         kayit->Liste.satirlar = {{{u"01.02.2026", u"70", u"7 - Ali"}, {}, 0}};
         kayit->Liste.secili = 0;
         kayit->Liste_ItemClick();
     }},
};

void Doldur(Program& program, EkranAdi ekran) {
    for (const Dolum& dolum : kDolumlar)
        if (dolum.ekran == ekran)
            dolum.doldur(program);
    Baglayici::HepsiniTazele();
}

/// What can be pressed in a window, by its place among all widgets, and pressed: buttons, rows, choices.
std::vector<std::function<void()>> Basilacaklar(QDialog& pencere) {
    std::vector<std::function<void()>> hepsi;
    for (auto* dugme : pencere.findChildren<QAbstractButton*>())
        if (dugme->isEnabled())
            hepsi.emplace_back([dugme] { dugme->click(); });
    for (auto* liste : pencere.findChildren<QAbstractItemView*>())
        if (liste->model()->rowCount() > 0) {
            hepsi.emplace_back([liste] { SatiraTikla(*liste, 0); });
            hepsi.emplace_back([liste] { SatiraCiftTikla(*liste, 0); });
        }
    for (auto* secim : pencere.findChildren<QComboBox*>())
        hepsi.emplace_back([secim] { QTest::keyClick(secim, Qt::Key_Down); });
    return hepsi;
}

/// In how many places a screen was taken away while a handler ran.
int arasi = 0;

enum class Sonuc { Kapandi, YerYok, BasilacakYok };

/// Presses one thing of a window and unloads the screen at the given place where something can come in
/// between.
Sonuc AradaKapat(GuiFirma& firma, const Diyalog& diyalog, std::size_t basilan, int yer) {
    auto sonuc = Sonuc::YerYok;
    int simdiki = 0;
    QPointer<QDialog> pencere;
    Pencerede([&] { diyalog.ac(firma.program); }, {[&](QDialog& duran) {
                  Doldur(firma.program, diyalog.ekran);
                  const auto hepsi = Basilacaklar(duran);
                  if (basilan >= hepsi.size()) {
                      sonuc = Sonuc::BasilacakYok;
                      return;
                  }
                  pencere = &duran;
                  firma.hazirCevap = Cevap::Evet;
                  firma.arada = [&] {
                      if (++simdiki != yer)
                          return;
                      sonuc = Sonuc::Kapandi;
                      ++arasi;
                      EkraniBosalt(firma.program, diyalog.ekran);
                      SilinecekleriSil();
                      // The toolkit and the rest of the handler still touch it.
                      QVERIFY(pencere != nullptr);
                      QVERIFY(!pencere->isVisible());
                  };
                  hepsi[basilan]();
                  firma.arada = {};
                  // A backup goes on without its window, to its message.
                  QTRY_COMPARE(firma.Model().YedekTimer.aralik, 0);
                  firma.hazirCevap.reset();
              }});
    EkraniBosalt(firma.program, diyalog.ekran);
    SilinecekleriSil();
    QCoreApplication::processEvents();
    if (pencere != nullptr)
        QTest::qFail("A closed window is still there.", __FILE__, __LINE__);
    return sonuc;
}

void HalkiDoldur(GuiFirma& firma) {
    firma.agac.KoyMetin(u"Menuler.dat", u"\"Kına\",\"Meşrubat\"\r\n");
    firma.agac.KoyMetin(u"Sozlesme.dat", u"\"Kurallar\",\"1 - Kira\"\r\n");
    firma.agac.Koy(u"User.dll", "\"can\",\"c9\",1,1,1,1,1,1,1,1,1,0,1\r\n");
    firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
    firma.Ac();
}

} // namespace

/// Clicks come in wherever a handler lets events run: a window may be closed in the middle of its own work.
class AradaKapanmaTest : public QObject {
    Q_OBJECT

  private slots:
    void every_window_survives_being_closed_wherever_its_handlers_let_events_run_data() {
        QTest::addColumn<int>("sira");
        for (int sira = 0; sira < static_cast<int>(std::size(kDiyaloglar)); ++sira)
            QTest::newRow(qPrintable(QMetin(EkranBul(kDiyaloglar[sira].ekran).ad))) << sira;
    }

    void every_window_survives_being_closed_wherever_its_handlers_let_events_run() {
        QFETCH(const int, sira);
        const Diyalog& diyalog = kDiyaloglar[sira];
        GuiFirma firma;
        HalkiDoldur(firma);
        auto sonuc = Sonuc::Kapandi;
        for (std::size_t basilan = 0; sonuc != Sonuc::BasilacakYok; ++basilan)
            for (int yer = 1; yer == 1 || sonuc == Sonuc::Kapandi; ++yer)
                sonuc = AradaKapat(firma, diyalog, basilan, yer);
    }

    void there_were_such_places() { QVERIFY2(arasi > 20, qPrintable(QString::number(arasi))); }
};

VELORA_GUI_TEST(AradaKapanmaTest)
#include "AradaKapanmaTest.moc"
