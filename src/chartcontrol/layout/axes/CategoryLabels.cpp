#include "chartcontrol/layout/axes/CategoryLabels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

/// Labels side by side stay this many font sizes apart.
constexpr double CategoryGapShare = 0.6;
/// Wrapping starts to look good from slots this many font sizes wide, up to so many lines.
constexpr double NarrowestWrapShare = 3.5;
constexpr int MostWrapLines = 3;
/// Pitches of turned and upright labels, as parts of their height.
constexpr double TurnedPitchShare = 1.45;
constexpr double UprightPitchShare = 1.08;
/// Where labels must be left out, level ones are kept if at least so many remain.
constexpr int FewestLevel = 5;
constexpr double Sine45 = std::numbers::sqrt2 / 2;

constexpr std::array Strides{1, 2, 3, 4, 5, 6, 8, 10, 12, 15, 20, 24, 25, 30, 40, 50, 60, 75, 80, 100};

/// A stride that keeps the last category's label beside the first's may be this much longer than it need be.
constexpr double LongerForTheEnd = 1.5;

/// A stride of at least `least`: one that meets the last category, or the next of 1 2 3 4 5 6 8 10 12 ... 100
/// (times 1, 100, 10,000).
int NiceStride(double least, int count) {
    const int start = std::max(1, static_cast<int>(std::ceil(least - 1e-9)));
    for (int stride = start; stride <= LongerForTheEnd * start && stride < count; ++stride)
        if ((count - 1) % stride == 0) return stride;
    for (int scale = 1;; scale *= 100)
        for (const int stride : Strides)
            if (stride * scale >= start) return stride * scale;
}

class CategoryPlanner {
public:
    CategoryPlanner(const CategoryLabelWish& wish, const Font& font, const TextMeasurer& measurer)
        : wish_(wish), font_(font), measurer_(measurer) {
        plan_.line = measurer.Measure(QStringLiteral("x"), font);
    }

    CategoryLabelPlan Run() {
        if (wish_.count == 0 || !(wish_.slot > 0)) return plan_;
        if (TryLevel(1) || TryWrapped()) return plan_;
        if (Fits(TurnedPitchShare)) return Set(CategoryLabelPlan::Way::Turned, 1);
        if (Fits(UprightPitchShare)) return Set(CategoryLabelPlan::Way::Upright, 1);
        // Levels with some left out; what a stride must at least be is known from the narrowest label.
        for (int stride = Stride(font_.Size / wish_.slot); wish_.count / stride >= FewestLevel;
             stride = Stride(stride + 1))
            if (TryLevel(stride)) return plan_;
        return Set(CategoryLabelPlan::Way::Turned,
                   Stride(TurnedPitchShare * plan_.line.Height() / wish_.slot));
    }

private:
    [[nodiscard]] int Stride(double least) const { return NiceStride(least, wish_.count); }
    [[nodiscard]] bool Fits(double pitchShare) const {
        return wish_.slot >= pitchShare * plan_.line.Height();
    }

    [[nodiscard]] TextBlock OneLine(int category, double length) const {
        return ElidedLine(wish_.text(category), font_, length, measurer_);
    }

    bool TryLevel(int stride) {
        const double pitch = stride * wish_.slot;
        plan_.labels.clear();
        bool any = false;
        double before = 0;
        for (int category = 0; category < wish_.count; category += stride) {
            if (wish_.text(category).isEmpty()) {
                before = 0;
                continue;
            }
            TextBlock block = OneLine(category, wish_.count == 1 ? wish_.slot : 3 * pitch);
            const double width = block.Length();
            if (block.elided && wish_.count > 1) return false;
            if (category > 0 && before > 0 && width > 0 &&
                (before + width) / 2 + CategoryGapShare * font_.Size > pitch)
                return false;
            any = any || width > 0;
            before = width;
            plan_.labels.push_back({category, std::move(block)});
        }
        plan_.way = any ? CategoryLabelPlan::Way::Level : CategoryLabelPlan::Way::None;
        plan_.stride = stride;
        return true;
    }

