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

constexpr std::array AxisKeys{48, 49, 50, 51};

QCheckBox* NewBox(QWidget* parent, const char* name, int textKey, const QString& group) {
    auto* box = new QCheckBox(LocalText(textKey), parent);
    Describe(*box, name, LocalText(textKey), group);
    return box;
}

QComboBox* NewList(QWidget* parent, const char* name, std::initializer_list<int> textKeys = {}) {
    auto* list = new QComboBox(parent);
    list->setObjectName(QLatin1String(name));
    list->setMinimumWidth(MinimumListWidth);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const int key : textKeys) list->addItem(LocalText(key));
    return list;
}

/// A frame with a check box for each axis.
QGroupBox* NewAxisFrame(QWidget* page, const char* name, int titleKey,
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
    TabTypes->addTab(MakeGeneral(), LocalText(29));
    TabTypes->addTab(MakeAxes(), LocalText(30));
    TabTypes->addTab(MakeGrid(), LocalText(31));
    TabTypes->addTab(MakeLabels(), LocalText(32));
    TabTypes->addTab(MakeDesign(), LocalText(103));
    TabTypes->setUsesScrollButtons(false); // the form is as wide as its tabs
    SampleChart = new ChartControl(dialog);
    Describe(*SampleChart, "SampleChart", LocalText(33));
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
    const QString title = LocalText(33);
    auto* frame = new QGroupBox(title, page);
    frame->setObjectName(QStringLiteral("FChType"));
    RB2d = new QRadioButton(LocalText(34), frame);
    Describe(*RB2d, "RB2d", LocalText(34), title);
    RB3d = new QRadioButton(LocalText(35), frame);
    Describe(*RB3d, "RB3d", LocalText(35), title);
    LChTypes = new QListWidget(frame);
    Describe(*LChTypes, "LChTypes", title);
    // Wide and high enough for every kind, so that nothing scrolls or moves when the dimension changes.
    int width = 0;
    for (const bool threeD : {false, true})
        for (const ChartType kind : ChartKinds(threeD, false))
            width = std::max(width, LChTypes->fontMetrics().horizontalAdvance(ChartKindText(kind)));
    constexpr int Beside = 24;
    constexpr int BetweenLines = 4;
    LChTypes->setMinimumSize(width + Beside, MostKinds * (LChTypes->fontMetrics().height() + BetweenLines) +
                                                 2 * LChTypes->frameWidth());
    auto* column = new QVBoxLayout(frame);
    column->addWidget(RB2d);
    column->addWidget(RB3d);
    column->addWidget(LChTypes, 1);
    return frame;
}

QWidget* GraphTypesControls::MakeOptions(QWidget* page) {
    const QString title = LocalText(36);
    auto* frame = new QGroupBox(title, page);
    frame->setObjectName(QStringLiteral("FChOptions"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(CShowLegend = NewBox(frame, "CShowLegend", 37, title));
    column->addWidget(CShowMarkers = NewBox(frame, "CShowMarkers", 38, title));
    column->addWidget(CShowLines = NewBox(frame, "CShowLines", 39, title));
    column->addWidget(CStackSeries = NewBox(frame, "CStackSeries", 40, title));
    column->addWidget(C100 = NewBox(frame, "C100", 41, title));
    column->addWidget(CSeriesInRows = NewBox(frame, "CSeriesInRows", 42, title));
    column->addStretch(1);
    return frame;
}

QWidget* GraphTypesControls::MakeAxes() {
    auto* page = new QWidget(TabTypes);
    auto* row = new QHBoxLayout(page);
    row->addWidget(NewAxisFrame(page, "frmAxis", 46, {"chkX", "chkY1", "chkY2", "chkZ"}, chkAxis));
    row->addWidget(
        NewAxisFrame(page, "frmLabels", 47, {"chkXLab", "chkY1Lab", "chkY2Lab", "chkZLab"}, chkAxisLab));
    return page;
}

QWidget* GraphTypesControls::MakeGrid() {
    auto* page = new QWidget(TabTypes);
    QGridLayout* grid = NewGrid(page);
    constexpr std::array Labels{"lblXGrid", "lblY1Grid", "lblY2Grid", "lblZGrid"};
    constexpr std::array Lists{"cbGridLines0", "cbGridLines1", "cbGridLines2", "cbGridLines3"};
    constexpr std::array Keys{52, 53, 54, 55};
    for (std::size_t axis = 0; axis < AxisCount; ++axis) {
        cbGridLines[axis] = NewList(page, Lists[axis], {56, 57, 58, 59});
        lblGrid[axis] = NewLabel(page, Labels[axis], LocalText(Keys[axis]), *cbGridLines[axis]);
        AddRow(*grid, lblGrid[axis], cbGridLines[axis]);
    }
    return page;
}

QWidget* GraphTypesControls::MakeLabels() {
    auto* page = new QWidget(TabTypes);
    QGridLayout* grid = NewGrid(page);
    cbLabels = NewList(page, "cbLabels");
    AddRow(*grid, NewLabel(page, "lblDataLabels", LocalText(60), *cbLabels), cbLabels);
    cbLines = NewList(page, "cbLines");
    cbLines->addItems(LabelLineTexts());
    AddRow(*grid, NewLabel(page, "lblLabelLines", LocalText(61), *cbLines), cbLines);
    constexpr std::array Names{"chkComponent0", "chkComponent1", "chkComponent2"};
    constexpr std::array Keys{63, 64, 62};
    for (std::size_t bit = 0; bit < ComponentCount; ++bit) {
        chkComponent[bit] = NewBox(page, Names[bit], Keys[bit], LocalText(60));
        grid->addWidget(chkComponent[bit], grid->rowCount(), 0, 1, 2);
    }
    cbPiePos = NewList(page, "cbPiePos", {66, 69, 70, 99});
    lblPieLabel = NewLabel(page, "lblPieLabel", LocalText(65), *cbPiePos);
    AddRow(*grid, lblPieLabel, cbPiePos);
    return page;
}

QWidget* GraphTypesControls::MakeDesign() {
    auto* page = new QWidget(TabTypes);
    QGridLayout* grid = NewGrid(page);
    btnBackColor = new QPushButton(WithDots(LocalText(104)), page);
    Describe(*btnBackColor, "btnBackColor", LocalText(104));
    pbBackColor = new ColourBox(page);
    Describe(*pbBackColor, "pbBackColor", LocalText(104));
    AddRow(*grid, btnBackColor, pbBackColor);
    cb3DPerspective = NewList(page, "cb3DPerspective", {106, 107, 108});
    AddRow(*grid, NewLabel(page, "lblProjection", LocalText(105), *cb3DPerspective), cb3DPerspective);
    return page;
}

} // namespace QmChart6
