#include "dialogs/GraphTypes.h"

#include "chart/ChartFunctions.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/model/ChartKinds.h"
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
constexpr int LeastSample = 120;  // logical pixels

/// Opening the dialog gives every series markers of that size.
void SizeMarkers(Chart& chart) {
    for (Series& series : chart.Plot.SeriesCollection)
        series.DataPoints.Item(DataPoints::All).Marker.Size = MarkerSize;
}

} // namespace

GraphTypes::GraphTypes(QWidget* owner)
    : PropertyDialog(owner, Buttons::OkCancelApply), form_(this), settings_(SettingRows(form_)),
      labels_(LabelRows(form_)) {
    setObjectName(QStringLiteral("GraphTypes"));
    setWindowTitle(LocalText(TextKey::GraphProperties));
    auto* row = new QHBoxLayout;
    row->addWidget(form_.TabTypes);
    row->addWidget(form_.SampleChart, 1);
    Body().addLayout(row);
    Connect();
    Finish();
    FitTheScreen();
}

/// On a small screen the sample gives way: the settings cannot.
void GraphTypes::FitTheScreen() {
    const QSize beyond = (sizeHint() - RoomOnScreen()).expandedTo({0, 0});
    form_.SampleChart->setMinimumSize(
        (form_.SampleChart->minimumSize() - beyond).expandedTo({LeastSample, LeastSample}));
}

GraphTypes::~GraphTypes() = default;

void GraphTypes::Connect() {
    On(form_.RB2d, &QRadioButton::toggled, [this] { ChooseDimension(); });
    On(form_.LChTypes, &QListWidget::currentRowChanged, [this] { ChooseKind(); });
    // A click beside the kinds would leave the chosen one unmarked.
    On(form_.LChTypes, &QListWidget::itemSelectionChanged, [this] {
        QListWidgetItem* chosen = form_.LChTypes->currentItem();
        if (chosen != nullptr && form_.LChTypes->selectedItems().isEmpty()) chosen->setSelected(true);
    });
    On(form_.btnBackColor, &QPushButton::clicked,
       [this] { form_.pbBackColor->Pick(form_.btnBackColor->accessibleName()); });
    On(form_.cbLabels, &QComboBox::activated, [this] { ShowSomething(); });
    for (const GraphTypesRow& row : settings_) {
        const auto follow = [this, &row] { Follow(row); };
        if (auto* check = qobject_cast<QCheckBox*>(row.box)) On(check, &QCheckBox::toggled, follow);
        if (auto* list = qobject_cast<QComboBox*>(row.box)) On(list, &QComboBox::currentIndexChanged, follow);
        if (auto* colour = qobject_cast<ColourBox*>(row.box)) On(colour, &ColourBox::Picked, follow);
    }
}

/// Whoever chooses a place for labels that show nothing wants to see them.
void GraphTypes::ShowSomething() {
    const bool shown = QmLabels() != static_cast<std::int16_t>(LabelLocation::None);
    const bool nothing = std::all_of(form_.chkComponent.begin(), form_.chkComponent.end(),
                                     [](const QCheckBox* box) { return box->checkState() == Qt::Unchecked; });
    if (shown && nothing) form_.chkComponent.front()->setCheckState(Qt::Checked);
}

void GraphTypes::ShowGrid() {
    form_.TabTypes->setCurrentWidget(form_.cbGridLines.front()->parentWidget());
}

void GraphTypes::Execute(Viewer& viewer) {
    LookState look = viewer.Look();
    SizeMarkers(look.chart);
    viewer.Show(look);
    Fill(look);
    RunLoop([&] {
        LookState written = viewer.Look();
        Write(written);
        viewer.Show(written);
    });
}

/// Lets no handler answer to the settings: the sample is like that already, and a box that another one's
/// handler clears would not show what the chart has.
void GraphTypes::Fill(const LookState& look) {
    sample_ = look;
    sample_.chart = SampleOf(look.chart);
    for (const GraphTypesRow& row : settings_) ShowValue(*row.box, row.read(look));
    SetSelected(static_cast<std::int16_t>(look.chart.chartType()));
    for (const GraphTypesRow& row : labels_) {
        if (row.box == form_.cbLabels)
            SetQmLabels(static_cast<std::int16_t>(row.read(look)));
        else
            ShowValue(*row.box, row.read(look));
    }
    AllowWhatGoesTogether();
    RefreshSample();
}