    bool TryWrapped() {
        if (wish_.slot < NarrowestWrapShare * font_.Size) return false;
        const double room = wish_.slot - CategoryGapShare * font_.Size;
        plan_.labels.clear();
        for (int category = 0; category < wish_.count; ++category) {
            const QString text = Printable(wish_.text(category)).simplified();
            for (const QString& word : text.split(QLatin1Char(' ')))
                if (measurer_.Measure(word, font_).width > room) return false;
            TextBlock block =
                BreakText(text, font_, Orientation::Horizontal, {room, MostWrapLines}, measurer_);
            if (block.elided) return false;
            plan_.labels.push_back({category, std::move(block)});
        }
        plan_.way = CategoryLabelPlan::Way::Level;
        return true;
    }

    CategoryLabelPlan Set(CategoryLabelPlan::Way way, int stride) {
        plan_.way = way;
        plan_.stride = stride;
        plan_.labels.clear();
        const double length = way == CategoryLabelPlan::Way::Upright
                                  ? wish_.mostDepth
                                  : wish_.mostDepth / Sine45 - plan_.line.Height();
        for (int category = 0; category < wish_.count; category += stride)
            plan_.labels.push_back({category, OneLine(category, length)});
        return plan_;
    }

    const CategoryLabelWish& wish_;
    const Font& font_;
    const TextMeasurer& measurer_;
    CategoryLabelPlan plan_;
};

/// A turned or upright line ends below its category's middle.
TextLine EndingAt(const CategoryLabelPlan& plan, const TextBlock& block, double x, double top) {
    const TextBlock::Line& line = block.lines.front();
    const double middle = (block.ascent - block.descent) / 2;
    if (plan.way == CategoryLabelPlan::Way::Upright)
        return {line.text, block.font, {x + middle, top}, TextAnchor::End,
                90,        line.width, block.ascent,      block.descent};
    const Point origin{x + middle * Sine45, top + block.ascent * Sine45};
    return {line.text, block.font, origin, TextAnchor::End, 45, line.width, block.ascent, block.descent};
}

} // namespace

double CategoryLabelPlan::Depth() const {
    double depth = 0;
    for (const Label& label : labels) {
        if (label.block.IsEmpty()) continue;
        switch (way) {
        case Way::None:
            break;
        case Way::Level:
            depth = std::max(depth, label.block.Depth());
            break;
        case Way::Upright:
            depth = std::max(depth, label.block.Length());
            break;
        case Way::Turned:
            depth = std::max(depth, (label.block.Length() + line.Height()) * Sine45);
            break;
        }
    }
    return depth;
}

double CategoryLabelPlan::ReachLeft(const Label& label) const {
    if (label.block.IsEmpty()) return 0;
    switch (way) {
    case Way::None:
        break;
    case Way::Level:
        return label.block.Length() / 2;
    case Way::Upright:
        return line.Height() / 2;
    case Way::Turned:
        return label.block.Length() * Sine45;
    }
    return 0;
}

double CategoryLabelPlan::ReachRight(const Label& label) const {
    if (label.block.IsEmpty() || way == Way::None) return 0;
    return way == Way::Level ? label.block.Length() / 2 : line.Height() / 2;
}

CategoryLabelPlan PlanCategoryLabels(const CategoryLabelWish& wish, const Font& font,
                                     const TextMeasurer& measurer) {
    return CategoryPlanner(wish, font, measurer).Run();
}

void PlaceCategoryLabels(SceneBuilder& builder, const CategoryLabelPlan& plan,
                         const std::function<double(int)>& x, double top) {
    for (const CategoryLabelPlan::Label& label : plan.labels) {
        if (label.block.IsEmpty()) continue;
        const Part part{PartCode::AxisLabel, static_cast<int>(AxisId::X), label.category + 1};
        const double middle = x(label.category);
        if (plan.way == CategoryLabelPlan::Way::Level)
            PlaceText(builder, part, label.block, {middle, top, middle, top}, HorizontalAlignment::Center,
                      VerticalAlignment::Top);
        else
            builder.AddText(part, EndingAt(plan, label.block, middle, top));
    }
}

} // namespace QmChart6
