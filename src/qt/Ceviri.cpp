#include "qt/Ceviri.h"

#include <QTextDocument>

namespace velora {

QString QMetin(MetinBakis metin) {
    return QStringView(metin.data(), static_cast<qsizetype>(metin.size())).toString();
}

Metin MetinYap(const QString& metin) {
    return metin.toStdU16String();
}

QString QIpucu(MetinBakis metin) {
    const QString duz = QMetin(metin);
    return Qt::mightBeRichText(duz) ? Qt::convertFromPlainText(duz) : duz;
}

QColor QRenk(RenkDegeri renk) {
    const auto bitler = static_cast<std::uint32_t>(renk);
    return {static_cast<int>(bitler & 0xFFU), static_cast<int>((bitler >> 8U) & 0xFFU),
            static_cast<int>((bitler >> 16U) & 0xFFU)};
}

} // namespace velora
