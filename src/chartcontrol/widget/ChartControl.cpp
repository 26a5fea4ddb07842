#include "chartcontrol/widget/ChartControl.h"

#include "base/Twips.h"
#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/paint/ChartMimeData.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/PictureFormat.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/widget/AccessibleChart.h"
#include "desktop/Desktop.h"

#include <QPaintEvent>
#include <QPainter>

#include <memory>

namespace QmChart6 {

ChartControl::ChartControl(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    InstallAccessibleCharts();
}

ChartControl::~ChartControl() = default;

void ChartControl::SetRepaint(bool on) {
    repaint_ = on;
    if (on) Refresh();
}

void ChartControl::Refresh() {
    if (!repaint_) return;
    scene_.reset();
    DropSelectionThatIsGone();
    update();
}

double ChartControl::PixelsPerPoint() const {
    return devicePixelRatioF() / PointsPerPixel;
}

const Scene& ChartControl::CurrentScene() {
    const double pixelsPerPoint = PixelsPerPoint();
    const bool otherScreen = repaint_ && scenePixelsPerPoint_ != pixelsPerPoint;
    if (!scene_ || otherScreen) {
        const Size size{width() * PointsPerPixel, height() * PointsPerPixel};
        scene_ = LayOut(chart_, {.size = size, .pixelsPerPoint = pixelsPerPoint}, QtTextMeasurer());
        scenePixelsPerPoint_ = pixelsPerPoint;
    }
    return *scene_;
}

void ChartControl::CopyToClipboard() const {
    CurrentDesktop().SetClipboard(std::make_unique<ChartMimeData>(Picture{chart_, width(), height()}));
}

void ChartControl::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    // White in every palette: a chart looks on the screen as it will on paper and in a file.
    painter.fillRect(event->rect(), Qt::white);
    painter.setClipRegion(event->region());
    // The painter's unit is the logical pixel; Qt applies the screen's own scale behind it.
    PaintScene(CurrentScene(), painter, 1 / PointsPerPixel, PaintTarget::Raster);
    PaintSelection(painter);
}

void ChartControl::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Refresh();
}

} // namespace QmChart6
