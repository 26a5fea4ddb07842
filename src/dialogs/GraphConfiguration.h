#pragma once

#include "dialogs/PropertyDialog.h"

class QCheckBox;
class QLabel;

namespace QmChart6 {

class NamesList;
class Viewer;

/// Picks a stored look for a viewer: loads it with or without its texts, makes it what the chart is bound to,
/// or deletes it.
class GraphConfiguration : public PropertyDialog {
    Q_OBJECT

public:
    explicit GraphConfiguration(QWidget* owner);

    /// Shows the stored looks, the viewer's own selected, and loads what is chosen into the viewer. Without
    /// chkDefault the viewer stays bound to the look that it had.
    void Execute(Viewer& viewer);

private:
    void MakeList();
    void MakeOptions();
    void FillList();
    void Load();
    void Delete();
    void MakeHint();
    /// What can be done, and what OK will do.
    void FollowSelection();
    /// The name that is selected; "" for none.
    [[nodiscard]] QString Selected() const;

    Viewer* viewer_ = nullptr;
    NamesList* lstConfig_ = nullptr;
    QCheckBox* chkTitles_ = nullptr;
    QCheckBox* chkDefault_ = nullptr;
    QPushButton* btnDelete_ = nullptr;
    QLabel* lblHint_ = nullptr;
};

} // namespace QmChart6
