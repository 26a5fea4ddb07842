#include "dialogs/GraphSeriesProperties.h"

#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/paint/QtColour.h"
#include "dialogs/Captions.h"
#include "dialogs/ChartKinds.h"
#include "dialogs/ColourBox.h"
#include "dialogs/PatternPicker.h"
#include "qmchart6/RuntimeError.h"
#include "text/LocalText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr int MinimumSeriesListWidth = 180; // logical pixels

/// The types in the order of cbType, as 2D series have them.
constexpr std::array TypesInOrder{SeriesType::Bar2D,  SeriesType::Line2D, SeriesType::Area2D,
                                  SeriesType::Step2D, SeriesType::XY2D,   SeriesType::Pie2D};

Series& Resolved(const SeriesTarget& target) {
    Series* series = target ? target() : nullptr;
    if (series == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet,
                           QStringLiteral("The series to edit is gone from the chart."));
    return *series;
}

int Bit(const QCheckBox& box, int bit) {
    return box.isChecked() ? bit : 0;
}

/// A page whose controls stand in rows of a caption and what it is for, at the top.
} // namespace

GraphSeriesProperties::GraphSeriesProperties(QWidget* owner)
    : PropertyDialog(owner, Buttons::OkCancelApply), tabSeries_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("GraphSeriesProperties"));
    setWindowTitle(LocalText(TextKey::SeriesProperties));
    tabSeries_->setObjectName(QStringLiteral("tabSeries"));
    tabSeries_->addTab(MakeGeneral(), LocalText(TextKey::General));
    tabSeries_->addTab(MakeLabels(), LocalText(TextKey::Labels));
    tabSeries_->addTab(MakeStyle(), LocalText(TextKey::Style));
    tabSeries_->addTab(MakeStatistics(), LocalText(TextKey::Statistics));
    tabSeries_->setUsesScrollButtons(false); // the form is as wide as its tabs
    Body().addWidget(tabSeries_);
    Finish();
    SetFirstText(*txtName_);
}

QWidget* GraphSeriesProperties::MakeGeneral() {
    auto* page = new QWidget(this);
    QGridLayout* grid = NewGrid(page);
    txtName_ = new QLineEdit(page);
    txtName_->setObjectName(QStringLiteral("txtName"));
    grid->addWidget(NewLabel(page, "lblName", LocalText(TextKey::Name), *txtName_), 0, 0);
    grid->addWidget(txtName_, 0, 1);
    cbType_ = new QComboBox(page);
    cbType_->setObjectName(QStringLiteral("cbType"));
    cbType_->setMinimumWidth(MinimumSeriesListWidth);
    grid->addWidget(NewLabel(page, "lblType", LocalText(TextKey::Type), *cbType_), 1, 0);
    grid->addWidget(cbType_, 1, 1);
    auto* btnColor = new QPushButton(WithDots(LocalText(TextKey::Color)), page);
    Describe(*btnColor, "btnColor", LocalText(TextKey::Color), LocalText(TextKey::General));
    pbColor_ = new ColourBox(page);
    Describe(*pbColor_, "pbColor", LocalText(TextKey::Color));
    grid->addWidget(btnColor, 2, 0);
    grid->addWidget(pbColor_, 2, 1);
    const QString title = LocalText(TextKey::Color);
    pbColor_->OpensBy(*btnColor);
    On(btnColor, &QPushButton::clicked, [this, title] {
        if (pbColor_->Pick(title)) ShowColours();
    });
    return page;
}

QWidget* GraphSeriesProperties::MakeLabels() {
    auto* page = new QWidget(this);
    QGridLayout* grid = NewGrid(page);
    cbLabels_ = new QComboBox(page);
    cbLabels_->setObjectName(QStringLiteral("cbLabels"));
    grid->addWidget(NewLabel(page, "lblDataLabels", LocalText(TextKey::DataLabels), *cbLabels_), 0, 0);
    grid->addWidget(cbLabels_, 0, 1);
    cbLines_ = new QComboBox(page);
    cbLines_->setObjectName(QStringLiteral("cbLines"));
    grid->addWidget(NewLabel(page, "lblLabelLines", LocalText(TextKey::LabelLines), *cbLines_), 1, 0);
    grid->addWidget(cbLines_, 1, 1);
    constexpr std::array Keys{TextKey::Value, TextKey::Percentage, TextKey::SeriesName};
    constexpr std::array Names{"chkComponent0", "chkComponent1", "chkComponent2"};
    for (std::size_t bit = 0; bit < ComponentCount; ++bit) {
        chkComponent_[bit] = NewBox(page, Names[bit], Keys[bit]);
        grid->addWidget(chkComponent_[bit], static_cast<int>(bit) + 2, 0, 1, 2);
    }
    On(cbLabels_, &QComboBox::activated, [this] { ShowSomething(); });
    return page;
}

