#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <functional>
#include <vector>

namespace QmChart6 {

/// How the labels of a category axis stand, in the order in which the ways are tried: as they are, wrapped,
/// turned by 45 degrees, upright, and (each of those but the wrapped) with some left out.
struct CategoryLabelPlan {
    enum class Way { None, Level, Turned, Upright };

    struct Label {
        int category = 0; // from 0
        TextBlock block;
    };

    Way way = Way::None;
    /// Every stride-th category from the first has its label.
    int stride = 1;
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
    int count = 0;
    /// The text of a category, from 0.
    std::function<QString(int)> text;
    /// Points from one category to the next.
    double slot = 0;
    /// Turned and upright labels are elided to it.
    double mostDepth = 0;
};

CategoryLabelPlan PlanCategoryLabels(const CategoryLabelWish& wish, const Font& font,
                                     const TextMeasurer& measurer);

/// Places the planned labels below `top`; `x` gives the middle of a category.
void PlaceCategoryLabels(SceneBuilder& builder, const CategoryLabelPlan& plan,
                         const std::function<double(int)>& x, double top);

} // namespace QmChart6
