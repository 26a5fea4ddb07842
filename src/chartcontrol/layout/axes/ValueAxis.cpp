#include "chartcontrol/layout/axes/ValueAxis.h"

#include "base/NumberFormat.h"
#include "chartcontrol/layout/axes/TickTexts.h"
#include "chartcontrol/scale/LogarithmicTicks.h"
#include "chartcontrol/scale/Ticks.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace QmChart6 {

namespace {

/// The room that a tick looks best with, as parts of the label font's height or width.
constexpr double TickRoomUpright = 4;
constexpr double TickRoomAcross = 7;
constexpr int MostTicks = 12;
/// Labels side by side stay this many font sizes apart.
constexpr double ValueGapShare = 1.0;

/// The least difference that the axis' format can show; 0 for a general one.
double UnitOf(const QString& format) {
    const int decimals = FormatDecimals(format);
    return decimals < 0 ? 0 : std::pow(10.0, -decimals) / FormatFactor(format);
}

/// Where an axis ends, and its ticks.
struct Division {
    double low = 0;
    double high = 1;
    std::vector<double> ticks;
};

Division DivisionOf(const Ticks& ticks, const ValueRange& range) {
    // The largest values may lie outside the ticks.
    Division division{std::min(ticks.first, range.low), std::max(ticks.Last(), range.high), {}};
    for (int i = 0; i < ticks.count; ++i) division.ticks.push_back(ticks.At(i));
    return division;
}

Ticks FixedTicks(const ValueScale& scale) {
    int divisions = std::max(1, scale.MajorDivision);
    const auto step = [&] { return 2 * (scale.Maximum / divisions / 2 - scale.Minimum / divisions / 2); };
    while (!std::isfinite(step())) ++divisions;
    return {scale.Minimum, step(), divisions + 1};
}

Division EvenDivision(const Axis& axis, const ValueAxisWish& wish, int count) {
    const ValueScale& scale = axis.ValueScale;
    if (!scale.Auto && scale.Maximum > scale.Minimum)
        return DivisionOf(FixedTicks(scale), {scale.Minimum, scale.Maximum});
    ValueRange range = wish.demand.range;
    if (range.IsEmpty()) range = {0, 1};
    if (wish.keepZero) range.Include(0);
    // A constant zero still gets an axis that starts there.
    if (wish.keepZero && range.low == 0 && range.high == 0) range.high = 1;
    const double unit = std::max(UnitOf(axis.Labels.Item(1).Format), wish.demand.whole ? 1.0 : 0.0);
    return DivisionOf(ChooseTicks(range.low, range.high, {count, unit}), range);
}

/// A fixed range that does not begin above zero begins with the data.
LogarithmicTicks TicksOf(const ValueScale& scale, ValueRange range, int count) {
    if (range.IsEmpty()) range = {1, 10};
    if (!scale.Auto && scale.Maximum > 0 && scale.Maximum > scale.Minimum) {
        constexpr double decades = 1e-3; // shown where the data begins above the range's end
        const double low = scale.Minimum > 0           ? scale.Minimum
                           : range.low < scale.Maximum ? range.low
                                                       : scale.Maximum * decades;
        if (low > 0) return LogarithmicTicksWithin(low, scale.Maximum, count);
    }
    return ChooseLogarithmicTicks(range.low, range.high, count);
}

/// Ticks that stand at unlike distances may be this much closer.
constexpr double CloserFactor = 1.5;

Division LogarithmicDivision(const Axis& axis, const ValueAxisWish& wish, int count) {
    LogarithmicTicks ticks =
        TicksOf(axis.ValueScale, wish.demand.range, static_cast<int>(CloserFactor * count));
    return {ticks.low, ticks.high, std::move(ticks.values)};
}

TickTexts TextsOf(const std::vector<double>& ticks, const QString& format, bool logarithmic) {
    // A format that would show small ticks as zero tells nothing of them.
    const bool tooCoarse = logarithmic && ticks.front() < UnitOf(format);
    if (format.isEmpty() || tooCoarse)
        return logarithmic ? TextsOfLogarithmicTicks(ticks) : TextsOfEvenTicks(ticks);
    TickTexts texts;
    for (const double tick : ticks) texts.labels += FormatNumber(tick, format);
    return texts;
}

ValueAxisPlan PlanWith(const LayoutContext& context, const Axis& axis, const ValueAxisWish& wish, int count) {
    const AxisLabels& look = axis.Labels.Item(1);
    const bool logarithmic = wish.demand.logarithmic;
    const Division division =
        logarithmic ? LogarithmicDivision(axis, wish, count) : EvenDivision(axis, wish, count);
    const TickTexts texts = TextsOf(division.ticks, look.Format, logarithmic);
    ValueAxisPlan plan{{},          division.low, division.high,
                       logarithmic, texts.unit,   context.measurer.Measure(QStringLiteral("0"), look.VtFont)};
    plan.ticks.reserve(division.ticks.size());
    for (std::size_t i = 0; i < division.ticks.size(); ++i) {
        const QString& text = texts.labels[static_cast<qsizetype>(i)];
        plan.ticks.push_back({division.ticks[i], text, context.measurer.Measure(text, look.VtFont).width});
    }
    return plan;
}

/// Whether the labels of every stride-th tick meet.
bool LabelsMeet(const ValueAxisPlan& plan, const ValueAxisWish& wish, double gap, std::size_t stride) {
    const AxisMap map = plan.Map(0, wish.length);
    for (std::size_t i = plan.FirstOf(stride) + stride; i < plan.ticks.size(); i += stride) {
        const ValueAxisPlan::Tick& before = plan.ticks[i - stride];
        const ValueAxisPlan::Tick& tick = plan.ticks[i];
        const double needed = wish.across ? (before.width + tick.width) / 2 + gap : plan.line.Height();
        if (needed > map.At(tick.value) - map.At(before.value)) return true;
    }
    return false;
}

/// Where the ticks are given and their labels meet: only every second, fourth, fifth and so on has one.
void ThinLabels(ValueAxisPlan& plan, const ValueAxisWish& wish, double gap) {
    const std::size_t count = plan.ticks.size();
    std::size_t stride = 1;
    while (stride < count && (!plan.IsRound(stride) || LabelsMeet(plan, wish, gap, stride))) ++stride;
    for (std::size_t i = 0; i < count; ++i)
        if (i % stride != plan.FirstOf(stride)) plan.ticks[i].text.clear();
}

/// Whether a step has one digit, or two that are 25.
bool IsRoundStep(double step) {
    constexpr double exact = 1e-6;
    const double digits = step / std::pow(10.0, std::floor(std::log10(step) + exact));
    return std::abs(digits - 2.5) < exact || std::abs(digits - std::round(digits)) < exact;
}

} // namespace

