#pragma once

#include <QWidget>

namespace QmChart6 {

/// The small window that tells, while it is there, that something is being printed.
class GraphPrinting : public QWidget {
    Q_OBJECT

public:
    /// Shows itself, over `owner` where there is one, before it returns.
    explicit GraphPrinting(QWidget* owner);
};

} // namespace QmChart6
