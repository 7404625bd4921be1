#include "qt/Pano.h"

#include <QClipboard>
#include <QGuiApplication>

namespace velora {

QString PanoMetni() {
    return QGuiApplication::clipboard()->text();
}

void PanoyaKoy(const QString& metin) {
    QGuiApplication::clipboard()->setText(metin);
}

} // namespace velora
