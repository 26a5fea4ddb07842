#include "chartcontrol/layout/space/SpacePlan.h"

#include "chartcontrol/layout/data/SeriesLook.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

/// Space is one unit wide. Its depth goes by the number of rows, within these; its height is fitted to the
/// page.
constexpr double ShallowestDepth = 0.1;
constexpr double DeepestDepth = 0.6;
constexpr double LowestHeight = 0.5;
constexpr double GreatestHeight = 2.0;
constexpr int HeightSteps = 24;
/// Rooms so much wider than high may have a space that is flatter, and no deeper than this.
constexpr double WideFrom = 2;
constexpr double FlattestHeight = 0.12;
constexpr double WideDepth = 0.25;
class SpacePlanner {
public:
    SpacePlanner(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                 const Box& box, Furniture furniture)
        : context_(context), demand_(demand), plotted_(plotted), box_(box) {
        plan_.furniture = furniture;
    }

    SpacePlan Run() {
        PlaceRows();
        PlaceColumns();
        const double depth = plan_.rowDepth * static_cast<double>(plan_.rows.size());
        plan_.size = {1, 1, depth};
        FitHeight(box_);
        PlanValues(std::min(UprightLength(true), UprightLength(false)));
        plan_.hasNamedRows = plan_.rows.size() > 1 && !plotted_.IsStacked();
        plan_.primaryMap = plan_.primary.Map(0, plan_.size.y);
        plan_.secondaryMap = plan_.secondary.Map(0, plan_.size.y);
        return plan_;
    }

private:
    [[nodiscard]] const Axis& AxisOf(AxisId id) const { return context_.chart.Plot.Axis(id); }

    /// Each series has a row of its own; piled ones share a row by axis and kind of mark.
    void PlaceRows() {
        const SeriesCollection& all = context_.chart.Plot.SeriesCollection;
        std::vector<std::pair<Mark, bool>> piles;
        for (int number = 1; number <= all.Count(); ++number) {
            if (!plotted_.IsStacked()) {
                plan_.rowOfSeries.push_back(number - 1);
                continue;
            }
            const std::pair<Mark, bool> pile{plotted_.MarkOf(number), all(number).SecondaryAxis};
            auto found = std::find(piles.begin(), piles.end(), pile);
            if (found == piles.end()) found = piles.insert(piles.end(), pile);
            plan_.rowOfSeries.push_back(static_cast<int>(found - piles.begin()));
        }
        const int rows = plotted_.IsStacked() ? static_cast<int>(piles.size()) : all.Count();
        const int columns = std::max(1, context_.chart.CategoryCount());
        const double depth =
            std::clamp(static_cast<double>(std::max(1, rows)) / columns, ShallowestDepth, DeepestDepth);
        plan_.rowDepth = depth / std::max(1, rows);
        for (int row = 0; row < std::max(1, rows); ++row) plan_.rows.push_back((row + 0.5) * plan_.rowDepth);
    }

    /// A column for each category, or for each device pixel where there are more.
    void PlaceColumns() {
        const int count = context_.chart.CategoryCount();
        const int most = std::max(1, static_cast<int>(box_.Width() * context_.request.pixelsPerPoint));
        const int columns = std::min(count, most);
        plan_.slot = 1.0 / std::max(1, columns);
        for (int column = 0; column < columns; ++column) {
            plan_.columns.push_back((column + 0.5) * plan_.slot);
            plan_.categories.push_back(static_cast<int>(static_cast<std::int64_t>(column) * count / columns));
        }
    }

    void PlanValues(double length) {
        plan_.primary =
            PlanValueAxis(context_, AxisOf(AxisId::Y), {demand_.primary, demand_.keepZero, length, false});
        const Axis& secondary = AxisOf(AxisId::SecondaryY);
        if (!demand_.usesSecondary && (secondary.AxisScale.Hide || plan_.furniture == Furniture::None)) {
            plan_.secondary = plan_.primary;
            return;
        }
        plan_.secondary = PlanValueAxis(
            context_, secondary,
            {demand_.usesSecondary ? demand_.secondary : demand_.primary, demand_.keepZero, length, false});
    }

    /// The flat picture's box for the present height.
    [[nodiscard]] Box Flat() {
        plan_.view.emplace(context_.chart.Plot, plan_.size);
        Box flat = Box::Nothing();
        for (const double x : {0.0, plan_.size.x})
            for (const double y : {0.0, plan_.size.y})
                for (const double z : {0.0, plan_.size.z}) flat.Include(plan_.View().Flat({x, y, z}));
        return flat;
    }

