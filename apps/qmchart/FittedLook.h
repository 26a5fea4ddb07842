#pragma once

#include "qmchart/TableReader.h"

#include <QJsonObject>

namespace QmChart6 {

/// Makes every series what that kind of chart draws, as looks number them.
void SetKind(QJsonObject& look, int chartType);

/// Whether a look leaves out how texts look, as one does that was written by hand to change a few things.
bool IsSketch(const QJsonObject& look);

/// Whether the look has a ground on which dark texts would not be read.
bool HasDarkGround(const QJsonObject& look);

/// The look with what it leaves out taken from another.
QJsonObject CompletedBy(const QJsonObject& look, const QJsonObject& other);

/// Whether a look makes an XY chart.
bool MakesXYChart(const QJsonObject& look);

/// Fits a look to a table where the look leaves it open: the points of an XY chart are joined on demand only,
/// one pair of columns needs no legend, areas do not hide each other, the slices of a pie are the rows where
/// there is one column, and a second value axis is there for series that stand on it.
void FitToTable(QJsonObject& look, const Table& table);

/// Names each value axis after its series, in place of all titles of the look and of a legend, where it gives
/// one series of two an axis of its own. False, and nothing done, otherwise.
bool NameValueAxes(QJsonObject& look, const Table& table);

/// The name of a column of numbers, from 1; "" where there is none.
QString ColumnName(const Table& table, int column);

} // namespace QmChart6
