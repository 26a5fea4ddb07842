#include "chartcontrol/layout/axes/CategoryLabels.h"

#include "chartcontrol/layout/text/AlikeNames.h"

#include <QSet>

#include <algorithm>
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
/// Where names must be left out, level ones are kept if at least so many remain.
constexpr std::size_t FewestLevel = 5;
/// A turned label whose beginning would leave the picture is elided, but not to less than this part.
constexpr double LeastTurnedShare = 0.6;
constexpr double Sine45 = std::numbers::sqrt2 / 2;

class CategoryPlanner {
public:
    CategoryPlanner(const CategoryLabelWish& wish, const Font& font, const TextMeasurer& measurer)
        : wish_(wish), categories_(wish.categories), count_(wish.categories.Count()), font_(font),
          measurer_(measurer) {
        plan_.line = measurer.Measure(QStringLiteral("x"), font);
    }

    CategoryLabelPlan Run() {
        if (count_ == 0 || !(wish_.slot > 0)) return plan_;
        if (TryAll() || TryWrapped()) return plan_;
        plan_.thinned = true;
        if (!categories_.IsNames()) {
            if (!TryThinned(2) && !TryEnds()) plan_.labels.clear();
            return plan_;
        }
        using Way = CategoryLabelPlan::Way;
        if (Fits(TurnedPitchShare, 1) && TryTurned(1)) return plan_;
        if (Fits(UprightPitchShare, 1)) return SetTurned(Way::Upright, 1);
        if (TryThinned(FewestLevel) || TryTurned(StrideFor(TurnedPitchShare))) return plan_;
        return SetTurned(Way::Upright, StrideFor(UprightPitchShare));
    }

private:
    [[nodiscard]] bool Fits(double pitchShare, std::int64_t stride) const {
        return static_cast<double>(stride) * wish_.slot >= pitchShare * plan_.line.Height();
    }
    [[nodiscard]] double RoomLeft(int category) const { return wish_.roomLeft + category * wish_.slot; }
    [[nodiscard]] double RoomRight(int category) const {
        return wish_.roomRight + (count_ - 1 - category) * wish_.slot;
    }
    [[nodiscard]] bool StaysInside(const CategoryLabelPlan::Label& label) const {
        return plan_.ReachLeft(label) <= RoomLeft(label.category) &&
               plan_.ReachRight(label) <= RoomRight(label.category);
    }

