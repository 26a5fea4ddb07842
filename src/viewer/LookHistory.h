#pragma once

#include "chartcontrol/model/Chart.h"

#include <cstddef>
#include <cstdint>
#include <deque>

namespace QmChart6 {

/// All of a viewer that a person's editing changes, as a value.
struct LookState {
    QmChart6::Chart Chart;
    std::int16_t Lines = 0;
    std::int16_t Markers = 0;
    std::int16_t Stacked = 0;
    std::int16_t FullStacked = 0;
    bool ControlBar = true;
    bool Modified = false;

    /// Whether both look alike; being modified and the current cell are not seen.
    [[nodiscard]] bool LooksLike(const LookState& other) const;
};

/// What a person did to a look, step by step, to be taken back and done again.
class LookHistory {
public:
    /// Older steps are forgotten.
    static constexpr std::size_t MostSteps = 100;

    /// Adds a step, and forgets what was taken back before it. What changed nothing is no step.
    void Add(const LookState& before, const LookState& after);
    void Clear();

    [[nodiscard]] std::size_t StepsBack() const { return done_; }
    [[nodiscard]] std::size_t StepsForward() const { return steps_.size() - done_; }

    /// The state to go to, good until the history changes; null where there is no step that way.
    const LookState* Undo();
    const LookState* Redo();

    /// The look is kept somewhere from now on: whatever looks different is modified, and only that.
    void LookWasKept(const LookState& now);

private:
    struct Step {
        LookState before;
        LookState after;
    };

    std::deque<Step> steps_;
    /// The first so many steps are done, those after them are taken back.
    std::size_t done_ = 0;
};

} // namespace QmChart6
