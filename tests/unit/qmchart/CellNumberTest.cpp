#include "qmchart/CellNumber.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

constexpr NumberStyle Point{'.', ','};
constexpr NumberStyle Comma{',', '.'};

NumberStyle StyleOf(std::initializer_list<const char*> cells) {
    NumberStyleFinder finder;
    for (const char* cell : cells) finder.Look(cell);
    return finder.Style();
}

} // namespace

TEST(CellNumber, ReadsPlainNumbers) {
    EXPECT_EQ(NumberOfCell("12", Point), 12);
    EXPECT_EQ(NumberOfCell(" -1.5 ", Point), -1.5);
    EXPECT_EQ(NumberOfCell("+.5", Point), 0.5);
    EXPECT_EQ(NumberOfCell("5.", Point), 5);
    EXPECT_EQ(NumberOfCell("1.5e-3", Point), 0.0015);
    EXPECT_EQ(NumberOfCell("2E+2", Point), 200);
    EXPECT_EQ(NumberOfCell("007", Point), 7);
    EXPECT_EQ(NumberOfCell("\u22123", Point), -3);
    EXPECT_EQ(NumberOfCell("3,14", Comma), 3.14);
    EXPECT_EQ(NumberOfCell("5e-324", Point), 5e-324);
}

TEST(CellNumber, ReadsThousandsInGroupsOfThree) {
    EXPECT_EQ(NumberOfCell("1,234,567.5", Point), 1234567.5);
    EXPECT_EQ(NumberOfCell("1.234,5", Comma), 1234.5);
    EXPECT_EQ(NumberOfCell("12 345", Point), 12345);
    EXPECT_EQ(NumberOfCell("12'345.5", Point), 12345.5);
    EXPECT_EQ(NumberOfCell("1\u00A0234,5", Comma), 1234.5);
    EXPECT_EQ(NumberOfCell("1\u202F234,5", Comma), 1234.5);
}

TEST(CellNumber, RefusesWhatIsNoNumber) {
    for (const char* cell : {"",        ".",    "-",         "+",        "e5",    "1e",      "1e+", "1e5.5",
                             "1.2.3",   "1,23", "12,34,567", "1234,567", "0,500", ",5",      "1,",  "1,,234",
                             "1.234,5", "1 23", "1'234,567", "abc",      "5%",    "0x10",    "inf", "nan",
                             "--1",     "1-",   "1e999",     "1e-999",   "1.5x",  "\xD9\xA1"})
        EXPECT_FALSE(NumberOfCell(cell, Point)) << cell;
    EXPECT_FALSE(NumberOfCell("1,234", {'.', 0}));
}

TEST(CellNumber, KnowsMissingValuesInAnyCase) {
    for (const char* cell : {"", "  ", "NA", "na", "N/A", "n/a", "NaN", "NAN", "null", "NULL", "-"})
        EXPECT_TRUE(IsMissing(cell)) << cell;
    for (const char* cell : {"0", "none", "--", "N", "nil"}) EXPECT_FALSE(IsMissing(cell)) << cell;
}

TEST(NumberStyle, ADecimalCommaNeedsACellThatShowsIt) {
    EXPECT_EQ(StyleOf({"1", "3,14"}).decimal, ',');
    EXPECT_EQ(StyleOf({"1.234,5"}).decimal, ',');
    EXPECT_EQ(StyleOf({"1.234.567"}).decimal, ',');
    EXPECT_EQ(StyleOf({"1,234"}).decimal, ',');
    EXPECT_EQ(StyleOf({"1,234,567"}).decimal, '.');
    EXPECT_EQ(StyleOf({"1.234"}).decimal, '.');
    EXPECT_EQ(StyleOf({"1", "x"}).decimal, '.');
}

TEST(NumberStyle, GroupsThousandsOnlyWhereTheDecimalsAreKnown) {
    EXPECT_EQ(NumberOfCell("1.234", StyleOf({"1.234", "3,14"})), 1234);
    EXPECT_EQ(NumberOfCell("1.234", StyleOf({"1.234"})), 1.234);
    EXPECT_EQ(NumberOfCell("1,234", StyleOf({"1,234"})), 1.234);
    EXPECT_EQ(NumberOfCell("1,234", StyleOf({"1,234", "2.5"})), 1234);
    EXPECT_EQ(NumberOfCell("1,234", StyleOf({"1,234", "1.234"})), std::nullopt);
    EXPECT_EQ(NumberOfCell("3,14", StyleOf({"3,14", "2.5"})), std::nullopt);
}
