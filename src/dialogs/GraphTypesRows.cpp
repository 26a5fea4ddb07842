#include "dialogs/GraphTypesRows.h"

#include "chart/ChartFunctions.h"
#include "chartcontrol/paint/QtColour.h"
#include "dialogs/ColourBox.h"
#include "dialogs/GraphTypesControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

namespace QmChart6 {

namespace {

constexpr int Gray = 2;

Truth TruthOf(int value) {
    return value != 0 ? True : False;
}

GraphTypesRow Switch(QCheckBox* box, const std::function<bool(const Chart&)>& read,
                     const std::function<void(Chart&, Truth)>& operation) {
    return {box, [read](const LookState& look) { return read(look.chart) ? 1 : 0; },
            [operation](LookState& look, int on) { operation(look.chart, TruthOf(on)); }};
}

/// An option whose state a chart does not keep.
GraphTypesRow Option(QCheckBox* box, std::int16_t LookState::* state, void (*operation)(Chart&, Truth)) {
    return {box, [state](const LookState& look) { return look.*state != 0 ? 1 : 0; },
            [state, operation](LookState& look, int on) {
                operation(look.chart, TruthOf(on));
                look.*state = static_cast<std::int16_t>(on);
            }};
}

GraphTypesRow Choice(QWidget* box, const std::function<int(const Chart&)>& read,
                     const std::function<void(Chart&, int)>& operation) {
    return {box, [read](const LookState& look) { return read(look.chart); },
            [operation](LookState& look, int value) { operation(look.chart, value); }};
}

GraphTypesRow AxisSwitch(QCheckBox* box, int axis) {
    return Switch(
        box, [axis](const Chart& chart) { return !chart.Plot.Axis(axis).AxisScale.Hide; },
        [axis](Chart& chart, Truth shown) { SetAxisVisible(chart, shown, axis); });
}

GraphTypesRow AxisTitleSwitch(QCheckBox* box, int axis) {
    return Switch(
        box, [axis](const Chart& chart) { return chart.Plot.Axis(axis).AxisTitle.Visible; },
        [axis](Chart& chart, Truth shown) { SetAxisTitleVisible(chart, shown, axis); });
}

GraphTypesRow GridChoice(QComboBox* list, int axis) {
    return Choice(
        list,
        [axis](const Chart& chart) {
            return static_cast<int>(chart.Plot.Axis(axis).AxisGrid.MajorPen.Style);
        },
        [axis](Chart& chart, int style) { SetGridLineStyle(chart, style, axis); });
}

template<class Box>
void AppendForAxes(std::vector<GraphTypesRow>& rows,
                   const std::array<Box*, GraphTypesControls::AxisCount>& boxes,
                   GraphTypesRow (*row)(Box*, int)) {
    int axis = 0;
    for (Box* box : boxes) rows.push_back(row(box, axis++));
}

DataPointLabel& LabelOf(Series& series) {
    return series.DataPoints.Item(DataPoints::All).DataPointLabel;
}
const DataPointLabel& LabelOf(const Series& series) {
    return series.DataPoints.Item(DataPoints::All).DataPointLabel;
}

/// Shows what all series' labels have; the value of number 0 where they differ, or where there is none.
template<class Value>
GraphTypesRow LabelChoice(QComboBox* list, Value DataPointLabel::* member, Value (*checked)(int)) {
    return Choice(
        list,
        [member](const Chart& chart) {
            const SeriesCollection& all = chart.Plot.SeriesCollection;
            if (all.Count() == 0) return 0;
            const Value first = LabelOf(all(1)).*member;
            for (const Series& series : all)
                if (LabelOf(series).*member != first) return 0;
            return static_cast<int>(first);
        },
        [member, checked](Chart& chart, int value) {
            for (Series& series : chart.Plot.SeriesCollection) {
                LabelOf(series).ResetCustomLabel();
                LabelOf(series).*member = checked(value);
            }
        });
}

/// A gray box leaves its component as each series has it.
GraphTypesRow Component(QCheckBox* box, int bit) {
    return Choice(
        box, [bit](const Chart& chart) { return GetLabelComponentState(chart.Plot.SeriesCollection, bit); },
        [bit](Chart& chart, int state) {
            if (state == Gray) return;
            for (Series& series : chart.Plot.SeriesCollection) {
                int& components = LabelOf(series).Component;
                components = (components & ~(1 << bit)) | state << bit;
            }
        });
}

} // namespace

std::vector<GraphTypesRow> SettingRows(const GraphTypesControls& form) {
    std::vector<GraphTypesRow> rows{
        Switch(
            form.CShowLegend, [](const Chart& chart) { return chart.ShowLegend; }, SetLegendVisible),
        Option(form.CStackSeries, &LookState::stacked, SetStacked),
        Option(form.C100, &LookState::fullStacked, SetFullStacked),
        Switch(
            form.CSeriesInRows, [](const Chart& chart) { return chart.Plot.DataSeriesInRow; },
            SetSeriesInRows),
        Option(form.CShowMarkers, &LookState::markers, SetSeriesMarkers),
        Option(form.CShowLines, &LookState::lines, SetSeriesLines),
    };
    AppendForAxes(rows, form.chkAxis, AxisSwitch);
    AppendForAxes(rows, form.chkAxisLab, AxisTitleSwitch);
    rows.push_back(Choice(
        form.cbPiePos, [](const Chart& chart) { return static_cast<int>(chart.Plot.SubPlotLabelPosition); },
        SetPieLabelPosition));
    rows.push_back(Choice(
        form.pbBackColor, [](const Chart& chart) { return NumberOf(chart.Backdrop.Fill.Brush.FillColor); },
        SetBackgroundColor));
    rows.push_back(Choice(
        form.cb3DPerspective, [](const Chart& chart) { return static_cast<int>(chart.Plot.Projection); },
        SetProjection));
    AppendForAxes(rows, form.cbGridLines, GridChoice);
    return rows;
}

std::vector<GraphTypesRow> LabelRows(const GraphTypesControls& form) {
    std::vector<GraphTypesRow> rows{
        LabelChoice(form.cbLines, &DataPointLabel::LineStyle, ToLabelLineStyle),
        LabelChoice(form.cbLabels, &DataPointLabel::LocationType, ToLabelLocation),
    };
    int bit = 0;
    for (QCheckBox* box : form.chkComponent) rows.push_back(Component(box, bit++));
    return rows;
}

int ValueOf(const QWidget& box) {
    if (const auto* check = qobject_cast<const QCheckBox*>(&box))
        return check->checkState() == Qt::PartiallyChecked ? Gray : (check->isChecked() ? 1 : 0);
    if (const auto* list = qobject_cast<const QComboBox*>(&box)) return list->currentData().toInt();
    const auto* colour = qobject_cast<const ColourBox*>(&box);
    return colour == nullptr ? 0 : NumberOf(ColourOf(colour->BackColor()));
}

void ShowValue(QWidget& box, int value) {
    const QSignalBlocker quiet(&box);
    if (auto* check = qobject_cast<QCheckBox*>(&box)) {
        // Who makes what differs alike can go back to gray; others cannot go there.
        check->setTristate(value == Gray);
        check->setCheckState(value == Gray ? Qt::PartiallyChecked
                                           : (value == 1 ? Qt::Checked : Qt::Unchecked));
    } else if (auto* list = qobject_cast<QComboBox*>(&box)) {
        list->setCurrentIndex(list->findData(value));
    } else if (auto* colour = qobject_cast<ColourBox*>(&box)) {
        colour->SetBackColor(QColor(value & 0xff, value >> 8 & 0xff, value >> 16 & 0xff));
    }
}

} // namespace QmChart6
