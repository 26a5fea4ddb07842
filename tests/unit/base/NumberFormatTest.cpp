#include "base/NumberFormat.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace QmChart6;

TEST(FormatNumber, WritesFixedDecimals) {
    EXPECT_EQ(FormatNumber(3.14159, "0"), "3");
    EXPECT_EQ(FormatNumber(3.14159, "0.00"), "3.14");
    EXPECT_EQ(FormatNumber(-3.14159, "0.00"), "-3.14");
    EXPECT_EQ(FormatNumber(5, "0.00"), "5.00");
    EXPECT_EQ(FormatNumber(0, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(7, "000"), "007");
    EXPECT_EQ(FormatNumber(1e20, "0"), "100000000000000000000");
    EXPECT_EQ(FormatNumber(1e-20, "0.00"), "0.00");
}

TEST(FormatNumber, RoundsHalvesAwayFromZeroAsTheDecimalTextReads) {
    EXPECT_EQ(FormatNumber(0.125, "0.00"), "0.13");
    EXPECT_EQ(FormatNumber(1.005, "0.00"), "1.01");
    EXPECT_EQ(FormatNumber(-2.5, "0"), "-3");
    EXPECT_EQ(FormatNumber(0.5, "0"), "1");
    EXPECT_EQ(FormatNumber(0.05, "0"), "0");
    EXPECT_EQ(FormatNumber(0.04999, "0.0"), "0.0");
    EXPECT_EQ(FormatNumber(999.995, "0.00"), "1000.00");
    EXPECT_EQ(FormatNumber(0.095, "0.0"), "0.1");
}

TEST(FormatNumber, DropsTheSignOfWhatRoundsToZero) {
    EXPECT_EQ(FormatNumber(-0.001, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(-0.0, "0"), "0");
}

TEST(FormatNumber, GroupsThousands) {
    EXPECT_EQ(FormatNumber(1234567, "#,##0"), "1,234,567");
    EXPECT_EQ(FormatNumber(999, "#,##0"), "999");
    EXPECT_EQ(FormatNumber(-1234.5, "#,##0.00"), "-1,234.50");
    EXPECT_EQ(FormatNumber(0, "#,##0"), "0");
}

TEST(FormatNumber, WritesPercent) {
    EXPECT_EQ(FormatNumber(0.25, "0%"), "25%");
    EXPECT_EQ(FormatNumber(0.1234, "0.0%"), "12.3%");
    EXPECT_EQ(FormatNumber(0.285, "0%"), "29%"); // not 28, although 0.285 * 100 lies below 28.5
    EXPECT_EQ(FormatNumber(0, "0%"), "0%");
    EXPECT_EQ(FormatFactor("0.0%"), 100);
    EXPECT_EQ(FormatFactor("0.0"), 1);
    EXPECT_EQ(FormatFactor("0\"%\""), 1);
}

TEST(FormatNumber, WritesAnExponent) {
    EXPECT_EQ(FormatNumber(12345, "0.00E+00"), "1.23E+04");
    EXPECT_EQ(FormatNumber(0.00012, "0.00E+00"), "1.20E-04");
    EXPECT_EQ(FormatNumber(9.999e99, "0.00E+00"), "1.00E+100");
    EXPECT_EQ(FormatNumber(0, "0.00E+00"), "0.00E+00");
    EXPECT_EQ(FormatNumber(12345, "0.0E-0"), "1.2E4");
}

TEST(FormatNumber, ShowsOptionalPlacesOnlyWhereNeeded) {
    EXPECT_EQ(FormatNumber(2.5, "0.##"), "2.5");
    EXPECT_EQ(FormatNumber(2, "0.##"), "2");
    EXPECT_EQ(FormatNumber(2.345, "0.0#"), "2.35");
    EXPECT_EQ(FormatNumber(2, "0.0#"), "2.0");
    EXPECT_EQ(FormatNumber(0.5, "#.0"), ".5");
}

TEST(FormatNumber, KeepsLiteralsBeforeAndBehind) {
    EXPECT_EQ(FormatNumber(5, "about 0 km"), "about 5 km");
    EXPECT_EQ(FormatNumber(5.5, "\"n. 0 = \"0.0"), "n. 0 = 5.5");
    EXPECT_EQ(FormatNumber(-5, "$0"), "-$5");
    EXPECT_EQ(FormatNumber(5, "no places"), "no places");
    EXPECT_EQ(FormatNumber(5, "\"0\""), "0");
    EXPECT_EQ(FormatNumber(5, "0 \"open"), "5 open");
}

TEST(FormatNumber, WritesTheShortestTextWithoutAFormat) {
    EXPECT_EQ(FormatNumber(0.1 + 0.2, ""), "0.3");
    EXPECT_EQ(FormatNumber(1200, ""), "1200");
}

TEST(FormatNumber, WritesNothingForNotANumber) {
    EXPECT_EQ(FormatNumber(std::nan(""), "0.00"), "");
    EXPECT_EQ(FormatNumber(std::nan(""), ""), "");
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::infinity(), "0"), "Infinity");
}

TEST(FormatNumber, TakesBothSeparatorsUnderACommaLocale) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(FormatNumber(3.14159, "0.00"), "3,14");
    EXPECT_EQ(FormatNumber(3.14159, "0,00"), "3,14");
    EXPECT_EQ(FormatNumber(0.1234, "0,0%"), "12,3%");
    EXPECT_EQ(FormatDecimals("0,00"), 2);
    EXPECT_EQ(FormatNumber(12345.5, "0,00E+00"), "1,23E+04");
}

TEST(FormatNumber, GroupsUnderACommaLocaleWithThatLocalesOwnSeparator) {
    const ScopedLocale scope(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(FormatNumber(1234567, "#,##0"), "1.234.567");
    EXPECT_EQ(FormatNumber(1234567.5, "#,##0.00"), "1.234.567,50");
    EXPECT_EQ(FormatNumber(1234567.5, "#,##0,00"), "1.234.567,50");
}

TEST(FormatDecimals, CountsWhatIsShown) {
    EXPECT_EQ(FormatDecimals(""), -1);
    EXPECT_EQ(FormatDecimals("0"), 0);
    EXPECT_EQ(FormatDecimals("0.00"), 2);
    EXPECT_EQ(FormatDecimals("0.0%"), 1);
    EXPECT_EQ(FormatDecimals("#,##0"), 0);
    EXPECT_EQ(FormatDecimals("0.00E+00"), 2);
}
