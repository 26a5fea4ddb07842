#pragma once

#include "chartcontrol/layout/axes/DateLabel.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace QmChart6 {

/// 1, 2, 5, 10, 20, 50 and so on, by their place from 0.
std::int64_t NiceStride(int place);

/// A category that keeps its label where others lose theirs, and what is written there.
struct KeptCategory {
    int category = 0; // from 0
    QString text;
};

/// The labels of a category axis, and by which steps they may be thinned so that those that are left mean
/// something: whole numbers that ascend evenly at multiples of 1, 2, 5, 10 and so on, dates where a week, a
/// month, a year and so on begins, all others at every 2nd, 5th, 10th and so on from the first. What they are
/// is found out when it is first asked for.
class CategorySequence {
public:
    CategorySequence(int count, std::function<QString(int)> text) : count_(count), text_(std::move(text)) {}

    [[nodiscard]] int Count() const { return count_; }
    [[nodiscard]] QString Text(int category) const { return text_(category); }
    /// Each label says something that its neighbours do not let expect.
    [[nodiscard]] bool IsNames();
    /// The labels that are kept, no more than `most` and at least two, by the step-th of the steps that there
    /// are from 0, finest first; empty where such a step keeps too few or too many. Nothing behind the last
    /// step.
    [[nodiscard]] std::optional<std::vector<KeptCategory>> Kept(int step, double most);

private:
    /// Others: what is left out can be filled in by whoever reads what is left, but no step means more than
    /// another.
    enum class Kind { Unknown, Names, Numbers, Dates, Others };

    [[nodiscard]] Kind FindOut();
    [[nodiscard]] bool AreNumbers();
    [[nodiscard]] bool ReadDates();
    [[nodiscard]] bool Ascend();
    [[nodiscard]] bool AreNumbered() const;
    [[nodiscard]] bool IsKept(int category, int step) const;
    [[nodiscard]] QString TextAt(int category, int step) const;
    [[nodiscard]] int OwnSteps() const;

    int count_;
    std::function<QString(int)> text_;
    Kind kind_ = Kind::Unknown;
    std::int64_t firstNumber_ = 0;
    std::int64_t numberStep_ = 1;
    std::vector<DateLabel> dates_;
};

} // namespace QmChart6
