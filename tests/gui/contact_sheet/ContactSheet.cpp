// Grabs the viewer, every dialog, each of its pages, and the print window, in four languages into one picture
// each: what a person looks through after a change. On a screen with a desktop they are as wide as people see
// them; without one some are narrower. Usage: contact_sheet FOLDER light|dark. QT_SCALE_FACTOR sets the
// scale.

#include "chart/DefaultLook.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "desktop/Application.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/FontPicker.h"
#include "desktop/QtDesktop.h"
#include "desktop/QtTexts.h"
#include "dialogs/GraphConfigSave.h"
#include "dialogs/GraphConfiguration.h"
#include "dialogs/GraphSeriesProperties.h"
#include "dialogs/GraphTextProperties.h"
#include "dialogs/GraphTypes.h"
#include "support/SampleCharts.h"
#include "support/TestStore.h"
#include "support/TestViewer.h"
#include "text/Languages.h"
#include "text/LocalHint.h"
#include "text/LocalText.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerMenu.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QPrinter>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string_view>
#include <utility>

using namespace QmChart6;

namespace {

constexpr int Gap = 16;

using Row = QList<QPixmap>;

void WaitFor(const QWidget& window) {
    constexpr int Patience = 5000; // milliseconds
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < Patience &&
           !(window.windowHandle() != nullptr && window.windowHandle()->isExposed()))
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    QApplication::processEvents();
}

/// A desktop that looks at each dialog and lets it go.
class GrabbingDesktop : public QtDesktop {
public:
    Row row;

    void RunModal(QDialog& dialog) override {
        dialog.show();
        WaitFor(dialog);
        if (auto* tabs = dialog.findChild<QTabWidget*>()) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                QApplication::processEvents();
                row.append(dialog.grab());
            }
        } else {
            row.append(dialog.grab());
        }
        dialog.reject();
    }

    std::optional<FontChoice> PickFont(QWidget* owner, const FontChoice& start,
                                       const FontPickerTexts& texts) override {
        const QtTexts qtTexts;
        FontPicker picker(*this, start, texts, owner);
        RunModal(picker);
        return std::nullopt;
    }
};

/// Grabs the print dialog, which runs by itself, and lets it go.
Row PrintDialog() {
    Row row;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) return;
        look.stop();
        row.append(dialog->grab());
        dialog->reject();
    });
    look.start(50);
    QPrinter settings(QPrinter::HighResolution);
    static_cast<void>(QtDesktop().PickPrinter(nullptr, settings)); // nothing: it is let go
    return row;
}

QPixmap Sheet(const QList<Row>& rows) {
    QSize size(Gap, Gap);
    for (const Row& row : rows) {
        int width = Gap;
        int height = 0;
        for (const QPixmap& picture : row) {
            width += picture.deviceIndependentSize().toSize().width() + Gap;
            height = std::max(height, picture.deviceIndependentSize().toSize().height());
        }
        size = QSize(std::max(size.width(), width), size.height() + height + Gap);
    }
    const double ratio = rows.front().front().devicePixelRatio();
    QPixmap sheet(size * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(QColor(120, 150, 180));
    QPainter painter(&sheet);
    int top = Gap;
    for (const Row& row : rows) {
        int left = Gap;
        int height = 0;
        for (const QPixmap& picture : row) {
            painter.drawPixmap(left, top, picture);
            left += picture.deviceIndependentSize().toSize().width() + Gap;
            height = std::max(height, picture.deviceIndependentSize().toSize().height());
        }
        top += height + Gap;
    }
    return sheet;
}

QPalette DarkPalette() {
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(53, 53, 53));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    }
    return palette;
}

Chart SampleChart() {
    Chart chart = Samples::ChartOf(12, 4, [](int row, int column) { return 3 * row + 7 * column % 5; });
    ApplyDefaultLook(chart);
    chart.Title.Text = QStringLiteral("Turnover");
    return chart;
}

void ShowGraphTypes() {
    TestViewer viewer;
    viewer.Model() = SampleChart();
    GraphTypes(nullptr).Execute(viewer);
}

void ShowSeries() {
    Chart chart = SampleChart();
    chart.SetChartType(ChartType::Combination2D);
    Brush& brush = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush;
    brush.Style = BrushStyle::Pattern;
    brush.Index = 10;
    QString name = QStringLiteral("North");
    GraphSeriesProperties(nullptr).Execute([&] { return &chart.Plot.SeriesCollection(1); }, chart.chartType(),
                                           name);
}

