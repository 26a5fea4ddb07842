#include "config/LookExtrasState.h"

#include <algorithm>

namespace QmChart6 {

namespace {

int FirstOf(ExtraOf of) {
    return of == ExtraOf::Series ? 1 : 0;
}
int LastOf(const Chart& chart, ExtraOf of) {
    if (of == ExtraOf::Series) return chart.Plot.SeriesCollection.Count();
    return of == ExtraOf::Axis ? static_cast<int>(AxisId::Z) : 0;
}

/// The numbers that a key speaks of in a chart; none where the chart has no such part.
std::vector<int> NumbersOf(const Chart& chart, const ExtraKey& key) {
    std::vector<int> numbers;
    for (int number = FirstOf(key.of); number <= LastOf(chart, key.of); ++number)
        if (key.number == EveryOne || key.number == number) numbers.push_back(number);
    return numbers;
}

/// What is said of one part: of it alone, or of all.
const ExtraValue* SaidOf(const Extras& extras, ExtraKey key) {
    auto found = extras.find(key);
    if (found == extras.end()) {
        key.number = EveryOne;
        found = extras.find(key);
    }
    return found == extras.end() ? nullptr : &found->second;
}

/// The key of one part's field. The chart is the only one of its kind.
ExtraKey KeyOf(const ExtraField& field, int number) {
    return {field.of, field.of == ExtraOf::Chart ? EveryOne : number, field.name};
}

/// Whether the parts that a key speaks of, but for those that another speaks of alone, still are as it says.
bool Holds(LookState& look, const ExtraKey& key, const ExtraValue& value) {
    const ExtraField& field = ExtraFieldOf(key);
    const std::vector<int> numbers = NumbersOf(look.chart, key);
    return std::all_of(numbers.begin(), numbers.end(), [&](int number) {
        const bool another = SaidOf(look.extras, KeyOf(field, number)) != &value;
        return another || field.read(look.chart, number) == value;
    });
}

/// A new chart with as many series.
Chart NewChartLike(const Chart& chart) {
    Chart anew;
    anew.SetGridSize(1, chart.Plot.SeriesCollection.Count());
    return anew;
}

} // namespace

Extras CaptureExtras(LookState look) {
    Extras extras;
    for (const auto& [key, value] : look.extras)
        if (Holds(look, key, value)) extras.emplace(key, value);
    Chart anew = NewChartLike(look.chart);
    for (const ExtraField& field : ExtraFields()) {
        if (field.otherwise) continue;
        for (const int number : NumbersOf(look.chart, {field.of, EveryOne, field.name})) {
            const ExtraKey key = KeyOf(field, number);
            const ExtraValue now = field.read(look.chart, number);
            const ExtraValue* said = SaidOf(extras, key);
            if (now != (said != nullptr ? *said : field.read(anew, number)))
                extras.insert_or_assign(key, now);
        }
    }
    return extras;
}

void ResetExtras(LookState& look) {
    Chart anew = NewChartLike(look.chart);
    for (const ExtraField& field : ExtraFields()) {
        for (const int number : NumbersOf(look.chart, {field.of, EveryOne, field.name})) {
            const ExtraValue now = field.read(look.chart, number);
            const ExtraValue* said = SaidOf(look.extras, KeyOf(field, number));
            if (field.otherwise && (said == nullptr || now != *said)) continue;
            const ExtraValue plain =
                field.otherwise ? field.otherwise(look.chart, number) : field.read(anew, number);
            if (now != plain) field.write(look.chart, number, plain);
        }
    }
    look.extras.clear();
}

void ApplyExtras(LookState& look, const Extras& extras) {
    for (const auto& [key, value] : extras) {
        const ExtraField& field = ExtraFieldOf(key);
        for (const int number : NumbersOf(look.chart, key)) field.write(look.chart, number, value);
        look.extras.insert_or_assign(key, value);
    }
}

} // namespace QmChart6
