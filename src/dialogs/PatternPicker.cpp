#include "dialogs/PatternPicker.h"

#include "base/Units.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/scene/SceneBuilder.h"
#include "text/LocalHint.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace QmChart6 {

namespace {

// In logical pixels. The groups have origins of their own, so that they stand apart.
constexpr QPoint Origin{2, 2};
constexpr int Side = 20;
constexpr int PlainSide = 60;
constexpr int HatchTop = 80;
constexpr QPoint PatternOrigin{120, 0};
constexpr int PatternColumns = 3;
constexpr int Gap = 2; // between a box's edge and what it shows

/// The share of a dotted area that its pattern covers, in percent, for the patterns that come first.
constexpr std::array Shares{94, 88, 75, 50, 25};
/// What the patterns behind those show, and the hatches.
constexpr std::array PatternNames{Hint::BoldHorizontalLines,
                                  Hint::BoldVerticalLines,
                                  Hint::BoldFallingLines,
                                  Hint::BoldRisingLines,
                                  Hint::Checks,
                                  Hint::Weave,
                                  Hint::HorizontalLines,
                                  Hint::VerticalLines,
                                  Hint::FallingLines,
                                  Hint::RisingLines,
                                  Hint::Squares,
                                  Hint::Trellis,
                                  Hint::InvertedTrellis};
constexpr std::array HatchNames{Hint::HorizontalHatch, Hint::VerticalHatch, Hint::FallingHatch,
                                Hint::RisingHatch,     Hint::CrossHatch,    Hint::DiagonalCrossHatch};
static_assert(HatchNames.size() == HatchCount && Shares.size() + PatternNames.size() == PatternCount);

QString NameOfPattern(int index) {
    const auto place = static_cast<std::size_t>(index);
    if (place < Shares.size()) return LocalHint(Hint::Dots).arg(Shares[place]);
    return LocalHint(PatternNames.at(place - Shares.size()));
}

QRect PlaceOf(BrushStyle style, int index) {
    switch (style) {
    case BrushStyle::Hatch:
        return {Side * index, HatchTop, Side, Side};
    case BrushStyle::Pattern:
        return {PatternOrigin.x() + Side * (index % PatternColumns + 1),
                PatternOrigin.y() + Side * (index / PatternColumns), Side, Side};
    case BrushStyle::None:
    case BrushStyle::Solid:
        break;
    }
    return {PlainSide * index, 0, PlainSide, PlainSide};
}

} // namespace

PatternPicker::PatternPicker(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const auto add = [this](BrushStyle style, int index, const QString& name) {
        boxes_.push_back({style, index, PlaceOf(style, index).translated(Origin)});
        names_.push_back(name);
    };
    // The two plain choices are numbered as one group.
    add(BrushStyle::None, 0, LocalHint(Hint::NoFill));
    add(BrushStyle::Solid, 1, LocalHint(Hint::SolidFill));
    for (int index = 0; index < HatchCount; ++index)
        add(BrushStyle::Hatch, index, LocalHint(HatchNames.at(static_cast<std::size_t>(index))));
    for (int index = 0; index < PatternCount; ++index) add(BrushStyle::Pattern, index, NameOfPattern(index));
}

int PatternPicker::LeftEdge() {
    return Origin.x() + Gap - 1;
}

QSize PatternPicker::sizeHint() const {
    QRect all;
    for (const Box& box : boxes_) all |= box.place;
    return {all.right() + 1 + Origin.x(), all.bottom() + 1 + Origin.y()};
}

void PatternPicker::Select(BrushStyle style, int index) {
    style_ = style;
    index_ = index;
    setAccessibleDescription(NameOf(SelectedBox()));
    update();
}

void PatternPicker::SetColours(Colour fill, Colour pattern) {
    fill_ = fill;
    pattern_ = pattern;
    update();
}

QString PatternPicker::NameOf(int box) const {
    if (box < 0 || box >= static_cast<int>(names_.size())) return {};
    return names_[static_cast<std::size_t>(box)];
}

int PatternPicker::SelectedBox() const {
    const auto found = std::find_if(boxes_.begin(), boxes_.end(), [this](const Box& box) {
        const bool plain = style_ == BrushStyle::None || style_ == BrushStyle::Solid;
        return box.style == style_ && (plain || box.index == index_);
    });
    return found == boxes_.end() ? NoBox : static_cast<int>(found - boxes_.begin());
}

