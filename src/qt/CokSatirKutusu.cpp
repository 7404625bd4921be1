#include "qt/CokSatirKutusu.h"

#include <algorithm>
#include <utility>

#include <QMimeData>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>

namespace velora {

namespace {

constexpr qsizetype kParca = 1000; // characters of a piece

/// Where the piece that begins at `bas` ends: behind a blank of its second half, or where it is full.
qsizetype ParcaSonu(const QString& metin, qsizetype bas) {
    const qsizetype dolu = bas + kParca;
    const qsizetype bosluk = QStringView(metin).mid(bas, kParca).lastIndexOf(u' ');
    if (bosluk >= kParca / 2)
        return bas + bosluk + 1;
    return metin[dolu - 1].isHighSurrogate() ? dolu - 1 : dolu;
}

/// The text with line ends between its pieces, whose places in it go into `ekler`.
QString Parcala(const QString& metin, std::vector<int>& ekler) {
    QString gorunen;
    for (qsizetype bas = 0; bas <= metin.size();) {
        qsizetype satirSonu = metin.indexOf(u'\n', bas);
        if (satirSonu < 0)
            satirSonu = metin.size();
        while (satirSonu - bas > CokSatirKutusu::kEnUzunSatir) {
            const qsizetype son = ParcaSonu(metin, bas);
            gorunen += QStringView(metin).mid(bas, son - bas);
            ekler.push_back(static_cast<int>(gorunen.size()));
            gorunen += u'\n';
            bas = son;
        }
        gorunen += QStringView(metin).mid(bas, satirSonu + 1 - bas);
        bas = satirSonu + 1;
    }
    return gorunen;
}

bool UzunSatirVar(const QString& metin) {
    std::vector<int> ekler;
    Parcala(metin, ekler);
    return !ekler.empty();
}

} // namespace

CokSatirKutusu::CokSatirKutusu(QWidget* ust) : QPlainTextEdit(ust) {
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int yer, int giden, int gelen) { Kaydir(yer, giden, gelen); });
}

QString CokSatirKutusu::Metni() const {
    return Birlestir(toPlainText(), 0);
}

void CokSatirKutusu::MetniKoy(const QString& metin) {
    const int yer = Metindeki(textCursor().position());
    const auto geriden = Metindeki(document()->characterCount() - 1) - yer;
    std::vector<int> ekler;
    const QString gorunen = Parcala(metin, ekler);
    document()->setUndoRedoEnabled(ekler.empty());
    setPlainText(gorunen);
    ekler_ = std::move(ekler);
    const auto boy = static_cast<int>(metin.size());
    QTextCursor imlec = textCursor();
    imlec.setPosition(Gorunen(std::max(0, hasFocus() ? boy - geriden : std::min(yer, boy))));
    setTextCursor(imlec);
}

QMimeData* CokSatirKutusu::createMimeDataFromSelection() const {
    QMimeData* secilen = QPlainTextEdit::createMimeDataFromSelection();
    if (!ekler_.empty())
        secilen->setText(Birlestir(secilen->text(), textCursor().selectionStart()));
    return secilen;
}

/// Until it is shown in pieces, a long line is broken wherever it is full: that takes the toolkit only as
/// long as the line is.
void CokSatirKutusu::insertFromMimeData(const QMimeData* gelen) {
    if (!gelen->hasText() || !UzunSatirVar(gelen->text()))
        return QPlainTextEdit::insertFromMimeData(gelen);
    const QTextOption::WrapMode onceki = wordWrapMode();
    setWordWrapMode(QTextOption::WrapAnywhere);
    QPlainTextEdit::insertFromMimeData(gelen);
    {
        const QSignalBlocker sus(this); // the same text
        MetniKoy(Metni());
    }
    setWordWrapMode(onceki);
}

void CokSatirKutusu::Kaydir(int yer, int giden, int gelen) {
    std::vector<int> kalan;
    for (const int ek : ekler_) {
        const bool oncesinde = ek < yer;
        const bool yalnizBakilan = giden == gelen && document()->characterAt(ek) == QChar::ParagraphSeparator;
        if (ek >= yer + giden)
            kalan.push_back(ek + gelen - giden);
        else if (oncesinde || yalnizBakilan)
            kalan.push_back(ek);
    }
    ekler_ = std::move(kalan);
}

QString CokSatirKutusu::Birlestir(const QString& gorunen, int bas) const {
    QString metin;
    qsizetype yer = 0;
    for (const int ek : ekler_) {
        if (ek < bas || ek - bas >= gorunen.size())
            continue;
        metin += QStringView(gorunen).mid(yer, ek - bas - yer);
        yer = ek - bas + 1;
    }
    return yer == 0 ? gorunen : metin += QStringView(gorunen).mid(yer);
}

int CokSatirKutusu::Metindeki(int gorunen) const {
    return gorunen - static_cast<int>(std::ranges::lower_bound(ekler_, gorunen) - ekler_.begin());
}

int CokSatirKutusu::Gorunen(int metindeki) const {
    for (const int ek : ekler_)
        if (ek <= metindeki)
            ++metindeki;
    return metindeki;
}

} // namespace velora
