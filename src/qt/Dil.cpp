#include "qt/Dil.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace velora {

namespace {

QLocale Turkce() {
    return {QLocale::Turkish, QLocale::Turkey};
}

} // namespace

MetinSirasi TurkceSirasi(const QString& metin) {
    static const QCollator siralayici(Turkce());
    return siralayici.sortKey(metin);
}

void DiliKur() {
    const QLocale turkce = Turkce();
    QLocale::setDefault(turkce);
    auto* ceviri = new QTranslator(QCoreApplication::instance());
    if (ceviri->load(turkce, QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(ceviri);
}

} // namespace velora
