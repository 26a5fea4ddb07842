#include "Works.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace Bench {

namespace {

using namespace QmChart6;

/// The linear congruential generator of "Numerical Recipes", from 0 to below 1.
class Random {
public:
    explicit Random(std::uint32_t seed) : state_(seed) {}
    double Next() {
        state_ = state_ * 1664525U + 1013904223U;
        return static_cast<double>(state_ >> 8) / 16777216.0;
    }

private:
    std::uint32_t state_;
};

const std::array<const char*, 12> Months{"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};
const std::array<const char*, 8> Regions{"North", "South", "East", "West", "Alpha", "Beta", "Gamma", "Delta"};

} // namespace

std::vector<std::vector<double>> Lines(int rows, int series) {
    std::vector<std::vector<double>> columns;
    for (int column = 0; column < series; ++column) {
        Random random(12345U + static_cast<std::uint32_t>(column));
        std::vector<double> values;
        for (int row = 0; row < rows; ++row)
            values.push_back(
                column + 1.5 * std::sin(2 * std::numbers::pi * 3.0 * (column % 7 + 1) * row / rows + column) +
                0.8 * (random.Next() - 0.5));
        columns.push_back(std::move(values));
    }
    return columns;
}

void Cloud(int points, std::vector<double>& x, std::vector<double>& y) {
    Random random(777);
    for (int i = 0; i < points; ++i) {
        x.push_back(100.0 * random.Next());
        const double first = random.Next();
        const double second = random.Next();
        y.push_back(10.0 * std::sin(x.back() / 8.0) + 12.0 * (first + second + random.Next() - 1.5));
    }
}

std::vector<std::vector<double>> Small(int rows, int series) {
    Random random(99);
    std::vector<std::vector<double>> columns(static_cast<std::size_t>(series));
    for (int column = 0; column < series; ++column)
        for (int row = 0; row < rows; ++row)
            columns[static_cast<std::size_t>(column)].push_back(55 + 25 * std::sin(0.6 * row + column) +
                                                                40 * (random.Next() - 0.5));
    return columns;
}

Chart ChartOf(const std::vector<std::vector<double>>& columns, ChartType type) {
    Chart chart;
    chart.SetGridSize(static_cast<int>(columns.front().size()), static_cast<int>(columns.size()));
    for (std::size_t column = 0; column < columns.size(); ++column)
        std::copy(columns[column].begin(), columns[column].end(),
                  chart.DataGrid.WritableColumn(static_cast<int>(column) + 1).begin());
    chart.DataGrid.Summarize();
    chart.SetChartType(type);
    return chart;
}

Chart SmallChart(const std::vector<std::vector<double>>& columns, ChartType type) {
    Chart chart = ChartOf(columns, type);
    for (int row = 1; row <= chart.RowCount(); ++row)
        chart.DataGrid.SetRowLabel(row, QString::fromLatin1(Months[static_cast<std::size_t>(row - 1) % 12]));
    for (int column = 1; column <= chart.ColumnCount(); ++column)
        chart.DataGrid.SetColumnLabel(column,
                                      QString::fromLatin1(Regions[static_cast<std::size_t>(column - 1) % 8]));
    chart.Title.Text = QStringLiteral("Sales by month and region");
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("Month");
    chart.Plot.Axis(AxisId::Y).AxisTitle.Text = QStringLiteral("Units sold");
    return chart;
}

Colour ColourOf(int i) {
    static constexpr std::array<Colour, 8> colours{{{0x1f, 0x77, 0xb4},
                                                    {0xff, 0x7f, 0x0e},
                                                    {0x2c, 0xa0, 0x2c},
                                                    {0xd6, 0x27, 0x28},
                                                    {0x94, 0x67, 0xbd},
                                                    {0x8c, 0x56, 0x4b},
                                                    {0xe3, 0x77, 0xc2},
                                                    {0x17, 0xbe, 0xcf}}};
    return colours[static_cast<std::size_t>(i) % 8];
}

} // namespace Bench
