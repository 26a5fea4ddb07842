#pragma once

#include "qmchart6.h"
#include "qmchart6/Array.h"
#include "qmchart6/Variant.h"

#include <cstdint>

namespace QmChart6 {

/// A host's table as the automation class takes it; it looks at the host's memory. Raises 5 (no table, or one
/// of another size), 6 (more than 32,767 rows or columns), 380 (fewer than 0).
struct HostTable {
    explicit HostTable(const qmchart6_table* table);

    std::int16_t rows = 0;
    std::int16_t columns = 0;
    Variant values;
    Array<QString> rowLabels;
    Array<QString> columnLabels;
};

/// The titles of a chart; "" for what the host did not give. Raises 5 (a struct of another size).
struct HostTitles {
    explicit HostTitles(const qmchart6_titles* titles);

    QString chart;
    QString row;
    QString column;
    QString value;
};

/// "" for a null pointer.
QString TextOf(const char* utf8);

} // namespace QmChart6
