#include "chartcontrol/layout/text/Ground.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

constexpr Colour White{255, 255, 255};
constexpr Colour Blue{30, 60, 160};
constexpr Box Room{0, 0, 200, 100};

class GroundTest : public testing::Test {
protected:
    Scene scene{{200, 100}, {}, {}, {}, {}};
    SceneBuilder builder{scene};

    [[nodiscard]] Ground Read() const { return {scene, Room, White}; }
    void Bar(const Box& box, const SceneFill& fill = SolidFill(Blue)) {
        builder.AddRectangle({PartCode::Series, 1, 1}, box, fill);
    }
};

TEST_F(GroundTest, IsPlainWhereNothingLies) {
    const Ground::Footing footing = Read().Under({10, 10, 40, 20});
    EXPECT_TRUE(footing.free && footing.even);
    EXPECT_EQ(footing.shape, Ground::Plain);
    EXPECT_EQ(footing.colour, White);
}

TEST_F(GroundTest, OutsideTheRoomIsNotFree) {
    EXPECT_FALSE(Read().Under({-1, 10, 40, 20}).free);
    EXPECT_FALSE(Read().Under({180, 95, 195, 101}).free);
}

TEST_F(GroundTest, OnABarHasItsColourAndOverItsRimIsNotEven) {
    Bar({20, 20, 60, 100});
    EXPECT_TRUE(Read().Under({25, 30, 55, 40}).even);
    EXPECT_EQ(Read().Under({25, 30, 55, 40}).colour, Blue);
    EXPECT_FALSE(Read().Under({50, 30, 70, 40}).even);
    EXPECT_FALSE(Read().Under({25, 10, 55, 30}).even);
}

TEST_F(GroundTest, APatternIsNeverEven) {
    Bar({20, 20, 60, 100}, {BrushStyle::Hatch, 2, Blue, White});
    EXPECT_FALSE(Read().Under({25, 30, 55, 40}).even);
}

TEST_F(GroundTest, WhatShinesThroughIsASurfaceOfItsOwn) {
    Bar({0, 0, 100, 100}, {BrushStyle::Solid, 0, Colour{0, 0, 0}, {}, 0.5});
    EXPECT_EQ(Read().Under({10, 10, 20, 20}).colour, (Colour{128, 128, 128}));
    Bar({50, 0, 150, 100}, {BrushStyle::Solid, 0, Colour{0, 0, 0}, {}, 0.5});
    EXPECT_EQ(Read().Under({60, 10, 90, 20}).colour, (Colour{64, 64, 64}));
    EXPECT_FALSE(Read().Under({40, 10, 60, 20}).even);
}

TEST_F(GroundTest, LinesAreMetAndFaintOnesAreNot) {
    builder.AddLine({PartCode::Series, 1}, {0, 50}, {200, 50}, {PenStyle::Solid, 1, Blue});
    builder.AddLine({PartCode::Axis, 1}, {0, 20}, {200, 20}, {PenStyle::Solid, 1, {226, 228, 232}});
    EXPECT_FALSE(Read().Under({10, 45, 40, 55}).even);
    EXPECT_GT(Read().Under({10, 45, 40, 55}).lines, 0);
    EXPECT_TRUE(Read().Under({10, 15, 40, 25}).even);
}

TEST_F(GroundTest, WhereTextStandsIsTaken) {
    builder.AddText({PartCode::PointLabel, 1, 1},
                    {QStringLiteral("12"), {}, {50, 50}, TextAnchor::Start, 0, 12, 8, 2});
    EXPECT_FALSE(Read().Under({45, 40, 55, 50}).free);
    Ground ground = Read();
    EXPECT_TRUE(ground.Under({100, 10, 120, 20}).free);
    ground.Take({100, 10, 120, 20});
    EXPECT_FALSE(ground.Under({115, 15, 130, 25}).free);
}

TEST_F(GroundTest, TellsWhatIsOnTop) {
    Bar({20, 20, 60, 100});
    EXPECT_EQ(Read().PartAt({30, 50}), (Part{PartCode::Series, 1, 1}));
    EXPECT_FALSE(Read().PartAt({5, 5}).has_value());
    EXPECT_FALSE(Read().PartAt({-5, 5}).has_value());
}

TEST_F(GroundTest, NumbersFarOutsideDoNoHarm) {
    builder.AddPoint({-1e12, -1e12});
    builder.AddPoint({1e12, -1e12});
    builder.AddPoint({1e12, 1e12});
    builder.AddPolygon({PartCode::Series, 1}, SolidFill(Blue), {PenStyle::Solid, 1, Blue});
    EXPECT_EQ(Read().Under({150, 10, 160, 20}).colour, Blue);
    EXPECT_EQ(Read().Under({10, 80, 20, 90}).colour, White);
}

TEST_F(GroundTest, ALabelOnABarThatIsTooNarrowGoesBeyondItsEnd) {
    Bar({20, 50, 60, 100});
    const LabelAnchor anchor{{20, 50, 60, 100}, true, false};
    const Size size{44, 10};
    const auto found = FindPlace(Read(), anchor, PlacesFor(LabelLocation::Center, anchor, size, false));
    ASSERT_TRUE(found);
    EXPECT_LT(found->place.box.bottom, 50);
    EXPECT_FALSE(found->plate);
}

TEST_F(GroundTest, ALabelWithAirStandsOnItsBarInAColourThatIsRead) {
    Bar({20, 50, 60, 100});
    const LabelAnchor anchor{{20, 50, 60, 100}, true, false};
    const auto found = FindPlace(Read(), anchor, PlacesFor(LabelLocation::Center, anchor, {20, 10}, false));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->ground, Blue);
}

TEST_F(GroundTest, ALabelOverNeighbouringBarsIsLeftOut) {
    Bar({20, 50, 40, 100});
    Bar({0, 10, 20, 100});
    Bar({40, 10, 60, 100});
    const LabelAnchor anchor{{20, 50, 40, 100}, true, false};
    EXPECT_FALSE(FindPlace(Read(), anchor, PlacesFor(LabelLocation::AbovePoint, anchor, {30, 10}, false)));
}

TEST_F(GroundTest, APointsLabelAvoidsTheLineOrGetsAPlate) {
    builder.AddLine({PartCode::Series, 1}, {0, 40}, {200, 40}, {PenStyle::Solid, 2, Blue}, false);
    const LabelAnchor anchor{{98, 48, 102, 52}, false, false};
    const auto found =
        FindPlace(Read(), anchor, PlacesFor(LabelLocation::AbovePoint, anchor, {20, 10}, false));
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->plate);
    EXPECT_GT(found->place.box.top, 50);
}

} // namespace
} // namespace QmChart6
