#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace QmChart6 {

// What kinds of chart and of marks there are: a row for each. Whatever differs from kind to kind stands in
// its row, so that nobody else asks which kind it is.

/// What a series is drawn with.
enum class Mark { Bar, Line, Area, Step, XY, Pie };

/// A kind of mark. A new one also has its drawing (flat/Marks.h for a plot with axes).
struct MarkKind {
    Mark mark;
    /// The types of series that it draws where the series' types decide.
    std::span<const SeriesType> series = {};
    /// It covers an area in the series' fill; otherwise it is a line, with markers perhaps.
    bool isFilled = false;
    /// It stands on the axis of the categories, so that zero belongs to the axis of the values.
    bool standsOnZero = false;
    /// Its first and last points stand on the ends of the axis, where it has the chart to itself.
    bool reachesEnds = false;
    bool hasMarkers = false;
};

/// How the whole chart is built: along flat axes, along axes in space, or as pies without any.
enum class ChartForm { Flat, Space, Pies };

/// Where data labels may be: the locations to choose from, in the order of the list that offers them, and
/// the location that takes the place of each (by its number) where it is not among them.
struct LabelLocations {
    std::span<const LabelLocation> offered;
    std::array<LabelLocation, 9> fitted;
};

namespace KindRows {

using L = LabelLocation;
using S = SeriesType;
using T = ChartType;

inline constexpr std::array AxesOffered{L::None, L::AbovePoint, L::BelowPoint, L::Center, L::Base};
inline constexpr std::array XYOffered{L::None, L::AbovePoint, L::BelowPoint, L::Center, L::Left, L::Right};
inline constexpr std::array PieOffered{L::None, L::Inside, L::Outside};

// clang-format off
inline constexpr LabelLocations AxesLabels{AxesOffered,
    {L::None, L::AbovePoint, L::BelowPoint, L::Center, L::Base,       L::Center, L::AbovePoint, L::Center, L::Center}};
inline constexpr LabelLocations XYLabels{XYOffered,
    {L::None, L::AbovePoint, L::BelowPoint, L::Center, L::BelowPoint, L::Center, L::AbovePoint, L::Left,   L::Right}};
inline constexpr LabelLocations PieLabels{PieOffered,
    {L::None, L::Outside,    L::Inside,     L::Inside, L::Inside,     L::Inside, L::Outside,    L::Inside, L::Inside}};
// clang-format on

} // namespace KindRows

/// A kind of chart. What a row does not say is as in most.
struct ChartKind {
    ChartType type;
    /// What such a chart is called, in English.
    const char* name;
    /// What series are drawn as when the type is set; in a combination, the first half of them.
    SeriesType series;
    /// In a combination, what the second half is drawn as.
    std::optional<SeriesType> laterSeries = {};
    ChartForm form = ChartForm::Flat;
    /// The same kind on flat axes, of one in space.
    std::optional<ChartType> flat = {};
    /// The mark of every series, whatever its own type; none where the series' types decide.
    std::optional<Mark> mark = {};
    /// Columns belong together in pairs: one for x, the next for y.
    bool pairsColumns = false;
    /// Values may be piled on each other, and be shares of a whole.
    bool stacks = true;
    /// It makes sense from two columns of data on.
    bool needsColumns = false;
    /// A person may choose whether points are joined by lines.
    bool offersLines = false;
    const LabelLocations& labels = KindRows::AxesLabels;
};

namespace KindRows {

inline constexpr std::array BarSeries{S::Bar3D, S::Bar2D, S::Pie2D};
inline constexpr std::array LineSeries{S::Line3D, S::Line2D, S::XY2D};
inline constexpr std::array AreaSeries{S::Area3D, S::Area2D};
inline constexpr std::array StepSeries{S::Step3D, S::Step2D};

constexpr ChartKind InSpace(ChartType type, const char* name, SeriesType series, ChartType flat) {
    return {.type = type, .name = name, .series = series, .form = ChartForm::Space, .flat = flat};
}

} // namespace KindRows

