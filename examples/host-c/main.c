#include <qmchart6.h>

#include <stdio.h>

/* A whole host in C: hands over a table and shows it or, where there is no display, saves its picture. */
int main(void) {
    const double cells[] = {3, 4.5, 2, 5, 6.25, 4};
    const char* const years[] = {"2025", "2026"};
    const char* const regions[] = {"North", "South", "West"};
    const qmchart6_table table = {sizeof table, cells, 2, 3, 3, 1, years, regions};
    const qmchart6_titles titles = {sizeof titles, "Sales", "Year", "Region", "Units"};
    qmchart6_charts* charts = qmchart6_new();
    int32_t display = 0;
    int32_t error = qmchart6_has_display(charts, &display);
    if (error == QMCHART6_OK && display) {
        error = qmchart6_make_graph(charts, "sales", &table, &titles, QMCHART6_ENGLISH, QMCHART6_NO);
        if (error == QMCHART6_OK) error = qmchart6_run(charts);
    } else if (error == QMCHART6_OK) {
        error = qmchart6_save_graph(charts, "sales", &table, &titles, QMCHART6_NO, "sales.svg", NULL);
        if (error == QMCHART6_OK) puts("sales.svg");
    }
    if (error != QMCHART6_OK) fprintf(stderr, "Error %d: %s\n", (int)error, qmchart6_error_text(charts));
    qmchart6_free(charts);
    return error == QMCHART6_OK ? 0 : 1;
}
