#include "chart/ValueLabelFormat.h"

#include "support/Raises.h"
#include "support/ScopedLocale.h"

#include <vector>

using namespace QmChart6;

namespace {

template<class T>
Variant FromOne(int rows, int columns, std::vector<T> elements) {
    return Array<T>::Table(rows, columns, std::move(elements), 1, 1);
}

QString FormatOf(const Variant& data, int rows, int columns) {
    ComputeValueLabelFormat(data, rows, columns);
    return ValueLabelFormat();
}

} // namespace

TEST(ValueLabelFormat, HasTwoDecimalsWhereAValueHasSome) {
    EXPECT_EQ(FormatOf(FromOne<double>(1, 2, {1, 2}), 1, 2), "0");
    EXPECT_EQ(FormatOf(FromOne<double>(1, 2, {1, 2.5}), 1, 2), "0.00");
    EXPECT_EQ(FormatOf(FromOne<float>(1, 2, {1, 2.5F}), 1, 2), "0.00");
    EXPECT_EQ(FormatOf(FromOne<std::int16_t>(1, 2, {1, 2}), 1, 2), "0");
    EXPECT_EQ(FormatOf(FromOne<QString>(1, 1, {QStringLiteral("1.5")}), 1, 1), "0.00");
    EXPECT_EQ(FormatOf(FromOne<Variant>(2, 1, {Variant(1), Variant(1.5F)}), 2, 1), "0.00");
    EXPECT_EQ(FormatOf(FromOne<Variant>(2, 1, {Variant(), Variant(7)}), 2, 1), "0");
}

TEST(ValueLabelFormat, IsGeneralWhileFormatsFollowTheDataWhateverIsComputed) {
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {0.5}), 1, 1), "0.00");
    LetFormatsFollowData(true);
    EXPECT_EQ(ValueLabelFormat(), "");
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {5}), 1, 1), "");
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(FormatOf(FromOne<QString>(1, 1, {QStringLiteral("1.5")}), 1, 1), "");
    LetFormatsFollowData(false);
    EXPECT_EQ(ValueLabelFormat(), "0,00");
}

TEST(ValueLabelFormat, StartsOverWithEachTable) {
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {0.5}), 1, 1), "0.00");
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {5}), 1, 1), "0");
}

TEST(ValueLabelFormat, LooksOnlyAtRowsAndColumnsThatAreUsed) {
    EXPECT_EQ(FormatOf(FromOne<double>(2, 2, {1, 2.5, 3.5, 4}), 1, 1), "0");
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {1.5}), 0, 0), "0");
}

TEST(ValueLabelFormat, AnExponentWithDecimalsHoldsAPointToo) {
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {1e15}), 1, 1), "0");
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {1.5e15}), 1, 1), "0.00");
}

TEST(ValueLabelFormat, NumbersHoldNoPointUnderACommaLocale) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(FormatOf(FromOne<double>(1, 1, {1.5}), 1, 1), "0");
    EXPECT_EQ(FormatOf(FromOne<Variant>(1, 1, {Variant(1.5)}), 1, 1), "0");
}

TEST(ValueLabelFormat, ATextWithAPointGivesTheLocalesSeparator) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(FormatOf(FromOne<QString>(1, 1, {QStringLiteral("1.5")}), 1, 1), "0,00");
}

TEST(ValueLabelFormat, IndicesStartAt1WhateverTheLowerBounds) {
    const Variant zeroBased = Array<double>::Table(2, 2, {0.5, 0.5, 0.5, 4});
    EXPECT_RAISES(9, ComputeValueLabelFormat(zeroBased, 2, 2)); // (1, 1) is a 4, (1, 2) is missing
    EXPECT_EQ(ValueLabelFormat(), "0");
    // Decimals that are met first end the search before the missing element.
    EXPECT_EQ(FormatOf(Array<double>::Table(2, 2, {1, 1, 1, 4.5}), 2, 2), "0.00");
    EXPECT_RAISES(9, ComputeValueLabelFormat(Array<std::int32_t>::Table(1, 1, {1}), 1, 1));
    EXPECT_RAISES(9, ComputeValueLabelFormat(FromOne<std::int32_t>(2, 2, {1, 2, 3, 4}), 3, 2));
    EXPECT_RAISES(9, ComputeValueLabelFormat(FromOne<std::int32_t>(2, 2, {1, 2, 3, 4}), 2, 3));
}

TEST(ValueLabelFormat, RaisesForWhatIsNoTable) {
    EXPECT_RAISES(13, ComputeValueLabelFormat(Variant(1.5), 1, 1));
    EXPECT_RAISES(9, ComputeValueLabelFormat(Variant(Array<double>({1.0, 2.0}, 1)), 1, 1));
    EXPECT_RAISES(94, ComputeValueLabelFormat(FromOne<Variant>(1, 1, {Variant(Null{})}), 1, 1));
}
