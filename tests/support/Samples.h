#pragma once

#include "qmchart6/Variant.h"

#include <QStringList>

#include <vector>

/// Names with a number each: text 1, text 2 ..., counted from `lowerBound`.
inline QmChart6::Array<QString> Names(const QString& text, int count, int lowerBound = 1) {
    std::vector<QString> names;
    for (int number = 1; number <= count; ++number) names.push_back(text + u' ' + QString::number(number));
    return QmChart6::Array<QString>(std::move(names), lowerBound);
}

/// A table whose cell (row, column) is 10 * row + column, counted from `lowerBound`.
inline QmChart6::Array<double> Numbers(int rows, int columns, int lowerBound = 1) {
    std::vector<double> cells;
    for (int row = 1; row <= rows; ++row)
        for (int column = 1; column <= columns; ++column) cells.push_back(10 * row + column);
    return QmChart6::Array<double>::Table(rows, columns, std::move(cells), lowerBound, lowerBound);
}
