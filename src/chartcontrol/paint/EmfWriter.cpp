#include "chartcontrol/paint/EmfWriter.h"

#include "chartcontrol/paint/Dash.h"
#include "chartcontrol/paint/EmfRecords.h"
#include "chartcontrol/paint/Hatch.h"
#include "chartcontrol/paint/OutlinedText.h"
#include "chartcontrol/scene/Outline.h"

#include <algorithm>
#include <utility>

namespace QmChart6 {

namespace {

/// Chains or outlines gathered for one record.
struct Gathered {
    std::vector<Point> points;
    std::vector<PointRun> runs;

    void Add(std::span<const Point> chain) {
        runs.push_back({points.size(), chain.size()});
        points.insert(points.end(), chain.begin(), chain.end());
    }
};

/// An object that was created, by what it was made of: it is created once.
template<class Key>
class Created {
public:
    template<class Create>
    std::uint32_t Handle(const Key& key, Create create) {
        for (const auto& [known, handle] : handles_)
            if (known == key) return handle;
        handles_.emplace_back(key, create());
        return handles_.back().second;
    }

private:
    std::vector<std::pair<Key, std::uint32_t>> handles_;
};

class EmfWriter {
public:
    EmfWriter(const Scene& scene, const TextMeasurer& measurer)
        : scene_(scene), measurer_(measurer), file_(scene.size) {}

    QByteArray Write() {
        for (const Shape& shape : scene_.shapes) {
            shape_ = &shape;
            Clip(shape.clip);
            std::visit(*this, shape.geometry);
        }
        Clip(NoClip);
        return file_.Finish();
    }

    void operator()(const Polyline& line) { Stroked(scene_.PointsOf(line.points), false); }
    void operator()(const Polygon& polygon) { Filled(scene_.PointsOf(polygon.points)); }
    void operator()(const Rectangle& rectangle) { Filled(BoxOutline(rectangle.box)); }
    void operator()(const Slice& slice) { Filled(SliceOutline(slice)); }

    void operator()(const TextLine& text) {
        if (IsOutlined(text.font)) {
            Outlined(text);
            return;
        }
        using Key = std::pair<Font, double>;
        Font font = text.font;
        font.VtColor = {};
        const Key key{font, text.angle};
        SelectFont(fonts_.Handle(key, [&] { return file_.CreateFont(text.font, text.angle); }));
        std::vector<double> advances;
        double before = 0;
        for (qsizetype i = 1; i <= text.text.size(); ++i) {
            const double width = measurer_.Measure(text.text.left(i), text.font).width;
            advances.push_back(width - before);
            before = width;
        }
        file_.Text(text.text, text.origin, text.anchor, text.font.VtColor, advances);
    }

    void operator()(const MarkerRun& run) {
        const std::vector<Point> outline = MarkerOutline(run.style, run.size);
        for (const Point& center : scene_.PointsOf(run.points)) {
            std::vector<Point> marker = outline;
            for (Point& point : marker) point = {point.x + center.x, point.y + center.y};
            Filled(marker);
        }
    }

private:
    void Clip(int clip) {
        if (clip == clip_) return;
        if (clip_ != NoClip) {
            file_.Restore();
            // What was selected since the state was saved is no longer.
            pen_ = brush_ = font_ = 0;
        }
        clip_ = clip;
        if (clip == NoClip) return;
        file_.Save();
        file_.Clip(scene_.clips[static_cast<std::size_t>(clip)]);
    }

    void SelectPen(std::uint32_t pen) { Select(pen_, pen); }
    void SelectBrush(std::uint32_t brush) { Select(brush_, brush); }
    void SelectFont(std::uint32_t font) { Select(font_, font); }
    void Select(std::uint32_t& present, std::uint32_t object) {
        if (present != object) file_.Select(object);
        present = object;
    }
    [[nodiscard]] std::uint32_t PenOf(Colour colour, double width) {
        return pens_.Handle({colour, width}, [&] { return file_.CreatePen(colour, width); });
    }
    [[nodiscard]] std::uint32_t BrushOf(Colour colour) {
        return brushes_.Handle(colour, [&] { return file_.CreateBrush(colour); });
    }

