#include "fuzz/FuzzTarget.h"

#include "qmchart/TableReader.h"

#include "qmchart6/RuntimeError.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

using namespace QmChart6;

namespace {

void Require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

/// What every table that is read keeps to.
void Check(const Table& table) {
    Require(table.rows > 0 && table.columns > 0, "a table has rows and columns");
    Require(table.rowLabels.UpperBound() == table.rows - 1, "every row has a label");
    Require(table.columnLabels.UpperBound() == table.columns - 1, "every column has a label");
    for (int row = 1; row <= table.rows; ++row)
        for (int column = 1; column <= table.columns; ++column)
            Require(!std::isinf(table.values.At(row, column)), "a value is a number or missing");
}

void Read(const QByteArray& bytes, const TableLayout& layout) {
    try {
        Check(ReadTable(bytes, layout));
    } catch (const RuntimeError& error) {
        Require(error.Number() == 5 || error.Number() == 13 || error.Number() == 380,
                "an error has its number");
        Require(!error.Description().contains(u'\n'), "a message is one line");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    Read(text, {});
    Read(text, {.hasHeader = false, .hasRowLabels = false});
    Read(text, {.separator = ';'});
    return 0;
}
