#pragma once

#include <QList>
#include <QStringList>

class QWidget;

namespace QmChart6 {

/// The captions of a dialog: those that are always seen, and those of each page, seen one page at a time.
struct Captions {
    QStringList always;
    QList<QStringList> pages;

    friend bool operator==(const Captions&, const Captions&) = default;
};

/// The captions with an Alt key each ("&" before its letter), so that no two that are seen together have the
/// same one; an ampersand that a text has is escaped. Letters are those of the text, the first ones of its
/// words by preference. Where there are more captions than letters some stay without a key.
Captions WithMnemonics(const Captions& captions);

/// Gives every button, check box, option button, tab and label with a buddy in a dialog its Alt key. Each
/// page of a tabbed frame stands for itself. The texts must not have keys yet.
void GiveMnemonics(QWidget& dialog);

} // namespace QmChart6