    void Stroked(std::span<const Point> points, bool closed) {
        const Stroke& stroke = shape_->stroke;
        if (stroke.style == PenStyle::None || points.size() < 2) return;
        SelectPen(PenOf(stroke.colour, stroke.width));
        if (!IsDashed(stroke.style)) {
            file_.Polyline(points);
            return;
        }
        std::vector<Point> chain(points.begin(), points.end());
        if (closed) chain.push_back(chain.front());
        Gathered dashes;
        ForEachDash(chain, DashesOf(stroke.style, stroke.width),
                    [&](std::span<const Point> dash) { dashes.Add(dash); });
        file_.PolyPolyline(dashes.points, dashes.runs);
    }

    void Filled(std::span<const Point> outline) {
        const SceneFill& fill = shape_->fill;
        const Stroke& stroke = shape_->stroke;
        const bool patterned = fill.style == BrushStyle::Pattern || fill.style == BrushStyle::Hatch;
        const bool none = fill.style == BrushStyle::None;
        const bool plainStroke = stroke.style != PenStyle::None && !IsDashed(stroke.style);
        if (patterned) Pieces(PiecesOf(fill, outline), outline);
        if (!none && !patterned && fill.opacity < 1) {
            Translucent(outline, fill.colour);
            Stroked(outline, true);
            return;
        }
        if (plainStroke || (!none && !patterned)) {
            SelectBrush(none || patterned ? EmfRecords::StockNoBrush : BrushOf(fill.colour));
            SelectPen(plainStroke ? PenOf(stroke.colour, stroke.width) : EmfRecords::StockNoPen);
            file_.Polygon(outline);
        }
        if (IsDashed(stroke.style)) Stroked(outline, true);
    }

    void Translucent(std::span<const Point> outline, Colour colour) {
        file_.Save();
        file_.ClipTo(outline);
        file_.Blend(Box::Around(outline), colour, shape_->fill.opacity);
        file_.Restore();
        pen_ = brush_ = font_ = 0;
    }

    void Outlined(const TextLine& text) {
        Gathered letters;
        for (const std::vector<Point>& outline : LetterOutlines(text)) letters.Add(outline);
        SelectBrush(EmfRecords::StockNoBrush);
        SelectPen(PenOf(text.font.VtColor, OutlineWidth(text.font)));
        file_.PolyPolygon(letters.points, letters.runs);
    }

    void Pieces(const HatchPieces& pieces, std::span<const Point> outline) {
        if (shape_->fill.opacity < 1) Translucent(outline, pieces.ground);
        SelectPen(EmfRecords::StockNoPen);
        if (shape_->fill.opacity == 1) {
            SelectBrush(BrushOf(pieces.ground));
            file_.Polygon(outline);
        }
        Gathered areas;
        for (const Box& box : pieces.boxes) areas.Add(BoxOutline(box));
        for (const PointRun& run : pieces.polygons) areas.Add(pieces.PointsOf(run));
        if (!areas.runs.empty()) {
            SelectBrush(BrushOf(pieces.ink));
            file_.PolyPolygon(areas.points, areas.runs);
        }
        Gathered lines;
        for (const HatchLine& line : pieces.lines) lines.Add(std::array{line.from, line.to});
        if (lines.runs.empty()) return;
        SelectPen(PenOf(pieces.ink, pieces.lineWidth));
        file_.PolyPolyline(lines.points, lines.runs);
    }

    const Scene& scene_;
    const TextMeasurer& measurer_;
    EmfRecords file_;
    const Shape* shape_ = nullptr;
    int clip_ = NoClip;
    std::uint32_t pen_ = 0;
    std::uint32_t brush_ = 0;
    std::uint32_t font_ = 0;
    Created<std::pair<Colour, double>> pens_;
    Created<Colour> brushes_;
    Created<std::pair<Font, double>> fonts_;
};

} // namespace

QByteArray EncodeEmf(const Scene& scene, const TextMeasurer& measurer) {
    return EmfWriter(scene, measurer).Write();
}

} // namespace QmChart6
