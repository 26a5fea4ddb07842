#include "dialogs/GraphTypes.h"

#include "chart/ChartFunctions.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/paint/QtColour.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "dialogs/ChartKinds.h"
#include "dialogs/ColourBox.h"
#include "dialogs/SampleOf.h"
#include "text/LocalText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr std::size_t ZAxis = 3;
constexpr double MarkerSize = 10; // points

Truth TruthOf(const QCheckBox& box) {
    return box.isChecked() ? True : False;
}

/// What all series have; the value of number 0 where they differ, or where there is none.
template<class Value, class Read>
Value CommonTo(const SeriesCollection& series, Read read) {
    if (series.Count() == 0) return Value{};
    const Value first = read(series(1).DataPoints.Item(DataPoints::All).DataPointLabel);
    for (int number = 2; number <= series.Count(); ++number)
        if (read(series(number).DataPoints.Item(DataPoints::All).DataPointLabel) != first) return Value{};
    return first;
}

} // namespace

GraphTypes::GraphTypes(QWidget* owner) : PropertyDialog(owner, Buttons::OkCancelApply), form_(this) {
    setObjectName(QStringLiteral("GraphTypes"));
    setWindowTitle(LocalText(TextKey::GraphProperties));
    auto* row = new QHBoxLayout;
    row->addWidget(form_.TabTypes);
    row->addWidget(form_.SampleChart, 1);
    Body().addLayout(row);
    Connect();
    Finish();
}

GraphTypes::~GraphTypes() = default;

void GraphTypes::Connect() {
    On(form_.RB2d, &QRadioButton::toggled, [this] { ChooseDimension(); });
    On(form_.LChTypes, &QListWidget::currentRowChanged, [this] { ChooseKind(); });
    On(form_.btnBackColor, &QPushButton::clicked, [this] { PickBackColor(); });
    ConnectOptions();
    ConnectAxes();
}

/// Every handler acts on the sample through the operation that writing back uses.
void GraphTypes::ConnectOptions() {
    const auto follow = [this](QCheckBox* box, void (*operation)(Chart&, Truth)) {
        On(box, &QCheckBox::toggled, [this, box, operation] {
            operation(Sample(), TruthOf(*box));
            RefreshSample();
        });
    };
    follow(form_.CShowLegend, SetLegendVisible);
    follow(form_.CShowMarkers, SetSeriesMarkers);
    follow(form_.CShowLines, SetSeriesLines);
    follow(form_.C100, SetFullStacked);
    On(form_.CStackSeries, &QCheckBox::toggled, [this] { StackClicked(); });
    On(form_.CSeriesInRows, &QCheckBox::toggled, [this] { SeriesInRowsClicked(); });
    const auto choose = [this](QComboBox* list, void (*operation)(Chart&, int)) {
        On(list, &QComboBox::currentIndexChanged, [this, list, operation] {
            if (list->currentIndex() < 0) return;
            operation(Sample(), list->currentIndex());
            RefreshSample();
        });
    };
    choose(form_.cbPiePos, SetPieLabelPosition);
    choose(form_.cb3DPerspective, SetProjection);
}

void GraphTypes::ConnectAxes() {
    for (std::size_t axis = 0; axis < GraphTypesControls::AxisCount; ++axis) {
        const int id = static_cast<int>(axis);
        On(form_.chkAxis[axis], &QCheckBox::toggled, [this, axis] { AxisClicked(axis); });
        On(form_.chkAxisLab[axis], &QCheckBox::toggled, [this, axis, id] {
            SetAxisTitleVisible(Sample(), TruthOf(*form_.chkAxisLab[axis]), id);
            RefreshSample();
        });
        On(form_.cbGridLines[axis], &QComboBox::currentIndexChanged, [this, axis, id] {
            const int style = form_.cbGridLines[axis]->currentIndex();
            if (style < 0) return;
            SetGridLineStyle(Sample(), style, id);
            RefreshSample();
        });
    }
}

void GraphTypes::Execute(Viewer& viewer) {
    Fill(viewer);
    RunLoop([&] { WriteBack(viewer); });
}

Chart& GraphTypes::Sample() {
    return form_.SampleChart->Model();
}

void GraphTypes::RefreshSample() {
    if (!filling_) form_.SampleChart->Refresh();
}

