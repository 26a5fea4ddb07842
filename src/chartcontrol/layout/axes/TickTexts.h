#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace QmChart6 {

/// What is written at the ticks of a value axis, and the unit that the axis tells for all of them: "million"
/// and so on in the language of the locale, or a power of ten; "" without one.
struct TickTexts {
    QStringList labels;
    QString unit;
};

/// Evenly spaced ticks with as few digits as tell them apart. Large values, from 10,000,000 on, are told in
/// units.
TickTexts TextsOfEvenTicks(const std::vector<double>& ticks);

/// Ticks of a logarithmic axis: plain where all of them are short, otherwise as powers of ten.
TickTexts TextsOfLogarithmicTicks(const std::vector<double>& ticks);

} // namespace QmChart6
