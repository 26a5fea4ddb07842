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

TEST(TitlePlacement, ATitleThatIsPlacedKeepsItsExtents) {
    Title title = Named("A longer title than it was");
    title.VtFont.Size = 20;
    const CoordinateRect before{{150, 140}, {250, 160}};
    PlaceTitleAround(title, before, Named("Turnover"), ChartSize);
    EXPECT_EQ(title.Location.LocationType, LocationType::Custom);
    EXPECT_EQ(title.Location.Rect, before);
    EXPECT_EQ(title.Location.Within, (Coordinate{400, 300}));
}

TEST(TitlePlacement, ATitleThatIsTurnedExchangesItsExtents) {
    Title before = Named("Turnover");
    before.Location = {LocationType::Custom, {{120, 85}, {280, 115}}}; // 160 by 30
    for (const Orientation turned : {Orientation::Vertical, Orientation::Up, Orientation::Down}) {
        Title title = before;
        title.TextLayout.Orientation = turned;
        PlaceTitleAround(title, before.Location.Rect, before, ChartSize);
        EXPECT_EQ(title.Location.Rect, (CoordinateRect{{185, 20}, {215, 180}}));
        Title again = title;
        again.TextLayout.Orientation = Orientation::Horizontal;
        PlaceTitleAround(again, title.Location.Rect, title, ChartSize);
        EXPECT_EQ(again.Location.Rect, before.Location.Rect);
    }
}

TEST(TitlePlacement, FromOneUprightOrientationToAnotherNothingIsExchanged) {
    Title before = Named("Turnover", Orientation::Up);
    before.Location = {LocationType::Custom, {{185, 20}, {215, 180}}};
    Title title = before;
    title.TextLayout.Orientation = Orientation::Down;
    PlaceTitleAround(title, before.Location.Rect, before, ChartSize);
    EXPECT_EQ(title.Location.Rect, before.Location.Rect);
}

TEST(TitlePlacement, WhatIsDrawnStaysCentredWhereItWasWhateverItSays) {
    const CoordinateRect before{{150, 140}, {250, 160}};
    for (const int orientation : {0, 1, 2, 3}) {
        Title title = Named("A longer title", ToOrientation(orientation));
        title.VtFont.Size = 14;
        PlaceTitleAround(title, before, Named("Turnover"), ChartSize);
        EXPECT_NEAR(CenterOf(DrawnRect(title)).X, 200, 1) << orientation;
        EXPECT_NEAR(CenterOf(DrawnRect(title)).Y, 150, 1) << orientation;
        const QString text = LinesOf(title).join(orientation == 1 ? QString() : QStringLiteral(" "));
        EXPECT_EQ(text, orientation == 1 ? "Alongertitle" : "A longer title") << orientation;
    }
}

TEST(TitlePlacement, ATitleOfAChartOfAnotherSizeStandsAtTheSameShares) {
    Title title = Named("Turnover");
    title.Location = {LocationType::Custom, {{10, 20}, {30, 60}}, {100, 200}};
    Scene scene;
    scene.size = ChartSize;
    EXPECT_EQ(StandingRect(title, scene), (CoordinateRect{{40, 30}, {120, 90}}));
}
