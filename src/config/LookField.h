#pragma once

#include "config/LookState.h"
#include "database/Schema.h"

#include <functional>

namespace QmChart6 {

/// What one record of a look is about: the look as a whole (number 0), or its column, series or axis of that
/// number.
struct LookPart {
    LookState& look;
    int number = 0;
};

/// When a field of the whole look is applied. An option that spreads over many parts of a chart goes before
/// what may differ from part to part: columns are applied before View, series and axes before Texts. Fields
/// of one step are applied in the order that they are written in.
enum class Step {
    Size,
    Maximized,
    Type,
    Flip,
    Stacking,
    PieLabels,
    Marks,
    View,
    Projection,
    Texts,
    Legend,
    ControlBar,
    PlotPlace,
    PlotLayout,
    Places,
};

/// A field of a look: what it is called and holds where looks are kept, and how a look is asked for it and
/// given it. The functions raise what a chart raises, 380 for a number that means nothing.
struct LookField {
    QString name;
    FieldKind kind = FieldKind::Text;
    std::function<FieldValue(const LookPart&)> get;
    std::function<void(const LookPart&, const FieldValue&)> set;
    Step step = Step::Texts; ///< of a field of the whole look
    int together = 1;        ///< so many fields, from this one on, are given as one or not at all
    bool isTitle = false;    ///< a text of the data, which a load without titles leaves alone
};

} // namespace QmChart6
