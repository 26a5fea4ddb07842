#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/layout/data/XYPairs.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/scene/Outline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

// In every kind of chart, over random tables with a quarter of their cells missing: what is drawn is where
// the points are said to be, and what is asked there tells the point.

namespace QmChart6 {
namespace {

constexpr int Seeds = 80;
constexpr double Rounding = 1e-6;

/// A random chart of the type, without titles so that small ones keep their plot.
class RandomChart {
public:
    RandomChart(ChartType type, unsigned seed) : random_(seed) {
        const int rows = Between(1, 9);
        chart = Samples::ChartOf(rows, Between(1, 4), [this](int, int) { return Cell(); });
        chart.SetChartType(type);
        chart.ShowLegend = false;
        chart.LegendFollowsData = false;
        if (Between(0, 3) == 0) chart.SetDataSeriesInRow(true);
        if (KindOf(type).stacks) chart.Stacking = Between(0, 2) == 0;
        if (Between(0, 4) == 0) chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Percent;
        if (Between(0, 4) == 0) MakeLogarithmic();
        chart.Plot.Projection = Between(0, 1) == 0 ? Projection::Oblique : Projection::Orthogonal;
        chart.Plot.View3d = {Between(0, 359) * 1.0, Between(5, 60) * 1.0};
        for (Series& series : chart.Plot.SeriesCollection) {
            series.ShowLine = Between(0, 1) == 0;
            series.SeriesMarker.Show = Between(0, 1) == 0;
            series.SecondaryAxis = Between(0, 4) == 0;
            series.StatLine.Flag = Between(0, 3) == 0 ? StatMean | StatRegression : 0;
        }
    }

    Chart chart;

private:
    void MakeLogarithmic() {
        chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Logarithmic;
        if (Between(0, 1) == 0) chart.Plot.Axis(AxisId::X).AxisScale.Type = ScaleType::Logarithmic;
        if (Between(0, 1) == 0) chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Type = ScaleType::Logarithmic;
    }
    int Between(int least, int greatest) { return std::uniform_int_distribution(least, greatest)(random_); }
    double Cell() {
        return Between(0, 3) == 0 ? Samples::Missing()
                                  : std::uniform_real_distribution(-40.0, 100.0)(random_);
    }

    std::mt19937 random_;
};

/// Whether a value can be drawn: on a logarithmic axis only where it is above zero.
bool HasRoom(const Chart& chart, DataPointHit point) {
    const auto fits = [&](AxisId axis, double value) {
        return value > 0 || chart.Plot.Axis(axis).AxisScale.Type != ScaleType::Logarithmic;
    };
    const int index = point.category - 1;
    const double value = chart.SeriesValues(point.series)[index];
    const ChartKind& kind = KindOf(chart.chartType());
    if (kind.form == ChartForm::Pies) return value > 0;
    const AxisId upright =
        chart.Plot.SeriesCollection(point.series).SecondaryAxis ? AxisId::SecondaryY : AxisId::Y;
    if (!kind.pairsColumns) return fits(upright, value);
    const XYPairs pairs(chart, point.series);
    return fits(AxisId::X, pairs.X(index)) && fits(upright, pairs.Y(index));
}

bool IsSame(Point one, Point other) {
    return std::abs(one.x - other.x) < Rounding && std::abs(one.y - other.y) < Rounding;
}

Point Middle(Point one, Point other) {
    return {(one.x + other.x) / 2, (one.y + other.y) / 2};
}

/// The points of a shape that stand for data points, by what draws the series.
class Vertices {
public:
    Vertices(const LaidOutChart& laidOut, const Chart& chart) : laidOut_(laidOut), chart_(chart) {}

    [[nodiscard]] std::vector<Point> Of(const Shape& shape) const {
        const Mark mark =
            MarkOf(chart_.chartType(), chart_.Plot.SeriesCollection(shape.part.index1).SeriesType);
        if (const auto* bar = std::get_if<Rectangle>(&shape.geometry)) return {bar->box.Center()};
        if (const auto* markers = std::get_if<MarkerRun>(&shape.geometry)) return Points(markers->points);
        if (const auto* line = std::get_if<Polyline>(&shape.geometry))
            return mark == Mark::Step ? Treads(line->points) : Points(line->points);
        if (const auto* face = std::get_if<Polygon>(&shape.geometry))
            return Is3D(chart_.chartType()) ? OfFace(mark, shape.part, face->points) : std::vector<Point>{};
        return {};
    }

private:
    [[nodiscard]] std::vector<Point> Points(PointRun run) const {
        const auto points = laidOut_.scene.PointsOf(run);
        return {points.begin(), points.end()};
    }
    [[nodiscard]] std::vector<Point> Treads(PointRun run) const {
        const std::vector<Point> ends = Points(run);
        std::vector<Point> middles;
        for (std::size_t i = 0; i + 1 < ends.size(); i += 2) middles.push_back(Middle(ends[i], ends[i + 1]));
        return middles;
    }
    /// Tapes run from point to point, their middle through the depth; an area's front along its tops, and
    /// back along its bases, but of piled ones not from point to point where values change sign.
    [[nodiscard]] std::vector<Point> OfFace(Mark mark, Part part, PointRun run) const {
        std::vector<Point> corners = Points(run);
        if (mark == Mark::Area && part.index2 == 0) {
            if (chart_.Stacking) return {};
            corners.resize(corners.size() / 2);
            return corners;
        }
        const bool joins = mark == Mark::Line && !IsAlone({part.index1, part.index2});
        if (joins) return {Middle(corners[0], corners[3]), Middle(corners[1], corners[2])};
        return {};
    }
    [[nodiscard]] bool IsAlone(DataPointHit point) const {
        return !laidOut_.places.At({point.series, point.category - 1}) &&
               !laidOut_.places.At({point.series, point.category + 1});
    }

