#include "chartcontrol/model/Enumerations.h"

#include <algorithm>
#include <initializer_list>

namespace QmChart6 {

namespace {

template<class E>
E InRange(int number, E last, const char* what) {
    if (number < 0 || number > static_cast<int>(last))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("%1 is a number from 0 to %2, not %3")
                               .arg(QString::fromLatin1(what))
                               .arg(static_cast<int>(last))
                               .arg(number));
    return static_cast<E>(number);
}

template<class E>
E OneOf(int number, std::initializer_list<E> values, const char* what) {
    const auto found = std::find(values.begin(), values.end(), static_cast<E>(number));
    if (found == values.end())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("there is no %1 %2").arg(QString::fromLatin1(what)).arg(number));
    return *found;
}

} // namespace

ChartType ToChartType(int number) {
    if (number >= 0 && number <= static_cast<int>(ChartType::Combination2D))
        return static_cast<ChartType>(number);
    return OneOf(number, {ChartType::Pie2D, ChartType::XY2D}, "chart type");
}

SeriesType ToSeriesType(int number) {
    return OneOf(number,
                 {SeriesType::Bar3D, SeriesType::Bar2D, SeriesType::Line3D, SeriesType::Line2D,
                  SeriesType::Area3D, SeriesType::Area2D, SeriesType::Step3D, SeriesType::Step2D,
                  SeriesType::XY2D, SeriesType::Pie2D},
                 "series type");
}

PenStyle ToPenStyle(int number) {
    return InRange(number, PenStyle::Dotted, "a pen style");
}
BrushStyle ToBrushStyle(int number) {
    return InRange(number, BrushStyle::Hatch, "a brush style");
}
FrameStyle ToFrameStyle(int number) {
    return InRange(number, FrameStyle::ThickOuter, "a frame style");
}
LocationType ToLocationType(int number) {
    return InRange(number, LocationType::Custom, "a location type");
}
LabelLocation ToLabelLocation(int number) {
    return InRange(number, LabelLocation::Right, "a label location");
}
LabelLineStyle ToLabelLineStyle(int number) {
    return InRange(number, LabelLineStyle::Bent, "a label line style");
}
SubPlotLabelPosition ToSubPlotLabelPosition(int number) {
    return InRange(number, SubPlotLabelPosition::Center, "a pie label position");
}
Projection ToProjection(int number) {
    return InRange(number, Projection::Orthogonal, "a projection");
}
Orientation ToOrientation(int number) {
    return InRange(number, Orientation::Down, "an orientation");
}
HorizontalAlignment ToHorizontalAlignment(int number) {
    return InRange(number, HorizontalAlignment::Center, "a horizontal alignment");
}
VerticalAlignment ToVerticalAlignment(int number) {
    return InRange(number, VerticalAlignment::Center, "a vertical alignment");
}

bool Is3D(ChartType type) {
    return type < ChartType::Pie2D && static_cast<int>(type) % 2 == 0;
}

bool IsCombination(ChartType type) {
    return type == ChartType::Combination2D || type == ChartType::Combination3D;
}

SeriesType SeriesTypeOf(ChartType type, int number, int count) {
    switch (type) {
    case ChartType::Bar3D:
        return SeriesType::Bar3D;
    case ChartType::Bar2D:
        return SeriesType::Bar2D;
    case ChartType::Line3D:
        return SeriesType::Line3D;
    case ChartType::Line2D:
        return SeriesType::Line2D;
    case ChartType::Area3D:
        return SeriesType::Area3D;
    case ChartType::Area2D:
        return SeriesType::Area2D;
    case ChartType::Step3D:
        return SeriesType::Step3D;
    case ChartType::Step2D:
        return SeriesType::Step2D;
    case ChartType::Combination3D:
        return number <= (count + 1) / 2 ? SeriesType::Bar3D : SeriesType::Line3D;
    case ChartType::Combination2D:
        return number <= (count + 1) / 2 ? SeriesType::Bar2D : SeriesType::Line2D;
    case ChartType::Pie2D:
        return SeriesType::Pie2D;
    case ChartType::XY2D:
        return SeriesType::XY2D;
    }
    return SeriesType::Bar2D;
}

} // namespace QmChart6
