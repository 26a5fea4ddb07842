#pragma once

#include "chartcontrol/widget/ChartPart.h"

#include <QString>

namespace QmChart6 {

class ControlBarCommands;
class GraphTextProperties;
class LookChanges;
class Viewer;
struct ShownLook;

/// Edits the parts of a viewer's chart, each in the dialog that is for it. Dialogs are loaded afresh for each
/// edit; what they write is seen at once.
class ElementEditing {
public:
    ElementEditing(Viewer& viewer, ShownLook& shown, LookChanges& changes, ControlBarCommands& bar)
        : viewer_(viewer), shown_(shown), changes_(changes), bar_(bar) {}

    /// What the editing of a part is called, by the part's code; "" for a part that has no dialog of its own.
    [[nodiscard]] static QString Caption(int part);

    /// Edits the selected part in its own dialog, and makes the viewer modified. Raises 91 where the part is
    /// gone from the chart when it is read or written, and for a part that has no dialog of its own.
    void EditSelected();
    /// Edits the chart as a whole.
    void EditChart();
    /// Edits the selected part where it has a dialog of its own, otherwise the chart.
    void Activate();

private:
    void EditSeries(int series);
    void EditText(const ChartPart& part);
    void KeepTitleInPlace(GraphTextProperties& dialog);
    void Show();

    Viewer& viewer_;
    ShownLook& shown_;
    LookChanges& changes_;
    ControlBarCommands& bar_;
};

} // namespace QmChart6
