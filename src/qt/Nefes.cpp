#include "qt/Nefes.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPointer>
#include <utility>
#include <vector>

#include "qt/OlayKilidi.h"
#include "screen/Bayrak.h"

namespace velora {

namespace {

constexpr int kSabir = 200;   // milliseconds without events, before the first
constexpr int kSonraki = 100; // and between two of them
constexpr int kUzun = 1000;   // from then on it is shown how the work goes on

struct Izleyen {
    QPointer<QObject> alici;
    std::function<void(int)> goster;
};

struct NefesDurumu {
    QElapsedTimer sonuncu; // since events came through
    QElapsedTimer is;      // since they last did so in their own time
    int adim = 0;          // breaths since the work counts as long
    bool mesgul = false;   // the pointer says so
    bool aliniyor = false;
    std::vector<Izleyen> izleyenler;
};

NefesDurumu& Soluk() {
    static NefesDurumu durum;
    return durum;
}

void Goster(NefesDurumu& durum, int adim) {
    durum.adim = adim;
    std::erase_if(durum.izleyenler, [](const Izleyen& biri) { return biri.alici == nullptr; });
    for (const Izleyen& izleyen : durum.izleyenler)
        izleyen.goster(adim);
}

} // namespace

void Nefes::Al() {
    NefesDurumu& durum = Soluk();
    if (durum.aliniyor || !durum.sonuncu.isValid() || OlayKilidi::Kapali() ||
        !durum.sonuncu.hasExpired(durum.mesgul ? kSonraki : kSabir))
        return;
    if (!durum.mesgul)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    durum.mesgul = true;
    if (durum.is.hasExpired(kUzun))
        Goster(durum, durum.adim + 1);
    {
        const Bayrak aliniyor(durum.aliniyor);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers | QEventLoop::X11ExcludeTimers);
    }
    // The input that was kept out would wait for the next event that comes.
    QCoreApplication::eventDispatcher()->wakeUp();
    durum.sonuncu.start();
}

bool Nefes::Aliniyor() {
    return Soluk().aliniyor;
}

void Nefes::Basla() {
    Soluk().sonuncu.start();
    Soluk().is.start();
}

void Nefes::Bitir() {
    NefesDurumu& durum = Soluk();
    durum.sonuncu.invalidate();
    if (!durum.mesgul)
        return;
    durum.mesgul = false;
    if (durum.adim > 0)
        Goster(durum, 0);
    QGuiApplication::restoreOverrideCursor();
}

void Nefes::Izle(QObject& alici, std::function<void(int adim)> goster) {
    Soluk().izleyenler.push_back({&alici, std::move(goster)});
}

} // namespace velora
