#include "chartcontrol/paint/SvgWriter.h"

#include "base/Units.h"
#include "chartcontrol/paint/Dash.h"
#include "chartcontrol/paint/Hatch.h"
#include "chartcontrol/paint/OutlinedText.h"
#include "chartcontrol/scene/Outline.h"

#include <cmath>
#include <cstdlib>
#include <optional>

namespace QmChart6 {

namespace {

/// Where the named family is missing, one of the same metrics, then any without serifs.
constexpr const char* Fallbacks = "'Liberation Sans', Helvetica, sans-serif";

QByteArray Number(double value) {
    QByteArray text = QByteArray::number(value, 'f', 3);
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
    return text == "-0" ? QByteArray("0") : text;
}

/// The text with what XML gives a meaning to escaped, and what it forbids left out.
QByteArray Escaped(const QString& text) {
    QString kept;
    for (const QChar character : text)
        if (character.unicode() >= 0x20 && character.unicode() != 0xfffe && character.unicode() != 0xffff)
            kept += character;
    return kept.toHtmlEscaped().toUtf8();
}

QByteArray PathOf(std::span<const Point> points, bool closed) {
    QByteArray path;
    for (std::size_t i = 0; i < points.size(); ++i)
        path += (i == 0 ? "M" : "L") + Number(points[i].x) + ' ' + Number(points[i].y);
    return closed ? path + 'Z' : path;
}

const char* ClassOf(PartCode code) {
    switch (code) {
    case PartCode::Chart:
        return "chart";
    case PartCode::Title:
        return "title";
    case PartCode::Footnote:
        return "footnote";
    case PartCode::Legend:
        return "legend";
    case PartCode::Plot:
        return "plot";
    case PartCode::Series:
    case PartCode::Statistics:
        return "series";
    case PartCode::SeriesLabel:
        return "series-label";
    case PartCode::DataPoint:
        return "data-point";
    case PartCode::PointLabel:
        return "point-label";
    case PartCode::Axis:
        return "axis";
    case PartCode::AxisLabel:
        return "axis-label";
    case PartCode::AxisTitle:
        return "axis-title";
    }
    return "part";
}

/// Whether the class of such parts tells their number too.
bool IsNumbered(PartCode code) {
    return code == PartCode::Series || code == PartCode::Statistics || code == PartCode::Axis;
}

class SvgWriter {
public:
    explicit SvgWriter(const Scene& scene) : scene_(scene) {}

    QByteArray Write(const QString& title) {
        const QByteArray width = Number(scene_.size.width / PointsPerPixel);
        const QByteArray height = Number(scene_.size.height / PointsPerPixel);
        svg_ =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
            width + "\" height=\"" + height + "\" viewBox=\"0 0 " + Number(scene_.size.width) + ' ' +
            Number(scene_.size.height) + "\">\n";
        if (!title.isEmpty()) svg_ += "<title>" + Escaped(title) + "</title>\n";
        Clips();
        for (const Shape& shape : scene_.shapes) {
            Group(shape);
            shape_ = &shape;
            std::visit(*this, shape.geometry);
        }
        EndGroup();
        return svg_ + "</svg>\n";
    }

