#include "chartcontrol/model/SeriesCollection.h"

#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/model/Palette.h"

namespace QmChart6 {

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
