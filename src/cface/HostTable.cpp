#include "cface/HostTable.h"

#include <limits>
#include <vector>

namespace QmChart6 {

namespace {

constexpr int LowerBound = 1;

void RequireSize(std::size_t size, std::size_t least, const char* what) {
    if (size < least)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the size in %1 must be that of the struct, not %2")
                               .arg(QLatin1String(what))
                               .arg(size));
}

std::int16_t CountOf(std::int64_t count, const char* what) {
    constexpr std::int64_t most = std::numeric_limits<std::int16_t>::max();
    if (count < 0)
        throw RuntimeError(
            ErrorNumber::InvalidPropertyValue,
            QStringLiteral("a table has 0 or more %1, not %2").arg(QLatin1String(what)).arg(count));
    if (count > most)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("a table has at most %1 %2, not %3")
                                                      .arg(most)
                                                      .arg(QLatin1String(what))
                                                      .arg(count));
    return static_cast<std::int16_t>(count);
}

Array<QString> LabelsOf(const char* const* labels, std::int16_t count) {
    std::vector<QString> texts(static_cast<std::size_t>(count));
    for (std::size_t i = 0; labels != nullptr && i < texts.size(); ++i) texts[i] = TextOf(labels[i]);
    return Array<QString>(std::move(texts), LowerBound);
}

} // namespace

QString TextOf(const char* utf8) {
    return utf8 == nullptr ? QString() : QString::fromUtf8(utf8);
}

HostTable::HostTable(const qmchart6_table* table) {
    if (table == nullptr)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("there is no table"));
    RequireSize(table->size, sizeof(qmchart6_table), "a table");
    rows = CountOf(table->rows, "rows");
    columns = CountOf(table->columns, "columns");
    values = Array<double>::View(table->values, rows, columns, table->row_stride, table->column_stride,
                                 LowerBound, LowerBound);
    rowLabels = LabelsOf(table->row_labels, rows);
    columnLabels = LabelsOf(table->column_labels, columns);
}

HostTitles::HostTitles(const qmchart6_titles* titles) {
    if (titles == nullptr) return;
    RequireSize(titles->size, sizeof(qmchart6_titles), "titles");
    chart = TextOf(titles->chart);
    row = TextOf(titles->row);
    column = TextOf(titles->column);
    value = TextOf(titles->value);
}

} // namespace QmChart6
