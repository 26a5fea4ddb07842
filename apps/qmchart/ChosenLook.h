#pragma once

#include "qmchart/CommandLine.h"
#include "qmchart/TableReader.h"

#include <QByteArray>

namespace QmChart6 {

/// The look that a chart gets, and the titles of its axes.
struct ChosenLook {
    std::uint8_t useConfig = 0; ///< as QMChartArray numbers them
    /// In place of whatever is stored; nothing where a stored look, or the component's own, is used as it is.
    std::optional<QByteArray> look;
    QString rowTitle;
    QString valueTitle;
};

/// Chooses by what the command line names, by what the store binds to the graph id, and otherwise the calm
/// look. The kind of chart that was asked for, and what only the table tells (the names of an XY chart's
/// axes, and of two value axes), is put into it. Raises UsageError and RuntimeError.
ChosenLook ChooseLook(const CommandLine& line, const QString& graphId, const Table& table);

} // namespace QmChart6
