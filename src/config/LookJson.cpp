#include "config/LookJson.h"

#include "qmchart6/RuntimeError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <charconv>
#include <type_traits>

namespace QmChart6 {

namespace {

constexpr int LastAxis = 3;

constexpr const char* ExtrasName = "Beyond";
constexpr const char* ElementName = "Element";
constexpr const char* FieldName = "Field";
constexpr const char* ValueName = "Value";

/// A single-precision number by its shortest digits, not by those of its double.
double ShortestDouble(float number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    double shortest = 0;
    std::from_chars(digits.data(), end, shortest);
    return shortest;
}

QJsonValue ToJson(const FieldValue& value) {
    return std::visit(
        [](const auto& held) -> QJsonValue {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, float>)
                return ShortestDouble(held);
            else if constexpr (std::is_integral_v<Held> && !std::is_same_v<Held, bool>)
                return static_cast<int>(held);
            else
                return held;
        },
        value);
}

QJsonValue ToJson(const ExtraValue& value) {
    return std::visit([](const auto& held) -> QJsonValue { return held; }, value);
}

QJsonObject ToJson(const Look::Record& record) {
    QJsonObject object;
    for (const auto& [name, value] : record) object.insert(name, ToJson(value));
    return object;
}

[[noreturn]] void RaiseMalformed(const QString& detail) {
    throw RuntimeError(ErrorNumber::InvalidFileFormat, QStringLiteral("this is no look: ") + detail);
}

FieldValue FromJson(const QJsonValue& json, FieldKind kind, const QString& field) {
    if (json.isString()) return ToKind(json.toString(), kind, field);
    if (json.isBool()) return ToKind(json.toBool(), kind, field);
    if (json.isDouble()) return NumberToKind(json.toDouble(), kind, field);
    throw RuntimeError(
        ErrorNumber::TypeMismatch,
        QStringLiteral("field \"%1\" takes a text, a number, true or false as its kind is").arg(field));
}

void ReadRecord(const QJsonObject& object, const LookTable& table, int number, Look& look) {
    look.Start(table, number);
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member.key() == table.numberField) continue;
        const LookField& field = table.Field(member.key());
        look.Set(table, field, FromJson(member.value(), field.kind, field.name));
    }
    look.Finish(table);
}

int NumberOf(const QJsonObject& object, const LookTable& table, int place) {
    const bool axes = &table == &AxesLook();
    const QJsonValue given = object.value(table.numberField);
    const int number = given.isUndefined()
                           ? (axes ? place : place + 1)
                           : std::get<std::int16_t>(FromJson(given, FieldKind::Integer, table.numberField));
    if (number < (axes ? 0 : 1) || (axes && number > LastAxis))
        throw RuntimeError(
            ErrorNumber::InvalidPropertyValue,
            QStringLiteral("%1 is %2, not %3")
                .arg(table.numberField, axes ? QStringLiteral("0 to 3") : QStringLiteral("1 or more"))
                .arg(number));
    return number;
}

void ReadRecords(const QJsonValue& list, const LookTable& table, Look& look) {
    if (!list.isArray()) RaiseMalformed(QStringLiteral("\"%1\" is not a list").arg(table.partsName));
    int place = 0;
    const QJsonArray elements = list.toArray();
    for (const auto& element : elements) {
        if (!element.isObject())
            RaiseMalformed(QStringLiteral("\"%1\" holds something else than objects").arg(table.partsName));
        const int number = NumberOf(element.toObject(), table, place++);
        if (look.Of(table).contains(number))
            throw RuntimeError(ErrorNumber::DuplicateKey,
                               QStringLiteral("%1 %2 is there twice").arg(table.numberField).arg(number));
        ReadRecord(element.toObject(), table, number, look);
    }
}

ExtraValue ExtraOfJson(const ExtraKey& key, const QJsonValue& json) {
    if (json.isBool()) return CheckedExtra(key, json.toBool());
    if (json.isDouble()) return CheckedExtra(key, json.toDouble());
    if (json.isString()) return CheckedExtra(key, json.toString());
    RaiseMalformed(QStringLiteral("\"%1\" of \"%2\" has no \"Value\" that is a text, a number, true or false")
                       .arg(key.field, ElementText(key)));
}

