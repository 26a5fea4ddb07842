#pragma once

#include "support/SampleCharts.h"

#include <QStringList>

#include <array>
#include <utility>

// What sample charts are made of, and the themes that they are sorted by.

namespace QmChart6::Samples {

inline const QStringList Months{
    QStringLiteral("January"), QStringLiteral("February"), QStringLiteral("March"),
    QStringLiteral("April"),   QStringLiteral("May"),      QStringLiteral("June"),
    QStringLiteral("July"),    QStringLiteral("August"),   QStringLiteral("September"),
    QStringLiteral("October"), QStringLiteral("November"), QStringLiteral("December")};

/// Every kind of chart, as names of samples call it.
inline constexpr std::array Kinds{std::pair{"bar", ChartType::Bar2D},
                                  std::pair{"line", ChartType::Line2D},
                                  std::pair{"area", ChartType::Area2D},
                                  std::pair{"step", ChartType::Step2D},
                                  std::pair{"combination", ChartType::Combination2D},
                                  std::pair{"pie", ChartType::Pie2D},
                                  std::pair{"xy", ChartType::XY2D},
                                  std::pair{"bar-3d", ChartType::Bar3D},
                                  std::pair{"line-3d", ChartType::Line3D},
                                  std::pair{"area-3d", ChartType::Area3D},
                                  std::pair{"step-3d", ChartType::Step3D},
                                  std::pair{"combination-3d", ChartType::Combination3D}};

/// Whole numbers from 18 to 92.
double Wave(int row, int column);

void Entitle(Chart& chart, const QString& title, const QString& x, const QString& y);
DataPoint& LookOf(Chart& chart, int series);

// Charts to begin with.
Chart Sales(int columns, ChartType type = ChartType::Bar2D);
Chart SignsAndGaps(ChartType type);
Chart Pies(int categories, int slices, LabelLocation location);
Chart Scatter(int columns);
/// One category; a pattern or hatch of its own for each series.
Chart Brushes(BrushStyle style, int count);
Chart Stacked(ChartType type, bool shares, bool signs = false);
Chart Space(ChartType type, double rotation = 60, double elevation = 30,
            Projection projection = Projection::Oblique);
/// Values from 0.4 to 40,000, one of them not above zero.
Chart Logarithmic(ChartType type);
/// A small chart that any kind can show: three series of six values, or what pies and XY charts need.
Chart OfKind(ChartType type);
Chart Labelled(ChartType type, LabelLocation location);

// The same chart, changed.
Chart Statistics(Chart chart);
Chart InSpace(Chart chart, ChartType type);
Chart Dark(Chart chart);
Chart WithNames(Chart chart, const QStringList& names);
Chart WithLabels(Chart chart, LabelLocation location, int component = LabelShowsValue,
                 LabelLineStyle line = LabelLineStyle::None);

// The samples by theme.
std::vector<Sample> Basics();
std::vector<Sample> Labels();
std::vector<Sample> Axes();
std::vector<Sample> Looks();
std::vector<Sample> Sizes();
std::vector<Sample> Spaces();

} // namespace QmChart6::Samples
