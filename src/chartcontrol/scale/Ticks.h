#pragma once

namespace QmChart6 {

/// Evenly spaced ticks: first, first + step, ... , `count` of them (at least 2). step is positive.
struct Ticks {
    double first = 0;
    double step = 1;
    int count = 2;

    /// The value of a tick from 0 to count - 1; exactly 0 where rounding would miss it.
    [[nodiscard]] double At(int index) const;
    [[nodiscard]] double Last() const { return At(count - 1); }
};

/// What is asked of the ticks of a value axis.
struct TickWish {
    /// How many ticks would look best, from 2.
    int count = 6;
    /// Steps are whole multiples of it, for labels that can show no finer difference; 0 for no such limit.
    double unit = 0;
};

/// The ticks that suit a range of values best and enclose it. The search and its weights are those of Talbot,
/// Lin and Hanrahan, "An Extension of Wilkinson's Algorithm for Positioning Tick Labels on Axes" (InfoVis
/// 2010), with labels outside the data only; but no double lies outside the largest. A range without extent
/// is widened round its value; `low` and `high` may come in any order and must be finite.
Ticks ChooseTicks(double low, double high, const TickWish& wish);

} // namespace QmChart6
