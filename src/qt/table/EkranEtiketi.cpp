#include "qt/table/EkranEtiketi.h"

#include <algorithm>

#include "qt/Ceviri.h"
#include "table/Yerlesim.h"

namespace velora {

namespace {

constexpr int kPay = 4; // logical pixels about the text

/// A length along one axis: behind the cell where there is room, otherwise before it.
int Kenar(int istenen, int boy, int gozBasi, int sinirBasi, int sinirSonu) {
    const int yer = istenen + boy <= sinirSonu ? istenen : gozBasi - boy;
    return std::max(sinirBasi, yer);
}

} // namespace

QRect EkranYeri(QSize boy, QPoint istenen, const QRect& goz, QPoint imlec, const QRect& sinir) {
    const auto yerlestir = [&](QPoint kose) {
        return QRect(
            QPoint(Kenar(kose.x(), boy.width(), goz.left(), sinir.left(), sinir.x() + sinir.width()),
                   Kenar(kose.y(), boy.height(), goz.top(), sinir.top(), sinir.y() + sinir.height())),
            boy);
    };
    const QRect yer = yerlestir(istenen);
    return yer.contains(imlec) ? yerlestir({goz.x() + goz.width(), goz.y() + goz.height()}) : yer;
}

EkranEtiketi::EkranEtiketi(QWidget* tablo) : QLabel(tablo) {
    setObjectName(QStringLiteral("Ekran"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setFrameShape(QFrame::Box);
    setMargin(kPay);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    hide();
}

void EkranEtiketi::Goster(const Etiket& model, const QRect& goz, QPoint imlec) {
    if (!model.gorunur)
        return hide();
    setText(QMetin(model.baslik));
    const QPoint istenen(qRound(model.yer.sol / kTwipPikseli), qRound(model.yer.ust / kTwipPikseli));
    setGeometry(EkranYeri(sizeHint(), istenen, goz, imlec, parentWidget()->rect()));
    show();
    raise();
}

} // namespace velora
