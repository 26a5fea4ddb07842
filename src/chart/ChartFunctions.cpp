#include "chart/ChartFunctions.h"

#include "chart/DefaultLook.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/model/ChartKinds.h"

#include <array>
#include <utility>

namespace QmChart6 {

namespace {

constexpr std::array ValueAxes{AxisId::Y, AxisId::SecondaryY};
constexpr int ComponentBits = 3;

DataPoint& AllPoints(Chart& chart, int series) {
    return chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All);
}

/// What every series' labels show; components that only some show are not among it.
int CommonComponents(const SeriesCollection& series) {
    int components = 0;
    for (int bit = 0; bit < ComponentBits; ++bit)
        if (GetLabelComponentState(series, bit) == 1) components += 1 << bit;
    return components;
}

void StyleAddedSeries(Chart& chart, int number, int last, int components) {
    DataPoint& added = AllPoints(chart, number);
    const Colour colour = SeriesDefaultColor(number);
    added.Brush.FillColor.Set(colour.Red, colour.Green, colour.Blue);
    DataPointLabel& label = added.DataPointLabel;
    label.Component = components;
    // Only from here on is there need of a series that was there before.
    const DataPointLabel& model = AllPoints(chart, last).DataPointLabel;
    label.LineStyle = model.LineStyle;
    label.LocationType = model.LocationType;
    label.PercentFormat = QStringLiteral("0.0%");
    label.ValueFormat = ValueLabelFormat();
    label.TextLayout.Orientation = model.TextLayout.Orientation;
    label.VtFont.Effect = model.VtFont.Effect;
    label.VtFont.Name = model.VtFont.Name;
    label.VtFont.Size = model.VtFont.Size;
    label.VtFont.Style = model.VtFont.Style;
}

} // namespace

void SetGridLineStyle(Chart& chart, int style, int axisId) {
    chart.Plot.Axis(axisId).AxisGrid.MajorPen.Style = ToPenStyle(style);
}

void SetAxisVisible(Chart& chart, Truth visible, int axisId) {
    chart.Plot.Axis(axisId).AxisScale.Hide = ~visible != 0;
}

void SetAxisTitleVisible(Chart& chart, Truth visible, int axisId) {
    chart.Plot.Axis(axisId).AxisTitle.Visible = visible != False;
}

void SetLegendVisible(Chart& chart, Truth visible) {
    chart.ShowLegend = visible != False;
    chart.LegendFollowsData = false;
}

void SetStacked(Chart& chart, Truth stacked) {
    chart.Stacking = stacked != False;
}

void SetFullStacked(Chart& chart, Truth on) {
    for (const AxisId id : ValueAxes) {
        Axis& axis = chart.Plot.Axis(id);
        if (on != False) {
            axis.AxisScale.Type = ScaleType::Percent;
            axis.AxisScale.PercentBasis = PercentBasis::SumOfRow;
            axis.Labels.Item(1).Format = QStringLiteral("0%");
        } else {
            axis.AxisScale.Type = ScaleType::Linear;
            // Emptied first, so that a control which compares formats takes the new one in any case.
            axis.Labels.Item(1).Format.clear();
            axis.Labels.Item(1).Format = ValueLabelFormat();
        }
    }
}

void SetSeriesMarkers(Chart& chart, Truth show) {
    for (Series& series : chart.Plot.SeriesCollection) series.SeriesMarker.Show = show != False;
}

void SetSeriesLines(Chart& chart, Truth show) {
    for (Series& series : chart.Plot.SeriesCollection) series.ShowLine = show != False;
}

void SetSeriesInRows(Chart& chart, Truth inRows) {
    const bool before = chart.Plot.DataSeriesInRow;
    const int countBefore = chart.Plot.SeriesCollection.Count();
    const int components = CommonComponents(chart.Plot.SeriesCollection);
    chart.SetDataSeriesInRow(inRows != False);
    if (chart.Plot.DataSeriesInRow == before) return;
    std::swap(chart.Plot.Axis(AxisId::X).AxisTitle.Text, chart.Plot.Axis(AxisId::Z).AxisTitle.Text);
    for (int number = countBefore + 1; number <= chart.Plot.SeriesCollection.Count(); ++number)
        StyleAddedSeries(chart, number, countBefore, components);
}

void SetPieLabelPosition(Chart& chart, int position) {
    chart.Plot.SubPlotLabelPosition = ToSubPlotLabelPosition(position);
}

void SetBackgroundColor(Chart& chart, std::int32_t colour) {
    chart.Backdrop.Fill.Brush.FillColor.Set(colour & 0xff, (colour >> 8) & 0xff, (colour >> 16) & 0xff);
}

void SetProjection(Chart& chart, int projection) {
    chart.Plot.Projection = ToProjection(projection);
}

LabelLocation FittedLocation(ChartType type, LabelLocation location) {
    return KindOf(type).labels.fitted[static_cast<std::size_t>(location)];
}

void FitDataLabelLocations(Chart& chart) {
    for (int number = 1; number <= chart.Plot.SeriesCollection.Count(); ++number) {
        LabelLocation& location = AllPoints(chart, number).DataPointLabel.LocationType;
        location = FittedLocation(chart.chartType(), location);
    }
}

std::int16_t GetLabelComponentState(const SeriesCollection& series, int bit) {
    std::int16_t state = 0;
    for (int number = 1; number <= series.Count() && state < 2; ++number) {
        const int component = series(number).DataPoints.Item(DataPoints::All).DataPointLabel.Component;
        const bool shown = (component & (1 << bit)) != 0;
        if (!shown)
            state = static_cast<std::int16_t>(state * 2);
        else if (state == 0)
            state = number == 1 ? 1 : 2;
    }
    return state;
}

} // namespace QmChart6
