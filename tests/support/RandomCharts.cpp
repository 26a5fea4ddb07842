#include "support/RandomCharts.h"

#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/model/Palette.h"
#include "support/SampleCharts.h"

#include <array>
#include <cmath>
#include <random>

namespace QmChart6::Samples {

namespace {

class RandomMaker {
public:
    explicit RandomMaker(unsigned seed) : random_(seed) {}

    RandomCase Make() {
        RandomCase made;
        made.pixels = {std::round(std::exp(Real(std::log(120), std::log(3000)))),
                       std::round(std::exp(Real(std::log(90), std::log(2000))))};
        magnitude_ = std::pow(10.0, Between(0, 9) == 0 ? Between(-300, 308) : Between(-4, 9));
        decimals_ = Between(0, 3);
        negatives_ = Between(0, 3);
        const int rows = Between(0, 5) == 0 ? Between(30, 400) : Between(1, 14);
        Chart& chart = made.chart;
        chart = ChartOf(rows, Between(0, 6) == 0 ? Between(8, 30) : Between(1, 6),
                        [this](int, int) { return Cell(); });
        Name(chart);
        Dress(chart);
        return made;
    }

private:
    int Between(int least, int greatest) { return std::uniform_int_distribution(least, greatest)(random_); }
    double Real(double least, double greatest) {
        return std::uniform_real_distribution(least, greatest)(random_);
    }
    bool OneIn(int times) { return Between(1, times) == 1; }
    template<class T, std::size_t Count>
    T OneOf(const std::array<T, Count>& values) {
        return values[static_cast<std::size_t>(Between(0, static_cast<int>(Count) - 1))];
    }

    double Cell() {
        if (OneIn(12)) return Missing();
        if (OneIn(15)) return 0;
        const double factor = std::pow(10.0, decimals_);
        const double part = std::round(Real(0, 100) * factor) / factor;
        const double value = part / 100 * magnitude_ * (OneIn(20) ? 1e-4 : 1);
        return negatives_ == 0 && OneIn(2) ? -value : value;
    }

    QString Text(int most) {
        static const std::array words{QStringLiteral("Net"),         QStringLiteral("income"),
                                      QStringLiteral("Agriculture"), QStringLiteral("2016"),
                                      QStringLiteral("São Paulo"),   QStringLiteral("東京都"),
                                      QStringLiteral("of"),          QStringLiteral("Donaudampfschifffahrt"),
                                      QStringLiteral("\nline"),      QStringLiteral("§ 45.3 %")};
        QStringList text;
        for (int i = Between(1, most); i > 0; --i) text += OneOf(words);
        return text.join(QLatin1Char(' '));
    }

    /// Names of categories: words, numbers, dates, or none.
    QString CategoryName(int way, int number) {
        switch (way) {
        case 0:
            return Text(3);
        case 1:
            return QString::number(1950 + number);
        case 2:
            return QStringLiteral("%1-%2")
                .arg(2000 + number / 12)
                .arg(number % 12 + 1, 2, 10, QLatin1Char('0'));
        case 3:
            return QStringLiteral("W%1").arg(number);
        default:
            return {};
        }
    }

    void Name(Chart& chart) {
        const int way = Between(0, 4);
        for (int row = 1; row <= chart.RowCount(); ++row)
            chart.DataGrid.SetRowLabel(row, CategoryName(way, row));
        for (int column = 1; column <= chart.ColumnCount(); ++column)
            chart.DataGrid.SetColumnLabel(column, OneIn(8) ? QString() : Text(3));
        if (!OneIn(3)) chart.Title.Text = Text(8);
        if (OneIn(3)) chart.Footnote.Text = Text(10);
        for (int axis = 0; axis < 4; ++axis) {
            if (!OneIn(3)) chart.Plot.Axis(axis).AxisTitle.Text = Text(4);
            if (axis > 0 && OneIn(2))
                chart.Plot.Axis(axis).AxisTitle.TextLayout.Orientation = Orientation::Up;
        }
    }

    void Dress(Chart& chart) {
        const ChartType type =
            ChartKinds[static_cast<std::size_t>(Between(0, static_cast<int>(ChartKinds.size()) - 1))].type;
        chart.SetChartType(type);
        if (OneIn(5)) chart.SetDataSeriesInRow(true);
        if (KindOf(type).stacks) chart.Stacking = OneIn(3);
        if (OneIn(5)) chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Percent;
        chart.Plot.Projection = static_cast<Projection>(Between(0, 2));
        chart.Plot.View3d = {Real(0, 360), Real(-90, 90)};
        chart.Plot.DirectNames = OneIn(3);
        chart.ShowLegend = OneIn(2);
        chart.LegendFollowsData = false;
        chart.Legend.Location.LocationType = static_cast<LocationType>(Between(0, 7));
        chart.Title.Location.LocationType = static_cast<LocationType>(Between(0, 7));
        static const std::array grounds{Colour{255, 255, 255}, Colour{250, 246, 235}, Colour{30, 34, 39},
                                        Colour{0, 0, 0}};
        if (OneIn(2)) chart.Backdrop.Fill.Brush.FillColor = OneOf(grounds);
        if (OneIn(4)) chart.Backdrop.Frame.Style = FrameStyle::Single;
        const double size = OneIn(3) ? Between(6, 16) : 9;
        chart.Legend.VtFont.Size = size;
        for (int axis = 0; axis < 4; ++axis) {
            chart.Plot.Axis(axis).AxisGrid.MajorPen.Style = static_cast<PenStyle>(Between(0, 3));
            chart.Plot.Axis(axis).Labels.Item(1).VtFont.Size = size;
            if (OneIn(8)) chart.Plot.Axis(axis).AxisScale.Hide = true;
        }
        const int location = Between(0, 8);
        const int components = Between(1, 7);
        for (Series& series : chart.Plot.SeriesCollection) DressSeries(series, location, components, size);
    }

    void DressSeries(Series& series, int location, int components, double size) {
        series.ShowLine = !OneIn(4);
        series.SeriesMarker.Show = OneIn(2);
        series.SecondaryAxis = OneIn(8);
        if (OneIn(8)) series.StatLine.Flag = StatMean | StatRegression;
        DataPoint& all = series.DataPoints.Item(DataPoints::All);
        if (OneIn(5)) {
            all.Brush.Style = OneIn(2) ? BrushStyle::Pattern : BrushStyle::Hatch;
            all.Brush.Index = Between(0, HatchCount - 1);
        }
        if (OneIn(3))
            all.Brush.FillColor = {static_cast<std::uint8_t>(Between(0, 255)),
                                   static_cast<std::uint8_t>(Between(0, 255)),
                                   static_cast<std::uint8_t>(Between(0, 255))};
        DataPointLabel& label = all.DataPointLabel;
        label.LocationType = static_cast<LabelLocation>(location);
        label.Component = components;
        label.VtFont.Size = size;
        label.LineStyle = static_cast<LabelLineStyle>(Between(0, 2));
        if (OneIn(3)) label.PercentFormat = QStringLiteral("0.0 %");
    }

    std::mt19937 random_;
    double magnitude_ = 1;
    int decimals_ = 0;
    int negatives_ = 0;
};

} // namespace

RandomCase RandomCaseOf(unsigned seed) {
    return RandomMaker(seed).Make();
}

} // namespace QmChart6::Samples