void GraphTypes::Fill(Viewer& viewer) {
    Chart& chart = viewer.ChartImage().Model();
    // Markers are given their size on every opening, whatever becomes of the dialog.
    for (Series& series : chart.Plot.SeriesCollection)
        series.DataPoints.Item(DataPoints::All).Marker.Size = MarkerSize;
    filling_ = true;
    Sample() = SampleOf(chart);
    FillOptions(viewer, chart);
    FillAxes(chart);
    SetSelected(static_cast<std::int16_t>(chart.chartType()));
    FillLabels(chart.Plot.SeriesCollection);
    form_.cbPiePos->setCurrentIndex(static_cast<int>(chart.Plot.SubPlotLabelPosition));
    form_.cb3DPerspective->setCurrentIndex(static_cast<int>(chart.Plot.Projection));
    filling_ = false;
    RefreshSample();
}

/// Sets the boxes to what is, and lets no handler answer: the sample is like that already, and a box that
/// another one's handler clears would not show what the chart has.
void GraphTypes::FillOptions(const Viewer& viewer, const Chart& chart) {
    const auto show = [](QCheckBox* box, bool checked) {
        const QSignalBlocker quiet(box);
        box->setChecked(checked);
    };
    show(form_.CShowLegend, chart.ShowLegend);
    show(form_.CShowMarkers, viewer.Markers() != 0);
    show(form_.CShowLines, viewer.Lines() != 0);
    show(form_.CStackSeries, viewer.Stacked() != 0);
    show(form_.C100, viewer.FullStacked() != 0);
    show(form_.CSeriesInRows, chart.Plot.DataSeriesInRow);
    form_.C100->setEnabled(viewer.Stacked() != 0);
    form_.pbBackColor->SetBackColor(QtColourOf(chart.Backdrop.Fill.Brush.FillColor));
}

void GraphTypes::FillAxes(const Chart& chart) {
    for (std::size_t axis = 0; axis < GraphTypesControls::AxisCount; ++axis) {
        const Axis& shown = chart.Plot.Axis(static_cast<int>(axis));
        const QSignalBlocker quietAxis(form_.chkAxis[axis]);
        const QSignalBlocker quietTitle(form_.chkAxisLab[axis]);
        form_.chkAxis[axis]->setChecked(!shown.AxisScale.Hide);
        form_.chkAxisLab[axis]->setEnabled(!shown.AxisScale.Hide);
        form_.chkAxisLab[axis]->setChecked(shown.AxisTitle.Visible);
        form_.cbGridLines[axis]->setCurrentIndex(static_cast<int>(shown.AxisGrid.MajorPen.Style));
    }
}

void GraphTypes::FillLabels(const SeriesCollection& series) {
    for (std::size_t bit = 0; bit < GraphTypesControls::ComponentCount; ++bit) {
        const auto state = GetLabelComponentState(series, static_cast<int>(bit));
        QCheckBox& box = *form_.chkComponent[bit];
        // Gray means that the series differ; who makes them alike can go back to gray, others cannot go
        // there.
        box.setTristate(state == 2);
        box.setCheckState(state == 2 ? Qt::PartiallyChecked : (state == 1 ? Qt::Checked : Qt::Unchecked));
    }
    SetQmLabels(static_cast<std::int16_t>(
        CommonTo<LabelLocation>(series, [](const DataPointLabel& label) { return label.LocationType; })));
    form_.cbLines->setCurrentIndex(static_cast<int>(
        CommonTo<LabelLineStyle>(series, [](const DataPointLabel& label) { return label.LineStyle; })));
}

std::int16_t GraphTypes::Selected() const {
    const std::vector<ChartType> kinds = KindsOffered(form_.RB3d->isChecked(), SampleHasOneColumn());
    return static_cast<std::int16_t>(kinds.at(static_cast<std::size_t>(form_.LChTypes->currentRow())));
}

void GraphTypes::SetSelected(std::int16_t type) {
    const ChartType kind = ToChartType(type);
    const bool threeD = Is3D(kind);
    const std::vector<ChartType> kinds = KindsOffered(threeD, SampleHasOneColumn());
    const auto found = std::find(kinds.begin(), kinds.end(), kind);
    const QSignalBlocker quiet2d(form_.RB2d);
    const QSignalBlocker quiet3d(form_.RB3d);
    (threeD ? form_.RB3d : form_.RB2d)->setChecked(true);
    // A chart that lost its other columns may be of a kind that is not offered any more.
    FillKinds(found == kinds.end() ? 0 : static_cast<int>(found - kinds.begin()));
}

