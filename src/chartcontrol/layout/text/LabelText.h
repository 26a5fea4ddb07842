#pragma once

#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/model/Chart.h"

#include <optional>
#include <vector>

namespace QmChart6 {

/// Whether a point's label shows anything.
bool ShowsLabel(const DataPointLabel& label);

/// The texts of data labels: series name, value and percent as the components say, or a text of the label's
/// own. Values without a format are written with as many decimals as the chart's data need.
class LabelTexts {
public:
    explicit LabelTexts(const Chart& chart) : chart_(chart) {}

    /// What the label shows, piece by piece. Category from 0. The percent is the value's share of its
    /// category's sum of absolute values.
    [[nodiscard]] QStringList Of(const DataPointLabel& label, int series, int category, double value);
    /// The percent is the share that the mark shows.
    [[nodiscard]] QStringList WithShare(const DataPointLabel& label, int series, double value, double share);

private:
    [[nodiscard]] QString ValueText(double value, const QString& format);
    [[nodiscard]] double ShareOf(int category, double value);

    const Chart& chart_;
    std::optional<QString> format_;
    std::vector<double> sums_;
};

/// The pieces in one line with "; " between them where that is short enough, else below each other. Numbers
/// never break.
TextBlock BreakLabel(const QStringList& pieces, const Font& font, Orientation orientation, double length,
                     const TextMeasurer& measurer);

} // namespace QmChart6
