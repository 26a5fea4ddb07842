#include "chartcontrol/layout/text/Ground.h"

#include "chartcontrol/model/ColourContrast.h"
#include "chartcontrol/scene/Outline.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace QmChart6 {

namespace {

/// What touches a cell by less than this, in points, does not lie in it.
constexpr double Touch = 0.01;
/// Lines of an axis that stand out less than this from the ground, as those of a grid do, disturb no text.
constexpr double FaintContrast = 1.7;

/// Cuts one end of a line to where a coordinate is at least `least`, times `sign`; false where none of it is.
bool CutSide(Point& from, Point& to, double Point::* along, double sign, double least) {
    const auto beyond = [&](const Point& point) { return sign * (point.*along) < sign * least; };
    if (beyond(from) && beyond(to)) return false;
    for (Point* end : {&from, &to}) {
        if (!beyond(*end)) continue;
        const double part = (least - from.*along) / (to.*along - from.*along);
        *end = {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
    }
    return true;
}

/// Cuts a line to what of it lies within a box; false where nothing does.
bool CutTo(const Box& box, Point& from, Point& to) {
    return CutSide(from, to, &Point::x, 1, box.left) && CutSide(from, to, &Point::x, -1, box.right) &&
           CutSide(from, to, &Point::y, 1, box.top) && CutSide(from, to, &Point::y, -1, box.bottom);
}

} // namespace

/// Places along a line, close to each other, as far as it runs near the room.
template<class Visit>
void Ground::ForPlaces(Point from, Point to, Visit visit) const {
    constexpr double step = 0.7;
    constexpr double near = 20;
    if (!CutTo(room_.Grown(near), from, to)) return;
    const Point way{to.x - from.x, to.y - from.y};
    const int steps = static_cast<int>(std::hypot(way.x, way.y) / step) + 1;
    for (int at = 0; at <= steps; ++at)
        visit(Point{from.x + way.x * at / steps, from.y + way.y * at / steps});
}

/// Reads one shape after the other into the cells.
class Ground::Reader {
public:
    Reader(Ground& ground, const Scene& scene) : ground_(ground), scene_(scene) {}

    void Read() {
        for (std::size_t i = 0; i < scene_.shapes.size(); ++i) {
            shape_ = &scene_.shapes[i];
            number_ = static_cast<int>(i);
            limits_ = shape_->clip == NoClip
                          ? Cells{0, 0, ground_.columns_ - 1, ground_.rows_ - 1}
                          : ground_.CellsOf(scene_.clips[static_cast<std::size_t>(shape_->clip)]);
            std::visit(*this, shape_->geometry);
        }
    }

    void operator()(const Polyline& line) { Chain(scene_.PointsOf(line.points)); }
    void operator()(const Polygon& polygon) { Area(scene_.PointsOf(polygon.points)); }
    void operator()(const Slice& slice) { Area(SliceOutline(slice)); }
    void operator()(const Rectangle& rectangle) {
        if (!IsOfPlot()) return;
        if (shape_->fill.style == BrushStyle::None)
            Chain(BoxOutline(rectangle.box));
        else
            Cover(rectangle.box);
    }
    void operator()(const MarkerRun& run) {
        for (const Point& center : scene_.PointsOf(run.points)) {
            const double half = run.size / 2;
            Mark({center.x - half, center.y - half, center.x + half, center.y + half}, Line);
        }
    }
    void operator()(const TextLine& text) { Mark(BoundsOf(text), Text); }

private:
    /// Backdrops lie behind everything and are the plain ground.
    [[nodiscard]] bool IsOfPlot() const {
        return shape_->part.code == PartCode::Series || shape_->part.code == PartCode::Statistics;
    }
    [[nodiscard]] bool IsSeen(Colour colour) const {
        return Contrast(colour, ground_.PlainColour()) >= FaintContrast;
    }

    [[nodiscard]] Cells Limited(const Cells& cells) const {
        return {std::max(cells.left, limits_.left), std::max(cells.top, limits_.top),
                std::min(cells.right, limits_.right), std::min(cells.bottom, limits_.bottom)};
    }
    template<class Visit>
    void ForCells(const Box& box, Visit visit) {
        const Cells cells = Limited(ground_.CellsOf(box));
        for (int row = cells.top; row <= cells.bottom; ++row)
            for (int column = cells.left; column <= cells.right; ++column) visit(ground_.At(column, row));
    }
    void Mark(const Box& box, Cell flag) {
        ForCells(box, [flag](Cell& cell) { cell |= flag; });
    }
    void Cover(const Box& box) {
        const Cells cells = Limited(ground_.CellsOf(box));
        for (int row = cells.top; row <= cells.bottom; ++row) CoverRow(row, cells.left, cells.right);
    }
    void CoverRow(int row, int left, int right) {
        if (left > right) return;
        Cell* first = &ground_.At(left, row);
        Cell* end = first + (right - left + 1);
        if (shape_->fill.opacity < 1) {
            for (Cell* cell = first; cell != end; ++cell) Lay(*cell);
            return;
        }
        // Nothing of what lay there is seen any more.
        Cell covering = 0;
        Lay(covering);
        std::fill(first, end, covering);
    }