void ShowText() {
    Chart chart = SampleChart();
    const auto title = [&] {
        return TextElement{&chart.Title.Text, &chart.Title.VtFont, &chart.Title.TextLayout};
    };
    const auto legend = [&] { return TextElement{nullptr, &chart.Legend.VtFont, &chart.Legend.TextLayout}; };
    GraphTextProperties(nullptr).Execute(title, true, true, true);
    GraphTextProperties(nullptr).Execute(legend, false, false, false);
}

void ShowFontPicker() {
    const FontPickerTexts texts{LocalText(TextKey::Font), LocalText(TextKey::Color), LocalText(TextKey::Ok),
                                LocalText(TextKey::Cancel), LocalHint(Hint::FontNotInstalled)};
    CurrentDesktop().PickFont(
        nullptr, {.family = QStringLiteral("Arial"), .size = 9, .colour = QColor(20, 60, 140)}, texts);
}

/// A viewer of which six looks are stored, one of them its own.
void WithStoredLooks(const std::function<void(TestViewer& viewer)>& show) {
    const TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    TestViewer viewer;
    viewer.Model() = SampleChart();
    for (const char* name : {"Annual report", "Black on white", "Board", "Draft",
                             "Quarterly, with a name that is rather long", "Web"}) {
        viewer.config = QLatin1String(name);
        SaveConfiguration(viewer);
    }
    viewer.config = QStringLiteral("Board");
    show(viewer);
    SetConfigurationFolder({});
}

void ShowGraphConfiguration() {
    WithStoredLooks([](TestViewer& viewer) { GraphConfiguration(nullptr).Execute(viewer); });
}

void ShowGraphConfigSave() {
    WithStoredLooks([](TestViewer& viewer) { GraphConfigSave(nullptr).Execute(viewer); });
}

/// What a dialog's own desktop does not see is grabbed here.
void ShowViewer(Row& row) {
    GraphForm form;
    form.SetGraphId(QStringLiteral("SALES"));
    form.SetQmConfig(QStringLiteral("Board"));
    form.ChartImage().Model() = SampleChart();
    form.show();
    WaitFor(form);
    form.RefreshControlBar();
    form.ChartImage().SelectPart(static_cast<int>(PartCode::Title), 0, 0, 0, 0);
    QApplication::processEvents();
    row.append(form.grab());
    auto& menu = *form.findChild<ViewerMenu*>();
    menu.ShowFor(LocalText(TextKey::ChartTitleProperties), form.mapToGlobal(QPoint(100, 100)));
    WaitFor(menu);
    row.append(menu.grab());
    menu.close();
}

bool MakeWindows(const QString& file, const std::function<void(Row&)>& show) {
    QList<Row> rows;
    for (const LanguageRow& language : Languages()) {
        SetLanguageCode(static_cast<std::int16_t>(language.number));
        SetQtTextsLanguage(QLatin1String(language.locale));
        Row row;
        show(row);
        rows.append(row);
    }
    return Sheet(rows).save(file);
}

bool Make(const QString& file, const std::function<void()>& show) {
    QList<Row> rows;
    for (const LanguageRow& language : Languages()) {
        SetLanguageCode(static_cast<std::int16_t>(language.number));
        SetQtTextsLanguage(QLatin1String(language.locale));
        GrabbingDesktop desktop;
        const ScopedDesktop scope(desktop);
        show();
        rows.append(desktop.row);
    }
    const bool saved = Sheet(rows).save(file);
    if (!saved) std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    return saved;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: contact_sheet FOLDER light|dark\n", stderr);
        return 2;
    }
    EnsureApplication();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const bool dark = std::string_view(argv[2]) == "dark";
    if (dark) QApplication::setPalette(DarkPalette());
    const QString folder = QString::fromLocal8Bit(argv[1]) + u'/';
    bool saved = true;
    const std::pair<const char*, void (*)()> dialogs[] = {
        {"GraphTypes", ShowGraphTypes},           {"GraphSeriesProperties", ShowSeries},
        {"GraphTextProperties", ShowText},        {"GraphConfiguration", ShowGraphConfiguration},
        {"GraphConfigSave", ShowGraphConfigSave}, {"FontPicker", ShowFontPicker}};
    for (const auto& [name, show] : dialogs)
        saved = Make(folder + QLatin1String(name) + QStringLiteral(".png"), show) && saved;
    saved = MakeWindows(folder + QStringLiteral("GraphForm.png"), ShowViewer) && saved;
    saved = MakeWindows(folder + QStringLiteral("PrintDialog.png"), [](Row& row) { row = PrintDialog(); }) &&
            saved;
    return saved ? 0 : 1;
}
