#include "cface/Caught.h"
#include "cface/HostTable.h"
#include "qmchart6/Host.h"
#include "qmchart6/Looks.h"
#include "qmchart6/QMChartArray.h"

#include <cstdlib>
#include <cstring>
#include <limits>

// The functions of qmchart6.h: each turns its arguments into those of the C++ interface, and what is thrown
// into a number.

namespace QmChart6 {

namespace {

/// Memory that a host frees; throws where there is none.
char* Given(const void* bytes, std::size_t count) {
    auto* copy = static_cast<char*>(std::malloc(count + 1)); // NOLINT: the host frees it, in C
    if (copy == nullptr) throw std::bad_alloc();
    if (count > 0) std::memcpy(copy, bytes, count);
    copy[count] = 0;
    return copy;
}

template<class Number>
Number Narrowed(std::int32_t number, const char* what) {
    if (number < std::numeric_limits<Number>::min() || number > std::numeric_limits<Number>::max())
        throw RuntimeError(ErrorNumber::Overflow,
                           QStringLiteral("%1 cannot be %2").arg(QLatin1String(what)).arg(number));
    return static_cast<Number>(number);
}

template<class Target>
void RequireTarget(Target* target) {
    if (target == nullptr)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("there is no place for what the call gives"));
}

qmchart6_picture_size SizeOf(const qmchart6_picture_size* size) {
    if (size == nullptr) return {sizeof(qmchart6_picture_size), 0, 0, 1};
    if (size->size < sizeof(qmchart6_picture_size))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the size in a picture's size must be that of the struct"));
    qmchart6_picture_size given = *size;
    if (given.ratio == 0) given.ratio = 1;
    return given;
}

} // namespace

} // namespace QmChart6

using namespace QmChart6; // NOLINT(google-build-using-namespace): C functions belong to none

const char* qmchart6_version(void) {
    return QMCHART6_VERSION;
}

qmchart6_charts* qmchart6_new(void) {
    return new (std::nothrow) qmchart6_charts; // NOLINT(cppcoreguidelines-owning-memory): a handle
}

void qmchart6_free(qmchart6_charts* charts) {
    delete charts; // NOLINT(cppcoreguidelines-owning-memory): a handle
}

const char* qmchart6_error_text(const qmchart6_charts* charts) {
    return charts == nullptr ? "there is no handle" : charts->errorText.c_str();
}

int32_t qmchart6_set_config_path(qmchart6_charts* charts, const char* folder) {
    return Caught(charts, [&] { QMChartArray().SetQmChartConfigPath(TextOf(folder)); });
}

int32_t qmchart6_make_graph(qmchart6_charts* charts, const char* graph_id, const qmchart6_table* table,
                            const qmchart6_titles* titles, int32_t language, int32_t use_config) {
    return Caught(charts, [&] {
        const HostTable given(table);
        const HostTitles named(titles);
        QMChartArray().QmMakeGraph(TextOf(graph_id), given.rows, given.columns, given.values, given.rowLabels,
                                   given.columnLabels, named.chart, named.row, named.column, named.value,
                                   Narrowed<std::int16_t>(language, "a language"),
                                   Narrowed<std::uint8_t>(use_config, "the use of a look"));
    });
}

int32_t qmchart6_kill_graph(qmchart6_charts* charts, const char* graph_id) {
    return Caught(charts, [&] { QMChartArray().QmKillGraph(TextOf(graph_id)); });
}

int32_t qmchart6_print_graph(qmchart6_charts* charts, const char* graph_id, const qmchart6_table* table,
                             const qmchart6_titles* titles, int32_t use_config) {
    return Caught(charts, [&] {
        const HostTable given(table);
        const HostTitles named(titles);
        QMChartArray().QmPrintGraph(TextOf(graph_id), given.rows, given.columns, given.values,
                                    given.rowLabels, given.columnLabels, named.chart, named.row, named.column,
                                    named.value, Narrowed<std::uint8_t>(use_config, "the use of a look"));
    });
}

