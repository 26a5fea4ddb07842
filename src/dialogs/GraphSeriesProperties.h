#pragma once

#include "chartcontrol/model/Series.h"
#include "dialogs/PropertyDialog.h"
#include "text/TextKey.h"

#include <array>
#include <cstdint>
#include <functional>

class QCheckBox;
class QComboBox;
class QTabWidget;

namespace QmChart6 {

class ColourBox;
class PatternPicker;

/// Finds a series anew each time, for its chart may change while a dialog is open. Null where it is gone.
using SeriesTarget = std::function<Series*()>;

/// Edits one series of a chart: its name, type, fill, data labels and statistics lines.
class GraphSeriesProperties : public PropertyDialog {
    Q_OBJECT

public:
    explicit GraphSeriesProperties(QWidget* owner);

    /// Edits the series, and its name in `Label`, in place until the dialog is left. Raises 91 where the
    /// series is gone when it is read or written, 380 for a series type that charts of this type do not have.
    void Execute(const SeriesTarget& QmSeries, ChartType QMChartType, QString& Label);

    /// The data-label location that cbLabels stands for. A location that charts of this type do not have
    /// selects the one that takes its place.
    [[nodiscard]] std::int16_t QmLabels() const;
    void SetQmLabels(std::int16_t code);

    /// The brush's style and its pattern or hatch; writing either draws the picker's selection anew.
    [[nodiscard]] int QmStyle() const;
    void SetQmStyle(int style);
    [[nodiscard]] int QmIndex() const;
    void SetQmIndex(int index);

    /// The series type that cbType stands for. Writing one that is not offered raises 380.
    [[nodiscard]] std::int16_t SeriesType() const;
    void SetSeriesType(std::int16_t type);

    /// Draws the picker's selection round the box of a style and index.
    void DrawBox(int style, int index);

private:
    static constexpr std::size_t ComponentCount = 3;

    QWidget* MakeGeneral();
    QWidget* MakeLabels();
    QWidget* MakeStyle();
    QWidget* MakeStatistics();
    QCheckBox* NewBox(QWidget* page, const char* name, TextKey textKey);
    void Fill(const Series& series, const QString& label);
    void FillTypes();
    void WriteBack(Series& series, QString& label) const;
    void WriteBrush(Brush& brush) const;
    void WriteLabels(DataPointLabel& label) const;
    void ShowColours();
    void ShowSomething();

    ChartType chartType_ = ChartType::Bar2D;
    bool is3D_ = false;
    QTabWidget* tabSeries_;
    QLineEdit* txtName_ = nullptr;
    QComboBox* cbType_ = nullptr;
    ColourBox* pbColor_ = nullptr;
    QComboBox* cbLabels_ = nullptr;
    QComboBox* cbLines_ = nullptr;
    std::array<QCheckBox*, ComponentCount> chkComponent_{};
    ColourBox* pbStyleColor_ = nullptr;
    PatternPicker* picStyle_ = nullptr;
    QCheckBox* chkMin_ = nullptr;
    QCheckBox* chkMax_ = nullptr;
    QCheckBox* chkStdDev_ = nullptr;
    QCheckBox* chkMean_ = nullptr;
    QCheckBox* chkReg_ = nullptr;
    bool placeChosen_ = false; ///< of the labels, by hand
};

} // namespace QmChart6
