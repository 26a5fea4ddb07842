#pragma once

#include "config/LookState.h"
#include "database/Schema.h"

#include <functional>
#include <vector>

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
    bool isTitle = false;    ///< a text of the data, which a load without titles leaves alone
};

/// The records of one kind in a look, with all their fields but the keys, in the order that they are written.
struct LookTable {
    QString name;
    QString partsName;   ///< what the records are together: "Series"
    QString numberField; ///< the field behind the look's name in the key; "" where a look has one record
    std::vector<LookField> fields;

    /// Raises 3265 for a name that is none of the fields'.
    [[nodiscard]] const LookField& Field(const QString& field) const;
};

/// The four kinds of records of a look. These lists are all there is: the tables, saving, loading and the
/// tools are made from them.
const LookTable& ChartLook();
const LookTable& ColumnsLook();
const LookTable& SeriesLook();
const LookTable& AxesLook();

/// The field of every table that holds the look's name.
inline constexpr const char* LookNameField = "ConfigId";

} // namespace QmChart6
