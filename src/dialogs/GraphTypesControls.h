#pragma once

#include <array>
#include <cstddef>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace QmChart6 {

class ChartControl;
class ColourBox;

/// The controls of the graph properties dialog, on their pages. Axes are numbered as in a chart: X, primary
/// Y, secondary Y, Z. Their owners are the widgets that they stand on.
struct GraphTypesControls {
    static constexpr std::size_t AxisCount = 4;
    static constexpr std::size_t ComponentCount = 3;

    /// Makes them all below `dialog`, with their captions.
    explicit GraphTypesControls(QWidget* dialog);

    QTabWidget* TabTypes = nullptr;
    QRadioButton* RB2d = nullptr;
    QRadioButton* RB3d = nullptr;
    QListWidget* LChTypes = nullptr;
    ChartControl* SampleChart = nullptr;
    QCheckBox* CShowLegend = nullptr;
    QCheckBox* CShowMarkers = nullptr;
    QCheckBox* CShowLines = nullptr;
    QCheckBox* CStackSeries = nullptr;
    QCheckBox* C100 = nullptr;
    QCheckBox* CSeriesInRows = nullptr;
    std::array<QCheckBox*, AxisCount> chkAxis{};
    std::array<QCheckBox*, AxisCount> chkAxisLab{};
    std::array<QLabel*, AxisCount> lblGrid{};
    std::array<QComboBox*, AxisCount> cbGridLines{};
    QComboBox* cbLabels = nullptr;
    QComboBox* cbLines = nullptr;
    std::array<QCheckBox*, ComponentCount> chkComponent{};
    QLabel* lblPieLabel = nullptr;
    QComboBox* cbPiePos = nullptr;
    QPushButton* btnBackColor = nullptr;
    ColourBox* pbBackColor = nullptr;
    QComboBox* cb3DPerspective = nullptr;

private:
    QWidget* MakeGeneral();
    QWidget* MakeTypes(QWidget* page);
    QWidget* MakeOptions(QWidget* page);
    QWidget* MakeAxes();
    QWidget* MakeGrid();
    QWidget* MakeLabels();
    QWidget* MakeDesign();
};

} // namespace QmChart6
