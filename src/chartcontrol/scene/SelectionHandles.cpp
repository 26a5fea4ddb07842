#include "chartcontrol/scene/SelectionHandles.h"

#include "chartcontrol/scene/Anchor.h"
#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <algorithm>
#include <map>

namespace QmChart6 {

namespace {

// Points: a handle's width, that of the current point, and the width of their edges.
constexpr double HandleSize = 4.5;
constexpr double CurrentSize = 6;
constexpr double EdgeWidth = 0.75;
constexpr Colour EdgeColour{38, 50, 56};
constexpr Colour Inside{255, 255, 255};

double AreaOf(const Box& box) {
    return box.Width() * box.Height();
}

/// The points of the lines, areas or markers that stand for many data points, of the first kind there is.
std::vector<Point> RunPoints(const Scene& scene, const std::vector<std::size_t>& shapes) {
    std::vector<Point> markers;
    std::vector<Point> lines;
    std::vector<Point> areas;
    std::vector<Point> bars;
    const Stroke* line = nullptr;
    const auto append = [&](std::vector<Point>& to, PointRun run) {
        const std::span<const Point> points = scene.PointsOf(run);
        to.insert(to.end(), points.begin(), points.end());
    };
    for (const std::size_t index : shapes) {
        const Shape& shape = scene.shapes[index];
        if (shape.part.index2 != 0) continue;
        if (const auto* run = std::get_if<MarkerRun>(&shape.geometry)) append(markers, run->points);
        if (const auto* polygon = std::get_if<Polygon>(&shape.geometry)) append(areas, polygon->points);
        if (std::holds_alternative<Rectangle>(shape.geometry)) bars.push_back(AnchorOf(scene, shape));
        const auto* polyline = std::get_if<Polyline>(&shape.geometry);
        if (polyline == nullptr) continue;
        // The series' own line comes first; lines of another look are its statistics.
        if (line == nullptr) line = &shape.stroke;
        if (shape.stroke == *line) append(lines, polyline->points);
    }
    // A few markers beside a line are its lone samples.
    if (markers.size() > lines.size()) return markers;
    return !lines.empty() ? lines : !areas.empty() ? areas : bars;
}

std::vector<Point> SeriesPlaces(const Scene& scene, const std::vector<std::size_t>& shapes) {
    // Of the faces that a mark in space has, the largest shows where it is.
    std::map<int, const Shape*> marks;
    for (const std::size_t index : shapes) {
        const Shape& shape = scene.shapes[index];
        if (shape.part.index2 == 0) continue;
        const Shape*& mark = marks[shape.part.index2];
        if (mark == nullptr || AreaOf(shape.bounds) > AreaOf(mark->bounds)) mark = &shape;
    }
    std::vector<Point> places;
    for (const auto& [category, shape] : marks) places.push_back(AnchorOf(scene, *shape));
    const std::vector<Point> run = RunPoints(scene, shapes);
    // Single markers are points of a line with a look of their own; other single marks are all there is.
    const bool onRun = std::any_of(marks.begin(), marks.end(), [](const auto& mark) {
        return std::holds_alternative<MarkerRun>(mark.second->geometry);
    });
    return places.empty() || (onRun && !run.empty()) ? run : places;
}

std::vector<Point> Thinned(const std::vector<Point>& places) {
    if (places.size() <= MostHandles) return places;
    std::vector<Point> thinned;
    for (std::size_t i = 0; i < MostHandles; ++i)
        thinned.push_back(places[i * (places.size() - 1) / (MostHandles - 1)]);
    return thinned;
}

std::vector<Point> CornerPlaces(const Box& box) {
    // A box too flat for handles above each other gets them in its middle.
    const Point center = box.Center();
    const bool flat = box.Height() < HandleSize;
    const bool narrow = box.Width() < HandleSize;
    if (flat && narrow) return {center};
    if (flat) return {{box.left, center.y}, {box.right, center.y}};
    if (narrow) return {{center.x, box.top}, {center.x, box.bottom}};
    return {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}};
}

Box BoundsOf(const Scene& scene, const std::vector<std::size_t>& shapes) {
    Box bounds = scene.shapes[shapes.front()].bounds;
    for (const std::size_t index : shapes) {
        const Box& box = scene.shapes[index].bounds;
        bounds = {std::min(bounds.left, box.left), std::min(bounds.top, box.top),
                  std::max(bounds.right, box.right), std::max(bounds.bottom, box.bottom)};
    }
    return bounds;
}

void AddHandle(SceneBuilder& builder, const Part& part, Point at, double size, bool dark) {
    const Size& whole = builder.Built().size;
    const double reach = (size + EdgeWidth) / 2;
    const Point center{std::clamp(at.x, reach, std::max(reach, whole.width - reach)),
                       std::clamp(at.y, reach, std::max(reach, whole.height - reach))};
    const Box box{center.x - size / 2, center.y - size / 2, center.x + size / 2, center.y + size / 2};
    builder.AddRectangle(part, box, SolidFill(dark ? EdgeColour : Inside),
                         {PenStyle::Solid, EdgeWidth, dark ? Inside : EdgeColour});
}

} // namespace

std::vector<Point> HandlePlaces(const Scene& scene, const Part& part) {
    if (part.code == PartCode::Chart) return CornerPlaces({0, 0, scene.size.width, scene.size.height});
    const std::vector<std::size_t> shapes = Find(scene, part);
    if (shapes.empty()) return {};
    if (part.code == PartCode::Series) return Thinned(SeriesPlaces(scene, shapes));
    return CornerPlaces(BoundsOf(scene, shapes));
}

Scene SelectionHandles(const Scene& scene, const Part& part, std::optional<Point> current) {
    Scene handles;
    handles.size = scene.size;
    SceneBuilder builder(handles);
    for (const Point& place : HandlePlaces(scene, part)) AddHandle(builder, part, place, HandleSize, false);
    if (current) AddHandle(builder, part, *current, CurrentSize, true);
    return handles;
}

} // namespace QmChart6
