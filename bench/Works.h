#pragma once

#include "chartcontrol/model/Chart.h"

#include <vector>

namespace Bench {

// The tables of the fixed works. Every program that is compared makes them by the same rule, so that all draw
// the same.

/// By column: a sine for each series, and noise.
std::vector<std::vector<double>> Lines(int rows, int series);
/// A cloud round a sine: x and y, unsorted.
void Cloud(int points, std::vector<double>& x, std::vector<double>& y);
/// By column: positive values from about 10 to 100.
std::vector<std::vector<double>> Small(int rows, int series);

/// A chart of columns, loaded from doubles; labelled with months and regions where it is small.
QmChart6::Chart ChartOf(const std::vector<std::vector<double>>& columns, QmChart6::ChartType type);

/// A small chart with titles, as W1, W5 and W6 draw it.
QmChart6::Chart SmallChart(const std::vector<std::vector<double>>& columns, QmChart6::ChartType type);

/// The colour of series i, from 0.
QmChart6::Colour ColourOf(int i);

} // namespace Bench
