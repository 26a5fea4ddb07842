#include "config/LookFields.h"

#include "chart/ChartFunctions.h"
#include "chartcontrol/model/ChartKinds.h"
#include "config/FieldBuilder.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

using Part = const LookPart&;

Chart& ChartOf(Part part) {
    return part.look.chart;
}
Plot& PlotOf(Part part) {
    return ChartOf(part).Plot;
}
Series& SeriesOf(Part part) {
    return PlotOf(part).SeriesCollection(part.number);
}
DataPoint& AllPointsOf(Part part) {
    return SeriesOf(part).DataPoints.Item(DataPoints::All);
}
Axis& AxisOf(Part part) {
    return PlotOf(part).Axis(part.number);
}

Truth ToTruth(bool on) {
    return on ? True : False;
}

/// A window's side. Windows of any size can be asked for, but the system would take the memory for it.
int WindowTwips(double twips) {
    constexpr double Largest = 245760; // 16,384 pixels
    return static_cast<int>(std::lround(std::clamp(twips, 0.0, Largest)));
}

std::vector<LookField> WindowFields() {
    return {
        // A look that is not maximized restores no window.
        At(Step::Maximized, Boolean(
                                "ChartMaximized", [](Part part) { return part.look.maximized; },
                                [](Part part, bool maximized) { part.look.maximized |= maximized; })),
        At(Step::Size, Real(
                           "ChartHeight", [](Part part) { return part.look.height; },
                           [](Part part, double twips) { part.look.height = WindowTwips(twips); })),
        At(Step::Size, Real(
                           "ChartWidth", [](Part part) { return part.look.width; },
                           [](Part part, double twips) { part.look.width = WindowTwips(twips); })),
        At(Step::ControlBar,
           BooleanMember("ControlBar", [](Part part) -> auto& { return part.look.controlBar; })),
    };
}

/// An option whose state a chart does not keep: `set` gives it to the chart.
LookField Option(const char* name, std::int16_t LookState::* state, void (*set)(Chart&, Truth)) {
    return Integer(
        name, [state](Part part) { return part.look.*state; },
        [state, set](Part part, std::int16_t value) {
            set(ChartOf(part), value);
            part.look.*state = value;
        });
}

std::vector<LookField> OptionFields() {
    return {
        At(Step::Marks, Option("Lines", &LookState::lines, SetSeriesLines)),
        At(Step::Marks, Option("Markers", &LookState::markers, SetSeriesMarkers)),
        At(Step::Stacking, Option("Stacked", &LookState::stacked, SetStacked)),
        At(Step::Stacking, Option("FullStacked", &LookState::fullStacked, SetFullStacked)),
        At(Step::Type, Long(
                           "chartType", [](Part part) { return static_cast<int>(ChartOf(part).chartType()); },
                           [](Part part, int type) { ChartOf(part).SetChartType(ToChartType(type)); })),
        At(Step::Legend, Boolean(
                             "Legend", [](Part part) { return ChartOf(part).ShowLegend; },
                             [](Part part, bool shown) { SetLegendVisible(ChartOf(part), ToTruth(shown)); })),
    };
}

std::vector<LookField> PlotFields() {
    return {
        At(Step::Projection,
           Enumeration(
               "Projection", [](Part part) -> auto& { return PlotOf(part).Projection; }, ToProjection)),
        At(Step::Flip, Boolean(
                           "Flipped", [](Part part) { return PlotOf(part).DataSeriesInRow; },
                           [](Part part, bool inRows) { SetSeriesInRows(ChartOf(part), ToTruth(inRows)); })),
        At(Step::PieLabels,
           Long(
               "PieLabelPos", [](Part part) { return static_cast<int>(PlotOf(part).SubPlotLabelPosition); },
               [](Part part, int position) { SetPieLabelPosition(ChartOf(part), position); })),
        At(Step::PlotLayout,
           BooleanMember("PlotAutoLayout", [](Part part) -> auto& { return PlotOf(part).AutoLayout; })),
    };
}

