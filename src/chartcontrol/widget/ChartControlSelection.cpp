#include "base/Units.h"
#include "chartcontrol/layout/SelectionHandles.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/widget/ChartControl.h"

#include <QPainter>

// What part of the chart is where, and which is selected.

namespace QmChart6 {

void ChartControl::TwipsToChartPart(int x, int y, int& part, int& index1, int& index2, int& index3,
                                    int& index4) {
    const bool isInside = x >= 0 && y >= 0 && x < TwipsOfPixels(width()) && y < TwipsOfPixels(height());
    constexpr double pointsPerTwip = 1.0 / TwipsPerPoint;
    const ChartPart found =
        isInside ? PartAt(CurrentLayout(), {x * pointsPerTwip, y * pointsPerTwip}) : ChartPart{};
    part = found.part;
    index1 = found.index1;
    index2 = found.index2;
    index3 = found.index3;
    index4 = found.index4;
}

ChartPart ChartControl::PartAtPixel(const QPointF& place) {
    if (!QRectF(rect()).contains(place)) return {};
    return PartAt(CurrentLayout(), {place.x() * PointsPerPixel, place.y() * PointsPerPixel});
}

void ChartControl::SelectPart(int part, int index1, int index2, int index3, int index4) {
    const ChartPart wanted = part == NoPart ? ChartPart{} : ChartPart{part, index1, index2, index3, index4};
    RequirePart(chart_, wanted);
    Select(wanted);
}

void ChartControl::GetSelectedPart(int& part, int& index1, int& index2, int& index3, int& index4) const {
    part = selected_.part;
    index1 = selected_.index1;
    index2 = selected_.index2;
    index3 = selected_.index3;
    index4 = selected_.index4;
}

void ChartControl::Select(const ChartPart& part) {
    if (selected_ == part) return;
    selected_ = part;
    update();
    Q_EMIT PartSelected(part.part, part.index1, part.index2, part.index3, part.index4);
}

void ChartControl::DropSelectionThatIsGone() {
    if (!HasPart(chart_, selected_)) Select({});
}

QPoint ChartControl::PlaceOfSelection() {
    std::optional<Point> place;
    if (selected_.IsOfSeries()) place = CurrentLayout().places.At({selected_.index1, selected_.index2});
    if (!place && !selected_.IsNone()) {
        const std::vector<Point> handles = HandlePlaces(CurrentLayout(), ShapesOf(selected_));
        if (!handles.empty()) place = handles.front();
    }
    if (!place) return rect().center();
    return QPointF(place->x / PointsPerPixel, place->y / PointsPerPixel).toPoint();
}

void ChartControl::PaintSelection(QPainter& painter) {
    if (selected_.IsNone()) return;
    const LaidOutChart& laidOut = CurrentLayout();
    std::optional<Point> current;
    if (selected_.IsOfSeries()) current = laidOut.places.At({selected_.index1, selected_.index2});
    PaintScene(SelectionHandles(laidOut, ShapesOf(selected_), current), painter, 1 / PointsPerPixel,
               PaintTarget::Raster);
}

} // namespace QmChart6
