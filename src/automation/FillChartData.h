#pragma once

#include "qmchart6/Array.h"
#include "qmchart6/Variant.h"

#include <QString>

namespace QmChart6 {

struct Chart;

/// Loads a table into a chart: an empty grid of that size first, then column labels, then row by row its
/// label and cells, each cell as the number that is left after it crossed as text. Elements count from each
/// array's own lower bound. Raises 380 (a negative count), 9 (an array too small), 13 (Data is no table, a
/// cell is no number), 6 (a text cell too large), 94 (a Null cell); what was filled until then stays.
void FillChartData(Chart& chart, int Rows, int Columns, const Variant& Data, const Array<QString>& RowLabels,
                   const Array<QString>& ColumnLabels);

} // namespace QmChart6
