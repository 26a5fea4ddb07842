#include "chartcontrol/layout/axes/ValueAxis.h"

#include "base/NumberFormat.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// The room that a tick looks best with, as parts of the label font's height or width.
constexpr double TickRoomUpright = 4;
constexpr double TickRoomAcross = 7;
constexpr int MostTicks = 12;
/// Labels side by side stay this many font sizes apart.
constexpr double ValueGapShare = 1.0;

/// Where plain digits would run longer than this, labels get an exponent.
constexpr double LargestPlain = 1e15;
constexpr double SmallestPlainStep = 1e-6;
constexpr double GroupingFrom = 10000;

/// The format that tells the ticks apart with as few digits as can be.
QString GeneralFormat(const Ticks& ticks) {
    const double largest = std::max(std::abs(ticks.first), std::abs(ticks.Last()));
    if (largest >= LargestPlain || ticks.step < SmallestPlainStep) {
        const int digits =
            std::clamp(static_cast<int>(std::ceil(std::log10(largest / ticks.step) - 1e-9)), 0, 14);
        return digits == 0 ? QStringLiteral("0E+00")
                           : QStringLiteral("0.%1E+00").arg(QString(digits, QLatin1Char('0')));
    }
    int decimals = 0;
    for (double step = ticks.step; decimals < 9 && std::abs(step - std::round(step)) > 1e-9 * step;
         ++decimals)
        step *= 10;
    const QString whole = largest >= GroupingFrom ? QStringLiteral("#,##0") : QStringLiteral("0");
    return decimals == 0 ? whole : whole + QLatin1Char('.') + QString(decimals, QLatin1Char('0'));
}

/// The least difference that the axis' format can show; 0 for a general one.
double UnitOf(const QString& format) {
    const int decimals = FormatDecimals(format);
    return decimals < 0 ? 0 : std::pow(10.0, -decimals) / FormatFactor(format);
}

Ticks TicksOf(const Axis& axis, const ValueAxisWish& wish, int count) {
    if (!axis.ValueScale.Auto && axis.ValueScale.Maximum > axis.ValueScale.Minimum) {
        const int divisions = std::max(1, axis.ValueScale.MajorDivision);
        return {axis.ValueScale.Minimum, (axis.ValueScale.Maximum - axis.ValueScale.Minimum) / divisions,
                divisions + 1};
    }
    ValueRange range = wish.range;
    if (range.IsEmpty()) range = {0, 1};
    if (wish.keepZero) range.Include(0);
    // A constant zero still gets an axis that starts there.
    if (wish.keepZero && range.low == 0 && range.high == 0) range.high = 1;
    return ChooseTicks(range.low, range.high, {count, UnitOf(axis.Labels.Item(1).Format)});
}

ValueAxisPlan PlanWith(const LayoutContext& context, const Axis& axis, const ValueAxisWish& wish, int count) {
    const AxisLabels& look = axis.Labels.Item(1);
    ValueAxisPlan plan;
    plan.ticks = TicksOf(axis, wish, count);
    plan.line = context.measurer.Measure(QStringLiteral("0"), look.VtFont);
    const QString format = look.Format.isEmpty() ? GeneralFormat(plan.ticks) : look.Format;
    for (int i = 0; i < plan.ticks.count; ++i) {
        const QString text = FormatNumber(plan.ticks.At(i), format);
        plan.labels.push_back({text, context.measurer.Measure(text, look.VtFont).width});
    }
    return plan;
}

bool LabelsMeet(const ValueAxisPlan& plan, const ValueAxisWish& wish, double gap) {
    const double pitch = wish.length / (plan.ticks.count - 1);
    if (!wish.across) return plan.line.Height() > pitch;
    for (std::size_t i = 1; i < plan.labels.size(); ++i)
        if ((plan.labels[i - 1].width + plan.labels[i].width) / 2 + gap > pitch) return true;
    return false;
}

} // namespace

double ValueAxisPlan::LabelWidth() const {
    double width = 0;
    for (const Label& label : labels) width = std::max(width, label.width);
    return width;
}

ValueAxisPlan PlanValueAxis(const LayoutContext& context, const Axis& axis, const ValueAxisWish& wish) {
    const Font& font = axis.Labels.Item(1).VtFont;
    const double room = (wish.across ? TickRoomAcross : TickRoomUpright) * std::max(1.0, font.Size);
    int count = std::clamp(static_cast<int>(std::lround(wish.length / room)) + 1, 2, MostTicks);
    ValueAxisPlan plan = PlanWith(context, axis, wish, count);
    while (count > 2 && LabelsMeet(plan, wish, ValueGapShare * font.Size))
        plan = PlanWith(context, axis, wish, --count);
    return plan;
}

} // namespace QmChart6
