#include "RandomLook.h"

#include <QStringList>

#include <map>
#include <vector>

using namespace QmChart6;

namespace {

int Below(std::mt19937& random, int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

template<class T>
T OneOf(std::mt19937& random, const std::vector<T>& values) {
    return values[static_cast<std::size_t>(Below(random, static_cast<int>(values.size())))];
}

/// The values of the fields that take some numbers only, by the end of their names.
const std::map<QString, std::vector<int>>& Choices() {
    static const std::map<QString, std::vector<int>> choices{
        {QStringLiteral("chartType"), {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16}},
        {QStringLiteral("Lines"), {0, 1}},
        {QStringLiteral("Markers"), {0, 1}},
        {QStringLiteral("Stacked"), {0, 1}},
        {QStringLiteral("Projection"), {0, 1, 2}},
        {QStringLiteral("PieLabelPos"), {0, 1, 2, 3}},
        {QStringLiteral("SeriesType"), {0, 1, 5, 6, 7, 8, 9, 10, 11, 24}},
        {QStringLiteral("StatLine"), {0, 1, 3, 21, 31}},
        {QStringLiteral("SeriesStyle"), {0, 1, 2, 3}},
        {QStringLiteral("SeriesIndex"), {0, 1, 2, 3, 4, 5}},
        {QStringLiteral("Orientation"), {0, 1, 2, 3}},
        {QStringLiteral("LocationType"), {0, 1, 2, 3, 4, 5, 6, 7, 8}},
        {QStringLiteral("LabelLocation"), {0, 1, 2, 3, 4, 5, 6, 7, 8}},
        {QStringLiteral("LineStyle"), {0, 1, 2}},
        {QStringLiteral("Components"), {0, 1, 2, 3, 4, 7}},
        {QStringLiteral("GridStyle"), {0, 1, 2, 3}},
        {QStringLiteral("Alignment"), {0, 1, 2}},
        {QStringLiteral("FontStyle"), {0, 1, 2, 3}},
        {QStringLiteral("FontEffect"), {0, 256, 512, 768}},
    };
    return choices;
}

FieldValue RandomNumber(std::mt19937& random, const LookField& field) {
    for (const auto& [end, values] : Choices())
        if (field.name.endsWith(end)) return ToKind(OneOf(random, values), field.kind, field.name);
    return ToKind(Below(random, 256), field.kind, field.name); // a colour's component
}

FieldValue RandomReal(std::mt19937& random, const LookField& field) {
    const float share = static_cast<float>(random() % 10000) / 10000;
    if (field.name.startsWith(QLatin1String("Chart"))) return std::floor(4000 + share * 8000);
    if (field.name.endsWith(QLatin1String("FontSize"))) return 5 + share * 20;
    if (field.name.endsWith(QLatin1String("MaxX")) || field.name.endsWith(QLatin1String("MaxY")))
        return 150 + share * 200;
    return share * 100;
}

FieldValue RandomValue(std::mt19937& random, const LookField& field) {
    switch (field.kind) {
    case FieldKind::Text:
        return field.name.endsWith(QLatin1String("FontName"))
                   ? OneOf<QString>(random, {QStringLiteral("Arial"), QStringLiteral("Courier New")})
                   : OneOf<QString>(random, {QString(), QStringLiteral("Text"),
                                             QStringLiteral("it's 100 % ü 😀\nnext")});
    case FieldKind::Boolean:
        return Below(random, 2) == 1;
    case FieldKind::Integer:
    case FieldKind::Long:
        return RandomNumber(random, field);
    case FieldKind::Real:
        return RandomReal(random, field);
    }
    return {};
}

} // namespace

Look RandomLook(std::mt19937& random, int columns, int series) {
    const std::vector<std::pair<const LookTable*, std::pair<int, int>>> records{
        {&ChartLook(), {0, 0}},
        {&ColumnsLook(), {1, columns}},
        {&SeriesLook(), {1, series}},
        {&AxesLook(), {0, 3}}};
    Look look;
    for (const auto& [table, range] : records) {
        for (int number = range.first; number <= range.second; ++number) {
            look.Start(*table, number);
            for (const LookField& field : table->fields) look.Set(*table, field, RandomValue(random, field));
        }
    }
    return look;
}
