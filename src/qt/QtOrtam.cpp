#include "qt/QtOrtam.h"

#include <algorithm>
#include <atomic>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Kabuk.h"
#include "qt/Klasorler.h"
#include "qt/Kutular.h"
#include "qt/Nefes.h"
#include "qt/OlayKilidi.h"
#include "qt/PencereYeri.h"
#include "qt/Saat.h"
#include "qt/SayfaCizimi.h"
#include "qt/Yazici.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

namespace {

/// Ends a loop when the window it waits for is gone from the display, whoever closed it.
class KapanisGozcusu : public QObject {
  public:
    KapanisGozcusu(QWidget& pencere, QEventLoop& dongu) : dongu_(dongu) { pencere.installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::Hide && !olay->spontaneous())
            dongu_.quit();
        return QObject::eventFilter(nesne, olay);
    }

  private:
    QEventLoop& dongu_;
};

/// Shows a box over that window. Questions come out of running handlers: what these have done
/// so far must be seen behind the box.
template <class Goster, class Kutu>
auto Kutuda(Goster goster, QWidget* pencere, const Kutu& kutu) {
    const Baglayici::KullaniciBekleme bekleme;
    return goster(pencere, kutu);
}

/// The window stands over that one, whatever else the desktop does.
void SahibineBagla(QWidget& pencere, const QWidget* ust) {
    pencere.winId(); // from here on it has a handle
    if (ust != nullptr && ust != &pencere && pencere.windowHandle() != nullptr)
        pencere.windowHandle()->setTransientParent(ust->windowHandle());
}

void OlaylariIsle() {
    Baglayici::HepsiniTazele();
    if (!OlayKilidi::Kapali())
        QCoreApplication::processEvents();
    if (Baglayici::IsSuruyor())
        Nefes::Basla();
}

/// Seldom enough to cost little, often enough for windows that are alive.
void AdimdaIsle() {
    constexpr int kArada = 10; // milliseconds between the end of one and the next
    static QElapsedTimer sonuncudan;
    if (sonuncudan.isValid() && !sonuncudan.hasExpired(kArada))
        return;
    OlaylariIsle();
    sonuncudan.start();
}

} // namespace

void QtOrtam::SonraSil::operator()(QWidget* pencere) const {
    pencere->hide();
    Baglayici::Sil(*pencere);
}

Ortam QtOrtam::Ver() {
    // Windows change hands with moments of none: only a screen ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    Ortam ortam;
    // A handler that the end of the program has overtaken asks nobody any more.
    ortam.sor.mesaj = [this](const MesajKutusu& kutu) {
        return bitti_ ? Cevap::Hayir : Kutuda(MesajGoster, Ondeki(), kutu);
    };
    ortam.sor.girdi = [this](const GirdiKutusu& kutu) {
        return bitti_ ? Metin() : Kutuda(GirdiAl, Ondeki(), kutu);
    };
    ortam.sor.kayitYeri = [this](const KayitYeriKutusu& kutu) { return KayitYeri(kutu); };
    ortam.sor.klasor = [this](const Metin& baslik) { return KlasorSec(baslik); };
    ortam.goster.ac = [this](EkranAdi ekran, const auto& gorununce) { Ac(ekran, gorununce); };
    ortam.goster.modal = [this](EkranAdi ekran, const auto& gorununce) { Modal(ekran, gorununce); };
    ortam.goster.gizle = [this](EkranAdi ekran) { Gizle(ekran); };
    ortam.zaman.simdi = MakineSaati;
    ortam.olaylar.isle = OlaylariIsle;
    ortam.olaylar.adimda = AdimdaIsle;
    ortam.olaylar.nefes = Nefes::Al;
    ortam.olaylar.bitti = [this] { return bitti_; };
    ortam.klasorler.yedek = YedekKlasoru;
    ortam.ayarlar.yaz = [this](MetinBakis bolum, MetinBakis anahtar, const Metin& deger) {
        ayarlar_.Yaz(QMetin(bolum), QMetin(anahtar), QMetin(deger));
    };
    ortam.kabuk.dosyaAc = DosyaAc;
    ortam.kabuk.adresAc = AdresAc;
    ortam.kabuk.calistir = ProgramCalistir;
    ortam.kagit = Kagit();
    ortam.olaylar.bitir = [this] { Bitir(); };
    ortam.odak.ver = [this](EkranAdi ekran, MetinBakis kontrol) { OdakVer(ekran, kontrol); };
    return ortam;
}

