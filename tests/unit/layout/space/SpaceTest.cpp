#include "support/StubTextMeasurer.h"
#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/space/SpaceFaces.h"
#include "chartcontrol/layout/space/SpaceMarks.h"
#include "chartcontrol/layout/space/SpacePlan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <random>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

Chart Bars(int rows, int columns, Projection projection, double rotation, double elevation) {
    Chart chart = ChartOf(rows, columns, [](int row, int column) {
        return row * column % 5 == 0 ? -2.0 - column : 1.0 + (7 * row + 3 * column) % 11;
    });
    chart.SetChartType(ChartType::Bar3D);
    chart.ShowLegend = false;
    chart.Plot.Projection = projection;
    chart.Plot.View3d = {rotation, elevation};
    return chart;
}

/// The plan of a chart's plot and the scene of its marks alone.
struct Space {
    explicit Space(const Chart& made) : chart(made) {
        SceneBuilder builder(scene);
        const LayoutContext context{chart, request, measurer, builder};
        const PlottedValues plotted(chart);
        plan = PlanSpace(context, DemandOf(chart, plotted), plotted, {0, 0, 480, 315}, Furniture::None);
        LayOutSpaceMarks(context, plan, plotted);
    }

    Chart chart;
    LayoutRequest request{{480, 315}};
    StubTextMeasurer measurer;
    Scene scene;
    SpacePlan plan;
};

/// A straight line of sight: a point on it, and the direction from the viewer into the depth.
struct Sight {
    SpacePoint from;
    SpacePoint into;
};

