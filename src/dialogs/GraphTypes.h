#pragma once

#include "chartcontrol/model/Enumerations.h"
#include "config/LookState.h"
#include "dialogs/GraphTypesControls.h"
#include "dialogs/GraphTypesRows.h"
#include "dialogs/PropertyDialog.h"

#include <cstdint>
#include <vector>

namespace QmChart6 {

class Viewer;

/// Edits the look of a viewer's whole chart, and shows each change at once on a sample of its own. The
/// viewer's chart changes on OK and Apply only.
class GraphTypes : public PropertyDialog {
    Q_OBJECT

public:
    explicit GraphTypes(QWidget* owner);
    ~GraphTypes() override;

    /// Edits the chart of a viewer until the dialog is left. Opening it sets the size of every series'
    /// markers to 10 points.
    void Execute(Viewer& viewer);
    /// Lets it open with the page of the grid lines.
    void ShowGrid();

    /// The chart type that the type controls stand for. Writing a number that is none raises 380.
    [[nodiscard]] std::int16_t Selected() const;
    void SetSelected(std::int16_t type);

    /// The data-label location that cbLabels stands for. A location that charts of the type do not have
    /// selects the one that takes its place.
    [[nodiscard]] std::int16_t QmLabels() const;
    void SetQmLabels(std::int16_t code);

private:
    void Connect();
    void FitTheScreen();
    void Fill(const LookState& look);
    void Write(LookState& look) const;

    /// Fills the list of kinds for the dimension, and selects one of them.
    void FillKinds(int index);
    void ChooseDimension();
    void ChooseKind();
    void EnableForKind(ChartType type);
    void RefillLabels(ChartType kind);
    void ShowSomething();
    /// Does to the sample what choosing a value does to a look.
    void Follow(const GraphTypesRow& row);
    void AllowWhatGoesTogether();
    void RefreshSample();
    /// The sample has as many columns as the viewer's chart.
    [[nodiscard]] bool SampleHasOneColumn() const;

    GraphTypesControls form_;
    const std::vector<GraphTypesRow> settings_;
    const std::vector<GraphTypesRow> labels_;
    LookState sample_;
    /// The kind whose locations cbLabels offers.
    ChartType labelsOf_ = ChartType::Bar2D;
};

} // namespace QmChart6