Ortam::Kagit QtOrtam::Kagit() {
    Ortam::Kagit kagit;
    kagit.olcer = [olcer = SayfaOlcer()](MetinBakis metin, const SayfaYazisi& yazi) {
        Nefes::Al(); // a page measures much
        return olcer(metin, yazi);
    };
    kagit.yazdir = [this](const std::vector<Sayfa>& sayfalar, const Metin& isAdi) {
        return Arkada(basimIscisi_, [sayfalar, ad = QMetin(isAdi)](const Vazgecildi& vazgecildi) {
            return YaziciyaBas(sayfalar, ad, vazgecildi);
        });
    };
    kagit.pdfYaz = [this](const std::vector<Sayfa>& sayfalar, const Metin& isAdi,
                          const std::filesystem::path& dosya) {
        return Arkada(dosyaIscisi_, [sayfalar, ad = QMetin(isAdi), dosya](const Vazgecildi& vazgecildi) {
            return PdfYaz(sayfalar, ad, dosya, vazgecildi);
        });
    };
    return kagit;
}

void QtOrtam::Tanit(EkranAdi ekran, Uretici uretici) {
    ureticiler_[ekran] = std::move(uretici);
}

std::vector<EkranAdi> QtOrtam::Taninanlar() const {
    std::vector<EkranAdi> ekranlar;
    for (const auto& [ekran, uretici] : ureticiler_)
        ekranlar.push_back(ekran);
    return ekranlar;
}

QWidget* QtOrtam::Pencere(EkranAdi ekran) const {
    const auto yer = pencereler_.find(ekran);
    return yer == pencereler_.end() ? nullptr : yer->second.get();
}

void QtOrtam::PencereleriBirak() {
    // Gives the focus back while each is still whole: a destructor of the toolkit would do it later, past the
    // half of the window that is gone by then.
    std::vector<QPointer<QWidget>> duranlar;
    for (const auto& [ekran, pencere] : pencereler_)
        duranlar.emplace_back(pencere.get());
    for (const auto& pencere : duranlar)
        if (pencere != nullptr)
            pencere->hide();
    // A menu that is open keeps it in the window below.
    if (QWidget* odak = QApplication::focusWidget())
        odak->clearFocus();
    // At once: no event loop may follow that would carry out a later deletion.
    for (auto& [ekran, pencere] : pencereler_)
        delete pencere.release();
    pencereler_.clear();
}

QWidget* QtOrtam::Hazirla(EkranAdi ekran) {
    if (QWidget* pencere = Pencere(ekran))
        return pencere;
    const auto uretici = ureticiler_.find(ekran);
    if (uretici == ureticiler_.end()) {
        qWarning("%s has no window to be shown in.", qPrintable(QMetin(EkranBul(ekran).ad)));
        return nullptr;
    }
    auto& yeni = pencereler_[ekran];
    yeni.reset(uretici->second().release());
    return yeni.get();
}

QWidget* QtOrtam::Ondeki() const {
    if (QWidget* etkin = QApplication::activeWindow())
        return etkin;
    const auto gorunen = [](const QPointer<QWidget>& pencere) {
        return pencere != nullptr && pencere->isVisible();
    };
    const auto son = std::find_if(gosterilenler_.rbegin(), gosterilenler_.rend(), gorunen);
    return son == gosterilenler_.rend() ? nullptr : son->data();
}

void QtOrtam::Ac(EkranAdi ekran, const std::function<void()>& gorununce) {
    QWidget* pencere = Hazirla(ekran);
    if (pencere == nullptr)
        return;
    if (!pencere->isVisible()) {
        hafiza_.Yerlestir(*pencere, QMetin(EkranBul(ekran).ad));
        EkranaSigdir(*pencere);
    }
    // A window beside the others can be used while one of them lets nobody else in, as its companion.
    if (const QWidget* modal = QApplication::activeModalWidget(); modal != nullptr && !pencere->isModal())
        SahibineBagla(*pencere, modal);
    std::erase_if(gosterilenler_, [pencere](const auto& biri) { return biri == nullptr || biri == pencere; });
    gosterilenler_.emplace_back(pencere);
    pencere->show();
    pencere->raise();
    pencere->activateWindow();
    gorununce();
    Baglayici::HepsiniTazele();
}

void QtOrtam::Modal(EkranAdi ekran, const std::function<void()>& gorununce) {
    QWidget* pencere = Hazirla(ekran);
    if (pencere == nullptr)
        return;
    // One that stands beside the others comes anew: the toolkit makes no visible window modal.
    if (pencere->isVisible()) {
        Sakla(ekran);
        pencere->hide();
    }
    const Baglayici::KullaniciBekleme bekleme;
    QEventLoop dongu;
    const KapanisGozcusu gozcu(*pencere, dongu);
    const QPointer<QWidget> ust = Ondeki();
    SahibineBagla(*pencere, ust);
    pencere->setWindowModality(Qt::ApplicationModal);
    Ac(ekran, gorununce);
    // Its first activation may have closed it already.
    if (Pencere(ekran) == pencere && pencere->isVisible())
        dongu.exec();
    Gizle(ekran);
    // Not every system gives the keyboard back by itself.
    if (ust != nullptr)
        ust->activateWindow();
}

