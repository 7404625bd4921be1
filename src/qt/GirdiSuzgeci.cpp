#include "qt/GirdiSuzgeci.h"

#include <algorithm>

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "qt/Ceviri.h"

namespace velora {

namespace {

/// Characters that both texts begin with. None of them is half a pair, or a letter that a mark now stands on.
qsizetype OrtakBas(const QString& bir, const QString& iki) {
    const qsizetype enCok = std::min(bir.size(), iki.size());
    qsizetype adet = 0;
    while (adet < enCok && bir[adet] == iki[adet])
        ++adet;
    while (adet > 0 && (bir[adet - 1].isHighSurrogate() || (adet < iki.size() && iki[adet].isMark())))
        --adet;
    return adet;
}

qsizetype OrtakSon(const QString& bir, const QString& iki, qsizetype bas) {
    const qsizetype enCok = std::min(bir.size(), iki.size()) - bas;
    qsizetype adet = 0;
    while (adet < enCok && bir[bir.size() - 1 - adet] == iki[iki.size() - 1 - adet])
        ++adet;
    return adet > 0 && bir[bir.size() - adet].isLowSurrogate() ? adet - 1 : adet;
}

/// Where the first characters that a field of many lines shows of a text end in it.
qsizetype MetindekiYer(const QString& metin, qsizetype gorunenAdet) {
    qsizetype yer = 0;
    for (; gorunenAdet > 0; --gorunenAdet)
        yer += QStringView(metin).mid(yer, 2) == u"\r\n" ? 2 : 1;
    return yer;
}

/// Letters and their marks as one character, where there is one. Which these are the toolkit knows.
Metin Birlesik(const QString& metin) {
    return MetinYap(metin.normalized(QString::NormalizationForm_C));
}

class TusSuzgeci : public QObject {
  public:
    TusSuzgeci(QWidget& alan, HarfIzni izin) : QObject(&alan), izin_(izin) { alan.installEventFilter(this); }

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::KeyPress)
            return TusuSuz(*nesne, static_cast<QKeyEvent&>(*olay));
        if (olay->type() == QEvent::InputMethod)
            GetirileniSuz(static_cast<QInputMethodEvent&>(*olay));
        return QObject::eventFilter(nesne, olay);
    }

  private:
    [[nodiscard]] QString Suz(const QString& tuslanan) const {
        return QMetin(TuslananMetin(Birlesik(tuslanan), izin_));
    }

    /// True when the key is not to reach the field as it is.
    [[nodiscard]] bool TusuSuz(QObject& alan, const QKeyEvent& tus) const {
        // A shortcut types nothing; with Alt beside it, Ctrl is AltGr.
        if ((tus.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier)
            return false;
        const QString metin = Suz(tus.text());
        if (metin == tus.text())
            return false;
        if (!metin.isEmpty()) {
            QKeyEvent kalan(tus.type(), tus.key(), tus.modifiers(), metin, tus.isAutoRepeat());
            QCoreApplication::sendEvent(&alan, &kalan);
        }
        return true;
    }

    /// A text of which nothing is left replaces nothing either.
    void GetirileniSuz(QInputMethodEvent& olay) const {
        const QString metin = Suz(olay.commitString());
        if (metin != olay.commitString())
            olay.setCommitString(metin, olay.replacementStart(),
                                 metin.isEmpty() ? 0 : olay.replacementLength());
    }

    HarfIzni izin_;
};

} // namespace

QString GirdiyiSuz(const QString& eski, const QString& gorunen, const GirdiKurali& kural) {
    const QString onceki = kural.cokSatirli ? CokSatirGoster(eski) : eski;
    const qsizetype bas = OrtakBas(onceki, gorunen);
    const qsizetype son = OrtakSon(onceki, gorunen, bas);
    const auto yer = [&](qsizetype adet) { return kural.cokSatirli ? MetindekiYer(eski, adet) : adet; };
    const Metin gelen = Birlesik(gorunen.mid(bas, gorunen.size() - bas - son));
    return QMetin(GirdiyiKoy(MetinYap(eski.left(yer(bas))), gelen,
                             MetinYap(eski.mid(yer(onceki.size() - son))), kural));
}

QString Giren(const QString& eski, const QString& gorunen) {
    const qsizetype bas = OrtakBas(eski, gorunen);
    return gorunen.mid(bas, gorunen.size() - bas - OrtakSon(eski, gorunen, bas));
}

QString CokSatirGoster(QString metin) {
    return metin.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(u'\r', u'\n')
        .replace(QChar(QChar::Nbsp), QChar(u' '));
}

void TuslariSuz(QWidget& alan, HarfIzni izin) {
    new TusSuzgeci(alan, izin);
}

void MetniKoy(QLineEdit& kutu, const QString& metin) {
    const qsizetype geriden = kutu.displayText().size() - kutu.cursorPosition();
    kutu.setText(metin);
    if (kutu.hasFocus())
        kutu.setCursorPosition(static_cast<int>(std::max<qsizetype>(0, kutu.displayText().size() - geriden)));
}

} // namespace velora
