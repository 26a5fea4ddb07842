#include "chart/ValueLabelFormat.h"
#include "chartcontrol/model/Enumerations.h"
#include "config/LookExtras.h"

#include <type_traits>
#include <utility>

namespace QmChart6 {

namespace {

constexpr double MostPoints = 100; // of a line's width, or of a marker
constexpr double MostGap = 1000;   // percent of a bar's width
constexpr double MostValue = 1e300;
constexpr int MostDivisions = 100;

Axis& AxisOf(Chart& chart, int number) {
    return chart.Plot.Axis(number);
}
Series& SeriesOf(Chart& chart, int number) {
    return chart.Plot.SeriesCollection(number);
}
DataPoint& PointsOf(Chart& chart, int number) {
    return SeriesOf(chart, number).DataPoints.Item(DataPoints::All);
}

// Each makes a field of a function that gives a reference to the member.

template<class Member>
ExtraField YesNo(ExtraOf of, const char* name, Member member) {
    return {.of = of,
            .name = QLatin1String(name),
            .least = false,
            .most = true,
            .read = [member](Chart& chart, int number) -> ExtraValue { return member(chart, number); },
            .write = [member](Chart& chart, int number,
                              const ExtraValue& value) { member(chart, number) = std::get<bool>(value); }};
}

template<class Member>
ExtraField Number(ExtraOf of, const char* name, double least, double most, Member member) {
    using Held = std::decay_t<std::invoke_result_t<Member, Chart&, int>>;
    return {.of = of,
            .name = QLatin1String(name),
            .least = least,
            .most = most,
            .whole = !std::is_floating_point_v<Held>,
            .read = [member](Chart& chart, int number) -> ExtraValue {
                return static_cast<double>(member(chart, number));
            },
            .write =
                [member](Chart& chart, int number, const ExtraValue& value) {
                    if constexpr (std::is_floating_point_v<Held>)
                        member(chart, number) = std::get<double>(value);
                    else
                        member(chart, number) = static_cast<Held>(static_cast<int>(std::get<double>(value)));
                }};
}

template<class Member>
ExtraField Text(ExtraOf of, const char* name, Member member) {
    return {.of = of,
            .name = QLatin1String(name),
            .least = QString(),
            .most = QString(),
            .read = [member](Chart& chart, int number) -> ExtraValue { return member(chart, number); },
            .write = [member](Chart& chart, int number,
                              const ExtraValue& value) { member(chart, number) = std::get<QString>(value); }};
}

template<class Member>
ExtraField ColourOf(ExtraOf of, const char* name, Member member) {
    return {.of = of,
            .name = QLatin1String(name),
            .least = QString(),
            .most = QString(),
            .colour = true,
            .read = [member](Chart& chart, int number) -> ExtraValue {
                return QString::fromLatin1(ColourText(member(chart, number)));
            },
            .write =
                [member](Chart& chart, int number, const ExtraValue& value) {
                    const int rgb = std::get<QString>(value).mid(1).toInt(nullptr, 16);
                    member(chart, number).Set(rgb >> 16, (rgb >> 8) & 0xff, rgb & 0xff);
                }};
}

template<class Otherwise>
ExtraField SharedField(ExtraField field, Otherwise otherwise) {
    field.otherwise = otherwise;
    return field;
}

/// An axis is logarithmic or not; what it is instead (linear or in percent) is the matter of stored fields.
ExtraField Logarithmic() {
    return {.of = ExtraOf::Axis,
            .name = QStringLiteral("Logarithmic"),
            .least = false,
            .most = true,
            .read = [](Chart& chart, int number) -> ExtraValue {
                return AxisOf(chart, number).AxisScale.Type == ScaleType::Logarithmic;
            },
            .write =
                [](Chart& chart, int number, const ExtraValue& value) {
                    ScaleType& type = AxisOf(chart, number).AxisScale.Type;
                    if (std::get<bool>(value))
                        type = ScaleType::Logarithmic;
                    else if (type == ScaleType::Logarithmic)
                        type = ScaleType::Linear;
                }};
}

/// Whether a legend comes and goes with the series. Without names at the lines' ends a legend is on or off,
/// as its stored field says.
ExtraField LegendFollowsData() {
    ExtraField field = YesNo(ExtraOf::Chart, "LegendFollowsData",
                             [](Chart& chart, int) -> bool& { return chart.LegendFollowsData; });
    field.write = [](Chart& chart, int, const ExtraValue& value) {
        chart.LegendFollowsData = std::get<bool>(value);
        if (chart.LegendFollowsData) chart.ShowLegend = chart.Plot.SeriesCollection.Count() >= 2;
    };
    field.otherwise = [](const Chart&, int) -> ExtraValue { return false; };
    return field;
}

QString PlainAxisFormat(const Chart& chart, int number) {
    if (number != static_cast<int>(AxisId::Y) && number != static_cast<int>(AxisId::SecondaryY)) return {};
    return chart.Plot.Axis(number).AxisScale.Type == ScaleType::Percent ? QStringLiteral("0%")
                                                                        : ValueLabelFormat();
}

using Of = ExtraOf;

std::vector<ExtraField> ChartFields() {
    return {
        YesNo(Of::Chart, "DirectNames", [](Chart& chart, int) -> auto& { return chart.Plot.DirectNames; }),
        LegendFollowsData(),
        Number(Of::Chart, "BarGap", -100, MostGap,
               [](Chart& chart, int) -> auto& { return chart.Plot.BarGap; }),
        Number(Of::Chart, "XGap", 0, MostGap, [](Chart& chart, int) -> auto& { return chart.Plot.XGap; }),
        SharedField(
            Number(Of::Chart, "FrameStyle", 0, static_cast<int>(FrameStyle::ThickOuter),
                   [](Chart& chart, int) -> auto& { return chart.Backdrop.Frame.Style; }),
            [](const Chart&, int) -> ExtraValue { return static_cast<double>(FrameStyle::ThickOuter); }),
        Number(Of::Chart, "FrameWidth", 0, MostPoints,
               [](Chart& chart, int) -> auto& { return chart.Backdrop.Frame.Width; }),
        ColourOf(Of::Chart, "FrameColor",
                 [](Chart& chart, int) -> auto& { return chart.Backdrop.Frame.FrameColor; }),
    };
}

std::vector<ExtraField> AxisFields() {
    return {
        Number(Of::Axis, "Minimum", -MostValue, MostValue,
               [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).ValueScale.Minimum; }),
        Number(Of::Axis, "Maximum", -MostValue, MostValue,
               [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).ValueScale.Maximum; }),
        Number(Of::Axis, "MajorDivision", 1, MostDivisions,
               [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).ValueScale.MajorDivision; }),
        YesNo(Of::Axis, "AutoScale",
              [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).ValueScale.Auto; }),
        Logarithmic(),
        SharedField(
            Text(Of::Axis, "LabelFormat",
                 [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).Labels.Item(1).Format; }),
            PlainAxisFormat),
        Number(Of::Axis, "LineStyle", 0, static_cast<int>(PenStyle::Dotted),
               [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).Pen.Style; }),
        Number(Of::Axis, "LineWidth", 0, MostPoints,
               [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).Pen.Width; }),
        ColourOf(Of::Axis, "LineColor",
                 [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).Pen.VtColor; }),
        Number(Of::Axis, "GridWidth", 0, MostPoints,
               [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).AxisGrid.MajorPen.Width; }),
        ColourOf(Of::Axis, "GridColor",
                 [](Chart& chart, int id) -> auto& { return AxisOf(chart, id).AxisGrid.MajorPen.VtColor; }),
    };
}

