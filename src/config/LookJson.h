#pragma once

#include "config/Look.h"

#include <QByteArray>

namespace QmChart6 {

/// A look with the name that it is kept under; "" for none.
struct NamedLook {
    QString name;
    Look look;
};

/// A look as JSON: an object with the whole chart's fields, and the lists "Columns", "Series" and "Axes" with
/// one object a record. What the look says beyond these fields is a list "Beyond" of records {"Element",
/// "Field", "Value"}, where there is any. Fields are sorted by name, one a line, so that two versions compare
/// well.
QByteArray WriteLookJson(const NamedLook& named);

/// Reads the same. Any field may be left out; a record without its number has that of its place in the list.
/// Raises 321 (no JSON of this form), 3265 (a name that no look has), 13 and 6 (a value that its field cannot
/// hold), 380 (no number of a column, series or axis; a value beyond them that means nothing), 3022 (a number
/// or a property twice).
NamedLook ReadLookJson(const QByteArray& json);

} // namespace QmChart6
