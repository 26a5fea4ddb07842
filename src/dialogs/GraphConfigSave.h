#pragma once

#include "dialogs/PropertyDialog.h"

namespace QmChart6 {

class Viewer;

/// Names the look that a viewer is to be saved under, and asks before it takes the place of another.
class GraphConfigSave : public PropertyDialog {
    Q_OBJECT

public:
    explicit GraphConfigSave(QWidget* owner);

    /// Asks for a name, the viewer's own at first, and saves the viewer's look under it.
    void Execute(Viewer& viewer);

private:
    /// Whether the name may be used: it is new, or the person says so.
    [[nodiscard]] bool Confirm(const QString& name);

    QLineEdit* txtConfig_;
};

/// A question with a name in it, in the place of its first "_", or at its end where it has none.
QString WithName(const QString& question, const QString& name);

} // namespace QmChart6
