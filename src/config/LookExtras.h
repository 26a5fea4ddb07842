#pragma once

#include "chartcontrol/model/Chart.h"

#include <functional>
#include <map>
#include <tuple>
#include <variant>
#include <vector>

namespace QmChart6 {

/// What a look may say beyond the fields of its tables: some of the properties that they do not hold, of the
/// chart, of an axis or of a series.
enum class ExtraOf { Chart, Axis, Series };

/// The number that stands for all axes, or all series.
inline constexpr int EveryOne = -1;

/// A property of one element; axes and series are numbered as in their tables.
struct ExtraKey {
    ExtraOf of = ExtraOf::Chart;
    int number = EveryOne;
    QString field;

    friend bool operator==(const ExtraKey&, const ExtraKey&) = default;
    /// What is said of all comes before what is said of one.
    friend bool operator<(const ExtraKey& a, const ExtraKey& b) {
        return std::tie(a.of, a.number, a.field) < std::tie(b.of, b.number, b.field);
    }
};

using ExtraValue = std::variant<bool, double, QString>;
using Extras = std::map<ExtraKey, ExtraValue>;

/// What the element is called in JSON and in the store: "Chart", "Axis" and "Series" (each of them), "Axis 0"
/// to "Axis 3", "Series 1" and so on.
QString ElementText(const ExtraKey& key);
/// The key for such a text. Raises 321.
ExtraKey ExtraKeyOf(const QString& element, const QString& field);

/// What such a property is called and takes, and how a chart is asked for it and given it.
struct ExtraField {
    ExtraOf of = ExtraOf::Chart;
    QString name;
    ExtraValue least; ///< with `most`, what it takes: a truth, a number between, a text
    ExtraValue most;
    bool whole = false;  ///< of numbers
    bool colour = false; ///< of texts: "#rrggbb"
    std::function<ExtraValue(Chart&, int number)> read;
    std::function<void(Chart&, int number, const ExtraValue&)> write;
    /// The property has other writers: stored fields, data or hosts. Then the look keeps only what it was
    /// told itself, and this gives what it is without that.
    std::function<ExtraValue(const Chart&, int number)> otherwise = {};
};

/// All there are. The list is all that JSON, the store, capturing and applying are made from.
const std::vector<ExtraField>& ExtraFields();
/// Raises 3265, naming those that the element has.
const ExtraField& ExtraFieldOf(const ExtraKey& key);

/// The value as the field takes it. Raises 13 (another kind) and 380 (outside what it takes), saying what is
/// expected.
ExtraValue CheckedExtra(const ExtraKey& key, const ExtraValue& value);
/// Raises 380 where values contradict each other.
void RequireConsistent(const Extras& extras);

/// A value as a text field of a table holds it, and back, checked.
QString ExtraText(const ExtraValue& value);
ExtraValue ExtraOfText(const ExtraKey& key, const QString& text);

} // namespace QmChart6