    void operator()(const Polyline& line) {
        Element("path",
                "d=\"" + PathOf(scene_.PointsOf(line.points), false) + "\" fill=\"none\"" + Strokes());
    }
    void operator()(const Polygon& polygon) {
        const std::span<const Point> points = scene_.PointsOf(polygon.points);
        Filled("path", "d=\"" + PathOf(points, true) + "\" fill-rule=\"evenodd\"", points);
    }
    void operator()(const Rectangle& rectangle) {
        const Box& box = rectangle.box;
        const std::vector<Point> outline = BoxOutline(box);
        Filled("rect",
               "x=\"" + Number(box.left) + "\" y=\"" + Number(box.top) + "\" width=\"" + Number(box.Width()) +
                   "\" height=\"" + Number(box.Height()) + '"',
               outline);
    }
    void operator()(const Slice& slice) {
        const std::vector<Point> outline = SliceOutline(slice);
        if (std::abs(slice.spanAngle) >= 360) {
            const Point center = slice.box.Center();
            Filled("ellipse",
                   "cx=\"" + Number(center.x) + "\" cy=\"" + Number(center.y) + "\" rx=\"" +
                       Number(slice.box.Width() / 2) + "\" ry=\"" + Number(slice.box.Height() / 2) + '"',
                   outline);
            return;
        }
        // The outline starts at the centre; its second and last points are the ends of the arc.
        const Point& center = outline.front();
        const Point& from = outline[1];
        const Point& to = outline.back();
        const QByteArray arc = "A" + Number(slice.box.Width() / 2) + ' ' + Number(slice.box.Height() / 2) +
                               " 0 " + (std::abs(slice.spanAngle) > 180 ? "1 " : "0 ") +
                               (slice.spanAngle > 0 ? "0 " : "1 ");
        Filled("path",
               "d=\"M" + Number(center.x) + ' ' + Number(center.y) + 'L' + Number(from.x) + ' ' +
                   Number(from.y) + arc + Number(to.x) + ' ' + Number(to.y) + "Z\"",
               outline);
    }
    void operator()(const TextLine& text) {
        QByteArray attributes = "x=\"" + Number(text.origin.x) + "\" y=\"" + Number(text.origin.y) + '"';
        if (text.angle != 0)
            attributes += " transform=\"rotate(" + Number(-text.angle) + ' ' + Number(text.origin.x) + ' ' +
                          Number(text.origin.y) + ")\"";
        if (text.anchor != TextAnchor::Start)
            attributes +=
                text.anchor == TextAnchor::Middle ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
        svg_ += "<text " + attributes + FontOf(text.font) + '>' + Escaped(text.text) + "</text>\n";
    }
    void operator()(const MarkerRun& run) {
        const std::vector<Point> outline = MarkerOutline(run.style, run.size);
        QByteArray path;
        for (const Point& center : scene_.PointsOf(run.points)) {
            if (run.style == MarkerStyle::Circle) {
                const QByteArray radius = Number(run.size / 2);
                path += 'M' + Number(center.x - run.size / 2) + ' ' + Number(center.y) + "a" + radius + ' ' +
                        radius + " 0 1 0 " + Number(run.size) + " 0a" + radius + ' ' + radius + " 0 1 0 " +
                        Number(-run.size) + " 0Z";
                continue;
            }
            std::vector<Point> marker = outline;
            for (Point& point : marker) point = {point.x + center.x, point.y + center.y};
            path += PathOf(marker, true);
        }
        Element("path", "d=\"" + path + '"' +
                            Fill(shape_->fill.style == BrushStyle::None, shape_->fill.colour) + Strokes());
    }

private:
    void Clips() {
        if (scene_.clips.empty()) return;
        svg_ += "<defs>\n";
        for (std::size_t i = 0; i < scene_.clips.size(); ++i) {
            const Box& box = scene_.clips[i];
            svg_ += "<clipPath id=\"clip" + QByteArray::number(i) + "\"><rect x=\"" + Number(box.left) +
                    "\" y=\"" + Number(box.top) + "\" width=\"" + Number(box.Width()) + "\" height=\"" +
                    Number(box.Height()) + "\"/></clipPath>\n";
        }
        svg_ += "</defs>\n";
    }

    void Group(const Shape& shape) {
        const Part part{shape.part.code, shape.part.index1, 0};
        if (open_ && *open_ == part && clip_ == shape.clip) return;
        EndGroup();
        open_ = part;
        clip_ = shape.clip;
        const QByteArray name = ClassOf(part.code);
        svg_ += "<g class=\"" + name;
        if (IsNumbered(part.code)) svg_ += ' ' + name + '-' + QByteArray::number(part.index1);
        svg_ += '"';
        if (clip_ != NoClip) svg_ += " clip-path=\"url(#clip" + QByteArray::number(clip_) + ")\"";
        svg_ += ">\n";
    }
    void EndGroup() {
        if (open_) svg_ += "</g>\n";
        open_.reset();
    }

    void Element(const char* name, const QByteArray& attributes) {
        svg_ += QByteArray("<") + name + ' ' + attributes + "/>\n";
    }

