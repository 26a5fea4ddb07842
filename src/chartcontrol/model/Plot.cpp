#include "chartcontrol/model/Plot.h"

namespace QmChart6 {

namespace {

std::size_t PlaceOfAxis(int id, int index) {
    if (id < 0 || id > static_cast<int>(AxisId::Z))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("an axis id is a number from 0 to 3, not %1").arg(id));
    if (index != 1)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("there is one axis of each id, not %1").arg(index));
    return static_cast<std::size_t>(id);
}

} // namespace

Plot::Plot() {
    for (QmChart6::Axis& axis : axes_) axis.AxisTitle.VtFont.Size = 10;
    Axis(AxisId::Y).AxisGrid.MajorPen.Style = PenStyle::Solid;
    Axis(AxisId::Y).AxisTitle.TextLayout.Orientation = Orientation::Up;
    Axis(AxisId::SecondaryY).AxisTitle.TextLayout.Orientation = Orientation::Down;
    Axis(AxisId::SecondaryY).AxisScale.Hide = true;
}

QmChart6::Axis& Plot::Axis(int id, int index) {
    return axes_[PlaceOfAxis(id, index)];
}

const QmChart6::Axis& Plot::Axis(int id, int index) const {
    return axes_[PlaceOfAxis(id, index)];
}

} // namespace QmChart6
