#pragma once

#include <QDialog>

namespace QmChart6 {

/// A card of what the keys and the mouse do in a viewer, in the process' language.
class KeysCard : public QDialog {
    Q_OBJECT

public:
    explicit KeysCard(QWidget* owner);
};

} // namespace QmChart6
