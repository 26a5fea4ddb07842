#pragma once

#include "qmchart6/Variant.h"

#include <QString>

namespace QmChart6 {

/// The process' number format for value labels: "0", or "0" and the locale's decimal separator and "00".
/// It keeps its value until it is computed again. While formats follow the data it is "", whatever was
/// computed: then each label has as many decimals as ticks or values need.
const QString& ValueLabelFormat();

/// Whether formats follow the data from here on; at first they do not.
void LetFormatsFollowData(bool on);

/// Sets ValueLabelFormat by whether a value of the table holds decimals: whether its text holds a ".", which
/// under a locale with another separator a number's text never does. Elements are looked at row by row, from
/// 1 to Rows and 1 to Columns whatever the table's lower bounds are, until one with decimals is found.
/// Raises 9 (an index outside the table), 13 (Data is no table, or an element is none of the kinds that have
/// a text), 94 (a Null).
void ComputeValueLabelFormat(const Variant& Data, int Rows, int Columns);

} // namespace QmChart6
