#pragma once

#include "chartcontrol/model/Drawing.h"
#include "chartcontrol/scene/Geometry.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <span>
#include <variant>
#include <vector>

namespace QmChart6 {

// A scene is the finished picture as data: shapes in drawing order, each tagged with the chart part it shows.
// All coordinates and widths are points (1/72 inch), x to the right and y downwards from the top left corner.

enum class PartCode {
    Chart = 0,
    Title = 1,
    Footnote = 2,
    Legend = 3,
    Plot = 4,
    Series = 5,
    SeriesLabel = 6,
    DataPoint = 7,
    PointLabel = 8,
    Axis = 9,
    AxisLabel = 10,
    AxisTitle = 11,
    /// The statistics lines of a series. Outside the scene they are the series.
    Statistics = 12,
};

/// In a part that is looked for: an index that may be any. 0 is an index like others, the X axis' for one.
inline constexpr int AnyIndex = -1;

/// What a shape shows: the part and its indexes. index1 is the axis id of an axis part, the series number of
/// a series, its statistics, a data point or label; index2 the data point (0: none in particular) or the
/// index of the axis.
struct Part {
    PartCode code = PartCode::Chart;
    int index1 = 0;
    int index2 = 0;

    friend bool operator==(const Part&, const Part&) = default;
};

/// A run of points in the scene's common store.
struct PointRun {
    std::size_t first = 0;
    std::size_t count = 0;

    friend bool operator==(const PointRun&, const PointRun&) = default;
};

struct Polyline {
    PointRun points;
};
/// Closed by itself, filled even-odd.
struct Polygon {
    PointRun points;
};
struct Rectangle {
    Box box;
};
/// A sector of the ellipse within `box`; angles in degrees, counter-clockwise from 3 o'clock. A span of 360
/// or more is the whole ellipse.
struct Slice {
    Box box;
    double startAngle = 0;
    double spanAngle = 360;
};

enum class TextAnchor { Start, Middle, End };

/// One line of text. `origin` is where the anchor meets the base line; the line runs from there turned by
/// `angle` degrees counter-clockwise. Width, ascent and descent are those that layout measured.
struct TextLine {
    QString text;
    Font font;
    Point origin;
    TextAnchor anchor = TextAnchor::Start;
    double angle = 0;
    double width = 0;
    double ascent = 0;
    double descent = 0;
};

/// The same marker at every point of the run. Style is never Automatic. Size is the marker's width.
struct MarkerRun {
    PointRun points;
    MarkerStyle style = MarkerStyle::Circle;
    double size = 0;
};

using Geometry = std::variant<Polyline, Polygon, Rectangle, Slice, TextLine, MarkerRun>;

/// The line round or along a shape; style None draws none.
struct Stroke {
    PenStyle style = PenStyle::None;
    double width = 0;
    Colour colour;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// The inside of a shape, as the model's brush; style None leaves it open. Lines and texts have none.
struct SceneFill {
    BrushStyle style = BrushStyle::None;
    int index = 0;
    Colour colour;
    Colour patternColour;
    /// From 0 to 1; of a pattern or hatch it is that of the ground.
    double opacity = 1;

    friend bool operator==(const SceneFill&, const SceneFill&) = default;
};

inline constexpr int NoClip = -1;

struct Shape {
    Part part;
    Geometry geometry;
    Stroke stroke;
    SceneFill fill;
    /// Index into Scene::clips, or NoClip.
    int clip = NoClip;
    /// A raster painter moves the edges onto whole device pixels (bars, axes, grid lines).
    bool crisp = false;
    /// Encloses everything that is drawn, the stroke included, before the clip.
    Box bounds;
};

struct Scene {
    Size size;
    std::vector<Shape> shapes;
    std::vector<Point> points;
    std::vector<Box> clips;
    /// What odd data made layout leave out or change, a sentence each.
    QStringList warnings;

    [[nodiscard]] std::span<const Point> PointsOf(PointRun run) const {
        return {points.data() + run.first, run.count};
    }
};

} // namespace QmChart6
