#include "desktop/QtTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace QmChart6 {

namespace {

QString& Language() {
    static QString locale;
    return locale;
}

} // namespace

void SetQtTextsLanguage(const QString& locale) {
    Language() = locale;
}

QtTexts::QtTexts() {
    if (Language().isEmpty()) return;
    installed_ = translator_.load(QStringLiteral("qtbase_") + Language(),
                                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
                 QCoreApplication::installTranslator(&translator_);
}

QtTexts::~QtTexts() {
    if (installed_) QCoreApplication::removeTranslator(&translator_);
}

} // namespace QmChart6
