#pragma once

#include "chartcontrol/model/Chart.h"

#include <vector>

namespace QmChart6 {

/// Whether a point's label shows anything.
bool ShowsLabel(const DataPointLabel& label);

/// The text of data labels: series name, value and percent as the components say, or a text of the label's
/// own.
class LabelTexts {
public:
    explicit LabelTexts(const Chart& chart) : chart_(chart) {}

    /// Category from 0. The percent is the value's share of its category's sum of absolute values.
    [[nodiscard]] QString Of(const DataPointLabel& label, int series, int category, double value);
    /// The percent is the share that the mark shows.
    [[nodiscard]] QString WithShare(const DataPointLabel& label, int series, double value,
                                    double share) const;

private:
    [[nodiscard]] double ShareOf(int category, double value);

    const Chart& chart_;
    std::vector<double> sums_;
};

/// The label's font, its colour exchanged for black or white where it would not be read on a
/// background: below 4.5 : 1 in contrast (WCAG 2.1, 1.4.3).
Font ReadableFont(const Font& font, Colour background);

} // namespace QmChart6
