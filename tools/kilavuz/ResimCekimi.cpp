#include "tools/kilavuz/ResimCekimi.h"

#include <chrono>

#include <QApplication>
#include <QPainter>
#include <QTimer>

#include "access/Kullanicilar.h"
#include "online/FormFirma.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Ekranlar.h"
#include "qt/QtOrtam.h"
#include "screen/Program.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "tools/OrnekFirma.h"

namespace velora::kilavuz {

namespace {

using namespace std::chrono_literals;

constexpr Gun kResimGunu = std::chrono::year(2026) / 5 / 21;
constexpr int kEnCokTur = 200; // turns of the event loop that a window may take to come up

constexpr int kBaslikBoyu = 30;
constexpr int kSimgeBoyu = 16;
constexpr QRgb kBaslikZemini = qRgb(222, 226, 230);
constexpr QRgb kBaslikYazisi = qRgb(32, 33, 36);
constexpr QRgb kCerceve = qRgb(120, 124, 128);

/// A picture with a line about it, and room for `ust` above what it shows.
QImage Cerceve(const QPixmap& ic, int ust) {
    const double olcek = ic.devicePixelRatio();
    QImage resim(((ic.deviceIndependentSize() + QSizeF(2, ust + 1)) * olcek).toSize(), QImage::Format_RGB32);
    resim.setDevicePixelRatio(olcek);
    resim.fill(kCerceve);
    QPainter(&resim).drawPixmap(1, ust, ic);
    return resim;
}

/// The window under its title, as a desktop shows it.
QImage BaslikAltinda(const QPixmap& ic, const QWidget& pencere) {
    QImage resim = Cerceve(ic, kBaslikBoyu);
    const QSize boy = resim.deviceIndependentSize().toSize();
    QPainter firca(&resim);
    firca.fillRect(1, 1, boy.width() - 2, kBaslikBoyu - 1, QColor(kBaslikZemini));
    const int bosluk = (kBaslikBoyu - kSimgeBoyu) / 2;
    firca.drawPixmap(bosluk + 1, bosluk, QApplication::windowIcon().pixmap(kSimgeBoyu));
    firca.setPen(QColor(kBaslikYazisi));
    const QRect yazi(2 * bosluk + kSimgeBoyu, 0, boy.width() - 2 * kBaslikBoyu, kBaslikBoyu);
    firca.drawText(yazi, Qt::AlignLeft | Qt::AlignVCenter, pencere.windowTitle());
    firca.drawText(QRect(boy.width() - kBaslikBoyu, 0, kBaslikBoyu, kBaslikBoyu), Qt::AlignCenter,
                   QStringLiteral("×"));
    return resim;
}

/// The window, and the menu that is open over it.
QPixmap Icerik(QWidget& pencere) {
    QPixmap ic = pencere.grab();
    if (QWidget* menu = QApplication::activePopupWidget()) {
        QPainter firca(&ic);
        firca.drawPixmap(pencere.mapFromGlobal(menu->pos()), menu->grab());
    }
    return ic;
}

QImage Goruntu(QWidget& pencere, const QRect& kesit) {
    const QPixmap ic = Icerik(pencere);
    if (kesit.isNull())
        return pencere.windowFlags().testFlag(Qt::FramelessWindowHint) ? ic.toImage()
                                                                       : BaslikAltinda(ic, pencere);
    const double olcek = ic.devicePixelRatio();
    QPixmap parca = ic.copy(QRect(kesit.topLeft() * olcek, kesit.size() * olcek));
    parca.setDevicePixelRatio(olcek);
    return Cerceve(parca, 1);
}

/// What blinks stands still, in the phase in which it is seen.
void KipirdayaniDurdur(Program& program) {
    if (!program.FormTablo.Yuklu())
        return;
    const auto tablo = program.FormTablo.Tut();
    for (Zamanlayici* saat : {&tablo->CetvelTimer, &tablo->GunTimer, &tablo->OzelHatirlatTimer})
        saat->aralik = 0;
    tablo->BuGun.gorunur = tablo->Image3a = true;
    tablo->HizliSecim.gorunur = tablo->HizliAy > 0 && tablo->HizliGun > 0;
}

class Cekim {
  public:
    Cekim(const std::filesystem::path& kok, const ResimTanimi& tanim) : tanim_(tanim), program_(Dis(), kok) {
        EkranlariTanit(disDunya_, program_);
    }
    ~Cekim() { disDunya_.PencereleriBirak(); }
    Cekim(const Cekim&) = delete;
    Cekim& operator=(const Cekim&) = delete;

    CekilenResim Cek() {
        Dene([this] { tanim_.ac(program_); });
        for (int tur = 0; !bitti_ && tur < kEnCokTur; ++tur)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        if (sonuc_.resim.isNull() && sonuc_.hata.isEmpty())
            sonuc_.hata = QStringLiteral("the window didn't come up");
        return sonuc_;
    }

