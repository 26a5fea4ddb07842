#include "chartcontrol/layout/text/AlikeNames.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// How many words from the beginning, or from the end, are the same in both.
qsizetype CommonWords(const QStringList& one, const QStringList& other, bool fromEnd) {
    const qsizetype most = std::min(one.size(), other.size());
    const auto word = [fromEnd](const QStringList& words, qsizetype i) {
        return words[fromEnd ? words.size() - 1 - i : i];
    };
    qsizetype common = 0;
    while (common < most && word(one, common) == word(other, common)) ++common;
    return common;
}

} // namespace

QStringList WithoutCommonEnds(const QStringList& names) {
    if (names.size() < 2) return names;
    QList<QStringList> words;
    for (const QString& name : names) words += name.simplified().split(QLatin1Char(' '));
    qsizetype before = words.first().size();
    qsizetype behind = words.first().size();
    qsizetype fewest = words.first().size();
    for (const QStringList& other : words) {
        before = std::min(before, CommonWords(words.first(), other, false));
        behind = std::min(behind, CommonWords(words.first(), other, true));
        fewest = std::min(fewest, other.size());
    }
    if (before + behind >= fewest) return names;
    const QChar ellipsis(0x2026);
    QStringList shortened;
    for (const QStringList& name : words) {
        QString text = name.mid(before, name.size() - before - behind).join(QLatin1Char(' '));
        if (before > 0) text.prepend(ellipsis);
        if (behind > 0) text.append(ellipsis);
        shortened += text;
    }
    return shortened;
}

} // namespace QmChart6
