#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/space/AxisTextRoom.h"
#include "chartcontrol/layout/space/EdgeLabels.h"
#include "chartcontrol/layout/text/Ground.h"
#include "chartcontrol/model/ColourContrast.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

constexpr Size Picture{480, 315};

Chart Bars(int rows, int columns) {
    Chart chart =
        ChartOf(rows, columns, [](int row, int column) { return 1.0 + (7 * row + 3 * column) % 11; });
    chart.SetChartType(ChartType::Bar3D);
    chart.ShowLegend = false;
    chart.Backdrop.Frame.Style = FrameStyle::None;
    return chart;
}

Chart SeenFrom(Chart chart, Projection projection, double rotation, double elevation) {
    chart.Plot.Projection = projection;
    chart.Plot.View3d = {rotation, elevation};
    return chart;
}

std::vector<TextLine> AxisTextsOf(const Scene& scene) {
    std::vector<TextLine> texts = TextsOf(scene, PartCode::AxisLabel);
    std::ranges::copy(TextsOf(scene, PartCode::AxisTitle), std::back_inserter(texts));
    return texts;
}

std::set<int> NumbersOf(const Scene& scene, AxisId id) {
    std::set<int> numbers;
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
        if (shape.part.index1 == static_cast<int>(id)) numbers.insert(shape.part.index2);
    return numbers;
}

/// The scene without its texts, and what lies where in it.
Ground GroundOf(Scene& scene) {
    std::erase_if(scene.shapes,
                  [](const Shape& shape) { return std::holds_alternative<TextLine>(shape.geometry); });
    return {scene, {0, 0, scene.size.width, scene.size.height}, {255, 255, 255}};
}

Chart Labelled(Chart chart) {
    for (Series& series : chart.Plot.SeriesCollection) {
        DataPointLabel& label = series.DataPoints.Item(DataPoints::All).DataPointLabel;
        label.LocationType = LabelLocation::AbovePoint;
        label.Component = LabelShowsValue;
    }
    return chart;
}

class AxisTextsFrom : public testing::TestWithParam<std::tuple<Projection, double, double>> {};

TEST_P(AxisTextsFrom, StandWithinThePictureAndClearOfTheSpaceAndEachOther) {
    const auto& [projection, rotation, elevation] = GetParam();
    Chart chart = SeenFrom(Bars(6, 4), projection, rotation, elevation);
    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY, AxisId::Z}) {
        AxisTitle& title = chart.Plot.Axis(id).AxisTitle;
        title.Text = QStringLiteral("A title that is far too long for the axis that it belongs to");
        title.TextLayout.Orientation = id == AxisId::Y ? Orientation::Horizontal : Orientation::Up;
    }
    Scene scene = LaidOut(chart, Picture);
    const std::vector<TextLine> texts = AxisTextsOf(scene);
    const Ground ground = GroundOf(scene);
    const Box whole = Box{0, 0, Picture.width, Picture.height}.Grown(0.02);
    ASSERT_FALSE(texts.empty());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Box box = BoundsOf(texts[i]);
        EXPECT_TRUE(whole.Contains({box.left, box.top}) && whole.Contains({box.right, box.bottom}))
            << texts[i].text.toStdString();
        const Ground::Footing footing = ground.Under(box.Grown(-1));
        EXPECT_TRUE(footing.even && footing.shape == Ground::Plain) << texts[i].text.toStdString();
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(Meet(box.Grown(-0.01), BoundsOf(texts[j])))
                << texts[i].text.toStdString() << " meets " << texts[j].text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Angles, AxisTextsFrom,
                         testing::Combine(testing::Values(Projection::Oblique, Projection::Orthogonal,
                                                          Projection::Perspective),
                                          testing::Values(0.0, 20.0, 90.0, 130.0, 215.0, 300.0),
                                          testing::Values(-60.0, -10.0, 0.0, 30.0, 85.0)));

TEST(SpaceAxes, AllNamesOfRowsStandAtAnEdgeThatHardlySlopes) {
    Chart chart = SeenFrom(Bars(6, 5), Projection::Orthogonal, 30, 30);
    for (int series = 1; series <= 5; ++series)
        chart.DataGrid.SetColumnLabel(series, QStringLiteral("Kingdom %1").arg(series));
    EXPECT_EQ(NumbersOf(LaidOut(chart, {600, 375}), AxisId::Z).size(), 5U);
}

