#include "chartcontrol/layout/text/DataFormat.h"
#include "chartcontrol/layout/text/Spread.h"
#include "support/SampleCharts.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <vector>

namespace QmChart6 {
namespace {

QStringList TextsOf(const std::vector<double>& values) {
    const Chart chart = Samples::ChartOf(static_cast<int>(values.size()), 1, [&values](int row, int) {
        return values[static_cast<std::size_t>(row) - 1];
    });
    const QString format = DataFormatOf(chart);
    QStringList texts;
    for (const double value : values) texts += DataText(value, format);
    return texts;
}

QStringList Words(const char* words) {
    return QString::fromUtf8(words).split(QLatin1Char(' '));
}

TEST(DataFormat, ShowsAsManyDecimalsAsTheDataNeed) {
    const ScopedLocale locale(QLocale::c());
    EXPECT_EQ(TextsOf({5.91, 6.1, 3}), Words("5.91 6.10 3.00"));
    EXPECT_EQ(TextsOf({5, 6}), Words("5 6"));
    EXPECT_EQ(TextsOf({99.95, 100}), Words("99.95 100.00"));
    EXPECT_EQ(TextsOf({3.14159265, 100}), Words("3.1 100.0"));
}

TEST(DataFormat, NeverTellsZeroForAValueThatIsNot) {
    const ScopedLocale locale(QLocale::c());
    EXPECT_EQ(TextsOf({0.11, 800000})[0], QStringLiteral("0.11"));
    EXPECT_EQ(TextsOf({0, 800000})[0], QStringLiteral("0"));
    EXPECT_EQ(TextsOf({-0.002, 5000})[0], QStringLiteral("-0.0020"));
}

TEST(DataFormat, GroupsFromTenThousandOn) {
    const ScopedLocale locale(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(TextsOf({9999}), Words("9999"));
    EXPECT_EQ(TextsOf({12345}), Words("12,345"));
}

TEST(DataFormat, HasTheLocalesOwnMarks) {
    const ScopedLocale locale(QLocale(QLocale::Italian, QLocale::Italy));
    EXPECT_EQ(TextsOf({5.91, 6}), Words("5,91 6,00"));
    EXPECT_EQ(TextsOf({12345}), Words("12.345"));
}

TEST(DataFormat, WritesVastAndTinyValuesByPowers) {
    const ScopedLocale locale(QLocale::c());
    EXPECT_EQ(TextsOf({2.5e15}), Words("2.5E+15"));
    EXPECT_EQ(TextsOf({3e-9}), Words("3E-09"));
}

TEST(Spread, PiecesThatDoNotMeetStayWhereTheyWish) {
    EXPECT_EQ(SpreadOut({{10, 20}, {10, 50}}, 0, 100), (std::vector<double>{20, 50}));
}

TEST(Spread, PiecesThatMeetMoveApartAlike) {
    EXPECT_EQ(SpreadOut({{10, 50}, {10, 50}}, 0, 100), (std::vector<double>{45, 55}));
}

TEST(Spread, NothingLeavesTheColumn) {
    EXPECT_EQ(SpreadOut({{10, -20}, {10, 0}}, 0, 100), (std::vector<double>{5, 15}));
    EXPECT_EQ(SpreadOut({{10, 99}, {10, 100}}, 0, 100), (std::vector<double>{85, 95}));
}

} // namespace
} // namespace QmChart6
