#include "desktop/QtTexts.h"

#include "base/ProcessState.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace QmChart6 {

void SetQtTextsLanguage(const QString& locale) {
    Process().qtTextsLocale = locale;
}

QtTexts::QtTexts() {
    const QString& locale = Process().qtTextsLocale;
    if (locale.isEmpty()) return;
    installed_ = translator_.load(QStringLiteral("qtbase_") + locale,
                                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
                 QCoreApplication::installTranslator(&translator_);
}

QtTexts::~QtTexts() {
    if (installed_) QCoreApplication::removeTranslator(&translator_);
}

} // namespace QmChart6
