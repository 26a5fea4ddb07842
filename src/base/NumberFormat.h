#pragma once

#include <QString>

namespace QmChart6 {

/// A value written by a number format: "" (general: the shortest text that tells the value), "0", "0.00",
/// "#,##0", "0%", "0.0%", "0.00E+00", with any literal text before and behind, and quoted literals. In a
/// format both "." and the current locale's separator stand for the decimal separator; the result always has
/// the locale's own. A format that holds no digit place is written as it stands. Not-a-number gives "".
QString FormatNumber(double value, const QString& format);

/// The number of decimals a format shows after the value is scaled (2 for "0.00", 1 for "0.0%"), -1 for
/// general.
int FormatDecimals(const QString& format);
/// The factor a format multiplies the value by before it is written: 100 for a percent format, else 1.
double FormatFactor(const QString& format);

} // namespace QmChart6