int PatternPicker::BoxAt(QPoint place) const {
    const auto found = std::find_if(boxes_.begin(), boxes_.end(),
                                    [place](const Box& box) { return box.place.contains(place); });
    return found == boxes_.end() ? NoBox : static_cast<int>(found - boxes_.begin());
}

/// The box above or below, the nearest one first; the box itself where there is none.
int PatternPicker::BoxBeside(int box, QPoint direction) const {
    const QPoint from = boxes_[static_cast<std::size_t>(box)].place.center();
    int best = box;
    int bestDistance = std::numeric_limits<int>::max();
    for (int other = 0; other < static_cast<int>(boxes_.size()); ++other) {
        const QPoint way = boxes_[static_cast<std::size_t>(other)].place.center() - from;
        const int along = QPoint::dotProduct(way, direction);
        const int across = std::abs(QPoint::dotProduct(way, {direction.y(), direction.x()}));
        if (along <= 0 || across > PlainSide / 2 || along + across >= bestDistance) continue;
        best = other;
        bestDistance = along + across;
    }
    return best;
}

void PatternPicker::Choose(int box) {
    const Box& chosen = boxes_[static_cast<std::size_t>(box)];
    Select(chosen.style, chosen.index);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
    Q_EMIT Chosen();
}

bool PatternPicker::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<const QHelpEvent*>(event);
    const int box = BoxAt(help->pos());
    if (box == NoBox)
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), NameOf(box), this, boxes_[static_cast<std::size_t>(box)].place);
    return true;
}

void PatternPicker::mousePressEvent(QMouseEvent* event) {
    const int box = event->button() == Qt::LeftButton ? BoxAt(event->position().toPoint()) : NoBox;
    if (box != NoBox) Choose(box);
}

/// Where a key leads from a box; nothing for a key that leads nowhere.
std::optional<int> PatternPicker::BoxByKey(int key, int from) const {
    const int last = static_cast<int>(boxes_.size()) - 1;
    switch (key) {
    case Qt::Key_Left:
        return std::max(0, from - 1);
    case Qt::Key_Right:
        return std::min(last, from + 1);
    case Qt::Key_Up:
        return BoxBeside(from, {0, -1});
    case Qt::Key_Down:
        return BoxBeside(from, {0, 1});
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

void PatternPicker::keyPressEvent(QKeyEvent* event) {
    const int selected = SelectedBox();
    const std::optional<int> to = BoxByKey(event->key(), std::max(0, selected));
    if (!to)
        QWidget::keyPressEvent(event);
    else if (*to != selected)
        Choose(*to);
}

/// The boxes' insides as a chart would be filled, in device pixels.
QImage PatternPicker::Swatches(double pixelRatio) const {
    QImage picture(QSize(static_cast<int>(std::ceil(width() * pixelRatio)),
                         static_cast<int>(std::ceil(height() * pixelRatio))),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    Scene scene;
    SceneBuilder builder(scene);
    for (const Box& box : boxes_) {
        const QRectF inside = QRectF(box.place.adjusted(Gap, Gap, -Gap, -Gap));
        const Brush brush{
            .Style = box.style, .Index = box.index, .FillColor = fill_, .PatternColor = pattern_};
        builder.AddRectangle({},
                             {inside.left() * PointsPerPixel, inside.top() * PointsPerPixel,
                              inside.right() * PointsPerPixel, inside.bottom() * PointsPerPixel},
                             FillOf(brush));
    }
    QPainter painter(&picture);
    PaintScene(scene, painter, pixelRatio / PointsPerPixel, PaintTarget::Raster);
    painter.end();
    picture.setDevicePixelRatio(pixelRatio);
    return picture;
}

void PatternPicker::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawImage(QPoint(), Swatches(devicePixelRatioF()));
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.4F);
    painter.setPen(QPen(line, 0));
    for (const Box& box : boxes_) {
        const QRect frame = box.place.adjusted(Gap - 1, Gap - 1, -Gap, -Gap);
        painter.drawRect(frame);
        if (box.style == BrushStyle::None) painter.drawLine(frame.bottomLeft(), frame.topRight());
    }
    const int selected = SelectedBox();
    if (selected == NoBox) return;
    const QRect place = boxes_[static_cast<std::size_t>(selected)].place;
    painter.setPen(QPen(palette().color(QPalette::Highlight), Gap));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

} // namespace QmChart6
