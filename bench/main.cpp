#include "Clock.h"
#include "StoreWork.h"
#include "Works.h"

#include "automation/FillChartData.h"
#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "desktop/Application.h"
#include "qmchart6/Variant.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <functional>
#include <string>

// The fixed works on our side: bench_charts WORK [ROWS], bench_charts S [SERVER]. Pictures are 1000 x 600,
// antialiased.

namespace {

using namespace QmChart6;

constexpr int Width = 1000;
constexpr int Height = 600;
constexpr double PixelsPerPoint = 4.0 / 3.0;

QImage Render(const Chart& chart, const QtTextMeasurer& measurer, int width = Width, int height = Height) {
    QImage image(width, height, QImage::Format_RGB32);
    const Scene scene =
        LayOut(chart, {{width / PixelsPerPoint, height / PixelsPerPoint}, PixelsPerPoint}, measurer).scene;
    QPainter painter(&image);
    PaintScene(scene, painter, PixelsPerPoint, PaintTarget::Raster);
    return image;
}

DataPoint& AllPoints(Chart& chart, int series) {
    return chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All);
}

void Recolour(Chart& chart, int by) {
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series)
        AllPoints(chart, series).Brush.FillColor = Bench::ColourOf(series - 1 + by);
}

/// How long the layout alone takes.
double LayoutMilliseconds(const Chart& chart, const QtTextMeasurer& measurer, int runs) {
    return Bench::Median(runs, [&] {
        LayOut(chart, {{Width / PixelsPerPoint, Height / PixelsPerPoint}, PixelsPerPoint}, measurer).scene;
    });
}

void SmallWork(const std::function<Chart()>& make) {
    const QtTextMeasurer measurer;
    Bench::Report("default", "first_ms", Bench::Once([&] { Render(make(), measurer); }));
    for (int i = 0; i < 20; ++i) Render(make(), measurer);
    Bench::Report("default", "chart_ms", Bench::Median(200, [&] { Render(make(), measurer); }));
    Bench::Report("default", "layout_ms", LayoutMilliseconds(make(), measurer, 200));
}

void BigWork(const char* variant, Chart& chart, const std::function<void()>& load,
             const std::function<void()>& widen) {
    const QtTextMeasurer measurer;
    {
        Render(Bench::SmallChart(Bench::Small(3, 2), ChartType::Line2D), measurer);
    }
    const double before = Bench::ResidentMebibytes();
    Bench::Report(variant, "load_ms", Bench::Once(load));
    Bench::Report(variant, "first_ms", Bench::Once([&] { Render(chart, measurer); }));
    Bench::Report(variant, "rss_mb", Bench::ResidentMebibytes() - before);
    int turn = 0;
    Bench::Report(variant, "redraw_ms", Bench::Median(15, [&] {
                      Recolour(chart, ++turn);
                      Render(chart, measurer);
                  }));
    Bench::Report(variant, "resize_ms",
                  Bench::Median(15, [&] { Render(chart, measurer, 1200 + ++turn, 700); }));
    Bench::Report(variant, "layout_ms", LayoutMilliseconds(chart, measurer, 15));
    widen();
    Bench::Report(variant, "wide_ms", Bench::Median(15, [&] { Render(chart, measurer); }));
}

