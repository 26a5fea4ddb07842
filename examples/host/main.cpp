#include <qmchart6/Host.h>
#include <qmchart6/QMChartArray.h>

#include <cstdio>

// A whole host: hands over a table and shows it or, where there is no display, saves its picture.
int main() {
    using namespace QmChart6;
    try {
        QMChartArray charts;
        const Variant data(Array<double>::Table(2, 3, {3, 4.5, 2, 5, 6.25, 4}, 1, 1));
        const Array<QString> years({"2025", "2026"}, 1);
        const Array<QString> regions({"North", "South", "West"}, 1);
        if (HasDisplay()) {
            charts.QmMakeGraph("sales", 2, 3, data, years, regions, "Sales", "Year", "Region", "Units");
            RunUntilViewersAreClosed(); // a host with an event loop of its own does without
        } else {
            QString file = "sales.svg";
            charts.QmSaveGraph("sales", 2, 3, data, years, regions, "Sales", "Year", "Region", "Units", 0,
                               file);
            std::printf("%s\n", qPrintable(file));
        }
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
