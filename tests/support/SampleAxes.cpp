#include "support/SampleKit.h"

#include <QDate>
#include <QLocale>
#include <QTime>

#include <cmath>

namespace QmChart6::Samples {

namespace {

/// As many rows as there are texts, two series.
Chart Over(int rows, ChartType type, const std::function<QString(int)>& text) {
    Chart chart = ChartOf(rows, 2, Wave);
    for (int row = 1; row <= rows; ++row) chart.DataGrid.SetRowLabel(row, text(row - 1));
    chart.SetChartType(type);
    return chart;
}

Chart Years(int first, int count, ChartType type) {
    return Over(count, type, [first](int i) { return QString::number(first + i); });
}

Chart Quarters() {
    return Over(26, ChartType::Bar2D,
                [](int i) { return QStringLiteral("Q%1 %2").arg(i % 4 + 1).arg(2018 + i / 4); });
}

/// Months as a language writes them.
Chart MonthsIn(QLocale::Language language, int count, const QString& format) {
    return Over(count, ChartType::Line2D, [language, format](int i) {
        return QLocale(language).toString(QDate(2021, 3, 1).addMonths(i), format);
    });
}

Chart DaysIn(QLocale::Language language, int count, const QString& format) {
    return Over(count, ChartType::Area2D, [language, format](int i) {
        return QLocale(language).toString(QDate(2016, 8, 21).addDays(i), format);
    });
}

Chart Hours() {
    return Over(72, ChartType::Line2D, [](int i) {
        return QDate(2024, 2, 28).addDays(i / 24).toString(Qt::ISODate) +
               QTime(i % 24, 0).toString(QStringLiteral(" HH:mm"));
    });
}

Chart Weeks() {
    return Over(60, ChartType::Bar2D, [](int i) { return QStringLiteral("W%1").arg(i + 1); });
}

Chart Broken() {
    return WithNames(ChartOf(4, 2, Wave), {QStringLiteral("North\nand East"), QStringLiteral("South"),
                                           QStringLiteral("West\nof the\nriver"), QStringLiteral("Abroad")});
}

Chart Departments(ChartType type) {
    return Over(14, type,
                [](int i) { return QStringLiteral("Department of %1 Affairs").arg(Months[i % 12]); });
}

/// Values about `size`.
Chart Large(double size, ChartType type = ChartType::Bar2D) {
    Chart chart = ChartOf(6, 2, [size](int row, int column) { return size * Wave(row, column) / 10; });
    chart.SetChartType(type);
    return chart;
}

Chart Counts() {
    return ChartOf(6, 2, [](int row, int column) { return double((row * column) % 4); });
}

Chart TinyAndHuge(ChartType type) {
    Chart chart = ChartOf(6, 2, [](int row, int column) { return std::pow(10.0, 3 * row - 6 * column); });
    chart.SetChartType(type);
    return chart;
}

Chart Between(double from, double to, int steps) {
    Chart chart = OfKind(ChartType::Line2D);
    chart.Plot.Axis(AxisId::Y).ValueScale = {false, from, to, steps};
    return chart;
}

Chart Near(double middle) {
    Chart chart = ChartOf(8, 2, [middle](int row, int column) { return middle + Wave(row, column) / 100; });
    chart.SetChartType(ChartType::Line2D);
    return chart;
}

Chart Formatted(const QString& format) {
    Chart chart = Large(1000);
    chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format = format;
    return chart;
}

/// The last series on an axis of its own, a thousandth of the others.
Chart OnTwoAxes(ChartType type) {
    Chart chart = ChartOf(8, 3, [](int row, int column) {
        return column == 3 ? Wave(row, 3) / 1000 : 1000 * Wave(row, column);
    });
    chart.SetChartType(type);
    Entitle(chart, QStringLiteral("Turnover and Margin"), {}, QStringLiteral("Turnover"));
    chart.Plot.SeriesCollection(3).SecondaryAxis = true;
    Axis& second = chart.Plot.Axis(AxisId::SecondaryY);
    second.AxisScale.Hide = false;
    second.AxisTitle.Text = QStringLiteral("Margin");
    second.Labels.Item(1).Format = QStringLiteral("0.0%");
    return chart;
}

Chart OnTwoLogarithms() {
    Chart chart = OnTwoAxes(ChartType::Line2D);
    for (const AxisId id : {AxisId::Y, AxisId::SecondaryY})
        chart.Plot.Axis(id).AxisScale.Type = ScaleType::Logarithmic;
    return chart;
}

Chart PiledLogarithms() {
    Chart chart = Logarithmic(ChartType::Bar2D);
    chart.Stacking = true;
    return chart;
}

} // namespace

std::vector<Sample> Axes() {
    using T = ChartType;
    return {
        {"axis-years", 400, 240, [] { return Years(1987, 38, T::Bar2D); }},
        {"axis-years-area", 400, 240, [] { return Years(1850, 170, T::Area2D); }},
        {"axis-quarters", 400, 240, Quarters},
        {"axis-months", 400, 240, [] { return MonthsIn(QLocale::English, 40, QStringLiteral("MMM yyyy")); }},
        {"axis-months-iso", 400, 240,
         [] { return MonthsIn(QLocale::English, 18, QStringLiteral("yyyy-MM")); }},
        {"axis-months-portuguese", 400, 240,
         [] { return MonthsIn(QLocale::Portuguese, 16, QStringLiteral("MMMM 'de' yyyy")); }},
        {"axis-months-italian", 400, 240,
         [] { return MonthsIn(QLocale::Italian, 30, QStringLiteral("MMM yyyy")); }},
        {"axis-days", 400, 240, [] { return DaysIn(QLocale::English, 100, QStringLiteral("yyyy-MM-dd")); }},
        {"axis-days-spanish", 400, 240,
         [] { return DaysIn(QLocale::Spanish, 20, QStringLiteral("d 'de' MMMM 'de' yyyy")); }},
        {"axis-days-dotted", 400, 240,
         [] { return DaysIn(QLocale::German, 400, QStringLiteral("dd.MM.yyyy")); }},
        {"axis-hours", 400, 240, Hours},
        {"axis-weeks", 400, 240, Weeks},
        {"axis-line-breaks", 320, 220, Broken},
        {"axis-long-names", 480, 300, [] { return Departments(T::Bar2D); }},
        {"axis-long-names-line", 320, 240, [] { return Departments(T::Line2D); }},
        {"axis-thousands", 320, 220, [] { return Large(1e3); }},
        {"axis-millions", 320, 220, [] { return Large(1e7); }},
        {"axis-billions", 320, 220, [] { return Large(1e10, T::Line2D); }},
        {"axis-powers", 320, 220, [] { return Large(1e20, T::Area2D); }},
        {"axis-minute-values", 320, 220, [] { return Large(1e-9, T::Line2D); }},
        {"axis-millions-below-zero", 320, 220, [] { return Large(-1e7); }},
        {"axis-counts", 320, 220, Counts},
        {"axis-tiny-and-huge", 320, 220, [] { return TinyAndHuge(T::Bar2D); }},
        {"axis-near-a-million", 320, 220, [] { return Near(1e6); }},
        {"axis-between", 320, 220, [] { return Between(30, 80, 5); }},
        {"axis-format", 320, 220, [] { return Formatted(QStringLiteral("#,##0.00")); }},
        {"axis-two-bars", 400, 240, [] { return OnTwoAxes(T::Bar2D); }},
        {"axis-two-lines", 400, 240, [] { return OnTwoAxes(T::Line2D); }},
        {"axis-two-combination", 400, 240, [] { return OnTwoAxes(T::Combination2D); }},
        {"axis-two-areas", 400, 240, [] { return OnTwoAxes(T::Area2D); }},
        {"axis-two-logarithmic", 400, 240, OnTwoLogarithms},
        {"area-logarithmic", 320, 240, [] { return Logarithmic(T::Area2D); }},
        {"step-logarithmic", 320, 240, [] { return Logarithmic(T::Step2D); }},
        {"combination-logarithmic", 320, 240, [] { return Logarithmic(T::Combination2D); }},
        {"bar-logarithmic-stacked", 320, 240, PiledLogarithms},
        {"line-3d-logarithmic", 320, 240, [] { return Logarithmic(T::Line3D); }},
        {"area-3d-logarithmic", 320, 240, [] { return Logarithmic(T::Area3D); }},
        {"step-3d-logarithmic", 320, 240, [] { return Logarithmic(T::Step3D); }},
        {"combination-3d-logarithmic", 320, 240, [] { return Logarithmic(T::Combination3D); }},
    };
}

} // namespace QmChart6::Samples