QString TextOf(const QJsonObject& object, const char* member) {
    const QJsonValue value = object.value(QLatin1String(member));
    if (!value.isString())
        RaiseMalformed(QStringLiteral("\"%1\" lacks a text \"%2\" somewhere")
                           .arg(QLatin1String(ExtrasName), QLatin1String(member)));
    return value.toString();
}

/// The records {Element, Field, Value} of what a look says beyond its fields.
Extras ReadExtras(const QJsonValue& list) {
    if (!list.isArray())
        RaiseMalformed(QStringLiteral("\"%1\" is not a list").arg(QLatin1String(ExtrasName)));
    Extras extras;
    const QJsonArray records = list.toArray();
    for (const auto& record : records) {
        const QJsonObject object = record.toObject();
        const ExtraKey key = ExtraKeyOf(TextOf(object, ElementName), TextOf(object, FieldName));
        for (const QString& member : object.keys())
            if (member != QLatin1String(ElementName) && member != QLatin1String(FieldName) &&
                member != QLatin1String(ValueName))
                RaiseMalformed(
                    QStringLiteral("a record of \"%1\" has an Element, a Field and a Value, no \"%2\"")
                        .arg(QLatin1String(ExtrasName), member));
        if (!extras.emplace(key, ExtraOfJson(key, object.value(QLatin1String(ValueName)))).second)
            throw RuntimeError(
                ErrorNumber::DuplicateKey,
                QStringLiteral("\"%1\" of \"%2\" is there twice").arg(key.field, ElementText(key)));
    }
    RequireConsistent(extras);
    return extras;
}

QJsonArray ToJson(const Extras& extras) {
    QJsonArray list;
    for (const auto& [key, value] : extras)
        list.append(QJsonObject{{QLatin1String(ElementName), ElementText(key)},
                                {QLatin1String(FieldName), key.field},
                                {QLatin1String(ValueName), ToJson(value)}});
    return list;
}

const LookTable* PartsOf(const QString& name) {
    for (const LookTable* table : LookTables())
        if (!table->partsName.isEmpty() && table->partsName == name) return table;
    return nullptr;
}

} // namespace

QByteArray WriteLookJson(const NamedLook& named) {
    QJsonObject object;
    for (const auto& [number, record] : named.look.Of(ChartLook())) object = ToJson(record);
    if (!named.name.isEmpty()) object.insert(QLatin1String(LookNameField), named.name);
    for (const LookTable* table : LookTables()) {
        if (table->partsName.isEmpty()) continue;
        QJsonArray list;
        for (const auto& [number, record] : named.look.Of(*table)) {
            QJsonObject part = ToJson(record);
            part.insert(table->numberField, number);
            list.append(part);
        }
        if (!list.isEmpty()) object.insert(table->partsName, list);
    }
    if (!named.look.SaidBeyond().empty())
        object.insert(QLatin1String(ExtrasName), ToJson(named.look.SaidBeyond()));
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

NamedLook ReadLookJson(const QByteArray& json) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        RaiseMalformed(QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject()) RaiseMalformed(QStringLiteral("it is not an object"));
    NamedLook named;
    QJsonObject whole = document.object();
    const QJsonObject all = whole;
    for (auto member = all.begin(); member != all.end(); ++member) {
        if (const LookTable* table = PartsOf(member.key())) {
            ReadRecords(member.value(), *table, named.look);
            whole.remove(member.key());
        }
    }
    if (whole.contains(QLatin1String(ExtrasName)))
        named.look.SetExtras(ReadExtras(whole.take(QLatin1String(ExtrasName))));
    if (whole.contains(QLatin1String(LookNameField)))
        named.name = std::get<QString>(FromJson(whole.take(QLatin1String(LookNameField)), FieldKind::Text,
                                                QLatin1String(LookNameField)));
    ReadRecord(whole, ChartLook(), 0, named.look);
    return named;
}

} // namespace QmChart6
