#include "chartcontrol/layout/SelectionHandles.h"

#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <algorithm>

namespace QmChart6 {

namespace {

// Points: a handle's width, that of the current point, and the width of their edges.
constexpr double HandleSize = 4.5;
constexpr double CurrentSize = 6;
constexpr double EdgeWidth = 0.75;
constexpr Colour EdgeColour{38, 50, 56};
constexpr Colour Inside{255, 255, 255};

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

std::vector<Point> HandlePlaces(const LaidOutChart& laidOut, const Part& part) {
    const Scene& scene = laidOut.scene;
    if (part.code == PartCode::Chart) return CornerPlaces({0, 0, scene.size.width, scene.size.height});
    if (part.code == PartCode::Series) return Thinned(laidOut.places.OfSeries(part.index1));
    const std::optional<Box> bounds = BoundsOf(scene, part);
    return bounds ? CornerPlaces(*bounds) : std::vector<Point>{};
}

Scene SelectionHandles(const LaidOutChart& laidOut, const Part& part, std::optional<Point> current) {
    Scene handles;
    handles.size = laidOut.scene.size;
    SceneBuilder builder(handles);
    for (const Point& place : HandlePlaces(laidOut, part)) AddHandle(builder, part, place, HandleSize, false);
    if (current) AddHandle(builder, part, *current, CurrentSize, true);
    return handles;
}

} // namespace QmChart6
