#pragma once

#include <QList>
#include <QString>

namespace QmChart6 {

/// A look that was not copied, and why.
struct LookLeftOut {
    QString name;
    QString reason;
};

struct CopiedLooks {
    int looks = 0;
    int bindings = 0;
    int valuesNotKept = 0; ///< beyond the fields of the looks' tables, where the other has no place for them
    QList<LookLeftOut> leftOut = {};
};

/// Copies all looks and bindings into another database that is there already, look by look: each is there
/// whole, in place of one of the same name, or not at all. One that cannot be read, or that the other
/// database refuses, is left out with the bindings to it. Raises 5 where both are the same store, and as
/// Database.
CopiedLooks CopyLooks(const QString& from, const QString& to);

} // namespace QmChart6
