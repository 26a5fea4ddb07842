#pragma once

#include <QString>
#include <QTranslator>

namespace QmChart6 {

/// The language of what Qt itself says in dialogs ("Yes", the pickers' labels), as a locale's name: "pt_BR".
/// "" leaves it as the host has it.
void SetQtTextsLanguage(const QString& locale);

/// As long as it lives, Qt's own texts are in that language, where Qt's translations are installed. The
/// host's other windows keep theirs, since they are not made meanwhile.
class QtTexts {
public:
    QtTexts();
    ~QtTexts();
    QtTexts(const QtTexts&) = delete;
    QtTexts& operator=(const QtTexts&) = delete;

private:
    QTranslator translator_;
    bool installed_ = false;
};

} // namespace QmChart6
