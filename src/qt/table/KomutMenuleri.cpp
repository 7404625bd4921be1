#include "qt/table/KomutMenuleri.h"

#include <map>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QToolBar>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/ErisimTuslari.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// An entry, or the line that stands for it. A handler may unload the screen it was called on.
QAction* GirdiYap(QObject& ust, const QString& ad, MenuGirdisi& model, bool cizgi, Baglayici& baglayici,
                  const Baglayici::Isleyici& isle) {
    auto* girdi = new QAction(&ust);
    girdi->setObjectName(ad);
    girdi->setSeparator(cizgi);
    baglayici.Bagla(*girdi, model, isle);
    return girdi;
}

/// Keeps from a menu what the mouse does before its first press on it.
class BasmaSuzgeci : public QObject {
  public:
    explicit BasmaSuzgeci(QMenu& menu) : QObject(&menu) { menu.installEventFilter(this); }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        switch (olay->type()) {
        case QEvent::Show:
            basildi_ = false;
            break;
        case QEvent::MouseButtonPress:
            basildi_ = true;
            break;
        case QEvent::MouseMove:
            if (!basildi_ && dynamic_cast<QMouseEvent&>(*olay).buttons() != Qt::NoButton)
                return true;
            break;
        default:
            break;
        }
        return QObject::eventFilter(nesne, olay);
    }

  private:
    bool basildi_ = false;
};

} // namespace

void KendiBasmasiyla(QMenu& menu) {
    new BasmaSuzgeci(menu);
}

void MenuyuDoldur(QMenu& parca, Menu menu, Program& program, Baglayici& baglayici,
                  std::span<const KomutTanimi> komutlar) {
    const auto tablo = program.FormTablo.Tut();
    for (const KomutTanimi& komut : komutlar) {
        if (komut.menu != menu)
            continue;
        QAction* girdi =
            GirdiYap(parca, QMetin(komut.ad), tablo->Girdi(komut.komut), komut.Cizgi(), baglayici,
                     [&program, isle = komut.isle] { (*program.FormTablo.Tut().*isle)(); });
        girdi->setShortcut(QKeySequence(QMetin(komut.tus), QKeySequence::PortableText));
        parca.addAction(girdi);
    }
    baglayici.Izle([&parca] { ErisimTuslariVer(parca); });
}

void MenuleriKur(QMenuBar& serit, Program& program, Baglayici& baglayici,
                 std::span<const KomutTanimi> komutlar) {
    for (const MenuTanimi& tanim : kMenuler) {
        if (tanim.baslik.empty())
            continue;
        QMenu* parca = serit.addMenu(u'&' + QMetin(tanim.baslik));
        parca->setObjectName(QMetin(tanim.ad));
        MenuyuDoldur(*parca, tanim.menu, program, baglayici, komutlar);
    }
}

void AraclariKur(QToolBar& serit, Program& program, Baglayici& baglayici,
                 std::span<const KomutTanimi> komutlar) {
    const auto tablo = program.FormTablo.Tut();
    std::map<int, const KomutTanimi*> yerler;
    for (const KomutTanimi& komut : komutlar)
        if (komut.arac.yer > 0)
            yerler[komut.arac.yer] = &komut;
    for (const auto& [yer, komut] : yerler) {
        tablo->Toolbar1[yer].baslik = komut->arac.baslik;
        const auto ad = [](int no) { return QStringLiteral("Toolbar1_%1").arg(no); };
        QAction* dugme = GirdiYap(serit, ad(yer), tablo->Toolbar1[yer], false, baglayici,
                                  [&program, &komut = *komut] { program.FormTablo->AracaTikla(komut); });
        dugme->setToolTip(QIpucu(komut->arac.ipucu));
        serit.addAction(dugme);
        serit.addAction(GirdiYap(serit, ad(yer + 1), tablo->Toolbar1[yer + 1], true, baglayici, {}));
    }
}

} // namespace velora
