#include "qt/ErisimTuslari.h"

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include <QAbstractButton>
#include <QLabel>
#include <QSet>
#include <QStackedWidget>
#include <QTabWidget>

namespace velora {

namespace {

constexpr QChar kNoktaliBuyukI = u'İ'; // its key brings "i" and never this sign

/// A caption on the display.
struct Yazi {
    QString metin;
    std::function<void(const QString&)> koy;
    QWidget* sayfa; // the page that it is seen on, null for every page
};

using Tuslar = QSet<QChar>;

/// The key that brings a letter; "ı" and "i" can't be told apart.
QChar Tus(QChar harf) {
    return harf.toUpper();
}

QChar VarolanTus(const QString& metin) {
    const qsizetype yer = metin.indexOf(u'&');
    return yer < 0 || yer + 1 == metin.size() ? QChar() : Tus(metin[yer + 1]);
}

/// Where the mark goes: before the first free letter that begins a word, else before the first free letter; -1 for
/// none.
qsizetype IsaretYeri(const QString& metin, const Tuslar& alinan) {
    qsizetype ortada = -1;
    for (qsizetype i = 0; i < metin.size(); ++i) {
        if (!metin[i].isLetter() || metin[i] == kNoktaliBuyukI || alinan.contains(Tus(metin[i])))
            continue;
        if (i == 0 || !metin[i - 1].isLetter())
            return i;
        if (ortada < 0)
            ortada = i;
    }
    return ortada;
}

QWidget* Sayfasi(QWidget* parca) {
    for (; parca != nullptr; parca = parca->parentWidget())
        if (qobject_cast<QStackedWidget*>(parca->parentWidget()) != nullptr)
            return parca;
    return nullptr;
}

void SekmeleriEkle(std::vector<Yazi>& yazilar, QTabWidget& sayfalar) {
    for (int i = 0; i < sayfalar.count(); ++i)
        yazilar.push_back({sayfalar.tabText(i),
                           [&sayfalar, i](const QString& metin) { sayfalar.setTabText(i, metin); },
                           Sayfasi(&sayfalar)});
}

/// Whether a label names a field that can be typed into or pressed.
bool AlanAdi(const QLabel& etiket) {
    return etiket.buddy() != nullptr && etiket.buddy()->focusPolicy() != Qt::NoFocus;
}

/// All captions of a window, those of the buttons that are seen with every page first.
std::vector<Yazi> Yazilar(const QWidget& pencere) {
    std::vector<Yazi> yazilar;
    for (QWidget* parca : pencere.findChildren<QWidget*>()) {
        if (parca->window() != &pencere)
            continue;
        if (auto* dugme = qobject_cast<QAbstractButton*>(parca); dugme != nullptr && !dugme->text().isEmpty())
            yazilar.push_back(
                {dugme->text(), [dugme](const QString& metin) { dugme->setText(metin); }, Sayfasi(parca)});
        else if (auto* etiket = qobject_cast<QLabel*>(parca); etiket != nullptr && AlanAdi(*etiket))
            yazilar.push_back(
                {etiket->text(), [etiket](const QString& metin) { etiket->setText(metin); }, Sayfasi(parca)});
        else if (auto* sayfalar = qobject_cast<QTabWidget*>(parca); sayfalar != nullptr)
            SekmeleriEkle(yazilar, *sayfalar);
    }
    std::ranges::stable_partition(yazilar, [](const Yazi& yazi) { return yazi.sayfa == nullptr; });
    return yazilar;
}

} // namespace

void ErisimTuslariVer(QWidget& pencere) {
    const std::vector<Yazi> yazilar = Yazilar(pencere);
    std::map<QWidget*, Tuslar> alinan; // by page; those of null hold everywhere
    for (const Yazi& yazi : yazilar)
        if (const QChar tus = VarolanTus(yazi.metin); !tus.isNull())
            alinan[yazi.sayfa].insert(tus);
    for (const Yazi& yazi : yazilar) {
        if (yazi.metin.contains(u'&'))
            continue;
        Tuslar dolu = alinan[nullptr];
        for (const auto& [sayfa, tuslar] : alinan)
            if (yazi.sayfa == nullptr || sayfa == yazi.sayfa)
                dolu += tuslar;
        const qsizetype yer = IsaretYeri(yazi.metin, dolu);
        if (yer < 0)
            continue;
        alinan[yazi.sayfa].insert(Tus(yazi.metin[yer]));
        yazi.koy(QString(yazi.metin).insert(yer, u'&'));
    }
}

} // namespace velora