std::vector<ExtraField> SeriesFields() {
    const auto format = [](const Chart&, int) -> ExtraValue { return ValueLabelFormat(); };
    const auto percent = [](const Chart&, int) -> ExtraValue { return QStringLiteral("0.0%"); };
    return {
        YesNo(Of::Series, "SecondaryAxis",
              [](Chart& chart, int id) -> auto& { return SeriesOf(chart, id).SecondaryAxis; }),
        SharedField(Text(Of::Series, "ValueFormat",
                         [](Chart& chart, int id) -> auto& {
                             return PointsOf(chart, id).DataPointLabel.ValueFormat;
                         }),
                    format),
        SharedField(Text(Of::Series, "PercentFormat",
                         [](Chart& chart, int id) -> auto& {
                             return PointsOf(chart, id).DataPointLabel.PercentFormat;
                         }),
                    percent),
        Number(Of::Series, "MarkerStyle", 0, static_cast<int>(MarkerStyle::Star),
               [](Chart& chart, int id) -> auto& { return PointsOf(chart, id).Marker.Style; }),
        Number(Of::Series, "MarkerSize", 0, MostPoints,
               [](Chart& chart, int id) -> auto& { return PointsOf(chart, id).Marker.Size; }),
        Number(Of::Series, "LineStyle", 0, static_cast<int>(PenStyle::DashDotted),
               [](Chart& chart, int id) -> auto& { return SeriesOf(chart, id).LinePen.Style; }),
        Number(Of::Series, "LineWidth", 0, MostPoints,
               [](Chart& chart, int id) -> auto& { return SeriesOf(chart, id).LinePen.Width; }),
        Number(Of::Series, "EdgeStyle", 0, static_cast<int>(PenStyle::Dotted),
               [](Chart& chart, int id) -> auto& { return PointsOf(chart, id).EdgePen.Style; }),
        Number(Of::Series, "EdgeWidth", 0, MostPoints,
               [](Chart& chart, int id) -> auto& { return PointsOf(chart, id).EdgePen.Width; }),
        ColourOf(Of::Series, "EdgeColor",
                 [](Chart& chart, int id) -> auto& { return PointsOf(chart, id).EdgePen.VtColor; }),
    };
}

std::vector<ExtraField> MakeFields() {
    std::vector<ExtraField> fields = ChartFields();
    for (std::vector<ExtraField> more : {AxisFields(), SeriesFields()})
        for (ExtraField& field : more) fields.push_back(std::move(field));
    return fields;
}

} // namespace

const std::vector<ExtraField>& ExtraFields() {
    static const std::vector<ExtraField> fields = MakeFields();
    return fields;
}

} // namespace QmChart6
