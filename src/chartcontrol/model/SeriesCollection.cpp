#include "chartcontrol/model/SeriesCollection.h"

#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/model/Palette.h"

namespace QmChart6 {

Series& SeriesCollection::Item(int number) {
    if (number < 1 || number > Count())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("there is no series %1 among %2").arg(number).arg(Count()));
    return series_[static_cast<std::size_t>(number) - 1];
}

const Series& SeriesCollection::Item(int number) const {
    return const_cast<SeriesCollection*>(this)->Item(number); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

void SeriesCollection::Resize(int count, ChartType type) {
    const int before = Count();
    series_.resize(static_cast<std::size_t>(count));
    for (int number = before + 1; number <= count; ++number)
        Item(number) = PaletteSeries(number, SeriesTypeOf(type, number, count));
}

} // namespace QmChart6