int32_t qmchart6_save_graph(qmchart6_charts* charts, const char* graph_id, const qmchart6_table* table,
                            const qmchart6_titles* titles, int32_t use_config, const char* file_name,
                            char** used) {
    return Caught(charts, [&] {
        const HostTable given(table);
        const HostTitles named(titles);
        QString name = TextOf(file_name);
        QMChartArray().QmSaveGraph(TextOf(graph_id), given.rows, given.columns, given.values, given.rowLabels,
                                   given.columnLabels, named.chart, named.row, named.column, named.value,
                                   Narrowed<std::uint8_t>(use_config, "the use of a look"), name);
        const QByteArray bytes = name.toUtf8();
        if (used != nullptr) *used = Given(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    });
}

int32_t qmchart6_mk_gr(qmchart6_charts* charts, const char* graph_id, const char* config_id,
                       const qmchart6_table* table, const qmchart6_titles* titles) {
    return Caught(charts, [&] {
        const HostTable given(table);
        const HostTitles named(titles);
        QMChartArray().QmMkGr(TextOf(graph_id), TextOf(config_id), given.rows, given.columns, given.values,
                              given.rowLabels, given.columnLabels, named.chart, named.value, named.row);
    });
}

int32_t qmchart6_picture(qmchart6_charts* charts, const char* graph_id, const char* format,
                         const qmchart6_picture_size* size, uint8_t** bytes, size_t* count) {
    return Caught(charts, [&] {
        RequireTarget(bytes);
        RequireTarget(count);
        const qmchart6_picture_size given = SizeOf(size);
        const QByteArray picture =
            GraphPicture(TextOf(graph_id), TextOf(format), given.width, given.height, given.ratio);
        const auto length = static_cast<std::size_t>(picture.size());
        *bytes = reinterpret_cast<uint8_t*>(Given(picture.constData(), length)); // NOLINT: bytes are bytes
        *count = length;
    });
}

void qmchart6_free_bytes(uint8_t* bytes) {
    std::free(bytes); // NOLINT(cppcoreguidelines-no-malloc): given to C
}

void qmchart6_free_text(char* text) {
    std::free(text); // NOLINT(cppcoreguidelines-no-malloc): given to C
}

int32_t qmchart6_open_graphs(qmchart6_charts* charts, char** ids) {
    return Caught(charts, [&] {
        RequireTarget(ids);
        QByteArray all;
        for (const QString& id : OpenGraphIds()) all += id.toUtf8() + '\0';
        *ids = Given(all.constData(), static_cast<std::size_t>(all.size()));
    });
}

int32_t qmchart6_on_closed(qmchart6_charts* charts, qmchart6_closed handler, void* data) {
    return Caught(charts, [&] {
        if (handler == nullptr)
            SetClosedHandler({});
        else
            SetClosedHandler([handler, data](const QString& id) { handler(id.toUtf8().constData(), data); });
    });
}

int32_t qmchart6_formats_follow_data(qmchart6_charts* charts, int32_t on) {
    return Caught(charts, [&] { SetFormatsFollowData(on != 0); });
}

int32_t qmchart6_set_chart_size(qmchart6_charts* charts, int32_t width, int32_t height,
                                int32_t pixels_per_inch) {
    return Caught(charts, [&] { SetChartSize(width, height, pixels_per_inch); });
}

int32_t qmchart6_use_look(qmchart6_charts* charts, const char* graph_id, const char* json) {
    return Caught(charts, [&] { UseLook(TextOf(graph_id), QByteArray(json)); });
}

int32_t qmchart6_set_printer(qmchart6_charts* charts, const char* name) {
    return Caught(charts, [&] { SetPrinter(TextOf(name)); });
}

int32_t qmchart6_has_display(qmchart6_charts* charts, int32_t* on) {
    return Caught(charts, [&] {
        RequireTarget(on);
        *on = HasDisplay() ? 1 : 0;
    });
}

int32_t qmchart6_run(qmchart6_charts* charts) {
    return Caught(charts, [] { RunUntilViewersAreClosed(); });
}

int32_t qmchart6_pump(qmchart6_charts* charts, int32_t milliseconds) {
    return Caught(charts, [&] { PumpEvents(milliseconds); });
}
