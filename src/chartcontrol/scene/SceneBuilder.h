#pragma once

#include "chartcontrol/scene/Scene.h"

#include <array>
#include <cmath>
#include <optional>
#include <span>

namespace QmChart6 {

/// Appends shapes to a scene and keeps what belongs together right: bounds, point runs, the current clip. A
/// shape with a coordinate that is no finite number is not added; a warning tells of it.
class SceneBuilder {
public:
    explicit SceneBuilder(Scene& scene) : scene_(scene) {}

    /// Makes room for so many more points, so that large scenes are not moved about while they grow.
    void Reserve(std::size_t points) { scene_.points.reserve(scene_.points.size() + points); }

    /// The clip that the following shapes get.
    void SetClip(std::optional<Box> clip);

    /// Points go in one by one between Begin and the shape that takes them.
    void AddPoint(Point point) {
        pendingAreFinite_ = pendingAreFinite_ && std::isfinite(point.x + point.y);
        scene_.points.push_back(point);
    }
    [[nodiscard]] std::size_t PendingPoints() const { return scene_.points.size() - taken_; }
    [[nodiscard]] std::span<const Point> Pending() const { return std::span(scene_.points).subspan(taken_); }
    void DropPendingPoints() {
        scene_.points.resize(taken_);
        pendingAreFinite_ = true;
    }

    // Take all pending points. Without any, nothing is added.
    void AddPolyline(Part part, const Stroke& stroke, bool crisp = false);
    void AddPolygon(Part part, const SceneFill& fill, const Stroke& stroke = {}, bool crisp = false);
    void AddMarkers(Part part, MarkerStyle style, double size, const SceneFill& fill,
                    const Stroke& stroke = {});

    void AddLine(Part part, Point from, Point to, const Stroke& stroke, bool crisp = true);
    void AddRectangle(Part part, const Box& box, const SceneFill& fill, const Stroke& stroke = {},
                      bool crisp = true);
    void AddSlice(Part part, const Slice& slice, const SceneFill& fill, const Stroke& stroke = {});
    void AddText(Part part, TextLine text);

    void Warn(const QString& sentence) { scene_.warnings.append(sentence); }
    [[nodiscard]] const Scene& Built() const { return scene_; }

private:
    PointRun TakePoints();
    void LeaveOut(const Geometry& geometry);
    void Append(Part part, Geometry geometry, const Stroke& stroke, const SceneFill& fill, bool crisp);

    Scene& scene_;
    std::size_t taken_ = 0;
    bool pendingAreFinite_ = true;
    int clip_ = NoClip;
};

/// How much of the text's width lies before its origin.
double WidthBeforeOrigin(const TextLine& text);
/// The box round a turned line of text.
Box BoundsOf(const TextLine& text);
/// The four corners of a turned line of text, for exact hits: start-top, end-top, end-bottom, start-bottom.
std::array<Point, 4> CornersOf(const TextLine& text);

SceneFill SolidFill(Colour colour);
SceneFill FillOf(const Brush& brush);
Stroke StrokeOf(const Pen& pen);

} // namespace QmChart6
