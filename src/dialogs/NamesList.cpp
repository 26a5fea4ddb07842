#include "dialogs/NamesList.h"

#include <QKeyEvent>

namespace QmChart6 {

NamesList::NamesList(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::itemSelectionChanged, this, &NamesList::LeaveUnselected);
}

void NamesList::LeaveUnselected() {
    if (selectedItems().isEmpty() && currentItem() != nullptr)
        setCurrentItem(nullptr, QItemSelectionModel::NoUpdate);
}

/// The toolkit would make the first name current, and leave it unselected.
void NamesList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    LeaveUnselected();
}

void NamesList::keyPressEvent(QKeyEvent* event) {
    if (currentItem() == nullptr && count() > 0) {
        switch (event->key()) {
        case Qt::Key_Down:
        case Qt::Key_Up:
        case Qt::Key_PageDown:
        case Qt::Key_PageUp:
        case Qt::Key_Home:
        case Qt::Key_Space:
            return setCurrentRow(0);
        case Qt::Key_End:
            return setCurrentRow(count() - 1);
        default:
            break;
        }
    }
    QListWidget::keyPressEvent(event);
}

QItemSelectionModel::SelectionFlags NamesList::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const {
    // Moving without selecting is for lists of which many names can be selected.
    if (event != nullptr && event->type() == QEvent::KeyPress && index.isValid())
        return QItemSelectionModel::ClearAndSelect;
    return QListWidget::selectionCommand(index, event);
}

} // namespace QmChart6
