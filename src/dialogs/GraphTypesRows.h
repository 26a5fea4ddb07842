#pragma once

#include "config/LookState.h"

#include <functional>
#include <vector>

class QWidget;

namespace QmChart6 {

struct GraphTypesControls;

/// A control of the graph properties dialog: what it shows of a look, and what choosing another value does to
/// one. Values are plain numbers: 0, 1 or 2 (gray, some have it) of a check box, the code of a list's item, a
/// colour with red in its low byte.
struct GraphTypesRow {
    QWidget* box;
    std::function<int(const LookState& look)> read;
    std::function<void(LookState& look, int value)> operation;
};

// In the order that they are written back in.

/// The settings that the sample shows at once.
std::vector<GraphTypesRow> SettingRows(const GraphTypesControls& form);
/// Those of the data labels, which it does not show.
std::vector<GraphTypesRow> LabelRows(const GraphTypesControls& form);

[[nodiscard]] int ValueOf(const QWidget& box);
/// No handler answers.
void ShowValue(QWidget& box, int value);

} // namespace QmChart6
