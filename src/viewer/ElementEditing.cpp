#include "viewer/ElementEditing.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "dialogs/GraphSeriesProperties.h"
#include "dialogs/GraphTextProperties.h"
#include "dialogs/GraphTypes.h"
#include "qmchart6/RuntimeError.h"
#include "text/LocalText.h"
#include "viewer/ControlBarCommands.h"
#include "viewer/LookChanges.h"
#include "viewer/ShownLook.h"
#include "viewer/TitlePlacement.h"

namespace QmChart6 {

namespace {

/// What the text dialog lets a person change of an element, font and colour apart.
struct Allowances {
    bool text = false;
    bool orientation = false;
    bool alignment = false;
};

/// A part that has a dialog of its own: the key of its caption, and what may be changed.
struct Element {
    PartCode code;
    TextKey captionKey;
    Allowances allowed;
};

constexpr std::array Elements{
    Element{PartCode::AxisTitle,
            TextKey::AxisTitleProperties,
            {.text = true, .orientation = true, .alignment = false}},
    Element{PartCode::Title,
            TextKey::ChartTitleProperties,
            {.text = true, .orientation = true, .alignment = true}},
    Element{PartCode::Legend, TextKey::LegendTextProperties, {}},
    Element{PartCode::PointLabel,
            TextKey::DataLabelsProperties,
            {.text = false, .orientation = true, .alignment = false}},
    Element{PartCode::Axis, TextKey::AxisLabelsProperties, {}},
    Element{PartCode::AxisLabel, TextKey::AxisLabelsProperties, {}},
    Element{PartCode::Footnote,
            TextKey::FootnoteProperties,
            {.text = true, .orientation = false, .alignment = true}},
    Element{PartCode::Series, TextKey::SeriesProperties, {}},
};

const Element* ElementOf(int part) {
    for (const Element& element : Elements)
        if (static_cast<int>(element.code) == part) return &element;
    return nullptr;
}

template<class Owner>
TextElement WithText(Owner& owner) {
    return {&owner.Text, &owner.VtFont, &owner.TextLayout};
}

template<class Owner>
TextElement WithoutText(Owner& owner) {
    return {nullptr, &owner.VtFont, &owner.TextLayout};
}

Series* FindSeries(Chart& chart, int number) {
    SeriesCollection& all = chart.Plot.SeriesCollection;
    return number >= 1 && number <= all.Count() ? &all(number) : nullptr;
}

/// The text element that a part is now; one of null pointers where it is gone.
TextElement Resolve(Chart& chart, const ChartPart& part) {
    switch (static_cast<PartCode>(part.part)) {
    case PartCode::Title:
        return WithText(chart.Title);
    case PartCode::Footnote:
        return WithText(chart.Footnote);
    case PartCode::Legend:
        return WithoutText(chart.Legend);
    case PartCode::AxisTitle:
        // What the titles of the X and the Z axis say goes with the rows and columns, which may be exchanged
        // later on: the texts change places then, so nothing but the axis has to know.
        return WithText(chart.Plot.Axis(part.index1).AxisTitle);
    case PartCode::Axis:
    case PartCode::AxisLabel:
        return WithoutText(chart.Plot.Axis(part.index1).Labels.Item(1));
    case PartCode::PointLabel:
        if (Series* series = FindSeries(chart, part.index1))
            return WithoutText(series->DataPoints.Item(DataPoints::All).DataPointLabel);
        return {};
    case PartCode::Chart:
    case PartCode::Plot:
    case PartCode::Series:
    case PartCode::SeriesLabel:
    case PartCode::DataPoint:
    case PartCode::Statistics:
        break;
    }
    return {};
}

/// The name of a series, which becomes the current row or column; a series that is gone has none.
QString NameOf(Chart& chart, int series) {
    if (FindSeries(chart, series) == nullptr) return {};
    (chart.Plot.DataSeriesInRow ? chart.Row : chart.Column) = series;
    return chart.Plot.DataSeriesInRow ? chart.RowLabel() : chart.ColumnLabel();
}

void Rename(Chart& chart, int series, const QString& name) {
    if (NameOf(chart, series) == name) return; // the table stays shared
    if (chart.Plot.DataSeriesInRow)
        chart.SetRowLabel(name);
    else
        chart.SetColumnLabel(name);
}

} // namespace

QString ElementEditing::Caption(int part) {
    const Element* element = ElementOf(part);
    return element == nullptr ? QString() : LocalText(element->captionKey);
}

void ElementEditing::EditSelected() {
    const ChartPart part = shown_.chart.SelectedPart();
    if (part.part == static_cast<int>(PartCode::Series))
        EditSeries(part.index1);
    else
        EditText(part);
    shown_.modified = true;
}

void ElementEditing::Activate() {
    if (ElementOf(shown_.chart.SelectedPart().part) != nullptr)
        EditSelected();
    else
        EditChart();
}

void ElementEditing::EditChart() {
    {
        GraphTypes dialog(viewer_.Window());
        if (shown_.chart.SelectedPart().IsGridLine()) dialog.ShowGrid();
        QObject::connect(&dialog, &GraphTypes::Written, [this] { Show(); });
        dialog.Execute(viewer_);
        // Opening the dialog sets markers' sizes; someone who cancelled it did nothing to be taken back.
        if (dialog.Cancelled()) changes_.DropStep();
    }
    bar_.Refresh();
}

void ElementEditing::EditSeries(int series) {
    Chart& chart = shown_.chart.Model();
    QString name = NameOf(chart, series);
    GraphSeriesProperties dialog(viewer_.Window());
    QObject::connect(&dialog, &GraphSeriesProperties::Written, [&, this] {
        Rename(chart, series, name);
        Show();
    });
    dialog.Execute([&chart, series] { return FindSeries(chart, series); }, chart.chartType(), name);
}

void ElementEditing::EditText(const ChartPart& part) {
    const Element* element = ElementOf(part.part);
    if (element == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet,
                           QStringLiteral("a part that can be edited is selected"));
    Chart& chart = shown_.chart.Model();
    GraphTextProperties dialog(viewer_.Window());
    dialog.setWindowTitle(LocalText(element->captionKey));
    if (element->code == PartCode::Title) KeepTitleInPlace(dialog);
    QObject::connect(&dialog, &GraphTextProperties::Written, [this] { Show(); });
    dialog.Execute([&chart, part] { return Resolve(chart, part); }, element->allowed.text,
                   element->allowed.orientation, element->allowed.alignment);
}

/// Where the title stands is found out before the dialog, since its text tells where that is.
void ElementEditing::KeepTitleInPlace(GraphTextProperties& dialog) {
    ChartControl& control = shown_.chart;
    const Title before = control.Model().Title;
    const std::optional<CoordinateRect> rect = StandingRect(before, control.CurrentScene());
    if (!rect) return;
    QObject::connect(&dialog, &GraphTextProperties::Written, [&control, before, rect] {
        PlaceTitleAround(control.Model().Title, *rect, before, control.CurrentScene().size);
    });
}

/// What was written is seen, and can be taken back.
void ElementEditing::Show() {
    shown_.chart.Refresh();
    shown_.modified = true;
    changes_.EndStep();
}

} // namespace QmChart6