std::vector<LookField> ViewFields() {
    // The plot's angles are in degrees wherever a look is kept.
    const auto degrees = [](Part part) -> View3d& {
        PlotOf(part).AngleUnit = AngleUnit::Degrees;
        return PlotOf(part).View3d;
    };
    return {
        RealMember("Rotation", [degrees](Part part) -> auto& { return degrees(part).Rotation; }),
        RealMember("Elevation", [degrees](Part part) -> auto& { return degrees(part).Elevation; }),
    };
}

std::vector<LookField> TitleFields() {
    const auto layout = [](Part part) -> TextLayout& { return ChartOf(part).Title.TextLayout; };
    return {
        Enumeration(
            "TitleOrientation", [layout](Part part) -> auto& { return layout(part).Orientation; },
            ToOrientation),
        Enumeration(
            "TitleHorzAlignment", [layout](Part part) -> auto& { return layout(part).HorzAlignment; },
            ToHorizontalAlignment),
        Enumeration(
            "TitleVertAlignment", [layout](Part part) -> auto& { return layout(part).VertAlignment; },
            ToVerticalAlignment),
    };
}

LookTable MakeChartLook() {
    const auto ground = [](Part part) -> auto& { return ChartOf(part).Backdrop.Fill.Brush.FillColor; };
    const auto plotPlace = [](Part part) -> auto& { return PlotOf(part).LocationRect; };
    const auto title = [](Part part) -> auto& { return ChartOf(part).Title; };
    const auto legend = [](Part part) -> auto& { return ChartOf(part).Legend; };
    LookTable look{
        .name = QStringLiteral("ChartConfigurations"), .partsName = {}, .numberField = {}, .fields = {}};
    std::vector<LookField>& fields = look.fields;
    Append(fields, WindowFields());
    Append(fields, OptionFields());
    Append(fields, At(Step::Type, ColourFields("BackColor", ground)));
    Append(fields, PlotFields());
    Append(fields, At(Step::PlotPlace, RectFields("Plot", plotPlace)));
    Append(fields, At(Step::View, ViewFields()));
    fields.push_back(
        AsTitle(TextMember("TitleText", [title](Part part) -> auto& { return title(part).Text; })));
    Append(fields, At(Step::Places,
                      LocationFields("Title", [title](Part part) -> auto& { return title(part).Location; })));
    Append(fields, TitleFields());
    Append(fields, FontFields("Title", [title](Part part) -> auto& { return title(part).VtFont; }));
    Append(fields, At(Step::Places, LocationFields("Legend", [legend](Part part) -> auto& {
                          return legend(part).Location;
                      })));
    Append(fields, FontFields("Legend", [legend](Part part) -> auto& { return legend(part).VtFont; }));
    return look;
}

LookTable MakeColumnsLook() {
    LookTable look{.name = QStringLiteral("ColumnsConfigurations"),
                   .partsName = QStringLiteral("Columns"),
                   .numberField = QStringLiteral("ColumnId"),
                   .fields = {}};
    // A table whose columns are called so already stays shared.
    look.fields.push_back(AsTitle(Text(
        "ColumnName", [](Part part) { return ChartOf(part).DataGrid.ColumnLabel(part.number); },
        [](Part part, const QString& label) {
            ChartOf(part).Column = part.number;
            if (ChartOf(part).ColumnLabel() != label) ChartOf(part).SetColumnLabel(label);
        })));
    return look;
}

