#include "viewer/LookChanges.h"

#include "chartcontrol/widget/HandMove.h"
#include "config/Viewer.h"
#include "viewer/ShownLook.h"

#include <utility>

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
    LookMoment now = Now();
    history_.Add(*before_, now);
    before_ = std::move(now);
}

void LookChanges::DropStep() {
    if (before_) before_ = Now();
}

void LookChanges::Turned(const View3d& before) {
    LookMoment unturned = Now();
    if (before == unturned.look.chart.Plot.View3d) return;
    unturned.look.chart.Plot.View3d = before;
    shown_.modified = true;
    history_.Add(unturned, Now());
}

void LookChanges::Moved(int part, const Location& before) {
    LookMoment unmoved = Now();
    *MovableLocation(unmoved.look.chart, part) = before;
    shown_.modified = true;
    history_.Add(unmoved, Now());
}

void LookChanges::Restart() {
    history_.Clear();
    DropStep();
}

void LookChanges::LookWasKept() {
    history_.LookWasKept(viewer_.Look());
}

void LookChanges::Undo() {
    GoTo(history_.Undo());
}

void LookChanges::Redo() {
    GoTo(history_.Redo());
}

LookMoment LookChanges::Now() const {
    return {viewer_.Look(), shown_.modified};
}

/// The window keeps its size, whichever it had then.
void LookChanges::GoTo(const LookMoment* moment) {
    if (moment == nullptr) return;
    const LookState now = viewer_.Look();
    LookState then = moment->look;
    then.maximized = now.maximized;
    then.width = now.width;
    then.height = now.height;
    shown_.modified = moment->modified;
    viewer_.Show(then);
}

} // namespace QmChart6
