#pragma once

#include "viewer/ViewerToolBar.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace QmChart6 {

class LookChanges;
class Viewer;
struct Chart;
struct ShownLook;

/// What the control bar does to a viewer's chart, and how the bar follows the chart. The check buttons are
/// the viewer's memory of the options; the states of stacking that are shown mirror theirs.
class ControlBarCommands {
public:
    ControlBarCommands(Viewer& viewer, ShownLook& shown, LookChanges& changes, ViewerToolBar& bar)
        : viewer_(viewer), shown_(shown), changes_(changes), bar_(bar) {}

    /// The program itself sets buttons and selector: nothing that they do is done.
    [[nodiscard]] bool Busy() const { return busy_; }

    /// The number of the chart type that selector and "3D" stand for.
    [[nodiscard]] int Selected() const;
    /// Puts selector and "3D" in the state that stands for a chart type, and does what choosing it does.
    /// Raises 380 for a number that is no chart type, or one that the chart cannot be.
    void SetSelected(int type);

    /// Lists the chart types that go with the chart's columns and "3D", keeping the place that is selected
    /// where there still is one, and gives the chart the type at that place.
    void RefillChartTypeList();

    /// Brings buttons and selector in step with the chart, which stays as it is; does nothing while the bar
    /// is hidden.
    void FollowChart();
    /// The same, and lays the chart out anew.
    void Refresh();

    /// Does what a button does. An option's button makes the viewer modified, whether or not anything
    /// changed.
    void Click(BarButton button);
    /// Gives the chart the selected type, with what goes with it.
    void ChooseType();
    /// The same as the person at the desk chooses it: an XY chart shows points, not the lines between them,
    /// until they choose otherwise.
    void ChooseTypeByHand();
    /// Lets the person choose a stored look, and loads it.
    void LoadLook();

private:
    void Act(BarButton button);
    void SwitchStacking();
    void SwitchFullStacking();
    void SwitchSeriesInRows();
    void SelectIndex(int index);
    void AllowWhatCanBeSwitched();
    void SetMarks(std::int16_t lines, std::int16_t markers);
    [[nodiscard]] Chart& Model() const;

    Viewer& viewer_;
    ShownLook& shown_;
    LookChanges& changes_;
    ViewerToolBar& bar_;
    /// Lines and markers as they were before an XY chart was chosen; nothing otherwise.
    std::optional<std::pair<std::int16_t, std::int16_t>> marksBeforePoints_;
    bool busy_ = false;
};

} // namespace QmChart6
