#include "chartcontrol/model/Series.h"

#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/model/Palette.h"

namespace QmChart6 {

namespace {

void RequirePointIndex(int index) {
    if (index != DataPoints::All && index < 1)
        throw RuntimeError(
            ErrorNumber::SubscriptOutOfRange,
            QStringLiteral("a data point is numbered from 1 (-1 is all of them), not %1").arg(index));
}

} // namespace

DataPoint& DataPoints::Item(int index) {
    RequirePointIndex(index);
    if (index == All) return all_;
    return own_.try_emplace(index, all_).first->second;
}

const DataPoint& DataPoints::Item(int index) const {
    RequirePointIndex(index);
    const auto own = index == All ? own_.end() : own_.find(index);
    return own == own_.end() ? all_ : own->second;
}

std::size_t SeriesCollection::PlaceOf(int number) const {
    if (number < 1 || number > Count())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("there is no series %1 among %2").arg(number).arg(Count()));
    return static_cast<std::size_t>(number) - 1;
}

Series& SeriesCollection::Item(int number) {
    return series_[PlaceOf(number)];
}

const Series& SeriesCollection::Item(int number) const {
    return series_[PlaceOf(number)];
}

void SeriesCollection::Resize(int count, ChartType type) {
    const int before = Count();
    series_.resize(static_cast<std::size_t>(count));
    for (int number = before + 1; number <= count; ++number)
        Item(number) = PaletteSeries(number, SeriesTypeOf(type, number, count));
}

} // namespace QmChart6
