#include "chartcontrol/paint/Hatch.h"

#include "chartcontrol/paint/HatchDesign.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

constexpr double GreatestPieceCount = 200'000;
constexpr double WidestLine = 1; // points; broader ones are areas

/// The way along the lines and the way across them: two perpendicular unit vectors.
struct Frame2D {
    Point along;
    Point across;

    [[nodiscard]] double Along(Point point) const { return point.x * along.x + point.y * along.y; }
    [[nodiscard]] double Across(Point point) const { return point.x * across.x + point.y * across.y; }
    [[nodiscard]] Point At(double alongIt, double acrossIt) const {
        return {along.x * alongIt + across.x * acrossIt, along.y * alongIt + across.y * acrossIt};
    }
};

Frame2D FrameOf(LineFamily::Direction direction) {
    switch (direction) {
    case LineFamily::Direction::Horizontal:
        return {{1, 0}, {0, 1}};
    case LineFamily::Direction::Vertical:
        return {{0, 1}, {1, 0}};
    case LineFamily::Direction::Down:
        return {{Slant, Slant}, {Slant, -Slant}};
    case LineFamily::Direction::Up:
        return {{Slant, -Slant}, {Slant, Slant}};
    }
    return {};
}

/// Whether the outline is an upright rectangle, which most are and which is cut without any polygon.
bool IsBox(std::span<const Point> outline) {
    if (outline.size() != 4) return false;
    const bool first = outline[0].y == outline[1].y && outline[1].x == outline[2].x &&
                       outline[2].y == outline[3].y && outline[3].x == outline[0].x;
    const bool other = outline[0].x == outline[1].x && outline[1].y == outline[2].y &&
                       outline[2].x == outline[3].x && outline[3].y == outline[0].y;
    return first || other;
}

/// The side of a line that is kept: where `normal` times the point is at most `limit`.
struct HalfPlane {
    Point normal;
    double limit = 0;

    [[nodiscard]] double Beyond(Point point) const { return point.x * normal.x + point.y * normal.y - limit; }
};

/// Cuts a polygon along a line. Pieces that fall apart stay joined along the line, which even-odd filling
/// does not show.
void Cut(const std::vector<Point>& polygon, const HalfPlane& keep, std::vector<Point>& result) {
    result.clear();
    if (polygon.empty()) return;
    Point before = polygon.back();
    double beyondBefore = keep.Beyond(before);
    for (const Point point : polygon) {
        const double beyond = keep.Beyond(point);
        if ((beyond <= 0) != (beyondBefore <= 0)) {
            const double part = beyondBefore / (beyondBefore - beyond);
            result.push_back(
                {before.x + (point.x - before.x) * part, before.y + (point.y - before.y) * part});
        }
        if (beyond <= 0) result.push_back(point);
        before = point;
        beyondBefore = beyond;
    }
}

double AreaOf(std::span<const Point> polygon) {
    double twice = 0;
    for (std::size_t at = 0, before = polygon.size() - 1; at < polygon.size(); before = at++) {
        twice += polygon[before].x * polygon[at].y - polygon[at].x * polygon[before].y;
    }
    return std::abs(twice) / 2;
}

class Hatcher {
public:
    Hatcher(std::span<const Point> outline, HatchPieces& pieces)
        : outline_(outline.begin(), outline.end()), bounds_(Box::Around(outline)), isBox_(IsBox(outline)),
          pieces_(pieces) {}

    void Draw(HatchDesign design);

private:
    struct Crossing {
        int line;
        double along;
    };

    [[nodiscard]] double Coarser(const HatchDesign& design) const;
    void DrawLines(const LineFamily& family);
    void DrawBands(const LineFamily& family);
    void DrawDots(const DotGrid& grid);
    void DrawDotRow(const DotGrid& grid, int row);
    void AddLine(const LineFamily& family, const Frame2D& frame, int line, double from, double to);
    void AddPolygon(const std::vector<Point>& polygon);

    std::vector<Point> outline_;
    Box bounds_;
    bool isBox_;
    HatchPieces& pieces_;
    // Kept for their memory only.
    std::vector<Crossing> crossings_;
    std::vector<Point> band_;
    std::vector<Point> cut_;
    std::vector<Point> spare_;
};

double Hatcher::Coarser(const HatchDesign& design) const {
    const double area = bounds_.Width() * bounds_.Height();
    double pieces = 0;
    for (const LineFamily& family : design.lines) {
        pieces += family.group > 0 ? area / (2 * family.period * family.cell)
                                   : (bounds_.Width() + bounds_.Height()) / family.period;
    }
    for (const DotGrid& grid : design.dots) pieces += area / (grid.columnPeriod * grid.rowPeriod);
    return std::max(1.0, std::ceil(std::sqrt(pieces / GreatestPieceCount)));
}

void Hatcher::Draw(HatchDesign design) {
    const double factor = Coarser(design);
    for (LineFamily& family : design.lines) {
        family.period *= factor;
        family.width *= factor;
        family.phase *= factor;
        family.cell *= factor;
        family.cellMargin *= factor;
        if (family.width > WidestLine * factor) {
            DrawBands(family);
        } else {
            pieces_.lineWidth = family.width;
            DrawLines(family);
        }
    }
    for (const DotGrid& grid : design.dots) {
        DrawDots({grid.side * factor, grid.columnPeriod * factor, grid.rowPeriod * factor});
    }
}