    /// In one line, but for line breaks of its own.
    [[nodiscard]] TextBlock LevelBlock(const QString& text, double length) const {
        if (!text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r')))
            return ElidedLine(text, font_, length, measurer_);
        return BreakText(text, font_, Orientation::Horizontal, {length, MostWrapLines}, measurer_);
    }

    /// Adds a level label where it meets neither the one before nor the edge of the room; false where it
    /// meets the one before.
    bool AddLevel(int category, const QString& text, double longest) {
        TextBlock block = LevelBlock(text, longest);
        if (block.elided && count_ > 1) return false;
        if (block.IsEmpty()) return true;
        if (!plan_.labels.empty()) {
            const CategoryLabelPlan::Label& before = plan_.labels.back();
            const double needed =
                (before.block.Length() + block.Length()) / 2 + CategoryGapShare * font_.Size;
            if (needed > (category - before.category) * wish_.slot) return false;
        }
        plan_.labels.push_back({category, std::move(block)});
        return true;
    }

    bool TryAll() {
        plan_.labels.clear();
        plan_.way = CategoryLabelPlan::Way::Level;
        const double longest = count_ == 1 ? wish_.slot : 3 * wish_.slot;
        for (int category = 0; category < count_; ++category)
            if (!AddLevel(category, categories_.Text(category), longest)) return false;
        if (plan_.labels.empty()) plan_.way = CategoryLabelPlan::Way::None;
        return count_ == 1 ||
               std::ranges::all_of(plan_.labels, [this](const auto& label) { return StaysInside(label); });
    }

    bool TryKept(const std::vector<KeptCategory>& kept, std::size_t fewest) {
        plan_.labels.clear();
        plan_.way = CategoryLabelPlan::Way::Level;
        const double longest = 3 * wish_.slot * count_ / static_cast<double>(kept.size());
        for (const KeptCategory& label : kept)
            if (!AddLevel(label.category, label.text, longest)) return false;
        // Those at the ends that would leave the picture go without as well.
        std::erase_if(plan_.labels, [this](const auto& label) { return !StaysInside(label); });
        return plan_.labels.size() >= fewest;
    }

    /// Level, by the finest step that leaves room for what is kept.
    bool TryThinned(std::size_t fewest) {
        const double most = std::max(2.0, count_ * wish_.slot / font_.Size);
        for (int step = 0;; ++step) {
            const auto kept = categories_.Kept(step, most);
            if (!kept) return false;
            if (kept->size() >= fewest && TryKept(*kept, fewest)) return true;
        }
    }

    /// The first and the last, or the first alone.
    bool TryEnds() {
        const KeptCategory first{0, categories_.Text(0)};
        return TryKept({first, {count_ - 1, categories_.Text(count_ - 1)}}, 2) || TryKept({first}, 1);
    }

    bool TryWrapped() {
        if (wish_.slot < NarrowestWrapShare * font_.Size) return false;
        const double room = wish_.slot - CategoryGapShare * font_.Size;
        plan_.labels.clear();
        plan_.way = CategoryLabelPlan::Way::Level;
        for (int category = 0; category < count_; ++category) {
            const QString text = Printable(categories_.Text(category));
            for (const QString& word : text.simplified().split(QLatin1Char(' ')))
                if (measurer_.Measure(word, font_).width > room) return false;
            TextBlock block =
                BreakText(text, font_, Orientation::Horizontal, {room, MostWrapLines}, measurer_);
            if (block.elided) return false;
            plan_.labels.push_back({category, std::move(block)});
        }
        return std::ranges::all_of(plan_.labels, [this](const auto& label) { return StaysInside(label); });
    }

    [[nodiscard]] int StrideFor(double pitchShare) const {
        int step = 0;
        while (!Fits(pitchShare, NiceStride(step))) ++step;
        return static_cast<int>(std::min<std::int64_t>(NiceStride(step), count_));
    }

    const CategoryLabelPlan& SetTurned(CategoryLabelPlan::Way way, int stride) {
        plan_.way = way;
        plan_.thinned = stride > 1;
        const double length = way == CategoryLabelPlan::Way::Upright
                                  ? wish_.mostDepth
                                  : wish_.mostDepth / Sine45 - plan_.line.Height();
        names_.clear();
        for (int category = 0; category < count_; category += stride) names_ += categories_.Text(category);
        AddTurned(stride, length);
        if (!AreToldApart()) {
            names_ = WithoutCommonEnds(names_);
            AddTurned(stride, length);
        }
        return plan_;
    }

    void AddTurned(int stride, double length) {
        plan_.labels.clear();
        for (qsizetype i = 0; i < names_.size(); ++i)
            plan_.labels.push_back(
                {static_cast<int>(i) * stride, ElidedLine(names_[i], font_, length, measurer_)});
    }

    /// Whether names that differ still do where some of them were elided.
    [[nodiscard]] bool AreToldApart() const {
        if (std::ranges::none_of(plan_.labels, [](const auto& label) { return label.block.elided; }))
            return true;
        QSet<QString> shown;
        for (const CategoryLabelPlan::Label& label : plan_.labels)
            shown.insert(label.block.IsEmpty() ? QString() : label.block.lines.front().text);
        return shown.size() == QSet<QString>(names_.begin(), names_.end()).size();
    }

    /// False where labels would have to lose too much so as not to leave the picture at its left.
    bool TryTurned(int stride) {
        SetTurned(CategoryLabelPlan::Way::Turned, stride);
        for (std::size_t i = 0; i < plan_.labels.size(); ++i) {
            CategoryLabelPlan::Label& label = plan_.labels[i];
            if (plan_.ReachLeft(label) <= RoomLeft(label.category)) continue;
            const double length = RoomLeft(label.category) / Sine45 - plan_.line.Height() / 2;
            if (length < LeastTurnedShare * label.block.Length()) return false;
            label.block = ElidedLine(names_[static_cast<qsizetype>(i)], font_, length, measurer_);
        }
        return true;
    }

    const CategoryLabelWish& wish_;
    CategorySequence& categories_;
    int count_;
    const Font& font_;
    const TextMeasurer& measurer_;
    CategoryLabelPlan plan_;
    /// What is written at turned labels where there is room.
    QStringList names_;
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
        return (label.block.Length() + line.Height() / 2) * Sine45;
    }
    return 0;
}

double CategoryLabelPlan::ReachRight(const Label& label) const {
    if (label.block.IsEmpty() || way == Way::None) return 0;
    return way == Way::Level ? label.block.Length() / 2 : line.Height() / 2;
}

CategorySequence CategoriesOf(const Chart& chart) {
    return {chart.CategoryCount(), [&chart](int category) { return chart.CategoryName(category + 1); }};
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
