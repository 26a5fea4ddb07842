// Saves look after look until it is killed or has saved so many: look_writer FOLDER FIRST NAME SHARED
// [COUNT]. Save k is kept under NAME where k is even, under SHARED where it is odd; every value in it depends
// on k alone, as tests/host/stores.py expects it. Prints k once the save has returned without an error.

#include "chart/DefaultLook.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationStore.h"
#include "desktop/Application.h"
#include "support/ScriptedDesktop.h"
#include "support/TestViewer.h"

#include <cstdio>
#include <cstdlib>

using namespace QmChart6;

namespace {

constexpr int Parts = 4;

Colour ColourOf(int k) {
    Colour colour;
    colour.Set(k % 256, k / 256 % 256, k / 65536 % 256);
    return colour;
}

Font FontOf(int k) {
    Font font;
    font.Name = QStringLiteral("Font %1").arg(k);
    font.Size = 5 + k % 20;
    font.VtColor = ColourOf(k);
    return font;
}

CoordinateRect RectOf(int k) {
    return {.Min = {k % 97 + 0.5, k % 89 + 0.25}, .Max = {100.0 + k % 83, 100.0 + k % 79}};
}

void MakeWhole(Chart& chart, int k) {
    chart.Backdrop.Fill.Brush.FillColor = ColourOf(k);
    chart.Plot.LocationRect = RectOf(k);
    chart.Plot.View3d.Rotation = k % 360;
    chart.Title.Text = QStringLiteral("Look %1").arg(k);
    chart.Title.Location.Rect = RectOf(k + 1);
    chart.Title.VtFont = FontOf(k);
    chart.Legend.Location.Rect = RectOf(k + 2);
    chart.Legend.VtFont = FontOf(k + 1);
}

void MakeParts(Chart& chart, int k) {
    for (int number = 1; number <= Parts; ++number) {
        chart.DataGrid.SetColumnLabel(number, QStringLiteral("Column %1 of %2").arg(number).arg(k));
        DataPoint& points = chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All);
        points.Brush.FillColor = ColourOf(k + number);
        points.DataPointLabel.VtFont = FontOf(k + number);
        Axis& axis = chart.Plot.Axis(number - 1);
        axis.AxisTitle.Text = QStringLiteral("Axis %1 of %2").arg(number - 1).arg(k);
        axis.AxisTitle.VtFont = FontOf(k + number);
        axis.Labels.Item(1).VtFont = FontOf(k + number + 1);
    }
}

void MakeLook(TestViewer& viewer, int k) {
    viewer.look.height = 4000 + k % 3000;
    viewer.look.width = 5000 + k % 4000;
    viewer.look.controlBar = k % 2 == 0;
    MakeWhole(viewer.Model(), k);
    MakeParts(viewer.Model(), k);
}

int Write(const QString& folder, int first, const QString& name, const QString& shared, int count) {
    ScriptedDesktop desktop;
    const ScopedDesktop scope(desktop);
    SetConfigurationFolder(folder);
    TestViewer viewer;
    viewer.graphId = name;
    viewer.Model().SetGridSize(2, Parts);
    ApplyDefaultLook(viewer.Model());
    for (int k = first; count < 0 || k < first + count; ++k) {
        MakeLook(viewer, k);
        viewer.config = k % 2 == 0 ? name : shared;
        SaveConfiguration(viewer);
        if (!desktop.messages.isEmpty()) {
            std::fprintf(stderr, "save %d: %s\n", k, desktop.messages.front().text.toUtf8().constData());
            return 1;
        }
        std::printf("%d\n", k);
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 5) {
        std::fputs("usage: look_writer FOLDER FIRST NAME SHARED [COUNT]\n", stderr);
        return 2;
    }
    EnsureApplication();
    return Write(QString::fromLocal8Bit(arguments[1]), std::atoi(arguments[2]),
                 QString::fromLocal8Bit(arguments[3]), QString::fromLocal8Bit(arguments[4]),
                 count > 5 ? std::atoi(arguments[5]) : -1);
}
