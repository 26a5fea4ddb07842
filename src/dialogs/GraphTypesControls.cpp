#include "dialogs/GraphTypesControls.h"

#include "chartcontrol/widget/ChartControl.h"
#include "dialogs/Captions.h"
#include "dialogs/ChartKinds.h"
#include "dialogs/ColourBox.h"
#include "text/LocalText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace QmChart6 {

namespace {

// Logical pixels.
constexpr QSize SampleSize{300, 260};
constexpr int MinimumListWidth = 130;
/// The longest list of chart kinds, in lines.
constexpr int MostKinds = 7;

constexpr std::array AxisKeys{TextKey::XAxis, TextKey::PrimaryYAxis, TextKey::SecondaryYAxis, TextKey::ZAxis};

QCheckBox* NewBox(QWidget* parent, const char* name, TextKey textKey, const QString& group) {
    auto* box = new QCheckBox(LocalText(textKey), parent);
    Describe(*box, name, LocalText(textKey), group);
    return box;
}

QComboBox* NewList(QWidget* parent, const char* name, std::initializer_list<TextKey> textKeys = {}) {
    auto* list = new QComboBox(parent);
    list->setObjectName(QLatin1String(name));
    list->setMinimumWidth(MinimumListWidth);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const TextKey key : textKeys) list->addItem(LocalText(key), list->count());
    return list;
}

/// A frame with a check box for each axis.
QGroupBox* NewAxisFrame(QWidget* page, const char* name, TextKey titleKey,
                        const std::array<const char*, GraphTypesControls::AxisCount>& names,
                        std::array<QCheckBox*, GraphTypesControls::AxisCount>& boxes) {
    const QString title = LocalText(titleKey);
    auto* frame = new QGroupBox(title, page);
    frame->setObjectName(QLatin1String(name));
    auto* column = new QVBoxLayout(frame);
    for (std::size_t axis = 0; axis < GraphTypesControls::AxisCount; ++axis) {
        boxes[axis] = NewBox(frame, names[axis], AxisKeys[axis], title);
        column->addWidget(boxes[axis]);
    }
    column->addStretch(1);
    return frame;
}

void AddRow(QGridLayout& grid, QWidget* caption, QWidget* control) {
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 0);
    grid.addWidget(control, row, 1);
}

} // namespace

GraphTypesControls::GraphTypesControls(QWidget* dialog) {
    TabTypes = new QTabWidget(dialog);
    TabTypes->setObjectName(QStringLiteral("TabTypes"));
    TabTypes->addTab(MakeGeneral(), LocalText(TextKey::General));
    TabTypes->addTab(MakeAxes(), LocalText(TextKey::Axes));
    TabTypes->addTab(MakeGrid(), LocalText(TextKey::Grid));
    TabTypes->addTab(MakeLabels(), LocalText(TextKey::Labels));
    TabTypes->addTab(MakeDesign(), LocalText(TextKey::Design));
    TabTypes->setUsesScrollButtons(false); // the form is as wide as its tabs
    SampleChart = new ChartControl(dialog);
    Describe(*SampleChart, "SampleChart", LocalText(TextKey::ChartType));
    SampleChart->setMinimumSize(SampleSize);
    // Something to look at: neither keys nor the pointer reach it.
    SampleChart->setFocusPolicy(Qt::NoFocus);
    SampleChart->setAttribute(Qt::WA_TransparentForMouseEvents);
}

QWidget* GraphTypesControls::MakeGeneral() {
    auto* page = new QWidget(TabTypes);
    auto* row = new QHBoxLayout(page);
    row->addWidget(MakeTypes(page));
    row->addWidget(MakeOptions(page), 1);
    return page;
}

QWidget* GraphTypesControls::MakeTypes(QWidget* page) {
    const QString title = LocalText(TextKey::ChartType);
    auto* frame = new QGroupBox(title, page);
    frame->setObjectName(QStringLiteral("FChType"));
    RB2d = new QRadioButton(LocalText(TextKey::Types2D), frame);
    Describe(*RB2d, "RB2d", LocalText(TextKey::Types2D), title);
    RB3d = new QRadioButton(LocalText(TextKey::Types3D), frame);
    Describe(*RB3d, "RB3d", LocalText(TextKey::Types3D), title);
    LChTypes = new QListWidget(frame);
    Describe(*LChTypes, "LChTypes", title);
    // Wide and high enough for every kind, so that nothing scrolls or moves when the dimension changes.
    int width = 0;
    for (const bool threeD : {false, true})
        for (const ChartType kind : KindsOffered(threeD, false))
            width = std::max(width, LChTypes->fontMetrics().horizontalAdvance(ChartKindText(kind)));
    constexpr int Beside = 24;
    constexpr int BetweenLines = 4;
    LChTypes->setMinimumHeight(MostKinds * (LChTypes->fontMetrics().height() + BetweenLines) +
                               2 * LChTypes->frameWidth());
    LChTypes->setFixedWidth(width + Beside);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(RB2d);
    column->addWidget(RB3d);
    column->addWidget(LChTypes, 1);
    return frame;
}

