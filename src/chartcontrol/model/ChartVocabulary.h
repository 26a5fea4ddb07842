#pragma once

#include "chartcontrol/model/ChartKinds.h"

#include <QString>

#include <array>

namespace QmChart6 {

/// The words that a chart is told in, for tool tips and for people who listen to it. English unless others
/// are given. %1, %2 ... are filled in; of two forms the first is for one, the other for any other number.
struct ChartVocabulary {
    struct Counted {
        QString one;
        QString many;
    };

    QString chart = QStringLiteral("Chart");
    /// What the kinds of chart are called, in the order of their table.
    std::array<QString, ChartKinds.size()> kinds = [] {
        std::array<QString, ChartKinds.size()> names;
        for (std::size_t row = 0; row < names.size(); ++row)
            names[row] = QString::fromLatin1(ChartKinds[row].name);
        return names;
    }();
    Counted series{QStringLiteral("%1 series"), QStringLiteral("%1 series")};
    Counted categories{QStringLiteral("%1 category"), QStringLiteral("%1 categories")};
    Counted points{QStringLiteral("%1 point"), QStringLiteral("%1 points")};
    /// The kind of chart, its series, its categories or points.
    QString contents = QStringLiteral("%1 with %2 and %3");
    QString range = QStringLiteral("values from %1 to %2");
    QString withoutValues = QStringLiteral("without values");
    QString noValue = QStringLiteral("no value");
    /// A series that has no name, by its number.
    QString seriesOfNumber = QStringLiteral("Series %1");
};

} // namespace QmChart6
