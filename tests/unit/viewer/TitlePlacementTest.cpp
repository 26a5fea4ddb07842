#include "viewer/TitlePlacement.h"
#include "support/StubTextMeasurer.h"

#include "chartcontrol/layout/Layout.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

constexpr Size ChartSize{400, 300};

Title Named(const char* text, Orientation orientation = Orientation::Horizontal) {
    Title title;
    title.Text = QLatin1String(text);
    title.VtFont.Size = 10; // a character of the stub's is 6 wide, a line 10 high
    title.TextLayout.Orientation = orientation;
    return title;
}

Scene SceneOf(const Title& title) {
    Chart chart;
    chart.SetGridSize(3, 2);
    chart.Title = title;
    return LayOut(chart, {ChartSize}, StubTextMeasurer()).scene;
}

Coordinate CenterOf(const CoordinateRect& rect) {
    return {(rect.Min.X + rect.Max.X) / 2, (rect.Min.Y + rect.Max.Y) / 2};
}

QStringList LinesOf(const Title& title) {
    QStringList lines;
    for (const Shape& shape : SceneOf(title).shapes)
        if (const auto* line = std::get_if<TextLine>(&shape.geometry);
            line && shape.part.code == PartCode::Title)
            lines.append(line->text);
    return lines;
}

/// The rectangle that the title's text takes in the picture.
CoordinateRect DrawnRect(Title title) {
    const Scene scene = SceneOf(title);
    title.Location.LocationType = LocationType::Top; // not the rectangle that the model claims
    return StandingRect(title, scene).value();
}

} // namespace

TEST(TitlePlacement, ATitleWithoutAPlaceOfItsOwnStandsWhereItsTextIs) {
    const Title title = Named("Turnover");
    const CoordinateRect rect = StandingRect(title, SceneOf(title)).value();
    EXPECT_NEAR(rect.Max.X - rect.Min.X, 48, 0.01);
    EXPECT_NEAR(rect.Max.Y - rect.Min.Y, 10, 0.01);
    EXPECT_NEAR(CenterOf(rect).X, 200, 1);
}

TEST(TitlePlacement, ATitlePlacedByHandStandsInItsRectangle) {
    Title title = Named("Turnover");
    title.Location = {LocationType::Custom, {{10, 20}, {110, 60}}};
    EXPECT_EQ(StandingRect(title, SceneOf(title)), title.Location.Rect);
}

TEST(TitlePlacement, ATitleThatIsNotShownStandsNowhere) {
    EXPECT_EQ(StandingRect(Named(""), SceneOf(Named(""))), std::nullopt);
}

TEST(TitlePlacement, EveryTurnKeepsTheMiddleAndShowsTheWholeText) {
    constexpr double single = 1e-4; // places are kept in single precision
    const CoordinateRect before{{150, 140}, {250, 160}};
    for (const int orientation : {0, 1, 2, 3}) {
        Title title = Named("A longer title", ToOrientation(orientation));
        title.VtFont.Size = 14;
        PlaceTitleAround(title, before, Named("Turnover"), ChartSize, StubTextMeasurer());
        EXPECT_EQ(title.Location.LocationType, LocationType::Custom);
        EXPECT_NEAR(CenterOf(title.Location.Rect).X, 200, single) << orientation;
        EXPECT_NEAR(CenterOf(title.Location.Rect).Y, 150, single) << orientation;
        EXPECT_NEAR(CenterOf(DrawnRect(title)).X, 200, 1) << orientation;
        EXPECT_NEAR(CenterOf(DrawnRect(title)).Y, 150, 1) << orientation;
        const QString text = LinesOf(title).join(orientation == 1 ? QString() : QStringLiteral(" "));
        EXPECT_EQ(text, orientation == 1 ? "Alongertitle" : "A longer title") << orientation;
    }
}

TEST(TitlePlacement, ABiggerFontTakesMoreRoomRoundTheSameMiddle) {
    Title title = Named("Turnover");
    const CoordinateRect before = StandingRect(title, SceneOf(title)).value();
    title.VtFont.Size = 20;
    PlaceTitleAround(title, before, Named("Turnover"), ChartSize, StubTextMeasurer());
    const CoordinateRect& rect = title.Location.Rect;
    EXPECT_NEAR(rect.Max.X - rect.Min.X, 96, 2);
    EXPECT_NEAR(rect.Max.Y - rect.Min.Y, 20, 2);
    EXPECT_NEAR(CenterOf(rect).X, CenterOf(before).X, 1e-9);
    EXPECT_NEAR(CenterOf(rect).Y, CenterOf(before).Y, 1e-9);
    EXPECT_EQ(LinesOf(title), QStringList(QStringLiteral("Turnover")));
}

TEST(TitlePlacement, ATextThatIsTooLongForTheChartIsBroken) {
    Title title =
        Named("Turnover of all the regions in the north and in the south since the year of foundation");
    PlaceTitleAround(title, {{190, 5}, {210, 15}}, Named("Turnover"), ChartSize, StubTextMeasurer());
    EXPECT_GT(LinesOf(title).size(), 1);
    EXPECT_EQ(LinesOf(title).join(u' '), title.Text);
    EXPECT_GE(title.Location.Rect.Min.X, -1);
    EXPECT_LE(title.Location.Rect.Max.X, 401);
}

TEST(TitlePlacement, ARectangleMadeByHandStaysWhereTheTextTakesNoOtherRoom) {
    Title before = Named("Turnover");
    before.Location = {LocationType::Custom, {{10, 20}, {210, 60}}};
    Title title = before;
    title.VtFont.VtColor = {255, 0, 0};
    title.TextLayout.HorzAlignment = HorizontalAlignment::Left;
    PlaceTitleAround(title, before.Location.Rect, before, ChartSize, StubTextMeasurer());
    EXPECT_EQ(title.Location, before.Location);
}

TEST(TitlePlacement, ATitleWithoutATextExchangesItsExtentsWhenItIsTurned) {
    Title before = Named("Turnover");
    before.Location = {LocationType::Custom, {{100, 100}, {180, 120}}};
    Title title = before;
    title.Text.clear();
    title.TextLayout.Orientation = Orientation::Up;
    PlaceTitleAround(title, before.Location.Rect, before, ChartSize, StubTextMeasurer());
    EXPECT_EQ(title.Location.Rect, (CoordinateRect{{130, 70}, {150, 150}}));
}
