#include "viewer/LookHistory.h"

namespace QmChart6 {

void LookHistory::Add(const LookMoment& before, const LookMoment& after) {
    if (LookAlike(before.look, after.look)) return;
    steps_.resize(done_);
    steps_.push_back({before, after});
    if (steps_.size() > MostSteps) steps_.pop_front();
    done_ = steps_.size();
}

void LookHistory::Clear() {
    steps_.clear();
    done_ = 0;
}

const LookMoment* LookHistory::Undo() {
    if (done_ == 0) return nullptr;
    return &steps_[--done_].before;
}

const LookMoment* LookHistory::Redo() {
    if (done_ == steps_.size()) return nullptr;
    return &steps_[done_++].after;
}

void LookHistory::LookWasKept(const LookState& now) {
    for (Step& step : steps_) {
        step.before.modified = !LookAlike(step.before.look, now);
        step.after.modified = !LookAlike(step.after.look, now);
    }
}

} // namespace QmChart6