void QtOrtam::Sakla(EkranAdi ekran) const {
    if (const QWidget* pencere = Pencere(ekran))
        hafiza_.Sakla(*pencere, QMetin(EkranBul(ekran).ad));
}

void QtOrtam::Gizle(EkranAdi ekran) {
    Sakla(ekran);
    // Out of the map first: hiding a window may lead back here.
    const auto dugum = pencereler_.extract(ekran);
}

void QtOrtam::OdakVer(EkranAdi ekran, MetinBakis kontrol) const {
    const QWidget* pencere = Pencere(ekran);
    if (pencere == nullptr)
        return;
    if (auto* parca = pencere->findChild<QWidget*>(QMetin(kontrol)))
        parca->setFocus(Qt::OtherFocusReason);
}

std::optional<std::filesystem::path> QtOrtam::KayitYeri(const KayitYeriKutusu& kutu) {
    const auto sor = [this](QWidget* pencere, const KayitYeriKutusu& sorulan) {
        return KayitYeriSor(pencere, sorulan, kayitKlasoru_.isEmpty() ? BelgeKlasoru() : kayitKlasoru_);
    };
    auto yol = Kutuda(sor, Ondeki(), kutu);
    if (yol)
        kayitKlasoru_ = QString::fromStdU16String(yol->parent_path().u16string());
    return yol;
}

Metin QtOrtam::KlasorSec(const Metin& baslik) {
    if (bitti_)
        return {};
    const auto sor = [this](QWidget* pencere, const Metin& sorulan) {
        return KlasorSor(pencere, QMetin(sorulan), secilenKlasor_.isEmpty() ? EvKlasoru() : secilenKlasor_);
    };
    const QString secilen = Kutuda(sor, Ondeki(), baslik);
    if (secilen.isEmpty())
        return {};
    secilenKlasor_ = secilen;
    return YolMetni(std::filesystem::path(secilen.toStdU16String()).make_preferred());
}

bool QtOrtam::Arkada(Isci& isci, const std::function<bool(const Vazgecildi&)>& is) const {
    const Baglayici::KullaniciBekleme bekleme;
    QEventLoop dongu;
    QTimer sabir;
    // The end of the program ends the waiting too, and the job may come to its own end behind it.
    const auto sonuc = std::make_shared<bool>(false);
    const auto gec = std::make_shared<std::atomic<bool>>(false);
    QObject::connect(&sabir, &QTimer::timeout, &dongu, [&dongu, gec] {
        *gec = true;
        dongu.quit();
    });
    sabir.start(sabir_);
    isci.Ver([is, gec] { return is([gec] { return gec->load(); }); },
             [sonuc, bekleyen = QPointer<QEventLoop>(&dongu)](bool tamam) {
                 *sonuc = tamam;
                 if (bekleyen != nullptr)
                     bekleyen->quit();
             });
    dongu.exec();
    return *sonuc;
}

void QtOrtam::Bitir() {
    bitti_ = true;
    for (const auto& [ekran, pencere] : pencereler_)
        Sakla(ekran);
    QCoreApplication::exit(0);
}

void BeklerkenGoster(Ortam& ortam) {
    ortam.ag.getir = [getir = ortam.ag.getir](const AgIstegi& istek) {
        const Baglayici::KullaniciBekleme bekleme;
        return getir(istek);
    };
    if (ortam.ag.gonder)
        ortam.ag.gonder = [gonder = ortam.ag.gonder](const AgIstegi& istek) {
            const Gonderim gonderim = gonder(istek);
            Gonderim gosteren = gonderim;
            gosteren.bekle = [bekle = gonderim.bekle](const std::function<bool()>& birak) {
                const Baglayici::KullaniciBekleme bekleme;
                bekle(birak);
            };
            return gosteren;
        };
    ortam.ag.aktarimAc = [ac = ortam.ag.aktarimAc](const AktarimIstegi& istek) {
        const Aktarim aktarim = ac(istek);
        Aktarim gosteren = aktarim;
        gosteren.basliklar = [basliklar = aktarim.basliklar] {
            const Baglayici::KullaniciBekleme bekleme;
            return basliklar();
        };
        return gosteren;
    };
}

} // namespace velora
