#include "chartcontrol/widget/ChartControl.h"

#include "base/Units.h"
#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/paint/ChartMimeData.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/PictureFormat.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "desktop/CurrentDesktop.h"

#include <QPaintEvent>
#include <QPainter>

#include <memory>

namespace QmChart6 {

ChartControl::ChartControl(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

ChartControl::~ChartControl() = default;

void ChartControl::SetRepaint(bool on) {
    repaint_ = on;
    if (on) Refresh();
}

void ChartControl::Refresh() {
    if (!repaint_) return;
    laidOut_.reset();
    DropSelectionThatIsGone();
    update();
}

double ChartControl::PixelsPerPoint() const {
    return devicePixelRatioF() / PointsPerPixel;
}

const LaidOutChart& ChartControl::CurrentLayout() {
    const double pixelsPerPoint = PixelsPerPoint();
    const bool otherScreen = repaint_ && scenePixelsPerPoint_ != pixelsPerPoint;
    if (!laidOut_ || otherScreen) {
        const Size size{width() * PointsPerPixel, height() * PointsPerPixel};
        laidOut_ = LayOut(chart_, {.size = size, .pixelsPerPoint = pixelsPerPoint}, QtTextMeasurer());
        scenePixelsPerPoint_ = pixelsPerPoint;
        picture_ = QImage();
    }
    return *laidOut_;
}

void ChartControl::CopyToClipboard() const {
    CurrentDesktop().SetClipboard(std::make_unique<ChartMimeData>(Picture{chart_, width(), height()}));
}

void ChartControl::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(QPoint(0, 0), CurrentPicture());
    PaintSelection(painter);
    PaintDrag(painter);
}

/// The scene in the screen's own pixels: what only uncovers or selects parts of the chart paints no shape
/// anew.
const QImage& ChartControl::CurrentPicture() {
    const Scene& scene = CurrentScene();
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo({1, 1});
    if (picture_.size() == pixels) return picture_;
    picture_ = QImage(pixels, QImage::Format_RGB32);
    // White in every palette: a chart looks on the screen as it will on paper and in a file.
    picture_.fill(Qt::white);
    QPainter painter(&picture_);
    PaintScene(scene, painter, PixelsPerPoint(), PaintTarget::Raster);
    painter.end();
    picture_.setDevicePixelRatio(devicePixelRatioF());
    return picture_;
}

void ChartControl::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Refresh();
}

} // namespace QmChart6
