#include "qmchart/FittedLook.h"

#include <QJsonArray>
#include <QMap>
#include <QStringList>

#include <utility>

namespace QmChart6 {

namespace {

// As looks number them.
constexpr int BarChart = 1;
constexpr int AreaChart3D = 4;
constexpr int AreaChart = 5;
constexpr int PieChart = 14;
constexpr int XYChart = 16;
constexpr int ValueAxis = 1;
constexpr int SecondValueAxis = 2;

QLatin1String Name(const char* text) {
    return QLatin1String(text);
}

int KindOf(const QJsonObject& look) {
    return look.value(Name("chartType")).toInt(BarChart);
}

void SetIfOpen(QJsonObject& look, const char* field, const QJsonValue& value) {
    if (!look.contains(Name(field))) look.insert(Name(field), value);
}

void DropLegend(QJsonObject& look) {
    SetIfOpen(look, "Legend", false);
    QJsonArray kept;
    const QJsonArray beyond = look.value(Name("Beyond")).toArray();
    for (const auto& record : beyond)
        if (record.toObject().value(Name("Field")) != Name("LegendFollowsData")) kept.append(record);
    if (!beyond.isEmpty()) look.insert(Name("Beyond"), kept);
}

/// The record of an axis among others: one without a number has that of its place.
qsizetype PlaceOfAxis(const QJsonArray& axes, int id) {
    qsizetype place = 0;
    while (place < axes.size() &&
           axes[place].toObject().value(Name("AxisId")).toInt(static_cast<int>(place)) != id)
        ++place;
    return place;
}

void SetOfAxis(QJsonObject& look, int id, const char* field, const QJsonValue& value) {
    QJsonArray axes = look.value(Name("Axes")).toArray();
    const qsizetype place = PlaceOfAxis(axes, id);
    if (place == axes.size()) axes.append(QJsonObject{{Name("AxisId"), id}});
    QJsonObject axis = axes[place].toObject();
    axis.insert(Name(field), value);
    axes[place] = axis;
    look.insert(Name("Axes"), axes);
}

/// The numbers of the series that the look puts on the second value axis.
QList<int> SecondarySeries(const QJsonObject& look) {
    QList<int> numbers;
    const QJsonArray beyond = look.value(Name("Beyond")).toArray();
    for (const auto& record : beyond) {
        const QJsonObject said = record.toObject();
        if (said.value(Name("Field")) == Name("SecondaryAxis") && said.value(Name("Value")).toBool())
            numbers.append(said.value(Name("Element")).toString().section(u' ', 1).toInt());
    }
    return numbers;
}

bool StandsOnSecondAxis(const QJsonObject& look, int column) {
    return SecondarySeries(look).contains(column);
}

/// A look that has a second axis for some series shows none where the table has none of them.
void DropSecondAxis(QJsonObject& look, const Table& table) {
    const QList<int> secondary = SecondarySeries(look);
    bool any = false;
    for (const int number : secondary) any |= number <= table.columns && !MakesXYChart(look);
    if (!secondary.isEmpty() && !any) SetOfAxis(look, SecondValueAxis, "AxisScaleVisible", false);
}

void DropTitles(QJsonObject& look) {
    look.remove(Name("TitleText"));
    look.remove(Name("Columns"));
    QJsonArray axes;
    const QJsonArray titled = look.value(Name("Axes")).toArray();
    for (const auto& axis : titled) {
        QJsonObject plain = axis.toObject();
        plain.remove(Name("AxisTitleText"));
        axes.append(plain);
    }
    look.insert(Name("Axes"), axes);
}

/// A list's records with the numbers that they have by their places.
QJsonArray Numbered(const QString& list, const QJsonArray& records) {
    static const QMap<QString, std::pair<QString, int>> numbers{{Name("Axes"), {Name("AxisId"), 0}},
                                                                {Name("Series"), {Name("SeriesId"), 1}},
                                                                {Name("Columns"), {Name("ColumnId"), 1}}};
    const auto number = numbers.find(list);
    if (number == numbers.end()) return records;
    QJsonArray numbered;
    for (qsizetype place = 0; place < records.size(); ++place) {
        QJsonObject record = records[place].toObject();
        if (!record.contains(number->first))
            record.insert(number->first, static_cast<int>(place) + number->second);
        numbered.append(record);
    }
    return numbered;
}

/// What a record of a list is known by: the number of its axis, column or series, or, of what a look says
/// beyond those, the element and the field. Without any it is that of its place. What is said of all elements
/// comes before what is said of one.
QString KeyOf(const QJsonArray& records, qsizetype place) {
    const QJsonObject record = records[place].toObject();
    if (record.contains(Name("Field")))
        return record.value(Name("Element")).toString() + u'\n' + record.value(Name("Field")).toString();
    for (const char* id : {"AxisId", "SeriesId", "ColumnId"})
        if (record.contains(Name(id))) return record.value(Name(id)).toVariant().toString();
    return QStringLiteral("place %1").arg(place);
}

/// The records of one list, each with what it leaves out taken from the one of the other of its number.
QJsonArray CompletedRecords(const QJsonArray& mine, const QJsonArray& theirs) {
    QMap<QString, QJsonObject> records;
    for (qsizetype place = 0; place < theirs.size(); ++place)
        records[KeyOf(theirs, place)] = theirs[place].toObject();
    for (qsizetype place = 0; place < mine.size(); ++place) {
        QJsonObject& record = records[KeyOf(mine, place)];
        const QJsonObject own = mine[place].toObject();
        for (auto field = own.begin(); field != own.end(); ++field) record.insert(field.key(), field.value());
    }
    QJsonArray complete;
    for (const QJsonObject& record : std::as_const(records)) complete.append(record);
    return complete;
}

} // namespace

void SetKind(QJsonObject& look, int chartType) {
    look.insert(Name("chartType"), chartType);
    QJsonArray series;
    const QJsonArray typed = look.value(Name("Series")).toArray();
    for (const auto& one : typed) {
        QJsonObject untyped = one.toObject();
        untyped.remove(Name("SeriesType"));
        series.append(untyped);
    }
    if (!typed.isEmpty()) look.insert(Name("Series"), series);
}

bool IsSketch(const QJsonObject& look) {
    return !look.contains(Name("TitleFontName"));
}

bool HasDarkGround(const QJsonObject& look) {
    constexpr int white = 255;
    constexpr int middling = 128;
    const auto component = [&look](const char* field) { return look.value(Name(field)).toInt(white); };
    const int brightness = (299 * component("BackColorRed") + 587 * component("BackColorGreen") +
                            114 * component("BackColorBlue")) /
                           1000;
    return brightness < middling;
}

QJsonObject CompletedBy(const QJsonObject& look, const QJsonObject& other) {
    QJsonObject complete = other;
    // Whoever says whether there is a legend has decided on it.
    if (look.contains(Name("Legend"))) DropLegend(complete);
    for (auto field = look.begin(); field != look.end(); ++field) {
        const QJsonArray mine = Numbered(field.key(), field.value().toArray());
        const QJsonArray theirs = Numbered(field.key(), other.value(field.key()).toArray());
        complete.insert(field.key(), mine.isEmpty() || theirs.isEmpty()
                                         ? field.value()
                                         : QJsonValue(CompletedRecords(mine, theirs)));
    }
    return complete;
}

bool MakesXYChart(const QJsonObject& look) {
    return KindOf(look) == XYChart;
}

QString ColumnName(const Table& table, int column) {
    return column <= table.columns ? table.columnLabels.At(table.columnLabels.LowerBound() + column - 1)
                                   : QString();
}

void FitToTable(QJsonObject& look, const Table& table) {
    const int kind = KindOf(look);
    if (kind == XYChart) {
        SetIfOpen(look, "Lines", 0);
        if (table.columns == 2) DropLegend(look);
    }
    if (kind == AreaChart || kind == AreaChart3D) SetIfOpen(look, "Stacked", 1);
    if (kind == PieChart && table.columns == 1) SetIfOpen(look, "Flipped", true);
    DropSecondAxis(look, table);
}

bool NameValueAxes(QJsonObject& look, const Table& table) {
    const bool twoSeries = table.columns == 2 && !StandsOnSecondAxis(look, 1) && StandsOnSecondAxis(look, 2);
    if (!twoSeries || MakesXYChart(look)) return false;
    DropTitles(look);
    DropLegend(look); // the axes say it all
    SetOfAxis(look, ValueAxis, "AxisTitleText", ColumnName(table, 1));
    SetOfAxis(look, SecondValueAxis, "AxisTitleText", ColumnName(table, 2));
    return true;
}

} // namespace QmChart6