double ValueAxisPlan::LabelWidth() const {
    double width = 0;
    for (const Tick& tick : ticks) width = std::max(width, tick.width);
    return width;
}

std::size_t ValueAxisPlan::FirstOf(std::size_t stride) const {
    const auto zero = std::ranges::find(ticks, 0.0, &Tick::value);
    if (zero != ticks.end()) return static_cast<std::size_t>(zero - ticks.begin()) % stride;
    if (logarithmic) return 0;
    const double steps = std::ceil(ticks[0].value / (ticks[1].value - ticks[0].value) - 1e-6);
    const auto length = static_cast<double>(stride);
    const double past = std::fmod(std::fmod(steps, length) + length, length);
    return static_cast<std::size_t>(length - past) % stride;
}

bool ValueAxisPlan::IsRound(std::size_t stride) const {
    if (logarithmic) return true;
    const double step = ticks[1].value - ticks[0].value;
    return !IsRoundStep(step) || IsRoundStep(step * static_cast<double>(stride));
}

ValueAxisPlan PlanValueAxis(const LayoutContext& context, const Axis& axis, const ValueAxisWish& wish) {
    const Font& font = axis.Labels.Item(1).VtFont;
    const double room = (wish.across ? TickRoomAcross : TickRoomUpright) * std::max(1.0, font.Size);
    int count = std::clamp(static_cast<int>(std::lround(wish.length / room)) + 1, 2, MostTicks);
    const double gap = ValueGapShare * font.Size;
    ValueAxisPlan plan = PlanWith(context, axis, wish, count);
    while (count > 2 && LabelsMeet(plan, wish, gap, 1)) plan = PlanWith(context, axis, wish, --count);
    ThinLabels(plan, wish, gap);
    return plan;
}

} // namespace QmChart6