    /// Lays the shape's fill over a cell; what lay there is gone, or shines through.
    void Lay(Cell& cell) {
        const Cell below = cell >> SurfaceShift;
        if (below != below_ || number_ != layer_) {
            surface_ = SurfaceOver(below);
            below_ = below;
            layer_ = number_;
        }
        cell = surface_ << SurfaceShift;
    }
    [[nodiscard]] Cell SurfaceOver(Cell below) {
        const double opacity = shape_->fill.opacity;
        const auto key = std::pair(number_, opacity < 1 ? below : 0);
        const auto [found, isNew] = known_.try_emplace(key, static_cast<Cell>(ground_.surfaces_.size()));
        if (isNew) {
            const Surface under = ground_.surfaces_[below];
            const bool patterned = shape_->fill.style != BrushStyle::Solid;
            ground_.surfaces_.push_back({number_, Mixed(under.colour, shape_->fill.colour, opacity),
                                         patterned || (opacity < 1 && under.patterned)});
        }
        return found->second;
    }

    void Area(std::span<const Point> outline) {
        if (shape_->fill.style != BrushStyle::None) Fill(outline);
        if (shape_->stroke.style == PenStyle::None || outline.empty()) return;
        std::vector<Point> closed(outline.begin(), outline.end());
        closed.push_back(closed.front());
        Chain(closed);
    }

    /// The cells whose middles are within, row by row between every two crossings.
    void Fill(std::span<const Point> outline) {
        if (outline.size() < 3) return;
        crossings_.resize(static_cast<std::size_t>(ground_.rows_));
        Point before = outline.back();
        for (const Point& point : outline) {
            Cross(before, point);
            before = point;
        }
        for (int row = limits_.top; row <= limits_.bottom; ++row) {
            std::vector<double>& places = crossings_[static_cast<std::size_t>(row)];
            std::sort(places.begin(), places.end());
            for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
                const int left = ColumnFrom(places[i]);
                // What is thinner than a cell lies in one.
                const int right = std::max(left, ColumnFrom(places[i + 1]) - 1);
                CoverRow(row, std::max(limits_.left, left), std::min(limits_.right, right));
            }
            places.clear();
        }
    }
    /// The first column whose middle is at that place or to its right.
    [[nodiscard]] int ColumnFrom(double x) const {
        return static_cast<int>(
            std::clamp(std::ceil(x - ground_.room_.left - 0.5), 0.0, 1.0 * ground_.columns_));
    }
    void Cross(Point from, Point to) {
        if (from.y > to.y) std::swap(from, to);
        const double top = ground_.room_.top + 0.5;
        const int first = static_cast<int>(std::clamp(std::ceil(from.y - top), 0.0, 1.0 * ground_.rows_));
        const int last = static_cast<int>(std::clamp(std::ceil(to.y - top), 0.0, 1.0 * ground_.rows_)) - 1;
        for (int row = std::max(first, limits_.top); row <= std::min(last, limits_.bottom); ++row)
            crossings_[static_cast<std::size_t>(row)].push_back(
                from.x + (top + row - from.y) * (to.x - from.x) / (to.y - from.y));
    }

    void Chain(std::span<const Point> points) {
        const Stroke& stroke = shape_->stroke;
        if (stroke.style == PenStyle::None || (!IsOfPlot() && !IsSeen(stroke.colour))) return;
        const double half = stroke.width / 2;
        for (std::size_t i = 1; i < points.size(); ++i)
            ground_.ForPlaces(points[i - 1], points[i], [&](Point place) {
                Mark({place.x - half, place.y - half, place.x + half, place.y + half}, Line);
            });
    }

    Ground& ground_;
    const Scene& scene_;
    const Shape* shape_ = nullptr;
    int number_ = 0;
    Cells limits_;
    std::map<std::pair<int, Cell>, Cell> known_;
    Cell below_ = 0;
    int layer_ = -1;
    Cell surface_ = 0;
    std::vector<std::vector<double>> crossings_;
};

