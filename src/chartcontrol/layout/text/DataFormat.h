#pragma once

#include "chartcontrol/model/Chart.h"

namespace QmChart6 {

/// The number format that tells the values of a chart's series with as few decimals as tell them apart, four
/// digits at the most, and grouped from 10,000 on.
QString DataFormatOf(const Chart& chart);

/// A value in that format; in more digits where it would read as zero and is not.
QString DataText(double value, const QString& format);

} // namespace QmChart6