TEST(SpaceAxes, RowsSeenFromBelowAreNamedAtTheEdgeThatIsFree) {
    const Scene scene = LaidOut(SeenFrom(Bars(6, 4), Projection::Oblique, 300, -30), Picture);
    EXPECT_EQ(NumbersOf(scene, AxisId::Z).size(), 4U);
}

/// From a view that shows the rows one behind the other: each name lies on the same side of the one before.
TEST(SpaceAxes, NamesOfRowsKeepTheOrderOfTheRows) {
    for (const Projection projection : {Projection::Oblique, Projection::Orthogonal, Projection::Perspective})
        for (double rotation = 0; rotation < 360; rotation += 10) {
            const Scene scene = LaidOut(SeenFrom(Bars(5, 3), projection, rotation, 25), {300, 225});
            std::vector<Point> places;
            for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
                if (shape.part.index1 == static_cast<int>(AxisId::Z)) places.push_back(shape.bounds.Center());
            if (places.size() < 3) continue;
            const Point first{places[1].x - places[0].x, places[1].y - places[0].y};
            const Point second{places[2].x - places[1].x, places[2].y - places[1].y};
            EXPECT_GT(first.x * second.x + first.y * second.y, 0) << rotation;
        }
}

TEST(SpaceAxes, NamesThatWouldLoseMostOfTheirLettersAreLeftOut) {
    Chart chart = SeenFrom(Bars(6, 3), Projection::Oblique, 60, 25);
    chart.Plot.Axis(AxisId::Z).Labels.Item(1).VtFont.Size = 16;
    for (const Shape& shape : ShapesOf<TextLine>(LaidOut(chart, {160, 120}), PartCode::AxisLabel))
        EXPECT_NE(shape.part.index1, static_cast<int>(AxisId::Z));
}

TEST(SpaceAxes, ValuesKeepTheirLabelsBesideNamesOfRows) {
    Chart chart = ChartOf(9, 2, [](int row, int) { return std::pow(4.0, row); });
    chart.SetChartType(ChartType::Bar3D);
    chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Logarithmic;
    EXPECT_TRUE(NumbersOf(LaidOut(chart, Picture), AxisId::Y).contains(1));
}

TEST(SpaceAxes, RowsSeenStraightFromTheFrontHaveNoNames) {
    const Scene scene = LaidOut(SeenFrom(Bars(6, 4), Projection::Orthogonal, 90, 0), Picture);
    EXPECT_TRUE(NumbersOf(scene, AxisId::Z).empty());
    EXPECT_EQ(NumbersOf(scene, AxisId::X).size(), 6U);
}

TEST(SpaceAxes, MonthsBesideASlopingEdgeAreThinnedToYears) {
    Chart chart = SeenFrom(Bars(96, 1), Projection::Orthogonal, 45, 30);
    for (int row = 0; row < 96; ++row)
        chart.DataGrid.SetRowLabel(
            row + 1, QStringLiteral("%1-%2").arg(2000 + row / 12).arg(row % 12 + 1, 2, 10, QLatin1Char('0')));
    const std::set<int> numbers = NumbersOf(LaidOut(chart, Picture), AxisId::X);
    ASSERT_GE(numbers.size(), 3U);
    for (const int number : numbers) EXPECT_EQ(number % 12, 1);
}

TEST(SpaceAxes, ATitleStandsBelowTheLabelsNotBetweenThem) {
    Chart chart = SeenFrom(Bars(6, 1), Projection::Oblique, 60, 30);
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("Y");
    const Scene scene = LaidOut(chart, Picture);
    const std::vector<TextLine> titles = TextsOf(scene, PartCode::AxisTitle);
    ASSERT_EQ(titles.size(), 1U);
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
        if (shape.part.index1 == static_cast<int>(AxisId::X)) {
            EXPECT_GE(BoundsOf(titles.front()).top, shape.bounds.bottom);
        }
}

TEST(SpaceAxes, ATitleBesideASlopingEdgeStandsBeyondAllOfItsLabels) {
    Chart chart = SeenFrom(Bars(6, 1), Projection::Orthogonal, 45, 35);
    for (int row = 1; row <= 6; ++row)
        chart.DataGrid.SetRowLabel(row, QStringLiteral("Category %1").arg(row));
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("T");
    const Scene scene = LaidOut(chart, Picture);
    const std::vector<TextLine> titles = TextsOf(scene, PartCode::AxisTitle);
    ASSERT_EQ(titles.size(), 1U);
    const Box title = BoundsOf(titles.front());
    ASSERT_EQ(NumbersOf(scene, AxisId::X).size(), 6U);
    // The edge falls to the right: no label is both further left and further down.
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
        if (shape.part.index1 == static_cast<int>(AxisId::X)) {
            EXPECT_FALSE(shape.bounds.left < title.left && shape.bounds.bottom > title.bottom);
        }
}

