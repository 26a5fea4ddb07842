#include "chartcontrol/layout/space/AreaPieces.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

SpaceTrack TrackOf(std::vector<double> base, std::vector<double> top) {
    SpaceTrack track{1, Mark::Area, {0, 1}, {}, {}, {}};
    track.base = std::move(base);
    track.top = std::move(top);
    return track;
}

TEST(AreaPieces, AreOneWhereNothingChangesItsSign) {
    const std::vector<AreaPiece> pieces = PiecesOf({TrackOf({0, 0}, {3, 4}), TrackOf({3, 4}, {5, 5})}, 0, 0);
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0].slabs[1].base, (std::array<double, 2>{3, 4}));
    EXPECT_EQ(pieces[0].slabs[1].top, (std::array<double, 2>{5, 5}));
    EXPECT_FALSE(pieces[0].slabs[1].hangs);
}

TEST(AreaPieces, AnAreaByItselfIsSplitWhereItCrossesItsGround) {
    const std::vector<AreaPiece> pieces = PiecesOf({TrackOf({1, 1}, {4, 0})}, 0, 1);
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_DOUBLE_EQ(pieces[0].at[1], 0.75);
    EXPECT_FALSE(pieces[0].slabs[0].hangs);
    EXPECT_TRUE(pieces[1].slabs[0].hangs);
    EXPECT_NEAR(pieces[0].slabs[0].top[1], 1, 1e-12);
    EXPECT_DOUBLE_EQ(pieces[1].slabs[0].top[1], 0);
}

/// The second area goes from above the first, which stays, to below the ground.
TEST(AreaPieces, APiledAreaGoesOnBelowTheGroundWhereItCrossesZero) {
    const std::vector<AreaPiece> pieces =
        PiecesOf({TrackOf({0, 0}, {10, 20}), TrackOf({10, 0}, {14, -4})}, 0, 0);
    ASSERT_EQ(pieces.size(), 2U);
    const AreaPiece::Slab& above = pieces[0].slabs[1];
    EXPECT_EQ(above.base, (std::array<double, 2>{10, 15}));
    EXPECT_EQ(above.top, (std::array<double, 2>{14, 15}));
    const AreaPiece::Slab& below = pieces[1].slabs[1];
    EXPECT_TRUE(below.hangs);
    EXPECT_EQ(below.base, (std::array<double, 2>{0, 0}));
    EXPECT_EQ(below.top, (std::array<double, 2>{0, -4}));
}

TEST(AreaPieces, AnAreaThatBeginsWithZeroHangsFromTheGround) {
    const std::vector<AreaPiece> pieces =
        PiecesOf({TrackOf({0, 0}, {10, 10}), TrackOf({10, 0}, {10, -4})}, 0, 0);
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0].slabs[1].base, (std::array<double, 2>{0, 0}));
    EXPECT_EQ(pieces[0].slabs[1].top, (std::array<double, 2>{0, -4}));
}

} // namespace
} // namespace QmChart6
