#pragma once

#include "chartcontrol/model/Plot.h"
#include "viewer/LookHistory.h"

#include <functional>
#include <optional>

namespace QmChart6 {

class Viewer;
struct ShownLook;

/// Watches a person change the look of a viewer's chart, so that it can be taken back. What the host does is
/// no part of it.
class LookChanges {
public:
    LookChanges(Viewer& viewer, ShownLook& shown) : viewer_(viewer), shown_(shown) {}

    /// Does what a person asks for, as one step. The command raises nothing.
    void Do(const std::function<void()>& command);
    /// Within a command: what was changed until now is a step of its own.
    void EndStep();
    /// Within a command: what was changed since the last step is none.
    void DropStep();
    /// A chart was turned by hand, from where it stood before.
    void Turned(const View3d& before);
    /// Title, footnote or legend was moved by hand, from where it stood before.
    void Moved(int part, const Location& before);
    /// The host took the chart over: nothing from before can be taken back.
    void Restart();
    /// The look was kept, or is that of a kept one.
    void LookWasKept();

    /// Take the last step back, and do it again; nothing where there is none.
    void Undo();
    void Redo();

private:
    [[nodiscard]] LookMoment Now() const;
    void GoTo(const LookMoment* moment);

    Viewer& viewer_;
    ShownLook& shown_;
    LookHistory history_;
    /// How it was when the command that runs began, or last ended a step.
    std::optional<LookMoment> before_;
};

} // namespace QmChart6