/// Whoever chooses a place for labels that show nothing wants to see them.
void GraphSeriesProperties::ShowSomething() {
    const bool shown = QmLabels() != static_cast<std::int16_t>(LabelLocation::None);
    const bool nothing = std::none_of(chkComponent_.begin(), chkComponent_.end(),
                                      [](const QCheckBox* box) { return box->isChecked(); });
    if (shown && nothing) chkComponent_.front()->setChecked(true);
}

QWidget* GraphSeriesProperties::MakeStyle() {
    auto* page = new QWidget(this);
    QGridLayout* grid = NewGrid(page);
    auto* btnStyleColor = new QPushButton(WithDots(LocalText(TextKey::Color)), page);
    Describe(*btnStyleColor, "btnStyleColor", LocalText(TextKey::Color), LocalText(TextKey::Style));
    pbStyleColor_ = new ColourBox(page);
    Describe(*pbStyleColor_, "pbStyleColor", LocalText(TextKey::Color), LocalText(TextKey::Style));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(PatternPicker::LeftEdge(), 0, 0, 0); // in line with the boxes below
    row->addWidget(btnStyleColor);
    row->addWidget(pbStyleColor_);
    row->addStretch(1);
    grid->addLayout(row, 0, 0, 1, 2);
    picStyle_ = new PatternPicker(page);
    Describe(*picStyle_, "picStyle", LocalText(TextKey::Style));
    grid->addWidget(picStyle_, 1, 0, 1, 2, Qt::AlignLeft);
    const QString title = LocalText(TextKey::Color);
    pbStyleColor_->OpensBy(*btnStyleColor);
    On(btnStyleColor, &QPushButton::clicked, [this, title] {
        if (pbStyleColor_->Pick(title)) ShowColours();
    });
    return page;
}

QWidget* GraphSeriesProperties::MakeStatistics() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addWidget(chkMin_ = NewBox(page, "chkMin", TextKey::Minimum));
    column->addWidget(chkMax_ = NewBox(page, "chkMax", TextKey::Maximum));
    column->addWidget(chkStdDev_ = NewBox(page, "chkStdDev", TextKey::StandardDeviation));
    column->addWidget(chkMean_ = NewBox(page, "chkMean", TextKey::Mean));
    column->addWidget(chkReg_ = NewBox(page, "chkReg", TextKey::Regression));
    column->addStretch(1);
    return page;
}

QCheckBox* GraphSeriesProperties::NewBox(QWidget* page, const char* name, TextKey textKey) {
    auto* box = new QCheckBox(LocalText(textKey), page);
    Describe(*box, name, LocalText(textKey));
    return box;
}

void GraphSeriesProperties::Execute(const SeriesTarget& QmSeries, ChartType QMChartType, QString& Label) {
    chartType_ = QMChartType;
    is3D_ = Is3D(QMChartType);
    Fill(Resolved(QmSeries), Label);
    RunLoop([&] { WriteBack(Resolved(QmSeries), Label); });
}

void GraphSeriesProperties::Fill(const Series& series, const QString& label) {
    const DataPoint& points = series.DataPoints.Item(DataPoints::All);
    txtName_->setText(label);
    FillTypes();
    cbLabels_->clear();
    cbLabels_->addItems(LabelLocationTexts(chartType_));
    cbLines_->clear();
    cbLines_->addItems(LabelLineTexts());
    cbLines_->setCurrentIndex(static_cast<int>(points.DataPointLabel.LineStyle));
    for (std::size_t bit = 0; bit < ComponentCount; ++bit)
        chkComponent_[bit]->setChecked((points.DataPointLabel.Component & (1 << bit)) != 0);
    SetSeriesType(static_cast<std::int16_t>(series.SeriesType));
    pbColor_->SetBackColor(QtColourOf(points.Brush.FillColor));
    pbStyleColor_->SetBackColor(QtColourOf(points.Brush.PatternColor));
    ShowColours();
    SetQmStyle(static_cast<int>(points.Brush.Style));
    SetQmIndex(points.Brush.Index);
    SetQmLabels(static_cast<std::int16_t>(points.DataPointLabel.LocationType));
    const int flag = series.StatLine.Flag;
    chkMin_->setChecked((flag & StatMinimum) != 0);
    chkMax_->setChecked((flag & StatMaximum) != 0);
    chkMean_->setChecked((flag & StatMean) != 0);
    chkStdDev_->setChecked((flag & StatStandardDeviation) != 0);
    chkReg_->setChecked((flag & StatRegression) != 0);
}