QWidget* GraphTypesControls::MakeOptions(QWidget* page) {
    const QString title = LocalText(TextKey::ChartOptions);
    auto* frame = new QGroupBox(title, page);
    frame->setObjectName(QStringLiteral("FChOptions"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(CShowLegend = NewBox(frame, "CShowLegend", TextKey::ShowLegend, title));
    column->addWidget(CShowMarkers = NewBox(frame, "CShowMarkers", TextKey::ShowMarkers, title));
    column->addWidget(CShowLines = NewBox(frame, "CShowLines", TextKey::ShowLines, title));
    column->addWidget(CStackSeries = NewBox(frame, "CStackSeries", TextKey::StackSeries, title));
    column->addWidget(C100 = NewBox(frame, "C100", TextKey::FullStackSeries, title));
    column->addWidget(CSeriesInRows = NewBox(frame, "CSeriesInRows", TextKey::SeriesInRows, title));
    column->addStretch(1);
    return frame;
}

QWidget* GraphTypesControls::MakeAxes() {
    auto* page = new QWidget(TabTypes);
    auto* row = new QHBoxLayout(page);
    row->addWidget(
        NewAxisFrame(page, "frmAxis", TextKey::ShowAxes, {"chkX", "chkY1", "chkY2", "chkZ"}, chkAxis));
    row->addWidget(NewAxisFrame(page, "frmLabels", TextKey::ShowAxisTitles,
                                {"chkXLab", "chkY1Lab", "chkY2Lab", "chkZLab"}, chkAxisLab));
    return page;
}

QWidget* GraphTypesControls::MakeGrid() {
    auto* page = new QWidget(TabTypes);
    QGridLayout* grid = NewGrid(page);
    constexpr std::array Labels{"lblXGrid", "lblY1Grid", "lblY2Grid", "lblZGrid"};
    constexpr std::array Lists{"cbGridLines0", "cbGridLines1", "cbGridLines2", "cbGridLines3"};
    constexpr std::array Keys{TextKey::XGridLines, TextKey::PrimaryYGridLines, TextKey::SecondaryYGridLines,
                              TextKey::ZGridLines};
    for (std::size_t axis = 0; axis < AxisCount; ++axis) {
        cbGridLines[axis] =
            NewList(page, Lists[axis],
                    {TextKey::NoLine, TextKey::SolidLine, TextKey::DashedLine, TextKey::DottedLine});
        lblGrid[axis] = NewLabel(page, Labels[axis], LocalText(Keys[axis]), *cbGridLines[axis]);
        AddRow(*grid, lblGrid[axis], cbGridLines[axis]);
    }
    return page;
}

QWidget* GraphTypesControls::MakeLabels() {
    auto* page = new QWidget(TabTypes);
    QGridLayout* grid = NewGrid(page);
    cbLabels = NewList(page, "cbLabels");
    AddRow(*grid, NewLabel(page, "lblDataLabels", LocalText(TextKey::DataLabels), *cbLabels), cbLabels);
    cbLines = NewList(page, "cbLines");
    for (const QString& text : LabelLineTexts()) cbLines->addItem(text, cbLines->count());
    AddRow(*grid, NewLabel(page, "lblLabelLines", LocalText(TextKey::LabelLines), *cbLines), cbLines);
    constexpr std::array Names{"chkComponent0", "chkComponent1", "chkComponent2"};
    constexpr std::array Keys{TextKey::Value, TextKey::Percentage, TextKey::SeriesName};
    for (std::size_t bit = 0; bit < ComponentCount; ++bit) {
        chkComponent[bit] = NewBox(page, Names[bit], Keys[bit], LocalText(TextKey::DataLabels));
        grid->addWidget(chkComponent[bit], grid->rowCount(), 0, 1, 2);
    }
    cbPiePos =
        NewList(page, "cbPiePos", {TextKey::NoLabel, TextKey::Above, TextKey::Below, TextKey::LabelCenter});
    lblPieLabel = NewLabel(page, "lblPieLabel", LocalText(TextKey::PieLabelPosition), *cbPiePos);
    AddRow(*grid, lblPieLabel, cbPiePos);
    return page;
}

QWidget* GraphTypesControls::MakeDesign() {
    auto* page = new QWidget(TabTypes);
    QGridLayout* grid = NewGrid(page);
    btnBackColor = new QPushButton(WithDots(LocalText(TextKey::BackgroundColor)), page);
    Describe(*btnBackColor, "btnBackColor", LocalText(TextKey::BackgroundColor));
    pbBackColor = new ColourBox(page);
    Describe(*pbBackColor, "pbBackColor", LocalText(TextKey::BackgroundColor));
    pbBackColor->OpensBy(*btnBackColor);
    grid->addWidget(btnBackColor, grid->rowCount(), 0, Qt::AlignLeft);
    grid->addWidget(pbBackColor, grid->rowCount() - 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    cb3DPerspective =
        NewList(page, "cb3DPerspective", {TextKey::Perspective, TextKey::Oblique, TextKey::Orthogonal});
    AddRow(*grid, NewLabel(page, "lblProjection", LocalText(TextKey::Projection3D), *cb3DPerspective),
           cb3DPerspective);
    return page;
}

} // namespace QmChart6
