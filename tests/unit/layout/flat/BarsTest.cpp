#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

constexpr double PixelsPerPoint = 4.0 / 3.0;

std::vector<Box> BarsOf(const Scene& scene, int series = 1) {
    std::vector<Box> bars;
    for (const Shape& shape : ShapesOf<Rectangle>(scene, PartCode::Series))
        if (shape.part.index1 == series) bars.push_back(std::get<Rectangle>(shape.geometry).box);
    return bars;
}

double Pixel(double place) {
    return std::floor(place * PixelsPerPoint + 0.5 + 1e-6);
}

TEST(Bars, ASmallValueShowsAHairlineOnItsOwnSide) {
    const Chart chart = ChartOf(4, 1, [](int row, int) {
        return row == 1 ? 800000.0 : row == 2 ? 100.0 : row == 3 ? -100.0 : 0.0;
    });
    const std::vector<Box> bars = BarsOf(LaidOut(chart));
    ASSERT_EQ(bars.size(), 4U);
    const double base = bars[0].bottom;
    std::multiset<int> sides;
    for (const Box& bar : bars) {
        if (bar.Height() == 0) continue;
        EXPECT_GE(bar.Height() * PixelsPerPoint, 1);
        sides.insert(bar.top < base - 1e-9 ? 1 : -1);
    }
    EXPECT_EQ(sides, (std::multiset<int>{-1, 1, 1}));
}

TEST(Bars, EqualBarsAndGapsAreEqualInDevicePixels) {
    for (const int rows : {7, 23, 50, 61, 100}) {
        const Scene scene = LaidOut(ChartOf(rows, 2, [](int row, int) { return row + 1.0; }), {500, 300});
        std::set<double> widths;
        std::set<double> gaps;
        bool crisp = true;
        for (const Shape& shape : ShapesOf<Rectangle>(scene, PartCode::Series)) crisp = crisp && shape.crisp;
        const std::vector<Box> bars = BarsOf(scene);
        for (std::size_t i = 0; i < bars.size(); ++i) {
            // Where no whole slot fits, the edges are smoothed and the widths equal as they are.
            widths.insert(crisp ? Pixel(bars[i].right) - Pixel(bars[i].left)
                                : std::round(bars[i].Width() * 1e6));
            if (i > 0)
                gaps.insert(crisp ? Pixel(bars[i].left) - Pixel(bars[i - 1].right)
                                  : std::round((bars[i].left - bars[i - 1].right) * 1e6));
        }
        EXPECT_EQ(widths.size(), 1U) << rows;
        EXPECT_EQ(gaps.size(), 1U) << rows;
    }
}

TEST(Bars, OfDenseOnesNoSeriesIsHiddenWhole) {
    // The first series is the smallest; drawn in order the others would cover it.
    const Scene scene = LaidOut(ChartOf(5000, 3, [](int, int column) { return 10.0 * column; }));
    std::map<double, int> last;
    for (const Shape& shape : ShapesOf<Rectangle>(scene, PartCode::Series))
        last[std::get<Rectangle>(shape.geometry).box.left] = shape.part.index1;
    ASSERT_FALSE(last.empty());
    for (const auto& [left, series] : last) EXPECT_EQ(series, 1) << left;
}

TEST(Bars, TheHighestHasItsLabelWithinThePlot) {
    Chart chart = ChartOf(3, 1, [](int row, int) { return row * 100.0; });
    DataPointLabel& label = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.Component = LabelShowsValue;
    label.LocationType = LabelLocation::AbovePoint;
    for (const double sign : {1.0, -1.0}) {
        Chart turned = chart;
        for (int row = 1; row <= 3; ++row)
            turned.DataGrid.WritableColumn(1)[static_cast<std::size_t>(row) - 1] = sign * row * 100;
        const Scene scene = LaidOut(turned);
        EXPECT_EQ(TextsOf(scene, PartCode::PointLabel).size(), 3U);
        EXPECT_TRUE(scene.warnings.isEmpty());
    }
}

TEST(Bars, LabelsThatAreWiderThanTheirBarsStandUpright) {
    Chart chart = ChartOf(24, 1, [](int row, int) { return 12345.0 + row; });
    DataPointLabel& label = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.Component = LabelShowsValue;
    label.LocationType = LabelLocation::AbovePoint;
    const std::vector<TextLine> texts = TextsOf(LaidOut(chart), PartCode::PointLabel);
    ASSERT_EQ(texts.size(), 24U);
    for (const TextLine& text : texts) EXPECT_EQ(text.angle, 90);
}

TEST(Bars, PatternedOnesHaveAnOutlineThatTellsTheirHeight) {
    Chart chart = ChartOf(2, 1, [](int row, int) { return row * 1.0; });
    Brush& brush = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush;
    brush = {BrushStyle::Hatch, 2, {255, 255, 255}, {20, 40, 90}};
    for (const Shape& shape : ShapesOf<Rectangle>(LaidOut(chart), PartCode::Series)) {
        EXPECT_EQ(shape.stroke.style, PenStyle::Solid);
        EXPECT_EQ(shape.stroke.colour, (Colour{20, 40, 90}));
    }
}

} // namespace
} // namespace QmChart6
