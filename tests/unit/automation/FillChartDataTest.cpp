#include "automation/FillChartData.h"

#include "chartcontrol/model/Chart.h"
#include "support/Raises.h"
#include "support/Samples.h"
#include "support/ScopedLocale.h"

#include <cmath>
#include <limits>

using namespace QmChart6;

namespace {

template<class T>
Variant Row(std::vector<T> elements) {
    const auto columns = static_cast<int>(elements.size());
    return Array<T>::Table(1, columns, std::move(elements), 1, 1);
}

Chart Filled(int rows, int columns, const Variant& data) {
    Chart chart;
    FillChartData(chart, rows, columns, data, Names(QStringLiteral("row"), rows),
                  Names(QStringLiteral("column"), columns));
    return chart;
}

} // namespace

TEST(FillChartData, LoadsLabelsAndCells) {
    const Chart chart = Filled(3, 2, Numbers(3, 2));
    EXPECT_EQ(chart.RowCount(), 3);
    EXPECT_EQ(chart.ColumnCount(), 2);
    EXPECT_EQ(chart.DataGrid.RowLabel(3), "row 3");
    EXPECT_EQ(chart.DataGrid.ColumnLabel(2), "column 2");
    for (int row = 1; row <= 3; ++row)
        for (int column = 1; column <= 2; ++column)
            EXPECT_EQ(chart.DataGrid.Value(row, column), 10 * row + column);
}

TEST(FillChartData, CountsFromEachArraysOwnLowerBound) {
    Chart chart;
    FillChartData(chart, 3, 2, Numbers(3, 2, 0), Names(QStringLiteral("row"), 3, -5),
                  Names(QStringLiteral("column"), 2, 7));
    EXPECT_EQ(chart, Filled(3, 2, Numbers(3, 2, 1)));
}

TEST(FillChartData, TakesTheFirstRowsAndColumnsOfALargerTable) {
    const Chart chart = Filled(2, 1, Numbers(5, 4));
    EXPECT_EQ(chart.DataGrid.Value(2, 1), 21);
    EXPECT_EQ(chart.RowCount(), 2);
    EXPECT_EQ(chart.ColumnCount(), 1);
}

TEST(FillChartData, SetsFrameAndFillAndKeepsTheRestOfTheLook) {
    Chart chart;
    chart.Backdrop.Fill.Style = FillStyle::None;
    chart.Title.VtFont.Size = 40;
    FillChartData(chart, 1, 1, Numbers(1, 1), Names(QStringLiteral("r"), 1), Names(QStringLiteral("c"), 1));
    EXPECT_EQ(chart.Backdrop.Frame.Style, FrameStyle::ThickOuter);
    EXPECT_EQ(chart.Backdrop.Fill.Style, FillStyle::Brush);
    EXPECT_EQ(chart.Title.VtFont.Size, 40);
}

TEST(FillChartData, NoRowsOrColumnsGiveAnEmptyChart) {
    EXPECT_EQ(Filled(0, 0, Numbers(1, 1)).RowCount(), 0);
    EXPECT_EQ(Filled(0, 2, Numbers(1, 2)).ColumnCount(), 2);
    EXPECT_EQ(Filled(2, 0, Numbers(2, 1)).DataGrid.RowLabel(2), "row 2");
}

TEST(FillChartData, NegativeCountsRaise380) {
    EXPECT_RAISES(380, Filled(-1, 2, Numbers(1, 2)));
    EXPECT_RAISES(380, Filled(2, -1, Numbers(2, 1)));
}

TEST(FillChartData, CellsCrossAsText) {
    EXPECT_EQ(Filled(1, 1, Row<double>({0.1 + 0.2})).DataGrid.Value(1, 1), 0.3);
    EXPECT_EQ(Filled(1, 1, Row<float>({0.1F})).DataGrid.Value(1, 1), 0.1);
    EXPECT_EQ(Filled(1, 1, Row<std::int16_t>({-7})).DataGrid.Value(1, 1), -7);
    EXPECT_EQ(Filled(1, 1, Row<std::int32_t>({70000})).DataGrid.Value(1, 1), 70000);
    EXPECT_EQ(Filled(1, 1, Row<QString>({QStringLiteral(" 2.5 ")})).DataGrid.Value(1, 1), 2.5);
    const Chart mixed = Filled(1, 3, Row<Variant>({Variant(1.5F), Variant(), Variant(QStringLiteral("3"))}));
    EXPECT_EQ(mixed.DataGrid.Value(1, 1), 1.5);
    EXPECT_TRUE(std::isnan(mixed.DataGrid.Value(1, 2)));
    EXPECT_EQ(mixed.DataGrid.Value(1, 3), 3);
}