void GraphTypes::Write(LookState& look) const {
    // The same type again would take the series' own types away.
    const ChartType kind = ToChartType(Selected());
    if (look.chart.chartType() != kind) look.chart.SetChartType(kind);
    FitDataLabelLocations(look.chart);
    for (const GraphTypesRow& row : settings_) row.operation(look, ValueOf(*row.box));
    for (const GraphTypesRow& row : labels_) row.operation(look, ValueOf(*row.box));
    for (Series& series : look.chart.Plot.SeriesCollection) {
        DataPointLabel& label = series.DataPoints.Item(DataPoints::All).DataPointLabel;
        label.PercentFormat = QStringLiteral("0.0%");
        label.ValueFormat = ValueLabelFormat();
    }
}

void GraphTypes::RefreshSample() {
    form_.SampleChart->Model() = sample_.chart;
    form_.SampleChart->Refresh();
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
    form_.cbGridLines[ZAxis]->setEnabled(threeD);
    form_.lblGrid[ZAxis]->setEnabled(threeD);
    AllowWhatGoesTogether();
    ChooseKind();
}

void GraphTypes::ChooseKind() {
    if (form_.LChTypes->currentRow() < 0) return;
    const ChartType kind = ToChartType(Selected());
    EnableForKind(kind);
    if (SampleHasOneColumn()) {
        // A pie's slices are the rows of its one column.
        const bool pie = KindOf(kind).form == ChartForm::Pies;
        form_.CSeriesInRows->setChecked(pie);
        form_.CSeriesInRows->setEnabled(pie);
    }
    if (sample_.chart.chartType() != kind) sample_.chart.SetChartType(kind);
    RefillLabels(kind);
    RefreshSample();
}

void GraphTypes::EnableForKind(ChartType type) {
    const ChartKind& kind = KindOf(type);
    const bool pie = kind.form == ChartForm::Pies;
    form_.CShowLines->setEnabled(kind.offersLines);
    form_.CShowMarkers->setEnabled(!pie);
    form_.CStackSeries->setEnabled(kind.stacks);
    form_.cbPiePos->setEnabled(pie);
    form_.lblPieLabel->setEnabled(pie);
}

/// Offers the locations that the kind has, and keeps the chosen one, or what stands for it there.
void GraphTypes::RefillLabels(ChartType kind) {
    const auto chosen = static_cast<LabelLocation>(QmLabels());
    labelsOf_ = kind;
    form_.cbLabels->clear();
    for (const QString& text : LabelLocationTexts(kind))
        form_.cbLabels->addItem(text, static_cast<int>(LocationOffered(kind, form_.cbLabels->count())));
    SetQmLabels(static_cast<std::int16_t>(chosen));
}

std::int16_t GraphTypes::QmLabels() const {
    return static_cast<std::int16_t>(ValueOf(*form_.cbLabels));
}

void GraphTypes::SetQmLabels(std::int16_t code) {
    form_.cbLabels->setCurrentIndex(IndexOfLabelLocation(labelsOf_, ToLabelLocation(code)));
}

void GraphTypes::Follow(const GraphTypesRow& row) {
    const bool stacked = form_.CStackSeries->isChecked();
    if (row.box == form_.CStackSeries && !stacked) form_.C100->setChecked(false);
    // Stacking is taken off round the flip, and put back after it.
    const bool restack = row.box == form_.CSeriesInRows && stacked;
    if (restack) form_.CStackSeries->setChecked(false);
    row.operation(sample_, ValueOf(*row.box));
    if (restack) form_.CStackSeries->setChecked(true);
    AllowWhatGoesTogether();
    RefreshSample();
}

/// Shares of a whole are there while there is a whole, and a title while its axis is there.
void GraphTypes::AllowWhatGoesTogether() {
    form_.C100->setEnabled(form_.CStackSeries->isChecked());
    for (std::size_t axis = 0; axis < GraphTypesControls::AxisCount; ++axis)
        form_.chkAxisLab[axis]->setEnabled(form_.chkAxis[axis]->isEnabled() &&
                                           form_.chkAxis[axis]->isChecked());
}

bool GraphTypes::SampleHasOneColumn() const {
    return sample_.chart.ColumnCount() <= 1;
}

} // namespace QmChart6
