#pragma once

#include "chartcontrol/layout/axes/CategorySequence.h"
#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <functional>
#include <limits>
#include <vector>

namespace QmChart6 {

/// How the labels of a category axis stand, in the order in which the ways are tried: as they are, wrapped;
/// names then turned by 45 degrees, upright, and with some left out; numbers, dates and the like with some
/// left out by steps that mean something.
struct CategoryLabelPlan {
    enum class Way { None, Level, Turned, Upright };

    struct Label {
        int category = 0; // from 0
        TextBlock block;
    };

    Way way = Way::None;
    /// Whether categories that have a name go without.
    bool thinned = false;
    std::vector<Label> labels;
    TextExtent line;

    /// How far the labels reach down from the axis.
    [[nodiscard]] double Depth() const;
    /// How far label `label` reaches to the left of its category's middle.
    [[nodiscard]] double ReachLeft(const Label& label) const;
    [[nodiscard]] double ReachRight(const Label& label) const;
};

/// What the labels are planned for.
struct CategoryLabelWish {
    /// May be shared by several plans of the same categories.
    CategorySequence& categories;
    /// Points from one category to the next.
    double slot = 0;
    /// Turned and upright labels are elided to it.
    double mostDepth = 0;
    /// How far labels may reach to the left of the first category's middle, and to the right of the last's.
    double roomLeft = std::numeric_limits<double>::infinity();
    double roomRight = std::numeric_limits<double>::infinity();
};

/// The categories of a chart. It must live as long.
CategorySequence CategoriesOf(const Chart& chart);

CategoryLabelPlan PlanCategoryLabels(const CategoryLabelWish& wish, const Font& font,
                                     const TextMeasurer& measurer);

/// Places the planned labels below `top`; `x` gives the middle of a category.
void PlaceCategoryLabels(SceneBuilder& builder, const CategoryLabelPlan& plan,
                         const std::function<double(int)>& x, double top);

} // namespace QmChart6
