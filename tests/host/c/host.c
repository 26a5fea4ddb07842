#include <qmchart6.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* A host in C that does what hosts do, without a display: three charts, one of them refreshed, saved, had as
 * bytes, heard of when they close, and the errors with their numbers. Ends with the number of what did not
 * hold. */

static int failures = 0;

static void expect(int holds, const char* what) {
    if (holds) return;
    ++failures;
    fprintf(stderr, "not so: %s\n", what);
}

static char closed[256] = "";

static void on_closed(const char* graph_id, void* data) {
    strcat(closed, graph_id);
    strcat(closed, ";");
    ++*(int*)data;
}

static int is_open(qmchart6_charts* charts, const char* id) {
    char* ids = NULL;
    int found = 0;
    expect(qmchart6_open_graphs(charts, &ids) == QMCHART6_OK, "the open charts are told");
    for (const char* at = ids; *at != 0; at += strlen(at) + 1) found = found || strcmp(at, id) == 0;
    qmchart6_free_text(ids);
    return found;
}

static void expect_picture(qmchart6_charts* charts, const char* format, const char* start) {
    const qmchart6_picture_size size = {sizeof size, 320, 200, 2};
    uint8_t* bytes = NULL;
    size_t count = 0;
    expect(qmchart6_picture(charts, "one", format, &size, &bytes, &count) == QMCHART6_OK, format);
    expect(count > strlen(start) && memcmp(bytes, start, strlen(start)) == 0, "the bytes are of that format");
    qmchart6_free_bytes(bytes);
}

static void expect_errors(qmchart6_charts* charts, qmchart6_table table) {
    uint8_t* bytes = NULL;
    size_t count = 0;
    expect(qmchart6_picture(charts, "nobody", "png", NULL, &bytes, &count) == QMCHART6_RESOURCE_NOT_FOUND,
           "an unknown id is 326");
    expect(strstr(qmchart6_error_text(charts), "NOBODY") != NULL, "and is told by its name");
    expect(qmchart6_picture(charts, "one", "gif", NULL, &bytes, &count) == QMCHART6_INVALID_PROCEDURE_CALL,
           "an unknown format is 5");
    expect(qmchart6_make_graph(charts, "one", NULL, NULL, 0, 0) == QMCHART6_INVALID_PROCEDURE_CALL,
           "no table is 5");
    table.size = 1;
    expect(qmchart6_make_graph(charts, "one", &table, NULL, 0, 0) == QMCHART6_INVALID_PROCEDURE_CALL,
           "a struct of another size is 5");
    table.size = sizeof table;
    table.rows = 40000;
    expect(qmchart6_make_graph(charts, "one", &table, NULL, 0, 0) == QMCHART6_OVERFLOW,
           "too many rows are 6");
    table.rows = -1;
    expect(qmchart6_make_graph(charts, "one", &table, NULL, 0, 0) == QMCHART6_INVALID_PROPERTY_VALUE,
           "fewer rows than none are 380");
    expect(qmchart6_make_graph(NULL, "one", &table, NULL, 0, 0) == QMCHART6_INVALID_PROCEDURE_CALL,
           "no handle is 5");
}

int main(int argc, char** argv) {
    const double cells[] = {3, NAN, 2, 5, 6.25, 4};
    const char* const rows[] = {"2025", "2026"};
    const char* const columns[] = {"North", "South", "West"};
    qmchart6_table table = {sizeof table, cells, 2, 3, 3, 1, rows, columns};
    const qmchart6_titles titles = {sizeof titles, "Sales", "Year", "Region", "Units"};
    qmchart6_charts* charts = qmchart6_new();
    int calls = 0;
    char* used = NULL;
    if (argc != 2) return 99;
    expect(strlen(qmchart6_version()) >= 5, "there is a version");
    expect(qmchart6_on_closed(charts, on_closed, &calls) == QMCHART6_OK, "a handler is taken");
    expect(qmchart6_make_graph(charts, "one", &table, &titles, QMCHART6_ITALIAN, QMCHART6_NO) == QMCHART6_OK,
           "one");
    expect(qmchart6_make_graph(charts, " Two ", &table, &titles, 0, 0) == QMCHART6_OK, "two");
    table.values = cells + 5; /* the same table from its end */
    table.row_stride = -3;
    table.column_stride = -1;
    table.row_labels = NULL;
    expect(qmchart6_make_graph(charts, "three", &table, NULL, 0, 0) == QMCHART6_OK, "three, backwards");
    expect(qmchart6_make_graph(charts, "ONE", &table, &titles, 0, 0) == QMCHART6_OK, "one, refreshed");
    expect(is_open(charts, "ONE") && is_open(charts, "TWO") && is_open(charts, "THREE"), "three are open");
    expect_picture(charts, "png", "\x89PNG");
    expect_picture(charts, "SVG", "<?xml");
    expect_picture(charts, "pdf", "%PDF");
    expect_errors(charts, table);
    expect(qmchart6_save_graph(charts, "saved", &table, &titles, 0, argv[1], &used) == QMCHART6_OK, "saved");
    expect(used != NULL && strcmp(used, argv[1]) == 0, "under its name");
    qmchart6_free_text(used);
    expect(qmchart6_mk_gr(charts, "four", "", &table, &titles) == QMCHART6_OK && is_open(charts, "FOUR"),
           "the shortcut");
    expect(qmchart6_pump(charts, 0) == QMCHART6_OK, "events are handled");
    expect(qmchart6_kill_graph(charts, "two") == QMCHART6_OK && !is_open(charts, "TWO"), "two is closed");
    expect(strcmp(closed, "SAVED;TWO;") == 0 && calls == 2, closed);
    expect(qmchart6_on_closed(charts, NULL, NULL) == QMCHART6_OK, "the handler is taken back");
    qmchart6_kill_graph(charts, "one");
    qmchart6_kill_graph(charts, "three");
    expect(calls == 2, "nobody is called any more");
    qmchart6_free(charts);
    qmchart6_free(NULL);
    return failures;
}