TEST(FillChartData, TextCellsAreReadInTheLocale) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(Filled(1, 1, Row<QString>({QStringLiteral("2,5")})).DataGrid.Value(1, 1), 2.5);
    EXPECT_RAISES(13, Filled(1, 1, Row<QString>({QStringLiteral("2.5")})));
    EXPECT_EQ(Filled(1, 1, Row<double>({2.5})).DataGrid.Value(1, 1), 2.5);
}

TEST(FillChartData, NotANumberIsAMissingValue) {
    EXPECT_TRUE(std::isnan(Filled(1, 1, Row<double>({std::nan("")})).DataGrid.Value(1, 1)));
    EXPECT_TRUE(std::isnan(Filled(1, 1, Row<float>({std::nanf("")})).DataGrid.Value(1, 1)));
}

TEST(FillChartData, CellsThatAreNoNumbersRaise) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_RAISES(13, Filled(1, 1, Row<double>({infinity})));
    EXPECT_RAISES(13, Filled(1, 1, Row<float>({-std::numeric_limits<float>::infinity()})));
    EXPECT_RAISES(13, Filled(1, 1, Row<QString>({QStringLiteral("n/a")})));
    EXPECT_RAISES(13, Filled(1, 1, Row<Variant>({Variant(QStringLiteral("n/a"))})));
    EXPECT_RAISES(94, Filled(1, 1, Row<Variant>({Variant(Null{})})));
}

TEST(FillChartData, DataThatIsNoTableRaises) {
    EXPECT_RAISES(13, Filled(1, 1, Variant(5)));
    EXPECT_RAISES(13, Filled(1, 1, Variant()));
    EXPECT_RAISES(9, Filled(1, 1, Variant(Array<double>({1.0}, 1))));
    EXPECT_RAISES(9, Filled(1, 1, Variant(Array<double>())));
}

TEST(FillChartData, ArraysTooSmallRaise9AndLeaveWhatWasFilled) {
    Chart chart;
    EXPECT_RAISES(9, (FillChartData(chart, 3, 2, Numbers(2, 2), Names(QStringLiteral("row"), 3),
                                    Names(QStringLiteral("column"), 2)),
                      0));
    EXPECT_EQ(chart.DataGrid.Value(2, 2), 22);
    EXPECT_TRUE(std::isnan(chart.DataGrid.Value(3, 1)));
    EXPECT_EQ(chart.DataGrid.RowLabel(3), "row 3");

    EXPECT_RAISES(9, (FillChartData(chart, 3, 2, Numbers(3, 2), Names(QStringLiteral("row"), 1),
                                    Names(QStringLiteral("column"), 2)),
                      0));
    EXPECT_EQ(chart.DataGrid.Value(1, 2), 12);
    EXPECT_TRUE(std::isnan(chart.DataGrid.Value(2, 1)));

    EXPECT_RAISES(9, (FillChartData(chart, 3, 2, Numbers(3, 2), Names(QStringLiteral("row"), 3),
                                    Names(QStringLiteral("column"), 1)),
                      0));
    EXPECT_EQ(chart.DataGrid.ColumnLabel(1), "column 1");
    EXPECT_TRUE(std::isnan(chart.DataGrid.Value(1, 1)));
}

TEST(FillChartData, ACellThatIsNoNumberLeavesTheCellsBeforeItRowByRow) {
    Chart chart;
    std::vector<QString> cells{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                               QStringLiteral("x"), QStringLiteral("5"), QStringLiteral("6")};
    EXPECT_RAISES(13, (FillChartData(chart, 3, 2, Array<QString>::Table(3, 2, std::move(cells), 1, 1),
                                     Names(QStringLiteral("row"), 3), Names(QStringLiteral("column"), 2)),
                       0));
    EXPECT_EQ(chart.DataGrid.Value(1, 2), 2);
    EXPECT_EQ(chart.DataGrid.Value(2, 1), 3);
    EXPECT_TRUE(std::isnan(chart.DataGrid.Value(2, 2)));
    EXPECT_TRUE(std::isnan(chart.DataGrid.Value(3, 1)));
}