  private:
    Ortam Dis() {
        Ortam ortam = disDunya_.Ver();
        ortam.zaman.simdi = [] { return std::chrono::local_days(kResimGunu) + 10h + 30min; };
        ortam.ag.donanimAdresi = [] { return DonanimAdresi{0x00, 0x1B, 0xC4, 0x0D, 0xE0, 0x9F}; };
        ortam.olaylar.bitir = [] {};
        ortam.sor.mesaj = [this](const MesajKutusu& kutu) {
            Yanlis(kutu.metin);
            return Cevap::Hayir;
        };
        ortam.sor.girdi = [this](const GirdiKutusu& kutu) {
            Yanlis(kutu.metin);
            return Metin(u" ");
        };
        ortam.goster.ac = [this, ac = ortam.goster.ac](EkranAdi ekran, const auto& gorununce) {
            if (Bekle(ekran))
                ac(ekran, gorununce);
        };
        ortam.goster.modal = [this, modal = ortam.goster.modal](EkranAdi ekran, const auto& gorununce) {
            if (Bekle(ekran))
                modal(ekran, gorununce);
        };
        return ortam;
    }

    void Yanlis(const Metin& kutu) { sonuc_.hata = QStringLiteral("a box came up: ") + QMetin(kutu); }

    template <class Is>
    void Dene(const Is& is) {
        try {
            is();
        } catch (const std::exception& hata) {
            sonuc_.hata = QString::fromUtf8(hata.what());
        }
    }

    /// The picture is taken from the event loop that the window stands in. Another window isn't shown: nobody
    /// would close it.
    bool Bekle(EkranAdi ekran) {
        if (ekran != tanim_.ekran) {
            sonuc_.hata = QStringLiteral("another window came up: ") + QMetin(EkranBul(ekran).ad);
            bitti_ = true;
            return false;
        }
        if (!std::exchange(bekleniyor_, true))
            QTimer::singleShot(0, qApp, [this] {
                Dene([this] { Al(); });
                Kapat();
            });
        return true;
    }

    void Al() {
        QWidget& pencere = *disDunya_.Pencere(tanim_.ekran);
        if (tanim_.boy.isValid())
            pencere.resize(tanim_.boy);
        QCoreApplication::processEvents();
        if (tanim_.hazirla != nullptr)
            tanim_.hazirla(program_, pencere);
        Baglayici::HepsiniTazele();
        QCoreApplication::processEvents();
        KipirdayaniDurdur(program_);
        Baglayici::HepsiniTazele();
        sonuc_.resim = Goruntu(pencere, tanim_.kesit);
    }

    void Kapat() {
        bitti_ = true;
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        if (QWidget* pencere = disDunya_.Pencere(tanim_.ekran))
            pencere->hide();
    }

    const ResimTanimi& tanim_;
    CekilenResim sonuc_;
    bool bekleniyor_ = false;
    bool bitti_ = false;
    QtOrtam disDunya_;
    Program program_;
};

/// The users and the profile, by the program's own hands.
void SahipleriYaz(Program& program) {
    struct Kullanici {
        Metin ad;
        Metin parola;
        std::array<Metin, kYetkiSayisi> yetkiler;
    };
    const Kullanici kullanicilar[]{
        {u"admin", u"lale1453", {u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1"}},
        {u"Ayşe", u"gül5", {u"1", u"0", u"1", u"0", u"0", u"0", u"0", u"1", u"0", u"0", u"0"}},
        {u"Murat", u"deniz07", {u"1", u"1", u"1", u"0", u"0", u"0", u"1", u"1", u"1", u"0", u"1"}},
        {u"Selin", u"bahar", {u"0", u"0", u"1", u"0", u"0", u"0", u"0", u"0", u"0", u"0", u"0"}}};
    SatirListesi satirlar;
    for (const auto& [ad, parola, yetkiler] : kullanicilar)
        satirlar.push_back(KullaniciSatiri(ad, parola, yetkiler));
    KullanicilariYaz(program, satirlar);

    const auto firma = program.FormFirma.Tut();
    firma->t1.metin = u"Yakamoz Davet Ve Organizasyon";
    firma->t2.metin = u"Nermin Aksoy";
    firma->t3.metin = u"0312 000 41 27";
    firma->t4.metin = u"0532 000 63 18";
    firma->t5.metin = firma->t6.metin = u"Yok";
    firma->t7.metin = u"Çınar Sok. No: 14";
    firma->t8.Sec(u"ANKARA");
    firma->t9.metin = u"Çankaya";
    firma->t13.Sec(u"3");
    firma->Command3_Click(); // writes
}

} // namespace

bool FirmayiKur(const std::filesystem::path& kok, unsigned rezervasyon) {
    const ornek::Istek istek{
        .salon = 3, .yil = 2, .rezervasyon = rezervasyon, .tohum = 7, .bugun = kResimGunu};
    if (ornek::FirmaYap(Dosyalar(kok), istek).durum != ornek::Durum::Tamam)
        return false;
    Ortam ortam;
    ortam.zaman.simdi = [] { return std::chrono::local_days(kResimGunu) + 10h; };
    Program program(std::move(ortam), kok);
    SahipleriYaz(program);
    return true;
}

CekilenResim ResimCek(const std::filesystem::path& kok, const ResimTanimi& tanim) {
    return Cekim(kok, tanim).Cek();
}

} // namespace velora::kilavuz
