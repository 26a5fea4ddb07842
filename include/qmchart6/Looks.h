#pragma once

#include "qmchart6/Export.h"
#include "qmchart6/RuntimeError.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace QmChart6 {

// What a host or a tool does with stored looks, without a chart at hand. A folder is the text that
// SetQmChartConfigPath takes: a path that ends in a separator, or "postgresql://user@host:port/database/".
//
// Failures are RuntimeErrors: 3024 (no database there), 3044 (no valid path), 70 (no rights), 3343 (something
// else, or damaged), 3050 (kept locked by others for 5 seconds), 3015, 3078 and 3265 (an index, a table or a
// field is missing), 61 (disk full), 3151 (no server), 3146 (whatever else the database refuses), 326 (no
// look of that name).

/// Makes the empty database in a folder. Raises 58 where there is one already.
QMCHART6_EXPORT void CreateLookStore(const QString& folder);
/// Makes a place in an older store for what looks say beyond its fields. False where it has one already.
QMCHART6_EXPORT bool UpgradeLookStore(const QString& folder);

/// The names of all looks in key order.
QMCHART6_EXPORT QStringList LookNames(const QString& folder);
/// Deletes a look and every binding to it.
QMCHART6_EXPORT void DeleteStoredLook(const QString& folder, const QString& name);

/// A chart, and the look that it is bound to.
struct GraphBinding {
    QString GraphId;
    QString Name;
};
QMCHART6_EXPORT QList<GraphBinding> GraphBindings(const QString& folder);
/// Binds a chart to a look that is there, in place of the one before.
QMCHART6_EXPORT void BindGraph(const QString& folder, const QString& graphId, const QString& name);

/// A look as JSON: the fields of the tables by their names, those of its columns, series and axes in the
/// lists "Columns", "Series" and "Axes"; what it says beyond them in the list "Beyond", where there is any.
QMCHART6_EXPORT QByteArray ExportLook(const QString& folder, const QString& name);
/// Stores a look that is given as JSON under a name, "" for the one that is in it, and gives that name; one
/// of that name that is there already is replaced whole. Any field may be left out and is as in the default
/// look. Raises 321 (no JSON of this form, or no name), 3265 (a name that no look has), 13 and 6 (a value
/// that its field cannot hold), 380 (a number that means nothing), 3022 (the same said twice); then nothing
/// was stored. `valuesNotKept`, if not null, is set to the number of values beyond the fields that a store
/// without a place for them did not keep.
QMCHART6_EXPORT QString ImportLook(const QString& folder, const QByteArray& look, const QString& name = {},
                                   int* valuesNotKept = nullptr);

/// A look that was not copied, and why.
struct UncopiedLook {
    QString Name;
    QString Reason;
};
struct CopiedStore {
    int Looks = 0;
    int Bindings = 0;
    int ValuesNotKept = 0; ///< beyond the fields, where the other store has no place for them
    QList<UncopiedLook> LeftOut;
};
/// Copies all looks and bindings into another store that is there already, look by look: each is there whole,
/// in place of one of the same name, or left out with the bindings to it. Raises 5 for a store and itself.
QMCHART6_EXPORT CopiedStore CopyLookStore(const QString& from, const QString& to);

/// Raises what ImportLook would of a look, and stores nothing.
QMCHART6_EXPORT void CheckLook(const QByteArray& look);

/// From now on the chart of this graph id gets this look, given as JSON, whenever it is made with QmChYes or
/// QmChNoTitles, whatever is stored for it. Raises as ImportLook.
QMCHART6_EXPORT void UseLook(const QString& graphId, const QByteArray& look);

/// From now on charts are made in this size, in pixels, whatever their look says; 0, 0 leaves it to the look.
/// So many pixels make an inch: letters and lines of a picture have as many pixels as their points take at
/// that resolution, and 96 is a window's. Raises 380 for sides that are neither 0, 0 nor 1 to 16,384, and for
/// anything but 24 to 2,400 to an inch.
QMCHART6_EXPORT void SetChartSize(int width, int height, int pixelsPerInch = 96);

} // namespace QmChart6
