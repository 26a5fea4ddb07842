#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

namespace QmChart6 {

/// Numbers as the text that the platform's conversion gives: 15 significant digits for a double, 7 for a
/// single, no trailing zeros, an exponent ("1E+15", "1.5E-05") where the plain form would need more digits
/// than that. The decimal separator is the current locale's, there is no grouping.
QString TextOfDouble(double value);
QString TextOfSingle(float value);

/// The current locale's decimal separator.
QChar DecimalSeparator();

/// The number that a text holds, in the current locale and without grouping; blanks at both ends are allowed.
/// Raises error 13 where the text holds no number, or one too large for a double.
double NumberOfText(QStringView text);

/// What is left of a number after it crossed as text: NumberOfText(TextOfDouble(value)), without making the
/// text.
double RoundedAsText(double value);
double RoundedAsText(float value);

/// Whether TextOfDouble(value) holds the character ".", without making the text unless it must be looked at.
bool TextHoldsPoint(double value);
bool TextHoldsPoint(float value);

} // namespace QmChart6
