#include "chartcontrol/scene/SceneBuilder.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace QmChart6 {

namespace {

struct BoundsOfGeometry {
    const Scene& scene;
    double halfStroke;

    Box operator()(const Polyline& line) const {
        return Box::Around(scene.PointsOf(line.points)).Grown(halfStroke);
    }
    Box operator()(const Polygon& polygon) const {
        return Box::Around(scene.PointsOf(polygon.points)).Grown(halfStroke);
    }
    Box operator()(const Rectangle& rectangle) const { return rectangle.box.Grown(halfStroke); }
    Box operator()(const Slice& slice) const { return slice.box.Grown(halfStroke); }
    Box operator()(const TextLine& text) const { return BoundsOf(text); }
    Box operator()(const MarkerRun& run) const {
        return Box::Around(scene.PointsOf(run.points)).Grown(run.size / 2 + halfStroke);
    }
};

} // namespace

void SceneBuilder::SetClip(std::optional<Box> clip) {
    clip_ = NoClip;
    if (!clip) return;
    const auto found = std::find(scene_.clips.begin(), scene_.clips.end(), *clip);
    clip_ = static_cast<int>(found - scene_.clips.begin());
    if (found == scene_.clips.end()) scene_.clips.push_back(*clip);
}

void SceneBuilder::AddPolyline(Part part, const Stroke& stroke, bool crisp) {
    if (PendingPoints() > 0) Append(part, Polyline{TakePoints()}, stroke, {}, crisp);
}

void SceneBuilder::AddPolygon(Part part, const SceneFill& fill, const Stroke& stroke, bool crisp) {
    if (PendingPoints() > 0) Append(part, Polygon{TakePoints()}, stroke, fill, crisp);
}

void SceneBuilder::AddMarkers(Part part, MarkerStyle style, double size, const SceneFill& fill,
                              const Stroke& stroke) {
    if (PendingPoints() > 0) Append(part, MarkerRun{TakePoints(), style, size}, stroke, fill, false);
}

void SceneBuilder::AddLine(Part part, Point from, Point to, const Stroke& stroke, bool crisp) {
    AddPoint(from);
    AddPoint(to);
    AddPolyline(part, stroke, crisp);
}

void SceneBuilder::AddRectangle(Part part, const Box& box, const SceneFill& fill, const Stroke& stroke,
                                bool crisp) {
    Append(part, Rectangle{box}, stroke, fill, crisp);
}

void SceneBuilder::AddSlice(Part part, const Slice& slice, const SceneFill& fill, const Stroke& stroke) {
    Append(part, slice, stroke, fill, false);
}

void SceneBuilder::AddText(Part part, TextLine text) {
    if (!text.text.isEmpty()) Append(part, std::move(text), {}, {}, false);
}

PointRun SceneBuilder::TakePoints() {
    const PointRun run{taken_, PendingPoints()};
    taken_ = scene_.points.size();
    return run;
}

void SceneBuilder::LeaveOut(const Geometry& geometry) {
    const auto* line = std::get_if<Polyline>(&geometry);
    const auto* polygon = std::get_if<Polygon>(&geometry);
    const auto* markers = std::get_if<MarkerRun>(&geometry);
    if (line != nullptr || polygon != nullptr || markers != nullptr) {
        const PointRun& run = line != nullptr      ? line->points
                              : polygon != nullptr ? polygon->points
                                                   : markers->points;
        scene_.points.resize(run.first);
        taken_ = run.first;
    }
    const QString sentence = QStringLiteral("a place is no finite number: what stands there is not drawn");
    if (!scene_.warnings.contains(sentence)) Warn(sentence);
}

void SceneBuilder::Append(Part part, Geometry geometry, const Stroke& stroke, const SceneFill& fill,
                          bool crisp) {
    Shape shape{part, std::move(geometry), stroke, fill, clip_, crisp, {}};
    const double halfStroke = stroke.style == PenStyle::None ? 0 : stroke.width / 2;
    shape.bounds = std::visit(BoundsOfGeometry{scene_, halfStroke}, shape.geometry);
    const bool pointsAreFinite = std::exchange(pendingAreFinite_, true);
    if (pointsAreFinite && shape.bounds.IsFinite())
        scene_.shapes.push_back(std::move(shape));
    else
        LeaveOut(shape.geometry);
}

double WidthBeforeOrigin(const TextLine& text) {
    switch (text.anchor) {
    case TextAnchor::Start:
        return 0;
    case TextAnchor::Middle:
        return text.width / 2;
    case TextAnchor::End:
        return text.width;
    }
    return 0;
}

std::array<Point, 4> CornersOf(const TextLine& text) {
    const double before = WidthBeforeOrigin(text);
    const double radians = text.angle * std::numbers::pi / 180;
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    const auto turned = [&](double along, double down) {
        return Point{text.origin.x + along * cosine + down * sine,
                     text.origin.y - along * sine + down * cosine};
    };
    const double end = text.width - before;
    return {turned(-before, -text.ascent), turned(end, -text.ascent), turned(end, text.descent),
            turned(-before, text.descent)};
}

Box BoundsOf(const TextLine& text) {
    return Box::Around(CornersOf(text));
}

SceneFill SolidFill(Colour colour) {
    return {BrushStyle::Solid, 0, colour, {}, 1};
}

SceneFill FillOf(const Brush& brush) {
    return {brush.Style, brush.Index, brush.FillColor, brush.PatternColor, 1};
}

Stroke StrokeOf(const Pen& pen) {
    return {pen.Style, pen.Width, pen.VtColor};
}

} // namespace QmChart6
