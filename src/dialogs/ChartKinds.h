#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <QStringList>

#include <vector>

namespace QmChart6 {

/// The kinds of chart in a dimension, in the order of the list that offers them, for a chart with one data
/// column or more.
std::vector<ChartType> KindsOffered(bool threeD, bool oneColumn);

/// What a kind is called in that list, in the process' language.
QString ChartKindText(ChartType kind);

/// The data-label location at a place of the list that offers those of a type; none before the first.
LabelLocation LocationOffered(ChartType type, int index);

/// What the data-label locations that charts of a type have are called, in the order of that list.
QStringList LabelLocationTexts(ChartType type);

/// Where a location stands in that list; one that charts of the type do not have stands where the one that
/// takes its place does.
int IndexOfLabelLocation(ChartType type, LabelLocation location);

/// Where the location of that number stands in that list, as its number says: one that charts of the type do
/// not have stands where the numbers lead, if that is in the list, otherwise where what takes its place does.
int IndexOfLabelNumber(ChartType type, int number);

/// The label line styles by their number, in the process' language.
QStringList LabelLineTexts();

} // namespace QmChart6
