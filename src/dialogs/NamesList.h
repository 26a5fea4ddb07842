#pragma once

#include <QListWidget>

namespace QmChart6 {

/// A list of names of which one is selected, or none. The focus frame is on the selected one only: with none,
/// there is none, and the first key selects.
class NamesList : public QListWidget {
public:
    explicit NamesList(QWidget* parent);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    /// Without a selection there is no current name either.
    void LeaveUnselected();
};

} // namespace QmChart6
