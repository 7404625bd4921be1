#include "qt/Nefes.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>

#include "qt/OlayKilidi.h"
#include "screen/Bayrak.h"

namespace velora {

namespace {

constexpr int kSabir = 300;   // milliseconds without events, before the first
constexpr int kSonraki = 100; // and between two of them

struct NefesDurumu {
    QElapsedTimer sonuncu; // since events came through
    bool mesgul = false;   // the pointer says so
    bool aliniyor = false;
};

NefesDurumu& Soluk() {
    static NefesDurumu durum;
    return durum;
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
}

void Nefes::Bitir() {
    NefesDurumu& durum = Soluk();
    durum.sonuncu.invalidate();
    if (!durum.mesgul)
        return;
    durum.mesgul = false;
    QGuiApplication::restoreOverrideCursor();
}

} // namespace velora
