#include "chart/ChartFunctions.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "dialogs/ColourBox.h"
#include "dialogs/GraphTypes.h"

#include <QCheckBox>
#include <QComboBox>

// What the graph properties dialog writes into the viewer's chart.

namespace QmChart6 {

namespace {

Truth TruthOf(const QCheckBox& box) {
    return box.isChecked() ? True : False;
}

std::int16_t NumberOfBox(const QCheckBox& box) {
    return box.isChecked() ? 1 : 0;
}

} // namespace

void GraphTypes::WriteBack(Viewer& viewer) const {
    Chart& chart = viewer.ChartImage().Model();
    WriteOptions(chart);
    WriteAxes(chart);
    WriteLabels(chart);
    viewer.SetMarkers(NumberOfBox(*form_.CShowMarkers));
    viewer.SetLines(NumberOfBox(*form_.CShowLines));
    viewer.SetStacked(NumberOfBox(*form_.CStackSeries));
    viewer.SetFullStacked(NumberOfBox(*form_.C100));
    viewer.ChartImage().Refresh();
}

void GraphTypes::WriteOptions(Chart& chart) const {
    // The same type again would take the series' own types away.
    const ChartType kind = ToChartType(Selected());
    if (chart.chartType() != kind) chart.SetChartType(kind);
    FitDataLabelLocations(chart);
    SetLegendVisible(chart, TruthOf(*form_.CShowLegend));
    SetStacked(chart, TruthOf(*form_.CStackSeries));
    SetFullStacked(chart, TruthOf(*form_.C100));
    SetSeriesInRows(chart, TruthOf(*form_.CSeriesInRows));
    SetSeriesMarkers(chart, TruthOf(*form_.CShowMarkers));
    SetSeriesLines(chart, TruthOf(*form_.CShowLines));
}

void GraphTypes::WriteAxes(Chart& chart) const {
    constexpr int Count = static_cast<int>(GraphTypesControls::AxisCount);
    for (int axis = 0; axis < Count; ++axis)
        SetAxisVisible(chart, TruthOf(*form_.chkAxis[static_cast<std::size_t>(axis)]), axis);
    for (int axis = 0; axis < Count; ++axis)
        SetAxisTitleVisible(chart, TruthOf(*form_.chkAxisLab[static_cast<std::size_t>(axis)]), axis);
    SetPieLabelPosition(chart, form_.cbPiePos->currentIndex());
    SetBackgroundColor(chart, NumberOf(form_.pbBackColor->BackColor()));
    SetProjection(chart, form_.cb3DPerspective->currentIndex());
    for (int axis = 0; axis < Count; ++axis)
        SetGridLineStyle(chart, form_.cbGridLines[static_cast<std::size_t>(axis)]->currentIndex(), axis);
}

void GraphTypes::WriteLabels(Chart& chart) const {
    for (Series& series : chart.Plot.SeriesCollection) {
        DataPointLabel& label = series.DataPoints.Item(DataPoints::All).DataPointLabel;
        label.ResetCustomLabel();
        label.LineStyle = ToLabelLineStyle(form_.cbLines->currentIndex());
        label.LocationType = ToLabelLocation(QmLabels());
        label.PercentFormat = QStringLiteral("0.0%");
        label.ValueFormat = ValueLabelFormat();
        WriteComponents(label);
    }
}

/// A gray box leaves its component as each series has it.
void GraphTypes::WriteComponents(DataPointLabel& label) const {
    for (std::size_t bit = 0; bit < GraphTypesControls::ComponentCount; ++bit) {
        const Qt::CheckState state = form_.chkComponent[bit]->checkState();
        if (state == Qt::PartiallyChecked) continue;
        label.Component &= ~(1 << bit);
        if (state == Qt::Checked) label.Component |= 1 << bit;
    }
}

} // namespace QmChart6