void LineWork(int rows, int series) {
    const auto columns = Bench::Lines(rows, series);
    Chart chart;
    BigWork(
        "default", chart,
        [&] {
            chart = Bench::ChartOf(columns, ChartType::Line2D);
            for (int number = 1; number <= series; ++number)
                chart.Plot.SeriesCollection(number).LinePen = {
                    .Style = PenStyle::Solid, .Width = 0.75, .VtColor = {}};
            chart.Title.Text = QStringLiteral("Large line chart");
            chart.Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("Row");
            chart.Plot.Axis(AxisId::Y).AxisTitle.Text = QStringLiteral("Value");
            chart.ShowLegend = false;
            chart.LegendFollowsData = false;
        },
        [&] {
            for (int number = 1; number <= series; ++number)
                chart.Plot.SeriesCollection(number).LinePen.Width = 1.5;
        });
    // The same table as a host's array, whose cells cross as text.
    std::vector<double> cells;
    for (int row = 0; row < rows; ++row)
        for (const auto& column : columns) cells.push_back(column[static_cast<std::size_t>(row)]);
    const Variant data(Array<double>::Table(rows, series, std::move(cells), 1, 1));
    const Array<QString> rowLabels(std::vector<QString>(static_cast<std::size_t>(rows)), 1);
    const Array<QString> columnLabels(std::vector<QString>(static_cast<std::size_t>(series)), 1);
    Chart filled;
    const double time =
        Bench::Once([&] { FillChartData(filled, rows, series, data, rowLabels, columnLabels); });
    Bench::Report("default", "fill_ns_a_cell", time * 1e6 / (static_cast<double>(rows) * series));
}

/// A grid holds 32,767 rows, so that a million points are 31 pairs of columns of one colour.
void CloudWork(int points) {
    constexpr int pairs = 31;
    std::vector<double> x;
    std::vector<double> y;
    Bench::Cloud(points, x, y);
    const int rows = points / pairs;
    Chart chart;
    BigWork(
        "default", chart,
        [&] {
            chart.SetGridSize(rows, 2 * pairs);
            for (int pair = 0; pair < pairs; ++pair) {
                std::copy_n(x.begin() + pair * rows, rows,
                            chart.DataGrid.WritableColumn(2 * pair + 1).begin());
                std::copy_n(y.begin() + pair * rows, rows,
                            chart.DataGrid.WritableColumn(2 * pair + 2).begin());
            }
            chart.DataGrid.Summarize();
            chart.SetChartType(ChartType::XY2D);
            for (int number = 1; number <= 2 * pairs; ++number) {
                chart.Plot.SeriesCollection(number).ShowLine = false;
                AllPoints(chart, number).Marker = {MarkerStyle::Square, 2.25};
            }
            chart.ShowLegend = false;
            chart.LegendFollowsData = false;
        },
        [&] {
            for (int number = 1; number <= 2 * pairs; ++number) AllPoints(chart, number).Marker.Size = 4.5;
        });
}

Chart Pie() {
    Chart chart = Bench::SmallChart(Bench::Small(1, 12), ChartType::Pie2D);
    for (int number = 1; number <= 12; ++number) {
        DataPointLabel& label = AllPoints(chart, number).DataPointLabel;
        label.Component = LabelShowsSeriesName;
        label.LocationType = LabelLocation::Outside;
    }
    return chart;
}

} // namespace

int main(int argc, char** argv) {
    const std::string work = argc > 1 ? argv[1] : "";
    if (work == "S") {
        EnsureApplication(); // a viewer needs more of one than a picture
        Bench::StoreWork(QString::fromLocal8Bit(argc > 2 ? argv[2] : ""));
        return 0;
    }
    const QGuiApplication application(argc, argv);
    const int rows = argc > 2 ? std::atoi(argv[2]) : 32767;
    const auto small = Bench::Small(12, 4);
    if (work == "W1")
        SmallWork([&] { return Bench::SmallChart(small, ChartType::Bar2D); });
    else if (work == "W3")
        LineWork(rows, argc > 3 ? std::atoi(argv[3]) : 32);
    else if (work == "W4")
        CloudWork(1000000);
    else if (work == "W5")
        SmallWork([] { return Bench::SmallChart(Bench::Small(20, 8), ChartType::Bar3D); });
    else if (work == "W6")
        SmallWork(Pie);
    else {
        std::fputs("usage: bench_charts W1|W3|W4|W5|W6 [ROWS [SERIES]] | S [SERVER]\n", stderr);
        return 2;
    }
    return 0;
}