    const LaidOutChart& laidOut_;
    const Chart& chart_;
};

/// Whether the shape covers the place, or is a face whose rim goes round it: fills end at their rim.
bool IsAt(const Scene& scene, const Shape& shape, Point place) {
    if (Covers(scene, shape, place)) return true;
    const auto* face = std::get_if<Polygon>(&shape.geometry);
    if (face == nullptr) return false;
    const std::span<const Point> rim = scene.PointsOf(face->points);
    for (std::size_t i = 0; i < rim.size(); ++i)
        if (DistanceToSegment(place, rim[i], rim[(i + 1) % rim.size()]) < Rounding) return true;
    return false;
}

class EveryKind : public testing::TestWithParam<ChartType> {
protected:
    template<class Check>
    void ForRandomCharts(Check check) {
        for (unsigned seed = 1; seed <= Seeds; ++seed) {
            SCOPED_TRACE(seed);
            const Chart chart = RandomChart(GetParam(), seed).chart;
            check(chart, LaidOutWhole(chart));
            if (HasFatalFailure()) return;
        }
    }
    static std::vector<DataPointHit> PointsWithValues(const Chart& chart) {
        std::vector<DataPointHit> points;
        for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series)
            for (int category = 1; category <= chart.CategoryCount(); ++category)
                if (HasValue(chart, {series, category})) points.push_back({series, category});
        return points;
    }
};

TEST_P(EveryKind, DrawsVerticesWhereItsPointsAre) {
    int met = 0;
    ForRandomCharts([&](const Chart& chart, const LaidOutChart& laidOut) {
        const Vertices vertices(laidOut, chart);
        for (const Shape& shape : laidOut.scene.shapes) {
            if (shape.part.code != PartCode::Series) continue;
            const std::vector<Point> places = laidOut.places.OfSeries(shape.part.index1);
            for (const Point& vertex : vertices.Of(shape)) {
                ++met;
                ASSERT_TRUE(std::ranges::any_of(places, [&](Point place) { return IsSame(place, vertex); }))
                    << "series " << shape.part.index1 << " at " << vertex.x << ' ' << vertex.y;
            }
        }
    });
    const bool hasVertices =
        GetParam() != ChartType::Pie2D && GetParam() != ChartType::Bar3D && GetParam() != ChartType::Step3D;
    if (hasVertices) {
        EXPECT_GT(met, Seeds);
    }
}

TEST_P(EveryKind, HasAPlaceForEveryPointWithAValue) {
    ForRandomCharts([&](const Chart& chart, const LaidOutChart& laidOut) {
        for (const DataPointHit& point : PointsWithValues(chart))
            ASSERT_EQ(laidOut.places.At(point).has_value(), HasRoom(chart, point))
                << point.series << ' ' << point.category;
    });
}

TEST_P(EveryKind, HasNoPlaceWhereAValueIsMissing) {
    ForRandomCharts([&](const Chart& chart, const LaidOutChart& laidOut) {
        for (int series = 0; series <= chart.Plot.SeriesCollection.Count() + 1; ++series)
            for (int category = 0; category <= chart.CategoryCount() + 1; ++category) {
                if (HasValue(chart, {series, category})) continue;
                ASSERT_EQ(laidOut.places.At({series, category}), std::nullopt) << series << ' ' << category;
            }
    });
}

TEST_P(EveryKind, FindsEveryPointAtItsPlace) {
    ForRandomCharts([&](const Chart& chart, const LaidOutChart& laidOut) {
        for (const DataPointHit& point : PointsWithValues(chart)) {
            const std::optional<Point> place = laidOut.places.At(point);
            if (!place) continue;
            const auto nearest = laidOut.places.Nearest(point.series, *place);
            ASSERT_TRUE(nearest.has_value());
            // Another point may stand at the very same place.
            ASSERT_TRUE(*nearest == point || IsSame(laidOut.places.At(*nearest).value(), *place))
                << point.series << ' ' << point.category << " told as " << nearest->category;
        }
    });
}

TEST_P(EveryKind, ShowsAMarkAtEveryPlace) {
    ForRandomCharts([&](const Chart& chart, const LaidOutChart& laidOut) {
        for (const DataPointHit& point : PointsWithValues(chart)) {
            const std::optional<Point> place = laidOut.places.At(point);
            if (!place) continue;
            const auto shapes = Find(laidOut.scene, {PartCode::Series, point.series, AnyIndex});
            ASSERT_TRUE(std::ranges::any_of(
                shapes,
                [&](std::size_t index) { return IsAt(laidOut.scene, laidOut.scene.shapes[index], *place); }))
                << point.series << ' ' << point.category;
        }
    });
}

std::vector<ChartType> AllTypes() {
    std::vector<ChartType> types;
    for (const ChartKind& kind : ChartKinds) types.push_back(kind.type);
    return types;
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKind, testing::ValuesIn(AllTypes()), [](const auto& kind) {
    return "Type" + std::to_string(static_cast<int>(kind.param));
});

} // namespace
} // namespace QmChart6
