#include "qt/GirdiSuzgeci.h"

#include <algorithm>

#include <QLineEdit>

#include "storage/KodSayfasi.h"

namespace velora {

namespace {

/// Characters that both texts begin with.
qsizetype OrtakBas(const QString& bir, const QString& iki) {
    const qsizetype enCok = std::min(bir.size(), iki.size());
    qsizetype adet = 0;
    while (adet < enCok && bir[adet] == iki[adet])
        ++adet;
    return adet;
}

qsizetype OrtakSon(const QString& bir, const QString& iki, qsizetype bas) {
    const qsizetype enCok = std::min(bir.size(), iki.size()) - bas;
    qsizetype adet = 0;
    while (adet < enCok && bir[bir.size() - 1 - adet] == iki[iki.size() - 1 - adet])
        ++adet;
    return adet;
}

QString KodSayfasinaUydur(const QString& gelen) {
    if (gelen.size() == 1)
        return KodVar(gelen[0].unicode()) ? gelen : QString();
    QString metin = gelen.normalized(QString::NormalizationForm_C);
    QString uygun;
    for (qsizetype i = 0; i < metin.size(); ++i) {
        const bool cift = metin[i].isHighSurrogate() && i + 1 < metin.size() && metin[i + 1].isLowSurrogate();
        uygun += KodVar(metin[i].unicode()) ? metin[i] : QChar(u'?');
        i += cift ? 1 : 0;
    }
    return uygun;
}

} // namespace

QString GirdiyiSuz(const QString& eski, const QString& yeni, const HarfIzni& izin, int enUzun) {
    const qsizetype bas = OrtakBas(eski, yeni);
    const qsizetype son = OrtakSon(eski, yeni, bas);
    QString gelen = KodSayfasinaUydur(yeni.mid(bas, yeni.size() - bas - son));
    if (izin)
        gelen.removeIf([&izin](QChar harf) { return !izin(harf.unicode()); });
    if (enUzun > 0)
        gelen.truncate(std::max<qsizetype>(0, enUzun - bas - son));
    return yeni.left(bas) + gelen + yeni.right(son);
}

void MetniKoy(QLineEdit& kutu, const QString& metin) {
    const qsizetype geriden = kutu.text().size() - kutu.cursorPosition();
    kutu.setText(metin);
    if (kutu.inputMask().isEmpty() && kutu.hasFocus())
        kutu.setCursorPosition(static_cast<int>(std::max<qsizetype>(0, metin.size() - geriden)));
}

} // namespace velora
