#include "chartcontrol/model/Enumerations.h"

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

} // namespace

PenStyle ToPenStyle(int number) {
    return InRange(number, PenStyle::Dotted, "a pen style");
}
BrushStyle ToBrushStyle(int number) {
    return InRange(number, BrushStyle::Hatch, "a brush style");
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

} // namespace QmChart6
