#include "viewer/ViewerStatusBar.h"

#include "text/LocalText.h"

#include <QPainter>

namespace QmChart6 {

namespace {

// Logical pixels.
constexpr int LeastWidth = 60;
constexpr int MostWidth = 240;
constexpr int RuleMargin = 4;

} // namespace

ViewerStatusBar::ViewerStatusBar(QWidget* parent)
    : QStatusBar(parent),
      panels_{new StatusPanel(LeastWidth, MostWidth, this), new StatusPanel(LeastWidth, MostWidth, this),
              new StatusPanel(0, MostWidth, this), new StatusPanel(LeastWidth, 8 * MostWidth, this)} {
    for (int number = 1; number <= 4; ++number) {
        StatusPanel& panel = Panel(number);
        panel.setObjectName(QStringLiteral("sbGraphPanel%1").arg(number));
        addWidget(&panel, number == 4 ? 1 : 0);
    }
    Panel(3).hide();
    Panel(1).setToolTip(LocalText(TextKey::ChartName));
    Panel(2).setToolTip(LocalText(TextKey::ConfigurationName));
    Panel(4).setToolTip(LocalText(TextKey::Status));
}

void ViewerStatusBar::paintEvent(QPaintEvent* /*event*/) {
    // A hair line between panels and above the bar, in place of the sunken boxes that some styles draw.
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, 0, width() - 1, 0);
    for (const StatusPanel* panel : panels_) {
        if (panel == panels_.front() || panel->isHidden()) continue;
        const int at = panel->x() - RuleMargin / 2;
        painter.drawLine(at, RuleMargin, at, height() - RuleMargin);
    }
}

} // namespace QmChart6
