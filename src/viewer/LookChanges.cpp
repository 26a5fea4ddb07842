#include "viewer/LookChanges.h"

#include "chartcontrol/widget/ChartControl.h"
#include "viewer/GraphForm.h"

namespace QmChart6 {

void LookChanges::Do(const std::function<void()>& command) {
    if (before_) { // asked for in the middle of another
        command();
        EndStep();
        return;
    }
    before_ = Now();
    command();
    EndStep();
    before_.reset();
}

void LookChanges::EndStep() {
    if (!before_) return;
    LookState now = Now();
    history_.Add(*before_, now);
    before_ = std::move(now);
}

void LookChanges::DropStep() {
    if (before_) before_ = Now();
}

void LookChanges::Turned(const View3d& before) {
    if (before == form_.ChartImage().Model().Plot.View3d) return;
    LookState unturned = Now();
    unturned.Chart.Plot.View3d = before;
    form_.SetModified(true);
    history_.Add(unturned, Now());
}

void LookChanges::Restart() {
    history_.Clear();
    DropStep();
}

void LookChanges::LookWasKept() {
    history_.LookWasKept(Now());
}

void LookChanges::Undo() {
    if (const LookState* state = history_.Undo()) Show(*state);
}

void LookChanges::Redo() {
    if (const LookState* state = history_.Redo()) Show(*state);
}

LookState LookChanges::Now() const {
    return {.Chart = form_.ChartImage().Model(),
            .Lines = form_.Lines(),
            .Markers = form_.Markers(),
            .Stacked = form_.Stacked(),
            .FullStacked = form_.FullStacked(),
            .ControlBar = form_.ControlBar(),
            .Modified = form_.Modified()};
}

void LookChanges::Show(const LookState& state) {
    form_.ChartImage().Model() = state.Chart;
    form_.SetLines(state.Lines);
    form_.SetMarkers(state.Markers);
    form_.SetStacked(state.Stacked);
    form_.SetFullStacked(state.FullStacked);
    form_.SetModified(state.Modified);
    if (form_.ControlBar() != state.ControlBar) form_.SetControlBar(state.ControlBar);
    form_.SyncControlBar();
    form_.ChartImage().Refresh();
}

} // namespace QmChart6