/// By their numbers.
inline constexpr std::array MarkKinds{
    MarkKind{.mark = Mark::Bar, .series = KindRows::BarSeries, .isFilled = true, .standsOnZero = true},
    MarkKind{.mark = Mark::Line, .series = KindRows::LineSeries, .hasMarkers = true},
    MarkKind{.mark = Mark::Area,
             .series = KindRows::AreaSeries,
             .isFilled = true,
             .standsOnZero = true,
             .reachesEnds = true},
    MarkKind{.mark = Mark::Step, .series = KindRows::StepSeries},
    MarkKind{.mark = Mark::XY, .hasMarkers = true},
    MarkKind{.mark = Mark::Pie, .isFilled = true},
};

/// In the order in which they are offered.
inline constexpr std::array ChartKinds = [] {
    using namespace KindRows;
    return std::array{
        InSpace(T::Bar3D, "3D bar chart", S::Bar3D, T::Bar2D),
        ChartKind{.type = T::Bar2D, .name = "Bar chart", .series = S::Bar2D},
        InSpace(T::Line3D, "3D line chart", S::Line3D, T::Line2D),
        ChartKind{.type = T::Line2D, .name = "Line chart", .series = S::Line2D, .offersLines = true},
        InSpace(T::Area3D, "3D area chart", S::Area3D, T::Area2D),
        ChartKind{.type = T::Area2D, .name = "Area chart", .series = S::Area2D},
        InSpace(T::Step3D, "3D step chart", S::Step3D, T::Step2D),
        ChartKind{.type = T::Step2D, .name = "Step chart", .series = S::Step2D},
        ChartKind{.type = T::Combination3D,
                  .name = "3D combination chart",
                  .series = S::Bar3D,
                  .laterSeries = S::Line3D,
                  .form = ChartForm::Space,
                  .flat = T::Combination2D,
                  .needsColumns = true},
        ChartKind{.type = T::Combination2D,
                  .name = "Combination chart",
                  .series = S::Bar2D,
                  .laterSeries = S::Line2D,
                  .needsColumns = true},
        ChartKind{.type = T::Pie2D,
                  .name = "Pie chart",
                  .series = S::Pie2D,
                  .form = ChartForm::Pies,
                  .mark = Mark::Pie,
                  .stacks = false,
                  .labels = PieLabels},
        ChartKind{.type = T::XY2D,
                  .name = "XY chart",
                  .series = S::XY2D,
                  .mark = Mark::XY,
                  .pairsColumns = true,
                  .stacks = false,
                  .needsColumns = true,
                  .offersLines = true,
                  .labels = XYLabels},
    };
}();

/// The type of a plain number; one that has no row raises error 380.
ChartType ToChartType(int number);
SeriesType ToSeriesType(int number);

/// Where the row of a type stands. A type is always one of them: see ToChartType.
constexpr std::size_t RowOf(ChartType type) {
    std::size_t row = 0;
    while (row + 1 < ChartKinds.size() && ChartKinds[row].type != type) ++row;
    return row;
}

constexpr const ChartKind& KindOf(ChartType type) {
    return ChartKinds[RowOf(type)];
}

constexpr const MarkKind& KindOf(Mark mark) {
    return MarkKinds[static_cast<std::size_t>(mark)];
}

static_assert(
    [] {
        for (std::size_t at = 0; at < MarkKinds.size(); ++at)
            if (static_cast<std::size_t>(MarkKinds[at].mark) != at) return false;
        return true;
    }(),
    "the rows of marks stand in the order of their numbers");

constexpr bool Is3D(ChartType type) {
    return KindOf(type).form == ChartForm::Space;
}

constexpr bool IsCombination(ChartType type) {
    return KindOf(type).laterSeries.has_value();
}

/// The mark of a series of that type in a chart of that type.
constexpr Mark MarkOf(ChartType chart, SeriesType series) {
    if (const std::optional<Mark> all = KindOf(chart).mark) return *all;
    for (const MarkKind& kind : MarkKinds)
        for (const SeriesType type : kind.series)
            if (type == series) return kind.mark;
    return Mark::Bar; // a type is in one of the rows: see ToSeriesType
}

/// What series `number` (from 1) of `count` draws as when the chart's type is set: in a combination the first
/// half are bars and the rest lines, otherwise every series is what the chart is.
constexpr SeriesType SeriesTypeOf(ChartType type, int number, int count) {
    const ChartKind& kind = KindOf(type);
    return number <= (count + 1) / 2 ? kind.series : kind.laterSeries.value_or(kind.series);
}

} // namespace QmChart6