/// A series has a type of its own only in a combination.
void GraphSeriesProperties::FillTypes() {
    const bool combination = IsCombination(chartType_);
    cbType_->clear();
    cbType_->addItems({LocalText(TextKey::Bar), LocalText(TextKey::Line), LocalText(TextKey::Area),
                       LocalText(TextKey::Step)});
    if (!combination && !is3D_) cbType_->addItems({LocalText(TextKey::XY), LocalText(TextKey::Pie)});
    cbType_->setEnabled(combination);
}

void GraphSeriesProperties::WriteBack(Series& series, QString& label) const {
    label = txtName_->text();
    series.SeriesType = ToSeriesType(SeriesType());
    series.StatLine.VtColor = ColourOf(pbColor_->BackColor());
    series.StatLine.Flag = Bit(*chkReg_, StatRegression) + Bit(*chkStdDev_, StatStandardDeviation) +
                           Bit(*chkMean_, StatMean) + Bit(*chkMax_, StatMaximum) + Bit(*chkMin_, StatMinimum);
    DataPoint& points = series.DataPoints.Item(DataPoints::All);
    WriteBrush(points.Brush);
    WriteLabels(points.DataPointLabel);
}

void GraphSeriesProperties::WriteBrush(Brush& brush) const {
    // Solid first, so that a control which fills nothing takes the fill colour too.
    brush.Style = BrushStyle::Solid;
    brush.FillColor = ColourOf(pbColor_->BackColor());
    brush.Style = ToBrushStyle(QmStyle());
    brush.Index = QmIndex();
    brush.PatternColor = ColourOf(pbStyleColor_->BackColor());
}

void GraphSeriesProperties::WriteLabels(DataPointLabel& label) const {
    label.ResetCustomLabel();
    label.LocationType = ToLabelLocation(QmLabels());
    label.LineStyle = ToLabelLineStyle(cbLines_->currentIndex());
    label.PercentFormat = QStringLiteral("0.0%");
    label.Component = 0;
    for (std::size_t bit = 0; bit < ComponentCount; ++bit)
        label.Component += Bit(*chkComponent_[bit], 1 << bit);
}

std::int16_t GraphSeriesProperties::QmLabels() const {
    return static_cast<std::int16_t>(LocationOffered(chartType_, cbLabels_->currentIndex()));
}

void GraphSeriesProperties::SetQmLabels(std::int16_t code) {
    cbLabels_->setCurrentIndex(IndexOfLabelNumber(chartType_, static_cast<int>(ToLabelLocation(code))));
}

int GraphSeriesProperties::QmStyle() const {
    return static_cast<int>(picStyle_->Style());
}

void GraphSeriesProperties::SetQmStyle(int style) {
    DrawBox(style, QmIndex());
}

int GraphSeriesProperties::QmIndex() const {
    return picStyle_->Index();
}

void GraphSeriesProperties::SetQmIndex(int index) {
    DrawBox(QmStyle(), index);
}

void GraphSeriesProperties::DrawBox(int style, int index) {
    picStyle_->Select(ToBrushStyle(style), index);
}

std::int16_t GraphSeriesProperties::SeriesType() const {
    const auto type = static_cast<int>(TypesInOrder.at(static_cast<std::size_t>(cbType_->currentIndex())));
    return static_cast<std::int16_t>(is3D_ ? type - 1 : type);
}

void GraphSeriesProperties::SetSeriesType(std::int16_t type) {
    ToSeriesType(type); // raises for what is none
    // A 3D type stands right below its 2D one, and shares its place.
    constexpr int PieIndex = 5;
    int index = (type - 3) / 2;
    if (type == static_cast<int>(QmChart6::SeriesType::Pie2D))
        index = PieIndex;
    else if (type <= static_cast<int>(QmChart6::SeriesType::Bar2D))
        index = 0;
    if (index >= cbType_->count())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("The series' type must be one that its chart offers."));
    cbType_->setCurrentIndex(index);
}

void GraphSeriesProperties::ShowColours() {
    picStyle_->SetColours(ColourOf(pbColor_->BackColor()), ColourOf(pbStyleColor_->BackColor()));
}

} // namespace QmChart6
