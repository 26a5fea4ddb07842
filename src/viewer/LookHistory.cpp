#include "viewer/LookHistory.h"

namespace QmChart6 {

namespace {

/// The chart with one current cell, whichever it has.
Chart WithoutCell(Chart chart) {
    chart.Row = 1;
    chart.Column = 1;
    return chart;
}

} // namespace

bool LookState::LooksLike(const LookState& other) const {
    return Lines == other.Lines && Markers == other.Markers && Stacked == other.Stacked &&
           FullStacked == other.FullStacked && ControlBar == other.ControlBar &&
           WithoutCell(Chart) == WithoutCell(other.Chart);
}

void LookHistory::Add(const LookState& before, const LookState& after) {
    if (before.LooksLike(after)) return;
    steps_.resize(done_);
    steps_.push_back({before, after});
    if (steps_.size() > MostSteps) steps_.pop_front();
    done_ = steps_.size();
}

void LookHistory::Clear() {
    steps_.clear();
    done_ = 0;
}

const LookState* LookHistory::Undo() {
    if (done_ == 0) return nullptr;
    return &steps_[--done_].before;
}

const LookState* LookHistory::Redo() {
    if (done_ == steps_.size()) return nullptr;
    return &steps_[done_++].after;
}

void LookHistory::LookWasKept(const LookState& now) {
    for (Step& step : steps_) {
        step.before.Modified = !step.before.LooksLike(now);
        step.after.Modified = !step.after.LooksLike(now);
    }
}

} // namespace QmChart6
