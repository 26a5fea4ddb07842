#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

namespace QmChart6 {

/// Numbers as the text that the platform's conversion gives: 15 significant digits for a double, 7 for a
/// single, no trailing zeros. An exponent ("1E+15", "1.5E-16", "3.33333333333333E-02") stands where the plain
/// form would need more digits than that before or behind the separator. The decimal separator is the current
/// locale's, there is no grouping; zero has no sign.
QString TextOfDouble(double value);
QString TextOfSingle(float value);

/// The current locale's decimal separator.
QChar DecimalSeparator();

/// The number that a text holds, in the current locale and without grouping; blanks at both ends are allowed.
/// Raises error 13 where the text holds no number, error 6 where the number is too large for a double.
double NumberOfText(QStringView text);

/// What is left of a number after it crossed as text: NumberOfText(TextOfDouble(value)), without making the
/// text. Infinities and not-a-number stay what they are.
double RoundedAsText(double value);
double RoundedAsText(float value);

/// Whether TextOfDouble(value) holds the character ".", without making the text unless it must be looked at.
bool TextHoldsPoint(double value);
bool TextHoldsPoint(float value);

} // namespace QmChart6