LookTable MakeSeriesLook() {
    const auto brush = [](Part part) -> Brush& { return AllPointsOf(part).Brush; };
    const auto label = [](Part part) -> DataPointLabel& { return AllPointsOf(part).DataPointLabel; };
    LookTable look{.name = QStringLiteral("SeriesConfigurations"),
                   .partsName = QStringLiteral("Series"),
                   .numberField = QStringLiteral("SeriesId"),
                   .fields = {}};
    std::vector<LookField>& fields = look.fields;
    fields.push_back(Enumeration(
        "SeriesType", [](Part part) -> auto& { return SeriesOf(part).SeriesType; }, ToSeriesType));
    fields.push_back(
        IntegerMember("SeriesStatLine", [](Part part) -> auto& { return SeriesOf(part).StatLine.Flag; }));
    fields.push_back(
        Enumeration("SeriesStyle", [brush](Part part) -> auto& { return brush(part).Style; }, ToBrushStyle));
    fields.push_back(LongMember("SeriesIndex", [brush](Part part) -> auto& { return brush(part).Index; }));
    Append(fields,
           ColourFields("SeriesColor", [brush](Part part) -> auto& { return brush(part).FillColor; }));
    Append(fields, ColourFields("SeriesStyleColor",
                                [brush](Part part) -> auto& { return brush(part).PatternColor; }));
    fields.push_back(Enumeration(
        "SeriesLabelOrientation", [label](Part part) -> auto& { return label(part).TextLayout.Orientation; },
        ToOrientation));
    fields.push_back(Enumeration(
        "SeriesLabelLocation", [label](Part part) -> auto& { return label(part).LocationType; },
        ToLabelLocation));
    fields.push_back(Enumeration(
        "SeriesLabelLineStyle", [label](Part part) -> auto& { return label(part).LineStyle; },
        ToLabelLineStyle));
    fields.push_back(IntegerMember("SeriesLabelComponents",
                                   [label](Part part) -> auto& { return label(part).Component; }));
    Append(fields, FontFields("SeriesLabel", [label](Part part) -> auto& { return label(part).VtFont; }));
    return look;
}

LookTable MakeAxesLook() {
    LookTable look{.name = QStringLiteral("AxesConfigurations"),
                   .partsName = QStringLiteral("Axes"),
                   .numberField = QStringLiteral("AxisId"),
                   .fields = {}};
    const auto title = [](Part part) -> AxisTitle& { return AxisOf(part).AxisTitle; };
    std::vector<LookField>& fields = look.fields;
    fields.push_back(Boolean(
        "AxisScaleVisible", [](Part part) { return !AxisOf(part).AxisScale.Hide; },
        [](Part part, bool visible) { AxisOf(part).AxisScale.Hide = !visible; }));
    fields.push_back(Enumeration(
        "AxisGridStyle", [](Part part) -> auto& { return AxisOf(part).AxisGrid.MajorPen.Style; },
        ToPenStyle));
    fields.push_back(
        AsTitle(TextMember("AxisTitleText", [title](Part part) -> auto& { return title(part).Text; })));
    fields.push_back(
        BooleanMember("AxisTitleVisible", [title](Part part) -> auto& { return title(part).Visible; }));
    fields.push_back(Enumeration(
        "AxisTitleOrientation", [title](Part part) -> auto& { return title(part).TextLayout.Orientation; },
        ToOrientation));
    Append(fields, FontFields("AxisTitle", [title](Part part) -> auto& { return title(part).VtFont; }));
    Append(fields,
           FontFields("AxisLabels", [](Part part) -> auto& { return AxisOf(part).Labels.Item(1).VtFont; }));
    return look;
}

} // namespace

const LookField& LookTable::Field(const QString& field) const {
    for (const LookField& one : fields)
        if (one.name == field) return one;
    throw RuntimeError(ErrorNumber::FieldNotFound,
                       QStringLiteral("\"%1\" has no field \"%2\"").arg(name, field));
}

const LookTable& ChartLook() {
    static const LookTable look = MakeChartLook();
    return look;
}

const LookTable& ColumnsLook() {
    static const LookTable look = MakeColumnsLook();
    return look;
}

const LookTable& SeriesLook() {
    static const LookTable look = MakeSeriesLook();
    return look;
}

const LookTable& AxesLook() {
    static const LookTable look = MakeAxesLook();
    return look;
}

} // namespace QmChart6