/// Every edge of the outline tells which lines it crosses and where; sorted, the crossings of a line pair up.
void Hatcher::DrawLines(const LineFamily& family) {
    const Frame2D frame = FrameOf(family.direction);
    crossings_.clear();
    Point before = outline_.back();
    for (const Point point : outline_) {
        const double from = (frame.Across(before) - family.phase) / family.period;
        const double to = (frame.Across(point) - family.phase) / family.period;
        const auto first = static_cast<int>(std::ceil(std::min(from, to)));
        const auto end = static_cast<int>(std::ceil(std::max(from, to)));
        const double alongFrom = frame.Along(before);
        const double alongTo = frame.Along(point);
        for (int line = first; line < end; ++line) {
            crossings_.push_back({line, alongFrom + (alongTo - alongFrom) * (line - from) / (to - from)});
        }
        before = point;
    }
    std::sort(crossings_.begin(), crossings_.end(), [](const Crossing& left, const Crossing& right) {
        return left.line != right.line ? left.line < right.line : left.along < right.along;
    });
    for (std::size_t at = 0; at + 1 < crossings_.size(); at += 2) {
        AddLine(family, frame, crossings_[at].line, crossings_[at].along, crossings_[at + 1].along);
    }
}

void Hatcher::AddLine(const LineFamily& family, const Frame2D& frame, int line, double from, double to) {
    const double across = family.phase + line * family.period;
    if (family.group == 0) {
        if (to > from) pieces_.lines.push_back({frame.At(from, across), frame.At(to, across)});
        return;
    }
    const auto group = static_cast<int>(std::floor(static_cast<double>(line) / family.group));
    const auto lastCell = static_cast<int>(std::floor(to / family.cell));
    for (auto cell = static_cast<int>(std::floor(from / family.cell)); cell <= lastCell; ++cell) {
        if (((cell + group + family.firstCell) & 1) != 0) continue;
        const double start = std::max(from, cell * family.cell + family.cellMargin);
        const double end = std::min(to, (cell + 1) * family.cell - family.cellMargin);
        if (end > start) pieces_.lines.push_back({frame.At(start, across), frame.At(end, across)});
    }
}

void Hatcher::DrawBands(const LineFamily& family) {
    const Frame2D frame = FrameOf(family.direction);
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;
    for (const Point point : outline_) {
        least = std::min(least, frame.Across(point));
        greatest = std::max(greatest, frame.Across(point));
    }
    const double half = family.width / 2;
    const auto first = static_cast<int>(std::floor((least - half - family.phase) / family.period));
    const auto last = static_cast<int>(std::ceil((greatest + half - family.phase) / family.period));
    for (int line = first; line <= last; ++line) {
        const double middle = family.phase + line * family.period;
        if (middle + half <= least || middle - half >= greatest) continue;
        Cut(outline_, {frame.across, middle + half}, spare_);
        Cut(spare_, {{-frame.across.x, -frame.across.y}, half - middle}, cut_);
        AddPolygon(cut_);
    }
}

void Hatcher::DrawDots(const DotGrid& grid) {
    const auto first = static_cast<int>(std::floor((bounds_.top - grid.side) / grid.rowPeriod));
    const auto last = static_cast<int>(std::ceil(bounds_.bottom / grid.rowPeriod));
    for (int row = first; row <= last; ++row) DrawDotRow(grid, row);
}

void Hatcher::DrawDotRow(const DotGrid& grid, int row) {
    const double top = std::max(bounds_.top, row * grid.rowPeriod);
    const double bottom = std::min(bounds_.bottom, row * grid.rowPeriod + grid.side);
    if (top >= bottom) return;
    Box band{bounds_.left, top, bounds_.right, bottom};
    if (!isBox_) {
        Cut(outline_, {{0, 1}, bottom}, spare_);
        Cut(spare_, {{0, -1}, -top}, band_);
        if (band_.empty()) return;
        band = Box::Around(band_);
    }
    const double shift = (row & 1) != 0 ? grid.columnPeriod / 2 : 0;
    const auto first = static_cast<int>(std::floor((band.left - shift - grid.side) / grid.columnPeriod));
    const auto last = static_cast<int>(std::ceil((band.right - shift) / grid.columnPeriod));
    for (int column = first; column <= last; ++column) {
        const double start = column * grid.columnPeriod + shift;
        const Box dot{std::max(band.left, start), top, std::min(band.right, start + grid.side), bottom};
        if (dot.left >= dot.right) continue;
        if (!isBox_) {
            Cut(band_, {{1, 0}, dot.right}, spare_);
            Cut(spare_, {{-1, 0}, -dot.left}, cut_);
            const double area = cut_.empty() ? 0 : AreaOf(cut_);
            if (area <= 0) continue;
            if (cut_.size() > 4 || area < dot.Width() * dot.Height() * (1 - 1e-9)) {
                AddPolygon(cut_);
                continue;
            }
        }
        pieces_.boxes.push_back(dot);
    }
}

void Hatcher::AddPolygon(const std::vector<Point>& polygon) {
    if (polygon.size() < 3) return;
    if (IsBox(polygon)) {
        pieces_.boxes.push_back(Box::Around(polygon));
        return;
    }
    pieces_.polygons.push_back({pieces_.points.size(), polygon.size()});
    pieces_.points.insert(pieces_.points.end(), polygon.begin(), polygon.end());
}

} // namespace

HatchPieces PiecesOf(const SceneFill& fill, std::span<const Point> outline) {
    HatchDesign design = DesignOf(fill.style, fill.index);
    HatchPieces pieces;
    pieces.ground = design.inverted ? fill.patternColour : fill.colour;
    pieces.ink = design.inverted ? fill.colour : fill.patternColour;
    const bool isFinite = std::ranges::all_of(
        outline, [](Point point) { return std::isfinite(point.x) && std::isfinite(point.y); });
    if (outline.size() >= 3 && isFinite) Hatcher(outline, pieces).Draw(std::move(design));
    return pieces;
}

} // namespace QmChart6