void GraphTypes::ChooseDimension() {
    FillKinds(form_.LChTypes->currentRow());
}

void GraphTypes::FillKinds(int index) {
    const bool threeD = form_.RB3d->isChecked();
    {
        const QSignalBlocker quiet(form_.LChTypes);
        form_.LChTypes->clear();
        for (const ChartType kind : KindsOffered(threeD, SampleHasOneColumn()))
            form_.LChTypes->addItem(ChartKindText(kind));
        form_.LChTypes->setCurrentRow(index >= 0 && index < form_.LChTypes->count() ? index : 0);
    }
    form_.chkAxis[ZAxis]->setEnabled(threeD);
    form_.chkAxisLab[ZAxis]->setEnabled(threeD && form_.chkAxis[ZAxis]->isChecked());
    form_.cbGridLines[ZAxis]->setEnabled(threeD);
    form_.lblGrid[ZAxis]->setEnabled(threeD);
    ChooseKind();
}

void GraphTypes::ChooseKind() {
    if (form_.LChTypes->currentRow() < 0) return;
    const ChartType kind = ToChartType(Selected());
    EnableForKind(kind);
    if (SampleHasOneColumn()) {
        // A pie's slices are the rows of its one column.
        form_.CSeriesInRows->setChecked(kind == ChartType::Pie2D);
        form_.CSeriesInRows->setEnabled(kind == ChartType::Pie2D);
    }
    if (Sample().chartType() != kind) Sample().SetChartType(kind);
    RefillLabels(kind);
    RefreshSample();
}

void GraphTypes::EnableForKind(ChartType kind) {
    const bool pie = kind == ChartType::Pie2D;
    const bool scatter = kind == ChartType::XY2D;
    form_.CShowLines->setEnabled(scatter || kind == ChartType::Line2D);
    form_.CShowMarkers->setEnabled(!pie);
    form_.CStackSeries->setEnabled(!scatter && !pie);
    form_.cbPiePos->setEnabled(pie);
    form_.lblPieLabel->setEnabled(pie);
}

/// Offers the locations that the kind has, and keeps the chosen one, or what stands for it there.
void GraphTypes::RefillLabels(ChartType kind) {
    const auto chosen = static_cast<LabelLocation>(QmLabels());
    labelsOf_ = kind;
    form_.cbLabels->clear();
    form_.cbLabels->addItems(LabelLocationTexts(kind));
    SetQmLabels(static_cast<std::int16_t>(chosen));
}

std::int16_t GraphTypes::QmLabels() const {
    return static_cast<std::int16_t>(LocationOffered(labelsOf_, form_.cbLabels->currentIndex()));
}

void GraphTypes::SetQmLabels(std::int16_t code) {
    form_.cbLabels->setCurrentIndex(IndexOfLabelLocation(labelsOf_, ToLabelLocation(code)));
}

void GraphTypes::StackClicked() {
    const bool stacked = form_.CStackSeries->isChecked();
    if (!stacked && form_.C100->isChecked()) form_.C100->setChecked(false);
    form_.C100->setEnabled(stacked);
    SetStacked(Sample(), TruthOf(*form_.CStackSeries));
    RefreshSample();
}

/// Stacking is taken off round the flip, and put back after it.
void GraphTypes::SeriesInRowsClicked() {
    const bool stacked = form_.CStackSeries->isChecked();
    if (stacked) form_.CStackSeries->setChecked(false);
    SetSeriesInRows(Sample(), TruthOf(*form_.CSeriesInRows));
    if (stacked) form_.CStackSeries->setChecked(true);
    RefreshSample();
}

void GraphTypes::AxisClicked(std::size_t axis) {
    QCheckBox& box = *form_.chkAxis[axis];
    SetAxisVisible(Sample(), TruthOf(box), static_cast<int>(axis));
    form_.chkAxisLab[axis]->setEnabled(box.isChecked());
    RefreshSample();
}

void GraphTypes::PickBackColor() {
    if (!form_.pbBackColor->Pick(form_.btnBackColor->accessibleName())) return;
    SetBackgroundColor(Sample(), NumberOf(form_.pbBackColor->BackColor()));
    RefreshSample();
}

bool GraphTypes::SampleHasOneColumn() const {
    return form_.SampleChart->Model().ColumnCount() <= 1;
}

} // namespace QmChart6
