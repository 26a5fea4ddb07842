#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <QString>

#include <map>

namespace QmChart6 {

/// The words that a chart is told in, for tool tips and for people who listen to it. English unless others
/// are given. %1, %2 ... are filled in; of two forms the first is for one, the other for any other number.
struct ChartVocabulary {
    struct Counted {
        QString one;
        QString many;
    };

    QString chart = QStringLiteral("Chart");
    std::map<ChartType, QString> kinds{
        {ChartType::Bar3D, QStringLiteral("3D bar chart")},
        {ChartType::Bar2D, QStringLiteral("Bar chart")},
        {ChartType::Line3D, QStringLiteral("3D line chart")},
        {ChartType::Line2D, QStringLiteral("Line chart")},
        {ChartType::Area3D, QStringLiteral("3D area chart")},
        {ChartType::Area2D, QStringLiteral("Area chart")},
        {ChartType::Step3D, QStringLiteral("3D step chart")},
        {ChartType::Step2D, QStringLiteral("Step chart")},
        {ChartType::Combination3D, QStringLiteral("3D combination chart")},
        {ChartType::Combination2D, QStringLiteral("Combination chart")},
        {ChartType::Pie2D, QStringLiteral("Pie chart")},
        {ChartType::XY2D, QStringLiteral("XY chart")},
    };
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
