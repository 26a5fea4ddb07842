#pragma once

#include "viewer/StatusPanel.h"

#include <QStatusBar>

#include <array>

namespace QmChart6 {

/// A viewer's status bar: four panels. Panel 1 holds the graph id, 2 the name of the bound stored look, 4 the
/// passing message; 3 is free.
class ViewerStatusBar : public QStatusBar {
    Q_OBJECT

public:
    explicit ViewerStatusBar(QWidget* parent = nullptr);

    /// Panels 1 to 4.
    [[nodiscard]] StatusPanel& Panel(int number) const {
        return *panels_.at(static_cast<std::size_t>(number) - 1);
    }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::array<StatusPanel*, 4> panels_;
};

} // namespace QmChart6
