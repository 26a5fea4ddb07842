// A host that ends its QApplication before it is done with its charts: each member either does nothing more
// or raises an error. Ends with 0 where all is so, and says what is not.
#include <qmchart6/Host.h>
#include <qmchart6/QMChartArray.h>

#include <QApplication>

#include <functional>
#include <iostream>

using namespace QmChart6;

namespace {

int wrong = 0;

void Expect(bool holds, const char* what) {
    if (holds) return;
    std::cerr << what << " is not as expected\n";
    ++wrong;
}

/// The number of the error that a call raises; 0 for none.
int ErrorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

struct Table {
    Variant data{Array<double>::Table(2, 2, {3, 4.5, 2, 5}, 1, 1)};
    Array<QString> rows{{"2025", "2026"}, 1};
    Array<QString> columns{{"North", "South"}, 1};
};

void Make(const QString& id) {
    const Table table;
    QMChartArray().QmMakeGraph(id, 2, 2, table.data, table.rows, table.columns, "Sales", "Year", "Region",
                               "Units");
}

void ExpectThatNothingIsLeft() {
    const Table table;
    QMChartArray charts;
    Expect(ErrorOf([&] { charts.QmKillGraph("sales"); }) == 0, "killing a chart");
    Expect(ErrorOf([&] { charts.QmKillGraph("another"); }) == 0, "killing a chart that never was");
    Expect(ErrorOf([&] { charts.SetQmChartConfigPath("/nowhere/"); }) == 0, "the folder");
    Expect(charts.QmChYes() == 2 && charts.QmChItalian() == 3, "a constant");
    Expect(ErrorOf([] { Make("sales"); }) == 5, "making a chart");
    Expect(ErrorOf([&] {
               charts.QmMkGr("sales", "", 2, 2, table.data, table.rows, table.columns, "Sales", "Units",
                             "Year");
           }) == 5,
           "the short cut");
    Expect(ErrorOf([&] {
               charts.QmPrintGraph("sales", 2, 2, table.data, table.rows, table.columns, "Sales", "Year",
                                   "Region", "Units");
           }) == 5,
           "printing");
    QString file = "never.svg";
    Expect(ErrorOf([&] {
               charts.QmSaveGraph("sales", 2, 2, table.data, table.rows, table.columns, "Sales", "Year",
                                  "Region", "Units", 0, file);
           }) == 5,
           "saving");
    Expect(ErrorOf([] { RunUntilViewersAreClosed(); }) == 5, "running");
    Expect(ErrorOf([] { PumpEvents(1); }) == 5, "pumping");
    Expect(ErrorOf([] { (void)HasDisplay(); }) == 5, "asking for a display");
    Expect(ErrorOf([] { (void)PrinterNames(); }) == 5, "asking for printers");
}

} // namespace

int main(int argc, char** argv) {
    {
        const QApplication application(argc, argv);
        Make("sales");
        Make("costs");
        PumpEvents(1);
    }
    ExpectThatNothingIsLeft();
    {
        // Another one, and all is as at first.
        const QApplication application(argc, argv);
        Expect(ErrorOf([] { Make("sales"); }) == 0, "a chart of another application");
        Expect(ErrorOf([] { QMChartArray().QmKillGraph("sales"); }) == 0, "killing it");
        Make("costs");
    }
    ExpectThatNothingIsLeft();
    return wrong == 0 ? 0 : 1;
}