SpacePoint Cross(SpacePoint a, SpacePoint b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// The line of sight through a page point, for the parallel projections.
Sight SightThrough(const SpacePlan& plan, Point page) {
    const auto flat = [&](SpacePoint point) { return plan.View().Flat(point); };
    const Point zero = flat({0, 0, 0});
    const auto part = [&](bool down, SpacePoint unit) {
        return down ? flat(unit).y - zero.y : flat(unit).x - zero.x;
    };
    const SpacePoint right{part(false, {1, 0, 0}), part(false, {0, 1, 0}), part(false, {0, 0, 1})};
    const SpacePoint down{part(true, {1, 0, 0}), part(true, {0, 1, 0}), part(true, {0, 0, 1})};
    SpacePoint into = Cross(right, down);
    if (plan.View().Sees(into, {0, 0, 0})) into = into * -1;
    const double x = (page.x - plan.origin.x) / plan.scale - zero.x;
    const double y = (page.y - plan.origin.y) / plan.scale - zero.y;
    // The point of the line that lies in the plane of both directions.
    const double rr = Dot(right, right);
    const double dd = Dot(down, down);
    const double rd = Dot(right, down);
    const double determinant = rr * dd - rd * rd;
    const SpacePoint from =
        right * ((x * dd - y * rd) / determinant) + down * ((y * rr - x * rd) / determinant);
    return {from, into};
}

/// How far along the sight it enters a box.
std::optional<double> Enters(const Sight& sight, SpacePoint low, SpacePoint high) {
    double enter = -1e300;
    double leave = 1e300;
    const auto clip = [&](double from, double into, double least, double most) {
        if (std::abs(into) < 1e-12) {
            if (from < least || from > most) leave = -1e300;
            return;
        }
        const double a = (least - from) / into;
        const double b = (most - from) / into;
        enter = std::max(enter, std::min(a, b));
        leave = std::min(leave, std::max(a, b));
    };
    clip(sight.from.x, sight.into.x, low.x, high.x);
    clip(sight.from.y, sight.into.y, low.y, high.y);
    clip(sight.from.z, sight.into.z, low.z, high.z);
    if (enter > leave) return {};
    return enter;
}

/// The series and category of the box that is nearest to the viewer along a line of sight; none when two are
/// close.
std::optional<Part> Nearest(const Space& space, const Sight& sight) {
    const SpacePlan& plan = space.plan;
    const double half = plan.slot / (1 + space.chart.Plot.XGap / 100) / 2;
    std::optional<Part> nearest;
    double best = 1e300;
    double second = 1e300;
    for (int series = 1; series <= space.chart.Plot.SeriesCollection.Count(); ++series)
        for (int category = 0; category < space.chart.CategoryCount(); ++category) {
            const double value = plan.primaryMap.At(space.chart.SeriesValues(series)[category]);
            const double base = plan.primaryMap.At(0);
            const double x = plan.columns[static_cast<std::size_t>(category)];
            const double z = plan.rows[static_cast<std::size_t>(series) - 1];
            const auto enters = Enters(sight, {x - half, std::min(value, base), z - plan.rowDepth / 4},
                                       {x + half, std::max(value, base), z + plan.rowDepth / 4});
            if (!enters) continue;
            if (*enters < best) {
                second = best;
                best = *enters;
                nearest = Part{PartCode::Series, series, category + 1};
            } else {
                second = std::min(second, *enters);
            }
        }
    if (second - best < 1e-3) return {};
    return nearest;
}

class FarToNear : public testing::TestWithParam<std::tuple<Projection, double, double>> {};

TEST_P(FarToNear, WhatIsOnTopIsNearest) {
    const auto& [projection, rotation, elevation] = GetParam();
    const Space space(Bars(6, 4, projection, rotation, elevation));
    std::mt19937 random(5);
    std::uniform_real_distribution<double> x(0, 480);
    std::uniform_real_distribution<double> y(0, 315);
    int compared = 0;
    for (int i = 0; i < 1500; ++i) {
        const Point page{x(random), y(random)};
        const auto nearest = Nearest(space, SightThrough(space.plan, page));
        const auto hit = Hit(space.scene, page, 0);
        // Outlines reach a little beyond their faces, so that a near miss may still be met.
        if (!nearest || !hit) continue;
        const Shape& shape = space.scene.shapes[*hit];
        const bool onEdge = [&] {
            for (const double dx : {-0.6, 0.6})
                for (const double dy : {-0.6, 0.6}) {
                    const auto beside = Nearest(space, SightThrough(space.plan, {page.x + dx, page.y + dy}));
                    if (!beside || !(*beside == *nearest)) return true;
                }
            return false;
        }();
        if (onEdge) continue;
        ++compared;
        EXPECT_TRUE(shape.part == *nearest) << "at " << page.x << ' ' << page.y << " series "
                                            << shape.part.index1 << " covers " << nearest->index1;
    }
    EXPECT_GT(compared, 50);
}

INSTANTIATE_TEST_SUITE_P(Angles, FarToNear,
                         testing::Combine(testing::Values(Projection::Oblique, Projection::Orthogonal),
                                          testing::Values(20.0, 60.0, 130.0, 215.0, 300.0),
                                          testing::Values(-35.0, 10.0, 30.0, 65.0)));

TEST(SpaceView, AnglesInEveryUnitMeanTheSame) {
    Chart degrees = Bars(3, 2, Projection::Orthogonal, 45, 30);
    Chart radians = degrees;
    radians.Plot.AngleUnit = AngleUnit::Radians;
    radians.Plot.View3d = {std::numbers::pi / 4, std::numbers::pi / 6};
    Chart gradians = degrees;
    gradians.Plot.AngleUnit = AngleUnit::Gradians;
    gradians.Plot.View3d = {50, 100.0 / 3};
    const Scene scene = LaidOut(degrees);
    for (const Chart& other : {radians, gradians}) {
        const Scene same = LaidOut(other);
        ASSERT_EQ(same.points.size(), scene.points.size());
        for (std::size_t i = 0; i < scene.points.size(); ++i) {
            EXPECT_NEAR(same.points[i].x, scene.points[i].x, 1e-6);
            EXPECT_NEAR(same.points[i].y, scene.points[i].y, 1e-6);
        }
    }
}

TEST(SpaceView, ObliqueKeepsTheFrontUpright) {
    const Space space(Bars(3, 2, Projection::Oblique, 60, 30));
    const Point low = space.plan.Page({0, 0, 0});
    const Point high = space.plan.Page({0, space.plan.size.y, 0});
    EXPECT_NEAR(low.x, high.x, 1e-9);
}

TEST(SpaceView, PerspectiveMakesWhatIsFarSmaller) {
    const Space space(Bars(3, 8, Projection::Perspective, 90, 20));
    const auto width = [&](double z) { return space.plan.Page({1, 0, z}).x - space.plan.Page({0, 0, z}).x; };
    EXPECT_LT(width(space.plan.size.z), width(0));
}

TEST(SpaceMarks, MissingValuesHaveNoMark) {
    for (const ChartType type : {ChartType::Bar3D, ChartType::Line3D, ChartType::Area3D, ChartType::Step3D}) {
        Chart chart = ChartOf(5, 1, [](int row, int) { return row == 3 ? Samples::Missing() : row * 1.0; });
        chart.SetChartType(type);
        for (const Shape& shape : ShapesOf<Polygon>(LaidOut(chart), PartCode::Series))
            EXPECT_NE(shape.part.index2, 3);
    }
}

TEST(SpaceMarks, ThousandsOfCategoriesCostNoMoreThanPixels) {
    Chart chart = ChartOf(32767, 2, [](int row, int) { return std::sin(row * 0.01); });
    chart.SetChartType(ChartType::Bar3D);
    EXPECT_LE(LaidOut(chart).shapes.size(), 2U * 3U * 641U + 200U);
}

TEST(SpaceFaces, TheFrontKeepsItsColour) {
    const Colour colour{100, 150, 200};
    EXPECT_EQ(Shaded(colour, {0, 0, -1}), colour);
    EXPECT_GT(Shaded(colour, {0, 1, 0}).Red, colour.Red);
    EXPECT_LT(Shaded(colour, {1, 0, 0}).Red, colour.Red);
}

TEST(SpaceWalls, AreNearlyAsDarkAsADarkGround) {
    Chart chart = Bars(2, 2, Projection::Oblique, 60, 30);
    const auto wall = [&] {
        const Scene scene = LaidOut(chart);
        for (const Shape& shape : scene.shapes)
            if (shape.part.code == PartCode::Plot && std::holds_alternative<Polygon>(shape.geometry))
                return shape.fill.colour;
        return Colour{};
    };
    EXPECT_GT(wall().Red, 200);
    chart.Backdrop.Fill.Style = FillStyle::Brush;
    chart.Backdrop.Fill.Brush.FillColor = {30, 34, 39};
    EXPECT_LT(wall().Red, 70);
    EXPECT_NE(wall(), (Colour{30, 34, 39}));
}

} // namespace
} // namespace QmChart6
