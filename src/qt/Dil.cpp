#include "qt/Dil.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace velora {

void DiliKur() {
    const QLocale turkce(QLocale::Turkish, QLocale::Turkey);
    QLocale::setDefault(turkce);
    auto* ceviri = new QTranslator(QCoreApplication::instance());
    if (ceviri->load(turkce, QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(ceviri);
}

} // namespace velora
