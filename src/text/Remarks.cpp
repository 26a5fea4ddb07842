#include "text/Remarks.h"

#include "text/Languages.h"
#include "text/LocalText.h"

#include <QRegularExpression>

namespace QmChart6 {

namespace {

const Remarks& RemarksOf(std::int16_t language) {
    return LanguageOrEnglish(language).words->remarks;
}

QString TextOf(const Remarks& remarks, std::size_t place) {
    return QString::fromUtf16(remarks[place].data(), static_cast<qsizetype>(remarks[place].size()));
}

/// The sentence as a pattern, whose groups are what is filled in.
QRegularExpression PatternOf(const QString& sentence) {
    QString pattern = QRegularExpression::escape(sentence);
    for (const char* place : {"\\%1", "\\%2"}) pattern.replace(QLatin1String(place), QLatin1String("(\\S+)"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

} // namespace

QString LocalRemark(const QString& english) {
    const Remarks& known = RemarksOf(0);
    for (std::size_t place = 0; place < known.size(); ++place) {
        const QRegularExpressionMatch match = PatternOf(TextOf(known, place)).match(english);
        if (!match.hasMatch()) continue;
        QString local = TextOf(RemarksOf(LanguageCode()), place);
        for (int filled = 1; filled <= match.lastCapturedIndex(); ++filled)
            local = local.arg(match.captured(filled));
        return local;
    }
    return english;
}

} // namespace QmChart6
