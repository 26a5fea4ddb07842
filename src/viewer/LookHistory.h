#pragma once

#include "config/LookState.h"

#include <cstddef>
#include <deque>

namespace QmChart6 {

/// A look between two steps of a person's, and whether it differed from the one that was kept last.
struct LookMoment {
    LookState look;
    bool modified = false;
};

/// What a person did to a look, step by step, to be taken back and done again.
class LookHistory {
public:
    /// Older steps are forgotten.
    static constexpr std::size_t MostSteps = 100;

    /// Adds a step, and forgets what was taken back before it. What changed nothing is no step.
    void Add(const LookMoment& before, const LookMoment& after);
    void Clear();

    [[nodiscard]] std::size_t StepsBack() const { return done_; }
    [[nodiscard]] std::size_t StepsForward() const { return steps_.size() - done_; }

    /// The moment to go to, good until the history changes; null where there is no step that way.
    const LookMoment* Undo();
    const LookMoment* Redo();

    /// The look is kept somewhere from now on: whatever looks different is modified, and only that.
    void LookWasKept(const LookState& now);

private:
    struct Step {
        LookMoment before;
        LookMoment after;
    };

    std::deque<Step> steps_;
    /// The first so many steps are done, those after them are taken back.
    std::size_t done_ = 0;
};

} // namespace QmChart6