    static QByteArray Fill(bool none, Colour colour) {
        return none ? QByteArray(" fill=\"none\"") : " fill=\"" + ColourText(colour) + '"';
    }
    [[nodiscard]] QByteArray Opacity() const {
        return shape_->fill.opacity < 1 ? " fill-opacity=\"" + Number(shape_->fill.opacity) + '"'
                                        : QByteArray();
    }
    [[nodiscard]] QByteArray Strokes() const {
        const Stroke& stroke = shape_->stroke;
        if (stroke.style == PenStyle::None) return {};
        QByteArray text = " stroke=\"" + ColourText(stroke.colour) + "\" stroke-width=\"" +
                          Number(stroke.width) + "\" stroke-linejoin=\"round\"";
        if (IsDashed(stroke.style)) {
            QByteArray lengths;
            const DashPattern dashes = DashesOf(stroke.style, stroke.width);
            for (const double length : dashes.Lengths()) lengths += Number(length) + ' ';
            lengths.chop(1);
            text += " stroke-dasharray=\"" + lengths + '"';
        }
        return text;
    }

    /// A shape with its inside: plain, or ground, pattern and rim one after the other.
    void Filled(const char* name, const QByteArray& geometry, std::span<const Point> outline) {
        const SceneFill& fill = shape_->fill;
        // Readers that keep edges crisp leave out what is thinner than a pixel.
        constexpr double thinnestCrisp = 2;
        const bool broad =
            shape_->bounds.Width() >= thinnestCrisp && shape_->bounds.Height() >= thinnestCrisp;
        const QByteArray crisp = shape_->crisp && broad ? " shape-rendering=\"crispEdges\"" : "";
        if (fill.style != BrushStyle::Pattern && fill.style != BrushStyle::Hatch) {
            const bool none = fill.style == BrushStyle::None;
            if (none && shape_->stroke.style == PenStyle::None) return;
            Element(name, geometry + Fill(none, fill.colour) + Opacity() + Strokes() + crisp);
            return;
        }
        const HatchPieces pieces = PiecesOf(fill, outline);
        Element(name, geometry + Fill(false, pieces.ground) + Opacity() + crisp);
        Pieces(pieces);
        if (shape_->stroke.style != PenStyle::None)
            Element(name, geometry + Fill(true, {}) + Strokes() + crisp);
    }
    void Pieces(const HatchPieces& pieces) {
        QByteArray lines;
        for (const HatchLine& line : pieces.lines) lines += PathOf(std::array{line.from, line.to}, false);
        if (!lines.isEmpty())
            Element("path", "d=\"" + lines + "\" fill=\"none\" stroke=\"" + ColourText(pieces.ink) +
                                "\" stroke-width=\"" + Number(pieces.lineWidth) + '"');
        QByteArray areas;
        for (const Box& box : pieces.boxes) areas += PathOf(BoxOutline(box), true);
        for (const PointRun& run : pieces.polygons) areas += PathOf(pieces.PointsOf(run), true);
        if (!areas.isEmpty())
            Element("path", "d=\"" + areas + '"' + Fill(false, pieces.ink) + " fill-rule=\"evenodd\"");
    }

    [[nodiscard]] QByteArray FontOf(const Font& font) const {
        QString family = font.Name;
        family.remove(QLatin1Char('\'')).remove(QLatin1Char('\\'));
        QByteArray text = " font-family=\"'" + Escaped(family) + "', " + Fallbacks + "\" font-size=\"" +
                          Number(font.Size) + '"' + Fill(IsOutlined(font), font.VtColor);
        if (IsOutlined(font))
            text += " stroke=\"" + ColourText(font.VtColor) + "\" stroke-width=\"" +
                    Number(OutlineWidth(font)) + "\" stroke-linejoin=\"bevel\"";
        if ((font.Style & FontBold) != 0) text += " font-weight=\"bold\"";
        if ((font.Style & FontItalic) != 0) text += " font-style=\"italic\"";
        QByteArray lines;
        if ((font.Effect & FontUnderline) != 0) lines += "underline ";
        if ((font.Effect & FontStrikethrough) != 0) lines += "line-through ";
        if (!lines.isEmpty()) text += " text-decoration=\"" + lines.trimmed() + '"';
        return text;
    }

    const Scene& scene_;
    const Shape* shape_ = nullptr;
    QByteArray svg_;
    std::optional<Part> open_;
    int clip_ = NoClip;
};

} // namespace

QByteArray EncodeSvg(const Scene& scene, const QString& title) {
    return SvgWriter(scene).Write(title);
}

} // namespace QmChart6