TEST(SpaceLabels, TheHighestBarHasItsLabelAboveItWhereTheWallEnds) {
    Chart chart = ChartOf(4, 1, [](int row, int) { return row == 1 ? 14.0 : 3.0; });
    chart.SetChartType(ChartType::Bar3D);
    chart.ShowLegend = false;
    const Scene scene = LaidOut(Labelled(chart), Picture);
    const std::vector<Shape> labels = ShapesOf<TextLine>(scene, PartCode::PointLabel);
    ASSERT_EQ(labels.size(), 4U);
    for (const Shape& face : ShapesOf<Polygon>(scene, PartCode::Series))
        if (face.part.index2 == 1) {
            EXPECT_GE(face.bounds.top, labels.front().bounds.bottom);
        }
}

TEST(SpaceMarks, OfValuesBeyondAFixedAxisDoNotLeaveTheSpace) {
    for (const ChartType type : {ChartType::Bar3D, ChartType::Line3D, ChartType::Area3D, ChartType::Step3D}) {
        Chart chart = Bars(6, 2);
        chart.SetChartType(type);
        chart.Plot.Axis(AxisId::Y).ValueScale = {false, 3, 6, 3};
        const Scene scene = LaidOut(Labelled(chart), Picture);
        Box walls = Box::Nothing();
        for (const Shape& wall : ShapesOf<Polygon>(scene, PartCode::Plot)) walls.Include(wall.bounds);
        const std::vector<Shape> marks = ShapesOf<Polygon>(scene, PartCode::Series);
        EXPECT_FALSE(marks.empty());
        for (const Shape& mark : marks) {
            EXPECT_GE(mark.bounds.top, walls.top);
            EXPECT_LE(mark.bounds.bottom, walls.bottom);
        }
    }
}

TEST(SpaceWalls, AreTintsOfADarkGround) {
    Chart chart = Bars(3, 2);
    chart.Backdrop.Fill.Brush.FillColor = {30, 34, 39};
    const std::vector<Shape> walls = ShapesOf<Polygon>(LaidOut(chart, Picture), PartCode::Plot);
    ASSERT_EQ(walls.size(), 3U);
    for (const Shape& wall : walls) {
        EXPECT_TRUE(IsDark(wall.fill.colour));
        EXPECT_NE(wall.fill.colour, chart.Backdrop.Fill.Brush.FillColor);
    }
}

/// A run of labels by where each begins, none where it has no place.
std::vector<EdgeLabel> LabelsAt(const std::vector<double>& places) {
    std::vector<EdgeLabel> labels;
    for (const double place : places) {
        labels.push_back({static_cast<int>(labels.size()), {}});
        if (place >= 0)
            labels.back().line =
                TextLine{QStringLiteral("x"), {}, {place, 0}, TextAnchor::Start, 0, 10, 8, 2};
    }
    return labels;
}

TEST(LongestRun, EndsWhereALabelHasNoPlaceOrMeetsTheNext) {
    EXPECT_TRUE(LongestRun({}).empty());
    EXPECT_TRUE(LongestRun(LabelsAt({-1})).empty());
    EXPECT_EQ(LongestRun(LabelsAt({0, 20, 40})).size(), 3U);
    EXPECT_EQ(LongestRun(LabelsAt({0, 20, -1, 60, 80, 100})).front().index, 3);
    EXPECT_EQ(LongestRun(LabelsAt({0, 20, 25, 60, 80})).size(), 3U);
    EXPECT_EQ(LongestRun(LabelsAt({0, 11})).size(), 1U);
}

TEST(LongestRun, EndsWhereLabelsMeetBesideOneThatWasPushedAside) {
    std::vector<EdgeLabel> labels = LabelsAt({0, 6, 8});
    labels[1].line->origin.y = 30;
    EXPECT_EQ(LongestRun(labels).size(), 2U);
}

class AxisTextRoomTest : public testing::Test {
protected:
    AxisTextRoomTest() {
        plan_.size = {1, 1, 1};
        Plot plot;
        plot.View3d = {60, 30};
        plan_.view.emplace(plot, plan_.size);
        plan_.scale = 100;
        plan_.origin = {100, 200};
    }

    SpacePlan plan_;
};