Ground::Ground(const Scene& scene, const Box& room, Colour plain)
    : scene_(&scene), room_(room), columns_(std::max(1, static_cast<int>(std::ceil(room.Width())))),
      rows_(std::max(1, static_cast<int>(std::ceil(room.Height())))),
      cells_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), 0),
      surfaces_{{Plain, plain, false}} {
    Reader(*this, scene).Read();
}

Ground::Cells Ground::CellsOf(const Box& box) const {
    // One beyond the end stands for all that is outside.
    const auto first = [](double place, int count) {
        return static_cast<int>(std::clamp(std::floor(place + Touch), 0.0, 1.0 * count));
    };
    const auto last = [](double place, int count) {
        return static_cast<int>(std::clamp(std::ceil(place - Touch), 0.0, 1.0 * count)) - 1;
    };
    Cells cells{first(box.left - room_.left, columns_), first(box.top - room_.top, rows_),
                last(box.right - room_.left, columns_), last(box.bottom - room_.top, rows_)};
    // What is thinner than a cell lies in one.
    if (box.right >= room_.left && cells.left < columns_) cells.right = std::max(cells.right, cells.left);
    if (box.bottom >= room_.top && cells.top < rows_) cells.bottom = std::max(cells.bottom, cells.top);
    return cells;
}

Ground::Footing Ground::Under(const Box& box) const {
    Footing footing;
    footing.free = box.left >= room_.left && box.top >= room_.top && box.right <= room_.right &&
                   box.bottom <= room_.bottom;
    const Cells cells = CellsOf(box);
    std::vector<std::pair<Cell, int>> counts; // by surface, few as they are under one label
    int all = 0;
    int lines = 0;
    for (int row = cells.top; row <= cells.bottom; ++row)
        for (int column = cells.left; column <= cells.right; ++column) {
            const Cell cell = At(column, row);
            const Cell surface = cell >> SurfaceShift;
            auto known = std::find_if(counts.begin(), counts.end(),
                                      [surface](const auto& count) { return count.first == surface; });
            if (known == counts.end()) known = counts.insert(counts.end(), {surface, 0});
            ++known->second;
            ++all;
            lines += (cell & Line) != 0;
            footing.free = footing.free && (cell & Text) == 0;
        }
    if (all == 0) return footing;
    const auto most = std::max_element(counts.begin(), counts.end(), [](const auto& one, const auto& other) {
        return one.second < other.second;
    });
    const Surface& surface = surfaces_[most->first];
    footing.even = counts.size() == 1 && lines == 0 && !surface.patterned;
    footing.shape = surface.shape;
    footing.colour = surface.colour;
    footing.share = static_cast<double>(most->second) / all;
    footing.lines = static_cast<double>(lines) / all;
    return footing;
}

void Ground::Take(const Box& box) {
    const Cells cells = CellsOf(box);
    for (int row = cells.top; row <= cells.bottom; ++row)
        for (int column = cells.left; column <= cells.right; ++column) At(column, row) |= Text;
}

bool Ground::IsFreeWay(std::span<const Point> way) const {
    bool free = std::all_of(way.begin(), way.end(), [this](Point place) { return room_.Contains(place); });
    for (std::size_t i = 1; free && i < way.size(); ++i)
        ForPlaces(way[i - 1], way[i], [&](Point place) {
            const Cells cells = CellsOf({place.x, place.y, place.x, place.y});
            free = free && (At(cells.left, cells.top) & Text) == 0;
        });
    return free;
}

void Ground::Draw(std::span<const Point> way) {
    for (std::size_t i = 1; i < way.size(); ++i)
        ForPlaces(way[i - 1], way[i], [this](Point place) {
            const Cells cells = CellsOf({place.x, place.y, place.x, place.y});
            if (cells.left <= cells.right && cells.top <= cells.bottom) At(cells.left, cells.top) |= Line;
        });
}

std::optional<Part> Ground::PartAt(Point place) const {
    const Cells cells = CellsOf({place.x, place.y, place.x, place.y});
    if (cells.left > cells.right || cells.top > cells.bottom) return std::nullopt;
    return PartOf(surfaces_[At(cells.left, cells.top) >> SurfaceShift].shape);
}

std::optional<Part> Ground::PartOf(int shape) const {
    if (shape == Plain) return std::nullopt;
    return scene_->shapes[static_cast<std::size_t>(shape)].part;
}

} // namespace QmChart6
