#include "qmchart6/Variant.h"

#include "support/Raises.h"
#include "support/ScopedLocale.h"

#include <cmath>
#include <limits>

using namespace QmChart6;

TEST(Variant, BecomesA16BitIntegerWithHalvesToTheEvenNeighbour) {
    EXPECT_EQ(Variant().ToInt16(), 0);
    EXPECT_EQ(Variant(std::int16_t{3}).ToInt16(), 3);
    EXPECT_EQ(Variant(2.5).ToInt16(), 2);
    EXPECT_EQ(Variant(3.5).ToInt16(), 4);
    EXPECT_EQ(Variant(-0.5).ToInt16(), 0);
    EXPECT_EQ(Variant(-1.5).ToInt16(), -2);
    EXPECT_EQ(Variant(1.4999).ToInt16(), 1);
    EXPECT_EQ(Variant(32767.4).ToInt16(), 32767);
    EXPECT_EQ(Variant(QStringLiteral(" 2 ")).ToInt16(), 2);
    EXPECT_EQ(Variant(true).ToInt16(), -1);
    EXPECT_EQ(Variant(std::uint8_t{200}).ToInt16(), 200);
}

TEST(Variant, RaisesWhereNo16BitIntegerCanBeMade) {
    EXPECT_RAISES(6, Variant(32768).ToInt16());
    EXPECT_RAISES(6, Variant(32767.5).ToInt16());
    EXPECT_RAISES(6, Variant(-40000.0).ToInt16());
    EXPECT_RAISES(6, Variant(std::nan("")).ToInt16());
    EXPECT_RAISES(13, Variant(QStringLiteral("English")).ToInt16());
    EXPECT_RAISES(13, Variant(Array<double>({1.0})).ToInt16());
    EXPECT_RAISES(94, Variant(Null{}).ToInt16());
}

TEST(Variant, BecomesACell) {
    EXPECT_TRUE(std::isnan(Variant().ToCell()));
    EXPECT_TRUE(std::isnan(Variant(std::nan("")).ToCell()));
    EXPECT_EQ(Variant(0.1 + 0.2).ToCell(), 0.3);
    EXPECT_EQ(Variant(0.1F).ToCell(), 0.1);
    EXPECT_EQ(Variant(QStringLiteral("2.5")).ToCell(), 2.5);
    EXPECT_EQ(Variant(std::int64_t{1} << 40).ToCell(), 1099511627776.0);
}

TEST(Variant, RaisesWhereNoCellCanBeMade) {
    EXPECT_RAISES(94, Variant(Null{}).ToCell());
    EXPECT_RAISES(13, Variant(QStringLiteral("n/a")).ToCell());
    EXPECT_RAISES(13, Variant(QString()).ToCell());
    EXPECT_RAISES(13, Variant(true).ToCell());
    EXPECT_RAISES(13, Variant(std::numeric_limits<double>::infinity()).ToCell());
    EXPECT_RAISES(13, Variant(-std::numeric_limits<float>::infinity()).ToCell());
    EXPECT_RAISES(13, Variant(Array<Variant>({Variant(1)})).ToCell());
}

TEST(Variant, BecomesTextInTheCurrentLocale) {
    EXPECT_EQ(Variant().ToText(), "");
    EXPECT_EQ(Variant(1.5).ToText(), "1.5");
    EXPECT_EQ(Variant(1.5F).ToText(), "1.5");
    EXPECT_EQ(Variant(-7).ToText(), "-7");
    EXPECT_EQ(Variant(true).ToText(), "True");
    EXPECT_RAISES(94, Variant(Null{}).ToText());
    EXPECT_RAISES(13, Variant(Array<QString>({QStringLiteral("a")})).ToText());
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(Variant(1.5).ToText(), "1,5");
}

TEST(Array, CountsFromTheLowerBoundThatItsMakerChose) {
    const Array<int> list({10, 20, 30}, 5);
    EXPECT_EQ(list.LowerBound(), 5);
    EXPECT_EQ(list.UpperBound(), 7);
    EXPECT_EQ(list.At(6), 20);
    EXPECT_RAISES(9, list.At(4));
    EXPECT_RAISES(9, list.At(8));
    EXPECT_RAISES(9, list.At(5, 5));
    EXPECT_RAISES(9, list.LowerBound(2));
}

TEST(Array, TablesReadRowByRow) {
    const auto table = Array<double>::Table(2, 3, {1, 2, 3, 4, 5, 6}, 1, 1);
    EXPECT_EQ(table.At(1, 3), 3);
    EXPECT_EQ(table.At(2, 1), 4);
    EXPECT_RAISES(9, table.At(0, 1));
    EXPECT_RAISES(9, table.At(1, 4));
    EXPECT_RAISES(9, table.At(1));
    EXPECT_RAISES(9, Array<double>::Table(2, 2, {1, 2, 3}));
}

TEST(Array, ViewsFollowTheirStrides) {
    const double memory[] = {1, 2, 3, 4, 5, 6};
    const auto byColumn = Array<double>::View(memory, 3, 2, 1, 3);
    EXPECT_EQ(byColumn.At(2, 0), 3);
    EXPECT_EQ(byColumn.At(0, 1), 4);
    EXPECT_RAISES(5, Array<double>::View(nullptr, 1, 1, 1, 1));
}