TEST_F(AxisTextRoomTest, TextsStandBesideTheOutlineNotItsBox) {
    const AxisTextRoom room(plan_, std::nullopt);
    const Box bounds = plan_.Bounds();
    EXPECT_FALSE(
        room.IsFree({bounds.Center().x, bounds.Center().y, bounds.Center().x + 1, bounds.Center().y + 1}));
    EXPECT_TRUE(room.IsFree({bounds.left - 9, bounds.top, bounds.left - 1, bounds.bottom}));
    // The outline of an oblique space leaves two corners of its box.
    EXPECT_TRUE(room.IsFree({bounds.right - 5, bounds.bottom - 5, bounds.right, bounds.bottom}));
}

TEST_F(AxisTextRoomTest, PushesUntilClear) {
    AxisTextRoom room(plan_, std::nullopt);
    const Box bounds = plan_.Bounds();
    const Box wished{bounds.left, bounds.bottom - 10, bounds.left + 10, bounds.bottom};
    const auto found = room.Push(wished, {0, 1}, 50);
    ASSERT_TRUE(found);
    EXPECT_GE(found->top, bounds.bottom);
    room.Take(*found);
    const auto next = room.Push(wished, {0, 1}, 50);
    ASSERT_TRUE(next);
    EXPECT_GE(next->top, found->bottom);
    EXPECT_FALSE(room.Push(wished, {0, 1}, 5));
}

TEST_F(AxisTextRoomTest, WithoutADirectionNothingIsMoved) {
    const AxisTextRoom room(plan_, std::nullopt);
    const Point middle = plan_.Bounds().Center();
    EXPECT_FALSE(room.Push({middle.x, middle.y, middle.x + 1, middle.y + 1}, {0, 0}, 50));
}

TEST(SpaceLabels, StandAboveTheTopsOfTheirBarsInTheMiddleOfTheFrontEdges) {
    const Scene scene = LaidOut(Labelled(Bars(6, 1)), Picture);
    const std::vector<Shape> labels = ShapesOf<TextLine>(scene, PartCode::PointLabel);
    ASSERT_EQ(labels.size(), 6U);
    for (const Shape& label : labels) {
        Box bar = Box::Nothing();
        Box front = Box::Nothing(); // drawn last
        for (const Shape& face : ShapesOf<Polygon>(scene, PartCode::Series)) {
            if (face.part.index2 != label.part.index2) continue;
            front = face.bounds;
            bar.Include(face.bounds);
        }
        EXPECT_LE(label.bounds.bottom, bar.top);
        EXPECT_NEAR(label.bounds.Center().x, front.Center().x, 0.01);
    }
    EXPECT_TRUE(ShapesOf<Rectangle>(scene, PartCode::PointLabel).empty());
}

TEST(SpaceLabels, BarsInTheBackHaveThemWhereTheirTopsAreSeen) {
    // Each row stands higher than the one before it.
    Chart chart = ChartOf(2, 3, [](int, int column) { return 10.0 * column; });
    chart.SetChartType(ChartType::Bar3D);
    chart.ShowLegend = false;
    EXPECT_EQ(TextsOf(LaidOut(Labelled(chart), {600, 375}), PartCode::PointLabel).size(), 6U);
}

TEST(SpaceLabels, HiddenBarsHaveNone) {
    Chart chart = ChartOf(2, 2, [](int, int column) { return column == 1 ? 100.0 : 1.0; });
    chart.SetChartType(ChartType::Bar3D);
    chart.ShowLegend = false;
    const Scene scene = LaidOut(SeenFrom(Labelled(chart), Projection::Oblique, 90, 0), Picture);
    for (const Shape& label : ShapesOf<TextLine>(scene, PartCode::PointLabel))
        EXPECT_EQ(label.part.index1, 1);
}

TEST(SpaceLabels, NoneCoversAnother) {
    const Scene scene = LaidOut(Labelled(Bars(30, 6)), Picture);
    const std::vector<Shape> labels = ShapesOf<TextLine>(scene, PartCode::PointLabel);
    ASSERT_GT(labels.size(), 5U);
    for (const Shape& label : labels) {
        for (const Shape& plate : ShapesOf<Rectangle>(scene, PartCode::PointLabel))
            EXPECT_TRUE(plate.part == label.part || !Meet(plate.bounds, label.bounds.Grown(-1)));
        for (const Shape& other : labels)
            EXPECT_TRUE(other.part == label.part || !Meet(other.bounds, label.bounds));
    }
}

} // namespace
} // namespace QmChart6
