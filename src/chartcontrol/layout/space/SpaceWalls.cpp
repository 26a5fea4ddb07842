#include "chartcontrol/layout/space/SpaceWalls.h"

#include "chartcontrol/model/ColourContrast.h"

#include <array>

namespace QmChart6 {

namespace {

/// How much of the tint walls and floor have over the chart's ground, and the tints.
constexpr double WallShare = 0.05;
constexpr double SideShare = 0.095;
constexpr double FloorShare = 0.145;
constexpr Colour DarkTint{95, 116, 155};
constexpr Colour LightTint{170, 190, 220};

Colour GroundOf(const Backdrop& backdrop) {
    return backdrop.Fill.Style == FillStyle::None ? Colour{255, 255, 255} : backdrop.Fill.Brush.FillColor;
}

class Walls {
public:
    Walls(const LayoutContext& context, const SpacePlan& plan)
        : context_(context), plan_(plan), ground_(GroundOf(context.chart.Backdrop)),
          farX_(plan.View().IsBeyondX(plan.size.x / 2) ? 0 : plan.size.x),
          farY_(plan.View().IsBeyondY(plan.size.y / 2) ? 0 : plan.size.y),
          farZ_(plan.View().IsBeyondZ(plan.size.z / 2) ? 0 : plan.size.z) {}

    void Run(const PlotDemand& demand) {
        const SpacePoint& size = plan_.size;
        Face({SpacePoint{farX_, 0, 0}, {farX_, size.y, 0}, {farX_, size.y, size.z}, {farX_, 0, size.z}},
             SideShare);
        Face({SpacePoint{0, 0, farZ_}, {size.x, 0, farZ_}, {size.x, size.y, farZ_}, {0, size.y, farZ_}},
             WallShare);
        Face({SpacePoint{0, farY_, 0}, {size.x, farY_, 0}, {size.x, farY_, size.z}, {0, farY_, size.z}},
             FloorShare);
        ValueGrid(AxisId::Y, plan_.primary, plan_.primaryMap);
        if (demand.usesSecondary) ValueGrid(AxisId::SecondaryY, plan_.secondary, plan_.secondaryMap);
        CategoryGrid();
        RowGrid();
    }

private:
    void Face(const std::array<SpacePoint, 4>& corners, double share) {
        for (const SpacePoint& corner : corners) context_.builder.AddPoint(plan_.Page(corner));
        const Pen& pen = context_.chart.Plot.Axis(AxisId::X).Pen;
        context_.builder.AddPolygon({PartCode::Plot},
                                    SolidFill(Mixed(ground_, IsDark(ground_) ? LightTint : DarkTint, share)),
                                    {PenStyle::Solid, pen.Width / 2, pen.VtColor});
    }

    /// A line along two walls that meet.
    void Line(AxisId id, SpacePoint from, SpacePoint corner, SpacePoint to) {
        const Pen& pen = context_.chart.Plot.Axis(id).AxisGrid.MajorPen;
        if (pen.Style == PenStyle::None) return;
        for (const SpacePoint& point : {from, corner, to}) context_.builder.AddPoint(plan_.Page(point));
        context_.builder.AddPolyline({PartCode::Axis, static_cast<int>(id), 1}, StrokeOf(pen));
    }
    [[nodiscard]] double NearX() const { return plan_.size.x - farX_; }
    [[nodiscard]] double NearZ() const { return plan_.size.z - farZ_; }

    void ValueGrid(AxisId id, const ValueAxisPlan& axis, const AxisMap& map) {
        for (const ValueAxisPlan::Tick& tick : axis.ticks) {
            const double y = map.At(tick.value);
            Line(id, {farX_, y, NearZ()}, {farX_, y, farZ_}, {NearX(), y, farZ_});
        }
    }
    void CategoryGrid() {
        if (plan_.slot * plan_.scale < 4) return;
        for (std::size_t column = 0; column <= plan_.columns.size(); ++column) {
            const double x = static_cast<double>(column) * plan_.slot;
            Line(AxisId::X, {x, farY_, NearZ()}, {x, farY_, farZ_}, {x, plan_.size.y - farY_, farZ_});
        }
    }
    void RowGrid() {
        for (std::size_t row = 0; row <= plan_.rows.size(); ++row) {
            const double z = static_cast<double>(row) * plan_.rowDepth;
            Line(AxisId::Z, {NearX(), farY_, z}, {farX_, farY_, z}, {farX_, plan_.size.y - farY_, z});
        }
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    Colour ground_;
    // Where the walls stand: the sides that the viewer looks at from within.
    double farX_;
    double farY_;
    double farZ_;
};

} // namespace

void LayOutWalls(const LayoutContext& context, const PlotDemand& demand, const SpacePlan& plan) {
    Walls(context, plan).Run(demand);
}

} // namespace QmChart6