    /// How long an edge of the values is on the page.
    [[nodiscard]] double UprightLength(bool left) const {
        const SpacePoint low = plan_.UprightEdge(left);
        return std::abs(plan_.Page(low).y - plan_.Page({low.x, plan_.size.y, low.z}).y);
    }

    [[nodiscard]] static bool IsTallerThan(const Box& room, const Box& flat) {
        return flat.Height() * room.Width() > room.Height() * flat.Width();
    }

    /// Halves the interval of heights until the flat picture has the room's proportions.
    void SearchHeight(const Box& room, double low, double high) {
        for (int step = 0; step < HeightSteps; ++step) {
            plan_.size.y = (low + high) / 2;
            (IsTallerThan(room, Flat()) ? high : low) = plan_.size.y;
        }
    }

    void SetDepth(double depth) {
        const double factor = depth / plan_.size.z;
        plan_.size.z = depth;
        plan_.rowDepth *= factor;
        for (double& row : plan_.rows) row *= factor;
    }

    /// In wide rooms space is made less deep, and at last lower than it looks best, as long as that fills
    /// more of the width.
    void FitWideRoom(const Box& room) {
        const double depth = plan_.size.z;
        const double height = plan_.size.y;
        const double width = Flat().Width() * ScaleIn(room);
        SetDepth(std::max(ShallowestDepth, std::min(depth, WideDepth)));
        SearchHeight(room, FlattestHeight, LowestHeight);
        if (Flat().Width() * ScaleIn(room) > width) return;
        SetDepth(depth);
        plan_.size.y = height;
    }

    /// The scale at which the flat picture fills the room.
    [[nodiscard]] double ScaleIn(const Box& room) {
        const Box flat = Flat();
        return std::min(room.Width() / std::max(flat.Width(), 1e-9),
                        room.Height() / std::max(flat.Height(), 1e-9));
    }

    void FitHeight(const Box& room) {
        SearchHeight(room, LowestHeight, GreatestHeight);
        plan_.size.y = std::max(plan_.size.y, LowestHeight);
        if (room.Width() > WideFrom * room.Height() && IsTallerThan(room, Flat())) FitWideRoom(room);
        plan_.scale = ScaleIn(room);
        const Box flat = Flat();
        plan_.origin = {room.Center().x - flat.Center().x * plan_.scale,
                        room.Center().y - flat.Center().y * plan_.scale};
    }

    const LayoutContext& context_;
    const PlotDemand& demand_;
    const PlottedValues& plotted_;
    Box box_;
    SpacePlan plan_;
};

} // namespace

Box SpacePlan::Bounds() const {
    Box box = Box::Nothing();
    for (const double x : {0.0, size.x})
        for (const double y : {0.0, size.y})
            for (const double z : {0.0, size.z}) box.Include(Page({x, y, z}));
    return box;
}

double SpacePlan::CategoryEdgeZ() const {
    const double front = Page({size.x / 2, 0, 0}).y;
    const double back = Page({size.x / 2, 0, size.z}).y;
    return back > front + 1e-9 ? size.z : 0;
}

double SpacePlan::RowEdgeX() const {
    const double left = Page({0, 0, size.z / 2}).y;
    const double right = Page({size.x, 0, size.z / 2}).y;
    if (std::abs(left - right) > 1e-9) return right > left ? size.x : 0;
    return View().IsBeyondX(size.x / 2) ? size.x : 0;
}

SpacePoint SpacePlan::UprightEdge(bool left) const {
    SpacePoint best;
    double reach = -std::numeric_limits<double>::infinity();
    for (const double x : {0.0, size.x})
        for (const double z : {0.0, size.z}) {
            const double at = Page({x, size.y / 2, z}).x * (left ? -1 : 1);
            if (!(at > reach)) continue;
            best = {x, 0, z};
            reach = at;
        }
    return best;
}

double SpacePlan::CategorySlope() const {
    const Point left = Page({0, 0, CategoryEdgeZ()});
    const Point right = Page({size.x, 0, CategoryEdgeZ()});
    const double width = right.x - left.x;
    return (right.y - left.y) / (std::abs(width) < 1e-9 ? 1e-9 : width);
}

SpacePlan PlanSpace(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                    const Box& box, Furniture furniture) {
    return SpacePlanner(context, demand, plotted, box, furniture).Run();
}

} // namespace QmChart6
